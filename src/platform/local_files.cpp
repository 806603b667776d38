#include "platform/local_files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <vector>

#ifdef _WIN32
#include <io.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

#include "platform/errors.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kPieceSize = 1 << 20;

fs::path pathOf(const std::string& utf8) { return {std::u8string(utf8.begin(), utf8.end())}; }

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

struct Closer {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, Closer>;

File open(const std::string& path, const char* mode) {
#ifdef _WIN32
  File file(_wfopen(pathOf(path).c_str(), fs::path(mode).c_str()));
#else
  File file(std::fopen(pathOf(path).c_str(), mode));
#endif
  if (!file) {
    fail(path, errno);
  }
  return file;
}

/// Waits until the disk holds what has been written.
void settle(std::FILE* file, const std::string& path) {
#ifdef _WIN32
  const bool done = std::fflush(file) == 0 && _commit(_fileno(file)) == 0;
#else
  const bool done = std::fflush(file) == 0 && fsync(fileno(file)) == 0;
#endif
  if (!done) {
    fail(path, errno);
  }
}

/// Waits until the disk holds the folder's list of names. A file system that cannot do this needs no help with it.
void settleFolder([[maybe_unused]] const fs::path& folder) {
#ifndef _WIN32
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0) {
    fsync(descriptor);
    ::close(descriptor);
  }
#endif
}

/// Before the first byte is written: what only its owner may read must not be readable for a moment either.
void takePermissions(const std::string& path, const std::string& like) {
  std::error_code fault;
  const fs::file_status model = fs::status(pathOf(like), fault);
  if (!fault && model.permissions() != fs::perms::unknown) {
    fs::permissions(pathOf(path), model.permissions(), fault);
  }
  if (fault) {
    throw FileError(path, fault.message());
  }
}

}  // namespace

void LocalFiles::write(const std::string& path, const std::string& like,
                       const std::function<void(const ByteSink& sink)>& fill) {
  File file = open(path, "wb");
  try {
    takePermissions(path, like);
    fill([&](std::string_view bytes) {
      if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        fail(path, errno);
      }
    });
    settle(file.get(), path);
  } catch (...) {
    file.reset();
    std::error_code ignored;
    fs::remove(pathOf(path), ignored);
    throw;
  }
}

void LocalFiles::copy(const std::string& from, const std::string& to) {
  const File source = open(from, "rb");
  write(to, from, [&](const ByteSink& sink) {
    std::vector<char> piece(kPieceSize);
    while (const std::size_t size = std::fread(piece.data(), 1, piece.size(), source.get())) {
      sink({piece.data(), size});
    }
    if (std::ferror(source.get()) != 0) {
      fail(from, errno);
    }
  });
}

void LocalFiles::rename(const std::string& from, const std::string& to) {
  std::error_code fault;
  fs::rename(pathOf(from), pathOf(to), fault);
  if (fault) {
    throw FileError(to, fault.message());
  }
  settleFolder(pathOf(to).parent_path());
}

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

bool LocalFiles::replacesOpenFiles() const {
#ifdef _WIN32
  return false;
#else
  return true;
#endif
}

}  // namespace tarnwick
