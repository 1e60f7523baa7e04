#include "editor/ExportPanel.h"

#include "editor/Controls.h"

#include <QDir>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStandardPaths>

namespace velvane {

namespace {

const auto extension = QStringLiteral(".mp4");

QString &lastFolder()
{
    static QString folder = QStandardPaths::writableLocation(QStandardPaths::MoviesLocation);
    return folder;
}

} // namespace

ExportPanel::ExportPanel(const ExportQuestion &question, QWidget *parent)
    : QFileDialog(parent, tr("Export to Video"))
{
    // The system's own panel shows no note and does not complete names before it asks about them.
    setOption(DontUseNativeDialog);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setAcceptMode(AcceptSave);
    setFileMode(AnyFile);
    setNameFilter(tr("MPEG-4 movies (*.mp4)"));
    setLabelText(Accept, tr("Export"));
    setLabelText(LookIn, tr("Save in:"));
    setDirectory(QFileInfo(lastFolder()).isDir() ? lastFolder() : QDir::homePath());
    selectFile(question.name);
    Controls::makeRoom(*this);
    if (!question.note.isEmpty())
        addNote(question.note);
    connect(this, &QFileDialog::fileSelected, this,
            [chosen = question.chosen](const QString &path) {
                lastFolder() = QFileInfo(path).absolutePath();
                chosen(path);
            });
}

AskWhereToExport ExportPanel::over(QWidget &widget)
{
    return [&widget](const ExportQuestion &question) {
        (new ExportPanel(question, widget.window()))->open();
    };
}

void ExportPanel::accept()
{
    const QString path = selectedFiles().value(0);
    if (!path.isEmpty() && !QFileInfo(path).isDir()
        && !path.endsWith(extension, Qt::CaseInsensitive)) {
        // selectFile() leaves a name alone that is being typed.
        auto *name = findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
        Q_ASSERT(name);
        name->setText(path + extension);
    }
    QFileDialog::accept();
}

void ExportPanel::addNote(const QString &note)
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    Q_ASSERT(grid);
    grid->addWidget(Controls::note(note, QStringLiteral("note"), this), grid->rowCount(), 0, 1,
                    grid->columnCount());
}

} // namespace velvane
