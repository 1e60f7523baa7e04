#pragma once

#include "app/RecentDemos.h"
#include "capture/RunSettings.h"
#include "editor/AppCatalog.h"
#include "editor/TaskbarProgress.h"
#include "platform/Desktop.h"

#include <QPointer>
#include <QSettings>
#include <QTimer>

#include <utility>

namespace velvane {

class DemoDocument;
class DocumentFile;
class EditorWindow;

/// All open demos, each in a window of its own; no file is open in two of them. Main thread only.
class Documents : public QObject {
    Q_OBJECT
public:
    /// Borrows both, which must outlive it.
    Documents(Desktop &desktop, QSettings &settings);
    /// Closes every window without asking.
    ~Documents() override;

    Desktop &desktop() { return m_desktop; }
    QSettings &settings() { return m_settings; }
    RunSettings &runSettings() { return m_runSettings; }
    RecentDemos &recents() { return m_recents; }
    AppCatalog &apps() { return m_apps; }
    const TaskbarProgress &taskbar() const { return m_taskbar; }

    const QList<EditorWindow *> &windows() const { return m_windows; }
    /// The window that has this file open, whatever its path is written like, or null.
    EditorWindow *windowFor(const QString &path) const;

    /// Brings the window that was used last to the front, if there is one.
    void bringUpLast();
    /// Brings a window to the front, as large as it was when it was minimized; returns it.
    static EditorWindow *bringUp(EditorWindow *window);
    /// Opens a window on a new demo.
    EditorWindow *newDemo();
    /// Opens a window on a demo that was read from this file, or raises the one that has it
    /// already.
    EditorWindow *add(std::unique_ptr<DemoDocument> document, const DocumentFile &file);
    /// The same for a demo that holds what its file, if it has one, does not.
    EditorWindow *addUnsaved(std::unique_ptr<DemoDocument> document, const DocumentFile &file);
    /// Opens a demo, or raises the window that has it already. A file that is no demo is refused in
    /// one sentence over `asking`, which may be null; the result is null then.
    EditorWindow *open(const QString &path, QWidget *asking);
    /// The same for several.
    void open(const QStringList &paths, QWidget *asking);
    /// Asks for demos with a file panel over `asking`, and opens them.
    void openPanel(QWidget *asking);

    /// Asks about every modified demo in turn; when none was cancelled closes all windows and emits
    /// quitReady() after the last.
    void quit();
    /// Closes all windows without a question, since what they hold is kept elsewhere, and emits
    /// quitReady() after the last.
    void quitKept();
    /// While a live run or a recording of actions goes on in a window, ends it and returns true;
    /// `again` is then called, queued, when it has ended.
    bool endInputThen(const std::function<void()> &again);
    /// Ends quit() because of a window that has to ask again; true when it was under way. Without
    /// another quit() the program goes on, whichever windows close.
    bool interruptQuit();
    /// Are the windows on their way out?
    bool isQuitting() const { return m_isQuitting; }

    /// Keeps the window's place and pane widths for the next one.
    void remember(const EditorWindow &window);

    /// The sentence that says why a file cannot be opened.
    static QString refusal(const QString &path, const QString &reason);

Q_SIGNALS:
    void windowsChanged();
    void lastWindowClosed();
    void quitReady();

private:
    void forget(QObject *window);
    /// While no demo is open, gives back the memory that closed ones have left.
    void tidy();
    void closeAll();
    int freeUntitledNumber() const;

    Desktop &m_desktop;
    QSettings &m_settings;
    RunSettings m_runSettings;
    RecentDemos m_recents;
    AppCatalog m_apps;
    TaskbarProgress m_taskbar;
    QList<EditorWindow *> m_windows;
    QTimer m_threadsEnd;
    bool m_isQuitting = false;
};

} // namespace velvane
