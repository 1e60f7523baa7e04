#pragma once

#include "model/Step.h"

#include <QList>

namespace velvane {

/// A numbered marker on the canvas: a move and what happens at its target.
struct MoveGroup {
    Step step;
    /// The move's number in the step list.
    int number = 0;
    /// The steps up to the next move, sections and switches left out.
    QList<Step> actions;
};

/// The demo's markers in order. Steps before the first move are in none.
QList<MoveGroup> moveGroups(const QList<Step> &steps);

/// What an action's capsule says, e.g. "Wait 1.5s".
QString actionText(const Step &step);

} // namespace velvane
