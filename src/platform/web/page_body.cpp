// SPDX-License-Identifier: MIT
#include "platform/web/page_body.h"

#include <new>
#include <utility>

namespace tarnwick {

void PageBody::append(std::string_view piece) {
  page_.append(piece);
  if (page_.size() > kKeptInMemory && mayFile_) {
    mayFile_ = file();
  }
}

/// False where the file takes no more; nothing is lost then.
bool PageBody::file() {
  if (!file_) {
    file_.reset(std::tmpfile());
  }
  if (!file_ || std::fwrite(page_.data(), 1, page_.size(), file_.get()) != page_.size() ||
      std::fflush(file_.get()) != 0) {
    return false;
  }
  filed_ += page_.size();
  page_.clear();
  return true;
}

std::string PageBody::take() {
  std::string page;
  if (filed_ > 0) {
    page.reserve(size());
    page.resize(filed_);
    std::rewind(file_.get());
    if (std::fread(page.data(), 1, filed_, file_.get()) != filed_) {
      throw std::bad_alloc();
    }
    page.append(page_);
  } else {
    page = std::move(page_);
  }
  *this = {};
  return page;
}

}  // namespace tarnwick
