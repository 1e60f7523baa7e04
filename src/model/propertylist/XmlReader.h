#pragma once

#include "model/propertylist/PropertyList.h"

class QIODevice;

namespace velvane {

/// Reads the XML form of property lists.
namespace XmlReader {

/// The value of a whole file; throws DocumentError, naming line and column. Data take three times
/// their bytes of memory while they are read, and twice them to the end.
PropertyList read(QIODevice &file);
PropertyList read(const QByteArray &bytes);

} // namespace XmlReader

} // namespace velvane
