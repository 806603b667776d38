// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "model/model.h"
#include "simulation/process.h"
#include "simulation/world.h"

namespace tarnwick::simulation {

/// The executable model, told everything that the program meets, for as long as one process lives. Whenever the program
/// waits, what it has done is compared with what the model has done, in its order, and so are the rows of the list.
class Shadow {
 public:
  /// REQUIRES: the program has been started, and its run has not.
  Shadow(World& world, Process& process, std::function<void(const std::string&)> fail);
  ~Shadow();
  Shadow(const Shadow&) = delete;
  Shadow& operator=(const Shadow&) = delete;

  /// The user has pressed a button, or is about to.
  void starts() { model_->start(now()); }
  void stops() { model_->stop(now()); }
  /// The user, or another program, has changed something: it is read from the list. `editor` when one was closed.
  void edited(bool editor);
  /// The clock on the wall was set.
  void clockSet() { model_->clockSet(); }

  std::uint64_t comparisons() const { return comparisons_; }

 private:
  model::Time now() const { return world_.clock.localNow(); }
  SqlConnection& list() { return process_.program().data().database().conn(); }
  void watch();
  void second();
  void see(std::string effect) { seen_.push_back(std::move(effect)); }
  void answered(const std::string& url, const TransferResult& result);
  void mailed(const std::string& command);
  void expect(const model::Effect& effect);
  void look();
  void compare();
  void minute();
  void compareEffects();
  void compareReport();
  void compareRows();
  void compareLog();

  World& world_;
  Process& process_;
  std::function<void(const std::string&)> fail_;
  std::unique_ptr<model::Model> model_;
  std::deque<std::string> expected_;
  std::deque<std::string> seen_;
  std::map<std::string, int> asked_;  ///< whose request goes to that address
  std::vector<std::string> report_;   ///< the cells of the report that was just made
  std::deque<std::string> mail_;      ///< what is still to be sent of the mail
  std::uint64_t logBefore_ = 0;
  std::uint64_t logSeen_ = 0;
  std::uint64_t comparisons_ = 0;
  bool moved_ = true;
  bool answered_ = false;
  bool asksAfresh_ = false;
  std::int64_t listVersion_ = 0;
};

}  // namespace tarnwick::simulation
