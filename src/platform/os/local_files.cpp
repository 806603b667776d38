// SPDX-License-Identifier: MIT
#include "platform/local_files.h"

#include <cerrno>
#include <system_error>

#include "base/errors.h"
#include "platform/os/open_file.h"

namespace tarnwick {
namespace {

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

void fillFile(std::FILE* file, const std::string& path, const FileFill& fill) {
  fill([&](std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
      fail(path, errno);
    }
  });
}

class OpenedLocalFile final : public OpenedFile {
 public:
  explicit OpenedLocalFile(const std::string& path) : path_(path), file_(openFile(path, FileUse::read)) {
    std::setvbuf(file_.get(), nullptr, _IOFBF, 1 << 16);
  }

  void read(std::string& bytes, std::size_t size) override {
    bytes.resize(size);
    const std::size_t got = std::fread(bytes.data(), 1, size, file_.get());
    if (std::ferror(file_.get()) != 0) {
      fail(path_, errno);
    }
    bytes.resize(got);
  }

 private:
  std::string path_;
  FileHandle file_;
};

}  // namespace

std::string LocalFiles::resolveLinks(const std::string& path) {
  std::error_code fault;
  const std::filesystem::path place = std::filesystem::canonical(pathOf(path), fault);
  return fault ? path : textOf(place);
}

std::optional<DiskRoom> LocalFiles::roomAt(const std::string& path) {
  std::error_code fault;
  const std::filesystem::space_info room = std::filesystem::space(pathOf(path), fault);
  return fault ? std::nullopt : std::optional(DiskRoom{room.available, room.capacity});
}

std::unique_ptr<OpenedFile> LocalFiles::open(const std::string& path) {
  return std::make_unique<OpenedLocalFile>(path);
}

void LocalFiles::write(const std::string& path, const std::string& like, const FileFill& fill) {
  // Not over what stands there: who has that open, or has put a link there, would get at what only its owner may read.
  LocalFiles::remove(path);
  FileHandle file = openNewFile(path, like);
  try {
    fillFile(file.get(), path, fill);
    syncToDisk(file.get(), path);
  } catch (...) {
    file.reset();
    try {
      LocalFiles::remove(path);
    } catch (const FileError&) {
      // What made the file useless is the more important news.
    }
    throw;
  }
}

void LocalFiles::overwrite(const std::string& path, FileRest rest, const FileFill& fill) {
  FileHandle file = openFile(path, rest == FileRest::kept ? FileUse::update : FileUse::write);
  fillFile(file.get(), path, fill);
  // A full disk may show only here.
  if (std::fclose(file.release()) != 0) {
    fail(path, errno);
  }
}

}  // namespace tarnwick
