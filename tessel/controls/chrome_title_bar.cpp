#include "tessel/controls/chrome_title_bar.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <numbers>
#include <utility>

#include "tessel/controls/surface_bands.h"
#include "tessel/controls/text_fit.h"
#include "tessel/core/system_move.h"
#include "tessel/paint/bitmap_surface.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {

namespace {

constexpr int32_t kWindowMinimize = 0, kWindowMaximize = 1, kWindowResetSize = 2, kWindowClose = 3;
constexpr const wchar_t* kWindowButtonIds[] = {L"chrome-minimize", L"chrome-maximize",
                                               L"chrome-reset-size", L"chrome-close"};
constexpr const wchar_t* kSlotGlyphs[] = {L"chrome_minimize", L"chrome_maximize", L"chrome_restore",
                                          L"chrome_reset_size", L"chrome_close"};

ChromeButtonImages drawnGlyphs(const wchar_t* name) {
  return ChromeButtonImages{chromeGlyphImage(name, ChromeButtonState::Normal),
                            chromeGlyphImage(name, ChromeButtonState::Hot),
                            chromeGlyphImage(name, ChromeButtonState::Pressed),
                            chromeGlyphImage(name, ChromeButtonState::Disabled)};
}

uint64_t clockMs() {
  return uint64_t(std::chrono::duration_cast<std::chrono::milliseconds>(
                      std::chrono::steady_clock::now().time_since_epoch())
                      .count());
}

}  // namespace

ChromeTitleBar::ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title, const Theme& theme,
                               SurfaceMode mode)
    : ChromeTitleBar(std::move(id), bounds, std::move(title),
                     buildChromeTitleBarStyle(theme, mode)) {}

ChromeTitleBar::ChromeTitleBar(std::wstring id, Rect bounds, std::wstring title,
                               ChromeTitleBarStyle style)
    : Panel(std::move(id), bounds), style_(std::move(style)), title_(std::move(title)) {
  for (int32_t i = 0; i < 4; ++i) {
    windowButtons_[i] =
        add<ThemedButton>(kWindowButtonIds[i], Rect{}, std::wstring(), style_.titleButton);
    const int32_t part = kChromeMinimize + i;
    windowButtons_[i]->onCommand([this, part](CommandEvent& event) {
      event.handled = true;
      dispatch(part, event);
    });
  }
  for (int32_t i = 0; i < kHeaderActions; ++i) {
    headerActions_[i] = add<ThemedButton>(L"chrome-header-action-" + std::to_wstring(i), Rect{},
                                          std::wstring(), style_.titleButton);
    headerActions_[i]->setVisible(false);
    const int32_t part = kChromeHeaderAction0 + i;
    headerActions_[i]->onCommand([this, part](CommandEvent& event) {
      event.handled = true;
      dispatch(part, event);
    });
  }
  for (size_t slot = 0; slot < slotImages_.size(); ++slot)
    slotImages_[slot] = drawnGlyphs(kSlotGlyphs[slot]);
  windowButtons_[kWindowResetSize]->setVisible(false);
  layoutChildren();
}

void ChromeTitleBar::setStyle(const ChromeTitleBarStyle& style) {
  style_ = style;
  for (ThemedButton* b : windowButtons_)
    b->setStyle(style_.titleButton);
  for (ThemedButton* b : headerActions_)
    b->setStyle(style_.titleButton);
  layoutChildren();
  invalidate(8);
}

void ChromeTitleBar::setTitle(std::wstring title) {
  if (title == title_) return;
  title_ = std::move(title);
  invalidate(8);
}

void ChromeTitleBar::setIcon(Image icon) {
  icon_ = std::move(icon);
  layoutChildren();
  invalidate(8);
}

void ChromeTitleBar::setShowMinimize(bool show) {
  showMinimize_ = show;
  layoutChildren();
}

void ChromeTitleBar::setShowMaximize(bool show) {
  showMaximize_ = show;
  layoutChildren();
}

void ChromeTitleBar::setShowResetSize(bool show) {
  showResetSize_ = show;
  layoutChildren();
}

void ChromeTitleBar::setMaximized(bool maximized) {
  if (maximized == maximized_) return;
  maximized_ = maximized;
  invalidate(8);
}

void ChromeTitleBar::setHeaderAction(int32_t index, ChromeButtonImages images, std::wstring tooltip,
                                     Handler handler) {
  if (index < 0 || index >= kHeaderActions) return;
  actionImages_[index] = std::move(images);
  actionHandlers_[index] = std::move(handler);
  headerActions_[index]->setTooltip(std::move(tooltip));
  headerActionCount_ = std::max(headerActionCount_, index + 1);
  layoutChildren();
}

void ChromeTitleBar::setHeaderActionPulse(int32_t index, bool pulse) {
  if (index < 0 || index >= kHeaderActions) return;
  pulses_[index] = pulse;
  invalidate(8);
}

void ChromeTitleBar::setButtonImages(ChromeSlot slot, ChromeButtonImages images) {
  slotImages_[static_cast<size_t>(slot)] = std::move(images);
  invalidate(8);
}

