// SPDX-License-Identifier: MIT
#include "simulation/journal.h"

#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

void Journal::mix(std::string_view bytes) {
  mix(bytes.size());
  for (; bytes.size() >= sizeof(std::uint64_t); bytes.remove_prefix(sizeof(std::uint64_t))) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), sizeof word);
    mix(word);
  }
  std::uint64_t rest = 0;
  std::memcpy(&rest, bytes.data(), bytes.size());
  mix(rest);
}

void Journal::add(std::string_view kind, std::string_view text) {
  if (muted_) {
    return;
  }
  const SimulatedMemory::OfWorld ours;
  ++lines_;
  std::string line(text);
  for (std::size_t at = text_.empty() ? std::string::npos : line.find(text_); at != std::string::npos;
       at = line.find(text_, at)) {
    line.replace(at, text_.size(), name_);
  }
  addTick(kind, line);
  const auto now = agenda_.now().count();
  constexpr std::int64_t kDay = 86'400'000;
  std::string entry = "day " + std::to_string(now / kDay) + " +" + std::to_string(now % kDay) + " ms  ";
  entry.append(kind).append("  ").append(line);
  if (copy_ != nullptr) {
    *copy_ << entry << '\n';
  }
  last_.push_back(std::move(entry));
  if (last_.size() > kKept) {
    last_.pop_front();
  }
}

std::string Journal::lastLines() const {
  std::string lines;
  for (const std::string& line : last_) {
    lines += line + "\n";
  }
  return lines;
}

}  // namespace tarnwick::simulation
