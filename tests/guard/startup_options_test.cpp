#include "guard/startup_options.h"

#include <gtest/gtest.h>

TEST(ParseExitAfterMs, AcceptsOneToTenMinutesOnly) {
  const std::pair<const wchar_t*, uint32_t> cases[] = {
      {L"1", 1},          {L"600000", 600000}, {L"600001", 0}, {L"0", 0},
      {L"4294967297", 0}, {L"250ms", 250},     {L" 42", 42}};  // wcstol skips white space
                                                               // before the number
  for (const auto& [value, ms] : cases)
    EXPECT_EQ(ParseExitAfterMs(std::wstring(L"--exit-after-ms=") + value), ms) << value;
  EXPECT_EQ(ParseExitAfterMs(L"\"C:\\x--exit-after-ms=900\\Stayhold.exe\""), 900u);
  EXPECT_EQ(ParseExitAfterMs(L"--EXIT-AFTER-MS=500"), 0u);
}

TEST(ParseStartupOptions, SubstringSearchWithItsQuirks) {
  EXPECT_TRUE(ParseStartupOptions(L"--install-dir \"C:\\X\"").install);
  const StartupOptions in_path =
      ParseStartupOptions(L"--uninstall \"D:\\tools\\--repair\\Stayhold\"");
  EXPECT_TRUE(in_path.repair && in_path.uninstall);
  EXPECT_FALSE(in_path.install);  // "--uninstall" does not contain "--install"
  const StartupOptions capitals = ParseStartupOptions(L"--INSTALL --SETTINGS");
  EXPECT_FALSE(capitals.install || capitals.settings);
  const StartupOptions all = ParseStartupOptions(
      L"--install --preserve-options --desktop --no-startup --restart-app --settings "
      L"--ensure-config --exit-after-ms=7");
  EXPECT_TRUE(all.install && all.preserve_options && all.desktop && all.no_startup &&
              all.restart_app && all.settings && all.ensure_config && all.exit_after_ms == 7);
  EXPECT_FALSE(all.repair || all.uninstall);
  EXPECT_FALSE(ParseStartupOptions(nullptr).install);
}

TEST(FindInstallDirArgument, ReadsTheArgumentAfterTheOption) {
  const std::tuple<const char*, std::vector<std::wstring>, const wchar_t*> cases[] = {
      {"plain", {L"setup.exe", L"--install-dir", L"C:\\X"}, L"C:\\X"},
      {"case-insensitive", {L"setup.exe", L"--install", L"--INSTALL-DIR", L"D:\\Y"}, L"D:\\Y"},
      {"value starting with -- is ignored", {L"s", L"--install", L"--install-dir", L"--q"}, L""},
      {"first match ends the search (also at the end)",
       {L"s", L"--install-dir", L"--x", L"--install-dir", L"E:"},
       L""},
      {"argument 0 is not searched", {L"--install-dir", L"C:\\A", L"B"}, L""},
  };
  for (const auto& [what, arguments, folder] : cases)
    EXPECT_EQ(FindInstallDirArgument(arguments), folder) << what;
}

TEST(ChooseStartupRole, ChecksRunInTheirFixedOrder) {
  using enum StartupRole;
  const std::tuple<const wchar_t*, bool, StartupRole> cases[] = {
      // The setup build: its actions in a fixed order, then the dialog unless a self-exit limit.
      {L"", true, SetupDialog},
      {L"--repair --install", true, Install},
      {L"--uninstall --repair", true, Repair},
      {L"--uninstall --quiet", true, Uninstall},
      // The application refuses every setup action, before anything else.
      {L"--install", false, RefuseSetupAction},
      {L"--uninstall", false, RefuseSetupAction},
      {L"--ensure-config --repair", false, RefuseSetupAction},
      {L"--settings", false, Guard}};
  for (const auto& [command_line, setup_build, role] : cases) {
    EXPECT_EQ(ChooseStartupRole(ParseStartupOptions(command_line), setup_build), role)
        << command_line << (setup_build ? " (setup)" : "");
  }
}
