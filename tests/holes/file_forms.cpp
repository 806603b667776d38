// SPDX-License-Identifier: MIT
#include "holes/file_forms.h"

namespace tarnwick::generated {
namespace {

class BitWriter {
 public:
  explicit BitWriter(std::string& bytes) : bytes_(bytes) {}

  void bit(unsigned value) {
    if (used_ == 8) {
      bytes_ += '\0';
      used_ = 0;
    }
    bytes_.back() = static_cast<char>(static_cast<unsigned char>(bytes_.back()) | (value << used_));
    ++used_;
  }
  /// Codes stand with their highest bit first.
  void code(unsigned value, unsigned length) {
    while (length > 0) {
      --length;
      bit((value >> length) & 1U);
    }
  }

 private:
  std::string& bytes_;
  unsigned used_ = 8;
};

}  // namespace

std::uint32_t crc32(std::string_view bytes) {
  std::uint32_t sum = 0xFFFFFFFFU;
  for (const char byte : bytes) {
    sum ^= static_cast<unsigned char>(byte);
    for (int i = 0; i < 8; ++i) {
      sum = (sum >> 1U) ^ ((sum & 1U) != 0 ? 0xEDB88320U : 0U);
    }
  }
  return ~sum;
}

std::string deflated(std::string_view bytes) {
  std::string result;
  BitWriter writer(result);
  writer.bit(1);  // the last block
  writer.bit(1);  // of the fixed code, whose number is 01 with the lower bit first
  writer.bit(0);
  for (const char byte : bytes) {
    const unsigned value = static_cast<unsigned char>(byte);
    if (value < 144) {
      writer.code(0x30 + value, 8);
    } else {
      writer.code(0x190 + value - 144, 9);
    }
  }
  writer.code(0, 7);
  return result;
}

std::string bigEndian(std::uint32_t number) {
  std::string bytes;
  for (const unsigned shift : {24U, 16U, 8U, 0U}) {
    bytes += static_cast<char>((number >> shift) & 0xFFU);
  }
  return bytes;
}

std::string littleEndian(std::uint32_t number) {
  const auto bytes = bigEndian(number);
  return {bytes.rbegin(), bytes.rend()};
}

std::string zlibStream(std::string_view bytes) {
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const char byte : bytes) {
    low = (low + static_cast<unsigned char>(byte)) % 65521;
    high = (high + low) % 65521;
  }
  return "\x78\x01" + deflated(bytes) + bigEndian((high << 16U) | low);
}

}  // namespace tarnwick::generated
