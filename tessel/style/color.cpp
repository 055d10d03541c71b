#include "tessel/style/color.h"

#include <cmath>
#include <initializer_list>

namespace tessel {

namespace {

uint32_t mixChannel(uint32_t a, uint32_t b, double t) {
  const double value = static_cast<double>(a) + (static_cast<double>(b) - a) * t;
  return static_cast<uint32_t>(static_cast<int>(value));
}

}  // namespace

Color mixColor(Color a, Color b, double t) {
  if (!(t > 0.0)) t = 0.0;
  if (t > 1.0) t = 1.0;
  return rgbColor(mixChannel(redOf(a), redOf(b), t), mixChannel(greenOf(a), greenOf(b), t),
                  mixChannel(blueOf(a), blueOf(b), t));
}

namespace {

double linearChannel(uint32_t channel) {
  const double c = channel / 255.0;
  return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double luminance(Color c) {
  return 0.2126 * linearChannel(redOf(c)) + 0.7152 * linearChannel(greenOf(c)) +
         0.0722 * linearChannel(blueOf(c));
}

}  // namespace

double contrastRatio(Color a, Color b) {
  const double la = luminance(a);
  const double lb = luminance(b);
  return la > lb ? (la + 0.05) / (lb + 0.05) : (lb + 0.05) / (la + 0.05);
}

Color readableFill(Color fill, Color text, double minimum) {
  if (contrastRatio(fill, text) >= minimum) return fill;
  // Away from the text first: a fill lighter than its text gets lighter still, a darker one
  // darker, so pushing for one text doesn't work against another on the same side. When that
  // side can't get there (fill and text of about the same lightness), the other side is tried.
  const Color white = rgbColor(255, 255, 255);
  const Color black = rgbColor(0, 0, 0);
  const bool lighter = luminance(fill) >= luminance(text);
  const Color first = lighter ? white : black;
  const Color second = lighter ? black : white;
  for (const Color target : {first, second}) {
    if (contrastRatio(target, text) < minimum) continue;
    for (int step = 1; step <= 20; ++step) {
      const Color candidate = mixColor(fill, target, step / 20.0);
      if (contrastRatio(candidate, text) >= minimum) return candidate;
    }
  }
  return contrastRatio(white, text) >= contrastRatio(black, text) ? white : black;
}

}  // namespace tessel
