<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Velvane</name>
    <message>
        <source>● Recording — Esc to stop</source>
        <extracomment>ActionRecorder, RecordActionsController</extracomment>
        <translation>● 正在录制——按 Esc 停止</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>AddStepGrid, StepList</extracomment>
        <translation>添加%1</translation>
    </message>
    <message>
        <source>Choose the application to bring to the front</source>
        <extracomment>AppMenu</extracomment>
        <translation>选择要置于最前的应用</translation>
    </message>
    <message>
        <source>Choose app…</source>
        <extracomment>AppMenu</extracomment>
        <translation>选择应用…</translation>
    </message>
    <message>
        <source>Running</source>
        <extracomment>AppMenu</extracomment>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>AppMenu, SessionServices</extracomment>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>No applications found</source>
        <extracomment>AppMenu</extracomment>
        <translation>未找到应用</translation>
    </message>
    <message>
        <source>Unsaved changes could not be kept: %1.</source>
        <extracomment>Autosave</extracomment>
        <translation>无法保留未保存的更改：%1。</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Autosave, RestorePanel</extracomment>
        <translation>恢复</translation>
    </message>
    <message>
        <source>No recording frame to freeze yet.</source>
        <extracomment>BackdropController</extracomment>
        <translation>尚无可冻结的录制画面。</translation>
    </message>
    <message>
        <source>No live frame yet — grant Screen Recording first.</source>
        <extracomment>BackdropController</extracomment>
        <translation>尚无实时画面——请先授予屏幕录制权限。</translation>
    </message>
    <message>
        <source>Freeze Frame</source>
        <extracomment>BackdropController</extracomment>
        <translation>冻结画面</translation>
    </message>
    <message>
        <source>damaged property list: %1</source>
        <extracomment>BinaryObjects</extracomment>
        <translation>属性列表已损坏：%1</translation>
    </message>
    <message>
        <source>there are no texts in “%1”, only in %2</source>
        <extracomment>CLI</extracomment>
        <translation>没有“%1”的文本，仅有 %2</translation>
    </message>
    <message>
        <source>“%1” is not a finite number</source>
        <extracomment>CLI</extracomment>
        <translation>“%1”不是有限的数</translation>
    </message>
    <message>
        <source>Move Target</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>移动目标</translation>
    </message>
    <message>
        <source>Add Waypoint</source>
        <extracomment>CanvasController</extracomment>
        <translation>添加路径点</translation>
    </message>
    <message>
        <source>Added waypoint at (%1, %2).</source>
        <extracomment>CanvasController</extracomment>
        <translation>已在 (%1, %2) 添加路径点。</translation>
    </message>
    <message>
        <source>Nudge Target</source>
        <extracomment>CanvasController</extracomment>
        <translation>微移目标</translation>
    </message>
    <message>
        <source>Move Start</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>移动起点</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>实时</translation>
    </message>
    <message>
        <source>Show your live screen as the backdrop</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>将实时屏幕显示为背景</translation>
    </message>
    <message>
        <source>Record</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>录制</translation>
    </message>
    <message>
        <source>Record real actions and append them as steps</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>录制真实操作并追加为步骤</translation>
    </message>
    <message>
        <source>Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your real screen, then Freeze to pick targets against a still. Press Z to magnify.</source>
        <extracomment>CanvasHint, InspectorPane</extracomment>
        <translation>在上方添加步骤，或点击预览放置移动路径点。打开“实时”可显示真实屏幕，再用“冻结”在静止画面上选取目标。按 Z 放大。</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>CanvasMarks, DemoSettingsForm, cli</extracomment>
        <translation>起点</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.</source>
        <extracomment>CommandLine</extracomment>
        <translation>按脚本进行的屏幕演示：演示是屏幕图片上的一系列步骤（移动、点击、输入、
快捷键、等待等），可渲染为 H.264 影片，或在真实桌面上执行。</translation>
    </message>
    <message>
        <source>Demos to open in the editor</source>
        <extracomment>CommandLine</extracomment>
        <translation>要在编辑器中打开的演示</translation>
    </message>
    <message>
        <source>Open them in a process of its own, even when Velvane runs already</source>
        <extracomment>CommandLine</extracomment>
        <translation>在单独的进程中打开，即使 Velvane 已在运行</translation>
    </message>
    <message>
        <source>The language of all texts, e.g. de</source>
        <extracomment>CommandLine</extracomment>
        <translation>所有文本的语言，例如 de</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>选项</translation>
    </message>
    <message>
        <source>EXIT STATUS
  0  success
  1  failure, with one line on standard error; a live run that was stopped
  2  wrong usage
  130  an export stopped with Ctrl-C

Results go to standard output, messages and progress to standard error.
“velvane SUBCOMMAND --help” explains each subcommand.</source>
        <extracomment>CommandLine</extracomment>
        <translation>退出状态
  0  成功
  1  失败，标准错误上有一行说明；被停止的实时运行
  2  用法错误
  130  用 Ctrl-C 停止的导出

