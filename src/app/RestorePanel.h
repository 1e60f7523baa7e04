#pragma once

#include "model/KeptDemo.h"

#include <QDialog>

class QListWidget;

namespace velvane {

/// Lists demos whose changes were not saved when the program last ended, each with a check: to
/// restore them, to discard them, or to be asked again later. Escape is later.
class RestorePanel : public QDialog {
    Q_OBJECT
public:
    enum class Answer { restore, discard, later };

    explicit RestorePanel(const QList<KeptDemo> &demos, QWidget *over = nullptr);

    /// The demos that are checked; at first all of them.
    QList<QUuid> checked() const;

Q_SIGNALS:
    /// Once; the panel then closes.
    void answered(Answer answer);

public Q_SLOTS:
    void reject() override;

private:
    QWidget *makeAnswers();
    void finish(Answer answer);

    QListWidget *m_list;
};

} // namespace velvane
