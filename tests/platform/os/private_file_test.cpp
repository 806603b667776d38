#include "platform/private_file.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "base/errors.h"
#include "support/files_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

class PrivateFile : public FilesFixture {
 protected:
  /// Takes every name that a list's unfinished copy could have.
  void takeAllNames() const {
    make("list.csv.new", "the user's");
    for (int number = 2; number <= 100; ++number) {
      make("list.csv.new" + std::to_string(number), "left over");
    }
  }
  void age(const std::string& name) const {
    fs::last_write_time(at(name), fs::file_time_type::clock::now() - std::chrono::hours(25));
  }
  void writeList() const {
    writePrivateFile(at("list.csv"), [](const ByteSink& sink) { sink("complete"); });
  }
};

TEST_F(PrivateFile, TakesTheNameOfAnOldUnfinishedFileWhenAllAreTaken) {
  takeAllNames();
  age("list.csv.new");
  age("list.csv.new7");
  writeList();
  EXPECT_EQ(read("list.csv"), "complete");
  EXPECT_FALSE(fs::exists(at("list.csv.new7")));
  EXPECT_EQ(read("list.csv.new"), "the user's");
  EXPECT_EQ(read("list.csv.new8"), "left over");
}

TEST_F(PrivateFile, LetsFilesAloneThatMayBeInTheMaking) {
  takeAllNames();
  EXPECT_THROW(writeList(), FileError);
  EXPECT_EQ(read("list.csv.new100"), "left over");
  EXPECT_FALSE(fs::exists(at("list.csv")));
}

TEST_F(PrivateFile, LetsOldFilesAloneWhileThereAreOtherNames) {
  make("list.csv.new", "the user's");
  make("list.csv.new2", "the user's");
  age("list.csv.new");
  age("list.csv.new2");
  writeList();
  EXPECT_EQ(read("list.csv"), "complete");
  EXPECT_EQ(read("list.csv.new2"), "the user's");
}

TEST_F(PrivateFile, NewFileLikeAnotherHasItsRightsFromTheStartAndNoOther) {
  SKIP_ON_WINDOWS("There a file takes its rights from its folder.");
  const fs::perms shared = fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read;
  make("like", "");
  fs::permissions(at("like"), shared);
  EXPECT_TRUE(openNewFileLike(at("a"), at("like")));
  EXPECT_EQ(fs::status(at("a")).permissions(), shared);
  EXPECT_FALSE(openNewFileLike(at("a"), at("like")));
  fs::create_symlink(at("nowhere"), at("link"));
  EXPECT_FALSE(openNewFileLike(at("link"), at("like")));
  EXPECT_FALSE(fs::exists(at("nowhere")));
  EXPECT_THROW(openNewFileLike(at("b"), at("none")), FileError);
  EXPECT_FALSE(fs::exists(at("b")));
}

}  // namespace
}  // namespace tarnwick::testing
