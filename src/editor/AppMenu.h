#pragma once

#include "editor/AppCatalog.h"
#include "editor/IconButton.h"

namespace velvane {

/// Chooses an application by name, from those that run and those that are installed.
class AppMenu : public IconButton {
    Q_OBJECT
public:
    /// Borrows the catalogue.
    explicit AppMenu(AppCatalog &catalog, QWidget *parent = nullptr);

    /// Shows an application's name and icon; an empty name asks for a choice.
    void setApp(const QString &name);

    /// Builds the menu as it stands now; it does so itself before it opens.
    void build();

Q_SIGNALS:
    void chosen(const QString &name);

private:
    /// Adds nothing without entries. With `mark` the current application has a check; true when it
    /// is among the entries.
    bool addSection(const QString &title, const std::vector<AppEntry> &entries, bool mark);

    AppCatalog &m_catalog;
    QMenu *m_menu;
    QString m_name;
};

} // namespace velvane
