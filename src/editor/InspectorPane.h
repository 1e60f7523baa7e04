#pragma once

#include "editor/Selection.h"

#include <QWidget>

class QLabel;
class QStackedLayout;
class QVBoxLayout;

namespace velvane {

class DemoSettingsForm;
class SeveralStepsForm;
class StepForm;
class StepTile;

/// The right pane: the selected step's fields, what several have in common, or the demo's settings.
class InspectorPane : public QWidget {
    Q_OBJECT
public:
    /// Takes over the forms.
    InspectorPane(Project &project, Selection &selection, StepForm *step, SeveralStepsForm *several,
                  DemoSettingsForm *settings, QWidget *parent = nullptr);

    void setPadding(int padding);
    void setLabelColumn(int width);

    /// What the inspector and the empty canvas say first.
    static QString hint();

Q_SIGNALS:
    /// The user picked the application of a switch step; the step has it now.
    void appChosen(const QString &name);

private:
    QWidget *makeStepPage();
    QWidget *makeSeveralPage();
    QWidget *makeDemoPage();
    QWidget *makeHeader();
    QWidget *makeTitle(QLabel *title);
    QWidget *makeFooter(const QString &text, const QString &help);
    /// A header, the form, and a footer.
    QWidget *makePage(QWidget *header, QWidget *form, QWidget *footer);
    void update();

    Project &m_project;
    Selection &m_selection;
    StepForm *m_form;
    SeveralStepsForm *m_several;
    DemoSettingsForm *m_settings;
    StepTile *m_tile = nullptr;
    QLabel *m_title = nullptr;
    QLabel *m_number = nullptr;
    QLabel *m_severalTitle = nullptr;
    QList<QWidget *> m_padded;
    QStackedLayout *m_pages = nullptr;
};

} // namespace velvane
