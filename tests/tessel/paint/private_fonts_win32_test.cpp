// Private fonts under Wine. The fonts are copies of a real TrueType font whose family is renamed
// to one no system has, so that whether GDI can enumerate the family shows whether that very
// file was loaded: Wine sees the machine's fontconfig fonts anyway, the original family included.
#include <windows.h>

#include <gtest/gtest.h>

#include <cstdint>
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

uint32_t bigEndian(const std::string& bytes, size_t at, size_t size) {
  uint32_t value = 0;
  for (size_t i = 0; i < size; ++i)
    value = (value << 8) | static_cast<uint8_t>(bytes[at + i]);
  return value;
}

void putBigEndian32(std::string& bytes, size_t at, uint32_t value) {
  for (size_t i = 0; i < 4; ++i)
    bytes[at + i] = static_cast<char>(value >> (24 - 8 * i));
}

// The OpenType checksum: the sum of big-endian 32-bit words, the tail padded with zeros.
uint32_t checksum(std::string part) {
  part.resize((part.size() + 3) / 4 * 4, '\0');
  uint32_t sum = 0;
  for (size_t i = 0; i < part.size(); i += 4)
    sum += bigEndian(part, i, 4);
  return sum;
}

// DejaVu Sans (from fonts-dejavu-core, through Wine's drive Z:) with "DejaVu" replaced by `six`
// (six letters, so that no offset moves) in every name, in the one-byte Macintosh names and the
// UTF-16 Windows names. Checksums are kept right.
std::string renamedFont(const std::string& six) {
  std::string font = readBytes(L"Z:\\usr\\share\\fonts\\truetype\\dejavu\\DejaVuSans.ttf");
  size_t name = 0, head = 0;
  for (size_t i = 0; font.size() > 12 && i < bigEndian(font, 4, 2); ++i) {
    if (font.compare(12 + 16 * i, 4, "name") == 0) name = 12 + 16 * i;
    if (font.compare(12 + 16 * i, 4, "head") == 0) head = 12 + 16 * i;
  }
  if (name == 0 || head == 0) return std::string();
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
  putBigEndian32(font, name + 4, checksum(font.substr(offset, end - offset)));
  const size_t adjustment = bigEndian(font, head + 8, 4) + 8;
  putBigEndian32(font, adjustment, 0);
  putBigEndian32(font, adjustment, 0xB1B0AFBA - checksum(font));
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

// The face GDI maps a request for `family` at `height` pixels to. Wine keeps the mapping of a
// request it has already realized, even across loading and releasing fonts: each check that
// must see a change asks for a height not asked for before.
std::wstring faceFor(const std::wstring& family, int height) {
  HDC dc = CreateCompatibleDC(nullptr);
  HFONT font = CreateFontW(-height, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET,
                           OUT_DEFAULT_PRECIS, CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH,
                           family.c_str());
  HGDIOBJ previous = SelectObject(dc, font);
  wchar_t face[LF_FACESIZE] = {};
  GetTextFaceW(dc, LF_FACESIZE, face);
  SelectObject(dc, previous);
  DeleteObject(font);
  DeleteDC(dc);
  return face;
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
  writeBytes(folder / L"notes.txt", renamedFont("Ledger"));
  fs::create_directories(folder / L"nested");
  writeBytes(folder / L"nested" / L"inner.ttf", renamedFont("Nested"));
  for (const wchar_t* family : {L"Tessel Sans", L"Ledger Sans", L"Nested Sans"})
    ASSERT_FALSE(familyKnown(family)) << "already known: " << testing::PrintToString(family);
  // The damaged file is skipped because it fails to load, not because it was never tried.
  EXPECT_EQ(AddFontResourceExW((folder / L"broken.ttf").c_str(), FR_PRIVATE, nullptr), 0);

  const std::vector<std::wstring> loaded = loadPrivateFontsFrom(folder.wstring());

  EXPECT_EQ(loaded, std::vector<std::wstring>{(folder / L"X.TTF").wstring()});
  EXPECT_TRUE(familyKnown(L"Tessel Sans"));
  EXPECT_EQ(faceFor(L"Tessel Sans", 12), L"Tessel Sans");
  EXPECT_FALSE(familyKnown(L"Ledger Sans"));  // not a font extension
  EXPECT_FALSE(familyKnown(L"Nested Sans"));  // subfolders are not read
  EXPECT_EQ(releasePrivateFonts(loaded), 1u);
  EXPECT_FALSE(familyKnown(L"Tessel Sans"));
  EXPECT_NE(faceFor(L"Tessel Sans", 13), L"Tessel Sans");
  EXPECT_EQ(releasePrivateFonts(loaded), 0u);  // already released
  // A missing folder, or an empty one, loads nothing.
  fs::remove_all(folder);
  EXPECT_TRUE(loadPrivateFontsFrom(folder.wstring()).empty());
  fs::create_directories(folder);
  EXPECT_TRUE(loadPrivateFontsFrom(folder.wstring()).empty());
  fs::remove_all(folder);
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
  SECURITY_ATTRIBUTES inherit{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  HANDLE file = CreateFileW(output.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherit, CREATE_ALWAYS,
                            FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(file, INVALID_HANDLE_VALUE);
  STARTUPINFOW startup{};
  startup.cb = sizeof(startup);
  startup.dwFlags = STARTF_USESTDHANDLES;
  startup.hStdOutput = startup.hStdError = file;
  std::wstring command = L"\"" + std::wstring(program) +
                         L"\" --gtest_also_run_disabled_tests"
                         L" --gtest_filter=PrivateFontsInAFreshProcess.*";
  PROCESS_INFORMATION child{};
  const bool started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &startup, &child);
  CloseHandle(file);
  DWORD code = 0xFFFFFFFF;
  if (started) {
    WaitForSingleObject(child.hProcess, 60000);
    GetExitCodeProcess(child.hProcess, &code);
    CloseHandle(child.hProcess);
    CloseHandle(child.hThread);
  }
  std::error_code ignored;
  fs::remove_all(fonts, ignored);
  ASSERT_TRUE(started);
  const std::string report = readBytes(output);
  EXPECT_EQ(code, 0u) << report;
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
  EXPECT_EQ(faceFor(L"Beside Sans", 12), L"Beside Sans");
}

}  // namespace
}  // namespace tessel
