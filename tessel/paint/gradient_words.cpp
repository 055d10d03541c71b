#include "tessel/paint/gradient_words.h"

#include <initializer_list>

#include "tessel/skin/property_table.h"

namespace tessel {

namespace {

struct Word {
  const wchar_t* text;
  int32_t value;
};

bool lookUp(const std::wstring& text, std::initializer_list<Word> words, int32_t last,
            int32_t& value) {
  const std::wstring key = normalizeKey(text);
  for (const Word& word : words) {
    if (key == word.text) {
      value = word.value;
      return true;
    }
  }
  // A skin may give the number itself.
  if (key.size() == 1 && key[0] >= L'0' && key[0] <= L'0' + last) {
    value = key[0] - L'0';
    return true;
  }
  return false;
}

}  // namespace

bool parseGradientDirection(const std::wstring& text, int32_t& direction) {
  return lookUp(text,
                {{L"vertical", 0},
                 {L"down", 0},
                 {L"toptobottom", 0},
                 {L"verticalup", 1},
                 {L"up", 1},
                 {L"bottomtotop", 1},
                 {L"horizontal", 2},
                 {L"right", 2},
                 {L"lefttoright", 2},
                 {L"horizontalleft", 3},
                 {L"left", 3},
                 {L"righttoleft", 3},
                 {L"diagonaldown", 4},
                 {L"downright", 4},
                 {L"diagonal", 4},
                 {L"diagonaldownreverse", 5},
                 {L"downleft", 5},
                 {L"diagonalreverse", 5},
                 {L"diagonalup", 6},
                 {L"upright", 6},
                 {L"diagonalupreverse", 7},
                 {L"upleft", 7}},
                7, direction);
}

bool parseGradientKind(const std::wstring& text, int32_t& kind) {
  return lookUp(text,
                {{L"linear", 0},
                 {L"reflected", 1},
                 {L"mirror", 1},
                 {L"mirrored", 1},
                 {L"radial", 2},
                 {L"circle", 2},
                 {L"circular", 2},
                 {L"diamond", 3},
                 {L"conic", 4},
                 {L"angular", 4}},
                4, kind);
}

}  // namespace tessel
