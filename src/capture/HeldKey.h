#pragma once

#include <QObject>

#include <optional>

class QKeyEvent;

namespace velvane {

/// Keeps from the whole application what a key repeats while it stays down. Main thread only.
///
/// The toolkit marks repeats only when it already has the press that follows a release, so that
/// the mark alone does not do: a release and a press of one moment are a repeat as well.
class HeldKey : public QObject {
public:
    /// From now until it comes up. `scanCode` is the key's native number; 0, that of no key, ends
    /// what there was.
    void hold(quint32 scanCode);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool isRepeat(const QKeyEvent &event) const;

    quint32 m_scanCode = 0;
    /// The server's time, in milliseconds, of a release that may belong to a repeat.
    std::optional<quint64> m_released;
};

} // namespace velvane
