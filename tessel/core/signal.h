// Signals: ordered lists of callables that receive a mutable event record. Handlers may
// disconnect, connect, emit again or destroy the signal's owner from inside a call; an emission
// walks a copy of the list so that none of this disturbs the walk. UI thread only.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tessel {

struct SignalConnectionState {
  bool connected = true;
};

// A weak handle on one slot. It is not a scope guard: destroying a handle leaves the slot
// connected. Copies refer to the same slot.
class Connection {
 public:
  Connection() = default;
  explicit Connection(std::weak_ptr<SignalConnectionState> state) : state_(std::move(state)) {}
  Connection(const Connection&) = default;
  Connection(Connection&& other) noexcept : state_(std::move(other.state_)) {
    other.state_.reset();
  }
  ~Connection() = default;

  // Assigning disconnects the slot held so far, unless the new handle names the same slot.
  Connection& operator=(const Connection& other) {
    if (!sameSlot(other)) {
      disconnect();
      state_ = other.state_;
    }
    return *this;
  }
  Connection& operator=(Connection&& other) noexcept {
    if (!sameSlot(other)) disconnect();
    state_ = std::move(other.state_);
    other.state_.reset();
    return *this;
  }

  // Idempotent; harmless after the signal is gone.
  void disconnect() {
    if (auto state = state_.lock()) state->connected = false;
    state_.reset();
  }

  bool connected() const {
    auto state = state_.lock();
    return state && state->connected;
  }

 private:
  // Compares ownership rather than the pointer, so an expired handle still matches its copies.
  bool sameSlot(const Connection& other) const {
    return !state_.owner_before(other.state_) && !other.state_.owner_before(state_);
  }

  std::weak_ptr<SignalConnectionState> state_;
};

template <typename Event>
class Signal {
 public:
  using Handler = std::function<void(Event&)>;

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  // Dropping the signal disconnects every slot, so an emission still walking its copy when a
  // handler destroyed the owner calls none of the remaining slots, and handles read false.
  ~Signal() {
    for (const Slot& slot : slots_) {
      slot.state->connected = false;
    }
    *alive_ = false;
  }

  // An empty callable still makes a slot, which is never live.
  Connection connect(Handler handler) {
    compact();
    Slot slot{std::make_shared<SignalConnectionState>(), nullptr};
    if (handler) slot.handler = std::make_shared<Handler>(std::move(handler));
    Connection connection(slot.state);
    slots_.push_back(std::move(slot));
    return connection;
  }

  // Calls every slot that is live at its turn, in order of connection. `handled` is not read
  // here: every slot is called, and only the emitter looks at it afterwards.
  void emit(Event& event) {
    compact();
    // The copy shares states and callables: a disconnect during the walk is seen at the slot's
    // turn, a new slot waits for the next emission, and a running callable stays alive.
    const std::vector<Slot> walk = slots_;
    const std::shared_ptr<bool> alive = alive_;
    for (const Slot& slot : walk) {
      if (slot.live()) (*slot.handler)(event);
    }
    // A handler may have destroyed this signal; then nothing of it may be touched.
    if (*alive) compact();
  }

  bool hasLiveSlot() const {
    for (const Slot& slot : slots_) {
      if (slot.live()) return true;
    }
    return false;
  }

  // Slots held, live or not yet compacted away.
  std::size_t size() const { return slots_.size(); }

 private:
  struct Slot {
    std::shared_ptr<SignalConnectionState> state;
    // Shared so that the walk's copy calls the same callable, mutable captures included.
    std::shared_ptr<Handler> handler;
    bool live() const { return state->connected && handler && *handler; }
  };

  void compact() {
    std::erase_if(slots_, [](const Slot& slot) { return !slot.live(); });
  }

  std::vector<Slot> slots_;
  std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace tessel
