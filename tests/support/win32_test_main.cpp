#include <gtest/gtest.h>

#include "guard/guard_state.h"
#include "i18n/language.h"

namespace {

class FreshConfig : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override {
    AppConfig() = StayholdConfig();
    // As the application does at start: the interface speaks the configuration's language.
    SetLanguageSettingReader(&ConfiguredLanguage);
  }
};

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::UnitTest::GetInstance()->listeners().Append(new FreshConfig);
  return RUN_ALL_TESTS();
}
