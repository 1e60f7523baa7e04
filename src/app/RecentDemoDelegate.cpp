#include "app/RecentDemoDelegate.h"

#include "editor/Metrics.h"
#include "editor/Theme.h"

#include <QLocale>
#include <QPainter>
#include <QPainterPath>

namespace velvane {

namespace {

// Logical pixels.
constexpr int rowHeight = 56;
constexpr int padding = 10;
constexpr QSize pictureSize(58, 36);
constexpr double pictureRadius = 4;
constexpr double ringWidth = 1.5;
constexpr int lineHeight = 17;

QColor fill(const QStyleOptionViewItem &option, const ThemeColors &colors)
{
    if (option.state.testFlag(QStyle::State_Selected))
        return option.state.testFlag(QStyle::State_Active) ? colors.selection
                                                           : colors.inactiveSelection;
    return option.state.testFlag(QStyle::State_MouseOver) ? colors.rowHover : QColor();
}

} // namespace

QString RecentDemoDelegate::moment(const QDateTime &used, const QDateTime &now)
{
    const QLocale locale;
    if (used.date() == now.date())
        return tr("Today %1").arg(locale.toString(used.time(), QStringLiteral("HH:mm")));
    if (used.date() == now.date().addDays(-1))
        return tr("Yesterday");
    const bool thisYear = used.date().year() == now.date().year();
    // Languages order a date's parts in their own way.
    return locale.toString(used.date(), thisYear ? tr("d MMMM") : tr("d MMMM yyyy"));
}

QSize RecentDemoDelegate::sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const
{
    return {pictureSize.width(), rowHeight};
}

void RecentDemoDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    const ThemeColors &colors = Theme::instance().colors();
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    if (const QColor filled = fill(option, colors); filled.isValid()) {
        painter->setPen(Qt::NoPen);
        painter->setBrush(filled);
        painter->drawRoundedRect(option.rect, Metrics::radius, Metrics::radius);
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        constexpr double inset = ringWidth / 2;
        painter->setPen(QPen(colors.accent, ringWidth));
        painter->setBrush(Qt::NoBrush);
        painter->drawRoundedRect(QRectF(option.rect).adjusted(inset, inset, -inset, -inset),
                                 Metrics::radius, Metrics::radius);
    }
    QRect picture(QPoint(), pictureSize);
    picture.moveCenter(option.rect.center());
    picture.moveLeft(option.rect.left() + padding);
    paintPicture(*painter, picture, index.data(Qt::DecorationRole).value<QImage>());
    paintTexts(
        *painter,
        option.rect.adjusted(padding + pictureSize.width() + Metrics::wideGap, 0, -padding, 0),
        index);
    painter->restore();
}

void RecentDemoDelegate::paintPicture(QPainter &painter, const QRect &at, const QImage &picture)
{
    const ThemeColors &colors = Theme::instance().colors();
    QPainterPath shape;
    shape.addRoundedRect(at, pictureRadius, pictureRadius);
    painter.save();
    painter.setClipPath(shape);
    painter.fillRect(at, colors.stage);
    if (!picture.isNull())
        painter.drawImage(at, picture);
    painter.restore();
    painter.setPen(colors.canvasHairline);
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(at).adjusted(0.5, 0.5, -0.5, -0.5), pictureRadius,
                            pictureRadius);
}

void RecentDemoDelegate::paintTexts(QPainter &painter, const QRect &at, const QModelIndex &index)
{
    const ThemeColors &colors = Theme::instance().colors();
    const QString used = moment(index.data(usedRole).toDateTime(), QDateTime::currentDateTime());
    const QFont small = Theme::font(TextSize::secondary);
    painter.setFont(small);
    painter.setPen(colors.tertiary);
    painter.drawText(at, Qt::AlignRight | Qt::AlignVCenter, used);
    const int room = at.width() - painter.fontMetrics().horizontalAdvance(used) - Metrics::wideGap;

    QRect line(at.left(), at.center().y() - lineHeight + 1, room, lineHeight);
    const auto draw = [&](const QString &text, const QFont &font, const QColor &color,
                          Qt::TextElideMode elide) {
        painter.setFont(font);
        painter.setPen(color);
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetrics(font).elidedText(text, elide, room));
        line.translate(0, lineHeight);
    };
    draw(index.data().toString(), Theme::font(TextSize::body, QFont::Medium), colors.text,
         Qt::ElideRight);
    draw(index.data(folderRole).toString(), small, colors.secondary, Qt::ElideMiddle);
}

} // namespace velvane
