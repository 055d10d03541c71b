// One HTTP(S) GET over WinHTTP with the update's time-outs, its body streamed to a sink. The
// manifest fetch and the setup download share it and differ in their texts and limits.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <string>

struct HttpGetTexts {
  const wchar_t* cannot_parse;
  const wchar_t* request_failed;
  const wchar_t* status_prefix;  // followed by the code and "."
  const wchar_t* cannot_query;
  const wchar_t* cannot_read;
};

struct HttpGetLimits {
  int resolve_ms = 5000;
  int connect_ms = 5000;
  int send_ms = 5000;
  int receive_ms = 10000;
};

// `before_body` runs after the status check with the content length (0 when unknown) and may
// refuse with an error; `sink` takes each chunk and may refuse too.
bool HttpGet(const std::wstring& url, const HttpGetTexts& texts, const HttpGetLimits& limits,
             const std::function<bool(uint64_t, std::wstring&)>& before_body,
             const std::function<bool(const char*, DWORD, std::wstring&)>& sink,
             std::wstring& error);
