// The container of a control tree and the whole layout model: children placed by design
// rectangles against a captured design size, anchors and relative placement, minimum sizes that
// flow up the tree, and shaped content regions that children fit into. Paint order follows
// zOrder (stable), hit-testing the reverse of it.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tessel/core/control.h"

namespace tessel {

class Panel : public Control {
 public:
  Panel(std::wstring id, Rect bounds);

  Control* addChild(std::unique_ptr<Control> child);
  template <typename T, typename... Args>
  T* add(Args&&... args) {
    return static_cast<T*>(addChild(std::make_unique<T>(std::forward<Args>(args)...)));
  }
  void captureStateTree(std::vector<ControlState>& states) const;
  Size minimumContentSizeHint() const;
  // The visible children, ascending by zOrder; equal zOrder keeps insertion order.
  const std::vector<Control*>& drawOrder();

  bool isContainer() const override;
  const ControlList& children() const override;
  Size minimumSize() const override;
  void themeChanged() override;
  void paint(Canvas& canvas, Point origin) override;
  void paintOverlay(Canvas& canvas, Point origin) override;
  Control* overlayHitTest(Point point, Point origin) override;
  Control* hitTest(Point point, Point origin) override;
  bool dismissOverlays(Point point, Point origin) override;
  bool tick() override;
  void layoutChildren() override;
  void windowChanged() override;
  void windowMoved() override;
  void markDrawOrderDirty() override;

 private:
  ControlList children_;
  bool panelDrawOrderDirty_ = true;
  std::vector<Control*> panelDrawOrder_;
};

// The layout of one child inside its parent's content rectangle.
void applyLayout(Control& child, Rect parentContent);
// The child's surface geometry inside the parent's content regions.
void fitToRegions(Control& child, const std::vector<Rect>& regions, Rect parentContent);
// The size one child demands of its parent.
Size minimumParentSizeHint(const Control& child);

// Paints one child by its surface geometry: plainly, moved to its follow position, or deformed
// into its contour. Shared by panels and attached children.
void paintChild(Canvas& canvas, Control& child, Point origin, bool overlay);

}  // namespace tessel
