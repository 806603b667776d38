// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <deque>
#include <functional>
#include <vector>

namespace tarnwick::simulation {

using Time = std::chrono::milliseconds;

/// Everything that is going to happen, in the order of its time; of two at the same time what was entered first. It is
/// the clock, too: time passes by going on to what comes next.
class Agenda {
 public:
  using Action = std::function<void()>;
  /// What has been entered, for taking it back. The default names nothing.
  struct Entry {
    std::uint32_t place = 0;
    std::uint32_t turn = 0;
  };
  enum class Where {
    inside,   ///< through the event loop of a simulated process: not while that is blocked
    outside,  ///< in the world around it
  };

  /// Since the beginning of the simulation.
  Time now() const { return now_; }

  Entry at(Time time, Action action, Where where = Where::inside);
  Entry in(Time time, Action action, Where where = Where::inside) { return at(now_ + time, std::move(action), where); }
  /// Nothing when it has happened already.
  void cancel(Entry& entry);

  /// Lets the next thing happen; false when there is none.
  bool happen();
  /// Lets everything happen that is due at this moment already.
  void happenNow();
  /// The process sleeps with its event loop: only the world outside goes on.
  void passBlocked(Time time);
  /// How many things have happened.
  std::uint64_t count() const { return count_; }

 private:
  struct Due {
    Time time;
    std::uint64_t order;
    std::uint32_t place;
    std::uint32_t turn;
    bool operator<(const Due& other) const {  // the heap has its greatest in front
      return time != other.time ? time > other.time : order > other.order;
    }
  };
  using Heap = std::vector<Due>;
  struct Place {
    std::uint32_t turn = 1;
    Action action;
  };

  const Due* first(Heap& heap);
  void run(Heap& heap);

  Time now_{0};
  std::uint64_t orders_ = 0;
  std::uint64_t count_ = 0;
  Heap inside_;
  Heap outside_;
  std::deque<Place> places_ = std::deque<Place>(1);
  std::vector<std::uint32_t> free_;
};

/// An entry that is taken back with its owner.
class Appointment {
 public:
  explicit Appointment(Agenda& agenda) : agenda_(agenda) {}
  ~Appointment() { cancel(); }
  Appointment(const Appointment&) = delete;
  Appointment& operator=(const Appointment&) = delete;

  /// In place of the one before.
  void in(Time time, Agenda::Action action, Agenda::Where where = Agenda::Where::inside) {
    cancel();
    entry_ = agenda_.in(time, std::move(action), where);
  }
  void cancel() { agenda_.cancel(entry_); }

 private:
  Agenda& agenda_;
  Agenda::Entry entry_;
};

}  // namespace tarnwick::simulation
