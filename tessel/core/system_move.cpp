#include "tessel/core/system_move.h"

#include <utility>

namespace tessel {

namespace {

SystemMoveHook& hook() {
  static SystemMoveHook installed;
  return installed;
}

}  // namespace

void setSystemMoveHook(SystemMoveHook h) {
  hook() = std::move(h);
}

bool startSystemMove(Control& source) {
  if (!hook()) return false;
  hook()(source);
  return true;
}

}  // namespace tessel
