#pragma once

#include "editor/PreviewCanvas.h"

#include <QAccessible>
#include <QPointer>

namespace velvane {

/// A marker on the canvas for screen readers, e.g. "Step 3, Move to (120, 80)". It is looked up by
/// its move's id, so it lives on while others come and go. Main thread only.
class MarkerAccessible : public QAccessibleInterface {
public:
    MarkerAccessible(PreviewCanvas &canvas, const QUuid &move) : m_canvas(&canvas), m_move(move) {}

    const QUuid &move() const { return m_move; }

    bool isValid() const override { return marker() != nullptr; }
    QObject *object() const override { return nullptr; }
    QAccessibleInterface *parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QAccessibleInterface *childAt(int, int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
    QRect rect() const override;
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override;
    QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString &) override {}

private:
    const CanvasMarks::Marker *marker() const;

    QPointer<PreviewCanvas> m_canvas;
    QUuid m_move;
};

} // namespace velvane
