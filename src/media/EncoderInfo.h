#pragma once

#include <QString>

namespace velvane {

/// What movies are made with, for people.
namespace EncoderInfo {

QString encoder();
QString muxer();

} // namespace EncoderInfo

} // namespace velvane
