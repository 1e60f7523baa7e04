#pragma once

#include "editor/FieldBinding.h"
#include "editor/StatusLine.h"
#include "platform/Screens.h"

#include <QWidget>

class QLabel;

namespace velvane {

class IconButton;
class FormRow;

/// The demo's own settings: canvas, frame rate, start point and backdrop picture.
class DemoSettingsForm : public QWidget {
    Q_OBJECT
public:
    DemoSettingsForm(Project &project, FieldEditing &editing, Screens &screens, StatusLine &status,
                     QWidget *parent = nullptr);

    void setLabelColumn(int width);

private:
    static int axisWidth(int column);
    FormRow *addRow(const QString &label);
    void addNumbers(FormRow &row, const QStringList &texts, const QStringList &names,
                    const QList<Field::Kind> &fields);
    void addCanvas();
    void addBackdrop();
    void chooseBackdrop();
    void update();

    Project &m_project;
    Screens &m_screens;
    StatusLine &m_status;
    FieldBinding m_binding;
    QList<FormRow *> m_rows;
    QLabel *m_picture = nullptr;
    IconButton *m_remove = nullptr;
};

} // namespace velvane
