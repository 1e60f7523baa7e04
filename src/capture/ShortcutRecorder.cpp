#include "capture/ShortcutRecorder.h"

#include <QKeyEvent>
#include <QPainter>

namespace velvane {

namespace {

constexpr int leastWidth = 120;
constexpr int horizontalPadding = 10;
constexpr int verticalPadding = 5;
constexpr double radius = 6;
constexpr double fillOpacity = 0.05;
constexpr double recordingFillOpacity = 0.1;
constexpr double borderOpacity = 0.16;

QFont monospaced(QFont font)
{
    font.setFamilies({QStringLiteral("monospace")});
    font.setStyleHint(QFont::Monospace);
    return font;
}

QColor faint(QColor color, double opacity)
{
    color.setAlphaF(float(opacity));
    return color;
}

} // namespace

ShortcutRecorder::ShortcutRecorder(QWidget *parent) : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setText(label());
    connect(this, &QAbstractButton::clicked, this, [this] { m_recording ? stop() : start(); });
}

ShortcutRecorder::~ShortcutRecorder()
{
    if (m_recording)
        releaseKeyboard();
}

void ShortcutRecorder::setDisplay(const QString &display)
{
    m_display = display;
    setText(label());
    updateGeometry();
    update();
}

QString ShortcutRecorder::label() const
{
    if (m_recording)
        return tr("Press keys…");
    return m_display.isEmpty() ? tr("Record shortcut") : m_display;
}

void ShortcutRecorder::start()
{
    if (m_recording)
        return;
    m_recording = true;
    setFocus();
    grabKeyboard();
    setDisplay(m_display);
    Q_EMIT isRecordingChanged();
}

void ShortcutRecorder::stop()
{
    if (!m_recording)
        return;
    m_recording = false;
    releaseKeyboard();
    setDisplay(m_display);
    Q_EMIT isRecordingChanged();
}

bool ShortcutRecorder::event(QEvent *event)
{
    // While recording no shortcut of a menu may take the key, and no Tab the focus.
    if (m_recording && event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (m_recording && event->type() == QEvent::KeyPress) {
        keyPressEvent(static_cast<QKeyEvent *>(event));
        return true;
    }
    if (event->type() == QEvent::WindowDeactivate)
        stop();
    return QAbstractButton::event(event);
}

void ShortcutRecorder::keyPressEvent(QKeyEvent *event)
{
    if (!m_recording) {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            start();
        else
            QAbstractButton::keyPressEvent(event);
        return;
    }
    event->accept();
    const KeyCapture::Outcome outcome = KeyCapture::pressed(*event);
    if (std::holds_alternative<KeyCapture::Ignored>(outcome))
        return;
    stop();
    m_heldKey.hold(event->nativeScanCode());
    if (const auto *combination = std::get_if<KeyCombination>(&outcome))
        Q_EMIT recorded(*combination);
}

void ShortcutRecorder::keyReleaseEvent(QKeyEvent *event)
{
    if (m_recording)
        event->accept();
    else
        QAbstractButton::keyReleaseEvent(event);
}

void ShortcutRecorder::focusOutEvent(QFocusEvent *event)
{
    stop();
    QAbstractButton::focusOutEvent(event);
}

void ShortcutRecorder::hideEvent(QHideEvent *event)
{
    stop();
    QAbstractButton::hideEvent(event);
}

QSize ShortcutRecorder::sizeHint() const
{
    const QFontMetrics metrics(font());
    const int text = std::max(metrics.horizontalAdvance(tr("Record shortcut")),
                              QFontMetrics(monospaced(font())).horizontalAdvance(m_display));
    return {std::max(leastWidth, text + 2 * horizontalPadding),
            metrics.height() + 2 * verticalPadding};
}

void ShortcutRecorder::paintEvent(QPaintEvent *)
{
    const bool showsDisplay = !m_recording && !m_display.isEmpty();
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    const QColor primary = palette().color(group, QPalette::Text);
    const QColor accent = palette().color(QPalette::Link);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(faint(primary, m_recording ? recordingFillOpacity : fillOpacity));
    const bool ring = hasFocus() && !m_recording;
    const double width = ring ? 2 : 1;
    painter.setPen(QPen(m_recording || ring ? accent : faint(primary, borderOpacity), width));
    const double half = width / 2;
    painter.drawRoundedRect(QRectF(rect()).adjusted(half, half, -half, -half), radius, radius);
    painter.setFont(showsDisplay ? monospaced(font()) : font());
    painter.setPen(showsDisplay ? primary : palette().color(group, QPalette::PlaceholderText));
    painter.drawText(rect(), Qt::AlignCenter, label());
}

} // namespace velvane
