#include "render/FramePainter.h"

#include <QGuiApplication>

#include <benchmark/benchmark.h>

namespace velvane {

namespace {

QImage landscape(QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, qRgb(x & 255, (x ^ y) & 255, (3 * y) & 255));
    return image;
}

// Canvas of the benchmark's two arguments, with a picture of that size.
Snapshot demo(const benchmark::State &run)
{
    const QSize size(static_cast<int>(run.range(0)), static_cast<int>(run.range(1)));
    return {.steps = {},
            .startPoint = {},
            .canvasSize = size,
            .fps = 60,
            .background = landscape(size)};
}

QPointF gliding(int frame)
{
    return {100 + 2.3 * (frame % 300), 100 + 1.7 * (frame % 300)};
}

void fullFrame(benchmark::State &run)
{
    const Snapshot snap = demo(run);
    int frame = 0;
    for (auto _ : run)
        benchmark::DoNotOptimize(FrameRenderer::image(snap, {.cursor = gliding(frame++)}));
}

void movingCursor(benchmark::State &run)
{
    FramePainter painter(demo(run));
    int frame = 0;
    for (auto _ : run)
        benchmark::DoNotOptimize(painter.paint({.cursor = gliding(frame++)}));
}

void ripple(benchmark::State &run)
{
    FramePainter painter(demo(run));
    int frame = 0;
    for (auto _ : run)
        benchmark::DoNotOptimize(
            painter.paint({.cursor = {400, 300}, .ripple = (frame++ % 60) / 60.0}));
}

void typedCaption(benchmark::State &run)
{
    FramePainter painter(demo(run));
    const auto text = QStringLiteral("Typing a sentence of some length here");
    int frame = 0;
    for (auto _ : run)
        benchmark::DoNotOptimize(painter.paint(
            {.cursor = {400, 300}, .caption = text.left(1 + frame++ % (text.size() - 1))}));
}

void stillFrame(benchmark::State &run)
{
    FramePainter painter(demo(run));
    const FrameState state{.cursor = {400, 300}, .caption = QStringLiteral("Typed")};
    for (auto _ : run)
        benchmark::DoNotOptimize(painter.paint(state));
}

void bothSizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->Args({1280, 800})->Args({1920, 1080})->Unit(benchmark::kMicrosecond);
}

BENCHMARK(fullFrame)->Apply(bothSizes);
BENCHMARK(movingCursor)->Apply(bothSizes);
BENCHMARK(ripple)->Apply(bothSizes);
BENCHMARK(typedCaption)->Apply(bothSizes);
BENCHMARK(stillFrame)->Apply(bothSizes);

} // namespace

} // namespace velvane

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
