#include "editor/StepForm.h"

#include "capture/ShortcutRecorder.h"
#include "editor/AppMenu.h"
#include "editor/Controls.h"
#include "editor/FormRow.h"
#include "editor/IconButton.h"
#include "editor/Metrics.h"
#include "editor/NumberField.h"
#include "editor/StepEdits.h"
#include "model/StepList.h"

#include <QCheckBox>
#include <QFocusEvent>
#include <QFrame>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace velvane {

namespace {

constexpr int typedHeight = 72;

// The text as a field of several lines has it: each end of a line, of whatever kind, is "\n".
QString withPlainLines(QString text)
{
    text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    for (const char16_t end : {u'\r', u'\u2028', u'\u2029'})
        text.replace(QChar(end), QLatin1Char('\n'));
    return text;
}

// toPlainText() would make plain spaces of those that do not break.
QString textOf(const QPlainTextEdit &field)
{
    return withPlainLines(field.document()->toRawText());
}

} // namespace

StepForm::StepForm(Project &project, FieldEditing &editing, PickLocationController &pick,
                   AppCatalog &catalog, QWidget *parent)
    : QWidget(parent)
    , m_project(project)
    , m_editing(editing)
    , m_pick(pick)
    , m_binding(editing)
    , m_appMenu(new AppMenu(catalog, this))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(Metrics::gap);
    addTarget();
    addText();
    addShortcut();
    addApp();
    addTimes();
    m_noteBlock = new QWidget(this);
    auto *block = new QVBoxLayout(m_noteBlock);
    block->setContentsMargins(0, Metrics::gap, 0, 0);
    block->setSpacing(Metrics::wideGap);
    block->addWidget(Controls::hairline(m_noteBlock));
    m_note = Controls::note({}, QStringLiteral("note"), m_noteBlock);
    block->addWidget(m_note);
    column->addWidget(m_noteBlock);

    connect(&m_project, &Project::stepsChanged, this, &StepForm::update);
    connect(&m_project, &Project::selectionChanged, this, &StepForm::update);
    connect(&m_pick, &PickLocationController::canPickLocationChanged, this, &StepForm::update);
    update();
}

QString StepForm::note(StepKind kind)
{
    switch (kind) {
    case StepKind::move:
        return tr("Click the preview to set this target — or Pick on screen to grab the cursor's "
                  "location after a countdown, for spots only visible while interacting (menus, "
                  "popovers).");
    case StepKind::click:
        return tr("A quick press and release at the current point.");
    case StepKind::rightClick:
        return tr("A secondary (right) click at the current point.");
    case StepKind::hold:
        return tr("Presses and holds the button. Add Move steps to drag, then a Release.");
    case StepKind::release:
        return tr("Releases a held button — completes a drag.");
    case StepKind::shortcut:
        return tr("Press the key combo to record it (e.g. ⌘C). It fires at the current point.");
    case StepKind::wait:
        return tr("Pauses for the time shown on the right of the step row.");
    case StepKind::section:
        return tr("A heading to organize the flow. It does nothing when the demo runs.");
    case StepKind::type:
    case StepKind::switchApp:
        break;
    }
    return {};
}

FormRow *StepForm::addRow(const QString &label)
{
    auto *row = new FormRow(label, this);
    layout()->addWidget(row);
    m_rows << row;
    return row;
}

void StepForm::addTarget()
{
    m_target = addRow(tr("Target"));
    for (const auto kind : {Field::Kind::x, Field::Kind::y}) {
        const bool isX = kind == Field::Kind::x;
        const QString axis = isX ? tr("X") : tr("Y");
        m_target->addText(axis);
        auto *field = new NumberField(NumberField::Kind::coordinate, tr("Target %1").arg(axis),
                                      isX ? tr("How far from the canvas's left edge")
                                          : tr("How far from the canvas's top edge"),
                                      this);
        m_binding.add(*field, [kind] { return Field{kind}; });
        m_target->add(field);
    }
    m_target->addStretch();
    m_pickRow = addRow({});
    m_pickButton =
        Controls::button(QStringLiteral("dot.scope"), tr("Pick on screen"), {}, {}, this);
    connect(m_pickButton, &QAbstractButton::clicked, this, [this] { m_pick.pickLocation(); });
    m_pickRow->add(m_pickButton);
    m_pickRow->addStretch();
}

void StepForm::addText()
{
    m_typed = addRow(tr("Text"));
    m_typedText = new QPlainTextEdit(this);
    m_typedText->setAccessibleName(tr("Text"));
    m_typedText->setToolTip(tr("The text to type, line breaks included"));
    m_typedText->setTabChangesFocus(true);
    m_typedText->setFixedHeight(typedHeight);
    // The demo has its own undo, which takes the whole of what was typed.
    m_typedText->setUndoRedoEnabled(false);
    m_typed->add(m_typedText, 1);
    connect(m_typedText, &QPlainTextEdit::textChanged, this, [this] {
        if (m_typedText->hasFocus())
            m_editing.setText(textOf(*m_typedText));
    });

    m_title = addRow(tr("Title"));
    m_titleText = new QLineEdit(this);
    m_titleText->setAccessibleName(tr("Title"));
    m_titleText->setToolTip(tr("The heading in the step list"));
    m_title->add(m_titleText, 1);
    connect(m_titleText, &QLineEdit::textEdited, &m_editing, &FieldEditing::setText);
    m_typedText->installEventFilter(this);
    m_titleText->installEventFilter(this);
}

