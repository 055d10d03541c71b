#include "tray/tray_text.h"

#include <gtest/gtest.h>

// The hidden window's Wine test sees the tooltip with a version.
TEST(FormatUpdateTooltip, WithoutAVersionNamesNone) {
  EXPECT_EQ(FormatUpdateTooltip(UpdateManifest{}),
            L"Update available - open tray menu and choose Update.");
}

TEST(FitToField, CutsSilentlyToTheFieldNeverSplittingACharacter) {
  EXPECT_EQ(FitToField(std::wstring(300, L'x'), 128), std::wstring(127, L'x'));
  EXPECT_EQ(FitToField(std::wstring(127, L'x'), 128), std::wstring(127, L'x'));
  EXPECT_EQ(FitToField(L"abc", 0), L"");
  std::wstring text(126, L'a');
  // With 16-bit text the emoji's pair would straddle the cut and is dropped whole; with 32-bit
  // text the emoji is one unit and fits.
  text += sizeof(wchar_t) == 2 ? L"\xD83D\xDE00" : L"\U0001F600b";
  EXPECT_EQ(FitToField(text, 128), text.substr(0, sizeof(wchar_t) == 2 ? 126 : 127));
}
