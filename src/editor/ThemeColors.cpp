#include "editor/ThemeColors.h"

namespace velvane {

namespace {

// White text on a primary button reaches this contrast.
constexpr double readableContrast = 4.5;
constexpr double darkSelectionMix = 0.28;
constexpr double lightSelectionMix = 0.16;
constexpr int hoverLightness = 108;
constexpr int pressedDarkness = 115;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
           + 0.0722 * linear(color.blueF());
}

QColor mixed(const QColor &base, const QColor &over, double share)
{
    const auto channel = [share](int below, int above) {
        return int(std::lround(below + (above - below) * share));
    };
    return {channel(base.red(), over.red()), channel(base.green(), over.green()),
            channel(base.blue(), over.blue())};
}

QColor darkenedForWhiteText(QColor color)
{
    while (contrast(color, Qt::white) < readableContrast)
        color = color.darker(102);
    return color;
}

} // namespace

double contrast(const QColor &a, const QColor &b)
{
    const double first = luminance(a) + 0.05;
    const double second = luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

ThemeColors ThemeColors::dark()
{
    return {.isDark = true,
            .window = 0x232428,
            .base = 0x1D1E22,
            .stage = 0x121316,
            .canvasHairline = 0x3A3C42,
            .hairline = 0x34363C,
            .field = 0x18191C,
            .fieldBorder = 0x4A4D56,
            .button = 0x34363C,
            .buttonBorder = 0x484B54,
            .buttonHover = 0x3D4047,
            .buttonPressed = 0x2A2C31,
            .trough = 0x18191C,
            .troughBorder = 0x34363C,
            .segmentChecked = 0x3D4048,
            .menu = 0x2A2C31,
            .menuBorder = 0x45484F,
            .text = 0xECEDF0,
            .secondary = 0xA6AAB3,
            .tertiary = 0x8E929C,
            .disabled = 0x60646D,
            .rowHover = 0x27292E,
            .selection = 0x26364F,
            .inactiveSelection = 0x303238,
            .accent = 0x3D7EFF,
            .primary = 0x2C68E6,
            .primaryHover = 0x3671EC,
            .primaryPressed = 0x2357C6,
            .destructive = 0xFF7B72,
            .track = 0x3A3C43,
            .trackPlayed = 0xA6AAB3,
            .trackCurrent = 0x60646D,
            .knob = 0xECEDF0,
            .liveCapsule = QColor(0xDE, 0x2C, 0x26, 217)};
}

ThemeColors ThemeColors::light()
{
    return {.isDark = false,
            .window = 0xF3F4F6,
            .base = 0xFBFBFC,
            .stage = 0x2B2D32,
            .canvasHairline = 0x43464D,
            .hairline = 0xDCDEE4,
            .field = 0xFFFFFF,
            .fieldBorder = 0xBBBFC9,
            .button = 0xFFFFFF,
            .buttonBorder = 0xC3C7D0,
            .buttonHover = 0xF6F7F9,
            .buttonPressed = 0xE6E8EC,
            .trough = 0xE6E8EC,
            .troughBorder = 0xD5D8DF,
            .segmentChecked = 0xFFFFFF,
            .menu = 0xFFFFFF,
            .menuBorder = 0xCBCED6,
            .text = 0x1B1D22,
            .secondary = 0x5A5F69,
            .tertiary = 0x666B76,
            .disabled = 0xA9ADB6,
            .rowHover = 0xF1F2F5,
            .selection = 0xDCE7FF,
            .inactiveSelection = 0xE6E8EC,
            .accent = 0x3D7EFF,
            .primary = 0x2C68E6,
            .primaryHover = 0x3671EC,
            .primaryPressed = 0x2357C6,
            .destructive = 0xCC2F26,
            .track = 0xD2D5DC,
            .trackPlayed = 0x6F747F,
            .trackCurrent = 0xA9ADB6,
            .knob = 0xFFFFFF,
            .liveCapsule = QColor(0xDE, 0x2C, 0x26, 217)};
}

ThemeColors ThemeColors::withAccent(const QColor &highlight) const
{
    if (!highlight.isValid() || highlight == accent)
        return *this;
    ThemeColors colors = *this;
    colors.accent = highlight;
    colors.primary = darkenedForWhiteText(highlight);
    colors.primaryHover = colors.primary.lighter(hoverLightness);
    colors.primaryPressed = colors.primary.darker(pressedDarkness);
    colors.selection = mixed(base, highlight, isDark ? darkSelectionMix : lightSelectionMix);
    return colors;
}

StepColors ThemeColors::step(StepKind kind) const
{
    const auto pick = [this](StepColors dark, StepColors light) { return isDark ? dark : light; };
    switch (kind) {
    case StepKind::move:
    case StepKind::click:
    case StepKind::rightClick:
    case StepKind::hold:
    case StepKind::release:
        return pick({0xA79BF5, 0x322F47}, {0x5A4CC4, 0xE9E6FA});
    case StepKind::type:
    case StepKind::shortcut:
        return pick({0x5FC7B4, 0x213936}, {0x0F766A, 0xDDF1EE});
    case StepKind::wait:
        return pick({0xE0B060, 0x3A3224}, {0x8F5D00, 0xF8ECD4});
    case StepKind::switchApp:
        return pick({0xEC8FAB, 0x3E2A33}, {0xB2345F, 0xFAE3EA});
    case StepKind::section:
        break;
    }
    return pick({0xA6AAB3, 0x2E3036}, {0x5A5F69, 0xE9EBEF});
}

} // namespace velvane
