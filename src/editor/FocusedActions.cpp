#include "editor/FocusedActions.h"

namespace velvane {

FocusedActions::FocusedActions(QObject *parent) : QObject(parent) {}

void FocusedActions::publish(std::optional<MenuActions> actions)
{
    m_menuActions = std::move(actions);
    Q_EMIT published();
}

void FocusedActions::publish(std::optional<ExportVideoAction> action)
{
    m_exportVideo = std::move(action);
    Q_EMIT published();
}

} // namespace velvane
