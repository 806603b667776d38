// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "uu_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class UuDecodeTest : public UuTest {
 protected:
  std::string decoded(const std::string& text) {
    std::filesystem::remove(path("out"));
    EXPECT_TRUE(code.UUDecodeFile(make("in.uue", text), path("out")));
    return read("out");
  }

  /// The error of a text that cannot be decoded; no output may be left.
  std::string faultOf(const std::string& text) {
    std::filesystem::remove(path("out"));
    const std::string file = make("in.uue", text);
    try {
      code.UUDecodeFile(file, path("out"));
    } catch (const DecodeError& error) {
      EXPECT_EQ(error.file(), file);
      EXPECT_THAT(names(), ElementsAre("in.uue"));
      return error.what();
    }
    ADD_FAILURE() << "decoded: " << text;
    return {};
  }
};

TEST_F(UuDecodeTest, WhatWasEncodedComesBack) {
  for (const std::size_t size : {0U, 1U, 2U, 3U, 44U, 45U, 46U, 1799U, 1800U, 1801U, 65536U, 200000U}) {
    const std::string bytes = randomBytes(size, static_cast<std::uint32_t>(size));
    std::filesystem::remove(path("in.uue"));
    ASSERT_TRUE(code.UUEncodeFile(make("data.bin", bytes), path("in.uue")));
    EXPECT_TRUE(decoded(read("in.uue")) == padded(bytes)) << size << " bytes";
  }
}

TEST_F(UuDecodeTest, AModeInTheHeaderDoesNotMatter) {
  EXPECT_EQ(decoded("begin 644 cat.txt\n#0V%T\n`\nend\n"), "Cat");
  EXPECT_EQ(decoded("begin 0755 cat.txt\r\n#0V%T\r\n`\r\nend\r\n"), "Cat");
}

TEST_F(UuDecodeTest, LineFeedsAloneEndLinesToo) {
  EXPECT_EQ(decoded("begin cat.txt\n#0V%T\n`\nend\n"), "Cat");
  EXPECT_EQ(decoded("begin cat.txt\r\r\n#0V%T\r\r\n`\r\r\nend\r\r\n"), "Cat");
}

TEST_F(UuDecodeTest, TheLastLineNeedsNoLineEnd) { EXPECT_EQ(decoded("begin 644 cat.txt\n#0V%T\n`\nend"), "Cat"); }

TEST_F(UuDecodeTest, ALengthThatIsNoMultipleOfThreeIsExact) {
  EXPECT_EQ(decoded("begin 644 a\n%:&5L;&\\`\n`\nend\n"), "hello");
  EXPECT_EQ(decoded("begin 644 a\n%:&5L;&\\\n`\nend\n"), "hello") << "without the character that no byte needs";
}

TEST_F(UuDecodeTest, BlanksStandForGraveAccents) {
  EXPECT_EQ(decoded("begin 644 a\n#    \n \nend\n"), std::string(3, '\0'));
  EXPECT_EQ(decoded("begin 644 a\n$ !  0   \n \nend\n"), std::string("\0\x10\0\x40", 4));
}

TEST_F(UuDecodeTest, BlanksThatWereStrippedAtLineEndsAreZeros) {
  EXPECT_EQ(decoded("begin 644 a\n#\n\nend\n"), std::string(3, '\0'));
  EXPECT_EQ(decoded("begin 644 a\n&  !\n#0V%T\n\nend\n"), std::string("\0\0\x40\0\0\0", 6) + "Cat");
}

TEST_F(UuDecodeTest, BlanksThatWereAddedAtLineEndsDoNotMatter) {
  EXPECT_EQ(decoded("begin 644 a\n#0V%T   \n`  \nend  \n"), "Cat");
}

TEST_F(UuDecodeTest, TextAroundTheDataIsSkipped) {
  EXPECT_EQ(decoded("From: me\n\nHere it is.\nbegin 644 a\n#0V%T\n`\nend\nbegin 644 b\nRegards\n"), "Cat");
  EXPECT_EQ(decoded(std::string(100000, 'x') + "\nbegin a\n#0V%T\n`\nend\n"), "Cat");
}

TEST_F(UuDecodeTest, ASentenceThatBeginsWithBeginIsNoHeader) {
  EXPECT_EQ(decoded("begin with this:\n\nbegin cat.txt\n#0V%T\n`\nend\n"), "Cat");
  EXPECT_EQ(decoded("begin here\nbegin there\nbegin cat.txt\n#0V%T\n`\nend\n"), "Cat");
  EXPECT_EQ(decoded("begin now\nand decode me\nbegin 644 cat.txt\n#0V%T\n`\nend\n"), "Cat");
}

TEST_F(UuDecodeTest, TheLineOfLengthZeroMayBeMissing) { EXPECT_EQ(decoded("begin 644 a\n#0V%T\nend\n"), "Cat"); }

TEST_F(UuDecodeTest, LinesMayBeLongerThanOurs) {
  EXPECT_EQ(decoded("begin 644 a\n_" + std::string(84, '`') + "\n`\nend\n"), std::string(63, '\0'));
}

