#pragma once

#include "base/CancelCheck.h"
#include "model/Snapshot.h"

#include <QCoroTask>

#include <functional>

namespace velvane {

/// The user stopped an export.
struct ExportCancelled {};

/// Renders a demo to a movie file.
namespace Exporter {

/// How many frames the movie of a demo has: its length times its rate, rounded up, at least 1.
/// 0 when no movie can have so many.
qint64 frameCount(const Snapshot &snap);

/// Writes the movie of a demo. Await on the main thread, whose event loop must keep turning; the
/// work runs on another.
///
/// `progress` is called on the main thread, once per frame and in order, with (i + 1) ÷ count, and
/// never after the task has ended; it must not throw. A size or length that no movie can have is
/// refused with MovieError before an existing file is touched; what the system says of a file that
/// cannot be created is passed on as MovieError; later failures are ExportError. When
/// `shouldCancel`, asked on the worker before every frame, says so, the task ends with
/// ExportCancelled. Whatever ends an export early, the movie is closed with the frames done so far.
QCoro::Task<> exportTo(Snapshot snap, QString path, std::function<void(double)> progress,
                       CancelCheck shouldCancel);

} // namespace Exporter

} // namespace velvane
