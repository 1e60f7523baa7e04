#include "app/FilePanel.h"

#include "app/Question.h"
#include "editor/Controls.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QStandardPaths>

namespace velvane::FilePanel {

namespace {

const auto suffix = QStringLiteral("velvane");

QString tr(const char *english)
{
    return QCoreApplication::translate("FilePanel", english);
}

QFileDialog *panel(QWidget *over, const QString &title)
{
    auto *made = new QFileDialog(over, title);
    made->setAttribute(Qt::WA_DeleteOnClose);
    made->setNameFilter(tr("Velvane demos (*.velvane)"));
    Controls::makeRoom(*made);
    return made;
}

QString documents()
{
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

// The panel has asked about the name that was typed; the system's own knows of no suffix.
void complete(QWidget *over, const QString &typed, const std::function<void(const QString &)> &then)
{
    if (QFileInfo(typed).fileName().contains(u'.'))
        return then(typed);
    const QString path = typed + u'.' + suffix;
    if (!QFileInfo::exists(path))
        return then(path);
    const Question question{tr("“%1” already exists.").arg(QFileInfo(path).fileName()),
                            tr("Replacing it loses what it holds."),
                            {tr("Save As…"), tr("Replace"), tr("Cancel")}};
    ask(over, question, [over, path, then](int answer) {
        if (answer == 0)
            save(over, path, then);
        else
            then(answer == 1 ? path : QString());
    });
}

} // namespace

void open(QWidget *over, const QString &folder,
          const std::function<void(const QStringList &)> &then)
{
    QFileDialog *dialog = panel(over, tr("Open Demo"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    dialog->setDefaultSuffix(suffix);
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
    dialog->selectFile(file.isAbsolute() ? file.fileName() : suggested + u'.' + suffix);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog,
                     [over, then](const QString &typed) { complete(over, typed, then); });
    QObject::connect(dialog, &QDialog::rejected, dialog, [then] { then({}); });
    dialog->open();
}

} // namespace velvane::FilePanel
