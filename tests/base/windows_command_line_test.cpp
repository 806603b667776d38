// SPDX-License-Identifier: MIT
#include "base/windows_command_line.h"

#include <gtest/gtest.h>

namespace tarnwick {
namespace {

TEST(WindowsFileName, EndsWhereWindowsEndsIt) {
  EXPECT_EQ(windowsFileName("C:\\a b\\c.bat"), "C:\\a b\\c.bat");
  for (const char* name : {"c.bat.", "c.bat ", "c.bat. .. ", "c.bat"}) {
    EXPECT_EQ(windowsFileName(name), "c.bat") << name;
  }
  EXPECT_EQ(windowsFileName(" . "), "");
}

TEST(WindowsCommandLine, PlainArgumentsStandAsTheyAre) {
  EXPECT_EQ(windowsCommandLine({R"(C:\a\b.exe)", "-x", "http://a/?b=c&d=%41"}), R"(C:\a\b.exe -x http://a/?b=c&d=%41)");
}

TEST(WindowsCommandLine, BlanksAndEmptyArgumentsAreQuoted) {
  EXPECT_EQ(windowsCommandLine({R"(C:\Program Files\a.exe)", "", "b\tc"}),
            "\"C:\\Program Files\\a.exe\" \"\" \"b\tc\"");
}

TEST(WindowsCommandLine, QuotesAndTheBackslashesBeforeThemKeepTheirNumber) {
  EXPECT_EQ(windowsCommandLine({R"(a"b)", R"(a\"b)", R"(a b\)", R"(a\b c)", R"(a\\)"}),
            R"("a\"b" "a\\\"b" "a b\\" "a\b c" a\\)");
}

TEST(BatchCommandLine, NothingInAnArgumentIsACommand) {
  EXPECT_EQ(batchCommandLine({R"(C:\a b.bat)", "x & del y", "a|b>c"}),
            R"(/d /e:on /v:off /s /c ""C:\a b.bat" "x & del y" "a|b>c"")");
}

TEST(BatchCommandLine, NothingInAnArgumentIsAVariable) {
  EXPECT_EQ(batchCommandLine({"a.bat", "%PATH%"}), R"(/d /e:on /v:off /s /c ""a.bat" "%%cd:~,%PATH%%cd:~,%"")");
}

TEST(BatchCommandLine, AQuoteDoesNotEndItsArgument) {
  EXPECT_EQ(batchCommandLine({"a.bat", R"(x" & del y)"}), R"(/d /e:on /v:off /s /c ""a.bat" "x"" & del y"")");
}

TEST(BatchCommandLine, ALineEndCannotBeGiven) {
  EXPECT_FALSE(batchCommandLine({"a.bat", "x\ndel y"}));
  EXPECT_FALSE(batchCommandLine({"a.bat", "x\r"}));
}

TEST(ScriptCommandLine, AQuoteBecomesASingleOne) {
  EXPECT_EQ(scriptCommandLine({R"(C:\a b.vbs)", "", R"(say "x" %y%)"}), R"("C:\a b.vbs" "" "say 'x' %y%")");
}

}  // namespace
}  // namespace tarnwick
