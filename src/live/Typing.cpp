#include "live/Typing.h"

#include "base/Graphemes.h"

namespace velvane::Live {

namespace {

constexpr Seconds fastest = 0.02s;
constexpr Seconds slowest = 0.09s;

// A duration that is no number types at the highest speed.
Seconds delay(Seconds over, qsizetype characters)
{
    const Seconds even = over / static_cast<double>(characters);
    return even > fastest ? std::min(even, slowest) : fastest;
}

} // namespace

void typeString(InputSynthesizer &input, const QString &text, Seconds over, Pace &pace)
{
    if (text.isEmpty())
        return pace.sleep(over);
    const QStringList characters = Graphemes::split(text);
    const Seconds each = delay(over, characters.size());
    const auto typing = input.beginTyping(text);
    for (const QString &character : characters) {
        if (pace.isOver())
            return;
        typing->post(character);
        pace.sleep(each);
    }
}

} // namespace velvane::Live
