#pragma once

#include <QFileDialog>

#include <functional>

namespace velvane {

/// What an export asks the user for: where the movie shall go.
struct ExportQuestion {
    /// The proposed file name.
    QString name;
    /// What the user should know before saving; may be empty.
    QString note;
    /// Called with the chosen file, or not at all when the user cancels.
    std::function<void(const QString &path)> chosen;
};

/// Puts the question and returns at once.
using AskWhereToExport = std::function<void(const ExportQuestion &)>;

/// The save panel for movies, a sheet over its window. Nothing but MPEG-4 files can be chosen: the
/// extension is added where it is missing, before an existing file is asked about.
class ExportPanel : public QFileDialog {
    Q_OBJECT
public:
    ExportPanel(const ExportQuestion &question, QWidget *parent);

    /// Puts questions over the window that holds this widget.
    static AskWhereToExport over(QWidget &widget);

    void accept() override;

private:
    void addNote(const QString &note);
};

} // namespace velvane
