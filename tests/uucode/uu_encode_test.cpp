// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "support/system.h"
#include "uu_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class UuEncodeTest : public UuTest {
 protected:
  /// Encodes in parts and returns what it says; the message if it raises FileError.
  std::string faultOfParts(const std::string& file, std::int64_t most) {
    try {
      code.UUEncodeFiles(file, folder(), most);
    } catch (const FileError& error) {
      return error.what();
    }
    ADD_FAILURE() << "no error was raised";
    return {};
  }
};

TEST_F(UuEncodeTest, AnEmptyFileIsAHeaderAGraveAccentAndEnd) {
  EXPECT_TRUE(code.UUEncodeFile(make("empty.dat", ""), path("out.uue")));
  EXPECT_EQ(read("out.uue"), "begin empty.dat\r\n`\r\nend\r\n");
}

TEST_F(UuEncodeTest, TheHeaderHasTheNameInLowerCaseAndNoMode) {
  EXPECT_TRUE(code.UUEncodeFile(make("My Report.TXT", "Cat"), path("out.uue")));
  EXPECT_EQ(read("out.uue"), "begin my report.txt\r\n#0V%T\r\n`\r\nend\r\n");
}

TEST_F(UuEncodeTest, AccentedLettersAreLettersToo) {
  EXPECT_TRUE(code.UUEncodeFile(make("\u00c9T\u00c9 \u0160\u0178\u00d7.Bin", ""), path("out.uue")));
  EXPECT_THAT(read("out.uue"), HasSubstr("begin \u00e9t\u00e9 \u0161\u00ff\u00d7.bin\r\n"));
}

TEST_F(UuEncodeTest, OneByteIsPaddedWithTwoLettersA) {
  EXPECT_TRUE(code.UUEncodeFile(make("one", "x"), path("out.uue")));
  EXPECT_EQ(read("out.uue"), "begin one\r\n#>&%A\r\n`\r\nend\r\n");
}

TEST_F(UuEncodeTest, AFileOfOneBlockIsFortyFullLines) {
  EXPECT_TRUE(code.UUEncodeFile(make("block", randomBytes(1800, 1)), path("out.uue")));
  const std::string text = read("out.uue");
  EXPECT_EQ(text.size(), std::string("begin block\r\n`\r\nend\r\n").size() + 40 * 63);
}

TEST_F(UuEncodeTest, OnlyTheLastBlockIsPadded) {
  const std::string bytes = randomBytes(3 * 1800 + 1, 2);
  EXPECT_TRUE(code.UUEncodeFile(make("blocks", bytes), path("out.uue")));
  EXPECT_TRUE(code.UUDecodeFile(path("out.uue"), path("back")));
  EXPECT_TRUE(read("back") == padded(bytes));
}

TEST_F(UuEncodeTest, AMissingInputIsSaid) {
  EXPECT_FALSE(code.UUEncodeFile(path("none"), path("out.uue")));
  ASSERT_EQ(prompts.shown().size(), 1U);
  EXPECT_EQ(prompts.shown()[0].kind, RecordingPrompts::Kind::inform);
  EXPECT_EQ(prompts.shown()[0].text, "Input file " + path("none") + " does not exist!");
  EXPECT_EQ(prompts.shown()[0].title, "Input file does not exist...");
  EXPECT_EQ(prompts.shown()[0].icon, PromptIcon::exclamation);
  EXPECT_THAT(names(), IsEmpty());
}

TEST_F(UuEncodeTest, AFolderIsNoInputFile) {
  EXPECT_FALSE(code.UUEncodeFile(folder(), path("out.uue")));
  EXPECT_EQ(prompts.shown().size(), 1U);
}

TEST_F(UuEncodeTest, AnOutputThatExistsIsAskedAbout) {
  make("out.uue", "old");
  prompts.answerConfirm(false);
  EXPECT_FALSE(code.UUEncodeFile(make("in", "Cat"), path("out.uue")));
  ASSERT_EQ(prompts.shown().size(), 1U);
  EXPECT_EQ(prompts.shown()[0].kind, RecordingPrompts::Kind::confirm);
  EXPECT_EQ(prompts.shown()[0].text,
            "Output file " + path("out.uue") + " already exists.\r\nDo you wish to overwrite it?");
  EXPECT_EQ(prompts.shown()[0].title, "Output Already File Exists...");
  EXPECT_EQ(prompts.shown()[0].icon, PromptIcon::question);
  EXPECT_EQ(read("out.uue"), "old");
}

TEST_F(UuEncodeTest, AHiddenOutputIsAskedAboutToo) {
  make(".hidden", "old");
  prompts.answerConfirm(false);
  EXPECT_FALSE(code.UUEncodeFile(make("in", "Cat"), path(".hidden")));
  EXPECT_EQ(prompts.unusedAnswers(), 0U);
}

TEST_F(UuEncodeTest, YesReplacesTheOutput) {
  make("out.uue", std::string(1000, 'x'));
  prompts.answerConfirm(true);
  EXPECT_TRUE(code.UUEncodeFile(make("in", "Cat"), path("out.uue")));
  EXPECT_EQ(read("out.uue"), "begin in\r\n#0V%T\r\n`\r\nend\r\n");
}

