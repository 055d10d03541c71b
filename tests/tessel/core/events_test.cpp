#include "tessel/core/events.h"

#include <gtest/gtest.h>

#include <vector>

namespace tessel {
namespace {

TEST(DispatchInput, TriesTheListsInOrderUntilOneHandles) {
  // The list whose first slot sets `handled` (-1: none); the calls as list * 10 + phase seen,
  // then 100 + list for its second slot.
  const std::pair<int, std::vector<int>> cases[] = {
      {-1, {0, 100, 11, 101, 22, 102}}, {0, {0, 100}}, {2, {0, 100, 11, 101, 22, 102}}};
  for (const auto& [handleAt, expected] : cases) {
    InputSignals<KeyInputEvent> input;
    std::vector<int> calls;
    Signal<KeyInputEvent>* lists[] = {&input.first, &input.second, &input.third};
    for (int i = 0; i < 3; ++i) {
      lists[i]->connect([&calls, handleAt, i](KeyInputEvent& event) {
        calls.push_back(i * 10 + event.phase);
        if (i == handleAt) event.handled = true;
      });
      lists[i]->connect([&calls, i](KeyInputEvent&) { calls.push_back(100 + i); });
    }
    KeyInputEvent event;
    EXPECT_EQ(input.dispatchInput(event), handleAt >= 0) << handleAt;
    EXPECT_EQ(calls, expected) << handleAt;
  }
}

}  // namespace
}  // namespace tessel
