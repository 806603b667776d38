// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "uu_fixture.h"

namespace tarnwick::testing {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

class UuJoinTest : public UuTest {
 protected:
  /// Encodes the bytes as the file `name` in parts, and returns the parts' paths in their order.
  std::vector<std::string> partsOf(const std::string& name, const std::string& bytes, std::int64_t most) {
    const std::string file = make(name, bytes);
    EXPECT_TRUE(code.UUEncodeFiles(file, folder(), most));
    std::filesystem::remove(file);
    std::vector<std::string> parts;
    for (const std::string& part : names()) {
      parts.push_back(path(part));
    }
    return parts;
  }

  /// The text of the one box that says what is missing.
  std::string missingOf(const std::vector<std::string>& parts) {
    prompts.clear();
    EXPECT_FALSE(code.UUDecodeFiles(parts, path("out")));
    EXPECT_FALSE(exists("out"));
    if (prompts.shown().size() != 1) {
      ADD_FAILURE() << prompts.shown().size() << " boxes";
      return {};
    }
    EXPECT_EQ(prompts.shown()[0].title, "Part is missing...");
    EXPECT_EQ(prompts.shown()[0].icon, PromptIcon::exclamation);
    return prompts.shown()[0].text;
  }

  std::string faultOf(const std::vector<std::string>& parts) {
    const std::vector<std::string> before = names();
    try {
      code.UUDecodeFiles(parts, path("out"));
    } catch (const DecodeError& error) {
      EXPECT_EQ(names(), before);
      return error.what();
    }
    ADD_FAILURE() << "joined";
    return {};
  }

