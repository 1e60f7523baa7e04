#include "app/FilePanel.h"

#include "editor/Controls.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace velvane::FilePanel {

namespace {

QString tr(const char *english)
{
    return QCoreApplication::translate("FilePanel", english);
}

QFileDialog *panel(QWidget *over, const QString &title)
{
    auto *made = new QFileDialog(over, title);
    made->setAttribute(Qt::WA_DeleteOnClose);
    made->setNameFilter(tr("Velvane demos (*.velvane)"));
    made->setDefaultSuffix(QStringLiteral("velvane"));
    Controls::makeRoom(*made);
    return made;
}

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

} // namespace

void open(QWidget *over, const QString &folder,
          const std::function<void(const QStringList &)> &then)
{
    QFileDialog *dialog = panel(over, tr("Open Demo"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDirectory(folder.isEmpty() ? documents() : folder);
    // A panel that closes makes the window below it active; what is opened or raised comes after.
    QObject::connect(dialog, &QFileDialog::filesSelected, dialog, [then](const QStringList &paths) {
        QMetaObject::invokeMethod(
            qApp, [then, paths] { then(paths); }, Qt::QueuedConnection);
    });
    dialog->open();
}

void save(QWidget *over, const QString &suggested, const std::function<void(const QString &)> &then)
{
    QFileDialog *dialog = panel(over, tr("Save Demo"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setLabelText(QFileDialog::LookIn, tr("Save in:"));
    const QFileInfo file(suggested);
    dialog->setDirectory(file.isAbsolute() ? file.absolutePath() : documents());
    dialog->selectFile(file.isAbsolute() ? file.fileName()
                                         : suggested + QStringLiteral(".velvane"));
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, then);
    QObject::connect(dialog, &QDialog::rejected, dialog, [then] { then({}); });
    dialog->open();
}

} // namespace velvane::FilePanel
