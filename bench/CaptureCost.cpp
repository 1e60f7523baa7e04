// Captures the display at 60 pictures a second and tells what it cost this process.
//
// usage: CaptureCost SECONDS [composed]
// Prints pictures with changes, processor seconds. Composed: as if a window of ours covered the
// display, which the pictures are to leave out.

#include "platform/SystemClock.h"
#include "platform/x11/capture/X11Capture.h"

#include <atomic>
#include <ctime>
#include <iostream>
#include <string>

int main(int argc, char **argv)
{
    using namespace velvane;
    if (argc < 2) {
        std::cerr << "usage: CaptureCost SECONDS [composed]\n";
        return 2;
    }
    const X11Connection ours;
    SystemClock clock;
    const bool composed = argc > 2 && std::string(argv[2]) == "composed";
    X11Capture capture(ours, qgetenv("DISPLAY"), clock,
                       [&] { return composed ? X11OwnWindows(ours.get()) : X11OwnWindows(); });
    std::atomic<int> changes = 0;
    const CaptureOpening opening = capture.open(
        CaptureRequest{}, [&](const Frame &frame) { changes += frame.changed.isEmpty() ? 0 : 1; },
        [](const QString &) {});
    if (!opening.stream) {
        std::cerr << opening.error.toStdString() << '\n';
        return 1;
    }
    clock.sleep(std::stod(argv[1]) * 1s);
    timespec used{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &used);
    std::cout << changes << ' ' << double(used.tv_sec) + double(used.tv_nsec) / 1e9 << '\n';
}
