#include "tessel/paint/pixel_blend.h"

#include <algorithm>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace tessel {

void blendPixel(uint8_t* d, const uint8_t* s, uint32_t opacity) {
  if (opacity == 255) {
    const uint32_t keep = 255 - s[3];
    for (int c = 0; c < 4; ++c)
      d[c] = static_cast<uint8_t>(std::min<uint32_t>(255, s[c] + (d[c] * keep + 127) / 255));
    return;
  }
  const uint32_t alpha = (s[3] * opacity + 127) / 255;
  const uint32_t keep = 255 - alpha;
  for (int c = 0; c < 3; ++c) {
    const uint32_t color = (s[c] * opacity + 127) / 255;
    d[c] = static_cast<uint8_t>(std::min<uint32_t>(255, color + (d[c] * keep + 127) / 255));
  }
  d[3] = static_cast<uint8_t>(std::min<uint32_t>(255, alpha + (d[3] * keep + 127) / 255));
}

void fillRow(uint8_t* d, uint32_t value, int32_t count) {
  if (count <= 0) return;
  const size_t bytes = size_t(count) * 4;
  const size_t seed = std::min<size_t>(bytes, 64);
  size_t i = 0;
#if defined(__SSE2__)
  const __m128i four = _mm_set1_epi32(int32_t(value));
  for (; i + 16 <= seed; i += 16)
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), four);
#endif
  for (; i < seed; i += 4)
    std::memcpy(d + i, &value, 4);
  // Doubling copies from what is already written: the C library's widest stores, from L1.
  for (size_t done = seed; done < bytes;) {
    const size_t step = std::min(done, bytes - done);
    std::memcpy(d + done, d, step);
    done += step;
  }
}

#if defined(__SSE2__)

namespace {

// (t + 127) / 255 for t up to 255 * 255, without a division.
inline __m128i divide255(__m128i t) {
  t = _mm_add_epi16(t, _mm_set1_epi16(128));
  return _mm_srli_epi16(_mm_add_epi16(t, _mm_srli_epi16(t, 8)), 8);
}

// Two pixels widened to 16 bits: source-over of `s` (already scaled) onto `d`.
inline __m128i over(__m128i s, __m128i d) {
  const __m128i alpha = _mm_shufflehi_epi16(_mm_shufflelo_epi16(s, 0xFF), 0xFF);
  const __m128i keep = _mm_sub_epi16(_mm_set1_epi16(255), alpha);
  return _mm_add_epi16(s, divide255(_mm_mullo_epi16(d, keep)));
}

}  // namespace

void blendRow(uint8_t* d, const uint8_t* s, int32_t count, uint8_t opacity) {
  const __m128i zero = _mm_setzero_si128();
  const __m128i alphaBits = _mm_set1_epi32(int32_t(0xFF000000u));
  const __m128i scale = _mm_set1_epi16(opacity);
  int32_t i = 0;
  for (; i + 4 <= count; i += 4, s += 16, d += 16) {
    const __m128i source = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
    if (_mm_movemask_epi8(_mm_cmpeq_epi32(source, zero)) == 0xFFFF) continue;
    if (opacity == 255 &&
        _mm_movemask_epi8(_mm_cmpeq_epi32(_mm_and_si128(source, alphaBits), alphaBits)) == 0xFFFF) {
      _mm_storeu_si128(reinterpret_cast<__m128i*>(d), source);
      continue;
    }
    __m128i low = _mm_unpacklo_epi8(source, zero);
    __m128i high = _mm_unpackhi_epi8(source, zero);
    if (opacity != 255) {
      low = divide255(_mm_mullo_epi16(low, scale));
      high = divide255(_mm_mullo_epi16(high, scale));
    }
    const __m128i target = _mm_loadu_si128(reinterpret_cast<const __m128i*>(d));
    const __m128i blended = _mm_packus_epi16(over(low, _mm_unpacklo_epi8(target, zero)),
                                             over(high, _mm_unpackhi_epi8(target, zero)));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(d), blended);
  }
  for (; i < count; ++i, s += 4, d += 4) {
    if ((s[0] | s[1] | s[2] | s[3]) != 0) blendPixel(d, s, opacity);
  }
}

#else

void blendRow(uint8_t* d, const uint8_t* s, int32_t count, uint8_t opacity) {
  for (int32_t i = 0; i < count; ++i, s += 4, d += 4) {
    if (opacity == 255 && s[3] == 255)
      std::memcpy(d, s, 4);
    else if ((s[0] | s[1] | s[2] | s[3]) != 0)
      blendPixel(d, s, opacity);
  }
}

#endif

}  // namespace tessel
