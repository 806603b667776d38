// SPDX-License-Identifier: MIT
#pragma once

#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "simulation/chance.h"

namespace tarnwick::simulation {

/// How a disk fails a write or a sync.
enum class DiskFault { none, broken, full, shortWrite };

/// The disk of the simulated machine: a folder in memory, under which every call of this process to the C library
/// passes through here (libc_calls.cpp), SQLite's as well as the program's own. It can be full or broken, and its power
/// can be cut: then of each file what was synced stays, and of what was written since any part of it. One at a time.
class SimulatedDisk {
 public:
  SimulatedDisk();
  ~SimulatedDisk();
  SimulatedDisk(const SimulatedDisk&) = delete;
  SimulatedDisk& operator=(const SimulatedDisk&) = delete;

  /// Without a trailing slash; the same for the disk's whole life, also over a power cut.
  const std::string& folder() const { return folder_; }

  /// From now on it is known what is synced. Until then everything is: it costs to keep count, and a system writes
  /// back by itself what is half a minute old.
  void keepCount();
  void stopCounting();
  bool isCounting() const { return counting_; }
  /// Called just before each sync, with how many there have been since `keepCount`. May cut the power.
  std::function<void(std::uint64_t number)> onSync;
  std::uint64_t syncs() const { return syncs_; }

  /// The power goes: nothing that the processes still do reaches the disk. REQUIRES: `keepCount`.
  void cutPower(Chance& chance);
  /// Every process is killed: the same, but that the system keeps what was written.
  void killAll();
  bool isDead() const { return dead_; }
  /// The machine comes up again with what was left. REQUIRES: no process has a file open.
  void powerOn();

  /// What the next writes meet, until it is taken back; `none` for nothing.
  void fail(DiskFault fault, std::uint64_t oneIn, Chance chance);
  /// How many bytes files may still grow by; nothing for any number.
  void leaveRoom(std::optional<std::int64_t> bytes) { room_ = bytes; }
  /// For its life nothing fails: who looks whether all is well is no part of the machine.
  class Well {
   public:
    explicit Well(SimulatedDisk& disk) : disk_(disk), fault_(disk.fault_), room_(disk.room_) {
      disk.fault_ = DiskFault::none;
      disk.room_.reset();
    }
    ~Well() {
      disk_.fault_ = fault_;
      disk_.room_ = room_;
    }
    Well(const Well&) = delete;
    Well& operator=(const Well&) = delete;

   private:
    SimulatedDisk& disk_;
    DiskFault fault_;
    std::optional<std::int64_t> room_;
  };

  /// How many operations have failed.
  std::uint64_t failures() const { return failures_; }

  // What the C library is asked for (libc_calls.cpp). Those that can fail return the system's error number, 0 for none.
  static SimulatedDisk* inUse;
  bool holds(const char* path) const { return std::string_view(path).starts_with(folder_); }
  bool has(int descriptor) const {
    return descriptor >= 0 && static_cast<std::size_t>(descriptor) < open_.size() &&
           !open_[static_cast<std::size_t>(descriptor)].path.empty();
  }
  /// What a file holds is about to be cut off.
  void willBeCut(const char* path);
  void opened(int descriptor, const char* path, bool made);
  void closed(int descriptor);
  void throughStream(int descriptor);
  /// Changes with every change of a file or a name; 0 while a stream may write without our seeing it.
  std::uint64_t edition() const { return streams_ > 0 ? 0 : edition_; }
  bool isLimited() const { return room_.has_value(); }
  /// `length` becomes how many of the bytes are to be written; the file grows by up to `growth` of them.
  int write(int descriptor, const void* bytes, std::size_t& length, std::int64_t offset, std::int64_t growth);
  int truncate(int descriptor, std::int64_t size);
  /// Reads and writes within what a file has go to the memory that it lies in, without the system; 0 where it has to be
  /// asked. The time of the last change of a database counts, so that is written to by the system.
  std::size_t readMapped(int descriptor, void* bytes, std::size_t length, std::int64_t offset);
  std::size_t writeMapped(int descriptor, const void* bytes, std::size_t length, std::int64_t offset);
  /// So many bytes were written there by the system.
  void written(int descriptor, std::int64_t end);
  int sync(int descriptor);
  int rename(const char* from, const char* to);
  int unlink(const char* path);

 private:
  struct Write {
    std::int64_t offset = 0;
    std::string bytes{};
    bool cuts = false;  ///< the file ends at `offset`
  };
  struct File {
    std::string synced{};
    std::vector<Write> pending{};
    bool throughStream = false;  ///< written to without our seeing it, until it is synced
    /// Another name of a large one that nobody has written to since: what it holds is what is synced.
    std::optional<std::filesystem::path> kept{};
  };
  using FilePtr = std::shared_ptr<File>;
  using Names = std::map<std::string, FilePtr>;
  /// A name that was taken away, or given to a file.
  struct NameChange {
    std::string name;
    FilePtr file;
  };
  /// Where in this process's memory a file lies that is open.
  struct Mapped {
    char* bytes = nullptr;
    std::int64_t size = 0;  ///< of the file
    Mapped(int descriptor, std::int64_t fileSize);
    ~Mapped();
    Mapped(const Mapped&) = delete;
    Mapped& operator=(const Mapped&) = delete;
    bool has(std::size_t length, std::int64_t offset) const;
  };
  struct Open {
    std::string path{};
    FilePtr file{};
    std::shared_ptr<Mapped> mapped{};
    bool isStream = false;
  };

  std::shared_ptr<Mapped> mapped(int descriptor);
  Open& at(int descriptor) { return open_[static_cast<std::size_t>(descriptor)]; }
  bool strikes();
  static void willChange(File& file);
  void setName(const std::string& name, const FilePtr& file);
  static void apply(std::string& bytes, const Write& write);
  static std::string leftOf(const File& file, Chance& chance);
  void die();

  std::filesystem::path root_;
  std::filesystem::path left_;
  std::filesystem::path kept_;
  std::string folder_;
  std::uint64_t edition_ = 1;
  std::uint64_t streams_ = 0;
  bool counting_ = false;
  bool dead_ = false;
  std::uint64_t syncs_ = 0;
  Names names_;        ///< as the processes see them
  Names syncedNames_;  ///< as they would be found after a cut
  std::vector<NameChange> nameChanges_;
  std::vector<Open> open_;  ///< by descriptor
  std::map<ino_t, std::weak_ptr<Mapped>> mapped_;
  DiskFault fault_ = DiskFault::none;
  std::uint64_t faultOneIn_ = 1;
  Chance faultChance_{0};
  std::uint64_t failures_ = 0;
  std::optional<std::int64_t> room_;
};

}  // namespace tarnwick::simulation
