#include <gtest/gtest.h>

#include "guard/config.h"

namespace {

class FreshConfig : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo&) override { AppConfig() = StayholdConfig(); }
};

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  ::testing::UnitTest::GetInstance()->listeners().Append(new FreshConfig);
  return RUN_ALL_TESTS();
}
