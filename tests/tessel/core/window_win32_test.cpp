// A control tree in a real top-level window under the system: class and creation, the first
// layout, clicks and capture through messages, the custom frame's hit test, size limits, the
// skin's region, the tooltip on the timer, and a frame painted through the back buffer and
// read back from the screen (written as a BMP file beside the test program, for looking at).
#include "tessel/core/window_win32.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <vector>

#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

class CountingBox : public Control {
 public:
  CountingBox(std::wstring id, Rect bounds, Color color)
      : Control(std::move(id), bounds), color(color) {}
  void paint(Canvas& canvas, Point origin) override {
    canvas.fillRect(
        Rect{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height}, color);
  }
  void mouseDown() override { ++downs; }
  void clicked() override { ++clicks; }
  Color color;
  int downs = 0;
  int clicks = 0;
};

// A surface of the skin with a line of text, as the dialogs' controls will paint them.
class SurfaceBox : public Control {
 public:
  SurfaceBox(std::wstring id, Rect bounds, SurfaceStyle surface, TextStyle text, std::wstring words)
      : Control(std::move(id), bounds),
        surface_(std::move(surface)),
        text_(std::move(text)),
        words_(std::move(words)) {}
  void paint(Canvas& canvas, Point origin) override {
    const Rect r{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
    drawSurface(canvas, r, surface_);
    canvas.drawText(words_, r, text_, text_.color, kTextCenter | kTextMiddle);
  }

 private:
  SurfaceStyle surface_;
  TextStyle text_;
  std::wstring words_;
};

LPARAM At(int x, int y) {
  return MAKELPARAM(x, y);
}

LPARAM ScreenAt(HWND hwnd, int x, int y) {
  POINT p{x, y};
  ClientToScreen(hwnd, &p);
  return MAKELPARAM(p.x, p.y);
}

NativeWindowOptions Options(Size client) {
  NativeWindowOptions options;
  options.instance = GetModuleHandleW(nullptr);
  options.title = L"Tessel window test";
  options.clientSize = client;
  options.quitOnDestroy = false;  // the test thread has no loop to end
  return options;
}

void Pump() {
  MSG msg;
  while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&msg);
    DispatchMessageW(&msg);
  }
}

TEST(WindowWin32, CreatesTheClassOnceAndLaysOutTheTree) {
  Window first, second;
  Win32WindowPlatform firstNative(first), secondNative(second);
  ASSERT_TRUE(firstNative.create(Options({320, 200})));
  ASSERT_TRUE(secondNative.create(Options({200, 120})));  // the class exists: still fine
  wchar_t name[64] = {};
  GetClassNameW(firstNative.hwnd(), name, 64);
  EXPECT_STREQ(name, L"TesselDesignWindow");
  RECT client{};
  GetClientRect(firstNative.hwnd(), &client);
  // A custom frame: the client area is the whole window.
  EXPECT_EQ(client.right, 320);
  EXPECT_EQ(client.bottom, 200);
  EXPECT_EQ(first.rootPanel().bounds(), (Rect{0, 0, 320, 200}));
  EXPECT_EQ(first.clientSize(), (Size{320, 200}));
}

TEST(WindowWin32, MessagesPressCaptureAndClick) {
  Window window;
  auto* box = window.rootPanel().add<CountingBox>(L"box", Rect{20, 20, 80, 40}, 0x3050A0);
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({240, 160})));
  HWND hwnd = native.hwnd();
  SendMessageW(hwnd, WM_MOUSEMOVE, 0, At(30, 30));
  EXPECT_EQ(window.hotControl(), box);
  SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, At(30, 30));
  EXPECT_EQ(box->downs, 1);
  EXPECT_EQ(GetCapture(), hwnd);
  SendMessageW(hwnd, WM_LBUTTONUP, 0, At(35, 35));
  EXPECT_EQ(box->clicks, 1);
  EXPECT_EQ(GetCapture(), nullptr);
  // Released elsewhere: no click.
  SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, At(30, 30));
  SendMessageW(hwnd, WM_LBUTTONUP, 0, At(200, 150));
  EXPECT_EQ(box->clicks, 1);
  EXPECT_EQ(box->downs, 2);
}

