// SPDX-License-Identifier: MIT
// Proof against encoders and decoders that nobody here wrote: sharutils and coreutils.

#include <gtest/gtest.h>

#include <cstdlib>

#include "uu_fixture.h"

namespace tarnwick::testing {
namespace {

constexpr std::uint32_t kFiles = 300;
constexpr std::size_t kMostBytes = 10000;

/// The sizes around every border first, then any.
std::size_t sizeOf(std::uint32_t file) {
  if (file < 100) {
    return file;
  }
  if (file < 120) {
    return 1790 + file - 100;
  }
  return std::mt19937(file)() % (kMostBytes + 1);
}

class UuToolsTest : public UuTest {
 protected:
  /// Runs a command line of the shell in the test's folder.
  bool run(const std::string& command) const {
    return std::system(("cd '" + folder() + "' && " + command + " 2>>messages").c_str()) == 0;
  }

  bool has(const std::string& tool) const { return run("command -v " + tool + " >/dev/null"); }
};

#define REQUIRE_TOOL(name, package)                                                       \
  if (!has(name)) {                                                                       \
    GTEST_SKIP() << name << " is not installed; it is in the package " << package << "."; \
  }

TEST_F(UuToolsTest, UudecodeReadsWhatWeEncode) {
  REQUIRE_TOOL("uudecode", "sharutils");
  for (std::uint32_t file = 0; file < kFiles; ++file) {
    const std::string bytes = randomBytes(sizeOf(file), file);
    ASSERT_TRUE(code.UUEncodeFile(make("Data.bin", bytes), path("data.uue")));
    // uudecode insists on a permission mode before the name, as POSIX has it, and our header has none.
    std::string text = read("data.uue");
    ASSERT_TRUE(text.starts_with("begin data.bin\r\n"));
    make("data.uue", text.insert(6, "644 "));
    ASSERT_TRUE(run("uudecode -o back data.uue")) << bytes.size() << " bytes: " << read("messages");
    ASSERT_TRUE(read("back") == padded(bytes));
    std::filesystem::remove(path("data.uue"));
  }
}

TEST_F(UuToolsTest, WeReadWhatUuencodeEncodes) {
  REQUIRE_TOOL("uuencode", "sharutils");
  for (std::uint32_t file = 0; file < kFiles; ++file) {
    const std::string bytes = randomBytes(sizeOf(file), file);
    make("data.bin", bytes);
    ASSERT_TRUE(run("uuencode data.bin data.bin >data.uue"));
    ASSERT_TRUE(code.UUDecodeFile(path("data.uue"), path("back")));
    ASSERT_TRUE(read("back") == bytes);
    std::filesystem::remove(path("back"));
  }
}

TEST_F(UuToolsTest, WeReadWhatUuencodeEncodesWithBlanksThatWereStripped) {
  REQUIRE_TOOL("uuencode", "sharutils");
  for (std::uint32_t file = 0; file < kFiles; ++file) {
    std::string bytes = randomBytes(sizeOf(file), file);
    // Many zeros, so that many lines lose something.
    for (std::size_t at = 0; at < bytes.size(); ++at) {
      bytes[at] = at % 64 < 40 ? '\0' : bytes[at];
    }
    make("data.bin", bytes);
    ASSERT_TRUE(run("uuencode data.bin data.bin | sed -e '1!s/`/ /g' -e 's/ *$//' >data.uue"));
    ASSERT_TRUE(code.UUDecodeFile(path("data.uue"), path("back")));
    ASSERT_TRUE(read("back") == bytes);
    std::filesystem::remove(path("back"));
  }
}

TEST_F(UuToolsTest, UudecodeReadsEveryPartAsAFileOfItsOwn) {
  REQUIRE_TOOL("uudecode", "sharutils");
  const std::string bytes = randomBytes(kMostBytes, 1);
  ASSERT_TRUE(code.UUEncodeFiles(make("data.bin", bytes), folder(), 1000));
  std::string joined;
  for (int part = 1; part <= 11; ++part) {
    const std::string name = "data" + std::string(part < 10 ? "0" : "") + std::to_string(part) + ".UUE";
    ASSERT_TRUE(run("sed 's/^begin /begin 644 /' " + name + " | uudecode -o back")) << read("messages");
    joined += read("back");
  }
  EXPECT_TRUE(joined == padded(bytes));
}

TEST_F(UuToolsTest, WeReadWhatBase64Encodes) {
  REQUIRE_TOOL("base64", "coreutils");
  for (std::uint32_t file = 0; file < kFiles; ++file) {
    const std::string bytes = randomBytes(sizeOf(file), file);
    make("data.bin", bytes);
    ASSERT_TRUE(run("base64 -w " + std::to_string(file % 80) + " data.bin >data.txt"));
    std::string back;
    ASSERT_TRUE(UUCode::MIMEDecodeStream(read("data.txt"), back));
    ASSERT_TRUE(back == bytes);
  }
}

}  // namespace
}  // namespace tarnwick::testing
