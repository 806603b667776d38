#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "base/errors.h"
#include "platform/private_file.h"

namespace tarnwick {
namespace {

// Gives a file the owner and the group of another one, as far as this user may. False when it has another group then.
bool takeOwners(int descriptor, const struct stat& model) {
  constexpr uid_t kAsItIs = static_cast<uid_t>(-1);
  if (::fchown(descriptor, model.st_uid, model.st_gid) == 0 || ::fchown(descriptor, kAsItIs, model.st_gid) == 0) {
    return true;
  }
  struct stat made {};
  return ::fstat(descriptor, &made) == 0 && made.st_gid == model.st_gid;
}

}  // namespace

FileHandle openNewPrivateFile(const std::string& path) {
  const int descriptor = ::open(pathOf(path).c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
  if (descriptor < 0 && errno == EEXIST) {
    return nullptr;
  }
  FileHandle file(descriptor < 0 ? nullptr : fdopen(descriptor, "wb"));
  if (!file) {
    const int cause = errno;
    if (descriptor >= 0) {
      ::close(descriptor);
    }
    throw FileError(path, std::generic_category().message(cause));
  }
  return file;
}

FileHandle openNewFileLike(const std::string& path, const std::string& like) {
  constexpr mode_t kRights = S_IRWXU | S_IRWXG | S_IRWXO;
  struct stat model {};
  if (::stat(pathOf(like).c_str(), &model) != 0) {
    throw FileError(like, std::generic_category().message(errno));
  }
  FileHandle file = openNewPrivateFile(path);
  if (!file) {
    return nullptr;
  }
  // What the group may do is for that group alone. The owners come first: until then nobody else can open it.
  const int descriptor = fileno(file.get());
  const mode_t rights = takeOwners(descriptor, model) ? kRights : kRights & ~static_cast<mode_t>(S_IRWXG);
  if (::fchmod(descriptor, model.st_mode & rights) != 0) {
    const int cause = errno;
    file.reset();
    removeFile(path);
    throw FileError(path, std::generic_category().message(cause));
  }
  return file;
}

}  // namespace tarnwick
