#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QWidget;

namespace velvane {

/// What the program asks, or tells, in a box of its own.
struct Question {
    QString text;   ///< one sentence
    QString detail; ///< what follows from the answers; may be empty
    /// At most one destroys something: that at index 1 of three. The first is the default, the last
    /// is what Escape gives.
    QStringList answers;

    /// A plain message.
    static Question message(const QString &text, const QString &detail = {});
};

/// Asks over a window, or on its own when that is null, without blocking; `answered` hears the
/// index of the answer, or nothing when the window goes away. While a box is open over the window
/// that one comes to the front, and the question waits for it; the same question is not asked twice
/// but counts as answered by its last answer.
void ask(QWidget *over, const Question &question, const std::function<void(int)> &answered = {});

} // namespace velvane
