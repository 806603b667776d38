// SPDX-License-Identifier: MIT
#include "platform/local_files.h"

#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "platform/clock.h"
#include "platform/sqlite/sqlite_connection.h"
#include "support/file_bytes.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

class FileNames : public ::testing::Test {
 protected:
  std::string at(const std::string& name) const { return folder.file(name); }

  /// A folder whose path alone is longer than 260 characters; it goes with the test's own.
  std::string longFolder() const {
    std::string path = folder.path();
    while (path.size() <= 300) {
      path += "/" + std::string(60, 'f') + " \xc3\xa9";
      LocalFiles().makeFolder(path);
    }
    return path;
  }

  const ProgramFolder folder;
  LocalFiles files;
};

TEST_F(FileNames, BytesAreWrittenAndReadAsTheyAre) {
  const std::string bytes(
      "a\r\nb\nc\x1a"
      "d\0e\r",
      12);
  writeFile(at("a"), bytes);
  EXPECT_EQ(bytesOfFile(at("a")), bytes);
  EXPECT_EQ(files.sizeOf(at("a")), bytes.size());
}

TEST_F(FileNames, NamesMayHoldBlanksAndLettersOfAnyLanguage) {
  const std::string name = at("a b \xc3\xa4\xe4\xb8\xad\xf0\x9f\x98\x80.txt");
  writeFile(name, "x");
  EXPECT_EQ(files.kindOf(name), FileKind::file);
  EXPECT_EQ(bytesOfFile(name), "x");
  files.remove(name);
  EXPECT_EQ(files.kindOf(name), FileKind::none);
}

TEST_F(FileNames, UpdateKeepsWhatIsNotWrittenOver) {
  writeFile(at("a"), "abcdef");
  writeFile(at("a"), "XY", FileRest::kept);
  EXPECT_EQ(bytesOfFile(at("a")), "XYcdef");
}

TEST_F(FileNames, UpdateMakesAMissingFile) {
  writeFile(at("a"), "XY", FileRest::kept);
  EXPECT_EQ(bytesOfFile(at("a")), "XY");
}

TEST_F(FileNames, MissingFileAndFolderAreErrorsThatNameThem) {
  EXPECT_THROW(files.open(at("none")), FileError);
  EXPECT_THROW(writeFile(at("none/a"), ""), FileError);
  EXPECT_THROW(files.sizeOf(at("none")), FileError);
  EXPECT_EQ(files.kindOf(at("none/a")), FileKind::none);
}

TEST_F(FileNames, NulInANameIsAnError) {
  EXPECT_THROW(writeFile(at(std::string("a\0b", 3)), ""), FileError);
  EXPECT_FALSE(files.exists(at("a")));
}

TEST_F(FileNames, AFileThatIsBeingReadCanBeReplaced) {
  writeFile(at("a"), "old");
  writeFile(at("b"), "new");
  const auto reader = files.open(at("a"));
  files.rename(at("b"), at("a"));
  EXPECT_EQ(bytesOfFile(at("a")), "new");
  std::string seen;
  reader->read(seen, 10);
  EXPECT_EQ(seen, "old");
}

TEST_F(FileNames, AFolderIsMadeOnce) {
  EXPECT_TRUE(files.makeFolder(at("f")));
  EXPECT_FALSE(files.makeFolder(at("f")));
  EXPECT_EQ(files.kindOf(at("f")), FileKind::folder);
  EXPECT_FALSE(files.holdsVisibleFile(at("f")));
  writeFile(at("f/.hidden"), "");
  EXPECT_FALSE(files.holdsVisibleFile(at("f")));
  writeFile(at("f/seen"), "");
  EXPECT_TRUE(files.holdsVisibleFile(at("f")));
}

TEST_F(FileNames, TheSameFileIsKnownByAnotherPath) {
  writeFile(at("a"), "x");
  writeFile(at("b"), "x");
  EXPECT_TRUE(files.isSameFile(at("a"), at("./a")));
  EXPECT_FALSE(files.isSameFile(at("a"), at("b")));
  EXPECT_FALSE(files.isSameFile(at("a"), at("none")));
}

TEST_F(FileNames, FilesLieInFoldersWithNamesOfAnyLength) {
  const std::string far = longFolder();
  writeFile(far + "/a", "one");
  files.copy(far + "/a", far + "/b");
  files.rename(far + "/b", far + "/c");
  EXPECT_EQ(bytesOfFile(far + "/c"), "one");
  EXPECT_TRUE(files.holdsVisibleFile(far));
  files.remove(far + "/a");
  files.remove(far + "/c");
  EXPECT_FALSE(files.holdsVisibleFile(far));
}

TEST_F(FileNames, ADatabaseLiesInAFolderWithANameOfAnyLength) {
  const std::string far = longFolder();
  files.copy(folder.databasePath(), far + "/tarnwick.mdb");
  const SystemClock clock;
  SqliteConnections connections(clock);
  const std::string source = "Data Source=" + far + "/tarnwick.mdb;Jet OLEDB:Engine Type=4;";
  const auto connection = connections.makeSqlConnection();
  connection->open(source);
  connection->execute("insert into methods (method) values ('PUT')");
  connection->close();
  connections.holdDatabase(source)->compactInto("Data Source=" + far + "/temp.mdb;Jet OLEDB:Engine Type=4;");
  EXPECT_GT(files.sizeOf(far + "/temp.mdb"), 0U);
}

}  // namespace
}  // namespace tarnwick::testing
