#include "editor/StatusLineView.h"

#include "editor/ExportProgressView.h"
#include "editor/Metrics.h"
#include "editor/TabularText.h"
#include "editor/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace velvane {

StatusLineView::StatusLineView(StatusLine &status, ExportController &exporting, QWidget *parent)
    : QWidget(parent)
    , m_status(status)
    , m_exporting(exporting)
    , m_message(new QLabel(this))
{
    setFixedHeight(Metrics::statusLineHeight);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(Metrics::wideGap, 1, Metrics::wideGap, 0);
    m_message->setFont(Theme::font(TextSize::secondary));
    m_message->setProperty("look", QStringLiteral("note"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    row->addWidget(m_message, 1);
    row->addWidget(new ExportProgressView(exporting, this));
    connect(&m_status, &StatusLine::messageChanged, this, &StatusLineView::showMessage);
    connect(&exporting, &ExportController::isExportingChanged, this, &StatusLineView::leaveRoom);
    showMessage();
}

void StatusLineView::showMessage()
{
    m_message->setAccessibleName(m_status.message());
    m_message->setToolTip({});
    const int room = m_message->width();
    const QString shown =
        m_message->fontMetrics().elidedText(m_status.message(), Qt::ElideRight, room);
    m_message->setText(shown);
    if (shown != m_status.message())
        m_message->setToolTip(m_status.message());
}

void StatusLineView::setCanvas(QSizeF size, double scale)
{
    m_canvas = tr("%1 × %2 · %3%")
                   .arg(int(std::lround(size.width())))
                   .arg(int(std::lround(size.height())))
                   .arg(int(std::lround(scale * 100)));
    setAccessibleName(tr("Canvas %1").arg(m_canvas));
    leaveRoom();
}

void StatusLineView::leaveRoom()
{
    // An export's progress takes the canvas's place.
    const QFontMetricsF metrics(Theme::font(TextSize::secondary));
    const int right = int(std::ceil(TabularText::width(metrics, m_canvas)));
    layout()->setContentsMargins(
        Metrics::wideGap, 1,
        m_exporting.isExporting() ? Metrics::wideGap : 2 * Metrics::wideGap + right, 0);
    layout()->activate();
    showMessage();
    update();
}

void StatusLineView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layout()->activate();
    showMessage();
}

void StatusLineView::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.fillRect(rect(), colors.window);
    painter.fillRect(QRect(0, 0, width(), 1), colors.hairline);
    if (m_exporting.isExporting())
        return;
    painter.setFont(Theme::font(TextSize::secondary));
    painter.setPen(colors.tertiary);
    TabularText::draw(painter, rect().adjusted(0, 1, -Metrics::wideGap, 0), Qt::AlignRight,
                      m_canvas);
}

} // namespace velvane