TEST(WindowWin32, CustomFrameBorderAndSizeLimits) {
  Window window;
  WindowStyle style;
  style.resizeBorderThickness = 6;
  window.setWindowStyle(style);
  window.setMinimumClientSize(Size{500, 400});
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({600, 450})));
  HWND hwnd = native.hwnd();
  EXPECT_EQ(SendMessageW(hwnd, WM_NCHITTEST, 0, ScreenAt(hwnd, 2, 200)), HTLEFT);
  EXPECT_EQ(SendMessageW(hwnd, WM_NCHITTEST, 0, ScreenAt(hwnd, 1, 1)), HTTOPLEFT);
  EXPECT_EQ(SendMessageW(hwnd, WM_NCHITTEST, 0, ScreenAt(hwnd, 597, 447)), HTBOTTOMRIGHT);
  EXPECT_EQ(SendMessageW(hwnd, WM_NCHITTEST, 0, ScreenAt(hwnd, 300, 200)), HTCLIENT);

  MINMAXINFO info{};
  info.ptMinTrackSize = POINT{100, 30};
  info.ptMaxTrackSize = POINT{200, 200};
  SendMessageW(hwnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  EXPECT_EQ(info.ptMinTrackSize.x, 500);
  EXPECT_EQ(info.ptMinTrackSize.y, 400);
  EXPECT_GE(info.ptMaxTrackSize.x, info.ptMaxSize.x);

  // Dragging the left edge too far: the left side stops, the right stays.
  RECT proposed{300, 100, 500, 600};
  EXPECT_EQ(SendMessageW(hwnd, WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&proposed)), 1);
  EXPECT_EQ(proposed.left, 0);
  EXPECT_EQ(proposed.right, 500);
}

TEST(WindowWin32, ShapedSkinGivesTheWindowARegion) {
  Window window;
  WindowStyle style;
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({300, 200})));
  HRGN region = CreateRectRgn(0, 0, 0, 0);
  ASSERT_EQ(GetWindowRgn(native.hwnd(), region), COMPLEXREGION);
  EXPECT_FALSE(PtInRegion(region, 0, 0));  // the cut corner
  EXPECT_TRUE(PtInRegion(region, 150, 100));
  EXPECT_TRUE(PtInRegion(region, 150, 0));
  DeleteObject(region);
}

TEST(WindowWin32, TheTimerOpensTheTooltip) {
  Window window;
  auto* box = window.rootPanel().add<CountingBox>(L"box", Rect{20, 20, 80, 40}, 0x3050A0);
  box->setTooltip(L"Allows restarts in this window");
  window.setTooltipDelay(0);
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({240, 160})));
  SendMessageW(native.hwnd(), WM_MOUSEMOVE, 0, At(30, 30));
  EXPECT_FALSE(window.tooltipShown());
  SendMessageW(native.hwnd(), WM_TIMER, Win32WindowPlatform::kTimerId, 0);
  EXPECT_TRUE(window.tooltipShown());
}

// Writes 32-bit top-down pixels as a BMP file.
void WriteBmp(const std::wstring& path, const std::vector<uint8_t>& pixels, int width, int height) {
  BITMAPFILEHEADER file{};
  BITMAPINFOHEADER info{};
  info.biSize = sizeof(info);
  info.biWidth = width;
  info.biHeight = -height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  file.bfType = 0x4D42;
  file.bfOffBits = sizeof(file) + sizeof(info);
  file.bfSize = DWORD(file.bfOffBits + pixels.size());
  std::ofstream out(std::filesystem::path(path), std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof(file));
  out.write(reinterpret_cast<const char*>(&info), sizeof(info));
  out.write(reinterpret_cast<const char*>(pixels.data()), std::streamsize(pixels.size()));
}

