#include "editor/Icons.h"
#include "editor/SystemAppearance.h"
#include "editor/Theme.h"
#include "editor/ThemeStyle.h"
#include "editor/WindowStyle.h"
#include "support/Print.h"

#include <QDialog>
#include <QDirIterator>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>

#include <gtest/gtest.h>

namespace velvane {

namespace {

constexpr auto appearance = "org.freedesktop.appearance";

int painted(const QPixmap &pixmap, const QColor &color)
{
    const QImage image = pixmap.toImage().convertToFormat(QImage::Format_ARGB32);
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == color;
    return count;
}

} // namespace

TEST(ThemeColors, WhiteTextOnThePrimaryButtonIsReadable)
{
    for (const ThemeColors &colors : {ThemeColors::dark(), ThemeColors::light()})
        EXPECT_GE(contrast(colors.primary, Qt::white), 4.5);
}

TEST(ThemeColors, TextsAreReadableOnEverySurface)
{
    for (const ThemeColors &c : {ThemeColors::dark(), ThemeColors::light()})
        for (const QColor &text : {c.text, c.secondary, c.tertiary})
            for (const QColor &surface : {c.window, c.base, c.field, c.menu})
                EXPECT_GE(contrast(text, surface), 4.4) << text.name().toStdString();
}

TEST(ThemeColors, AHighlightColourBecomesAccentPrimaryAndSelection)
{
    const ThemeColors colors = ThemeColors::dark().withAccent(QColor(0xF6, 0xD3, 0x2D));

    EXPECT_EQ(colors.accent, QColor(0xF6, 0xD3, 0x2D));
    EXPECT_GE(contrast(colors.primary, Qt::white), 4.5);
    EXPECT_EQ(colors.selection, QColor(0x5A, 0x51, 0x25));
}

TEST(ThemeColors, AnInvalidHighlightColourChangesNothing)
{
    const ThemeColors colors = ThemeColors::light().withAccent(QColor());
    EXPECT_EQ(colors.accent, ThemeColors::light().accent);
    EXPECT_EQ(colors.selection, ThemeColors::light().selection);
}

TEST(ThemeColors, StepsOfOneFamilyShareTheirColours)
{
    const ThemeColors colors = ThemeColors::dark();
    EXPECT_EQ(colors.step(StepKind::move).glyph, colors.step(StepKind::release).glyph);
    EXPECT_EQ(colors.step(StepKind::type).tile, colors.step(StepKind::shortcut).tile);
    EXPECT_NE(colors.step(StepKind::wait).glyph, colors.step(StepKind::switchApp).glyph);
}

TEST(ThemeStyle, NoRoleIsLeftUnresolved)
{
    EXPECT_FALSE(ThemeStyle::sheet(ThemeColors::dark()).contains(QLatin1Char('@')));
}

TEST(ThemeStyle, DisabledTextHasItsOwnColour)
{
    const QPalette palette = ThemeStyle::palette(ThemeColors::light());
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), ThemeColors::light().disabled);
    EXPECT_EQ(palette.color(QPalette::Inactive, QPalette::Highlight),
              ThemeColors::light().inactiveSelection);
}

TEST(ThemeStyle, AFocusedButtonHasNoSecondFrameInside)
{
    const ThemeColors colors = ThemeColors::light();
    QPushButton button;
    button.setStyleSheet(ThemeStyle::sheet(colors));
    button.resize(120, 28);
    button.show();
    button.activateWindow();
    button.setFocus(Qt::TabFocusReason);
    button.setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
    QCoreApplication::processEvents();
    ASSERT_TRUE(button.hasFocus());
    // Within the border and its round corners.
    const QPixmap inside = button.grab(button.rect().adjusted(6, 3, -6, -3));
    EXPECT_EQ(painted(inside, colors.button), inside.width() * inside.height());
}

TEST(ThemeStyle, AListInADialogShowsItsFocus)
{
    const ThemeColors colors = ThemeColors::dark();
    QDialog dialog;
    dialog.setStyleSheet(ThemeStyle::sheet(colors));
    QListWidget list(&dialog);
    dialog.show();
    dialog.activateWindow();
    const auto edge = [&] {
        QCoreApplication::processEvents();
        return list.grab().toImage().pixelColor(list.width() / 2, 0);
    };
    list.setFocus();
    EXPECT_EQ(edge(), colors.accent);
    list.clearFocus();
    EXPECT_EQ(edge(), colors.hairline);
}

