#include "editor/StepEdits.h"

#include <QCoreApplication>

namespace velvane {

namespace {

void editStep(Project &project, qsizetype index, StepKind kind, const QString &name,
              const std::function<void(Step &)> &change)
{
    if (index < 0 || index >= project.steps().size() || project.steps()[index].kind != kind)
        return;
    project.edit(name, [&] {
        QList<Step> steps = project.steps();
        change(steps[index]);
        project.setSteps(steps);
    });
}

} // namespace

void StepEdits::setCenterWindow(Project &project, qsizetype index, bool center)
{
    editStep(project, index, StepKind::switchApp,
             QCoreApplication::translate("StepEdits", "Center Window"),
             [center](Step &step) { step.centerWindow = center; });
}

void StepEdits::setShortcut(Project &project, qsizetype index, quint16 keyCode, quint64 modifiers,
                            const QString &characters)
{
    editStep(project, index, StepKind::shortcut,
             QCoreApplication::translate("StepEdits", "Set Shortcut"), [&](Step &step) {
                 step.keyCode = keyCode;
                 step.modifiers = modifiers;
                 step.text = characters;
             });
}

} // namespace velvane
