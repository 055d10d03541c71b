// A control tree painted through a device context: the Windows build's canvas gives the same
// fills, clips, blends and pixel copies as the memory-image canvas the native tests use.
#include <windows.h>

#include <gtest/gtest.h>

#include "tessel/paint/gdi_canvas_win32.h"
#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

// A memory device context over a 32-bit section filled with `ground`, read back directly.
struct MemoryTarget {
  MemoryTarget(int width, int height, Color ground) : width(width), height(height) {
    BITMAPINFO info{{sizeof(BITMAPINFOHEADER), width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0}, {}};
    bitmap =
        CreateDIBSection(dc, &info, DIB_RGB_COLORS, reinterpret_cast<void**>(&bits), nullptr, 0);
    previous = SelectObject(dc, bitmap);
    canvas.fillRect(Rect{0, 0, width, height}, ground);
  }
  ~MemoryTarget() {
    SelectObject(dc, previous);
    DeleteObject(bitmap);
    DeleteDC(dc);
  }
  Color at(int x, int y) const {
    GdiFlush();
    const uint8_t* p = bits + (size_t(y) * width + x) * 4;
    return rgbColor(p[2], p[1], p[0]);
  }
  // The pixels darker than mid grey, and how far right they reach.
  std::pair<int, int> dark() const {
    std::pair<int, int> found{0, -1};
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x)
        if (redOf(at(x, y)) < 128) ++found.first, found.second = std::max(found.second, x);
    return found;
  }
  int width, height;
  HDC dc = CreateCompatibleDC(nullptr);
  HBITMAP bitmap;
  HGDIOBJ previous;
  uint8_t* bits = nullptr;
  GdiCanvas canvas{dc, Size{width, height}};
};

TEST(GdiCanvas, PaintsATreeWithClipsLikeTheMemoryCanvas) {
  Panel root(L"root", Rect{0, 0, 40, 40});
  root.add<Box>(L"back", Rect{0, 0, 40, 40}, rgbColor(10, 20, 30));
  root.add<Box>(L"front", Rect{10, 10, 20, 20}, rgbColor(200, 100, 50));
  MemoryTarget target(40, 40, rgbColor(0, 0, 0));
  target.canvas.save();
  target.canvas.clipToRects({Rect{0, 0, 25, 40}});
  root.paint(target.canvas, Point{});
  target.canvas.restore();
  EXPECT_EQ(target.canvas.clipBox(), (Rect{0, 0, 40, 40}));
  EXPECT_EQ(target.at(28, 20), rgbColor(0, 0, 0));  // clipped away
  Image reference = Image::blank(40, 40);
  ImageCanvas memory(reference);
  memory.clipToRects({Rect{0, 0, 25, 40}});
  root.paint(memory, Point{});
  for (int y = 0; y < 40; y += 3)
    for (int x = 0; x < 25; x += 3)
      EXPECT_EQ(target.at(x, y), PixelAt(reference, x, y)) << x << "," << y;
}

TEST(GdiCanvas, BlendsPremultipliedImagesCopiesPixelsAndDrawsWideLines) {
  MemoryTarget target(20, 20, rgbColor(0, 0, 200));
  Image half = Image::blank(2, 2);
  for (int i = 0; i < 4; ++i)
    half.pixel(i % 2, i / 2)[2] = half.pixel(i % 2, i / 2)[3] = 128;  // red 255 at alpha 128
  target.canvas.blendImage(half, Rect{0, 0, 2, 2}, Rect{0, 0, 4, 4}, 255);
  EXPECT_NEAR(int(redOf(target.at(1, 1))), 128, 1);
  EXPECT_NEAR(int(blueOf(target.at(1, 1))), 200 * 127 / 255, 2);
  EXPECT_EQ(target.at(6, 6), rgbColor(0, 0, 200));
  const Image copy = target.canvas.copyPixels(Rect{4, 4, 2, 2});
  EXPECT_EQ(copy.pixel(0, 0)[0], 200);
  target.canvas.putPixels(copy, Rect{0, 0, 2, 2}, Point{0, 0});
  EXPECT_EQ(target.at(0, 0), rgbColor(0, 0, 200));
  // The pen straddles the ideal line, as the memory canvas's 2x2 stamps do: every point of the
  // walk and both ends are covered, and nothing far from the mark is.
  target.canvas.fillRect(Rect{0, 0, 20, 20}, rgbColor(255, 255, 255));
  target.canvas.drawLine(Point{3, 7}, Point{6, 10}, rgbColor(0, 0, 0), 2);
  target.canvas.drawLine(Point{6, 10}, Point{15, 3}, rgbColor(0, 0, 0), 2);
  for (const Point p : {Point{3, 7}, Point{6, 10}, Point{10, 7}, Point{15, 3}})
    EXPECT_LT(redOf(target.at(p.x, p.y)), 128) << p.x << "," << p.y;
  EXPECT_EQ(target.at(15, 15), rgbColor(255, 255, 255));
  EXPECT_EQ(target.at(3, 3), rgbColor(255, 255, 255));
}

TEST(GdiCanvas, TextIsMeasuredDrawnAndShortenedInsideItsRectangle) {
  MemoryTarget target(200, 40, rgbColor(255, 255, 255));
  TextStyle style;
  style.fontFamily = L"Tahoma";
  style.pointSize = 10;
  const Size one = target.canvas.measureText(L"Save", style);
  EXPECT_GT(target.canvas.measureText(L"Save profile", style).width, one.width);
  EXPECT_GT(one.height, 8);
  target.canvas.drawText(L"Save", Rect{0, 0, 120, 40}, style, rgbColor(0, 0, 0),
                         kTextCenter | kTextMiddle);
  EXPECT_GT(target.dark().first, 10);
  target.canvas.fillRect(Rect{0, 0, 200, 40}, rgbColor(255, 255, 255));
  const std::wstring text = L"A rather long line of text that cannot fit";
  ASSERT_GT(target.canvas.measureText(text, style).width, 60);
  target.canvas.drawText(text, Rect{0, 0, 60, 30}, style, rgbColor(0, 0, 0),
                         kTextLeft | kTextMiddle | kTextEndEllipsis);
  EXPECT_GT(target.dark().first, 10);
  EXPECT_LT(target.dark().second, 60);
}

}  // namespace
}  // namespace tessel