ThemedButton& ChromeTitleBar::button(int32_t part) const {
  if (part >= kChromeHeaderAction0 && part < kChromeHeaderAction0 + kHeaderActions)
    return *headerActions_[part - kChromeHeaderAction0];
  return *windowButtons_[std::clamp(part - kChromeMinimize, 0, 3)];
}

void ChromeTitleBar::layoutChildren() {
  const Rect bar{0, 0, std::max(bounds().width, 0), std::max(bounds().height, 0)};
  // The buttons' row: the header role's area at the button top, as wide as the outline lets it.
  const Rect header = applyInsets(bar, style_.surface.headerInsets);
  const Rect row{header.x, std::max(header.y, style_.buttonTop), header.width,
                 std::max(style_.buttonHeight, 0)};
  Rect base;
  for (const Rect& band : surfaceBands(style_.surface, bar, intersectRects(row, bar)))
    base = uniteRects(base, band);
  if (base.empty()) base = Rect{header.x, row.y, header.width, row.height};
  const int32_t width = std::max(style_.buttonWidth, 0);
  int32_t right = base.right() - style_.rightMargin;
  int32_t leftmost = right;
  const auto place = [&](ThemedButton* button, bool shown) {
    button->setVisible(shown);
    if (!shown) {
      button->setBounds(Rect{});
      return;
    }
    const Rect r{right - width, base.y, width, base.height};
    button->setBounds(r);
    leftmost = r.x;
    right = r.x - style_.buttonGap;
  };
  place(windowButtons_[kWindowClose], true);
  place(windowButtons_[kWindowMaximize], showMaximize_);
  place(windowButtons_[kWindowMinimize], showMinimize_);
  place(windowButtons_[kWindowResetSize], showResetSize_);
  right = leftmost - (headerActionCount_ > 0 ? style_.headerActionGroupGap : 0);
  for (int32_t i = 0; i < kHeaderActions; ++i) {
    const bool shown = i < headerActionCount_;
    headerActions_[i]->setVisible(shown);
    if (!shown) {
      headerActions_[i]->setBounds(Rect{});
      continue;
    }
    const Rect r{right - width, base.y, width, base.height};
    headerActions_[i]->setBounds(r);
    leftmost = r.x;
    right = r.x - style_.headerActionGap;
  }
  // The icon, square, as large as the size and the bar allow, centred vertically.
  int32_t titleStart;
  if (!icon_.empty()) {
    const int32_t side = std::max(0, std::min(style_.iconSize, bar.height));
    iconRect_ = Rect{style_.iconLeft, (bar.height - side) / 2, side, side};
    titleStart = std::max(
        style_.titleLeft,
        iconRect_.right() + std::max(style_.titleLeft - style_.iconLeft - style_.iconSize, 6));
  } else {
    iconRect_ = Rect{};
    titleStart = std::max(style_.titleLeft, std::clamp(style_.titleLeft / 4, 6, 14));
  }
  const int32_t titleEnd = leftmost - 8;
  titleRect_ = Rect{titleStart, 0, std::max(titleEnd - titleStart, 0), bar.height};
  Panel::layoutChildren();
}

int32_t ChromeTitleBar::partAt(Point p) const {
  const auto on = [&](const ThemedButton* b) {
    return b->visible() && b->bounds().contains(p.x, p.y);
  };
  for (int32_t i = 0; i < headerActionCount_; ++i)
    if (on(headerActions_[i])) return kChromeHeaderAction0 + i;
  if (showMinimize_ && on(windowButtons_[kWindowMinimize])) return kChromeMinimize;
  if (showMaximize_ && on(windowButtons_[kWindowMaximize])) return kChromeMaximize;
  if (showResetSize_ && on(windowButtons_[kWindowResetSize])) return kChromeResetSize;
  if (on(windowButtons_[kWindowClose])) return kChromeClose;
  if (p.x >= 0 && p.y >= 0 && p.x < bounds().width && p.y < bounds().height) return kChromeCaption;
  return kChromeNothing;
}

bool ChromeTitleBar::containsPoint(Point local) const {
  return partAt(local) != kChromeNothing;
}

std::wstring ChromeTitleBar::partName(int32_t part) const {
  switch (part) {
    case kChromeMinimize:
      return L"minimize";
    case kChromeMaximize:
      return maximized_ ? L"restore" : L"maximize";
    case kChromeResetSize:
      return L"reset-size";
    case kChromeClose:
      return L"close";
    default:
      return L"header-action-" + std::to_wstring(part - kChromeHeaderAction0);
  }
}

void ChromeTitleBar::dispatch(int32_t part, CommandEvent& event) {
  switch (part) {
    case kChromeMinimize:
      if (onMinimize_) onMinimize_(event);
      return;
    case kChromeMaximize:
      // A disabled maximise does nothing, yet the click counts as handled.
      if (maximizeEnabled_ && onMaximize_) onMaximize_(event);
      return;
    case kChromeResetSize:
      if (onResetSize_) onResetSize_(event);
      return;
    case kChromeClose:
      if (onClose_) onClose_(event);
      return;
    default: {
      const int32_t index = part - kChromeHeaderAction0;
      if (index >= 0 && index < kHeaderActions && actionHandlers_[index])
        actionHandlers_[index](event);
    }
  }
}

