#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tarnwick {

/// Takes the bytes of a file, piece by piece from its start.
using ByteSink = std::function<void(std::string_view bytes)>;

/// Whole files made, moved and removed so that a power cut or a killed process leaves nothing half done under a name
/// that counts. Paths are UTF-8. Every failure raises FileError, which names the file and the cause.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  /// Makes the file `path`, or replaces what stands there, of the bytes that `fill` hands to its sink. It gets the
  /// permissions of the file `like`, and is on the disk when this returns. A file that cannot be completed, or whose
  /// `fill` raises something, is removed again.
  virtual void write(const std::string& path, const std::string& like,
                     const std::function<void(const ByteSink& sink)>& fill) = 0;

  /// The same with the bytes and permissions of the file `from`, of which only a small piece is in memory at a time.
  virtual void copy(const std::string& from, const std::string& to) = 0;

  /// Gives the file `from` the name `to` in the same folder, in place of a file that has this name: at no moment is
  /// there none. On the disk when this returns.
  virtual void rename(const std::string& from, const std::string& to) = 0;

  /// Removes the file; nothing when there is none.
  virtual void remove(const std::string& path) = 0;

  /// Whether `rename` can replace a file that is open.
  virtual bool replacesOpenFiles() const = 0;
};

}  // namespace tarnwick
