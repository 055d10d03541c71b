#include "tessel/core/signal.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "tessel/core/events.h"

namespace tessel {
namespace {

// A record that notes which slots saw it, in order.
struct TraceEvent {
  std::vector<std::string> calls;
  bool handled = false;
};

using TraceSignal = Signal<TraceEvent>;

std::function<void(TraceEvent&)> record(const std::string& name) {
  return [name](TraceEvent& event) { event.calls.push_back(name); };
}

std::vector<std::string> emitTrace(TraceSignal& signal) {
  TraceEvent event;
  signal.emit(event);
  return event.calls;
}

using Calls = std::vector<std::string>;

TEST(SignalTest, CallsSlotsInOrderOfConnection) {
  TraceSignal signal;
  signal.connect(record("a"));
  signal.connect(record("b"));
  signal.connect(record("c"));
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "b", "c"}));
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "b", "c"}));
}

TEST(SignalTest, HandlersShareOneMutableRecord) {
  Signal<int> signal;
  signal.connect([](int& value) { value = value * 10 + 1; });
  signal.connect([](int& value) { value = value * 10 + 2; });
  int value = 0;
  signal.emit(value);
  EXPECT_EQ(value, 12);
}

TEST(SignalTest, EmptySignalEmitsNothingAndHasNoLiveSlot) {
  TraceSignal signal;
  EXPECT_FALSE(signal.hasLiveSlot());
  EXPECT_TRUE(emitTrace(signal).empty());
  EXPECT_EQ(signal.size(), 0u);
}

TEST(SignalTest, EmptyCallableMakesASlotThatIsNeverLive) {
  TraceSignal signal;
  Connection empty = signal.connect(nullptr);
  EXPECT_EQ(signal.size(), 1u);
  EXPECT_FALSE(signal.hasLiveSlot());

  signal.connect(record("a"));
  EXPECT_TRUE(signal.hasLiveSlot());
  // The empty slot went at the compaction before the second connect.
  EXPECT_EQ(signal.size(), 1u);
  EXPECT_EQ(emitTrace(signal), (Calls{"a"}));
}

TEST(SignalTest, EmptyCallableSlotIsDroppedByEmission) {
  TraceSignal signal;
  signal.connect(std::function<void(TraceEvent&)>());
  EXPECT_TRUE(emitTrace(signal).empty());
  EXPECT_EQ(signal.size(), 0u);
}

TEST(SignalTest, ConnectCompactsDisconnectedSlots) {
  TraceSignal signal;
  Connection a = signal.connect(record("a"));
  Connection b = signal.connect(record("b"));
  a.disconnect();
  b.disconnect();
  EXPECT_EQ(signal.size(), 2u);
  EXPECT_FALSE(signal.hasLiveSlot());
  signal.connect(record("c"));
  EXPECT_EQ(signal.size(), 1u);
  EXPECT_EQ(emitTrace(signal), (Calls{"c"}));
}

TEST(SignalTest, MutableCapturesPersistAcrossEmissions) {
  // The walk calls the stored callable, not a fresh copy of it.
  Signal<int> signal;
  signal.connect([count = 0](int& seen) mutable { seen = ++count; });
  int seen = 0;
  signal.emit(seen);
  signal.emit(seen);
  signal.emit(seen);
  EXPECT_EQ(seen, 3);
}

TEST(SignalTest, HandledDoesNotStopLaterSlots) {
  TraceSignal signal;
  signal.connect([](TraceEvent& event) {
    event.calls.push_back("a");
    event.handled = true;
  });
  signal.connect(record("b"));
  TraceEvent event;
  signal.emit(event);
  EXPECT_EQ(event.calls, (Calls{"a", "b"}));
  EXPECT_TRUE(event.handled);
}

// --- re-entrancy ---

TEST(SignalReentrancyTest, SelfDisconnectingHandlerIsCalledOnceAndLeavesTheList) {
  TraceSignal signal;
  signal.connect(record("a"));
  auto self = std::make_shared<Connection>();
  *self = signal.connect([self](TraceEvent& event) {
    event.calls.push_back("self");
    self->disconnect();
  });
  signal.connect(record("c"));
  EXPECT_EQ(signal.size(), 3u);

  EXPECT_EQ(emitTrace(signal), (Calls{"a", "self", "c"}));
  EXPECT_EQ(signal.size(), 2u);
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "c"}));
  EXPECT_FALSE(self->connected());
}

struct NeighbourCase {
  const char* what;
  int victim;  // index of the slot that slot 1 disconnects
  Calls first;
  Calls second;
};

const NeighbourCase kNeighbourCases[] = {
    {"a later slot stops within the same emission", 2, {"s0", "s1", "s3"}, {"s0", "s1", "s3"}},
    {"an earlier slot has already run", 0, {"s0", "s1", "s2", "s3"}, {"s1", "s2", "s3"}},
};

