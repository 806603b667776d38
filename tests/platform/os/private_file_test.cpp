// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include "base/errors.h"
#include "platform/local_files.h"
#include "support/files_fixture.h"
#include "support/system.h"

namespace tarnwick::testing {
namespace {

namespace fs = std::filesystem;

constexpr fs::perms kOwnerOnly = fs::perms::owner_read | fs::perms::owner_write;

class PrivateFile : public FilesFixture {
 protected:
  std::size_t filesInFolder() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(fs::path(at("x")).parent_path()), {}));
  }
  LocalFiles files;
};

TEST_F(PrivateFile, IsItsOwnersAloneFromTheFirstMomentOn) {
  SKIP_ON_WINDOWS("There is no file mode there: the list of who may read the file is another one.");
  make("list.csv", "old");
  fs::permissions(at("list.csv"), fs::perms::all);
  files.writePrivately(at("list.csv"), [&](const ByteSink& sink) {
    sink("new");
    EXPECT_EQ(read("list.csv"), "old");
    for (const auto& entry : fs::directory_iterator(fs::path(at("x")).parent_path())) {
      if (entry.path().extension() == ".tmp") {
        EXPECT_EQ(entry.status().permissions(), kOwnerOnly);
      }
    }
  });
  EXPECT_EQ(read("list.csv"), "new");
  EXPECT_EQ(fs::status(at("list.csv")).permissions(), kOwnerOnly);
}

TEST_F(PrivateFile, ThatCannotBeCompletedLeavesWhatStoodThereAndNothingElse) {
  make("list.csv", "old");
  const std::size_t before = filesInFolder();
  EXPECT_THROW(files.writePrivately(at("list.csv"),
                                    [](const ByteSink& sink) {
                                      sink("half");
                                      throw std::runtime_error("the source ended");
                                    }),
               std::runtime_error);
  EXPECT_EQ(read("list.csv"), "old");
  EXPECT_EQ(filesInFolder(), before);
}

TEST_F(PrivateFile, InAMissingFolderIsAnErrorThatNamesTheFile) {
  try {
    files.writePrivately(at("none/list.csv"), [](const ByteSink&) {});
    FAIL() << "No error was raised.";
  } catch (const FileError& error) {
    EXPECT_EQ(error.path(), at("none/list.csv"));
  }
}

}  // namespace
}  // namespace tarnwick::testing
