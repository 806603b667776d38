#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick {

/// A sound in the form that every sound device takes: 16 bit samples, the channels interleaved.
struct WaveSound {
  std::uint32_t sampleRate = 0;
  std::uint16_t channels = 0;
  std::vector<std::int16_t> samples;
};

/// The bytes of a sound's file; none when it cannot be read, is longer than 256 MiB, which is no signal any more, or is
/// something else than a file: a pipe or a device could keep the program waiting for ever.
std::string bytesOfSound(const std::string& fileName);

/// Reads the bytes of a .wav file: uncompressed samples of 8, 16, 24 or 32 bit, or floating point ones of 32 or 64 bit,
/// at 1000 to 384000 a second in 1 to 8 channels. A file that was cut off plays as far as it goes. Nothing when the
/// bytes are no such file or hold no sample.
/// Source: Microsoft and IBM, Multimedia Programming Interface and Data Specifications 1.0, with the later
/// WAVEFORMATEXTENSIBLE.
std::optional<WaveSound> readWave(std::string_view bytes);

}  // namespace tarnwick
