#pragma once

#include <QHBoxLayout>
#include <QLabel>
#include <QWidget>

namespace velvane {

/// One line of a form: a label and what it names. Without a label the contents keep the column. A
/// label that is too long for its column, as words of some languages are, stands above; contents
/// that are too wide for the form begin before their column.
class FormRow : public QWidget {
    Q_OBJECT
public:
    explicit FormRow(const QString &label, QWidget *parent = nullptr);

    /// Adds a control; the first one becomes the label's buddy.
    void add(QWidget *control, int stretch = 0);
    /// Adds a small text before the next control: an axis or a unit. The width in logical pixels.
    void addText(const QString &text, int minimumWidth = 0);
    void addStretch() { m_row->addStretch(); }
    /// `width`: from the form's left edge to the first control.
    void setLabelColumn(int width);

protected:
    bool event(QEvent *event) override;

private:
    int m_column = 0;
    QBoxLayout *m_whole;
    QSpacerItem *m_space; // what of the column the label leaves; gives way to wide contents
    QHBoxLayout *m_row;
    QLabel *m_label;
};

} // namespace velvane
