#pragma once

#include <QTemporaryDir>

namespace velvane {

/// While it lives, this process's user has a home of their own, with the states of programs in it.
class TemporaryHome {
public:
    TemporaryHome()
    {
        qputenv("HOME", m_folder.path().toLocal8Bit());
        qunsetenv("XDG_STATE_HOME");
    }
    ~TemporaryHome()
    {
        qputenv("HOME", m_before);
        if (!m_stateBefore.isNull())
            qputenv("XDG_STATE_HOME", m_stateBefore);
    }
    Q_DISABLE_COPY_MOVE(TemporaryHome)

    QString path() const { return m_folder.path(); }

private:
    const QByteArray m_before = qgetenv("HOME");
    const QByteArray m_stateBefore = qgetenv("XDG_STATE_HOME");
    const QTemporaryDir m_folder;
};

} // namespace velvane
