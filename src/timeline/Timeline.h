#pragma once

#include "model/Snapshot.h"
#include "timeline/FrameState.h"
#include "timeline/ResolvedStep.h"

namespace velvane {

/// A demo's timed segments, contiguous and in order. A value: readable on any thread.
class Timeline {
public:
    Timeline() = default;
    explicit Timeline(const Snapshot &snapshot);

    const QList<ResolvedStep> &steps() const { return m_steps; }
    /// End of the last segment; 0 when there are none. Finite, however long the steps are.
    Seconds total() const { return m_total; }
    QPointF startPoint() const { return m_startPoint; }

    /// The end of the last of these steps, without working out what they show.
    static Seconds total(const QList<Step> &steps);
    /// How long a step takes, its pause included; 0 for a section.
    static Seconds length(const Step &step);

    /// What the instant shows; `at` is clamped into the demo.
    FrameState state(Seconds at) const;

    /// The moment of the recorded movie that belongs to `at`; absent for steps that were not
    /// recorded. Each segment plays the movie from its own recorded moment to that of the next.
    std::optional<Seconds> videoTime(Seconds at, Seconds videoDuration) const;

    /// Index of the segment shown at `at` (clamped); absent when there are no segments.
    std::optional<qsizetype> segmentIndex(Seconds at) const;

private:
    Seconds clamped(Seconds at) const;

    QList<ResolvedStep> m_steps;
    Seconds m_total{0};
    QPointF m_startPoint;
};

} // namespace velvane