TEST(SystemAppearance, TheSchemeIsTakenFromThePortal)
{
    SystemAppearance system;
    int changes = 0;
    QObject::connect(&system, &SystemAppearance::changed, [&] { ++changes; });

    system.take(appearance, "color-scheme", 2U);
    EXPECT_EQ(system.prefersDark(), false);
    system.take(appearance, "color-scheme", 1U);
    EXPECT_EQ(system.prefersDark(), true);
    system.take(appearance, "color-scheme", 0U);
    EXPECT_EQ(system.prefersDark(), std::nullopt);
    EXPECT_EQ(changes, 3);
}

TEST(SystemAppearance, OtherSettingsAreIgnored)
{
    SystemAppearance system;
    system.take("org.gnome.desktop.interface", "color-scheme", 1U);
    system.take(appearance, "contrast", 1U);
    EXPECT_EQ(system.prefersDark(), std::nullopt);
}

TEST(SystemAppearance, LessMotionIsWantedByEitherSetting)
{
    SystemAppearance system;
    int changes = 0;
    QObject::connect(&system, &SystemAppearance::changed, [&] { ++changes; });
    EXPECT_FALSE(system.wantsLessMotion());
    system.take(appearance, "reduced-motion", 1U);
    EXPECT_TRUE(system.wantsLessMotion());
    system.take(appearance, "reduced-motion", 0U);
    EXPECT_FALSE(system.wantsLessMotion());
    system.take("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_TRUE(system.wantsLessMotion());
    system.take("org.gnome.desktop.interface", "enable-animations", true);
    EXPECT_FALSE(system.wantsLessMotion());
    EXPECT_EQ(changes, 4);
}

TEST(WindowStyle, AStillOneTakesNoTimeForAnimations)
{
    WindowStyle style;
    const int usual = style.styleHint(QStyle::SH_Widget_Animation_Duration, {}, {}, {});
    EXPECT_GT(usual, 0);
    style.setStill(true);
    EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animation_Duration, {}, {}, {}), 0);
    style.setStill(false);
    EXPECT_EQ(style.styleHint(QStyle::SH_Widget_Animation_Duration, {}, {}, {}), usual);
}

TEST(SystemAppearance, AnAccentThatIsNoColourIsNone)
{
    SystemAppearance system;
    system.take(appearance, "accent-color", QStringLiteral("blue"));
    EXPECT_FALSE(system.accent().isValid());
}

TEST(Theme, AnOverrideSetsTheSchemeAndIsAnnounced)
{
    Theme &theme = Theme::instance();
    theme.setOverride(Theme::Scheme::dark);
    int changes = 0;
    const auto connection = QObject::connect(&theme, &Theme::changed, [&] { ++changes; });

    theme.setOverride(Theme::Scheme::light);
    EXPECT_FALSE(theme.colors().isDark);
    theme.setOverride(Theme::Scheme::light);
    EXPECT_EQ(changes, 1);

    theme.setOverride(Theme::Scheme::dark);
    EXPECT_TRUE(theme.colors().isDark);
    QObject::disconnect(connection);
}

TEST(Icons, EveryKindOfStepHasADrawing)
{
    for (const StepKind kind : allStepKinds)
        EXPECT_GT(painted(Icons::pixmap(symbol(kind), Qt::red, 32, 1), Qt::red), 0)
            << symbol(kind).toStdString();
}

TEST(Icons, EveryDrawingCanBeRead)
{
    Icons::pixmap("trash", Qt::red, 16, 1);
    QDirIterator drawings(":/icons");
    int count = 0;
    for (; drawings.hasNext(); ++count) {
        const QString name = QFileInfo(drawings.next()).completeBaseName();
        EXPECT_FALSE(Icons::pixmap(name, Qt::red, 16, 1).isNull()) << name.toStdString();
    }
    EXPECT_GE(count, 35);
}

TEST(Icons, APixmapIsSharpOnADenseScreen)
{
    const QPixmap pixmap = Icons::pixmap("trash", Qt::white, 18, 2);
    EXPECT_EQ(pixmap.size(), QSize(36, 36));
    EXPECT_EQ(pixmap.deviceIndependentSize(), QSizeF(18, 18));
}

TEST(Icons, AnIconTakesTheDisabledColour)
{
    const QColor disabled = Theme::instance().colors().disabled;
    const QPixmap pixmap = Icons::icon("play.fill").pixmap(QSize(32, 32), 1.0, QIcon::Disabled);
    EXPECT_GT(painted(pixmap, disabled), 0);
}

TEST(Icons, AnUnknownNameGivesAnEmptyPicture)
{
    EXPECT_TRUE(Icons::pixmap("no.such.symbol", Qt::red, 16, 1).isNull());
}

} // namespace velvane
