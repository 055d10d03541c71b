// The log as the real program writes it: into the user's data folder, appended, UTF-8.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "guard/log.h"
#include "guard/paths.h"

namespace {

TEST(AppendLog, RecreatesTheFolderAndAppendsUtf8LinesAlsoWhileTheFileIsOpen) {
  std::error_code ignored;
  std::filesystem::remove_all(std::filesystem::path(LogDirectory()), ignored);
  AppendLog(L"first line");
  AppendLog(L"druh\u00E1 \u0159\u00E1dka");
  HANDLE other = CreateFileW(LogFilePath().c_str(), GENERIC_READ | GENERIC_WRITE,
                             FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING,
                             FILE_ATTRIBUTE_NORMAL, nullptr);
  ASSERT_NE(other, INVALID_HANDLE_VALUE);
  AppendLog(L"while shared");
  CloseHandle(other);
  std::stringstream read;
  read << std::ifstream(std::filesystem::path(LogFilePath()), std::ios::binary).rdbuf();
  const std::string text = read.str();
  EXPECT_NE(text.compare(0, 3, "\xEF\xBB\xBF"), 0);  // no byte order mark
  const size_t first = text.find("  first line\n");  // and no carriage return
  ASSERT_NE(first, std::string::npos);
  // The second line follows the first.
  EXPECT_NE(text.find("  druh\xC3\xA1 \xC5\x99\xC3\xA1"
                      "dka\n",
                      first),
            std::string::npos);
  EXPECT_NE(text.find("  while shared\n"), std::string::npos);
}

}  // namespace
