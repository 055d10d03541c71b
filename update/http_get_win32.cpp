#include "update/http_get_win32.h"

#include <winhttp.h>

#include <vector>

namespace {

class Handle {
 public:
  explicit Handle(HINTERNET handle = nullptr) : handle_(handle) {}
  ~Handle() {
    if (handle_) WinHttpCloseHandle(handle_);
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  HINTERNET get() const { return handle_; }
  explicit operator bool() const { return handle_ != nullptr; }

 private:
  HINTERNET handle_;
};

}  // namespace

bool HttpGet(const std::wstring& url, const HttpGetTexts& texts, const HttpGetLimits& limits,
             const std::function<bool(uint64_t, std::wstring&)>& before_body,
             const std::function<bool(const char*, DWORD, std::wstring&)>& sink,
             std::wstring& error) {
  std::vector<wchar_t> host(256), path(4096), extra(2048);
  URL_COMPONENTS parts = {};
  parts.dwStructSize = sizeof(parts);
  parts.lpszHostName = host.data();
  parts.dwHostNameLength = static_cast<DWORD>(host.size());
  parts.lpszUrlPath = path.data();
  parts.dwUrlPathLength = static_cast<DWORD>(path.size());
  parts.lpszExtraInfo = extra.data();
  parts.dwExtraInfoLength = static_cast<DWORD>(extra.size());
  if (!WinHttpCrackUrl(url.c_str(), 0, 0, &parts)) {
    error = texts.cannot_parse;
    return false;
  }
  const std::wstring request_path = std::wstring(path.data()) + extra.data();

  // Handles close in reverse order on every path, as the objects leave scope.
  Handle session(WinHttpOpen(L"Stayhold/1.0", WINHTTP_ACCESS_TYPE_DEFAULT_PROXY,
                             WINHTTP_NO_PROXY_NAME, WINHTTP_NO_PROXY_BYPASS, 0));
  if (!session) {
    error = L"WinHTTP session could not be opened.";
    return false;
  }
  WinHttpSetTimeouts(session.get(), limits.resolve_ms, limits.connect_ms, limits.send_ms,
                     limits.receive_ms);
  Handle connection(WinHttpConnect(session.get(), host.data(), parts.nPort, 0));
  if (!connection) {
    error = L"WinHTTP connection could not be opened.";
    return false;
  }
  const DWORD secure = parts.nScheme == INTERNET_SCHEME_HTTPS ? WINHTTP_FLAG_SECURE : 0;
  Handle request(WinHttpOpenRequest(connection.get(), L"GET", request_path.c_str(), nullptr,
                                    WINHTTP_NO_REFERER, WINHTTP_DEFAULT_ACCEPT_TYPES, secure));
  if (!request) {
    error = L"WinHTTP request could not be opened.";
    return false;
  }
  if (!WinHttpSendRequest(request.get(), WINHTTP_NO_ADDITIONAL_HEADERS, 0, WINHTTP_NO_REQUEST_DATA,
                          0, 0, 0) ||
      !WinHttpReceiveResponse(request.get(), nullptr)) {
    error = texts.request_failed;
    return false;
  }
  DWORD status = 0;
  DWORD size = sizeof(status);
  if (!WinHttpQueryHeaders(request.get(), WINHTTP_QUERY_STATUS_CODE | WINHTTP_QUERY_FLAG_NUMBER,
                           WINHTTP_HEADER_NAME_BY_INDEX, &status, &size, WINHTTP_NO_HEADER_INDEX)) {
    status = 0;
  }
  if (status < 200 || status > 299) {
    error = std::wstring(texts.status_prefix) + std::to_wstring(status) + L".";
    return false;
  }
  DWORD length = 0;
  size = sizeof(length);
  if (!WinHttpQueryHeaders(request.get(), WINHTTP_QUERY_CONTENT_LENGTH | WINHTTP_QUERY_FLAG_NUMBER,
                           WINHTTP_HEADER_NAME_BY_INDEX, &length, &size, WINHTTP_NO_HEADER_INDEX)) {
    length = 0;  // unknown: no percentages
  }
  if (!before_body(length, error)) return false;
  for (;;) {
    DWORD available = 0;
    if (!WinHttpQueryDataAvailable(request.get(), &available)) {
      error = texts.cannot_query;
      return false;
    }
    if (available == 0) break;
    std::vector<char> chunk(available);
    DWORD read = 0;
    if (!WinHttpReadData(request.get(), chunk.data(), available, &read)) {
      error = texts.cannot_read;
      return false;
    }
    if (read == 0) break;
    if (!sink(chunk.data(), read, error)) return false;
  }
  return true;
}
