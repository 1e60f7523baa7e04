#include "editor/AddStepGrid.h"
#include "editor/EditorToolBar.h"
#include "editor/IconButton.h"
#include "editor/InspectorPane.h"
#include "editor/PreviewCanvas.h"
#include "editor/SegmentBar.h"
#include "editor/StepListPane.h"
#include "editor/Theme.h"
#include "support/EditorFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QSplitter>

namespace velvane {

namespace {

struct ContentViewTest : EditorFixture {
    IconButton &button(const QString &name)
    {
        auto *found = Widgets::named<IconButton>(*view, name);
        EXPECT_TRUE(found) << name.toStdString();
        return *found;
    }
    /// What Tab goes through, from the first control on.
    QList<QWidget *> tabOrder()
    {
        QList<QWidget *> order;
        QWidget *start = view.get();
        for (QWidget *next = start->nextInFocusChain(); next != start;
             next = next->nextInFocusChain())
            if ((next->focusPolicy() & Qt::TabFocus) && next->isVisible() && next->isEnabled())
                order << next;
        return order;
    }
    qsizetype place(const QWidget &widget)
    {
        const qsizetype at = tabOrder().indexOf(&widget);
        EXPECT_GE(at, 0) << widget.accessibleName().toStdString();
        return at;
    }
};

QString nameOf(QWidget *widget)
{
    const QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
    return accessible ? accessible->text(QAccessible::Name) : QString();
}

} // namespace

TEST_F(ContentViewTest, EveryControlHasANameAndARoleWhateverIsSelected)
{
    for (const StepKind kind : allStepKinds) {
        openWith(kind);
        for (QWidget *widget : view->findChildren<QWidget *>()) {
            if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible())
                continue;
            QAccessibleInterface *accessible = QAccessible::queryAccessibleInterface(widget);
            ASSERT_TRUE(accessible);
            EXPECT_FALSE(accessible->text(QAccessible::Name).isEmpty())
                << widget->metaObject()->className() << " for " << label(kind).toStdString();
            EXPECT_NE(accessible->role(), QAccessible::NoRole);
        }
    }
}

TEST_F(ContentViewTest, EveryButtonAndFieldExplainsItself)
{
    for (const StepKind kind : allStepKinds) {
        openWith(kind);
        for (QWidget *widget : tabOrder()) {
            const bool paints =
                qobject_cast<QAbstractItemView *>(widget) || qobject_cast<PreviewCanvas *>(widget);
            EXPECT_TRUE(paints || !widget->toolTip().isEmpty())
                << nameOf(widget).toStdString() << " for " << label(kind).toStdString();
        }
    }
}

TEST_F(ContentViewTest, RolesAreWhatTheControlsAre)
{
    openWith(StepKind::move);
    const auto role = [](QWidget &widget) {
        return QAccessible::queryAccessibleInterface(&widget)->role();
    };
    EXPECT_EQ(role(view->stepListPane().view()), QAccessible::List);
    EXPECT_EQ(role(*view->findChild<SegmentButton *>()), QAccessible::CheckBox);
    EXPECT_EQ(role(button("Delete Step")), QAccessible::Button);
    EXPECT_EQ(role(button("Run options")), QAccessible::ButtonMenu);
    EXPECT_EQ(role(*Widgets::named<QLineEdit>(*view, "Pause")), QAccessible::EditableText);
}

TEST_F(ContentViewTest, RowsAreNamedForAScreenReader)
{
    open({stepOf(StepKind::click)});
    QAccessibleInterface *list =
        QAccessible::queryAccessibleInterface(&view->stepListPane().view());
    ASSERT_EQ(list->childCount(), 1);
    EXPECT_TRUE(list->child(0)->text(QAccessible::Name).contains("Click"));
}

TEST_F(ContentViewTest, TabGoesFromTheSidebarOverTheStageToTheInspector)
{
    openWith(StepKind::move);
    const qsizetype grid = place(*view->findChild<AddStepButton *>());
    const qsizetype list = place(view->stepListPane().view());
    const qsizetype magnify = place(button("Magnify the canvas 4× (Z)"));
    const qsizetype options = place(button("Run options"));
    const qsizetype canvas = place(view->previewCanvas());
    const qsizetype target = place(*Widgets::named<QLineEdit>(*view, "Target X"));
    const qsizetype pause = place(*Widgets::named<QLineEdit>(*view, "Pause"));
    const qsizetype remove = place(button("Delete Step"));
    EXPECT_LT(grid, list);
    EXPECT_LT(list, magnify);
    EXPECT_LT(magnify, options);
    EXPECT_LT(options, canvas);
    EXPECT_LT(canvas, target);
    EXPECT_LT(target, pause);
    EXPECT_LT(pause, remove);
}

