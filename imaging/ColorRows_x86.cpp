// SPDX-License-Identifier: Apache-2.0
#include "imaging/ColorRows.h"

#if defined(__x86_64__)

#include <algorithm>
#include <emmintrin.h>

namespace imaging {
namespace {

constexpr std::size_t kPixels = 16;

/// How many pixels of a row are done: all, unless there are fewer than go at once.
constexpr std::size_t wholeOf(std::size_t width)
{
    return width < kPixels ? 0 : width;
}

/// Where the next pixels begin that go at once. The last of a row go together with some that are
/// done already.
constexpr std::size_t next(std::size_t x, std::size_t width)
{
    return x + kPixels == width ? width : std::min(x + kPixels, width - kPixels);
}

inline __m128i load(const std::uint8_t *from)
{
    return _mm_loadu_si128(reinterpret_cast<const __m128i *>(from));
}

inline void store(std::uint8_t *to, __m128i bytes)
{
    _mm_storeu_si128(reinterpret_cast<__m128i *>(to), bytes);
}

/// 16 bytes as 16-bit lanes.
struct Wide
{
    explicit Wide(__m128i bytes)
        : low(_mm_unpacklo_epi8(bytes, _mm_setzero_si128()))
        , high(_mm_unpackhi_epi8(bytes, _mm_setzero_si128()))
    { }

    void multiply(int factor)
    {
        low = _mm_mullo_epi16(low, _mm_set1_epi16(short(factor)));
        high = _mm_mullo_epi16(high, _mm_set1_epi16(short(factor)));
    }

    void add(const Wide &other)
    {
        low = _mm_add_epi16(low, other.low);
        high = _mm_add_epi16(high, other.high);
    }

    /// The 256ths, rounded; sums stay below 65536.
    __m128i rounded256ths() const
    {
        const __m128i half = _mm_set1_epi16(128);
        return _mm_packus_epi16(_mm_srli_epi16(_mm_add_epi16(low, half), 8),
                                _mm_srli_epi16(_mm_add_epi16(high, half), 8));
    }

    __m128i low;
    __m128i high;
};

inline Wide times(__m128i bytes, int factor)
{
    Wide wide(bytes);
    wide.multiply(factor);
    return wide;
}

struct Tones
{
    explicit Tones(const FixedPointMap &map)
        : slope(_mm_set1_epi16(short(map.slope)))
        , add(_mm_set1_epi16(short(map.add)))
        , subtract(_mm_set1_epi16(short(map.subtract)))
        , shift(_mm_cvtsi32_si128(map.shift))
    { }

    /// `lanes` are values * 256; the result may be above 255 and is cut by the packing.
    __m128i lanes(__m128i lanes) const
    {
        const __m128i product = _mm_mulhi_epu16(lanes, slope);
        const __m128i sum = _mm_subs_epu16(_mm_adds_epu16(product, add), subtract);
        return _mm_srl_epi16(sum, shift);
    }

    __m128i of(__m128i bytes) const
    {
        const __m128i zero = _mm_setzero_si128();
        return _mm_packus_epi16(lanes(_mm_unpacklo_epi8(zero, bytes)),
                                lanes(_mm_unpackhi_epi8(zero, bytes)));
    }

    __m128i slope;
    __m128i add;
    __m128i subtract;
    __m128i shift;
};

struct Rgb
{
    __m128i red;
    __m128i green;
    __m128i blue;
};

/// Brings bytes that stand 24 apart together; four times that sorts 48 bytes into threes.
inline Rgb shuffled(const Rgb &bytes)
{
    const auto upper = [](__m128i lanes) { return _mm_unpackhi_epi64(lanes, lanes); };
    return {_mm_unpacklo_epi8(bytes.red, upper(bytes.green)),
            _mm_unpacklo_epi8(upper(bytes.red), bytes.blue),
            _mm_unpacklo_epi8(bytes.green, upper(bytes.blue))};
}

inline Rgb tonedPixels(const std::uint8_t *rgb, const Tones &tones)
{
    Rgb bytes{tones.of(load(rgb)), tones.of(load(rgb + 16)), tones.of(load(rgb + 32))};
    for (int round = 0; round < 4; ++round) {
        bytes = shuffled(bytes);
    }
    return bytes;
}

inline __m128i greyOf(const Rgb &pixels)
{
    Wide sum = times(pixels.red, 77);
    sum.add(times(pixels.green, 150));
    sum.add(times(pixels.blue, 29));
    return sum.rounded256ths();
}

/// 512ths of an amount, rounded down and cut to 255.
inline __m128i part(__m128i amount, __m128i of512)
{
    const __m128i zero = _mm_setzero_si128();
    const __m128i low = _mm_srli_epi16(_mm_unpacklo_epi8(zero, amount), 1);
    const __m128i high = _mm_srli_epi16(_mm_unpackhi_epi8(zero, amount), 1);
    return _mm_packus_epi16(_mm_mulhi_epu16(low, of512), _mm_mulhi_epu16(high, of512));
}

struct Border
{
    explicit Border(const RedBorder &border)
        : toBlack(_mm_set1_epi16(short(border.toBlack)))
        , toRed(_mm_set1_epi16(short(border.toRed)))
        , allToBlack(_mm_set1_epi8(char(border.allToBlack)))
    { }

    __m128i moved(__m128i red, __m128i black) const
    {
        const __m128i less = _mm_min_epu8(red, _mm_adds_epu8(part(black, toBlack), allToBlack));
        const __m128i more = _mm_min_epu8(black, part(red, toRed));
        return _mm_add_epi8(_mm_sub_epi8(red, less), more);
    }

    __m128i toBlack;
    __m128i toRed;
    __m128i allToBlack;
};

/// What is left of 255.
inline __m128i rest(__m128i bytes)
{
    return _mm_xor_si128(bytes, _mm_set1_epi8(-1));
}

} // namespace

std::size_t toneGreySse2(const FixedPointMap &map, const std::uint8_t *from, std::size_t width,
                         std::uint8_t *grey)
{
    const Tones tones(map);
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        store(grey + x, tones.of(load(from + x)));
    }
    return wholeOf(width);
}

std::size_t greyOfRgbSse2(const FixedPointMap &map, const std::uint8_t *rgb, std::size_t width,
                          std::uint8_t *grey)
{
    const Tones tones(map);
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        store(grey + x, greyOf(tonedPixels(rgb + x * 3, tones)));
    }
    return wholeOf(width);
}

std::size_t separateSse2(const FixedPointMap &map, const RedBorder &redBorder,
                         const std::uint8_t *rgb, std::size_t width, std::uint8_t *paperTo,
                         std::uint8_t *redTo)
{
    const Tones tones(map);
    const Border border(redBorder);
    for (std::size_t x = 0; x < wholeOf(width); x = next(x, width)) {
        const Rgb pixels = tonedPixels(rgb + x * 3, tones);
        const __m128i tint = _mm_and_si128(_mm_srli_epi16(rest(pixels.red), 3), _mm_set1_epi8(31));
        const __m128i excess = _mm_subs_epu8(pixels.red, _mm_max_epu8(pixels.green, pixels.blue));
        const __m128i red = _mm_subs_epu8(excess, tint);
        const __m128i paper = _mm_sub_epi8(greyOf(pixels), times(red, 77).rounded256ths());
        const __m128i black = _mm_sub_epi8(rest(paper), red);
        store(paperTo + x, paper);
        store(redTo + x, border.moved(red, black));
    }
    return wholeOf(width);
}

} // namespace imaging

#endif
