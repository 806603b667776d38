#include "platform/sound/wave_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <bit>
#include <limits>

namespace tarnwick {
namespace {

using ::testing::ElementsAre;

std::string bytesOf(std::uint64_t number, std::size_t count) {
  std::string bytes;
  for (std::size_t i = 0; i < count; ++i) {
    bytes += static_cast<char>(number >> (8 * i) & 0xff);
  }
  return bytes;
}

std::string chunk(const std::string& name, const std::string& content) {
  return name + bytesOf(content.size(), 4) + content + (content.size() % 2 == 1 ? std::string(1, '\0') : "");
}

std::string riff(const std::string& chunks) { return "RIFF" + bytesOf(chunks.size() + 4, 4) + "WAVE" + chunks; }

std::string format(int coding, int channels, int rate, int bits) {
  const int frame = channels * bits / 8;
  return bytesOf(static_cast<std::uint64_t>(coding), 2) + bytesOf(static_cast<std::uint64_t>(channels), 2) +
         bytesOf(static_cast<std::uint64_t>(rate), 4) + bytesOf(static_cast<std::uint64_t>(rate * frame), 4) +
         bytesOf(static_cast<std::uint64_t>(frame), 2) + bytesOf(static_cast<std::uint64_t>(bits), 2);
}

std::string wave(int coding, int channels, int bits, const std::string& samples) {
  return riff(chunk("fmt ", format(coding, channels, 8000, bits)) + chunk("data", samples));
}

std::vector<std::int16_t> samplesOf(const std::string& file) {
  const auto sound = readWave(file);
  EXPECT_TRUE(sound);
  return sound ? sound->samples : std::vector<std::int16_t>();
}

TEST(WaveFile, SamplesOf16BitStayAsTheyAre) {
  const auto sound = readWave(
      riff(chunk("fmt ", format(1, 2, 44100, 16)) + chunk("data", std::string("\1\0\xff\xff\0\x80\xff\x7f", 8))));
  ASSERT_TRUE(sound);
  EXPECT_EQ(sound->sampleRate, 44100U);
  EXPECT_EQ(sound->channels, 2);
  EXPECT_THAT(sound->samples, ElementsAre(1, -1, -32768, 32767));
}

TEST(WaveFile, SamplesOfOtherWidthsKeepTheirLoudness) {
  EXPECT_THAT(samplesOf(wave(1, 1, 8, std::string("\x80\0\xff\x40", 4))), ElementsAre(0, -32768, 32512, -16384));
  EXPECT_THAT(samplesOf(wave(1, 1, 24, std::string("\xaa\1\0\xaa\0\x80\xff\xff\x7f", 9))),
              ElementsAre(1, -32768, 32767));
  EXPECT_THAT(samplesOf(wave(1, 1, 32, std::string("\xaa\xaa\1\0\0\0\0\x80", 8))), ElementsAre(1, -32768));
}

TEST(WaveFile, FloatingPointSamplesAreScaledAndCut) {
  std::string singles;
  for (const float value : {0.0F, 0.5F, -1.0F, 1.0F, 7.0F, -7.0F, std::numeric_limits<float>::quiet_NaN()}) {
    singles += bytesOf(std::bit_cast<std::uint32_t>(value), 4);
  }
  EXPECT_THAT(samplesOf(wave(3, 1, 32, singles)), ElementsAre(0, 16384, -32768, 32767, 32767, -32768, 0));
  EXPECT_THAT(samplesOf(wave(3, 1, 64, bytesOf(std::bit_cast<std::uint64_t>(-0.25), 8))), ElementsAre(-8192));
}

TEST(WaveFile, TheExtensibleFormNamesItsCodingFurtherBack) {
  const std::string extension = bytesOf(22, 2) + bytesOf(24, 2) + bytesOf(3, 4) + bytesOf(1, 2) + std::string(14, 'g');
  const std::string samples("\0\1\0\0\2\0", 6);
  EXPECT_THAT(samplesOf(riff(chunk("fmt ", format(0xFFFE, 2, 48000, 24) + extension) + chunk("data", samples))),
              ElementsAre(1, 2));
  EXPECT_FALSE(readWave(riff(chunk("fmt ", format(0xFFFE, 2, 48000, 24)) + chunk("data", samples))));
}

TEST(WaveFile, OtherChunksArePassedOver) {
  EXPECT_THAT(samplesOf(riff(chunk("LIST", "odd") + chunk("fmt ", format(1, 1, 8000, 16)) + chunk("fact", "1234") +
                             chunk("data", std::string("\5\0", 2)) + chunk("id3 ", "x"))),
              ElementsAre(5));
}

TEST(WaveFile, ACutOffFilePlaysAsFarAsItGoes) {
  std::string file = wave(1, 2, 16, std::string("\1\0\2\0\3\0\4\0", 8));
  file.pop_back();
  EXPECT_THAT(samplesOf(file), ElementsAre(1, 2));
}

TEST(WaveFile, AStreamOfUnknownLengthPlaysToItsEnd) {
  const std::string file = "RIFF\xff\xff\xff\xffWAVE" + chunk("fmt ", format(1, 1, 8000, 16)) + "data\xff\xff\xff\xff" +
                           std::string("\1\0\2\0", 4);
  EXPECT_THAT(samplesOf(file), ElementsAre(1, 2));
}

TEST(WaveFile, WhatIsNoSoundIsRefused) {
  const std::string samples(8, '\0');
  EXPECT_FALSE(readWave(""));
  EXPECT_FALSE(readWave("RIFF"));
  EXPECT_FALSE(readWave("a text that is long enough to be a header"));
  EXPECT_FALSE(readWave(riff("")));
  EXPECT_FALSE(readWave(riff(chunk("fmt ", format(1, 1, 8000, 16)))));
  EXPECT_FALSE(readWave(riff(chunk("data", samples))));
  EXPECT_FALSE(readWave(riff(chunk("fmt ", "short") + chunk("data", samples))));
  EXPECT_FALSE(readWave(wave(1, 1, 16, "")));
  EXPECT_FALSE(readWave(wave(2, 1, 4, samples))) << "a compressed coding";
  EXPECT_FALSE(readWave(wave(1, 1, 12, samples)));
  EXPECT_FALSE(readWave(wave(1, 1, 0, samples)));
  EXPECT_FALSE(readWave(wave(3, 1, 16, samples)));
  EXPECT_FALSE(readWave(wave(1, 0, 16, samples)));
  EXPECT_FALSE(readWave(wave(1, 9, 16, samples)));
  EXPECT_FALSE(readWave(riff(chunk("fmt ", format(1, 1, 0, 16)) + chunk("data", samples))));
  EXPECT_FALSE(readWave("RIFF1234WAVEfmt \xff\xff\xff\xff"));
}

TEST(WaveFile, EveryBeginningOfAFileIsReadSafely) {
  const std::string file = wave(1, 2, 16, std::string(16, 'x'));
  for (std::size_t length = 0; length < file.size(); ++length) {
    const auto sound = readWave(std::string_view(file).substr(0, length));
    EXPECT_TRUE(!sound || sound->samples.size() <= 8U);
  }
}

}  // namespace
}  // namespace tarnwick
