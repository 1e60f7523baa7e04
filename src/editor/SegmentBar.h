#pragma once

#include <QAbstractButton>

namespace velvane {

/// One toggle of a SegmentBar: symbol and text, or the symbol alone.
class SegmentButton : public QAbstractButton {
    Q_OBJECT
public:
    SegmentButton(const QString &symbol, const QString &text, QWidget *parent = nullptr);

    void setIconOnly(bool iconOnly);
    bool isIconOnly() const { return m_iconOnly; }
    QString symbol() const { return m_symbol; }
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor foreground() const;

    QString m_symbol;
    bool m_iconOnly = false;
};

/// Toggles side by side in one trough. Which of them are on is the owner's matter.
class SegmentBar : public QWidget {
    Q_OBJECT
public:
    explicit SegmentBar(QWidget *parent = nullptr);

    SegmentButton *add(const QString &symbol, const QString &text, const QString &help);
    void setIconOnly(bool iconOnly);

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace velvane
