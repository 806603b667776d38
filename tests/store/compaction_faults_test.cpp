// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>

#include "base/errors.h"
#include "store/compaction_fixture.h"
#include "store/first_field.h"
#include "support/file_bytes.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The machine's files, with one operation on one of them that fails.
class FaultyFiles final : public LocalFiles {
 public:
  /// Called with each operation ("write backup.mdb.new", "rename tarnwick.mdb") before it is carried out.
  std::function<void(const std::string& operation)> before = [](const std::string&) {};

  void failAt(const std::string& operation, std::function<void()> also = {}) {
    before = [operation, also = std::move(also)](const std::string& now) {
      if (now == operation) {
        if (also) {
          also();
        }
        throw FileError(now, "No space left on device");
      }
    };
  }

  void write(const std::string& path, const std::string& like, const FileFill& fill) override {
    before("write " + nameOf(path));
    LocalFiles::write(path, like, fill);
  }
  void rename(const std::string& from, const std::string& to) override {
    before("rename " + nameOf(to));
    LocalFiles::rename(from, to);
  }
  void remove(const std::string& path) override {
    before("remove " + nameOf(path));
    LocalFiles::remove(path);
  }

 private:
  static std::string nameOf(const std::string& path) { return fs::path(path).filename().string(); }
};

class CompactionFaultsTest : public CompactionFixture {
 protected:
  FaultyFiles faulty;
  Compaction compaction{database, connections, faulty, prompts};
};

TEST_F(CompactionFaultsTest, BackupThatCannotBeWrittenAbortsWithABox) {
  const std::string before = contents();
  faulty.failAt("write backup.mdb.new");
  EXPECT_FALSE(compaction.compact());
  EXPECT_THAT(prompts.texts(), ElementsAre("Aborting compact:\r\nwrite backup.mdb.new: No space left on device"));
  EXPECT_EQ(contents(), before);
  EXPECT_EQ(others(), "");
}

TEST_F(CompactionFaultsTest, FolderInPlaceOfTheBackupAbortsWithABox) {
  fs::create_directory(folder.file("backup.mdb"));
  EXPECT_FALSE(compaction.compact());
  ASSERT_EQ(prompts.shown().size(), 1u);
  EXPECT_THAT(prompts.texts()[0], HasSubstr("Aborting compact:\r\n"));
  EXPECT_THAT(prompts.texts()[0], HasSubstr("backup.mdb"));
  EXPECT_EQ(others(), "backup.mdb");
}

TEST_F(CompactionFaultsTest, FailedBackupLeavesTheEarlierOne) {
  ASSERT_TRUE(compaction.compact());
  const std::string earlier = bytes("backup.mdb");
  database.execute("delete from sites");
  faulty.failAt("rename backup.mdb");
  EXPECT_FALSE(compaction.compact());
  EXPECT_TRUE(bytes("backup.mdb") == earlier);
}

TEST_F(CompactionFaultsTest, DatabaseCanBeUsedBehindTheBox) {
  faulty.failAt("write backup.mdb.new");
  std::string url;
  prompts.whileOpen = [&](const RecordingPrompts::Box&) {
    url = firstText(database, "select url from sites where idSite = 3");
  };
  EXPECT_FALSE(compaction.compact());
  EXPECT_EQ(url, "http://a/");
}

TEST_F(CompactionFaultsTest, FolderInPlaceOfTheWorkFileFailsSilently) {
  const std::string before = contents();
  fs::create_directories(folder.file("temp.mdb/in the way"));
  EXPECT_FALSE(compaction.compact());
  EXPECT_THAT(prompts.shown(), IsEmpty());
  EXPECT_EQ(contents(), before);
  EXPECT_EQ(contents("backup.mdb"), before);
}

TEST_F(CompactionFaultsTest, DamagedDatabaseFailsSilentlyAndStaysAsItIs) {
  database.close();
  std::string damaged = bytes("tarnwick.mdb");
  for (std::size_t page = 30; page < 60; ++page) {
    damaged.replace(page * 4096, 512, std::string(512, '\xEE'));
  }
  writeFile(folder.databasePath(), damaged, FileRest::kept);
  EXPECT_FALSE(compaction.compact());
  EXPECT_THAT(prompts.shown(), IsEmpty());
  database.close();
  EXPECT_TRUE(bytes("tarnwick.mdb").substr(4096) == damaged.substr(4096));
  EXPECT_EQ(others(), "backup.mdb");
}

