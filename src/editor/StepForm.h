#pragma once

#include "editor/AppCatalog.h"
#include "editor/FieldBinding.h"
#include "editor/PickLocationController.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace velvane {

class IconButton;
class AppMenu;
class FormRow;
class ShortcutRecorder;

/// The selected step's fields: those of its kind, and the note that explains it.
class StepForm : public QWidget {
    Q_OBJECT
public:
    StepForm(Project &project, FieldEditing &editing, PickLocationController &pick,
             AppCatalog &catalog, QWidget *parent = nullptr);

    /// What the inspector says of a kind; empty where its fields say it all.
    static QString note(StepKind kind);

    void setLabelColumn(int width);

Q_SIGNALS:
    /// The user picked the application to switch to; the step has it now.
    void appChosen(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const Step *step() const;
    qsizetype index() const;
    FormRow *addRow(const QString &label);
    void addTarget();
    void addText();
    void addShortcut();
    void addApp();
    void addTimes();
    void update();
    void showText(const QString &text);

    Project &m_project;
    FieldEditing &m_editing;
    PickLocationController &m_pick;
    FieldBinding m_binding;
    QList<FormRow *> m_rows;
    FormRow *m_target = nullptr;
    FormRow *m_pickRow = nullptr;
    IconButton *m_pickButton = nullptr;
    FormRow *m_typed = nullptr;
    QPlainTextEdit *m_typedText = nullptr;
    FormRow *m_title = nullptr;
    QLineEdit *m_titleText = nullptr;
    FormRow *m_shortcut = nullptr;
    ShortcutRecorder *m_recorder = nullptr;
    FormRow *m_app = nullptr;
    AppMenu *m_appMenu = nullptr;
    FormRow *m_center = nullptr;
    QCheckBox *m_centerBox = nullptr;
    FormRow *m_duration = nullptr;
    FormRow *m_pause = nullptr;
    QWidget *m_noteBlock = nullptr;
    QLabel *m_note = nullptr;
};

} // namespace velvane