bool StepForm::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // Undo and redo are the demo's, which knows the whole of what was typed.
        const auto *key = static_cast<QKeyEvent *>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
    }
    const bool focusEvent = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
    if (focusEvent && static_cast<QFocusEvent *>(event)->reason() != Qt::PopupFocusReason) {
        if (event->type() == QEvent::FocusIn)
            m_editing.setFocusedField(Field{Field::Kind::text});
        else
            m_editing.setFocusedField({});
    }
    return QWidget::eventFilter(watched, event);
}

void StepForm::addShortcut()
{
    m_shortcut = addRow(tr("Shortcut"));
    m_recorder = new ShortcutRecorder(this);
    m_recorder->setToolTip(note(StepKind::shortcut));
    m_recorder->setAccessibleName(tr("Shortcut"));
    m_recorder->setAccessibleDescription(note(StepKind::shortcut));
    connect(m_recorder, &ShortcutRecorder::recorded, this, [this](const KeyCombination &keys) {
        StepEdits::setShortcut(m_project, index(), keys.keyCode, keys.modifiers, keys.characters);
    });
    m_shortcut->add(m_recorder);
    m_shortcut->addStretch();
}

void StepForm::addApp()
{
    m_app = addRow(tr("App"));
    m_app->add(m_appMenu, 1);
    connect(m_appMenu, &AppMenu::chosen, this,
            [this](const QString &name) { StepList::setApp(m_project, index(), name); });
    connect(m_appMenu, &AppMenu::chosen, this, &StepForm::appChosen);
    m_center = addRow({});
    m_centerBox = new QCheckBox(tr("Center window"), this);
    m_centerBox->setToolTip(tr("Center the app's front window on the screen"));
    connect(m_centerBox, &QCheckBox::clicked, this,
            [this](bool on) { StepEdits::setCenterWindow(m_project, index(), on); });
    m_center->add(m_centerBox);
    m_center->addStretch();
}

void StepForm::addTimes()
{
    const auto seconds = [this](const QString &label, const QString &help,
                                const std::function<Field()> &which) {
        FormRow *row = addRow(label);
        auto *field = new NumberField(NumberField::Kind::seconds, label, help, this);
        m_binding.add(*field, which);
        row->add(field);
        row->addText(tr("s"));
        row->addStretch();
        return row;
    };
    m_duration = seconds(tr("Duration"), tr("How long the action takes"),
                         [] { return Field{Field::Kind::duration}; });
    m_pause = seconds(tr("Pause"), tr("How long to rest after the action"), [this] {
        return Field{Field::Kind::pause, index()};
    });
}

qsizetype StepForm::index() const
{
    return StepList::selectedIndex(m_project).value_or(-1);
}

const Step *StepForm::step() const
{
    const qsizetype place = index();
    return place < 0 ? nullptr : &m_project.steps().at(place);
}

void StepForm::update()
{
    const Step *shown = step();
    if (!shown)
        return;
    const StepKind kind = shown->kind;
    const bool isMove = kind == StepKind::move;
    m_target->setVisible(isMove);
    m_pickRow->setVisible(isMove);
    m_typed->setVisible(kind == StepKind::type);
    m_title->setVisible(kind == StepKind::section);
    m_shortcut->setVisible(kind == StepKind::shortcut);
    m_app->setVisible(kind == StepKind::switchApp);
    m_center->setVisible(kind == StepKind::switchApp);
    m_duration->setVisible(hasDuration(kind));
    m_pause->setVisible(kind != StepKind::section);
    m_note->setText(note(kind));
    m_noteBlock->setVisible(!note(kind).isEmpty());

    Controls::setUsable(*m_pickButton, tr("Grab the cursor's location after a countdown"),
                        m_pick.missing());
    showText(shown->text);
    m_recorder->setDisplay(shown->shortcutDisplay());
    if (kind == StepKind::switchApp)
        m_appMenu->setApp(shown->text);
    m_centerBox->setChecked(shown->centerWindow);
    m_binding.update();
}

void StepForm::showText(const QString &text)
{
    // Setting an equal text would move the cursor of one who types it.
    if (textOf(*m_typedText) != withPlainLines(text)) {
        const QSignalBlocker isNotTyped(m_typedText);
        m_typedText->setPlainText(text);
    }
    if (m_titleText->text() != text)
        m_titleText->setText(text);
}

void StepForm::setLabelColumn(int width)
{
    for (FormRow *row : m_rows)
        row->setLabelColumn(width);
}

} // namespace velvane
