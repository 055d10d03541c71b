// A harmless stand-in for the setup program in the self-update tests: it writes the command
// line it was started with into %TEMP%\stayhold_fake_setup_args.txt (UTF-8) and ends.
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <string>

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR command_line, int) {
  // A path converts its wide text to UTF-8 unchanged; nothing here is read as a file name.
  const std::u8string text = std::filesystem::path(command_line).u8string();
  std::ofstream(std::filesystem::temp_directory_path() / "stayhold_fake_setup_args.txt",
                std::ios::binary)
      .write(reinterpret_cast<const char*>(text.data()), std::streamsize(text.size()));
  return 0;
}
