#include "alerts/uu_files.h"

#include <array>
#include <cerrno>
#include <filesystem>
#include <random>
#include <system_error>

#include "platform/errors.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBufferSize = 1 << 16;

fs::path pathOf(const std::string& utf8) {
  if (utf8.find('\0') != std::string::npos) {
    throw FileError(utf8.substr(0, utf8.find('\0')), "A file's name cannot hold a NUL character.");
  }
  return {std::u8string(utf8.begin(), utf8.end())};
}

std::string textOf(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

std::FILE* openForReading(const std::string& path) {
#ifdef _WIN32
  return _wfopen(pathOf(path).c_str(), L"rb");
#else
  return std::fopen(pathOf(path).c_str(), "rb");
#endif
}

[[noreturn]] void fail(const std::string& path, int cause) {
  throw FileError(path, std::generic_category().message(cause));
}

/// An unused name in the folder of `path`, short enough for any file system.
fs::path unusedNameBeside(const fs::path& path) {
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuv";
  std::random_device random;
  fs::path name;
  do {
    std::array<char, 8> letters{};
    for (char& letter : letters) {
      letter = kDigits[random() % kDigits.size()];
    }
    name = path.parent_path() / (std::string(letters.data(), letters.size()) + ".tmp");
  } while (fs::exists(fs::symlink_status(name)));
  return name;
}

/// Raises FileError when no file can be made at this place, in words that speak of it and not of the temporary one.
void requirePlaceForFile(const std::string& path) {
  std::error_code ignored;
  const fs::path place = pathOf(path);
  if (place.filename().empty() || fs::is_directory(place, ignored)) {
    throw FileError(path, "This is a folder; give the name of a file.");
  }
  if (const fs::path folder = place.parent_path(); !folder.empty() && !fs::is_directory(folder, ignored)) {
    throw FileError(path, "There is no such folder; make it first.");
  }
}

}  // namespace

bool isFile(const std::string& path) {
  std::error_code fault;
  const fs::path place = pathOf(path);
  return fs::exists(fs::symlink_status(place, fault)) && !fs::is_directory(place, fault);
}

bool isSameFile(const std::string& one, const std::string& other) {
  std::error_code fault;
  return fs::equivalent(pathOf(one), pathOf(other), fault) && !fault;
}

std::string fileName(const std::string& path) { return textOf(pathOf(path).filename()); }

std::string fileStem(const std::string& path) { return textOf(pathOf(path).stem()); }

std::string inFolder(const std::string& folder, const std::string& name) {
  return textOf(pathOf(folder) / pathOf(name));
}

InputFile::InputFile(const std::string& path) : path_(path), file_(openForReading(path)) {
  if (!file_) {
    fail(path, errno);
  }
  std::setvbuf(file_.get(), nullptr, _IOFBF, kBufferSize);
}

void InputFile::read(std::string& bytes, std::size_t size) {
  bytes.resize(size);
  const std::size_t got = std::fread(bytes.data(), 1, size, file_.get());
  if (std::ferror(file_.get()) != 0) {
    fail(path_, errno);
  }
  bytes.resize(got);
}

std::uint64_t InputFile::size() const {
  std::error_code fault;
  const std::uintmax_t size = fs::file_size(pathOf(path_), fault);
  if (fault) {
    throw FileError(path_, fault.message());
  }
  return size;
}

OutputFiles::~OutputFiles() {
  for (const Written& file : written_) {
    try {
      files_.remove(file.temporary);
    } catch (const FileError&) {
      // What made the files useless has been reported already, and is the more important news.
    }
  }
}

void OutputFiles::write(const std::string& path, const std::string& like,
                        const std::function<void(const ByteSink& sink)>& fill) {
  requirePlaceForFile(path);
  const std::string temporary = textOf(unusedNameBeside(pathOf(path)));
  files_.write(temporary, like, fill);
  written_.push_back({path, temporary});
}

void OutputFiles::finish() {
  while (!written_.empty()) {
    files_.rename(written_.back().temporary, written_.back().path);
    written_.pop_back();
  }
}

}  // namespace tarnwick
