// A harmless stand-in for the setup program in the self-update tests: it writes the command
// line it was started with into %TEMP%\stayhold_fake_setup_args.txt (UTF-8) and ends.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "base/wide_text.h"

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR command_line, int) {
  std::ofstream(std::filesystem::temp_directory_path() / "stayhold_fake_setup_args.txt",
                std::ios::binary)
      << Utf8FromWide(command_line);
  return 0;
}
