// SPDX-License-Identifier: MIT
#include "platform/program_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <QByteArray>

#include "base/errors.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

constexpr fs::perms kOwnerFile = fs::perms::owner_read | fs::perms::owner_write;

/// An absolute path of the system.
std::string at(const char* path) { return (kOnWindows ? "C:" : "") + std::string(path); }

TEST(UserFolderTest, LiesInTheFolderForTheUsersData) {
  EXPECT_EQ(userFolder({at("/data"), at("/home/me")}), at("/data/tarnwick"));
  EXPECT_EQ(userFolder({at("/data"), ""}), at("/data/tarnwick"));
}

TEST(UserFolderTest, LiesInTheHomeWhereNoSuchFolderIsNamed) {
  EXPECT_EQ(userFolder({"", at("/home/me")}), at("/home/me/.local/share/tarnwick"));
}

TEST(UserFolderTest, ARelativePathCountsAsNone) {
  EXPECT_EQ(userFolder({"data", at("/home/me")}), at("/home/me/.local/share/tarnwick"));
  EXPECT_THAT(userFolder({"data", "me"}), IsEmpty());
}

TEST(UserFolderTest, AUserWithoutAHomeHasNone) { EXPECT_THAT(userFolder({}), IsEmpty()); }

class ChooseFolderTest : public ::testing::Test {
 protected:
  std::string choose() const { return chooseFolder(executable, user); }

  UserEnvironment user{at("/data"), at("/home/me")};
  ExecutableFolder executable{
      .path = at("/opt/tarnwick"), .isShared = false, .isWritable = true, .hasOwnDatabase = true};
};

TEST_F(ChooseFolderTest, AFolderThatCanBeWrittenIsTheProgramsOwn) { EXPECT_EQ(choose(), at("/opt/tarnwick")); }

TEST_F(ChooseFolderTest, AMissingDatabaseDoesNotMakeItAnothersFolder) {
  executable.hasOwnDatabase = false;
  EXPECT_EQ(choose(), at("/opt/tarnwick"));
}

TEST_F(ChooseFolderTest, AFolderThatCannotBeWrittenLeadsToTheUsersOwn) {
  executable.isWritable = false;
  executable.hasOwnDatabase = false;
  EXPECT_EQ(choose(), at("/data/tarnwick"));
}

TEST_F(ChooseFolderTest, AListThatTheUserCanReadIsNotReplacedByAnEmptyOne) {
  executable.isWritable = false;
  EXPECT_EQ(choose(), at("/opt/tarnwick"));
}

TEST_F(ChooseFolderTest, ASharedInstallationHoldsNobodysListEvenForWhoCouldWriteIt) {
  executable.isShared = true;
  EXPECT_EQ(choose(), at("/data/tarnwick"));
}

TEST_F(ChooseFolderTest, WithoutAnyPlaceForTheUserTheExecutablesFolderIsLeft) {
  executable.isShared = true;
  user = {};
  EXPECT_EQ(choose(), at("/opt/tarnwick"));
}

void put(const fs::path& file, const std::string& contents) {
  fs::create_directories(file.parent_path());
  std::ofstream(file, std::ios::binary | std::ios::trunc) << contents;
}

