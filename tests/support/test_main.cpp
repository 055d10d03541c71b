#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "i18n/language.h"
#ifdef STAYHOLD_FAKE_PLATFORM
#include "tests/support/fake_platform.h"
#endif

namespace {

// Every test starts from the default configuration, and from a fresh fake platform where one is
// linked in (the Windows suites that use the real platform have none).
class FreshState : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override {
#ifdef STAYHOLD_FAKE_PLATFORM
    ResetFakePlatform();
#endif
    AppConfig() = StayholdConfig();
    SetLanguageSettingReader(&ConfiguredLanguage);
  }
};

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::UnitTest::GetInstance()->listeners().Append(new FreshState);
  return RUN_ALL_TESTS();
}
