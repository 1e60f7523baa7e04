#include "editor/LiveBackdrop.h"

#include <utility>

namespace velvane {

LiveBackdrop::LiveBackdrop(BackdropController &backdrop, Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_backdrop(backdrop)
    , m_stream(desktop)
{
    connect(&m_stream.live(), &LiveFrame::imageChanged, this, [this](const QRegion &changed) {
        const LiveFrame &live = m_stream.live();
        m_backdrop.updateLiveFrame(live.image(), live.size(), changed);
    });
    connect(&m_stream, &ScreenStream::permissionDeniedChanged, this, &LiveBackdrop::tellPermission);
    connect(&backdrop, &BackdropController::frozenChanged, this, &LiveBackdrop::tellPermission);
    connect(&backdrop, &BackdropController::showLiveChanged, this, &LiveBackdrop::follow);
}

void LiveBackdrop::setOnScreen(bool onScreen)
{
    m_isOnScreen = onScreen;
    follow();
}

void LiveBackdrop::follow()
{
    const bool wanted = m_isOnScreen && m_backdrop.showLive();
    if (wanted && !m_stream.wantRunning())
        m_stream.start();
    else if (!wanted && m_stream.wantRunning())
        m_stream.stop();
    tellPermission();
}

void LiveBackdrop::tryAgain()
{
    if (m_stream.wantRunning())
        m_stream.start();
}

bool LiveBackdrop::permissionMissing() const
{
    return m_backdrop.useLive() && m_stream.permissionDenied();
}

void LiveBackdrop::tellPermission()
{
    if (std::exchange(m_wasMissing, permissionMissing()) != permissionMissing())
        Q_EMIT permissionMissingChanged();
}

} // namespace velvane
