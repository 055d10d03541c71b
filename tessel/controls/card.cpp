#include "tessel/controls/card.h"

#include <algorithm>
#include <utility>

#include "tessel/controls/surface_bands.h"
#include "tessel/controls/text_fit.h"
#include "tessel/core/system_move.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_outline.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {
namespace {

constexpr int32_t kChildLayoutRole = 3;

}  // namespace

Card::Card(std::wstring id, Rect bounds, std::wstring title, const Theme& theme, CardTone tone,
           SurfaceMode mode)
    : Card(std::move(id), bounds, std::move(title), buildCardStyle(theme, mode, tone)) {}

Card::Card(std::wstring id, Rect bounds, std::wstring title, CardStyle style)
    : Panel(std::move(id), bounds), style_(std::move(style)), title_(std::move(title)) {}

void Card::setTitle(std::wstring title) {
  if (title == title_) return;
  title_ = std::move(title);
  invalidate(8);
}

void Card::setSubtitle(std::wstring subtitle) {
  if (subtitle == subtitle_) return;
  subtitle_ = std::move(subtitle);
  invalidate(8);
}

void Card::setStyle(const CardStyle& style) {
  style_ = style;
  layoutChildren();
  invalidate(8);
}

bool Card::applySkin(const StyleSheet& sheet) {
  const CardStyle* found = sheet.cards.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

int32_t Card::textWidth() const {
  return bounds().width - 2 * style_.contentPadding;
}

std::wstring Card::clippedText() const {
  const int32_t y = mousePosition().y;
  if (y >= 0 && y < style_.headerHeight) {
    return textIsClipped(title_, style_.titleText, textWidth()) ? title_ : std::wstring();
  }
  if (y >= style_.headerHeight && y < style_.headerHeight + kSubtitleHeight) {
    return textIsClipped(subtitle_, style_.subtitleText, textWidth()) ? subtitle_ : std::wstring();
  }
  return std::wstring();
}

std::vector<Rect> Card::contentRegions() const {
  const Rect rect{0, 0, std::max(bounds().width, 0), std::max(bounds().height, 0)};
  Rect area = applyInsets(rect, style_.surface.childLayoutInsets);
  const int32_t top = std::max(area.y, style_.headerHeight);
  area = Rect{area.x, top, area.width, area.bottom() - top};
  const int32_t pad = style_.contentPadding;
  area = applyInsets(area, Insets{pad, pad, pad, pad});
  std::vector<Rect> regions = surfaceBands(style_.surface, rect, area);
  if (contourSpans().empty()) return regions;
  std::vector<Rect> inside;
  for (const Rect& region : regions) {
    for (const Rect& span : contourSpans()) {
      const Rect common = intersectRects(region, span);
      if (!common.empty()) inside.push_back(common);
    }
  }
  return inside;
}

Rect Card::contentBounds() const {
  Rect bounding;
  for (const Rect& region : contentRegions())
    bounding = uniteRects(bounding, region);
  return bounding;
}

std::vector<Rect> Card::geometryBands(int32_t role, int32_t bandHeight) const {
  if (role == kChildLayoutRole) return contentRegions();
  return Panel::geometryBands(role, bandHeight);
}

std::optional<SurfaceStyle> Card::surfaceStyle() const {
  return style_.surface;
}

void Card::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (!rect.empty()) {
    drawSurface(canvas, rect, style_.surface);
    const Rect header{rect.x, rect.y, rect.width, std::min(style_.headerHeight, rect.height)};
    if (!header.empty()) drawSurface(canvas, header, style_.header);
    const int32_t pad = style_.contentPadding;
    const Rect title{rect.x + pad, header.y, textWidth(), header.height};
    if (!title.empty()) {
      canvas.drawText(title_, title, style_.titleText,
                      enabled() ? style_.titleText.color : style_.titleText.disabledColor,
                      kTextLeft | kTextMiddle | kTextEndEllipsis);
    }
    const Rect subtitle{rect.x + pad, header.bottom(), textWidth(),
                        std::min(kSubtitleHeight, rect.bottom() - header.bottom())};
    if (!subtitle.empty()) {
      canvas.drawText(subtitle_, subtitle, style_.subtitleText,
                      enabled() ? style_.subtitleText.color : style_.subtitleText.disabledColor,
                      kTextLeft | kTextMiddle | kTextEndEllipsis);
    }
  }
  Panel::paint(canvas, origin);
}

void Card::mouseDown() {
  if (!headerDragEnabled_) return;
  const Point p = mousePosition();
  const Size header{bounds().width, std::min(style_.headerHeight, bounds().height)};
  if (p.y < 0 || p.y >= header.height || !hitTestSurface(style_.header, header, p)) return;
  CommandEvent event = makeCommand(L"header-drag");
  event.command += L".header-drag";
  event.source = L"header-drag";
  emitCommand(event);
  if (!event.handled) startSystemMove(*this);
}

bool Card::containsPoint(Point local) const {
  return hitTestSurface(style_.surface, Size{bounds().width, bounds().height}, local);
}

}  // namespace tessel
