// SPDX-License-Identifier: MIT
#include "simulation/agenda.h"

#include <algorithm>
#include <utility>

#include "simulation/simulated_memory.h"

namespace tarnwick::simulation {

Agenda::Entry Agenda::at(Time time, Action action, Where where) {
  const SimulatedMemory::OfWorld ours;
  std::uint32_t place = 0;
  if (free_.empty()) {
    place = static_cast<std::uint32_t>(places_.size());
    places_.emplace_back();
  } else {
    place = free_.back();
    free_.pop_back();
  }
  places_[place].action = std::move(action);
  Heap& heap = where == Where::inside ? inside_ : outside_;
  const std::uint32_t turn = places_[place].turn;
  heap.push_back({std::max(time, now_), ++orders_, place, turn});
  std::push_heap(heap.begin(), heap.end());
  return {place, turn};
}

void Agenda::cancel(Entry& entry) {
  const SimulatedMemory::OfWorld ours;
  if (entry.turn != 0 && places_[entry.place].turn == entry.turn) {
    ++places_[entry.place].turn;
    places_[entry.place].action = nullptr;
    free_.push_back(entry.place);
  }
  entry = {};
}

// What was taken back is still in the heap until its time.
const Agenda::Due* Agenda::first(Heap& heap) {
  while (!heap.empty() && places_[heap.front().place].turn != heap.front().turn) {
    std::pop_heap(heap.begin(), heap.end());
    heap.pop_back();
  }
  return heap.empty() ? nullptr : &heap.front();
}

void Agenda::run(Heap& heap) {
  const SimulatedMemory::OfWorld ours;
  const Due due = heap.front();
  std::pop_heap(heap.begin(), heap.end());
  heap.pop_back();
  now_ = std::max(now_, due.time);
  ++count_;
  Place& place = places_[due.place];
  const Action action = std::exchange(place.action, nullptr);
  ++place.turn;
  free_.push_back(due.place);
  action();
}

bool Agenda::happen() {
  const Due* const inside = first(inside_);
  const Due* const outside = first(outside_);
  if (inside == nullptr && outside == nullptr) {
    return false;
  }
  run(outside == nullptr || (inside != nullptr && *outside < *inside) ? inside_ : outside_);
  return true;
}

void Agenda::happenNow() {
  const std::uint64_t last = orders_;
  const auto isDue = [&](const Due* due) { return due != nullptr && due->time <= now_ && due->order <= last; };
  while (isDue(first(inside_)) || isDue(first(outside_))) {
    happen();
  }
}

void Agenda::passBlocked(Time time) {
  const Time end = now_ + time;
  for (const Due* due = first(outside_); due != nullptr && due->time <= end; due = first(outside_)) {
    run(outside_);
  }
  now_ = std::max(now_, end);
}

}  // namespace tarnwick::simulation
