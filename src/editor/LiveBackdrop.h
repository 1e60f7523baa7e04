#pragma once

#include "capture/ScreenStream.h"
#include "editor/BackdropController.h"

namespace velvane {

/// Lets the screen stream run while its pictures are wanted and seen, and hands them to the
/// backdrop. Main thread only.
class LiveBackdrop : public QObject {
    Q_OBJECT
public:
    LiveBackdrop(BackdropController &backdrop, Desktop &desktop, QObject *parent = nullptr);

    ScreenStream &stream() { return m_stream; }

    /// Is the editor on the screen? At first it is not.
    void setOnScreen(bool onScreen);
    /// Is the live screen wanted on the stage and access to it missing?
    bool permissionMissing() const;

public Q_SLOTS:
    /// Starts again after the permission was missing.
    void tryAgain();

Q_SIGNALS:
    void permissionMissingChanged();

private:
    void follow();
    void tellPermission();

    BackdropController &m_backdrop;
    ScreenStream m_stream;
    bool m_isOnScreen = false;
    bool m_wasMissing = false;
};

} // namespace velvane
