// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "exchange/foreign/any_list.h"
#include "program/program.h"
#include "ui/controls/sliced_work.h"

namespace tarnwick {

/// Plans the import of a list, and carries it out, in slices between the events: all that it writes is one transaction,
/// of which nothing stays when this object goes before its end.
class ImportWork {
 public:
  using Aim = SlicedWork::Aim;

  /// Begins: to read is to plan only. `program` and `list` outlive this object; `list` loses its sites when it is
  /// written. `told` is called as that of `SlicedWork`.
  ImportWork(Program& program, AnyList& list, Aim aim, std::function<void()> told);

  bool ended() const { return work_.ended(); }
  /// How much is done, from 0 to 1.
  double done() const;
  /// Whether another program has the list locked, and is waited for.
  bool waits() const { return work_.waits(); }
  /// The plan, and what is wrong with the list, in which case nothing was written. REQUIRES: it has ended. Raises what
  /// went wrong; then nothing was written either.
  const ImportPlan& plan() const;
  const ListFaults& faults() const { return faults_; }

 private:
  /// Does the next piece; false when all is done.
  bool next(m& data);
  bool advance(m& data);
  void forgetData();

  AnyList& list_;
  const Aim aim_;
  ListFaults faults_;
  std::optional<ImportPlan> plan_;
  // Has the connection that the two below work on, so they go before it.
  SlicedWork work_;
  std::optional<AnyListPlanner> planner_;
  std::optional<AnyListWriter> writer_;
};

}  // namespace tarnwick
