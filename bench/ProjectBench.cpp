#include "model/Project.h"

#include <benchmark/benchmark.h>

#include <malloc.h>

namespace velvane {

namespace {

// One undoable change of one step in a long demo; the counter is what the undo entry keeps.
void edit(benchmark::State &state)
{
    const auto count = state.range(0);
    Project project;
    QUndoStack undo;
    project.setUndoManager(&undo);
    project.setSteps(QList<Step>(count, Step{.kind = StepKind::type, .text = "text"}));
    qsizetype next = 0;
    std::size_t held = 0;
    for (auto _ : state) {
        const std::size_t before = mallinfo2().uordblks + mallinfo2().hblkhd;
        project.edit("Edit Text", [&] {
            QList<Step> steps = project.steps();
            steps[next++ % count].pauseAfter += 1s;
            project.setSteps(steps);
        });
        held += mallinfo2().uordblks + mallinfo2().hblkhd - before;
        state.PauseTiming();
        if (undo.count() > 50)
            undo.clear();
        state.ResumeTiming();
    }
    state.counters["bytes"] =
        benchmark::Counter(static_cast<double>(held) / static_cast<double>(state.iterations()));
}

BENCHMARK(edit)->Arg(1'000)->Arg(10'000)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velvane
