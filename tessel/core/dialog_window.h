// A window that runs modally over an owner and hands back a result: 0 while there is none yet,
// 5 when the window was destroyed without one (closed by any means); the application's values
// lie in between. A dialog ends once and isn't run again.
#pragma once

#include <cstdint>

#include "tessel/core/window.h"

namespace tessel {

using DialogResult = int32_t;
constexpr DialogResult kNoDialogResult = 0;
constexpr DialogResult kDialogDestroyed = 5;

class DialogWindow : public Window {
 public:
  // Stores the result and destroys the window, which ends the modal loop.
  void endDialog(DialogResult result);
  DialogResult result() const { return result_; }
  bool finished() const { return finished_; }
  // The modal loop has started (a dialog isn't rerun).
  void started() { finished_ = false; }

  void onDestroying() override;

 private:
  DialogResult result_ = kNoDialogResult;
  bool finished_ = false;
};

}  // namespace tessel
