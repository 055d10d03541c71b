// The base of everything in a control tree: identity, designed and laid-out geometry, anchors
// and relative placement, state flags, the skin style id, tooltip data, twelve signals, the
// surface geometry that lets a control follow a skin's shape, and the virtual operations
// through which panels and windows drive it. A bare Control is a transparent rectangle that
// paints nothing. A parent owns its children; raw pointers never own.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "tessel/core/events.h"
#include "tessel/style/geometry.h"
#include "tessel/core/signal.h"
#include "tessel/paint/canvas.h"
#include "tessel/style/tooltip_style.h"
#include "tessel/style/surface_style.h"

namespace tessel {

class StyleSheet;
class WindowHost;

enum Anchor : uint32_t {
  kAnchorLeft = 1,
  kAnchorTop = 2,
  kAnchorRight = 4,
  kAnchorBottom = 8,
};
// "Left", "Top", "Right", "Bottom" joined with "|" in that order; "None" for no anchor.
std::wstring anchorText(uint32_t anchors);

struct PlacementEdge {
  double ratio = 0.0;
  int32_t offset = 0;
  bool set = false;
};

struct PlacementSize {
  int32_t value = 0;
  bool set = false;
};

// Edges and sizes as fractions of the parent's content size plus pixel offsets.
struct RelativePlacement {
  bool enabled = false;
  PlacementEdge left, right, top, bottom, centerX, centerY;
  PlacementSize width, height;
};

// One run of rows (or columns) of a shaped child with the same cut on both sides.
struct GeometryBand {
  int32_t start = 0;
  int32_t length = 0;
  int32_t nearCut = 0;
  int32_t farCut = 0;
  bool operator==(const GeometryBand&) const = default;
};

// How a control follows a shaped parent region.
enum ShapeFollow : int32_t { kGeometryNone = 0, kGeometryFollow = 1, kGeometryDeform = 2 };
enum FollowMode : int32_t { kFollowBand = 0, kFollowScanline = 1 };

using StateValue = std::pair<std::wstring, std::wstring>;

// What captureState gives: enough to restore a control's place and values later.
struct ControlState {
  std::wstring id;
  Rect bounds;
  bool visible = true;
  bool enabled = true;
  bool collapsed = false;
  std::wstring styleId;
  std::vector<StateValue> values;

  // Replaces the value of an existing key in place, or appends a new key.
  void setValue(const std::wstring& key, const std::wstring& value);
  const std::wstring* value(const std::wstring& key) const;
};

// Heading and code styles for text with inline markup; their defaults come with the labels.
struct MarkupStyle {
  TextStyle heading;
  TextStyle code;
};

using ControlList = std::vector<std::unique_ptr<Control>>;

class Control {
 public:
  Control(std::wstring id, Rect bounds);
  virtual ~Control();
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  // --- The virtual operations, in the order of the table. ---
  virtual void setBounds(const Rect& rect);
  virtual bool applySkin(const StyleSheet& sheet);
  virtual void styleApplied();
  virtual bool isStaticText() const;
  virtual bool isContainer() const;
  virtual const std::wstring& tooltipText() const;
  virtual std::wstring clippedText() const;
  virtual const ControlList& children() const;
  virtual Size minimumSize() const;
  virtual Rect contentBounds() const;
  virtual std::vector<Rect> contentRegions() const;
  virtual Rect geometryBounds() const;
  virtual Rect geometryInnerBounds() const;
  virtual std::vector<Rect> geometryBands(int32_t role, int32_t bandHeight) const;
  virtual std::optional<SurfaceStyle> surfaceStyle() const;
  virtual void captureState(ControlState& state) const;
  virtual void applyState(const ControlState& state, bool restoreBounds);
  virtual void themeChanged();
  virtual void paint(Canvas& canvas, Point origin);
  virtual void paintOverlay(Canvas& canvas, Point origin);
  virtual Control* overlayHitTest(Point point, Point origin);
  virtual Control* hitTest(Point point, Point origin);
  virtual bool dismissOverlays(Point point, Point origin);
  virtual void setHot(bool hot);
  virtual void setPressed(bool pressed);
  virtual void mouseDown();
  virtual void mouseDragged();
  virtual void clicked();
  virtual bool mouseWheel(int32_t delta);
  virtual bool mouseHorizontalWheel(int32_t delta);
  virtual bool keyDown(uint32_t virtualKey, bool ctrl, bool shift, bool alt, NativeWindow window);
  virtual bool charInput(char16_t character, NativeWindow window);
  virtual bool tick();
  virtual bool containsPoint(Point local) const;
  virtual void layoutChildren();
  virtual void windowChanged();
  virtual void windowMoved();
  virtual void focusLost();
  virtual void captureExtraState(ControlState& state) const;
  virtual void applyExtraState(const StateValue& value);
  virtual void markDrawOrderDirty();

