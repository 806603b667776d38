// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <QTimer>

#include "program/program.h"

namespace tarnwick {

/// Work on the list that is done piece by piece, in slices between the events, so that window and run go on however
/// long it takes. It has a connection of its own: all that it writes is one transaction, of which nothing stays when
/// this object goes before its end, or when a piece fails. A run waits with its results meanwhile; whoever else of this
/// program writes has the rest of it done at once.
class SlicedWork {
 public:
  enum class Aim { read, write };
  /// Does the next piece, a few milliseconds of work; false when nothing is left to do.
  using Next = std::function<bool(m& data)>;

  /// Begins. `program` outlives this object. `told` is called between slices, and at the end, which `ended` tells, from
  /// an event of its own: it may put an end to this object.
  SlicedWork(Program& program, Aim aim, Next next, std::function<void()> told);
  ~SlicedWork();
  SlicedWork(const SlicedWork&) = delete;
  SlicedWork& operator=(const SlicedWork&) = delete;

  bool ended() const { return ended_; }
  /// Whether another program has the list locked, and is waited for.
  bool waits() const { return aim_ == Aim::write && !ended_ && !whole_; }
  /// Raises what went wrong; then nothing was written.
  void raiseFailure() const;

 private:
  void goOn();
  void open();
  bool begin();
  /// Works until `isTime`, or to the end.
  void work(const std::function<bool()>& isTime);
  void end();
  m& data() { return own_ ? *own_ : program_.data(); }

  Program& program_;
  const Aim aim_;
  const Next next_;
  const std::function<void()> told_;
  bool begun_ = false;
  std::unique_ptr<m> own_;
  std::optional<Snapshot> oneState_;
  std::optional<Transaction> whole_;
  std::exception_ptr failure_;
  bool ended_ = false;
  std::unique_ptr<QTimer> timer_;
};

}  // namespace tarnwick
