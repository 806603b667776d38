// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <list>
#include <string_view>
#include <utility>
#include <QCoreApplication>
#include <QObject>
#include <QProcess>
#include <QTimer>

#include "base/text.h"
#include "platform/os/socket_inheritance.h"
#include "platform/process/waited_programs.h"

namespace tarnwick {
namespace {

constexpr off_t kMostKept = off_t{16} * 1024 * 1024;
constexpr std::size_t kMostOutput = std::size_t{64} * 1024;
constexpr std::size_t kLongestError = 500;
constexpr int kOfSignals = 128;

/// What a program writes to a stream: a piece of memory under a file's handle. Unlike a pipe it is there when we have
/// gone, so that nothing happens to a program that outlives us.
class Stream {
 public:
  Stream() {
#ifdef MFD_ALLOW_SEALING
    handle_ = ::memfd_create("tarnwick", MFD_CLOEXEC | MFD_ALLOW_SEALING);
    if (handle_ >= 0 &&
        (::ftruncate(handle_, kMostKept) != 0 || ::fcntl(handle_, F_ADD_SEALS, F_SEAL_GROW | F_SEAL_SHRINK) != 0)) {
      ::close(std::exchange(handle_, -1));
    }
#endif
  }
  ~Stream() {
    if (handle_ >= 0) {
      ::close(handle_);
    }
  }
  Stream(const Stream&) = delete;
  Stream& operator=(const Stream&) = delete;

  /// Negative where the system has none: nothing is kept then.
  int handle() const { return handle_; }

  std::string start(std::size_t most) const { return read(0, std::min(most, length())); }
  std::string end(std::size_t most) const {
    const std::size_t size = std::min(most, length());
    return read(length() - size, size);
  }

 private:
  // The program goes on where its last write ended, and so do we.
  std::size_t length() const {
    const off_t place = handle_ < 0 ? 0 : ::lseek(handle_, 0, SEEK_CUR);
    return place < 0 ? 0 : static_cast<std::size_t>(std::min(place, kMostKept));
  }
  std::string read(std::size_t from, std::size_t size) const {
    std::string bytes(size, '\0');
    const ssize_t got = size == 0 ? 0 : ::pread(handle_, bytes.data(), size, static_cast<off_t>(from));
    bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return bytes;
  }

  int handle_ = -1;
};

/// The last line that says something.
std::string lastLine(std::string_view text) {
  text = trimmed(text);
  const auto end = text.find_last_of("\r\n");
  const std::string_view line = end == std::string_view::npos ? text : text.substr(end + 1);
  return std::string(line.substr(0, kLongestError));
}

/// The programs that were running when nobody waited for them any longer: the end of such an object would be that of
/// the program. Kept in reach for good, so that nobody takes them for lost.
std::list<QProcess*>& outliving() {
  static auto* const all = new std::list<QProcess*>();
  return *all;
}

/// One program, until it has ended.
class Run final : public QObject {
 public:
  Run(const std::vector<std::string>& arguments, std::function<void(ProgramEnd)> done);
  ~Run() override;
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

  void start(std::chrono::seconds limit, const std::function<void()>& over);

 private:
  void answer(ProgramEnd end);

  std::function<void(ProgramEnd)> done_;
  Stream output_;
  Stream error_;
  std::unique_ptr<QProcess> process_ = std::make_unique<QProcess>();
  // Among those that outlive us, should it come to that: then there may be no memory for it.
  std::list<QProcess*> place_{process_.get()};
};

Run::Run(const std::vector<std::string>& arguments, std::function<void(ProgramEnd)> done) : done_(std::move(done)) {
  QStringList rest;
  std::transform(arguments.begin() + 1, arguments.end(), std::back_inserter(rest), &QString::fromStdString);
  outliving();
  process_->setProgram(QString::fromStdString(arguments.front()));
  process_->setArguments(rest);
  process_->setWorkingDirectory(QCoreApplication::applicationDirPath());
  process_->setStandardInputFile(QProcess::nullDevice());
  process_->setStandardOutputFile(QProcess::nullDevice());
  process_->setStandardErrorFile(QProcess::nullDevice());
  process_->setChildProcessModifier([output = output_.handle(), error = error_.handle()] {
    // What our terminal sends to us is not for it.
    ::setsid();
    if (output >= 0) {
      ::dup2(output, STDOUT_FILENO);
    }
    if (error >= 0) {
      ::dup2(error, STDERR_FILENO);
    }
  });
}

Run::~Run() {
  if (process_->state() != QProcess::NotRunning) {
    process_->disconnect();
    outliving().splice(outliving().end(), place_);
    static_cast<void>(process_.release());
  } else {
    process_.release()->deleteLater();  // it may be the one that calls us
  }
}

void Run::start(std::chrono::seconds limit, const std::function<void()>& over) {
  connect(process_.get(), &QProcess::errorOccurred, this, [this, over](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) {
      answer({});
      QTimer::singleShot(0, this, over);
    }
  });
  connect(process_.get(), &QProcess::finished, this, [this, over](int code, QProcess::ExitStatus how) {
    answer({.started = true, .status = how == QProcess::NormalExit ? code : kOfSignals + code});
    QTimer::singleShot(0, this, over);
  });
  QTimer::singleShot(limit, this, [this] { answer({.started = true}); });
  setCloseOnExecOnAll();
  process_->start();
}

// Through the event loop: a program that cannot be started says so before `start` comes back.
void Run::answer(ProgramEnd end) {
  if (!done_) {
    return;
  }
  end.lastError = lastLine(error_.end(kMostOutput));
  end.output = output_.start(kMostOutput);
  QTimer::singleShot(0, this, [done = std::exchange(done_, {}), end = std::move(end)] { done(end); });
}

}  // namespace

class WaitedPrograms::Runs : public QObject {
 public:
  std::list<std::unique_ptr<Run>> all;
};

WaitedPrograms::WaitedPrograms() : runs_(std::make_unique<Runs>()) {}
WaitedPrograms::~WaitedPrograms() = default;

void WaitedPrograms::run(const std::vector<std::string>& arguments, std::chrono::seconds limit,
                         std::function<void(ProgramEnd)> done) {
  const bool passable = std::none_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
    return argument.find('\0') != std::string::npos;
  });
  if (arguments.empty() || arguments.front().empty() || !passable) {
    QTimer::singleShot(0, runs_.get(), [done = std::move(done)] { done({}); });
    return;
  }
  auto& all = runs_->all;
  const auto run = all.insert(all.end(), std::make_unique<Run>(arguments, std::move(done)));
  run->get()->start(limit, [runs = runs_.get(), run] {
    // Not from its own event.
    QTimer::singleShot(0, runs, [runs, run] { runs->all.erase(run); });
  });
}

}  // namespace tarnwick
