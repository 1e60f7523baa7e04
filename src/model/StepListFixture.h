#pragma once

#include "model/Project.h"
#include "model/StepList.h"
#include "support/Print.h"

#include <gtest/gtest.h>

namespace velvane {

inline Step named(const QString &name, StepKind kind, bool collapsed = false)
{
    Step step;
    step.kind = kind;
    step.text = name;
    step.collapsed = collapsed;
    return step;
}

// A, section S (collapsed), B, C, section T (expanded), D
class StepListEdit : public testing::Test {
protected:
    StepListEdit()
    {
        project.setSteps({named("A", StepKind::click), named("S", StepKind::section, true),
                          named("B", StepKind::move), named("C", StepKind::wait),
                          named("T", StepKind::section), named("D", StepKind::switchApp)});
        project.setUndoManager(&undo);
    }

    QUuid id(const QString &name) const
    {
        for (const Step &step : project.steps()) {
            if (step.text == name)
                return step.id;
        }
        return {};
    }

    QString order() const
    {
        QString names;
        for (const Step &step : project.steps())
            names += step.text;
        return names;
    }

    QString selected() const
    {
        const auto index = StepList::selectedIndex(project);
        return index ? project.steps()[*index].text : QString();
    }

    bool isCollapsed(const QString &name) const
    {
        return project.steps()[*StepList::index(project.steps(), id(name))].collapsed;
    }

    Project project;
    QUndoStack undo;
};

} // namespace velvane
