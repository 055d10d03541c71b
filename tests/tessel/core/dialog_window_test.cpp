#include "tessel/core/dialog_window.h"

#include <gtest/gtest.h>

namespace tessel {
namespace {

class DestroyRecorder : public WindowPlatform {
 public:
  void invalidate(const Rect&) override {}
  void invalidateAll() override {}
  void setCapture() override {}
  void releaseCapture() override {}
  void trackPointerLeave() override {}
  uint64_t tickMs() const override { return 0; }
  bool buttonHeld() const override { return false; }
  void postClose() override {}
  void setRegion(const std::vector<Rect>&, bool) override {}
  // As the system does: destroying the window tells the window so.
  void destroy() override {
    ++destroys;
    if (dialog != nullptr) dialog->destroying();
  }
  DialogWindow* dialog = nullptr;
  int destroys = 0;
};

TEST(DialogWindow, EndDialogKeepsItsResultAndDestroysTheWindow) {
  DialogWindow dialog;
  DestroyRecorder platform;
  platform.dialog = &dialog;
  dialog.setPlatform(&platform);
  dialog.started();
  EXPECT_FALSE(dialog.finished());
  dialog.endDialog(3);
  EXPECT_TRUE(dialog.finished());
  EXPECT_EQ(dialog.result(), 3);
  EXPECT_EQ(platform.destroys, 1);
  dialog.setPlatform(nullptr);
}

TEST(DialogWindow, DestroyedWithoutAResultEndsWithFive) {
  DialogWindow dialog;
  dialog.started();
  EXPECT_EQ(dialog.result(), kNoDialogResult);
  dialog.destroying();
  EXPECT_TRUE(dialog.finished());
  EXPECT_EQ(dialog.result(), kDialogDestroyed);
}

}  // namespace
}  // namespace tessel
