#pragma once

#include <QDateTime>
#include <QStyledItemDelegate>

namespace velvane {

/// Paints a recent demo's row: picture, name over folder, and when it was last used.
class RecentDemoDelegate : public QStyledItemDelegate {
    Q_OBJECT
public:
    /// What a row holds besides its name (Qt::DisplayRole) and its picture (Qt::DecorationRole, a
    /// QImage that may be null).
    enum Role { pathRole = Qt::UserRole, folderRole, usedRole };

    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

    /// A past moment as people say it: "Today 14:32", "Yesterday", "12 May", "12 May 2024".
    static QString moment(const QDateTime &used, const QDateTime &now);

private:
    static void paintPicture(QPainter &painter, const QRect &at, const QImage &picture);
    static void paintTexts(QPainter &painter, const QRect &at, const QModelIndex &index);
};

} // namespace velvane