TEST(SignalReentrancyTest, HandlerDisconnectingAnotherSlot) {
  for (const NeighbourCase& test : kNeighbourCases) {
    SCOPED_TRACE(test.what);
    TraceSignal signal;
    std::vector<Connection> handles(4);
    handles[0] = signal.connect(record("s0"));
    handles[1] = signal.connect([&handles, &test](TraceEvent& event) {
      event.calls.push_back("s1");
      handles[test.victim].disconnect();
    });
    handles[2] = signal.connect(record("s2"));
    handles[3] = signal.connect(record("s3"));
    EXPECT_EQ(emitTrace(signal), test.first);
    EXPECT_EQ(emitTrace(signal), test.second);
    EXPECT_EQ(signal.size(), 3u);
  }
}

TEST(SignalReentrancyTest, SlotConnectedDuringEmissionWaitsForTheNextOne) {
  TraceSignal signal;
  int connects = 0;
  signal.connect([&](TraceEvent& event) {
    event.calls.push_back("a");
    if (connects++ == 0) signal.connect(record("late"));
  });
  signal.connect(record("b"));
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "b"}));
  EXPECT_EQ(signal.size(), 3u);
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "b", "late"}));
}

TEST(SignalReentrancyTest, HandlerMayEmitTheSameSignalAgain) {
  TraceSignal signal;
  int depth = 0;
  signal.connect([&](TraceEvent& event) {
    event.calls.push_back("outer" + std::to_string(depth));
    if (depth < 2) {
      ++depth;
      signal.emit(event);
      --depth;
    }
  });
  signal.connect([&](TraceEvent& event) { event.calls.push_back("tail" + std::to_string(depth)); });
  EXPECT_EQ(emitTrace(signal), (Calls{"outer0", "outer1", "outer2", "tail2", "tail1", "tail0"}));
  EXPECT_EQ(signal.size(), 2u);
}

TEST(SignalReentrancyTest, InnerEmissionCompactingDoesNotDisturbTheOuterWalk) {
  TraceSignal signal;
  Connection doomed;
  bool nested = false;
  signal.connect([&](TraceEvent& event) {
    event.calls.push_back("a");
    if (!nested) {
      nested = true;
      doomed.disconnect();
      TraceEvent inner;
      signal.emit(inner);  // compacts the list the outer emission copied
      event.calls.push_back("inner:" + std::to_string(inner.calls.size()));
    }
  });
  doomed = signal.connect(record("doomed"));
  signal.connect(record("c"));
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "inner:2", "c"}));
  EXPECT_EQ(signal.size(), 2u);
}

// An owner of a signal, the way a control holds its signals.
struct Owner {
  TraceSignal changed;
};

TEST(SignalReentrancyTest, HandlerDestroyingTheOwnerEndsTheEmissionSafely) {
  auto* owner = new Owner;
  auto witness = std::make_shared<int>(0);
  std::vector<std::string> calls;
  owner->changed.connect([&calls](TraceEvent&) { calls.push_back("before"); });
  owner->changed.connect([&owner, &calls, witness](TraceEvent&) {
    delete owner;
    owner = nullptr;
    // The running callable and its captures outlive the signal until the walk ends.
    ++*witness;
    calls.push_back("killer");
  });
  Connection after = owner->changed.connect([&calls](TraceEvent&) { calls.push_back("after"); });

  TraceEvent event;
  owner->changed.emit(event);

  EXPECT_EQ(owner, nullptr);
  EXPECT_EQ(*witness, 1);
  // The signal's end disconnected the rest of the walk.
  EXPECT_EQ(calls, (Calls{"before", "killer"}));
  EXPECT_FALSE(after.connected());
  after.disconnect();
  // The walk's copy is gone with the emission: the last reference is the test's own.
  EXPECT_EQ(witness.use_count(), 1);
}

// --- connection handles ---

TEST(ConnectionTest, DisconnectingTwiceDoesNothingTheSecondTime) {
  TraceSignal signal;
  Connection a = signal.connect(record("a"));
  signal.connect(record("b"));
  a.disconnect();
  EXPECT_FALSE(a.connected());
  a.disconnect();
  EXPECT_FALSE(a.connected());
  EXPECT_EQ(emitTrace(signal), (Calls{"b"}));
}

TEST(ConnectionTest, EmptyHandleIsHarmless) {
  Connection none;
  EXPECT_FALSE(none.connected());
  none.disconnect();
  EXPECT_FALSE(none.connected());
}

