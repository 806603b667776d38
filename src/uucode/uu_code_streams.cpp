// SPDX-License-Identifier: MIT
// The operations of UUCode on texts in memory.

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "base/base64.h"
#include "uucode/uu_code.h"
#include "uucode/uu_decoder.h"
#include "uucode/uu_record.h"

namespace tarnwick {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLineTextLength = 1 + uuLength(kUuLineBytes) + kLineEnd.size();

/// Whether `size` bytes can be reached from `position`; both may be any number.
bool reaches(const std::string& text, std::size_t position, std::size_t size) {
  return position <= text.size() && size <= text.size() - position;
}

/// Not zeros, by deliberate choice.
void pad(std::string& bytes) {
  const std::size_t count = (3 - bytes.size() % 3) % 3;
  const bool tiny = bytes.size() < 3;
  for (std::size_t added = 0; added < count; ++added) {
    bytes += tiny ? 'a' : bytes[bytes.size() - 3];
  }
}

}  // namespace

bool UUCode::EncodeStream(std::string& InData, std::string& OutData) {
  pad(InData);
  const std::size_t fullLines = InData.size() / kUuLineBytes;
  const std::size_t last = InData.size() % kUuLineBytes;
  OutData.resize(fullLines * kLineTextLength + (last == 0 ? 0 : 1 + uuLength(last) + kLineEnd.size()));
  std::size_t iPos = 0;
  std::size_t oPos = 0;
  while (iPos < InData.size()) {
    const std::size_t size = std::min(kUuLineBytes, InData.size() - iPos);
    OutData[oPos++] = uuCharacter(size);
    EncodeRec(InData, OutData, iPos, oPos, static_cast<std::uint8_t>(size));
  }
  return true;
}

bool UUCode::EncodeRec(const std::string& InData, std::string& OutData, std::size_t& iPos, std::size_t& oPos,
                       std::uint8_t iRecLen) {
  const std::size_t size = (iRecLen + std::size_t{2}) / 3 * 3;
  const std::size_t length = uuLength(size);
  if (!reaches(InData, iPos, size) || !reaches(OutData, oPos, length + kLineEnd.size())) {
    return false;
  }
  encodeUuGroups(std::string_view(InData).substr(iPos, size), OutData.data() + oPos);
  kLineEnd.copy(OutData.data() + oPos + length, kLineEnd.size());
  iPos += size;
  oPos += length + kLineEnd.size();
  return true;
}

bool UUCode::DecodeRec(const std::string& InData, std::string& OutData, std::size_t& iPos, std::size_t& oPos,
                       std::uint8_t oRecLen) {
  if (iPos > InData.size() || !reaches(OutData, oPos, oRecLen)) {
    return false;
  }
  std::string_view line = std::string_view(InData).substr(iPos);
  const std::size_t end = line.find('\n');
  const std::size_t next = end == std::string_view::npos ? InData.size() : iPos + end + 1;
  line = line.substr(0, end);
  line = line.substr(0, line.find_last_not_of('\r') + 1);

  std::array<char, 255> bytes{};
  const UuMarks marks = decodeUuLine(line, oRecLen, bytes.data());
  if (marks.foreign || marks.surplus) {
    return false;
  }
  std::copy_n(bytes.begin(), oRecLen, OutData.begin() + static_cast<std::ptrdiff_t>(oPos));
  iPos = next;
  oPos += oRecLen;
  return true;
}

bool UUCode::DecodeStream(const std::string& InData, std::string& OutData) {
  std::string bytes;
  bytes.reserve(InData.size() / 4 * 3);
  UuDecoder decoder(UuDecoder::Form::lines);
  decoder.feed(InData, bytes);
  decoder.finish(bytes);
  OutData = std::move(bytes);
  return true;
}

bool UUCode::MIMEDecodeStream(const std::string& InData, std::string& OutData) {
  OutData = decodeBase64(InData);
  return true;
}

bool UUCode::GetHeaderInfoFromStream(const std::string& Text, std::string& Name) {
  constexpr std::string_view kBegin = "begin ";
  const std::size_t begin = Text.find(kBegin);
  if (begin == std::string::npos) {
    return false;
  }
  const std::size_t start = begin + kBegin.size();
  const std::size_t end = Text.find(kLineEnd, start);
  if (end == std::string::npos) {
    return false;
  }
  Name = Text.substr(start, end - start);
  return true;
}

}  // namespace tarnwick
