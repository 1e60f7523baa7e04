#include "media/YuvRows.h"

#include <algorithm>

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace velvane {

namespace {

// BT.709 weights of red, green and blue, as fixed-point numbers. Each fits 16 bits, which is what
// the processor multiplies at a stroke; those of a chroma sample add up to 0, so that grey has
// none.
struct Weights {
    int blue;
    int green;
    int red;
};
constexpr int lumaShift = 15;
constexpr Weights luma{2032, 20127, 5983};  // × 219 ÷ 255 × 2^15
constexpr int chromaShift = 18;             // 16 bits, and the mean of four pixels
constexpr Weights cb{28785, -22189, -6596}; // × 224 ÷ 255 × 2^16
constexpr Weights cr{-2639, -26145, 28784};
constexpr int lumaOffset = (16 << lumaShift) + (1 << (lumaShift - 1));
constexpr int chromaOffset = (128 << chromaShift) + (1 << (chromaShift - 1));

constexpr qsizetype bytesPerPixel = 4;

int weighted(Weights weights, int blue, int green, int red)
{
    return weights.blue * blue + weights.green * green + weights.red * red;
}

quint8 lumaOf(const quint8 *pixel)
{
    return quint8((weighted(luma, pixel[0], pixel[1], pixel[2]) + lumaOffset) >> lumaShift);
}

YuvRows::Rows advanced(YuvRows::Rows rows, int x)
{
    return {rows.top + bytesPerPixel * x,
            rows.bottom + bytesPerPixel * x,
            rows.lumaTop + x,
            rows.lumaBottom + x,
            rows.cb + x / 2,
            rows.cr + x / 2};
}

} // namespace

void YuvRows::convertPlain(Rows rows, int width)
{
    for (int x = 0; x < width; x += 2) {
        const quint8 *top = rows.top + bytesPerPixel * x;
        const quint8 *bottom = rows.bottom + bytesPerPixel * x;
        rows.lumaTop[x] = lumaOf(top);
        rows.lumaTop[x + 1] = lumaOf(top + bytesPerPixel);
        rows.lumaBottom[x] = lumaOf(bottom);
        rows.lumaBottom[x + 1] = lumaOf(bottom + bytesPerPixel);
        int sum[3];
        for (int i = 0; i < 3; ++i)
            sum[i] = top[i] + top[i + bytesPerPixel] + bottom[i] + bottom[i + bytesPerPixel];
        rows.cb[x / 2] =
            quint8((weighted(cb, sum[0], sum[1], sum[2]) + chromaOffset) >> chromaShift);
        rows.cr[x / 2] =
            quint8((weighted(cr, sum[0], sum[1], sum[2]) + chromaOffset) >> chromaShift);
    }
}

#if defined(__x86_64__)

namespace {

#define VELVANE_AVX2 __attribute__((target("avx2"), always_inline)) inline

constexpr int step = 16; // pixels
constexpr qsizetype halfStep = 8 * bytesPerPixel;

// One pixel's colours in the two halves of each 32-bit lane.
struct Pixels {
    __m256i blueRed;
    __m256i green;
};

constexpr int pair(int low, int high)
{
    return int((quint32(high) << 16) | (quint32(low) & 0xffff));
}

VELVANE_AVX2 Pixels load8(const quint8 *pixels)
{
    const __m256i raw = _mm256_loadu_si256(reinterpret_cast<const __m256i *>(pixels));
    return {_mm256_and_si256(raw, _mm256_set1_epi32(0x00ff00ff)),
            _mm256_and_si256(_mm256_srli_epi16(raw, 8), _mm256_set1_epi32(0x000000ff))};
}

VELVANE_AVX2 __m256i luma8(const Pixels &pixels)
{
    const __m256i sum = _mm256_add_epi32(
        _mm256_madd_epi16(pixels.blueRed, _mm256_set1_epi32(pair(luma.blue, luma.red))),
        _mm256_madd_epi16(pixels.green, _mm256_set1_epi32(luma.green)));
    return _mm256_srai_epi32(_mm256_add_epi32(sum, _mm256_set1_epi32(lumaOffset)), lumaShift);
}

// Adds each pixel's neighbour, so that both lanes of a pair hold the sum of the pair.
VELVANE_AVX2 __m256i pairSums(__m256i lanes)
{
    return _mm256_add_epi16(lanes, _mm256_shuffle_epi32(lanes, _MM_SHUFFLE(2, 3, 0, 1)));
}

// Four chroma samples of eight columns, as 32-bit numbers: cb, cr, cb, cr…
VELVANE_AVX2 __m256i chroma4(const Pixels &top, const Pixels &bottom)
{
    const __m256i blueRed = pairSums(_mm256_add_epi16(top.blueRed, bottom.blueRed));
    const __m256i green = pairSums(_mm256_add_epi16(top.green, bottom.green));
    const __m256i forBlueRed = _mm256_set1_epi64x(
        qint64((quint64(quint32(pair(cr.blue, cr.red))) << 32) | quint32(pair(cb.blue, cb.red))));
    const __m256i forGreen = _mm256_set1_epi64x(
        qint64((quint64(quint32(pair(cr.green, 0))) << 32) | quint32(pair(cb.green, 0))));
    const __m256i sum = _mm256_add_epi32(_mm256_madd_epi16(blueRed, forBlueRed),
                                         _mm256_madd_epi16(green, forGreen));
    return _mm256_srai_epi32(_mm256_add_epi32(sum, _mm256_set1_epi32(chromaOffset)), chromaShift);
}

VELVANE_AVX2 void storeLuma(const YuvRows::Rows &rows, __m256i top, __m256i bottom)
{
    // Packing works within 128-bit halves; the permutation puts the groups of four in order.
    const __m256i order = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
    const __m256i bytes = _mm256_permutevar8x32_epi32(_mm256_packus_epi16(top, bottom), order);
    _mm_storeu_si128(reinterpret_cast<__m128i *>(rows.lumaTop), _mm256_castsi256_si128(bytes));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(rows.lumaBottom),
                     _mm256_extracti128_si256(bytes, 1));
}

VELVANE_AVX2 void storeChroma(const YuvRows::Rows &rows, __m256i samples)
{
    // Within a half: cb and cr alternate; collect four bytes of each.
    const __m128i collect = _mm_setr_epi8(0, 2, 4, 6, 1, 3, 5, 7, -1, -1, -1, -1, -1, -1, -1, -1);
    const __m256i bytes = _mm256_packus_epi16(samples, samples);
    const __m128i low = _mm_shuffle_epi8(_mm256_castsi256_si128(bytes), collect);
    const __m128i high = _mm_shuffle_epi8(_mm256_extracti128_si256(bytes, 1), collect);
    const __m128i ordered = _mm_unpacklo_epi16(low, high);
    _mm_storel_epi64(reinterpret_cast<__m128i *>(rows.cb), ordered);
    _mm_storel_epi64(reinterpret_cast<__m128i *>(rows.cr), _mm_unpackhi_epi64(ordered, ordered));
}

VELVANE_AVX2 void convertStep(const YuvRows::Rows &at)
{
    const Pixels top[]{load8(at.top), load8(at.top + halfStep)};
    const Pixels bottom[]{load8(at.bottom), load8(at.bottom + halfStep)};
    storeLuma(at, _mm256_packs_epi32(luma8(top[0]), luma8(top[1])),
              _mm256_packs_epi32(luma8(bottom[0]), luma8(bottom[1])));
    storeChroma(at, _mm256_packs_epi32(chroma4(top[0], bottom[0]), chroma4(top[1], bottom[1])));
}

__attribute__((target("avx2"))) void convertAvx2(YuvRows::Rows rows, int width)
{
    if (width < step) {
        YuvRows::convertPlain(rows, width);
        return;
    }
    // The last step ends with the row; what it shares with the one before comes out the same.
    for (int x = 0; x < width; x += step)
        convertStep(advanced(rows, std::min(x, width - step)));
}

#undef VELVANE_AVX2

} // namespace

YuvRows::Convert YuvRows::avx2()
{
    return __builtin_cpu_supports("avx2") ? convertAvx2 : nullptr;
}

#else

YuvRows::Convert YuvRows::avx2()
{
    return nullptr;
}

#endif

YuvRows::Convert YuvRows::fastest()
{
    const Convert quick = avx2();
    return quick ? quick : convertPlain;
}

} // namespace velvane
