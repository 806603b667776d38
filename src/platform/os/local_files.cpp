#include "platform/local_files.h"

#include <cerrno>
#include <system_error>
#include <vector>

#include "base/errors.h"
#include "platform/file_access.h"
#include "platform/private_file.h"

namespace tarnwick {
namespace {

constexpr std::size_t kPieceSize = 1 << 20;

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

}  // namespace

void LocalFiles::write(const std::string& path, const std::string& like,
                       const std::function<void(const ByteSink& sink)>& fill) {
  // Not over what stands there: who has that open, or has put a link there, would get at what only its owner may read.
  removeFile(path);
  FileHandle file = openNewFileLike(path, like);
  if (!file) {
    fail(path, EEXIST);
  }
  try {
    fill([&](std::string_view bytes) {
      if (std::fwrite(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) {
        fail(path, errno);
      }
    });
    settle(file.get(), path);
  } catch (...) {
    file.reset();
    try {
      removeFile(path);
    } catch (const FileError&) {
      // What made the file useless is the more important news.
    }
    throw;
  }
}

void LocalFiles::copy(const std::string& from, const std::string& to) {
  const FileHandle source = openFile(from, FileUse::read);
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

void LocalFiles::rename(const std::string& from, const std::string& to) { replaceFile(from, to); }

void LocalFiles::remove(const std::string& path) { removeFile(path); }

bool LocalFiles::replacesOpenFiles() const { return canReplaceOpenFiles(); }

}  // namespace tarnwick
