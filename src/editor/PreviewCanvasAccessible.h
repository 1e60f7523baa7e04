#pragma once

#include <QAccessibleWidget>
#include <QHash>
#include <QUuid>

namespace velvane {

class PreviewCanvas;

/// The canvas for screen readers: a canvas whose description and value tell the selected target,
/// and whose markers are its children, after its child widgets.
class PreviewCanvasAccessible : public QAccessibleWidget {
public:
    explicit PreviewCanvasAccessible(PreviewCanvas &canvas);
    ~PreviewCanvasAccessible() override;

    /// Makes screen readers see canvases this way. Any number of calls does the same as one.
    static void install();

    QString text(QAccessible::Text kind) const override;
    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    QAccessibleInterface *childAt(int x, int y) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

private:
    QAccessibleInterface *marker(const QUuid &move) const;

    PreviewCanvas &m_canvas;
    /// Those that have been asked for.
    mutable QHash<QUuid, QAccessible::Id> m_markers;
};

} // namespace velvane
