#include "editor/StepTile.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QPainter>

namespace velvane {

StepTile::StepTile(QWidget *parent) : QWidget(parent)
{
    setFixedSize(Metrics::hitArea, Metrics::hitArea);
}

void StepTile::setKind(StepKind kind)
{
    m_kind = kind;
    update();
}

void StepTile::paintEvent(QPaintEvent *)
{
    const StepColors colors = Theme::instance().colors().step(m_kind);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.tile);
    painter.drawRoundedRect(rect(), Metrics::radius, Metrics::radius);
    Icons::draw(painter, symbol(m_kind), colors.glyph, rect(), Metrics::tileIcon);
}

} // namespace velvane