TEST_F(UuEncodeTest, WhereTheAnswerComesLaterTheWorkIsDoneThen) {
  make("out.uue", "old");
  const std::string file = make("in", "Cat");
  prompts.stayOpen = true;
  EXPECT_FALSE(UUCode(prompts, files).UUEncodeFile(file, path("out.uue")));
  EXPECT_EQ(read("out.uue"), "old");
  prompts.answerConfirm(true);
  prompts.closeBoxes();
  EXPECT_EQ(read("out.uue"), "begin in\r\n#0V%T\r\n`\r\nend\r\n");
}

TEST_F(UuEncodeTest, TheInputIsNeverItsOwnOutput) {
  const std::string file = make("A.UUE", "precious");
  EXPECT_THROW(code.UUEncodeFile(file, file), FileError);
  EXPECT_THROW(code.UUEncodeFiles(file, folder(), 0), FileError);
  EXPECT_EQ(read("A.UUE"), "precious");
  EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(UuEncodeTest, AFullDiskLeavesTheOldOutputAndNothingElse) {
  const std::string file = make("in", randomBytes(200000, 3));
  make("out.uue", "old");
  FullDisk disk(100000);
  prompts.answerConfirm(true);
  EXPECT_THROW(UUCode(prompts, disk).UUEncodeFile(file, path("out.uue")), FileError);
  EXPECT_THAT(names(), ElementsAre("in", "out.uue"));
  EXPECT_EQ(read("out.uue"), "old");
}

TEST_F(UuEncodeTest, AnOutputThatCannotBeIsNamed) {
  const std::string file = make("in", "Cat");
  for (const std::string& place : {folder(), path(""), path("no/such/folder/out.uue"), std::string()}) {
    try {
      code.UUEncodeFile(file, place);
      ADD_FAILURE() << place;
    } catch (const FileError& error) {
      EXPECT_EQ(error.path(), place);
    }
  }
  EXPECT_THROW(code.UUEncodeFile(file, path(std::string("a\0b", 3))), FileError);
  EXPECT_THAT(names(), ElementsAre("in"));
}

TEST_F(UuEncodeTest, ANameWithALineBreakIsRefused) {
  SKIP_ON_WINDOWS("There no name holds a line break.");
  EXPECT_THROW(code.UUEncodeFile(make("two\nlines", "Cat"), path("out.uue")), FileError);
  EXPECT_FALSE(exists("out.uue"));
}

TEST_F(UuEncodeTest, AnUndividedFileBearsTheWholeBaseName) {
  const std::string file = make("A rather long Name.tar.gz", "Cat");
  for (const std::int64_t most : {-1, 0, 3, 4}) {
    EXPECT_TRUE(code.UUEncodeFiles(file, folder(), most));
    EXPECT_THAT(names(), ElementsAre("A rather long Name.UUE", "A rather long Name.tar.gz"));
    std::filesystem::remove(path("A rather long Name.UUE"));
  }
  EXPECT_THAT(prompts.shown(), IsEmpty());
}

TEST_F(UuEncodeTest, TheFolderMayEndWithASeparatorOrNot) {
  const std::string file = make("a.txt", "Cat");
  std::filesystem::create_directory(path("sub"));
  EXPECT_TRUE(code.UUEncodeFiles(file, path("sub"), 0));
  EXPECT_TRUE(exists("sub/a.UUE"));
  std::filesystem::remove(path("sub/a.UUE"));
  EXPECT_TRUE(code.UUEncodeFiles(file, path("sub/"), 0));
  EXPECT_TRUE(exists("sub/a.UUE"));
}

TEST_F(UuEncodeTest, PartsAreNumberedFromOne) {
  EXPECT_TRUE(code.UUEncodeFiles(make("longfilename.txt", randomBytes(100, 4)), folder(), 45));
  EXPECT_THAT(names(), ElementsAre("longfil1.UUE", "longfil2.UUE", "longfil3.UUE", "longfilename.txt"));
}

TEST_F(UuEncodeTest, MorePartsLeaveFewerCharactersOfTheName) {
  const std::string file = make("longfilename.txt", randomBytes(450, 5));
  EXPECT_TRUE(code.UUEncodeFiles(file, folder(), 45));
  EXPECT_TRUE(exists("longfi01.UUE"));
  EXPECT_TRUE(exists("longfi10.UUE"));
  EXPECT_EQ(names().size(), 11U);
  make("longfilename.txt", randomBytes(4500, 6));
  EXPECT_TRUE(code.UUEncodeFiles(file, folder(), 45));
  EXPECT_TRUE(exists("longf001.UUE"));
  EXPECT_TRUE(exists("longf100.UUE"));
  EXPECT_EQ(names().size(), 111U);
}

TEST_F(UuEncodeTest, AThousandPartsHaveFourDigits) {
  EXPECT_TRUE(code.UUEncodeFiles(make("longfilename.txt", randomBytes(45000, 7)), folder(), 45));
  EXPECT_TRUE(exists("long0001.UUE"));
  EXPECT_TRUE(exists("long1000.UUE"));
  EXPECT_EQ(names().size(), 1001U);
}

TEST_F(UuEncodeTest, TenThousandPartsAreRefusedWithTheSizeThatWouldDo) {
  const std::string file = make("big.bin", std::string(45 * 20000, 'x'));
  EXPECT_THAT(faultOfParts(file, 1), HasSubstr("would be 20000, and 9999 are possible. Choose a size of at least 135"));
  EXPECT_THAT(names(), ElementsAre("big.bin"));
}

TEST_F(UuEncodeTest, ANameIsCutBetweenItsCharacters) {
  EXPECT_TRUE(code.UUEncodeFiles(make("\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9.x", std::string(90, 'x')),
                                 folder(), 45));
  EXPECT_TRUE(
      exists("\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9\u00e9"
             "1.UUE"));
}

TEST_F(UuEncodeTest, ANameWithoutABaseIsRefused) {
  EXPECT_THAT(faultOfParts(make(".profile", "Cat"), 0), HasSubstr("nothing before its first dot"));
  EXPECT_THAT(names(), ElementsAre(".profile"));
}

TEST_F(UuEncodeTest, EveryPartIsACompleteFileOfWholeLines) {
  const std::string bytes = randomBytes(250, 8);
  EXPECT_TRUE(code.UUEncodeFiles(make("Photo.jpg", bytes), folder(), 100));
  for (std::size_t part = 0; part < 3; ++part) {
    const std::string name = "Photo" + std::to_string(part + 1) + ".UUE";
    EXPECT_THAT(read(name), ::testing::StartsWith("begin photo.jpg\r\nM"));
    EXPECT_TRUE(code.UUDecodeFile(path(name), path("back" + name)));
    EXPECT_TRUE(read("back" + name) == padded(bytes.substr(part * 90, 90)));
  }
}

TEST_F(UuEncodeTest, ANoToOnePartWritesNone) {
  const std::string file = make("a.bin", randomBytes(200, 9));
  make("a2.UUE", "old two");
  make("a3.UUE", "old three");
  prompts.answerConfirm(true);
  prompts.answerConfirm(false);
  EXPECT_FALSE(code.UUEncodeFiles(file, folder(), 50));
  EXPECT_THAT(names(), ElementsAre("a.bin", "a2.UUE", "a3.UUE"));
  EXPECT_EQ(read("a2.UUE"), "old two");
}

TEST_F(UuEncodeTest, AFullDiskLeavesNoPart) {
  const std::string file = make("a.bin", randomBytes(200, 10));
  FullDisk disk(200);
  EXPECT_THROW(UUCode(prompts, disk).UUEncodeFiles(file, folder(), 50), FileError);
  EXPECT_THAT(names(), ElementsAre("a.bin"));
}

TEST_F(UuEncodeTest, ANameThatCannotBeGivenLeavesWholePartsOldOrNewAndNothingElse) {
  const std::string file = make("a.bin", randomBytes(135, 11));
  make("a1.UUE", "old one");
  make("a2.UUE", "old two");
  prompts.answerConfirm(true);
  prompts.answerConfirm(true);
  TakenName disk(path("a2.UUE"));
  EXPECT_THROW(UUCode(prompts, disk).UUEncodeFiles(file, folder(), 45), FileError);
  EXPECT_THAT(names(), ElementsAre("a.bin", "a1.UUE", "a2.UUE", "a3.UUE"));
  EXPECT_EQ(read("a1.UUE"), "old one");
  EXPECT_EQ(read("a2.UUE"), "old two");
  EXPECT_THAT(read("a3.UUE"), ::testing::EndsWith("\r\n`\r\nend\r\n"));
}

TEST_F(UuEncodeTest, AMissingInputOfPartsIsSaid) {
  EXPECT_FALSE(code.UUEncodeFiles(path("none.bin"), folder(), 50));
  EXPECT_THAT(prompts.texts(), ElementsAre("Input file " + path("none.bin") + " does not exist!"));
}

TEST_F(UuEncodeTest, TheHeaderOfAFileIsReadFromItsBeginningOnly) {
  std::string name;
  EXPECT_TRUE(code.UUEncodeFile(make("Some File.txt", "Cat"), path("out.uue")));
  EXPECT_TRUE(code.GetHeaderInfo(path("out.uue"), name));
  EXPECT_EQ(name, "some file.txt");
  EXPECT_TRUE(code.GetHeaderInfo(make("late", std::string(503, 'x') + "begin a\r\n"), name)) << "512 bytes in all";
  EXPECT_FALSE(code.GetHeaderInfo(make("later", std::string(504, 'x') + "begin a\r\n"), name));
  EXPECT_FALSE(code.GetHeaderInfo(make("nothing", ""), name));
  EXPECT_THROW(code.GetHeaderInfo(path("none"), name), FileError);
}

}  // namespace
}  // namespace tarnwick::testing
