#pragma once

class QWidget;

namespace velvane {

/// What the bars under the stage share, so that they align: controls 62 pixels wide, a slider, and
/// the time at the right.
namespace BarLayout {

inline constexpr int leftMargin = 12;
inline constexpr int controlsWidth = 62;
inline constexpr int betweenButtons = 2;
inline constexpr int beforeLabel = 6;
inline constexpr int rightMargin = 13;

/// The bar's ground, with a hairline at the top.
void paintGround(QWidget &bar);

} // namespace BarLayout

} // namespace velvane
