#include "guard/startup_options.h"

#include <gtest/gtest.h>

namespace {

TEST(ParseExitAfterMs, AcceptsOneToTenMinutesOnly) {
  const struct {
    const wchar_t* command_line;
    uint32_t expected;
  } cases[] = {
      {L"--exit-after-ms=1500", 1500},
      {L"--exit-after-ms=1", 1},
      {L"--exit-after-ms=600000", 600000},
      {L"--exit-after-ms=600001", 0},
      {L"--exit-after-ms=0", 0},
      {L"--exit-after-ms=-5", 0},
      {L"--exit-after-ms=abc", 0},
      {L"--exit-after-ms=", 0},
      {L"--exit-after-ms=99999999999999", 0},
      {L"--exit-after-ms=4294967297", 0},
      {L"--exit-after-ms=250ms", 250},
      {L"--exit-after-ms= 42", 42},  // wcstol skips leading white space
      {L"\"C:\\x--exit-after-ms=900\\Stayhold.exe\"", 900},
      {L"--EXIT-AFTER-MS=500", 0},
      {L"", 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ParseExitAfterMs(c.command_line), c.expected) << c.command_line;
  }
}

TEST(ParseStartupOptions, SubstringSearchWithItsQuirks) {
  const StartupOptions dir_only = ParseStartupOptions(L"--install-dir \"C:\\X\"");
  EXPECT_TRUE(dir_only.install);  // --install-dir contains --install

  const StartupOptions in_path =
      ParseStartupOptions(L"--uninstall \"D:\\tools\\--repair\\Stayhold\"");
  EXPECT_TRUE(in_path.repair);
  EXPECT_TRUE(in_path.uninstall);
  EXPECT_FALSE(in_path.install);  // "--uninstall" does not contain "--install"

  const StartupOptions capitals = ParseStartupOptions(L"--INSTALL --SETTINGS");
  EXPECT_FALSE(capitals.install);
  EXPECT_FALSE(capitals.settings);

  const StartupOptions all = ParseStartupOptions(
      L"--install --preserve-options --desktop --no-startup --restart-app --settings "
      L"--ensure-config --quiet");
  EXPECT_TRUE(all.install && all.preserve_options && all.desktop && all.no_startup &&
              all.restart_app && all.settings && all.ensure_config);
  EXPECT_FALSE(all.repair || all.uninstall);

  const StartupOptions none = ParseStartupOptions(nullptr);
  EXPECT_FALSE(none.install || none.repair || none.uninstall || none.settings ||
               none.ensure_config);
  EXPECT_EQ(none.exit_after_ms, 0u);
}

TEST(FindInstallDirArgument, ReadsTheArgumentAfterTheOption) {
  using Args = std::vector<std::wstring>;
  const struct {
    const char* what;
    Args arguments;
    const wchar_t* folder;
  } cases[] = {
      {"plain", {L"setup.exe", L"--install-dir", L"C:\\X"}, L"C:\\X"},
      {"case-insensitive", {L"setup.exe", L"--install", L"--INSTALL-DIR", L"D:\\Y"}, L"D:\\Y"},
      {"value starting with -- is ignored",
       {L"setup.exe", L"--install", L"--install-dir", L"--quiet"},
       L""},
      {"first match ends the search",
       {L"setup.exe", L"--install-dir", L"--x", L"--install-dir", L"E:\\Z"},
       L""},
      {"option as the last argument", {L"setup.exe", L"--install", L"--install-dir"}, L""},
      {"fewer than three arguments", {L"setup.exe", L"--install-dir"}, L""},
      {"argument 0 is not searched", {L"--install-dir", L"C:\\A", L"B"}, L""},
      {"a value with -- inside", {L"s", L"--install-dir", L"C:\\a--b"}, L"C:\\a--b"},
      {"single dash value", {L"s", L"--install-dir", L"-x"}, L"-x"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(FindInstallDirArgument(c.arguments), c.folder) << c.what;
}

TEST(ChooseStartupRole, ChecksRunInTheirFixedOrder) {
  const struct {
    const char* what;
    const wchar_t* command_line;
    bool setup_build;
    StartupRole role;
  } cases[] = {
      {"setup without options opens the dialog", L"", true, StartupRole::SetupDialog},
      {"setup with a self-exit limit guards", L"--exit-after-ms=1000", true, StartupRole::Guard},
      {"setup with an invalid limit opens the dialog", L"--exit-after-ms=600001", true,
       StartupRole::SetupDialog},
      {"install before repair", L"--repair --install", true, StartupRole::Install},
      {"repair before uninstall", L"--uninstall --repair", true, StartupRole::Repair},
      {"uninstall", L"--uninstall --quiet", true, StartupRole::Uninstall},
      {"install-dir alone installs", L"--install-dir \"C:\\X\"", true, StartupRole::Install},
      {"a folder named --repair with --uninstall repairs",
       L"--uninstall \"C:\\Tools\\--repair\\Stayhold\"", true, StartupRole::Repair},
      {"setup ignores ensure-config", L"--ensure-config", true, StartupRole::SetupDialog},
      {"setup action beats the self-exit limit", L"--exit-after-ms=1000 --repair", true,
       StartupRole::Repair},
      {"application refuses install", L"--install", false, StartupRole::RefuseSetupAction},
      {"application refuses repair", L"--repair", false, StartupRole::RefuseSetupAction},
      {"application refuses uninstall", L"--uninstall", false, StartupRole::RefuseSetupAction},
      {"refusal comes before ensure-config", L"--ensure-config --repair", false,
       StartupRole::RefuseSetupAction},
      {"application ensure-config", L"--ensure-config", false, StartupRole::EnsureConfig},
      {"application guards without options", L"", false, StartupRole::Guard},
      {"application guards with settings", L"--settings", false, StartupRole::Guard},
      {"capital INSTALL is no option", L"--INSTALL", false, StartupRole::Guard},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(ChooseStartupRole(ParseStartupOptions(c.command_line), c.setup_build), c.role)
        << c.what;
  }
}

}  // namespace
