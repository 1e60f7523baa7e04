#include "capture/StatusPanel.h"

#include <QBitmap>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace velvane {

namespace {

// Logical pixels.
constexpr int fromTop = 40;
constexpr int textInset = 16;
constexpr int textSize = 14;
constexpr float darkness = 0.82F;

// A window that another program brings forward comes over panels that the window manager does not
// know: how soon they are above it again.
constexpr auto keepAboveInterval = std::chrono::milliseconds(200);

QScreen *screenOf(const Display &display)
{
    for (QScreen *screen : QGuiApplication::screens()) {
        if (screen->name() == display.name)
            return screen;
    }
    return QGuiApplication::primaryScreen();
}

// Every pixel that the rounded rectangle touches: with a compositor its edge is smooth, without
// one, when nothing is translucent, its corners are still round.
QBitmap shapeOf(const QRect &rect, double radius)
{
    QImage image(rect.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(rect, radius, radius);
    painter.end();
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::transform(line, line + image.width(), line,
                       [](QRgb pixel) { return qAlpha(pixel) > 0 ? qRgba(0, 0, 0, 255) : 0; });
    }
    return QBitmap::fromImage(image.createAlphaMask());
}

} // namespace

StatusPanel::StatusPanel(Screens &screens, QSize size, double radius, QWidget *parent)
    // A window manager would put a frame around it, which takes clicks.
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
                          | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus
                          | Qt::BypassWindowManagerHint)
    , m_screens(screens)
    , m_radius(radius)
{
    setFixedSize(size);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_QuitOnClose, false);
    setMask(shapeOf(rect(), m_radius));
    connect(&m_keepAbove, &QTimer::timeout, this, &QWidget::raise);
}

void StatusPanel::showText(const QString &text)
{
    m_text = text;
    setWindowTitle(text);
    setAccessibleName(text);
    update();
    if (isVisible())
        return;
    placeOnMainDisplay();
    show();
    raise();
    m_keepAbove.start(keepAboveInterval);
}

QRect StatusPanel::place(const Display &display, const QRect &screen, QSize size)
{
    const double scale = screen.width() > 0 ? display.frame.width() / screen.width() : 1;
    const QPointF top(display.visible.center().x(), display.visible.top());
    const QPointF inside = (top - display.frame.topLeft()) / scale;
    const QPoint topLeft =
        screen.topLeft() + QPointF(inside.x() - size.width() / 2.0, inside.y() + fromTop).toPoint();
    return {topLeft, size};
}

void StatusPanel::placeOnMainDisplay()
{
    const std::optional<Display> display = m_screens.mainDisplay();
    const QScreen *screen = display ? screenOf(*display) : nullptr;
    if (screen)
        move(place(*display, screen->geometry(), size()).topLeft());
}

void StatusPanel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor::fromRgbF(0, 0, 0, darkness));
    painter.drawRoundedRect(rect(), m_radius, m_radius);
    QFont font = QGuiApplication::font();
    font.setPixelSize(textSize);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(Qt::white);
    const QRect line = rect().adjusted(textInset, 0, -textInset, 0);
    painter.drawText(line, Qt::AlignCenter,
                     painter.fontMetrics().elidedText(m_text, Qt::ElideRight, line.width()));
}

} // namespace velvane