std::string get(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

/// A value of the environment, put back at the end.
class EnvironmentValue {
 public:
  EnvironmentValue(const char* name, const std::string& value) : name_(name), old_(qgetenv(name)) {
    qputenv(name, QByteArray::fromStdString(value));
  }
  ~EnvironmentValue() {
    if (old_.isNull()) {
      qunsetenv(name_);
    } else {
      qputenv(name_, old_);
    }
  }
  EnvironmentValue(const EnvironmentValue&) = delete;
  EnvironmentValue& operator=(const EnvironmentValue&) = delete;

 private:
  const char* name_;
  QByteArray old_;
};

/// An installation that is shared by all users, and a user who has not started the program yet.
class SharedInstallationTest : public ::testing::Test {
 protected:
  SharedInstallationTest() {
    put(installation + kSharedMark, "shared");
    put(installation + "/fresh/tarnwick.mdb", "a fresh database");
    put(installation + "/fresh/email.txt", "a fresh template");
    put(installation + "/fresh/recovered.txt", "a fresh template of recovery");
    put(installation + "/help.html", "help");
    put(installation + "/help/index.html", "the guide");
    put(installation + "/help/images/main-window.png", "a picture of the guide");
    put(installation + "/images/start.bmp", "picture");
    put(installation + "/reports/green.jpg", "green");
    put(installation + "/tarnwick", "the program");
  }
  ~SharedInstallationTest() override { fs::remove_all(work); }

  static fs::path makeWork() {
    const fs::path folder = fs::temp_directory_path() / ("tarnwick-folder-" + std::to_string(std::random_device()()));
    fs::create_directory(folder);
    return folder;
  }
  std::string start() { return programFolderFor(installation); }
  std::set<std::string> namesIn(const fs::path& folder) const {
    std::set<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
      if (!entry.is_directory()) {
        names.insert(entry.path().lexically_relative(folder).generic_string());
      }
    }
    return names;
  }

  const fs::path work = makeWork();
  const std::string installation = (work / "usr").generic_string();
  const fs::path user = work / "home" / "data" / "tarnwick";
  const EnvironmentValue dataHome{"XDG_DATA_HOME", user.parent_path().generic_string()};
};

TEST_F(SharedInstallationTest, TheFirstStartLaysTheUsersFolder) {
  EXPECT_EQ(start(), user.generic_string());
  EXPECT_THAT(namesIn(user), UnorderedElementsAre("tarnwick.mdb", "email.txt", "recovered.txt", "reports/green.jpg"));
  EXPECT_EQ(get(user / "tarnwick.mdb"), "a fresh database");
  EXPECT_EQ(get(user / "email.txt"), "a fresh template");
  EXPECT_EQ(std::distance(fs::directory_iterator(user.parent_path()), {}), 1) << "something was left beside it";
}

TEST_F(SharedInstallationTest, AnInstallationWithoutTheTemplateOfRecoveryIsWhole) {
  fs::remove(fs::path(installation) / "fresh/recovered.txt");
  EXPECT_EQ(start(), user.generic_string());
  EXPECT_THAT(namesIn(user), UnorderedElementsAre("tarnwick.mdb", "email.txt", "reports/green.jpg"));
}

TEST_F(SharedInstallationTest, FolderAndFilesAreReadableByTheirOwnerOnly) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder, and the user's own is private.");
  start();
  EXPECT_EQ(fs::status(user).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(user.parent_path()).permissions(), fs::perms::owner_all);
  EXPECT_EQ(fs::status(user / "tarnwick.mdb").permissions(), kOwnerFile);
  EXPECT_EQ(fs::status(user / "email.txt").permissions(), kOwnerFile);
}

TEST_F(SharedInstallationTest, ALaterStartLeavesWhatIsTheUsersAlone) {
  start();
  put(user / "tarnwick.mdb", "my sites");
  put(user / "email.txt", "my text");
  put(user / "reports" / "report.html", "my report");
  EXPECT_EQ(start(), user.generic_string());
  EXPECT_EQ(get(user / "tarnwick.mdb"), "my sites");
  EXPECT_EQ(get(user / "email.txt"), "my text");
  EXPECT_EQ(get(user / "reports" / "report.html"), "my report");
}

TEST_F(SharedInstallationTest, AnUpgradeBringsTheBarsOfTheReportUpToDate) {
  start();
  put(installation + "/reports/green.jpg", "another green");
  put(installation + "/fresh/tarnwick.mdb", "a newer fresh database");
  start();
  EXPECT_EQ(get(user / "reports" / "green.jpg"), "another green");
  EXPECT_EQ(get(user / "tarnwick.mdb"), "a fresh database");
}

