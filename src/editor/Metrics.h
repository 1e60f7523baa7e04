#pragma once

namespace velvane {

/// Measures of the window, in logical pixels on a 4-point grid.
namespace Metrics {

inline constexpr int toolbarHeight = 44;
inline constexpr int transportHeight = 56;
inline constexpr int recordingBarHeight = 36;
inline constexpr int statusLineHeight = 26;

inline constexpr int sidebarWidth = 300;
inline constexpr int sidebarMinimum = 240;
inline constexpr int sidebarMaximum = 420;
inline constexpr int inspectorWidth = 280;
inline constexpr int inspectorMinimum = 240;
inline constexpr int inspectorMaximum = 360;

inline constexpr int gap = 8;
inline constexpr int wideGap = 12;
inline constexpr int pagePadding = 14;
inline constexpr int labelColumn = 64;
inline constexpr int buttonHeight = 28;
inline constexpr int fieldHeight = 26;
inline constexpr int fieldWidth = 62;
inline constexpr int toolButtonWidth = 30;

inline constexpr int radius = 6;
inline constexpr int segmentRadius = 5;
inline constexpr int menuRadius = 8;
inline constexpr int cardRadius = 10;

inline constexpr int icon = 18;
inline constexpr int tileIcon = 16;
inline constexpr int chevron = 12;
inline constexpr int hitArea = 22;

} // namespace Metrics

} // namespace velvane
