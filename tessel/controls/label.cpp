#include "tessel/controls/label.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "tessel/controls/decorative_hit.h"
#include "tessel/controls/text_fit.h"
#include "tessel/skin/style_sheet.h"

namespace tessel {
namespace {

uint32_t alignmentFlag(int32_t alignment) {
  if (alignment == kAlignCenter) return kTextCenter;
  if (alignment == kAlignRight) return kTextRight;
  return kTextLeft;
}

}  // namespace

Label::Label(std::wstring id, Rect bounds, std::wstring text, const Theme& theme, TextTone tone)
    : Label(std::move(id), bounds, std::move(text), buildTextStyle(theme, tone)) {}

Label::Label(std::wstring id, Rect bounds, std::wstring text, TextStyle style)
    : Control(std::move(id), bounds),
      style_(std::move(style)),
      text_(std::move(text)),
      activeStyle_(style_) {
  setTextFormat(1);
}

void Label::setText(std::wstring text) {
  if (text == text_) return;
  text_ = std::move(text);
  invalidate(8);
}

void Label::setStyle(const TextStyle& style) {
  style_ = style;
  if (!hasActiveStyle_) activeStyle_ = style;
  invalidate(8);
}

void Label::setActiveStyle(const TextStyle& style) {
  activeStyle_ = style;
  hasActiveStyle_ = true;
  invalidate(8);
}

void Label::setAlignment(int32_t alignment) {
  alignment_ = alignment;
  invalidate(8);
}

void Label::setMarkupLook(const InlineMarkupLook& look) {
  look_ = look;
  invalidate(8);
}

std::vector<MarkupLine> Label::lines() const {
  if (textFormat() == 1) return parseInlineMarkup(text_);
  // Plain text: the same line structure, one unmarked span a line.
  std::vector<MarkupLine> plain;
  size_t start = 0;
  for (;;) {
    const size_t feed = text_.find(L'\n', start);
    MarkupLine line;
    std::wstring part =
        text_.substr(start, feed == std::wstring::npos ? std::wstring::npos : feed - start);
    if (!part.empty() && part.back() == L'\r') part.pop_back();
    if (!part.empty()) line.spans.push_back(MarkupSpan{part});
    plain.push_back(line);
    if (feed == std::wstring::npos) break;
    start = feed + 1;
  }
  return plain;
}

std::wstring Label::plainText() const {
  return stripInlineMarkup(lines());
}

const TextStyle& Label::currentStyle() const {
  return hot() ? activeStyle_ : style_;
}

bool Label::applySkin(const StyleSheet& sheet) {
  const TextStyle* found = sheet.text.find(styleId());
  if (found == nullptr) return false;
  setStyle(*found);
  return true;
}

bool Label::isStaticText() const {
  return true;
}

std::wstring Label::clippedText() const {
  for (const MarkupLine& line : lines()) {
    int32_t width = 0;
    for (const MarkupSpan& span : line.spans) {
      width +=
          measuredTextWidth(span.text, markupSpanStyle(style_, look_, line.headingLevel, span));
    }
    if (width > bounds().width) return plainText();
  }
  return std::wstring();
}

void Label::paint(Canvas& canvas, Point origin) {
  const Rect rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
  if (rect.empty() || text_.empty()) return;
  const TextStyle& body = currentStyle();
  struct Placed {
    TextStyle style;
    int32_t width;    // as drawn
    int32_t advance;  // to the next span: a font may leave a gap after the last character
  };
  const std::vector<MarkupLine> all = lines();
  std::vector<std::vector<Placed>> placed(all.size());
  std::vector<int32_t> lineWidth(all.size(), 0);
  std::vector<int32_t> lineHeight(all.size(), 0);
  int32_t total = 0;
  for (size_t i = 0; i < all.size(); ++i) {
    lineHeight[i] =
        canvas.measureText(L" ", markupSpanStyle(body, look_, all[i].headingLevel, MarkupSpan{}))
            .height;
    for (const MarkupSpan& span : all[i].spans) {
      const TextStyle style = markupSpanStyle(body, look_, all[i].headingLevel, span);
      const Size size = canvas.measureText(span.text, style);
      const int32_t advance =
          canvas.measureText(span.text + L" ", style).width - canvas.measureText(L" ", style).width;
      placed[i].push_back(Placed{style, size.width, advance});
      lineWidth[i] += advance;
      lineHeight[i] = std::max(lineHeight[i], size.height);
    }
    if (!placed[i].empty()) lineWidth[i] += placed[i].back().width - placed[i].back().advance;
    lineHeight[i] *= std::max(look_.lineSpacing, 1);
    total += lineHeight[i];
  }
  // A block that fits is centred vertically; a taller one starts at the top.
  int32_t y = rect.y + std::max((rect.height - total) / 2, 0);
  const uint32_t single =
      all.size() == 1 && all[0].spans.size() == 1 ? uint32_t{kTextEndEllipsis} : 0u;
  for (size_t i = 0; i < all.size(); ++i) {
    int32_t x = rect.x;
    if (alignment_ == kAlignCenter) x = rect.x + (rect.width - lineWidth[i]) / 2;
    if (alignment_ == kAlignRight) x = rect.right() - lineWidth[i];
    if (single != 0) {
      // One plain run: the canvas aligns it and shortens it with an ellipsis.
      const MarkupSpan& span = all[0].spans[0];
      canvas.drawText(span.text, Rect{rect.x, y, rect.width, lineHeight[0]}, placed[0][0].style,
                      enabled() ? placed[0][0].style.color : placed[0][0].style.disabledColor,
                      alignmentFlag(alignment_) | kTextMiddle | single);
      break;
    }
    x = std::max(x, rect.x);
    for (size_t s = 0; s < all[i].spans.size(); ++s) {
      const Placed& part = placed[i][s];
      const Rect spanRect{x, y, std::min(part.width, rect.right() - x), lineHeight[i]};
      if (!spanRect.empty()) {
        canvas.drawText(all[i].spans[s].text, spanRect, part.style,
                        enabled() ? part.style.color : part.style.disabledColor,
                        kTextLeft | kTextMiddle);
      }
      x += part.advance;
    }
    y += lineHeight[i];
  }
}

bool Label::containsPoint(Point local) const {
  return Control::containsPoint(local) && offersTooltip(*this);
}

}  // namespace tessel
