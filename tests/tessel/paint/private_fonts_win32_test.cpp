// Private fonts under Wine. The fonts are copies of a real TrueType font whose family is renamed
// to one no system has, so that whether GDI can enumerate the family shows whether that very
// file was loaded: Wine sees the machine's fontconfig fonts anyway, the original family included.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "tessel/paint/gdi_canvas_win32.h"
#include "tessel/paint/private_fonts_win32.h"

namespace tessel {
namespace {

namespace fs = std::filesystem;

std::string readBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeBytes(const fs::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary | std::ios::trunc) << bytes;
}

// DejaVu Sans (from fonts-dejavu-core, through Wine's drive Z:) with "DejaVu" replaced by `six`
// (six letters, so that no offset moves) in the one-byte Macintosh names and the UTF-16 Windows
// names of its name table. The table checksums go stale: font loaders don't check them.
std::string renamedFont(const std::string& six) {
  const auto bigEndian = [](const std::string& bytes, size_t at, size_t size) {
    uint32_t value = 0;
    for (size_t i = 0; i < size; ++i)
      value = (value << 8) | static_cast<uint8_t>(bytes[at + i]);
    return value;
  };
  std::string font = readBytes(L"Z:\\usr\\share\\fonts\\truetype\\dejavu\\DejaVuSans.ttf");
  size_t name = 0;
  for (size_t i = 0; font.size() > 12 && i < bigEndian(font, 4, 2); ++i)
    if (font.compare(12 + 16 * i, 4, "name") == 0) name = 12 + 16 * i;
  if (name == 0) return std::string();
  const size_t offset = bigEndian(font, name + 8, 4), end = offset + bigEndian(font, name + 12, 4);
  const auto utf16 = [](const std::string& ascii) {
    std::string text;
    for (char c : ascii)
      text += std::string{'\0', c};
    return text;
  };
  for (const auto& [old, replacement] :
       {std::pair{std::string("DejaVu"), six}, std::pair{utf16("DejaVu"), utf16(six)}}) {
    for (size_t at = font.find(old, offset); at != std::string::npos && at + old.size() <= end;
         at = font.find(old, at + old.size()))
      font.replace(at, old.size(), replacement);
  }
  return font;
}

// Whether GDI knows a font of `family` in this process.
bool familyKnown(const std::wstring& family) {
  HDC dc = CreateCompatibleDC(nullptr);
  LOGFONTW query{};
  query.lfCharSet = DEFAULT_CHARSET;
  family.copy(query.lfFaceName, LF_FACESIZE - 1);
  bool found = false;
  EnumFontFamiliesExW(
      dc, &query,
      [](const LOGFONTW*, const TEXTMETRICW*, DWORD, LPARAM seen) -> int {
        *reinterpret_cast<bool*>(seen) = true;
        return 0;
      },
      reinterpret_cast<LPARAM>(&found), 0);
  DeleteDC(dc);
  return found;
}

fs::path freshTempFolder(const wchar_t* name) {
  wchar_t temp[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temp);
  const fs::path folder = fs::path(temp) / (name + std::to_wstring(GetCurrentProcessId()));
  std::error_code ignored;
  fs::remove_all(folder, ignored);
  fs::create_directories(folder);
  return folder;
}

TEST(PrivateFonts, LoadsTheFontFilesOfTheFolderAndReleasesThem) {
  const fs::path folder = freshTempFolder(L"stayhold-private-fonts-");
  const std::string font = renamedFont("Tessel");
  ASSERT_GT(font.size(), 100000u) << "fonts-dejavu-core is needed";
  writeBytes(folder / L"X.TTF", font);
  const char damaged[] = "\x00\x01\x00\x00 a TrueType tag, then garbage";
  writeBytes(folder / L"broken.ttf", std::string(damaged, sizeof(damaged) - 1));
  ASSERT_FALSE(familyKnown(L"Tessel Sans"));
  // The damaged file is skipped because it fails to load, not because it was never tried.
  EXPECT_EQ(AddFontResourceExW((folder / L"broken.ttf").c_str(), FR_PRIVATE, nullptr), 0);

  const std::vector<std::wstring> loaded = loadPrivateFontsFrom(folder.wstring());

  EXPECT_EQ(loaded, std::vector<std::wstring>{(folder / L"X.TTF").wstring()});
  EXPECT_TRUE(familyKnown(L"Tessel Sans"));
  EXPECT_EQ(releasePrivateFonts(loaded), 1u);
  EXPECT_FALSE(familyKnown(L"Tessel Sans"));
  EXPECT_EQ(releasePrivateFonts(loaded), 0u);  // already released
  fs::remove_all(folder);
  EXPECT_TRUE(loadPrivateFontsFrom(folder.wstring()).empty());  // a missing folder
}

// The canvas's first font loads the folder "fonts" beside the program. That happens once per
// process, so a fresh process of this program runs the check below (disabled in the suite).
TEST(PrivateFonts, TheFirstCanvasFontLoadsTheFolderBesideTheProgram) {
  wchar_t program[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, program, MAX_PATH);
  const fs::path fonts = fs::path(program).parent_path() / L"fonts";
  ASSERT_FALSE(fs::exists(fonts)) << "left by another run: " << fonts;
  const std::string font = renamedFont("Beside");
  ASSERT_GT(font.size(), 100000u) << "fonts-dejavu-core is needed";
  fs::create_directories(fonts);
  writeBytes(fonts / L"Beside.ttf", font);

  const fs::path output = freshTempFolder(L"stayhold-font-child-") / L"output.txt";
  const std::wstring command = L"\"\"" + std::wstring(program) +
                               L"\" --gtest_also_run_disabled_tests"
                               L" --gtest_filter=PrivateFontsInAFreshProcess.* > \"" +
                               output.wstring() + L"\" 2>&1\"";
  const int code = _wsystem(command.c_str());
  std::error_code ignored;
  fs::remove_all(fonts, ignored);
  const std::string report = readBytes(output);
  EXPECT_EQ(code, 0) << report;
  EXPECT_NE(report.find("[  PASSED  ] 1 test"), std::string::npos) << "no check ran";
  fs::remove_all(output.parent_path(), ignored);
}

TEST(PrivateFontsInAFreshProcess, DISABLED_FirstFontLoadsTheFolderBesideTheProgram) {
  EXPECT_FALSE(familyKnown(L"Beside Sans"));  // nothing is loaded before the first font
  HDC dc = CreateCompatibleDC(nullptr);
  {
    GdiCanvas canvas(dc, Size{16, 16});
    EXPECT_GT(canvas.measureText(L"x", TextStyle{}).width, 0);
  }
  DeleteDC(dc);
  EXPECT_TRUE(familyKnown(L"Beside Sans"));
}

}  // namespace
}  // namespace tessel
