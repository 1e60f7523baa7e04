#include "media/Yuv420Converter.h"

#include <QRandomGenerator>

#include <benchmark/benchmark.h>

namespace velvane {

namespace {

// Converts one rectangle of a 1920 × 1080 picture, over and over.
void convertRect(benchmark::State &state, YuvRows::Convert rows, const QRect &rect)
{
    if (!rows) {
        state.SkipWithError("this processor has no AVX2");
        return;
    }
    QImage image(1920, 1080, QImage::Format_ARGB32_Premultiplied);
    QRandomGenerator random(1);
    random.fillRange(reinterpret_cast<quint32 *>(image.bits()), image.sizeInBytes() / 4);
    Yuv420Converter converter(image.size(), rows);
    const QRegion changed(rect);
    for (auto _ : state) {
        converter.convert(image, changed);
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * rect.width() * rect.height());
}

const QRect wholePicture(0, 0, 1920, 1080);
const QRect cursor(701, 413, 60, 60);

BENCHMARK_CAPTURE(convertRect, wholePicturePlain, YuvRows::convertPlain, wholePicture)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convertRect, wholePictureAvx2, YuvRows::avx2(), wholePicture)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convertRect, cursorPlain, YuvRows::convertPlain, cursor)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(convertRect, cursorAvx2, YuvRows::avx2(), cursor)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace velvane
