// Reads a movie as the recording backdrop does.
//
// usage: read-movie MOVIE X Y
// Prints the movie's duration in seconds, and below it each picture's time and the colour that it
// has at that place: "TIME RED GREEN BLUE". Exit status 1, and the reason, when it is no movie.

#include "media/MovieReader.h"

#include <QGuiApplication>

#include <iostream>

namespace {

using namespace velvane;

constexpr Seconds step = 1s / 240;

void print(MovieReader &reader, QPoint place)
{
    std::cout << std::fixed << reader.duration().count() << '\n';
    std::optional<Seconds> last;
    for (Seconds at = 0s; at < reader.duration(); at += step) {
        const std::optional<MoviePicture> picture = reader.picture(at);
        if (!picture || picture->time() == last)
            continue;
        last = picture->time();
        const QColor color = picture->image().pixelColor(place);
        std::cout << picture->time().count() << ' ' << color.red() << ' ' << color.green() << ' '
                  << color.blue() << '\n';
    }
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication app(argc, argv);
    const QStringList arguments = app.arguments();
    if (arguments.size() != 4) {
        std::cerr << "usage: read-movie MOVIE X Y\n";
        return 2;
    }
    const MovieOpening opening = MovieReader::open(arguments[1]);
    if (!opening.reader) {
        std::cerr << opening.error.toStdString() << '\n';
        return 1;
    }
    print(*opening.reader, {arguments[2].toInt(), arguments[3].toInt()});
    return 0;
}
