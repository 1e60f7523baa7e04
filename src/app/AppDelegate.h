#pragma once

#include <QObject>

class QSessionManager;

namespace velvane {

class Documents;
class StartWindow;

/// What happens between the first window and the last. Main thread only.
///
/// After the last document window closes the program goes on with its start window; closing that
/// one ends it.
class AppDelegate : public QObject {
    Q_OBJECT
public:
    /// Borrows the documents.
    explicit AppDelegate(Documents &documents);
    ~AppDelegate() override;

    static constexpr bool applicationShouldTerminateAfterLastWindowClosed() { return false; }

    StartWindow &startWindow() { return *m_startWindow; }

    /// Asks, before the session ends, about demos that are not saved.
    void sessionWillEnd(QSessionManager &session);
    /// May the session end without loss? Else asks as quitting does. Exports are cancelled, which
    /// closes their movies; the program then ends by itself.
    bool sessionMayEnd();

Q_SIGNALS:
    /// Nothing is left to be shown or asked.
    void terminated();

private:
    void showStartWindow();

    Documents &m_documents;
    std::unique_ptr<StartWindow> m_startWindow;
};

} // namespace velvane
