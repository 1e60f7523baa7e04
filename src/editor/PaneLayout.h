#pragma once

#include "editor/Condensing.h"

#include <QObject>

#include <optional>

class QSplitter;
class QWidget;

namespace velvane {

class EditorToolBar;
class InspectorPane;
class StagePane;
class StatusLineView;
class StepListPane;
class TransportBar;
class VideoScrubBar;

/// Widths that the user gave the panes, logical pixels; 0 where the window's size decides.
struct PaneWidths {
    int sidebar = 0;
    int inspector = 0;
};

/// Where the editor's panes lie and how much of the window each takes. Main thread only.
class PaneLayout : public QObject {
    Q_OBJECT
public:
    struct Panes {
        StepListPane *steps;
        EditorToolBar *toolBar;
        StagePane *stage;
        VideoScrubBar *scrubBar;
        TransportBar *transport;
        InspectorPane *inspector;
        StatusLineView *status;
    };

    /// Lays the panes out in `whole`, which owns them from then on and this too.
    PaneLayout(QWidget &whole, const Panes &panes);

    PaneWidths widths() const { return m_userWidths; }
    void restore(PaneWidths widths);

    /// The whole has another size: shows the panes as it leaves room for.
    void fit();

private:
    void layOut();
    QWidget *makeStageColumn();
    QWidget *makeRight();
    void sizePanes();
    Condensing room() const;

    QWidget &m_whole;
    const Panes m_panes;
    QSplitter *m_outer;
    QSplitter *m_inner;
    std::optional<Condensing> m_condensing;
    PaneWidths m_userWidths;
};

} // namespace velvane
