#include "tessel/paint/surface_painter.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>

#include "tessel/style/rect_extents.h"
#include "tessel/paint/bitmap_surface.h"
#include "tessel/paint/gradient.h"
#include "tessel/paint/image_canvas.h"
#include "tessel/paint/layer_cache.h"
#include "tessel/paint/material_shading.h"
#include "tessel/paint/sample_space.h"
#include "tessel/paint/shape_fill.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"

namespace tessel {

namespace {

void writePremultiplied(uint8_t* p, Color color, uint32_t alpha) {
  p[0] = static_cast<uint8_t>(blueOf(color) * alpha / 255);
  p[1] = static_cast<uint8_t>(greenOf(color) * alpha / 255);
  p[2] = static_cast<uint8_t>(redOf(color) * alpha / 255);
  p[3] = static_cast<uint8_t>(alpha);
}

Color gradientColor(const SurfaceStyle& s, double t) {
  if (!s.useGradientMid) return mixColor(s.gradientStart, s.gradientEnd, t);
  return t <= 0.5 ? mixColor(s.gradientStart, s.gradientMid, 2 * t)
                  : mixColor(s.gradientMid, s.gradientEnd, 2 * (t - 0.5));
}

// MulDiv rounds halves away from zero.
int32_t mulDiv(int32_t a, int32_t b, int32_t c) {
  const double value = double(a) * b / c;
  return static_cast<int32_t>(value < 0 ? std::ceil(value - 0.5) : std::floor(value + 0.5));
}

// A layer through the cache, or computed for this paint alone when it can't be kept or the
// surface has a coverage bitmap.
template <typename Produce>
void cachedOrDirect(Canvas& canvas, const Rect& rect, const SurfaceStyle& style, LayerType type,
                    int32_t step, Produce produce) {
  const bool masked = surfaceCoverageBitmap(style) != nullptr;
  bool painted = false;
  if (!masked) {
    painted = drawCachedLayer(canvas, rect, layerCacheKey(type, style, rect, step),
                              [&](Image& layer) { produce(layer); });
  }
  if (!painted) {
    Image layer = Image::blank(rect.width, rect.height);
    if (layer.empty()) return;
    produce(layer);
    canvas.blendImage(layer, Rect{0, 0, rect.width, rect.height}, rect, 255);
  }
}

// The cheap layers (glow, shadow, strokes, shaped fills) are drawn anew on every paint, but
// their pixels depend only on shape, size, colour and alpha: they are kept here so that a
// repaint only blends. A small list, most recently used last.
struct ShapeLayer {
  uint64_t key;
  Image image;
};

std::vector<ShapeLayer>& shapeLayers() {
  static std::vector<ShapeLayer> layers;
  return layers;
}

const Image& shapeLayer(uint64_t key, int32_t width, int32_t height,
                        const std::function<void(Image&)>& draw) {
  std::vector<ShapeLayer>& layers = shapeLayers();
  for (auto it = layers.begin(); it != layers.end(); ++it) {
    if (it->key == key && it->image.width == width && it->image.height == height) {
      std::rotate(it, it + 1, layers.end());
      return layers.back().image;
    }
  }
  Image image = Image::blank(width, height);
  draw(image);
  if (layers.size() >= 64) layers.erase(layers.begin());
  layers.push_back(ShapeLayer{key, std::move(image)});
  return layers.back().image;
}

uint64_t shapeKey(uint64_t op, ShapeKind kind, Color color, uint64_t amount, uint64_t extra = 0) {
  uint64_t key = 0xCBF29CE484222325ull;
  for (uint64_t part : {op, static_cast<uint64_t>(kind), uint64_t(color), amount, extra})
    key = (key ^ part) * 0x100000001B3ull;
  return key;
}

}  // namespace

void clearPaintCaches() {
  clearLayerCache();
  shapeLayers().clear();
}

void fillShapeOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color) {
  if (rect.empty()) return;
  if (kind == ShapeKind::Rectangle) {
    canvas.fillRect(rect, color);
    return;
  }
  fillShapeAlphaOn(canvas, rect, kind, color, 255);
}

void fillShapeAlphaOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color,
                      uint8_t alpha) {
  if (rect.empty() || alpha == 0) return;
  const Image& layer =
      shapeLayer(shapeKey(1, kind, color, alpha), rect.width, rect.height, [&](Image& image) {
        fillShapeAlpha(image, Rect{0, 0, rect.width, rect.height}, kind, color, alpha);
      });
  canvas.blendImage(layer, Rect{0, 0, rect.width, rect.height}, rect, 255);
}

