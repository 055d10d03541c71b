#include "tessel/paint/bitmap_surface.h"

#include <algorithm>
#include <cmath>

namespace tessel {

namespace {

struct Rgb {
  int32_t r = 0;
  int32_t g = 0;
  int32_t b = 0;
  bool operator==(const Rgb&) const = default;
};

Rgb rgbOf(Color color) {
  return Rgb{int32_t(redOf(color)), int32_t(greenOf(color)), int32_t(blueOf(color))};
}

int32_t clampByte(long value) {
  return int32_t(std::clamp<long>(value, 0, 255));
}

int32_t lumaOf(const Rgb& c) {
  return clampByte(std::lround(0.299 * c.r + 0.587 * c.g + 0.114 * c.b));
}

// Straight colour of a premultiplied pixel; alpha 0 has no colour.
Rgb unpremultiplied(const uint8_t* bgra) {
  const int32_t a = bgra[3];
  if (a == 0) return Rgb{};
  auto channel = [a](int32_t c) { return std::min((c * 255 + a / 2) / a, 255); };
  return Rgb{channel(bgra[2]), channel(bgra[1]), channel(bgra[0])};
}

int32_t mixChannel(int32_t from, int32_t to, double weight) {
  return clampByte(std::lround(from + (to - from) * weight));
}

Rgb mixRgb(const Rgb& from, const Rgb& to, double weight) {
  return Rgb{mixChannel(from.r, to.r, weight), mixChannel(from.g, to.g, weight),
             mixChannel(from.b, to.b, weight)};
}

Rgb scaled(const Rgb& color, int32_t s) {
  return Rgb{(s * color.r + 127) / 255, (s * color.g + 127) / 255, (s * color.b + 127) / 255};
}

int32_t maskOf(const BitmapTint& tint, const Rgb& c, int32_t a, int32_t luma) {
  int32_t m = 0;
  if (tint.mode == TintMode::Alpha) {
    m = a;
  } else if (tint.mode == TintMode::Luma) {
    m = luma;
  } else {
    switch (tint.maskChannel) {
      case MaskChannel::Alpha:
        m = a;
        break;
      case MaskChannel::Red:
        m = c.r;
        break;
      case MaskChannel::Green:
        m = c.g;
        break;
      case MaskChannel::Blue:
        m = c.b;
        break;
      case MaskChannel::Luma:
        m = luma;
        break;
    }
  }
  return tint.invertMask ? 255 - m : m;
}

// The distinct straight colours of the covered pixels, darkest first, when there are 2 to 32
// of them; empty otherwise. Equal lumas are ordered by red, then green, then blue, so the
// ranking never depends on where a colour first appears. With a threshold of 0, clear pixels
// take part as black, the colour they un-premultiply to.
std::vector<Rgb> rankedColors(const Image& image, uint8_t threshold) {
  std::vector<Rgb> colors;
  const size_t count = size_t(image.width) * image.height;
  for (size_t i = 0; i < count; ++i) {
    const uint8_t* p = image.pixels->data() + i * 4;
    if (p[3] < threshold) continue;
    const Rgb c = unpremultiplied(p);
    if (std::find(colors.begin(), colors.end(), c) != colors.end()) continue;
    if (colors.size() == 32) return {};
    colors.push_back(c);
  }
  if (colors.size() < 2) return {};
  std::sort(colors.begin(), colors.end(), [](const Rgb& x, const Rgb& y) {
    const int32_t lx = lumaOf(x), ly = lumaOf(y);
    if (lx != ly) return lx < ly;
    if (x.r != y.r) return x.r < y.r;
    if (x.g != y.g) return x.g < y.g;
    return x.b < y.b;
  });
  return colors;
}

int32_t paletteIndex(const BitmapTint& tint, const std::vector<Rgb>& ranked, const Rgb& c,
                     int32_t m) {
  const int32_t count = tint.paletteCount;
  int32_t index = (count * m) / 256;
  if (!ranked.empty()) {
    const auto found = std::find(ranked.begin(), ranked.end(), c);
    const int32_t rank = int32_t(found - ranked.begin());
    const int32_t last = int32_t(ranked.size()) - 1;
    // round((count - 1) * rank / last), halves upward.
    index = ((count - 1) * rank * 2 + last) / (2 * last);
  }
  return std::clamp(index, 0, count - 1);
}

Image computeTint(const Image& image, const BitmapTint& tint) {
  Image out = Image::blank(image.width, image.height);
  const Rgb color = rgbOf(tint.color);
  const Rgb secondary = rgbOf(tint.secondaryColor);
  const double amount = tint.amount / 255.0;
  const bool usePalette = tint.mode == TintMode::Palette && tint.paletteCount > 0;
  const std::vector<Rgb> ranked =
      usePalette ? rankedColors(image, tint.coverageThreshold) : std::vector<Rgb>{};
  const size_t count = size_t(image.width) * image.height;
  for (size_t i = 0; i < count; ++i) {
    const uint8_t* p = image.pixels->data() + i * 4;
    uint8_t* q = out.pixels->data() + i * 4;
    const int32_t a = p[3];
    if (a < tint.coverageThreshold) continue;  // already transparent black
    const Rgb source = unpremultiplied(p);
    const int32_t luma = lumaOf(source);
    const int32_t m = maskOf(tint, source, a, luma);
    Rgb o = source;
    double w = amount;
    switch (tint.mode) {
      case TintMode::Mono:
      case TintMode::Luma:
      case TintMode::Alpha:
        o = scaled(color, tint.preserveLuminance ? m : 255);
        break;
      case TintMode::Tint:
        o = scaled(color, tint.preserveLuminance ? luma : 255);
        w = (m / 255.0) * amount;
        break;
      case TintMode::Multiply:
        o = Rgb{(source.r * color.r + 127) / 255, (source.g * color.g + 127) / 255,
                (source.b * color.b + 127) / 255};
        w = (m / 255.0) * amount;
        break;
      case TintMode::Palette:
        o = usePalette ? rgbOf(tint.palette[paletteIndex(tint, ranked, source, m)])
                       : mixRgb(secondary, color, m / 255.0);
        break;
      case TintMode::None:
        break;
    }
    const Rgb result = mixRgb(source, o, w);
    q[0] = uint8_t((result.b * a + 127) / 255);
    q[1] = uint8_t((result.g * a + 127) / 255);
    q[2] = uint8_t((result.r * a + 127) / 255);
    q[3] = uint8_t(a);
  }
  return out;
}

// FNV-1a over the bytes of each field, in a fixed order.
class KeyHash {
 public:
  void add(uint64_t value, int bytes) {
    for (int i = 0; i < bytes; ++i) {
      hash_ ^= (value >> (8 * i)) & 0xFF;
      hash_ *= 0x100000001B3ull;
    }
  }
  uint64_t value() const { return hash_; }

