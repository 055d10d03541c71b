// The event records that controls and windows hand to their signals, and the three-step input
// dispatch of a window. Every record starts with the same four fields; an emitter fills the
// empty ones before the first handler runs and reads `handled` after the last.
#pragma once

#include <concepts>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tessel/style/geometry.h"
#include "tessel/core/signal.h"

namespace tessel {

class Control;

// The platform's window handle, passed through untouched (an HWND on Windows).
using NativeWindow = void*;

struct EventBase {
  Control* sender = nullptr;  // the control that emits
  Control* target = nullptr;  // the control the event is about
  int32_t phase = 0;
  bool handled = false;  // set by a handler to veto the emitter's default action
};

// Fills what the emitter leaves empty: a sender or target set by the caller is kept.
template <class E>
void prepareEvent(E& event, Control* emitter) {
  if (event.sender == nullptr) event.sender = emitter;
  if (event.target == nullptr) event.target = emitter;
  event.phase = 1;
}

struct CommandEvent : EventBase {
  std::wstring command;
  std::wstring value;
  std::wstring source;
};

struct ValueChangedEvent : EventBase {
  std::wstring text;
  std::wstring previousText;
  int32_t value = 0;
  int32_t previousValue = 0;
  bool checked = false;
  bool previousChecked = false;
};

struct SelectionChangedEvent : EventBase {
  int32_t index = -1;  // -1: nothing selected
  int32_t previousIndex = -1;
  std::vector<int32_t> path;
  std::vector<int32_t> previousPath;
  std::wstring value;
  std::wstring text;
};

struct ActivationEvent : EventBase {
  std::vector<int32_t> path;
  std::wstring value;
  std::wstring text;
};

struct CommitEvent : EventBase {
  std::wstring text;
  std::wstring previousText;
  int32_t value = 0;
  std::wstring source;
};

struct ExpansionChangedEvent : EventBase {
  std::vector<int32_t> path;
  bool expanded = false;
};

struct SortChangedEvent : EventBase {
  int32_t column = -1;  // -1: no column
  int32_t direction = 0;
  std::wstring key;
};

struct ColumnWidthsChangedEvent : EventBase {
  std::vector<int32_t> widths;
};

struct PopupEvent : EventBase {
  static constexpr int32_t kClose = 0;
  static constexpr int32_t kAction = 2;
  int32_t kind = kClose;
  int32_t actionIndex = -1;  // -1: no action
  std::wstring action;
  std::wstring value;
  std::wstring source;
};

struct ScrollEvent : EventBase {
  int32_t first = 0;  // the scroll bar's bounds, first and second
  int32_t value = 0;
  int32_t previousValue = 0;
  int32_t second = 0;
  int32_t delta = 0;
  bool vertical = true;
  std::wstring source;
};

// A link in a control's tooltip.
struct TooltipAction {
  std::wstring id;
  std::wstring value;
  bool flag = false;
};

// Window input, offered to the window's input lists before any control sees it. All records
// share one base with a kind, so one set of lists can take every kind of input.
enum class InputKind : int32_t { Pointer, Wheel, Key, Character };

struct InputEvent : EventBase {
  InputKind kind = InputKind::Pointer;
};

struct PointerInputEvent : InputEvent {
  PointerInputEvent() { kind = InputKind::Pointer; }
  std::wstring source;
  Point screenPoint;
  Point localPoint;
  int32_t button = 0;
  bool pressed = false;
  uint32_t keyState = 0;  // the message's modifier and button flags
};

struct WheelInputEvent : PointerInputEvent {
  WheelInputEvent() { kind = InputKind::Wheel; }
  int32_t delta = 0;
  bool horizontal = false;
};

struct KeyInputEvent : InputEvent {
  KeyInputEvent() { kind = InputKind::Key; }
  uint32_t virtualKey = 0;
  bool ctrl = false;
  bool shift = false;
  bool alt = false;
  NativeWindow window = nullptr;
};

struct CharacterInputEvent : InputEvent {
  CharacterInputEvent() { kind = InputKind::Character; }
  uint16_t character = 0;  // one UTF-16 code unit
  NativeWindow window = nullptr;
};

// The three input lists of a window, tried in order. `Record` may be one record type, or
// `InputEvent` for lists that take every kind; handlers then look at `kind`.
template <class Record>
class InputSignals {
 public:
  Signal<Record> first;
  Signal<Record> second;
  Signal<Record> third;

  InputSignals() = default;
  InputSignals(const InputSignals&) = delete;
  InputSignals& operator=(const InputSignals&) = delete;
  ~InputSignals() { *alive_ = false; }

  // The window asks this before building a record at all.
  bool hasLiveSlot() const {
    return first.hasLiveSlot() || second.hasLiveSlot() || third.hasLiveSlot();
  }

  // True when a handler took the input, which ends the handling of the message.
  template <class R>
  requires std::derived_from<R, Record>
  bool dispatchInput(R& record) {
    if (!hasLiveSlot()) return false;
    // A handler may destroy the window and with it these lists; later phases are then skipped.
    const std::shared_ptr<bool> alive = alive_;
    Signal<Record>* const lists[] = {&first, &second, &third};
    for (int32_t phase = 0; phase < 3 && *alive; ++phase) {
      record.phase = phase;
      lists[phase]->emit(record);
      if (record.handled) break;
    }
    return record.handled;
  }

 private:
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tessel
