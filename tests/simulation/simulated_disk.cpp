// SPDX-License-Identifier: MIT
#include "simulation/simulated_disk.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>
#include <utility>

namespace tarnwick::simulation {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kSector = 512;
/// What lies behind that in a file is read and written by the system.
constexpr std::size_t kMapped = std::size_t{64} << 20U;

std::string contentsOf(const fs::path& path) {
  std::string bytes(fs::file_size(path), '\0');
  std::ifstream(path, std::ios::binary).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

bool isLog(const std::string& path) { return path.ends_with("-wal"); }

bool isSharedMemory(const std::string& path) { return path.ends_with("-shm"); }

/// Worth a second name instead of a copy, where nothing is written to it.
bool isLarge(const fs::path& path) { return fs::file_size(path) >= (std::uint64_t{1} << 16U); }

}  // namespace

SimulatedDisk* SimulatedDisk::inUse = nullptr;

SimulatedDisk::SimulatedDisk() {
  const fs::path memory = "/dev/shm";
  std::error_code fault;
  root_ = (fs::is_directory(memory, fault) && access(memory.c_str(), W_OK) == 0 ? memory : fs::temp_directory_path()) /
          ("tarnwick-simulation-" + std::to_string(getpid()));
  fs::remove_all(root_);
  folder_ = (root_ / "disk").string();
  left_ = root_ / "left";
  kept_ = root_ / "kept";
  fs::create_directories(folder_);
  inUse = this;
}

SimulatedDisk::~SimulatedDisk() {
  inUse = nullptr;
  std::error_code ignored;
  fs::remove_all(root_, ignored);
}

void SimulatedDisk::keepCount() {
  stopCounting();
  for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
    if (entry.is_regular_file() && !isSharedMemory(entry.path().string())) {
      const FilePtr& file = names_[entry.path().string()] = std::make_shared<File>();
      if (isLarge(entry.path())) {
        fs::create_directories(kept_);
        file->kept = kept_ / std::to_string(names_.size());
        fs::create_hard_link(entry.path(), *file->kept);
      } else {
        file->synced = contentsOf(entry.path());
      }
    }
  }
  syncedNames_ = names_;
  for (Open& open : open_) {
    if (const auto named = names_.find(open.path); named != names_.end()) {
      open.file = named->second;
    }
  }
  counting_ = true;
  syncs_ = 0;
}

void SimulatedDisk::stopCounting() {
  counting_ = false;
  names_.clear();
  syncedNames_.clear();
  nameChanges_.clear();
  for (Open& open : open_) {
    open.file.reset();
  }
  fs::remove_all(kept_);
}

void SimulatedDisk::willChange(File& file) {
  if (const auto kept = std::exchange(file.kept, std::nullopt)) {
    file.synced = contentsOf(*kept);
    fs::remove(*kept);
  }
}

void SimulatedDisk::willBeCut(const char* path) {
  if (const auto named = names_.find(path); counting_ && named != names_.end()) {
    willChange(*named->second);
  }
}

void SimulatedDisk::opened(int descriptor, const char* path, bool made) {
  if (static_cast<std::size_t>(descriptor) >= open_.size()) {
    open_.resize(static_cast<std::size_t>(descriptor) + 1);
  }
  Open& open = at(descriptor);
  open = {path, nullptr};
  open.mapped = mapped(descriptor);
  edition_ += made ? 1 : 0;
  if (!counting_ || isSharedMemory(open.path)) {
    return;
  }
  if (made) {
    setName(open.path, std::make_shared<File>());
  }
  if (const auto named = names_.find(open.path); named != names_.end()) {
    open.file = named->second;
  }
}