  // --- Setters that keep invalidation and the parent's paint order right. ---
  void setVisible(bool visible);
  void setEnabled(bool enabled);
  void setCollapsed(bool collapsed);
  void setZOrder(int32_t zOrder);
  void setAnchors(uint32_t anchors);
  void setMinimumSize(Size size);
  void setStyleId(std::wstring styleId) { styleId_ = std::move(styleId); }
  void setTooltip(std::wstring tooltip) { tooltip_ = std::move(tooltip); }
  void setCommandName(std::wstring name) { commandName_ = std::move(name); }
  void setTooltipStyle(const TooltipStyle& style) { tooltipStyle_ = style; }
  void setTextFormat(int32_t format) { textFormat_ = format; }
  void setPlacement(const RelativePlacement& placement) { placement_ = placement; }
  void setThemeChangedHandler(std::function<void(Control&)> handler) {
    themeChangedHandler_ = std::move(handler);
  }
  Control* addAttachedChild(std::unique_ptr<Control> child);
  void setContourSpans(std::vector<Rect> spans);
  void clearGeometry();

  // --- Signals. ---
  Connection onCommand(std::function<void(CommandEvent&)> f) {
    return command_.connect(std::move(f));
  }
  Connection onValueChanged(std::function<void(ValueChangedEvent&)> f) {
    return valueChanged_.connect(std::move(f));
  }
  Connection onSelectionChanged(std::function<void(SelectionChangedEvent&)> f) {
    return selectionChanged_.connect(std::move(f));
  }
  Connection onActivation(std::function<void(ActivationEvent&)> f) {
    return activation_.connect(std::move(f));
  }
  Connection onCommit(std::function<void(CommitEvent&)> f) { return commit_.connect(std::move(f)); }
  Connection onExpansionChanged(std::function<void(ExpansionChangedEvent&)> f) {
    return expansionChanged_.connect(std::move(f));
  }
  Connection onSortChanged(std::function<void(SortChangedEvent&)> f) {
    return sortChanged_.connect(std::move(f));
  }
  Connection onColumnWidthsChanged(std::function<void(ColumnWidthsChangedEvent&)> f) {
    return columnWidthsChanged_.connect(std::move(f));
  }
  Connection onPopup(std::function<void(PopupEvent&)> f) { return popup_.connect(std::move(f)); }
  Connection onScroll(std::function<void(ScrollEvent&)> f) { return scroll_.connect(std::move(f)); }

  // A command from this control: the command name (or the id) and a value.
  CommandEvent makeCommand(const std::wstring& value);
  void emitCommand(CommandEvent& event);
  void emitValueChanged(ValueChangedEvent& event);
  void emitSelectionChanged(SelectionChangedEvent& event);
  void emitActivation(ActivationEvent& event);
  void emitCommit(CommitEvent& event);
  void emitExpansionChanged(ExpansionChangedEvent& event);
  void emitSortChanged(SortChangedEvent& event);
  void emitColumnWidthsChanged(ColumnWidthsChangedEvent& event);
  void emitPopup(PopupEvent& event);
  void emitScroll(ScrollEvent& event);

  // --- Reading. ---
  const std::wstring& id() const { return id_; }
  const Rect& bounds() const { return bounds_; }
  const Rect& designBounds() const { return designBounds_; }
  Size designParentSize() const { return designParentSize_; }
  bool designCaptured() const { return designCaptured_; }
  uint32_t anchors() const { return anchors_; }
  bool hasMinimumSize() const { return hasMinimumSize_; }
  Size explicitMinimumSize() const { return minimumSize_; }
  const RelativePlacement& placement() const { return placement_; }
  bool visible() const { return visible_; }
  bool collapsed() const { return collapsed_; }
  bool enabled() const { return enabled_; }
  bool hot() const { return hot_; }
  bool pressed() const { return pressed_; }
  Point mousePosition() const { return mousePosition_; }
  void setMousePosition(Point point) { mousePosition_ = point; }
  const std::wstring& styleId() const { return styleId_; }
  int32_t textFormat() const { return textFormat_; }
  MarkupStyle& markupStyle() { return markupStyle_; }
  const std::wstring& commandName() const { return commandName_; }
  const std::wstring& tooltip() const { return tooltip_; }
  int32_t zOrder() const { return zOrder_; }
  std::vector<TooltipAction>& tooltipActions() { return tooltipActions_; }
  const std::vector<TooltipAction>& tooltipActions() const { return tooltipActions_; }
  ControlList& tooltipControls() { return tooltipControls_; }
  const ControlList& tooltipControls() const { return tooltipControls_; }
  const ControlList& attachedChildren() const { return attachedChildren_; }
  const std::optional<TooltipStyle>& tooltipStyle() const { return tooltipStyle_; }
  Control* parent() const { return parent_; }
  WindowHost* window() const { return window_; }

