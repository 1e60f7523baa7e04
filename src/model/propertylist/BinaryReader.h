#pragma once

#include "model/propertylist/PropertyList.h"

namespace velvane {

/// Reads the binary form of property lists.
///
/// Shared objects stay shared; sets become arrays. Memory is bounded by the size of the bytes and
/// by PropertyList's limits, whatever the bytes say.
namespace BinaryReader {

/// Do the bytes start as this form does?
bool recognises(QByteArrayView bytes);

/// The value of a whole file; throws DocumentError, naming the object and its byte.
PropertyList read(const QByteArray &bytes);

} // namespace BinaryReader

} // namespace velvane
