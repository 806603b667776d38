// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <string>
#ifndef _WIN32
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#endif

#include "base/errors.h"
#include "open_database.h"
#include "support/file_bytes.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

std::string causeOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const DataAccessError& error) {
    return error.cause();
  }
  return "(no error)";
}

bool contains(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

class SqliteFaults : public ::testing::Test {
 protected:
  std::string openFault() {
    return causeOf([&] { databases_.makeSqlConnection()->open(OpenDatabase::connStringFor(folder_.databasePath())); });
  }
  std::string contents() const {
    std::ifstream file(folder_.databasePath(), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void overwrite(const std::string& bytes) const {
    std::ofstream(folder_.databasePath(), std::ios::binary | std::ios::trunc) << bytes;
  }
  /// Opening fails with a message that names the file and the remedy, and leaves the folder as it was.
  void expectRefusedAsDamaged() {
    const std::string before = contents();
    const std::string fault = openFault();
    EXPECT_TRUE(contains(fault, "is damaged or is no database")) << fault;
    EXPECT_TRUE(contains(fault, folder_.databasePath())) << fault;
    EXPECT_TRUE(contains(fault, "backup.mdb")) << fault;
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()), 1);
  }

  ProgramFolder folder_;
  HandClock clock_;
  SqliteConnections databases_{clock_};
};

TEST_F(SqliteFaults, AMissingFileIsAnErrorAndNothingIsCreated) {
  fs::remove(folder_.databasePath());
  const std::string fault = openFault();
  EXPECT_TRUE(contains(fault, "is missing")) << fault;
  EXPECT_TRUE(contains(fault, folder_.databasePath())) << fault;
  EXPECT_TRUE(contains(fault, "backup.mdb")) << fault;
  EXPECT_TRUE(fs::is_empty(folder_.path()));
}

TEST_F(SqliteFaults, AFolderInPlaceOfTheFileIsAClearError) {
  fs::remove(folder_.databasePath());
  fs::create_directory(folder_.databasePath());
  EXPECT_TRUE(contains(openFault(), "is a folder"));
}

TEST_F(SqliteFaults, AFileThatIsNoDatabaseIsRefused) {
  overwrite("This is no database at all.");
  expectRefusedAsDamaged();
  overwrite(std::string(10000, 'x'));
  expectRefusedAsDamaged();
}

TEST_F(SqliteFaults, AnEmptyFileIsRefused) {
  overwrite("");
  expectRefusedAsDamaged();
}

TEST_F(SqliteFaults, ATruncatedFileIsRefusedWhereverItEnds) {
  const std::string whole = contents();
  for (const std::size_t length : {std::size_t{20}, std::size_t{50}, std::size_t{100}, std::size_t{4096},
                                   whole.size() / 2, whole.size() - 4096, whole.size() - 1}) {
    overwrite(whole.substr(0, length));
    SCOPED_TRACE(length);
    expectRefusedAsDamaged();
  }
}

TEST_F(SqliteFaults, ATruncatedFileThatWasInUseIsRefusedToo) {
  databases_.makeSqlConnection()->open(OpenDatabase::connStringFor(folder_.databasePath()));
  const std::string whole = contents();
  for (const std::size_t length : {std::size_t{100}, std::size_t{4096}, whole.size() - 4096, whole.size() - 1}) {
    overwrite(whole.substr(0, length));
    SCOPED_TRACE(length);
    expectRefusedAsDamaged();
  }
}

TEST_F(SqliteFaults, DamageFoundLaterNamesTheFile) {
  folder_.execute("insert into sites (idSite,content_runtime) values (1, hex(zeroblob(100000)))");
  std::string bytes = contents();
  for (std::size_t i = 4096 * 2; i < bytes.size(); ++i) {
    bytes[i] = 'x';
  }
  overwrite(bytes);
  const std::string fault = causeOf([&] {
    const auto conn = databases_.makeSqlConnection();
    conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
    conn->execute("select * from postVars");
    conn->execute("select * from log");
    conn->execute("select * from test");
  });
  EXPECT_TRUE(contains(fault, "is damaged") && contains(fault, folder_.databasePath())) << fault;
}

TEST_F(SqliteFaults, ALockHeldByAnotherProgramIsAClearErrorAndPasses) {
  const OpenDatabase database;
  const auto other = databases_.makeSqlConnection();
  other->open(database.connString());
  other->begin();
  other->execute("insert into sites (idSite) values (1)");
  const std::string fault = causeOf([&] { database.run("insert into sites (idSite) values (2)"); });
  EXPECT_TRUE(contains(fault, "in use by another program")) << fault;
  EXPECT_TRUE(contains(fault, "(database is locked)")) << fault;
  EXPECT_EQ(database.rows("select count(*) from sites"), "0;");
  other->commit();
  database.run("insert into sites (idSite) values (2)");
  EXPECT_EQ(database.rows("select count(*) from sites"), "2;");
}

TEST_F(SqliteFaults, ATableThatIsBeingReadCannotBeDropped) {
  const OpenDatabase database;
  database.run("insert into methods (idSite) values (1)");
  database.run("insert into methods (idSite) values (2)");
  const auto records = database.conn->execute("select idSite from methods");
  EXPECT_TRUE(contains(causeOf([&] { database.run("drop table methods"); }), "is still being read"));
  records->moveNext();
  records->moveNext();
  database.run("drop table methods");
}

TEST_F(SqliteFaults, AFullDiskIsAClearErrorAndStoresNothing) {
  const OpenDatabase database;
  database.run("pragma max_page_count = 20");
  const std::string fault =
      causeOf([&] { database.run("insert into sites (idSite,url) values (1,'" + std::string(500000, 'x') + "')"); });
  EXPECT_TRUE(contains(fault, "The disk is full")) << fault;
  EXPECT_TRUE(contains(fault, "(database or disk is full)")) << fault;
  EXPECT_EQ(database.rows("select count(*) from sites"), "0;");
}

TEST_F(SqliteFaults, ARecordThatIsThereAlreadyIsAClearError) {
  const OpenDatabase database;
  database.run("insert into sites (idSite) values (1)");
  const std::string fault = causeOf([&] { database.run("insert into sites (idSite) values (1)"); });
  EXPECT_TRUE(contains(fault, "is there already")) << fault;
  EXPECT_TRUE(contains(causeOf([&] { database.run("insert into sites (idSite) values ('x')"); }), "whole number"));
}

TEST_F(SqliteFaults, AFailedStatementLeavesTheConnectionFitForTheNext) {
  const OpenDatabase database;
  database.run("insert into sites (idSite) values (1)");
  for (int i = 0; i < 3; ++i) {
    EXPECT_THROW(database.run("insert into sites (idSite) values (1)"), DataAccessError);
    EXPECT_THROW(database.run("selct 1"), DataAccessError);
  }
  EXPECT_EQ(database.rows("select idSite from sites"), "1;");
}

#ifndef _WIN32
/// Gives up the rights of the superuser, whom no file mode stops.
class WithoutSuperuser {
 public:
  WithoutSuperuser() : was_(geteuid()) {
    if (was_ == 0) {
      constexpr uid_t kNobody = 65534;
      given_ = seteuid(kNobody) == 0;
    }
  }
  ~WithoutSuperuser() { given_ = seteuid(was_) == 0; }
  WithoutSuperuser(const WithoutSuperuser&) = delete;
  WithoutSuperuser& operator=(const WithoutSuperuser&) = delete;
  bool given() const { return given_; }

 private:
  uid_t was_;
  bool given_ = true;
};

struct ReadOnlyFolder : SqliteFaults {
  /// The list in `folder` has one site, with that address, and cannot be changed.
  void expectReadInAFolderThatMayNotBeWritten(const std::string& folder, const std::string& url) {
    fs::permissions(folder_.path(), fs::perms::all);
    constexpr auto kNobodyWrites = static_cast<fs::perms>(0555);
    fs::permissions(folder, kNobodyWrites);
    {
      const WithoutSuperuser user;
      if (!user.given()) {
        GTEST_SKIP() << "the superuser's rights cannot be given up here, and no file mode stops him";
      }
      const auto conn = databases_.makeSqlConnection();
      conn->open(OpenDatabase::connStringFor(folder + "/tarnwick.mdb"));
      EXPECT_EQ(conn->execute("select url from sites")->field(0).toText(), url);
      EXPECT_EQ(conn->execute("select count(*) from sites")->field(0).toInt64(), 1);
      EXPECT_TRUE(conn->readOnly());
      const std::string fault = causeOf([&] { conn->execute("delete from sites"); });
      EXPECT_TRUE(contains(fault, "the file or its folder is read-only")) << fault;
    }
    fs::permissions(folder, fs::perms::all);
  }
};

TEST_F(SqliteFaults, AReadOnlyFileIsReadAndSaysSoWhenItIsToBeChanged) {
  folder_.execute("insert into sites (idSite,url) values (1,'u')");
  fs::permissions(folder_.path(), fs::perms::all);
  fs::permissions(folder_.databasePath(), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  const WithoutSuperuser user;
  if (!user.given()) {
    GTEST_SKIP() << "the superuser's rights cannot be given up here, and no file mode stops him";
  }
  const auto conn = databases_.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
  EXPECT_TRUE(conn->readOnly());
  EXPECT_NO_THROW(conn->formOfTables());
  EXPECT_EQ(conn->execute("select url from sites")->field(0).toText(), "u");
  const std::string fault = causeOf([&] { conn->execute("delete from sites"); });
  EXPECT_TRUE(contains(fault, "is read-only")) << fault;
  EXPECT_TRUE(contains(fault, "(attempt to write a readonly database)")) << fault;
}

TEST_F(ReadOnlyFolder, AFolderThatMayNotBeWrittenCanBeRead) {
  folder_.execute("pragma journal_mode = wal; insert into sites (idSite,url) values (1,'u')");
  const std::string folder = folder_.file("read only # 100%?");
  fs::create_directory(folder);
  const std::string path = folder + "/tarnwick.mdb";
  fs::copy_file(folder_.databasePath(), path);
  fs::permissions(path, fs::perms::all);
  expectReadInAFolderThatMayNotBeWritten(folder, "u");
}

TEST_F(ReadOnlyFolder, WhatAKillLeftInAFolderThatMayNotBeWrittenIsRead) {
  const std::string folder = folder_.file("read only # 100%?");
  fs::create_directory(folder);
  const std::string path = folder + "/tarnwick.mdb";
  std::string wal;
  {
    const auto killed = databases_.makeSqlConnection();
    killed->open(OpenDatabase::connStringFor(folder_.databasePath()));
    killed->execute("insert into sites (idSite,url) values (1,'in the log')");
    for (const char* const ending : {"", "-wal"}) {
      fs::copy_file(folder_.databasePath() + ending, path + ending);
      fs::permissions(path + ending, fs::perms::all);
    }
    wal = bytesOfFile(path + "-wal");
    ASSERT_FALSE(wal.empty());
  }
  const std::string before = bytesOfFile(path);
  expectReadInAFolderThatMayNotBeWritten(folder, "in the log");
  EXPECT_EQ(bytesOfFile(path), before);
  EXPECT_EQ(bytesOfFile(path + "-wal"), wal);
  {
    const auto conn = databases_.makeSqlConnection();
    conn->open(OpenDatabase::connStringFor(path));
    EXPECT_EQ(conn->execute("select url from sites")->field(0).toText(), "in the log");
    EXPECT_FALSE(conn->readOnly());
  }
}

TEST_F(SqliteFaults, WhatAReaderLeftBesideAReadOnlyFileIsPutRight) {
  folder_.execute("pragma journal_mode = wal; insert into sites (idSite,url) values (1,'u')");
  fs::permissions(folder_.path(), fs::perms::all);
  constexpr auto kReadOnly = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  const WithoutSuperuser user;
  if (!user.given()) {
    GTEST_SKIP() << "the superuser's rights cannot be given up here, and no file mode stops him";
  }
  const std::string path = folder_.file("own.mdb");
  fs::copy_file(folder_.databasePath(), path);
  fs::permissions(path, kReadOnly);
  {
    const auto reader = databases_.makeSqlConnection();
    reader->open(OpenDatabase::connStringFor(path));
    EXPECT_EQ(reader->execute("select url from sites")->field(0).toText(), "u");
  }
  ASSERT_TRUE(fs::exists(path + "-shm"));
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
  const auto writer = databases_.makeSqlConnection();
  writer->open(OpenDatabase::connStringFor(path));
  EXPECT_NO_THROW(writer->execute("delete from sites"));
}

TEST_F(SqliteFaults, ACompanionOfAnotherUserThatMayNotBeWrittenIsNamed) {
  fs::permissions(folder_.path(), fs::perms::all);
  fs::permissions(folder_.databasePath(), fs::perms::all);
  constexpr auto kReadOnly = fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read;
  const auto keeper = databases_.makeSqlConnection();
  keeper->open(OpenDatabase::connStringFor(folder_.databasePath()));
  const std::string shm = bytesOfFile(folder_.databasePath() + "-shm");
  const std::string wal = bytesOfFile(folder_.databasePath() + "-wal");
  keeper->close();
  writeFile(folder_.databasePath() + "-shm", shm);
  writeFile(folder_.databasePath() + "-wal", wal);
  fs::permissions(folder_.databasePath() + "-shm", kReadOnly);
  const WithoutSuperuser user;
  if (!user.given() || geteuid() != 65534) {
    GTEST_SKIP() << "there is only one user here";
  }
  const auto conn = databases_.makeSqlConnection();
  const std::string fault = causeOf([&] {
    conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
    conn->execute("delete from sites");
  });
  EXPECT_TRUE(contains(fault, "tarnwick.mdb-shm, which belongs to it, is read-only")) << fault;
}

TEST_F(SqliteFaults, AFileThatMayNotBeReadIsAClearError) {
  fs::permissions(folder_.path(), fs::perms::all);
  fs::permissions(folder_.databasePath(), fs::perms::none);
  const WithoutSuperuser user;
  if (!user.given()) {
    GTEST_SKIP() << "the superuser's rights cannot be given up here, and no file mode stops him";
  }
  const std::string fault = openFault();
  EXPECT_TRUE(contains(fault, "cannot be opened")) << fault;
  EXPECT_TRUE(contains(fault, folder_.databasePath())) << fault;
}

TEST_F(SqliteFaults, AKilledProcessLosesNothingCommittedAndKeepsNothingElse) {
  const pid_t child = fork();
  if (child == 0) {
    const auto conn = databases_.makeSqlConnection();
    conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
    for (int id = 1; id <= 50; ++id) {
      conn->execute("insert into sites (idSite,url) values (" + std::to_string(id) + ",'u')");
    }
    conn->begin();
    conn->execute("delete from sites");
    raise(SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(waitpid(child, &status, 0), child);
  ASSERT_TRUE(WIFSIGNALED(status));
  const auto conn = databases_.makeSqlConnection();
  conn->open(OpenDatabase::connStringFor(folder_.databasePath()));
  EXPECT_EQ(conn->execute("select count(*) from sites")->field(0).toInt64(), 50);
  EXPECT_EQ(conn->execute("pragma integrity_check")->field(0).toText(), "ok");
}
#endif

}  // namespace
}  // namespace tarnwick::testing
