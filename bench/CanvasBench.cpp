#include "editor/FieldEditing.h"
#include "editor/PreviewCanvas.h"

#include <QApplication>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace velvane;

namespace {

constexpr QSize size(1920, 1080);

QImage picture()
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) % 256));
    return image;
}

// Every kind of overlay: travel, ripples, a drag with its ring, a caption.
QList<Step> story()
{
    QList<Step> steps;
    for (int i = 0; i < 8; ++i) {
        steps << Step{.point = {200.0 + 200 * i, i % 2 ? 800.0 : 200.0}, .duration = 0.6s}
              << Step{.kind = StepKind::click};
    }
    steps << Step{.kind = StepKind::hold} << Step{.point = {300, 300}}
          << Step{.kind = StepKind::release}
          << Step{.kind = StepKind::type, .text = QStringLiteral("Northwind Studio, autumn")};
    return steps;
}

struct Stage {
    Stage()
    {
        project.setCanvasSize(size);
        project.setSteps(story());
        project.setBackground(picture());
        canvas.setMargin(0);
        canvas.resize(size);
    }

    Project project;
    Playback playback;
    PreviewTimeline timeline{project, playback};
    Selection selection{project};
    StatusLine status;
    FieldEditing fields{project};
    CanvasController controller{project, status, fields.gesture()};
    PreviewCanvas canvas{project, playback, timeline, selection, controller};
};

// One frame of the preview while it plays: the clock's tick, and the repaint of what it changed, as
// the window's backing store does it. The argument is the screen's scale.
void playedFrame(benchmark::State &state)
{
    const int ratio = static_cast<int>(state.range(0));
    Stage stage;
    QImage screen(size * ratio, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(ratio);
    stage.playback.play(60);
    stage.canvas.render(&screen);
    double pixels = 0;
    for (auto _ : state) {
        const QRegion before = stage.canvas.scene().frameBounds();
        stage.playback.tick();
        if (!stage.playback.isPlaying())
            stage.playback.play(60);
        const QRegion changed = before + stage.canvas.scene().frameBounds();
        stage.canvas.render(&screen, changed.boundingRect().topLeft(), changed, {});
        for (const QRect &rect : changed)
            pixels += rect.width() * rect.height();
    }
    state.counters["pixels"] =
        benchmark::Counter(pixels * ratio * ratio, benchmark::Counter::kAvgIterations);
}
BENCHMARK(playedFrame)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// The whole canvas, as after an edit.
void wholeCanvas(benchmark::State &state)
{
    const int ratio = static_cast<int>(state.range(0));
    Stage stage;
    QImage screen(size * ratio, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(ratio);
    stage.canvas.render(&screen);
    for (auto _ : state)
        stage.canvas.render(&screen);
}
BENCHMARK(wholeCanvas)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// A marker's drag: one move of the pointer and the repaint after it.
void draggedMarker(benchmark::State &state)
{
    const int ratio = static_cast<int>(state.range(0));
    Stage stage;
    QImage screen(size * ratio, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(ratio);
    stage.controller.beginMarkerDrag(stage.project.steps().first().id);
    double x = 10;
    for (auto _ : state) {
        stage.controller.drag({x, 20}, stage.canvas.scale());
        stage.canvas.render(&screen);
        x = x < 900 ? x + 1 : 10;
    }
    stage.controller.endDrag();
}
BENCHMARK(draggedMarker)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

// A turn of the wheel over the magnified canvas.
void pannedCanvas(benchmark::State &state)
{
    const int ratio = static_cast<int>(state.range(0));
    Stage stage;
    QImage screen(size * ratio, QImage::Format_ARGB32_Premultiplied);
    screen.setDevicePixelRatio(ratio);
    stage.controller.setMagnify(true);
    stage.controller.pan().setHovering(true);
    double x = 1;
    for (auto _ : state) {
        stage.controller.pan().wheel({x, 0});
        stage.canvas.render(&screen);
        x = -x;
    }
}
BENCHMARK(pannedCanvas)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
