// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <QLabel>
#include <QTableView>

#include "ui/details/accept_dialog.h"
#include "ui/details/details_pane.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {

inline const std::string kOld = "<p>Kettle</p>\n<b>24.00</b>\n<p>end</p>\n";
inline const std::string kNew = "<p>Kettle</p>\n<b>29.00</b>\n<p>end</p>\n";

/// The real window with two sites, 3 and 4, whose pages are as they should be.
class DetailsTest : public DialogTest {
 protected:
  DetailsTest() {
    addSite(3, server.url("/shop"));
    addSite(4, server.url("/other"));
    for (const char* path : {"/shop", "/other"}) {
      server.respond(path, {.body = kOld});
    }
    open();
    EXPECT_TRUE(QTest::qWaitForWindowActive(master.get()));
    check();
  }
  void check() { master->program().checkNow({3, 4}); }
  void change(const std::string& page = kNew) {
    server.respond("/shop", {.body = page});
    check();
  }
  DetailsPane& details() { return find<DetailsPane>("details"); }
  QWidget& grid() { return find<QTableView>("grid1"); }
  void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(&grid(), key, modifiers); }
  std::string headline() { return find<QLabel>("detailsHeadline").text().toStdString(); }
  std::string shownText(QWidget& form) { return in<DifferenceView>(form, "difference").selectedText().toStdString(); }
  /// Opens the details on the first site, and waits for what they show.
  void openDetails() {
    key(Qt::Key_F4);
    ASSERT_TRUE(
        waitUntil([&] { return !headline().empty() && !in<DifferenceView>(details(), "difference").isComparing(); }));
  }
  AcceptDialog& openAccept() {
    key(Qt::Key_A, Qt::ControlModifier | Qt::ShiftModifier);
    auto& dialog = opened<AcceptDialog>();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_TRUE(waitUntil([&] { return in<DifferenceView>(dialog, "difference").difference() != nullptr; }));
    return dialog;
  }
};

}  // namespace tarnwick::testing
