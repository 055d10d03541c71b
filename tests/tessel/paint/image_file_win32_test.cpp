// Image files through the Windows Imaging Component: the shipped PNG images decode to the right
// size and premultiplied pixels, damaged files give an empty image, and skins and the title bar
// load them through the same path.
#include <windows.h>
#include <objbase.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "tessel/paint/chrome_glyphs.h"
#include "tessel/paint/image_file.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/surface_parser.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

std::wstring Asset(const std::string& name) {
  return SourceFile("assets/" + name).make_preferred().wstring();
}

std::wstring AssetsFolder() {
  return SourceFile("assets").make_preferred().wstring();
}

struct Pixel {
  int x, y;
  int b, g, r, a;  // premultiplied
};

struct PngCase {
  const char* file;
  int width, height;
  std::vector<Pixel> pixels;
};

// Expected values from a native decode of each PNG: zlib inflate and the PNG row filters in a
// few lines of Python, then (c * a + 127) / 255 per colour channel. Reproduce with
//   python3 tests/tessel/paint/png_pixels.py assets/FILE.png X,Y ...
const PngCase kPngCases[] = {
    {"stayhold_chrome_close_hot.png",
     36,
     22,
     {{0, 0, 0, 0, 0, 0},              // clear corner
      {2, 0, 10, 15, 69, 90},          // straight (196, 43, 28) at alpha 90
      {5, 0, 28, 43, 196, 255},        // the red plate
      {18, 11, 255, 255, 255, 255}}},  // the white cross
    {"stayhold_check_updates.png",
     28,
     28,
     {{0, 0, 0, 0, 0, 0},
      {9, 1, 21, 21, 19, 22},  // straight (226, 244, 240) at alpha 22
      {12, 7, 240, 244, 226, 255},
      {14, 14, 24, 25, 23, 26}}},  // straight (226, 244, 240) at alpha 26
    {"stayhold_update_available_pressed.png",
     28,
     28,
     {{9, 1, 42, 43, 40, 45},
      {20, 3, 90, 180, 255, 255},  // the accent badge
      {14, 14, 240, 244, 226, 255},
      {27, 27, 0, 0, 0, 0}}},
    {"stayhold_chrome_restore.png",
     36,
     22,
     {{15, 6, 140, 143, 132, 149},
      {16, 6, 240, 244, 226, 255},
      {13, 8, 190, 193, 179, 202},
      {0, 0, 0, 0, 0, 0}}},
};

TEST(LoadImageFileWin32, ShippedPngsDecodePremultiplied) {
  for (const PngCase& c : kPngCases) {
    Image image;
    ASSERT_TRUE(loadImageFile(Asset(c.file), image)) << c.file;
    EXPECT_EQ(image.width, c.width) << c.file;
    EXPECT_EQ(image.height, c.height) << c.file;
    for (const Pixel& p : c.pixels) {
      const uint8_t* got = image.pixel(p.x, p.y);
      const int want[4] = {p.b, p.g, p.r, p.a};
      for (int channel = 0; channel < 4; ++channel) {
        // Opaque and clear pixels are exact; a decoder may round a premultiplied channel either
        // way.
        const int tolerance = (p.a == 0 || p.a == 255) ? 0 : 1;
        EXPECT_NEAR(got[channel], want[channel], tolerance)
            << c.file << " (" << p.x << ", " << p.y << ") channel " << channel;
      }
    }
  }
}

TEST(LoadImageFileWin32, EveryShippedImageLoads) {
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("assets"))) {
    if (entry.path().extension() != ".png") continue;
    Image image;
    EXPECT_TRUE(loadImageFile(entry.path().wstring(), image)) << entry.path().string();
    EXPECT_FALSE(image.empty()) << entry.path().string();
    ++count;
  }
  EXPECT_EQ(count, 24);
}

class TempFile {
 public:
  TempFile(const wchar_t* name, const std::string& bytes) {
    wchar_t folder[MAX_PATH] = {};
    GetTempPathW(MAX_PATH, folder);
    path_ = std::filesystem::path(folder) / name;
    std::ofstream(path_, std::ios::binary) << bytes;
  }
  ~TempFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
  std::wstring path() const { return path_.wstring(); }

 private:
  std::filesystem::path path_;
};

