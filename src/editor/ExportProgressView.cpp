#include "editor/ExportProgressView.h"

#include "editor/Icons.h"
#include "editor/Metrics.h"
#include "editor/TabularText.h"
#include "editor/Theme.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace velvane {

namespace {

constexpr int symbolSize = 14;
constexpr int barWidth = 148;
constexpr int barHeight = 4;
constexpr int percentWidth = 36;
constexpr int timeWidth = 92;
constexpr int barLeft = symbolSize + Metrics::gap;
constexpr int percentLeft = barLeft + barWidth + Metrics::gap;
constexpr int timeLeft = percentLeft + percentWidth + Metrics::gap;
constexpr int cancelLeft = timeLeft + timeWidth + Metrics::gap;
constexpr int cancelHeight = 20;
constexpr int secondsInMinute = 60;

} // namespace

ExportProgressView::ExportProgressView(ExportController &exporting, QWidget *parent)
    : QWidget(parent)
    , m_exporting(exporting)
    , m_cancel(new QPushButton(tr("Cancel"), this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(cancelLeft, 0, 0, 0);
    m_cancel->setProperty("look", QStringLiteral("small"));
    m_cancel->setFont(Theme::font(TextSize::small));
    m_cancel->setFixedHeight(cancelHeight);
    m_cancel->setToolTip(tr("Stop the export; the movie keeps what is done"));
    m_cancel->setAccessibleName(tr("Cancel the export"));
    row->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, &exporting, &ExportController::cancel);
    connect(&exporting, &ExportController::isExportingChanged, this, &ExportProgressView::appear);
    connect(&exporting, &ExportController::exportProgressChanged, this,
            &ExportProgressView::showProgress);
    appear();
}

QString ExportProgressView::percentText(double progress)
{
    return tr("%1%").arg(int(progress * 100));
}

QString ExportProgressView::timeLeftText(std::optional<Seconds> left)
{
    if (!left)
        return {};
    const auto seconds = qint64(std::ceil(left->count()));
    if (seconds < secondsInMinute)
        return tr("%1 s left").arg(seconds);
    return tr("%1 min left").arg((seconds + secondsInMinute - 1) / secondsInMinute);
}

void ExportProgressView::appear()
{
    setVisible(m_exporting.isExporting());
    showProgress();
}

void ExportProgressView::showProgress()
{
    const QString percent = percentText(m_exporting.exportProgress());
    const QString time = timeLeftText(m_exporting.timeLeft());
    const int filled = int(std::lround(barWidth * m_exporting.exportProgress()));
    if (percent == m_percent && time == m_timeLeft && filled == m_filled)
        return;
    m_percent = percent;
    m_timeLeft = time;
    m_filled = filled;
    setAccessibleName(tr("Exporting, %1 %2").arg(percent, time).trimmed());
    setToolTip(accessibleName());
    update();
}

void ExportProgressView::paintEvent(QPaintEvent *)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    Icons::draw(painter, QStringLiteral("square.and.arrow.up"), colors.secondary,
                QRectF(0, 0, symbolSize, height()), symbolSize);
    const QRectF bar(barLeft, (height() - barHeight) / 2.0, barWidth, barHeight);
    const auto draw = [&](const QRectF &part, const QColor &color) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(part, barHeight / 2.0, barHeight / 2.0);
    };
    draw(bar, colors.track);
    if (m_filled >= barHeight)
        draw(QRectF(bar.topLeft(), QSizeF(m_filled, barHeight)), colors.accent);
    painter.setFont(Theme::font(TextSize::secondary, QFont::Medium));
    painter.setPen(colors.text);
    TabularText::draw(painter, QRectF(percentLeft, 0, percentWidth, height()), Qt::AlignRight,
                      m_percent);
    painter.setFont(Theme::font(TextSize::secondary));
    painter.setPen(colors.secondary);
    TabularText::draw(painter, QRectF(timeLeft, 0, timeWidth, height()), Qt::AlignLeft, m_timeLeft);
}

} // namespace velvane
