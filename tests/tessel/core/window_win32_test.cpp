// A control tree in a real top-level window under the system: creation, the first layout, clicks
// and capture through messages, the tooltip on the timer, the custom frame's hit test, size
// limits, the skin's region, and a frame painted through the back buffer with GDI text.
#include "tessel/core/window_win32.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <tuple>
#include <utility>

#include "tessel/paint/surface_painter.h"
#include "tests/tessel/controls/control_fixtures.h"

namespace tessel {
namespace {

// Counts presses and clicks; with a style, paints that surface with a line of text.
class SurfaceBox : public Control {
 public:
  SurfaceBox(Rect bounds, SurfaceStyle surface = {}, TextStyle text = {})
      : Control(L"box", bounds), surface_(std::move(surface)), text_(std::move(text)) {}
  void mouseDown() override { ++downs; }
  void clicked() override { ++clicks; }
  void paint(Canvas& canvas, Point origin) override {
    const Rect r{origin.x + bounds().x, origin.y + bounds().y, bounds().width, bounds().height};
    drawSurface(canvas, r, surface_);
    canvas.drawText(L"Restart windows", r, text_, text_.color, kTextCenter | kTextMiddle);
  }
  int downs = 0, clicks = 0;

 private:
  SurfaceStyle surface_;
  TextStyle text_;
};

HWND Create(Win32WindowPlatform& native, Size client) {
  NativeWindowOptions options;
  options.instance = GetModuleHandleW(nullptr);
  options.clientSize = client;
  options.quitOnDestroy = false;  // the test thread has no loop to end
  return native.create(options) ? native.hwnd() : nullptr;
}

TEST(WindowWin32, CreatesTheClassOnceLaysOutTheTreeAndTakesClicks) {
  Window window, second;
  auto* box = window.rootPanel().add<SurfaceBox>(Rect{20, 20, 80, 40});
  box->setTooltip(L"Allows restarts in this window");
  window.setTooltipDelay(0);
  Win32WindowPlatform native(window), secondNative(second);
  const HWND hwnd = Create(native, {320, 200});
  ASSERT_NE(hwnd, nullptr);
  ASSERT_NE(Create(secondNative, {200, 120}), nullptr);  // the class exists: still fine
  RECT client{};
  GetClientRect(hwnd, &client);
  EXPECT_EQ((std::pair{client.right, client.bottom}), (std::pair<LONG, LONG>{320, 200}));
  EXPECT_EQ(window.rootPanel().bounds(), (Rect{0, 0, 320, 200}));  // a custom frame: all client

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
}

TEST(WindowWin32, CustomFrameSizeLimitsAndTheSkinsRegion) {
  Window window;
  WindowStyle style;
  style.resizeBorderThickness = 6;
  style.surface.shape = ShapeKind::Octagon;
  window.setWindowStyle(style);
  window.setMinimumClientSize(Size{500, 400});
  Win32WindowPlatform native(window);
  const HWND hwnd = Create(native, {600, 450});
  ASSERT_NE(hwnd, nullptr);
  for (const auto& [x, y, hit] : {std::tuple{1, 1, HTTOPLEFT}, {300, 200, HTCLIENT}}) {
    POINT p{x, y};
    ClientToScreen(hwnd, &p);
    EXPECT_EQ(SendMessageW(hwnd, WM_NCHITTEST, 0, MAKELPARAM(p.x, p.y)), hit) << x;
  }
  MINMAXINFO info{};
  SendMessageW(hwnd, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
  EXPECT_EQ((std::pair{info.ptMinTrackSize.x, info.ptMinTrackSize.y}),
            (std::pair<LONG, LONG>{500, 400}));
  // Dragging the left edge too far: the left side stops, the right stays.
  RECT proposed{300, 100, 500, 600};
  EXPECT_EQ(SendMessageW(hwnd, WM_SIZING, WMSZ_LEFT, reinterpret_cast<LPARAM>(&proposed)), 1);
  EXPECT_EQ((std::pair{proposed.left, proposed.right}), (std::pair<LONG, LONG>{0, 500}));

  HRGN region = CreateRectRgn(0, 0, 0, 0);
  ASSERT_EQ(GetWindowRgn(hwnd, region), COMPLEXREGION);
  EXPECT_FALSE(PtInRegion(region, 0, 0));  // the cut corner
  EXPECT_TRUE(PtInRegion(region, 300, 0));
  DeleteObject(region);
}

TEST(WindowWin32, PaintsThroughTheBackBufferWithGdiText) {
  TextStyle text = PlainText(rgbColor(250, 200, 40));  // red and blue swapped would show
  text.pointSize = 14;
  Window window;
  window.rootPanel().add<SurfaceBox>(Rect{20, 20, 280, 110}, FlatSurface(rgbColor(20, 40, 60)),
                                     text);
  Win32WindowPlatform native(window);
  const HWND hwnd = Create(native, {320, 200});
  ASSERT_NE(hwnd, nullptr);
  // The frame as the window prints it, hidden (the screen may be covered by other windows).
  HDC memory = CreateCompatibleDC(nullptr);
  BITMAPINFO info{};
  info.bmiHeader = {sizeof(info.bmiHeader), 320, -200, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
  void* bits = nullptr;
  HGDIOBJ previous =
      SelectObject(memory, CreateDIBSection(memory, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  SendMessageW(hwnd, WM_PRINTCLIENT, reinterpret_cast<WPARAM>(memory), PRF_CLIENT);
  EXPECT_EQ(GetPixel(memory, 25, 25), RGB(20, 40, 60));
  int textPixels = 0;
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 320; ++x) {
      const COLORREF c = GetPixel(memory, x, y);
      textPixels += std::abs(GetRValue(c) - 250) + std::abs(GetGValue(c) - 200) +
                        std::abs(GetBValue(c) - 40) <
                    60;
    }
  EXPECT_GT(textPixels, 40);
  DeleteObject(SelectObject(memory, previous));
  DeleteDC(memory);
}

}  // namespace
}  // namespace tessel
