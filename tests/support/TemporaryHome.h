#pragma once

#include <QTemporaryDir>

namespace velvane {

/// While it lives, this process's user has a home of their own.
class TemporaryHome {
public:
    TemporaryHome() { qputenv("HOME", m_folder.path().toLocal8Bit()); }
    ~TemporaryHome() { qputenv("HOME", m_before); }
    Q_DISABLE_COPY_MOVE(TemporaryHome)

    QString path() const { return m_folder.path(); }

private:
    const QByteArray m_before = qgetenv("HOME");
    const QTemporaryDir m_folder;
};

} // namespace velvane
