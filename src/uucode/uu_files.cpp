#include "uucode/uu_files.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>

#include "base/errors.h"

namespace tarnwick {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBufferSize = 1 << 16;

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
  } while (isTaken(textOf(name)));
  return name;
}

/// Raises FileError when no file can be made at this place, in words that speak of it and not of the temporary one.
void requirePlaceForFile(const std::string& path) {
  const fs::path place = pathOf(path);
  if (place.filename().empty() || kindOf(path) == FileKind::folder) {
    throw FileError(path, "This is a folder; give the name of a file.");
  }
  if (const fs::path folder = place.parent_path(); !folder.empty() && kindOf(textOf(folder)) != FileKind::folder) {
    throw FileError(path, "There is no such folder; make it first.");
  }
}

}  // namespace

bool isFile(const std::string& path) { return isTaken(path) && kindOf(path) != FileKind::folder; }

std::string fileName(const std::string& path) { return textOf(pathOf(path).filename()); }

std::string fileStem(const std::string& path) { return textOf(pathOf(path).stem()); }

std::string inFolder(const std::string& folder, const std::string& name) {
  return textOf(pathOf(folder) / pathOf(name));
}

InputFile::InputFile(const std::string& path) : path_(path), file_(openFile(path, FileUse::read)) {
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

std::uint64_t InputFile::size() const { return sizeOf(path_); }

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