TEST_F(SharedInstallationTest, ADatabaseThatIsLostLaterIsNotMadeAgain) {
  start();
  fs::remove(user / "tarnwick.mdb");
  EXPECT_EQ(start(), user.generic_string());
  EXPECT_FALSE(fs::exists(user / "tarnwick.mdb"));
}

TEST_F(SharedInstallationTest, AFolderThatIsThereAlreadyGetsNoDatabase) {
  fs::create_directories(user);
  start();
  EXPECT_FALSE(fs::exists(user / "tarnwick.mdb"));
}

TEST_F(SharedInstallationTest, ALinkThatLeadsNowhereIsNotWrittenThrough) {
  SKIP_ON_WINDOWS("There a link needs rights that a tester seldom has.");
  fs::create_directories(user.parent_path());
  fs::create_directory_symlink(work / "unplugged", user);
  start();
  EXPECT_FALSE(fs::exists(work / "unplugged"));
}

TEST_F(SharedInstallationTest, AnInstallationThatIsNotWholeIsNamedAndLeavesNothing) {
  fs::remove(installation + "/fresh/tarnwick.mdb");
  try {
    start();
    FAIL() << "a folder was laid from an installation without a database";
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr("fresh/tarnwick.mdb"));
    EXPECT_THAT(error.what(), HasSubstr("install it again"));
  }
  EXPECT_TRUE(fs::is_empty(user.parent_path()));
}

TEST_F(SharedInstallationTest, AHomeThatCannotHoldTheFolderIsAnErrorThatNamesIt) {
  put(work / "home", "a file");
  try {
    start();
    FAIL() << "a folder was laid inside of a file";
  } catch (const FileError& error) {
    EXPECT_THAT(error.what(), HasSubstr((work / "home").generic_string()));
  }
}

TEST_F(SharedInstallationTest, TheInstallationIsOnlyRead) {
  const auto before = namesIn(installation);
  start();
  start();
  EXPECT_EQ(namesIn(installation), before);
}

TEST_F(SharedInstallationTest, AFolderOfSomebodyElseLeadsToTheUsersOwn) {
  fs::remove(installation + kSharedMark);
  fs::permissions(installation, fs::perms::owner_read | fs::perms::owner_exec);
  if (lookAt(installation).isWritable) {
    GTEST_SKIP() << "the system's administrator can write everywhere";
  }
  EXPECT_EQ(start(), user.generic_string());
  EXPECT_EQ(get(user / "tarnwick.mdb"), "a fresh database");
  fs::permissions(installation, fs::perms::owner_all);
}

/// A folder that one user has unpacked, which brings no list of its own.
class UnpackedFolderTest : public SharedInstallationTest {
 protected:
  UnpackedFolderTest() { fs::remove(installation + kSharedMark); }

  std::string database() const { return get(fs::path(installation) / "tarnwick.mdb"); }
  bool hasDatabase() const { return fs::exists(installation + "/tarnwick.mdb"); }
  fs::path own(const char* name) const { return fs::path(installation) / name; }
};

TEST_F(UnpackedFolderTest, TheFirstStartLaysListAndTemplate) {
  auto expected = namesIn(installation);
  expected.insert({"tarnwick.mdb", "email.txt", "recovered.txt", "laid-once.txt"});
  EXPECT_EQ(start(), installation);
  EXPECT_EQ(namesIn(installation), expected);
  EXPECT_EQ(database(), "a fresh database");
  EXPECT_EQ(get(own("email.txt")), "a fresh template");
  EXPECT_FALSE(fs::exists(user.parent_path())) << "a folder was made for a program that has its own";
}

TEST_F(UnpackedFolderTest, TheListIsItsOwnersAlone) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder, and the user's own is private.");
  start();
  EXPECT_EQ(fs::status(own("tarnwick.mdb")).permissions(), kOwnerFile);
}

