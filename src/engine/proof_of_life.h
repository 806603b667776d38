// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <memory>
#include <optional>
#include <string>

#include "engine/run_controller.h"
#include "platform/transfer_control.h"
#include "store/site_options.h"

namespace tarnwick {

/// Shows while a run is on that it is: by a message a day with the figures of the day, by an alert a day that only
/// tries the channels, and by a request a minute to an address that somebody else looks after, who notices when none
/// comes. Each of them only where its option is set.
class ProofOfLife {
 public:
  explicit ProofOfLife(const RunController::Needs& needs);
  ~ProofOfLife();
  ProofOfLife(const ProofOfLife&) = delete;
  ProofOfLife& operator=(const ProofOfLife&) = delete;

  /// Whether any of them is.
  static bool isWanted(const OptionsInForce& options);

  /// Whether a daily message is wanted that no channel would take, since none is on for all sites.
  static bool lacksChannel(const OptionsInForce& options, Delivery& delivery);

  /// Sends what is due. Raises DataAccessError when that cannot be kept. REQUIRES: a run is on, and no transaction.
  void tick(const OptionsInForce& options);
  /// No run is on, or none of them is wanted any more.
  void rest();
  /// Why nobody has taken the latest request to that address; empty while all is well.
  const std::string& heartbeatFault() const { return heartbeatFault_; }

 private:
  void tellDaily(const std::optional<std::string>& at, const std::string& event);
  std::string figures();
  void beat(const std::optional<std::string>& address);
  void setFault(std::string fault);

  const RunController::Needs& needs_;
  std::unique_ptr<TransferControl> heart_;
  std::optional<std::chrono::milliseconds> lastBeat_;
  std::string heartbeatFault_;
};

}  // namespace tarnwick
