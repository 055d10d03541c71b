#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "i18n/language.h"
#include "tests/support/fake_platform.h"

namespace {

// Every test starts from a fresh platform and default configuration.
class FreshState : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override {
    ResetFakePlatform();
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
