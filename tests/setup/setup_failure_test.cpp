#include "setup/setup_failure.h"

#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "tests/support/fake_platform.h"

namespace {

const std::wstring kAppLog = L"C:\\Users\\ada\\AppData\\Local\\Stayhold\\logs\\stayhold.log";

TEST(MsiLogExcerpt, FirstFourMatchingLinesCutTo220) {
  const std::string line220 = "Error: " + std::string(213, 'x');
  const std::string line221 = "error " + std::string(215, 'y');
  const std::string log = "MSI (s) start\nAction ended: INSTALL. Return value 3.\r\n" + line220 +
                          "\n" + line221 +
                          "\nno match: errors happen\nMSI (s) Note: Error 1920 service\n"
                          "ERROR: fifth match is dropped\n";
  EXPECT_EQ(MsiLogExcerpt(log), L"Action ended: INSTALL. Return value 3.\r\n" +
                                    std::wstring(line220.begin(), line220.end()) + L"\n" +
                                    L"error " + std::wstring(211, L'y') +
                                    L"...\nMSI (s) Note: Error 1920 service");
}

TEST(MsiLogExcerpt, CasesOfMatchingAndDecoding) {
  const std::tuple<const char*, std::string, const wchar_t*> cases[] = {
      {"error followed by a blank", "MSI Error 1603 happened", L"MSI Error 1603 happened"},
      {"errors without blank or colon do not count", "errors\nerror-prone\n", L""},
      {"UTF-8 text is kept", "Chyba: Error: p\xC5\x99\xC3\xAD\x6C\x69\xC5\xA1",
       L"Chyba: Error: p\u0159\u00EDli\u0161"},
      {"a legacy code page decodes to nothing", "Error: \xE8\xE1st\n", L""},
  };
  for (const auto& [what, log, excerpt] : cases)
    EXPECT_EQ(MsiLogExcerpt(log), excerpt) << what;
}

TEST(FriendlyTexts, KnownCodesAndPhasesInBothLanguagesOthersFallBack) {
  for (unsigned long code : {5ul, 408ul, 1603ul, 1618ul, 1619ul, 1638ul}) {
    EXPECT_NE(FriendlyMsiExitText(code, false), FriendlyMsiExitText(0, false)) << code;
    EXPECT_NE(FriendlyMsiExitText(code, true), FriendlyMsiExitText(0, true)) << code;
  }
  EXPECT_EQ(FriendlyPhaseText(L"extract-msi", true), L"rozbalení vestavěného MSI balíčku");
  EXPECT_EQ(FriendlyPhaseText(L"install-windows-update-policy", true),
            L"install-windows-update-policy");
  EXPECT_EQ(FriendlyPhaseText(L"", false), L"unknown step");
}

TEST(AppendSetupFailureDetails, TheFullMsiExample) {
  RecordMsiFailure(L"install", 1603, L"C:\\L\\msi-install-7-9.log",
                   "a\nMSI (s) Error: file locked\nb\n");
  EXPECT_EQ(Fake().log, std::vector<std::wstring>{L"setup MSI failure phase=install exit=1603 "
                                                  L"log=C:\\L\\msi-install-7-9.log"});
  EXPECT_EQ(AppendSetupFailureDetails(L"Install failed."),
            L"Install failed.\n\nFailed step: application install through Windows Installer\nMSI "
            L"code: 1603\n" +
                FriendlyMsiExitText(1603, false) +
                L"\n\nMSI log excerpt:\nMSI (s) Error: file locked\n\nMSI log: "
                L"C:\\L\\msi-install-7-9.log\nApplication log: " +
                kAppLog);
}

TEST(AppendSetupFailureDetails, NonMsiFailureAndEmptyRecord) {
  ClearSetupFailure();
  EXPECT_EQ(AppendSetupFailureDetails(L"Repair failed."),
            L"Repair failed.\n\nApplication log: " + kAppLog);
  ReportSetupFailure(L"install-windows-update-policy", L"Politika nezapsána.",
                     L"Policy not written.");
  EXPECT_EQ(Fake().log.back(),
            L"setup failure: install-windows-update-policy: Policy not written.");
  AppConfig().language = L"cs";
  EXPECT_EQ(AppendSetupFailureDetails(L"X"),
            L"X\n\nCo selhalo: install-windows-update-policy\nPolitika nezapsána.\nLog aplikace: " +
                kAppLog);
}

TEST(MsiLogPath, NamedByPhaseProcessAndTicks) {
  EXPECT_EQ(MsiLogPath(L"C:\\D\\Stayhold", L"remove-existing", 4242, 123456789012ull),
            L"C:\\D\\Stayhold\\logs\\msi-remove-existing-4242-123456789012.log");
  EXPECT_EQ(MsiLogPath(L"C:\\D\\Stayhold", L"", 1, 2),
            L"C:\\D\\Stayhold\\logs\\msi-operation-1-2.log");
}

}  // namespace
