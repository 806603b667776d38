// SPDX-License-Identifier: MIT
// What the site editor hands to the desktop.
#include <gmock/gmock.h>

#include "ui/support/dialog_fixture.h"

namespace tarnwick {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Visit : public testing::DialogTest {};

TEST_F(Visit, OpensTheTypedAddressAndStoresNothing) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  type(editor, "tUrl", "  http://typed.test/a b ");
  press(editor, "Command9");
  EXPECT_THAT(machine.opener.opened, ElementsAre("http://typed.test/a%20b"));
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
  EXPECT_EQ(column(1, "url"), "http://one.test/");
}

TEST_F(Visit, OpensAddressesOnlyAndAsTheyAreFetched) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  const auto& opener = machine.opener;
  for (const std::string text :
       {"file:///etc/passwd", "file:/etc/passwd", "javascript:alert(1)", "ms-msdt:/id PCWDiagnostic",
        "search-ms:query=x", "C:\\Windows\\calc.exe", "C:/Windows/calc.exe", "\\\\server\\share\\x.exe",
        "/tmp/x.desktop", "/", "gopher://a.test/", "http://", ""}) {
    type(editor, "tUrl", text);
    machine.prompts.clear();
    press(editor, "Command9");
    EXPECT_THAT(opener.opened, IsEmpty()) << text;
    EXPECT_THAT(machine.prompts.texts(),
                ElementsAre(AllOf(HasSubstr("https://example.org/page"), EndsWith(text.empty() ? "." : "\n" + text))));
  }
  machine.prompts.clear();
  for (const std::string text : {"one.test/a b", "//server/share/x.exe", "x.desktop", "FTPS://one.test/"}) {
    type(editor, "tUrl", text);
    press(editor, "Command9");
  }
  EXPECT_THAT(opener.opened, ElementsAre("http://one.test/a%20b", "http://server/share/x.exe", "http://x.desktop/",
                                         "ftps://one.test/"));
  EXPECT_THAT(machine.prompts.texts(), IsEmpty());
}

TEST_F(Visit, ADesktopThatRefusesIsTold) {
  addSite(1, "http://one.test/");
  auto& editor = openEditor();
  machine.opener.result = false;
  press(editor, "Command9");
  EXPECT_THAT(machine.prompts.texts(),
              ElementsAre(HasSubstr("could not open the page. You find it at:\n\nhttp://one.test/")));
}

}  // namespace
}  // namespace tarnwick
