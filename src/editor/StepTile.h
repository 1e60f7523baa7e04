#pragma once

#include "model/StepKind.h"

#include <QWidget>

namespace velvane {

/// A kind's symbol on its tile, 22 pixels square.
class StepTile : public QWidget {
    Q_OBJECT
public:
    explicit StepTile(QWidget *parent = nullptr);
    void setKind(StepKind kind);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    StepKind m_kind = StepKind::move;
};

} // namespace velvane
