#include "timeline/Timeline.h"

#include <benchmark/benchmark.h>

#include <random>

namespace velvane {

namespace {

Snapshot demoOf(int count)
{
    Snapshot snap{.steps = {}, .startPoint = {0, 0}, .canvasSize = {1280, 800}};
    for (int i = 0; i < count; ++i) {
        Step step = Step::withDefaults(allStepKinds.at(i % allStepKinds.size()), snap.canvasSize);
        step.point = {i * 37 % 1280 * 1.0, i * 91 % 800 * 1.0};
        snap.steps << step;
    }
    return snap;
}

void resolve(benchmark::State &state)
{
    const Snapshot snap = demoOf(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(Timeline(snap).total());
}

// Random moments of a long demo of moves: the search, without a caption's text.
void sample(benchmark::State &state)
{
    Snapshot snap = demoOf(100'000);
    for (Step &step : snap.steps)
        step.kind = StepKind::move;
    const Timeline timeline(snap);
    std::mt19937 random(1);
    std::uniform_real_distribution<> moment(0, timeline.total().count());
    std::vector<Seconds> moments(4096);
    for (Seconds &at : moments)
        at = Seconds(moment(random));
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(timeline.state(moments[next++ % moments.size()]));
}

void sampleTyping(benchmark::State &state)
{
    const QString text(state.range(0), 'x');
    const Timeline timeline({.steps = {Step{.kind = StepKind::type, .text = text}},
                             .startPoint = {},
                             .canvasSize = {1280, 800}});
    for (auto _ : state)
        benchmark::DoNotOptimize(timeline.state(0.7s));
}

BENCHMARK(resolve)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);
BENCHMARK(sample);
BENCHMARK(sampleTyping)->Arg(10)->Arg(100);

} // namespace

} // namespace velvane
