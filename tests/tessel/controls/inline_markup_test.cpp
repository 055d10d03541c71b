#include "tessel/controls/inline_markup.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

// Lines as "#<level> " and spans, spans joined by "|" and marked "b:", "i:", "c:" or
// "l(<target>):"; lines joined by " / ".
std::wstring Describe(const std::vector<MarkupLine>& lines) {
  std::wstring out;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) out += L" / ";
    if (lines[i].headingLevel > 0) out += L"#" + std::to_wstring(lines[i].headingLevel) + L" ";
    for (size_t j = 0; j < lines[i].spans.size(); ++j) {
      const MarkupSpan& span = lines[i].spans[j];
      out += std::wstring(j > 0 ? L"|" : L"") + (span.bold ? L"b:" : L"") +
             (span.italic ? L"i:" : L"") + (span.code ? L"c:" : L"") +
             (span.link ? L"l(" + span.target + L"):" : L"") + span.text;
    }
  }
  return out;
}

TEST(InlineMarkup, ParsesSpansHeadingsAndLines) {
  const std::pair<const wchar_t*, const wchar_t*> cases[] = {
      {L"a **b** c", L"a |b:b| c"},
      {L"a ** b", L"a ** b"},  // an unclosed mark is text, merged with the text around it
      {L"*it* x", L"i:it| x"},
      {L"* not* x", L"* not* x"},  // a blank after the star: no italic
      {L"run `cmd /c` now", L"run |c:cmd /c| now"},
      {L"`**x**`", L"c:**x**"},
      {L"see [docs](open:docs).", L"see |l(open:docs):docs|."},
      {L"[x](y", L"[x](y"},
      {L"**B***I*", L"b:B|i:I"},
      {L"# Title", L"#1 Title"},
      {L"#### Four **b**", L"#4 Four |b:b"},
      {L"##### Five", L"##### Five"},
      {L"#tag", L"#tag"},
      {L"#", L"#"},
      {L"## Head\r\n**a\nb**\n", L"#2 Head / **a / b** / "}};  // marks don't cross lines
  for (const auto& [text, parsed] : cases)
    EXPECT_EQ(Describe(parseInlineMarkup(text)), parsed) << text;
  EXPECT_EQ(stripInlineMarkup(parseInlineMarkup(L"# T\nsee [docs](x) **now** `c` **")),
            L"T\nsee docs now c **");
}

}  // namespace
}  // namespace tessel
