#pragma once

#include <QColor>
#include <QDBusMessage>
#include <QObject>

namespace velvane {

/// What the desktop asks of every application's look, from its settings portal, live.
///
/// Without a portal nothing is known and nothing changes. Main thread; the first answer comes
/// later, through changed(), so that no start waits for it.
class SystemAppearance : public QObject {
    Q_OBJECT
public:
    explicit SystemAppearance(QObject *parent = nullptr);

    /// Is a dark look wanted? Unknown without a portal or a preference.
    std::optional<bool> prefersDark() const { return m_prefersDark; }
    /// The highlight colour; invalid when the desktop names none.
    QColor accent() const { return m_accent; }
    /// Shall nothing move that need not?
    bool wantsLessMotion() const { return m_reducesMotion || !m_animates; }

    /// Takes one setting as the portal sends it; settings that say nothing here are ignored.
    void take(const QString &group, const QString &key, const QVariant &value);

Q_SIGNALS:
    void changed();

private Q_SLOTS:
    void settingChanged(const QDBusMessage &message);

private:
    void ask(const QString &group, const QString &key);

    std::optional<bool> m_prefersDark;
    QColor m_accent;
    bool m_reducesMotion = false;
    bool m_animates = true;
};

} // namespace velvane
