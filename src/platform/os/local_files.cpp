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

void append(std::FILE* file, const std::string& path, std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
    fail(path, errno);
  }
}

class NewLocalFile final : public FileInTheMaking {
 public:
  NewLocalFile(const std::string& path, const std::string& like) : path_(path) {
    // Not over what stands there: who has that open, or has put a link there, would get at what only its owner may
    // read.
    LocalFiles().remove(path_);
    file_ = openNewFile(path_, like);
  }
  ~NewLocalFile() override {
    if (file_ == nullptr) {
      return;
    }
    file_.reset();
    try {
      LocalFiles().remove(path_);
    } catch (const FileError&) {
      // What made the file useless is the more important news.
    }
  }
  NewLocalFile(const NewLocalFile&) = delete;
  NewLocalFile& operator=(const NewLocalFile&) = delete;

  void write(std::string_view bytes) override { append(file_.get(), path_, bytes); }
  void complete() override {
    syncToDisk(file_.get(), path_);
    file_.reset();
  }

 private:
  std::string path_;
  FileHandle file_;
};

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

std::unique_ptr<FileInTheMaking> LocalFiles::make(const std::string& path, const std::string& like) {
  return std::make_unique<NewLocalFile>(path, like);
}

void LocalFiles::write(const std::string& path, const std::string& like, const FileFill& fill) {
  NewLocalFile file(path, like);
  fill([&](std::string_view bytes) { file.write(bytes); });
  file.complete();
}

void LocalFiles::overwrite(const std::string& path, FileRest rest, const FileFill& fill) {
  FileHandle file = openFile(path, rest == FileRest::kept ? FileUse::update : FileUse::write);
  fill([&](std::string_view bytes) { append(file.get(), path, bytes); });
  // A full disk may show only here.
  if (std::fclose(file.release()) != 0) {
    fail(path, errno);
  }
}

}  // namespace tarnwick