 private:
  uint64_t hash_ = 0xCBF29CE484222325ull;
};

// Clamps a margin pair to a length: the first to 0..length, the second to what is left.
void clampMargins(int32_t length, int32_t& first, int32_t& second) {
  first = std::clamp(first, 0, length);
  second = std::clamp(second, 0, length - first);
}

}  // namespace

uint64_t tintKey(const BitmapTint& tint) {
  KeyHash hash;
  hash.add(uint64_t(tint.mode), 4);
  hash.add(uint64_t(tint.maskChannel), 4);
  hash.add(tint.color, 4);
  hash.add(tint.secondaryColor, 4);
  const size_t used = std::min<size_t>(tint.paletteCount, tint.palette.size());
  hash.add(used, 1);
  for (size_t i = 0; i < used; ++i)
    hash.add(tint.palette[i], 4);
  hash.add(tint.amount, 1);
  hash.add(tint.coverageThreshold, 1);
  hash.add(tint.preserveLuminance ? 1 : 0, 1);
  hash.add(tint.invertMask ? 1 : 0, 1);
  return hash.value();
}

Image tintedImage(const Image& image, const BitmapTint& tint) {
  if (image.empty() || !tint.active()) return image;
  BitmapTint used = tint;
  used.paletteCount = uint8_t(std::min<size_t>(tint.paletteCount, tint.palette.size()));
  const uint64_t key = tintKey(used);
  if (const Image* kept = image.findVariant(key)) return *kept;
  Image tinted = computeTint(image, used);
  image.keepVariant(key, tinted);
  return tinted;
}

std::vector<SlicePiece> nineSlicePieces(Size imageSize, const Rect& target,
                                        const NineSlice& slice) {
  std::vector<SlicePiece> pieces;
  if (imageSize.width < 1 || imageSize.height < 1 || target.empty()) return pieces;
  int32_t left = slice.left, right = slice.right, top = slice.top, bottom = slice.bottom;
  clampMargins(imageSize.width, left, right);
  clampMargins(imageSize.height, top, bottom);
  int32_t toLeft = left, toRight = right, toTop = top, toBottom = bottom;
  clampMargins(target.width, toLeft, toRight);
  clampMargins(target.height, toTop, toBottom);
  // Column and row boundaries, in the image and in the target.
  const int32_t sx[4] = {0, left, imageSize.width - right, imageSize.width};
  const int32_t sy[4] = {0, top, imageSize.height - bottom, imageSize.height};
  const int32_t tx[4] = {target.x, target.x + toLeft, target.right() - toRight, target.right()};
  const int32_t ty[4] = {target.y, target.y + toTop, target.bottom() - toBottom, target.bottom()};
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 3; ++column) {
      const SlicePiece piece{
          Rect{sx[column], sy[row], sx[column + 1] - sx[column], sy[row + 1] - sy[row]},
          Rect{tx[column], ty[row], tx[column + 1] - tx[column], ty[row + 1] - ty[row]}};
      if (piece.source.width < 1 || piece.source.height < 1 || piece.target.width < 1 ||
          piece.target.height < 1) {
        continue;
      }
      pieces.push_back(piece);
    }
  }
  return pieces;
}

void drawImage(Canvas& canvas, const Image& image, const Rect& rect, const BitmapTint& tint,
               uint8_t opacity) {
  if (image.empty() || rect.empty() || opacity == 0) return;
  const Image source = tintedImage(image, tint);
  canvas.blendImage(source, Rect{0, 0, source.width, source.height}, rect, opacity);
}

void drawImageNineSlice(Canvas& canvas, const Image& image, const Rect& rect,
                        const NineSlice& slice, const BitmapTint& tint, uint8_t opacity) {
  if (image.empty() || rect.empty() || opacity == 0) return;
  const Image source = tintedImage(image, tint);
  for (const SlicePiece& piece : nineSlicePieces(Size{source.width, source.height}, rect, slice)) {
    canvas.blendImage(source, piece.source, piece.target, opacity);
  }
}

void blendImageFitted(Canvas& canvas, const Image& image, const Rect& room, uint8_t opacity) {
  if (image.empty() || room.empty()) return;
  int32_t w = image.width, h = image.height;
  if (w > room.width || h > room.height) {
    const double scale = std::min(double(room.width) / w, double(room.height) / h);
    w = std::max(1, int32_t(w * scale));
    h = std::max(1, int32_t(h * scale));
  }
  canvas.blendImage(image, Rect{0, 0, image.width, image.height},
                    Rect{room.x + (room.width - w) / 2, room.y + (room.height - h) / 2, w, h},
                    opacity);
}

}  // namespace tessel
