// SPDX-License-Identifier: MIT
// Pasted addresses come into the list after a preview.
#include <gmock/gmock.h>

#include <QPlainTextEdit>

#include "ui/exchange/addresses_dialog.h"
#include "ui/support/dialog_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

class AddressesTest : public DialogTest {
 protected:
  AddressesTest() {
    addSite(1, "http://b.example/");
    open();
    master->setEditors({.site = {}, .settings = {}, .addAddresses = addAddressesOf(master->program(), *master)});
  }
  AddressesDialog& give(const QString& text) {
    Q_EMIT find<SiteGridView>("grid1").addressesGiven(text);
    return opened<AddressesDialog>();
  }
  static QString state(AddressesDialog& dialog) { return in<QLabel>(dialog, "addressesState").text(); }
};

TEST_F(AddressesTest, ThePreviewCountsAndTheNewOnesAreAdded) {
  auto& dialog =
      give(QStringLiteral("http://a.example/\nhttp://b.example/\nhttp://c.example/\nmailto:me@example.org\n"));
  EXPECT_TRUE(waitUntil([&] { return in<QPushButton>(dialog, "btnAddAddresses").isEnabled(); }));
  EXPECT_EQ(state(dialog), QStringLiteral("4 addresses: 2 new, 1 there already, 1 is none"));
  EXPECT_EQ(caption<QPushButton>(dialog, "btnAddAddresses"), "Add 2");
  EXPECT_EQ(rows(), 1);
  press(dialog, "btnAddAddresses");
  EXPECT_TRUE(waitUntil([&] { return rows() == 3; }));
  EXPECT_TRUE(waitUntil([&] { return shown<AddressesDialog>() == nullptr; }));
}

TEST_F(AddressesTest, WhatIsTypedIsCountedToo) {
  auto& dialog = give({});
  EXPECT_FALSE(in<QPushButton>(dialog, "btnAddAddresses").isEnabled());
  QTest::keyClicks(&in<QPlainTextEdit>(dialog, "addressesText"), QStringLiteral("http://d.example/"));
  EXPECT_TRUE(
      waitUntil([&] { return state(dialog) == QStringLiteral("1 address: 1 new, 0 there already, 0 are none"); }));
}

}  // namespace
}  // namespace tarnwick::testing
