// SPDX-License-Identifier: MIT
#include "program/fault_box.h"

#include <algorithm>
#include <exception>

#include "base/errors.h"

namespace tarnwick {
namespace {

/// What happened, for the user and for telling one fault from another.
struct Description {
  std::string message;
  std::string fault;
  /// A number that is too large for the program, in a record of the database, is there until somebody changes it, also
  /// when an action that does not come across it succeeds.
  bool isLasting = false;
};

/// Whom lasting faults are noted under: no repeated action bears this name.
constexpr const char* kNobody = "";

/// The same text for the same fault: ids, counts and times differ from tick to tick and make no other fault of it.
std::string withoutNumbers(std::string text) {
  std::erase_if(text, [](char c) { return c >= '0' && c <= '9'; });
  return text;
}

// REQUIRES: called from a handler of an exception.
Description describeCurrentException() {
  try {
    throw;
  } catch (const DataAccessError& error) {
    return {error.what(), withoutNumbers(error.cause())};
  } catch (const OverflowError& error) {
    return {error.what(), withoutNumbers(error.what()), true};
  } catch (const std::bad_alloc&) {
    return {kNotEnoughMemory, kNotEnoughMemory};
  } catch (const std::exception& error) {
    return {error.what(), withoutNumbers(error.what())};
  }
}

}  // namespace

bool FaultBox::run(const std::function<void()>& action, const std::string& source) {
  try {
    action();
    if (!source.empty()) {
      std::erase_if(standing_, [](const Fault& fault) { return fault.source == kNobody; });
    }
    return true;
  } catch (...) {
    const Description description = describeCurrentException();
    if (!source.empty()) {
      standing_.insert({description.isLasting ? kNobody : source, description.fault});
    }
    show(description.message);
    return false;
  }
}

bool FaultBox::runRepeated(const std::string& source, const std::function<void()>& action) {
  bool succeeded = true;
  try {
    action();
    std::erase_if(standing_, [&](const Fault& fault) { return fault.source == source; });
  } catch (...) {
    succeeded = false;
    const Description description = describeCurrentException();
    if (*open_ == 0 && !isStanding(description.fault)) {
      standing_.insert({description.isLasting ? kNobody : source, description.fault});
      show(description.message);
    }
  }
  return succeeded;
}

bool FaultBox::isStanding(const std::string& fault) const {
  return std::any_of(standing_.begin(), standing_.end(),
                     [&](const Fault& standing) { return standing.fault == fault; });
}

void FaultBox::show(const std::string& message) {
  // While a box is open, timers must not pile further boxes upon it.
  ++*open_;
  prompts_.inform({.text = message, .icon = PromptIcon::error}, [open = open_] { --*open; });
}

}  // namespace tarnwick
