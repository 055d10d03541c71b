// The self-update's platform operations (WinHTTP, CryptoAPI, the shell), used by the install
// worker's services and by the tests under Wine.
#pragma once

#include <functional>
#include <string>

// Downloads to `target`; progress runs from 10 to 80 while the length is known, then 82.
bool DownloadSetupFile(const std::wstring& url, const std::wstring& target,
                       const std::function<void(int)>& progress, std::wstring& error);
// Upper-case hexadecimal SHA-256 of the file.
bool HashFileSha256(const std::wstring& path, std::wstring& hex, std::wstring& error);
// Starts the setup elevated with the silent install command line.
bool LaunchSilentSetup(const std::wstring& setup_path, std::wstring& error);
