#include "model/Step.h"

#include "base/KeyCode.h"
#include "support/Print.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <limits>

namespace velvane {

namespace {

Step stepOf(StepKind kind, const QString &text = {})
{
    Step step;
    step.kind = kind;
    step.text = text;
    return step;
}

Step shortcutOf(quint64 modifiers, quint16 keyCode, const QString &text = {})
{
    Step step = stepOf(StepKind::shortcut, text);
    step.modifiers = modifiers;
    step.keyCode = keyCode;
    return step;
}

} // namespace

TEST(Step, StartsWithTheDefaultsAndAnIdOfItsOwn)
{
    const Step step;
    EXPECT_FALSE(step.id.isNull());
    EXPECT_NE(step.id, Step().id);
    EXPECT_EQ(step.point, QPointF(0, 0));
    EXPECT_EQ(step.text, "");
    EXPECT_EQ(step.duration, 1.0s);
    EXPECT_EQ(step.pauseAfter, 0.3s);
    EXPECT_EQ(step.keyCode, 0);
    EXPECT_EQ(step.modifiers, 0U);
    EXPECT_FALSE(step.centerWindow);
    EXPECT_FALSE(step.collapsed);
    EXPECT_FALSE(step.recordedOffset);
}

TEST(Step, AMoveSummarisesWithItsPointCutToWholeNumbers)
{
    Step move = stepOf(StepKind::move);
    move.point = {12.9, -3.7};
    EXPECT_EQ(move.summary(), "Move to (12, -3)");
}

TEST(Step, AMoveToNowhereStillHasASummary)
{
    Step move = stepOf(StepKind::move);
    move.point = {std::numeric_limits<double>::infinity(), std::nan("")};
    EXPECT_EQ(move.summary(), "Move to (9223372036854775807, 0)");
}

TEST(Step, AWaitSummarisesWithItsPauseAlone)
{
    Step wait = stepOf(StepKind::wait);
    wait.pauseAfter = 2s;
    wait.duration = 9s;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(wait.summary(), "Wait 2.0s");
    QLocale::setDefault(before);
}

TEST(Step, AWaitsLengthIsWrittenAsTheUsersLanguageDoes)
{
    Step wait = stepOf(StepKind::wait);
    wait.pauseAfter = 1234.56s;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString german = wait.summary();
    const QString english = wait.englishSummary();
    QLocale::setDefault(before);
    EXPECT_EQ(german, "Wait 1234,6s");
    EXPECT_EQ(english, "Wait 1234.6s");
}

TEST(Step, TheOtherKindsHaveTheirSummaries)
{
    EXPECT_EQ(stepOf(StepKind::click).summary(), "Click");
    EXPECT_EQ(stepOf(StepKind::rightClick).summary(), "Right-click");
    EXPECT_EQ(stepOf(StepKind::hold).summary(), "Hold mouse down");
    EXPECT_EQ(stepOf(StepKind::release).summary(), "Release mouse");
    EXPECT_EQ(stepOf(StepKind::type, "Hi %1").summary(), "Type \"Hi %1\"");
    EXPECT_EQ(stepOf(StepKind::switchApp, "Mail").summary(), "Switch to Mail");
    EXPECT_EQ(stepOf(StepKind::section, "Intro").summary(), "Intro");
}

TEST(Step, EmptyNamesHaveAFallback)
{
    EXPECT_EQ(stepOf(StepKind::switchApp).summary(), "Switch to app");
    EXPECT_EQ(stepOf(StepKind::section).summary(), "Section");
    EXPECT_EQ(stepOf(StepKind::shortcut).summary(), "Shortcut");
}

TEST(Step, AShortcutShowsItsNamedKey)
{
    const Step keys = shortcutOf(Modifier::command | Modifier::shift, KeyCode::returnKey, "x");
    EXPECT_EQ(keys.shortcutDisplay(), QString::fromUtf8("⇧⌘↩"));
    EXPECT_EQ(keys.summary(), QString::fromUtf8("Press ⇧⌘↩"));
}

TEST(Step, AShortcutShowsItsCharacter)
{
    const quint64 modifiers = Modifier::control | Modifier::option | Modifier::command;
    EXPECT_EQ(shortcutOf(modifiers, 0, "a").shortcutDisplay(), QString::fromUtf8("⌃⌥⌘a"));
}

TEST(Step, AShortcutOfModifiersAloneIsShown)
{
    EXPECT_EQ(shortcutOf(Modifier::command, 0).summary(), QString::fromUtf8("Press ⌘"));
}

struct Added {
    StepKind kind;
    QPointF point;
    const char *text;
    double duration;
    double pauseAfter;
};

class AddedStep : public testing::TestWithParam<Added> {};

TEST_P(AddedStep, HasItsKindsDefaults)
{
    const Added &expected = GetParam();
    const Step step = Step::withDefaults(expected.kind, QSizeF(1001, 700));
    EXPECT_EQ(step.kind, expected.kind);
    EXPECT_EQ(step.point, expected.point);
    EXPECT_EQ(step.text, expected.text);
    EXPECT_EQ(step.duration, Seconds(expected.duration));
    EXPECT_EQ(step.pauseAfter, Seconds(expected.pauseAfter));
    EXPECT_EQ(step.keyCode, 0);
    EXPECT_EQ(step.modifiers, 0U);
    EXPECT_FALSE(step.centerWindow || step.collapsed || step.recordedOffset);
}

INSTANTIATE_TEST_SUITE_P(Kinds, AddedStep,
                         testing::Values(Added{StepKind::move, {500.5, 350}, "", 1.2, 0.2},
                                         Added{StepKind::click, {}, "", 1.0, 0.4},
                                         Added{StepKind::rightClick, {}, "", 1.0, 0.4},
                                         Added{StepKind::hold, {}, "", 1.0, 0.3},
                                         Added{StepKind::release, {}, "", 1.0, 0.3},
                                         Added{StepKind::type, {}, "Type here", 1.6, 0.3},
                                         Added{StepKind::shortcut, {}, "", 1.0, 0.3},
                                         Added{StepKind::wait, {}, "", 1.0, 1.0},
                                         Added{StepKind::switchApp, {}, "Safari", 1.0, 0.8},
                                         Added{StepKind::section, {}, "Section", 1.0, 0}));

TEST(Step, EqualityLooksAtEveryField)
{
    const Step step = stepOf(StepKind::type, "a");
    const auto differs = [&](auto change) {
        Step other = step;
        change(other);
        return !(other == step);
    };
    EXPECT_TRUE(step == Step(step));
    EXPECT_TRUE(differs([](Step &s) { s.id = QUuid::createUuid(); }));
    EXPECT_TRUE(differs([](Step &s) { s.kind = StepKind::wait; }));
    EXPECT_TRUE(differs([](Step &s) { s.point.rx() += 1e-14; }));
    EXPECT_TRUE(differs([](Step &s) { s.text = "b"; }));
    EXPECT_TRUE(differs([](Step &s) { s.duration += 0.1s; }));
    EXPECT_TRUE(differs([](Step &s) { s.pauseAfter += 0.1s; }));
    EXPECT_TRUE(differs([](Step &s) { s.keyCode = 1; }));
    EXPECT_TRUE(differs([](Step &s) { s.modifiers = 1; }));
    EXPECT_TRUE(differs([](Step &s) { s.centerWindow = true; }));
    EXPECT_TRUE(differs([](Step &s) { s.collapsed = true; }));
    EXPECT_TRUE(differs([](Step &s) { s.recordedOffset = 0s; }));
}

} // namespace velvane
