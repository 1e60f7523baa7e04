#include "editor/MenuText.h"

#include "editor/Theme.h"

#include <QLabel>
#include <QMenu>
#include <QWidgetAction>

namespace velvane::MenuText {

namespace {

QAction *add(QMenu &menu, const QString &text, QMargins margins)
{
    auto *label = new QLabel(text, &menu);
    label->setProperty("look", QStringLiteral("hint"));
    label->setFont(Theme::font(TextSize::small));
    label->setContentsMargins(margins);
    auto *action = new QWidgetAction(&menu);
    action->setText(text);
    action->setDefaultWidget(label);
    action->setEnabled(false);
    menu.addAction(action);
    return action;
}

} // namespace

QString escaped(QString name)
{
    return name.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

QAction *addHeader(QMenu &menu, const QString &title)
{
    return add(menu, title, {8, 5, 8, 3});
}

QAction *addNote(QMenu &menu, const QString &text)
{
    return add(menu, text, {32, 0, 8, 5});
}

} // namespace velvane::MenuText
