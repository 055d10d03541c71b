// Small stand-ins for toolkit tests: a window platform that records what is asked of it, a box
// that paints a solid colour and counts the calls it gets, a shaped panel, and pixel reading.
#pragma once

#include <vector>

#include "tessel/core/panel.h"
#include "tessel/core/window_platform.h"
#include "tessel/paint/image_canvas.h"

namespace tessel {

class RecordingPlatform : public WindowPlatform {
 public:
  void invalidate(const Rect& rect) override { rects.push_back(rect); }
  void invalidateAll() override {}
  void setCapture() override { ++captures; }
  void releaseCapture() override { ++releases; }
  void trackPointerLeave() override { ++leaveRequests; }
  uint64_t tickMs() const override { return clock; }
  bool buttonHeld() const override { return held; }
  void postClose() override {}
  void destroy() override {}
  void setRegion(const std::vector<Rect>& rects, bool shaped) override {
    region = rects;
    hasRegion = shaped;
  }

  int captures = 0, releases = 0, leaveRequests = 0;
  std::vector<Rect> rects;
  uint64_t clock = 1000;
  bool held = false;
  std::vector<Rect> region;
  bool hasRegion = false;
};

class Box : public Control {
 public:
  Box(std::wstring id, Rect bounds, Color color = 0)
      : Control(std::move(id), bounds), color(color) {}
  void paint(Canvas& canvas, Point origin) override {
    ++paints;
    canvas.fillRect(
        Rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height}, color);
  }
  void layoutChildren() override { ++layouts; }
  bool tick() override {
    ++ticks;
    return true;
  }

  Color color;
  int paints = 0, layouts = 0, ticks = 0;
};

// A panel whose content may be shaped, as a skin's outline shapes it.
class ShapedPanel : public Panel {
 public:
  using Panel::Panel;
  std::vector<Rect> contentRegions() const override {
    return regions.empty() ? Panel::contentRegions() : regions;
  }
  std::vector<Rect> regions;
};

inline Color PixelAt(const Image& image, int x, int y) {
  const uint8_t* p = image.pixel(x, y);
  return rgbColor(p[2], p[1], p[0]);
}

// A control painted alone at the origin of a blank image.
inline Image PaintedImage(Control& control, Size size) {
  Image image = Image::blank(size.width, size.height);
  ImageCanvas canvas(image);
  control.paint(canvas, Point{});
  return image;
}

}  // namespace tessel
