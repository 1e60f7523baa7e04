#pragma once

#include <QList>
#include <QSettings>

namespace velvane {

class EditorWindow;

/// Where document windows stand and how wide their panes are, kept from one window to the next.
///
/// The settings' keys are "windowGeometry", "sidebarWidth" and "inspectorWidth"; widths are logical
/// pixels, and there only once the user has set them.
namespace WindowPlaces {

void remember(const EditorWindow &window, QSettings &settings);

/// Puts a window where the last one stood, and beside those that stand there already.
void place(EditorWindow &window, QSettings &settings, const QList<EditorWindow *> &others);

} // namespace WindowPlaces

} // namespace velvane
