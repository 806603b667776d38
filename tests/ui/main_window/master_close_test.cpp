// SPDX-License-Identifier: MIT
// Closing the main window from every state.
#include <chrono>
#include <QDialog>
#include <QTimer>

#include "support/wait_until.h"
#include "ui/support/master_fixture.h"

namespace tarnwick {
namespace {

using testing::HttpServer;
using testing::MasterTest;

class MasterCloseTest : public MasterTest {
 protected:
  /// Closes the window as soon as the server holds a request.
  void closeInPass() {
    QObject::connect(&watch_, &QTimer::timeout, [this] {
      if (server.inFlight() > 0) {
        watch_.stop();
        closedAt = std::chrono::steady_clock::now();
        master->close();
      }
    });
    watch_.start(5);
  }

  HttpServer server;
  std::chrono::steady_clock::time_point closedAt;

 private:
  QTimer watch_;
};

TEST_F(MasterCloseTest, ClosingEndsEveryWait) {
  open();
  EXPECT_TRUE(master->close());
  EXPECT_FALSE(master->isVisible());
  EXPECT_TRUE(machine.pump.closing());
}

TEST_F(MasterCloseTest, ClosingInMidPassUnwindsThePassAtOnce) {
  server.respond("/silent", {.hold = true});
  for (int id = 1; id <= 7; ++id) {
    addSite(id, server.url("/silent"));
  }
  open();
  closeInPass();
  click("btnStart");
  ASSERT_TRUE(machine.pump.closing());
  EXPECT_LT(std::chrono::steady_clock::now() - closedAt, std::chrono::seconds(2));
  EXPECT_FALSE(master->program().run().busy());
  EXPECT_FALSE(master->program().run().running());
  EXPECT_TRUE(machine.prompts.shown().empty());
  EXPECT_TRUE(testing::waitUntil([&] { return server.openConnections() == 0; }));
}

TEST_F(MasterCloseTest, ClosingInARunLeavesTheDatabaseWhole) {
  server.respond("/", {.body = "hello"});
  addSite(1, server.url("/"));
  open();
  click("btnStart");
  master->close();
  master.reset();
  EXPECT_EQ(folder.queryText("pragma integrity_check"), "ok");
  EXPECT_EQ(folder.queryText("select success from sites"), "1");
}

TEST_F(MasterCloseTest, AnOpenDialogIsRejected) {
  open();
  QDialog dialog(master.get());
  dialog.show();
  master->close();
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(dialog.result(), QDialog::Rejected);
}

}  // namespace
}  // namespace tarnwick
