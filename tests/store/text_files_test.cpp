// SPDX-License-Identifier: MIT
#include "store/text_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "base/errors.h"
#include "platform/local_files.h"
#include "support/data_fixture.h"
#include "support/program_folder.h"
#include "support/recording_desktop.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

class TextFilesTest : public ::testing::Test {
 protected:
  ProgramFolder folder;
  RecordingOpener opener;
  LocalFiles disk;
  TextFiles files{disk, opener};
};

TEST_F(TextFilesTest, SavedTextEndsWithOneLineEnd) {
  files.saveFile(folder.file("a.txt"), "two\nlines");
  EXPECT_EQ(files.getFile(folder.file("a.txt")), "two\nlines\r\n");
}

TEST_F(TextFilesTest, SavedTextReplacesALongerFile) {
  files.saveFile(folder.file("a.txt"), "a long earlier text");
  files.saveFile(folder.file("a.txt"), "");
  EXPECT_EQ(files.getFile(folder.file("a.txt")), "\r\n");
}

TEST_F(TextFilesTest, EveryByteIsKept) {
  for (const std::string& text : trickyTexts()) {
    files.saveFile(folder.file("a.txt"), text);
    EXPECT_EQ(files.getFile(folder.file("a.txt")), text + "\r\n");
    std::filesystem::remove(folder.file("b.bin"));
    files.saveFileB(folder.file("b.bin"), text);
    EXPECT_EQ(files.getFile(folder.file("b.bin")), text);
  }
}

TEST_F(TextFilesTest, EmptyFileIsAnEmptyText) {
  files.saveFileB(folder.file("empty"), "");
  EXPECT_TRUE(std::filesystem::exists(folder.file("empty")));
  EXPECT_EQ(files.getFile(folder.file("empty")), "");
}

TEST_F(TextFilesTest, BytesOverALongerFileLeaveItsTail) {
  files.saveFileB(folder.file("b.bin"), "0123456789");
  files.saveFileB(folder.file("b.bin"), "abc");
  EXPECT_EQ(files.getFile(folder.file("b.bin")), "abc3456789");
}

TEST_F(TextFilesTest, BytesOverAShorterFileMakeItLonger) {
  files.saveFileB(folder.file("b.bin"), "01");
  files.saveFileB(folder.file("b.bin"), "abc");
  EXPECT_EQ(files.getFile(folder.file("b.bin")), "abc");
}

TEST_F(TextFilesTest, PathsAreUtf8) {
  const std::string path = folder.file("gr\xc3\xbc\xc3\x9f \xe2\x82\xac.txt");
  files.saveFile(path, "x");
  EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(std::u8string(path.begin(), path.end()))));
  EXPECT_EQ(files.getFile(path), "x\r\n");
}

TEST_F(TextFilesTest, LargeFileIsReadWhole) {
  const std::string large(5'000'000, 'x');
  files.saveFileB(folder.file("large"), large);
  EXPECT_EQ(files.getFile(folder.file("large")), large);
}

TEST_F(TextFilesTest, MissingFileIsAnErrorThatNamesItAndTheCause) {
  const std::string path = folder.file("missing.txt");
  const std::string message = errorOf<FileError>([&] { files.getFile(path); });
  EXPECT_THAT(message, HasSubstr(path));
  // In the words of the system.
  EXPECT_THAT(message, HasSubstr(kOnWindows ? "ound" : "No such file"));
}

TEST_F(TextFilesTest, FolderIsNoFile) {
  EXPECT_THAT(errorOf<FileError>([&] { files.getFile(folder.path()); }), HasSubstr(folder.path()));
  EXPECT_THAT(errorOf<FileError>([&] { files.saveFile(folder.path(), "x"); }), HasSubstr(folder.path()));
}

TEST_F(TextFilesTest, SavingInAMissingFolderIsAnError) {
  const std::string path = folder.file("nowhere/a.txt");
  EXPECT_THAT(errorOf<FileError>([&] { files.saveFile(path, "x"); }), HasSubstr(path));
  EXPECT_THAT(errorOf<FileError>([&] { files.saveFileB(path, "x"); }), HasSubstr(path));
  EXPECT_FALSE(std::filesystem::exists(folder.file("nowhere")));
}

TEST_F(TextFilesTest, NameWithANulByteIsRefusedInsteadOfCut) {
  const std::string path = folder.file("a") + std::string("\0.txt", 5);
  EXPECT_THROW(files.saveFile(path, "x"), FileError);
  EXPECT_FALSE(std::filesystem::exists(folder.file("a")));
}

#ifdef __linux__
TEST_F(TextFilesTest, FullDiskIsAnErrorThatNamesTheCause) {
  EXPECT_THAT(errorOf<FileError>([&] { files.saveFile("/dev/full", "x"); }), HasSubstr("No space left"));
  EXPECT_THAT(errorOf<FileError>([&] { files.saveFileB("/dev/full", std::string(100'000, 'x')); }),
              HasSubstr("No space left"));
}
#endif

TEST_F(TextFilesTest, OpeningHandsThePathToTheDesktopAndIgnoresTheResult) {
  opener.result = false;
  EXPECT_NO_THROW(files.openFileFromSystem("/some/report.html"));
  EXPECT_THAT(opener.opened, ElementsAre("/some/report.html"));
}

}  // namespace
}  // namespace tarnwick::testing
