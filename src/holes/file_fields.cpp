// SPDX-License-Identifier: MIT
// What of pictures and archives says when they were made, and the check sums over it.
#include <algorithm>

#include "holes/widen.h"

namespace tarnwick {
namespace {

struct Field {
  std::size_t begin;
  std::size_t length;
};

constexpr std::string_view kGzip = "\x1F\x8B";
constexpr Field kTimeOfGzip{4, 4};  // RFC 1952
constexpr std::string_view kPng = "\x89PNG\r\n\x1A\n";
constexpr std::size_t kHeadOfChunk = 8;
constexpr std::size_t kCheckSum = 4;

std::size_t bigEndianAt(std::string_view file, std::size_t at) {
  std::size_t number = 0;
  for (const char c : file.substr(at, 4)) {
    number = number << 8U | static_cast<unsigned char>(c);
  }
  return number;
}

/// The field in a chunk of a PNG that varies with the byte at `at`: all of tIME, else the check sum.
std::optional<Field> fieldOfPng(std::string_view file, std::size_t at) {
  for (std::size_t chunk = kPng.size(); chunk + kHeadOfChunk <= file.size();) {
    const std::size_t data = chunk + kHeadOfChunk;
    const std::size_t length = bigEndianAt(file, chunk);
    if (length > file.size() - data || file.size() - data - length < kCheckSum) {
      return std::nullopt;
    }
    const std::size_t end = data + length + kCheckSum;
    if (at < end) {
      const bool isTime = file.substr(chunk + 4, 4) == "tIME";
      const Field field = isTime ? Field{data, length + kCheckSum} : Field{data + length, kCheckSum};
      return at >= field.begin ? std::optional(field) : std::nullopt;
    }
    chunk = end;
  }
  return std::nullopt;
}

std::optional<Field> fieldAt(std::string_view file, std::size_t at) {
  if (file.starts_with(kGzip) && at >= kTimeOfGzip.begin && at < kTimeOfGzip.begin + kTimeOfGzip.length) {
    return kTimeOfGzip;
  }
  return file.starts_with(kPng) ? fieldOfPng(file, at) : std::nullopt;
}

}  // namespace

bool widenToField(Copies& copies, std::size_t index) {
  const Region& region = copies.places()[index].region;
  const auto field = fieldAt(copies.first(), region.from.front());
  if (!field || region.to.front() > field->begin + field->length) {
    return false;
  }
  const auto whole = copies.regionOf(field->begin, field->begin + field->length);
  if (!whole || !std::ranges::all_of(copies.values(*whole),
                                     [&](std::string_view value) { return value.size() == field->length; })) {
    return false;
  }
  copies.put({*whole, Hole{.kind = HoleClass::anything, .least = field->length, .most = field->length}});
  return true;
}

}  // namespace tarnwick
