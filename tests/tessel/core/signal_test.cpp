#include "tessel/core/signal.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace tessel {
namespace {

// The record is the list of slots that saw it, in order.
using Calls = std::vector<std::string>;
using TraceSignal = Signal<Calls>;

// A slot that records its name, then does `then`.
std::function<void(Calls&)> record(
    const std::string& name, std::function<void()> then = [] {}) {
  return [name, then](Calls& calls) {
    calls.push_back(name);
    then();
  };
}

Calls emitTrace(TraceSignal& signal) {
  Calls calls;
  signal.emit(calls);
  return calls;
}

TEST(Signal, CallsEveryLiveSlotInOrderWithItsOwnCallable) {
  Signal<int> numbers;
  numbers.connect([](int& value) { value = value * 10 + 1; });
  // The walk calls the stored callable, not a fresh copy: the count goes on across emissions.
  numbers.connect([count = 0](int& value) mutable { value = value * 10 + ++count; });
  int value = 0;
  numbers.emit(value);
  numbers.emit(value);
  EXPECT_EQ(value, 1112);

  // An empty callable makes a slot that is never live; connect and emit compact dead slots.
  TraceSignal signal;
  signal.connect(nullptr);
  EXPECT_FALSE(signal.hasLiveSlot());
  signal.connect(record("a")).disconnect();
  EXPECT_EQ(signal.size(), 1u);
  EXPECT_TRUE(emitTrace(signal).empty());
  EXPECT_EQ(signal.size(), 0u);
}

TEST(Signal, HandlersMayChangeTheListDuringAnEmission) {
  // Slot 1 disconnects slot 0 (it has run), itself (it runs once) or slot 2 (it stops at once).
  const Calls firsts[] = {{"s0", "s1", "s2"}, {"s0", "s1", "s2"}, {"s0", "s1"}};
  const Calls seconds[] = {{"s1", "s2"}, {"s0", "s2"}, {"s0", "s1"}};
  for (int victim = 0; victim < 3; ++victim) {
    TraceSignal signal;
    Connection slots[3];
    slots[0] = signal.connect(record("s0"));
    slots[1] = signal.connect(record("s1", [&] { slots[victim].disconnect(); }));
    slots[2] = signal.connect(record("s2"));
    EXPECT_EQ(emitTrace(signal), firsts[victim]);
    EXPECT_EQ(emitTrace(signal), seconds[victim]);
  }

  TraceSignal nested;  // a slot connected meanwhile waits; an inner emission compacts the list
  Connection doomed;
  nested.connect(record("a", [&] {
    if (!doomed.connected()) return;
    doomed.disconnect();
    nested.connect(record("late"));
    EXPECT_EQ(emitTrace(nested), (Calls{"a", "c", "late"}));
  }));
  doomed = nested.connect(record("doomed"));
  nested.connect(record("c"));
  EXPECT_EQ(emitTrace(nested), (Calls{"a", "c"}));
  EXPECT_EQ(nested.size(), 3u);
}

TEST(Signal, AHandlerDestroyingTheOwnerEndsTheEmissionSafely) {
  auto* owner = new TraceSignal;
  auto witness = std::make_shared<int>(0);
  owner->connect(record("before"));
  owner->connect([&owner, witness](Calls& calls) {
    delete owner;
    ++*witness;  // the running callable and its captures outlive the signal
    calls.push_back("killer");
  });
  Connection after = owner->connect(record("after"));
  EXPECT_EQ(emitTrace(*owner), (Calls{"before", "killer"}));
  EXPECT_FALSE(after.connected());
  after.disconnect();
  EXPECT_EQ(witness.use_count(), 1);  // the walk's copy went with the emission
}

TEST(Connection, IsAWeakHandleOnOneSlot) {
  TraceSignal signal;
  signal.connect(record("dropped"));  // destroying a handle leaves its slot connected
  Connection original = signal.connect(record("copied"));
  Connection(original).disconnect();  // a copy disconnects the same slot
  // Assigning another slot disconnects the one held; assigning itself keeps it.
  Connection moved = signal.connect(record("old"));
  moved = signal.connect(record("new"));
  Connection& alias = moved;
  moved = alias;
  Connection movedFrom = signal.connect(record("moved-from"));
  const Connection movedTo = std::move(movedFrom);
  movedFrom.disconnect();  // no longer controls the slot
  EXPECT_EQ(emitTrace(signal), (Calls{"dropped", "new", "moved-from"}));
  EXPECT_FALSE(original.connected());
  EXPECT_TRUE(moved.connected() && movedTo.connected());
}

}  // namespace
}  // namespace tessel
