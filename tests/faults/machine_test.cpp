// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "faults/faults_fixture.h"
#include "program/m.h"
#include "support/resource_limit_posix.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;
using std::chrono::seconds;
using ::testing::HasSubstr;

// That the system sends no deadly signal when a file may not grow is the program's work.
TEST(RealFaults, FilesThatMayNotGrowAreToldOnceAndTheRunGoesOn) {
  const UsedFolder used;
  std::unique_ptr<ResourceLimit> limit;
  expectThatARunOutlives(
      used, [&](RunningProgram&) { limit = std::make_unique<ResourceLimit>(RLIMIT_FSIZE, 20000); }, 5,
      [&](RunningProgram& running) {
        limit.reset();
        EXPECT_EQ(running.boxes(), 1u);
        EXPECT_THAT(running.boxTexts(), HasSubstr("The disk is full"));
      });
}

TEST(RealFaults, ALackOfFileHandlesIsToldOnceAndNoSiteIsTakenForDown) {
#if defined(__SANITIZE_ADDRESS__)
  GTEST_SKIP() << "The sanitizer needs a file handle to look at an object.";
#endif
  const UsedFolder used;
  std::unique_ptr<ResourceLimit> limit;
  expectThatARunOutlives(
      used,
      [&](RunningProgram& running) {
        running.program.data().getControl("timeout");  // with the files of the database open
        constexpr rlim_t kLockOfTheRun = 1;
        limit = std::make_unique<ResourceLimit>(RLIMIT_NOFILE, filesOpen() + kLockOfTheRun);
      },
      5,
      [&](RunningProgram& running) {
        limit.reset();
        EXPECT_EQ(running.boxes(), 1u);
        EXPECT_THAT(running.boxTexts(), HasSubstr("no more file handles"));
      });
}

/// A small disk of its own, on which the temporary folders of the tests lie meanwhile.
class SmallDisk {
 public:
  enum class Kind { memory, smallBlocks };

  explicit SmallDisk(Kind kind = Kind::memory) {
    std::string path = (fs::temp_directory_path() / "tarnwick-small-disk-XXXXXX").string();
    if (mkdtemp(path.data()) == nullptr) {
      return;
    }
    path_ = path;
    mounted_ = kind == Kind::memory ? mount("tmpfs", path.c_str(), "tmpfs", 0, "size=2m") == 0 : mountSmallBlocks();
    if (mounted_) {
      const char* const folder = std::getenv("TMPDIR");
      before_ = folder == nullptr ? std::nullopt : std::optional<std::string>(folder);
      setenv("TMPDIR", path.c_str(), 1);
    }
  }
  ~SmallDisk() {
    if (mounted_) {
      before_ ? setenv("TMPDIR", before_->c_str(), 1) : unsetenv("TMPDIR");
      umount2(path_.c_str(), MNT_DETACH);
    }
    std::error_code ignored;
    fs::remove(path_, ignored);
    fs::remove(image(), ignored);
  }
  SmallDisk(const SmallDisk&) = delete;
  SmallDisk& operator=(const SmallDisk&) = delete;

  bool mounted() const { return mounted_; }
  void fillUp() const {
    std::ofstream ballast(path_ + "/ballast", std::ios::binary);
    while (ballast.put('x')) {
    }
  }
  void makeRoom() const { fs::remove(path_ + "/ballast"); }

 private:
  std::string image() const { return path_ + ".image"; }
  bool mountSmallBlocks() const {
    std::ofstream(image()).close();
    fs::resize_file(image(), 8 << 20);
    const std::string made = "mkfs.ext4 -q -F -m 0 -b 1024 " + image() + " 2>/dev/null";
    const std::string mounted = "mount -o loop " + image() + " " + path_ + " 2>/dev/null";
    return geteuid() == 0 && std::system((made + " && " + mounted).c_str()) == 0;
  }

  std::string path_;
  bool mounted_ = false;
  std::optional<std::string> before_;
};

TEST(RealFaults, AFullDiskIsToldOnceAndTheRunGoesOn) {
  const SmallDisk disk;
  if (!disk.mounted()) {
    GTEST_SKIP() << "only a user who may mount a file system can have a small disk";
  }
  const UsedFolder used;
  expectThatARunOutlives(
      used,
      [&](RunningProgram& running) {
        // The right to run is taken before the disk is full, so that it is the results which find no room.
        running.program.startRun();
        used.folder.execute(
            "delete from log where dateStamp >= '2024-05-17';"
            "update sites set lastChecked = '2024-05-17 11:00:00', status = 1, success = 7, failure = 0");
        disk.fillUp();
      },
      5,
      [&](RunningProgram& running) {
        disk.makeRoom();
        EXPECT_EQ(running.boxes(), 1u);
        EXPECT_THAT(running.boxTexts(), HasSubstr("The disk is full"));
      });
}

// Opening the list takes room, too: for the memory that those who have it open share through a file.
TEST(RealFaults, ADiskWithoutAByteLeftKeepsNoAlertBack) {
  const SmallDisk disk;
  if (!disk.mounted()) {
    GTEST_SKIP() << "only a user who may mount a file system can have a small disk";
  }
  const UsedFolder used;
  disk.fillUp();
  {
    RunningProgram running(used);
    running.program.startRun();
    EXPECT_TRUE(running.program.run().running());
    EXPECT_FALSE(running.machine.sound.played.empty());
    EXPECT_EQ(running.boxes(), 1u) << running.boxTexts();
    EXPECT_THAT(running.boxTexts(), HasSubstr("The disk is full"));
    disk.makeRoom();
    running.letPass(seconds(30));
    EXPECT_EQ(used.recorded(4, false), 1) << running.boxTexts();
  }
  EXPECT_EQ(used.integrity(), "ok");
}

