// Image files through the Windows Imaging Component: the shipped PNG images decode to the right
// size and premultiplied pixels, damaged files give an empty image, and the title bar loads them
// through the same path.
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
#include "tests/support/source_files.h"

namespace tessel {
namespace {

std::wstring Asset(const std::string& name) {
  return SourceFile("assets/" + name).make_preferred().wstring();
}

// Expected values from a native decode of the PNG (inflate and the row filters), then
// (c * a + 127) / 255 per colour channel: clear, (196, 43, 28) at 90, the plate, the cross.
TEST(LoadImageFileWin32, ShippedPngsDecodePremultiplied) {
  const int kPixels[][6] = {{0, 0, 0, 0, 0, 0},
                            {2, 0, 10, 15, 69, 90},
                            {5, 0, 28, 43, 196, 255},
                            {18, 11, 255, 255, 255, 255}};  // x, y, then B, G, R, A
  Image image;
  ASSERT_TRUE(loadImageFile(Asset("stayhold_chrome_close_hot.png"), image));
  EXPECT_EQ(image.width, 36);
  EXPECT_EQ(image.height, 22);
  for (const auto& p : kPixels) {
    // A decoder may round a premultiplied channel either way; opaque and clear are exact.
    const int tolerance = (p[5] == 0 || p[5] == 255) ? 0 : 1;
    for (int channel = 0; channel < 4; ++channel)
      EXPECT_NEAR(image.pixel(p[0], p[1])[channel], p[2 + channel], tolerance)
          << "(" << p[0] << ", " << p[1] << ") channel " << channel;
  }
  const ChromeButtonImages chrome =
      chromeButtonImages(SourceFile("assets").make_preferred().wstring(), L"stayhold_chrome_close");
  EXPECT_EQ(*chrome.hot.pixels, *image.pixels);
  int count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(SourceFile("assets"))) {
    if (entry.path().extension() != ".png") continue;
    EXPECT_TRUE(loadImageFile(entry.path().wstring(), image) && !image.empty()) << entry.path();
    ++count;
  }
  EXPECT_GT(count, 20);
}

TEST(LoadImageFileWin32, DamagedOrMissingFilesGiveAnEmptyImage) {
  std::ifstream source(SourceFile("assets/stayhold_check_updates.png"), std::ios::binary);
  const std::string png((std::istreambuf_iterator<char>(source)), {});
  ASSERT_GT(png.size(), 200u);
  const std::filesystem::path damaged =
      std::filesystem::temp_directory_path() / L"stayhold_damaged.png";
  std::ofstream(damaged, std::ios::binary) << png.substr(0, png.size() / 2);  // cut in the pixels
  for (const std::wstring& path :
       {damaged.wstring(), Asset("no_such_image.png"), std::wstring(), Asset("")}) {
    Image image = Image::blank(2, 2);  // a failed load must not leave an old image behind
    EXPECT_FALSE(loadImageFile(path, image)) << path.size();
    EXPECT_TRUE(image.empty()) << path.size();
  }
  std::filesystem::remove(damaged);
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

}  // namespace
}  // namespace tessel
