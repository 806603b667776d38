#include "platform/private_file.h"

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <optional>
#include <system_error>
#include <utility>

#include "base/errors.h"

namespace tarnwick {
namespace {

constexpr int kMostNames = 100;
constexpr std::chrono::hours kLongestPause{1};

struct NewFile {
  std::string path;
  FileHandle handle;
};

std::string nameBeside(const std::string& path, int number) {
  return path + ".new" + (number == 1 ? "" : std::to_string(number));
}

/// Whether nobody can be at work on the file any more. Who writes one does so all the time.
bool isLeftOver(const std::string& path) {
  std::error_code fault;
  const auto written = std::filesystem::last_write_time(pathOf(path), fault);
  return !fault && written + kLongestPause < std::filesystem::file_time_type::clock::now();
}

/// Makes room where every name is taken, by what killed processes have left. From the last name on: the first ones may
/// be files of the user's own.
bool removeOneLeftOver(const std::string& path) {
  for (int number = kMostNames; number > 1; --number) {
    const std::string name = nameBeside(path, number);
    if (isLeftOver(name)) {
      removeFile(name);
      return true;
    }
  }
  return false;
}

std::optional<NewFile> tryOpenBeside(const std::string& path) {
  for (int number = 1; number <= kMostNames; ++number) {
    const std::string name = nameBeside(path, number);
    if (FileHandle handle = openNewPrivateFile(name)) {
      return NewFile{name, std::move(handle)};
    }
  }
  return std::nullopt;
}

// Beside the file, since a file can be renamed within its folder only. One that is left of a killed process, or that
// another one is writing, is let alone while there are other names.
NewFile openBeside(const std::string& path) {
  std::optional<NewFile> made = tryOpenBeside(path);
  if (!made && removeOneLeftOver(path)) {
    made = tryOpenBeside(path);
  }
  if (made) {
    return *std::move(made);
  }
  throw FileError(path + ".new", "Too many files of this name are left. Remove them.");
}

void writeTo(std::FILE* file, const std::string& path, const std::function<void(const ByteSink& sink)>& fill) {
  fill([&](std::string_view bytes) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) {
      throw FileError(path, std::generic_category().message(errno));
    }
  });
}

}  // namespace

void writePrivateFile(const std::string& path, const std::function<void(const ByteSink& sink)>& fill) {
  const FileKind kind = kindOf(path);
  if (kind == FileKind::folder) {
    throw FileError(path, "This is a folder, where a file was expected.");
  }
  if (kind == FileKind::other) {
    const FileHandle handle = openFile(path, FileUse::write);
    writeTo(handle.get(), path, fill);
    if (std::fflush(handle.get()) != 0) {
      throw FileError(path, std::generic_category().message(errno));
    }
    return;
  }
  const std::string place = behindLinks(path);
  NewFile made = openBeside(place);
  try {
    writeTo(made.handle.get(), place, fill);
    settle(made.handle.get(), place);
    made.handle.reset();
    replaceFile(made.path, place);
  } catch (...) {
    made.handle.reset();
    try {
      removeFile(made.path);
    } catch (const FileError&) {
      // What made the file useless is the more important news.
    }
    throw;
  }
}

}  // namespace tarnwick
