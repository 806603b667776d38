// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "uu_fixture.h"
#include "uucode/uu_record.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;

std::string encoded(std::string bytes) {
  std::string lines = "what was here before";
  EXPECT_TRUE(UUCode::EncodeStream(bytes, lines));
  return lines;
}

std::string decoded(const std::string& lines) {
  std::string bytes = "what was here before";
  EXPECT_TRUE(UUCode::DecodeStream(lines, bytes));
  return bytes;
}

/// The message of the error that a damaged text raises; the output must be as it was.
template <typename Decode>
std::string faultOf(Decode decode, const std::string& text) {
  std::string bytes = "kept";
  try {
    decode(text, bytes);
  } catch (const DecodeError& error) {
    EXPECT_EQ(bytes, "kept");
    return error.what();
  }
  ADD_FAILURE() << "decoded: " << text;
  return {};
}

TEST(UuStreams, KnownBytesGiveKnownLines) {
  EXPECT_EQ(encoded("Cat"), "#0V%T\r\n");
  EXPECT_EQ(encoded("hello!"), "&:&5L;&\\A\r\n");
}

TEST(UuStreams, ZeroBitsAreAGraveAccentAndNeverABlank) {
  EXPECT_EQ(encoded(std::string(3, '\0')), "#````\r\n");
  EXPECT_EQ(encoded(std::string(1800, '\0')).find(' '), std::string::npos);
}

TEST(UuStreams, AFullLineBeginsWithM) {
  const std::string lines = encoded(randomBytes(45, 1));
  EXPECT_EQ(lines.size(), 63U);
  EXPECT_EQ(lines.front(), 'M');
}

TEST(UuStreams, AFullBlockIsFortyLinesOfM) {
  const std::string lines = encoded(randomBytes(1800, 2));
  ASSERT_EQ(lines.size(), 40U * 63);
  for (std::size_t line = 0; line < 40; ++line) {
    EXPECT_EQ(lines[line * 63], 'M');
    EXPECT_EQ(lines.substr(line * 63 + 61, 2), "\r\n");
  }
}

TEST(UuStreams, NoBytesGiveNoLine) {
  EXPECT_EQ(encoded(""), "");
  EXPECT_EQ(decoded(""), "");
}

TEST(UuStreams, TinyInputsArePaddedWithTheLetterA) {
  EXPECT_EQ(encoded("x"), encoded("xaa"));
  EXPECT_EQ(encoded("xy"), encoded("xya"));
  EXPECT_EQ(encoded("x").front(), '#');
}

TEST(UuStreams, OtherInputsArePaddedWithTheBytesThreePlacesBefore) {
  EXPECT_EQ(encoded("abcd"), encoded("abcdbc"));
  EXPECT_EQ(encoded("abcde"), encoded("abcdec"));
}

TEST(UuStreams, TheInputGrowsByItsPadBytes) {
  std::string bytes = "abcd";
  std::string lines;
  UUCode::EncodeStream(bytes, lines);
  EXPECT_EQ(bytes, "abcdbc");
}

TEST(UuStreams, PaddingThatFillsTheLineMakesItAFullOne) {
  EXPECT_EQ(encoded(randomBytes(43, 3)).front(), 'M');
  EXPECT_EQ(encoded(randomBytes(44, 4)).size(), 63U);
}

TEST(UuStreams, TheLastLinesLengthCountsThePadBytes) {
  EXPECT_EQ(encoded(randomBytes(46, 5))[63], '#');
  EXPECT_EQ(encoded(randomBytes(46, 5)).size(), 63U + 7);
}

TEST(UuStreams, EverySizeComesBack) {
  for (std::size_t size = 0; size <= 200; ++size) {
    const std::string bytes = randomBytes(size, static_cast<std::uint32_t>(size));
    EXPECT_EQ(decoded(encoded(bytes)), padded(bytes)) << size << " bytes";
  }
}

