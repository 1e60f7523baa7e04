#include "editor/RowSlide.h"

#include "support/Pixels.h"

#include <QApplication>
#include <QListView>
#include <QProxyStyle>
#include <QScrollBar>
#include <QStringListModel>
#include <QStyledItemDelegate>

#include <gtest/gtest.h>

namespace velvane {

namespace {

/// A list that slides, of rows 20 pixels high, each of a colour of its own.
class SlidingList : public QListView {
public:
    explicit SlidingList(int animation)
    {
        auto *style = new Style(animation);
        style->setParent(this);
        setStyle(style);
        setItemDelegate(new Rows(this));
        setFrameShape(QFrame::NoFrame);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollMode(ScrollPerPixel);
        setModel(&rows);
        resize(60, 100);
        show();
        QApplication::processEvents();
    }

    void insert(int at, const QStringList &colors)
    {
        slide.rowsWillCome(at);
        QStringList all = rows.stringList();
        for (int i = 0; i < colors.size(); ++i)
            all.insert(at + i, colors[i]);
        set(all);
        slide.settle(at + int(colors.size()) - 1);
    }
    void remove(int first, int last)
    {
        slide.rowsWillGo(first, last);
        QStringList all = rows.stringList();
        all.remove(first, last - first + 1);
        set(all);
        slide.settle(-1);
    }
    /// The colour of each ten pixels' height, at that time.
    QStringList stripes(int milliseconds)
    {
        QApplication::processEvents();
        if (slide.isRunning())
            slide.animation().pause();
        slide.animation().setCurrentTime(milliseconds);
        const QImage image = viewport()->grab().toImage();
        QStringList colors;
        for (int y = 5; y < image.height(); y += 10)
            colors << image.pixelColor(5, y).name();
        return colors;
    }

    QStringListModel rows{{"#ff0000", "#00ff00", "#0000ff"}};
    RowSlide slide{*this};

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QPainter painter(viewport());
        if (slide.paint(painter))
            return;
        painter.end();
        QListView::paintEvent(event);
    }

private:
    class Style : public QProxyStyle {
    public:
        explicit Style(int animation) : m_animation(animation) {}
        int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                      QStyleHintReturn *data) const override
        {
            return hint == SH_Widget_Animation_Duration
                       ? m_animation
                       : QProxyStyle::styleHint(hint, option, widget, data);
        }

    private:
        int m_animation;
    };
    class Rows : public QStyledItemDelegate {
    public:
        using QStyledItemDelegate::QStyledItemDelegate;
        void paint(QPainter *painter, const QStyleOptionViewItem &option,
                   const QModelIndex &index) const override
        {
            painter->fillRect(option.rect, QColor(index.data().toString()));
        }
        QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
        {
            return {60, 20};
        }
    };

    void set(const QStringList &all)
    {
        rows.setStringList(all);
        executeDelayedItemsLayout();
    }
};

const QString red = "#ff0000";
const QString green = "#00ff00";
const QString blue = "#0000ff";
const QString black = "#000000";

} // namespace

TEST(RowSlide, RowsThatComePushDownWhatLiesBelow)
{
    SlidingList list(200);
    list.insert(1, {black, black});
    EXPECT_EQ(list.stripes(0).first(6), QStringList({red, red, green, green, blue, blue}));
    // Eased out, 7/8 of the way at half the time: 35 of 40 pixels.
    EXPECT_EQ(list.stripes(60).mid(1, 6), QStringList({red, black, black, black, green, green}));
    EXPECT_EQ(list.stripes(120), list.stripes(121));
    EXPECT_EQ(list.stripes(121).first(8),
              QStringList({red, red, black, black, black, black, green, green}));
}

TEST(RowSlide, RowsThatGoPullUpWhatLiesBelow)
{
    SlidingList list(200);
    list.remove(0, 1);
    EXPECT_EQ(list.stripes(0).first(6), QStringList({red, red, green, green, blue, blue}));
    EXPECT_EQ(list.stripes(60).mid(1, 1), QStringList{blue});
    EXPECT_EQ(list.stripes(121).first(2), QStringList({blue, blue}));
}

TEST(RowSlide, NothingSlidesWhereTheDesktopWantsNoAnimations)
{
    SlidingList list(0);
    list.insert(1, {black});
    QApplication::processEvents();
    EXPECT_FALSE(list.slide.isRunning());
}

TEST(RowSlide, WhatScrollsDoesNotSlide)
{
    SlidingList list(200);
    list.insert(3, {black, black, black, black});
    list.verticalScrollBar()->setValue(20);
    QApplication::processEvents();
    EXPECT_FALSE(list.slide.isRunning());
}

TEST(RowSlide, TwoChangesAtOnceDoNotSlide)
{
    SlidingList list(200);
    list.insert(1, {black});
    list.insert(0, {black});
    QApplication::processEvents();
    EXPECT_FALSE(list.slide.isRunning());
}

} // namespace velvane
