// SPDX-License-Identifier: MIT
#include "store/room_reserve.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <functional>
#include <random>
#include <string>
#include <string_view>

#include "base/errors.h"
#include "store/side_files.h"

namespace tarnwick {
namespace {

constexpr std::uint64_t kMib = std::uint64_t{1} << 20U;
constexpr std::uint64_t kFreeRoom = 1024 * kMib;
constexpr std::uint64_t kFreeShare = 20;  // one part of so many: 5 %

constexpr std::uint64_t kMost = kMib;
/// Less is of no use.
constexpr std::uint64_t kLeast = std::uint64_t{64} * 1024;
/// The part of a small disk's last room that is taken for it.
constexpr std::uint64_t kPartOfRoom = 4;

/// Bytes that no file system can store in less room than they have.
std::string incompressible(std::uint64_t size) {
  std::mt19937 random;  // NOLINT(cert-msc51-cpp): nothing is secret about them
  std::string bytes(size, '\0');
  std::ranges::generate(bytes, [&] { return static_cast<char>(random() & 0xffU); });
  return bytes;
}

bool hasRoomFor(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (const DataAccessError& error) {
    if (!error.forWantOfRoom()) {
      throw;
    }
    return false;
  }
}

}  // namespace

bool RoomReserve::isLittle(const DiskRoom& room) {
  return room.free < kFreeRoom || room.free < room.whole / kFreeShare;
}

void RoomReserve::keepReserve() noexcept {
  try {
    const auto room = files_.roomAt(db_.dbPath());
    if (!room) {
      return;
    }
    const std::string& reserve = path();
    const bool isThere = files_.exists(reserve);
    const std::uint64_t held = isThere ? files_.sizeOf(reserve) : 0;
    if (!isLittle({room->free / 2, room->whole})) {
      if (isThere) {
        files_.remove(reserve);
      }
    } else if (const auto wanted = std::min(room->free / kPartOfRoom, kMost);
               isLittle(*room) && held < wanted && wanted >= kLeast) {
      const std::string bytes = incompressible(wanted);
      files_.write(reserve, {}, [&](const ByteSink& sink) { sink(bytes); });
    }
  } catch (const std::exception&) {
    // Who may not write beside the list has nothing to free in it either.
  }
}

void RoomReserve::runFreeing(const std::function<void()>& action) {
  if (db_.conn().inTransaction()) {
    action();
    return;
  }
  if (!hasRoomFor(action)) {
    runWithoutReserve(action);
  }
}

void RoomReserve::runWithoutReserve(const std::function<void()>& action) {
  giveUp();
  action();
  keepReserve();
}

const std::string& RoomReserve::path() {
  if (path_.empty()) {
    path_ = files_.resolveLinks(db_.dbPath()) + kReserve;
  }
  return path_;
}

void RoomReserve::giveUp() noexcept {
  try {
    // The copy that the last compaction has left is of no use to anybody.
    for (const std::string& name : {path(), db_.programFolder() + "/temp.mdb"}) {
      if (files_.exists(name) && files_.sizeOf(name) > 0) {
        files_.remove(name);
        return;
      }
    }
  } catch (const std::exception&) {
    // What needs the room tells that there is none.
  }
}

}  // namespace tarnwick
