// A canvas over a memory image: the native build's drawing target, and the off-screen target
// of deforming and segmented paints. Text is the stand-in font, scaled from the point size.
#pragma once

#include <utility>
#include <vector>

#include "tessel/paint/canvas.h"

namespace tessel {

class ImageCanvas : public Canvas {
 public:
  explicit ImageCanvas(Image& image);

  Size size() const override;
  void save() override;
  void restore() override;
  void clipToRects(const std::vector<Rect>& rects) override;
  Rect clipBox() const override;
  void fillRect(const Rect& rect, Color color) override;
  void blendImage(const Image& image, const Rect& source, const Rect& target,
                  uint8_t opacity) override;
  void blendLayer(const Image& layer, const std::vector<LayerRun>& runs, Point at) override;
  Image copyPixels(const Rect& rect) const override;
  void putPixels(const Image& image, const Rect& source, Point target) override;
  Size measureText(const std::wstring& text, const TextStyle& style) const override;
  void drawText(const std::wstring& text, const Rect& rect, const TextStyle& style, Color color,
                uint32_t flags) override;

  // Whether a pixel may be painted under the current clip.
  bool clipped(int32_t x, int32_t y) const;

 private:
  // The clip of row `y` within `box` as disjoint runs from left to right.
  void rowClipRuns(int32_t y, const Rect& box,
                   std::vector<std::pair<int32_t, int32_t>>& runs) const;

  Image& image_;
  std::vector<Rect> clip_;  // disjoint-or-not rectangles whose union is the clip
  std::vector<std::vector<Rect>> saved_;
};

// The stand-in font's scale for a point size: one pixel row of the 5x7 glyph per 9 points.
int standInTextScale(int32_t pointSize);

}  // namespace tessel
