#include "capture/HeldKey.h"

#include "support/Print.h"

#include <QCoreApplication>
#include <QKeyEvent>

#include <gtest/gtest.h>

namespace velvane {

namespace {

constexpr quint32 r = 27;
constexpr quint32 t = 28;
constexpr auto override = QEvent::ShortcutOverride;
constexpr auto press = QEvent::KeyPress;
constexpr auto release = QEvent::KeyRelease;

/// Counts the key events that get through.
class Receiver : public QObject {
public:
    bool event(QEvent *event) override
    {
        ++m_count;
        event->ignore();
        return true;
    }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

struct HeldKeyTest : testing::Test {
    /// Does an event of a key, at a time of the server's in milliseconds, get through?
    bool passes(QEvent::Type type, quint32 scanCode, quint64 time, bool isMarked = false)
    {
        const int before = receiver.count();
        QKeyEvent event(type, Qt::Key_R, Qt::ControlModifier, scanCode, 0, 0, {}, isMarked);
        event.setTimestamp(time);
        event.ignore();
        QCoreApplication::sendEvent(&receiver, &event);
        const bool passed = receiver.count() > before;
        EXPECT_NE(event.isAccepted(), passed) << "what is kept back is no shortcut either";
        return passed;
    }
    /// Whether the release of a repeat is marked too depends on when the press arrives.
    bool repeatPasses(quint64 time, bool isMarked)
    {
        passes(release, r, time, isMarked);
        const bool asShortcut = passes(override, r, time, isMarked);
        return passes(press, r, time, isMarked) || asShortcut;
    }

    Receiver receiver;
    HeldKey key;
};

} // namespace

TEST_F(HeldKeyTest, NothingIsKeptBackAtFirst)
{
    EXPECT_TRUE(repeatPasses(100, true));
}

TEST_F(HeldKeyTest, RepeatsAreKeptBackMarkedOrNot)
{
    key.hold(r);
    quint64 time = 100;
    for (const bool isMarked : {true, false, false, true, true, false})
        EXPECT_FALSE(repeatPasses(time += 33, isMarked));
}

TEST_F(HeldKeyTest, TheNextPressAfterItCameUpGetsThrough)
{
    key.hold(r);
    EXPECT_FALSE(repeatPasses(100, false));
    EXPECT_TRUE(passes(release, r, 150));
    EXPECT_TRUE(passes(override, r, 180));
    EXPECT_TRUE(passes(press, r, 180));
    EXPECT_TRUE(repeatPasses(400, true)) << "this one is held for the menu";
}

TEST_F(HeldKeyTest, AnotherKeyGetsThroughAndItsRepeatsToo)
{
    key.hold(r);
    EXPECT_TRUE(passes(override, t, 100));
    EXPECT_TRUE(passes(press, t, 100));
    EXPECT_TRUE(passes(press, t, 300, true));
    EXPECT_FALSE(repeatPasses(400, false)) << "it is still down";
}

TEST_F(HeldKeyTest, AModifierThatComesUpAfterItEndsIt)
{
    key.hold(r);
    passes(release, r, 100);
    EXPECT_TRUE(passes(release, 37, 120));
    EXPECT_TRUE(passes(press, r, 300, true));
}

TEST_F(HeldKeyTest, CopiesWithoutATimeChangeNothing)
{
    key.hold(r);
    EXPECT_TRUE(passes(release, r, 100));
    EXPECT_TRUE(passes(release, r, 0));
    EXPECT_FALSE(passes(override, r, 100));
    EXPECT_FALSE(passes(press, r, 100));
    EXPECT_FALSE(passes(press, r, 0, true)) << "the copy of a repeat";
    EXPECT_FALSE(repeatPasses(133, false));
}

TEST_F(HeldKeyTest, AKeyWithoutANumberIsNotHeld)
{
    key.hold(0);
    EXPECT_TRUE(passes(press, 0, 0, true));
}

} // namespace velvane
