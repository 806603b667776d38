// SPDX-License-Identifier: MIT
#include "platform/local_files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "base/errors.h"
#include "support/files_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
class LocalFilesTest : public FilesFixture {
 protected:
  LocalFiles files;
};

TEST_F(LocalFilesTest, CopyOfManyPiecesIsTheSame) {
  std::string bytes(3 * 1024 * 1024 + 17, '\0');
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    bytes[i] = static_cast<char>(i * 31 % 251);
  }
  make("a", bytes);
  make("b", "earlier");
  files.copy(at("a"), at("b"));
  EXPECT_TRUE(read("b") == bytes);
}

TEST_F(LocalFilesTest, CopyOfAnEmptyFileIsEmpty) {
  make("a", "");
  make("b", "earlier");
  files.copy(at("a"), at("b"));
  EXPECT_EQ(read("b"), "");
}

TEST_F(LocalFilesTest, CopyOfAMissingFileIsAnErrorAndMakesNothing) {
  EXPECT_THROW(files.copy(at("none"), at("b")), FileError);
  EXPECT_FALSE(fs::exists(at("b")));
}

TEST_F(LocalFilesTest, FileThatCannotBeCompletedIsRemoved) {
  make("like", "");
  EXPECT_THROW(files.write(at("a"), at("like"),
                           [](const ByteSink& sink) {
                             sink("half");
                             throw std::runtime_error("the source ended");
                           }),
               std::runtime_error);
  EXPECT_FALSE(fs::exists(at("a")));
}

TEST_F(LocalFilesTest, NewFileHasThePermissionsOfItsModelFromTheStart) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder.");
  const fs::perms ownerOnly = fs::perms::owner_read | fs::perms::owner_write;
  make("like", "");
  fs::permissions(at("like"), ownerOnly);
  files.write(at("a"), at("like"), [&](const ByteSink&) { EXPECT_EQ(fs::status(at("a")).permissions(), ownerOnly); });
  EXPECT_EQ(fs::status(at("a")).permissions(), ownerOnly);
}

TEST_F(LocalFilesTest, CopyIsANewFileWhateverHasItsName) {
  SKIP_ON_WINDOWS("There a link takes a right of its own.");
  make("like", "new");
  make("victim", "untouched");
  fs::create_symlink(at("victim"), at("a"));
  files.copy(at("like"), at("a"));
  EXPECT_EQ(read("a"), "new");
  EXPECT_EQ(read("victim"), "untouched");

  make("b", "");
  std::ifstream opened(at("b"), std::ios::binary);
  files.copy(at("like"), at("b"));
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(opened), {}), "");
}

TEST_F(LocalFilesTest, RenamedFileTakesTheOtherOnesPlace) {
  make("a", "new");
  make("b", "old");
  files.rename(at("a"), at("b"));
  EXPECT_EQ(read("b"), "new");
  EXPECT_FALSE(fs::exists(at("a")));
}

TEST_F(LocalFilesTest, RenamingOntoAFolderIsAnErrorThatNamesIt) {
  make("a", "new");
  fs::create_directory(at("b"));
  try {
    files.rename(at("a"), at("b"));
    FAIL() << "No error was raised.";
  } catch (const FileError& error) {
    EXPECT_EQ(error.path(), at("b"));
  }
  EXPECT_EQ(read("a"), "new");
}

TEST_F(LocalFilesTest, RemovingAMissingFileChangesNothing) { EXPECT_NO_THROW(files.remove(at("none"))); }

TEST_F(LocalFilesTest, FolderIsNotRemovedAsAFile) {
  fs::create_directory(at("b"));
  EXPECT_THROW(files.remove(at("b")), FileError);
  EXPECT_TRUE(fs::exists(at("b")));
}

}  // namespace
}  // namespace tarnwick::testing
