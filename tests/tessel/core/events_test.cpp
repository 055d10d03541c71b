#include "tessel/core/events.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace tessel {
namespace {

// Distinct control addresses for the pointer fields; nothing here dereferences them.
int gControlA = 0;
int gControlB = 0;
int gControlC = 0;
Control* const kA = reinterpret_cast<Control*>(&gControlA);
Control* const kB = reinterpret_cast<Control*>(&gControlB);
Control* const kC = reinterpret_cast<Control*>(&gControlC);

struct PrepareCase {
  const char* what;
  Control* sender;
  Control* target;
  Control* expectedSender;
  Control* expectedTarget;
};

const PrepareCase kPrepareCases[] = {
    {"both empty take the emitter", nullptr, nullptr, kA, kA},
    {"a sender already set is kept", kB, nullptr, kB, kA},
    {"a target already set is kept", nullptr, kC, kA, kC},
    {"both set are kept", kB, kC, kB, kC},
};

TEST(PrepareEventTest, FillsOnlyWhatIsEmptyAndSetsPhaseOne) {
  for (const PrepareCase& test : kPrepareCases) {
    SCOPED_TRACE(test.what);
    CommandEvent event;
    event.sender = test.sender;
    event.target = test.target;
    event.phase = 7;
    prepareEvent(event, kA);
    EXPECT_EQ(event.sender, test.expectedSender);
    EXPECT_EQ(event.target, test.expectedTarget);
    EXPECT_EQ(event.phase, 1);
    EXPECT_FALSE(event.handled);
  }
}

TEST(PrepareEventTest, LeavesHandledAndFurtherFieldsAlone) {
  PopupEvent event;
  event.handled = true;
  event.kind = PopupEvent::kAction;
  event.actionIndex = 3;
  event.action = L"open";
  prepareEvent(event, kB);
  EXPECT_TRUE(event.handled);
  EXPECT_EQ(event.kind, PopupEvent::kAction);
  EXPECT_EQ(event.actionIndex, 3);
  EXPECT_EQ(event.action, L"open");
  EXPECT_EQ(event.sender, kB);
}

TEST(EventRecordTest, PopupWithoutActionHasNoActionIndex) {
  PopupEvent event;
  EXPECT_EQ(event.kind, PopupEvent::kClose);
  EXPECT_EQ(event.actionIndex, -1);
}

// --- window input dispatch ---

struct DispatchTrace {
  std::vector<int> phases;  // the phase each called list saw, in call order
};

// Connects one recording handler per list; `handleAt` is the list that sets `handled`, or -1.
void connectRecorders(InputSignals<KeyInputEvent>& input, DispatchTrace& trace, int handleAt) {
  Signal<KeyInputEvent>* lists[] = {&input.first, &input.second, &input.third};
  for (int i = 0; i < 3; ++i) {
    lists[i]->connect([&trace, i, handleAt](KeyInputEvent& event) {
      trace.phases.push_back(i * 10 + event.phase);
      if (i == handleAt) event.handled = true;
    });
  }
}

struct DispatchCase {
  const char* what;
  int handleAt;
  std::vector<int> phases;  // list * 10 + phase
  bool result;
};

const DispatchCase kDispatchCases[] = {
    {"nobody handles: all three in order", -1, {0, 11, 22}, false},
    {"first list handles", 0, {0}, true},
    {"second list handles", 1, {0, 11}, true},
    {"third list handles", 2, {0, 11, 22}, true},
};

TEST(DispatchInputTest, TriesTheListsInOrderUntilHandled) {
  for (const DispatchCase& test : kDispatchCases) {
    SCOPED_TRACE(test.what);
    InputSignals<KeyInputEvent> input;
    DispatchTrace trace;
    connectRecorders(input, trace, test.handleAt);
    KeyInputEvent event;
    event.virtualKey = 0x41;
    EXPECT_EQ(input.dispatchInput(event), test.result);
    EXPECT_EQ(trace.phases, test.phases);
  }
}

TEST(DispatchInputTest, SeveralSlotsOfOneListAllRunBeforeTheStop) {
  InputSignals<KeyInputEvent> input;
  std::vector<int> calls;
  input.first.connect([&](KeyInputEvent& event) {
    calls.push_back(1);
    event.handled = true;
  });
  input.first.connect([&](KeyInputEvent&) { calls.push_back(2); });
  input.second.connect([&](KeyInputEvent&) { calls.push_back(3); });
  KeyInputEvent event;
  EXPECT_TRUE(input.dispatchInput(event));
  EXPECT_EQ(calls, (std::vector<int>{1, 2}));
}

TEST(DispatchInputTest, OnlyALaterListListeningStillCounts) {
  InputSignals<KeyInputEvent> input;
  std::vector<int> phases;
  input.third.connect([&](KeyInputEvent& event) { phases.push_back(event.phase); });
  KeyInputEvent event;
  EXPECT_FALSE(input.dispatchInput(event));
  EXPECT_EQ(phases, (std::vector<int>{2}));
}

TEST(DispatchInputTest, WithoutALiveSlotReturnsAtOnceAndLeavesTheRecord) {
  InputSignals<KeyInputEvent> input;
  Connection gone = input.first.connect([](KeyInputEvent& event) { event.handled = true; });
  gone.disconnect();
  input.second.connect(nullptr);
  EXPECT_FALSE(input.hasLiveSlot());

  KeyInputEvent event;
  event.phase = 9;
  EXPECT_FALSE(input.dispatchInput(event));
  EXPECT_EQ(event.phase, 9);
  EXPECT_FALSE(event.handled);
}

TEST(DispatchInputTest, SharedListsTakeEveryKindOfInput) {
  InputSignals<InputEvent> input;
  std::vector<InputKind> kinds;
  int32_t wheelDelta = 0;
  input.first.connect([&](InputEvent& event) {
    kinds.push_back(event.kind);
    if (event.kind == InputKind::Wheel) {
      wheelDelta = static_cast<WheelInputEvent&>(event).delta;
      event.handled = true;
    }
  });

  PointerInputEvent pointer;
  WheelInputEvent wheel;
  wheel.delta = -120;
  KeyInputEvent key;
  CharacterInputEvent character;
  character.character = u'x';
  EXPECT_FALSE(input.dispatchInput(pointer));
  EXPECT_TRUE(input.dispatchInput(wheel));
  EXPECT_FALSE(input.dispatchInput(key));
  EXPECT_FALSE(input.dispatchInput(character));

  EXPECT_EQ(kinds, (std::vector<InputKind>{InputKind::Pointer, InputKind::Wheel, InputKind::Key,
                                           InputKind::Character}));
  EXPECT_EQ(wheelDelta, -120);
}

struct FakeWindow {
  InputSignals<PointerInputEvent> input;
};

TEST(DispatchInputTest, HandlerDestroyingTheWindowEndsTheDispatch) {
  auto* window = new FakeWindow;
  bool laterCalled = false;
  window->input.first.connect([&window](PointerInputEvent&) {
    delete window;
    window = nullptr;
  });
  window->input.second.connect([&laterCalled](PointerInputEvent&) { laterCalled = true; });
  PointerInputEvent event;
  EXPECT_FALSE(window->input.dispatchInput(event));
  EXPECT_EQ(window, nullptr);
  EXPECT_FALSE(laterCalled);
}

}  // namespace
}  // namespace tessel
