#include "editor/IconButton.h"

#include "editor/Icons.h"
#include "editor/MenuText.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace velvane {

namespace {

constexpr int padding = 10;
constexpr int iconPadding = 6;
constexpr int iconGap = 6;
constexpr int chevronGap = 6;

} // namespace

IconButton::IconButton(QWidget *parent) : QPushButton(parent)
{
    setIconSize({Metrics::icon, Metrics::icon});
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setFixedHeight(Metrics::buttonHeight);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void IconButton::setLabel(const QString &label)
{
    m_label = label;
    setText(MenuText::escaped(label));
    setAccessibleName(label);
    updateGeometry();
    update();
}

void IconButton::setIconOnly(bool iconOnly)
{
    m_iconOnly = iconOnly;
    updateGeometry();
    update();
}

QFont IconButton::labelFont() const
{
    const bool primary = property("look") == QLatin1String("primary");
    return Theme::font(TextSize::body, primary ? QFont::DemiBold : QFont::Normal);
}

QColor IconButton::labelColor() const
{
    const ThemeColors &colors = Theme::instance().colors();
    if (!isEnabled())
        return colors.disabled;
    if (property("look") == QLatin1String("primary"))
        return Qt::white;
    const bool destroys = property("look") == QLatin1String("destructive") && underMouse();
    return destroys ? colors.destructive : colors.text;
}

int IconButton::contentWidth() const
{
    const QString text = shownLabel();
    const int icon = this->icon().isNull() ? 0 : iconSize().width();
    const int gap = icon > 0 && !text.isEmpty() ? iconGap : 0;
    const double advance = QFontMetricsF(labelFont()).horizontalAdvance(text);
    return icon + gap + int(std::ceil(advance));
}

QSize IconButton::sizeHint() const
{
    const int sides = shownLabel().isEmpty() && !menu() ? iconPadding : padding;
    const int chevron = menu() ? chevronGap + Metrics::chevron : 0;
    return {contentWidth() + chevron + 2 * sides, Metrics::buttonHeight};
}

QSize IconButton::minimumSizeHint() const
{
    const bool canGrow = sizePolicy().horizontalPolicy() != QSizePolicy::Fixed;
    return canGrow ? QSize(4 * padding, Metrics::buttonHeight) : sizeHint();
}

void IconButton::paintChevron(QPainter &painter, QRect &room) const
{
    const ThemeColors &colors = Theme::instance().colors();
    const QRect chevron(room.right() + 1 - Metrics::chevron, 0, Metrics::chevron, height());
    Icons::draw(painter, QStringLiteral("chevron.down"),
                isEnabled() ? colors.secondary : colors.disabled, chevron, Metrics::chevron);
    room.setRight(chevron.left() - chevronGap - 1);
}

void IconButton::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    option.icon = {};
    painter.drawControl(QStyle::CE_PushButton, option);

    QRect room = rect().adjusted(padding, 0, -padding, 0);
    if (menu())
        paintChevron(painter, room);
    else
        room.setLeft(std::max(room.left(), rect().center().x() - contentWidth() / 2 + 1));
    if (shownLabel().isEmpty() && !menu())
        room = rect();
    if (!icon().isNull()) {
        const int left =
            shownLabel().isEmpty() && !menu() ? (width() - iconSize().width()) / 2 : room.left();
        const QRect place(QPoint(left, (height() - iconSize().height()) / 2), iconSize());
        const QIcon::Mode mode = !isEnabled()   ? QIcon::Disabled
                                 : underMouse() ? QIcon::Active
                                                : QIcon::Normal;
        icon().paint(&painter, place, Qt::AlignCenter, mode);
        room.setLeft(place.right() + 1 + iconGap);
    }
    painter.setFont(labelFont());
    painter.setPen(labelColor());
    // Only a button that can be narrower than its label shortens it.
    const bool fits = sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    const QString text =
        fits ? shownLabel()
             : painter.fontMetrics().elidedText(shownLabel(), Qt::ElideRight, room.width());
    painter.drawText(room.adjusted(0, 0, padding, 0), Qt::AlignVCenter | Qt::AlignLeft, text);
}

} // namespace velvane
