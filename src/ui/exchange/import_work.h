// SPDX-License-Identifier: MIT
#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <QTimer>

#include "exchange/foreign/any_list.h"
#include "program/program.h"

namespace tarnwick {

/// Plans the import of a list, and carries it out, in slices between the events, so that window and run go on however
/// long the list is. It has a connection of its own: all that it writes is one transaction, of which nothing stays when
/// this object goes before its end. A run waits with its results meanwhile; whoever else of this program writes has the
/// rest of it done at once.
class ImportWork {
 public:
  enum class Aim { plan, write };

  /// Begins. `program` and `list` outlive this object; `list` loses its sites when it is written. `told` is called
  /// between slices, and at the end, which `ended` tells, from an event of its own: it may put an end to this object.
  ImportWork(Program& program, AnyList& list, Aim aim, std::function<void()> told);
  ~ImportWork();
  ImportWork(const ImportWork&) = delete;
  ImportWork& operator=(const ImportWork&) = delete;

  bool ended() const { return ended_; }
  /// How much is done, from 0 to 1.
  double done() const;
  /// Whether another program has the list locked, and is waited for.
  bool waits() const { return aim_ == Aim::write && !ended_ && !whole_; }
  /// The plan, and what is wrong with the list, in which case nothing was written. REQUIRES: it has ended. Raises what
  /// went wrong; then nothing was written either.
  const ImportPlan& plan() const;
  const ListFaults& faults() const { return faults_; }

 private:
  void goOn();
  void open();
  bool begin();
  /// Works until `isTime`, or to the end.
  void work(const std::function<bool()>& isTime);
  /// Does the next piece; false when all is done.
  bool next();
  void finishAtOnce();
  void end();
  m& data() { return own_ ? *own_ : program_.data(); }

  Program& program_;
  AnyList& list_;
  const Aim aim_;
  const std::function<void()> told_;
  std::unique_ptr<m> own_;
  std::optional<Snapshot> oneState_;
  std::optional<Transaction> whole_;
  ListFaults faults_;
  std::optional<AnyListPlanner> planner_;
  std::optional<ImportPlan> plan_;
  std::optional<AnyListWriter> writer_;
  std::exception_ptr failure_;
  bool ended_ = false;
  std::unique_ptr<QTimer> timer_;
};

}  // namespace tarnwick
