#include "tessel/paint/text_wrap.h"

#include <cstddef>

namespace tessel {
namespace {

bool isHighSurrogate(wchar_t c) {
  return c >= 0xD800 && c <= 0xDBFF;
}

// The length of the character that starts at `at`: two code units for a surrogate pair.
size_t characterLength(const std::wstring& text, size_t at) {
  if (at + 1 < text.size() && isHighSurrogate(text[at])) return 2;
  return 1;
}

std::vector<std::wstring> splitHardLines(const std::wstring& text) {
  std::vector<std::wstring> lines;
  size_t start = 0;
  while (true) {
    const size_t end = text.find(L'\n', start);
    std::wstring line = text.substr(start, end == std::wstring::npos ? end : end - start);
    if (!line.empty() && line.back() == L'\r') line.pop_back();
    lines.push_back(std::move(line));
    if (end == std::wstring::npos) break;
    start = end + 1;
  }
  return lines;
}

class LineBreaker {
 public:
  LineBreaker(int32_t width, const std::function<int32_t(const std::wstring&)>& measure,
              std::vector<std::wstring>& out)
      : width_(width), measure_(measure), out_(out) {}

  void addWord(const std::wstring& word) {
    const std::wstring joined = current_.empty() ? word : current_ + L" " + word;
    if (measure_(joined) <= width_) {
      current_ = joined;
      return;
    }
    if (!current_.empty()) out_.push_back(std::move(current_));
    current_.clear();
    if (measure_(word) <= width_) {
      current_ = word;
      return;
    }
    breakWord(word);
  }

  // Ends the hard line: whatever is pending, even nothing, is one line.
  void finish() {
    out_.push_back(std::move(current_));
    current_.clear();
  }

 private:
  // Characters fill a line until the next one would overflow it; the rest stays pending, so
  // that the following word may still join it.
  void breakWord(const std::wstring& word) {
    size_t at = 0;
    while (at < word.size()) {
      size_t length = characterLength(word, at);
      std::wstring piece = word.substr(at, length);
      at += length;
      while (at < word.size()) {
        length = characterLength(word, at);
        std::wstring longer = piece + word.substr(at, length);
        if (measure_(longer) > width_) break;
        piece = std::move(longer);
        at += length;
      }
      if (at < word.size()) {
        out_.push_back(std::move(piece));
      } else {
        current_ = std::move(piece);
      }
    }
  }

  int32_t width_;
  const std::function<int32_t(const std::wstring&)>& measure_;
  std::vector<std::wstring>& out_;
  std::wstring current_;
};

}  // namespace

std::vector<std::wstring> wrapText(const std::wstring& text, int32_t width,
                                   const std::function<int32_t(const std::wstring&)>& measure) {
  std::vector<std::wstring> lines;
  if (text.empty()) return lines;
  const std::vector<std::wstring> hardLines = splitHardLines(text);
  if (width < 1) return hardLines;
  for (const std::wstring& hardLine : hardLines) {
    LineBreaker breaker(width, measure, lines);
    size_t start = 0;
    while (start < hardLine.size()) {
      const size_t end = hardLine.find(L' ', start);
      const size_t stop = end == std::wstring::npos ? hardLine.size() : end;
      if (stop > start) breaker.addWord(hardLine.substr(start, stop - start));
      start = stop + 1;
    }
    breaker.finish();
  }
  return lines;
}

}  // namespace tessel
