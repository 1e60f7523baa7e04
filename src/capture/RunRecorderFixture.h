#pragma once

#include "base/Background.h"
#include "capture/RunRecorder.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"
#include "support/RunToEnd.h"
#include "support/TemporaryHome.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>
#include <semaphore>
#include <stdexcept>

namespace velvane {

/// What was done to a movie, which has no file.
struct Written {
    QString path;
    QSize size;
    std::vector<Frame> frames{};
    std::atomic<int> finished = 0;
    /// The next append or finish fails with this.
    std::string failure{};
    /// Finishing waits until a test lets it.
    bool finishWaits = false;
    std::binary_semaphore mayFinish{0};
};

class NotingWriter final : public MovieWriter {
public:
    explicit NotingWriter(Written &written) : m_written(written) {}

    void append(const Frame &frame) override
    {
        fail();
        m_written.frames.push_back({frame.image.copy(), frame.changed, frame.time});
    }
    void finish() override
    {
        if (m_written.finishWaits)
            m_written.mayFinish.acquire();
        ++m_written.finished;
        fail();
    }

private:
    void fail() const
    {
        if (!m_written.failure.empty())
            throw std::runtime_error(m_written.failure);
    }

    Written &m_written;
};

/// At most ten seconds of the real time.
template <typename Condition>
inline void waitUntil(Condition holds)
{
    const QDeadlineTimer deadline(10'000);
    while (!holds() && !deadline.hasExpired()) {
        QCoreApplication::processEvents();
        QThread::msleep(1);
    }
}

/// The same, but what happens meanwhile is not heard yet.
template <typename Condition>
inline void waitSilentlyUntil(Condition holds)
{
    const QDeadlineTimer deadline(10'000);
    while (!holds() && !deadline.hasExpired())
        QThread::msleep(1);
}

/// A recorder over a simulated desktop, whose movie is noted.
class RunRecorderFixture : public testing::Test {
protected:
    RunRecorderFixture()
    {
        QObject::connect(&recorder, &RunRecorder::ended,
                         [this](const QString &reason) { ended << reason; });
    }

    RunRecorder::Making making()
    {
        const auto writer = [this](const QString &path, QSize size) {
            written.path = path;
            written.size = size;
            return std::make_unique<NotingWriter>(written);
        };
        return {.writer = writer, .date = [] { return QDateTime({2026, 3, 9}, {7, 5, 2}); }};
    }
    QString start(RecordScope scope = RecordScope::screen, const QString &app = {},
                  bool cursor = true, bool pointScaled = false)
    {
        return recorder.start(scope, app, cursor, pointScaled);
    }
    void stop() { runToEnd(recorder.stop()); }
    void showAt(Seconds time, const QColor &color, QSize size = {1920, 1080})
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(color);
        desktop.clock().at(time, [this, image] { desktop.capture().show(image); });
    }
    TemporaryHome home;
    SimulatedDesktop desktop;
    Written written;
    QStringList ended;
    RunRecorder recorder{desktop, making()};
};

} // namespace velvane
