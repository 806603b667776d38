// SPDX-License-Identifier: MIT
#include "platform/os/work_apart.h"

#include <utility>

namespace tarnwick {

struct WorkApart::Process {
  std::string bytes;
};

WorkApart::WorkApart(const Work& work) : process_(std::make_unique<Process>(Process{work()})) {}

WorkApart::~WorkApart() = default;

bool WorkApart::isApart() { return false; }

void WorkApart::limitMemory(std::size_t /*bytes*/) {}

void WorkApart::limitTime(std::chrono::seconds /*time*/) {}

int WorkApart::handle() const { return -1; }

bool WorkApart::take() { return true; }

void WorkApart::wait() {}

std::optional<std::string> WorkApart::result() { return std::move(process_->bytes); }

}  // namespace tarnwick
