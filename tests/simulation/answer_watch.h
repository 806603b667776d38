// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <set>
#include <string>
#include <utility>

namespace tarnwick::simulation {

/// Whether each page that has come is shown as recorded, or as dropped, before it is asked for again: also where
/// another program has the list locked for long.
class AnswerWatch {
 public:
  explicit AnswerWatch(std::function<void(const std::string& what)> fail) : fail_(std::move(fail)) {}

  void asked(const std::string& url) {
    if (waiting_.erase(url) > 0) {
      fail_("the page of " + url + " has come, was not recorded, and is asked for again");
    }
  }
  void answered(const std::string& url) { waiting_.insert(url); }
  void told(const std::string& url) { waiting_.erase(url); }
  /// Something has come between that may have ended the pass.
  void forget() { waiting_.clear(); }

 private:
  std::function<void(const std::string& what)> fail_;
  std::set<std::string> waiting_;
};

}  // namespace tarnwick::simulation
