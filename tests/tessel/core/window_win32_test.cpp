// A control tree in a real top-level window under the system: class and creation, the first
// layout, clicks and capture through messages, the tooltip on the timer, the custom frame's hit
// test, size limits, the skin's region, and a skinned frame painted through the back buffer.
#include "tessel/core/window_win32.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "tessel/paint/surface_painter.h"
#include "tessel/skin/style_sheet.h"
#include "tests/support/shipped_skins.h"

namespace tessel {
namespace {

class CountingBox : public Control {
 public:
  using Control::Control;
  void mouseDown() override { ++downs; }
  void clicked() override { ++clicks; }
  int downs = 0, clicks = 0;
};

// A surface of the skin with a line of text, as the dialogs' controls paint them.
class SurfaceBox : public Control {
 public:
  SurfaceBox(std::wstring id, Rect bounds, SurfaceStyle surface, TextStyle text)
      : Control(std::move(id), bounds), surface_(std::move(surface)), text_(std::move(text)) {}
  void paint(Canvas& canvas, Point origin) override {
    const Rect r{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
    drawSurface(canvas, r, surface_);
    canvas.drawText(L"Restart windows", r, text_, text_.color, kTextCenter | kTextMiddle);
  }

 private:
  SurfaceStyle surface_;
  TextStyle text_;
};

NativeWindowOptions Options(Size client) {
  NativeWindowOptions options;
  options.instance = GetModuleHandleW(nullptr);
  options.title = L"Tessel window test";
  options.clientSize = client;
  options.quitOnDestroy = false;  // the test thread has no loop to end
  return options;
}

LRESULT HitAt(HWND hwnd, int x, int y) {
  POINT p{x, y};
  ClientToScreen(hwnd, &p);
  return SendMessageW(hwnd, WM_NCHITTEST, 0, MAKELPARAM(p.x, p.y));
}

TEST(WindowWin32, CreatesTheClassOnceLaysOutTheTreeAndTakesClicks) {
  Window window, second;
  auto* box = window.rootPanel().add<CountingBox>(L"box", Rect{20, 20, 80, 40});
  box->setTooltip(L"Allows restarts in this window");
  window.setTooltipDelay(0);
  Win32WindowPlatform native(window), secondNative(second);
  ASSERT_TRUE(native.create(Options({320, 200})));
  ASSERT_TRUE(secondNative.create(Options({200, 120})));  // the class exists: still fine
  const HWND hwnd = native.hwnd();
  wchar_t name[64] = {};
  GetClassNameW(hwnd, name, 64);
  EXPECT_STREQ(name, L"TesselDesignWindow");
  RECT client{};
  GetClientRect(hwnd, &client);
  EXPECT_EQ(client.right, 320);  // a custom frame: the client area is the whole window
  EXPECT_EQ(client.bottom, 200);
  EXPECT_EQ(window.rootPanel().bounds(), (Rect{0, 0, 320, 200}));

  SendMessageW(hwnd, WM_MOUSEMOVE, 0, MAKELPARAM(30, 30));
  EXPECT_EQ(window.hotControl(), box);
  SendMessageW(hwnd, WM_TIMER, Win32WindowPlatform::kTimerId, 0);
  EXPECT_TRUE(window.tooltipShown());
  SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 30));
  EXPECT_EQ(box->downs, 1);
  EXPECT_EQ(GetCapture(), hwnd);
  SendMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(35, 35));
  EXPECT_EQ(box->clicks, 1);
  EXPECT_EQ(GetCapture(), nullptr);
  SendMessageW(hwnd, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(30, 30));
  SendMessageW(hwnd, WM_LBUTTONUP, 0, MAKELPARAM(200, 150));  // released elsewhere: no click
  EXPECT_EQ(box->downs, 2);
  EXPECT_EQ(box->clicks, 1);
}

