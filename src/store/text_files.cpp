#include "store/text_files.h"

#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <string_view>
#include <system_error>

#include "base/errors.h"
#include "platform/file_access.h"

namespace tarnwick {
namespace {

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

/// An open file; closed at the end of its life in any case.
class OpenFile {
 public:
  /// Raises FileError when the file cannot be opened.
  OpenFile(const std::string& path, FileUse use) : path_(path), file_(openFile(path, use)) {}

  void write(std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
      fail(path_, errno);
    }
  }

  /// Up to `size` bytes; fewer when the file has become shorter meanwhile.
  std::string read(std::size_t size) {
    std::string bytes(size, '\0');
    bytes.resize(std::fread(bytes.data(), 1, size, file_.get()));
    if (std::ferror(file_.get()) != 0) {
      fail(path_, errno);
    }
    return bytes;
  }

  /// Closes the file now, since a full disk may show only here.
  void close() {
    if (std::fclose(file_.release()) != 0) {
      fail(path_, errno);
    }
  }

 private:
  const std::string& path_;
  FileHandle file_;
};

}  // namespace

void TextFiles::saveFileB(const std::string& path, const std::string& data) {
  OpenFile file(path, FileUse::update);
  file.write(data);
  file.close();
}

void TextFiles::saveFile(const std::string& path, const std::string& text) {
  OpenFile file(path, FileUse::write);
  file.write(text);
  file.write("\r\n");
  file.close();
}

std::string TextFiles::getFile(const std::string& path) {
  const std::uint64_t length = sizeOf(path);
  return OpenFile(path, FileUse::read).read(static_cast<std::size_t>(length));
}

void TextFiles::openFileFromSystem(const std::string& path) { opener_.open(path); }

}  // namespace tarnwick
