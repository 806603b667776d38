// SPDX-License-Identifier: MIT
#include "platform/os/work_apart.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <string_view>
#include <system_error>

namespace tarnwick {
namespace {

// A damaged file can send a library in circles.
constexpr std::chrono::seconds kMostProcessorTime{300};
// At once, so that the one who takes it can do something else between.
constexpr std::size_t kPiece = std::size_t{1} << 20U;

[[noreturn]] void raise(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

bool writeAll(int pipe, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(pipe, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) {
      return false;
    }
    bytes.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
  }
  return true;
}

/// The work's own process. What this process has open, its event loop above all, is not touched: it ends without
/// destroying anything.
[[noreturn]] void workIn(int pipe, const WorkApart::Work& work) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGPIPE}) {
    std::signal(signal, SIG_DFL);
  }
  // What a library says of a damaged file is not for people.
  if (const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC); nowhere >= 0) {
    ::dup2(nowhere, STDOUT_FILENO);
    ::dup2(nowhere, STDERR_FILENO);
  }
  WorkApart::limitTime(kMostProcessorTime);
  const rlimit noCore{0, 0};
  ::setrlimit(RLIMIT_CORE, &noCore);
  bool good = false;
  try {
    good = writeAll(pipe, work());
  } catch (...) {
    // Told by the status.
  }
  ::_exit(good ? EXIT_SUCCESS : EXIT_FAILURE);
}

}  // namespace

// A build that is made to find mistakes takes room for terabytes at its start.
bool WorkApart::isApart() { return true; }

void WorkApart::limitMemory([[maybe_unused]] std::size_t bytes) {
#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
  std::ifstream sizes("/proc/self/statm");
  rlim_t pages = 0;
  if (sizes >> pages) {
    rlimit memory{};
    ::getrlimit(RLIMIT_AS, &memory);
    memory.rlim_cur = std::min(memory.rlim_cur, pages * static_cast<rlim_t>(::sysconf(_SC_PAGESIZE)) + bytes);
    ::setrlimit(RLIMIT_AS, &memory);
  }
#endif
}

void WorkApart::limitTime(std::chrono::seconds time) {
  const auto seconds = static_cast<rlim_t>(std::max<std::chrono::seconds::rep>(time.count(), 1));
  const rlimit most{seconds, seconds};
  ::setrlimit(RLIMIT_CPU, &most);
}

struct WorkApart::Process {
  ~Process() {
    ::close(pipe);
    if (id > 0) {
      ::kill(id, SIGKILL);
      collect();
    }
  }

  void collect() {
    int status = 0;
    pid_t ended = 0;
    while ((ended = ::waitpid(id, &status, 0)) < 0 && errno == EINTR) {
    }
    good = ended == id && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
    id = 0;
  }

  int pipe = -1;
  pid_t id = 0;
  bool good = false;
  std::string bytes;
};

WorkApart::WorkApart(const Work& work) : process_(std::make_unique<Process>()) {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
    raise("a pipe");
  }
  process_->pipe = ends[0];
  process_->id = ::fork();
  if (process_->id == 0) {
    ::close(ends[0]);
    workIn(ends[1], work);
  }
  const int cause = errno;
  ::close(ends[1]);
  if (process_->id < 0) {
    process_->id = 0;
    errno = cause;
    raise("a process");
  }
  ::fcntl(process_->pipe, F_SETFL, O_NONBLOCK);
}

WorkApart::~WorkApart() = default;

int WorkApart::handle() const { return process_->id > 0 ? process_->pipe : -1; }

bool WorkApart::take() {
  std::string piece(process_->id > 0 ? kPiece : 0, '\0');
  std::size_t taken = 0;
  while (process_->id > 0 && taken < kPiece) {
    const ssize_t count = ::read(process_->pipe, piece.data(), piece.size());
    if (count > 0) {
      process_->bytes.append(piece, 0, static_cast<std::size_t>(count));
      taken += static_cast<std::size_t>(count);
    } else if (count < 0 && errno != EINTR) {
      break;
    } else if (count == 0) {
      process_->collect();
    }
  }
  return process_->id == 0;
}

void WorkApart::wait() {
  while (!take()) {
    pollfd waited{process_->pipe, POLLIN, 0};
    ::poll(&waited, 1, -1);
  }
}

std::optional<std::string> WorkApart::result() {
  return process_->good ? std::optional(std::move(process_->bytes)) : std::nullopt;
}

}  // namespace tarnwick
