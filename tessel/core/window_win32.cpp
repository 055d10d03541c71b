#include "tessel/core/window_win32.h"

#include <shellapi.h>
#include <windowsx.h>

#include <algorithm>

#include "tessel/core/system_move.h"
#include "tessel/core/window_frame.h"
#include "tessel/paint/gdi_canvas_win32.h"

namespace tessel {

namespace {

constexpr wchar_t kClassName[] = L"TesselDesignWindow";
// The border colour attribute, missing from the cross compiler's headers.
constexpr DWORD kDwmBorderColor = 34;

bool registerClassOnce(HINSTANCE instance, WNDPROC procedure) {
  WNDCLASSEXW wc{};
  wc.cbSize = sizeof(wc);
  wc.lpfnWndProc = procedure;
  wc.hInstance = instance;
  wc.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  wc.hIcon = LoadIconW(nullptr, IDI_APPLICATION);
  wc.lpszClassName = kClassName;
  if (RegisterClassExW(&wc) != 0) return true;
  return GetLastError() == ERROR_CLASS_ALREADY_EXISTS;
}

// DwmSetWindowAttribute from dwmapi.dll, when there is one.
void setBorderColour(HWND hwnd, COLORREF colour) {
  using SetAttribute = HRESULT(WINAPI*)(HWND, DWORD, LPCVOID, DWORD);
  static const SetAttribute set = [] {
    HMODULE dwm = LoadLibraryW(L"dwmapi.dll");
    return dwm != nullptr ? reinterpret_cast<SetAttribute>(reinterpret_cast<void*>(
                                GetProcAddress(dwm, "DwmSetWindowAttribute")))
                          : nullptr;
  }();
  if (set != nullptr) set(hwnd, kDwmBorderColor, &colour, sizeof(colour));
}

bool keyHeld(int key) {
  return (GetKeyState(key) & 0x8000) != 0;
}

// A caption or header drag: the system's interactive move of the control's window.
void startWindowMove(Control& source) {
  auto* window = dynamic_cast<Window*>(source.window());
  auto* native =
      window != nullptr ? dynamic_cast<Win32WindowPlatform*>(window->platform()) : nullptr;
  if (native == nullptr || native->hwnd() == nullptr) return;
  ReleaseCapture();
  SendMessageW(native->hwnd(), WM_NCLBUTTONDOWN, HTCAPTION, 0);
}

}  // namespace

Rect rectOf(const RECT& r) {
  return Rect{r.left, r.top, r.right - r.left, r.bottom - r.top};
}

void monitorAreas(HMONITOR monitor, Rect& screen, Rect& work) {
  MONITORINFO info{};
  info.cbSize = sizeof(info);
  if (monitor != nullptr && GetMonitorInfoW(monitor, &info)) {
    screen = rectOf(info.rcMonitor);
    work = rectOf(info.rcWork);
    return;
  }
  RECT area{};
  if (SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0)) {
    work = rectOf(area);
  } else {
    work = Rect{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  }
  screen = work;
}

Win32WindowPlatform::Win32WindowPlatform(Window& window) : window_(window) {
  window_.setPlatform(this);
}

Win32WindowPlatform::~Win32WindowPlatform() {
  if (hwnd_ != nullptr) {
    SetWindowLongPtrW(hwnd_, GWLP_USERDATA, 0);
    DestroyWindow(hwnd_);
  }
  freeBackBuffer();
  window_.setPlatform(nullptr);
}

bool Win32WindowPlatform::create(const NativeWindowOptions& options) {
  if (!registerClassOnce(options.instance, &Win32WindowPlatform::procedure)) return false;
  setSystemMoveHook(startWindowMove);
  style_ = options.style;
  exStyle_ = options.exStyle;
  quitOnDestroy_ = options.quitOnDestroy;
  window_.setTitle(options.title);
  const bool customFrame = window_.windowStyle().customFrame;
  RECT frame{0, 0, options.clientSize.width, options.clientSize.height};
  if (!customFrame) AdjustWindowRectEx(&frame, style_, FALSE, exStyle_);
  HMONITOR monitor = nullptr;
  if (options.owner != nullptr) {
    monitor = MonitorFromWindow(options.owner, MONITOR_DEFAULTTONEAREST);
  } else {
    POINT cursor{};
    GetCursorPos(&cursor);
    monitor = MonitorFromPoint(cursor, MONITOR_DEFAULTTONEAREST);
  }
  Rect screen, work;
  monitorAreas(monitor, screen, work);
  const Rect place =
      centreOnWorkArea(Size{frame.right - frame.left, frame.bottom - frame.top}, work);
  hwnd_ =
      CreateWindowExW(exStyle_, kClassName, options.title.c_str(), style_, place.x, place.y,
                      place.width, place.height, options.owner, nullptr, options.instance, this);
  if (hwnd_ == nullptr) return false;
  setBorderColour(hwnd_, customFrame ? COLORREF(-2) : COLORREF(-1));
  // The first layout: from here on the tree's bounds are real.
  RECT client{};
  GetClientRect(hwnd_, &client);
  window_.sized(Size{client.right, client.bottom}, false);
  return true;
}

LRESULT CALLBACK Win32WindowPlatform::procedure(HWND hwnd, UINT message, WPARAM wParam,
                                                LPARAM lParam) {
  if (message == WM_NCCREATE) {
    auto* self =
        static_cast<Win32WindowPlatform*>(reinterpret_cast<CREATESTRUCTW*>(lParam)->lpCreateParams);
    SetWindowLongPtrW(hwnd, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    self->hwnd_ = hwnd;
  }
  auto* self = reinterpret_cast<Win32WindowPlatform*>(GetWindowLongPtrW(hwnd, GWLP_USERDATA));
  if (self == nullptr) return DefWindowProcW(hwnd, message, wParam, lParam);
  return self->handle(message, wParam, lParam);
}

LRESULT Win32WindowPlatform::handle(UINT message, WPARAM wParam, LPARAM lParam) {
  const bool customFrame = window_.windowStyle().customFrame;
  if (message == WM_SIZE) {
    window_.sized(Size{LOWORD(lParam), HIWORD(lParam)}, wParam == SIZE_MINIMIZED);
  }
  if (hook_) {
    WindowMessage record{message, wParam, lParam, 0, false};
    hook_(record);
    if (record.handled) return record.result;
  }
  switch (message) {
    case WM_CREATE:
      SetTimer(hwnd_, kTimerId, Window::kTimerMs, nullptr);
      window_.created();
      return 0;
    case WM_DESTROY:
      window_.destroying();
      KillTimer(hwnd_, kTimerId);
      freeBackBuffer();
      if (quitOnDestroy_) PostQuitMessage(0);
      return 0;
    case WM_NCDESTROY: {
      HWND gone = hwnd_;
      SetWindowLongPtrW(gone, GWLP_USERDATA, 0);
      hwnd_ = nullptr;
      return DefWindowProcW(gone, message, wParam, lParam);
    }
    case WM_SIZE:
      return 0;
    case WM_MOVE:
      window_.moved();
      return 0;
    case WM_ACTIVATE:
      if (LOWORD(wParam) == WA_INACTIVE) window_.deactivated();
      break;
    case WM_ACTIVATEAPP:
      if (wParam == FALSE) window_.appDeactivated();
      break;
    case WM_PAINT:
      paint();
      return 0;
    case WM_PRINTCLIENT:
      // Printing (thumbnails, captures) gets a whole frame from the back buffer.
      printInto(reinterpret_cast<HDC>(wParam));
      return 0;
    case WM_ERASEBKGND:
      return 1;
    case WM_SETTINGCHANGE:
      if (wParam != SPI_SETWORKAREA) break;
      keepOnMonitor();
      return 0;
    case WM_DISPLAYCHANGE:
      keepOnMonitor();
      return 0;
    case WM_GETMINMAXINFO:
      limitSize(*reinterpret_cast<MINMAXINFO*>(lParam));
      return 0;
    case WM_SIZING:
      holdSizing(*reinterpret_cast<RECT*>(lParam), wParam);
      return 1;
    case WM_ENTERSIZEMOVE:
      window_.enterSizeMove();
      return 0;
    case WM_EXITSIZEMOVE:
      window_.exitSizeMove();
      return 0;
    case WM_NCCALCSIZE:
    case WM_NCPAINT:
      if (customFrame) return 0;
      break;
    case WM_NCACTIVATE:
      if (customFrame) return 1;
      break;
    case WM_NCHITTEST: {
      POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
      ScreenToClient(hwnd_, &point);
      const int32_t hit = window_.frameHit(Point{point.x, point.y}, IsZoomed(hwnd_) != FALSE);
      if (hit != kHitClient) return hit;
      break;
    }
    default:
      if (handleInput(message, wParam, lParam)) return 0;
      break;
  }
  return DefWindowProcW(hwnd_, message, wParam, lParam);
}

bool Win32WindowPlatform::handleInput(UINT message, WPARAM wParam, LPARAM lParam) {
  const Point at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
  const uint32_t keys = static_cast<uint32_t>(wParam);
  switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      if (window_.keyPressed(uint32_t(wParam), keyHeld(VK_CONTROL), keyHeld(VK_SHIFT),
                             keyHeld(VK_MENU), hwnd_))
        return true;
      break;
    case WM_CHAR:
      if (window_.character(static_cast<char16_t>(wParam), hwnd_)) return true;
      break;
    case WM_KEYUP:
    case WM_SYSKEYUP:
      // Print Screen stays the system's screen-clip tool in a window that swallows keys.
      if (wParam == VK_SNAPSHOT && !keyHeld(VK_CONTROL) && !keyHeld(VK_MENU) &&
          reinterpret_cast<INT_PTR>(ShellExecuteW(hwnd_, L"open", L"ms-screenclip:", nullptr,
                                                  nullptr, SW_SHOWNORMAL)) > 32)
        return true;
      break;
    case WM_TIMER:
      if (wParam != kTimerId) break;
      window_.timer();
      return true;
    case WM_MOUSEMOVE:
      window_.pointerMoved(at, keys);
      return true;
    case WM_LBUTTONDOWN:
      window_.buttonPressed(at, keys);
      return true;
    case WM_LBUTTONUP:
      window_.buttonReleased(at, keys);
      return true;
    case WM_MOUSEWHEEL:
    case WM_MOUSEHWHEEL: {
      POINT point{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
      ScreenToClient(hwnd_, &point);
      if (window_.wheel(Point{point.x, point.y}, GET_WHEEL_DELTA_WPARAM(wParam),
                        message == WM_MOUSEHWHEEL, GET_KEYSTATE_WPARAM(wParam)))
        return true;
      break;
    }
    case WM_MOUSELEAVE:
      window_.pointerLeft();
      return true;
    case WM_CAPTURECHANGED:
      if (reinterpret_cast<HWND>(lParam) != hwnd_) window_.captureLost();
      return true;
    default:
      return false;
  }
  return false;
}

void Win32WindowPlatform::limitSize(MINMAXINFO& info) {
  Rect screen, work;
  monitorAreas(MonitorFromWindow(hwnd_, MONITOR_DEFAULTTONEAREST), screen, work);
  const WindowLimits current{{info.ptMaxSize.x, info.ptMaxSize.y},
                             {info.ptMaxPosition.x, info.ptMaxPosition.y},
                             {info.ptMinTrackSize.x, info.ptMinTrackSize.y},
                             {info.ptMaxTrackSize.x, info.ptMaxTrackSize.y}};
  const WindowLimits limits = windowLimits(current, screen, work, minimumWindowSize());
  info.ptMaxSize = POINT{limits.maxSize.width, limits.maxSize.height};
  info.ptMaxPosition = POINT{limits.maxPosition.x, limits.maxPosition.y};
  info.ptMinTrackSize = POINT{limits.minTrackSize.width, limits.minTrackSize.height};
  info.ptMaxTrackSize = POINT{limits.maxTrackSize.width, limits.maxTrackSize.height};
}

void Win32WindowPlatform::holdSizing(RECT& proposed, WPARAM edge) {
  Rect screen, work;
  monitorAreas(MonitorFromRect(&proposed, MONITOR_DEFAULTTONEAREST), screen, work);
  Size minimum = minimumWindowSize();
  minimum.width = std::clamp(minimum.width, 1, std::max(work.width, 1));
  minimum.height = std::clamp(minimum.height, 1, std::max(work.height, 1));
  const Rect held = holdMinimumWhileSizing(rectOf(proposed), int32_t(edge), minimum);
  proposed = RECT{held.x, held.y, held.right(), held.bottom()};
}

void Win32WindowPlatform::paint() {
  PAINTSTRUCT ps{};
  HDC target = BeginPaint(hwnd_, &ps);
  RECT client{};
  GetClientRect(hwnd_, &client);
  const Size size{client.right, client.bottom};
  if (target == nullptr || size.width < 1 || size.height < 1) {
    EndPaint(hwnd_, &ps);
    return;
  }
  const bool rebuilt = ensureBackBuffer(size);
  // A buffer that can't be made skips the frame.
  if (bufferDc_ != nullptr) {
    const Rect dirty = rebuilt ? Rect{0, 0, size.width, size.height} : rectOf(ps.rcPaint);
    {
      GdiCanvas canvas(bufferDc_, size);
      window_.paintFrame(canvas, dirty);
    }
    BitBlt(target, dirty.x, dirty.y, dirty.width, dirty.height, bufferDc_, dirty.x, dirty.y,
           SRCCOPY);
  }
  EndPaint(hwnd_, &ps);
}

void Win32WindowPlatform::printInto(HDC target) {
  RECT client{};
  GetClientRect(hwnd_, &client);
  const Size size{client.right, client.bottom};
  if (target == nullptr || size.width < 1 || size.height < 1) return;
  ensureBackBuffer(size);
  if (bufferDc_ == nullptr) return;
  {
    GdiCanvas canvas(bufferDc_, size);
    window_.paintFrame(canvas, Rect{0, 0, size.width, size.height});
  }
  BitBlt(target, 0, 0, size.width, size.height, bufferDc_, 0, 0, SRCCOPY);
}

bool Win32WindowPlatform::ensureBackBuffer(Size size) {
  if (bufferDc_ != nullptr && bufferSize_ == size) return false;
  freeBackBuffer();
  HDC screen = GetDC(hwnd_);
  bufferDc_ = CreateCompatibleDC(screen);
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = size.width;
  info.bmiHeader.biHeight = -size.height;  // top-down
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  bufferBitmap_ = CreateDIBSection(screen, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
  ReleaseDC(hwnd_, screen);
  if (bufferDc_ == nullptr || bufferBitmap_ == nullptr) {
    freeBackBuffer();
    return true;
  }
  previousBitmap_ = SelectObject(bufferDc_, bufferBitmap_);
  bufferSize_ = size;
  return true;
}

void Win32WindowPlatform::freeBackBuffer() {
  if (bufferDc_ != nullptr && previousBitmap_ != nullptr) SelectObject(bufferDc_, previousBitmap_);
  if (bufferBitmap_ != nullptr) DeleteObject(bufferBitmap_);
  if (bufferDc_ != nullptr) DeleteDC(bufferDc_);
  bufferDc_ = nullptr;
  bufferBitmap_ = nullptr;
  previousBitmap_ = nullptr;
  bufferSize_ = Size{};
}

Size Win32WindowPlatform::minimumWindowSize() const {
  const Size client = window_.effectiveMinimumClientSize();
  if (client.width < 1 && client.height < 1) return Size{};
  RECT frame{0, 0, std::max(client.width, 1), std::max(client.height, 1)};
  if (!window_.windowStyle().customFrame) AdjustWindowRectEx(&frame, style_, FALSE, exStyle_);
  return Size{std::max<int32_t>(frame.right - frame.left, 1),
              std::max<int32_t>(frame.bottom - frame.top, 1)};
}

void Win32WindowPlatform::keepOnMonitor() {
  Rect screen, work;
  monitorAreas(MonitorFromWindow(hwnd_, MONITOR_DEFAULTTONEAREST), screen, work);
  if (IsZoomed(hwnd_)) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof(placement);
    if (GetWindowPlacement(hwnd_, &placement)) {
      const Rect normal = keepInsideWorkArea(rectOf(placement.rcNormalPosition), work);
      placement.rcNormalPosition = RECT{normal.x, normal.y, normal.right(), normal.bottom()};
      SetWindowPlacement(hwnd_, &placement);
    }
  } else {
    RECT current{};
    GetWindowRect(hwnd_, &current);
    const Rect kept = keepInsideWorkArea(rectOf(current), work);
    SetWindowPos(hwnd_, nullptr, kept.x, kept.y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  }
  window_.relayout();
}

void Win32WindowPlatform::invalidate(const Rect& rect) {
  if (hwnd_ == nullptr) return;
  const RECT r{rect.x, rect.y, rect.right(), rect.bottom()};
  InvalidateRect(hwnd_, &r, FALSE);
}

void Win32WindowPlatform::invalidateAll() {
  if (hwnd_ != nullptr) InvalidateRect(hwnd_, nullptr, FALSE);
}

void Win32WindowPlatform::setCapture() {
  if (hwnd_ != nullptr) SetCapture(hwnd_);
}

void Win32WindowPlatform::releaseCapture() {
  if (GetCapture() == hwnd_) ReleaseCapture();
}

void Win32WindowPlatform::trackPointerLeave() {
  if (hwnd_ == nullptr) return;
  TRACKMOUSEEVENT track{};
  track.cbSize = sizeof(track);
  track.dwFlags = TME_LEAVE;
  track.hwndTrack = hwnd_;
  TrackMouseEvent(&track);
}

uint64_t Win32WindowPlatform::tickMs() const {
  return GetTickCount64();
}

bool Win32WindowPlatform::buttonHeld() const {
  return keyHeld(VK_LBUTTON) || keyHeld(VK_RBUTTON) || keyHeld(VK_MBUTTON);
}

void Win32WindowPlatform::postClose() {
  if (hwnd_ != nullptr) PostMessageW(hwnd_, WM_CLOSE, 0, 0);
}

void Win32WindowPlatform::destroy() {
  if (hwnd_ != nullptr) DestroyWindow(hwnd_);
}

void Win32WindowPlatform::hide() {
  if (hwnd_ != nullptr) ShowWindow(hwnd_, SW_HIDE);
}

void Win32WindowPlatform::frameChanged() {
  if (hwnd_ == nullptr) return;
  SetWindowPos(hwnd_, nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void Win32WindowPlatform::setRegion(const std::vector<Rect>& rects, bool shaped) {
  if (hwnd_ == nullptr) return;
  if (!shaped || rects.empty()) {
    SetWindowRgn(hwnd_, nullptr, TRUE);
    return;
  }
  // Client coordinates to the window's own, which differ when the system draws the frame.
  POINT origin{0, 0};
  ClientToScreen(hwnd_, &origin);
  RECT frame{};
  GetWindowRect(hwnd_, &frame);
  const int32_t dx = origin.x - frame.left, dy = origin.y - frame.top;
  std::vector<uint8_t> bytes(sizeof(RGNDATAHEADER) + rects.size() * sizeof(RECT));
  auto* data = reinterpret_cast<RGNDATA*>(bytes.data());
  data->rdh.dwSize = sizeof(RGNDATAHEADER);
  data->rdh.iType = RDH_RECTANGLES;
  data->rdh.nCount = DWORD(rects.size());
  data->rdh.nRgnSize = DWORD(rects.size() * sizeof(RECT));
  RECT bound{INT32_MAX, INT32_MAX, INT32_MIN, INT32_MIN};
  auto* out = reinterpret_cast<RECT*>(data->Buffer);
  for (size_t i = 0; i < rects.size(); ++i) {
    const Rect& r = rects[i];
    out[i] = RECT{r.x + dx, r.y + dy, r.right() + dx, r.bottom() + dy};
    bound.left = std::min(bound.left, out[i].left);
    bound.top = std::min(bound.top, out[i].top);
    bound.right = std::max(bound.right, out[i].right);
    bound.bottom = std::max(bound.bottom, out[i].bottom);
  }
  data->rdh.rcBound = bound;
  HRGN region = ExtCreateRegion(nullptr, DWORD(bytes.size()), data);
  if (region == nullptr) return;
  // The window owns a region it accepted; a refused one is ours to free.
  if (SetWindowRgn(hwnd_, region, TRUE) == 0) DeleteObject(region);
}

}  // namespace tessel
