#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "base/errors.h"
#include "platform/file_access.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

int flagsOf(FileUse use) {
  switch (use) {
    case FileUse::read:
      return O_RDONLY;
    case FileUse::update:
      return O_WRONLY | O_CREAT;
    default:
      return O_WRONLY | O_CREAT | O_TRUNC;
  }
}

/// Waits until the disk holds the folder's list of names. A file system that cannot do this needs no help with it.
void settleFolder(const fs::path& folder) {
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    fsync(descriptor);
    ::close(descriptor);
  }
}

/// A plain file that a listing shows.
bool isVisibleFile(const fs::directory_entry& entry) {
  std::error_code fault;
  return entry.is_regular_file(fault) && !entry.path().filename().native().starts_with('.');
}

}  // namespace

FileKind kindOf(const std::string& path) {
  std::error_code fault;
  switch (fs::status(pathOf(path), fault).type()) {
    case fs::file_type::not_found:
      return FileKind::none;
    case fs::file_type::regular:
      return FileKind::file;
    case fs::file_type::directory:
      return FileKind::folder;
    default:
      return FileKind::other;
  }
}

bool isTaken(const std::string& path) {
  std::error_code fault;
  return fs::exists(fs::symlink_status(pathOf(path), fault));
}

std::uint64_t sizeOf(const std::string& path) {
  std::error_code fault;
  const std::uintmax_t size = fs::file_size(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
  return size;
}

bool isSameFile(const std::string& one, const std::string& other) {
  std::error_code fault;
  return fs::equivalent(pathOf(one), pathOf(other), fault) && !fault;
}

FileHandle openFile(const std::string& path, FileUse use) {
  constexpr mode_t kWrittenByOwnerOnly = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
  const int descriptor = ::open(pathOf(path).c_str(), flagsOf(use) | O_CLOEXEC, kWrittenByOwnerOnly);
  if (descriptor < 0) {
    fail(path, errno);
  }
  FileHandle file(fdopen(descriptor, use == FileUse::read ? "rb" : "wb"));
  if (!file) {
    const int cause = errno;
    ::close(descriptor);
    fail(path, cause);
  }
  return file;
}

void settle(std::FILE* file, const std::string& path) {
  if (std::fflush(file) != 0 || fsync(fileno(file)) != 0) {
    fail(path, errno);
  }
}

void replaceFile(const std::string& from, const std::string& to) {
  std::error_code fault;
  fs::rename(pathOf(from), pathOf(to), fault);
  if (fault) {
    throw FileError(to, fault.message());
  }
  settleFolder(pathOf(to).parent_path());
}

bool canReplaceOpenFiles() { return true; }

void removeFile(const std::string& path) {
  std::error_code fault;
  if (fs::is_directory(fs::symlink_status(pathOf(path), fault))) {
    throw FileError(path, "This is a folder, where a file was expected.");
  }
  fs::remove(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
}

bool isWritableFolder(const std::string& path) {
  return kindOf(path) == FileKind::folder && ::access(pathOf(path).c_str(), W_OK | X_OK) == 0;
}

bool makeFolder(const std::string& path) {
  std::error_code fault;
  const bool made = fs::create_directory(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
  return made;
}

bool holdsVisibleFile(const std::string& folder) {
  std::error_code fault;
  fs::directory_iterator entry(pathOf(folder), fault);
  for (; !fault && entry != fs::directory_iterator(); entry.increment(fault)) {
    if (isVisibleFile(*entry)) {
      return true;
    }
  }
  return false;
}

}  // namespace tarnwick
