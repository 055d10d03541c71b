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
    if (c == L'*' && i + 1 < line.size() && line[i + 1] == L'*') {
      const size_t close = line.find(L"**", i + 2);
      if (close == std::wstring::npos) {
        appendPlain(spans, L"**");
        i += 2;
        continue;
      }
      MarkupSpan span{line.substr(i + 2, close - i - 2)};
      span.bold = true;
      spans.push_back(span);
      i = close + 2;
      continue;
    }
    if (c == L'*') {
      const size_t close = line.find(L'*', i + 1);
      if (i + 1 >= line.size() || isBlank(line[i + 1]) || close == std::wstring::npos) {
        appendPlain(spans, L"*");
        ++i;
        continue;
      }
      MarkupSpan span{line.substr(i + 1, close - i - 1)};
      span.italic = true;
      spans.push_back(span);
      i = close + 1;
      continue;
    }
    if (c == L'`') {
      const size_t close = line.find(L'`', i + 1);
      if (close == std::wstring::npos) {
        appendPlain(spans, L"`");
        ++i;
        continue;
      }
      MarkupSpan span{line.substr(i + 1, close - i - 1)};
      span.code = true;
      spans.push_back(span);
      i = close + 1;
      continue;
    }
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
      MarkupSpan span{line.substr(i + 1, labelEnd - i - 1)};
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
