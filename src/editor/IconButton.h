#pragma once

#include <QPushButton>

namespace velvane {

/// A push button with a symbol and a label, either of which may be missing; one that opens a menu
/// says so with a chevron. Its frame is the style sheet's.
class IconButton : public QPushButton {
    Q_OBJECT
public:
    explicit IconButton(QWidget *parent = nullptr);

    /// What the button says, and its accessible name. It underlines nothing.
    void setLabel(const QString &label);
    const QString &label() const { return m_label; }
    /// Shows the symbol without the label; the accessible name stays.
    void setIconOnly(bool iconOnly);
    bool isIconOnly() const { return m_iconOnly; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString shownLabel() const { return m_iconOnly ? QString() : m_label; }
    /// The width of symbol and label.
    int contentWidth() const;
    QFont labelFont() const;
    QColor labelColor() const;
    void paintChevron(QPainter &painter, QRect &room) const;

    QString m_label;
    bool m_iconOnly = false;
};

} // namespace velvane
