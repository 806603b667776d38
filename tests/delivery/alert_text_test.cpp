// SPDX-License-Identifier: MIT
#include "delivery/alert_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

OutboxRow rowOf(const std::string& event, const std::string& host = "shop.example.org") {
  OutboxRow row;
  row.alert.idSite = 3;
  row.alert.made = parseDateTime("2026-11-22 14:02:11").value();
  row.alert.event = event;
  row.alert.url = "https://" + host + "/";
  return row;
}

AlertText textOf(const OutboxRow& row) { return alertTextOf({&row, 1}); }

TEST(AlertText, TheTitleSaysWhatHasHappened) {
  EXPECT_EQ(textOf(rowOf("down")).title, "shop.example.org does not answer");
  EXPECT_EQ(textOf(rowOf("up")).title, "shop.example.org is up again");
  EXPECT_EQ(textOf(rowOf("still down")).title, "shop.example.org is still down");
  OutboxRow changed = rowOf("down");
  changed.alert.difference = "-a\n+b\n";
  EXPECT_EQ(textOf(changed).title, "shop.example.org changed");
}

TEST(AlertText, NamesNoFactThatIsNotKnown) {
  EXPECT_EQ(textOf(rowOf("down")).text,
            "Address:       https://shop.example.org/\n"
            "Site:          3\n"
            "At:            2026-11-22 14:02:11\n");
}

TEST(AlertText, WhatAPageHoldsIsText) {
  OutboxRow row = rowOf("down", "<script>.example.org");
  row.alert.cause = "a\r\n.\r\nQUIT\x1b[2J <img src=x> \xff";
  const AlertText text = textOf(row);
  EXPECT_THAT(text.html, Not(HasSubstr("<script>")));
  EXPECT_THAT(text.html, Not(HasSubstr("<img")));
  EXPECT_THAT(text.text, HasSubstr("a\\r\\n.\\r\\nQUIT\\x1b[2J <img src=x> \xc3\xbf\n"));
  EXPECT_EQ(text.title.find_first_of("\r\n"), std::string::npos);
}

TEST(AlertText, SeveralAreOneListThatNamesEach) {
  std::vector<OutboxRow> rows{rowOf("down", "a.example.org"), rowOf("down", "b.example.org")};
  rows[1].alert.cause = "refused";
  EXPECT_EQ(alertTextOf(rows).title, "2 sites: down");
  EXPECT_EQ(alertTextOf(rows).text,
            "https://a.example.org/ does not answer\nhttps://b.example.org/ does not answer: refused\n");
  rows.push_back(rowOf("up"));
  EXPECT_EQ(alertTextOf(rows).title, "3 alerts");
}

TEST(AlertText, OfVeryManyTheRestIsCounted) {
  const std::vector<OutboxRow> rows(5000, rowOf("down"));
  EXPECT_THAT(alertTextOf(rows).text, HasSubstr("\nand 4800 more\n"));
}

}  // namespace
}  // namespace tarnwick::testing