TEST_F(UuDecodeTest, ADamagedLineIsNamed) {
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\n#0x%T\n`\nend\n"),
              AllOf(HasSubstr("in.uue, line 3: In this line, character 3 "), HasSubstr("get it again")));
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\nx0V%T\n`\nend\n"),
              HasSubstr("line 3: The first character is no line length"));
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T!!\n`\nend\n"), HasSubstr("line 2: The line is too long for its length"));
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\nM" + std::string(600, '!') + "\n`\nend\n"), HasSubstr("line 3: "));
}

TEST_F(UuDecodeTest, ADamagedFirstLineIsNamedToo) {
  EXPECT_THAT(faultOf("begin a\r\n#0x%T\r\n`\r\nend\r\n"), HasSubstr("in.uue, line 2: "));
  EXPECT_THAT(faultOf("begin a\r\n#0V%\r\n`\r\nend\r\n"), HasSubstr("in.uue, line 2: "));
  EXPECT_THAT(faultOf("text\r\nbegin a\r\n~0V%T\r\n`\r\nend\r\n"), HasSubstr("in.uue, line 3: "));
}

TEST_F(UuDecodeTest, ALineThatLostCharactersIsNoLineWithStrippedBlanks) {
  EXPECT_THAT(faultOf("begin 644 a\n&0V%T1\n`\nend\n"), HasSubstr("line 2: The line is too short"));
  std::string bytes = randomBytes(200, 1);
  std::string lines;
  UUCode::EncodeStream(bytes, lines);
  std::string text = "begin data\r\n" + lines + "`\r\nend\r\n";
  text.erase(text.find("\r\n", 80) - 7, 7);
  EXPECT_THAT(faultOf(text), HasSubstr("line 3: The line is too short"));
}

TEST_F(UuDecodeTest, ATextThatStopsEarlyIsNoFile) {
  const std::string whole = "begin 644 a\n#0V%T\n`\nend\n";
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\n"), HasSubstr("line 3: The text stops before its \"end\" line"));
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\n`\n"), HasSubstr("line 4: The text stops before"));
  EXPECT_THAT(faultOf("begin a\n"), HasSubstr("line 2: The text stops before"));
  for (std::size_t length = 0; length + 1 < whole.size(); ++length) {
    faultOf(whole.substr(0, length));
  }
}

TEST_F(UuDecodeTest, DataAfterTheLineOfLengthZeroIsAFault) {
  EXPECT_THAT(faultOf("begin 644 a\n#0V%T\n`\n#0V%T\nend\n"), HasSubstr("line 4: The \"end\" line was expected"));
}

TEST_F(UuDecodeTest, ATextWithoutHeaderIsNoUuencodedText) {
  EXPECT_THAT(faultOf(""), HasSubstr("No line begins with \"begin \""));
  EXPECT_THAT(faultOf("Dear all,\nthe beginning is missing.\n"), HasSubstr("No line begins with"));
  EXPECT_THAT(faultOf(randomBytes(100000, 2)), HasSubstr("in.uue: No line begins with"));
}

TEST_F(UuDecodeTest, TheNameInTheHeaderDecidesNothing) {
  make("victim", "safe");
  for (const std::string& name : {path("victim"), std::string("../victim"), std::string("victim"), std::string("/")}) {
    EXPECT_EQ(decoded("begin 644 " + name + "\n#0V%T\n`\nend\n"), "Cat");
    EXPECT_EQ(read("victim"), "safe");
    EXPECT_THAT(names(), ElementsAre("in.uue", "out", "victim"));
  }
}

TEST_F(UuDecodeTest, ADamagedFileLeavesTheOldOutput) {
  make("out", "old");
  prompts.answerConfirm(true);
  EXPECT_THROW(code.UUDecodeFile(make("in.uue", "begin 644 a\n#0V%T\n#0x%T\n"), path("out")), DecodeError);
  EXPECT_EQ(read("out"), "old");
  EXPECT_THAT(names(), ElementsAre("in.uue", "out"));
}

TEST_F(UuDecodeTest, AFullDiskLeavesNothing) {
  ASSERT_TRUE(code.UUEncodeFile(make("data", randomBytes(300000, 3)), path("in.uue")));
  FullDisk disk(100000);
  EXPECT_THROW(UUCode(prompts, disk).UUDecodeFile(path("in.uue"), path("out")), FileError);
  EXPECT_THAT(names(), ElementsAre("data", "in.uue"));
}

TEST_F(UuDecodeTest, TheBoxesAreThoseOfEncoding) {
  EXPECT_FALSE(code.UUDecodeFile(path("none"), path("out")));
  make("out", "old");
  prompts.answerConfirm(false);
  EXPECT_FALSE(code.UUDecodeFile(make("in.uue", "begin 644 a\n#0V%T\n`\nend\n"), path("out")));
  EXPECT_THAT(prompts.texts(),
              ElementsAre("Input file " + path("none") + " does not exist!",
                          "Output file " + path("out") + " already exists.\r\nDo you wish to overwrite it?"));
  EXPECT_EQ(read("out"), "old");
}

TEST_F(UuDecodeTest, TheInputIsNeverItsOwnOutput) {
  const std::string file = make("in.uue", "begin 644 a\n#0V%T\n`\nend\n");
  EXPECT_THROW(code.UUDecodeFile(file, file), FileError);
  EXPECT_THROW(code.UUDecodeFiles({file}, file), FileError);
  EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(UuDecodeTest, ThePermissionsOfTheInputAreKept) {
  const std::string file = make("in.uue", "begin 777 a\n#0V%T\n`\nend\n");
  std::filesystem::permissions(file, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  EXPECT_TRUE(code.UUDecodeFile(file, path("out")));
  EXPECT_EQ(std::filesystem::status(path("out")).permissions(), std::filesystem::status(file).permissions());
}

}  // namespace
}  // namespace tarnwick::testing
