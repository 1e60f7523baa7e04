#include "editor/StepRowLayout.h"

#include "editor/Metrics.h"

namespace velvane {

namespace {

constexpr int rowHeight = 34;
constexpr int sectionExtra = 5;
constexpr int inset = 6;
constexpr int numberWidth = 26;
constexpr int gap = 6;
constexpr int indent = 10;
constexpr int tileSize = 22;
constexpr int summaryGap = 8;
constexpr int rightPadding = 7;
constexpr int leastDuration = 28;
// Narrower lists have no room for the duration beside the buttons.
constexpr int roomyWidth = 280;

QRect square(int left, const QRect &in, int size)
{
    return {left, in.top() + (in.height() - size) / 2, size, size};
}

} // namespace

int StepRowLayout::height(bool isSection, bool isFirst)
{
    return isSection && !isFirst ? rowHeight + sectionExtra : rowHeight;
}

StepRowLayout StepRowLayout::of(const QRect &row, const Row &kind)
{
    StepRowLayout layout;
    layout.fill = row.adjusted(inset, 0, -inset, 0);
    if (kind.isSection && !kind.isFirst) {
        layout.hairline = QRect(row.left() + gap, row.top() + 2, row.width() - 2 * gap, 1);
        layout.fill.setTop(row.top() + sectionExtra);
    }
    const QRect &fill = layout.fill;
    layout.number = QRect(fill.left(), fill.top(), numberWidth, fill.height());
    int left = layout.number.right() + 1 + gap;
    if (kind.isSection) {
        layout.chevron = square(left - Metrics::hitArea - 3, fill, Metrics::hitArea);
        layout.number = {};
    } else {
        layout.tile = square(left + (kind.isIndented ? indent : 0), fill, tileSize);
        left = layout.tile.right() + 1 + summaryGap;
    }

    int right = fill.right() + 1 - rightPadding;
    if (!kind.isRevealed || row.width() >= roomyWidth) {
        const int width = std::max(leastDuration, kind.durationWidth);
        layout.duration = QRect(right - width, fill.top(), width, fill.height());
        right = layout.duration.left() - gap;
    }
    if (kind.isRevealed) {
        layout.remove = square(right - Metrics::hitArea, fill, Metrics::hitArea);
        layout.run = layout.remove.translated(-Metrics::hitArea, 0);
        right = layout.run.left() - 4;
    }
    layout.summary = QRect(left, fill.top(), std::max(0, right - left), fill.height());
    return layout;
}

} // namespace velvane
