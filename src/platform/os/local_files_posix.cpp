// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/os/open_file.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

FileHandle openWith(const std::string& path, int flags, mode_t rights) {
  const int descriptor = ::open(pathOf(path).c_str(), flags | O_CLOEXEC, rights);
  if (descriptor < 0) {
    fail(path, errno);
  }
  FileHandle file(fdopen(descriptor, (flags & O_ACCMODE) == O_RDONLY ? "rb" : "wb"));
  if (!file) {
    const int cause = errno;
    ::close(descriptor);
    fail(path, cause);
  }
  return file;
}

/// Whether the file is that of this opening alone now.
bool lockAlone(const std::string& path, int descriptor) {
  if (::flock(descriptor, LOCK_EX | LOCK_NB) == 0) {
    return true;
  }
  if (errno == EWOULDBLOCK) {
    return false;
  }
#ifdef F_OFD_SETLK
  // A file system that knows none of those may know the locks by which a database is guarded.
  struct flock whole {};
  whole.l_type = F_WRLCK;
  whole.l_whence = SEEK_SET;
  if (::fcntl(descriptor, F_OFD_SETLK, &whole) == 0) {
    return true;
  }
  if (errno == EAGAIN || errno == EACCES) {
    return false;
  }
#endif
  const int cause = errno;
  LocalFiles().remove(path);
  throw NoFileLocks(path, std::generic_category().message(cause));
}

// Gives a file the owner and the group of another one, as far as this user may. False when it has another group then.
bool takeOwners(int descriptor, const struct stat& model) {
  constexpr uid_t kAsItIs = static_cast<uid_t>(-1);
  if (::fchown(descriptor, model.st_uid, model.st_gid) == 0 || ::fchown(descriptor, kAsItIs, model.st_gid) == 0) {
    return true;
  }
  struct stat made {};
  return ::fstat(descriptor, &made) == 0 && made.st_gid == model.st_gid;
}

/// Waits until the disk holds the folder's list of names. A file system that cannot do this needs no help with it.
void syncFolder(const fs::path& folder) {
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

FileKind LocalFiles::kindOf(const std::string& path) {
  std::error_code fault;
  switch (fs::status(pathOf(path), fault).type()) {
    case fs::file_type::not_found:
      return FileKind::none;
    case fs::file_type::regular:
      return FileKind::file;
    case fs::file_type::directory:
      return FileKind::folder;
    case fs::file_type::fifo:
      return FileKind::pipe;
    default:
      return FileKind::other;
  }
}

bool LocalFiles::exists(const std::string& path) {
  std::error_code fault;
  return fs::exists(fs::symlink_status(pathOf(path), fault));
}

std::uint64_t LocalFiles::sizeOf(const std::string& path) {
  std::error_code fault;
  const std::uintmax_t size = fs::file_size(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
  return size;
}

bool LocalFiles::isSameFile(const std::string& one, const std::string& other) {
  std::error_code fault;
  return fs::equivalent(pathOf(one), pathOf(other), fault) && !fault;
}

FileHandle openFile(const std::string& path, FileUse use) {
  constexpr mode_t kWrittenByOwnerOnly = S_IRUSR | S_IWUSR | S_IRGRP | S_IROTH;
  const int flags = use == FileUse::read ? O_RDONLY : O_WRONLY | O_CREAT | (use == FileUse::write ? O_TRUNC : 0);
  return openWith(path, flags, kWrittenByOwnerOnly);
}

FileHandle openNewFile(const std::string& path, const std::string& like) {
  struct stat model {};
  if (!like.empty() && ::stat(pathOf(like).c_str(), &model) != 0) {
    fail(like, errno);
  }
  FileHandle file = openWith(path, O_WRONLY | O_CREAT | O_EXCL, S_IRUSR | S_IWUSR);
  if (like.empty()) {
    return file;
  }
  constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
  // What the group may do is for that group alone. The owners come first: until then nobody else can open it.
  const int descriptor = fileno(file.get());
  const mode_t rights = takeOwners(descriptor, model) ? kRights : kRights & ~static_cast<mode_t>(S_IRWXG);
  if (::fchmod(descriptor, model.st_mode & rights) != 0) {
    const int cause = errno;
    LocalFiles().remove(path);
    fail(path, cause);
  }
  return file;
}

bool standsAt(std::FILE* file, const std::string& path) {
  struct stat opened {};
  struct stat named {};
  return ::fstat(fileno(file), &opened) == 0 && ::lstat(pathOf(path).c_str(), &named) == 0 &&
         opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

FileHandle openAlone(const std::string& path) {
  for (;;) {
    FileHandle file = openWith(path, O_RDWR | O_CREAT | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    const int descriptor = fileno(file.get());
    if (!lockAlone(path, descriptor)) {
      return nullptr;
    }
    // Who had it may have removed it before it was let go.
    if (standsAt(file.get(), path)) {
      if (::fchmod(descriptor, S_IRUSR | S_IWUSR) != 0 || ::ftruncate(descriptor, 0) != 0) {
        fail(path, errno);
      }
      return file;
    }
  }
}

void syncToDisk(std::FILE* file, const std::string& path) {
  if (std::fflush(file) != 0 || fsync(fileno(file)) != 0) {
    fail(path, errno);
  }
}

void LocalFiles::rename(const std::string& from, const std::string& to) {
  std::error_code fault;
  fs::rename(pathOf(from), pathOf(to), fault);
  if (fault) {
    throw FileError(to, fault.message());
  }
  syncFolder(pathOf(to).parent_path());
}

bool LocalFiles::replacesOpenFiles() { return true; }

void LocalFiles::remove(const std::string& path) {
  std::error_code fault;
  if (fs::is_directory(fs::symlink_status(pathOf(path), fault))) {
    throw FileError(path, "This is a folder, where a file was expected.");
  }
  fs::remove(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
}

bool LocalFiles::makeFolder(const std::string& path) {
  std::error_code fault;
  const bool made = fs::create_directory(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
  return made;
}

bool LocalFiles::holdsVisibleFile(const std::string& folder) {
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
