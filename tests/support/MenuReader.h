#pragma once

#include "support/Print.h"

#include <QMenu>

#include <gtest/gtest.h>

namespace velvane {

/// Looks into a menu as a user does, submenus too.
class MenuReader {
public:
    explicit MenuReader(const QMenu &menu) : m_menu(menu) {}

    /// The visible items from top to bottom; dividers are "-".
    QStringList texts() const
    {
        QStringList texts;
        for (const QAction *action : m_menu.actions())
            if (action->isVisible())
                texts << (action->isSeparator() ? QStringLiteral("-") : action->text());
        return texts;
    }

    QStringList symbols() const
    {
        QStringList symbols;
        for (const QAction *action : m_menu.actions())
            if (!action->isSeparator())
                symbols << action->property("symbol").toString();
        return symbols;
    }

    /// The item of that text, anywhere below.
    QAction &item(const QString &text) const
    {
        QAction *found = find(m_menu, text);
        EXPECT_TRUE(found) << text.toStdString();
        static QAction missing(nullptr);
        return found ? *found : missing;
    }

    /// All items below, submenus' too, without dividers.
    QList<QAction *> all() const { return all(m_menu); }

private:
    static QAction *find(const QMenu &menu, const QString &text)
    {
        for (QAction *action : all(menu))
            if (action->text() == text)
                return action;
        return nullptr;
    }

    static QList<QAction *> all(const QMenu &menu)
    {
        QList<QAction *> items;
        for (QAction *action : menu.actions()) {
            if (!action->isSeparator())
                items << action;
            if (action->menu())
                items << all(*action->menu());
        }
        return items;
    }

    const QMenu &m_menu;
};

} // namespace velvane
