#pragma once

#include "model/StepKind.h"

#include <QAbstractButton>
#include <QFont>

class QMenu;

namespace velvane {

/// One cell of the grid: the kind's symbol over its short name.
class AddStepButton : public QAbstractButton {
    Q_OBJECT
public:
    explicit AddStepButton(StepKind kind, QWidget *parent = nullptr);
    QSize sizeHint() const override;
    /// What the name is drawn with: narrower than other small text where that makes it fit.
    QFont labelFont() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    StepKind m_kind;
};

/// The kinds of steps to add, two rows of five.
class AddStepGrid : public QWidget {
    Q_OBJECT
public:
    explicit AddStepGrid(QWidget *parent = nullptr);

    /// The same kinds as a menu, each by its full name and in its family's colours.
    static void fill(QMenu &menu, const std::function<void(StepKind)> &chosen);
    /// "Add " followed by the kind's name.
    static QString help(StepKind kind);

Q_SIGNALS:
    void chosen(velvane::StepKind kind);
};

} // namespace velvane
