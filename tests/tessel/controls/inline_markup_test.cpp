#include "tessel/controls/inline_markup.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessel {
namespace {

MarkupSpan Plain(const wchar_t* text) {
  return MarkupSpan{text};
}
MarkupSpan Bold(const wchar_t* text) {
  MarkupSpan span{text};
  span.bold = true;
  return span;
}
MarkupSpan Italic(const wchar_t* text) {
  MarkupSpan span{text};
  span.italic = true;
  return span;
}
MarkupSpan Code(const wchar_t* text) {
  MarkupSpan span{text};
  span.code = true;
  return span;
}
MarkupSpan Link(const wchar_t* text, const wchar_t* target) {
  MarkupSpan span{text};
  span.link = true;
  span.target = target;
  return span;
}

TEST(InlineMarkup, SpansOfOneLine) {
  struct Case {
    const char* what;
    const wchar_t* text;
    std::vector<MarkupSpan> spans;
  };
  const Case kCases[] = {
      {"plain", L"plain text", {Plain(L"plain text")}},
      {"empty", L"", {}},
      {"bold", L"a **b** c", {Plain(L"a "), Bold(L"b"), Plain(L" c")}},
      {"unclosed double star prints as two stars", L"a ** b", {Plain(L"a ** b")}},
      {"lone double star at the end", L"x**", {Plain(L"x**")}},
      {"italic", L"*it* x", {Italic(L"it"), Plain(L" x")}},
      {"a blank after the star is no italic", L"* not* x", {Plain(L"* not* x")}},
      {"unclosed star", L"2*3", {Plain(L"2*3")}},
      {"code", L"run `cmd /c` now", {Plain(L"run "), Code(L"cmd /c"), Plain(L" now")}},
      {"marks inside code stay", L"`**x**`", {Code(L"**x**")}},
      {"unclosed back quote", L"a `b", {Plain(L"a `b")}},
      {"link",
       L"see [docs](open:docs).",
       {Plain(L"see "), Link(L"docs", L"open:docs"), Plain(L".")}},
      {"brackets without a target", L"[x] y", {Plain(L"[x] y")}},
      {"link without a closing parenthesis", L"[x](y", {Plain(L"[x](y")}},
      {"bold then italic", L"**B***I*", {Bold(L"B"), Italic(L"I")}},
  };
  for (const Case& c : kCases) {
    const std::vector<MarkupLine> lines = parseInlineMarkup(c.text);
    ASSERT_EQ(lines.size(), 1u) << c.what;
    EXPECT_EQ(lines[0].headingLevel, 0) << c.what;
    EXPECT_EQ(lines[0].spans, c.spans) << c.what;
  }
}

TEST(InlineMarkup, HeadingsNeedOneToFourHashesAndABlank) {
  struct Case {
    const wchar_t* text;
    int32_t level;
    std::vector<MarkupSpan> spans;
  };
  const Case kCases[] = {
      {L"# Title", 1, {Plain(L"Title")}},
      {L"#### Four **b**", 4, {Plain(L"Four "), Bold(L"b")}},
      {L"##### Five", 0, {Plain(L"##### Five")}},
      {L"#tag", 0, {Plain(L"#tag")}},
      {L"#", 0, {Plain(L"#")}},
      {L" # indented", 0, {Plain(L" # indented")}},
  };
  for (const Case& c : kCases) {
    const std::vector<MarkupLine> lines = parseInlineMarkup(c.text);
    ASSERT_EQ(lines.size(), 1u);
    EXPECT_EQ(lines[0].headingLevel, c.level) << c.text;
    EXPECT_EQ(lines[0].spans, c.spans);
  }
}

TEST(InlineMarkup, LinesSplitAtLineFeedsAndMarksDoNotCrossThem) {
  const std::vector<MarkupLine> lines = parseInlineMarkup(L"## Head\r\n**a\nb**\n");
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(lines[0].headingLevel, 2);
  EXPECT_EQ(lines[0].spans, std::vector<MarkupSpan>{Plain(L"Head")});
  EXPECT_EQ(lines[1].spans, std::vector<MarkupSpan>{Plain(L"**a")});
  EXPECT_EQ(lines[2].spans, std::vector<MarkupSpan>{Plain(L"b**")});
  EXPECT_TRUE(lines[3].spans.empty());
}

TEST(InlineMarkup, StrippingJoinsSpansAndLines) {
  EXPECT_EQ(stripInlineMarkup(parseInlineMarkup(L"# T\nsee [docs](x) **now** `c`")),
            L"T\nsee docs now c");
  EXPECT_EQ(stripInlineMarkup(parseInlineMarkup(L"a ** b")), L"a ** b");
}

TEST(InlineMarkup, SpanStyles) {
  TextStyle body;
  body.pointSize = 10;
  body.weight = 400;
  body.color = rgbColor(1, 2, 3);
  const InlineMarkupLook look;
  struct Case {
    const char* what;
    int32_t level;
    MarkupSpan span;
    int32_t pointSize, weight;
    bool italic, underline;
    const wchar_t* family;
    Color color;
  };
  const Case kCases[] = {
      {"body", 0, Plain(L"x"), 10, 400, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"heading 1", 1, Plain(L"x"), 18, 700, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"heading 2", 2, Plain(L"x"), 15, 700, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"heading 3", 3, Plain(L"x"), 13, 700, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"heading 4", 4, Plain(L"x"), 12, 700, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"bold", 0, Bold(L"x"), 10, 700, false, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"italic", 0, Italic(L"x"), 10, 400, true, false, L"Segoe UI", rgbColor(1, 2, 3)},
      {"code", 0, Code(L"x"), 10, 400, false, false, L"Cascadia Mono", rgbColor(1, 2, 3)},
      {"code in a heading keeps its weight", 1, Code(L"x"), 18, 400, false, false, L"Cascadia Mono",
       rgbColor(1, 2, 3)},
      {"link", 0, Link(L"x", L"t"), 10, 400, false, true, L"Segoe UI", look.linkColor},
  };
  for (const Case& c : kCases) {
    const TextStyle style = markupSpanStyle(body, look, c.level, c.span);
    EXPECT_EQ(style.pointSize, c.pointSize) << c.what;
    EXPECT_EQ(style.weight, c.weight) << c.what;
    EXPECT_EQ(style.italic, c.italic) << c.what;
    EXPECT_EQ(style.underline, c.underline) << c.what;
    EXPECT_EQ(style.fontFamily, c.family) << c.what;
    EXPECT_EQ(style.color, c.color) << c.what;
  }
}

}  // namespace
}  // namespace tessel
