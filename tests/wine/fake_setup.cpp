// A harmless stand-in for the setup program in the self-update tests: it writes the command
// line it was started with into %TEMP%\stayhold_fake_setup_args.txt (UTF-8) and ends.
#include <windows.h>

#include <cstdio>
#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR command_line, int) {
  wchar_t temp[MAX_PATH] = {};
  GetTempPathW(MAX_PATH, temp);
  const std::wstring path = std::wstring(temp) + L"stayhold_fake_setup_args.txt";
  const int size = WideCharToMultiByte(CP_UTF8, 0, command_line, -1, nullptr, 0, nullptr, nullptr);
  std::string text(size > 0 ? static_cast<size_t>(size - 1) : 0, '\0');
  WideCharToMultiByte(CP_UTF8, 0, command_line, -1, text.data(), size, nullptr, nullptr);
  if (FILE* file = _wfopen(path.c_str(), L"wb")) {
    std::fwrite(text.data(), 1, text.size(), file);
    std::fclose(file);
  }
  return 0;
}
