// The inline markup of textFormat 1: lines that begin with "#" to "####" and a blank are
// headings; within a line **bold**, *italic* (only when no blank follows the first star),
// `code` and [label](target) links. A mark without its closing partner stays plain text.
// Spans don't nest: the inside of a mark is taken as it is.
#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "tessel/style/color.h"
#include "tessel/style/text_style.h"

namespace tessel {

struct MarkupSpan {
  MarkupSpan() = default;
  explicit MarkupSpan(std::wstring text) : text(std::move(text)) {}

  std::wstring text;
  bool bold = false;
  bool italic = false;
  bool code = false;
  bool link = false;
  std::wstring target;  // a link's action
  bool operator==(const MarkupSpan&) const = default;
};

struct MarkupLine {
  int32_t headingLevel = 0;  // 0 body, 1 to 4 headings
  std::vector<MarkupSpan> spans;
  bool operator==(const MarkupLine&) const = default;
};

// How spans are set, relative to the body's text style.
struct InlineMarkupLook {
  int32_t headingIncrements[4] = {8, 5, 3, 2};  // points added for heading levels 1 to 4
  int32_t headingWeight = 700;
  int32_t lineSpacing = 1;  // multiplies the line height
  std::wstring codeFont = L"Cascadia Mono";
  int32_t codePointSize = -1;  // -1: the body's
  int32_t codeWeight = 400;
  Color linkColor = rgbColor(0xE2, 0xAA, 0x58);
};

// Lines split at line feeds (a carriage return before one is dropped); plain text next to
// plain text is one span.
std::vector<MarkupLine> parseInlineMarkup(const std::wstring& text);

// The text without marks, for the clipboard: spans joined, lines joined by a line feed.
std::wstring stripInlineMarkup(const std::vector<MarkupLine>& lines);

// The text style of a span in a line of the given heading level, from the body's style. The
// colour of a link comes from `look`; everything else keeps the body's colours.
TextStyle markupSpanStyle(const TextStyle& body, const InlineMarkupLook& look, int32_t headingLevel,
                          const MarkupSpan& span);

}  // namespace tessel