TEST_F(UnpackedFolderTest, LaterStartsAndNewerFreshFilesLeaveWhatIsThere) {
  start();
  put(own("tarnwick.mdb"), "my sites");
  put(own("email.txt"), "my text");
  put(own("fresh/tarnwick.mdb"), "a newer fresh database");
  start();
  EXPECT_EQ(database(), "my sites");
  EXPECT_EQ(get(own("email.txt")), "my text");
}

TEST_F(UnpackedFolderTest, AListThatIsLostLaterIsNotMadeAgain) {
  start();
  fs::remove(own("tarnwick.mdb"));
  fs::remove(own("email.txt"));
  EXPECT_EQ(start(), installation);
  EXPECT_FALSE(hasDatabase());
  EXPECT_FALSE(fs::exists(own("email.txt")));
}

TEST_F(UnpackedFolderTest, AListFromBeforeThereWasAMarkCounts) {
  put(own("tarnwick.mdb"), "a list of an older program");
  put(own("email.txt"), "my text");
  start();
  EXPECT_EQ(database(), "a list of an older program");
  EXPECT_EQ(get(own("email.txt")), "my text");
  fs::remove(own("tarnwick.mdb"));
  start();
  EXPECT_FALSE(hasDatabase()) << "an empty list came into the place of an older program's";
}

TEST_F(UnpackedFolderTest, EveryTraceOfAListThatIsGoneKeepsAFreshOneAway) {
  for (const char* const trace :
       {"tarnwick.mdb-wal", "tarnwick.mdb-shm", "tarnwick.mdb-journal", "tarnwick.mdb-wal.old", "backup.mdb",
        "temp.mdb", "tarnwick.lock", "email.txt", "reports/report.html", "replaced-2026-11-21-063912.mdb"}) {
    put(own(trace), "left");
    start();
    EXPECT_FALSE(hasDatabase()) << "beside " << trace;
    fs::remove(own(trace));
  }
  start();
  EXPECT_TRUE(hasDatabase());
}

TEST_F(UnpackedFolderTest, AStartThatWasKilledBeforeTheTemplateIsTakenUp) {
  put(own("tarnwick.mdb"), "a fresh database");
  start();
  EXPECT_EQ(get(own("email.txt")), "a fresh template");
  EXPECT_TRUE(fs::exists(installation + kLaidMark));
}

TEST_F(UnpackedFolderTest, ALinkThatLeadsNowhereIsAListThatIsMissing) {
  SKIP_ON_WINDOWS("There a link needs rights that a tester seldom has.");
  fs::create_symlink(work / "unplugged" / "tarnwick.mdb", own("tarnwick.mdb"));
  start();
  EXPECT_FALSE(fs::exists(work / "unplugged"));
  EXPECT_TRUE(fs::is_symlink(own("tarnwick.mdb")));
}

TEST_F(UnpackedFolderTest, WithoutFreshFilesNothingIsCreated) {
  fs::remove_all(own("fresh"));
  const auto before = namesIn(installation);
  EXPECT_EQ(start(), installation);
  EXPECT_EQ(namesIn(installation), before);
}

TEST_F(UnpackedFolderTest, AFolderThatIsNamedIsLaidOnceAndWithItsBars) {
  const fs::path named = work / "srv" / "watch";
  EXPECT_EQ(layOnce(installation, named.generic_string()), Laid::now);
  EXPECT_THAT(namesIn(named),
              UnorderedElementsAre("tarnwick.mdb", "email.txt", "recovered.txt", "laid-once.txt", "reports/green.jpg"));
  EXPECT_EQ(layOnce(installation, named.generic_string()), Laid::before);
  fs::remove(named / "tarnwick.mdb");
  EXPECT_EQ(layOnce(installation, named.generic_string()), Laid::lost);
  EXPECT_FALSE(fs::exists(named / "tarnwick.mdb"));
}

}  // namespace
}  // namespace tarnwick::testing
