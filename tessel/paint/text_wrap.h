// Breaking text into lines no wider than a width, for multi-line text on a target that draws
// one line at a time. Hard line breaks are kept, empty lines included; lines break at spaces,
// and a word wider than the width alone is broken between characters.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace tessel {

// The lines of `text` at most `width` wide by `measure`. Spaces at a break are dropped and a run
// of spaces counts as one; a "\r" before a "\n" is dropped too. A word is cut only where it must
// be, never inside a surrogate pair, and every line holds at least one character, so a width
// narrower than one character gives one character a line. Empty text gives no lines; a width
// below 1 gives the hard lines as they are, since nothing could fit.
std::vector<std::wstring> wrapText(const std::wstring& text, int32_t width,
                                   const std::function<int32_t(const std::wstring&)>& measure);

}  // namespace tessel
