#include "live/Typing.h"

#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

class LiveTyping : public testing::Test {
protected:
    void type(const char *text, Seconds over)
    {
        Live::typeString(desktop.input(), QString::fromUtf8(text), over, pace);
    }
    // The presses, and when each came.
    std::vector<std::pair<QString, double>> presses() const
    {
        std::vector<std::pair<QString, double>> presses;
        for (const InputEvent &event : desktop.posted()) {
            if (event.kind == InputEvent::Kind::keyDown)
                presses.emplace_back(event.text, event.time.count());
        }
        return presses;
    }
    double now() { return desktop.clock().now().count(); }

    SimulatedDesktop desktop;
    bool cancelled = false;
    Live::Pace pace{desktop, [this] { return cancelled; }};
};

// Takes half a second each to begin and to end typing, as where keys must be lent characters.
class Lending final : public InputSynthesizer {
public:
    explicit Lending(SimulatedDesktop &desktop) : m_desktop(desktop) {}

    void moveTo(QPointF, bool) override {}
    void press(MouseButton, QPointF) override {}
    void release(MouseButton, QPointF) override {}
    void pressKey(quint16, quint64) override {}
    std::unique_ptr<Typing> beginTyping(const QString &text) override
    {
        m_desktop.clock().advance(0.5s);
        return std::make_unique<Lent>(m_desktop, text);
    }

private:
    class Lent final : public Typing {
    public:
        Lent(SimulatedDesktop &desktop, const QString &text)
            : m_desktop(desktop)
            , m_typing(desktop.input().beginTyping(text))
        {}
        ~Lent() override { m_desktop.clock().advance(0.5s); }
        void post(const QString &character) override { m_typing->post(character); }

    private:
        SimulatedDesktop &m_desktop;
        const std::unique_ptr<Typing> m_typing;
    };

    SimulatedDesktop &m_desktop;
};

} // namespace

TEST_F(LiveTyping, WhereKeysMustBeLentCharactersThatTakesNothingFromIntervalsAndPauses)
{
    Lending lending(desktop);
    pace.sleep(1s);
    Live::typeString(lending, "ab", 1s, pace);
    pace.sleep(2s);
    const auto typed = presses();
    ASSERT_EQ(typed.size(), 2U);
    EXPECT_DOUBLE_EQ(typed[0].second, 1.5);
    EXPECT_DOUBLE_EQ(typed[1].second, 1.59);
    EXPECT_NEAR(now(), 1.5 + 2 * 0.09 + 0.5 + 2, 1e-9);
}

TEST_F(LiveTyping, AShortTextIsNotTypedSlowerThanElevenCharactersASecond)
{
    type("naïve", 1s);
    const auto typed = presses();
    ASSERT_EQ(typed.size(), 5U);
    for (int i = 0; i < 5; ++i)
        EXPECT_NEAR(typed[i].second, i * 0.09, 1e-9);
    EXPECT_EQ(typed[2].first, QString::fromUtf8("ï"));
    EXPECT_NEAR(now(), 0.45, 1e-9);
}

TEST_F(LiveTyping, ALongTextIsNotTypedFasterThanFiftyCharactersASecond)
{
    type("naïve", 0.05s);
    const auto typed = presses();
    ASSERT_EQ(typed.size(), 5U);
    for (int i = 0; i < 5; ++i)
        EXPECT_NEAR(typed[i].second, i * 0.02, 1e-9);
}

TEST_F(LiveTyping, InBetweenTheDurationIsSpreadEvenly)
{
    type("abcd", 0.2s);
    EXPECT_NEAR(presses().at(1).second, 0.05, 1e-9);
    EXPECT_NEAR(now(), 0.2, 1e-9);
}

TEST_F(LiveTyping, AnEmptyTextPostsNothingAndTakesItsTime)
{
    type("", 2s);
    EXPECT_TRUE(desktop.log().isEmpty());
    EXPECT_EQ(now(), 2);
}

TEST_F(LiveTyping, AFlagIsOnePressWithAllItsCodeUnits)
{
    type("a🇩🇪b", 1s);
    EXPECT_EQ(desktop.log(), QStringList({"keyDown \"a\"", "keyUp \"a\"", "keyDown \"🇩🇪\"",
                                          "keyUp \"🇩🇪\"", "keyDown \"b\"", "keyUp \"b\""}));
}

TEST_F(LiveTyping, DownAndUpFollowEachOtherWithoutAPause)
{
    type("xy", 1s);
    const std::vector<InputEvent> events = desktop.posted();
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0].time, events[1].time);
    EXPECT_EQ(events[2].time, events[3].time);
}

TEST_F(LiveTyping, CancellingStopsBetweenTwoCharactersAndNeverWithinOne)
{
    desktop.clock().at(0.1s, [this] { cancelled = true; });
    type("abcdef", 6s);
    EXPECT_EQ(desktop.log(),
              QStringList({"keyDown \"a\"", "keyUp \"a\"", "keyDown \"b\"", "keyUp \"b\""}));
    EXPECT_DOUBLE_EQ(now(), 0.1);
}

TEST_F(LiveTyping, CancelledBeforeItBeginsItPostsNothing)
{
    cancelled = true;
    type("abc", 1s);
    EXPECT_TRUE(desktop.log().isEmpty());
}

TEST_F(LiveTyping, DurationsThatAreAbsurdStayWithinTheLimits)
{
    type("ab", Seconds(std::numeric_limits<double>::infinity()));
    EXPECT_NEAR(now(), 0.18, 1e-9);
    type("ab", Seconds(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_NEAR(now(), 0.22, 1e-9);
    type("ab", -5s);
    EXPECT_NEAR(now(), 0.26, 1e-9);
}

TEST_F(LiveTyping, ControlCharactersAreTypedLikeOthers)
{
    type("a\n\t", 1s);
    EXPECT_EQ(presses().size(), 3U);
}

} // namespace velvane
