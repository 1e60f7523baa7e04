#include "editor/NumberField.h"
#include "support/Print.h"

#include <QApplication>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace velvane {

namespace {

void press(QWidget &widget, int key, Qt::KeyboardModifiers modifiers = {}, const QString &text = {})
{
    QKeyEvent event(QEvent::KeyPress, key, modifiers, text);
    QApplication::sendEvent(&widget, &event);
}

struct Fixture {
    explicit Fixture(NumberField::Kind kind) : field(kind, "Pause", "Rest after the action.")
    {
        QObject::connect(&field, &NumberField::bumped, [this](double by) { bumps << by; });
        QObject::connect(&field, &NumberField::valueTyped, [this](double to) { typed << to; });
        field.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    NumberField field;
    QList<double> bumps;
    QList<double> typed;
};

} // namespace

TEST(NumberField, IsSixtyTwoWide)
{
    EXPECT_EQ(NumberField(NumberField::Kind::seconds, {}, {}).width(), 62);
}

TEST(NumberField, SecondsAreBumpedByATenthAndByASecond)
{
    Fixture f(NumberField::Kind::seconds);
    press(f.field, Qt::Key_Up);
    press(f.field, Qt::Key_Down);
    press(f.field, Qt::Key_Up, Qt::ShiftModifier);
    press(f.field, Qt::Key_PageDown);
    EXPECT_EQ(f.bumps, (QList<double>{0.1, -0.1, 1, -1}));
}

TEST(NumberField, CoordinatesAreBumpedByOneAndByTen)
{
    Fixture f(NumberField::Kind::coordinate);
    press(f.field, Qt::Key_Up);
    press(f.field, Qt::Key_Down, Qt::ShiftModifier);
    press(f.field, Qt::Key_PageUp);
    EXPECT_EQ(f.bumps, (QList<double>{1, -10, 10}));
}

TEST(NumberField, DecimalsAreTheLocales)
{
    NumberField field(NumberField::Kind::seconds, {}, {});
    field.setLocale(QLocale(QLocale::German, QLocale::Germany));
    field.setValue(1.2);
    EXPECT_EQ(field.text(), "1,2");
    field.setText("2,5");
    EXPECT_EQ(field.value(), 2.5);
}

TEST(NumberField, EitherDecimalSignWillDo)
{
    NumberField field(NumberField::Kind::seconds, {}, {});
    field.setLocale(QLocale(QLocale::German, QLocale::Germany));
    field.setText("2.5");
    EXPECT_EQ(field.value(), 2.5);
    field.setLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    field.setText("2,5");
    EXPECT_EQ(field.value(), 2.5);
    field.setText("1,234.5");
    EXPECT_EQ(field.value(), 1234.5);
    field.setText("2,5,1");
    EXPECT_EQ(field.value(), std::nullopt);
}

TEST(NumberField, FiveDigitsAreSeenInLargeLetters)
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPixelSize(26);
    QApplication::setFont(large);
    const NumberField field(NumberField::Kind::coordinate, {}, {});
    QApplication::setFont(before);
    EXPECT_GT(field.width(), QFontMetrics(large).horizontalAdvance("10000"));
    EXPECT_GE(field.height(), QFontMetrics(large).height());
}

TEST(NumberField, SecondsShowOneDecimalAndMoreOnlyWhereTheValueHasThem)
{
    NumberField field(NumberField::Kind::seconds, {}, {});
    field.setLocale(QLocale::c());
    EXPECT_EQ(field.format(1), "1.0");
    EXPECT_EQ(field.format(0.25), "0.25");
    EXPECT_EQ(field.format(0.1 + 0.2), "0.3");
}

TEST(NumberField, CoordinatesShowWholePoints)
{
    NumberField field(NumberField::Kind::coordinate, {}, {});
    field.setLocale(QLocale::c());
    EXPECT_EQ(field.format(470), "470");
    EXPECT_EQ(field.format(12.5), "12.5");
}

TEST(NumberField, ALongNumberIsSeenFromItsBeginning)
{
    NumberField field(NumberField::Kind::seconds, {}, {});
    field.setValue(1234567.8);
    EXPECT_EQ(field.cursorPosition(), 0);
}

TEST(NumberField, TypingGivesTheValueAndKeepsTheTextAsTyped)
{
    Fixture f(NumberField::Kind::seconds);
    f.field.setValue(3);
    // The owner keeps values above 0.5.
    QObject::connect(&f.field, &NumberField::valueTyped,
                     [&](double to) { f.field.setValue(std::max(to, 0.5)); });
    f.field.clear();
    press(f.field, Qt::Key_0, {}, "0");
    EXPECT_EQ(f.typed, QList<double>{0});
    EXPECT_EQ(f.field.text(), "0");
}

TEST(NumberField, AValueFromElsewhereReplacesWhatIsTyped)
{
    Fixture f(NumberField::Kind::seconds);
    f.field.setValue(3);
    f.field.selectAll();
    press(f.field, Qt::Key_2, {}, "2");
    f.field.setValue(4);
    EXPECT_EQ(f.field.text(), "4.0");
}

TEST(NumberField, WhatIsNoNumberGivesWayToTheValueWhenTheFieldIsLeft)
{
    Fixture f(NumberField::Kind::seconds);
    f.field.setValue(3);
    f.field.selectAll();
    press(f.field, Qt::Key_X, {}, "x");
    EXPECT_TRUE(f.typed.isEmpty());

    QFocusEvent left(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&f.field, &left);
    EXPECT_EQ(f.field.text(), "3.0");
}

TEST(NumberField, ItsHelpNamesTheKeysOfTheLargerStep)
{
    const NumberField field(NumberField::Kind::seconds, "Pause", "Rest after the action.");
    EXPECT_TRUE(field.toolTip().contains("Page Up"));
    EXPECT_TRUE(field.toolTip().contains("Shift"));
    EXPECT_EQ(field.accessibleName(), "Pause");
}

} // namespace velvane
