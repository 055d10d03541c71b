#include "tray/tray_text.h"

#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "i18n/language.h"
#include "i18n/string_table.h"
#include "tests/support/fake_platform.h"

namespace {

UpdateManifest Manifest(const wchar_t* version) {
  UpdateManifest manifest;
  manifest.version = version;
  return manifest;
}

TEST(FormatUpdateTooltip, VersionOnlyWhenKnown) {
  EXPECT_EQ(FormatUpdateTooltip(Manifest(L"1.2.0")),
            L"Update available 1.2.0 - open tray menu and choose Update.");
  EXPECT_EQ(FormatUpdateTooltip(Manifest(L"")),
            L"Update available - open tray menu and choose Update.");
  AppConfig().language = L"cs-CZ";
  EXPECT_EQ(FormatUpdateTooltip(Manifest(L"1.2.0")),
            L"K dispozici je aktualizace 1.2.0 - otevřete nabídku v oznamovací oblasti a zvolte "
            L"Aktualizovat.");
}

TEST(TrayTooltipText, AKnownUpdateReplacesTheStatus) {
  const GuardStatus blocking{true, true, false, L"P", L""};
  EXPECT_EQ(TrayTooltipText(blocking, std::nullopt), L"Stayhold: blocking planned restarts");
  EXPECT_EQ(TrayTooltipText(blocking, Manifest(L"2.0")),
            L"Update available 2.0 - open tray menu and choose Update.");
}

TEST(FitToField, CutsSilentlyToTheField) {
  const std::wstring long_text(300, L'x');
  EXPECT_EQ(FitToField(long_text, 128).size(), 127u);
  EXPECT_EQ(FitToField(long_text, 64).size(), 63u);
  EXPECT_EQ(FitToField(L"short", 128), L"short");
  EXPECT_EQ(FitToField(std::wstring(127, L'y'), 128).size(), 127u);
  EXPECT_EQ(FitToField(L"abc", 0), L"");
}

TEST(FitToField, NeverSplitsACharacter) {
  std::wstring text(126, L'a');
  if (sizeof(wchar_t) == 2) {
    text += static_cast<wchar_t>(0xD83D);  // the emoji as a surrogate pair
    text += static_cast<wchar_t>(0xDE00);
  } else {
    text += static_cast<wchar_t>(0x1F600);
    text += L'b';
  }
  // With 16-bit text the pair would straddle the cut and is dropped whole; with 32-bit text the
  // emoji is one unit and fits.
  EXPECT_EQ(FitToField(text, 128), text.substr(0, sizeof(wchar_t) == 2 ? 126 : 127));
}

TEST(FitToField, LongLocalizedTooltipFits) {
  AppConfig().language = L"ta-IN";
  const GuardStatus window{true, false, true, L"P",
                           L"\x0BB5\x0BC6\x0BB3\x0BCD\x0BB3\x0BBF 22:00-02:00 (overnight)"};
  const std::wstring tip = FitToField(TrayTooltipText(window, std::nullopt), 128);
  EXPECT_LE(tip.size(), 127u);
  EXPECT_EQ(tip.compare(0, 5, std::wstring(kStringTable[26].cells[LanguageColumnIndex(L"ta")], 5)),
            0);
}

}  // namespace
