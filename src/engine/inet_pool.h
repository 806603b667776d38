// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/timer.h"
#include "platform/transfer_control.h"

namespace tarnwick {

class SettingsAndLog;

/// The pool of transfer controls through which a pass fetches several sites at once, with the bookkeeping of its slots
/// (numbered from 1 to `poolSize()`) and of the rows of the pass (numbered from 1).
///
/// A slot is free from the sweep after its request has ended until its next request. The sweep runs on every tick of
/// `tmrInet` and, while that timer is enabled, also as soon as a control has become idle, so that a fast site does not
/// hold its slot until the next tick.
class InetPool {
 public:
  /// The most slots that a pass uses when it is not told otherwise: requests in flight at the same time.
  static constexpr std::int16_t kLargestPool = 5;

  /// `largestPool` is how many slots the pool has when there are items enough.
  InetPool(SettingsAndLog& settings, TransferMaker& transfers, TimerMaker& timers,
           std::int16_t largestPool = kLargestPool);
  ~InetPool();

  /// Sets the pool up for a pass over `items`, row 1 first. It has a slot for each item that is not empty text, up to
  /// the largest number; the rows' results are cleared; `tmrInet` gets its interval and is left disabled.
  void initSockets(std::span<const std::string> items) { initSockets(items, largestPool_); }
  /// The same for one pass with another largest number of slots.
  void initSockets(std::span<const std::string> items, std::int16_t largestPool);
  /// Cuts every transfer and releases the slots. The rows' results stay until the next `initSockets`.
  void killAllSockets();

  /// The numbers of the slots that are free now, in ascending order.
  std::vector<std::int16_t> getAryFreeSockets() const;
  /// The sweep: every slot whose control is no longer executing becomes free.
  void testInetConnection();

  std::int16_t poolSize() const { return static_cast<std::int16_t>(slots_.size()); }
  /// The number of items that were not empty.
  std::size_t itemCount() const { return itemCount_; }
  Timer& tmrInet() { return *tmrInet_; }

  /// The control of a slot.
  TransferControl& inet(std::int16_t slot) { return *at(slot).inet; }
  /// Gives the slot to a row and starts its request, within the settings' time-out as it was when the pool was set up.
  /// Nothing is left of the slot's request before.
  void send(std::int16_t slot, std::size_t row, Request request);
  /// The row whose item the slot fetches or has fetched; 0 before its first.
  std::size_t socketRow(std::int16_t slot) const { return at(slot).row; }
  /// True when the slot's request has finished, successfully or not, and has not been dealt with.
  bool socketDone(std::int16_t slot) const { return at(slot).done; }
  void setSocketDone(std::int16_t slot, bool done) { at(slot).done = done; }
  /// The last state that the slot's control reported; 0 after a sweep found it idle.
  int lastState(std::int16_t slot) const { return at(slot).lastState; }

  /// Moves a slot's finished request into its row: page text (or "11:" and the cause), error code and cause.
  void saveSocketData(std::int16_t slot);
  /// A row's page text, error code and cause, as saved last.
  const std::string& siteContent(std::size_t row) const { return rows_.at(row).content; }
  std::int32_t siteErrCode(std::size_t row) const { return rows_.at(row).errCode; }
  const std::string& siteErrDescription(std::size_t row) const { return rows_.at(row).errDescription; }
  /// How long its request took, and the address of the server that was asked; none as long as nothing was saved.
  std::chrono::milliseconds siteTook(std::size_t row) const { return rows_.at(row).took; }
  const CheckTimings& siteTimings(std::size_t row) const { return rows_.at(row).timings; }
  const std::optional<ServerCertificate>& siteCertificate(std::size_t row) const { return rows_.at(row).certificate; }
  const std::string& siteServer(std::size_t row) const { return rows_.at(row).server; }
  /// The HTTP status of its answer; 0 where there was none.
  int siteStatus(std::size_t row) const { return rows_.at(row).status; }
  /// Frees the memory of a row's page text once it has been recorded.
  void releaseSiteContent(std::size_t row);

  /// Vocabulary: no front end calls it.
  /// What a state number means, in words; "undefined state" for numbers that are none.
  static std::string_view getStateDescription(std::int16_t state);

 private:
  struct Slot {
    std::unique_ptr<TransferControl> inet;
    int lastState = 0;
    bool done = false;
    std::size_t row = 0;
  };
  struct Row {
    std::string content;
    std::int32_t errCode = 0;
    std::string errDescription;
    std::chrono::milliseconds took{0};
    CheckTimings timings{};
    std::optional<ServerCertificate> certificate{};
    std::string server;
    int status = 0;
  };

  Slot& at(std::int16_t slot) { return slots_.at(static_cast<std::size_t>(slot) - 1); }
  const Slot& at(std::int16_t slot) const { return slots_.at(static_cast<std::size_t>(slot) - 1); }
  void loadSlot(Slot& slot);
  static void stateChanged(Slot& slot, int state);

  SettingsAndLog& settings_;
  TransferMaker& transfers_;
  std::int16_t largestPool_;
  std::unique_ptr<Timer> tmrInet_;
  std::size_t itemCount_ = 0;
  std::chrono::seconds timeout_{0};
  std::vector<Slot> slots_;
  std::vector<Row> rows_;
};

}  // namespace tarnwick
