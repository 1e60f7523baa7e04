#pragma once

#include <QMenu>

namespace velvane {

/// A menu whose items have symbols: beside the symbol stands a check, or a dot at the chosen one of
/// a group, and a chevron shows that an item opens a menu.
class SymbolMenu : public QMenu {
    Q_OBJECT
public:
    /// `checks` leaves room for checks beside the symbols.
    explicit SymbolMenu(const QString &title, QWidget *parent = nullptr, bool checks = false);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_checks;
};

} // namespace velvane
