#include "capture/LocationPicker.h"

#include "base/KeyCode.h"

#include <utility>

namespace velvane {

namespace {

constexpr auto interval = std::chrono::seconds(1);
constexpr QSize panelSize(500, 56);
constexpr double panelRadius = 14;

} // namespace

LocationPicker::LocationPicker(Desktop &desktop, QObject *parent)
    : QObject(parent)
    , m_desktop(desktop)
{
    m_timer.setTimerType(Qt::PreciseTimer);
    m_timer.setInterval(interval);
    connect(&m_timer, &QTimer::timeout, this, &LocationPicker::tick);
}

LocationPicker::~LocationPicker()
{
    cleanup();
}

void LocationPicker::pick(int seconds, std::function<void(QPointF)> onCapture)
{
    cleanup();
    ++m_number;
    m_onCapture = std::move(onCapture);
    m_remaining = seconds;
    showPanel();
    update();
    m_timer.start();
    watchEscape();
}

void LocationPicker::showPanel()
{
    m_panel = std::make_unique<StatusPanel>(m_desktop.screens(), panelSize, panelRadius);
}

void LocationPicker::watchEscape()
{
    // Where it cannot be watched for, the countdown still ends by itself.
    m_escMonitor = m_desktop.keys().watch(KeyCode::escape, [this, number = m_number] {
        const auto end = [this, number] {
            if (number == m_number)
                cleanup();
        };
        QMetaObject::invokeMethod(this, end, Qt::QueuedConnection);
    });
}

void LocationPicker::tick()
{
    if (!isPicking())
        return;
    if (--m_remaining < 1)
        capture();
    else
        update();
}

void LocationPicker::update()
{
    m_panel->showText(tr("Position the cursor over the target — grabbing in %1s · Esc to cancel")
                          .arg(m_remaining));
}

void LocationPicker::capture()
{
    const std::optional<QPointF> place = m_desktop.screens().pointer();
    const auto onCapture = std::exchange(m_onCapture, nullptr);
    cleanup();
    if (place && onCapture)
        onCapture(*place);
}

void LocationPicker::cleanup()
{
    m_timer.stop();
    m_escMonitor.reset();
    m_onCapture = nullptr;
    m_panel.reset();
}

} // namespace velvane