TEST(ConnectionTest, DestroyingAHandleLeavesTheSlotConnected) {
  TraceSignal signal;
  { Connection scoped = signal.connect(record("a")); }
  signal.connect(record("b"));
  EXPECT_EQ(emitTrace(signal), (Calls{"a", "b"}));
}

TEST(ConnectionTest, CopiesReferToTheSameSlot) {
  TraceSignal signal;
  Connection original = signal.connect(record("a"));
  Connection copy = original;
  EXPECT_TRUE(copy.connected());
  copy.disconnect();
  EXPECT_FALSE(original.connected());
  EXPECT_TRUE(emitTrace(signal).empty());
}

struct ReassignCase {
  const char* what;
  std::function<void(Connection& handle, TraceSignal& signal)> reassign;
  Calls expected;
};

TEST(ConnectionTest, AssigningAnotherConnectionDisconnectsTheOldOne) {
  const ReassignCase cases[] = {
      {"moved from a new connect",
       [](Connection& handle, TraceSignal& signal) { handle = signal.connect(record("new")); },
       {"new"}},
      {"copied from a named handle",
       [](Connection& handle, TraceSignal& signal) {
         Connection other = signal.connect(record("new"));
         handle = other;
       },
       {"new"}},
      {"an empty handle", [](Connection& handle, TraceSignal&) { handle = Connection(); }, {}},
  };
  for (const ReassignCase& test : cases) {
    SCOPED_TRACE(test.what);
    TraceSignal signal;
    Connection handle = signal.connect(record("old"));
    test.reassign(handle, signal);
    EXPECT_EQ(emitTrace(signal), test.expected);
    EXPECT_EQ(handle.connected(), !test.expected.empty());
  }
}

TEST(ConnectionTest, AssigningTheSameSlotKeepsItConnected) {
  TraceSignal signal;
  Connection handle = signal.connect(record("a"));
  Connection copy = handle;
  handle = copy;
  Connection& alias = handle;
  handle = alias;
  handle = std::move(copy);
  EXPECT_TRUE(handle.connected());
  EXPECT_EQ(emitTrace(signal), (Calls{"a"}));
}

TEST(ConnectionTest, MovedFromHandleNoLongerControlsTheSlot) {
  TraceSignal signal;
  Connection first = signal.connect(record("a"));
  Connection second = std::move(first);
  first.disconnect();
  EXPECT_TRUE(second.connected());
  EXPECT_EQ(emitTrace(signal), (Calls{"a"}));
}

TEST(ConnectionTest, HandleOutlivingItsSignalIsHarmless) {
  Connection handle;
  {
    TraceSignal signal;
    handle = signal.connect(record("a"));
    EXPECT_TRUE(handle.connected());
  }
  EXPECT_FALSE(handle.connected());
  handle.disconnect();
  handle = Connection();
  EXPECT_FALSE(handle.connected());
}

TEST(ConnectionTest, HasLiveSlotFollowsDisconnects) {
  TraceSignal signal;
  Connection a = signal.connect(record("a"));
  Connection b = signal.connect(record("b"));
  EXPECT_TRUE(signal.hasLiveSlot());
  a.disconnect();
  EXPECT_TRUE(signal.hasLiveSlot());
  b.disconnect();
  EXPECT_FALSE(signal.hasLiveSlot());
}

// --- the emitter's side: a default action that a handler can veto ---

// A stand-in for a control with a plain callback property beside its signal.
class FakeButton {
 public:
  Signal<CommandEvent> command;
  std::function<void()> onClicked;

  void click() {
    CommandEvent event;
    prepareEvent(event, nullptr);
    command.emit(event);
    if (!event.handled && onClicked) onClicked();
  }
};

struct VetoCase {
  const char* what;
  std::vector<bool> handlerSetsHandled;
  bool defaultRuns;
};

const VetoCase kVetoCases[] = {
    {"no handler", {}, true},
    {"handler leaves it", {false}, true},
    {"handler vetoes", {true}, false},
    {"first of two vetoes", {true, false}, false},
    {"second of two vetoes", {false, true}, false},
};

TEST(SignalDefaultActionTest, DefaultRunsOnlyWhenNoHandlerSetHandled) {
  for (const VetoCase& test : kVetoCases) {
    SCOPED_TRACE(test.what);
    FakeButton button;
    int defaults = 0;
    int handlers = 0;
    button.onClicked = [&] { ++defaults; };
    for (bool veto : test.handlerSetsHandled) {
      button.command.connect([&handlers, veto](CommandEvent& event) {
        ++handlers;
        if (veto) event.handled = true;
      });
    }
    button.click();
    EXPECT_EQ(defaults, test.defaultRuns ? 1 : 0);
    EXPECT_EQ(handlers, static_cast<int>(test.handlerSetsHandled.size()));
  }
}

}  // namespace
}  // namespace tessel
