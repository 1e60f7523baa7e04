#pragma once

#include "capture/RunSettings.h"
#include "editor/BackdropController.h"
#include "editor/CanvasController.h"
#include "live/LiveRunController.h"

#include <QWidget>

class QAction;
class QActionGroup;
class QMenu;

namespace velvane {

class IconButton;
class SegmentBar;
class SegmentButton;

/// The bar above the stage: backdrops, magnifier, and the live run with its options.
class EditorToolBar : public QWidget {
    Q_OBJECT
public:
    EditorToolBar(Project &project, BackdropController &backdrop, CanvasController &canvas,
                  LiveRunController &live, RunSettings &settings, QWidget *parent = nullptr);

    /// Shows the backdrop toggles, and the run options, by their icons only.
    void setIconOnly(bool backdrops, bool runOptions);

private:
    void addBackdrops();
    void addMagnifier();
    void addRunOptions();
    void addRecordingModes(QMenu &menu);
    void addRunLive();
    void updateBackdrops();
    void updateMagnifier();
    void updateRunOptions();
    void updateRunLive();

    Project &m_project;
    BackdropController &m_backdrop;
    CanvasController &m_canvas;
    LiveRunController &m_live;
    RunSettings &m_settings;
    SegmentBar *m_backdrops = nullptr;
    SegmentButton *m_showLive = nullptr;
    SegmentButton *m_freeze = nullptr;
    SegmentButton *m_showRecording = nullptr;
    IconButton *m_magnify = nullptr;
    IconButton *m_runOptions = nullptr;
    QAction *m_hideOthers = nullptr;
    QAction *m_recordCursor = nullptr;
    QActionGroup *m_modes = nullptr;
    QAction *m_windowNote = nullptr;
    IconButton *m_runLive = nullptr;
};

} // namespace velvane
