#pragma once

#include "media/H264MovieWriter.h"
#include "media/Yuv420Converter.h"

#include "support/MovieProbe.h"
#include "support/MovieScene.h"
#include "support/PictureQuality.h"
#include "support/Print.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velvane {

/// What a whole picture converts to, without what was kept of the ones before.
inline QByteArray lumaOf(const QImage &image)
{
    Yuv420Converter converter(image.size(), YuvRows::convertPlain);
    converter.convert(image, image.rect());
    const QSize size = converter.paddedSize();
    QByteArray luma;
    for (int y = 0; y < size.height(); ++y)
        luma.append(
            reinterpret_cast<const char *>(converter.luma().samples + y * converter.luma().stride),
            size.width());
    return luma;
}

/// A movie read back, compared with what was written.
struct MovieResult {
    PictureQuality quality;
    std::vector<qint64> ticks;
    std::vector<int> keys;
};

/// Writes movies into a temporary folder and reads them back.
class MovieRoundTrip : public testing::Test {
protected:
    QString path() const { return m_folder.filePath(QStringLiteral("movie.mp4")); }

    using Change = std::function<QRegion(MovieScene &, int)>;

    /// Writes a movie frame by frame and compares what is decoded with what was given.
    MovieResult roundTrip(MovieScene &scene, int fps, int count, const Change &change)
    {
        std::vector<QByteArray> expected;
        H264MovieWriter writer(path(), scene.image().size(), fps, count);
        for (int i = 0; i < count; ++i) {
            const QRegion changed = i == 0 ? QRegion(scene.image().rect()) : change(scene, i);
            writer.append({scene.image(), changed, Seconds(double(i) / fps)});
            expected.push_back(lumaOf(scene.image()));
        }
        writer.finish();
        return compare(expected);
    }

    MovieResult compare(const std::vector<QByteArray> &expected) const
    {
        MovieResult result;
        MovieProbe probe(path());
        while (const auto picture = probe.next()) {
            const size_t i = result.ticks.size();
            result.ticks.push_back(picture->ticks);
            if (picture->isKey)
                result.keys.push_back(int(i));
            if (i < expected.size())
                result.quality.add(picture->size, expected[i], picture->luma);
        }
        return result;
    }

    void expectExactTimes(const MovieResult &result, int fps, int count) const
    {
        const qint64 scale = MovieProbe(path()).timeScale();
        ASSERT_EQ(scale % fps, 0);
        ASSERT_EQ(int(result.ticks.size()), count);
        for (int i = 0; i < count; ++i)
            EXPECT_EQ(result.ticks[size_t(i)], i * (scale / fps)) << i;
    }

    QTemporaryDir m_folder;
};

inline QRegion nothing(MovieScene &, int)
{
    return {};
}

inline QRegion atRandom(MovieScene &scene, int)
{
    return scene.changeAtRandom();
}

inline void expectGood(const PictureQuality &quality)
{
    EXPECT_GE(quality.overall(), 50);
    EXPECT_GE(quality.worstMacroblock(), 38);
}

} // namespace velvane
