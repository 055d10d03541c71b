#include "tessel/paint/pixel_blend.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace tessel {
namespace {

// AlphaBlend's source-over with a constant alpha, channel by channel, in the plainest words.
uint8_t Expected(uint8_t target, uint8_t source, uint8_t sourceAlpha, uint32_t opacity) {
  const int scaled = (source * int(opacity) + 127) / 255;
  const int alpha = (sourceAlpha * int(opacity) + 127) / 255;
  const int kept = (target * (255 - alpha) + 127) / 255;
  return uint8_t(std::min(255, scaled + kept));
}

// Rows of every length around the four-pixel step, from unaligned addresses, with transparent,
// opaque, translucent and over-bright (colour above alpha) pixels mixed in.
TEST(PixelBlend, RowsEqualTheDefinitionAtEveryOpacity) {
  std::mt19937 random(7);
  const uint32_t opacities[] = {255, 254, 200, 128, 1, 0};
  for (const uint32_t opacity : opacities) {
    for (int32_t count = 0; count <= 37; ++count) {
      for (int32_t offset = 0; offset < 3; ++offset) {
        std::vector<uint8_t> source(size_t(count + offset) * 4 + 3);
        std::vector<uint8_t> target(source.size());
        for (auto& byte : target)
          byte = uint8_t(random());
        for (int32_t i = 0; i < count + offset; ++i) {
          uint8_t* p = &source[size_t(i) * 4 + 3];
          const uint32_t kind = random() % 5;
          const uint8_t alpha = kind == 0 ? 0 : kind == 1 ? 255 : uint8_t(random());
          p[3] = alpha;
          for (int c = 0; c < 3; ++c)
            p[c] = kind == 0 ? 0 : kind == 4 ? uint8_t(random()) : uint8_t(random() % (alpha + 1));
        }
        std::vector<uint8_t> blended = target;
        const size_t start = size_t(offset) * 4 + 3;
        blendRow(&blended[start], &source[start], count, uint8_t(opacity));
        for (size_t b = 0; b < blended.size(); ++b) {
          const bool inside = b >= start && b < start + size_t(count) * 4;
          if (!inside) {
            ASSERT_EQ(blended[b], target[b]) << "byte " << b << " outside the row was touched";
            continue;
          }
          const size_t pixel = start + (b - start) / 4 * 4;
          const uint8_t want = Expected(target[b], source[b], source[pixel + 3], opacity);
          ASSERT_EQ(blended[b], want)
              << "opacity " << opacity << ", count " << count << ", byte " << b - start;
        }
      }
    }
  }
}

TEST(PixelBlend, EveryTargetAndSourceAlphaOfOneChannel) {
  for (int target = 0; target < 256; ++target) {
    for (int alpha = 0; alpha < 256; alpha += 3) {
      uint8_t d[16], s[16];
      for (int i = 0; i < 4; ++i) {
        d[i * 4] = d[i * 4 + 1] = d[i * 4 + 2] = d[i * 4 + 3] = uint8_t(target);
        s[i * 4] = s[i * 4 + 1] = s[i * 4 + 2] = uint8_t(alpha / 2);
        s[i * 4 + 3] = uint8_t(alpha);
      }
      blendRow(d, s, 4, 255);
      ASSERT_EQ(d[0], Expected(uint8_t(target), uint8_t(alpha / 2), uint8_t(alpha), 255))
          << target << " under " << alpha;
      ASSERT_EQ(d[3], Expected(uint8_t(target), uint8_t(alpha), uint8_t(alpha), 255));
    }
  }
}

}  // namespace
}  // namespace tessel
