#include "render/ExporterFixture.h"

#include "media/MovieError.h"
#include "render/ExportError.h"
#include "support/FileSizeLimit.h"
#include "support/Print.h"

#include <atomic>
#include <limits>
#include <optional>

namespace velvane {

namespace {

constexpr double infinity = std::numeric_limits<double>::infinity();

class ExporterFailureTest : public ExporterFixture {
protected:
    std::optional<MovieError::Cause> refusal(const Snapshot &snap)
    {
        try {
            run(snap);
        } catch (const MovieError &error) {
            return error.cause();
        }
        return {};
    }
};

} // namespace

TEST_F(ExporterFailureTest, ImpossibleSizesAreRefusedBeforeAFileIsTouched)
{
    writeOldFile();
    for (const QSizeF canvas : {QSizeF(1e6, 1e6), QSizeF(0.9, 500), QSizeF(infinity, 10),
                                QSizeF(qQNaN(), 10), QSizeF(16384, 16384), QSizeF(20000, 100)}) {
        EXPECT_EQ(refusal(demo({}, 60, canvas)), MovieError::Cause::size);
        EXPECT_EQ(fileContent(), "old");
    }
    EXPECT_TRUE(m_progress.empty());
}

TEST_F(ExporterFailureTest, ImpossibleLengthsAndRatesAreRefusedBeforeAFileIsTouched)
{
    writeOldFile();
    EXPECT_EQ(refusal(demo({pause(Seconds(1e15))}, 60)), MovieError::Cause::size);
    EXPECT_EQ(refusal(demo({pause(Seconds(infinity))}, 60)), MovieError::Cause::size);
    EXPECT_EQ(refusal(demo({}, std::numeric_limits<int>::max())), MovieError::Cause::size);
    EXPECT_EQ(fileContent(), "old");
}

TEST_F(ExporterFailureTest, WhatTheSystemSaysOfAFileIsPassedOn)
{
    m_path = m_folder.filePath(QStringLiteral("missing/movie.mp4"));
    EXPECT_EQ(refusal(demo({}, 60)), MovieError::Cause::file);
    m_path = m_folder.path();
    EXPECT_EQ(refusal(demo({}, 60)), MovieError::Cause::file);
}

TEST_F(ExporterFailureTest, AFullDiskIsAFailedWriterAndLeavesAMovie)
{
    // Many large changes, so that the file grows.
    QList<Step> steps;
    for (int i = 0; i < 60; ++i)
        steps << moveTo(i % 2 ? QPointF(0, 0) : QPointF(600, 400), 0.3s);
    std::optional<ExportError> failure;
    {
        const FileSizeLimit limit(150'000);
        try {
            run(demo(steps, 60, {640, 480}));
        } catch (const ExportError &error) {
            failure = error;
        }
    }
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->kind(), ExportError::Kind::writerFailed);
    EXPECT_FALSE(failure->reason().isEmpty());
    EXPECT_GT(times().size(), 1U);
    EXPECT_FALSE(saidDone());
}

TEST_F(ExporterFailureTest, WhenCancelledTheMovieKeepsTheFramesDoneSoFar)
{
    std::atomic<int> asked = 0;
    EXPECT_THROW(run(demo(tour(), 60), [&] { return ++asked > 25; }), ExportCancelled);
    EXPECT_GE(times().size(), 20U);
    EXPECT_LE(times().size(), 25U);
    EXPECT_FALSE(saidDone());
}

TEST_F(ExporterFailureTest, CancellingFromProgressEndsIt)
{
    std::atomic<bool> cancelled = false;
    const auto cancel = [&](double) { cancelled = true; };
    EXPECT_THROW(runToEnd(Exporter::exportTo(demo({pause(Seconds(3600))}, 60), m_path, cancel,
                                             [&] { return cancelled.load(); })),
                 ExportCancelled);
    EXPECT_LT(times().size(), 3600U);
    EXPECT_GE(times().size(), 1U);
}

TEST_F(ExporterFailureTest, NoProgressArrivesAfterTheEnd)
{
    std::atomic<int> asked = 0;
    EXPECT_THROW(run(demo(tour(), 60), [&] { return ++asked > 25; }), ExportCancelled);
    const std::size_t before = m_progress.size();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(m_progress.size(), before);
}

TEST(ExportError, SaysWhatTheSystemSaysOfPlainErrors)
{
    EXPECT_EQ(
        ExportError(ExportError::Kind::writerFailed, QStringLiteral("disk full")).description(),
        QStringLiteral("The operation couldn’t be completed. (Velvane.ExportError error 0.)"));
    EXPECT_EQ(
        ExportError(ExportError::Kind::noPool).description(),
        QStringLiteral("The operation couldn’t be completed. (Velvane.ExportError error 1.)"));
}

} // namespace velvane
