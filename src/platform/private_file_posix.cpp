#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "platform/errors.h"
#include "platform/private_file.h"

namespace tarnwick {

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
  if (file && ::fchmod(fileno(file.get()), model.st_mode & kRights) != 0) {
    const int cause = errno;
    file.reset();
    removeFile(path);
    throw FileError(path, std::generic_category().message(cause));
  }
  return file;
}

}  // namespace tarnwick
