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
    auto typing = input.beginTyping(text);
    // Where keys must be lent characters, that and taking them back take time of their own.
    pace.restart();
    for (const QString &character : characters) {
        if (pace.isOver())
            return;
        typing->post(character);
        pace.sleep(each);
    }
    typing.reset();
    pace.restart();
}

} // namespace velvane::Live
