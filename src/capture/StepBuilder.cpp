#include "capture/StepBuilder.h"

#include "base/Graphemes.h"
#include "base/KeyCode.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <utility>

namespace velvane {

namespace {

// Points. A way up to here makes no move, and no drag of a press.
constexpr double moveThreshold = 6;
constexpr double dragThreshold = 6;
constexpr Seconds maxPause = 2.5s;
// How long the pointer must rest to be where the user wanted it.
constexpr Seconds dwellTime = 0.35s;

constexpr QSizeF defaultCanvas(1280, 800);
constexpr qsizetype longestText = 4; // UTF-16 units that one key types

constexpr quint64 commandModifiers = Modifier::control | Modifier::option | Modifier::command;

// A way at so many points a second, within bounds.
Seconds travelTime(double distance, double speed, Seconds least, Seconds most)
{
    return std::clamp(Seconds(distance / speed), least, most);
}

// What a key types, without halves of characters; empty when that is no text.
QString typedText(const QString &text)
{
    // Of halves, replacements are made.
    QList<uint> codes = text.left(longestText).toUcs4();
    codes.removeAll(QChar::ReplacementCharacter);
    constexpr uint firstPrintable = 32;
    constexpr uint deleteCharacter = 127;
    if (codes.isEmpty() || codes.first() < firstPrintable || codes.first() == deleteCharacter)
        return {};
    QString typed;
    for (const char32_t code : codes)
        typed += QString::fromUcs4(&code, 1);
    return typed;
}

double inside(double value, double most)
{
    // What is no number counts as 0.
    return value > 0 ? std::min(std::round(value), most) : 0;
}

} // namespace

StepBuilder::StepBuilder(QSizeF canvas, QPointF startPoint, Seconds now)
    : m_canvas(canvas.isNull() ? defaultCanvas : canvas)
    , m_lastAnchor(startPoint)
    , m_currentPos(startPoint)
    , m_lastMoveTime(now)
    , m_lastEventTime(now)
    , m_captureStart(now)
{}

void StepBuilder::setCapturing(bool on, Seconds now)
{
    if (on && !m_capturing)
        m_captureStart = now;
    m_capturing = on;
}

QPointF StepBuilder::onCanvas(QPointF place) const
{
    return {inside(place.x(), std::max(0.0, m_canvas.width())),
            inside(place.y(), std::max(0.0, m_canvas.height()))};
}

void StepBuilder::handle(const InputEvent &event)
{
    using Kind = InputEvent::Kind;
    if (!m_capturing)
        return;
    const QPointF place = onCanvas(event.point);
    switch (event.kind) {
    case Kind::mouseMoved:
    case Kind::leftMouseDragged:
        m_currentPos = place;
        m_lastMoveTime = event.time;
        break;
    case Kind::leftMouseDown:
        flushType(event.time);
        anchorMove(place, event.time);
        m_downPos = place;
        break;
    case Kind::leftMouseUp:
        release(place, event.time);
        break;
    case Kind::rightMouseDown:
        // Not remembered: a drag with the right button is a click where it ends.
        flushType(event.time);
        anchorMove(place, event.time);
        break;
    case Kind::rightMouseUp:
        appendKind(StepKind::rightClick, event.time);
        break;
    case Kind::keyDown:
        handleKey(event);
        break;
    case Kind::keyUp:
        break;
    }
}

// Click or drag?
void StepBuilder::release(QPointF place, Seconds now)
{
    // A press from before the capture counts as one here.
    const QPointF down = std::exchange(m_downPos, {}).value_or(place);
    const double distance = QLineF(down, place).length();
    if (distance <= dragThreshold)
        return appendKind(StepKind::click, now);
    constexpr double dragSpeed = 900;
    Step drag;
    drag.kind = StepKind::move;
    drag.point = place;
    drag.duration = travelTime(distance, dragSpeed, 0.3s, 1.2s);
    appendKind(StepKind::hold, now);
    append(drag, now);
    appendKind(StepKind::release, now);
    m_lastAnchor = place;
}

void StepBuilder::tick(Seconds now)
{
    // Characters that wait stay waiting: the move comes before them.
    if (m_capturing && !m_downPos && now - m_lastMoveTime >= dwellTime)
        anchorMove(m_currentPos, now);
}

void StepBuilder::anchorMove(QPointF to, Seconds now)
{
    const double distance = QLineF(m_lastAnchor, to).length();
    if (!(distance > moveThreshold))
        return;
    constexpr double moveSpeed = 1100;
    Step move;
    move.kind = StepKind::move;
    move.point = to;
    move.duration = travelTime(distance, moveSpeed, 0.35s, 1.5s);
    append(move, now);
    m_lastAnchor = to;
}

void StepBuilder::handleKey(const InputEvent &event)
{
    if (event.keyCode == KeyCode::escape)
        return;
    const bool isCommand = event.modifiers & commandModifiers;
    const QString text = isCommand ? QString() : typedText(event.text);
    if (!text.isEmpty()) {
        // The pause before a text is measured from its first key, not from the step before it.
        if (m_typeBuffer.isEmpty())
            m_lastEventTime = event.time;
        m_typeBuffer += text;
        return;
    }
    flushType(event.time);
    // A key without a place on the keyboard could not be pressed again.
    if (event.keyCode == InputEvent::noKey)
        return;
    // Its text stays empty: the key's number is what is pressed.
    Step shortcut;
    shortcut.kind = StepKind::shortcut;
    shortcut.keyCode = event.keyCode;
    shortcut.modifiers = isCommand ? event.modifiers & (commandModifiers | Modifier::shift) : 0;
    append(shortcut, event.time);
}

void StepBuilder::flushType(Seconds now)
{
    if (m_typeBuffer.isEmpty())
        return;
    Step type;
    type.kind = StepKind::type;
    type.text = std::exchange(m_typeBuffer, {});
    constexpr Seconds eachCharacter = 0.06s;
    const auto count = static_cast<double>(Graphemes::count(type.text));
    type.duration = std::clamp(eachCharacter * count, 0.4s, 4.0s);
    append(type, now);
}

void StepBuilder::activate(const AppInfo &app, Seconds now)
{
    if (app.ours || app.name.isEmpty() || app.name == m_lastAppName)
        return;
    // Remembered before the capture too: who is in front when it begins is not switched to.
    m_lastAppName = app.name;
    if (!m_capturing)
        return;
    flushType(now);
    Step change;
    change.kind = StepKind::switchApp;
    change.text = app.name;
    append(change, now);
}

QList<Step> StepBuilder::finish(Seconds now)
{
    m_capturing = false;
    flushType(now);
    return m_steps;
}

void StepBuilder::appendKind(StepKind kind, Seconds now)
{
    // Buttons act where the cursor is: their own point stays zero.
    Step step;
    step.kind = kind;
    append(step, now);
}

// The only way into the list.
void StepBuilder::append(Step step, Seconds now)
{
    Seconds offset = std::max(now - m_captureStart, 0s);
    if (!m_steps.isEmpty()) {
        const Seconds gap = std::clamp(now - m_lastEventTime, 0s, maxPause);
        constexpr double tenths = 10;
        m_steps.last().pauseAfter = Seconds(std::round(gap.count() * tenths) / tenths);
        offset = std::max(offset, m_steps.constLast().recordedOffset.value_or(0s));
    }
    step.recordedOffset = offset;
    m_steps.append(step);
    m_lastEventTime = now;
}

} // namespace velvane
