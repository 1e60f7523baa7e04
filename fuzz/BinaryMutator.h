#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);

/// Mutates a binary property list and, mostly, makes its trailer fit again: nearly every mutation
/// would otherwise be refused for its length alone.
inline std::size_t mutateBinary(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                unsigned seed)
{
    size = LLVMFuzzerMutate(data, size, maxSize);
    constexpr std::size_t magic = 8;
    constexpr std::size_t trailerSize = 32;
    if (seed % 8 == 0 || size < magic + 2 + trailerSize)
        return size;
    std::copy_n("bplist00", magic, data);
    const std::size_t trailer = size - trailerSize;
    std::uint8_t *fields = data + trailer;
    fields[6] = std::uint8_t(1 + fields[6] % 8);
    fields[7] = std::uint8_t(1 + fields[7] % 8);
    const std::size_t offsetSize = fields[6];
    std::size_t count = std::max<std::size_t>(fields[15], 1);
    count = std::clamp<std::size_t>(count, 1,
                                    std::max<std::size_t>(1, (trailer - magic) / (offsetSize + 1)));
    const std::size_t table = trailer - count * offsetSize;
    const auto store = [&](std::size_t at, std::uint64_t number) {
        for (int i = 7; i >= 0; --i, number >>= 8)
            fields[at + std::size_t(i)] = std::uint8_t(number);
    };
    store(8, count);
    store(16, fields[23] % count);
    store(24, table);
    return size;
}
