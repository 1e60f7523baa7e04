#include "editor/FilePanelIcons.h"

#include "editor/Icons.h"

#include <QAbstractFileIconProvider>
#include <QFileDialog>
#include <QFileInfo>
#include <QToolButton>

namespace velvane::FilePanelIcons {

namespace {

class Provider : public QAbstractFileIconProvider {
public:
    QIcon icon(IconType type) const override
    {
        switch (type) {
        case Computer:
        case Desktop:
        case Network:
        case Drive:
            return symbol("desktopcomputer");
        case Trashcan:
            return symbol("trash");
        case Folder:
            return symbol("folder");
        case File:
            break;
        }
        return symbol("doc");
    }
    QIcon icon(const QFileInfo &file) const override
    {
        return file.isRoot() ? icon(Drive) : icon(file.isDir() ? Folder : File);
    }

private:
    static QIcon symbol(const char *name)
    {
        return Icons::icon(QString::fromLatin1(name), Icons::Tone::secondary);
    }
};

} // namespace

void give(QFileDialog &panel)
{
    // The panel keeps it, but does not own it.
    static Provider provider;
    panel.setIconProvider(&provider);
    constexpr std::pair<const char *, const char *> buttons[] = {
        {"backButton", "arrow.left"},          {"forwardButton", "arrow.right"},
        {"toParentButton", "arrow.up"},        {"newFolderButton", "folder.badge.plus"},
        {"listModeButton", "square.grid.2x2"}, {"detailModeButton", "list.bullet"}};
    for (const auto &[name, symbol] : buttons)
        if (auto *button = panel.findChild<QToolButton *>(QString::fromLatin1(name)))
            button->setIcon(Icons::icon(QString::fromLatin1(symbol)));
}

} // namespace velvane::FilePanelIcons
