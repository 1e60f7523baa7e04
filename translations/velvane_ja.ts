<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Velvane</name>
    <message>
        <source>● Recording — Esc to stop</source>
        <extracomment>ActionRecorder, RecordActionsController</extracomment>
        <translation>● 記録中 — Escキーで停止</translation>
    </message>
    <message>
        <source>Add %1</source>
        <extracomment>AddStepGrid, StepList</extracomment>
        <translation>%1を追加</translation>
    </message>
    <message>
        <source>Choose the application to bring to the front</source>
        <extracomment>AppMenu</extracomment>
        <translation>前面に表示するアプリを選びます</translation>
    </message>
    <message>
        <source>Choose app…</source>
        <extracomment>AppMenu</extracomment>
        <translation>アプリを選択…</translation>
    </message>
    <message>
        <source>Running</source>
        <extracomment>AppMenu</extracomment>
        <translation>実行中</translation>
    </message>
    <message>
        <source>Applications</source>
        <extracomment>AppMenu, SessionServices</extracomment>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>No applications found</source>
        <extracomment>AppMenu</extracomment>
        <translation>アプリが見つかりません</translation>
    </message>
    <message>
        <source>Unsaved changes could not be kept: %1.</source>
        <extracomment>Autosave</extracomment>
        <translation>保存していない変更を保管できませんでした：%1。</translation>
    </message>
    <message>
        <source>Restore</source>
        <extracomment>Autosave, RestorePanel</extracomment>
        <translation>復元</translation>
    </message>
    <message>
        <source>No recording frame to freeze yet.</source>
        <extracomment>BackdropController</extracomment>
        <translation>静止させる録画の画面がまだありません。</translation>
    </message>
    <message>
        <source>No live frame yet — grant Screen Recording first.</source>
        <extracomment>BackdropController</extracomment>
        <translation>ライブ画面がまだありません。先に画面収録を許可してください。</translation>
    </message>
    <message>
        <source>Freeze Frame</source>
        <extracomment>BackdropController</extracomment>
        <translation>画面を静止</translation>
    </message>
    <message>
        <source>damaged property list: %1</source>
        <extracomment>BinaryObjects</extracomment>
        <translation>壊れたプロパティリスト: %1</translation>
    </message>
    <message>
        <source>there are no texts in “%1”, only in %2</source>
        <extracomment>CLI</extracomment>
        <translation>「%1」のテキストはありません。あるのは %2 だけです</translation>
    </message>
    <message>
        <source>“%1” is not a finite number</source>
        <extracomment>CLI</extracomment>
        <translation>「%1」は有限の数ではありません</translation>
    </message>
    <message>
        <source>Move Target</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>ターゲットを移動</translation>
    </message>
    <message>
        <source>Add Waypoint</source>
        <extracomment>CanvasController</extracomment>
        <translation>経由点を追加</translation>
    </message>
    <message>
        <source>Added waypoint at (%1, %2).</source>
        <extracomment>CanvasController</extracomment>
        <translation>(%1, %2)に経由点を追加しました。</translation>
    </message>
    <message>
        <source>Nudge Target</source>
        <extracomment>CanvasController</extracomment>
        <translation>ターゲットを微調整</translation>
    </message>
    <message>
        <source>Move Start</source>
        <extracomment>CanvasController, FieldEditing</extracomment>
        <translation>開始位置を移動</translation>
    </message>
    <message>
        <source>Live</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Show your live screen as the backdrop</source>
        <extracomment>CanvasHint, EditorToolBar</extracomment>
        <translation>ライブ画面を背景として表示</translation>
    </message>
    <message>
        <source>Record</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>記録</translation>
    </message>
    <message>
        <source>Record real actions and append them as steps</source>
        <extracomment>CanvasHint, StepListPane</extracomment>
        <translation>実際の操作を記録してステップとして追加</translation>
    </message>
    <message>
        <source>Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your real screen, then Freeze to pick targets against a still. Press Z to magnify.</source>
        <extracomment>CanvasHint, InspectorPane</extracomment>
        <translation>上からステップを追加するか、プレビューをクリックして経由点を置きます。「ライブ」で実際の画面を表示し、「静止」で止めた画面からターゲットを選べます。Zキーで拡大します。</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>CanvasMarks, DemoSettingsForm, cli</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations: a demo is a list of steps (move, click,
type, shortcut, wait and more) over a picture of the screen, rendered to an
H.264 movie or performed on the real desktop.</source>
        <extracomment>CommandLine</extracomment>
        <translation>台本どおりの画面デモ。デモは、画面の画像の上で行うステップ(移動、クリック、
入力、ショートカット、待機など)の一覧で、H.264ムービーにするか、実際の
デスクトップで実行します。</translation>
    </message>
    <message>
        <source>Demos to open in the editor</source>
        <extracomment>CommandLine</extracomment>
        <translation>エディターで開くデモ</translation>
    </message>
    <message>
        <source>Open them in a process of its own, even when Velvane runs already</source>
        <extracomment>CommandLine</extracomment>
        <translation>Velvaneが実行中でも、別のプロセスで開く</translation>
    </message>
    <message>
        <source>The language of all texts, e.g. de</source>
        <extracomment>CommandLine</extracomment>
        <translation>すべてのテキストの言語(例: de)</translation>
    </message>
    <message>
        <source>Options</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>オプション</translation>
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
        <translation>終了ステータス
  0  成功
  1  失敗(標準エラーに1行)、または停止されたライブ実行
  2  使い方の誤り
  130  Ctrl-C で停止した書き出し

