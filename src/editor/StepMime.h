#pragma once

#include "model/Step.h"

#include <QByteArray>
#include <QList>

#include <memory>

class QMimeData;

namespace velvane {

/// What the clipboard holds of steps.
namespace StepMime {

/// A binary property list, as a demo file is.
QString type();

/// The steps as a property list, and their summaries as text, a line each.
std::unique_ptr<QMimeData> write(const QList<Step> &steps,
                                 const std::optional<QByteArray> &recordingBookmark);

/// The steps, with new ids; without recorded offsets unless the bookmark is the same, since they
/// are moments of that recording. Empty when there are none or they cannot be read.
QList<Step> read(const QMimeData &data, const std::optional<QByteArray> &recordingBookmark);

} // namespace StepMime

} // namespace velvane
