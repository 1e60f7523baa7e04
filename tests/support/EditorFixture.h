#pragma once

#include "editor/AppCatalog.h"
#include "editor/ContentView.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/Widgets.h"

#include <QSettings>
#include <QTemporaryDir>
#include <QUndoStack>

#include <gtest/gtest.h>

namespace velvane {

/// An editor over a demo of these steps, shown without a display, with undo.
struct EditorFixture : testing::Test {
    EditorFixture() { project.setUndoManager(&undo); }

    // What still waits when the editor is gone ends now.
    ~EditorFixture() override
    {
        view.reset();
        desktop.clock().advance(1s);
        QCoreApplication::processEvents();
    }

    ContentView &open(const QList<Step> &steps, QSize size = {1440, 900})
    {
        project.setSteps(steps);
        view = std::make_unique<ContentView>(project, desktop, settings, apps);
        view->resize(size);
        view->show();
        QCoreApplication::processEvents();
        return *view;
    }

    /// An editor whose one step, of that kind, is selected.
    ContentView &openWith(StepKind kind)
    {
        const Step step = Step::withDefaults(kind, project.canvasSize());
        open({step});
        project.setSelection(step.id);
        return *view;
    }

    const Step &step(int index = 0) const { return project.steps().at(index); }

    SimulatedDesktop desktop;
    QTemporaryDir folder;
    QSettings stored{folder.filePath("settings.ini"), QSettings::IniFormat};
    RunSettings settings{stored};
    AppCatalog apps{desktop.apps()};
    QUndoStack undo;
    Project project;
    std::unique_ptr<ContentView> view;
};

inline Step stepOf(StepKind kind, const QString &text = {})
{
    Step step;
    step.kind = kind;
    step.text = text;
    return step;
}

} // namespace velvane
