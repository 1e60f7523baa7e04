#include "editor/BarLayout.h"

#include "editor/Theme.h"

#include <QPainter>
#include <QWidget>

namespace velvane::BarLayout {

void paintGround(QWidget &bar)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(&bar);
    painter.fillRect(bar.rect(), colors.window);
    painter.fillRect(QRect(0, 0, bar.width(), 1), colors.hairline);
}

} // namespace velvane::BarLayout
