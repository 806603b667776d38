#include "platform/file_access.h"

#include <gtest/gtest.h>

#include <string>

#include "base/errors.h"
#include "platform/clock.h"
#include "platform/local_files.h"
#include "platform/sqlite/sqlite_connection.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

class FileAccess : public ::testing::Test {
 protected:
  std::string at(const std::string& name) const { return folder.file(name); }

  static void make(const std::string& path, const std::string& bytes) {
    const FileHandle file = openFile(path, FileUse::write);
    ASSERT_EQ(std::fwrite(bytes.data(), 1, bytes.size(), file.get()), bytes.size());
  }
  static std::string read(const std::string& path) {
    const FileHandle file = openFile(path, FileUse::read);
    std::string bytes(static_cast<std::size_t>(sizeOf(path)) + 1, '\0');
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return bytes;
  }

  /// A folder whose path alone is longer than 260 characters; it goes with the test's own.
  std::string longFolder() const {
    std::string path = folder.path();
    while (path.size() <= 300) {
      path += "/" + std::string(60, 'f') + " \xc3\xa9";
      makeFolder(path);
    }
    return path;
  }

  const ProgramFolder folder;
};

TEST_F(FileAccess, BytesAreWrittenAndReadAsTheyAre) {
  const std::string bytes(
      "a\r\nb\nc\x1a"
      "d\0e\r",
      12);
  make(at("a"), bytes);
  EXPECT_EQ(read(at("a")), bytes);
  EXPECT_EQ(sizeOf(at("a")), bytes.size());
}

TEST_F(FileAccess, NamesMayHoldBlanksAndLettersOfAnyLanguage) {
  const std::string name = at("a b \xc3\xa4\xe4\xb8\xad\xf0\x9f\x98\x80.txt");
  make(name, "x");
  EXPECT_EQ(kindOf(name), FileKind::file);
  EXPECT_EQ(read(name), "x");
  removeFile(name);
  EXPECT_EQ(kindOf(name), FileKind::none);
}

TEST_F(FileAccess, UpdateKeepsWhatIsNotWrittenOver) {
  make(at("a"), "abcdef");
  std::fputs("XY", openFile(at("a"), FileUse::update).get());
  EXPECT_EQ(read(at("a")), "XYcdef");
}

TEST_F(FileAccess, UpdateMakesAMissingFile) {
  std::fputs("XY", openFile(at("a"), FileUse::update).get());
  EXPECT_EQ(read(at("a")), "XY");
}

TEST_F(FileAccess, MissingFileAndFolderAreErrorsThatNameThem) {
  EXPECT_THROW(openFile(at("none"), FileUse::read), FileError);
  EXPECT_THROW(openFile(at("none/a"), FileUse::write), FileError);
  EXPECT_THROW(sizeOf(at("none")), FileError);
  EXPECT_EQ(kindOf(at("none/a")), FileKind::none);
}

TEST_F(FileAccess, NulInANameIsAnError) {
  EXPECT_THROW(openFile(at(std::string("a\0b", 3)), FileUse::write), FileError);
  EXPECT_FALSE(isTaken(at("a")));
}

TEST_F(FileAccess, AFileThatIsBeingReadCanBeReplaced) {
  make(at("a"), "old");
  make(at("b"), "new");
  const FileHandle reader = openFile(at("a"), FileUse::read);
  replaceFile(at("b"), at("a"));
  EXPECT_EQ(read(at("a")), "new");
  std::string seen(3, '\0');
  EXPECT_EQ(std::fread(seen.data(), 1, 3, reader.get()), 3U);
  EXPECT_EQ(seen, "old");
}

TEST_F(FileAccess, AFolderIsMadeOnce) {
  EXPECT_TRUE(makeFolder(at("f")));
  EXPECT_FALSE(makeFolder(at("f")));
  EXPECT_EQ(kindOf(at("f")), FileKind::folder);
  EXPECT_TRUE(isWritableFolder(at("f")));
  EXPECT_FALSE(isWritableFolder(at("none")));
  EXPECT_FALSE(holdsVisibleFile(at("f")));
  make(at("f/.hidden"), "");
  EXPECT_FALSE(holdsVisibleFile(at("f")));
  make(at("f/seen"), "");
  EXPECT_TRUE(holdsVisibleFile(at("f")));
}

TEST_F(FileAccess, TheSameFileIsKnownByAnotherPath) {
  make(at("a"), "x");
  make(at("b"), "x");
  EXPECT_TRUE(isSameFile(at("a"), at("./a")));
  EXPECT_FALSE(isSameFile(at("a"), at("b")));
  EXPECT_FALSE(isSameFile(at("a"), at("none")));
}

TEST_F(FileAccess, FilesLieInFoldersWithNamesOfAnyLength) {
  const std::string far = longFolder();
  make(far + "/a", "one");
  LocalFiles().copy(far + "/a", far + "/b");
  replaceFile(far + "/b", far + "/c");
  EXPECT_EQ(read(far + "/c"), "one");
  EXPECT_TRUE(holdsVisibleFile(far));
  removeFile(far + "/a");
  removeFile(far + "/c");
  EXPECT_FALSE(holdsVisibleFile(far));
}

TEST_F(FileAccess, ADatabaseLiesInAFolderWithANameOfAnyLength) {
  const std::string far = longFolder();
  LocalFiles().copy(folder.databasePath(), far + "/tarnwick.mdb");
  const SystemClock clock;
  SqliteConnections connections(clock);
  const std::string source = "Data Source=" + far + "/tarnwick.mdb;Jet OLEDB:Engine Type=4;";
  const auto connection = connections.makeSqlConnection();
  connection->open(source);
  connection->execute("insert into methods (method) values ('PUT')");
  connection->close();
  connections.holdDatabase(source)->compactInto("Data Source=" + far + "/temp.mdb;Jet OLEDB:Engine Type=4;");
  EXPECT_GT(sizeOf(far + "/temp.mdb"), 0U);
}

}  // namespace
}  // namespace tarnwick::testing
