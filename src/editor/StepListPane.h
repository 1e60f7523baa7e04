#pragma once

#include "capture/RecordActionsController.h"
#include "editor/StepClipboard.h"
#include "editor/StepListView.h"
#include "live/LiveRunController.h"

#include <QLabel>

namespace velvane {

class AddStepGrid;
class IconButton;

/// The sidebar: what adds and records steps, and the list of them.
class StepListPane : public QWidget {
    Q_OBJECT
public:
    StepListPane(Project &project, Selection &selection, StepClipboard &clipboard,
                 RecordActionsController &record, LiveRunController &live,
                 QWidget *parent = nullptr);

    /// A menu button in place of the grid.
    void setAddMenu(bool menu);
    void setPadding(int padding);
    StepListView &view() { return *m_view; }
    StepListModel &model() { return m_model; }

private:
    QWidget *makeHeader();
    void connectView();
    void showContextMenu(QPoint position);
    void addRowActions(QMenu &menu, const Step &step);
    void addListActions(QMenu &menu);
    void updateCapabilities();

    Project &m_project;
    Selection &m_selection;
    StepClipboard &m_clipboard;
    RecordActionsController &m_record;
    LiveRunController &m_live;
    StepListModel m_model;
    int m_padding = 0;
    QWidget *m_header = nullptr;
    QLabel *m_title = nullptr;
    IconButton *m_addMenu = nullptr;
    IconButton *m_recordButton = nullptr;
    AddStepGrid *m_grid = nullptr;
    StepListView *m_view = nullptr;
};

} // namespace velvane
