#pragma once

#include "model/propertylist/PropertyList.h"

namespace velvane {

/// Writes the binary form of property lists.
namespace BinaryWriter {

/// The bytes of a whole file. Equal texts, data and numbers are written once. The value must not
/// be nested deeper than PropertyList::maxDepth.
QByteArray write(const PropertyList &root);

} // namespace BinaryWriter

} // namespace velvane
