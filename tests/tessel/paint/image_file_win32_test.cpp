// Image files through the Windows Imaging Component: the shipped PNG images decode to the right
// size and premultiplied pixels, damaged files give an empty image, and skins and the title bar
// load them through the same path.
#include <windows.h>
#include <objbase.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "tessel/paint/chrome_glyphs.h"
#include "tessel/paint/image_file.h"
#include "tessel/skin/json_value.h"
#include "tessel/skin/property_table.h"
#include "tessel/skin/style_record.h"
#include "tessel/skin/surface_parser.h"
#include "tests/support/source_files.h"

namespace tessel {
namespace {

std::wstring Asset(const std::string& name) {
  return SourceFile("assets/" + name).make_preferred().wstring();
}

const std::wstring kAssets = SourceFile("assets").make_preferred().wstring();

// Expected values from a native decode of each PNG (inflate and the row filters), then
// (c * a + 127) / 255 per colour channel.
TEST(LoadImageFileWin32, ShippedPngsDecodePremultiplied) {
  const struct {
    const char* file;
    int width, height;
    std::vector<std::vector<int>> pixels;  // x, y, then premultiplied B, G, R, A
  } kCases[] = {
      {"stayhold_chrome_close_hot.png",
       36,
       22,  // clear, (196, 43, 28) at 90, the plate, the cross
       {{0, 0, 0, 0, 0, 0},
        {2, 0, 10, 15, 69, 90},
        {5, 0, 28, 43, 196, 255},
        {18, 11, 255, 255, 255, 255}}},
      {"stayhold_check_updates.png",
       28,
       28,  // (226, 244, 240) at alphas 22 and 26
       {{9, 1, 21, 21, 19, 22}, {12, 7, 240, 244, 226, 255}, {14, 14, 24, 25, 23, 26}}},
  };
  for (const auto& c : kCases) {
    Image image;
    ASSERT_TRUE(loadImageFile(Asset(c.file), image)) << c.file;
    EXPECT_EQ(image.width, c.width) << c.file;
    EXPECT_EQ(image.height, c.height) << c.file;
    for (const auto& p : c.pixels) {
      // A decoder may round a premultiplied channel either way; opaque and clear are exact.
      const int tolerance = (p[5] == 0 || p[5] == 255) ? 0 : 1;
      for (int channel = 0; channel < 4; ++channel)
        EXPECT_NEAR(image.pixel(p[0], p[1])[channel], p[2 + channel], tolerance)
            << c.file << " (" << p[0] << ", " << p[1] << ") channel " << channel;
    }
  }
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("assets"))) {
    if (entry.path().extension() != ".png") continue;
    Image image;
    EXPECT_TRUE(loadImageFile(entry.path().wstring(), image) && !image.empty()) << entry.path();
    ++count;
  }
  EXPECT_EQ(count, 24);  // every shipped image
}

TEST(LoadImageFileWin32, DamagedOrMissingFilesGiveAnEmptyImage) {
  std::ifstream source(SourceFile("assets/stayhold_check_updates.png"), std::ios::binary);
  const std::string png((std::istreambuf_iterator<char>(source)), {});
  ASSERT_GT(png.size(), 200u);
  wchar_t folder[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, folder);
  const std::filesystem::path damaged = std::filesystem::path(folder) / L"stayhold_damaged.png";
  const std::string kCases[] = {png.substr(0, png.size() / 2),  // cut inside the pixel data
                                "not an image at all\r\n"};
  for (const std::string& bytes : kCases) {
    std::ofstream(damaged, std::ios::binary) << bytes;
    Image image = Image::blank(2, 2);  // a failed load must not leave an old image behind
    EXPECT_FALSE(loadImageFile(damaged.wstring(), image)) << bytes.size();
    EXPECT_TRUE(image.empty()) << bytes.size();
  }
  std::filesystem::remove(damaged);
  for (const std::wstring& path : {Asset("no_such_image.png"), std::wstring(), kAssets}) {
    Image image = Image::blank(2, 2);
    EXPECT_FALSE(loadImageFile(path, image));
    EXPECT_TRUE(image.empty());
  }
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

TEST(ImageFilesWin32, SkinsAndTheTitleBarLoadBesideTheirFolder) {
  // The shipped title bar images are used as they are.
  const ChromeButtonImages images = chromeButtonImages(kAssets, L"stayhold_chrome_restore");
  const std::string name = "stayhold_chrome_restore";
  for (const auto& [image, file] :
       {std::pair{&images.normal, name + ".png"}, std::pair{&images.hot, name + "_hot.png"},
        std::pair{&images.pressed, name + "_pressed.png"},
        std::pair{&images.disabled, name + "_disabled.png"}}) {
    Image loaded;
    ASSERT_TRUE(loadImageFile(Asset(file), loaded)) << file;
    ASSERT_FALSE(image->empty()) << file;
    EXPECT_EQ(*image->pixels, *loaded.pixels) << file;
  }
  // A skin's image and mask load beside the skin.
  JsonValue value;
  ASSERT_TRUE(
      parseJsonText(L"{\"image\": {\"path\": \"stayhold_check_updates.png\"}, "
                    L"\"mask\": \"stayhold_chrome_close.png\"}",
                    value));
  PropertyTable table;
  flattenProperties(value, L"", table);
  const Theme theme;
  SurfaceStyle surface;
  parseSurfaceStyle(StyleReader(table, L"", StyleContext{&theme, kAssets}), surface);
  EXPECT_EQ(surface.image.width, 28);
  EXPECT_EQ(surface.mask.width, 36);
  EXPECT_TRUE(surface.useSkinAlphaHitTest);
  EXPECT_EQ(surface.geometryMode, GeometryMode::MaskAlphaLayout);
}

}  // namespace
}  // namespace tessel
