// SPDX-License-Identifier: MIT
#include "fuzz/entries/uu_entries.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "base/decode_error.h"
#include "uucode/uu_code.h"
#include "uucode/uu_decoder.h"
#include "uucode/uu_parts.h"

namespace tarnwick::testing {
namespace {

struct Outcome {
  std::string bytes;
  std::string name;
  std::string error;
  bool operator==(const Outcome&) const = default;
};

Outcome decodeInPieces(UuDecoder::Form form, std::string_view text, std::size_t pieceSize) {
  Outcome outcome;
  UuDecoder decoder(form, "file");
  try {
    while (!text.empty()) {
      const std::string_view piece = text.substr(0, pieceSize);
      decoder.feed(piece, outcome.bytes);
      text.remove_prefix(piece.size());
    }
    decoder.finish(outcome.bytes);
    outcome.name = decoder.name();
  } catch (const DecodeError& error) {
    outcome.error = error.what();
    outcome.bytes.clear();
  }
  return outcome;
}

/// Base64 told in another way than the decoder's: nothing for a damaged text.
std::optional<std::string> plainBase64(std::string_view text) {
  static const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string characters(text);
  std::erase_if(characters, [](char c) { return std::string_view("\r\n\t ").find(c) != std::string_view::npos; });
  std::size_t pads = 0;
  while (pads < 2 && !characters.empty() && characters.back() == '=') {
    characters.pop_back();
    ++pads;
  }
  if ((characters.size() + pads) % 4 != 0) {
    return std::nullopt;
  }
  std::string bits;
  for (const char character : characters) {
    const std::size_t value = alphabet.find(character);
    if (value == std::string::npos) {
      return std::nullopt;
    }
    for (int bit = 5; bit >= 0; --bit) {
      bits += (value >> bit & 1) != 0 ? '1' : '0';
    }
  }
  std::string bytes;
  for (std::size_t at = 0; at + 8 <= bits.size(); at += 8) {
    bytes += static_cast<char>(std::stoi(bits.substr(at, 8), nullptr, 2));
  }
  return bytes;
}

}  // namespace

void fuzzDecodeRec(std::string_view input) {
  const std::size_t length = takeByte(input);
  const std::size_t start = takeByte(input) % 8;
  const std::string text(input);
  const std::string before(length + 4, '.');
  std::string out = before;
  std::size_t iPos = start;
  std::size_t oPos = 2;
  if (UUCode::DecodeRec(text, out, iPos, oPos, static_cast<std::uint8_t>(length))) {
    require(iPos >= start && iPos <= text.size(), "the input position left the text");
    require(oPos == 2 + length, "the output position is not behind the record");
    require(out.starts_with("..") && out.ends_with(".."), "bytes around the record were changed");
  } else {
    require(out == before && iPos == start && oPos == 2, "a refused record changed something");
  }
}

void fuzzDecodeStream(std::string_view input) {
  const std::size_t pieceSize = takeByte(input) + 1;
  const Outcome whole = decodeInPieces(UuDecoder::Form::lines, input, input.size());
  require(whole == decodeInPieces(UuDecoder::Form::lines, input, pieceSize), "the pieces of the text matter");
  std::string bytes;
  try {
    UUCode::DecodeStream(std::string(input), bytes);
  } catch (const DecodeError&) {
    require(!whole.error.empty(), "the stream raises what the decoder does not");
  }
  require(bytes == whole.bytes, "the stream gives other bytes than the decoder");
}

void fuzzDecodeFile(std::string_view input) {
  const std::size_t pieceSize = takeByte(input) + 1;
  const Outcome whole = decodeInPieces(UuDecoder::Form::file, input, input.size());
  require(whole == decodeInPieces(UuDecoder::Form::file, input, pieceSize), "the pieces of the text matter");
  // A line whose blanks were stripped may be two characters for 63 bytes, but none is more.
  require(whole.bytes.size() <= input.size() * 32, "more bytes than the lines can hold");
}

void fuzzPartOrder(std::string_view input) {
  std::vector<UuPart> parts;
  while (!input.empty() && parts.size() < 64) {
    const std::string_view line = input.substr(0, input.find('\n'));
    const std::string_view path = line.substr(0, line.find('\t'));
    const std::string_view name = path.size() == line.size() ? "" : line.substr(path.size() + 1);
    std::string plain(path);
    std::erase(plain, '\0');  // no path holds one
    parts.push_back({plain, std::string(name)});
    input.remove_prefix(std::min(line.size() + 1, input.size()));
  }
  try {
    UuOrder order = orderUuParts(parts);
    require(order.indexes.size() == parts.size(), "a part is not in the order");
    std::sort(order.indexes.begin(), order.indexes.end());
    require(std::adjacent_find(order.indexes.begin(), order.indexes.end()) == order.indexes.end(),
            "a part comes twice");
    for (const auto& [first, last] : order.missing) {
      require(first >= 1 && first <= last, "a gap that is none");
    }
  } catch (const DecodeError&) {
    return;  // a refusal is a good answer
  }
}

void fuzzMimeDecodeStream(std::string_view input) {
  const std::optional<std::string> expected = plainBase64(input);
  std::string bytes = "before";
  try {
    UUCode::MIMEDecodeStream(std::string(input), bytes);
  } catch (const DecodeError&) {
    require(!expected, "a sound text was refused");
    require(bytes == "before", "a refused text changed the output");
    return;
  }
  require(expected.has_value(), "a damaged text was decoded");
  require(bytes == *expected, "the bytes are wrong");
}

void fuzzHeaderInfo(std::string_view input) {
  std::string name = "before";
  if (UUCode::GetHeaderInfoFromStream(std::string(input), name)) {
    require(input.find("begin " + name + "\r\n") != std::string_view::npos, "the name is not in the text");
  } else {
    require(name == "before", "no name, but another text");
  }
}

void fuzzRoundTrip(std::string_view input) {
  std::string bytes(input);
  std::string text;
  std::string back;
  UUCode::EncodeStream(bytes, text);
  require(bytes.starts_with(input) && bytes.size() - input.size() < 3, "the padding is not one");
  UUCode::DecodeStream(text, back);
  require(back == bytes, "what was encoded does not come back");
  const Outcome file = decodeInPieces(UuDecoder::Form::file, "begin a\r\n" + text + "`\r\nend\r\n", 100);
  require(file.error.empty() && file.bytes == bytes && file.name == "a", "an encoded file does not come back");
}

}  // namespace tarnwick::testing
