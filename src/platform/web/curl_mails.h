// SPDX-License-Identifier: MIT
#pragma once

#include <memory>

#include "platform/mail_transfer.h"

namespace tarnwick {

class Authorities;
class CurlEventLoop;
class CurlTransfers;

/// Sends mails by libcurl, driven by the Qt event loop like the transfers of pages, with which they share it and the
/// system's certificate authorities. They may outlive both.
class CurlMails final : public MailTransferMaker {
 public:
  explicit CurlMails(const CurlTransfers& transfers);
  ~CurlMails() override;
  CurlMails(const CurlMails&) = delete;
  CurlMails& operator=(const CurlMails&) = delete;

  std::unique_ptr<MailTransfer> makeMailTransfer() override;

 private:
  std::shared_ptr<CurlEventLoop> loop_;
  std::shared_ptr<Authorities> authorities_;
};

}  // namespace tarnwick
