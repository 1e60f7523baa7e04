#pragma once

#include <QProxyStyle>

namespace velvane {

/// Fusion, but for what a style sheet cannot say: letters that open menus are underlined only while
/// Alt is held or the menu bar has the keyboard, menus have round corners without a compositor, and
/// nothing moves where the desktop wants that.
class WindowStyle : public QProxyStyle {
    Q_OBJECT
public:
    WindowStyle();

    /// Shall animations take no time?
    void setStill(bool isStill) { m_isStill = isStill; }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override;
    void polish(QApplication *application) override;
    void unpolish(QApplication *application) override;
    using QProxyStyle::polish;
    using QProxyStyle::unpolish;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool underlines() const;
    void setAlt(bool held);

    bool m_alt = false;
    bool m_isStill = false;
};

} // namespace velvane
