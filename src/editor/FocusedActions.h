#pragma once

#include "editor/ExportVideoAction.h"
#include "editor/MenuActions.h"

#include <QObject>

#include <optional>

namespace velvane {

/// What the focused editor publishes for the menus: nothing while no editor has the focus. Main
/// thread only.
class FocusedActions : public QObject {
    Q_OBJECT
public:
    explicit FocusedActions(QObject *parent = nullptr);

    const std::optional<MenuActions> &menuActions() const { return m_menuActions; }
    const std::optional<ExportVideoAction> &exportVideo() const { return m_exportVideo; }

    void publish(std::optional<MenuActions> actions);
    void publish(std::optional<ExportVideoAction> action);

Q_SIGNALS:
    void published();

private:
    std::optional<MenuActions> m_menuActions;
    std::optional<ExportVideoAction> m_exportVideo;
};

} // namespace velvane
