#pragma once

#include <QObject>
#include <QString>

namespace velvane {

/// The window's one-line message: how the last command ended.
class StatusLine : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;

    const QString &message() const { return m_message; }
    void setMessage(const QString &message);
    /// Another sentence to the message.
    void addMessage(const QString &message) { setMessage(m_message + ' ' + message); }

Q_SIGNALS:
    void messageChanged();

private:
    QString m_message;
};

} // namespace velvane
