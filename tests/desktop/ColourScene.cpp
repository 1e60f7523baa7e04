// Shows one colour after another in the corner of the display until it is ended, now in quick
// succession, now none for a while.
//
// usage: colour-scene SEED
// Prints for each change its number, the moments between which it came onto the display, in seconds
// of the machine's monotonic clock, and how long at most the machine and the display let this
// program wait at a time since the change before: "NUMBER EARLIEST LATEST LATE". The colour tells
// the number: see colorOf().

#include "CaptureStage.h"
#include "DelayProbe.h"

#include <QRandomGenerator>

#include <iostream>

namespace {

using namespace velvane;

// 8 steps of red times 8 of green, far enough apart for any encoder.
QColor colorOf(int number)
{
    return {number % 8 * 32 + 16, number / 8 % 8 * 32 + 16, 128};
}

// Seconds until the next change: mostly tenths, at times more than the screen is still before its
// picture is repeated.
Seconds pause(QRandomGenerator &random)
{
    return random.bounded(6) == 0 ? Seconds(1 + 1.5 * random.generateDouble())
                                  : Seconds(0.06 + 0.3 * random.generateDouble());
}

} // namespace

int main(int argc, char **argv)
{
    X11Connection connection;
    if (argc != 2 || !connection.isOpen()) {
        std::cerr << "usage: colour-scene SEED, on a display\n";
        return 2;
    }
    QRandomGenerator random(quint32(std::stoul(argv[1])));
    SystemClock clock;
    const DelayProbe probe(clock);
    constexpr QRect place(40, 40, 400, 300);
    Seconds before = clock.now();
    BareWindow scene(connection, place, colorOf(0));
    for (int number = 0; connection.isOpen(); ++number) {
        const Seconds earliest = clock.now();
        scene.paint(QRect({}, place.size()), colorOf(number));
        const Seconds latest = clock.now();
        std::cout << std::fixed << number << ' ' << earliest.count() << ' ' << latest.count() << ' '
                  << probe.longest(before, latest).count() << std::endl;
        before = earliest;
        clock.sleep(pause(random));
    }
}
