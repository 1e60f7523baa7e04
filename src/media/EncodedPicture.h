#pragma once

#include <QtGlobal>

namespace velvane {

/// One H.264 picture as it lies in an MPEG-4 file: NAL units, each after its length in four bytes.
struct EncodedPicture {
    const quint8 *bytes = nullptr; ///< valid until the encoder is called again
    int size = 0;
    qint64 index = 0;   ///< its time in ticks of the encoder; grows from picture to picture
    bool isKey = false; ///< decodable without the pictures before
};

} // namespace velvane
