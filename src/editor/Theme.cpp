#include "editor/Theme.h"

#include "editor/SystemAppearance.h"
#include "editor/ThemeStyle.h"
#include "editor/WindowStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>

namespace velvane {

namespace {

// Sizes relative to a system font of 13 pixels.
constexpr double designSize = 13;

double pixels(TextSize size)
{
    switch (size) {
    case TextSize::secondary:
        return 12;
    case TextSize::small:
        return 11;
    case TextSize::title:
        return 14;
    case TextSize::body:
        break;
    }
    return designSize;
}

std::optional<Theme::Scheme> schemeFromEnvironment()
{
    const QString name = qEnvironmentVariable("VELVANE_SCHEME");
    if (name == QLatin1String("dark"))
        return Theme::Scheme::dark;
    if (name == QLatin1String("light"))
        return Theme::Scheme::light;
    return {};
}

bool isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness()
           < palette.color(QPalette::WindowText).lightness();
}

/// Where no desktop names a font, Qt's own fallback is too small for these windows.
void chooseFontWithoutDesktop()
{
    if (!qEnvironmentVariableIsEmpty("XDG_CURRENT_DESKTOP"))
        return;
    QFont font = QApplication::font();
    if (QFontDatabase::hasFamily(QStringLiteral("Inter")))
        font.setFamily(QStringLiteral("Inter"));
    font.setPixelSize(int(designSize));
    font.setHintingPreference(QFont::PreferNoHinting);
    QApplication::setFont(font);
}

} // namespace

Theme &Theme::instance()
{
    static Theme theme;
    return theme;
}

Theme::Theme()
    : m_override(schemeFromEnvironment())
    , m_colors(m_override == Scheme::light ? ThemeColors::light() : ThemeColors::dark())
{}

Theme::~Theme() = default;

QFont Theme::font(TextSize size, QFont::Weight weight)
{
    QFont font = QApplication::font();
    const double factor = pixels(size) / designSize;
    if (font.pixelSize() > 0)
        font.setPixelSize(int(std::lround(font.pixelSize() * factor)));
    else
        font.setPointSizeF(font.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

void Theme::install(QApplication &application)
{
    m_application = &application;
    m_platformIsDark = isDark(QApplication::palette());
    chooseFontWithoutDesktop();
    m_style = new WindowStyle;
    QApplication::setStyle(m_style);
    m_system = std::make_unique<SystemAppearance>();
    connect(m_system.get(), &SystemAppearance::changed, this, &Theme::update);
    // The application's connections to the bus do not outlive it.
    connect(&application, &QObject::destroyed, this, [this] {
        m_system.reset();
        m_application = nullptr;
        m_style = nullptr;
    });
    update();
    put();
}

void Theme::setOverride(std::optional<Scheme> scheme)
{
    m_override = scheme;
    update();
}

void Theme::update()
{
    if (m_style)
        m_style->setStill(m_system && m_system->wantsLessMotion());
    const bool dark = m_override                            ? *m_override == Scheme::dark
                      : m_system && m_system->prefersDark() ? *m_system->prefersDark()
                                                            : m_platformIsDark;
    const ThemeColors scheme = dark ? ThemeColors::dark() : ThemeColors::light();
    const ThemeColors colors = scheme.withAccent(m_system ? m_system->accent() : QColor());
    if (colors.isDark == m_colors.isDark && colors.accent == m_colors.accent)
        return;
    m_colors = colors;
    put();
    Q_EMIT changed();
}

void Theme::put()
{
    if (!m_application)
        return;
    QApplication::setPalette(ThemeStyle::palette(m_colors));
    m_application->setStyleSheet(ThemeStyle::sheet(m_colors));
}

} // namespace velvane