void strokeShapeOn(Canvas& canvas, const Rect& rect, ShapeKind kind, Color color, int32_t width) {
  if (rect.empty() || width < 1) return;
  if (kind == ShapeKind::Rectangle) {
    const int32_t w = std::min(width, std::min(rect.width, rect.height));
    canvas.fillRect(Rect{rect.x, rect.y, rect.width, w}, color);
    canvas.fillRect(Rect{rect.x, rect.bottom() - w, rect.width, w}, color);
    canvas.fillRect(Rect{rect.x, rect.y, w, rect.height}, color);
    canvas.fillRect(Rect{rect.right() - w, rect.y, w, rect.height}, color);
    return;
  }
  const Image& layer = shapeLayer(
      shapeKey(2, kind, color, uint64_t(width)), rect.width, rect.height, [&](Image& image) {
        strokeShape(image, Rect{0, 0, rect.width, rect.height}, kind, color, width);
      });
  canvas.blendImage(layer, Rect{0, 0, rect.width, rect.height}, rect, 255);
}

namespace {

uint32_t premultipliedPixel(Color color, uint32_t alpha) {
  uint8_t bytes[4];
  writePremultiplied(bytes, color, alpha);
  uint32_t pixel;
  std::memcpy(&pixel, bytes, 4);
  return pixel;
}

}  // namespace

void produceGradientLayer(Image& layer, const SurfaceStyle& s, const Rect& rect) {
  if (layer.empty()) return;
  const SampleSpace space = sampleSpace(s, rect);
  const uint32_t alpha = s.opacity;
  const int32_t w = layer.width, h = layer.height;
  // Linear and reflected gradients along an axis depend on one coordinate only: their pixels
  // are worked out once per row or column and then copied.
  const bool simple = s.gradientKind <= 1 && s.gradientDirection >= 0 && s.gradientDirection <= 3;
  const bool vertical = s.gradientDirection <= 1;
  std::vector<uint32_t> pixels;
  if (simple) {
    const int32_t count = vertical ? h : w;
    const SampleAxis& axis = vertical ? space.y : space.x;
    pixels.resize(count);
    for (int32_t i = 0; i < count; ++i) {
      const double sample = double(axis.sample(i));
      const double t =
          vertical
              ? gradientPosition(s.gradientKind, s.gradientDirection, 0, sample, 1, axis.extent)
              : gradientPosition(s.gradientKind, s.gradientDirection, sample, 0, axis.extent, 1);
      pixels[i] = premultipliedPixel(gradientColor(s, t), alpha);
    }
  }
  for (int32_t y = 0; y < h; ++y) {
    int32_t first = 0, last = 0;
    if (!shapeRowSpan(s.shape, w, h, y, first, last)) continue;
    uint8_t* row = layer.pixel(0, y);
    if (simple && vertical) {
      uint32_t* out = reinterpret_cast<uint32_t*>(row);
      std::fill(out + first, out + last + 1, pixels[y]);
      continue;
    }
    if (simple) {
      std::memcpy(row + size_t(first) * 4, pixels.data() + first, size_t(last - first + 1) * 4);
      continue;
    }
    const double sy = double(space.y.sample(y));
    for (int32_t x = first; x <= last; ++x) {
      const double t =
          gradientPosition(s.gradientKind, s.gradientDirection, double(space.x.sample(x)), sy,
                           space.x.extent, space.y.extent);
      writePremultiplied(row + size_t(x) * 4, gradientColor(s, t), alpha);
    }
  }
}

