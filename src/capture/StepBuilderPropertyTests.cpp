#include "capture/StepBuilderFixture.h"

#include <cmath>
#include <random>

namespace velvane {

namespace {

constexpr QSizeF canvas(1280, 800);

// A user without sense: every event there is, at any place, with any text, on a clock that may
// jump.
class AnyUser {
public:
    explicit AnyUser(unsigned seed) : m_random(seed) {}

    bool chance(double share) { return std::bernoulli_distribution(share)(m_random); }
    int upTo(int most) { return std::uniform_int_distribution(0, most)(m_random); }
    double between(double a, double b) { return std::uniform_real_distribution(a, b)(m_random); }

    InputEvent event(Seconds time)
    {
        InputEvent made;
        made.kind = InputEvent::Kind(upTo(int(InputEvent::Kind::keyUp)));
        made.point = {between(-3000, 5000), between(-3000, 5000)};
        if (chance(0.02))
            made.point.setX(std::nan(""));
        made.keyCode = chance(0.1) ? KeyCode::escape : quint16(upTo(0xffff));
        for (int bit = 0; bit < 24; ++bit)
            made.modifiers |= chance(0.1) ? quint64(1) << bit : 0;
        for (int i = upTo(4); i > 0; --i)
            made.text += chance(0.8) ? QChar('a' + upTo(25)) : QChar(upTo(0xffff));
        made.time = time;
        return made;
    }
    Seconds passed() { return Seconds(chance(0.05) ? between(-100, 100) : between(0, 1)); }
    AppInfo app()
    {
        static const QStringList names{"", "Notes", "Mail", "Velvane"};
        AppInfo made;
        made.name = names[upTo(3)];
        made.ours = made.name == "Velvane";
        return made;
    }

private:
    std::mt19937 m_random;
};

QList<Step> recordedBy(unsigned seed)
{
    AnyUser user(seed);
    Seconds now = 50s;
    StepBuilder builder(canvas, {640, 400}, now);
    builder.setCapturing(true, now);
    for (int i = user.upTo(120); i > 0; --i) {
        now += user.passed();
        if (user.chance(0.2))
            builder.tick(now);
        else if (user.chance(0.1))
            builder.activate(user.app(), now);
        else
            builder.handle(user.event(now));
    }
    return builder.finish(now);
}

void expectSound(const Step &step)
{
    EXPECT_TRUE(step.point.x() >= 0 && step.point.x() <= canvas.width()) << step.point.x();
    EXPECT_TRUE(step.point.y() >= 0 && step.point.y() <= canvas.height()) << step.point.y();
    const double tenths = step.pauseAfter.count() * 10;
    EXPECT_TRUE(tenths >= 0 && tenths <= 25) << tenths;
    EXPECT_NEAR(tenths, std::round(tenths), 1e-9);
    EXPECT_TRUE(step.recordedOffset);
    if (step.kind == StepKind::shortcut) {
        EXPECT_NE(step.keyCode, KeyCode::escape);
        EXPECT_NE(step.keyCode, InputEvent::noKey);
        constexpr quint64 four =
            Modifier::shift | Modifier::control | Modifier::option | Modifier::command;
        EXPECT_EQ(step.modifiers & ~four, 0U);
    }
    if (step.kind == StepKind::type) {
        EXPECT_FALSE(step.text.isEmpty());
        EXPECT_TRUE(step.text.isValidUtf16());
    }
    EXPECT_NE(step.kind, StepKind::wait);
    EXPECT_NE(step.kind, StepKind::section);
}

} // namespace

TEST(StepBuilderProperty, WhateverTheUserDoesTheStepsAreSound)
{
    qsizetype drags = 0;
    for (unsigned seed = 0; seed < 3000; ++seed) {
        SCOPED_TRACE(seed);
        const QList<Step> steps = recordedBy(seed);
        for (qsizetype i = 0; i < steps.size(); ++i) {
            expectSound(steps[i]);
            if (i > 0) {
                EXPECT_GE(*steps[i].recordedOffset, *steps[i - 1].recordedOffset);
            }
            if (steps[i].kind == StepKind::hold) {
                ++drags;
                ASSERT_LT(i + 2, steps.size());
                EXPECT_EQ(steps[i + 1].kind, StepKind::move);
                EXPECT_EQ(steps[i + 2].kind, StepKind::release);
                EXPECT_EQ(steps[i + 2].recordedOffset, steps[i].recordedOffset);
            }
            if (steps[i].kind == StepKind::release) {
                EXPECT_TRUE(i >= 2 && steps[i - 2].kind == StepKind::hold);
            }
        }
        if (HasFailure())
            return;
    }
    // The users did get that far.
    EXPECT_GT(drags, 1000);
}

} // namespace velvane
