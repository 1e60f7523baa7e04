#include "timeline/Playback.h"

#include <QCoreApplication>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using RealTime = std::chrono::steady_clock;

// Plays for some seconds and compares the clock's own time with the real one.
void measure(int fps, double seconds)
{
    velvane::Playback playback;
    playback.setTotal(velvane::Seconds(seconds));
    std::vector<double> intervals;
    RealTime::time_point last = RealTime::now();
    QObject::connect(&playback, &velvane::Playback::timeChanged, [&] {
        const RealTime::time_point now = RealTime::now();
        intervals.push_back(std::chrono::duration<double, std::milli>(now - last).count());
        last = now;
    });
    QObject::connect(&playback, &velvane::Playback::isPlayingChanged, [&] {
        if (!playback.isPlaying())
            QCoreApplication::quit();
    });
    const RealTime::time_point start = last;
    playback.play(fps);
    QCoreApplication::exec();
    const double real = std::chrono::duration<double>(last - start).count();
    const auto count = static_cast<double>(intervals.size());
    std::sort(intervals.begin(), intervals.end());
    std::printf("%3d asked: %7.3f ticks a second; %4.0f ticks in %.4f s; interval ms: "
                "median %.3f, p99 %.3f, worst %.3f\n",
                fps, count / real, count, real, intervals[intervals.size() / 2],
                intervals[intervals.size() * 99 / 100], intervals.back());
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    for (const int fps : {24, 30, 60, 120})
        measure(fps, 5);
}
