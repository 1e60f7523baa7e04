#include "editor/SymbolMenu.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QPainter>

namespace velvane {

namespace {

constexpr int checkLeft = 6;
constexpr int checkSize = 14;
constexpr int chevronRight = 8;

} // namespace

SymbolMenu::SymbolMenu(const QString &title, QWidget *parent, bool checks)
    : QMenu(title, parent)
    , m_checks(checks)
{
    if (checks)
        setProperty("look", QStringLiteral("checks"));
}

void SymbolMenu::paintEvent(QPaintEvent *event)
{
    QMenu::paintEvent(event);
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    for (QAction *action : actions()) {
        if (!action->isVisible())
            continue;
        const QRectF row = actionGeometry(action);
        const QColor &color = action->isEnabled() ? colors.text : colors.disabled;
        if (m_checks && action->isChecked())
            Icons::draw(painter,
                        action->actionGroup() ? QStringLiteral("dot") : QStringLiteral("checkmark"),
                        color, QRectF(row.left() + checkLeft, row.top(), checkSize, row.height()),
                        checkSize);
        if (action->menu())
            Icons::draw(painter, QStringLiteral("chevron.right"),
                        action->isEnabled() ? colors.secondary : colors.disabled,
                        QRectF(row.right() - chevronRight - Metrics::chevron, row.top(),
                               Metrics::chevron, row.height()),
                        Metrics::chevron);
    }
}

} // namespace velvane