SimulatedDisk::Mapped::Mapped(int descriptor, std::int64_t fileSize) : size(fileSize) {
  void* const place = mmap(nullptr, kMapped, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
  bytes = place == MAP_FAILED ? nullptr : static_cast<char*>(place);
}

SimulatedDisk::Mapped::~Mapped() {
  if (bytes != nullptr) {
    munmap(bytes, kMapped);
  }
}

bool SimulatedDisk::Mapped::has(std::size_t length, std::int64_t offset) const {
  const std::int64_t end = offset + static_cast<std::int64_t>(length);
  return bytes != nullptr && end <= size && end <= static_cast<std::int64_t>(kMapped);
}

// One for all who have the file open.
std::shared_ptr<SimulatedDisk::Mapped> SimulatedDisk::mapped(int descriptor) {
  struct stat facts {};
  const std::string& path = at(descriptor).path;
  if ((!isLog(path) && !path.ends_with(".mdb")) || (fcntl(descriptor, F_GETFL) & O_ACCMODE) != O_RDWR ||
      fstat(descriptor, &facts) != 0) {
    return nullptr;
  }
  std::weak_ptr<Mapped>& known = mapped_[facts.st_ino];
  std::shared_ptr<Mapped> mapped = known.lock();
  if (mapped == nullptr) {
    mapped = std::make_shared<Mapped>(descriptor, facts.st_size);
    known = mapped;
  }
  mapped->size = facts.st_size;
  return mapped;
}

std::size_t SimulatedDisk::readMapped(int descriptor, void* bytes, std::size_t length, std::int64_t offset) {
  const auto& mapped = at(descriptor).mapped;
  if (mapped == nullptr || !mapped->has(length, offset)) {
    return 0;
  }
  std::copy_n(mapped->bytes + offset, length, static_cast<char*>(bytes));
  return length;
}

std::size_t SimulatedDisk::writeMapped(int descriptor, const void* bytes, std::size_t length, std::int64_t offset) {
  const Open& open = at(descriptor);
  if (open.mapped == nullptr || !isLog(open.path) || !open.mapped->has(length, offset)) {
    return 0;
  }
  std::copy_n(static_cast<const char*>(bytes), length, open.mapped->bytes + offset);
  return length;
}

void SimulatedDisk::written(int descriptor, std::int64_t end) {
  if (const auto& mapped = at(descriptor).mapped) {
    mapped->size = std::max(mapped->size, end);
  }
}

void SimulatedDisk::throughStream(int descriptor) {
  Open& open = at(descriptor);
  open.isStream = true;
  ++streams_;
  if (open.file) {
    willChange(*open.file);
    open.file->throughStream = true;
  }
}

void SimulatedDisk::closed(int descriptor) {
  const Open open = std::exchange(at(descriptor), {});
  streams_ -= open.isStream ? 1 : 0;
  ++edition_;
}

bool SimulatedDisk::strikes() {
  const bool strikes = fault_ != DiskFault::none && faultChance_.oneIn(faultOneIn_);
  failures_ += strikes ? 1 : 0;
  return strikes;
}

int SimulatedDisk::write(int descriptor, const void* bytes, std::size_t& length, std::int64_t offset,
                         std::int64_t growth) {
  ++edition_;
  if (dead_) {
    return EIO;
  }
  if (room_) {
    if (growth > *room_) {
      ++failures_;
      return ENOSPC;
    }
    *room_ -= growth;
  }
  if (strikes()) {
    if (fault_ != DiskFault::shortWrite) {
      return fault_ == DiskFault::full ? ENOSPC : EIO;
    }
    length = std::max<std::size_t>(length / 2, 1);
  }
  if (const FilePtr& file = at(descriptor).file) {
    willChange(*file);
    file->pending.push_back({offset, std::string(static_cast<const char*>(bytes), length)});
  }
  return 0;
}

int SimulatedDisk::truncate(int descriptor, std::int64_t size) {
  ++edition_;
  if (dead_) {
    return EIO;
  }
  if (const FilePtr& file = at(descriptor).file) {
    willChange(*file);
    file->pending.push_back({size, {}, true});
  }
  if (const auto& mapped = at(descriptor).mapped) {
    mapped->size = size;
  }
  return 0;
}

int SimulatedDisk::sync(int descriptor) {
  if (!dead_ && counting_) {
    ++syncs_;
    if (onSync) {
      onSync(syncs_);
    }
  }
  if (dead_ || (fault_ == DiskFault::broken && strikes())) {
    return EIO;
  }
  if (!counting_) {
    return 0;
  }
  const Open& open = at(descriptor);
  if (open.file == nullptr) {  // a folder
    nameChanges_.clear();
    syncedNames_ = names_;
    return 0;
  }
  if (open.file->throughStream) {
    *open.file = {contentsOf(open.path)};
  }
  for (const Write& write : std::exchange(open.file->pending, {})) {
    apply(open.file->synced, write);
  }
  return 0;
}

void SimulatedDisk::setName(const std::string& name, const FilePtr& file) {
  nameChanges_.push_back({name, file});
  if (file) {
    names_[name] = file;
  } else {
    names_.erase(name);
  }
}

int SimulatedDisk::rename(const char* from, const char* to) {
  ++edition_;
  if (dead_) {
    return EIO;
  }
  if (const auto named = names_.find(from); counting_ && named != names_.end()) {
    const FilePtr file = named->second;
    setName(to, file);
    setName(from, nullptr);
  }
  return 0;
}

int SimulatedDisk::unlink(const char* path) {
  ++edition_;
  if (dead_) {
    return EIO;
  }
  if (counting_ && names_.contains(path)) {
    setName(path, nullptr);
  }
  return 0;
}

void SimulatedDisk::apply(std::string& bytes, const Write& write) {
  const auto offset = static_cast<std::size_t>(write.offset);
  if (write.cuts) {
    bytes.resize(offset);
    return;
  }
  bytes.resize(std::max(bytes.size(), offset + write.bytes.size()));
  bytes.replace(offset, write.bytes.size(), write.bytes);
}

// Of what was not synced the disk has taken nothing, all, what came first, or any sectors in any order.
std::string SimulatedDisk::leftOf(const File& file, Chance& chance) {
  enum Kind { nothing, everything, whatCameFirst, anything, kinds };
  const auto kind = static_cast<Kind>(chance.below(kinds));
  const std::uint64_t first = kind == whatCameFirst ? chance.below(file.pending.size() + 1) : 0;
  std::string bytes = file.synced;
  for (std::size_t i = 0; i < file.pending.size(); ++i) {
    const Write& write = file.pending[i];
    if (kind == everything || (kind == whatCameFirst && i < first) ||
        (kind == anything && write.cuts && chance.oneIn(2))) {
      apply(bytes, write);
    } else if (kind == anything && !write.cuts) {
      for (std::size_t at = 0; at < write.bytes.size(); at += kSector) {
        if (chance.oneIn(2)) {
          apply(bytes, {write.offset + static_cast<std::int64_t>(at), write.bytes.substr(at, kSector)});
        }
      }
    }
  }
  return bytes;
}

void SimulatedDisk::cutPower(Chance& chance) {
  Names names = syncedNames_;
  const std::uint64_t changes = chance.below(nameChanges_.size() + 1);
  for (std::uint64_t i = 0; i < changes; ++i) {
    const NameChange& change = nameChanges_[i];
    if (change.file) {
      names[change.name] = change.file;
    } else {
      names.erase(change.name);
    }
  }
  fs::create_directories(left_);
  for (const auto& entry : fs::directory_iterator(folder_)) {
    if (entry.is_directory()) {
      fs::create_directories(left_ / entry.path().filename());
    }
  }
  for (const auto& [name, file] : names) {
    const fs::path to = left_ / fs::path(name).lexically_relative(folder_);
    if (file->throughStream) {
      const std::string written = contentsOf(name);
      std::ofstream(to, std::ios::binary) << leftOf({written.substr(0, chance.below(written.size() + 1))}, chance);
    } else if (file->kept) {
      leftOf(*file, chance);  // draws as for any file
      fs::create_hard_link(*file->kept, to);
    } else {
      std::ofstream(to, std::ios::binary) << leftOf(*file, chance);
    }
  }
  die();
}

// Who still runs changes nothing any more, but for what it shares with others or writes through a stream.
void SimulatedDisk::killAll() {
  for (const auto& entry : fs::recursive_directory_iterator(folder_)) {
    const fs::path to = left_ / entry.path().lexically_relative(folder_);
    fs::create_directories(to.parent_path());
    const std::string name = entry.path().string();
    const bool mayChange = isSharedMemory(name) || std::ranges::any_of(open_, [&](const Open& open) {
                             return open.isStream && open.path == name;
                           });
    if (entry.is_directory()) {
      fs::create_directories(to);
    } else if (isLarge(entry.path()) && !mayChange) {
      fs::create_hard_link(entry.path(), to);
    } else {
      fs::copy_file(entry.path(), to);
    }
  }
  die();
}

void SimulatedDisk::die() {
  dead_ = true;
  onSync = nullptr;
  stopCounting();
}

void SimulatedDisk::powerOn() {
  inUse = nullptr;
  fs::remove_all(folder_);
  fs::rename(left_, folder_);
  inUse = this;
  ++edition_;
  dead_ = false;
  fault_ = DiskFault::none;
  room_.reset();
}

void SimulatedDisk::fail(DiskFault fault, std::uint64_t oneIn, Chance chance) {
  fault_ = fault;
  faultOneIn_ = oneIn;
  faultChance_ = chance;
}

}  // namespace tarnwick::simulation