  std::string complete(const std::string& name, const std::string& header, const std::string& line) {
    return make(name, "begin 644 " + header + "\n" + line + "\n`\nend\n");
  }
};

TEST_F(UuJoinTest, PartsAreJoinedWhateverTheirOrder) {
  const std::string bytes = randomBytes(1000, 1);
  std::vector<std::string> parts = partsOf("photo.jpg", bytes, 100);
  ASSERT_EQ(parts.size(), 12U);
  std::mt19937 random(1);
  for (int turn = 0; turn < 5; ++turn) {
    std::shuffle(parts.begin(), parts.end(), random);
    ASSERT_TRUE(code.UUDecodeFiles(parts, path("out")));
    EXPECT_TRUE(read("out") == padded(bytes));
    std::filesystem::remove(path("out"));
  }
}

TEST_F(UuJoinTest, ANameThatEndsWithDigitsDoesNotConfuseTheNumbers) {
  const std::string bytes = randomBytes(1000, 2);
  for (const std::string name : {"report2024.txt", "x1", "12345678.bin", "1", "abcde12345.zip", "A 0.b.c"}) {
    for (const std::int64_t most : {500, 91, 45}) {
      const std::vector<std::string> parts = partsOf(name, bytes, most);
      ASSERT_TRUE(code.UUDecodeFiles(parts, path("out"))) << name;
      EXPECT_TRUE(read("out") == padded(bytes)) << name;
      std::filesystem::remove(path("out"));
      for (const std::string& part : parts) {
        std::filesystem::remove(part);
      }
    }
  }
}

TEST_F(UuJoinTest, AnUndividedFileIsAWhole) {
  const std::string bytes = randomBytes(100, 3);
  for (const std::string name : {"whole.bin", "whole7.bin"}) {
    const std::vector<std::string> parts = partsOf(name, bytes, 0);
    ASSERT_TRUE(code.UUDecodeFiles(parts, path("out")));
    EXPECT_TRUE(read("out") == padded(bytes));
    std::filesystem::remove(path("out"));
    std::filesystem::remove(parts.front());
  }
}

TEST_F(UuJoinTest, TheMissingPartIsNamed) {
  const std::vector<std::string> parts = partsOf("a.bin", randomBytes(200, 4), 50);
  ASSERT_EQ(parts.size(), 5U);
  EXPECT_EQ(missingOf({parts[0], parts[1], parts[3], parts[4]}), "Part 3 is missing!");
  EXPECT_EQ(missingOf({parts[4], parts[2]}), "Parts 1 to 2, 4 are missing!");
  EXPECT_EQ(missingOf({parts[1]}), "Part 1 is missing!");
  EXPECT_EQ(missingOf({}), "Part 1 is missing!");
}

TEST_F(UuJoinTest, TheNumberOfDigitsTellsThatLaterPartsAreMissing) {
  const std::vector<std::string> parts = partsOf("a.bin", randomBytes(500, 5), 45);
  ASSERT_EQ(parts.size(), 12U);
  EXPECT_EQ(missingOf({parts.begin(), parts.begin() + 9}), "Part 10 is missing!");
  EXPECT_EQ(missingOf({parts[10], parts[11]}), "Parts 1 to 10 are missing!");
}

TEST_F(UuJoinTest, AFileThatDoesNotExistIsSaid) {
  EXPECT_FALSE(code.UUDecodeFiles({path("a1.UUE")}, path("out")));
  EXPECT_THAT(prompts.texts(), ElementsAre("Input file " + path("a1.UUE") + " does not exist!"));
}

TEST_F(UuJoinTest, AnOutputThatExistsIsAskedAbout) {
  const std::string part = complete("photo-1.uue", "p", "#0V%T");
  make("out", "old");
  prompts.answerConfirm(false);
  EXPECT_FALSE(code.UUDecodeFiles({part}, path("out")));
  EXPECT_EQ(read("out"), "old");
  prompts.answerConfirm(true);
  EXPECT_TRUE(code.UUDecodeFiles({part}, path("out")));
  EXPECT_EQ(read("out"), "Cat");
}

TEST_F(UuJoinTest, NamesOfOthersAreOrderedByTheirNumbers) {
  std::vector<std::string> parts;
  std::string expected;
  for (int number = 11; number >= 1; --number) {
    parts.push_back(complete("photo-" + std::to_string(number) + ".uue", "p.jpg", number % 2 == 0 ? "#0V%T" : "#1&]G"));
    expected = (number % 2 == 0 ? "Cat" : "Dog") + expected;
  }
  EXPECT_TRUE(code.UUDecodeFiles(parts, path("out")));
  EXPECT_EQ(read("out"), expected);
  parts.erase(parts.begin() + 4);
  std::filesystem::remove(path("out"));
  EXPECT_EQ(missingOf(parts), "Part 7 is missing!");
}

TEST_F(UuJoinTest, ANameInAHeaderThatNoFileCouldHaveDoesNotMatter) {
  for (const std::string& header : {std::string("a\0b", 3), std::string("../../etc/passwd"), std::string("/")}) {
    const std::string one = complete("p-1.uue", header, "#0V%T");
    const std::string two = complete("p-2.uue", header, "#1&]G");
    EXPECT_TRUE(code.UUDecodeFiles({two, one}, path("out")));
    EXPECT_EQ(read("out"), "CatDog");
    std::filesystem::remove(path("out"));
  }
}

TEST_F(UuJoinTest, NamesWithoutNumbersCannotBeOrdered) {
  const std::string one = complete("front.uue", "p", "#0V%T");
  const std::string two = complete("back.uue", "p", "#0V%T");
  EXPECT_THAT(faultOf({one, two}), AllOf(HasSubstr("front.uue"), HasSubstr("no part number")));
  const std::string zero = complete("p-0.uue", "p", "#0V%T");
  EXPECT_THAT(faultOf({zero}), HasSubstr("no part number"));
  const std::string huge = complete("p-99999999999999999999999.uue", "p", "#0V%T");
  EXPECT_THAT(faultOf({huge}), HasSubstr("no part number"));
}

TEST_F(UuJoinTest, PartsOfDifferentFilesAreNotMixed) {
  const std::string one = complete("p-1.uue", "p.jpg", "#0V%T");
  EXPECT_THAT(faultOf({one, complete("p-2.uue", "q.jpg", "#0V%T")}),
              AllOf(HasSubstr("p-2.uue"), HasSubstr("\"q.jpg\""), HasSubstr("\"p.jpg\"")));
  EXPECT_THAT(faultOf({one, complete("x-2.uue", "p.jpg", "#0V%T")}), HasSubstr("x-2.uue"));
}

TEST_F(UuJoinTest, APartIsGivenOnce) {
  std::filesystem::create_directory(path("sub"));
  const std::string one = complete("p-1.uue", "x", "#0V%T");
  const std::string again = complete("sub/p-1.uue", "x", "#0V%T");
  EXPECT_THAT(faultOf({one, again}), HasSubstr("Part 1 is given twice"));
  EXPECT_THAT(faultOf({one, one}), HasSubstr("Part 1 is given twice"));
}

TEST_F(UuJoinTest, APartOfAnEarlierEncodingDoesNotFit) {
  const std::string one = complete("p-1.uue", "p", "&0V%T1&]G");
  const std::string two = complete("p-2.uue", "p", "#0V%T");
  const std::string three = complete("p-3.uue", "p", "#0V%T");
  EXPECT_THAT(faultOf({one, two, three}), AllOf(HasSubstr("p-3.uue"), HasSubstr("sizes differ")));
  EXPECT_THAT(faultOf({two, complete("p-1.uue", "p", "\"0V%T")}), HasSubstr("p-2.uue"));
}

TEST_F(UuJoinTest, ADamagedPartIsNamedWithItsLine) {
  const std::string one = complete("p-1.uue", "p", "#0V%T");
  const std::string two = complete("p-2.uue", "p", "#0V%T\n#0x%T");
  EXPECT_THAT(faultOf({one, two}), HasSubstr("p-2.uue, line 3: "));
  EXPECT_THAT(faultOf({one, make("p-3.uue", "no header")}), HasSubstr("p-3.uue: No line begins with"));
}

}  // namespace
}  // namespace tarnwick::testing
