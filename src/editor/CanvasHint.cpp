#include "editor/CanvasHint.h"

#include "editor/Controls.h"
#include "editor/Metrics.h"

#include <QLabel>
#include <QVBoxLayout>

namespace velvane {

namespace {

constexpr int lineWidth = 376;

} // namespace

CanvasHint::CanvasHint(QWidget *parent)
    : QWidget(parent)
    , m_label(new QLabel(this))
    , m_live(Controls::button(QStringLiteral("macwindow"), tr("Live"),
                              tr("Show your live screen as the backdrop"), {}, this))
    , m_record(Controls::button(QStringLiteral("record.circle"), tr("Record"),
                                tr("Record real actions and append them as steps"), {}, this))
{
    m_label->setText(
        tr("Add a step above, or click the preview to drop a Move waypoint. Turn on Live for your "
           "real screen, then Freeze to pick targets against a still. Press Z to magnify."));
    m_label->setWordWrap(true);
    m_label->setAlignment(Qt::AlignCenter);
    // The canvas behind it is dark whatever the theme.
    m_label->setStyleSheet(QStringLiteral("color: white; background: transparent;"));
    m_live->hide();
    m_record->hide();
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Metrics::gap);
    buttons->addStretch();
    buttons->addWidget(m_live);
    buttons->addWidget(m_record);
    buttons->addStretch();
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(Metrics::wideGap);
    layout->addWidget(m_label);
    layout->addLayout(buttons);
}

void CanvasHint::placeIn(const QRect &area)
{
    const int wide = std::min(lineWidth, area.width() - 2 * Metrics::gap);
    QRect rect({}, QSize(wide, layout()->totalHeightForWidth(wide)));
    rect.moveCenter(area.center());
    setGeometry(rect);
}

} // namespace velvane
