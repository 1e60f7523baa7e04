// Records the display with the pointer for some seconds and tells what it cost this process.
//
// usage: RecordingCost SECONDS
// Prints the movie's path and processor seconds.

#include "base/Background.h"
#include "capture/RunRecorder.h"

#include <QGuiApplication>

#include <ctime>
#include <iostream>

namespace {

QCoro::Task<> record(velvane::Desktop *desktop, velvane::Seconds duration)
{
    velvane::RunRecorder recorder(*desktop);
    std::cout << recorder.start(velvane::RecordScope::screen, {}, true, false).toStdString();
    co_await desktop->clock().delay(duration);
    co_await recorder.stop();
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    std::cout << ' ' << double(used.tv_sec) + double(used.tv_nsec) / 1e9 << std::endl;
    QCoreApplication::quit();
}

} // namespace

int main(int argc, char **argv)
{
    const QGuiApplication app(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: RecordingCost SECONDS\n";
        return 2;
    }
    const auto desktop = velvane::Desktop::open();
    record(desktop.get(), velvane::Seconds(std::stod(argv[1])));
    return QCoreApplication::exec();
}