TEST(WindowWin32, CustomFrameSizeLimitsAndTheSkinsRegion) {
  Window window;
  WindowStyle style;
  style.resizeBorderThickness = 6;
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  window.setMinimumClientSize(Size{500, 400});
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({600, 450})));
  const HWND hwnd = native.hwnd();
  EXPECT_EQ(HitAt(hwnd, 2, 200), HTLEFT);
  EXPECT_EQ(HitAt(hwnd, 1, 1), HTTOPLEFT);
  EXPECT_EQ(HitAt(hwnd, 597, 447), HTBOTTOMRIGHT);
  EXPECT_EQ(HitAt(hwnd, 300, 200), HTCLIENT);

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

  HRGN region = CreateRectRgn(0, 0, 0, 0);
  ASSERT_EQ(GetWindowRgn(hwnd, region), COMPLEXREGION);
  EXPECT_FALSE(PtInRegion(region, 0, 0));  // the cut corner
  EXPECT_TRUE(PtInRegion(region, 300, 225));
  EXPECT_TRUE(PtInRegion(region, 300, 0));
  DeleteObject(region);
}

TEST(WindowWin32, PaintsTheSkinThroughTheBackBuffer) {
  const SkinDefinition* skin = ShippedSkin(L"stayhold-tactical-3d");
  ASSERT_NE(skin, nullptr);
  const StyleSheet sheet(*skin);
  Window window;
  window.setWindowStyle(sheet.window());
  const CardStyle& card = sheet.cards.get(L"stayhold-card");
  const ButtonStyle& primary = sheet.buttons.get(L"stayhold-primary");
  window.rootPanel().add<SurfaceBox>(L"card", Rect{20, 20, 280, 110}, card.surface, card.titleText);
  window.rootPanel().add<SurfaceBox>(L"save", Rect{190, 150, 110, 32}, primary.surface.normal,
                                     primary.text);
  Win32WindowPlatform native(window);
  ASSERT_TRUE(native.create(Options({320, 200})));
  const HWND hwnd = native.hwnd();
  ShowWindow(hwnd, SW_SHOWNOACTIVATE);
  UpdateWindow(hwnd);
  MSG msg;
  while (PeekMessageW(&msg, nullptr, 0, 0, PM_REMOVE))
    DispatchMessageW(&msg);

  // The frame as the window prints it (the screen itself may be covered by other windows).
  HDC screen = GetDC(hwnd);
  HDC memory = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(info.bmiHeader), 320, -200, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  uint8_t* bits = nullptr;
  HBITMAP copy =
      CreateDIBSection(memory, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
  HGDIOBJ previous = SelectObject(memory, copy);
  SendMessageW(hwnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
  GdiFlush();
  const std::vector<uint8_t> pixels(bits, bits + 320 * 200 * 4);
  SelectObject(memory, previous);
  DeleteObject(copy);
  DeleteDC(memory);
  ReleaseDC(hwnd, screen);

  const auto colourAt = [&](int x, int y) {
    const uint8_t* p = &pixels[(size_t(y) * 320 + x) * 4];
    return rgbColor(p[2], p[1], p[0]);
  };
  // The button's (accent) fill, the window's ground and the card over it all differ.
  const Color button = colourAt(196, 166);
  const Color ground = colourAt(10, 190);
  EXPECT_NE(button, ground);
  EXPECT_NE(colourAt(30, 60), ground);
  // Text was drawn: the button's middle row holds more than its fill colour.
  int differing = 0;
  for (int x = 200; x < 290; ++x)
    differing += colourAt(x, 166) != button;
  EXPECT_GT(differing, 4);
  // The card's text is drawn in its own (light) colour over the dark card.
  const Color title = card.titleText.color;
  const auto similar = [](uint8_t a, uint8_t b) { return std::abs(int(a) - int(b)) < 40; };
  int nearTitle = 0;
  for (int y = 60; y < 90; ++y)
    for (int x = 60; x < 260; ++x) {
      const Color c = colourAt(x, y);
      nearTitle += similar(redOf(c), redOf(title)) && similar(greenOf(c), greenOf(title)) &&
                   similar(blueOf(c), blueOf(title));
    }
  EXPECT_GT(nearTitle, 40) << std::hex << title << " at 100,75: " << colourAt(100, 75);
}

}  // namespace
}  // namespace tessel
