// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <memory>
#include <string>

#include "platform/transfer_control.h"

namespace tarnwick {

class Authorities;
class CurlEventLoop;

/// The transfer controls of libcurl, driven by the Qt event loop: a silent server costs no processor time.
/// Needs a QCoreApplication. Its controls may outlive it.
class CurlTransfers final : public TransferMaker {
 public:
  struct Options {
    /// PEM file of the certificate authorities to trust; empty means those of the system.
    std::string caFile{};
    /// Folder of further ones, with the names that `openssl rehash` gives; empty means that of the system, and none
    /// beside a file.
    std::string caFolder{};
    /// The largest page that is taken, in bytes after decoding.
    std::size_t largestPage = kLargestPage;
  };

  CurlTransfers();
  explicit CurlTransfers(Options options);
  ~CurlTransfers() override;
  CurlTransfers(const CurlTransfers&) = delete;
  CurlTransfers& operator=(const CurlTransfers&) = delete;

  std::unique_ptr<TransferControl> makeTransferControl() override;
  bool hasWayOut() override;

  /// What else speaks over libcurl shares these.
  const std::shared_ptr<CurlEventLoop>& loop() const { return loop_; }
  const std::shared_ptr<Authorities>& authorities() const { return authorities_; }

 private:
  Options options_;
  std::shared_ptr<CurlEventLoop> loop_;
  std::shared_ptr<Authorities> authorities_;
};

}  // namespace tarnwick
