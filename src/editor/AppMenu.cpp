#include "editor/AppMenu.h"

#include "editor/MenuText.h"
#include "editor/SymbolMenu.h"

namespace velvane {

namespace {

constexpr int appIcon = 16;

} // namespace

AppMenu::AppMenu(AppCatalog &catalog, QWidget *parent)
    : IconButton(parent)
    , m_catalog(catalog)
    , m_menu(new SymbolMenu({}, this, true))
{
    setIconSize({appIcon, appIcon});
    setToolTip(tr("Choose the application to bring to the front"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &AppMenu::build);
    setApp({});
}

void AppMenu::setApp(const QString &name)
{
    m_name = name;
    setIcon(name.isEmpty() ? QIcon() : m_catalog.icon(name));
    setLabel(name.isEmpty() ? tr("Choose app…") : name);
}

void AppMenu::build()
{
    m_menu->clear();
    const bool marked = addSection(tr("Running"), m_catalog.running(), true);
    addSection(tr("Applications"), m_catalog.installed(), !marked);
    if (m_menu->isEmpty())
        MenuText::addHeader(*m_menu, tr("No applications found"));
    m_menu->setMinimumWidth(width());
}

bool AppMenu::addSection(const QString &title, const std::vector<AppEntry> &entries, bool mark)
{
    if (entries.empty())
        return false;
    if (!m_menu->isEmpty())
        m_menu->addSeparator();
    MenuText::addHeader(*m_menu, title);
    QAction *current = nullptr;
    for (const AppEntry &entry : entries) {
        QAction *action = m_menu->addAction(entry.icon, MenuText::escaped(entry.name), this,
                                            [this, name = entry.name] { Q_EMIT chosen(name); });
        if (mark && entry.name == m_name)
            current = action;
    }
    if (current) {
        current->setCheckable(true);
        current->setChecked(true);
    }
    return current;
}

} // namespace velvane