TEST_F(CompactionFaultsTest, OldWorkFileThatCannotBeDeletedFailsTheCompaction) {
  ASSERT_TRUE(compaction.compact());
  const std::string before = contents();
  faulty.failAt("remove temp.mdb");
  EXPECT_FALSE(compaction.compact());
  EXPECT_EQ(contents(), before);
}

TEST_F(CompactionFaultsTest, FailedCopyIntoPlaceIsNotReportedAndLosesNothing) {
  const std::string before = contents();
  faulty.failAt("write tarnwick.mdb.new");
  EXPECT_TRUE(compaction.compact());
  EXPECT_THAT(prompts.shown(), IsEmpty());
  EXPECT_EQ(contents(), before);
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
}

TEST_F(CompactionFaultsTest, FailedReplacingIsNotReportedAndLosesNothing) {
  const std::string before = contents();
  faulty.failAt("rename tarnwick.mdb");
  EXPECT_TRUE(compaction.compact());
  EXPECT_THAT(prompts.shown(), IsEmpty());
  EXPECT_EQ(contents(), before);
  EXPECT_EQ(others(), "backup.mdb temp.mdb");
}

TEST_F(CompactionFaultsTest, LostDatabaseRaisesTheErrorOfReopening) {
  const std::string before = contents();
  faulty.failAt("rename tarnwick.mdb", [&] { fs::remove(folder.databasePath()); });
  const std::string error = errorOf<DataAccessError>([&] { compaction.compact(); });
  EXPECT_THAT(error, HasSubstr(folder.databasePath()));
  EXPECT_FALSE(exists("tarnwick.mdb"));
  EXPECT_EQ(contents("backup.mdb"), before);
}

TEST_F(CompactionFaultsTest, DatabasePutBackIsFoundByTheNextStatement) {
  faulty.failAt("rename tarnwick.mdb", [&] { fs::remove(folder.databasePath()); });
  EXPECT_THROW(compaction.compact(), DataAccessError);
  EXPECT_THROW(database.execute("select * from sites"), DataAccessError);
  fs::copy_file(folder.file("backup.mdb"), folder.databasePath());
  EXPECT_EQ(firstText(database, "select url from sites where idSite = 3"), "http://a/");
}

TEST_F(CompactionFaultsTest, BoxIsShownEvenWhenTheDatabaseCannotBeReopened) {
  SKIP_ON_WINDOWS("There nobody can remove a file that is open.");
  faulty.failAt("write backup.mdb.new", [&] { fs::remove(folder.databasePath()); });
  EXPECT_THROW(compaction.compact(), DataAccessError);
  EXPECT_EQ(prompts.shown().size(), 1u);
}

TEST_F(CompactionFaultsTest, DatabaseOpenElsewhereIsRefusedBeforeAnythingIsTouched) {
  const auto other = connections.makeSqlConnection();
  other->open(database.connString());
  EXPECT_FALSE(compaction.compact());
  ASSERT_EQ(prompts.shown().size(), 1u);
  EXPECT_THAT(prompts.texts()[0], HasSubstr("in use by another program"));
  EXPECT_EQ(others(), "");
  other->execute("update sites set url = 'by the other' where idSite = 3");
  other->close();
  EXPECT_EQ(firstText(database, "select url from sites where idSite = 3"), "by the other");
  EXPECT_TRUE(compaction.compact());
}

TEST_F(CompactionFaultsTest, NobodyElseComesInWhileTheFilesAreMade) {
  SKIP_ON_WINDOWS("There the database must be given free before another file can take its place.");
  // Each attempt waits for the lock as long as a connection does, so few moments are tried.
  int attempts = 0;
  faulty.before = [&](const std::string& operation) {
    if (operation.starts_with("rename ")) {
      ++attempts;
      EXPECT_THROW(connections.makeSqlConnection()->open(database.connString()), DataAccessError) << operation;
    }
  };
  EXPECT_TRUE(compaction.compact());
  EXPECT_EQ(attempts, 2);
}

TEST_F(CompactionFaultsTest, WholeCompactionWorksWhereOpenFilesCannotBeReplaced) {
  class ClosedFilesOnly final : public LocalFiles {
   public:
    bool replacesOpenFiles() override { return false; }
  } closedFiles;
  const std::string before = contents();
  EXPECT_TRUE(Compaction(database, connections, closedFiles, prompts).compact());
  EXPECT_EQ(contents(), before);
}

}  // namespace
}  // namespace tarnwick::testing
