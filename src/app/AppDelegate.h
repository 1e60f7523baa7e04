#pragma once

#include <QObject>

class QSessionManager;

namespace velvane {

class Autosave;
class Documents;
class StartWindow;

/// What happens between the first window and the last. Main thread only.
///
/// After the last document window closes the program goes on with its start window; closing that
/// one ends it.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    /// Borrows both.
    AppDelegate(Documents &documents, Autosave &autosave);
    ~AppDelegate() override;

    static constexpr bool applicationShouldTerminateAfterLastWindowClosed() { return false; }

    StartWindow &startWindow() { return *m_startWindow; }

    /// Keeps all demos before the session ends, or asks about them.
    void sessionWillEnd(QSessionManager &session);
    /// May the session end without loss? The open demos are kept for the next start; when they
    /// cannot be, it asks as quitting does. Exports are cancelled, which closes their movies; the
    /// program then ends by itself.
    bool sessionMayEnd();
    /// Keeps all demos for the next start and ends the program without a question; asks as quitting
    /// does when they cannot be kept.
    void end();
    /// Brings the program to the front: its window used last, the start window, or a new demo when
    /// it has none.
    void comeForward();
    /// Opens demos for another program, in front.
    void open(const QStringList &paths);

Q_SIGNALS:
    /// Nothing is left to be shown or asked.
    void terminated();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void showStartWindow();
    void letForward();

    Documents &m_documents;
    Autosave &m_autosave;
    std::unique_ptr<StartWindow> m_startWindow;
};

} // namespace velvane
