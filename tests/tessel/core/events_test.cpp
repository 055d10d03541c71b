#include "tessel/core/events.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessel {
namespace {

TEST(PrepareEvent, FillsOnlyWhatIsEmptyAndSetsPhaseOne) {
  int a = 0, b = 0;  // distinct addresses; nothing here dereferences them
  Control* const kA = reinterpret_cast<Control*>(&a);
  Control* const kB = reinterpret_cast<Control*>(&b);
  Control* const cases[][4] = {
      {nullptr, nullptr, kA, kA}, {kB, nullptr, kB, kA}, {nullptr, kB, kA, kB}, {kB, kB, kB, kB}};
  for (const auto& test : cases) {
    PopupEvent event;
    event.sender = test[0];
    event.target = test[1];
    event.phase = 7;
    event.handled = test[0] != nullptr;
    event.action = L"open";
    prepareEvent(event, kA);
    EXPECT_EQ(event.sender, test[2]);
    EXPECT_EQ(event.target, test[3]);
    EXPECT_EQ(event.phase, 1);
    EXPECT_EQ(event.handled, test[0] != nullptr);
    EXPECT_EQ(event.action, L"open");
  }
}

TEST(DispatchInput, TriesTheListsInOrderUntilOneHandles) {
  struct Case {
    int handleAt;            // the list whose first slot sets `handled`; -1: none
    std::vector<int> calls;  // list * 10 + phase seen, then 100 + list for its second slot
    bool result;
  };
  const Case cases[] = {{-1, {0, 100, 11, 101, 22, 102}, false},
                        {0, {0, 100}, true},
                        {1, {0, 100, 11, 101}, true},
                        {2, {0, 100, 11, 101, 22, 102}, true}};
  for (const Case& test : cases) {
    SCOPED_TRACE(test.handleAt);
    InputSignals<KeyInputEvent> input;
    std::vector<int> calls;
    Signal<KeyInputEvent>* lists[] = {&input.first, &input.second, &input.third};
    for (int i = 0; i < 3; ++i) {
      lists[i]->connect([&calls, &test, i](KeyInputEvent& event) {
        calls.push_back(i * 10 + event.phase);
        if (i == test.handleAt) event.handled = true;
      });
      lists[i]->connect([&calls, i](KeyInputEvent&) { calls.push_back(100 + i); });
    }
    KeyInputEvent event;
    EXPECT_EQ(input.dispatchInput(event), test.result);
    EXPECT_EQ(calls, test.calls);
  }
}

TEST(DispatchInput, WithoutALiveSlotItLeavesTheRecordAlone) {
  InputSignals<InputEvent> input;
  input.first.connect([](InputEvent& event) { event.handled = true; }).disconnect();
  input.second.connect(nullptr);
  EXPECT_FALSE(input.hasLiveSlot());
  KeyInputEvent event;
  event.phase = 9;
  EXPECT_FALSE(input.dispatchInput(event));
  EXPECT_EQ(event.phase, 9);
  input.third.connect([](InputEvent& event) { event.handled = event.kind == InputKind::Wheel; });
  WheelInputEvent wheel;  // a shared list takes every kind of input
  EXPECT_TRUE(input.dispatchInput(wheel));
  EXPECT_EQ(wheel.phase, 2);
}

TEST(DispatchInput, AHandlerDestroyingTheWindowEndsTheDispatch) {
  auto* input = new InputSignals<PointerInputEvent>;
  bool laterCalled = false;
  input->first.connect([&input](PointerInputEvent&) {
    delete input;
    input = nullptr;
  });
  input->second.connect([&](PointerInputEvent&) { laterCalled = true; });
  PointerInputEvent event;
  EXPECT_FALSE(input->dispatchInput(event));
  EXPECT_FALSE(laterCalled);
}

}  // namespace
}  // namespace tessel
