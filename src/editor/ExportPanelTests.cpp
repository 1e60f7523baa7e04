#include "editor/ExportPanel.h"

#include "support/Print.h"

#include <QApplication>
#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTimer>

#include <gtest/gtest.h>

namespace velvane {

namespace {

struct ExportPanelTest : testing::Test {
    ExportPanel &open(const QString &note = {})
    {
        const auto remember = [this](const QString &path) { chosen << path; };
        AskWhereToExport ask = ExportPanel::over(window);
        window.show();
        ask({.name = "Velvane.mp4", .note = note, .chosen = remember});
        panel = window.findChild<ExportPanel *>();
        panel->setDirectory(folder.path());
        return *panel;
    }
    void save(const QString &name)
    {
        auto *typed = panel->findChild<QLineEdit *>("fileNameEdit");
        QApplication::setActiveWindow(panel);
        typed->setFocus();
        ASSERT_TRUE(typed->hasFocus());
        typed->setText(name);
        panel->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QTemporaryDir folder;
    QWidget window;
    QPointer<ExportPanel> panel;
    QStringList chosen;
};

} // namespace

TEST_F(ExportPanelTest, ProposesTheNameAndTakesMoviesOnly)
{
    open();
    EXPECT_EQ(QFileInfo(panel->selectedFiles().value(0)).fileName(), "Velvane.mp4");
    EXPECT_EQ(panel->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(panel->nameFilters(), QStringList{"MPEG-4 movies (*.mp4)"});
    EXPECT_EQ(panel->windowModality(), Qt::WindowModal);
}

TEST_F(ExportPanelTest, SavingHandsTheFileOn)
{
    open();
    save("Tour.mp4");
    EXPECT_EQ(chosen, QStringList{folder.filePath("Tour.mp4")});
}

TEST_F(ExportPanelTest, AMissingExtensionIsAdded)
{
    open();
    save("Tour 1.2");
    EXPECT_EQ(chosen, QStringList{folder.filePath("Tour 1.2.mp4")});
}

TEST_F(ExportPanelTest, AnExtensionInCapitalsIsOne)
{
    open();
    save("Tour.MP4");
    EXPECT_EQ(chosen, QStringList{folder.filePath("Tour.MP4")});
}

TEST_F(ExportPanelTest, CancellingHandsNothingOn)
{
    open();
    panel->reject();
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ExportPanelTest, AnExistingFileIsAskedAboutByItsWholeName)
{
    QFile existing(folder.filePath("Tour.mp4"));
    ASSERT_TRUE(existing.open(QIODevice::WriteOnly));
    open();
    QString question;
    QTimer::singleShot(0, panel, [&] {
        if (auto *box = panel->findChild<QMessageBox *>()) {
            question = box->text();
            box->button(QMessageBox::No)->click();
        }
    });
    save("Tour");
    EXPECT_TRUE(question.startsWith("Tour.mp4 already exists."));
    EXPECT_TRUE(chosen.isEmpty());
}

TEST_F(ExportPanelTest, TheNoteStandsInThePanel)
{
    open("The recording is not exported.");
    bool found = false;
    for (const QLabel *label : panel->findChildren<QLabel *>())
        found = found || label->text() == "The recording is not exported.";
    EXPECT_TRUE(found);
}

} // namespace velvane
