#pragma once

#include <QMainWindow>

class QLabel;
class QListView;
class QStandardItemModel;
class QVBoxLayout;

namespace velvane {

class Documents;

/// The window that stands when no demo is open: New, Open… and the recent demos. Closing it ends
/// the program.
///
/// A main window, for screen readers call nothing else a window.
class StartWindow : public QMainWindow {
    Q_OBJECT
public:
    /// Borrows the documents.
    explicit StartWindow(Documents &documents, QWidget *parent = nullptr);

Q_SIGNALS:
    void closed();

protected:
    void showEvent(QShowEvent *event) override;
    void closeEvent(QCloseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *makeActions();
    QWidget *makeRecents();
    void addShortcuts();
    void fill();

    Documents &m_documents;
    QStandardItemModel *m_model;
    QListView *m_list = nullptr;
    QLabel *m_empty = nullptr;
};

} // namespace velvane
