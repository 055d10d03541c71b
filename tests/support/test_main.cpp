#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "i18n/language.h"
#ifndef _WIN32
#include "tests/support/fake_platform.h"
#endif

namespace {

// Every test starts from the default configuration, and natively from a fresh fake platform.
class FreshState : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override {
#ifndef _WIN32
    ResetFakePlatform();
#endif
    AppConfig() = StayholdConfig();
    // As the application does at start: the interface speaks the configuration's language.
    SetLanguageSettingReader(&ConfiguredLanguage);
  }
};

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::UnitTest::GetInstance()->listeners().Append(new FreshState);
  return RUN_ALL_TESTS();
}