void ChromeTitleBar::clicked() {
  const int32_t part = partAt(mousePosition());
  if (part < kChromeHeaderAction0 || part > kChromeClose) return;
  const std::wstring name = partName(part);
  CommandEvent event = makeCommand(name);
  event.command = (commandName().empty() ? id() : commandName()) + L"." + name;
  emitCommand(event);
  if (!event.handled) dispatch(part, event);
}

void ChromeTitleBar::mouseDown() {
  if (partAt(mousePosition()) != kChromeCaption) return;
  CommandEvent event = makeCommand(L"drag");
  event.command = (commandName().empty() ? id() : commandName()) + L".drag";
  event.source = L"chrome-drag";
  emitCommand(event);
  if (!event.handled) startSystemMove(*this);
}

const std::wstring& ChromeTitleBar::tooltipText() const {
  const int32_t part = partAt(mousePosition());
  if (part >= kChromeHeaderAction0 && part <= kChromeClose) {
    tooltipCache_ = button(part).tooltipText();
    if (!tooltipCache_.empty()) return tooltipCache_;
  }
  return Panel::tooltipText();
}

std::wstring ChromeTitleBar::clippedText() const {
  if (partAt(mousePosition()) != kChromeCaption) return std::wstring();
  return textIsClipped(title_, style_.titleText, titleRect_.width) ? title_ : std::wstring();
}

std::optional<SurfaceStyle> ChromeTitleBar::surfaceStyle() const {
  return style_.surface;
}

bool ChromeTitleBar::applySkin(const StyleSheet& sheet) {
  const ChromeTitleBarStyle* found = sheet.chromeTitleBars.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

bool ChromeTitleBar::tick() {
  const bool pulsing =
      std::any_of(pulses_.begin(), pulses_.begin() + headerActionCount_, [](bool p) { return p; });
  if (pulsing) invalidate(8);
  return Panel::tick() || pulsing;
}

uint8_t ChromeTitleBar::pulseAlpha(uint64_t ms) {
  const double t = double(ms % 1600) / 1600.0;
  const double alpha = 188 + std::round(67 * (0.5 - 0.5 * std::cos(2 * std::numbers::pi * t)));
  return static_cast<uint8_t>(std::clamp(alpha, 0.0, 255.0));
}

const ChromeButtonImages& ChromeTitleBar::imagesOf(int32_t part) const {
  switch (part) {
    case kChromeMinimize:
      return slotImages_[size_t(ChromeSlot::Minimize)];
    case kChromeMaximize:
      return slotImages_[size_t(maximized_ ? ChromeSlot::Restore : ChromeSlot::Maximize)];
    case kChromeResetSize:
      return slotImages_[size_t(ChromeSlot::ResetSize)];
    case kChromeClose:
      return slotImages_[size_t(ChromeSlot::Close)];
    default:
      return actionImages_[size_t(part - kChromeHeaderAction0)];
  }
}

void ChromeTitleBar::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty()) return;
  drawSurface(canvas, rect, style_.surface);
  if (!icon_.empty() && !iconRect_.empty()) {
    canvas.blendImage(
        icon_, Rect{0, 0, icon_.width, icon_.height},
        Rect{rect.x + iconRect_.x, rect.y + iconRect_.y, iconRect_.width, iconRect_.height}, 255);
  }
  if (!titleRect_.empty()) {
    canvas.drawText(
        title_,
        Rect{rect.x + titleRect_.x, rect.y + titleRect_.y, titleRect_.width, titleRect_.height},
        style_.titleText, style_.titleText.color, kTextLeft | kTextMiddle | kTextEndEllipsis);
  }
  Panel::paint(canvas, origin);
  // The glyphs over the buttons: an image per state, shrunk to fit and centred.
  const uint64_t now = clockMs();
  for (int32_t part = kChromeHeaderAction0; part <= kChromeClose; ++part) {
    const ThemedButton& b = button(part);
    if (!b.visible() || b.bounds().empty()) continue;
    const ChromeButtonImages& images = imagesOf(part);
    const bool disabled = !b.enabled() || (part == kChromeMaximize && !maximizeEnabled_);
    const Image& image = disabled      ? images.disabled
                         : b.pressed() ? images.pressed
                         : b.hot()     ? images.hot
                                       : images.normal;
    if (image.empty()) continue;
    const int32_t index = part - kChromeHeaderAction0;
    const uint8_t alpha = disabled                                             ? 180
                          : (part < kChromeMinimize && pulses_[size_t(index)]) ? pulseAlpha(now)
                                                                               : 255;
    // Images larger than the button less 10 by 6 pixels shrink to fit.
    const Rect room{rect.x + b.bounds().x + 5, rect.y + b.bounds().y + 3,
                    std::max(b.bounds().width - 10, 1), std::max(b.bounds().height - 6, 1)};
    blendImageFitted(canvas, image, room, alpha);
  }
}

}  // namespace tessel
