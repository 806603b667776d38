#include "platform/private_file.h"

#include <cerrno>
#include <system_error>
#include <utility>

#include "platform/errors.h"

namespace tarnwick {
namespace {

constexpr int kMostNames = 100;

struct NewFile {
  std::string path;
  FileHandle handle;
};

// Beside the file, since a file can be renamed within its folder only. One that is left of a killed process, or that
// another one is writing, is let alone.
NewFile openBeside(const std::string& path) {
  for (int number = 1; number <= kMostNames; ++number) {
    const std::string name = path + ".new" + (number == 1 ? "" : std::to_string(number));
    if (FileHandle handle = openNewPrivateFile(name)) {
      return {name, std::move(handle)};
    }
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

std::string behindLinks(const std::string& path) {
  std::error_code fault;
  const std::filesystem::path place = std::filesystem::canonical(pathOf(path), fault);
  return fault ? path : textOf(place);
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
