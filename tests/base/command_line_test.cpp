// SPDX-License-Identifier: MIT
#include "base/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(CommandLine, BlanksSeparateArguments) {
  EXPECT_THAT(splitCommandLine("prog a b"), ElementsAre("prog", "a", "b"));
  EXPECT_THAT(splitCommandLine("  prog \t a\r\nb  "), ElementsAre("prog", "a", "b"));
}

TEST(CommandLine, ALineOfBlanksHasNoProgram) {
  EXPECT_THAT(splitCommandLine(""), IsEmpty());
  EXPECT_THAT(splitCommandLine(" \t\r\n "), IsEmpty());
}

TEST(CommandLine, DoubleQuotesKeepBlanks) {
  EXPECT_THAT(splitCommandLine("\"/opt/my tools/prog\" \"a  b\" c"), ElementsAre("/opt/my tools/prog", "a  b", "c"));
  EXPECT_THAT(splitCommandLine("--name=\"a b\"c d"), ElementsAre("--name=a bc", "d"));
}

TEST(CommandLine, AQuotedNothingIsAnEmptyArgument) {
  EXPECT_THAT(splitCommandLine("prog \"\" b"), ElementsAre("prog", "", "b"));
  EXPECT_THAT(splitCommandLine("prog \"\""), ElementsAre("prog", ""));
}

TEST(CommandLine, AQuoteThatIsNeverClosedReachesToTheEnd) {
  EXPECT_THAT(splitCommandLine("prog \"a b "), ElementsAre("prog", "a b "));
  EXPECT_THAT(splitCommandLine("prog \""), ElementsAre("prog", ""));
}

TEST(CommandLine, TwoQuotesInsideAQuotedPartAreOneOfIts) {
  EXPECT_THAT(splitCommandLine("prog \"say \"\"yes\"\" now\""), ElementsAre("prog", "say \"yes\" now"));
  EXPECT_THAT(splitCommandLine("\"\"\"a\"\"\""), ElementsAre("\"a\""));
}

TEST(CommandLine, NothingElseIsSpecial) {
  EXPECT_THAT(splitCommandLine("C:\\tools\\prog.exe \"C:\\my data\\\" 'a b' $(c) `d` %e% ;f&g|h>i ~ * \\\\n"),
              ElementsAre("C:\\tools\\prog.exe", "C:\\my data\\", "'a", "b'", "$(c)", "`d`", "%e%", ";f&g|h>i", "~",
                          "*", "\\\\n"));
}

TEST(CommandLine, OtherLettersThanEnglishOnesStay) {
  EXPECT_THAT(splitCommandLine("/opt/gr\xc3\xbc\xc3\x9f\x65 \xe2\x82\xac \xff"),
              ElementsAre("/opt/gr\xc3\xbc\xc3\x9f\x65", "\xe2\x82\xac", "\xff"));
}

TEST(CommandLine, AQuoteOfAValueNeitherOpensNorClosesAQuotedPart) {
  const std::string value = literalArgumentText("a\" b \"c");
  EXPECT_THAT(splitCommandLine("prog \"" + value + "\" d"), ElementsAre("prog", "a\" b \"c", "d"));
  EXPECT_THAT(splitCommandLine("prog " + value + " d"), ElementsAre("prog", "a\"", "b", "\"c", "d"));
  EXPECT_THAT(splitCommandLine("prog \"" + literalArgumentText("\"") + "\""), ElementsAre("prog", "\""));
  EXPECT_THAT(splitCommandLine(literalArgumentText("\"")), ElementsAre("\""));
}

TEST(CommandLine, ANulByteOfAValueIsLeftOutAndIsNoQuote) {
  const std::string value = literalArgumentText(std::string_view("a\0b\0", 4));
  EXPECT_EQ(value, "ab");
  EXPECT_THAT(splitCommandLine("prog \"" + value + " c\""), ElementsAre("prog", "ab c"));
}

}  // namespace
}  // namespace tarnwick
