#include "guard/guard_state.h"

namespace {

struct GuardState {
  WindowHandle window = nullptr;
  bool blocking = false;
  bool block_reason_held = false;
};

GuardState& State() {
  static GuardState state;
  return state;
}

}  // namespace

StayholdConfig& AppConfig() {
  static StayholdConfig config;
  return config;
}

std::wstring ConfiguredLanguage() {
  return AppConfig().language;
}

WindowHandle GuardWindow() {
  return State().window;
}
void SetGuardWindow(WindowHandle window) {
  State().window = window;
}

bool GuardBlocking() {
  return State().blocking;
}
void SetGuardBlocking(bool blocking) {
  State().blocking = blocking;
}

bool BlockReasonHeld() {
  return State().block_reason_held;
}
void SetBlockReasonHeld(bool held) {
  State().block_reason_held = held;
}
