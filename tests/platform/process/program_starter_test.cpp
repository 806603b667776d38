// SPDX-License-Identifier: MIT
#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

#include "platform/process/detached_programs.h"
#include "platform/process/unwanted_signals.h"
#include "platform/web/curl_transfers.h"
#include "support/wait_until.h"

namespace tarnwick {
namespace {

using testing::waitUntil;

class ProgramStart : public ::testing::Test {
 protected:
  /// A script in the test's folder; it finds that folder in $0.
  std::string script(const char* name, const QByteArray& text, bool runnable = true) {
    QFile file(folder.filePath(QString::fromUtf8(name)));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | (runnable ? QFile::ExeOwner : QFile::Permissions()));
    return file.fileName().toStdString();
  }

  /// What a started script has written to the file of that name, once it is there.
  std::string written(const char* name) {
    const QString path = folder.filePath(QString::fromUtf8(name));
    QTimer looks;
    looks.start(10);
    EXPECT_TRUE(waitUntil([&] { return QFile::exists(path); })) << "The program was not started.";
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll().toStdString();
  }

  QTemporaryDir folder;
  DetachedPrograms starter;
};

constexpr const char* kWriteArguments = R"sh(#!/bin/sh
cd "$(dirname "$0")"
printf '[%s]' "$@" > part
mv part out
)sh";

TEST_F(ProgramStart, GivesEveryArgumentAsItIs) {
  const std::string program = script("p", kWriteArguments);
  EXPECT_TRUE(
      starter.start({program, "", "a b", "\"", "'", "$(x) `y` %z% ; | > *", "\\", "gr\xc3\xbc\xc3\x9f", "-n", "\n"}));
  EXPECT_EQ(written("out"), "[][a b][\"]['][$(x) `y` %z% ; | > *][\\][gr\xc3\xbc\xc3\x9f][-n][\n]");
}

TEST_F(ProgramStart, ReturnsWhileTheProgramRuns) {
  const std::string program = script("p", R"sh(#!/bin/sh
cd "$(dirname "$0")"
while [ ! -e go ]; do sleep 0.05; done
echo done > part
mv part out
)sh");
  EXPECT_TRUE(starter.start({program}));
  EXPECT_FALSE(QFile::exists(folder.filePath(QStringLiteral("out"))));
  QFile go(folder.filePath(QStringLiteral("go")));
  EXPECT_TRUE(go.open(QIODevice::WriteOnly));
  EXPECT_EQ(written("out"), "done\n");
}

TEST_F(ProgramStart, RunsInTheProgramFolderInASessionOfItsOwnWithoutATerminal) {
  const std::string program = script("p", R"sh(#!/bin/sh
folder=$(dirname "$0")
set -- $(cut -d' ' -f6 /proc/$$/stat)
{ pwd; readlink /proc/$$/fd/0 /proc/$$/fd/2; echo "$1"; } > "$folder/part"
mv "$folder/part" "$folder/out"
)sh");
  EXPECT_TRUE(starter.start({program}));
  const std::string out = written("out");
  const std::string expected = QCoreApplication::applicationDirPath().toStdString() + "\n/dev/null\n/dev/null\n";
  ASSERT_TRUE(out.starts_with(expected)) << out;
  QFile stat(QStringLiteral("/proc/self/stat"));
  ASSERT_TRUE(stat.open(QIODevice::ReadOnly));
  const std::string own = stat.readAll().split(' ').value(5).toStdString();
  EXPECT_NE(out.substr(expected.size()), own + "\n");
}

TEST_F(ProgramStart, AnswersItsSignalsAsTheSystemDoesThoughThisProgramIgnoresSome) {
  ignoreUnwantedSignals();
  const std::string program = script("p", R"sh(#!/bin/sh
cd "$(dirname "$0")"
awk '/^SigIgn/ { print $2 }' /proc/self/status > part
mv part out
)sh");
  EXPECT_TRUE(starter.start({program}));
  const auto ignored = std::stoull(written("out"), nullptr, 16);
  for (const int signal : {SIGPIPE, SIGXFSZ}) {
    EXPECT_EQ(ignored >> static_cast<unsigned>(signal - 1) & 1U, 0U) << signal;
  }
  struct sigaction own {};
  sigaction(SIGXFSZ, nullptr, &own);
  EXPECT_NE(own.sa_handler, SIG_DFL) << "and this program goes on ignoring it";
}

TEST_F(ProgramStart, LeavesItNothingOpenButTheStandardStreams) {
  const int leaking = fcntl(0, F_DUPFD, 100);
  ASSERT_GE(leaking, 100);
  const CurlTransfers transfers;
  const std::string program = script("p", R"sh(#!/bin/sh
cd "$(dirname "$0")"
ls -l /proc/self/fd | grep -c socket: > part
[ -e /proc/self/fd/$1 ] && echo open >> part || echo closed >> part
mv part out
)sh");
  EXPECT_TRUE(starter.start({program, std::to_string(leaking)}));
  EXPECT_EQ(written("out"), "0\nclosed\n");
  close(leaking);
}

TEST_F(ProgramStart, FindsAProgramInTheSearchPath) { EXPECT_TRUE(starter.start({"true"})); }

TEST_F(ProgramStart, OfNothingFails) {
  EXPECT_FALSE(starter.start({}));
  EXPECT_FALSE(starter.start({""}));
  EXPECT_FALSE(starter.start({"", "a"}));
}

TEST_F(ProgramStart, OfAMissingFileFails) {
  EXPECT_FALSE(starter.start({folder.filePath(QStringLiteral("missing")).toStdString()}));
  EXPECT_FALSE(starter.start({"no-such-program-anywhere"}));
}

TEST_F(ProgramStart, OfAFileWithoutTheRunBitFails) {
  EXPECT_FALSE(starter.start({script("p", kWriteArguments, false)}));
}

TEST_F(ProgramStart, OfAFolderFails) { EXPECT_FALSE(starter.start({folder.path().toStdString()})); }

TEST_F(ProgramStart, OfAFileThatIsNoProgramFails) {
  EXPECT_FALSE(starter.start({script("p", "just text, no program\n")}));
  EXPECT_FALSE(starter.start({script("q", "#!/no/such/interpreter\n")}));
}

TEST_F(ProgramStart, WithAnArgumentThatCannotBePassedFails) {
  EXPECT_FALSE(starter.start({"true", std::string("a\0b", 3)}));
}

}  // namespace
}  // namespace tarnwick