TEST(WindowWin32, PaintsTheSkinThroughTheBackBuffer) {
  const SkinDefinition* skin = ShippedSkin(L"stayhold-tactical-3d");
  ASSERT_NE(skin, nullptr);
  const StyleSheet sheet(*skin);
  Window window;
  window.setWindowStyle(sheet.window());
  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  const ButtonStyle& primary = sheet.buttons.get(L"stayhold-primary");
  const ButtonStyle& secondary = sheet.buttons.get(L"stayhold-secondary");
  window.rootPanel().add<SurfaceBox>(L"card", Rect{20, 20, 280, 110}, card.surface, card.titleText,
                                     L"Restart windows");
  window.rootPanel().add<SurfaceBox>(L"save", Rect{190, 150, 110, 32}, primary.surface.normal,
                                     primary.text, L"Save");
  window.rootPanel().add<SurfaceBox>(L"cancel", Rect{70, 150, 110, 32}, secondary.surface.normal,
                                     secondary.text, L"Cancel");
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({320, 200})));
  HWND hwnd = native.hwnd();
  ShowWindow(hwnd, SW_SHOWNOACTIVATE);
  UpdateWindow(hwnd);
  Pump();
  GdiFlush();

  // The frame as the window prints it (the screen itself may be covered by other windows).
  HDC screen = GetDC(hwnd);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = 320;
  info.bmiHeader.biHeight = -200;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  uint8_t* bits = nullptr;
  HBITMAP copy =
      CreateDIBSection(memory, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
  HGDIOBJ previous = SelectObject(memory, copy);
  SendMessageW(hwnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
  GdiFlush();
  std::vector<uint8_t> pixels(bits, bits + 320 * 200 * 4);
  // GDI leaves text pixels with alpha 0; the screen has no alpha, and viewers shouldn't see any.
  for (size_t i = 3; i < pixels.size(); i += 4)
    pixels[i] = 255;
  SelectObject(memory, previous);
  DeleteObject(copy);
  DeleteDC(memory);
  ReleaseDC(hwnd, screen);

  wchar_t exe[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, exe, MAX_PATH);
  std::wstring shot(exe);
  shot = shot.substr(0, shot.find_last_of(L"\\/") + 1) + L"window_frame.bmp";
  WriteBmp(shot, pixels, 320, 200);

  const auto colourAt = [&](int x, int y) {
    const uint8_t* p = &pixels[(size_t(y) * 320 + x) * 4];
    return rgbColor(p[2], p[1], p[0]);
  };
  // The primary button's centre is its (accent) fill, away from the text; the window's
  // ground differs from it; the card lies over the ground.
  const Color button = colourAt(196, 166);
  const Color ground = colourAt(10, 190);
  EXPECT_NE(button, ground);
  EXPECT_NE(colourAt(30, 60), ground);
  // Text was drawn: the button's middle row holds more than its fill colour.
  int differing = 0;
  for (int x = 200; x < 290; ++x)
    differing += colourAt(x, 166) != button;
  EXPECT_GT(differing, 4);
  // The card's title is drawn in its own (light) colour over the dark card.
  int nearTitle = 0;
  const Color title = card.titleText.color;
  for (int y = 60; y < 90; ++y)
    for (int x = 60; x < 260; ++x) {
      const Color c = colourAt(x, y);
      nearTitle += std::abs(int(redOf(c)) - int(redOf(title))) < 40 &&
                   std::abs(int(greenOf(c)) - int(greenOf(title))) < 40 &&
                   std::abs(int(blueOf(c)) - int(blueOf(title))) < 40;
    }
  EXPECT_GT(nearTitle, 40) << std::hex << title << " at 100,75: " << colourAt(100, 75);
}

}  // namespace
}  // namespace tessel
