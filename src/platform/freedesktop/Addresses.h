#pragma once

#include <QUrl>

namespace velvane {

/// Opens addresses and files with the programs that the user has chosen for them.
namespace Addresses {

/// Does not wait for the program. False when there is none. Main thread.
bool open(const QUrl &address);

} // namespace Addresses

} // namespace velvane
