#include "tessel/core/window.h"

#include <algorithm>
#include <cstdlib>

#include "tessel/core/window_frame.h"
#include "tessel/paint/shape_geometry.h"
#include "tessel/paint/surface_painter.h"

namespace tessel {

namespace {

// Button flags of a pointer message's key state.
constexpr uint32_t kLeftButton = 0x0001;

std::vector<std::wstring> tooltipLines(const std::wstring& text) {
  std::vector<std::wstring> lines;
  size_t start = 0;
  while (start <= text.size()) {
    const size_t end = text.find(L'\n', start);
    std::wstring line =
        text.substr(start, end == std::wstring::npos ? std::wstring::npos : end - start);
    if (!line.empty() && line.back() == L'\r') line.pop_back();
    lines.push_back(std::move(line));
    if (end == std::wstring::npos) break;
    start = end + 1;
  }
  return lines;
}

}  // namespace

std::vector<Rect> shapeRegionRects(ShapeKind kind, const Rect& rect) {
  std::vector<Rect> rects;
  for (int32_t y = 0; y < rect.height; ++y) {
    int32_t first = 0, last = 0;
    if (!shapeRowSpan(kind, rect.width, rect.height, y, first, last)) continue;
    const Rect row{rect.x + first, rect.y + y, last - first + 1, 1};
    if (!rects.empty() && rects.back().x == row.x && rects.back().width == row.width &&
        rects.back().bottom() == row.y) {
      ++rects.back().height;
      continue;
    }
    rects.push_back(row);
  }
  return rects;
}

Window::Window() : root_(L"root", Rect{}), profile_(defaultUiPerformanceProfile()) {
  root_.attachToWindow(this);
}

Window::~Window() {
  // Controls mustn't call back into a window that is going away.
  root_.attachToWindow(nullptr);
}

void Window::setBackground(Color colour) {
  background_ = colour;
  invalidateAllNow();
}

void Window::setWindowStyle(const WindowStyle& style) {
  const bool frameChanged = style.customFrame != windowStyle_.customFrame;
  windowStyle_ = style;
  if (frameChanged && platform_ != nullptr) platform_->frameChanged();
  updateRegion();
  invalidateAllNow();
}

void Window::setUiPerformanceProfile(int32_t value) {
  profile_ = value >= 0 && value <= 2 ? static_cast<UiPerformanceProfile>(value)
                                      : UiPerformanceProfile::Balanced;
  invalidateAllNow();
}

void Window::close() {
  if (platform_ != nullptr) platform_->postClose();
}

void Window::reapplyTheme() {
  if (themeChangedHandler_) themeChangedHandler_(*this);
  root_.themeChanged();
  relayout();
}

void Window::invalidateRect(const Rect& rect) {
  if (platform_ != nullptr && !rect.empty()) platform_->invalidate(rect);
}

void Window::invalidateAll() {
  invalidateAllNow();
}

void Window::invalidateAllNow() {
  if (platform_ != nullptr) platform_->invalidateAll();
}

void Window::updateRegion() {
  if (platform_ == nullptr || !hasClientSize_) return;
  const std::optional<std::vector<Rect>> region = surfaceRegion();
  platform_->setRegion(region ? *region : std::vector<Rect>{}, region.has_value());
}

std::optional<std::vector<Rect>> Window::surfaceRegion() {
  const SurfaceStyle& surface = windowStyle_.surface;
  const bool shapedSurface = windowStyle_.drawSurface && surface.shape != ShapeKind::Rectangle;
  const bool ownApplies =
      (windowStyle_.clipRegionOnResize && windowStyle_.customFrame && shapedSurface) ||
      windowStyle_.useSurfaceRegion;
  if (!ownApplies && !windowStyle_.useChildSurfaceRegion) return std::nullopt;
  std::vector<Rect> rects;
  if (windowStyle_.useChildSurfaceRegion) {
    // Visible children with a surface give their shape; containers without one, their own
    // children's shapes.
    std::function<void(const Control&, Point)> collect = [&](const Control& parent, Point origin) {
      for (const auto& child : parent.children()) {
        if (!child->visible() || child->bounds().empty()) continue;
        const Rect place{origin.x + child->bounds().x, origin.y + child->bounds().y,
                         child->bounds().width, child->bounds().height};
        if (const std::optional<SurfaceStyle> style = child->surfaceStyle()) {
          std::vector<Rect> shape = shapeRegionRects(style->shape, place);
          if (shape.empty()) shape.push_back(place);
          rects.insert(rects.end(), shape.begin(), shape.end());
        } else {
          collect(*child, Point{place.x, place.y});
        }
      }
    };
    collect(root_, Point{root_.bounds().x, root_.bounds().y});
  }
  if (rects.empty() && ownApplies)
    rects = shapeRegionRects(surface.shape, Rect{0, 0, client_.width, client_.height});
  if (rects.empty()) return std::nullopt;
  return rects;
}

void Window::created() {
  onCreated();
}

void Window::destroying() {
  onDestroying();
  hideTooltip();
  hot_ = pressed_ = focused_ = nullptr;
}

void Window::sized(Size client, bool iconic) {
  if (iconic) {
    hideTooltip();
    return;
  }
  client_ = client;
  hasClientSize_ = true;
  relayout();
  if (resizeHandler_) resizeHandler_(client);
}

void Window::relayout() {
  if (!hasClientSize_) return;
  root_.setBounds(Rect{0, 0, client_.width, client_.height});
  root_.windowMoved();
  updateRegion();
  invalidateAllNow();
}

void Window::moved() {
  root_.windowMoved();
}

void Window::deactivated() {
  if (!closeOnDeactivate_) return;
  if (platform_ != nullptr) platform_->hide();
  close();
}

void Window::appDeactivated() {
  deactivated();
  if (root_.dismissOverlays(Point{-32000, -32000}, Point{})) invalidateAllNow();
  hideTooltip();
}

void Window::exitSizeMove() {
  inSizeMove_ = false;
  // The detail left out during the move comes back.
  invalidateAllNow();
}

uint64_t Window::now() const {
  return platform_ != nullptr ? platform_->tickMs() : 0;
}

Point Window::localPoint(const Control& control, Point client) const {
  const std::optional<Point> origin = control.absoluteParentOrigin();
  const Point base = origin.value_or(Point{});
  return Point{client.x - base.x - control.bounds().x, client.y - base.y - control.bounds().y};
}

void Window::setHotControl(Control* control) {
  if (control == hot_) return;
  if (hot_ != nullptr) hot_->setHot(false);
  hot_ = control;
  if (hot_ != nullptr) hot_->setHot(true);
  hoverStartMs_ = now();
  // A pinned tooltip (shown and interactive) outlives the hot control.
  if (!(interactiveTooltip() && tooltipPath_.pinned)) hideTooltip();
  invalidateAllNow();
}

void Window::hideTooltip() {
  if (tooltipOwner_ == nullptr) return;
  tooltipOwner_ = nullptr;
  if (!tooltipRect_.empty()) invalidateRect(inflateRect(tooltipRect_, 8));
  tooltipRect_ = Rect{};
}

bool Window::qualifiesForTooltip(Control* control) {
  return control != nullptr &&
         (!control->composedTooltip().empty() || !control->tooltipActions().empty() ||
          !control->tooltipControls().empty());
}

void Window::pointerMoved(Point point, uint32_t keyState) {
  pointer_ = point;
  if (std::abs(point.x - trackedPoint_.x) > tooltipMoveTolerance_ ||
      std::abs(point.y - trackedPoint_.y) > tooltipMoveTolerance_) {
    trackedPoint_ = point;
    lastMoveMs_ = now();
  }
  if (!trackingLeave_ && platform_ != nullptr) {
    platform_->trackPointerLeave();
    trackingLeave_ = true;
  }
  if (input.hasLiveSlot()) {
    PointerInputEvent record;
    record.source = L"move";
    record.localPoint = point;
    record.keyState = keyState;
    record.pressed = (keyState & kLeftButton) != 0;
    if (input.dispatchInput(record)) return;
  }
  if (pressed_ != nullptr) {
    pressed_->setMousePosition(localPoint(*pressed_, point));
    pressed_->mouseDragged();
    invalidateAllNow();
    return;
  }
  Control* hit = root_.hitTest(point, Point{});
  if (interactiveTooltip()) {
    // On the owner the tooltip simply stays; on the way to it, as the path rule says.
    pointerOnOwner_ = hit == tooltipOwner_ && !tooltipRect_.contains(point.x, point.y);
    if (pointerOnOwner_) {
      tooltipPath_ = beginTooltipPath(tooltipRect_, point, now());
      return;
    }
    if (followTooltipPath(tooltipPath_, point, now(), tooltipGraceMs_)) return;
    hideTooltip();
  }
  setHotControl(hit);
}

void Window::buttonPressed(Point point, uint32_t keyState) {
  pointer_ = point;
  // A press on the tooltip belongs to it, not to the controls it covers.
  if (tooltipOwner_ != nullptr && tooltipRect_.contains(point.x, point.y)) return;
  if (tooltipOwner_ != nullptr) hideTooltip();
  if (input.hasLiveSlot()) {
    PointerInputEvent record;
    record.source = L"down";
    record.localPoint = point;
    record.button = 1;
    record.pressed = true;
    record.keyState = keyState;
    if (input.dispatchInput(record)) return;
  }
  Control* hit = root_.overlayHitTest(point, Point{});
  if (hit == nullptr) {
    if (root_.dismissOverlays(point, Point{})) invalidateAllNow();
    hit = root_.hitTest(point, Point{});
  }
  if (focused_ != nullptr && focused_ != hit) focused_->focusLost();
  pressed_ = hit;
  focused_ = hit;
  if (hit == nullptr) return;
  hit->setMousePosition(localPoint(*hit, point));
  hit->setPressed(true);
  hit->mouseDown();
  if (platform_ != nullptr) platform_->setCapture();
  invalidateAllNow();
}

void Window::buttonReleased(Point point, uint32_t keyState) {
  pointer_ = point;
  bool taken = false;
  if (input.hasLiveSlot()) {
    PointerInputEvent record;
    record.source = L"up";
    record.localPoint = point;
    record.button = 1;
    record.pressed = false;
    record.keyState = keyState;
    taken = input.dispatchInput(record);
  }
  Control* pressed = pressed_;
  if (pressed == nullptr) return;
  pressed->setMousePosition(localPoint(*pressed, point));
  pressed->mouseDragged();
  pressed->setPressed(false);
  pressed_ = nullptr;
  if (platform_ != nullptr) platform_->releaseCapture();
  Control* over = root_.hitTest(point, Point{});
  setHotControl(over);
  invalidateAllNow();
  // Last: a click may end the dialog or rebuild the tree, so nothing is touched after it.
  if (over == pressed && !taken) pressed->clicked();
}

bool Window::wheel(Point point, int32_t delta, bool horizontal, uint32_t keyState) {
  if (input.hasLiveSlot()) {
    WheelInputEvent record;
    record.source = L"wheel";
    record.localPoint = point;
    record.delta = delta;
    record.horizontal = horizontal;
    record.keyState = keyState;
    if (input.dispatchInput(record)) return true;
  }
  Control* control = root_.overlayHitTest(point, Point{});
  if (control == nullptr) control = root_.hitTest(point, Point{});
  // The wheel bubbles from the control under the pointer up to the root.
  for (Control* c = control; c != nullptr; c = c->parent()) {
    const bool consumed = horizontal ? c->mouseHorizontalWheel(delta) : c->mouseWheel(delta);
    if (consumed) {
      invalidateAllNow();
      return true;
    }
  }
  return false;
}

void Window::setFocusedControl(Control* control) {
  if (control == focused_) return;
  if (focused_ != nullptr) focused_->focusLost();
  focused_ = control;
}

void Window::captureLost() {
  if (pressed_ == nullptr) return;
  Control* pressed = pressed_;
  pressed_ = nullptr;
  pressed->setPressed(false);
  invalidateAllNow();
}

void Window::pointerLeft() {
  trackingLeave_ = false;
  if (pressed_ != nullptr) return;
  setHotControl(nullptr);
  if (!(interactiveTooltip() && tooltipPath_.pinned)) hideTooltip();
}

bool Window::keyPressed(uint32_t virtualKey, bool ctrl, bool shift, bool alt, NativeWindow native) {
  if (input.hasLiveSlot()) {
    KeyInputEvent record;
    record.virtualKey = virtualKey;
    record.ctrl = ctrl;
    record.shift = shift;
    record.alt = alt;
    record.window = native;
    if (input.dispatchInput(record)) return true;
  }
  if (focused_ == nullptr) return false;
  const bool consumed = focused_->keyDown(virtualKey, ctrl, shift, alt, native);
  if (consumed) invalidateAllNow();
  return consumed;
}

bool Window::character(char16_t unit, NativeWindow native) {
  if (input.hasLiveSlot()) {
    CharacterInputEvent record;
    record.character = unit;
    record.window = native;
    if (input.dispatchInput(record)) return true;
  }
  if (focused_ == nullptr) return false;
  const bool consumed = focused_->charInput(unit, native);
  if (consumed) invalidateAllNow();
  return consumed;
}

void Window::timer() {
  if (pressed_ != nullptr) {
    // Auto-repeat and drag-scrolling while a control holds the pointer.
    pressed_->setMousePosition(localPoint(*pressed_, pointer_));
    pressed_->mouseDragged();
    invalidateAllNow();
    return;
  }
  bool changed = false;
  // A tooltip left behind closes when its time on the way or its grace time is over.
  if (interactiveTooltip() && !pointerOnOwner_ &&
      !followTooltipPath(tooltipPath_, pointer_, now(), tooltipGraceMs_, false)) {
    hideTooltip();
    changed = true;
  }
  if (tooltipOwner_ == nullptr && hot_ != nullptr && qualifiesForTooltip(hot_) &&
      (platform_ == nullptr || !platform_->buttonHeld())) {
    const uint64_t since = std::max(hoverStartMs_, lastMoveMs_);
    if (now() >= since + uint64_t(tooltipDelayMs_)) {
      tooltipOwner_ = hot_;
      pointerOnOwner_ = true;
      tooltipPath_ = beginTooltipPath(Rect{}, pointer_, now());
      changed = true;
    }
  }
  if (root_.tick()) changed = true;
  if (changed) invalidateAllNow();
}

UiPerformanceProfile Window::paintProfile() const {
  return inSizeMove_ ? UiPerformanceProfile::MaximumPerformance : profile_;
}

void Window::paintFrame(Canvas& canvas, const Rect& dirty) {
  const Rect client{0, 0, client_.width, client_.height};
  if (client.empty()) return;
  const ProfileScope scope(paintProfile());
  CanvasState state(canvas);
  canvas.clipToRects({dirty});
  canvas.fillRect(dirty, background_);
  if (windowStyle_.drawSurface) drawSurface(canvas, client, windowStyle_.surface);
  root_.paint(canvas, Point{});
  root_.paintAttached(canvas, Point{});
  root_.paintOverlay(canvas, Point{});
  root_.paintAttachedOverlays(canvas, Point{});
  paintWindowOverlay(canvas, client);
  paintTooltip(canvas);
  if (diagnosticsSink_) {
    // The software path is the only one yet: effective gdi whatever was asked for.
    RenderDiagnostics diagnostics;
    diagnostics.requested = renderMode_;
    diagnostics.profile = paintProfile();
    std::wstring line = renderDiagnosticsLine(diagnostics);
    if (line != lastDiagnostics_) {
      lastDiagnostics_ = line;
      diagnosticsSink_(lastDiagnostics_);
    }
  }
}

void Window::paintTooltip(Canvas& canvas) {
  if (tooltipOwner_ == nullptr) return;
  const TooltipStyle& style = tooltipOwner_->tooltipStyle().value_or(tooltipStyle_);
  const std::vector<std::wstring> lines = tooltipLines(tooltipOwner_->composedTooltip());
  int32_t textWidth = 0, lineHeight = 1;
  for (const std::wstring& line : lines) {
    const Size size = canvas.measureText(line.empty() ? L" " : line, style.textStyle);
    textWidth = std::max(textWidth, size.width);
    lineHeight = std::max(lineHeight, size.height);
  }
  const int32_t rail = style.showAccentRail ? 3 : 0;
  const int32_t width =
      std::min(textWidth, std::max(style.maxWidth, 1)) + 2 * style.paddingX + rail;
  const int32_t height = int32_t(lines.size()) * lineHeight + 2 * style.paddingY;
  // Below the pointer, kept inside the client area.
  Rect box{pointer_.x, pointer_.y + 20, width, height};
  if (box.right() > client_.width) box.x = client_.width - box.width;
  if (box.bottom() > client_.height) box.y = pointer_.y - 8 - box.height;
  box.x = std::max(box.x, 0);
  box.y = std::max(box.y, 0);
  tooltipRect_ = box;
  tooltipPath_.tooltip = box;
  if (style.showShadow && (style.shadowOffsetX != 0 || style.shadowOffsetY != 0)) {
    fillShapeAlphaOn(
        canvas,
        Rect{box.x + style.shadowOffsetX, box.y + style.shadowOffsetY, box.width, box.height},
        style.surface.shape, style.shadow, 96);
  }
  drawSurface(canvas, box, style.surface);
  if (rail > 0) drawSurface(canvas, Rect{box.x, box.y, rail, box.height}, style.accentRail);
  for (size_t i = 0; i < lines.size(); ++i) {
    const Rect line{box.x + rail + style.paddingX, box.y + style.paddingY + int32_t(i) * lineHeight,
                    box.width - rail - 2 * style.paddingX, lineHeight};
    canvas.drawText(lines[i], line, style.textStyle, style.textStyle.color, kTextLeft | kTextTop);
  }
}

int32_t Window::frameHit(Point client, bool zoomed) const {
  return frameHitTest(client, client_, windowStyle_.resizeBorderThickness, windowStyle_.customFrame,
                      zoomed);
}

Size Window::effectiveMinimumClientSize() const {
  return tessel::effectiveMinimumClientSize(minimumClientSize_, root_.minimumContentSizeHint(),
                                            autoMinimumSize_);
}

}  // namespace tessel
