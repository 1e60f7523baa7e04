#include "editor/OpenGesture.h"

#include <utility>

namespace velvane {

OpenGesture::OpenGesture(Project &project, QObject *parent) : QObject(parent), m_project(project)
{
    connect(&project, &Project::willEdit, this, &OpenGesture::commit);
    connect(&project, &Project::selectionChanged, this, &OpenGesture::commit);
}

void OpenGesture::begin(const QString &name)
{
    if (name == m_name)
        return;
    commit();
    m_name = name;
    m_before = m_project.docState();
    m_project.beginEdit();
}

void OpenGesture::commit()
{
    if (!isOpen())
        return;
    const QString name = std::exchange(m_name, {});
    m_before = {};
    m_project.commitEdit(name);
    Q_EMIT committed();
}

bool OpenGesture::hasChanges() const
{
    return isOpen() && !(m_before == m_project.docState());
}

} // namespace velvane
