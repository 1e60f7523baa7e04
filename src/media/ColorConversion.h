#pragma once

struct AVFrame;

namespace velvane {

/// Conversions between a frame's samples and others, by the matrix and range that it is tagged
/// with. Thread-safe.
namespace ColorConversion {

/// Four bytes a pixel, blue first, opaque. Rows have room for a multiple of 16 pixels, which may be
/// written to. False when there is no memory.
bool toPixels(const AVFrame &from, unsigned char *pixels, int bytesPerRow, int width, int height);

/// The same picture as 8-bit 4:2:0 planes, its tags kept or, for RGB, set. `to` is a blank frame.
bool toPlanes(const AVFrame &from, AVFrame &to);

} // namespace ColorConversion

} // namespace velvane
