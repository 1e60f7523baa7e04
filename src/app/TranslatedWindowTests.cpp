#include "app/DocumentsFixture.h"
#include "app/StartWindow.h"
#include "editor/AddStepGrid.h"
#include "editor/IconButton.h"
#include "language/Languages.h"
#include "support/PseudoCatalogue.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QScrollArea>

namespace velvane {

namespace {

// What users write, and the program's name, are the same in every language.
const QStringList untranslated{"Safari", "Type here", "Section", "Velvane"};

/// Windows in a language of longer words.
struct TranslatedWindow : DocumentsFixture {
    TranslatedWindow() { QCoreApplication::installTranslator(&language); }
    ~TranslatedWindow() override { QCoreApplication::removeTranslator(&language); }

    /// A window on a demo with a step of each kind.
    EditorWindow *open(QSize size)
    {
        EditorWindow *window = documents.newDemo();
        QList<Step> steps;
        for (const StepKind kind : allStepKinds)
            steps << Step::withDefaults(kind, {1280, 800});
        project(window).setSteps(steps);
        window->resize(size);
        window->show();
        settle();
        return window;
    }
    // The height of a wrapped text goes up through the layouts one event at a time.
    static void settleLayouts()
    {
        constexpr int depth = 6;
        for (int i = 0; i < depth; ++i)
            settle();
    }
    /// Looks at the window with each step selected in turn, with all, and with none.
    template <typename Look>
    static void withEachSelection(EditorWindow *window, const Look &look)
    {
        look("nothing");
        for (const Step &step : project(window).steps()) {
            window->content().selection().select(step.id);
            settleLayouts();
            look(id(step.kind).toStdString());
        }
        window->content().selection().selectAll();
        settle();
        look("all");
    }
    PseudoCatalogue language;
};

void expectTranslated(const QString &text, const std::string &where)
{
    EXPECT_TRUE(untranslated.contains(text) || PseudoCatalogue::isOurs(text))
        << where << ": " << text.toStdString();
}

void expectTranslated(const QWidget *widget, const std::string &where)
{
    expectTranslated(widget->toolTip(), where);
    expectTranslated(widget->accessibleName(), where);
    expectTranslated(widget->accessibleDescription(), where);
    expectTranslated(widget->statusTip(), where);
    if (const auto *label = qobject_cast<const QLabel *>(widget))
        expectTranslated(label->text(), where);
    if (const auto *button = qobject_cast<const QAbstractButton *>(widget))
        expectTranslated(button->text(), where);
    if (const auto *button = qobject_cast<const IconButton *>(widget))
        expectTranslated(button->label(), where);
    if (const auto *edit = qobject_cast<const QLineEdit *>(widget))
        expectTranslated(edit->placeholderText(), where);
}

// How much wider a label would have to be, in pixels; at most 0 where its text is whole.
int lackingWidth(const QLabel *label)
{
    if (label->text().isEmpty() || !label->pixmap(Qt::ReturnByValue).isNull())
        return 0;
    if (label->wordWrap())
        return label->heightForWidth(label->width()) - label->height();
    // Not the size hint, which counts any width that was fixed before.
    return label->fontMetrics().size(Qt::TextShowMnemonic, label->text()).width()
           - label->contentsRect().width();
}

int lackingWidth(const QAbstractButton *button)
{
    if (const auto *cell = qobject_cast<const AddStepButton *>(button))
        return QFontMetrics(cell->labelFont()).horizontalAdvance(cell->text()) - cell->width();
    return button->sizeHint().width() - button->width();
}

void expectWhole(const QWidget *window, const std::string &where)
{
    for (const QLabel *label : window->findChildren<QLabel *>()) {
        const bool whole = !label->isVisible() || lackingWidth(label) <= 0;
        EXPECT_TRUE(whole) << where << ": " << label->text().toStdString() << " lacks "
                           << lackingWidth(label);
    }
    // What is too wide for a pane that scrolls up and down is cut off there.
    for (const QScrollArea *area : window->findChildren<QScrollArea *>()) {
        const int lacking = area->widget()->width() - area->viewport()->width();
        EXPECT_TRUE(!area->isVisible() || lacking <= 0) << where << ": lacks " << lacking;
    }
    for (const QAbstractButton *button : window->findChildren<QAbstractButton *>()) {
        const bool whole = !button->isVisible() || lackingWidth(button) <= 0;
        EXPECT_TRUE(whole) << where << ": " << button->accessibleName().toStdString() << " lacks "
                           << lackingWidth(button);
    }
}

} // namespace

TEST_F(TranslatedWindow, EveryTextIsInTheCatalogues)
{
    EditorWindow *window = open({960, 600});
    withEachSelection(window, [&](const std::string &what) {
        for (const QWidget *widget : window->findChildren<QWidget *>())
            expectTranslated(widget, what + " selected, " + widget->metaObject()->className());
    });
    for (const QAction *action : window->findChildren<QAction *>())
        expectTranslated(action->text(), "an item");
    expectTranslated(window->windowTitle(), "the title");
}

TEST_F(TranslatedWindow, NoTextIsCutOffInTheSmallestWindow)
{
    EditorWindow *window = open({960, 600});
    ASSERT_EQ(window->size(), QSize(960, 600));
    withEachSelection(window, [&](const std::string &what) { expectWhole(window, what); });
}

TEST_F(TranslatedWindow, NoTextIsCutOffInALargeWindow)
{
    EditorWindow *window = open({1440, 900});
    withEachSelection(window, [&](const std::string &what) { expectWhole(window, what); });
}

TEST_F(TranslatedWindow, NoTextIsCutOffInAnyOfItsLanguages)
{
    QCoreApplication::removeTranslator(&language);
    for (const QString &code : Languages::available()) {
        Catalogue catalogue(":/translations/velvane_" + code);
        QCoreApplication::installTranslator(&catalogue);
        for (const QSize size : {QSize(960, 600), QSize(1440, 900)}) {
            EditorWindow *window = open(size);
            withEachSelection(window, [&](const std::string &what) {
                expectWhole(window, code.toStdString() + ", " + what);
            });
        }
        QCoreApplication::removeTranslator(&catalogue);
    }
}

TEST_F(TranslatedWindow, TheStartWindowIsTranslatedAndWhole)
{
    StartWindow start(documents);
    start.show();
    settle();
    for (const QWidget *widget : start.findChildren<QWidget *>())
        expectTranslated(widget, widget->metaObject()->className());
    expectWhole(&start, "start window");
}

TEST_F(TranslatedWindow, WhatFilesHoldStaysAsItIs)
{
    EXPECT_EQ(Step::withDefaults(StepKind::type, {10, 10}).text, "Type here");
    EXPECT_EQ(Step::withDefaults(StepKind::section, {10, 10}).text, "Section");
    for (const StepKind kind : allStepKinds)
        EXPECT_EQ(stepKind(id(kind)), kind);
    const QByteArray written = DemoDocument::contents(DemoDocument().snapshot());
    QCoreApplication::removeTranslator(&language);
    DemoDocument english;
    EXPECT_EQ(DemoDocument::contents(english.snapshot()).size(), written.size());
}

} // namespace velvane