  // Surface geometry, set by the parent's layout and read by paint and hit-testing.
  const std::vector<Rect>& contourSpans() const { return contourSpans_; }
  const std::vector<GeometryBand>& rowBands() const { return rowBands_; }
  const std::vector<GeometryBand>& columnBands() const { return columnBands_; }
  bool bandsFromBottom() const { return bandsFromBottom_; }
  bool bandsFromRight() const { return bandsFromRight_; }
  int32_t geometryMode() const { return geometryMode_; }
  void setGeometryMode(int32_t mode) { geometryMode_ = mode; }
  int32_t followMode() const { return followMode_; }
  void setFollowMode(int32_t mode) { followMode_ = mode; }
  Point followOffset() const { return followOffset_; }
  const Rect& followBounds() const { return followBounds_; }
  bool hasFollowBounds() const { return followBounds_.width >= 1 && followBounds_.height >= 1; }

  // The tooltip: the description and the clipped text combined.
  const std::wstring& composedTooltip();
  // The rectangle that painting may touch, in absolute coordinates, inflated by `margin`.
  Rect visualRect(Point absoluteOrigin, int32_t margin) const;
  // Repaints this control's visual rectangle in its window; the whole window when unplaced.
  void invalidate(int32_t margin);
  // The absolute position of the control's parent origin, when it hangs under the window.
  std::optional<Point> absoluteParentOrigin() const;

  // Sets the window of this control and everything below it; windowChanged where it changed.
  void attachToWindow(WindowHost* window);
  // Paint order of the attached children: visible ones, ascending by zOrder, stable.
  const std::vector<Control*>& attachedDrawOrder();

 protected:
  friend class Panel;
  friend class Window;
  friend void applyLayout(Control& child, Rect parentContent);
  friend void fitToRegions(Control& child, const std::vector<Rect>& regions, Rect parentContent);
  friend Size minimumParentSizeHint(const Control& child);
  friend void paintChild(Canvas& canvas, Control& child, Point origin, bool overlay);

  // Lays out the attached children as a panel lays out its children.
  void layoutAttachedChildren();
  // The demand of the visible attached children on this control's size.
  Size attachedChildrenDemand() const;
  // Window region recomputation, when attached.
  void updateWindowRegion();
  // Paints the attached children after their owner, each with its own geometry.
  void paintAttached(Canvas& canvas, Point origin);
  void paintAttachedOverlays(Canvas& canvas, Point origin);
  // The origin for this control's own children: its position (or its follow position).
  Point childOrigin(Point origin) const;

  std::wstring id_;
  Rect bounds_;
  Rect designBounds_;
  Size designParentSize_;
  uint32_t anchors_ = kAnchorLeft | kAnchorTop;
  Size minimumSize_;
  bool hasMinimumSize_ = false;
  RelativePlacement placement_;
  bool designCaptured_ = false;
  bool visible_ = true;
  bool collapsed_ = false;
  bool enabled_ = true;
  bool hot_ = false;
  bool pressed_ = false;
  Point mousePosition_;
  std::wstring styleId_;
  int32_t textFormat_ = 0;
  MarkupStyle markupStyle_;
  std::wstring commandName_;
  std::wstring tooltip_;
  int32_t zOrder_ = 0;
  std::wstring tooltipCache_;
  std::vector<TooltipAction> tooltipActions_;
  ControlList tooltipControls_;
  ControlList attachedChildren_;
  bool drawOrderDirty_ = true;
  std::vector<Control*> drawOrder_;
  std::optional<TooltipStyle> tooltipStyle_;
  std::function<void(Control&)> themeChangedHandler_;
  Signal<CommandEvent> command_;
  Signal<ValueChangedEvent> valueChanged_;
  Signal<SelectionChangedEvent> selectionChanged_;
  Signal<ActivationEvent> activation_;
  Signal<CommitEvent> commit_;
  Signal<ExpansionChangedEvent> expansionChanged_;
  Signal<SortChangedEvent> sortChanged_;
  Signal<ColumnWidthsChangedEvent> columnWidthsChanged_;
  Signal<CommandEvent> spare1_;
  Signal<PopupEvent> popup_;
  Signal<ScrollEvent> scroll_;
  Signal<CommandEvent> spare2_;
  std::vector<Rect> contourSpans_;
  std::vector<GeometryBand> rowBands_;
  std::vector<GeometryBand> columnBands_;
  bool bandsFromBottom_ = false;
  bool bandsFromRight_ = false;
  int32_t geometryMode_ = kGeometryFollow;
  int32_t followMode_ = kFollowBand;
  Point followOffset_;
  Rect followBounds_;
  Control* parent_ = nullptr;
  WindowHost* window_ = nullptr;
};

// Finds a control by id in `root` and, depth first in list order, in everything under its
// children(); null when absent. Ids compare exactly.
Control* findById(Control& root, const std::wstring& id);

// Binds a subtree to a skin: every control with a style id takes its record. The number of
// controls styled.
int32_t applySkinTree(const StyleSheet& sheet, Control& root);
// Sets a control's style id and applies it alone.
bool applyStyleId(const StyleSheet& sheet, Control& control, std::wstring styleId);

}  // namespace tessel
