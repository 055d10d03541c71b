// A static text: one or more lines in a text style, aligned left, centred or right, with the
// inline markup of textFormat 1 by default. Purely decorative: it takes the pointer only when
// it has a tooltip to offer or text it cannot show whole, so clicks fall through to what lies
// under it.
#pragma once

#include <cstdint>
#include <string>

#include "tessel/controls/inline_markup.h"
#include "tessel/core/control.h"
#include "tessel/skin/style_builders.h"

namespace tessel {

enum LabelAlignment : int32_t { kAlignLeft = 0, kAlignCenter = 1, kAlignRight = 2 };

class Label : public Control {
 public:
  Label(std::wstring id, Rect bounds, std::wstring text, const Theme& theme,
        TextTone tone = TextTone::Default);
  Label(std::wstring id, Rect bounds, std::wstring text, TextStyle style);

  void setText(std::wstring text);
  void setStyle(const TextStyle& style);
  // The style while the pointer is over the label.
  void setActiveStyle(const TextStyle& style);
  void setAlignment(int32_t alignment);
  void setMarkupLook(const InlineMarkupLook& look);

  const std::wstring& text() const { return text_; }
  const TextStyle& style() const { return style_; }
  const TextStyle& activeStyle() const { return activeStyle_; }
  int32_t alignment() const { return alignment_; }
  // The text as shown: without marks under textFormat 1.
  std::wstring plainText() const;

  bool applySkin(const StyleSheet& sheet) override;
  bool isStaticText() const override;
  std::wstring clippedText() const override;
  void paint(Canvas& canvas, Point origin) override;
  bool containsPoint(Point local) const override;

 private:
  std::vector<MarkupLine> lines() const;
  const TextStyle& currentStyle() const;

  TextStyle style_;
  std::wstring text_;
  TextStyle activeStyle_;
  bool hasActiveStyle_ = false;
  int32_t alignment_ = kAlignLeft;
  InlineMarkupLook look_;
};

}  // namespace tessel
