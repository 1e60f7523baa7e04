#include "editor/WindowStyle.h"

#include <QApplication>
#include <QKeyEvent>
#include <QStyleOption>

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct WindowStyleTest : testing::Test {
    WindowStyleTest() { style.polish(qApp); }
    ~WindowStyleTest() override { style.unpolish(qApp); }

    bool underlines() const
    {
        return style.styleHint(QStyle::SH_UnderlineShortcut, nullptr, nullptr, nullptr) != 0;
    }
    static void send(QEvent::Type type, int key)
    {
        QObject window;
        QKeyEvent event(type, key, Qt::NoModifier);
        QCoreApplication::sendEvent(&window, &event);
    }

    WindowStyle style;
};

} // namespace

TEST_F(WindowStyleTest, LettersAreUnderlinedWhileAltIsHeld)
{
    EXPECT_FALSE(underlines());
    send(QEvent::KeyPress, Qt::Key_Control);
    EXPECT_FALSE(underlines());
    send(QEvent::KeyPress, Qt::Key_Alt);
    EXPECT_TRUE(underlines());
    send(QEvent::KeyRelease, Qt::Key_Alt);
    EXPECT_FALSE(underlines());
}

TEST_F(WindowStyleTest, AltIsForgottenWhenAnotherProgramTakesTheKeyboard)
{
    send(QEvent::KeyPress, Qt::Key_Alt);
    QApplicationStateChangeEvent event(Qt::ApplicationInactive);
    QCoreApplication::sendEvent(qApp, &event);
    EXPECT_FALSE(underlines());
}

TEST_F(WindowStyleTest, MenusHaveRoundCorners)
{
    QStyleOption menu;
    menu.rect = QRect(0, 0, 100, 60);
    QStyleHintReturnMask mask;
    ASSERT_TRUE(style.styleHint(QStyle::SH_Menu_Mask, &menu, nullptr, &mask));
    EXPECT_FALSE(mask.region.contains(QPoint(0, 0)));
    EXPECT_FALSE(mask.region.contains(QPoint(99, 59)));
    EXPECT_TRUE(mask.region.contains(QPoint(50, 0)));
    EXPECT_TRUE(mask.region.contains(QPoint(99, 30)));
}

} // namespace velvane
