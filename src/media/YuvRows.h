#pragma once

#include <QtGlobal>

namespace velvane {

/// Converts pixels to 4:2:0 samples, two rows at a time: BT.709, limited range.
///
/// Pixels are four bytes, blue first, opaque; the fourth byte is ignored. One chroma sample is the
/// mean of two by two pixels. All code paths give the same numbers.
namespace YuvRows {

/// Two rows of pixels and where their samples go. Rows may be the same row.
struct Rows {
    const quint8 *top;
    const quint8 *bottom;
    quint8 *lumaTop;
    quint8 *lumaBottom;
    quint8 *cb;
    quint8 *cr;
};

/// `width` in pixels, even.
using Convert = void (*)(Rows rows, int width);

void convertPlain(Rows rows, int width);

/// The code for processors with AVX2; null where this processor has none.
Convert avx2();

/// The quickest code that this processor runs.
Convert fastest();

} // namespace YuvRows

} // namespace velvane
