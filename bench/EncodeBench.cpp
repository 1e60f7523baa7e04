#include "DemoScene.h"

#include "media/H264MovieWriter.h"
#include "media/Yuv420Converter.h"

#include "support/MovieProbe.h"
#include "support/PictureQuality.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace velvane {

namespace {

constexpr int frames = 1800;
constexpr int fps = 60;

QByteArray lumaOf(const Yuv420Converter &converter)
{
    const QSize size = converter.paddedSize();
    QByteArray luma;
    for (int y = 0; y < size.height(); ++y)
        luma.append(
            reinterpret_cast<const char *>(converter.luma().samples + y * converter.luma().stride),
            size.width());
    return luma;
}

void measureQuality(benchmark::State &state, const QString &path, QSize size)
{
    DemoScene scene(size);
    Yuv420Converter converter(size);
    PictureQuality quality;
    MovieProbe probe(path);
    int i = 0;
    for (; const auto picture = probe.next(); ++i) {
        const QRegion changed = scene.show(i);
        converter.convert(scene.image(), i == 0 ? QRegion(scene.image().rect()) : changed);
        quality.add(picture->size, lumaOf(converter), picture->luma);
    }
    state.counters["frames"] = i;
    state.counters["PSNR-Y"] = quality.overall();
    state.counters["worstMB"] = quality.worstMacroblock();
    state.counters["bytes"] = double(QFileInfo(path).size());
}

// 30 s of a typical demo: what painting it costs here, without a movie.
void paint(benchmark::State &state)
{
    DemoScene scene({int(state.range(0)), int(state.range(1))});
    for (auto _ : state)
        for (int i = 0; i < frames; ++i)
            benchmark::DoNotOptimize(scene.show(i));
}

// The same with the movie written.
void encode(benchmark::State &state)
{
    const QSize size(int(state.range(0)), int(state.range(1)));
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("movie.mp4"));
    for (auto _ : state) {
        DemoScene scene(size);
        H264MovieWriter writer(path, size, fps, frames);
        for (int i = 0; i < frames; ++i) {
            const QRegion changed = scene.show(i);
            writer.append({scene.image(), changed, Seconds(double(i) / fps)});
        }
        writer.finish();
    }
    measureQuality(state, path, size);
}

#define VELVANE_MOVIE_BENCH(name)                                                                  \
    BENCHMARK(name)                                                                                \
        ->Args({1280, 800})                                                                        \
        ->Args({1920, 1080})                                                                       \
        ->Unit(benchmark::kSecond)                                                                 \
        ->Iterations(1)                                                                            \
        ->MeasureProcessCPUTime()

VELVANE_MOVIE_BENCH(paint);
VELVANE_MOVIE_BENCH(encode);

} // namespace

} // namespace velvane
