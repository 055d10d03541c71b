// The failure texts of the setup as the user reads them, from real failing steps that the
// shipped setup cannot reach: a setup without its package and a policy step that is refused.
#include <windows.h>

#include <gtest/gtest.h>

#include <filesystem>

#include "guard/machine_registry.h"
#include "guard/paths.h"
#include "setup/msi_driver_win32.h"
#include "setup/setup_actions.h"
#include "setup/setup_failure.h"

namespace {

class RefusingRegistry final : public MachineRegistry {
 public:
  long CreateKey(const std::wstring&) override { return ERROR_ACCESS_DENIED; }
  bool SetDword(const std::wstring&, uint32_t) override { return false; }
  void CloseKey() override {}
  bool ReadDword(const std::wstring&, const std::wstring&, uint32_t&) override { return false; }
};

TEST(SetupFailureText, ASetupWithoutItsPackage) {
  ClearSetupFailure();
  EXPECT_FALSE(InstallPackage(L"install", true, false, L""));
  EXPECT_EQ(LastSetupFailure().phase, L"extract-msi");
  EXPECT_EQ(AppendSetupFailureDetails(L"Install failed."),
            L"Install failed.\n\nFailed step: extracting the embedded MSI package\nSetup does not "
            L"contain an MSI package. Please download setup again.\nApplication log: " +
                LogFilePath());
}

TEST(SetupFailureText, ARefusedPolicyStepFailsTheInstall) {
  RefusingRegistry refusing;
  MachineRegistryOverride() = &refusing;
  const bool installed = RunInstall(false, false, L"C:\\PolicyRefused");
  MachineRegistryOverride() = nullptr;
  EXPECT_FALSE(installed);
  EXPECT_EQ(LastSetupFailure().phase, L"install-windows-update-policy");
  // The application is in place all the same.
  EXPECT_TRUE(std::filesystem::exists(L"C:\\PolicyRefused\\Stayhold.exe"));
  EXPECT_EQ(RunUninstall(), 0);
}

}  // namespace
