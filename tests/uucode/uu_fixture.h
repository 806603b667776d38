// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "base/decode_error.h"
#include "base/errors.h"
#include "platform/local_files.h"
#include "support/recording_desktop.h"
#include "uucode/uu_code.h"

namespace tarnwick::testing {

/// Bytes of every value, the same for the same `seed`.
inline std::string randomBytes(std::size_t size, std::uint32_t seed) {
  std::mt19937 random(seed);
  std::string bytes(size, '\0');
  for (char& byte : bytes) {
    byte = static_cast<char>(random() & 0xFF);
  }
  return bytes;
}

/// What the encoding makes of bytes: the last block is padded to a multiple of three, not with zeros. A block knows
/// nothing of the ones before it.
inline std::string padded(std::string bytes) {
  const bool tiny = bytes.size() % 1800 < 3;
  while (bytes.size() % 3 != 0) {
    bytes += tiny ? 'a' : bytes[bytes.size() - 3];
  }
  return bytes;
}

/// A disk that takes only so many bytes.
class FullDisk final : public LocalFiles {
 public:
  explicit FullDisk(std::size_t room) : room_(room) {}

  void write(const std::string& path, const std::string& like, const FileFill& fill) override {
    LocalFiles::write(path, like, [&](const ByteSink& sink) {
      fill([&](std::string_view bytes) {
        if (bytes.size() > room_) {
          throw FileError(path, "No space left on device");
        }
        room_ -= bytes.size();
        sink(bytes);
      });
    });
  }

 private:
  std::size_t room_;
};

/// A disk on which one name can be given to no file.
class TakenName final : public LocalFiles {
 public:
  explicit TakenName(std::string name) : name_(std::move(name)) {}

  void rename(const std::string& from, const std::string& to) override {
    if (to == name_) {
      throw FileError(to, "Operation not permitted");
    }
    LocalFiles::rename(from, to);
  }

 private:
  std::string name_;
};

/// A UUCode that works in a folder of its own, which is removed in the end.
class UuTest : public ::testing::Test {
 protected:
  UuTest()
      : folder_(std::filesystem::temp_directory_path() / ("tarnwick-uu-" + std::to_string(std::random_device{}()))) {
    std::filesystem::create_directory(folder_);
  }
  ~UuTest() override {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }

  std::string folder() const { return textOf(folder_); }
  std::string path(const std::string& name) const { return textOf(folder_ / pathOf(name)); }

  /// Makes the file and returns its path.
  std::string make(const std::string& name, const std::string& bytes) const {
    std::ofstream(pathOf(path(name)), std::ios::binary) << bytes;
    return path(name);
  }
  std::string read(const std::string& name) const {
    std::ifstream file(pathOf(path(name)), std::ios::binary);
    EXPECT_TRUE(file) << name << " is missing";
    return {std::istreambuf_iterator<char>(file), {}};
  }
  bool exists(const std::string& name) const { return std::filesystem::exists(pathOf(path(name))); }
  /// The names of everything in the folder, sorted.
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      all.push_back(textOf(entry.path().filename()));
    }
    std::sort(all.begin(), all.end());
    return all;
  }

  RecordingPrompts prompts;
  LocalFiles files;
  UUCode code{prompts, files};

 private:
  std::filesystem::path folder_;
};

}  // namespace tarnwick::testing
