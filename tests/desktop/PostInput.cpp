// Posts real input as its arguments say, through the same desktop as the editor does; for tests
// that watch what arrives in other programs, and what is left when this one is killed.
//
// usage: post-input hold X Y            presses the left button and holds it until killed
//        post-input drag X Y            the same, lets it go by a click and drags on from there
//        post-input key CODE MODIFIERS  one shortcut, by stored numbers
//        post-input type SECONDS        types standard input, a character each SECONDS
//        post-input repeat SECONDS      the same again and again until killed

#include "base/Graphemes.h"
#include "platform/Desktop.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>

#include <unistd.h>

namespace {

using namespace velvane;

void say(const char *what)
{
    std::puts(what);
    std::fflush(stdout);
}

void type(Desktop &desktop, const QString &text, Seconds interval)
{
    const auto typing = desktop.input().beginTyping(text);
    say("typing");
    Seconds next = desktop.clock().now();
    for (const QString &character : Graphemes::split(text)) {
        typing->post(character);
        next = std::max(next + interval, desktop.clock().now());
        desktop.clock().sleepUntil(next);
    }
}

QString standardInput()
{
    QFile file;
    return file.open(stdin, QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

int post(Desktop &desktop, const QStringList &arguments)
{
    const QString what = arguments.value(1);
    const double first = arguments.value(2).toDouble();
    if (what == "hold" || what == "drag") {
        const QPointF place(first, arguments.value(3).toDouble());
        desktop.input().press(MouseButton::left, place);
        if (what == "drag") {
            desktop.input().press(MouseButton::left, place);
            desktop.input().release(MouseButton::left, place);
            desktop.input().moveTo(place + QPointF(10, 0), true);
        }
        say("held");
        pause();
    } else if (what == "key") {
        desktop.input().pressKey(quint16(first), arguments.value(3).toULongLong());
    } else if (what == "type") {
        type(desktop, standardInput(), Seconds(first));
    } else if (what == "repeat") {
        for (const QString text = standardInput();;)
            type(desktop, text, Seconds(first));
    } else {
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    const auto desktop = Desktop::open();
    if (const QString reason = desktop->input().missing(); !reason.isEmpty()) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(reason));
        return 1;
    }
    return post(*desktop, QCoreApplication::arguments());
}
