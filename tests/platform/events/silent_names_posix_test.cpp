// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QHostAddress>
#include <QProcess>
#include <QTcpServer>

namespace tarnwick {
namespace {

// The program is closed in the middle of it: no name server is waited for then.
TEST(ANameThatNobodyAnswersFor, DoesNotKeepTheProgramFromEnding) {
  QProcess program;
  program.start(QStringLiteral(TARNWICK_SILENT_NAMES_PROBE), QStringList());
  const bool ended = program.waitForFinished(10000);
  if (!ended) {
    program.kill();
    program.waitForFinished();
  }
  EXPECT_TRUE(ended);
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.exitCode(), 0);
}

TEST(AName, IsTriedAtItsNextAddressWhenTheFirstDoesNotAnswer) {
  QTcpServer server;
  ASSERT_TRUE(server.listen(QHostAddress(QHostAddress::LocalHost)));
  const QString port = QString::number(server.serverPort());
  EXPECT_EQ(QProcess::execute(QStringLiteral(TARNWICK_SILENT_NAMES_PROBE), {port}), 0);
}

}  // namespace
}  // namespace tarnwick
