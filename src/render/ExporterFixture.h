#pragma once

#include "render/Exporter.h"
#include "support/MovieProbe.h"
#include "support/RunToEnd.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <gtest/gtest.h>

#include <vector>

namespace velvane {

inline bool never()
{
    return false;
}

inline Step pause(Seconds length)
{
    Step step;
    step.kind = StepKind::wait;
    step.pauseAfter = length;
    return step;
}

inline Step action(StepKind kind, Seconds duration, Seconds pauseAfter, const QString &text = {})
{
    Step step;
    step.kind = kind;
    step.duration = duration;
    step.pauseAfter = pauseAfter;
    step.text = text;
    return step;
}

inline Step moveTo(QPointF point, Seconds duration)
{
    Step step = action(StepKind::move, duration, 0.1s);
    step.point = point;
    return step;
}

inline Snapshot demo(const QList<Step> &steps, int fps, QSizeF canvas = {64, 48})
{
    return {
        .steps = steps, .startPoint = {5, 5}, .canvasSize = canvas, .fps = fps, .background = {}};
}

/// Every kind of change: gliding, clicking, dragging, typing, resting.
inline QList<Step> tour()
{
    return {moveTo({200, 90}, 0.4s),
            action(StepKind::click, 0s, 0.4s),
            action(StepKind::type, 0.6s, 0.2s, QStringLiteral("Hé 👍🏽")),
            action(StepKind::hold, 0s, 0.2s),
            moveTo({20, 150}, 0.3s),
            action(StepKind::release, 0s, 0.2s),
            action(StepKind::switchApp, 0s, 0.3s, QStringLiteral("Finder")),
            pause(0.5s)};
}

/// Exports to a movie in a folder of its own.
class ExporterFixture : public testing::Test {
protected:
    void run(const Snapshot &snap, const CancelCheck &shouldCancel = never)
    {
        const auto note = [this](double value) {
            m_progress.push_back(value);
            m_elsewhere = m_elsewhere || QThread::currentThread() != qApp->thread();
        };
        runToEnd(Exporter::exportTo(snap, m_path, note, shouldCancel));
    }

    // An export that ends at once may not have told anything before.
    bool saidDone() const { return !m_progress.empty() && m_progress.back() == 1.0; }

    // Exact times of all frames, in seconds.
    std::vector<double> times() const
    {
        MovieProbe probe(m_path);
        std::vector<double> times;
        while (const auto picture = probe.next())
            times.push_back(double(picture->ticks) / double(probe.timeScale()));
        return times;
    }

    void writeOldFile() const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("old");
    }

    QByteArray fileContent() const
    {
        QFile file(m_path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("movie.mp4"));
    std::vector<double> m_progress;
    bool m_elsewhere = false;
};

} // namespace velvane