std::string ReadBytes(const std::wstring& path) {
  std::ifstream file(std::filesystem::path(path), std::ios::binary);
  return std::string((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
}

TEST(LoadImageFileWin32, DamagedOrMissingFilesGiveAnEmptyImage) {
  const std::string png = ReadBytes(Asset("stayhold_check_updates.png"));
  ASSERT_GT(png.size(), 200u);
  const struct {
    const char* what;
    std::string bytes;
  } kCases[] = {
      {"cut inside the pixel data", png.substr(0, png.size() / 2)},
      {"only the signature and the header", png.substr(0, 33)},
      {"empty", ""},
      {"text", "not an image at all\r\n"},
  };
  for (const auto& c : kCases) {
    const TempFile file(L"stayhold_damaged.png", c.bytes);
    Image image = Image::blank(2, 2);  // a failed load must not leave an old image behind
    EXPECT_FALSE(loadImageFile(file.path(), image)) << c.what;
    EXPECT_TRUE(image.empty()) << c.what;
  }
  Image image = Image::blank(2, 2);
  EXPECT_FALSE(loadImageFile(Asset("no_such_image.png"), image));
  EXPECT_TRUE(image.empty());
  EXPECT_FALSE(loadImageFile(L"", image));
  EXPECT_FALSE(loadImageFile(AssetsFolder(), image));
}

TEST(LoadImageFileWin32, WorksOnAThreadThatAlreadyRunsCom) {
  // A multithreaded apartment makes the loader's own single-threaded request fail with
  // RPC_E_CHANGED_MODE; it must still load, and leave the thread's COM as it found it.
  bool loaded = false;
  HRESULT after = E_FAIL;
  std::thread worker([&] {
    if (FAILED(CoInitializeEx(nullptr, COINIT_MULTITHREADED))) return;
    Image image;
    loaded = loadImageFile(Asset("stayhold_chrome_close.png"), image) && image.width == 36;
    after = CoInitializeEx(nullptr, COINIT_MULTITHREADED);  // S_FALSE: still initialised
    CoUninitialize();
    CoUninitialize();
  });
  worker.join();
  EXPECT_TRUE(loaded);
  EXPECT_EQ(after, S_FALSE);
}

TEST(ResolveSkinPathWin32, JoinsWithABackslashAndLoads) {
  const std::wstring path = resolveSkinPath(AssetsFolder(), L" stayhold_chrome_close.png ");
  EXPECT_EQ(path, AssetsFolder() + L"\\stayhold_chrome_close.png");
  Image image;
  EXPECT_TRUE(loadImageFile(path, image));
}

TEST(ChromeButtonImagesWin32, ShippedImagesAreUsedAsTheyAre) {
  for (const char* base : {"stayhold_chrome_minimize", "stayhold_chrome_maximize",
                           "stayhold_chrome_restore", "stayhold_chrome_close"}) {
    const std::wstring wide(base, base + std::strlen(base));
    const ChromeButtonImages images = chromeButtonImages(AssetsFolder(), wide);
    const std::string name(base);
    const std::pair<const Image*, std::string> states[] = {
        {&images.normal, name + ".png"},
        {&images.hot, name + "_hot.png"},
        {&images.pressed, name + "_pressed.png"},
        {&images.disabled, name + "_disabled.png"}};
    for (const auto& [image, file] : states) {
      Image loaded;
      ASSERT_TRUE(loadImageFile(Asset(file), loaded)) << file;
      ASSERT_FALSE(image->empty()) << file;
      EXPECT_EQ(*image->pixels, *loaded.pixels) << file;
    }
  }
  // A folder without them gets the drawn stand-ins.
  const ChromeButtonImages drawn =
      chromeButtonImages(SourceFile("tests").make_preferred().wstring(), L"stayhold_chrome_close");
  EXPECT_EQ(*drawn.normal.pixels,
            *chromeGlyphImage(L"stayhold_chrome_close", ChromeButtonState::Normal).pixels);
}

TEST(SurfaceImageKeysWin32, ASkinImageLoadsBesideTheSkin) {
  JsonValue value;
  ASSERT_TRUE(
      parseJsonText(L"{\"image\": {\"path\": \"stayhold_check_updates.png\"}, "
                    L"\"mask\": \"stayhold_chrome_close.png\"}",
                    value));
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  const StyleContext context{&theme, AssetsFolder()};
  SurfaceStyle surface;
  parseSurfaceStyle(StyleReader(table, L"", context), surface);
  EXPECT_EQ(surface.image.width, 28);
  EXPECT_EQ(surface.mask.width, 36);
  EXPECT_TRUE(surface.useSkinAlphaHitTest);
  EXPECT_EQ(surface.geometryMode, GeometryMode::MaskAlphaLayout);
}

}  // namespace
}  // namespace tessel
