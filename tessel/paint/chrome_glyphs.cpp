#include "tessel/paint/chrome_glyphs.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "base/wide_text.h"
#include "tessel/style/color.h"
#include "tessel/paint/image_file.h"

namespace tessel {

namespace {

constexpr Color kCool = kChromeGlyphCool;
constexpr Color kWarm = kChromeGlyphWarm;

enum class Glyph { Minimize, Maximize, Restore, Close, Dot };

struct Segment {
  double x0, y0, x1, y1, width;
};

bool endsWith(const std::wstring& text, const std::wstring& tail) {
  return text.size() >= tail.size() &&
         text.compare(text.size() - tail.size(), tail.size(), tail) == 0;
}

Glyph glyphFor(const std::wstring& baseName) {
  const std::wstring name = LowerCase(baseName);
  if (endsWith(name, L"minimize")) return Glyph::Minimize;
  if (endsWith(name, L"maximize")) return Glyph::Maximize;
  if (endsWith(name, L"restore")) return Glyph::Restore;
  if (endsWith(name, L"close")) return Glyph::Close;
  return Glyph::Dot;
}

// Strokes of a glyph in a 10-pixel box centred in the image, at pixel-centre coordinates so
// that one-pixel lines land on whole pixels.
std::vector<Segment> strokesOf(Glyph glyph) {
  const double l = 13.5, r = 22.5, t = 6.5, b = 15.5;
  switch (glyph) {
    case Glyph::Minimize:
      return {{l, b - 0.5, r, b - 0.5, 2.0}};
    case Glyph::Maximize:
      return {
          {l, t + 0.5, r, t + 0.5, 2.0}, {l, t, l, b, 1.0}, {r, t, r, b, 1.0}, {l, b, r, b, 1.0}};
    case Glyph::Restore:
      // A front window and the corner of one behind it.
      return {{l, t + 2.5, r - 2, t + 2.5, 2.0},
              {l, t + 2, l, b, 1.0},
              {r - 2, t + 2, r - 2, b, 1.0},
              {l, b, r - 2, b, 1.0},
              {l + 2, t, r, t, 1.0},
              {r, t, r, b - 2, 1.0},
              {l + 2, t, l + 2, t + 2, 1.0},
              {r - 2, b - 2, r, b - 2, 1.0}};
    case Glyph::Close:
      return {{l, t, r, b, 1.6}, {r, t, l, b, 1.6}};
    case Glyph::Dot:
      return {{18.0, 11.0, 18.0, 11.0, 5.0}};
  }
  return {};
}

// Coverage of a pixel centre by one stroke with flat ends that reach half a pixel past its end
// points, so that strokes between pixel centres fill whole pixels and meet cleanly at corners.
double segmentCoverage(double px, double py, const Segment& s) {
  const double dx = s.x1 - s.x0, dy = s.y1 - s.y0;
  const double length = std::hypot(dx, dy);
  if (length == 0) {
    return std::clamp(s.width / 2 + 0.5 - std::hypot(px - s.x0, py - s.y0), 0.0, 1.0);
  }
  const double ux = dx / length, uy = dy / length;
  const double along = (px - s.x0) * ux + (py - s.y0) * uy;
  const double across = std::abs((px - s.x0) * uy - (py - s.y0) * ux);
  const double beyond = std::max(-along, along - length);
  return std::clamp(s.width / 2 + 0.5 - across, 0.0, 1.0) * std::clamp(1 - beyond, 0.0, 1.0);
}

// Coverage of a pixel centre by the strokes.
double strokeCoverage(const std::vector<Segment>& strokes, double px, double py) {
  double coverage = 0;
  for (const Segment& s : strokes)
    coverage = std::max(coverage, segmentCoverage(px, py, s));
  return coverage;
}

// Coverage of a pixel centre by the plate: the image less one pixel, with corners of radius 4.
double plateCoverage(double px, double py) {
  const double radius = 4, left = 1, top = 1;
  const double right = kChromeGlyphWidth - 1, bottom = kChromeGlyphHeight - 1;
  const double cx = std::clamp(px, left + radius, right - radius);
  const double cy = std::clamp(py, top + radius, bottom - radius);
  const double d = std::hypot(px - cx, py - cy);
  return std::clamp(radius + 0.5 - d, 0.0, 1.0);
}

struct StateLook {
  Color glyph;
  double glyphAlpha;
  Color plate;
  double plateAlpha;
  int32_t offsetY;
};

StateLook lookOf(ChromeButtonState state) {
  switch (state) {
    case ChromeButtonState::Hot:
      return {kWarm, 1.0, kCool, 0.16, 0};
    case ChromeButtonState::Pressed:
      return {kWarm, 1.0, kWarm, 0.26, 1};
    case ChromeButtonState::Disabled:
      return {kCool, 0.36, kCool, 0.0, 0};
    case ChromeButtonState::Normal:
      break;
  }
  return {kCool, 0.9, kCool, 0.0, 0};
}

}  // namespace

Image chromeGlyphImage(const std::wstring& baseName, ChromeButtonState state) {
  Image image = Image::blank(kChromeGlyphWidth, kChromeGlyphHeight);
  const std::vector<Segment> strokes = strokesOf(glyphFor(baseName));
  const StateLook look = lookOf(state);
  for (int32_t y = 0; y < image.height; ++y) {
    for (int32_t x = 0; x < image.width; ++x) {
      const double px = x + 0.5, py = y + 0.5;
      // Source-over of the glyph on the plate, in premultiplied terms.
      const double plate = look.plateAlpha * plateCoverage(px, py);
      const double glyph = look.glyphAlpha * strokeCoverage(strokes, px, py - look.offsetY);
      const double alpha = glyph + plate * (1 - glyph);
      uint8_t* p = image.pixel(x, y);
      auto channel = [&](uint32_t glyphValue, uint32_t plateValue) {
        return uint8_t(std::lround(glyphValue * glyph + plateValue * plate * (1 - glyph)));
      };
      p[0] = channel(blueOf(look.glyph), blueOf(look.plate));
      p[1] = channel(greenOf(look.glyph), greenOf(look.plate));
      p[2] = channel(redOf(look.glyph), redOf(look.plate));
      p[3] = uint8_t(std::lround(alpha * 255));
    }
  }
  return image;
}

ChromeButtonImages chromeButtonImages(const std::wstring& assetsFolder,
                                      const std::wstring& baseName) {
  ChromeButtonImages images;
  if (!loadImageFile(resolveSkinPath(assetsFolder, baseName + L".png"), images.normal)) {
    images.normal = chromeGlyphImage(baseName, ChromeButtonState::Normal);
    images.hot = chromeGlyphImage(baseName, ChromeButtonState::Hot);
    images.pressed = chromeGlyphImage(baseName, ChromeButtonState::Pressed);
    images.disabled = chromeGlyphImage(baseName, ChromeButtonState::Disabled);
    return images;
  }
  for (auto [suffix, image] :
       {std::pair{L"_hot.png", &images.hot}, std::pair{L"_pressed.png", &images.pressed},
        std::pair{L"_disabled.png", &images.disabled}}) {
    if (!loadImageFile(resolveSkinPath(assetsFolder, baseName + suffix), *image))
      *image = images.normal;
  }
  return images;
}

}  // namespace tessel
