#include "editor/ThemeStyle.h"

#include <QList>

namespace velvane::ThemeStyle {

namespace {

// Words in @ are colours by role. A focused control's border grows inwards: its padding shrinks
// by as much, so nothing shifts. The style's own frame of the focus would be a second one inside.
const auto controls = QStringLiteral(R"(
QPushButton, QCheckBox, QComboBox, QToolButton { outline: none; }
QPushButton {
    background: @button; border: 1px solid @buttonBorder; border-radius: 6px;
    padding: 4px 10px; min-height: 18px; color: @text;
}
QPushButton:hover { background: @buttonHover; }
QPushButton:pressed, QPushButton:open { background: @buttonPressed; }
QPushButton:focus { border: 2px solid @accent; padding: 3px 9px; }
QPushButton:disabled { background: @button; color: @disabled; }
QPushButton::menu-indicator { image: none; width: 0; }

QPushButton[look="small"] { padding: 0px 8px; min-height: 0px; border-radius: 5px; }
QPushButton[look="small"]:focus { border: 2px solid @accent; padding: 0px 7px; }

QPushButton[look="primary"] {
    background: @primary; border: 1px solid @primary; color: white; font-weight: 600;
    padding: 4px 12px;
}
QPushButton[look="primary"]:hover { background: @primaryHover; border-color: @primaryHover; }
QPushButton[look="primary"]:pressed { background: @primaryPressed; border-color: @primaryPressed; }
QPushButton[look="primary"]:focus { border: 2px solid @primaryRing; padding: 3px 11px; }
QPushButton[look="primary"]:disabled {
    background: @button; border-color: @buttonBorder; color: @disabled;
}

QPushButton[look="flat"], QPushButton[look="destructive"] {
    background: transparent; border: 1px solid transparent; padding: 4px 8px;
}
QPushButton[look="flat"]:hover, QPushButton[look="destructive"]:hover,
QPushButton[look="flat"]:checked { background: @buttonHover; }
QPushButton[look="flat"]:pressed, QPushButton[look="flat"]:open,
QPushButton[look="destructive"]:pressed { background: @buttonPressed; }
QPushButton[look="destructive"]:hover { color: @destructive; }
QPushButton[look="flat"]:focus, QPushButton[look="destructive"]:focus {
    border: 2px solid @accent; padding: 3px 7px;
}
QPushButton[look="flat"]:disabled, QPushButton[look="destructive"]:disabled {
    background: transparent; color: @disabled;
}
)");

const auto fields = QStringLiteral(R"(
QLineEdit, QPlainTextEdit {
    background: @field; border: 1px solid @fieldBorder; border-radius: 6px;
    padding: 2px 6px; color: @text;
    selection-background-color: @accent; selection-color: white;
}
QLineEdit { min-height: 20px; }
QLineEdit:focus, QPlainTextEdit:focus { border: 2px solid @accent; padding: 1px 5px; }
QLineEdit:disabled, QPlainTextEdit:disabled { color: @disabled; border-color: @hairline; }
QCheckBox { spacing: 8px; color: @text; padding: 1px; border: 1px solid transparent;
    border-radius: 6px; }
QCheckBox:focus { border: 2px solid @accent; padding: 0; }
QComboBox {
    background: @button; border: 1px solid @buttonBorder; border-radius: 6px;
    padding: 2px 8px; min-height: 20px; color: @text;
}
QComboBox:hover { background: @buttonHover; }
QComboBox:focus { border: 2px solid @accent; padding: 1px 7px; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: url(:/icons/chevron.@tick.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView { background: @menu; border: 1px solid @menuBorder; padding: 4px; }
QCheckBox:disabled { color: @disabled; }
QCheckBox::indicator {
    width: 14px; height: 14px; border: 1px solid @fieldBorder; border-radius: 4px;
    background: @field;
}
QCheckBox::indicator:checked { background: @primary; border-color: @primary;
    image: url(:/icons/checkmark.white.svg); }
QCheckBox::indicator:disabled { background: @button; border-color: @hairline; }
)");

const auto surfaces = QStringLiteral(R"(
QMenuBar {
    background: @window; color: @text; border-bottom: 1px solid @hairline; padding: 1px 0px;
}
QMenuBar::item { background: transparent; padding: 4px 8px 5px 8px; border-radius: 5px; }
QMenuBar::item:selected, QMenuBar::item:pressed { background: @selection; }
QMenuBar::item:disabled { color: @disabled; }
QMenu {
    background: @menu; border: 1px solid @menuBorder; border-radius: 8px; padding: 5px;
    color: @text;
}
QMenu::item { min-height: 20px; padding: 4px 24px 4px 8px; border-radius: 5px; }
QMenu::indicator { width: 14px; height: 14px; padding-left: 6px; }
QMenu::indicator:non-exclusive:checked { image: url(:/icons/checkmark.@tick.svg); }
QMenu::indicator:exclusive:checked { image: url(:/icons/dot.@tick.svg); }
QMenu::item:selected { background: @selection; }
QMenu::item:disabled { color: @disabled; }
QMenu::item:disabled:selected { background: transparent; }
QMenu::separator { height: 1px; background: @menuBorder; margin: 5px 3px; }
QMenu::icon { padding-left: 8px; }
QMenu[look="checks"]::item { padding-left: 28px; }
QMenu[look="checks"]::icon { left: 20px; }
QMenu::right-arrow { image: none; }
QToolTip {
    background: @menu; color: @text; border: 1px solid @menuBorder; padding: 4px 6px;
}
*[look="pane"] { background: @window; }
*[look="list"] { background: @base; }
*[look="stage"] { background: @stage; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QLabel { background: transparent; }
QLabel[look="note"] { color: @secondary; }
QLabel[look="hint"] { color: @tertiary; }
QFrame[look="hairline"] { background: @hairline; border: none; }
QScrollArea, QScrollArea > QWidget > QWidget[look="page"] { background: transparent; border: none; }
QHeaderView { background: @base; border: none; }
QHeaderView::section {
    background: @base; color: @secondary; border: none; border-bottom: 1px solid @hairline;
    padding: 4px 6px;
}
QHeaderView::down-arrow, QHeaderView::up-arrow { image: none; }
QFileDialog QToolButton { border: 1px solid transparent; border-radius: 6px; padding: 4px; }
QFileDialog QToolButton:hover, QFileDialog QToolButton:checked { background: @buttonHover; }
QFileDialog QToolButton:focus { border: 2px solid @accent; padding: 3px; }
QDialog QAbstractItemView {
    border: 1px solid @hairline; border-radius: 6px; padding: 1px; outline: none;
}
QDialog QAbstractItemView:focus { border: 2px solid @accent; padding: 0px; }
QDialog QComboBox QAbstractItemView, QDialog QComboBox QAbstractItemView:focus {
    border: 1px solid @menuBorder; padding: 4px;
}
QSplitter::handle { background: @hairline; }
QScrollBar:vertical { width: 10px; background: transparent; margin: 0; }
QScrollBar:horizontal { height: 10px; background: transparent; margin: 0; }
QScrollBar::handle { background: @track; border-radius: 3px; margin: 2px; min-height: 32px;
    min-width: 32px; }
QScrollBar::handle:hover { background: @disabled; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)");

// Told from the button and from the window around it: white would vanish in a light one.
QColor primaryRing(const ThemeColors &c)
{
    constexpr float white = 0.6F;
    if (!c.isDark)
        return c.text;
    return QColor::fromRgbF(white + (1 - white) * c.primary.redF(),
                            white + (1 - white) * c.primary.greenF(),
                            white + (1 - white) * c.primary.blueF());
}

QList<std::pair<QString, QColor>> roles(const ThemeColors &c)
{
    // A longer word stands before its own beginning.
    return {{QStringLiteral("buttonBorder"), c.buttonBorder},
            {QStringLiteral("buttonHover"), c.buttonHover},
            {QStringLiteral("buttonPressed"), c.buttonPressed},
            {QStringLiteral("button"), c.button},
            {QStringLiteral("primaryHover"), c.primaryHover},
            {QStringLiteral("primaryPressed"), c.primaryPressed},
            {QStringLiteral("primaryRing"), primaryRing(c)},
            {QStringLiteral("primary"), c.primary},
            {QStringLiteral("fieldBorder"), c.fieldBorder},
            {QStringLiteral("field"), c.field},
            {QStringLiteral("menuBorder"), c.menuBorder},
            {QStringLiteral("menu"), c.menu},
            {QStringLiteral("hairline"), c.hairline},
            {QStringLiteral("window"), c.window},
            {QStringLiteral("base"), c.base},
            {QStringLiteral("stage"), c.stage},
            {QStringLiteral("text"), c.text},
            {QStringLiteral("secondary"), c.secondary},
            {QStringLiteral("tertiary"), c.tertiary},
            {QStringLiteral("disabled"), c.disabled},
            {QStringLiteral("destructive"), c.destructive},
            {QStringLiteral("selection"), c.selection},
            {QStringLiteral("accent"), c.accent},
            {QStringLiteral("track"), c.track}};
}

void setGroup(QPalette &palette, QPalette::ColorGroup group, const ThemeColors &c)
{
    const bool disabled = group == QPalette::Disabled;
    const QColor text = disabled ? c.disabled : c.text;
    palette.setColor(group, QPalette::Window, c.window);
    palette.setColor(group, QPalette::WindowText, text);
    palette.setColor(group, QPalette::Base, c.base);
    palette.setColor(group, QPalette::AlternateBase, c.rowHover);
    palette.setColor(group, QPalette::Text, text);
    palette.setColor(group, QPalette::Button, c.button);
    palette.setColor(group, QPalette::ButtonText, text);
    palette.setColor(group, QPalette::BrightText, Qt::white);
    palette.setColor(group, QPalette::Highlight,
                     group == QPalette::Active ? c.selection : c.inactiveSelection);
    palette.setColor(group, QPalette::HighlightedText, text);
    palette.setColor(group, QPalette::Link, c.accent);
    palette.setColor(group, QPalette::LinkVisited, c.accent);
    palette.setColor(group, QPalette::PlaceholderText, disabled ? c.disabled : c.tertiary);
    palette.setColor(group, QPalette::ToolTipBase, c.menu);
    palette.setColor(group, QPalette::ToolTipText, c.text);
    palette.setColor(group, QPalette::Light, c.buttonHover);
    palette.setColor(group, QPalette::Midlight, c.buttonBorder);
    palette.setColor(group, QPalette::Mid, c.hairline);
    palette.setColor(group, QPalette::Dark, c.trough);
    palette.setColor(group, QPalette::Shadow, c.stage);
}

} // namespace

QPalette palette(const ThemeColors &colors)
{
    QPalette palette;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        setGroup(palette, group, colors);
    return palette;
}

QString sheet(const ThemeColors &colors)
{
    QString sheet = controls + fields + surfaces;
    for (const auto &[name, color] : roles(colors))
        sheet.replace(QLatin1Char('@') + name, color.name());
    sheet.replace(QLatin1String("@tick"), QLatin1String(colors.isDark ? "white" : "black"));
    return sheet;
}

} // namespace velvane::ThemeStyle
