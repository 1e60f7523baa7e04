#pragma once

#include "model/Step.h"

#include <QList>
#include <QSet>
#include <QStringList>

#include <optional>

namespace velvane {

class Project;

/// The rows of a demo's step list: which are shown, how they are numbered, and how they are edited.
///
/// A row is a place in the visible steps, an index one in all steps. Main thread where a Project is
/// taken.
namespace StepList {

/// For each step: is its row shown? Sections always are; steps of a collapsed section are not.
QList<bool> visibility(const QList<Step> &steps);

/// For each step its number, counted from 1 over all steps but sections, hidden ones too.
QList<std::optional<int>> displayNumbers(const QList<Step> &steps);

/// The steps whose rows are shown, in order.
QList<Step> visibleSteps(const QList<Step> &steps);

/// The number beside one step; none for a section or an unknown step.
std::optional<int> displayNumber(const QList<Step> &steps, const QUuid &of);

/// Where the step with this id stands.
std::optional<qsizetype> index(const QList<Step> &steps, const QUuid &id);

/// Where the selected step stands; none when nothing that exists is selected.
std::optional<qsizetype> selectedIndex(const Project &project);

/// The selected step when it is a move: the one whose target the canvas highlights.
std::optional<QUuid> selectedMoveID(const Project &project);

/// The applications that the demo switches to: trimmed, each once, in order of first appearance.
QStringList distinctSwitchApps(const QList<Step> &steps);

/// Are there two of them or more? Quicker than counting.
bool hasSeveralSwitchApps(const QList<Step> &steps);

/// Puts a new step after the selected one, else at the end; shows and selects it.
void addStep(Project &project, StepKind kind);

/// Removes one step; a section's steps stay. A selection on it moves to its successor, or to the
/// new last step.
void deleteStep(Project &project, const QUuid &id);

/// Removes these steps in one edit, or the selected one when there are none, and selects the step
/// that then stands where the first of them stood, else the last one. The caller empties its set.
/// The edit is named "Delete Step" unless a name is given.
void deleteSelected(Project &project, const QSet<QUuid> &selectedIDs, const QString &name = {});

/// Moves the step of the first (lowest) source row before the destination row's step, or to the end
/// when `to` is past the rows; a section takes its steps along. Nothing happens when the source is
/// no row or the destination lies within what is moved.
void moveVisible(Project &project, const QList<qsizetype> &from, qsizetype to);

/// Folds or unfolds a section. View state: no undo entry.
void toggleCollapse(Project &project, const QUuid &id);

/// Unfolds the nearest section before the step. View state: no undo entry.
void uncollapseSectionContaining(Project &project, const QUuid &id);

/// Names the application that the switch step at this index brings to the front. Nothing happens
/// when the step there is of another kind.
void setApp(Project &project, qsizetype index, const QString &name);

/// The value after a nudge: on the grid of tenths, not below `min`. In seconds.
double bump(double value, double by, double min);

/// The coordinate after a nudge: a whole number, not negative.
double bumpCoord(double value, double by);

} // namespace StepList

} // namespace velvane
