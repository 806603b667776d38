// SPDX-License-Identifier: MIT
#include "platform/sound/wave_file.h"

#include <gtest/gtest.h>

#include <string>

#include "support/files_fixture.h"

namespace tarnwick::testing {
namespace {

using WaveFileTest = FilesFixture;

TEST_F(WaveFileTest, IsKnownByItsBeginning) {
  make("sound.wav", std::string("RIFF\x26\0\0\0WAVEfmt ", 16));
  EXPECT_TRUE(isWaveFile(at("sound.wav")));
}

TEST_F(WaveFileTest, IsNothingElse) {
  make("text.wav", "no sound, and longer than the head of one");
  make("short.wav", "RIFF");
  make("empty.wav", "");
  make("film.avi", std::string("RIFF\x26\0\0\0AVI LIST", 16));
  for (const char* name : {"text.wav", "short.wav", "empty.wav", "film.avi", "missing.wav", ""}) {
    EXPECT_FALSE(isWaveFile(at(name))) << name;
  }
  EXPECT_FALSE(isWaveFile(""));
  EXPECT_FALSE(isWaveFile(std::string("a\0b", 3)));
}

}  // namespace
}  // namespace tarnwick::testing
