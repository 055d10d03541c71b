// Small controls for toolkit tests: a window host that records what is asked of it, and a box
// that paints a solid colour and counts the calls it gets.
#pragma once

#include <vector>

#include "tessel/core/panel.h"
#include "tessel/core/window_host.h"
#include "tessel/paint/image_canvas.h"

namespace tessel {

class RecordingHost : public WindowHost {
 public:
  explicit RecordingHost(Control* root = nullptr, Size client = {400, 300})
      : root_(root), client_(client) {}
  void invalidateRect(const Rect& rect) override { rects.push_back(rect); }
  void invalidateAll() override { ++wholeWindow; }
  void updateRegion() override { ++regionUpdates; }
  Size clientSize() const override { return client_; }
  Control* rootControl() override { return root_; }
  void setRoot(Control* root) { root_ = root; }

  std::vector<Rect> rects;
  int wholeWindow = 0;
  int regionUpdates = 0;

 private:
  Control* root_;
  Size client_;
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
    return wantsTick;
  }
  void captureExtraState(ControlState& state) const override {
    state.setValue(L"color", std::to_wstring(color));
  }
  void applyExtraState(const StateValue& value) override {
    if (value.first == L"color") color = static_cast<Color>(std::stoul(value.second));
  }
  bool applySkin(const StyleSheet&) override { return ++skins > 0; }

  Color color;
  int paints = 0;
  int layouts = 0;
  int ticks = 0;
  int skins = 0;
  bool wantsTick = false;
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

}  // namespace tessel