结果输出到标准输出，消息和进度输出到标准错误。
“velvane SUBCOMMAND --help”说明每个子命令。</translation>
    </message>
    <message>
        <source>(see velvane --help)</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>（参见 velvane --help）</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <extracomment>CommandLine</extracomment>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>standard output cannot be written to</source>
        <extracomment>CommandLine</extracomment>
        <translation>无法写入标准输出</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <extracomment>DemoDocument</extracomment>
        <translation>无法写入：%1</translation>
    </message>
    <message>
        <source>Change Canvas</source>
        <extracomment>DemoSettings, FieldEditing</extracomment>
        <translation>更改画布</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>无法读取“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” is not a picture that Velvane can read.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>“%1”不是 Velvane 能读取的图片。</translation>
    </message>
    <message>
        <source>Set Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>设置背景</translation>
    </message>
    <message>
        <source>Remove Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>移除背景</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>宽</translation>
    </message>
    <message>
        <source>X</source>
        <extracomment>DemoSettingsForm, StepForm</extracomment>
        <translation>X</translation>
    </message>
    <message>
        <source>H</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>高</translation>
    </message>
    <message>
        <source>Y</source>
        <extracomment>DemoSettingsForm, StepForm</extracomment>
        <translation>Y</translation>
    </message>
    <message>
        <source>Demo</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>演示</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>帧率</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>帧率</translation>
    </message>
    <message>
        <source>fps</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>帧/秒</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>起点 X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>起点 Y</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>画布</translation>
    </message>
    <message>
        <source>Canvas width</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>画布宽度</translation>
    </message>
    <message>
        <source>Canvas height</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>画布高度</translation>
    </message>
    <message>
        <source>Make the canvas as large as the primary display</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>使画布与主显示器一样大</translation>
    </message>
    <message>
        <source>Match Screen</source>
        <extracomment>DemoSettingsForm, EditorWindow</extracomment>
        <translation>匹配屏幕</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>未找到显示器。</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>图片</translation>
    </message>
    <message>
        <source>Backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景图片</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Choose a picture as the backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>选择一张图片作为背景</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>移除</translation>
    </message>
    <message>
        <source>Remove the backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>移除背景图片</translation>
    </message>
    <message>
        <source>Choose Backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>选择背景</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>图片 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>There is no backdrop picture.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>没有背景图片。</translation>
    </message>
    <message>
        <source>Export to Video…</source>
        <extracomment>DocumentCommands</extracomment>
        <translation>导出为视频…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <extracomment>Documents</extracomment>
        <translation>无法打开“%1”：%2。</translation>
    </message>
    <message>
        <source>The demo's picture cannot be read; saving leaves it out.</source>
        <extracomment>Documents</extracomment>
        <translation>无法读取演示的图片；保存时会将其略去。</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>EditCommands</extracomment>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>EditCommands</extracomment>
        <translation>重做</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>剪切</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>复制</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>粘贴</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>EditCommands, SeveralStepsForm, StepListPane</extracomment>
        <translation>创建副本</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>全选</translation>
    </message>
    <message>
        <source>Freeze</source>
        <extracomment>EditorToolBar, ViewCommands</extracomment>
        <translation>冻结</translation>
    </message>
    <message>
        <source>Recording</source>
        <extracomment>EditorToolBar, cli</extracomment>
        <translation>录制</translation>
    </message>
    <message>
        <source>Freeze the current frame so you can pick targets against a still</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>冻结当前画面，以便在静止画面上选取目标</translation>
    </message>
    <message>
        <source>Turn on Live or Recording first.</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>请先打开“实时”或“录制”。</translation>
    </message>
    <message>
        <source>Play the captured screen recording as the backdrop</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>将屏幕录像作为背景播放</translation>
    </message>
    <message>
        <source>Magnify the canvas 4× (Z)</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>将画布放大 4 倍 (Z)</translation>
    </message>
    <message>
        <source>Run options</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>运行选项</translation>
    </message>
    <message>
        <source>Hide other apps during run</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>运行时隐藏其他应用</translation>
    </message>
    <message>
        <source>Show mouse cursor</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>显示鼠标指针</translation>
    </message>
    <message>
        <source>Recording mode</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>录制模式</translation>
    </message>
    <message>
        <source>Don't record</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>不录制</translation>
    </message>
    <message>
        <source>Record screen</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>录制屏幕</translation>
    </message>
    <message>
        <source>Record active window</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>录制活动窗口</translation>
    </message>
    <message>
        <source>Active window needs a single-app flow</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>录制活动窗口要求流程只涉及一个应用</translation>
    </message>
    <message>
        <source>Run Live</source>
        <extracomment>EditorToolBar, DemoCommands</extracomment>
        <translation>实时运行</translation>
    </message>
    <message>
        <source>Drive the real cursor through these steps</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>驱动真实光标执行这些步骤</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>EditorWindow</extracomment>
        <translation>未命名</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <extracomment>EditorWindow</extracomment>
        <translation>未命名 %1</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>“%1”已在另一窗口中打开。</translation>
    </message>
    <message>
        <source>Choose another name, or close that window first.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>请选择其他名称，或先关闭那个窗口。</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>已保存 %1。</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>无法保存“%1”。</translation>
    </message>
    <message>
        <source>It %1. The demo is still open here with all your changes.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>该文件%1。演示仍在此处打开，您的所有更改都在。</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>EditorWindow, FileCommands, FilePanel</extracomment>
        <translation>另存为…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>EditorWindow, ExportProgressView, FilePanel</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>“%1” was changed by another program since it was opened or saved here.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>自在此处打开或保存后，“%1”已被其他程序更改。</translation>
    </message>
    <message>
        <source>Replacing it loses what the other program saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>替换会丢失其他程序保存的内容。</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>EditorWindow, FilePanel</extracomment>
        <translation>替换</translation>
    </message>
    <message>
        <source>“%1” was moved or deleted; saving writes it again.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>“%1”已被移动或删除；保存会重新写入。</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>“%1”已被其他程序更改。</translation>
    </message>
    <message>
        <source>Reloading it can be undone. If you keep your version, saving asks before it replaces the other.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>重新载入可以撤销。如果保留您的版本，保存时会先询问再替换另一版本。</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>EditorWindow</extracomment>
        <translation>重新载入</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <extracomment>EditorWindow</extracomment>
        <translation>保留我的版本</translation>
    </message>
    <message>
        <source>The screen is larger than the canvas.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>屏幕大于画布。</translation>
    </message>
    <message>
        <source>The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at its edge.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>屏幕为 %1 点，画布为 %2 点。在画布之外的操作会记录在其边缘。</translation>
    </message>
    <message>
        <source>Keep Canvas</source>
        <extracomment>EditorWindow</extracomment>
        <translation>保留画布</translation>
    </message>
    <message>
        <source>Do you want to save the changes to “%1”?</source>
        <extracomment>EditorWindow</extracomment>
        <translation>要保存对“%1”的更改吗？</translation>
    </message>
    <message>
        <source>Your changes are lost if you don't save them.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>如果不保存，您的更改将会丢失。</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>EditorWindow, FileCommands</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <extracomment>EditorWindow</extracomment>
        <translation>不保存</translation>
    </message>
    <message>
        <source>“%1” is still being exported.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>“%1”仍在导出。</translation>
    </message>
    <message>
        <source>Closing the demo stops the export before its movie is whole.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>关闭演示会在影片完成之前停止导出。</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <extracomment>EditorWindow</extracomment>
        <translation>停止导出</translation>
    </message>
    <message>
        <source>The recording backdrop is only for the preview: the movie shows the demo's still backdrop.</source>
        <extracomment>ExportController</extracomment>
        <translation>录像背景仅用于预览：影片显示演示的静态背景。</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>已导出到 %1。</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>导出失败：%1</translation>
    </message>
    <message>
        <source>Export cancelled.</source>
        <extracomment>ExportController</extracomment>
        <translation>已取消导出。</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (Velvane.ExportError error %1.)</source>
        <extracomment>ExportError</extracomment>
        <translation>无法完成操作。（Velvane.ExportError 错误 %1）</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <extracomment>ExportPanel</extracomment>
        <translation>导出为视频</translation>
    </message>
    <message>
        <source>MPEG-4 movies (*.mp4)</source>
        <extracomment>ExportPanel</extracomment>
        <translation>MPEG-4 影片 (*.mp4)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>ExportPanel</extracomment>
        <translation>导出</translation>
    </message>
    <message>
        <source>Save in:</source>
        <extracomment>ExportPanel, FilePanel</extracomment>
        <translation>保存位置：</translation>
    </message>
    <message>
        <source>Stop the export; the movie keeps what is done</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>停止导出；影片保留已完成的部分</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>取消导出</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>剩余 %1 秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>剩余 %1 分钟</translation>
    </message>
    <message>
        <source>Exporting, %1 %2</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>正在导出，%1 %2</translation>
    </message>
    <message>
        <source>No movie is %1 × %2 pixels large.</source>
        <extracomment>Exporter</extracomment>
        <translation>影片不能为 %1 × %2 像素。</translation>
    </message>
    <message>
        <source>The demo is too long for a movie.</source>
        <extracomment>Exporter</extracomment>
        <translation>演示太长，无法制成影片。</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新源的地址不安全。</translation>
    </message>
    <message>
        <source>This system has no secure connections to check for updates with.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>此系统没有可用于检查更新的安全连接。</translation>
    </message>
    <message>
        <source>The update server takes too long to answer.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新服务器响应时间过长。</translation>
    </message>
    <message>
        <source>The update feed is longer than %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新源大于 %1。</translation>
    </message>
    <message>
        <source>The update server %1 could not prove its identity.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新服务器 %1 无法证明其身份。</translation>
    </message>
    <message>
        <source>The update server redirects too often.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新服务器重定向次数过多。</translation>
    </message>
    <message>
        <source>The update server redirects to an address that is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新服务器重定向到不安全的地址。</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>更新服务器返回状态 %1。</translation>
    </message>
    <message>
        <source>The update server %1 could not be reached.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>无法连接更新服务器 %1。</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <extracomment>FieldEditing</extracomment>
        <translation>更改停顿</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <extracomment>FieldEditing</extracomment>
        <translation>编辑文本</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <extracomment>FieldEditing</extracomment>
        <translation>更改时长</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <extracomment>FieldEditing</extracomment>
        <translation>更改帧率</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <extracomment>Fields</extracomment>
        <translation>不是字典</translation>
    </message>
    <message>
        <source>step %1: %2</source>
        <extracomment>Fields</extracomment>
        <translation>步骤 %1：%2</translation>
    </message>
    <message>
        <source>missing “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>缺少“%1”</translation>
    </message>
    <message>
        <source>“%1” is not a string</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是字符串</translation>
    </message>
    <message>
        <source>“%1” is not a boolean</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是布尔值</translation>
    </message>
    <message>
        <source>“%1” is not data</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是二进制数据</translation>
    </message>
    <message>
        <source>“%1” is not an array</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是数组</translation>
    </message>
    <message>
        <source>“%1” is not finite</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是有限数值</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是数字</translation>
    </message>
    <message>
        <source>“%1” is not an array of two numbers</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是由两个数字组成的数组</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是整数</translation>
    </message>
    <message>
        <source>“%1” is out of range</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”超出范围</translation>
    </message>
    <message>
        <source>“%1” is not a UUID: “%2”</source>
        <extracomment>Fields</extracomment>
        <translation>“%1”不是 UUID：“%2”</translation>
    </message>
    <message>
        <source>unknown kind “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>未知类型“%1”</translation>
    </message>
    <message>
        <source>cannot be written: another Velvane is writing in its folder</source>
        <extracomment>FolderLock</extracomment>
        <translation>无法写入：另一个 Velvane 正在写入其文件夹</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>无法制作 %1 × %2 像素的影片：边长须为 1 到 %3 像素</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and H.264 allows %4</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>无法制作 %1 × %2 像素的影片：它有 %3 个宏块，而 H.264 最多允许 %4 个</translation>
    </message>
    <message>
        <source>%1 frames per second are not possible: at least 1</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>无法使用每秒 %1 帧：至少为 1</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels at %3 frames per second is not possible: it has %4 macroblocks per second, and H.264 allows %5</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>无法制作 %1 × %2 像素、每秒 %3 帧的影片：它每秒有 %4 个宏块，而 H.264 最多允许 %5 个</translation>
    </message>
    <message>
        <source>Actions are being recorded.</source>
        <extracomment>InputTurns</extracomment>
        <translation>正在录制操作。</translation>
    </message>
    <message>
        <source>Delete Step</source>
        <extracomment>InspectorPane, StepList, StepCommands</extracomment>
        <translation>删除步骤</translation>
    </message>
    <message>
        <source>Delete this step</source>
        <extracomment>InspectorPane</extracomment>
        <translation>删除此步骤</translation>
    </message>
    <message>
        <source>Delete Steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>删除步骤</translation>
    </message>
    <message>
        <source>Delete the selected steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>删除所选步骤</translation>
    </message>
    <message>
        <source>No step selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>未选择步骤</translation>
    </message>
    <message>
        <source>%1 steps selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>已选择 %1 个步骤</translation>
    </message>
    <message>
        <source>not a property list</source>
        <extracomment>KeptDemo, velvane</extracomment>
        <translation>不是属性列表</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <extracomment>KeptSession</extracomment>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>Driving the real cursor — bring your target app forward</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>正在驱动真实光标——请将目标应用置于最前</translation>
    </message>
    <message>
        <source>Switching to %1</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>正在切换到 %1</translation>
    </message>
    <message>
        <source>Press Esc to abort</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>按 Esc 中止</translation>
    </message>
    <message>
        <source>Live run in progress — Esc to stop</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>正在实时运行——按 Esc 停止</translation>
    </message>
    <message>
        <source>A live run is in progress.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>正在实时运行。</translation>
    </message>
    <message>
        <source>Add some steps first.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>请先添加一些步骤。</translation>
    </message>
    <message>
        <source>Grant Accessibility permission to Velvane, then run again.</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>请授予 Velvane 辅助功能权限，然后再次运行。</translation>
    </message>
    <message>
        <source>Esc cannot be watched for here, so nothing was run.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>此处无法监听 Esc 键，因此未运行任何步骤。</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>录制已停止：%1</translation>
    </message>
    <message>
        <source>Couldn't start recording: %1</source>
        <extracomment>LiveRunController</extracomment>
        <translation>无法开始录制：%1</translation>
    </message>
    <message>
        <source>Live run stopped: the display has gone.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>实时运行已停止：显示器已断开。</translation>
    </message>
    <message>
        <source>Live run stopped.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>实时运行已停止。</translation>
    </message>
    <message>
        <source>Live run finished.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>实时运行已完成。</translation>
    </message>
    <message>
        <source>Recording saved to %1%2 — revealed in Finder.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>录像已保存到 %1%2——已在文件管理器中显示。</translation>
    </message>
    <message>
        <source> (window not found — recorded full screen)</source>
        <extracomment>LiveRunController</extracomment>
        <translation>（未找到窗口——录制了整个屏幕）</translation>
    </message>
    <message>
        <source>Position the cursor over the target — grabbing in %1s · Esc to cancel</source>
        <extracomment>LocationPicker</extracomment>
        <translation>将光标移到目标上——%1 秒后获取 · 按 Esc 取消</translation>
    </message>
    <message>
        <source>another user's link stands in its place</source>
        <extracomment>MovieFile, WholeFile</extracomment>
        <translation>其位置上有另一用户的链接</translation>
    </message>
    <message>
        <source>Not a regular file.</source>
        <extracomment>MovieInput</extracomment>
        <translation>不是普通文件。</translation>
    </message>
    <message>
        <source>The movie has no duration.</source>
        <extracomment>MovieInput</extracomment>
        <translation>影片没有时长。</translation>
    </message>
    <message>
        <source>The file holds no pictures.</source>
        <extracomment>MovieInput</extracomment>
        <translation>文件不含画面。</translation>
    </message>
    <message>
        <source>The movie is encrypted.</source>
        <extracomment>MovieInput</extracomment>
        <translation>影片已加密。</translation>
    </message>
    <message>
        <source>No movie can have this size.</source>
        <extracomment>MovieInput</extracomment>
        <translation>影片不可能有此尺寸。</translation>
    </message>
    <message>
        <source>The movie has no picture that can be decoded.</source>
        <extracomment>MovieReader</extracomment>
        <translation>影片没有可解码的画面。</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ 和 ↓ 每次更改 0.1 秒；按住 Shift 或用 Page Up 和 Page Down 每次更改 1 秒。</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑ 和 ↓ 每次更改 1；按住 Shift 或用 Page Up 和 Page Down 每次更改 10。</translation>
    </message>
    <message>
        <source>Pick on screen — position the cursor over the target.</source>
        <extracomment>PickLocationController</extracomment>
        <translation>在屏幕上选取——将光标移到目标上。</translation>
    </message>
    <message>
        <source>Pick Location</source>
        <extracomment>PickLocationController</extracomment>
        <translation>选取位置</translation>
    </message>
    <message>
        <source>Captured target at (%1, %2)</source>
        <extracomment>PickLocationController</extracomment>
        <translation>已在 (%1, %2) 获取目标</translation>
    </message>
    <message>
        <source>Nothing here decodes %1.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>此处没有可解码 %1 的程序。</translation>
    </message>
    <message>
        <source>The movie's pictures cannot be decoded.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>无法解码影片的画面。</translation>
    </message>
    <message>
        <source>Step %1, %2</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>步骤 %1，%2</translation>
    </message>
    <message>
        <source>Preview canvas</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>预览画布</translation>
    </message>
    <message>
        <source>Click to drop a Move waypoint or to set the selected target. The arrow keys nudge it, Z magnifies.</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>点击以放置路径点或设置所选目标。方向键微移，Z 放大。</translation>
    </message>
    <message>
        <source>Target %1 at (%2, %3)</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>目标 %1，位于 (%2, %3)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>ProgressBar</extracomment>
        <translation>剩余 %1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>ProgressBar</extracomment>
        <translation>用时 %1</translation>
    </message>
    <message>
        <source>more than %1 steps</source>
        <extracomment>ProjectFile, velvane</extracomment>
        <translation>步骤超过 %1 个</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Question</extracomment>
        <translation>确定</translation>
    </message>
    <message>
        <source>Velvane</source>
        <extracomment>Question, RestorePanel, StartWindow</extracomment>
        <translation>Velvane</translation>
    </message>
    <message>
        <source>Today %1</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>今天 %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>昨天</translation>
    </message>
    <message>
        <source>d MMMM</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>M月d日</translation>
    </message>
    <message>
        <source>d MMMM yyyy</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>yyyy年M月d日</translation>
    </message>
    <message>
        <source>Recording starts in %1…</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>录制将在 %1 秒后开始…</translation>
    </message>
    <message>
        <source>Couldn't start recording — grant Input Monitoring to Velvane in System Settings.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>无法开始录制——请在系统设置中授予 Velvane 输入监控权限。</translation>
    </message>
    <message>
        <source>Recording stopped — no actions captured.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>录制已停止——未捕获任何操作。</translation>
    </message>
    <message>
        <source>Record Actions</source>
        <extracomment>RecordActionsController, StepCommands</extracomment>
        <translation>录制操作</translation>
    </message>
    <message>
        <source>Recorded %1 step%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>已录制 %1 个步骤%2。</translation>
    </message>
    <message>
        <source>Recorded %1 steps%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>已录制 %1 个步骤%2。</translation>
    </message>
    <message>
        <source> with screen recording</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>（含屏幕录像）</translation>
    </message>
    <message>
        <source>This demo has no screen recording yet.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>此演示还没有屏幕录像。</translation>
    </message>
    <message>
        <source>Recording file is missing — backdrop unavailable.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>缺少录像文件——背景不可用。</translation>
    </message>
    <message>
        <source>Couldn't read the screen recording (%1).</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>无法读取屏幕录像 (%1)。</translation>
    </message>
    <message>
        <source>Velvane did not end properly the last time.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>Velvane 上次未正常结束。</translation>
    </message>
    <message>
        <source>These demos have changes that were not saved. What is not checked is offered again at the next start.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>这些演示有未保存的更改。未勾选的会在下次启动时再次提供。</translation>
    </message>
    <message>
        <source>Demos with changes that were not saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>有未保存更改的演示</translation>
    </message>
    <message>
        <source>Check the demos that you mean</source>
        <extracomment>RestorePanel</extracomment>
        <translation>勾选相应的演示</translation>
    </message>
    <message>
        <source>never saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>从未保存</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <extracomment>RestorePanel</extracomment>
        <translation>%1 — %2，%3</translation>
    </message>
    <message>
        <source>Open the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>打开勾选的演示</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>RestorePanel</extracomment>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <extracomment>RestorePanel</extracomment>
        <translation>下次启动时再次询问</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>RestorePanel</extracomment>
        <translation>放弃</translation>
    </message>
    <message>
        <source>Give up the changes of the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>放弃勾选演示的更改</translation>
    </message>
    <message>
        <source>No display to record</source>
        <extracomment>RunRecorder</extracomment>
        <translation>没有可录制的显示器</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>打开设置</translation>
    </message>
    <message>
        <source>Open the page that permits screen recording</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>打开允许屏幕录制的页面</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>重试</translation>
    </message>
    <message>
        <source>Look again whether it is permitted</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>再次检查是否已获允许</translation>
    </message>
    <message>
        <source>Screen Recording permission needed</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>需要屏幕录制权限</translation>
    </message>
    <message>
        <source>Velvane shows your live screen as the backdrop so you can pick targets where they really are.</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Velvane 将实时屏幕显示为背景，让您在目标的真实位置上选取。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Scrubber</extracomment>
        <translation>时间</translation>
    </message>
    <message>
        <source>Preview time</source>
        <extracomment>Scrubber</extracomment>
        <translation>预览时间</translation>
    </message>
    <message>
        <source>Together</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>一并设置</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>SeveralStepsForm, StepForm, TransportBar, DemoCommands, cli</extracomment>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Pause of all selected</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>所有选中步骤的停顿</translation>
    </message>
    <message>
        <source>How long to rest after each of these actions</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>每个操作之后停留多久</translation>
    </message>
    <message>
        <source>s</source>
        <extracomment>SeveralStepsForm, StepForm</extracomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>Duplicate the selected steps</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>为所选步骤创建副本</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>SeveralStepsForm, StepListModel</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>请按键…</translation>
    </message>
    <message>
        <source>Record shortcut</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>录制快捷键</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>新建</translation>
    </message>
    <message>
        <source>Make a new demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>新建演示</translation>
    </message>
    <message>
        <source>Open…</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Open a demo from a file</source>
        <extracomment>StartWindow</extracomment>
        <translation>从文件打开演示</translation>
    </message>
    <message>
        <source>Recent demos</source>
        <extracomment>StartWindow</extracomment>
        <translation>最近的演示</translation>
    </message>
    <message>
        <source>Open a recent demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>打开最近的演示</translation>
    </message>
    <message>
        <source>Demos that you open or save appear here.</source>
        <extracomment>StartWindow</extracomment>
        <translation>您打开或保存的演示会显示在这里。</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>StartWindow</extracomment>
        <translation>%1，位于 %2</translation>
    </message>
    <message>
        <source>%1 × %2 · %3%</source>
        <extracomment>StatusLineView</extracomment>
        <translation>%1 × %2 · %3%</translation>
    </message>
    <message>
        <source>Canvas %1</source>
        <extracomment>StatusLineView</extracomment>
        <translation>画布 %1</translation>
    </message>
    <message>
        <source>Cut Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>剪切步骤</translation>
    </message>
    <message>
        <source>Paste Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>粘贴步骤</translation>
    </message>
    <message>
        <source>Duplicate Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>创建步骤副本</translation>
    </message>
    <message>
        <source>Center Window</source>
        <extracomment>StepEdits</extracomment>
        <translation>窗口居中</translation>
    </message>
    <message>
        <source>Set Shortcut</source>
        <extracomment>StepEdits</extracomment>
        <translation>设置快捷键</translation>
    </message>
    <message>
        <source>Click the preview to set this target — or Pick on screen to grab the cursor's location after a countdown, for spots only visible while interacting (menus, popovers).</source>
        <extracomment>StepForm</extracomment>
        <translation>点击预览以设置此目标——或用“在屏幕上选取”在倒计时后获取光标位置，适用于仅在交互时可见的位置（菜单、弹出框）。</translation>
    </message>
    <message>
        <source>A quick press and release at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>在当前位置快速按下并松开。</translation>
    </message>
    <message>
        <source>A secondary (right) click at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>在当前位置点击副键（右键）。</translation>
    </message>
    <message>
        <source>Presses and holds the button. Add Move steps to drag, then a Release.</source>
        <extracomment>StepForm</extracomment>
        <translation>按住按钮。添加“移动”步骤进行拖动，然后“松开”。</translation>
    </message>
    <message>
        <source>Releases a held button — completes a drag.</source>
        <extracomment>StepForm</extracomment>
        <translation>松开按住的按钮——完成拖动。</translation>
    </message>
    <message>
        <source>Press the key combo to record it (e.g. ⌘C). It fires at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>按下组合键进行录制（例如 ⌘C）。它在当前位置触发。</translation>
    </message>
    <message>
        <source>Pauses for the time shown on the right of the step row.</source>
        <extracomment>StepForm</extracomment>
        <translation>按步骤行右侧显示的时间暂停。</translation>
    </message>
    <message>
        <source>A heading to organize the flow. It does nothing when the demo runs.</source>
        <extracomment>StepForm</extracomment>
        <translation>用于组织流程的标题。演示运行时不执行任何操作。</translation>
    </message>
    <message>
        <source>Target</source>
        <extracomment>StepForm</extracomment>
        <translation>目标</translation>
    </message>
    <message>
        <source>Target %1</source>
        <extracomment>StepForm</extracomment>
        <translation>目标 %1</translation>
    </message>
    <message>
        <source>How far from the canvas's left edge</source>
        <extracomment>StepForm</extracomment>
        <translation>距画布左边缘的距离</translation>
    </message>
    <message>
        <source>How far from the canvas's top edge</source>
        <extracomment>StepForm</extracomment>
        <translation>距画布上边缘的距离</translation>
    </message>
    <message>
        <source>Pick on screen</source>
        <extracomment>StepForm</extracomment>
        <translation>在屏幕上选取</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>StepForm</extracomment>
        <translation>文本</translation>
    </message>
    <message>
        <source>The text to type, line breaks included</source>
        <extracomment>StepForm</extracomment>
        <translation>要输入的文本，包括换行</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>StepForm</extracomment>
        <translation>标题</translation>
    </message>
    <message>
        <source>The heading in the step list</source>
        <extracomment>StepForm</extracomment>
        <translation>步骤列表中的标题</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>StepForm, velvane</extracomment>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>StepForm</extracomment>
        <translation>应用</translation>
    </message>
    <message>
        <source>Center window</source>
        <extracomment>StepForm</extracomment>
        <translation>窗口居中</translation>
    </message>
    <message>
        <source>Center the app's front window on the screen</source>
        <extracomment>StepForm</extracomment>
        <translation>将应用的最前窗口置于屏幕中央</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>StepForm</extracomment>
        <translation>时长</translation>
    </message>
    <message>
        <source>How long the action takes</source>
        <extracomment>StepForm</extracomment>
        <translation>操作持续多久</translation>
    </message>
    <message>
        <source>How long to rest after the action</source>
        <extracomment>StepForm</extracomment>
        <translation>操作之后停留多久</translation>
    </message>
    <message>
        <source>Grab the cursor's location after a countdown</source>
        <extracomment>StepForm</extracomment>
        <translation>倒计时后获取光标位置</translation>
    </message>
    <message>
        <source>Move to</source>
        <extracomment>StepKind</extracomment>
        <translation>移动到</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>StepKind</extracomment>
        <translation>移动</translation>
    </message>
    <message>
        <source>Click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>点击</translation>
    </message>
    <message>
        <source>Right-click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>右键点击</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>StepKind</extracomment>
        <translation>右键</translation>
    </message>
    <message>
        <source>Hold (mouse down)</source>
        <extracomment>StepKind</extracomment>
        <translation>按住（鼠标按下）</translation>
    </message>
    <message>
        <source>Hold</source>
        <extracomment>StepKind</extracomment>
        <translation>按住</translation>
    </message>
    <message>
        <source>Release (mouse up)</source>
        <extracomment>StepKind</extracomment>
        <translation>松开（鼠标抬起）</translation>
    </message>
    <message>
        <source>Release</source>
        <extracomment>StepKind</extracomment>
        <translation>松开</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>输入</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <extracomment>StepKind</extracomment>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>按键</translation>
    </message>
    <message>
        <source>Wait</source>
        <extracomment>StepKind</extracomment>
        <translation>等待</translation>
    </message>
    <message>
        <source>Switch app</source>
        <extracomment>StepKind</extracomment>
        <translation>切换应用</translation>
    </message>
    <message>
        <source>Switch</source>
        <extracomment>StepKind</extracomment>
        <translation>切换</translation>
    </message>
    <message>
        <source>Section</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>分节</translation>
    </message>
    <message>
        <source>Reorder Steps</source>
        <extracomment>StepList</extracomment>
        <translation>重新排列步骤</translation>
    </message>
    <message>
        <source>Set App</source>
        <extracomment>StepList</extracomment>
        <translation>设置应用</translation>
    </message>
    <message>
        <source>Add a step</source>
        <extracomment>StepListPane</extracomment>
        <translation>添加步骤</translation>
    </message>
    <message>
        <source>Run Live from Here</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>从此处实时运行</translation>
    </message>
    <message>
        <source>Expand section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>展开分节</translation>
    </message>
    <message>
        <source>Collapse section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>折叠分节</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>删除</translation>
    </message>
    <message>
        <source>Steps</source>
        <extracomment>StepListView</extracomment>
        <translation>步骤</translation>
    </message>
    <message>
        <source>%1 / %2s</source>
        <extracomment>TimeSlider</extracomment>
        <translation>%1 / %2 秒</translation>
    </message>
    <message>
        <source>Go to Start</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>转到开头</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>播放</translation>
    </message>
    <message>
        <source>No update feed is configured, so Velvane cannot check for updates.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>未配置更新源，因此 Velvane 无法检查更新。</translation>
    </message>
    <message>
        <source>Velvane %1 is the newest version.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 是最新版本。</translation>
    </message>
    <message>
        <source>Velvane %1 is available.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1 已发布。</translation>
    </message>
    <message>
        <source>You have version %1. The download page opens in your browser.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>您使用的是版本 %1。下载页面将在浏览器中打开。</translation>
    </message>
    <message>
        <source>Recording time</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>录像时间</translation>
    </message>
    <message>
        <source>Time in the recording</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>录像中的时间</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>WindowCommands</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>There is no connection to an X server.</source>
        <extracomment>X11Camera, X11Screens</extracomment>
        <translation>未连接到 X 服务器。</translation>
    </message>
    <message>
        <source>The X server stores pixels in another byte order.</source>
        <extracomment>X11Camera</extracomment>
        <translation>X 服务器以另一种字节序存储像素。</translation>
    </message>
    <message>
        <source>The region to record lies outside the display.</source>
        <extracomment>X11Camera</extracomment>
        <translation>要录制的区域位于显示器之外。</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <extracomment>X11CaptureStream</extracomment>
        <translation>X 服务器已断开。</translation>
    </message>
    <message>
        <source>no display</source>
        <extracomment>X11Desktop</extracomment>
        <translation>无显示器</translation>
    </message>
    <message>
        <source>X11 display %1</source>
        <extracomment>X11Desktop</extracomment>
        <translation>X11 显示器 %1</translation>
    </message>
    <message>
        <source>%1, with a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1，有合成器</translation>
    </message>
    <message>
        <source>%1, without a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1，无合成器</translation>
    </message>
    <message>
        <source>Window manager</source>
        <extracomment>X11Desktop</extracomment>
        <translation>窗口管理器</translation>
    </message>
    <message>
        <source>none that can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>没有可查询的 (EWMH)</translation>
    </message>
    <message>
        <source>%1, can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1，可查询 (EWMH)</translation>
    </message>
    <message>
        <source>%1, without %2</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1，没有 %2</translation>
    </message>
    <message>
        <source>Switching applications or moving their windows may not work; use another window manager.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>切换应用或移动其窗口可能无效；请使用其他窗口管理器。</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <extracomment>X11Desktop</extracomment>
        <translation>看门程序</translation>
    </message>
    <message>
        <source>releases what is held if Velvane ends</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Velvane 结束时释放按住的键</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>X11Desktop</extracomment>
        <translation>缺少</translation>
    </message>
    <message>
        <source>Install Velvane again: velvane-watchdog is not beside it.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>请重新安装 Velvane：velvane-watchdog 不在其旁边。</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>X11Desktop</extracomment>
        <translation>正在运行</translation>
    </message>
    <message>
        <source>none; none is needed</source>
        <extracomment>X11Desktop</extracomment>
        <translation>无；不需要</translation>
    </message>
    <message>
        <source>Compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>合成器</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <extracomment>X11Desktop, X11InputSynthesizer, X11Listener, X11WindowManager</extracomment>
        <translation>没有显示器。</translation>
    </message>
    <message>
        <source>In a Wayland session only programs that use X11 could be driven: log in with an X11 session instead.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>在 Wayland 会话中只能驱动使用 X11 的程序：请改用 X11 会话登录。</translation>
    </message>
    <message>
        <source>This X server lets no program post input: it lacks the XTEST extension.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>此 X 服务器不允许程序发送输入：缺少 XTEST 扩展。</translation>
    </message>
    <message>
        <source>velvane-watchdog, which releases what is held if Velvane ends, is missing: install Velvane again.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>缺少 velvane-watchdog（用于在 Velvane 结束时释放按住的键）：请重新安装 Velvane。</translation>
    </message>
    <message>
        <source>%1 takes a connection to the X server, and there is none.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1需要连接到 X 服务器，但目前没有连接。</translation>
    </message>
    <message>
        <source>%1 reaches only X11 windows in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>在 Wayland 会话中，%1只能用于 X11 窗口。请改用 X11 会话登录。</translation>
    </message>
    <message>
        <source>%1 takes what this X server lacks: %2. Enable it in the server, and use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1需要此 X 服务器所缺少的：%2。请在服务器中启用，并使用本地或受信任的连接。</translation>
    </message>
    <message>
        <source>%1 is refused by this X server. Use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1被此 X 服务器拒绝。请使用本地或受信任的连接。</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>没有缺少任何内容。</translation>
    </message>
    <message>
        <source>Only X11 windows can be controlled in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>在 Wayland 会话中只能控制 X11 窗口。请改用 X11 会话登录。</translation>
    </message>
    <message>
        <source>No window manager that can be asked (EWMH) is running. Start one.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>没有可查询的窗口管理器 (EWMH) 在运行。请启动一个。</translation>
    </message>
    <message>
        <source>without a name</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>无名称</translation>
    </message>
    <message>
        <source>damaged property list: line %1, column %2: %3</source>
        <extracomment>XmlReader</extracomment>
        <translation>属性列表已损坏：第 %1 行第 %2 列：%3</translation>
    </message>
    <message>
        <source>the display %1 cannot be opened</source>
        <extracomment>cli</extracomment>
        <translation>无法打开显示器 %1</translation>
    </message>
    <message>
        <source>there is no display to open a window on</source>
        <extracomment>cli</extracomment>
        <translation>没有可打开窗口的显示器</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>std</extracomment>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>std</extracomment>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>std</extracomment>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message>
        <source>About Velvane</source>
        <extracomment>velvane</extracomment>
        <translation>关于 Velvane</translation>
    </message>
    <message>
        <source>Velvane %1</source>
        <extracomment>velvane</extracomment>
        <translation>Velvane %1</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations.</source>
        <extracomment>velvane</extracomment>
        <translation>按脚本进行的屏幕演示。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>velvane</extracomment>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>velvane</extracomment>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>velvane</extracomment>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Demo</source>
        <extracomment>velvane</extracomment>
        <translation>演示(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <extracomment>velvane</extracomment>
        <translation>步骤(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <extracomment>velvane</extracomment>
        <translation>窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>velvane</extracomment>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Wait %1s</source>
        <extracomment>velvane</extracomment>
        <translation>等待 %1 秒</translation>
    </message>
    <message>
        <source>is a folder</source>
        <extracomment>velvane</extracomment>
        <translation>是文件夹</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <extracomment>velvane</extracomment>
        <translation>不是普通文件</translation>
    </message>
    <message>
        <source>too large, %1 bytes</source>
        <extracomment>velvane</extracomment>
        <translation>过大，%1 字节</translation>
    </message>
    <message>
        <source>no such file</source>
        <extracomment>velvane</extracomment>
        <translation>没有此文件</translation>
    </message>
    <message>
        <source>Move to (%1, %2)</source>
        <extracomment>velvane</extracomment>
        <translation>移动到 (%1, %2)</translation>
    </message>
    <message>
        <source>Hold mouse down</source>
        <extracomment>velvane</extracomment>
        <translation>按住鼠标</translation>
    </message>
    <message>
        <source>Release mouse</source>
        <extracomment>velvane</extracomment>
        <translation>松开鼠标</translation>
    </message>
    <message>
        <source>Type "%1"</source>
        <extracomment>velvane</extracomment>
        <translation>输入“%1”</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>velvane</extracomment>
        <translation>按 %1</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <extracomment>velvane</extracomment>
        <translation>切换到 %1</translation>
    </message>
    <message>
        <source>app</source>
        <extracomment>velvane</extracomment>
        <translation>应用</translation>
    </message>
    <message>
        <source>Driving the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>驱动鼠标和键盘</translation>
    </message>
    <message>
        <source>Listening to the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>监听鼠标和键盘</translation>
    </message>
    <message>
        <source>Taking pictures of the screen</source>
        <extracomment>velvane</extracomment>
        <translation>截取屏幕画面</translation>
    </message>
    <message>
        <source>The update feed is not signed.</source>
        <extracomment>velvane</extracomment>
        <translation>更新源没有签名。</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong.</source>
        <extracomment>velvane</extracomment>
        <translation>更新源的签名不正确。</translation>
    </message>
    <message>
        <source>The update feed is older than one that was read before.</source>
        <extracomment>velvane</extracomment>
        <translation>更新源比之前读取的更旧。</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <extracomment>DemoCommands</extracomment>
        <translation>不录制</translation>
    </message>
    <message>
        <source>Record Screen</source>
        <extracomment>DemoCommands</extracomment>
        <translation>录制屏幕</translation>
    </message>
    <message>
        <source>Record Active Window</source>
        <extracomment>DemoCommands</extracomment>
        <translation>录制活动窗口</translation>
    </message>
    <message>
        <source>Screen Recording</source>
        <extracomment>DemoCommands</extracomment>
        <translation>屏幕录制</translation>
    </message>
    <message>
        <source>Show Mouse Cursor</source>
        <extracomment>DemoCommands</extracomment>
        <translation>显示鼠标指针</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <extracomment>FileCommands</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <extracomment>FileCommands</extracomment>
        <translation>清除菜单</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <extracomment>FileCommands</extracomment>
        <translation>打开最近使用</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>FileCommands</extracomment>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>FileCommands</extracomment>
        <translation>退出</translation>
    </message>
    <message>
        <source>Velvane demos (*.velvane)</source>
        <extracomment>FilePanel</extracomment>
        <translation>Velvane 演示 (*.velvane)</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <extracomment>FilePanel</extracomment>
        <translation>“%1”已存在。</translation>
    </message>
    <message>
        <source>Replacing it loses what it holds.</source>
        <extracomment>FilePanel</extracomment>
        <translation>替换后，其中的内容将丢失。</translation>
    </message>
    <message>
        <source>Open Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>打开演示</translation>
    </message>
    <message>
        <source>Save Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>保存演示</translation>
    </message>
    <message>
        <source>The documentation could not be opened.</source>
        <extracomment>HelpCommands</extracomment>
        <translation>无法打开文档。</translation>
    </message>
    <message>
        <source>It is found at %1.</source>
        <extracomment>HelpCommands, UpdaterCommands</extracomment>
        <translation>它位于 %1。</translation>
    </message>
    <message>
        <source>Velvane Help</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Velvane 帮助</translation>
    </message>
    <message>
        <source>Velvane was installed as a Flatpak, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane 以 Flatpak 安装，更新也由其提供。</translation>
    </message>
    <message>
        <source>Velvane was installed by the package manager, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvane 由软件包管理器安装，更新也由其提供。</translation>
    </message>
    <message>
        <source>The update feed is malformed.</source>
        <extracomment>Reader</extracomment>
        <translation>更新源格式错误。</translation>
    </message>
    <message>
        <source>The update feed has no valid “%1”.</source>
        <extracomment>Reader</extracomment>
        <translation>更新源没有有效的“%1”。</translation>
    </message>
    <message>
        <source>Session bus</source>
        <extracomment>SessionServices</extracomment>
        <translation>会话总线</translation>
    </message>
    <message>
        <source>answers</source>
        <extracomment>SessionServices</extracomment>
        <translation>有应答</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>SessionServices, cli</extracomment>
        <translation>无</translation>
    </message>
    <message>
        <source>Start Velvane from the desktop, or below dbus-run-session: windows cannot be shared with a running Velvane without it.</source>
        <extracomment>SessionServices</extracomment>
        <translation>请从桌面或在 dbus-run-session 下启动 Velvane：没有它就无法与正在运行的 Velvane 共享窗口。</translation>
    </message>
    <message>
        <source>Desktop portal</source>
        <extracomment>SessionServices</extracomment>
        <translation>桌面门户</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>SessionServices</extracomment>
        <translation>存在</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the one of your desktop, so that dark and light follow the system.</source>
        <extracomment>SessionServices</extracomment>
        <translation>请安装 xdg-desktop-portal 及您桌面的门户，以便明暗主题跟随系统。</translation>
    </message>
    <message>
        <source>File manager</source>
        <extracomment>SessionServices</extracomment>
        <translation>文件管理器</translation>
    </message>
    <message>
        <source>shows a file in its folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>可在文件夹中显示文件</translation>
    </message>
    <message>
        <source>opens a file's folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>可打开文件所在的文件夹</translation>
    </message>
    <message>
        <source>none can be asked</source>
        <extracomment>SessionServices</extracomment>
        <translation>没有可查询的</translation>
    </message>
    <message>
        <source>Install a file manager, and xdg-utils, so that recordings can be shown.</source>
        <extracomment>SessionServices</extracomment>
        <translation>请安装文件管理器和 xdg-utils，以便显示录像。</translation>
    </message>
    <message>
        <source>can be started</source>
        <extracomment>SessionServices</extracomment>
        <translation>可以启动</translation>
    </message>
    <message>
        <source>only running ones can be switched to</source>
        <extracomment>SessionServices</extracomment>
        <translation>只能切换到正在运行的应用</translation>
    </message>
    <message>
        <source>Start them before a live run, or allow it: %1</source>
        <extracomment>SessionServices</extracomment>
        <translation>请在实时运行前启动它们，或予以允许：%1</translation>
    </message>
    <message>
        <source>Add Step</source>
        <extracomment>StepCommands</extracomment>
        <translation>添加步骤</translation>
    </message>
    <message>
        <source>Recording — Esc to Stop</source>
        <extracomment>StepCommands</extracomment>
        <translation>正在录制——按 Esc 停止</translation>
    </message>
    <message>
        <source>Pick Location on Screen…</source>
        <extracomment>StepCommands</extracomment>
        <translation>在屏幕上选取位置…</translation>
    </message>
    <message>
        <source>The download page could not be opened.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>无法打开下载页面。</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>打开下载页面</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>自动检查更新</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Velvane %1 is available: see “Check for Updates…” in the menu “Help”.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Velvane %1 已发布：请见“帮助”菜单中的“检查更新…”。</translation>
    </message>
    <message>
        <source>Live Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>实时背景</translation>
    </message>
    <message>
        <source>Recording Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>录像背景</translation>
    </message>
    <message>
        <source>Zoom 4×</source>
        <extracomment>ViewCommands</extracomment>
        <translation>放大 4 倍</translation>
    </message>
    <message>
        <source>lacks %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>缺少 %1</translation>
    </message>
    <message>
        <source>Enable %1 in the X server: without it %2.</source>
        <extracomment>X11Facts</extracomment>
        <translation>请在 X 服务器中启用 %1：否则%2。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <extracomment>X11Facts</extracomment>
        <translation>键盘</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>X11Facts</extracomment>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>Enable XKEYBOARD in the X server: without it nothing is typed as written.</source>
        <extracomment>X11Facts</extracomment>
        <translation>请在 X 服务器中启用 XKEYBOARD：否则无法按原文输入。</translation>
    </message>
    <message>
        <source>layout not named</source>
        <extracomment>X11Facts</extracomment>
        <translation>未命名的布局</translation>
    </message>
    <message>
        <source>layout %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>布局 %1</translation>
    </message>
    <message>
        <source>Posting</source>
        <extracomment>X11Facts</extracomment>
        <translation>发送</translation>
    </message>
    <message>
        <source>nothing is clicked or typed</source>
        <extracomment>X11Facts</extracomment>
        <translation>无法点击或输入</translation>
    </message>
    <message>
        <source>Listening</source>
        <extracomment>X11Facts</extracomment>
        <translation>监听</translation>
    </message>
    <message>
        <source>actions are not heard and Esc does not stop a run</source>
        <extracomment>X11Facts</extracomment>
        <translation>无法监听操作，Esc 也不能停止运行</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>图像</translation>
    </message>
    <message>
        <source>the screen is neither shown nor recorded</source>
        <extracomment>X11Facts</extracomment>
        <translation>屏幕既不能显示也不能录制</translation>
    </message>
    <message>
        <source>Fast pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>快速图像</translation>
    </message>
    <message>
        <source>pictures of the screen come slowly</source>
        <extracomment>X11Facts</extracomment>
        <translation>屏幕图像会变慢</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>X11Facts</extracomment>
        <translation>显示器</translation>
    </message>
    <message>
        <source>several displays are taken for one</source>
        <extracomment>X11Facts</extracomment>
        <translation>多个显示器会被视为一个</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>cli</extracomment>
        <translation>用法</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>cli</extracomment>
        <translation>参数</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <extracomment>cli</extracomment>
        <translation>子命令</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <extracomment>cli</extracomment>
        <translation>显示此帮助并退出</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <extracomment>cli</extracomment>
        <translation>显示版本并退出</translation>
    </message>
    <message>
        <source>This Flatpak cannot reach it. Give it the folder: %1</source>
        <extracomment>cli</extracomment>
        <translation>此 Flatpak 无法访问它。请授予文件夹权限：%1</translation>
    </message>
    <message>
        <source>Write a demo in the binary format, from binary or XML</source>
        <extracomment>cli</extracomment>
        <translation>将二进制或 XML 演示写为二进制格式</translation>
    </message>
    <message>
        <source>The demo to read</source>
        <extracomment>cli</extracomment>
        <translation>要读取的演示</translation>
    </message>
    <message>
        <source>The file to write; an existing one is replaced</source>
        <extracomment>cli</extracomment>
        <translation>要写入的文件；已有文件会被替换</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>说明
  读取二进制或 XML 属性列表形式的演示，并以二进制格式写入。演示所没有的键
  会被略去。OUT 要么完整写入，要么完全不写，因此可以就是 IN。

示例
  velvane convert tour.xml tour.velvane</translation>
    </message>
    <message>
        <source>%1: is not writable</source>
        <extracomment>cli</extracomment>
        <translation>%1：不可写</translation>
    </message>
    <message>
        <source>The screen (%1) is larger than the canvas (%2): what lies beyond is recorded at the canvas's edge.</source>
        <extracomment>cli</extracomment>
        <translation>屏幕 (%1) 大于画布 (%2)：超出部分会记录在画布边缘。</translation>
    </message>
    <message>
        <source>%1; the recorded steps are in %2</source>
        <extracomment>cli</extracomment>
        <translation>%1；录制的步骤保存在 %2</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <extracomment>cli</extracomment>
        <translation>每秒 %1 帧</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <extracomment>cli</extracomment>
        <translation>背景</translation>
    </message>
    <message>
        <source>picture of %1 × %2</source>
        <extracomment>cli</extracomment>
        <translation>%1 × %2 的图片</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>cli</extracomment>
        <translation>有</translation>
    </message>
    <message>
        <source>Total</source>
        <extracomment>cli</extracomment>
        <translation>总计</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>cli</extracomment>
        <translation>步骤</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>cli</extracomment>
        <translation>结束</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>cli</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>there is no step “%1”</source>
        <extracomment>cli</extracomment>
        <translation>没有步骤“%1”</translation>
    </message>
    <message>
        <source>Say what this session can and cannot do, with remedies</source>
        <extracomment>cli</extracomment>
        <translation>说明此会话能做什么、不能做什么及补救办法</translation>
    </message>
    <message>
        <source>Print one JSON array instead of lines</source>
        <extracomment>cli</extracomment>
        <translation>输出一个 JSON 数组而不是文本行</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Say what this session can and cannot do, a line for each capability, with
  the remedy below what is missing. Nothing is changed and nothing is shown on
  the screen.

JSON
  An object for each capability: what, works, state, remedy or null.

EXAMPLE
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</source>
        <extracomment>cli</extracomment>
        <translation>说明
  说明此会话能做什么、不能做什么，每项能力一行，缺少的项目下方附补救办法。
  不作任何更改，屏幕上也不显示任何内容。

JSON
  每项能力一个对象：what, works, state, remedy 或 null。

示例
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</translation>
    </message>
    <message>
        <source>frames</source>
        <extracomment>cli</extracomment>
        <translation>帧</translation>
    </message>
    <message>
        <source>%1: the movie would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1：影片会替换演示</translation>
    </message>
    <message>
        <source>Export cancelled; %1 holds what was done.</source>
        <extracomment>cli</extracomment>
        <translation>已取消导出；%1 保留了已完成的部分。</translation>
    </message>
    <message>
        <source>Render a demo to a movie</source>
        <extracomment>cli</extracomment>
        <translation>将演示渲染为影片</translation>
    </message>
    <message>
        <source>The demo to render</source>
        <extracomment>cli</extracomment>
        <translation>要渲染的演示</translation>
    </message>
    <message>
        <source>The movie to write</source>
        <extracomment>cli</extracomment>
        <translation>要写入的影片</translation>
    </message>
    <message>
        <source>When the export fails, print the reason on a second line</source>
        <extracomment>cli</extracomment>
        <translation>导出失败时在第二行输出原因</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Render a demo to an H.264 movie in an MPEG-4 file, of the canvas's size and
  the demo's frame rate. A file at MP4 is replaced. Progress goes to standard
  error: a bar on a terminal, otherwise a line for every tenth.

  Ctrl-C closes the movie with the frames done so far, so that it plays, and
  ends with exit status 130.

EXAMPLE
  velvane export tour.velvane tour.mp4</source>
        <extracomment>cli</extracomment>
        <translation>说明
  将演示渲染为 MPEG-4 文件中的 H.264 影片，尺寸为画布大小，帧率为演示的帧率。
  MP4 处的文件会被替换。进度输出到标准错误：在终端上为进度条，否则每十分之一
  输出一行。

  Ctrl-C 会以已完成的帧关闭影片（可以播放），并以状态 130 结束。

示例
  velvane export tour.velvane tour.mp4</translation>
    </message>
    <message>
        <source>%1: the picture would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1：图片会替换演示</translation>
    </message>
    <message>
        <source>%1: a canvas of %2 × %3 cannot be drawn</source>
        <extracomment>cli</extracomment>
        <translation>%1：无法绘制 %2 × %3 的画布</translation>
    </message>
    <message>
        <source>Render one moment of a demo to a picture</source>
        <extracomment>cli</extracomment>
        <translation>将演示的某一时刻渲染为图片</translation>
    </message>
    <message>
        <source>The demo</source>
        <extracomment>cli</extracomment>
        <translation>演示</translation>
    </message>
    <message>
        <source>The moment in seconds</source>
        <extracomment>cli</extracomment>
        <translation>时刻（秒）</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>cli</extracomment>
        <translation>要写入的图片</translation>
    </message>
    <message>
        <source>Make it no wider and no higher than this</source>
        <extracomment>cli</extracomment>
        <translation>宽和高不超过此值</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Render one moment of a demo to a PNG picture of the canvas's size: what a
  movie shows at that moment. A moment outside the demo shows its first or its
  last instant. With --size, a larger picture is scaled down.

EXAMPLES
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</source>
        <extracomment>cli</extracomment>
        <translation>说明
  将演示的某一时刻渲染为画布大小的 PNG 图片，即影片在该时刻显示的内容。演示
  范围之外的时刻显示其最初或最后的瞬间。使用 --size 时，较大的图片会被缩小。

示例
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</translation>
    </message>
    <message>
        <source>Show what a demo holds and when it happens</source>
        <extracomment>cli</extracomment>
        <translation>显示演示的内容及其时间</translation>
    </message>
    <message>
        <source>The demo to show</source>
        <extracomment>cli</extracomment>
        <translation>要显示的演示</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table</source>
        <extracomment>cli</extracomment>
        <translation>输出一个 JSON 对象而不是表格</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Show a demo: its settings, its steps as the step list has them, and when
  each begins and ends. Times are seconds.

JSON
  version, fps, canvasSize [width, height], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  A step: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset or null, number or null,
  summary, shortcutDisplay, visible.
  A segment: step (index in steps), id, start, end, actionDuration, startPos,
  endPos, heldEntering.

EXAMPLE
  velvane inspect tour.velvane --json | jq .total</source>
        <extracomment>cli</extracomment>
        <translation>说明
  显示演示：其设置、步骤列表中的步骤，以及每个步骤的起止时间。时间以秒为单位。

JSON
  version, fps, canvasSize [宽, 高], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  步骤：id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset 或 null, number 或 null,
  summary, shortcutDisplay, visible.
  段：step（在 steps 中的序号）, id, start, end, actionDuration, startPos,
  endPos, heldEntering.

示例
  velvane inspect tour.velvane --json | jq .total</translation>
    </message>
    <message>
        <source>%1: the file exists; --force replaces it</source>
        <extracomment>cli</extracomment>
        <translation>%1：文件已存在；--force 可替换</translation>
    </message>
    <message>
        <source>Write a new demo with the defaults</source>
        <extracomment>cli</extracomment>
        <translation>以默认值写入新演示</translation>
    </message>
    <message>
        <source>The file to write, usually NAME.velvane</source>
        <extracomment>cli</extracomment>
        <translation>要写入的文件，通常为 NAME.velvane</translation>
    </message>
    <message>
        <source>Replace the file if it exists</source>
        <extracomment>cli</extracomment>
        <translation>如果文件存在则替换</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>说明
  以默认值写入新演示：画布 1280 × 800，每秒 60 帧，光标位于中央，并有一个尚未
  切换到任何应用的步骤。

示例
  velvane new tour.velvane</translation>
    </message>
    <message>
        <source>Record real mouse and keyboard actions into a demo</source>
        <extracomment>cli</extracomment>
        <translation>将真实的鼠标和键盘操作录制到演示中</translation>
    </message>
    <message>
        <source>The demo that the steps are appended to</source>
        <extracomment>cli</extracomment>
        <translation>要追加步骤的演示</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Record what is done with the mouse and the keyboard, after a countdown of
  2.1 seconds, until Esc is pressed, whatever has the keyboard; Ctrl-C and
  SIGTERM end it too. Nothing is kept from the programs in use. The steps are
  appended to the demo, and the demo is saved.

  The outcome goes to standard output. The exit status is 0, also when nothing
  was recorded and the demo is left as it was, and 1 when it could not begin or
  the demo could not be saved.

EXAMPLE
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>说明
  倒计时 2.1 秒后录制鼠标和键盘的操作，直到按下 Esc（无论键盘焦点在哪里）；
  Ctrl-C 和 SIGTERM 也会结束录制。所用的程序仍会收到全部输入。步骤会追加到
  演示，演示随后保存。

  结果输出到标准输出。退出状态为 0，未录制任何内容、演示保持原样时也是；无法
  开始或无法保存演示时为 1。

示例
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</translation>
    </message>
    <message>
        <source>Perform a demo on the real desktop</source>
        <extracomment>cli</extracomment>
        <translation>在真实桌面上执行演示</translation>
    </message>
    <message>
        <source>The demo to perform</source>
        <extracomment>cli</extracomment>
        <translation>要执行的演示</translation>
    </message>
    <message>
        <source>Begin with this step: an id or a number</source>
        <extracomment>cli</extracomment>
        <translation>从此步骤开始：标识或编号</translation>
    </message>
    <message>
        <source>When switching to an application, hide all others</source>
        <extracomment>cli</extracomment>
        <translation>切换到某应用时隐藏所有其他应用</translation>
    </message>
    <message>
        <source>Record: off, screen or window</source>
        <extracomment>cli</extracomment>
        <translation>录制：off、screen 或 window</translation>
    </message>
    <message>
        <source>Leave the pointer out of the recording</source>
        <extracomment>cli</extracomment>
        <translation>录制中不含指针</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <extracomment>cli</extracomment>
        <translation>立即开始</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Perform a demo's steps with the real mouse and keyboard, after a countdown of
  2.4 seconds. Esc stops it, whatever has the keyboard; so do Ctrl-C and
  SIGTERM. Nothing is left pressed.

  STEP is a step's id or its number, as “velvane inspect” shows them. The
  cursor then begins where the demo would have left it.

  The outcome goes to standard output, and so does the path of the movie of a
  recorded run, below it. Movies are put into Movies/Velvane in the home
  folder. With “window” what the window of the demo's one application covers
  is recorded; where there is none, or where the demo switches between
  several, the whole screen is. The exit status is 0 when the demo was
  performed to its end and 1 when it was stopped or could not begin.

EXAMPLE
  velvane run tour.velvane --from 4 --hide-others</source>
        <extracomment>cli</extracomment>
        <translation>说明
  倒计时 2.4 秒后，用真实的鼠标和键盘执行演示的步骤。无论键盘焦点在哪里，Esc
  都会停止；Ctrl-C 和 SIGTERM 也一样。不会留下任何按住的键。

  STEP 是步骤的标识或编号，即“velvane inspect”所显示的。光标从演示本应到达的
  位置开始。

  结果输出到标准输出，录制的运行还会在其下方输出影片的路径。影片保存在主文件夹
  的 Movies/Velvane 中。使用“window”时，录制演示唯一应用的窗口所占的范围；没有
  该窗口或演示在多个应用间切换时，录制整个屏幕。演示执行到结束时退出状态为 0，
  被停止或无法开始时为 1。

示例
  velvane run tour.velvane --from 4 --hide-others</translation>
    </message>
    <message>
        <source>Display server</source>
        <extracomment>cli</extracomment>
        <translation>显示服务器</translation>
    </message>
    <message>
        <source>X11 (%1), which does not answer</source>
        <extracomment>cli</extracomment>
        <translation>X11 (%1)，无响应</translation>
    </message>
    <message>
        <source>Start this in the desktop session, where DISPLAY and XAUTHORITY are right.</source>
        <extracomment>cli</extracomment>
        <translation>请在 DISPLAY 和 XAUTHORITY 正确的桌面会话中启动。</translation>
    </message>
    <message>
        <source>Rendering needs none; the editor does: start it in a desktop session.</source>
        <extracomment>cli</extracomment>
        <translation>渲染不需要，编辑器需要：请在桌面会话中启动。</translation>
    </message>
    <message>
        <source>works</source>
        <extracomment>cli</extracomment>
        <translation>可用</translation>
    </message>
    <message>
        <source>not here</source>
        <extracomment>cli</extracomment>
        <translation>此处不可用</translation>
    </message>
    <message>
        <source>Caption font</source>
        <extracomment>cli</extracomment>
        <translation>字幕字体</translation>
    </message>
    <message>
        <source>%1, semibold</source>
        <extracomment>cli</extracomment>
        <translation>%1，半粗体</translation>
    </message>
    <message>
        <source>Inter is missing, another sans-serif stands in</source>
        <extracomment>cli</extracomment>
        <translation>缺少 Inter，以另一种无衬线字体代替</translation>
    </message>
    <message>
        <source>Install %1.</source>
        <extracomment>cli</extracomment>
        <translation>请安装 %1。</translation>
    </message>
    <message>
        <source>no font has all of %1</source>
        <extracomment>cli</extracomment>
        <translation>没有字体包含全部 %1</translation>
    </message>
    <message>
        <source>Backdrop pictures</source>
        <extracomment>cli</extracomment>
        <translation>背景图片</translation>
    </message>
    <message>
        <source>Session</source>
        <extracomment>cli</extracomment>
        <translation>会话</translation>
    </message>
    <message>
        <source>Log in with an X11 session: in a Wayland session demos can be composed and rendered, not run or recorded.</source>
        <extracomment>cli</extracomment>
        <translation>请使用 X11 会话登录：在 Wayland 会话中可以编写和渲染演示，但不能运行或录制。</translation>
    </message>
    <message>
        <source>not told</source>
        <extracomment>cli</extracomment>
        <translation>未说明</translation>
    </message>
    <message>
        <source>Recordings</source>
        <extracomment>cli</extracomment>
        <translation>录像</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <extracomment>cli</extracomment>
        <translation>%1，剩余 %2</translation>
    </message>
    <message>
        <source>Make room there: a recording ends when the disk is full.</source>
        <extracomment>cli</extracomment>
        <translation>请腾出空间：磁盘已满时录制会结束。</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <extracomment>cli</extracomment>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>Make %1 a folder that you may write to.</source>
        <extracomment>cli</extracomment>
        <translation>请使 %1 成为可写入的文件夹。</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>cli</extracomment>
        <translation>语言</translation>
    </message>
    <message>
        <source>Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read as they are written.</source>
        <extracomment>cli</extracomment>
        <translation>请将 LANG 设为 UTF-8 区域（如 C.UTF-8），以便按原样读取文件名和文本。</translation>
    </message>
    <message>
        <source>Input posting</source>
        <extracomment>cli</extracomment>
        <translation>发送输入</translation>
    </message>
    <message>
        <source>Input listening</source>
        <extracomment>cli</extracomment>
        <translation>监听输入</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <extracomment>cli</extracomment>
        <translation>屏幕捕获</translation>
    </message>
    <message>
        <source>H.264 encoder</source>
        <extracomment>cli</extracomment>
        <translation>H.264 编码器</translation>
    </message>
    <message>
        <source>Movie files</source>
        <extracomment>cli</extracomment>
        <translation>影片文件</translation>
    </message>
    <message>
        <source>Shortcut glyphs</source>
        <extracomment>cli</extracomment>
        <translation>快捷键符号</translation>
    </message>
    <message>
        <source>Emoji</source>
        <extracomment>cli</extracomment>
        <translation>表情符号</translation>
    </message>
    <message>
        <source>Show what a demo shows at given moments</source>
        <extracomment>cli</extracomment>
        <translation>显示演示在给定时刻的状态</translation>
    </message>
    <message>
        <source>A moment in seconds; may be given several times</source>
        <extracomment>cli</extracomment>
        <translation>时刻（秒）；可多次给出</translation>
    </message>
    <message>
        <source>Length in seconds of the movie recorded with the steps; gives videoTime</source>
        <extracomment>cli</extracomment>
        <translation>随步骤录制的影片长度（秒）；用于得出 videoTime</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Print what a demo shows at given moments, as a JSON array with an object
  for each moment: time, cursor [x, y], ripple or null, press, held, caption or
  null, videoTime or null. Moments outside the demo show its first or its last
  instant.

EXAMPLE
  velvane state tour.velvane --at 0 --at 2.5</source>
        <extracomment>cli</extracomment>
        <translation>说明
  以 JSON 数组输出演示在给定时刻显示的内容，每个时刻一个对象：time, cursor
  [x, y], ripple 或 null, press, held, caption 或 null, videoTime 或 null。演示
  范围之外的时刻显示其最初或最后的瞬间。

示例
  velvane state tour.velvane --at 0 --at 2.5</translation>
    </message>
</context>
</TS>
