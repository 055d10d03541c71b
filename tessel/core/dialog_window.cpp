#include "tessel/core/dialog_window.h"

namespace tessel {

void DialogWindow::endDialog(DialogResult result) {
  result_ = result;
  finished_ = true;
  if (platform() != nullptr) platform()->destroy();
}

void DialogWindow::onDestroying() {
  finished_ = true;
  if (result_ == kNoDialogResult) result_ = kDialogDestroyed;
}

}  // namespace tessel