TEST(RealFaults, ADiskWithoutAByteLeftCanBeFreed) {
  const SmallDisk disk;
  if (!disk.mounted()) {
    GTEST_SKIP() << "only a user who may mount a file system can have a small disk";
  }
  const UsedFolder used;
  used.folder.execute("update sites set content_compare = hex(zeroblob(150000)) where idSite = 2");
  TestServices machine;
  m(used.folder.path(), machine.services());  // which finds little room
  const int before = used.number("pragma page_count");
  disk.fillUp();
  {
    m data(used.folder.path(), machine.services());
    data.deleteSite(2);
    data.clearLog();
  }
  EXPECT_EQ(used.text("select count(*) from log"), "0");
  EXPECT_EQ(used.text("select group_concat(idSite) from sites"), "1,3,4");
  EXPECT_LT(used.number("pragma page_count"), before / 4) << "the room is given back";
  EXPECT_EQ(used.integrity(), "ok");
  const std::string reserve = used.folder.databasePath() + "-reserve";
  EXPECT_TRUE(fs::exists(reserve)) << "for the next time";
}

TEST(RealFaults, ADiskThatWasFullBeforeIsFreedByWhatACompactionHasLeft) {
  const SmallDisk disk;
  if (!disk.mounted()) {
    GTEST_SKIP() << "only a user who may mount a file system can have a small disk";
  }
  const UsedFolder used;
  TestServices machine;
  EXPECT_TRUE(m(used.folder.path(), machine.services()).compact());
  fs::remove(used.folder.databasePath() + "-reserve");
  disk.fillUp();
  m(used.folder.path(), machine.services()).clearLog();
  EXPECT_EQ(used.text("select count(*) from log"), "0");
  EXPECT_FALSE(fs::exists(used.folder.file("temp.mdb")));
  EXPECT_EQ(used.integrity(), "ok");
}

// Of the file that shares memory between programs only what is used gets its blocks, where these are small.
TEST(RealFaults, ADiskOfSmallBlocksThatIsFullEndsNoProgram) {
  const SmallDisk disk(SmallDisk::Kind::smallBlocks);
  if (!disk.mounted()) {
    GTEST_SKIP() << "only a user who may mount a file system can have a small disk";
  }
  const UsedFolder used;
  {
    RunningProgram running(used);
    disk.fillUp();
    running.program.startRun();
    EXPECT_FALSE(running.machine.sound.played.empty());
  }
  {
    RunningProgram running(used);
    running.program.startRun();
    EXPECT_FALSE(running.machine.sound.played.empty());
    running.program.stopRun();
    running.program.data().clearLog();
  }
  EXPECT_EQ(used.text("select count(*) from log"), "0");
  EXPECT_EQ(used.integrity(), "ok");
}

/// Gives up the rights of the superuser, whom no file mode stops.
class WithoutSuperuser {
 public:
  WithoutSuperuser() : was_(geteuid()) { given_ = was_ != 0 || seteuid(kNobody) == 0; }
  ~WithoutSuperuser() { given_ = seteuid(was_) == 0; }
  WithoutSuperuser(const WithoutSuperuser&) = delete;
  WithoutSuperuser& operator=(const WithoutSuperuser&) = delete;
  bool given() const { return given_; }

 private:
  static constexpr uid_t kNobody = 65534;
  uid_t was_;
  bool given_ = true;
};

class ReadOnly : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!user.given()) {
      GTEST_SKIP() << "the superuser's rights cannot be given up here, and no file mode stops him";
    }
    used = std::make_unique<UsedFolder>();
  }
  void allow(const std::string& path, bool writing) const {
    fs::permissions(path, fs::perms::owner_write, writing ? fs::perm_options::add : fs::perm_options::remove);
  }

  WithoutSuperuser user;
  std::unique_ptr<UsedFolder> used;
};

TEST_F(ReadOnly, AFileIsToldOnceAndTheRunGoesOnWhenItMayBeChanged) {
  allow(used->folder.databasePath(), false);
  expectThatARunOutlives(
      *used, [](RunningProgram&) {}, 5,
      [&](RunningProgram& running) {
        allow(used->folder.databasePath(), true);
        EXPECT_EQ(running.boxes(), 1u);
        EXPECT_THAT(running.boxTexts(), HasSubstr("read-only"));
      });
}

TEST_F(ReadOnly, AFolderIsToldByTheStartAndNoSiteIsFetched) {
  allow(used->folder.path(), false);
  {
    RunningProgram running(*used);
    EXPECT_FALSE(running.program.startRun());
    EXPECT_EQ(running.boxes(), 1u) << running.boxTexts();
    EXPECT_THAT(running.boxTexts(), HasSubstr(used->folder.path()));
    running.letPass(seconds(5));
    EXPECT_EQ(running.boxes(), 1u) << running.boxTexts();
    EXPECT_TRUE(used->server.requests().empty());
    allow(used->folder.path(), true);
    EXPECT_TRUE(running.program.startRun()) << running.boxTexts();
    used->expectAllRecordedOnce(running.boxTexts());
  }
  EXPECT_EQ(used->integrity(), "ok");
}

}  // namespace
}  // namespace tarnwick::testing