結果は標準出力に、メッセージと進行状況は標準エラーに出ます。
「velvane SUBCOMMAND --help」で各サブコマンドの説明を表示します。</translation>
    </message>
    <message>
        <source>(see velvane --help)</source>
        <extracomment>CommandLine, cli</extracomment>
        <translation>(velvane --help を参照)</translation>
    </message>
    <message>
        <source>not enough memory</source>
        <extracomment>CommandLine</extracomment>
        <translation>メモリーが足りません</translation>
    </message>
    <message>
        <source>standard output cannot be written to</source>
        <extracomment>CommandLine</extracomment>
        <translation>標準出力に書き込めません</translation>
    </message>
    <message>
        <source>cannot be written: %1</source>
        <extracomment>DemoDocument</extracomment>
        <translation>書き込めません: %1</translation>
    </message>
    <message>
        <source>Change Canvas</source>
        <extracomment>DemoSettings, FieldEditing</extracomment>
        <translation>キャンバスを変更</translation>
    </message>
    <message>
        <source>“%1” is not a file.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>「%1」を読み込めません: %2。</translation>
    </message>
    <message>
        <source>“%1” is not a picture that Velvane can read.</source>
        <extracomment>DemoSettings</extracomment>
        <translation>「%1」はVelvaneで読み込める画像ではありません。</translation>
    </message>
    <message>
        <source>Set Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>背景を設定</translation>
    </message>
    <message>
        <source>Remove Backdrop</source>
        <extracomment>DemoSettings</extracomment>
        <translation>背景を削除</translation>
    </message>
    <message>
        <source>W</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>幅</translation>
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
        <translation>デモ</translation>
    </message>
    <message>
        <source>Rate</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>レート</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>フレームレート</translation>
    </message>
    <message>
        <source>fps</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>fps</translation>
    </message>
    <message>
        <source>Start X</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>開始X</translation>
    </message>
    <message>
        <source>Start Y</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>開始Y</translation>
    </message>
    <message>
        <source>Canvas</source>
        <extracomment>DemoSettingsForm, cli</extracomment>
        <translation>キャンバス</translation>
    </message>
    <message>
        <source>Canvas width</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>キャンバスの幅</translation>
    </message>
    <message>
        <source>Canvas height</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>キャンバスの高さ</translation>
    </message>
    <message>
        <source>Make the canvas as large as the primary display</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>キャンバスをメインディスプレイと同じ大きさにします</translation>
    </message>
    <message>
        <source>Match Screen</source>
        <extracomment>DemoSettingsForm, EditorWindow</extracomment>
        <translation>画面に合わせる</translation>
    </message>
    <message>
        <source>No display was found.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>ディスプレイが見つかりません。</translation>
    </message>
    <message>
        <source>Picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>Backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景画像</translation>
    </message>
    <message>
        <source>Choose…</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>選択…</translation>
    </message>
    <message>
        <source>Choose a picture as the backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景にする画像を選びます</translation>
    </message>
    <message>
        <source>Remove</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Remove the backdrop picture</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景画像を削除します</translation>
    </message>
    <message>
        <source>Choose Backdrop</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景を選択</translation>
    </message>
    <message>
        <source>Pictures (%1)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>画像 (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>None</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>There is no backdrop picture.</source>
        <extracomment>DemoSettingsForm</extracomment>
        <translation>背景画像はありません。</translation>
    </message>
    <message>
        <source>Export to Video…</source>
        <extracomment>DocumentCommands</extracomment>
        <translation>ビデオに書き出す…</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <extracomment>Documents</extracomment>
        <translation>「%1」を開けません: %2。</translation>
    </message>
    <message>
        <source>The demo's picture cannot be read; saving leaves it out.</source>
        <extracomment>Documents</extracomment>
        <translation>デモの画像を読み込めません。保存すると画像は失われます。</translation>
    </message>
    <message>
        <source>Undo</source>
        <extracomment>EditCommands</extracomment>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <extracomment>EditCommands</extracomment>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Cut</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>切り取り</translation>
    </message>
    <message>
        <source>Copy</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>コピー</translation>
    </message>
    <message>
        <source>Paste</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>貼り付け</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <extracomment>EditCommands, SeveralStepsForm, StepListPane</extracomment>
        <translation>複製</translation>
    </message>
    <message>
        <source>Select All</source>
        <extracomment>EditCommands, StepListPane</extracomment>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Freeze</source>
        <extracomment>EditorToolBar, ViewCommands</extracomment>
        <translation>静止</translation>
    </message>
    <message>
        <source>Recording</source>
        <extracomment>EditorToolBar, cli</extracomment>
        <translation>録画</translation>
    </message>
    <message>
        <source>Freeze the current frame so you can pick targets against a still</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>現在の画面を静止させ、止まった画面からターゲットを選びます</translation>
    </message>
    <message>
        <source>Turn on Live or Recording first.</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>先に「ライブ」か「録画」をオンにしてください。</translation>
    </message>
    <message>
        <source>Play the captured screen recording as the backdrop</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>録画した画面を背景として再生</translation>
    </message>
    <message>
        <source>Magnify the canvas 4× (Z)</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>キャンバスを4倍に拡大 (Z)</translation>
    </message>
    <message>
        <source>Run options</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>実行オプション</translation>
    </message>
    <message>
        <source>Hide other apps during run</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>実行中はほかのアプリを隠す</translation>
    </message>
    <message>
        <source>Show mouse cursor</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>マウスポインターを表示</translation>
    </message>
    <message>
        <source>Recording mode</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>録画モード</translation>
    </message>
    <message>
        <source>Don't record</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>録画しない</translation>
    </message>
    <message>
        <source>Record screen</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>画面を録画</translation>
    </message>
    <message>
        <source>Record active window</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>アクティブなウィンドウを録画</translation>
    </message>
    <message>
        <source>Active window needs a single-app flow</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>アクティブなウィンドウの録画には、1つのアプリだけの流れが必要です</translation>
    </message>
    <message>
        <source>Run Live</source>
        <extracomment>EditorToolBar, DemoCommands</extracomment>
        <translation>ライブ実行</translation>
    </message>
    <message>
        <source>Drive the real cursor through these steps</source>
        <extracomment>EditorToolBar</extracomment>
        <translation>実際のカーソルでこれらのステップを実行</translation>
    </message>
    <message>
        <source>Untitled</source>
        <extracomment>EditorWindow</extracomment>
        <translation>名称未設定</translation>
    </message>
    <message>
        <source>Untitled %1</source>
        <extracomment>EditorWindow</extracomment>
        <translation>名称未設定%1</translation>
    </message>
    <message>
        <source>“%1” is open in another window.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」は別のウィンドウで開かれています。</translation>
    </message>
    <message>
        <source>Choose another name, or close that window first.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>別の名前を選ぶか、先にそのウィンドウを閉じてください。</translation>
    </message>
    <message>
        <source>Saved %1.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>%1を保存しました。</translation>
    </message>
    <message>
        <source>“%1” could not be saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」を保存できませんでした。</translation>
    </message>
    <message>
        <source>It %1. The demo is still open here with all your changes.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>ファイル: %1。デモは変更内容とともに開いたままです。</translation>
    </message>
    <message>
        <source>Save As…</source>
        <extracomment>EditorWindow, FileCommands, FilePanel</extracomment>
        <translation>名前を付けて保存…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>EditorWindow, ExportProgressView, FilePanel</extracomment>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>“%1” was changed by another program since it was opened or saved here.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」は、ここで開くか保存したあとに別のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Replacing it loses what the other program saved.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>置き換えると、別のプログラムが保存した内容は失われます。</translation>
    </message>
    <message>
        <source>Replace</source>
        <extracomment>EditorWindow, FilePanel</extracomment>
        <translation>置き換える</translation>
    </message>
    <message>
        <source>“%1” was moved or deleted; saving writes it again.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」は移動または削除されました。保存すると再び書き込まれます。</translation>
    </message>
    <message>
        <source>“%1” was changed by another program.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」は別のプログラムによって変更されました。</translation>
    </message>
    <message>
        <source>Reloading it can be undone. If you keep your version, saving asks before it replaces the other.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>再読み込みは元に戻せます。こちらの版を残す場合は、保存時にもう一方を置き換えてよいか確認します。</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>EditorWindow</extracomment>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Keep My Version</source>
        <extracomment>EditorWindow</extracomment>
        <translation>こちらの版を残す</translation>
    </message>
    <message>
        <source>The screen is larger than the canvas.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>画面がキャンバスより大きくなっています。</translation>
    </message>
    <message>
        <source>The screen has %1 points, the canvas %2. What you do beyond the canvas is recorded at its edge.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>画面は%1ポイント、キャンバスは%2ポイントです。キャンバスの外での操作はその端に記録されます。</translation>
    </message>
    <message>
        <source>Keep Canvas</source>
        <extracomment>EditorWindow</extracomment>
        <translation>キャンバスを維持</translation>
    </message>
    <message>
        <source>Do you want to save the changes to “%1”?</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」への変更を保存しますか？</translation>
    </message>
    <message>
        <source>Your changes are lost if you don't save them.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>保存しないと変更内容は失われます。</translation>
    </message>
    <message>
        <source>Save</source>
        <extracomment>EditorWindow, FileCommands</extracomment>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <extracomment>EditorWindow</extracomment>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>“%1” is still being exported.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>「%1」はまだ書き出し中です。</translation>
    </message>
    <message>
        <source>Closing the demo stops the export before its movie is whole.</source>
        <extracomment>EditorWindow</extracomment>
        <translation>デモを閉じると、ムービーが完成する前に書き出しが中止されます。</translation>
    </message>
    <message>
        <source>Stop Export</source>
        <extracomment>EditorWindow</extracomment>
        <translation>書き出しを中止</translation>
    </message>
    <message>
        <source>The recording backdrop is only for the preview: the movie shows the demo's still backdrop.</source>
        <extracomment>ExportController</extracomment>
        <translation>録画の背景はプレビュー専用です。ムービーにはデモの静止背景が使われます。</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>%1に書き出しました。</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <extracomment>ExportController, cli</extracomment>
        <translation>書き出しに失敗しました: %1</translation>
    </message>
    <message>
        <source>Export cancelled.</source>
        <extracomment>ExportController</extracomment>
        <translation>書き出しをキャンセルしました。</translation>
    </message>
    <message>
        <source>The operation couldn’t be completed. (Velvane.ExportError error %1.)</source>
        <extracomment>ExportError</extracomment>
        <translation>操作を完了できませんでした。(Velvane.ExportErrorエラー%1)</translation>
    </message>
    <message>
        <source>Export to Video</source>
        <extracomment>ExportPanel</extracomment>
        <translation>ビデオに書き出す</translation>
    </message>
    <message>
        <source>MPEG-4 movies (*.mp4)</source>
        <extracomment>ExportPanel</extracomment>
        <translation>MPEG-4ムービー (*.mp4)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>ExportPanel</extracomment>
        <translation>書き出す</translation>
    </message>
    <message>
        <source>Save in:</source>
        <extracomment>ExportPanel, FilePanel</extracomment>
        <translation>保存先:</translation>
    </message>
    <message>
        <source>Stop the export; the movie keeps what is done</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>書き出しを停止します。できた部分はムービーに残ります</translation>
    </message>
    <message>
        <source>Cancel the export</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>書き出しをキャンセル</translation>
    </message>
    <message>
        <source>%1%</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 s left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>残り%1秒</translation>
    </message>
    <message>
        <source>%1 min left</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>残り%1分</translation>
    </message>
    <message>
        <source>Exporting, %1 %2</source>
        <extracomment>ExportProgressView</extracomment>
        <translation>書き出し中、%1 %2</translation>
    </message>
    <message>
        <source>No movie is %1 × %2 pixels large.</source>
        <extracomment>Exporter</extracomment>
        <translation>%1×%2ピクセルのムービーは作れません。</translation>
    </message>
    <message>
        <source>The demo is too long for a movie.</source>
        <extracomment>Exporter</extracomment>
        <translation>デモが長すぎてムービーにできません。</translation>
    </message>
    <message>
        <source>The address of the update feed is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデート情報のアドレスが安全ではありません。</translation>
    </message>
    <message>
        <source>This system has no secure connections to check for updates with.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>このシステムにはアップデートを確認するための安全な接続がありません。</translation>
    </message>
    <message>
        <source>The update server takes too long to answer.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバーの応答に時間がかかりすぎています。</translation>
    </message>
    <message>
        <source>The update feed is longer than %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデート情報が%1を超えています。</translation>
    </message>
    <message>
        <source>The update server %1 could not prove its identity.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバー%1の身元を確認できませんでした。</translation>
    </message>
    <message>
        <source>The update server redirects too often.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバーの転送回数が多すぎます。</translation>
    </message>
    <message>
        <source>The update server redirects to an address that is not secure.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバーが安全でないアドレスに転送しています。</translation>
    </message>
    <message>
        <source>The update server answered with status %1.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバーがステータス%1を返しました。</translation>
    </message>
    <message>
        <source>The update server %1 could not be reached.</source>
        <extracomment>FeedDownload</extracomment>
        <translation>アップデートサーバー%1に接続できませんでした。</translation>
    </message>
    <message>
        <source>Change Pause</source>
        <extracomment>FieldEditing</extracomment>
        <translation>一時停止を変更</translation>
    </message>
    <message>
        <source>Edit Text</source>
        <extracomment>FieldEditing</extracomment>
        <translation>テキストを編集</translation>
    </message>
    <message>
        <source>Change Duration</source>
        <extracomment>FieldEditing</extracomment>
        <translation>時間を変更</translation>
    </message>
    <message>
        <source>Change Frame Rate</source>
        <extracomment>FieldEditing</extracomment>
        <translation>フレームレートを変更</translation>
    </message>
    <message>
        <source>not a dictionary</source>
        <extracomment>Fields</extracomment>
        <translation>辞書ではありません</translation>
    </message>
    <message>
        <source>step %1: %2</source>
        <extracomment>Fields</extracomment>
        <translation>ステップ%1: %2</translation>
    </message>
    <message>
        <source>missing “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」がありません</translation>
    </message>
    <message>
        <source>“%1” is not a string</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が文字列ではありません</translation>
    </message>
    <message>
        <source>“%1” is not a boolean</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が真偽値ではありません</translation>
    </message>
    <message>
        <source>“%1” is not data</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」がバイナリデータではありません</translation>
    </message>
    <message>
        <source>“%1” is not an array</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が配列ではありません</translation>
    </message>
    <message>
        <source>“%1” is not finite</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が有限の値ではありません</translation>
    </message>
    <message>
        <source>“%1” is not a number</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が数値ではありません</translation>
    </message>
    <message>
        <source>“%1” is not an array of two numbers</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が2つの数値の配列ではありません</translation>
    </message>
    <message>
        <source>“%1” is not an integer</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が整数ではありません</translation>
    </message>
    <message>
        <source>“%1” is out of range</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」が範囲外です</translation>
    </message>
    <message>
        <source>“%1” is not a UUID: “%2”</source>
        <extracomment>Fields</extracomment>
        <translation>「%1」がUUIDではありません: 「%2」</translation>
    </message>
    <message>
        <source>unknown kind “%1”</source>
        <extracomment>Fields</extracomment>
        <translation>不明な種類「%1」</translation>
    </message>
    <message>
        <source>cannot be written: another Velvane is writing in its folder</source>
        <extracomment>FolderLock</extracomment>
        <translation>書き込めません: 別のVelvaneがこのフォルダーに書き込み中です</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: sides are from 1 to %3 pixels</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1×%2ピクセルのムービーは作れません: 各辺は1〜%3ピクセルです</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels is not possible: it has %3 macroblocks, and H.264 allows %4</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1×%2ピクセルのムービーは作れません: マクロブロックが%3個あり、H.264の上限は%4個です</translation>
    </message>
    <message>
        <source>%1 frames per second are not possible: at least 1</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>毎秒%1フレームにはできません: 1以上にしてください</translation>
    </message>
    <message>
        <source>a movie of %1 × %2 pixels at %3 frames per second is not possible: it has %4 macroblocks per second, and H.264 allows %5</source>
        <extracomment>H264MovieWriter</extracomment>
        <translation>%1×%2ピクセル、毎秒%3フレームのムービーは作れません: マクロブロックが毎秒%4個あり、H.264の上限は毎秒%5個です</translation>
    </message>
    <message>
        <source>Actions are being recorded.</source>
        <extracomment>InputTurns</extracomment>
        <translation>操作を記録しています。</translation>
    </message>
    <message>
        <source>Delete Step</source>
        <extracomment>InspectorPane, StepList, StepCommands</extracomment>
        <translation>ステップを削除</translation>
    </message>
    <message>
        <source>Delete this step</source>
        <extracomment>InspectorPane</extracomment>
        <translation>このステップを削除</translation>
    </message>
    <message>
        <source>Delete Steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>ステップを削除</translation>
    </message>
    <message>
        <source>Delete the selected steps</source>
        <extracomment>InspectorPane</extracomment>
        <translation>選択したステップを削除</translation>
    </message>
    <message>
        <source>No step selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>ステップが選択されていません</translation>
    </message>
    <message>
        <source>%1 steps selected</source>
        <extracomment>InspectorPane</extracomment>
        <translation>%1個のステップを選択中</translation>
    </message>
    <message>
        <source>not a property list</source>
        <extracomment>KeptDemo, velvane</extracomment>
        <translation>プロパティリストではありません</translation>
    </message>
    <message>
        <source>the folder %1 cannot be made</source>
        <extracomment>KeptSession</extracomment>
        <translation>フォルダー%1を作成できません</translation>
    </message>
    <message>
        <source>Driving the real cursor — bring your target app forward</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>実際のカーソルを操作します。対象のアプリを前面に出してください</translation>
    </message>
    <message>
        <source>Switching to %1</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>%1に切り替え中</translation>
    </message>
    <message>
        <source>Press Esc to abort</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>Escキーで中止</translation>
    </message>
    <message>
        <source>Live run in progress — Esc to stop</source>
        <extracomment>LiveOverlay</extracomment>
        <translation>ライブ実行中 — Escキーで停止</translation>
    </message>
    <message>
        <source>A live run is in progress.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>ライブ実行中です。</translation>
    </message>
    <message>
        <source>Add some steps first.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>先にステップを追加してください。</translation>
    </message>
    <message>
        <source>Grant Accessibility permission to Velvane, then run again.</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>Velvaneにアクセシビリティの権限を与えてから、もう一度実行してください。</translation>
    </message>
    <message>
        <source>Esc cannot be watched for here, so nothing was run.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>ここではEscキーを監視できないため、何も実行しませんでした。</translation>
    </message>
    <message>
        <source>Recording stopped: %1</source>
        <extracomment>LiveRunController, RecordActionsController</extracomment>
        <translation>録画を停止しました: %1</translation>
    </message>
    <message>
        <source>Couldn't start recording: %1</source>
        <extracomment>LiveRunController</extracomment>
        <translation>録画を開始できませんでした: %1</translation>
    </message>
    <message>
        <source>Live run stopped: the display has gone.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>ライブ実行を停止しました: ディスプレイがなくなりました。</translation>
    </message>
    <message>
        <source>Live run stopped.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>ライブ実行を停止しました。</translation>
    </message>
    <message>
        <source>Live run finished.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>ライブ実行が完了しました。</translation>
    </message>
    <message>
        <source>Recording saved to %1%2 — revealed in Finder.</source>
        <extracomment>LiveRunController</extracomment>
        <translation>録画を%1%2に保存し、ファイルマネージャーに表示しました。</translation>
    </message>
    <message>
        <source> (window not found — recorded full screen)</source>
        <extracomment>LiveRunController</extracomment>
        <translation>(ウィンドウが見つからないため全画面を録画)</translation>
    </message>
    <message>
        <source>Position the cursor over the target — grabbing in %1s · Esc to cancel</source>
        <extracomment>LocationPicker</extracomment>
        <translation>カーソルをターゲットに合わせてください — %1秒後に取り込みます · Escキーでキャンセル</translation>
    </message>
    <message>
        <source>another user's link stands in its place</source>
        <extracomment>MovieFile, WholeFile</extracomment>
        <translation>その場所に別のユーザーのリンクがあります</translation>
    </message>
    <message>
        <source>Not a regular file.</source>
        <extracomment>MovieInput</extracomment>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>The movie has no duration.</source>
        <extracomment>MovieInput</extracomment>
        <translation>ムービーに長さがありません。</translation>
    </message>
    <message>
        <source>The file holds no pictures.</source>
        <extracomment>MovieInput</extracomment>
        <translation>ファイルに映像がありません。</translation>
    </message>
    <message>
        <source>The movie is encrypted.</source>
        <extracomment>MovieInput</extracomment>
        <translation>ムービーは暗号化されています。</translation>
    </message>
    <message>
        <source>No movie can have this size.</source>
        <extracomment>MovieInput</extracomment>
        <translation>この大きさのムービーはありえません。</translation>
    </message>
    <message>
        <source>The movie has no picture that can be decoded.</source>
        <extracomment>MovieReader</extracomment>
        <translation>ムービーにデコードできる映像がありません。</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 0.1 s; with Shift, or Page Up and Page Down, by 1 s.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑と↓で0.1秒、Shiftまたは Page Up / Page Down で1秒ずつ変更します。</translation>
    </message>
    <message>
        <source>↑ and ↓ change it by 1; with Shift, or Page Up and Page Down, by 10.</source>
        <extracomment>NumberField</extracomment>
        <translation>↑と↓で1、Shiftまたは Page Up / Page Down で10ずつ変更します。</translation>
    </message>
    <message>
        <source>Pick on screen — position the cursor over the target.</source>
        <extracomment>PickLocationController</extracomment>
        <translation>画面上で選択 — カーソルをターゲットに合わせてください。</translation>
    </message>
    <message>
        <source>Pick Location</source>
        <extracomment>PickLocationController</extracomment>
        <translation>位置を選択</translation>
    </message>
    <message>
        <source>Captured target at (%1, %2)</source>
        <extracomment>PickLocationController</extracomment>
        <translation>(%1, %2)のターゲットを取り込みました</translation>
    </message>
    <message>
        <source>Nothing here decodes %1.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>ここには%1をデコードできるものがありません。</translation>
    </message>
    <message>
        <source>The movie's pictures cannot be decoded.</source>
        <extracomment>PictureDecoder</extracomment>
        <translation>ムービーの映像をデコードできません。</translation>
    </message>
    <message>
        <source>Step %1, %2</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>ステップ%1、%2</translation>
    </message>
    <message>
        <source>Preview canvas</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>プレビューキャンバス</translation>
    </message>
    <message>
        <source>Click to drop a Move waypoint or to set the selected target. The arrow keys nudge it, Z magnifies.</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>クリックで経由点を置くか、選択中のターゲットを設定します。矢印キーで微調整、Zキーで拡大します。</translation>
    </message>
    <message>
        <source>Target %1 at (%2, %3)</source>
        <extracomment>PreviewCanvas</extracomment>
        <translation>ターゲット%1、位置(%2, %3)</translation>
    </message>
    <message>
        <source>%1 left</source>
        <extracomment>ProgressBar</extracomment>
        <translation>残り%1</translation>
    </message>
    <message>
        <source>in %1</source>
        <extracomment>ProgressBar</extracomment>
        <translation>所要時間 %1</translation>
    </message>
    <message>
        <source>more than %1 steps</source>
        <extracomment>ProjectFile, velvane</extracomment>
        <translation>ステップが%1個を超えています</translation>
    </message>
    <message>
        <source>OK</source>
        <extracomment>Question</extracomment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Velvane</source>
        <extracomment>Question, RestorePanel, StartWindow</extracomment>
        <translation>Velvane</translation>
    </message>
    <message>
        <source>Today %1</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>今日 %1</translation>
    </message>
    <message>
        <source>Yesterday</source>
        <extracomment>RecentDemoDelegate</extracomment>
        <translation>昨日</translation>
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
        <translation>記録開始まで %1…</translation>
    </message>
    <message>
        <source>Couldn't start recording — grant Input Monitoring to Velvane in System Settings.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>記録を開始できませんでした。システム設定でVelvaneに入力監視を許可してください。</translation>
    </message>
    <message>
        <source>Recording stopped — no actions captured.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>記録を停止しました。操作はありませんでした。</translation>
    </message>
    <message>
        <source>Record Actions</source>
        <extracomment>RecordActionsController, StepCommands</extracomment>
        <translation>操作を記録</translation>
    </message>
    <message>
        <source>Recorded %1 step%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1個のステップ%2を記録しました。</translation>
    </message>
    <message>
        <source>Recorded %1 steps%2.</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>%1個のステップ%2を記録しました。</translation>
    </message>
    <message>
        <source> with screen recording</source>
        <extracomment>RecordActionsController</extracomment>
        <translation>(画面の録画つき)</translation>
    </message>
    <message>
        <source>This demo has no screen recording yet.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>このデモにはまだ画面の録画がありません。</translation>
    </message>
    <message>
        <source>Recording file is missing — backdrop unavailable.</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>録画ファイルが見つからないため、背景を使えません。</translation>
    </message>
    <message>
        <source>Couldn't read the screen recording (%1).</source>
        <extracomment>RecordingBackdrop</extracomment>
        <translation>画面の録画を読み込めませんでした (%1)。</translation>
    </message>
    <message>
        <source>Velvane did not end properly the last time.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>前回、Velvaneは正しく終了しませんでした。</translation>
    </message>
    <message>
        <source>These demos have changes that were not saved. What is not checked is offered again at the next start.</source>
        <extracomment>RestorePanel</extracomment>
        <translation>これらのデモには保存されていない変更があります。チェックしないものは次回の起動時にもう一度表示されます。</translation>
    </message>
    <message>
        <source>Demos with changes that were not saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>保存されていない変更があるデモ</translation>
    </message>
    <message>
        <source>Check the demos that you mean</source>
        <extracomment>RestorePanel</extracomment>
        <translation>対象のデモをチェックしてください</translation>
    </message>
    <message>
        <source>never saved</source>
        <extracomment>RestorePanel</extracomment>
        <translation>一度も保存されていません</translation>
    </message>
    <message>
        <source>%1 — %2, %3</source>
        <extracomment>RestorePanel</extracomment>
        <translation>%1 — %2、%3</translation>
    </message>
    <message>
        <source>Open the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>チェックしたデモを開きます</translation>
    </message>
    <message>
        <source>Later</source>
        <extracomment>RestorePanel</extracomment>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Ask again at the next start</source>
        <extracomment>RestorePanel</extracomment>
        <translation>次回の起動時にもう一度確認します</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>RestorePanel</extracomment>
        <translation>破棄</translation>
    </message>
    <message>
        <source>Give up the changes of the checked demos</source>
        <extracomment>RestorePanel</extracomment>
        <translation>チェックしたデモの変更を破棄します</translation>
    </message>
    <message>
        <source>No display to record</source>
        <extracomment>RunRecorder</extracomment>
        <translation>録画するディスプレイがありません</translation>
    </message>
    <message>
        <source>Open Settings</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>設定を開く</translation>
    </message>
    <message>
        <source>Open the page that permits screen recording</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>画面収録を許可するページを開きます</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>再試行</translation>
    </message>
    <message>
        <source>Look again whether it is permitted</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>許可されているかもう一度確認します</translation>
    </message>
    <message>
        <source>Screen Recording permission needed</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>画面収録の許可が必要です</translation>
    </message>
    <message>
        <source>Velvane shows your live screen as the backdrop so you can pick targets where they really are.</source>
        <extracomment>ScreenRecordingPrompt</extracomment>
        <translation>Velvaneはライブ画面を背景に表示するので、ターゲットを実際の位置で選べます。</translation>
    </message>
    <message>
        <source>Time</source>
        <extracomment>Scrubber</extracomment>
        <translation>時間</translation>
    </message>
    <message>
        <source>Preview time</source>
        <extracomment>Scrubber</extracomment>
        <translation>プレビューの時間</translation>
    </message>
    <message>
        <source>Together</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>まとめて</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>SeveralStepsForm, StepForm, TransportBar, DemoCommands, cli</extracomment>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Pause of all selected</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>選択したすべての一時停止</translation>
    </message>
    <message>
        <source>How long to rest after each of these actions</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>これらの操作のあとに待つ時間</translation>
    </message>
    <message>
        <source>s</source>
        <extracomment>SeveralStepsForm, StepForm</extracomment>
        <translation>秒</translation>
    </message>
    <message>
        <source>Duplicate the selected steps</source>
        <extracomment>SeveralStepsForm</extracomment>
        <translation>選択したステップを複製</translation>
    </message>
    <message>
        <source>%1s</source>
        <extracomment>SeveralStepsForm, StepListModel</extracomment>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>Press keys…</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>キーを押してください…</translation>
    </message>
    <message>
        <source>Record shortcut</source>
        <extracomment>ShortcutRecorder</extracomment>
        <translation>ショートカットを記録</translation>
    </message>
    <message>
        <source>New</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>新規</translation>
    </message>
    <message>
        <source>Make a new demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>新しいデモを作成</translation>
    </message>
    <message>
        <source>Open…</source>
        <extracomment>StartWindow, FileCommands</extracomment>
        <translation>開く…</translation>
    </message>
    <message>
        <source>Open a demo from a file</source>
        <extracomment>StartWindow</extracomment>
        <translation>ファイルからデモを開く</translation>
    </message>
    <message>
        <source>Recent demos</source>
        <extracomment>StartWindow</extracomment>
        <translation>最近使ったデモ</translation>
    </message>
    <message>
        <source>Open a recent demo</source>
        <extracomment>StartWindow</extracomment>
        <translation>最近使ったデモを開く</translation>
    </message>
    <message>
        <source>Demos that you open or save appear here.</source>
        <extracomment>StartWindow</extracomment>
        <translation>開いたり保存したりしたデモがここに表示されます。</translation>
    </message>
    <message>
        <source>%1, in %2</source>
        <extracomment>StartWindow</extracomment>
        <translation>%1、場所: %2</translation>
    </message>
    <message>
        <source>%1 × %2 · %3%</source>
        <extracomment>StatusLineView</extracomment>
        <translation>%1×%2 · %3%</translation>
    </message>
    <message>
        <source>Canvas %1</source>
        <extracomment>StatusLineView</extracomment>
        <translation>キャンバス%1</translation>
    </message>
    <message>
        <source>Cut Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>ステップを切り取り</translation>
    </message>
    <message>
        <source>Paste Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>ステップを貼り付け</translation>
    </message>
    <message>
        <source>Duplicate Steps</source>
        <extracomment>StepClipboard</extracomment>
        <translation>ステップを複製</translation>
    </message>
    <message>
        <source>Center Window</source>
        <extracomment>StepEdits</extracomment>
        <translation>ウィンドウを中央に配置</translation>
    </message>
    <message>
        <source>Set Shortcut</source>
        <extracomment>StepEdits</extracomment>
        <translation>ショートカットを設定</translation>
    </message>
    <message>
        <source>Click the preview to set this target — or Pick on screen to grab the cursor's location after a countdown, for spots only visible while interacting (menus, popovers).</source>
        <extracomment>StepForm</extracomment>
        <translation>プレビューをクリックしてこのターゲットを設定します。メニューなど操作中にしか見えない場所は、「画面上で選ぶ」でカウントダウン後のカーソル位置を取り込めます。</translation>
    </message>
    <message>
        <source>A quick press and release at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>現在の位置で短く押して放します。</translation>
    </message>
    <message>
        <source>A secondary (right) click at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>現在の位置で副ボタン(右)をクリックします。</translation>
    </message>
    <message>
        <source>Presses and holds the button. Add Move steps to drag, then a Release.</source>
        <extracomment>StepForm</extracomment>
        <translation>ボタンを押し続けます。「移動」を追加してドラッグし、最後に「放す」を置きます。</translation>
    </message>
    <message>
        <source>Releases a held button — completes a drag.</source>
        <extracomment>StepForm</extracomment>
        <translation>押していたボタンを放し、ドラッグを完了します。</translation>
    </message>
    <message>
        <source>Press the key combo to record it (e.g. ⌘C). It fires at the current point.</source>
        <extracomment>StepForm</extracomment>
        <translation>記録するキーの組み合わせを押します(例: ⌘C)。現在の位置で実行されます。</translation>
    </message>
    <message>
        <source>Pauses for the time shown on the right of the step row.</source>
        <extracomment>StepForm</extracomment>
        <translation>ステップの行の右に表示された時間だけ待ちます。</translation>
    </message>
    <message>
        <source>A heading to organize the flow. It does nothing when the demo runs.</source>
        <extracomment>StepForm</extracomment>
        <translation>流れを整理する見出しです。デモの実行時には何もしません。</translation>
    </message>
    <message>
        <source>Target</source>
        <extracomment>StepForm</extracomment>
        <translation>ターゲット</translation>
    </message>
    <message>
        <source>Target %1</source>
        <extracomment>StepForm</extracomment>
        <translation>ターゲット%1</translation>
    </message>
    <message>
        <source>How far from the canvas's left edge</source>
        <extracomment>StepForm</extracomment>
        <translation>キャンバスの左端からの距離</translation>
    </message>
    <message>
        <source>How far from the canvas's top edge</source>
        <extracomment>StepForm</extracomment>
        <translation>キャンバスの上端からの距離</translation>
    </message>
    <message>
        <source>Pick on screen</source>
        <extracomment>StepForm</extracomment>
        <translation>画面上で選ぶ</translation>
    </message>
    <message>
        <source>Text</source>
        <extracomment>StepForm</extracomment>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>The text to type, line breaks included</source>
        <extracomment>StepForm</extracomment>
        <translation>入力するテキスト(改行を含む)</translation>
    </message>
    <message>
        <source>Title</source>
        <extracomment>StepForm</extracomment>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>The heading in the step list</source>
        <extracomment>StepForm</extracomment>
        <translation>ステップ一覧での見出し</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <extracomment>StepForm, velvane</extracomment>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>App</source>
        <extracomment>StepForm</extracomment>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Center window</source>
        <extracomment>StepForm</extracomment>
        <translation>ウィンドウを中央に配置</translation>
    </message>
    <message>
        <source>Center the app's front window on the screen</source>
        <extracomment>StepForm</extracomment>
        <translation>アプリの前面のウィンドウを画面の中央に置きます</translation>
    </message>
    <message>
        <source>Duration</source>
        <extracomment>StepForm</extracomment>
        <translation>時間</translation>
    </message>
    <message>
        <source>How long the action takes</source>
        <extracomment>StepForm</extracomment>
        <translation>操作にかける時間</translation>
    </message>
    <message>
        <source>How long to rest after the action</source>
        <extracomment>StepForm</extracomment>
        <translation>操作のあとに待つ時間</translation>
    </message>
    <message>
        <source>Grab the cursor's location after a countdown</source>
        <extracomment>StepForm</extracomment>
        <translation>カウントダウン後にカーソルの位置を取り込みます</translation>
    </message>
    <message>
        <source>Move to</source>
        <extracomment>StepKind</extracomment>
        <translation>移動先</translation>
    </message>
    <message>
        <source>Move</source>
        <extracomment>StepKind</extracomment>
        <translation>移動</translation>
    </message>
    <message>
        <source>Click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>クリック</translation>
    </message>
    <message>
        <source>Right-click</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>右クリック</translation>
    </message>
    <message>
        <source>Right</source>
        <extracomment>StepKind</extracomment>
        <translation>右</translation>
    </message>
    <message>
        <source>Hold (mouse down)</source>
        <extracomment>StepKind</extracomment>
        <translation>押し続ける(マウスダウン)</translation>
    </message>
    <message>
        <source>Hold</source>
        <extracomment>StepKind</extracomment>
        <translation>押す</translation>
    </message>
    <message>
        <source>Release (mouse up)</source>
        <extracomment>StepKind</extracomment>
        <translation>放す(マウスアップ)</translation>
    </message>
    <message>
        <source>Release</source>
        <extracomment>StepKind</extracomment>
        <translation>放す</translation>
    </message>
    <message>
        <source>Type</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>入力</translation>
    </message>
    <message>
        <source>Keyboard shortcut</source>
        <extracomment>StepKind</extracomment>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Keys</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>キー</translation>
    </message>
    <message>
        <source>Wait</source>
        <extracomment>StepKind</extracomment>
        <translation>待機</translation>
    </message>
    <message>
        <source>Switch app</source>
        <extracomment>StepKind</extracomment>
        <translation>アプリを切り替え</translation>
    </message>
    <message>
        <source>Switch</source>
        <extracomment>StepKind</extracomment>
        <translation>切替</translation>
    </message>
    <message>
        <source>Section</source>
        <extracomment>StepKind, velvane</extracomment>
        <translation>セクション</translation>
    </message>
    <message>
        <source>Reorder Steps</source>
        <extracomment>StepList</extracomment>
        <translation>ステップを並べ替え</translation>
    </message>
    <message>
        <source>Set App</source>
        <extracomment>StepList</extracomment>
        <translation>アプリを設定</translation>
    </message>
    <message>
        <source>Add a step</source>
        <extracomment>StepListPane</extracomment>
        <translation>ステップを追加</translation>
    </message>
    <message>
        <source>Run Live from Here</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>ここからライブ実行</translation>
    </message>
    <message>
        <source>Expand section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>セクションを展開</translation>
    </message>
    <message>
        <source>Collapse section</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>セクションを折りたたむ</translation>
    </message>
    <message>
        <source>Delete</source>
        <extracomment>StepListPane, StepRowDelegate</extracomment>
        <translation>削除</translation>
    </message>
    <message>
        <source>Steps</source>
        <extracomment>StepListView</extracomment>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>%1 / %2s</source>
        <extracomment>TimeSlider</extracomment>
        <translation>%1 / %2秒</translation>
    </message>
    <message>
        <source>Go to Start</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>先頭へ</translation>
    </message>
    <message>
        <source>Play</source>
        <extracomment>TransportBar, DemoCommands</extracomment>
        <translation>再生</translation>
    </message>
    <message>
        <source>No update feed is configured, so Velvane cannot check for updates.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>アップデート情報の取得先が設定されていないため、Velvaneはアップデートを確認できません。</translation>
    </message>
    <message>
        <source>Velvane %1 is the newest version.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1は最新バージョンです。</translation>
    </message>
    <message>
        <source>Velvane %1 is available.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>Velvane %1を利用できます。</translation>
    </message>
    <message>
        <source>You have version %1. The download page opens in your browser.</source>
        <extracomment>UpdaterController</extracomment>
        <translation>お使いのバージョンは%1です。ダウンロードページがブラウザーで開きます。</translation>
    </message>
    <message>
        <source>Recording time</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>録画の時間</translation>
    </message>
    <message>
        <source>Time in the recording</source>
        <extracomment>VideoScrubBar</extracomment>
        <translation>録画内の時間</translation>
    </message>
    <message>
        <source>Minimize</source>
        <extracomment>WindowCommands</extracomment>
        <translation>最小化</translation>
    </message>
    <message>
        <source>There is no connection to an X server.</source>
        <extracomment>X11Camera, X11Screens</extracomment>
        <translation>Xサーバーに接続していません。</translation>
    </message>
    <message>
        <source>The X server stores pixels in another byte order.</source>
        <extracomment>X11Camera</extracomment>
        <translation>Xサーバーのピクセルのバイト順が異なります。</translation>
    </message>
    <message>
        <source>The region to record lies outside the display.</source>
        <extracomment>X11Camera</extracomment>
        <translation>録画する領域がディスプレイの外にあります。</translation>
    </message>
    <message>
        <source>The X server has gone.</source>
        <extracomment>X11CaptureStream</extracomment>
        <translation>Xサーバーがなくなりました。</translation>
    </message>
    <message>
        <source>no display</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ディスプレイなし</translation>
    </message>
    <message>
        <source>X11 display %1</source>
        <extracomment>X11Desktop</extracomment>
        <translation>X11ディスプレイ %1</translation>
    </message>
    <message>
        <source>%1, with a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1、コンポジターあり</translation>
    </message>
    <message>
        <source>%1, without a compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1、コンポジターなし</translation>
    </message>
    <message>
        <source>Window manager</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ウィンドウマネージャー</translation>
    </message>
    <message>
        <source>none that can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>問い合わせ可能なもの(EWMH)なし</translation>
    </message>
    <message>
        <source>%1, can be asked (EWMH)</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1、問い合わせ可能(EWMH)</translation>
    </message>
    <message>
        <source>%1, without %2</source>
        <extracomment>X11Desktop</extracomment>
        <translation>%1、%2なし</translation>
    </message>
    <message>
        <source>Switching applications or moving their windows may not work; use another window manager.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>アプリの切り替えやウィンドウの移動ができないことがあります。別のウィンドウマネージャーを使ってください。</translation>
    </message>
    <message>
        <source>Watchdog</source>
        <extracomment>X11Desktop</extracomment>
        <translation>ウォッチドッグ</translation>
    </message>
    <message>
        <source>releases what is held if Velvane ends</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Velvane終了時に押されたままのものを放します</translation>
    </message>
    <message>
        <source>missing</source>
        <extracomment>X11Desktop</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Install Velvane again: velvane-watchdog is not beside it.</source>
        <extracomment>X11Desktop</extracomment>
        <translation>Velvaneを再インストールしてください。velvane-watchdog が隣にありません。</translation>
    </message>
    <message>
        <source>running</source>
        <extracomment>X11Desktop</extracomment>
        <translation>実行中</translation>
    </message>
    <message>
        <source>none; none is needed</source>
        <extracomment>X11Desktop</extracomment>
        <translation>なし(不要)</translation>
    </message>
    <message>
        <source>Compositor</source>
        <extracomment>X11Desktop</extracomment>
        <translation>コンポジター</translation>
    </message>
    <message>
        <source>There is no display.</source>
        <extracomment>X11Desktop, X11InputSynthesizer, X11Listener, X11WindowManager</extracomment>
        <translation>ディスプレイがありません。</translation>
    </message>
    <message>
        <source>In a Wayland session only programs that use X11 could be driven: log in with an X11 session instead.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Waylandセッションでは、X11を使うプログラムしか操作できません。X11セッションでログインしてください。</translation>
    </message>
    <message>
        <source>This X server lets no program post input: it lacks the XTEST extension.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>このXサーバーではプログラムが入力を送れません。XTEST拡張がありません。</translation>
    </message>
    <message>
        <source>velvane-watchdog, which releases what is held if Velvane ends, is missing: install Velvane again.</source>
        <extracomment>X11InputSynthesizer</extracomment>
        <translation>Velvane終了時に押されたままのものを放す velvane-watchdog がありません。Velvaneを再インストールしてください。</translation>
    </message>
    <message>
        <source>%1 takes a connection to the X server, and there is none.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1にはXサーバーへの接続が必要ですが、接続がありません。</translation>
    </message>
    <message>
        <source>%1 reaches only X11 windows in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>Waylandセッションでは%1はX11のウィンドウに限られます。X11セッションでログインしてください。</translation>
    </message>
    <message>
        <source>%1 takes what this X server lacks: %2. Enable it in the server, and use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1に必要なものがこのXサーバーにありません: %2。サーバーで有効にし、ローカルまたは信頼された接続を使ってください。</translation>
    </message>
    <message>
        <source>%1 is refused by this X server. Use a local or trusted connection.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>%1はこのXサーバーに拒否されました。ローカルまたは信頼された接続を使ってください。</translation>
    </message>
    <message>
        <source>Nothing is missing.</source>
        <extracomment>X11Permissions</extracomment>
        <translation>不足しているものはありません。</translation>
    </message>
    <message>
        <source>Only X11 windows can be controlled in a Wayland session. Log in with an X11 session instead.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>Waylandセッションでは、X11のウィンドウだけを操作できます。X11セッションでログインしてください。</translation>
    </message>
    <message>
        <source>No window manager that can be asked (EWMH) is running. Start one.</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>問い合わせ可能なウィンドウマネージャー(EWMH)が動いていません。起動してください。</translation>
    </message>
    <message>
        <source>without a name</source>
        <extracomment>X11WindowManager</extracomment>
        <translation>名前なし</translation>
    </message>
    <message>
        <source>damaged property list: line %1, column %2: %3</source>
        <extracomment>XmlReader</extracomment>
        <translation>壊れたプロパティリスト: %1行%2列: %3</translation>
    </message>
    <message>
        <source>the display %1 cannot be opened</source>
        <extracomment>cli</extracomment>
        <translation>ディスプレイ%1を開けません</translation>
    </message>
    <message>
        <source>there is no display to open a window on</source>
        <extracomment>cli</extracomment>
        <translation>ウィンドウを開くディスプレイがありません</translation>
    </message>
    <message>
        <source>%1 s</source>
        <extracomment>std</extracomment>
        <translation>%1秒</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <extracomment>std</extracomment>
        <translation>%1分%2秒</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <extracomment>std</extracomment>
        <translation>%1時間%2分</translation>
    </message>
    <message>
        <source>About Velvane</source>
        <extracomment>velvane</extracomment>
        <translation>Velvaneについて</translation>
    </message>
    <message>
        <source>Velvane %1</source>
        <extracomment>velvane</extracomment>
        <translation>Velvane %1</translation>
    </message>
    <message>
        <source>Scripted screen demonstrations.</source>
        <extracomment>velvane</extracomment>
        <translation>台本どおりの画面デモ。</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <extracomment>velvane</extracomment>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <extracomment>velvane</extracomment>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <extracomment>velvane</extracomment>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Demo</source>
        <extracomment>velvane</extracomment>
        <translation>デモ(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Step</source>
        <extracomment>velvane</extracomment>
        <translation>ステップ(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <extracomment>velvane</extracomment>
        <translation>ウィンドウ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <extracomment>velvane</extracomment>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Wait %1s</source>
        <extracomment>velvane</extracomment>
        <translation>%1秒待つ</translation>
    </message>
    <message>
        <source>is a folder</source>
        <extracomment>velvane</extracomment>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>is not a regular file</source>
        <extracomment>velvane</extracomment>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>too large, %1 bytes</source>
        <extracomment>velvane</extracomment>
        <translation>大きすぎます(%1バイト)</translation>
    </message>
    <message>
        <source>no such file</source>
        <extracomment>velvane</extracomment>
        <translation>ファイルがありません</translation>
    </message>
    <message>
        <source>Move to (%1, %2)</source>
        <extracomment>velvane</extracomment>
        <translation>(%1, %2)へ移動</translation>
    </message>
    <message>
        <source>Hold mouse down</source>
        <extracomment>velvane</extracomment>
        <translation>マウスボタンを押し続ける</translation>
    </message>
    <message>
        <source>Release mouse</source>
        <extracomment>velvane</extracomment>
        <translation>マウスボタンを放す</translation>
    </message>
    <message>
        <source>Type "%1"</source>
        <extracomment>velvane</extracomment>
        <translation>「%1」と入力</translation>
    </message>
    <message>
        <source>Press %1</source>
        <extracomment>velvane</extracomment>
        <translation>%1を押す</translation>
    </message>
    <message>
        <source>Switch to %1</source>
        <extracomment>velvane</extracomment>
        <translation>%1に切り替え</translation>
    </message>
    <message>
        <source>app</source>
        <extracomment>velvane</extracomment>
        <translation>アプリ</translation>
    </message>
    <message>
        <source>Driving the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>マウスとキーボードの操作</translation>
    </message>
    <message>
        <source>Listening to the mouse and keyboard</source>
        <extracomment>velvane</extracomment>
        <translation>マウスとキーボードの監視</translation>
    </message>
    <message>
        <source>Taking pictures of the screen</source>
        <extracomment>velvane</extracomment>
        <translation>画面の取り込み</translation>
    </message>
    <message>
        <source>The update feed is not signed.</source>
        <extracomment>velvane</extracomment>
        <translation>アップデート情報に署名がありません。</translation>
    </message>
    <message>
        <source>The signature of the update feed is wrong.</source>
        <extracomment>velvane</extracomment>
        <translation>アップデート情報の署名が正しくありません。</translation>
    </message>
    <message>
        <source>The update feed is older than one that was read before.</source>
        <extracomment>velvane</extracomment>
        <translation>アップデート情報が以前に読み込んだものより古くなっています。</translation>
    </message>
    <message>
        <source>Don't Record</source>
        <extracomment>DemoCommands</extracomment>
        <translation>録画しない</translation>
    </message>
    <message>
        <source>Record Screen</source>
        <extracomment>DemoCommands</extracomment>
        <translation>画面を録画</translation>
    </message>
    <message>
        <source>Record Active Window</source>
        <extracomment>DemoCommands</extracomment>
        <translation>アクティブなウィンドウを録画</translation>
    </message>
    <message>
        <source>Screen Recording</source>
        <extracomment>DemoCommands</extracomment>
        <translation>画面の録画</translation>
    </message>
    <message>
        <source>Show Mouse Cursor</source>
        <extracomment>DemoCommands</extracomment>
        <translation>マウスポインターを表示</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <extracomment>FileCommands</extracomment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Clear Menu</source>
        <extracomment>FileCommands</extracomment>
        <translation>メニューを消去</translation>
    </message>
    <message>
        <source>Open Recent</source>
        <extracomment>FileCommands</extracomment>
        <translation>最近使ったデモを開く</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>FileCommands</extracomment>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Quit</source>
        <extracomment>FileCommands</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Velvane demos (*.velvane)</source>
        <extracomment>FilePanel</extracomment>
        <translation>Velvaneデモ (*.velvane)</translation>
    </message>
    <message>
        <source>“%1” already exists.</source>
        <extracomment>FilePanel</extracomment>
        <translation>「%1」はすでにあります。</translation>
    </message>
    <message>
        <source>Replacing it loses what it holds.</source>
        <extracomment>FilePanel</extracomment>
        <translation>置き換えると、その内容は失われます。</translation>
    </message>
    <message>
        <source>Open Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>デモを開く</translation>
    </message>
    <message>
        <source>Save Demo</source>
        <extracomment>FilePanel</extracomment>
        <translation>デモを保存</translation>
    </message>
    <message>
        <source>The documentation could not be opened.</source>
        <extracomment>HelpCommands</extracomment>
        <translation>ドキュメントを開けませんでした。</translation>
    </message>
    <message>
        <source>It is found at %1.</source>
        <extracomment>HelpCommands, UpdaterCommands</extracomment>
        <translation>%1にあります。</translation>
    </message>
    <message>
        <source>Velvane Help</source>
        <extracomment>HelpCommands</extracomment>
        <translation>Velvaneヘルプ</translation>
    </message>
    <message>
        <source>Velvane was installed as a Flatpak, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>VelvaneはFlatpakとしてインストールされており、アップデートもFlatpakが行います。</translation>
    </message>
    <message>
        <source>Velvane was installed by the package manager, which brings its updates.</source>
        <extracomment>PackageOwner</extracomment>
        <translation>Velvaneはパッケージマネージャーによってインストールされており、アップデートもそれが行います。</translation>
    </message>
    <message>
        <source>The update feed is malformed.</source>
        <extracomment>Reader</extracomment>
        <translation>アップデート情報の形式が正しくありません。</translation>
    </message>
    <message>
        <source>The update feed has no valid “%1”.</source>
        <extracomment>Reader</extracomment>
        <translation>アップデート情報に有効な「%1」がありません。</translation>
    </message>
    <message>
        <source>Session bus</source>
        <extracomment>SessionServices</extracomment>
        <translation>セッションバス</translation>
    </message>
    <message>
        <source>answers</source>
        <extracomment>SessionServices</extracomment>
        <translation>応答あり</translation>
    </message>
    <message>
        <source>none</source>
        <extracomment>SessionServices, cli</extracomment>
        <translation>なし</translation>
    </message>
    <message>
        <source>Start Velvane from the desktop, or below dbus-run-session: windows cannot be shared with a running Velvane without it.</source>
        <extracomment>SessionServices</extracomment>
        <translation>Velvaneをデスクトップから、または dbus-run-session の下で起動してください。これがないと、実行中のVelvaneとウィンドウを共有できません。</translation>
    </message>
    <message>
        <source>Desktop portal</source>
        <extracomment>SessionServices</extracomment>
        <translation>ポータル</translation>
    </message>
    <message>
        <source>there</source>
        <extracomment>SessionServices</extracomment>
        <translation>あり</translation>
    </message>
    <message>
        <source>Install xdg-desktop-portal and the one of your desktop, so that dark and light follow the system.</source>
        <extracomment>SessionServices</extracomment>
        <translation>ライトとダークがシステムに従うように、xdg-desktop-portal とデスクトップ用のものをインストールしてください。</translation>
    </message>
    <message>
        <source>File manager</source>
        <extracomment>SessionServices</extracomment>
        <translation>ファイル管理</translation>
    </message>
    <message>
        <source>shows a file in its folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>ファイルをフォルダー内に表示します</translation>
    </message>
    <message>
        <source>opens a file's folder</source>
        <extracomment>SessionServices</extracomment>
        <translation>ファイルのフォルダーを開きます</translation>
    </message>
    <message>
        <source>none can be asked</source>
        <extracomment>SessionServices</extracomment>
        <translation>問い合わせできるものがありません</translation>
    </message>
    <message>
        <source>Install a file manager, and xdg-utils, so that recordings can be shown.</source>
        <extracomment>SessionServices</extracomment>
        <translation>録画を表示できるように、ファイルマネージャーと xdg-utils をインストールしてください。</translation>
    </message>
    <message>
        <source>can be started</source>
        <extracomment>SessionServices</extracomment>
        <translation>起動できます</translation>
    </message>
    <message>
        <source>only running ones can be switched to</source>
        <extracomment>SessionServices</extracomment>
        <translation>実行中のものにだけ切り替えられます</translation>
    </message>
    <message>
        <source>Start them before a live run, or allow it: %1</source>
        <extracomment>SessionServices</extracomment>
        <translation>ライブ実行の前に起動しておくか、許可してください: %1</translation>
    </message>
    <message>
        <source>Add Step</source>
        <extracomment>StepCommands</extracomment>
        <translation>ステップを追加</translation>
    </message>
    <message>
        <source>Recording — Esc to Stop</source>
        <extracomment>StepCommands</extracomment>
        <translation>記録中 — Escキーで停止</translation>
    </message>
    <message>
        <source>Pick Location on Screen…</source>
        <extracomment>StepCommands</extracomment>
        <translation>画面上で位置を選ぶ…</translation>
    </message>
    <message>
        <source>The download page could not be opened.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>ダウンロードページを開けませんでした。</translation>
    </message>
    <message>
        <source>Open Download Page</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>ダウンロードページを開く</translation>
    </message>
    <message>
        <source>Not Now</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>あとで</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>Check for Updates Automatically</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>アップデートを自動的に確認</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Velvane %1 is available: see “Check for Updates…” in the menu “Help”.</source>
        <extracomment>UpdaterCommands</extracomment>
        <translation>Velvane %1を利用できます。「ヘルプ」メニューの「アップデートを確認…」をご覧ください。</translation>
    </message>
    <message>
        <source>Live Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>ライブ背景</translation>
    </message>
    <message>
        <source>Recording Backdrop</source>
        <extracomment>ViewCommands</extracomment>
        <translation>録画の背景</translation>
    </message>
    <message>
        <source>Zoom 4×</source>
        <extracomment>ViewCommands</extracomment>
        <translation>4倍に拡大</translation>
    </message>
    <message>
        <source>lacks %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>%1がありません</translation>
    </message>
    <message>
        <source>Enable %1 in the X server: without it %2.</source>
        <extracomment>X11Facts</extracomment>
        <translation>Xサーバーで%1を有効にしてください。ないと、%2。</translation>
    </message>
    <message>
        <source>Keyboard</source>
        <extracomment>X11Facts</extracomment>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <extracomment>X11Facts</extracomment>
        <translation>読み取れません</translation>
    </message>
    <message>
        <source>Enable XKEYBOARD in the X server: without it nothing is typed as written.</source>
        <extracomment>X11Facts</extracomment>
        <translation>XサーバーでXKEYBOARDを有効にしてください。ないと、書かれたとおりに入力されません。</translation>
    </message>
    <message>
        <source>layout not named</source>
        <extracomment>X11Facts</extracomment>
        <translation>配列名なし</translation>
    </message>
    <message>
        <source>layout %1</source>
        <extracomment>X11Facts</extracomment>
        <translation>配列 %1</translation>
    </message>
    <message>
        <source>Posting</source>
        <extracomment>X11Facts</extracomment>
        <translation>送信</translation>
    </message>
    <message>
        <source>nothing is clicked or typed</source>
        <extracomment>X11Facts</extracomment>
        <translation>クリックも入力もできません</translation>
    </message>
    <message>
        <source>Listening</source>
        <extracomment>X11Facts</extracomment>
        <translation>監視</translation>
    </message>
    <message>
        <source>actions are not heard and Esc does not stop a run</source>
        <extracomment>X11Facts</extracomment>
        <translation>操作を検知できず、Escキーでも実行を停止できません</translation>
    </message>
    <message>
        <source>Pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>画像</translation>
    </message>
    <message>
        <source>the screen is neither shown nor recorded</source>
        <extracomment>X11Facts</extracomment>
        <translation>画面の表示も録画もできません</translation>
    </message>
    <message>
        <source>Fast pictures</source>
        <extracomment>X11Facts</extracomment>
        <translation>高速な画像</translation>
    </message>
    <message>
        <source>pictures of the screen come slowly</source>
        <extracomment>X11Facts</extracomment>
        <translation>画面の画像が遅くなります</translation>
    </message>
    <message>
        <source>Displays</source>
        <extracomment>X11Facts</extracomment>
        <translation>ディスプレイ</translation>
    </message>
    <message>
        <source>several displays are taken for one</source>
        <extracomment>X11Facts</extracomment>
        <translation>複数のディスプレイが1つとして扱われます</translation>
    </message>
    <message>
        <source>Usage</source>
        <extracomment>cli</extracomment>
        <translation>使い方</translation>
    </message>
    <message>
        <source>Positionals</source>
        <extracomment>cli</extracomment>
        <translation>引数</translation>
    </message>
    <message>
        <source>Subcommands</source>
        <extracomment>cli</extracomment>
        <translation>サブコマンド</translation>
    </message>
    <message>
        <source>Print this help message and exit</source>
        <extracomment>cli</extracomment>
        <translation>このヘルプを表示して終了</translation>
    </message>
    <message>
        <source>Display program version information and exit</source>
        <extracomment>cli</extracomment>
        <translation>バージョンを表示して終了</translation>
    </message>
    <message>
        <source>This Flatpak cannot reach it. Give it the folder: %1</source>
        <extracomment>cli</extracomment>
        <translation>このFlatpakからはアクセスできません。フォルダを指定してください: %1</translation>
    </message>
    <message>
        <source>Write a demo in the binary format, from binary or XML</source>
        <extracomment>cli</extracomment>
        <translation>バイナリまたはXMLのデモをバイナリ形式で書き込む</translation>
    </message>
    <message>
        <source>The demo to read</source>
        <extracomment>cli</extracomment>
        <translation>読み込むデモ</translation>
    </message>
    <message>
        <source>The file to write; an existing one is replaced</source>
        <extracomment>cli</extracomment>
        <translation>書き込むファイル。既存のものは置き換えられます</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Read a demo, as a binary or an XML property list, and write it in the
  binary format. Keys that no demo has are left out. OUT is written whole or
  not at all, so it may be IN.

EXAMPLE
  velvane convert tour.xml tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>説明
  バイナリまたはXMLのプロパティリストとしてデモを読み込み、バイナリ形式で
  書き込みます。デモにないキーは省かれます。OUT は全体が書き込まれるか、
  まったく書き込まれないかなので、IN と同じでもかまいません。

例
  velvane convert tour.xml tour.velvane</translation>
    </message>
    <message>
        <source>%1: is not writable</source>
        <extracomment>cli</extracomment>
        <translation>%1: 書き込みできません</translation>
    </message>
    <message>
        <source>The screen (%1) is larger than the canvas (%2): what lies beyond is recorded at the canvas's edge.</source>
        <extracomment>cli</extracomment>
        <translation>画面(%1)がキャンバス(%2)より大きいため、外での操作はその端に記録されます。</translation>
    </message>
    <message>
        <source>%1; the recorded steps are in %2</source>
        <extracomment>cli</extracomment>
        <translation>%1。記録したステップは%2にあります</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <extracomment>cli</extracomment>
        <translation>毎秒%1フレーム</translation>
    </message>
    <message>
        <source>Backdrop</source>
        <extracomment>cli</extracomment>
        <translation>背景</translation>
    </message>
    <message>
        <source>picture of %1 × %2</source>
        <extracomment>cli</extracomment>
        <translation>%1×%2の画像</translation>
    </message>
    <message>
        <source>yes</source>
        <extracomment>cli</extracomment>
        <translation>あり</translation>
    </message>
    <message>
        <source>Total</source>
        <extracomment>cli</extracomment>
        <translation>合計</translation>
    </message>
    <message>
        <source>Step</source>
        <extracomment>cli</extracomment>
        <translation>ステップ</translation>
    </message>
    <message>
        <source>End</source>
        <extracomment>cli</extracomment>
        <translation>終了</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>cli</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>there is no step “%1”</source>
        <extracomment>cli</extracomment>
        <translation>ステップ「%1」はありません</translation>
    </message>
    <message>
        <source>Say what this session can and cannot do, with remedies</source>
        <extracomment>cli</extracomment>
        <translation>このセッションでできること・できないことと対処法を表示</translation>
    </message>
    <message>
        <source>Print one JSON array instead of lines</source>
        <extracomment>cli</extracomment>
        <translation>行の代わりに1つのJSON配列を出力</translation>
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
        <translation>説明
  このセッションでできることとできないことを、機能ごとに1行で示し、足りない
  ものにはその下に対処法を示します。何も変更せず、画面にも何も表示しません。

JSON
  機能ごとに1つのオブジェクト: what, works, state, remedy または null。

例
  velvane doctor --json | jq -r '.[] | select(.works | not) | .remedy'</translation>
    </message>
    <message>
        <source>frames</source>
        <extracomment>cli</extracomment>
        <translation>フレーム</translation>
    </message>
    <message>
        <source>%1: the movie would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: ムービーがデモを置き換えてしまいます</translation>
    </message>
    <message>
        <source>Export cancelled; %1 holds what was done.</source>
        <extracomment>cli</extracomment>
        <translation>書き出しをキャンセルしました。できた部分は%1にあります。</translation>
    </message>
    <message>
        <source>Render a demo to a movie</source>
        <extracomment>cli</extracomment>
        <translation>デモをムービーにする</translation>
    </message>
    <message>
        <source>The demo to render</source>
        <extracomment>cli</extracomment>
        <translation>ムービーにするデモ</translation>
    </message>
    <message>
        <source>The movie to write</source>
        <extracomment>cli</extracomment>
        <translation>書き込むムービー</translation>
    </message>
    <message>
        <source>When the export fails, print the reason on a second line</source>
        <extracomment>cli</extracomment>
        <translation>書き出しに失敗したとき、理由を2行目に表示</translation>
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
        <translation>説明
  デモを、キャンバスの大きさとデモのフレームレートで、MPEG-4ファイルの
  H.264ムービーにします。MP4 のファイルは置き換えられます。進行状況は標準
  エラーに出力されます。端末ではバー、そうでなければ1割ごとに1行です。

  Ctrl-C を押すと、できたフレームまでのムービーを再生できる形で閉じ、
  終了ステータス130で終わります。

例
  velvane export tour.velvane tour.mp4</translation>
    </message>
    <message>
        <source>%1: the picture would replace the demo</source>
        <extracomment>cli</extracomment>
        <translation>%1: 画像がデモを置き換えてしまいます</translation>
    </message>
    <message>
        <source>%1: a canvas of %2 × %3 cannot be drawn</source>
        <extracomment>cli</extracomment>
        <translation>%1: %2×%3のキャンバスは描けません</translation>
    </message>
    <message>
        <source>Render one moment of a demo to a picture</source>
        <extracomment>cli</extracomment>
        <translation>デモの一瞬を画像にする</translation>
    </message>
    <message>
        <source>The demo</source>
        <extracomment>cli</extracomment>
        <translation>デモ</translation>
    </message>
    <message>
        <source>The moment in seconds</source>
        <extracomment>cli</extracomment>
        <translation>時点(秒)</translation>
    </message>
    <message>
        <source>The picture to write</source>
        <extracomment>cli</extracomment>
        <translation>書き込む画像</translation>
    </message>
    <message>
        <source>Make it no wider and no higher than this</source>
        <extracomment>cli</extracomment>
        <translation>幅と高さをこれ以下にする</translation>
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
        <translation>説明
  デモの一瞬を、キャンバスの大きさのPNG画像にします。ムービーがその時点で
  示すものと同じです。デモの外の時点では、最初または最後の瞬間になります。
  --size を付けると、それより大きい画像は縮小されます。

例
  velvane frame tour.velvane --at 2.5 --output still.png
  velvane frame tour.velvane --at 0 --size 256 --output thumbnail.png</translation>
    </message>
    <message>
        <source>Show what a demo holds and when it happens</source>
        <extracomment>cli</extracomment>
        <translation>デモの内容と時間を表示</translation>
    </message>
    <message>
        <source>The demo to show</source>
        <extracomment>cli</extracomment>
        <translation>表示するデモ</translation>
    </message>
    <message>
        <source>Print one JSON object instead of a table</source>
        <extracomment>cli</extracomment>
        <translation>表の代わりに1つのJSONオブジェクトを出力</translation>
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
        <translation>説明
  デモの設定、ステップ一覧にあるステップ、それぞれの開始と終了の時間を表示
  します。時間の単位は秒です。

JSON
  version, fps, canvasSize [幅, 高さ], startPoint [x, y], hasBackground,
  hasRecording, total, steps, segments.
  ステップ: id, kind, point [x, y], text, duration, pauseAfter, keyCode,
  modifiers, centerWindow, collapsed, recordedOffset または null, number
  または null, summary, shortcutDisplay, visible.
  セグメント: step (steps での番号), id, start, end, actionDuration,
  startPos, endPos, heldEntering.

例
  velvane inspect tour.velvane --json | jq .total</translation>
    </message>
    <message>
        <source>%1: the file exists; --force replaces it</source>
        <extracomment>cli</extracomment>
        <translation>%1: ファイルは既にあります。--force で置き換えます</translation>
    </message>
    <message>
        <source>Write a new demo with the defaults</source>
        <extracomment>cli</extracomment>
        <translation>既定値の新しいデモを書き込む</translation>
    </message>
    <message>
        <source>The file to write, usually NAME.velvane</source>
        <extracomment>cli</extracomment>
        <translation>書き込むファイル。通常は NAME.velvane</translation>
    </message>
    <message>
        <source>Replace the file if it exists</source>
        <extracomment>cli</extracomment>
        <translation>ファイルがあれば置き換える</translation>
    </message>
    <message>
        <source>DESCRIPTION
  Write a new demo with the defaults: a canvas of 1280 × 800, 60 frames a
  second, the cursor in the middle, and one step that switches to no
  application yet.

EXAMPLE
  velvane new tour.velvane</source>
        <extracomment>cli</extracomment>
        <translation>説明
  既定値の新しいデモを書き込みます。キャンバスは1280×800、毎秒60フレーム、
  カーソルは中央で、まだどのアプリにも切り替えないステップが1つあります。

例
  velvane new tour.velvane</translation>
    </message>
    <message>
        <source>Record real mouse and keyboard actions into a demo</source>
        <extracomment>cli</extracomment>
        <translation>実際のマウスとキーボードの操作をデモに記録</translation>
    </message>
    <message>
        <source>The demo that the steps are appended to</source>
        <extracomment>cli</extracomment>
        <translation>ステップを追加するデモ</translation>
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
        <translation>説明
  2.1秒のカウントダウンのあと、Escキーが押されるまで(どこにキーボード
  フォーカスがあっても)、マウスとキーボードの操作を記録します。Ctrl-C と
  SIGTERM でも終わります。操作は使用中のプログラムにそのまま届きます。
  ステップはデモに追加され、デモは保存されます。

  結果は標準出力に出ます。終了ステータスは0(何も記録されずデモがそのままの
  場合も)、開始できなかったかデモを保存できなかった場合は1です。

例
  velvane new tour.velvane &amp;&amp; velvane record tour.velvane</translation>
    </message>
    <message>
        <source>Perform a demo on the real desktop</source>
        <extracomment>cli</extracomment>
        <translation>実際のデスクトップでデモを実行</translation>
    </message>
    <message>
        <source>The demo to perform</source>
        <extracomment>cli</extracomment>
        <translation>実行するデモ</translation>
    </message>
    <message>
        <source>Begin with this step: an id or a number</source>
        <extracomment>cli</extracomment>
        <translation>このステップから始める(IDまたは番号)</translation>
    </message>
    <message>
        <source>When switching to an application, hide all others</source>
        <extracomment>cli</extracomment>
        <translation>アプリに切り替えるとき、ほかをすべて隠す</translation>
    </message>
    <message>
        <source>Record: off, screen or window</source>
        <extracomment>cli</extracomment>
        <translation>録画: off、screen、window のいずれか</translation>
    </message>
    <message>
        <source>Leave the pointer out of the recording</source>
        <extracomment>cli</extracomment>
        <translation>ポインターを録画に含めない</translation>
    </message>
    <message>
        <source>Begin at once</source>
        <extracomment>cli</extracomment>
        <translation>すぐに始める</translation>
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
        <translation>説明
  2.4秒のカウントダウンのあと、実際のマウスとキーボードでデモのステップを
  実行します。どこにキーボードフォーカスがあってもEscで停止します。Ctrl-C と
  SIGTERM でも停止します。押されたままのものは残りません。

  STEP はステップのIDまたは番号で、「velvane inspect」が示すものです。
  カーソルは、デモがそこまでに置いていた位置から始まります。

  結果は標準出力に出て、録画した実行ではその下にムービーのパスが出ます。
  ムービーはホームフォルダーの Movies/Velvane に置かれます。「window」では
  デモの唯一のアプリのウィンドウが占める範囲を録画します。それがないか、
  デモが複数のアプリを切り替える場合は、画面全体を録画します。終了ステータス
  は、デモが最後まで実行されたら0、停止されたか開始できなかったら1です。

例
  velvane run tour.velvane --from 4 --hide-others</translation>
    </message>
    <message>
        <source>Display server</source>
        <extracomment>cli</extracomment>
        <translation>表示サーバー</translation>
    </message>
    <message>
        <source>X11 (%1), which does not answer</source>
        <extracomment>cli</extracomment>
        <translation>X11 (%1)、応答なし</translation>
    </message>
    <message>
        <source>Start this in the desktop session, where DISPLAY and XAUTHORITY are right.</source>
        <extracomment>cli</extracomment>
        <translation>DISPLAYとXAUTHORITYが正しいデスクトップセッションで起動してください。</translation>
    </message>
    <message>
        <source>Rendering needs none; the editor does: start it in a desktop session.</source>
        <extracomment>cli</extracomment>
        <translation>ムービー作成には不要ですが、エディターには必要です。デスクトップセッションで起動してください。</translation>
    </message>
    <message>
        <source>works</source>
        <extracomment>cli</extracomment>
        <translation>使えます</translation>
    </message>
    <message>
        <source>not here</source>
        <extracomment>cli</extracomment>
        <translation>ここでは使えません</translation>
    </message>
    <message>
        <source>Caption font</source>
        <extracomment>cli</extracomment>
        <translation>字幕のフォント</translation>
    </message>
    <message>
        <source>%1, semibold</source>
        <extracomment>cli</extracomment>
        <translation>%1、セミボールド</translation>
    </message>
    <message>
        <source>Inter is missing, another sans-serif stands in</source>
        <extracomment>cli</extracomment>
        <translation>Interがないため、別のサンセリフで代用します</translation>
    </message>
    <message>
        <source>Install %1.</source>
        <extracomment>cli</extracomment>
        <translation>%1をインストールしてください。</translation>
    </message>
    <message>
        <source>no font has all of %1</source>
        <extracomment>cli</extracomment>
        <translation>%1をすべて持つフォントがありません</translation>
    </message>
    <message>
        <source>Backdrop pictures</source>
        <extracomment>cli</extracomment>
        <translation>背景画像</translation>
    </message>
    <message>
        <source>Session</source>
        <extracomment>cli</extracomment>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Log in with an X11 session: in a Wayland session demos can be composed and rendered, not run or recorded.</source>
        <extracomment>cli</extracomment>
        <translation>X11セッションでログインしてください。Waylandセッションではデモの作成とムービー化はできますが、実行と記録はできません。</translation>
    </message>
    <message>
        <source>not told</source>
        <extracomment>cli</extracomment>
        <translation>不明</translation>
    </message>
    <message>
        <source>Recordings</source>
        <extracomment>cli</extracomment>
        <translation>録画</translation>
    </message>
    <message>
        <source>%1, %2 free</source>
        <extracomment>cli</extracomment>
        <translation>%1、空き%2</translation>
    </message>
    <message>
        <source>Make room there: a recording ends when the disk is full.</source>
        <extracomment>cli</extracomment>
        <translation>空き容量を増やしてください。ディスクがいっぱいになると録画は終わります。</translation>
    </message>
    <message>
        <source>%1 cannot be written to</source>
        <extracomment>cli</extracomment>
        <translation>%1に書き込めません</translation>
    </message>
    <message>
        <source>Make %1 a folder that you may write to.</source>
        <extracomment>cli</extracomment>
        <translation>%1を書き込めるフォルダーにしてください。</translation>
    </message>
    <message>
        <source>Language</source>
        <extracomment>cli</extracomment>
        <translation>言語</translation>
    </message>
    <message>
        <source>Set LANG to a UTF-8 locale, such as C.UTF-8, so that file names and texts are read as they are written.</source>
        <extracomment>cli</extracomment>
        <translation>ファイル名とテキストが書かれたとおりに読めるように、LANGを C.UTF-8 などのUTF-8ロケールにしてください。</translation>
    </message>
    <message>
        <source>Input posting</source>
        <extracomment>cli</extracomment>
        <translation>入力の送信</translation>
    </message>
    <message>
        <source>Input listening</source>
        <extracomment>cli</extracomment>
        <translation>入力の監視</translation>
    </message>
    <message>
        <source>Screen capture</source>
        <extracomment>cli</extracomment>
        <translation>画面の取り込み</translation>
    </message>
    <message>
        <source>H.264 encoder</source>
        <extracomment>cli</extracomment>
        <translation>H.264エンコーダー</translation>
    </message>
    <message>
        <source>Movie files</source>
        <extracomment>cli</extracomment>
        <translation>ムービーファイル</translation>
    </message>
    <message>
        <source>Shortcut glyphs</source>
        <extracomment>cli</extracomment>
        <translation>ショートカット記号</translation>
    </message>
    <message>
        <source>Emoji</source>
        <extracomment>cli</extracomment>
        <translation>絵文字</translation>
    </message>
    <message>
        <source>Show what a demo shows at given moments</source>
        <extracomment>cli</extracomment>
        <translation>指定した時点のデモの状態を表示</translation>
    </message>
    <message>
        <source>A moment in seconds; may be given several times</source>
        <extracomment>cli</extracomment>
        <translation>時点(秒)。複数指定できます</translation>
    </message>
    <message>
        <source>Length in seconds of the movie recorded with the steps; gives videoTime</source>
        <extracomment>cli</extracomment>
        <translation>ステップとともに録画したムービーの長さ(秒)。videoTime を求めます</translation>
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
        <translation>説明
  指定した時点でデモが示すものを、時点ごとに1つのオブジェクトを持つJSON配列
  として出力します: time, cursor [x, y], ripple または null, press, held,
  caption または null, videoTime または null。デモの外の時点では、最初または
  最後の瞬間になります。

例
  velvane state tour.velvane --at 0 --at 2.5</translation>
    </message>
</context>
</TS>
