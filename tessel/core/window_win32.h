// The Windows side of a Window: the window class "TesselDesignWindow", the procedure that turns
// messages into the window's calls, the back buffer painted through a device-context canvas,
// the skin's region, size limits on the window's monitor and the custom frame.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tessel/core/window.h"

namespace tessel {

struct NativeWindowOptions {
  HINSTANCE instance = nullptr;
  std::wstring title;
  Size clientSize{640, 480};
  DWORD style = WS_POPUP | WS_THICKFRAME | WS_MINIMIZEBOX | WS_MAXIMIZEBOX | WS_SYSMENU;
  DWORD exStyle = WS_EX_APPWINDOW;
  HWND owner = nullptr;
  // Ends the message loop when the window is destroyed (dialogs with an owner don't).
  bool quitOnDestroy = true;
};

// A message before the toolkit handles it; `handled` makes `result` the answer.
struct WindowMessage {
  UINT message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  LRESULT result = 0;
  bool handled = false;
};

Rect rectOf(const RECT& r);
// The monitor rectangle and work area of `monitor`; without one, the primary screen's.
void monitorAreas(HMONITOR monitor, Rect& screen, Rect& work);

class Win32WindowPlatform : public WindowPlatform {
 public:
  explicit Win32WindowPlatform(Window& window);
  ~Win32WindowPlatform() override;
  Win32WindowPlatform(const Win32WindowPlatform&) = delete;
  Win32WindowPlatform& operator=(const Win32WindowPlatform&) = delete;

  // Registers the class once, then creates the window centred on the owner's monitor (or the
  // cursor's), inside its work area. False when either fails.
  bool create(const NativeWindowOptions& options);
  HWND hwnd() const { return hwnd_; }
  // Application messages (posted by workers) and anything else a caller wants first.
  void setMessageHook(std::function<void(WindowMessage&)> hook) { hook_ = std::move(hook); }

  void invalidate(const Rect& rect) override;
  void invalidateAll() override;
  void setCapture() override;
  void releaseCapture() override;
  void trackPointerLeave() override;
  uint64_t tickMs() const override;
  bool buttonHeld() const override;
  void postClose() override;
  void hide() override;
  void destroy() override;
  void frameChanged() override;
  void setRegion(const std::vector<Rect>& rects, bool shaped) override;

  // The effective minimum client size as a window size (zero where there is none).
  Size minimumWindowSize() const;

  static constexpr UINT_PTR kTimerId = 1201;

 private:
  static LRESULT CALLBACK procedure(HWND hwnd, UINT message, WPARAM wParam, LPARAM lParam);
  LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
  // Pointer and keyboard messages; true when the window consumed the message.
  bool handleInput(UINT message, WPARAM wParam, LPARAM lParam);
  void limitSize(MINMAXINFO& info);
  void holdSizing(RECT& proposed, WPARAM edge);
  void paint();
  void printInto(HDC target);
  bool ensureBackBuffer(Size size);
  void freeBackBuffer();
  void keepOnMonitor();

  Window& window_;
  HWND hwnd_ = nullptr;
  DWORD style_ = 0;
  DWORD exStyle_ = 0;
  bool quitOnDestroy_ = true;
  std::function<void(WindowMessage&)> hook_;
  HDC bufferDc_ = nullptr;
  HBITMAP bufferBitmap_ = nullptr;
  HGDIOBJ previousBitmap_ = nullptr;
  Size bufferSize_;
};

}  // namespace tessel
