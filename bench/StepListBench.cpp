#include "LongDemo.h"
#include "editor/FieldEditing.h"
#include "editor/PreviewTimeline.h"
#include "editor/Selection.h"
#include "editor/StepListModel.h"
#include "model/StepList.h"

#include <QItemSelectionModel>

#include <benchmark/benchmark.h>

namespace velvane {

namespace {

constexpr int sectionLength = 20;

// An editor without its widgets: all that an edit sets in motion.
struct Editor {
    explicit Editor(qint64 count)
    {
        undo.setUndoLimit(20);
        project.setSteps(longDemo(count));
        project.setUndoManager(&undo);
        project.setSelection(project.steps()[count / 2].id);
    }

    Project project;
    QUndoStack undo;
    Selection selection{project};
    FieldEditing fields{project};
    StepListModel model{project};
    QItemSelectionModel rows{&model};
    Playback playback;
    PreviewTimeline timeline{project, playback};
};

void open(benchmark::State &state)
{
    Project project;
    project.setSteps(longDemo(state.range(0)));
    for (auto _ : state) {
        const StepListModel model(project);
        Playback playback;
        const PreviewTimeline timeline(project, playback);
        benchmark::DoNotOptimize(model.rowCount());
    }
}

void selectOne(benchmark::State &state)
{
    Editor editor(state.range(0));
    qsizetype next = 0;
    for (auto _ : state) {
        next = (next + 7919) % state.range(0);
        editor.selection.select(editor.project.steps()[next].id);
        editor.rows.select(editor.model.rowsOf(editor.selection.targets()),
                           QItemSelectionModel::ClearAndSelect);
    }
}

void selectAll(benchmark::State &state)
{
    Editor editor(state.range(0));
    for (auto _ : state) {
        editor.selection.selectAll();
        editor.rows.select(editor.model.rowsOf(editor.selection.targets()),
                           QItemSelectionModel::ClearAndSelect);
        editor.selection.select({});
    }
}

void type(benchmark::State &state)
{
    Editor editor(state.range(0));
    QString text;
    for (auto _ : state) {
        text = text.size() > 40 ? QString() : text + u'x';
        editor.fields.setText(text);
    }
    editor.fields.commitOpenGesture();
}

void undoAndRedo(benchmark::State &state)
{
    Editor editor(state.range(0));
    StepList::addStep(editor.project, StepKind::click);
    for (auto _ : state) {
        editor.fields.undo();
        editor.fields.redo();
    }
}

void addAndDelete(benchmark::State &state)
{
    Editor editor(state.range(0));
    for (auto _ : state) {
        StepList::addStep(editor.project, StepKind::click);
        editor.selection.deleteSelected();
    }
}

void dragSection(benchmark::State &state)
{
    Editor editor(state.range(0));
    const qsizetype middle = state.range(0) / 2;
    for (auto _ : state) {
        StepList::moveVisible(editor.project, {middle}, 0);
        StepList::moveVisible(editor.project, {0}, middle + sectionLength);
    }
}

void fold(benchmark::State &state)
{
    Editor editor(state.range(0));
    const QUuid section = editor.project.steps()[state.range(0) / 2].id;
    for (auto _ : state)
        StepList::toggleCollapse(editor.project, section);
}

void deleteEverySecond(benchmark::State &state)
{
    Editor editor(state.range(0));
    QSet<QUuid> ids;
    for (qsizetype i = 0; i < editor.project.steps().size(); i += 2)
        ids << editor.project.steps()[i].id;
    for (auto _ : state) {
        editor.selection.setSelectedIDs(ids);
        editor.selection.deleteSelected();
        editor.fields.undo();
    }
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(open)->Apply(sizes);
BENCHMARK(selectOne)->Apply(sizes);
BENCHMARK(selectAll)->Apply(sizes);
BENCHMARK(type)->Apply(sizes);
BENCHMARK(undoAndRedo)->Apply(sizes);
BENCHMARK(addAndDelete)->Apply(sizes);
BENCHMARK(dragSection)->Apply(sizes);
BENCHMARK(fold)->Apply(sizes);
BENCHMARK(deleteEverySecond)->Apply(sizes);

} // namespace

} // namespace velvane