TEST(UuStreams, ARecordIsWrittenAtItsPlaceAndBothPositionsMoveOn) {
  const std::string in = "..CatDog";
  std::string out(15, '.');
  std::size_t iPos = 2;
  std::size_t oPos = 3;
  ASSERT_TRUE(UUCode::EncodeRec(in, out, iPos, oPos, 6));
  EXPECT_EQ(out, "...0V%T1&]G\r\n..");
  EXPECT_EQ(iPos, 8U);
  EXPECT_EQ(oPos, 13U);
}

TEST(UuStreams, ARecordThatDoesNotFitChangesNothing) {
  const std::string in = "CatD";
  std::string out = "12345";
  std::size_t iPos = 0;
  std::size_t oPos = 0;
  EXPECT_FALSE(UUCode::EncodeRec(in, out, iPos, oPos, 3)) << "no room for the line end";
  out = "123456789012345";
  EXPECT_FALSE(UUCode::EncodeRec(in, out, iPos, oPos, 4)) << "the second group is not complete";
  EXPECT_EQ(out, "123456789012345");
  EXPECT_EQ(iPos + oPos, 0U);
}

TEST(UuStreams, DecodingARecordReversesIt) {
  for (const std::uint8_t size : std::initializer_list<std::uint8_t>{3, 6, 45, 63, 255}) {
    const std::string in = randomBytes(size, size);
    std::string text(uuLength(size) + 2, '.');
    std::size_t iPos = 0;
    std::size_t oPos = 0;
    ASSERT_TRUE(UUCode::EncodeRec(in, text, iPos, oPos, size));
    std::string out(size, '.');
    iPos = 0;
    oPos = 0;
    ASSERT_TRUE(UUCode::DecodeRec(text, out, iPos, oPos, size));
    EXPECT_EQ(out, in);
    EXPECT_EQ(iPos, text.size());
    EXPECT_EQ(oPos, size);
  }
}

TEST(UuStreams, DecodingARecordWritesNoByteMoreThanItsLength) {
  std::string out = "....";
  std::size_t iPos = 1;
  std::size_t oPos = 1;
  ASSERT_TRUE(UUCode::DecodeRec("\"0V%T\nrest", out, iPos, oPos, 2));
  EXPECT_EQ(out, ".Ca.");
  EXPECT_EQ(iPos, 6U);
  EXPECT_EQ(oPos, 3U);
}

TEST(UuStreams, ADamagedRecordChangesNothing) {
  std::string out = "...";
  std::size_t iPos = 0;
  std::size_t oPos = 0;
  EXPECT_FALSE(UUCode::DecodeRec("0Vx%", out, iPos, oPos, 3)) << "a character beyond the grave accent";
  EXPECT_FALSE(UUCode::DecodeRec("0V%T!", out, iPos, oPos, 3)) << "too long";
  EXPECT_FALSE(UUCode::DecodeRec("0V%T", out, iPos, oPos, 4)) << "no room";
  iPos = 5;
  EXPECT_FALSE(UUCode::DecodeRec("0V%T", out, iPos, oPos, 3)) << "beyond the end";
  EXPECT_EQ(out, "...");
}

TEST(UuStreams, EveryCharacterOfTheAlphabetHasItsValue) {
  EXPECT_EQ(uuValue('`'), 0);
  EXPECT_EQ(uuValue(' '), 0);
  for (int value = 1; value < 64; ++value) {
    EXPECT_EQ(uuValue(static_cast<char>(value + 32)), value);
    EXPECT_EQ(uuCharacter(static_cast<std::size_t>(value)), static_cast<char>(value + 32));
  }
  for (const char foreign : {'\0', '\t', '\x1F', 'a', 'z', '\x7F', '\x80', '\xFF'}) {
    EXPECT_EQ(uuValue(foreign), -1);
  }
}

TEST(UuStreams, ADamagedLineIsNamedByItsNumber) {
  const std::string good = encoded(randomBytes(90, 6));
  std::string bad = good;
  bad[63 + 20] = '\x07';
  EXPECT_THAT(faultOf(UUCode::DecodeStream, bad), HasSubstr("Line 2: In this line, character 21 "));
  bad = good;
  bad[63] = '\x7F';
  EXPECT_THAT(faultOf(UUCode::DecodeStream, bad), HasSubstr("Line 2: The first character is no line length."));
  EXPECT_THAT(faultOf(UUCode::DecodeStream, "#0V%T!\r\n"), HasSubstr("Line 1: The line is too long for its length."));
  EXPECT_THAT(faultOf(UUCode::DecodeStream, "#0V%T\r\n&0`%T\r\n"), HasSubstr("Line 2: The line is too short"));
  EXPECT_THAT(faultOf(UUCode::DecodeStream, "`\r\n#0V%T\r\n"), HasSubstr("Line 2: The \"end\" line was expected"));
}

