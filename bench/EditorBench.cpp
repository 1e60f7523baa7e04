#include "LongDemo.h"
#include "editor/AppCatalog.h"
#include "editor/ContentView.h"
#include "editor/StepListPane.h"
#include "model/StepList.h"
#include "platform/simulated/SimulatedDesktop.h"

#include <QApplication>
#include <QScrollBar>
#include <QSettings>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>

namespace velvane {

namespace {

// The whole editor, painted without a display. Each turn lasts until what it changed is painted:
// what is laid out when events are processed is painted when they are processed again.
struct Window {
    explicit Window(qint64 count)
    {
        undo.setUndoLimit(20);
        project.setSteps(longDemo(count));
        project.setUndoManager(&undo);
        view = std::make_unique<ContentView>(project, desktop, settings, apps);
        view->resize(1440, 900);
        view->show();
        project.setSelection(project.steps()[count / 2].id);
        settle();
    }

    static void settle()
    {
        for (int turn = 0; turn < 3; ++turn)
            QCoreApplication::processEvents();
    }

    SimulatedDesktop desktop;
    QTemporaryDir folder;
    QSettings stored{folder.filePath(QStringLiteral("settings.ini")), QSettings::IniFormat};
    RunSettings settings{stored};
    AppCatalog apps{desktop.apps()};
    QUndoStack undo;
    Project project;
    std::unique_ptr<ContentView> view;
};

void openWindow(benchmark::State &state)
{
    for (auto _ : state)
        const Window window(state.range(0));
}

void selectOne(benchmark::State &state)
{
    Window window(state.range(0));
    qsizetype next = 0;
    for (auto _ : state) {
        next = (next + 7919) % state.range(0);
        window.project.setSelection(window.project.steps()[next].id);
        window.settle();
    }
}

void selectAll(benchmark::State &state)
{
    Window window(state.range(0));
    for (auto _ : state) {
        window.view->selection().selectAll();
        window.settle();
        state.PauseTiming();
        window.view->selection().select({});
        window.settle();
        state.ResumeTiming();
    }
}

// Everything is selected before, and the copies after.
void duplicateAll(benchmark::State &state)
{
    Window window(state.range(0));
    for (auto _ : state) {
        state.PauseTiming();
        window.view->selection().selectAll();
        window.settle();
        state.ResumeTiming();
        window.view->clipboard().duplicate();
        window.settle();
        state.PauseTiming();
        window.view->fieldEditing().undo();
        window.settle();
        state.ResumeTiming();
    }
}

// While everything is selected.
void moveSection(benchmark::State &state)
{
    Window window(state.range(0));
    window.view->selection().selectAll();
    const qsizetype last = window.view->stepListPane().model().rowCount();
    for (auto _ : state) {
        StepList::moveVisible(window.project, {0}, last);
        window.settle();
        state.PauseTiming();
        window.view->fieldEditing().undo();
        window.settle();
        state.ResumeTiming();
    }
}

void scroll(benchmark::State &state)
{
    Window window(state.range(0));
    QScrollBar *bar = window.view->stepListPane().view().verticalScrollBar();
    for (auto _ : state) {
        bar->setValue((bar->value() + 40) % std::max(bar->maximum(), 1));
        window.settle();
    }
}

void type(benchmark::State &state)
{
    Window window(state.range(0));
    QString text;
    for (auto _ : state) {
        text = text.size() > 40 ? QString() : text + u'x';
        window.view->fieldEditing().setText(text);
        window.settle();
    }
}

void addAndUndo(benchmark::State &state)
{
    Window window(state.range(0));
    for (auto _ : state) {
        StepList::addStep(window.project, StepKind::click);
        window.settle();
        window.view->fieldEditing().undo();
        window.settle();
    }
}

void fold(benchmark::State &state)
{
    Window window(state.range(0));
    const QUuid section = window.project.steps()[state.range(0) / 2].id;
    for (auto _ : state) {
        StepList::toggleCollapse(window.project, section);
        window.settle();
    }
}

// A row to the end of the demo and back: the numbers of all rows between change.
void moveStep(benchmark::State &state)
{
    Window window(state.range(0));
    const qsizetype last = window.view->stepListPane().model().rowCount() - 1;
    const qsizetype middle = last / 2;
    for (auto _ : state) {
        StepList::moveVisible(window.project, {middle}, last + 1);
        window.settle();
        StepList::moveVisible(window.project, {last}, middle);
        window.settle();
    }
}

void nudge(benchmark::State &state)
{
    Window window(state.range(0));
    const auto isMove = [](const Step &step) { return step.kind == StepKind::move; };
    const QList<Step> &steps = window.project.steps();
    const auto move = std::find_if(steps.begin() + state.range(0) / 2, steps.end(), isMove);
    window.project.setSelection(move->id);
    bool right = false;
    for (auto _ : state) {
        right = !right;
        window.view->canvas().arrowNudge(right ? Qt::Key_Right : Qt::Key_Left, true);
        window.settle();
    }
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(40)->Arg(10'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(openWindow)->Apply(sizes);
BENCHMARK(selectOne)->Apply(sizes);
BENCHMARK(selectAll)->Apply(sizes);
BENCHMARK(duplicateAll)->Apply(sizes);
BENCHMARK(moveSection)->Apply(sizes);
BENCHMARK(scroll)->Apply(sizes);
BENCHMARK(type)->Apply(sizes);
BENCHMARK(addAndUndo)->Apply(sizes);
BENCHMARK(fold)->Apply(sizes);
BENCHMARK(moveStep)->Apply(sizes);
BENCHMARK(nudge)->Apply(sizes);

} // namespace

} // namespace velvane

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
