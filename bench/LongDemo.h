#pragma once

#include "model/Step.h"

#include <QList>

namespace velvane {

/// A demo of so many steps of all kinds, every twentieth one a section.
inline QList<Step> longDemo(qint64 count)
{
    constexpr std::size_t kinds = allStepKinds.size() - 1; // without sections
    QList<Step> steps;
    steps.reserve(count);
    for (qint64 i = 0; i < count; ++i) {
        const StepKind kind =
            i % 20 == 0 ? StepKind::section : allStepKinds[static_cast<std::size_t>(i) % kinds];
        Step step = Step::withDefaults(kind, {1280, 800});
        step.point = {static_cast<double>(i * 37 % 1280), static_cast<double>(i * 91 % 800)};
        step.text = QStringLiteral("Step %1").arg(i);
        steps << step;
    }
    return steps;
}

} // namespace velvane
