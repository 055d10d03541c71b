#include "tessel/controls/inline_markup.h"

namespace tessel {
namespace {

bool isBlank(wchar_t c) {
  return c == L' ' || c == L'\t';
}

// Appends plain text, merging with a plain span before it.
void appendPlain(std::vector<MarkupSpan>& spans, const std::wstring& text) {
  if (text.empty()) return;
  if (!spans.empty()) {
    MarkupSpan& last = spans.back();
    if (!last.bold && !last.italic && !last.code && !last.link) {
      last.text += text;
      return;
    }
  }
  spans.push_back(MarkupSpan{text});
}

std::vector<MarkupSpan> parseSpans(const std::wstring& line) {
  std::vector<MarkupSpan> spans;
  size_t i = 0;
  while (i < line.size()) {
    const wchar_t c = line[i];
    // A span between a mark and its closing twin; an unmatched mark stays as text.
    const auto delimited = [&](const std::wstring& mark, bool MarkupSpan::*style,
                               bool opens) -> bool {
      if (line.compare(i, mark.size(), mark) != 0) return false;
      const size_t close = opens ? line.find(mark, i + mark.size()) : std::wstring::npos;
      if (close == std::wstring::npos) {
        appendPlain(spans, mark);
        i += mark.size();
        return true;
      }
      MarkupSpan span;
      span.text = line.substr(i + mark.size(), close - i - mark.size());
      span.*style = true;
      spans.push_back(span);
      i = close + mark.size();
      return true;
    };
    if (delimited(L"**", &MarkupSpan::bold, true)) continue;
    // Italic only when no blank follows the star.
    if (delimited(L"*", &MarkupSpan::italic, i + 1 < line.size() && !isBlank(line[i + 1])))
      continue;
    if (delimited(L"`", &MarkupSpan::code, true)) continue;
    if (c == L'[') {
      const size_t labelEnd = line.find(L']', i + 1);
      const bool opens = labelEnd != std::wstring::npos && labelEnd + 1 < line.size() &&
                         line[labelEnd + 1] == L'(';
      const size_t targetEnd = opens ? line.find(L')', labelEnd + 2) : std::wstring::npos;
      if (targetEnd == std::wstring::npos) {
        appendPlain(spans, L"[");
        ++i;
        continue;
      }
      MarkupSpan span;
      span.text = line.substr(i + 1, labelEnd - i - 1);
      span.link = true;
      span.target = line.substr(labelEnd + 2, targetEnd - labelEnd - 2);
      spans.push_back(span);
      i = targetEnd + 1;
      continue;
    }
    // Plain text runs up to the next character that may open a mark.
    const size_t next = line.find_first_of(L"*`[", i + 1);
    const size_t end = next == std::wstring::npos ? line.size() : next;
    appendPlain(spans, line.substr(i, end - i));
    i = end;
  }
  return spans;
}

MarkupLine parseLine(const std::wstring& line) {
  MarkupLine result;
  size_t hashes = 0;
  while (hashes < line.size() && line[hashes] == L'#')
    ++hashes;
  if (hashes >= 1 && hashes <= 4 && hashes < line.size() && isBlank(line[hashes])) {
    result.headingLevel = static_cast<int32_t>(hashes);
    result.spans = parseSpans(line.substr(hashes + 1));
    return result;
  }
  result.spans = parseSpans(line);
  return result;
}

}  // namespace

std::vector<MarkupLine> parseInlineMarkup(const std::wstring& text) {
  std::vector<MarkupLine> lines;
  size_t start = 0;
  for (;;) {
    const size_t feed = text.find(L'\n', start);
    std::wstring line =
        text.substr(start, feed == std::wstring::npos ? std::wstring::npos : feed - start);
    if (!line.empty() && line.back() == L'\r') line.pop_back();
    lines.push_back(parseLine(line));
    if (feed == std::wstring::npos) break;
    start = feed + 1;
  }
  return lines;
}

std::wstring stripInlineMarkup(const std::vector<MarkupLine>& lines) {
  std::wstring text;
  for (size_t i = 0; i < lines.size(); ++i) {
    if (i > 0) text += L'\n';
    for (const MarkupSpan& span : lines[i].spans)
      text += span.text;
  }
  return text;
}

TextStyle markupSpanStyle(const TextStyle& body, const InlineMarkupLook& look, int32_t headingLevel,
                          const MarkupSpan& span) {
  TextStyle style = body;
  if (headingLevel >= 1 && headingLevel <= 4) {
    style.pointSize += look.headingIncrements[headingLevel - 1];
    style.weight = look.headingWeight;
  }
  if (span.bold) style.weight = 700;
  if (span.italic) style.italic = true;
  if (span.code) {
    style.fontFamily = look.codeFont;
    if (look.codePointSize != -1) style.pointSize = look.codePointSize;
    style.weight = look.codeWeight;
  }
  if (span.link) {
    style.underline = true;
    style.color = look.linkColor;
  }
  return style;
}

}  // namespace tessel
