#include "editor/Controls.h"

#include "editor/FilePanelIcons.h"
#include "editor/IconButton.h"
#include "editor/Theme.h"

#include <QFileDialog>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QSplitter>
#include <QTreeView>

namespace velvane::Controls {

IconButton *button(const QString &symbol, const QString &text, const QString &help,
                   const QString &look, QWidget *parent)
{
    auto *made = new IconButton(parent);
    if (!symbol.isEmpty()) {
        const auto tone = look == QLatin1String("primary") ? Icons::Tone::onPrimary
                          : look == QLatin1String("destructive")
                              ? Icons::Tone::destructiveWhenActive
                              : Icons::Tone::text;
        made->setIcon(Icons::icon(symbol, tone));
    }
    made->setProperty("look", look);
    made->setLabel(text);
    if (text.isEmpty())
        made->setAccessibleName(help);
    setUsable(*made, help, {});
    return made;
}

void setUsable(QWidget &control, const QString &help, const QString &missing)
{
    QStringList lines{help, missing};
    lines.removeAll(QString());
    const QString explained = lines.join(QLatin1Char('\n'));
    control.setToolTip(explained);
    control.setAccessibleDescription(explained);
    control.setEnabled(missing.isEmpty());
}

QFrame *hairline(QWidget *parent)
{
    auto *line = new QFrame(parent);
    line->setProperty("look", QStringLiteral("hairline"));
    line->setFixedHeight(1);
    return line;
}

QLabel *note(const QString &text, const QString &look, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setWordWrap(true);
    label->setProperty("look", look);
    label->setFont(Theme::font(TextSize::secondary));
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::NoTextInteraction);
    return label;
}

void makeRoom(QFileDialog &panel)
{
    // Logical pixels.
    constexpr QSize size(820, 520);
    constexpr int places = 180;
    constexpr int columns[] = {260, 90, 90, 170};
    auto *splitter = panel.findChild<QSplitter *>(QStringLiteral("splitter"));
    auto *files = panel.findChild<QTreeView *>(QStringLiteral("treeView"));
    if (!splitter || !files)
        return;
    FilePanelIcons::give(panel);
    panel.resize(size);
    splitter->setSizes({places, size.width() - places});
    for (int i = 0; i < int(std::size(columns)); ++i)
        files->header()->resizeSection(i, columns[i]);
}

} // namespace velvane::Controls
