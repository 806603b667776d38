// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <string>

#include "platform/local_files.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

TEST(FileRights, OthersNeverWriteAFileThatIsMadeHere) {
  const ProgramFolder folder;
  const mode_t before = umask(0);
  for (const FileRest rest : {FileRest::removed, FileRest::kept}) {
    const std::string name = folder.file(rest == FileRest::removed ? "written" : "updated");
    LocalFiles().overwrite(name, rest, [](const ByteSink&) {});
    EXPECT_EQ(static_cast<int>(std::filesystem::status(name).permissions()), 0644);
  }
  umask(before);
}

TEST(FileRights, ACopyBelongsToWhomTheModelBelongs) {
  if (::geteuid() != 0) {
    GTEST_SKIP() << "Only root may give files away.";
  }
  constexpr uid_t kOwner = 65534;
  constexpr gid_t kGroup = 60;
  const ProgramFolder folder;
  ASSERT_EQ(::chown(folder.databasePath().c_str(), kOwner, kGroup), 0);
  ASSERT_EQ(::chmod(folder.databasePath().c_str(), 0640), 0);
  LocalFiles().copy(folder.databasePath(), folder.file("copy"));
  struct stat made {};
  ASSERT_EQ(::stat(folder.file("copy").c_str(), &made), 0);
  EXPECT_EQ(made.st_uid, kOwner);
  EXPECT_EQ(made.st_gid, kGroup);
  EXPECT_EQ(made.st_mode & 0777U, 0640U);
}

}  // namespace
}  // namespace tarnwick::testing
