#pragma once

#include "editor/FieldEditing.h"
#include "editor/StepClipboard.h"

#include <QWidget>

#include <array>

class QLabel;

namespace velvane {

class FormRow;
class NumberField;

/// What several selected steps have in common: how many there are of each kind, how long they take
/// together, and the pause when it is the same for all, to be set for all at once. Hidden it keeps
/// nothing up to date but count(). Main thread only.
class SeveralStepsForm : public QWidget {
    Q_OBJECT
public:
    SeveralStepsForm(Project &project, Selection &selection, StepClipboard &clipboard,
                     FieldEditing &editing, QWidget *parent = nullptr);

    /// How many existing steps are selected.
    qsizetype count() const { return m_count; }
    void setLabelColumn(int width);

Q_SIGNALS:
    void countChanged();

protected:
    void showEvent(QShowEvent *event) override;

private:
    /// One kind's tile, name and number.
    struct KindRow {
        QWidget *row = nullptr;
        QLabel *number = nullptr;
    };

    void addKinds();
    void addTimes();
    void addDuplicate(StepClipboard &clipboard);
    void update();
    void showSteps(const QList<qsizetype> &places);
    void showPause(const QList<qsizetype> &places);
    void setPauses(double seconds);

    Project &m_project;
    Selection &m_selection;
    OpenGesture &m_gesture;
    qsizetype m_count = 0;
    std::array<KindRow, allStepKinds.size()> m_kinds;
    FormRow *m_lengthRow = nullptr;
    QLabel *m_length = nullptr;
    FormRow *m_pauseRow = nullptr;
    NumberField *m_pause = nullptr;
};

} // namespace velvane
