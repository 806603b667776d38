// SPDX-License-Identifier: MIT
#include "platform/file_system.h"

#include <array>
#include <random>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/errors.h"
#include "base/text.h"

namespace tarnwick {
namespace {

constexpr std::size_t kPieceSize = 1 << 20;

/// The text with the replacement character in place of each byte that is no UTF-8.
std::u8string wellFormed(std::string_view text) {
  std::string repaired;
  while (!text.empty()) {
    const auto character = decodeUtf8(text);
    appendUtf8(repaired, character ? character->character : U'\uFFFD');
    text.remove_prefix(character ? character->length : 1);
  }
  return {repaired.begin(), repaired.end()};
}

/// Made beside its place, since a file can be renamed within its folder only. Errors name the place.
class FileForPlace final : public FileInTheMaking {
 public:
  FileForPlace(FileSystem& files, std::string place)
      : files_(files), place_(std::move(place)), unfinished_(files.unusedNameBeside(place_)) {
    tellPlace([&] { file_ = files_.make(unfinished_, {}); });
  }

  void write(std::string_view bytes) override {
    tellPlace([&] { file_->write(bytes); });
  }
  void complete() override {
    tellPlace([&] {
      file_->complete();
      try {
        files_.rename(unfinished_, place_);
      } catch (const FileError&) {
        files_.remove(unfinished_);
        throw;
      }
    });
  }

 private:
  template <typename Step>
  void tellPlace(Step step) {
    try {
      step();
    } catch (const FileError& error) {
      throw FileError(error.path() == unfinished_ ? place_ : error.path(), error.cause());
    }
  }

  FileSystem& files_;
  std::string place_;
  std::string unfinished_;
  std::unique_ptr<FileInTheMaking> file_;
};

}  // namespace

std::filesystem::path pathOf(const std::string& utf8) {
  if (const auto nul = utf8.find('\0'); nul != std::string::npos) {
    throw FileError(utf8.substr(0, nul), "A file's name cannot hold a NUL character.");
  }
  try {
    return std::u8string(utf8.begin(), utf8.end());
  } catch (const std::system_error&) {
    // Where names are UTF-16 no file has such a name; the nearest one that there can be is looked for, and told.
    return wellFormed(utf8);
  }
}

std::string textOf(const std::filesystem::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

void FileSystem::readAll(OpenedFile& file, const ByteSink& sink) {
  std::string piece;
  for (file.read(piece, kPieceSize); !piece.empty(); file.read(piece, kPieceSize)) {
    sink(piece);
  }
}

void FileSystem::copy(const std::string& from, const std::string& to) {
  const auto source = open(from);
  write(to, from, [&](const ByteSink& sink) { readAll(*source, sink); });
}

std::string FileSystem::unusedNameBeside(const std::string& path) {
  constexpr std::string_view kDigits = "0123456789abcdefghijklmnopqrstuv";
  std::random_device random;
  std::string name;
  do {
    std::array<char, 8> letters{};
    for (char& letter : letters) {
      letter = kDigits[random() % kDigits.size()];
    }
    name = textOf(pathOf(path).parent_path() / (std::string(letters.data(), letters.size()) + ".tmp"));
  } while (exists(name));
  return name;
}

void FileSystem::replace(const std::string& path, const FileFill& fill) {
  if (kindOf(path) == FileKind::file) {
    putInPlace(path, path, fill);
  } else {
    overwrite(path, FileRest::removed, fill);
  }
}

void FileSystem::writePrivately(const std::string& path, const FileFill& fill) {
  switch (kindOf(path)) {
    case FileKind::folder:
      throw FileError(path, "This is a folder, where a file was expected.");
    case FileKind::pipe:
    case FileKind::other:
      overwrite(path, FileRest::removed, fill);
      return;
    default:
      putInPlace(path, {}, fill);
  }
}

std::unique_ptr<FileInTheMaking> FileSystem::beginPrivately(const std::string& path) {
  if (exists(path)) {
    sizeOf(path);  // which refuses what is no plain file
  }
  return std::make_unique<FileForPlace>(*this, resolveLinks(path));
}

void FileSystem::putInPlace(const std::string& path, const std::string& like, const FileFill& fill) {
  // Beside the file, since a file can be renamed within its folder only.
  const std::string place = resolveLinks(path);
  const std::string unfinished = unusedNameBeside(place);
  try {
    write(unfinished, like, fill);
    rename(unfinished, place);
  } catch (const FileError& error) {
    remove(unfinished);
    throw FileError(error.path() == unfinished ? place : error.path(), error.cause());
  }
}

}  // namespace tarnwick
