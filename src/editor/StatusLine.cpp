#include "editor/StatusLine.h"

namespace velvane {

void StatusLine::setMessage(const QString &message)
{
    if (message == m_message)
        return;
    m_message = message;
    Q_EMIT messageChanged();
}

} // namespace velvane
