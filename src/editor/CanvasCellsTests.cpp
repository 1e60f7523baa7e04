#include "editor/CanvasCells.h"

#include <gtest/gtest.h>

namespace velvane {

namespace {

const QSizeF view(320, 200);

/// The cells that have items.
std::vector<int> filled(const CanvasCells &cells)
{
    return cells.changedSince(CanvasCells());
}

} // namespace

TEST(CanvasCells, ACellBelongsToEachThatTheViewTouches)
{
    const CanvasCells cells(view);
    EXPECT_EQ(cells.columns(), 10);
    EXPECT_EQ(cells.count(), 70);
    EXPECT_EQ(CanvasCells().count(), 0);
}

TEST(CanvasCells, AnItemIsInTheCellsThatItTouches)
{
    CanvasCells cells(view);
    cells.add(7, QRectF(40, 10, 30, 10), 1);
    EXPECT_EQ(filled(cells), (std::vector{1, 2}));
    EXPECT_EQ(cells.items(2), std::vector{7});
}

TEST(CanvasCells, WhatLiesOutsideTheViewIsInNone)
{
    CanvasCells cells(view);
    cells.add(0, QRectF(-90, -90, 30, 30), 1);
    cells.add(1, QRectF(5000, 50, 30, 30), 1);
    cells.add(2, QLineF(-1e9, -50, 1e9, -50), 3, 1);
    cells.add(3, QLineF(400, -1e9, 400, 1e9), 3, 1);
    EXPECT_TRUE(filled(cells).empty());
}

TEST(CanvasCells, ALineIsInTheCellsAlongItOnly)
{
    CanvasCells cells(view);
    cells.add(0, QLineF(16, 16, 304, 176), 3.5, 1);
    for (int cell = 0; cell < cells.count(); ++cell) {
        const QRectF rect = cells.rect(cell);
        // How far the cell's middle is from the line.
        const QPointF from = rect.center() - QPointF(16, 16);
        const double away = std::abs(from.x() * 160 - from.y() * 288) / std::hypot(160, 288);
        const bool isIn = !cells.items(cell).empty();
        EXPECT_TRUE(isIn || away >= 16) << cell;
        EXPECT_TRUE(!isIn || away <= 40) << cell;
    }
}

TEST(CanvasCells, AVerticalLineFillsItsColumn)
{
    CanvasCells cells(view);
    cells.add(0, QLineF(48, 200, 48, 0), 3.5, 1);
    EXPECT_EQ(filled(cells), (std::vector{1, 11, 21, 31, 41, 51, 61}));
}

TEST(CanvasCells, ACellHasChangedWhenItsItemsLookOtherwise)
{
    CanvasCells before(view);
    before.add(0, QRectF(5, 5, 10, 10), 1);
    before.add(1, QRectF(100, 100, 10, 10), 2);
    CanvasCells after(view);
    after.add(0, QRectF(5, 5, 10, 10), 1);
    after.add(1, QRectF(100, 100, 10, 10), 3);
    EXPECT_EQ(after.changedSince(before), std::vector{33});
    EXPECT_TRUE(after.changedSince(after).empty());
}

TEST(CanvasCells, ACellHasChangedWhenItsItemsChangePlaces)
{
    CanvasCells before(view);
    before.add(0, QRectF(5, 5, 10, 10), 1);
    before.add(1, QRectF(8, 8, 10, 10), 2);
    CanvasCells after(view);
    after.add(0, QRectF(8, 8, 10, 10), 2);
    after.add(1, QRectF(5, 5, 10, 10), 1);
    EXPECT_EQ(after.changedSince(before), std::vector{0});
}

TEST(CanvasCells, ACellThatIsEmptiedHasChanged)
{
    CanvasCells before(view);
    before.add(0, QRectF(5, 5, 10, 10), 1);
    EXPECT_EQ(CanvasCells(view).changedSince(before), std::vector{0});
}

TEST(CanvasCells, TheRegionOfCellsIsWhatTheyCover)
{
    const CanvasCells cells(view);
    EXPECT_EQ(cells.region({1, 2, 12, 40}),
              QRegion(32, 0, 64, 32) + QRegion(64, 32, 32, 32) + QRegion(0, 128, 32, 32));
    EXPECT_TRUE(cells.region({}).isEmpty());
}

} // namespace velvane
