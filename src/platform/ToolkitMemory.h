#pragma once

namespace velvane {

/// Has the toolkit forget the requests that the display has long answered: it notes one for each
/// title of a window, and by itself drops none. Asks the display once; nothing happens where there
/// is none. Main thread only.
void returnToolkitMemory();

} // namespace velvane
