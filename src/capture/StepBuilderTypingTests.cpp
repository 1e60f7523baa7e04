#include "capture/StepBuilderFixture.h"

namespace velvane {

using Kinds = QList<StepKind>;

TEST_F(StepBuilderFixture, TypedLettersAreOneTextBeforeTheClickThatFollows)
{
    type("hello");
    EXPECT_TRUE(steps().isEmpty());
    click({900, 500});
    ASSERT_EQ(kinds(), Kinds({StepKind::type, StepKind::move, StepKind::click}));
    EXPECT_EQ(steps()[0].text, "hello");
    EXPECT_DOUBLE_EQ(steps()[0].duration.count(), 0.4);
}

TEST_F(StepBuilderFixture, ATextTakesItsTimeWithinBounds)
{
    const auto durationOf = [this](qsizetype count) {
        type(QString(count, 'x'));
        key(KeyCode::returnKey);
        return steps()[steps().size() - 2].duration.count();
    };
    EXPECT_DOUBLE_EQ(durationOf(5), 0.4);
    EXPECT_DOUBLE_EQ(durationOf(20), 1.2);
    EXPECT_DOUBLE_EQ(durationOf(100), 4.0);
}

TEST_F(StepBuilderFixture, WhatAPersonTakesForOneCharacterCountsAsOne)
{
    for (int i = 0; i < 10; ++i) {
        key(0, 0, "e");
        key(0, 0, QString(QChar(0x301)));
    }
    EXPECT_DOUBLE_EQ(builder.finish(now)[0].duration.count(), 0.6);
}

TEST_F(StepBuilderFixture, WhatIsStillWaitingAtTheEndBecomesAText)
{
    type("end");
    const QList<Step> recorded = builder.finish(now);
    ASSERT_EQ(recorded.size(), 1);
    EXPECT_EQ(recorded[0].text, "end");
    EXPECT_FALSE(builder.isCapturing());
}

TEST_F(StepBuilderFixture, ACombinationIsAShortcut)
{
    key(8, Modifier::command);
    key(6, Modifier::command | Modifier::shift);
    ASSERT_EQ(kinds(), Kinds({StepKind::shortcut, StepKind::shortcut}));
    EXPECT_EQ(steps()[0].keyCode, 8);
    EXPECT_EQ(steps()[0].modifiers, 0x100000U);
    EXPECT_EQ(steps()[0].text, "");
    EXPECT_EQ(steps()[1].keyCode, 6);
    EXPECT_EQ(steps()[1].modifiers, 0x120000U);
}

TEST_F(StepBuilderFixture, OnlyTheFourModifiersAreKept)
{
    key(8, Modifier::control | Modifier::option | 0x10000U | 0x800000U | 1U);
    EXPECT_EQ(steps()[0].modifiers, Modifier::control | Modifier::option);
}

TEST_F(StepBuilderFixture, AKeyWithoutACharacterIsAShortcutWithoutModifiers)
{
    key(KeyCode::returnKey);
    key(KeyCode::tab, 0, "\t");
    key(KeyCode::backspace, 0, QString(QChar(127)));
    // Shift alone makes no combination, and is dropped.
    key(KeyCode::leftArrow, Modifier::shift);
    ASSERT_EQ(steps().size(), 4);
    EXPECT_EQ(steps()[0].keyCode, 36);
    for (const Step &step : steps()) {
        EXPECT_EQ(step.kind, StepKind::shortcut);
        EXPECT_EQ(step.modifiers, 0U);
    }
}

TEST_F(StepBuilderFixture, ShiftWithALetterIsText)
{
    key(0, Modifier::shift, "A");
    EXPECT_EQ(builder.finish(now)[0].text, "A");
}

// Systems whose arrows and function keys yield private characters have them typed.
TEST_F(StepBuilderFixture, APrivateCharacterIsText)
{
    key(KeyCode::upArrow, 0, QString(QChar(0xF700)));
    EXPECT_EQ(builder.finish(now)[0].kind, StepKind::type);
}

TEST_F(StepBuilderFixture, EscapeIsNeitherRecordedNorDoesItEndAText)
{
    type("ab");
    key(KeyCode::escape);
    key(KeyCode::escape, Modifier::command);
    key(KeyCode::escape, 0, "x");
    type("cd");
    const QList<Step> recorded = builder.finish(now);
    ASSERT_EQ(recorded.size(), 1);
    EXPECT_EQ(recorded[0].text, "abcd");
}

TEST_F(StepBuilderFixture, ShortcutsSwitchesAndRightPressesEndATextFirst)
{
    type("a");
    key(8, Modifier::command);
    type("b");
    key(KeyCode::returnKey);
    type("c");
    switchTo("Notes");
    type("d");
    rightClick(start);
    EXPECT_EQ(kinds(),
              Kinds({StepKind::type, StepKind::shortcut, StepKind::type, StepKind::shortcut,
                     StepKind::type, StepKind::switchApp, StepKind::type, StepKind::rightClick}));
}

// Only a press ends a text, not a rest.
TEST_F(StepBuilderFixture, APointerThatRestsWhileTypingMovesBeforeTheText)
{
    type("ab");
    moveTo({900, 500});
    rest(1s);
    type("c");
    key(KeyCode::returnKey);
    EXPECT_EQ(kinds(), Kinds({StepKind::move, StepKind::type, StepKind::shortcut}));
    EXPECT_EQ(steps()[1].text, "abc");
}

TEST_F(StepBuilderFixture, AnIdleTimeIsThePauseOfTheStepBefore)
{
    click(start);
    now += 1.26s;
    click(start);
    now += 10s;
    click(start);
    EXPECT_DOUBLE_EQ(steps()[0].pauseAfter.count(), 1.3);
    EXPECT_DOUBLE_EQ(steps()[1].pauseAfter.count(), 2.5);
    // The last keeps its own.
    EXPECT_DOUBLE_EQ(steps()[2].pauseAfter.count(), 0.3);
}

TEST_F(StepBuilderFixture, ThePauseBeforeATextIsTheTimeItTookToType)
{
    click(start);
    now += 2s;
    type("a");
    now += 0.5s;
    type("b");
    now += 0.2s;
    key(KeyCode::returnKey);
    EXPECT_DOUBLE_EQ(steps()[0].pauseAfter.count(), 0.7);
    EXPECT_DOUBLE_EQ(steps()[1].pauseAfter.count(), 0);
    EXPECT_DOUBLE_EQ(steps()[1].recordedOffset->count(), 2.7);
}

TEST_F(StepBuilderFixture, AClockThatJumpsBackYieldsNoPauseAndNoEarlierOffset)
{
    now += 5s;
    click(start);
    now -= 60s;
    click(start);
    now += 1s;
    click(start);
    EXPECT_EQ(steps()[0].pauseAfter, 0s);
    EXPECT_EQ(steps()[1].pauseAfter, 1s);
    for (const Step &step : steps())
        EXPECT_EQ(step.recordedOffset, 5s);
}

TEST_F(StepBuilderFixture, AClockThatJumpsAheadYieldsTheLongestPause)
{
    click(start);
    now += 1e9s;
    click(start);
    EXPECT_EQ(steps()[0].pauseAfter, 2.5s);
}

TEST_F(StepBuilderFixture, AKeyThatCannotBePressedAgainIsLeftOutAndEndsAText)
{
    type("a");
    key(InputEvent::noKey);
    key(InputEvent::noKey, Modifier::command);
    type("b");
    builder.finish(now);
    EXPECT_EQ(kinds(), Kinds({StepKind::type, StepKind::type}));
}

TEST_F(StepBuilderFixture, HalvesOfCharactersAreNoText)
{
    const QString half(QChar(0xD83D));
    key(0, 0, half);
    key(0, 0, half + "a");
    key(0, 0, QStringLiteral("😀"));
    const QList<Step> recorded = builder.finish(now);
    ASSERT_EQ(kinds(), Kinds({StepKind::shortcut, StepKind::type}));
    EXPECT_EQ(recorded[1].text, QStringLiteral("a😀"));
}

TEST_F(StepBuilderFixture, OneKeyTypesFourUnitsAtMostAndNoHalf)
{
    key(0, 0, "abcdef");
    EXPECT_EQ(builder.finish(now)[0].text, "abcd");
    StepBuilder other({1280, 800}, start, now);
    other.setCapturing(true, now);
    other.handle({.kind = Kind::keyDown, .text = QStringLiteral("abc😀"), .time = now});
    EXPECT_EQ(other.finish(now)[0].text, "abc");
}

} // namespace velvane
