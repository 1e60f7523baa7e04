#pragma once

#include "base/CancelCheck.h"

#include <QtGlobal>

namespace velvane::FragmentedFile {

/// How far an open MPEG-4 file of fragments (moof, mdat) holds them whole, in bytes: what comes
/// after is the beginning of one that was never completed. For every other file its size.
///
/// Reads the head of each outermost box; ends early, with any result, when the check says so.
qint64 wholeEnd(int file, qint64 size, const CancelCheck &shouldCancel = {});

} // namespace velvane::FragmentedFile
