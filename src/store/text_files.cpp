#include "store/text_files.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "platform/errors.h"

namespace tarnwick {
namespace {

std::filesystem::path pathOf(const std::string& utf8) {
  if (utf8.find('\0') != std::string::npos) {
    throw FileError(utf8.substr(0, utf8.find('\0')), "A file's name cannot hold a NUL character.");
  }
  return {std::u8string(utf8.begin(), utf8.end())};
}

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

/// An open file; closed at the end of its life in any case.
class OpenFile {
 public:
  /// Raises FileError when the file cannot be opened.
  OpenFile(const std::string& path, const char* mode) : OpenFile(path, tryOpen(path, mode)) {}
  /// For writing at the start of a file that keeps its length, or that is made.
  static OpenFile forUpdate(const std::string& path) {
    std::FILE* file = tryOpen(path, "r+b");
    if (file == nullptr && errno == ENOENT) {
      file = tryOpen(path, "wb");
    }
    return {path, file};
  }

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
  struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
  };

  OpenFile(const std::string& path, std::FILE* file) : path_(path), file_(file) {
    if (file == nullptr) {
      fail(path, errno);
    }
  }

  static std::FILE* tryOpen(const std::string& path, const char* mode) {
#ifdef _WIN32
    return _wfopen(pathOf(path).c_str(), std::filesystem::path(mode).c_str());
#else
    return std::fopen(pathOf(path).c_str(), mode);
#endif
  }

  const std::string& path_;
  std::unique_ptr<std::FILE, Closer> file_;
};

}  // namespace

void TextFiles::saveFileB(const std::string& path, const std::string& data) {
  OpenFile file = OpenFile::forUpdate(path);
  file.write(data);
  file.close();
}

void TextFiles::saveFile(const std::string& path, const std::string& text) {
  OpenFile file(path, "wb");
  file.write(text);
  file.write("\r\n");
  file.close();
}

std::string TextFiles::getFile(const std::string& path) {
  std::error_code fault;
  const std::uintmax_t length = std::filesystem::file_size(pathOf(path), fault);
  if (fault) {
    throw FileError(path, fault.message());
  }
  return OpenFile(path, "rb").read(static_cast<std::size_t>(length));
}

void TextFiles::openFileFromSystem(const std::string& path) { opener_.open(path); }

}  // namespace tarnwick
