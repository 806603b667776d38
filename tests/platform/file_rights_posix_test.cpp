#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>
#include <string>

#include "platform/file_access.h"
#include "support/program_folder.h"

namespace tarnwick::testing {
namespace {

TEST(FileRights, OthersNeverWriteAFileThatIsMadeHere) {
  const ProgramFolder folder;
  const mode_t before = umask(0);
  for (const FileUse use : {FileUse::write, FileUse::update}) {
    const std::string name = folder.file(use == FileUse::write ? "written" : "updated");
    openFile(name, use);
    EXPECT_EQ(static_cast<int>(std::filesystem::status(name).permissions()), 0644);
  }
  umask(before);
}

}  // namespace
}  // namespace tarnwick::testing
