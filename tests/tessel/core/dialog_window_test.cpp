#include "tessel/core/dialog_window.h"

#include <gtest/gtest.h>

#include "tests/tessel/core/test_controls.h"

namespace tessel {
namespace {

TEST(DialogWindow, EndsWithItsResultOrWithFiveWhenDestroyedWithoutOne) {
  DialogWindow dialog;
  RecordingPlatform platform;
  int destroys = 0;
  platform.onDestroy = [&] {
    ++destroys;
    dialog.destroying();  // as the system tells the window
  };
  dialog.setPlatform(&platform);
  dialog.started();
  dialog.endDialog(3);
  EXPECT_TRUE(dialog.finished());
  EXPECT_EQ(dialog.result(), 3);
  EXPECT_EQ(destroys, 1);
  dialog.setPlatform(nullptr);

  DialogWindow closed;
  closed.started();
  EXPECT_EQ(closed.result(), kNoDialogResult);
  EXPECT_FALSE(closed.finished());
  closed.destroying();
  EXPECT_TRUE(closed.finished());
  EXPECT_EQ(closed.result(), kDialogDestroyed);
}

}  // namespace
}  // namespace tessel
