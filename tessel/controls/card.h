// A card: a panel with a skinned body, a header strip of headerHeight at the top with a title,
// and a subtitle in the first 20 pixels below it. Children live in the body: the content
// excludes the header and is inset by contentPadding inside the shape's child-layout bands.
// Pressing the header emits "<base>.header-drag"; unless a handler takes it, the window moves
// through the system move hook that the window layer installs (system_move.h).
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tessel/core/panel.h"
#include "tessel/skin/style_builders.h"
#include "tessel/style/card_style.h"

namespace tessel {

class Card : public Panel {
 public:
  // Height of the subtitle's line, right below the header.
  static constexpr int32_t kSubtitleHeight = 20;

  Card(std::wstring id, Rect bounds, std::wstring title, const Theme& theme,
       CardTone tone = CardTone::Default, SurfaceMode mode = SurfaceMode::Sculpted3d);
  Card(std::wstring id, Rect bounds, std::wstring title, CardStyle style);

  void setTitle(std::wstring title);
  void setSubtitle(std::wstring subtitle);
  void setHeaderDragEnabled(bool enabled) { headerDragEnabled_ = enabled; }
  // Lays the children out again, as their content area may change.
  void setStyle(const CardStyle& style);

  const std::wstring& title() const { return title_; }
  const std::wstring& subtitle() const { return subtitle_; }
  bool headerDragEnabled() const { return headerDragEnabled_; }
  const CardStyle& style() const { return style_; }

  bool applySkin(const StyleSheet& sheet) override;
  std::wstring clippedText() const override;
  Rect contentBounds() const override;
  std::vector<Rect> contentRegions() const override;
  std::vector<Rect> geometryBands(int32_t role, int32_t bandHeight) const override;
  std::optional<SurfaceStyle> surfaceStyle() const override;
  void paint(Canvas& canvas, Point origin) override;
  void mouseDown() override;
  bool containsPoint(Point local) const override;

 private:
  // The width the title and subtitle may take.
  int32_t textWidth() const;

  CardStyle style_;
  std::wstring title_;
  std::wstring subtitle_;
  bool headerDragEnabled_ = true;
};

}  // namespace tessel
