#include "platform/sound/wave_file.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <numeric>

#include "base/errors.h"
#include "platform/file_access.h"

namespace tarnwick {
namespace {

constexpr std::uint64_t kLongestFile = std::uint64_t{256} * 1024 * 1024;

constexpr std::uint16_t kPcm = 1;
constexpr std::uint16_t kFloat = 3;
constexpr std::uint16_t kExtensible = 0xFFFE;

struct Format {
  std::uint16_t coding = 0;
  std::uint16_t channels = 0;
  std::uint32_t sampleRate = 0;
  std::uint16_t bitsPerSample = 0;
};

/// The little-endian number in up to eight bytes.
std::uint64_t number(std::string_view bytes) {
  return std::accumulate(bytes.rbegin(), bytes.rend(), std::uint64_t{0},
                         [](std::uint64_t value, char byte) { return value << 8 | static_cast<unsigned char>(byte); });
}

std::uint16_t number16(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint16_t>(number(bytes.substr(at, 2)));
}

std::uint32_t number32(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint32_t>(number(bytes.substr(at, 4)));
}

/// The content of the first chunk of that name, as far as the file holds it; nothing when there is none.
std::optional<std::string_view> chunk(std::string_view chunks, std::string_view name) {
  constexpr std::size_t kHeader = 8;
  while (chunks.size() >= kHeader) {
    const std::uint64_t size = number32(chunks, 4);
    const std::string_view rest = chunks.substr(kHeader);
    if (chunks.starts_with(name)) {
      return rest.substr(0, size);
    }
    // Chunks begin at even places.
    const std::uint64_t next = size + size % 2;
    chunks = next < rest.size() ? rest.substr(next) : std::string_view();
  }
  return std::nullopt;
}

std::optional<Format> readFormat(std::string_view chunks) {
  constexpr std::size_t kPlainSize = 16;
  constexpr std::size_t kExtendedSize = 40;
  constexpr std::size_t kRealCoding = 24;
  const std::optional<std::string_view> content = chunk(chunks, "fmt ");
  if (!content || content->size() < kPlainSize) {
    return std::nullopt;
  }
  Format format{number16(*content, 0), number16(*content, 2), number32(*content, 4), number16(*content, 14)};
  if (format.coding == kExtensible) {
    if (content->size() < kExtendedSize) {
      return std::nullopt;
    }
    format.coding = number16(*content, kRealCoding);
  }
  const bool playable =
      format.channels >= 1 && format.channels <= 8 && format.sampleRate >= 1000 && format.sampleRate <= 384000;
  return playable ? std::optional(format) : std::nullopt;
}

/// Turns the bytes of one sample into 16 bits.
using Narrow = std::function<std::int16_t(std::string_view)>;

std::int16_t narrowReal(double value) {
  const double scaled = std::isnan(value) ? 0 : value * 32768;
  return static_cast<std::int16_t>(std::lround(std::clamp(scaled, -32768.0, 32767.0)));
}

Narrow narrowing(const Format& format) {
  if (format.coding == kPcm) {
    switch (format.bitsPerSample) {
      case 8:  // the only width without a sign
        return [](std::string_view sample) {
          return static_cast<std::int16_t>((static_cast<int>(number(sample)) - 128) * 256);
        };
      case 16:
      case 24:
      case 32:  // the two highest bytes come last
        return [](std::string_view sample) { return static_cast<std::int16_t>(number16(sample, sample.size() - 2)); };
      default:
        return {};
    }
  }
  if (format.coding == kFloat && format.bitsPerSample == 32) {
    return [](std::string_view sample) {
      return narrowReal(static_cast<double>(std::bit_cast<float>(number32(sample, 0))));
    };
  }
  if (format.coding == kFloat && format.bitsPerSample == 64) {
    return [](std::string_view sample) { return narrowReal(std::bit_cast<double>(number(sample))); };
  }
  return {};
}

}  // namespace

std::string bytesOfSound(const std::string& fileName) {
  try {
    if (kindOf(fileName) != FileKind::file || sizeOf(fileName) > kLongestFile) {
      return {};
    }
    std::string bytes(static_cast<std::size_t>(sizeOf(fileName)), '\0');
    const FileHandle file = openFile(fileName, FileUse::read);
    bytes.resize(std::fread(bytes.data(), 1, bytes.size(), file.get()));
    return bytes;
  } catch (const FileError&) {
    return {};
  }
}

std::optional<WaveSound> readWave(std::string_view bytes) {
  constexpr std::size_t kChunksStart = 12;
  if (bytes.size() < kChunksStart || !bytes.starts_with("RIFF") || bytes.substr(8, 4) != "WAVE") {
    return std::nullopt;
  }
  const std::string_view chunks = bytes.substr(kChunksStart);
  const std::optional<Format> format = readFormat(chunks);
  const std::optional<std::string_view> data = chunk(chunks, "data");
  if (!format || !data) {
    return std::nullopt;
  }
  const Narrow narrow = narrowing(*format);
  const std::size_t width = format->bitsPerSample / 8;
  if (!narrow || data->size() < width * format->channels) {
    return std::nullopt;
  }

  WaveSound sound{format->sampleRate, format->channels, {}};
  const std::size_t count = data->size() / (width * format->channels) * format->channels;
  sound.samples.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    sound.samples.push_back(narrow(data->substr(i * width, width)));
  }
  return sound;
}

}  // namespace tarnwick
