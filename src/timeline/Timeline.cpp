#include "timeline/Timeline.h"

#include "base/Easing.h"
#include "base/Graphemes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace velvane {

namespace {

// Even an instantaneous step takes this long, so that every instant has one segment.
constexpr Seconds minimumLength = 0.0001s;

// A sum of absurd lengths stays a number.
Seconds sum(Seconds a, Seconds b)
{
    return std::min(a + b, Seconds::max());
}

bool heldAfter(StepKind kind, bool before)
{
    switch (kind) {
    case StepKind::hold:
        return true;
    case StepKind::release:
        return false;
    default:
        return before;
    }
}

Seconds actionLength(const Step &step)
{
    return hasDuration(step.kind) ? std::max(step.duration, minimumLength) : 0s;
}

double progress(Seconds local, Seconds span)
{
    return span > 0s ? std::clamp(local / span, 0.0, 1.0) : 1.0;
}

double between(double from, double to, double part)
{
    const double way = to - from;
    // It may be longer than any number is.
    return std::isfinite(way) ? from + way * part : from * (1 - part) + to * part;
}

QPointF between(QPointF from, QPointF to, double part)
{
    return {between(from.x(), to.x(), part), between(from.y(), to.y(), part)};
}

std::optional<QString> typedSoFar(const QString &text, double action)
{
    const auto typed = std::round(action * static_cast<double>(Graphemes::count(text)));
    const QString prefix = Graphemes::prefix(text, static_cast<qsizetype>(typed));
    return prefix.isEmpty() ? std::nullopt : std::optional(prefix);
}

void show(const ResolvedStep &segment, double action, double whole, FrameState &state)
{
    const Step &step = segment.step;
    switch (step.kind) {
    case StepKind::move:
        state.cursor = between(segment.startPos, segment.endPos, easeInOut(action));
        break;
    case StepKind::click:
    case StepKind::rightClick:
        state.ripple = whole;
        state.press = std::sin(std::numbers::pi * whole);
        break;
    case StepKind::hold:
        state.press = std::min(4 * whole, 1.0);
        state.held = true;
        break;
    case StepKind::release:
        state.press = std::max(1 - 4 * whole, 0.0);
        state.held = state.press > 0.05;
        break;
    case StepKind::type:
        state.caption = typedSoFar(step.text, action);
        break;
    case StepKind::shortcut:
        if (const QString keys = step.shortcutDisplay(); !keys.isEmpty())
            state.caption = keys;
        break;
    case StepKind::switchApp:
        // Not translated: frames show the same in every language.
        state.caption = u"→ " + (step.text.isEmpty() ? QStringLiteral("app") : step.text);
        break;
    case StepKind::wait:
    case StepKind::section:
        break;
    }
}

} // namespace

Timeline::Timeline(const Snapshot &snapshot) : m_startPoint(snapshot.startPoint)
{
    m_steps.reserve(snapshot.steps.size());
    QPointF position = snapshot.startPoint;
    bool held = false;
    for (const Step &step : snapshot.steps) {
        if (step.kind == StepKind::section)
            continue;
        const Seconds end = sum(m_total, length(step));
        const QPointF target = step.kind == StepKind::move ? step.point : position;
        m_steps.append({.step = step,
                        .start = m_total,
                        .end = end,
                        .actionDuration = actionLength(step),
                        .startPos = position,
                        .endPos = target,
                        .heldEntering = held});
        m_total = end;
        position = target;
        held = heldAfter(step.kind, held);
    }
}

Seconds Timeline::total(const QList<Step> &steps)
{
    Seconds end{0};
    for (const Step &step : steps)
        end = sum(end, length(step));
    return end;
}

Seconds Timeline::length(const Step &step)
{
    if (step.kind == StepKind::section)
        return 0s;
    const Seconds action = actionLength(step);
    return std::max(sum(action, std::max(step.pauseAfter, 0s)), minimumLength);
}

FrameState Timeline::state(Seconds at) const
{
    FrameState state;
    const auto index = segmentIndex(at);
    if (!index) {
        state.cursor = m_startPoint;
        return state;
    }
    const ResolvedStep &segment = m_steps[*index];
    const Seconds local = clamped(at) - segment.start;
    state.cursor = segment.startPos;
    state.press = segment.heldEntering ? 1 : 0;
    state.held = segment.heldEntering;
    show(segment, progress(local, segment.actionDuration),
         progress(local, segment.end - segment.start), state);
    return state;
}

std::optional<Seconds> Timeline::videoTime(Seconds at, Seconds videoDuration) const
{
    const auto index = segmentIndex(at);
    if (!index)
        return {};
    const ResolvedStep &segment = m_steps[*index];
    const auto offset = segment.step.recordedOffset;
    if (!offset)
        return {};
    const bool isLast = *index + 1 == m_steps.size();
    const Seconds next =
        isLast ? videoDuration : m_steps[*index + 1].step.recordedOffset.value_or(videoDuration);
    const Seconds gap = std::clamp(next - *offset, Seconds(0), Seconds::max());
    return *offset + gap * progress(clamped(at) - segment.start, segment.end - segment.start);
}

std::optional<qsizetype> Timeline::segmentIndex(Seconds at) const
{
    if (m_steps.isEmpty())
        return {};
    // Ends ascend: the first segment that ends later than `at` also starts no later.
    const auto found = std::upper_bound(
        m_steps.begin(), m_steps.end(), clamped(at),
        [](Seconds time, const ResolvedStep &segment) { return time < segment.end; });
    return std::min<qsizetype>(found - m_steps.begin(), m_steps.size() - 1);
}

Seconds Timeline::clamped(Seconds at) const
{
    return std::max(Seconds(0), std::min(at, m_total));
}

} // namespace velvane