void drawSurface(Canvas& canvas, const Rect& rect, const SurfaceStyle& s,
                 UiPerformanceProfile profile, uint64_t tickMs) {
  if (rect.empty()) return;
  // 1. Glow: up to eight inflated shapes, outermost and faintest first; no blur.
  if (s.showGlow && s.glowRadius > 0 && s.glowOpacity > 0 && allowsGlow(rect, profile)) {
    const int32_t steps = std::clamp(s.glowRadius, 1, 8);
    const int32_t outer = std::max(mulDiv(s.glowRadius, steps, steps), 1);
    const Rect area = inflateRect(rect, outer);
    // The stack is composed once, then kept and blended as one layer.
    const Image& glow = shapeLayer(
        shapeKey(3, s.shape, s.glow, uint64_t(s.glowOpacity), uint64_t(s.glowRadius)), area.width,
        area.height, [&](Image& image) {
          ImageCanvas into(image);
          for (int32_t i = steps; i >= 1; --i) {
            const int32_t grow = std::max(mulDiv(s.glowRadius, i, steps), 1);
            const int32_t alpha = std::max(((steps - i + 1) * s.glowOpacity) / (steps * 3), 1);
            Image ring = Image::blank(rect.width + 2 * grow, rect.height + 2 * grow);
            fillShapeAlpha(ring, Rect{0, 0, ring.width, ring.height}, s.shape, s.glow,
                           static_cast<uint8_t>(alpha));
            into.blendImage(ring, Rect{0, 0, ring.width, ring.height},
                            Rect{outer - grow, outer - grow, ring.width, ring.height}, 255);
          }
        });
    canvas.blendImage(glow, Rect{0, 0, area.width, area.height}, area, 255);
  }
  // 2. Shadow: the shape moved by the offset; none without an offset.
  if (allowsGlow(rect, profile) && s.showShadow && (s.shadowOffsetX != 0 || s.shadowOffsetY != 0)) {
    fillShapeAlphaOn(
        canvas, Rect{rect.x + s.shadowOffsetX, rect.y + s.shadowOffsetY, rect.width, rect.height},
        s.shape, s.shadow, s.shadowOpacity);
  }
  // 3. Base.
  if (!s.image.empty()) {
    if (s.useNineSlice) {
      drawImageNineSlice(canvas, s.image, rect, s.nineSlice, s.tint, s.opacity);
    } else {
      drawImage(canvas, s.image, rect, s.tint, s.opacity);
    }
  } else if (s.drawFill) {
    if (s.useGradient && allowsGradient(rect, profile)) {
      cachedOrDirect(canvas, rect, s, LayerType::Gradient, 0,
                     [&](Image& layer) { produceGradientLayer(layer, s, rect); });
    } else {
      // A solid fill is fully opaque: opacity acts on gradients and bitmaps only.
      fillShapeOn(canvas, rect, s.shape, s.fill);
    }
    if (s.drawBorder) strokeShapeOn(canvas, rect, s.shape, s.border, 1);
  } else if (s.drawBorder) {
    // A border alone is a rectangular frame whatever the shape: part of that look.
    canvas.fillRect(Rect{rect.x, rect.y, rect.width, 1}, s.border);
    canvas.fillRect(Rect{rect.x, rect.bottom() - 1, rect.width, 1}, s.border);
    canvas.fillRect(Rect{rect.x, rect.y, 1, rect.height}, s.border);
    canvas.fillRect(Rect{rect.right() - 1, rect.y, 1, rect.height}, s.border);
  }
  // 4. Material overlay.
  const double phase = animationPhase(s, profile, tickMs);
  const int32_t step = static_cast<int32_t>(std::lround(phase * 64));
  // The gates are checked here too, so that a layer that doesn't run is never cached.
  const bool luminous = s.material == MaterialKind::LuminousGlass;
  if (s.material != MaterialKind::None && s.materialStrength != 0 &&
      (luminous ? allowsLuminousGlass(rect, profile) : allowsMaterial(rect, profile))) {
    cachedOrDirect(canvas, rect, s, LayerType::Material, step,
                   [&](Image& layer) { drawMaterialOverlay(layer, s, rect, profile, phase); });
  }
  // 5. Spatial shading.
  if (rect.width >= 7 && rect.height >= 7 && s.material != MaterialKind::None &&
      s.materialDepth != 0 && allowsGlow(rect, profile)) {
    cachedOrDirect(canvas, rect, s, LayerType::Spatial, 0,
                   [&](Image& layer) { drawSpatialSurfaceShading(layer, s, rect, profile); });
  }
  // 6. Noise.
  if (s.useNoise && s.noiseOpacity != 0 && allowsNoise(rect, profile)) {
    cachedOrDirect(canvas, rect, s, LayerType::Noise, 0,
                   [&](Image& layer) { drawNoise(layer, s, rect, profile); });
  }
  // 7. Outline.
  if (s.showOutline && s.outlineWidth >= 1) {
    strokeShapeOn(canvas, rect, s.shape, s.outline, s.outlineWidth);
  }
}

void drawSegmentedSurface(Canvas& canvas, const std::vector<Rect>& segments,
                          const SurfaceStyle& style, UiPerformanceProfile profile) {
  Rect box;
  for (const Rect& segment : segments)
    box = uniteRects(box, segment);
  if (box.empty()) return;
  // Tall bodies are stacks of row spans, wide ones rows of column spans.
  const bool rows = box.height >= box.width;
  const int32_t lines = rows ? box.height : box.width;
  const std::vector<Extent> spans = rectExtents(box, segments, rows);
  int32_t longest = 0;
  for (const Extent& span : spans)
    if (span.any) longest = std::max(longest, span.high - span.low);
  if (longest == 0) return;
  const Size straight = rows ? Size{longest, box.height} : Size{box.width, longest};
  Image buffer = Image::blank(straight.width, straight.height);
  // The destination's background travels along, so a translucent surface blends as it would.
  for (int32_t i = 0; i < lines; ++i) {
    if (!spans[i].any) continue;
    const int32_t start = spans[i].low, end = spans[i].high;
    const Rect from =
        rows ? Rect{start, box.y + i, end - start, 1} : Rect{box.x + i, start, 1, end - start};
    const Image pixels = canvas.copyPixels(from);
    ImageCanvas into(buffer);
    into.putPixels(pixels, Rect{0, 0, from.width, from.height}, rows ? Point{0, i} : Point{i, 0});
  }
  {
    ImageCanvas into(buffer);
    drawSurface(into, Rect{0, 0, straight.width, straight.height}, style, profile);
  }
  for (int32_t i = 0; i < lines; ++i) {
    if (!spans[i].any) continue;
    const int32_t start = spans[i].low, end = spans[i].high;
    if (rows) {
      canvas.putPixels(buffer, Rect{0, i, end - start, 1}, Point{start, box.y + i});
    } else {
      canvas.putPixels(buffer, Rect{i, 0, 1, end - start}, Point{box.x + i, start});
    }
  }
}

}  // namespace tessel