TEST(UuStreams, Base64OfTheStandardIsDecoded) {
  const std::vector<std::pair<std::string, std::string>> vectors{{"", ""},
                                                                 {"Zg==", "f"},
                                                                 {"Zm8=", "fo"},
                                                                 {"Zm9v", "foo"},
                                                                 {"Zm9vYg==", "foob"},
                                                                 {"Zm9vYmE=", "fooba"},
                                                                 {"Zm9vYmFy", "foobar"},
                                                                 {"+/+/", "\xFB\xFF\xBF"}};
  for (const auto& [text, bytes] : vectors) {
    std::string out;
    EXPECT_TRUE(UUCode::MIMEDecodeStream(text, out));
    EXPECT_EQ(out, bytes);
  }
}

TEST(UuStreams, Base64MayBeBrokenIntoLinesAnywhere) {
  for (const std::string text :
       {"Zm9v\r\nYmFy\r\n", "Zm9v\nYmFy\n", "\r\n Zm\t9vY\r\n\r\nm  Fy", "Z\nm\n9\nv\nY\nm\nF\ny"}) {
    std::string out;
    EXPECT_TRUE(UUCode::MIMEDecodeStream(text, out));
    EXPECT_EQ(out, "foobar");
  }
  std::string out;
  EXPECT_TRUE(UUCode::MIMEDecodeStream("Zg=\r\n=\r\n", out));
  EXPECT_EQ(out, "f");
}

TEST(UuStreams, DamagedBase64IsNamedByItsLine) {
  const auto decode = UUCode::MIMEDecodeStream;
  EXPECT_THAT(faultOf(decode, "Zm9v\r\nYm*y"), HasSubstr("Line 2: A character does not belong to base64"));
  EXPECT_THAT(faultOf(decode, "Zm9v\r\nYm\xFFy"), HasSubstr("Line 2: A character does not belong to base64"));
  EXPECT_THAT(faultOf(decode, "Zm9vY"), HasSubstr("Line 1: The text stops in the middle"));
  EXPECT_THAT(faultOf(decode, "Zm9vYg="), HasSubstr("The text stops in the middle"));
  EXPECT_THAT(faultOf(decode, "Zg==\nZg=="), HasSubstr("Line 2: Something follows the end"));
  EXPECT_THAT(faultOf(decode, "Zg=v"), HasSubstr("The padding is not complete"));
  EXPECT_THAT(faultOf(decode, "===="), HasSubstr("The padding stands at a place"));
  EXPECT_THAT(faultOf(decode, "Z==="), HasSubstr("The padding stands at a place"));
}

TEST(UuStreams, TheNameInAHeaderIsWhatFollowsBegin) {
  std::string name = "as it was";
  EXPECT_TRUE(UUCode::GetHeaderInfoFromStream("begin my file.txt\r\n#0V%T\r\n", name));
  EXPECT_EQ(name, "my file.txt");
  EXPECT_TRUE(UUCode::GetHeaderInfoFromStream("a letter\r\nbegin 644 b.txt\r\n", name));
  EXPECT_EQ(name, "644 b.txt");
  EXPECT_TRUE(UUCode::GetHeaderInfoFromStream("begin \r\n", name));
  EXPECT_EQ(name, "");
}

TEST(UuStreams, ATextWithoutHeaderGivesNoName) {
  for (const std::string text : {"", "begin", "beginning\r\n", "begin no-line-end", "begin line-feed-only\n"}) {
    std::string name = "as it was";
    EXPECT_FALSE(UUCode::GetHeaderInfoFromStream(text, name)) << text;
    EXPECT_EQ(name, "as it was");
  }
}

}  // namespace
}  // namespace tarnwick::testing
