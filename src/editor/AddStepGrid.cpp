#include "editor/AddStepGrid.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QGridLayout>
#include <QMenu>
#include <QPainter>

namespace velvane {

namespace {

constexpr int columns = 5;
constexpr int cellHeight = 46;
constexpr int cellWidth = 44;
constexpr int iconTop = 6;
constexpr int labelTop = 27;
constexpr int labelBottom = 5; // from the cell's bottom
constexpr int narrowest = 70;  // per cent of the width of letters

/// Families are parted by a line, as their tiles part them in the list.
bool beginsFamily(StepKind kind)
{
    return kind == StepKind::type || kind == StepKind::wait || kind == StepKind::switchApp;
}

} // namespace

AddStepButton::AddStepButton(StepKind kind, QWidget *parent) : QAbstractButton(parent), m_kind(kind)
{
    setText(shortLabel(kind));
    setAccessibleName(AddStepGrid::help(kind));
    setToolTip(AddStepGrid::help(kind));
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize AddStepButton::sizeHint() const
{
    // Higher than it is designed only for large letters.
    const int label = QFontMetrics(Theme::font(TextSize::small)).height();
    return {cellWidth, std::max(cellHeight, labelTop + label + labelBottom)};
}

QFont AddStepButton::labelFont() const
{
    QFont font = Theme::font(TextSize::small);
    const int advance = QFontMetrics(font).horizontalAdvance(text());
    if (advance > width())
        font.setStretch(std::max(narrowest, 100 * width() / advance - 1));
    return font;
}

void AddStepButton::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF whole = rect();
    if (isEnabled() && (underMouse() || isDown())) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(isDown() ? colors.buttonPressed : colors.rowHover);
        painter.drawRoundedRect(whole, Metrics::radius, Metrics::radius);
    }
    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(colors.accent, 2));
        painter.drawRoundedRect(whole.adjusted(1, 1, -1, -1), Metrics::segmentRadius,
                                Metrics::segmentRadius);
    }
    const bool lit = underMouse() || hasFocus();
    const QColor color = !isEnabled() ? colors.disabled : lit ? colors.text : colors.secondary;
    Icons::draw(painter, symbol(m_kind), color, QRectF(0, iconTop, whole.width(), Metrics::icon),
                Metrics::icon);
    painter.setFont(labelFont());
    painter.setPen(color);
    painter.drawText(QRectF(0, labelTop, whole.width(), whole.height() - labelTop - labelBottom),
                     Qt::AlignCenter,
                     painter.fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

AddStepGrid::AddStepGrid(QWidget *parent) : QWidget(parent)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    int place = 0;
    for (const StepKind kind : allStepKinds) {
        auto *button = new AddStepButton(kind, this);
        grid->addWidget(button, place / columns, place % columns);
        connect(button, &AddStepButton::clicked, this, [this, kind] { Q_EMIT chosen(kind); });
        ++place;
    }
}

QString AddStepGrid::help(StepKind kind)
{
    return tr("Add %1").arg(label(kind));
}

void AddStepGrid::fill(QMenu &menu, const std::function<void(StepKind)> &chosen)
{
    for (const StepKind kind : allStepKinds) {
        if (beginsFamily(kind))
            menu.addSeparator();
        menu.addAction(Icons::stepIcon(kind), help(kind), [chosen, kind] { chosen(kind); });
    }
}

} // namespace velvane