TEST_F(ContentViewTest, TheGridGrowsWithLargeLetters)
{
    const QFont before = QApplication::font();
    const AddStepButton small(StepKind::type);
    EXPECT_EQ(small.sizeHint().height(), 46);
    QFont large = before;
    large.setPixelSize(26);
    QApplication::setFont(large);
    EXPECT_EQ(small.sizeHint().height() - 46,
              QFontMetrics(Theme::font(TextSize::small)).height() - 14);
    QApplication::setFont(before);
}

TEST_F(ContentViewTest, ANarrowWindowCondenses)
{
    open({}, {960, 600});
    EXPECT_TRUE(view->findChild<SegmentButton *>()->isIconOnly());
    EXPECT_TRUE(button("Run options").isIconOnly());
    EXPECT_FALSE(button("Run Live").isIconOnly());
    EXPECT_FALSE(view->findChild<AddStepGrid *>()->isVisible());
    EXPECT_TRUE(button("Add a step").isVisible());
    EXPECT_EQ(view->stepListPane().width(), 244);
    EXPECT_EQ(view->inspectorPane().width(), 240);
}

TEST_F(ContentViewTest, AWideWindowShowsEverything)
{
    open({}, {1440, 900});
    EXPECT_FALSE(view->findChild<SegmentButton *>()->isIconOnly());
    EXPECT_FALSE(button("Run options").isIconOnly());
    EXPECT_TRUE(view->findChild<AddStepGrid *>()->isVisible());
    EXPECT_FALSE(button("Add a step").isVisible());
    EXPECT_EQ(view->stepListPane().width(), 300);
    EXPECT_EQ(view->inspectorPane().width(), 280);
}

TEST_F(ContentViewTest, AWidthThatTheUserSetStays)
{
    open({}, {1440, 900});
    auto *outer = view->findChild<QSplitter *>(QString(), Qt::FindDirectChildrenOnly);
    outer->setSizes({350, 1090});
    Q_EMIT outer->splitterMoved(350, 1);
    view->resize(1000, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(view->stepListPane().width(), 350);
}

TEST_F(ContentViewTest, TheAddMenuAddsToo)
{
    open({}, {960, 600});
    QMenu *menu = button("Add a step").menu();
    QStringList texts;
    for (const QAction *action : menu->actions())
        if (!action->isSeparator())
            texts << action->text();
    ASSERT_EQ(texts.size(), 10);
    EXPECT_EQ(texts.constFirst(), "Add Move to");
    menu->actions().constFirst()->trigger();
    EXPECT_EQ(step().kind, StepKind::move);
}

TEST_F(ContentViewTest, RecordIsDisabledWithItsReasonWhereItIsNotPossible)
{
    desktop.tap().setMissing("No listening here.");
    open({});
    auto &record = button("Record");
    EXPECT_TRUE(record.toolTip().startsWith("Record real actions and append them as steps"));
    EXPECT_FALSE(record.isEnabled());
    EXPECT_TRUE(record.toolTip().contains("No listening here."));
}

TEST_F(ContentViewTest, TheStatusLineShowsMessageCanvasAndZoom)
{
    open({});
    view->statusLine().setMessage("Captured target at (470, 236)");
    EXPECT_TRUE(Widgets::named<QLabel>(*view, "Captured target at (470, 236)"));
    bool found = false;
    for (const QWidget *widget : view->findChildren<QWidget *>())
        found = found || widget->accessibleName().startsWith("Canvas 1280 × 800 · ");
    EXPECT_TRUE(found);
}

TEST_F(ContentViewTest, KeysThatAFieldTakesDoNotPlay)
{
    openWith(StepKind::section);
    auto *title = Widgets::named<QLineEdit>(*view, "Title");
    Widgets::press(*title, Qt::Key_Space, {}, " ");
    EXPECT_FALSE(view->playback().isPlaying());
}

} // namespace velvane
