#pragma once

#include "model/propertylist/PropertyList.h"

namespace velvane {

/// Reads the XML form of property lists.
namespace XmlReader {

/// The value of a whole file; throws DocumentError, naming line and column.
PropertyList read(const QByteArray &bytes);

} // namespace XmlReader

} // namespace velvane
