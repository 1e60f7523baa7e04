#pragma once

#include "editor/IconButton.h"

class QLabel;

namespace velvane {

/// What an empty demo's canvas says, and two ways to begin. Clicks beside the buttons go through it
/// to the canvas.
class CanvasHint : public QWidget {
    Q_OBJECT
public:
    explicit CanvasHint(QWidget *parent);

    /// To be wired by who has the live screen, and by who records real actions: hidden until then.
    IconButton &liveButton() { return *m_live; }
    IconButton &recordButton() { return *m_record; }

    /// Centres it in the part of the canvas that can be seen.
    void placeIn(const QRect &area);

private:
    QLabel *m_label;
    IconButton *m_live;
    IconButton *m_record;
};

} // namespace velvane
