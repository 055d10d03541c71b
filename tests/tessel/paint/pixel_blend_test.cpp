#include "tessel/paint/pixel_blend.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tessel {
namespace {

// AlphaBlend's source-over with a constant alpha, channel by channel, in the plainest words.
uint8_t Expected(int target, int source, int sourceAlpha, int opacity) {
  const int kept = (target * (255 - (sourceAlpha * opacity + 127) / 255) + 127) / 255;
  return uint8_t(std::min(255, (source * opacity + 127) / 255 + kept));
}

// Rows of every length around the four-pixel step, from unaligned addresses, with transparent,
// opaque, translucent and over-bright (colour above alpha) pixels mixed in.
TEST(PixelBlend, RowsEqualTheDefinitionAtEveryOpacity) {
  std::mt19937 random(7);
  for (const int opacity : {255, 254, 128, 1, 0}) {
    for (int32_t count = 0; count <= 37; ++count) {
      for (int32_t offset = 0; offset < 3; ++offset) {
        std::vector<uint8_t> source(size_t(count + offset) * 4 + 3), target(source.size());
        for (auto& byte : target)
          byte = uint8_t(random());
        for (size_t i = 3; i + 4 <= source.size(); i += 4) {
          const uint32_t kind = random() % 5;
          const uint8_t alpha = kind == 0 ? 0 : kind == 1 ? 255 : uint8_t(random());
          source[i + 3] = alpha;
          for (int c = 0; c < 3; ++c)
            source[i + c] = kind == 0   ? 0
                            : kind == 4 ? uint8_t(random())
                                        : uint8_t(random() % (alpha + 1));
        }
        std::vector<uint8_t> blended = target;
        const size_t start = size_t(offset) * 4 + 3, end = start + size_t(count) * 4;
        blendRow(&blended[start], &source[start], count, uint8_t(opacity));
        for (size_t b = 0; b < blended.size(); ++b) {
          const uint8_t want = b < start || b >= end
                                   ? target[b]
                                   : Expected(target[b], source[b],
                                              source[start + (b - start) / 4 * 4 + 3], opacity);
          ASSERT_EQ(blended[b], want)
              << "opacity " << opacity << ", count " << count << ", byte " << int(b - start);
        }
      }
    }
  }
  // The division-free rounding, for every target under every third source alpha.
  for (int target = 0; target < 256; ++target) {
    for (int alpha = 0; alpha < 256; alpha += 3) {
      uint8_t d[16], s[16];
      for (int i = 0; i < 16; ++i) {
        d[i] = uint8_t(target);
        s[i] = uint8_t(i % 4 == 3 ? alpha : alpha / 2);
      }
      blendRow(d, s, 4, 255);
      ASSERT_EQ(d[0], Expected(target, alpha / 2, alpha, 255)) << target << " under " << alpha;
      ASSERT_EQ(d[3], Expected(target, alpha, alpha, 255));
    }
  }
}

}  // namespace
}  // namespace tessel
