// What painting needs of a drawing target, and nothing more: a clip stack, solid fills, blending
// of premultiplied images with a constant alpha (source-over, as AlphaBlend does), reading and
// writing raw pixels, and text with its measurement. The Windows build puts a device context
// behind it; the native build paints into a memory image, so whole control trees can be
// painted and compared in tests.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/style/color.h"
#include "tessel/style/image.h"
#include "tessel/paint/layer_runs.h"
#include "tessel/paint/line_raster.h"
#include "tessel/style/text_style.h"

namespace tessel {

// Horizontal and vertical placement of text in its rectangle.
enum TextFlags : uint32_t {
  kTextLeft = 0,
  kTextCenter = 1,
  kTextRight = 2,
  kTextTop = 0,
  kTextMiddle = 4,
  kTextBottom = 8,
  // Text wider than its rectangle ends in "..." instead of being cut off.
  kTextEndEllipsis = 16,
};

class Canvas {
 public:
  virtual ~Canvas() = default;

  virtual Size size() const = 0;

  virtual void save() = 0;
  virtual void restore() = 0;
  // Intersects the clip with the union of `rects`; an empty list clips everything away.
  virtual void clipToRects(const std::vector<Rect>& rects) = 0;
  // Bounding box of the clip; empty when nothing can be painted.
  virtual Rect clipBox() const = 0;

  virtual void fillRect(const Rect& rect, Color color) = 0;
  // Stretches `source` part of a premultiplied image onto `target`, source-over, with the
  // constant alpha `opacity`.
  virtual void blendImage(const Image& image, const Rect& source, const Rect& target,
                          uint8_t opacity) = 0;
  // Blends a whole kept layer at full opacity with its top-left at `at`, described by its runs
  // (layer_runs.h): the same pixels as blendImage. Targets that gain nothing from the runs
  // keep this plain form.
  virtual void blendLayer(const Image& layer, const std::vector<LayerRun>& runs, Point at) {
    (void)runs;
    blendImage(layer, Rect{0, 0, layer.width, layer.height},
               Rect{at.x, at.y, layer.width, layer.height}, 255);
  }
  // The target's pixels under `rect` (outside the target: transparent).
  virtual Image copyPixels(const Rect& rect) const = 0;
  // Writes pixels as they are, without blending, with `source`'s top-left at `target`.
  virtual void putPixels(const Image& image, const Rect& source, Point target) = 0;

  // A straight line of `width` pixels, both end points included. The default fills the squares
  // of lineStamps (line_raster.h); a device context draws it with a pen instead.
  virtual void drawLine(Point from, Point to, Color color, int32_t width) {
    for (const Rect& stamp : lineStamps(from, to, width))
      fillRect(stamp, color);
  }

  virtual Size measureText(const std::wstring& text, const TextStyle& style) const = 0;
  virtual void drawText(const std::wstring& text, const Rect& rect, const TextStyle& style,
                        Color color, uint32_t flags) = 0;
};

// RAII pairing of save and restore.
class CanvasState {
 public:
  explicit CanvasState(Canvas& canvas) : canvas_(canvas) { canvas_.save(); }
  ~CanvasState() { canvas_.restore(); }
  CanvasState(const CanvasState&) = delete;
  CanvasState& operator=(const CanvasState&) = delete;

 private:
  Canvas& canvas_;
};

}  // namespace tessel
