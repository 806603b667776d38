// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "support/program_folder.h"

namespace tarnwick::testing {

/// Cases that make and read files in a folder of their own.
class FilesFixture : public ::testing::Test {
 protected:
  std::string at(const std::string& name) const { return folder_.file(name); }
  std::string read(const std::string& name) const {
    std::ifstream file(at(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }
  void make(const std::string& name, const std::string& bytes) const {
    std::ofstream(at(name), std::ios::binary) << bytes;
  }

 private:
  ProgramFolder folder_;
};

}  // namespace tarnwick::testing
