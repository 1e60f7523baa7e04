#include "editor/MoveGroup.h"

#include "support/Print.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace velvane {

namespace {

Step stepOf(StepKind kind, const QString &text = {})
{
    Step step;
    step.kind = kind;
    step.text = text;
    return step;
}

QList<StepKind> kinds(const QList<Step> &steps)
{
    QList<StepKind> kinds;
    for (const Step &step : steps)
        kinds << step.kind;
    return kinds;
}

} // namespace

TEST(MoveGroups, StepsBeforeTheFirstMoveAreInNone)
{
    const auto groups = moveGroups({stepOf(StepKind::click), stepOf(StepKind::type)});
    EXPECT_TRUE(groups.isEmpty());
}

TEST(MoveGroups, ActionsBelongToTheMoveBeforeThem)
{
    const auto groups =
        moveGroups({stepOf(StepKind::click), stepOf(StepKind::move), stepOf(StepKind::click),
                    stepOf(StepKind::rightClick), stepOf(StepKind::hold), stepOf(StepKind::move),
                    stepOf(StepKind::release), stepOf(StepKind::type), stepOf(StepKind::shortcut),
                    stepOf(StepKind::wait)});
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(kinds(groups[0].actions),
              QList({StepKind::click, StepKind::rightClick, StepKind::hold}));
    EXPECT_EQ(kinds(groups[1].actions),
              QList({StepKind::release, StepKind::type, StepKind::shortcut, StepKind::wait}));
}

TEST(MoveGroups, SectionsAndSwitchesJoinNone)
{
    const auto groups = moveGroups({stepOf(StepKind::move), stepOf(StepKind::section),
                                    stepOf(StepKind::switchApp), stepOf(StepKind::click)});
    ASSERT_EQ(groups.size(), 1);
    EXPECT_EQ(kinds(groups[0].actions), QList({StepKind::click}));
}

TEST(MoveGroups, NumbersCountAllStepsButSections)
{
    const auto groups =
        moveGroups({stepOf(StepKind::switchApp), stepOf(StepKind::section), stepOf(StepKind::move),
                    stepOf(StepKind::click), stepOf(StepKind::section), stepOf(StepKind::move)});
    ASSERT_EQ(groups.size(), 2);
    EXPECT_EQ(groups[0].number, 2);
    EXPECT_EQ(groups[1].number, 4);
}

TEST(ActionText, AWaitShowsItsPause)
{
    Step wait = stepOf(StepKind::wait);
    wait.duration = 7s;
    wait.pauseAfter = 1.5s;
    EXPECT_EQ(actionText(wait), "Wait 1.5s");
}

TEST(ActionText, AWaitsLengthIsWrittenAsTheUsersLanguageDoes)
{
    Step wait = stepOf(StepKind::wait);
    wait.pauseAfter = 1.5s;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    const QString german = actionText(wait);
    QLocale::setDefault(before);
    EXPECT_EQ(german, "Wait 1,5s");
}

TEST(ActionText, ATextOfSeveralLinesStaysOneLine)
{
    EXPECT_EQ(actionText(stepOf(StepKind::type, "one\ntwo")), "“one⏎two”");
}

TEST(ActionText, ATextOfTwentyCharactersShowsItsFirstFourteenInCurlyQuotes)
{
    EXPECT_EQ(actionText(stepOf(StepKind::type, "ABCDEFGHIJKLMNOPQRST")), "“ABCDEFGHIJKLMN”");
    EXPECT_EQ(actionText(stepOf(StepKind::type, "short")), "“short”");
}

TEST(ActionText, CharactersAreThoseAPersonSees)
{
    const QString families = QStringLiteral("👨‍👩‍👧").repeated(15);
    EXPECT_EQ(actionText(stepOf(StepKind::type, families)),
              "“" + QStringLiteral("👨‍👩‍👧").repeated(14) + "”");
}

TEST(ActionText, EmptyTextsAndShortcutsHaveAName)
{
    EXPECT_EQ(actionText(stepOf(StepKind::type)), "Type");
    EXPECT_EQ(actionText(stepOf(StepKind::shortcut)), "Keys");
}

TEST(ActionText, AShortcutShowsItsKeys)
{
    Step step = stepOf(StepKind::shortcut, "S");
    step.modifiers = 0x40000;
    EXPECT_EQ(actionText(step), "⌃S");
}

TEST(ActionText, TheOthersShowTheirKind)
{
    EXPECT_EQ(actionText(stepOf(StepKind::click)), "Click");
    EXPECT_EQ(actionText(stepOf(StepKind::rightClick)), "Right-click");
    EXPECT_EQ(actionText(stepOf(StepKind::hold)), "Hold (mouse down)");
    EXPECT_EQ(actionText(stepOf(StepKind::release)), "Release (mouse up)");
}

} // namespace velvane
