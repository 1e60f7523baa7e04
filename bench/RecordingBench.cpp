// How soon a recording's pictures come: asked for at random beside ffmpeg's own tool, and played
// forwards at 60 a second in real time. CPU seconds are this process's, or the tool's and those of
// its children.
//
// usage: RecordingBench [MOVIE]   without one, makes five minutes of 1080p60 with ffmpeg first.

#include "capture/VideoBackdrop.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <cstdio>
#include <thread>

#include <sys/resource.h>

namespace velvane {

namespace {

constexpr int requests = 200;
constexpr int framesPlayed = 20 * 60;

double cpuSeconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    const auto seconds = [](timeval time) {
        return double(time.tv_sec) + double(time.tv_usec) / 1e6;
    };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double peakMegabytes()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return double(usage.ru_maxrss) / 1024;
}

void run(const QStringList &arguments)
{
    QProcess tool;
    tool.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    tool.start("ffmpeg", QStringList{"-nostdin", "-v", "error", "-y"} + arguments);
    tool.waitForFinished(-1);
    if (tool.exitCode() != 0)
        qFatal("ffmpeg failed");
}

/// Something that moves, a key picture every second: ten seconds of it, thirty times.
void make(const QString &path)
{
    const QString part = path + ".part.mp4";
    run({"-f", "lavfi", "-i", "testsrc2=s=1920x1080:r=60:d=10", "-c:v", "libx264", "-preset",
         "veryfast", "-bf", "0", "-g", "60", "-pix_fmt", "yuv420p", part});
    run({"-stream_loop", "29", "-i", part, "-c", "copy", path});
}

void printTimes(const char *what, std::vector<double> milliseconds, double cpu)
{
    std::sort(milliseconds.begin(), milliseconds.end());
    const size_t count = milliseconds.size();
    std::printf("%-28s median %7.1f ms  95 %% %7.1f ms  worst %7.1f ms  CPU %6.2f s\n", what,
                milliseconds[count / 2], milliseconds[count * 95 / 100], milliseconds.back(), cpu);
}

std::vector<Seconds> randomTimes(Seconds duration)
{
    QRandomGenerator random(11);
    std::vector<Seconds> times;
    for (int i = 0; i < requests; ++i)
        times.push_back(duration * random.generateDouble());
    return times;
}

/// Asks and waits until the picture is there; milliseconds.
double show(VideoBackdrop &video, Seconds time)
{
    QEventLoop loop;
    QObject::connect(&video, &VideoBackdrop::frameChanged, &loop, &QEventLoop::quit);
    QElapsedTimer timer;
    timer.start();
    video.requestFrame(time);
    loop.exec();
    return double(timer.nsecsElapsed()) / 1e6;
}

void measureRandom(VideoBackdrop &video, const std::vector<Seconds> &times)
{
    const double before = cpuSeconds(RUSAGE_SELF);
    std::vector<double> taken;
    for (const Seconds time : times)
        taken.push_back(show(video, time));
    printTimes("request to picture", taken, cpuSeconds(RUSAGE_SELF) - before);
}

void measureTool(const QString &path, const std::vector<Seconds> &times)
{
    const double before = cpuSeconds(RUSAGE_CHILDREN);
    std::vector<double> taken;
    for (const Seconds time : times) {
        QElapsedTimer timer;
        timer.start();
        run({"-ss", QString::number(time.count(), 'f', 3), "-i", path, "-frames:v", "1", "-pix_fmt",
             "bgra", "-f", "rawvideo", "/dev/null"});
        taken.push_back(double(timer.nsecsElapsed()) / 1e6);
    }
    printTimes("ffmpeg -ss T -frames:v 1", taken, cpuSeconds(RUSAGE_CHILDREN) - before);
}

/// Asks for one picture after another in real time; one that is not there when the next is due is
/// late.
void measurePlaying(VideoBackdrop &video)
{
    using Clock = std::chrono::steady_clock;
    const double cpuBefore = cpuSeconds(RUSAGE_SELF);
    const auto start = Clock::now();
    int late = 0;
    for (int i = 1; i <= framesPlayed; ++i) {
        bool isThere = false;
        const auto shown = QObject::connect(&video, &VideoBackdrop::frameChanged, &video,
                                            [&isThere] { isThere = true; });
        video.requestFrame(Seconds(i / 60.0));
        const auto due = start + std::chrono::duration_cast<Clock::duration>(Seconds(i / 60.0));
        while (Clock::now() < due) {
            QCoreApplication::processEvents();
            std::this_thread::sleep_for(std::chrono::microseconds(300));
        }
        late += !isThere;
        QObject::disconnect(shown);
    }
    const double wall = std::chrono::duration<double>(Clock::now() - start).count();
    std::printf("%-28s %d of %d late, %.1f s, CPU %.2f s (%.0f %% of a core)\n",
                "played forwards at 60", late, framesPlayed, wall,
                cpuSeconds(RUSAGE_SELF) - cpuBefore,
                100 * (cpuSeconds(RUSAGE_SELF) - cpuBefore) / wall);
}

} // namespace

} // namespace velvane

int main(int argc, char **argv)
{
    using namespace velvane;
    const QCoreApplication app(argc, argv);
    const QTemporaryDir folder;
    QString path = app.arguments().value(1);
    if (path.isEmpty()) {
        path = folder.filePath("movie.mp4");
        make(path);
    }
    VideoBackdrop video;
    QElapsedTimer opening;
    opening.start();
    const auto loading = video.load(path);
    while (!loading.isReady() || (video.duration() > 0s && video.frame().isNull()))
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    if (!(video.duration() > 0s))
        qFatal("no movie");
    std::printf("%.0f s, %.0f x %.0f, opened in %lld ms, memory %.0f MB\n",
                video.duration().count(), video.size().width(), video.size().height(),
                opening.elapsed(), peakMegabytes());
    measurePlaying(video);
    const std::vector<Seconds> times = randomTimes(video.duration());
    measureRandom(video, times);
    std::printf("%-28s %.0f MB\n", "memory, cache full", peakMegabytes());
    measureTool(path, times);
    return 0;
}
