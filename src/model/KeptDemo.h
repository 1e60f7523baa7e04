#pragma once

#include "base/FileStamp.h"
#include "model/ProjectFile.h"

#include <QDateTime>
#include <QUuid>

namespace velvane {

/// An open demo as it is kept outside its own file, for when the program ends without having saved
/// it.
struct KeptDemo {
    QUuid id;       ///< of the record; each open demo has one of its own
    QString path;   ///< of the demo's own file; empty when it has never been saved
    QString title;  ///< what its window calls it
    QDateTime kept; ///< when
    /// The demo's own file as it was last read or written; nothing when it has none.
    std::optional<FileStamp> stamp;
    /// The demo with its changes; nothing when the file itself has them all.
    std::optional<ProjectFile> demo;

    /// A binary property list.
    QByteArray contents() const;
    /// Reads it; throws DocumentError.
    static KeptDemo from(const QByteArray &contents);
};

} // namespace velvane
