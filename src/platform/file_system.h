// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tarnwick {

/// A path for taking apart and putting together. Raises FileError when the text holds a NUL character, which no name
/// can, or on Windows no text at all. The text of a path has slashes on every system.
std::filesystem::path pathOf(const std::string& utf8);
std::string textOf(const std::filesystem::path& path);

enum class FileKind { none, file, folder, pipe, other };

/// What becomes of an existing file's bytes that are not written over.
enum class FileRest { removed, kept };

/// Takes the bytes of a file, piece by piece from its start.
using ByteSink = std::function<void(std::string_view bytes)>;
/// Hands the bytes of a file to a sink.
using FileFill = std::function<void(const ByteSink& sink)>;

/// A file that is read from its start, as it was when it was opened.
class OpenedFile {
 public:
  virtual ~OpenedFile() = default;
  /// Replaces `bytes` by the next `size` bytes, fewer at the end of the file alone.
  virtual void read(std::string& bytes, std::size_t size) = 0;
};

/// A file that is being made. One that was not completed goes with this object.
class FileInTheMaking {
 public:
  virtual ~FileInTheMaking() = default;
  virtual void write(std::string_view bytes) = 0;
  /// The file is on the disk, whole and in its place, when this returns; nothing is written after it.
  virtual void complete() = 0;
};

/// What a disk has of room, in bytes.
struct DiskRoom {
  std::uint64_t free = 0;  ///< what this user may still take of it
  std::uint64_t whole = 0;
};

/// The files of a machine. Paths are UTF-8 on every system; with a folder they may be as long as the system allows.
/// Every failure raises FileError, which names the file and the cause.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// What stands at `path`, behind links; `other` also when it cannot be looked at.
  virtual FileKind kindOf(const std::string& path) = 0;
  /// Whether the name is taken, be it by a link that leads nowhere.
  virtual bool exists(const std::string& path) = 0;
  /// The file's own name, behind all links that lead to it; `path` itself where nothing stands.
  virtual std::string resolveLinks(const std::string& path) = 0;
  /// The size in bytes.
  virtual std::uint64_t sizeOf(const std::string& path) = 0;
  /// Whether both paths lead to one file. False when one of them leads nowhere.
  virtual bool isSameFile(const std::string& one, const std::string& other) = 0;
  virtual std::unique_ptr<OpenedFile> open(const std::string& path) = 0;

  /// Begins to make the file `path`, in place of what stands there. It gets the permissions of the file `like`, or can
  /// be read by its owner alone when that is empty, from the first moment on.
  virtual std::unique_ptr<FileInTheMaking> make(const std::string& path, const std::string& like) = 0;
  /// Makes the file `path`, or replaces what stands there, of the bytes that `fill` hands to its sink. It gets the
  /// permissions of the file `like`, or can be read by its owner alone when that is empty, from the first moment on; it
  /// is on the disk when this returns. A file that cannot be completed, or whose `fill` raises something, is removed
  /// again.
  virtual void write(const std::string& path, const std::string& like, const FileFill& fill) = 0;
  /// Writes over the file from its start, where it lies, and makes it when it is missing. A file that is made so can be
  /// written by its owner only, and read by whom the user's own rule for new files lets.
  virtual void overwrite(const std::string& path, FileRest rest, const FileFill& fill) = 0;

  /// Gives the file `from` the name `to` in the same folder, in place of a file that has this name: at no moment is
  /// there none. On the disk when this returns.
  virtual void rename(const std::string& from, const std::string& to) = 0;
  /// Removes the file; nothing when there is none.
  virtual void remove(const std::string& path) = 0;
  /// Whether a file that is open can be removed, and be replaced by `rename`.
  virtual bool replacesOpenFiles() = 0;

  /// The room of the disk that the file or folder lies on; nothing where that is not known.
  virtual std::optional<DiskRoom> roomAt(const std::string& path) = 0;

  /// False when the folder is there already.
  virtual bool makeFolder(const std::string& path) = 0;
  /// Whether the folder holds a plain file that a listing shows. False without such a folder.
  virtual bool holdsVisibleFile(const std::string& folder) = 0;

  /// Makes `to` of the bytes and permissions of `from`, as `write` does, with only a small piece in memory at a time.
  void copy(const std::string& from, const std::string& to);
  /// The bytes of the open file up to its end, piece by piece.
  static void readAll(OpenedFile& file, const ByteSink& sink);
  /// An unused name in the folder of `path`, short enough for any file system.
  std::string unusedNameBeside(const std::string& path);
  /// Replaces the file `path` as a whole, and only when the new one is complete: a failure leaves the old one. It keeps
  /// its permissions, and behind a link it is the file that the link leads to. Where no file stands this is
  /// `overwrite`.
  void replace(const std::string& path, const FileFill& fill);
  /// Makes the file `path`, or replaces it, by one that nobody but its owner can read at any moment. It is replaced as
  /// a whole, and only when it is complete. Behind a link it is the file that the link leads to; what is no file, as a
  /// pipe, is written to as it is.
  void writePrivately(const std::string& path, const FileFill& fill);
  /// The same for who has not all of it at once. What stands there stays until it is complete; only a file is replaced.
  /// This object outlives it.
  std::unique_ptr<FileInTheMaking> beginPrivately(const std::string& path);

 private:
  /// Makes a file by `write`, which then takes the place of `path` or of the file that this leads to.
  void putInPlace(const std::string& path, const std::string& like, const FileFill& fill);
};

}  // namespace tarnwick
