#include "editor/TabularText.h"
#include "editor/Theme.h"
#include "editor/TimeLabel.h"
#include "editor/TimeSlider.h"
#include "editor/VideoScrubBar.h"
#include "support/Print.h"

#include <QAccessible>
#include <QApplication>
#include <QLocale>
#include <QMouseEvent>
#include <QTranslator>

#include <gtest/gtest.h>

namespace velvane {

namespace {

/// A slider over 10 seconds whose track runs from 11 to 111.
class TimeSliderTest : public testing::Test {
protected:
    TimeSliderTest()
    {
        slider.resize(122, 24);
        slider.setTotal(10s);
        slider.setTime(4s);
        slider.setStep(0.5s);
        QObject::connect(&slider, &TimeSlider::timeRequested,
                         [this](Seconds time) { requested = time; });
    }

    void mouse(QEvent::Type type, double x, Qt::MouseButton button = Qt::LeftButton)
    {
        QMouseEvent event(type, {x, 12}, {x, 12}, button, button, Qt::NoModifier);
        QApplication::sendEvent(&slider, &event);
    }
    std::optional<Seconds> key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        requested = {};
        QKeyEvent event(QEvent::KeyPress, key, modifiers);
        QApplication::sendEvent(&slider, &event);
        return requested;
    }

    TimeSlider slider;
    std::optional<Seconds> requested;
};

} // namespace

TEST_F(TimeSliderTest, APressAsksForTheMomentUnderIt)
{
    mouse(QEvent::MouseButtonPress, 61);
    EXPECT_EQ(requested, 5s);
    EXPECT_EQ(slider.time(), 4s);
}

TEST_F(TimeSliderTest, ADragAsksForMomentsWithinTheTotal)
{
    mouse(QEvent::MouseButtonPress, 61);
    mouse(QEvent::MouseMove, 81);
    EXPECT_EQ(requested, 7s);
    mouse(QEvent::MouseMove, 500);
    EXPECT_EQ(requested, 10s);
    mouse(QEvent::MouseMove, -500);
    EXPECT_EQ(requested, 0s);
}

TEST_F(TimeSliderTest, OtherButtonsAskForNothing)
{
    mouse(QEvent::MouseButtonPress, 61, Qt::RightButton);
    EXPECT_FALSE(requested);
}

TEST_F(TimeSliderTest, KeysStepPageAndGoToTheEnds)
{
    EXPECT_EQ(key(Qt::Key_Right), 4.5s);
    EXPECT_EQ(key(Qt::Key_Left), 3.5s);
    EXPECT_EQ(key(Qt::Key_Up), 4.5s);
    EXPECT_EQ(key(Qt::Key_Down), 3.5s);
    EXPECT_EQ(key(Qt::Key_Right, Qt::ShiftModifier), 5s);
    EXPECT_EQ(key(Qt::Key_PageUp), 5s);
    EXPECT_EQ(key(Qt::Key_PageDown), 3s);
    EXPECT_EQ(key(Qt::Key_Home), 0s);
    EXPECT_EQ(key(Qt::Key_End), 10s);
    EXPECT_FALSE(key(Qt::Key_Space));
}

TEST_F(TimeSliderTest, KeysStayWithinTheTotal)
{
    slider.setTime(9.8s);
    EXPECT_EQ(key(Qt::Key_Right), 10s);
    slider.setTime(0.2s);
    EXPECT_EQ(key(Qt::Key_Left), 0s);
}

TEST_F(TimeSliderTest, WithNoTotalEveryWishIsTheStart)
{
    slider.setTotal(0s);
    mouse(QEvent::MouseButtonPress, 61);
    EXPECT_EQ(requested, 0s);
    slider.grab();
}

TEST_F(TimeSliderTest, ItsTextHasTenthsOfBothTimes)
{
    slider.setTime(3.24s);
    EXPECT_EQ(slider.timeText(), "3.2 / 10.0s");
}

TEST_F(TimeSliderTest, ItsTextIsWrittenAsTheUsersLanguageDoes)
{
    slider.setTime(3.24s);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::French, QLocale::France));
    const QString french = slider.timeText();
    QLocale::setDefault(before);
    EXPECT_EQ(french, "3,2 / 10,0s");
}

TEST_F(TimeSliderTest, ItsLabelHasRoomForTheTextInAnyLanguage)
{
    struct : QTranslator {
        bool isEmpty() const override { return false; }
        QString translate(const char *, const char *english, const char *, int) const override
        {
            return english == QByteArray("%1 / %2s") ? QString("%1 / %2 seconds") : QString();
        }
    } language;
    QCoreApplication::installTranslator(&language);
    const TimeLabel label(slider, TimeLabel::Tone::text, nullptr);
    slider.setTime(slider.total());
    EXPECT_EQ(label.accessibleName(), "10.0 / 10.0 seconds");
    EXPECT_GE(label.sizeHint().width(),
              TabularText::width(QFontMetricsF(Theme::font()), label.accessibleName()));
    QCoreApplication::removeTranslator(&language);
}

TEST_F(TimeSliderTest, AScreenReaderReadsAndSetsItsValue)
{
    QAccessibleInterface *slide = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_TRUE(slide);
    EXPECT_EQ(slide->role(), QAccessible::Slider);
    EXPECT_EQ(slide->text(QAccessible::Value), "4.0 / 10.0s");
    QAccessibleValueInterface *value = slide->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->currentValue().toDouble(), 4);
    EXPECT_EQ(value->minimumValue().toDouble(), 0);
    EXPECT_EQ(value->maximumValue().toDouble(), 10);
    EXPECT_EQ(value->minimumStepSize().toDouble(), 0.5);
    value->setCurrentValue(7.25);
    EXPECT_EQ(requested, 7.25s);
    value->setCurrentValue(99);
    EXPECT_EQ(requested, 10s);
}

TEST_F(TimeSliderTest, TheLabelKeepsItsWidthWhileTheTimeRuns)
{
    TimeLabel label(slider, TimeLabel::Tone::text, nullptr);
    slider.setTime(1.1s);
    const int width = label.sizeHint().width();
    slider.setTime(8.8s);
    EXPECT_EQ(label.sizeHint().width(), width);
    slider.setTotal(100s);
    EXPECT_GT(label.sizeHint().width(), width);
}

TEST_F(TimeSliderTest, AlignedLabelsAreAsWideAsTheWider)
{
    TimeSlider longSlider;
    longSlider.setTotal(1000s);
    TimeLabel label(slider, TimeLabel::Tone::text, nullptr);
    TimeLabel other(longSlider, TimeLabel::Tone::secondary, nullptr);
    EXPECT_LT(label.sizeHint().width(), other.sizeHint().width());
    label.alignWith(other);
    EXPECT_EQ(label.sizeHint().width(), other.sizeHint().width());
}

TEST(VideoScrubBar, ItReportsTheWishAndShowsWhatItIsTold)
{
    VideoScrubBar bar;
    std::optional<Seconds> requested;
    QObject::connect(&bar, &VideoScrubBar::frameRequested, [&](Seconds time) { requested = time; });
    bar.setDuration(13.4s);
    bar.setCurrentTime(4.9s);
    EXPECT_EQ(bar.slider().timeText(), "4.9 / 13.4s");
    QKeyEvent end(QEvent::KeyPress, Qt::Key_End, Qt::NoModifier);
    QApplication::sendEvent(&bar.slider(), &end);
    EXPECT_EQ(requested, 13.4s);
    EXPECT_EQ(bar.slider().time(), 4.9s);
}

} // namespace velvane
