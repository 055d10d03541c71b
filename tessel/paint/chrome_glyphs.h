// The images of the title bar's window buttons: four state images per glyph, read from the
// application's assets, with a drawn stand-in when the base image is missing, so that the
// buttons are never blank.
#pragma once

#include <string>

#include "tessel/style/color.h"
#include "tessel/style/image.h"

namespace tessel {

struct ChromeButtonImages {
  Image normal;
  Image hot;
  Image pressed;
  Image disabled;
};

enum class ChromeButtonState { Normal, Hot, Pressed, Disabled };

// The stand-in's size and its two colours: a cool one for rest and a warm one for the pointer.
constexpr int32_t kChromeGlyphWidth = 36;
constexpr int32_t kChromeGlyphHeight = 22;
constexpr Color kChromeGlyphCool = rgbColor(0xE2, 0xF4, 0xF0);
constexpr Color kChromeGlyphWarm = rgbColor(0xFF, 0xED, 0xB8);

// `baseName` + ".png", "_hot.png", "_pressed.png", "_disabled.png" under `assetsFolder`.
// Without the base image all four are the drawn stand-ins, so a set never mixes drawn and
// loaded looks; with it, a missing state image repeats the base image.
ChromeButtonImages chromeButtonImages(const std::wstring& assetsFolder,
                                      const std::wstring& baseName);

// The drawn stand-in of one state: 36 by 22 pixels, a glyph chosen by the base name's ending
// (minimize, maximize, restore, close; anything else a dot) on a transparent ground. Hot and
// pressed add a faint plate and take the warm colour; pressed sits a pixel lower; disabled is
// faded.
Image chromeGlyphImage(const std::wstring& baseName, ChromeButtonState state);

}  // namespace tessel
