#pragma once

#include "app/DocumentFile.h"
#include "app/FileWatch.h"
#include "capture/RecordActionsController.h"
#include "model/DemoDocument.h"

#include <QMainWindow>
#include <QUndoStack>

namespace velvane {

class ContentView;
class Documents;

/// The document window: one demo with its file, its undo stack and its editor. Main thread only.
///
/// The demo counts as modified while it differs from what was last saved or opened; a window with
/// such a demo asks before it closes. Questions and file panels never block: an operation that
/// needs one ends later, when it is answered.
class EditorWindow : public QMainWindow {
    Q_OBJECT
public:
    /// Says whether an operation has been carried through: false when it failed or was cancelled.
    using Done = std::function<void(bool done)>;

    /// `file` is empty for a demo that has never been saved. Borrows `documents`, which knows the
    /// other windows.
    EditorWindow(Documents &documents, std::unique_ptr<DemoDocument> document,
                 const DocumentFile &file = {});
    ~EditorWindow() override;

    ContentView &content() const { return *m_content; }
    Documents &documents() { return m_documents; }
    /// The demo's file; empty while it has never been saved.
    QString path() const { return m_file.path(); }
    const DocumentFile &file() const { return m_file; }
    /// What the title calls the demo: its file's name without extension, or e.g. "Untitled 2".
    QString name() const;
    /// Tells untitled demos apart; 1 is not shown.
    void setUntitledNumber(int number);
    int untitledNumber() const { return m_untitledNumber; }
    bool isModified() const;
    /// What would be lost if the program ended now: the demo, with what is being recorded, unless
    /// it is what is saved.
    std::optional<DocState> unsaved() const;
    /// Counts the demo as modified, since it came from elsewhere than its file.
    void setUnsaved();
    /// Puts another state in place of the demo's, as one edit of this name.
    void replace(const DocState &state, const QString &name);

    /// Saves to the demo's file, or asks for one first; asks too when the file is not as it was
    /// last read or written.
    void saveThen(const Done &done);
    /// Ends what is being edited and asks whether to save, if the demo is modified, and whether an
    /// export may be stopped. `done` hears true when the window may close without loss or the user
    /// agreed to it.
    void confirmClose(const Done &done);
    /// Is there nothing to lose, or has the user agreed to it?
    bool mayClose() const;
    /// Takes back the agreement that confirmClose() got.
    void keepOpen() { agreeToClose(false); }
    /// Lets it close without a question: what it holds is kept elsewhere.
    void letGo() { agreeToClose(true); }
    /// While a live run or a recording of actions goes on, ends it and returns true; `again` is
    /// then called, queued, when it has ended.
    bool endInputThen(const std::function<void()> &again);

public Q_SLOTS:
    void newDemo();
    /// Asks for demos to open.
    void open();
    void openRecent(const QString &path);
    void save();
    void saveAs();
    /// Closes every window, each modified one asking first, and ends the program.
    void quit();

Q_SIGNALS:
    /// The title, the file or the modified mark is another.
    void documentChanged();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void watchProject();
    void askAboutCanvas(QSizeF screen, const RecordActionsController::Chosen &chosen);
    void updateTitle();
    bool mayLoseChanges() const;
    void agreeToClose(bool agreed);
    void askAboutChanges(const Done &done);
    void askAboutExport(const Done &done);
    void saveAsThen(const Done &done);
    void saveTo(DocumentFile file, const Done &done);
    void tellFailure(const QString &path, const QString &refusal, const Done &done);
    void askBeforeReplacing(const QString &path, const Done &done);
    void onFileChanged();
    void reload();

    Documents &m_documents;
    std::unique_ptr<DemoDocument> m_document;
    DocumentFile m_file;
    FileWatch m_watch{this};
    QUndoStack m_undo;
    /// The state that the file holds; nothing when the file has gone.
    std::optional<DocState> m_saved;
    ContentView *m_content;
    int m_untitledNumber = 1;
    /// What the user has agreed to lose.
    bool m_mayLoseChanges = false;
    bool m_mayStopExport = false;
};

} // namespace velvane
