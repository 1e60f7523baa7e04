#pragma once

#include "editor/ThemeColors.h"

#include <QFont>
#include <QObject>

class QApplication;

namespace velvane {

class SystemAppearance;
class WindowStyle;

/// Sizes of text: the system font's own, and steps below and above it.
enum class TextSize { body, secondary, small, title };

/// The look of every window: colours, fonts and style sheet, dark or light as the system has it.
///
/// One per process, on the main thread. Widgets that paint themselves read colors() in their
/// paintEvent; changing the theme repaints every window, and changed() tells those with caches.
class Theme : public QObject {
    Q_OBJECT
public:
    enum class Scheme { dark, light };

    /// The one theme; made on first use, which needs the application object.
    static Theme &instance();
    ~Theme() override;

    const ThemeColors &colors() const { return m_colors; }
    /// The application's font in the given size; weights as in QFont.
    static QFont font(TextSize size = TextSize::body, QFont::Weight weight = QFont::Normal);

    /// Puts the look on the application and follows the system from then on. The environment
    /// variable VELVANE_SCHEME ("dark" or "light") is stronger than the system.
    void install(QApplication &application);

    /// Fixes the scheme whatever the system says; nothing follows the system again.
    void setOverride(std::optional<Scheme> scheme);

Q_SIGNALS:
    void changed();

private:
    Theme();
    void update();
    void put();

    std::unique_ptr<SystemAppearance> m_system;
    std::optional<Scheme> m_override;
    bool m_platformIsDark = true;
    QApplication *m_application = nullptr;
    WindowStyle *m_style = nullptr; // the application's
    ThemeColors m_colors;
};

} // namespace velvane
