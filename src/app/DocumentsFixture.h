#pragma once

#include "app/Documents.h"
#include "app/EditorWindow.h"
#include "editor/ContentView.h"
#include "model/ProjectFile.h"
#include "model/StepList.h"
#include "platform/simulated/SimulatedDesktop.h"
#include "support/Print.h"

#include <QCoreApplication>
#include <QDropEvent>
#include <QEventLoop>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

namespace velvane {

/// Documents of a simulated desktop, with settings and files of their own.
struct DocumentsFixture : testing::Test {
    DocumentsFixture() { documents.recents().setPictureFolder(folder.filePath("pictures")); }

    QString file(const QString &name) const { return folder.filePath(name); }

    /// A demo file with so many steps, each a click.
    QString demo(const QString &name, int steps = 1) const
    {
        DemoDocument document;
        document.project().setSteps(QList<Step>(steps, Step{.kind = StepKind::click}));
        EXPECT_FALSE(DemoDocument::write(document.snapshot(), file(name)));
        return file(name);
    }
    static qsizetype stepsIn(const QString &path)
    {
        return DemoDocument::read(path)->project().steps().size();
    }
    QByteArray bytesOf(const QString &path) const
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    static Project &project(EditorWindow *window) { return window->content().project(); }
    static void edit(EditorWindow *window) { StepList::addStep(project(window), StepKind::click); }
    /// Starts an export that takes long enough to be cancelled.
    void exportLong(EditorWindow *window, const QString &movie) const
    {
        Step pause{.kind = StepKind::wait};
        pause.pauseAfter = 3600s;
        project(window).setSteps({pause});
        window->save();
        window->content().exporting().exportTo(file(movie));
        ASSERT_TRUE(window->content().exporting().isExporting());
    }
    /// Runs events until the object is destroyed.
    static void waitFor(QObject *end)
    {
        QEventLoop loop;
        QObject::connect(end, &QObject::destroyed, &loop, &QEventLoop::quit);
        loop.exec();
    }
    static QString status(EditorWindow *window) { return window->content().statusLine().message(); }

    /// The box that is open over a window, or null.
    static QMessageBox *question(const QWidget *over)
    {
        for (QMessageBox *box : over->findChildren<QMessageBox *>())
            if (box->isVisible())
                return box;
        return nullptr;
    }
    static QString questionText(const QWidget *over)
    {
        const QMessageBox *box = question(over);
        return box ? box->text() : QString();
    }
    static void answer(const QWidget *over, const QString &text)
    {
        QMessageBox *box = question(over);
        ASSERT_TRUE(box) << "no question is open";
        for (QAbstractButton *button : box->buttons())
            if (button->text() == text) {
                button->click();
                return settle();
            }
        FAIL() << "there is no answer " << text.toStdString();
    }
    /// Chooses a file in the panel that is open over a window.
    static void choose(const QWidget *over, const QString &path)
    {
        auto *panel = over->findChild<QFileDialog *>();
        ASSERT_TRUE(panel) << "no file panel is open";
        // Accepting it would ask by a box that blocks whether to replace a file.
        Q_EMIT panel->fileSelected(path);
        delete panel;
        settle();
    }
    /// Drags a file over a window and lets it go there; false when the window does not want it.
    static bool drop(QWidget *over, const QString &path)
    {
        const QPoint at(5, 5);
        QMimeData data;
        data.setUrls({QUrl::fromLocalFile(path)});
        QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(over, &enter);
        QDropEvent drop(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(over, &drop);
        return enter.isAccepted();
    }
    /// Lets windows that were closed go.
    static void settle()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }

    QTemporaryDir folder;
    SimulatedDesktop desktop;
    QSettings stored{folder.filePath("settings.ini"), QSettings::IniFormat};
    Documents documents{desktop, stored};
};

} // namespace velvane
