#pragma once

#include "editor/FocusedActions.h"

namespace velvane {

class ContentView;

/// Publishes what the menus need of one editor, anew whenever its state changes. Main thread only.
class MenuActionsPublisher : public QObject {
    Q_OBJECT
public:
    /// Borrows the editor, which must be built and outlive it.
    explicit MenuActionsPublisher(ContentView &editor);

    FocusedActions &focused() { return m_focused; }

private:
    void bindActions();
    void bindStepActions();
    void watchState();
    void publish();
    void readState();
    void publishExport();

    ContentView &m_editor;
    MenuActions m_actions;
    FocusedActions m_focused;
};

} // namespace velvane
