// SPDX-License-Identifier: MIT
// Compressed answers: damaged, cut, nested, and bombs that are small on the wire.
#include "behaviours.h"
#include "support/http_message.h"

namespace tarnwick::testing {
namespace {

constexpr std::size_t kBombSize = kLargestPage + std::size_t{8} * 1024 * 1024;
/// What a page of the largest size may cost while it arrives: itself, and once more while its memory grows.
constexpr std::size_t kBombMebibytes = 160;

HostileOutcome undecodable() {
  return fails(TransferFault::badContentCoding, "The compressed answer of the server {} could not be decoded.");
}
HostileOutcome incomplete() {
  return fails(TransferFault::badContentCoding, "The compressed answer of the server {} is incomplete.");
}
HostileOutcome tooLarge() { return fails(TransferFault::tooLarge, "The page is larger than 64 MiB."); }

std::function<void(HostileVisit&)> coded(const std::string& coding, std::function<std::string()> body) {
  return [coding, body = std::move(body)](HostileVisit& visit) {
    visit.readRequest();
    visit.sendPage(body(), "Content-Encoding: " + coding + "\r\n");
  };
}

std::function<void(HostileVisit&)> coded(const std::string& coding, const std::string& body) {
  return coded(coding, [body] { return body; });
}

std::string gzipped(const std::string& body) { return compressed(body, HttpCoding::gzip); }

std::string fromHex(std::string_view digits) {
  std::string bytes;
  for (; digits.size() >= 2; digits.remove_prefix(2)) {
    bytes += static_cast<char>(std::stoi(std::string(digits.substr(0, 2)), nullptr, 16));
  }
  return bytes;
}

// 72 MiB of zeros, as an encoder of brotli packs them.
std::string brotliBomb() {
  return fromHex(
      "cbffff3ff82700e2b14020f7fe8fffff7ff04f00c4611180eefd1fffffffe09f0088c30200ddfb3ffeffffc13f0110870500baf77ffcffff"
      "837f02200e0b0074effff8ffff07ff04401c1600e8defff1ffff0ffe0980382c00d0bdffe3ffff1ffc1300715800a07bff97ffff7ff82700"
      "e2b00040f7fe0f");
}

// Blocks that each say "this byte, 128 KiB times" (RFC 8878, section 3.1.1.2).
std::string zstandardBomb() {
  std::string frame = fromHex("28b52ffd0038");
  constexpr std::size_t kBlock = std::size_t{128} * 1024;
  for (std::size_t size = 0; size < kBombSize; size += kBlock) {
    frame += fromHex(size + kBlock < kBombSize ? "02001000" : "03001000");
  }
  return frame;
}

std::string longPage() {
  std::string page;
  for (int line = 0; line < 5000; ++line) {
    page += "line " + std::to_string(line) + "\n";
  }
  return page;
}

std::string damaged(std::string packed) {
  packed[packed.size() / 2] = static_cast<char>(~packed[packed.size() / 2]);
  return packed;
}

std::string firstHalf(const std::string& packed) { return packed.substr(0, packed.size() / 2); }

}  // namespace

HostileBehaviours codingBehaviours() {
  return {
      {.name = "GzipBomb",
       .outcome = tooLarge(),
       .serve = coded("gzip", [] { return gzipped(std::string(kBombSize, '\0')); }),
       .timeoutSeconds = 20,
       .mebibytes = kBombMebibytes},
      {.name = "DeflateBomb",
       .outcome = tooLarge(),
       .serve = coded("deflate", [] { return compressed(std::string(kBombSize, '\0'), HttpCoding::deflate); }),
       .timeoutSeconds = 20,
       .mebibytes = kBombMebibytes},
      {.name = "BrotliBomb",
       .outcome = tooLarge(),
       .serve = coded("br", brotliBomb()),
       .timeoutSeconds = 20,
       .mebibytes = kBombMebibytes},
      {.name = "ZstandardBomb",
       .outcome = tooLarge(),
       .serve = coded("zstd", zstandardBomb()),
       .timeoutSeconds = 20,
       .mebibytes = kBombMebibytes},
      {.name = "BombInABombInABomb",
       .outcome = tooLarge(),
       .serve = coded("gzip, gzip, gzip", [] { return gzipped(gzipped(gzipped(std::string(kBombSize, '\0')))); }),
       .timeoutSeconds = 20,
       .mebibytes = kBombMebibytes},
      {.name = "AHundredCodings",
       .outcome = undecodable(),
       .serve =
           [](HostileVisit& visit) {
             std::string codings = "gzip";
             for (int coding = 1; coding < 100; ++coding) {
               codings += ",gzip";
             }
             visit.readRequest();
             visit.sendPage(gzipped("hello"), "Content-Encoding: " + codings + "\r\n");
           }},
      {.name = "DamagedGzip", .outcome = undecodable(), .serve = coded("gzip", damaged(gzipped(longPage())))},
      {.name = "CutGzip", .outcome = incomplete(), .serve = coded("gzip", firstHalf(gzipped(longPage())))},
      {.name = "CutDeflate",
       .outcome = incomplete(),
       .serve = coded("deflate", firstHalf(compressed(longPage(), HttpCoding::deflate)))},
      {.name = "CutBrotli", .outcome = incomplete(), .serve = coded("br", brotliBomb().substr(0, 10))},
      {.name = "CutZstandard", .outcome = incomplete(), .serve = coded("zstd", zstandardBomb().substr(0, 10))},
      {.name = "CutGzipUntilTheConnectionEnds",
       .outcome = incomplete(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nContent-Encoding: gzip\r\n\r\n" + firstHalf(gzipped(longPage())));
           }},
      {.name = "GzipWithoutItsEnd",
       .outcome = incomplete(),
       .serve = coded("gzip", gzipped(longPage()).substr(0, gzipped(longPage()).size() - 8))},
      {.name = "GzipHeaderAlone", .outcome = incomplete(), .serve = coded("gzip", gzipped(longPage()).substr(0, 10))},
      {.name = "WholeGzipOfACutOne",
       .outcome = incomplete(),
       .serve = coded("gzip, gzip", gzipped(firstHalf(gzipped(longPage()))))},
      {.name = "CutTransferCoding",
       .outcome = incomplete(),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.sendPage(firstHalf(gzipped(longPage())), "Transfer-Encoding: gzip\r\n");
           }},
      {.name = "GzipOfNothing",
       .outcome = takes(""),
       .serve = coded("gzip", fromHex("1f8b08000000000000ff03000000000000000000"))},
      {.name = "NoBytesOfGzip", .outcome = takes(""), .serve = coded("gzip", "")},
      {.name = "GzipThatIsPlainText",
       .outcome = undecodable(),
       .serve = coded("gzip", "this was never compressed by anyone")},
      {.name = "GzipWithATail",
       .outcome = undecodable(),
       .serve = coded("gzip", gzipped("hello") + "and a tail that is long enough")},
      {.name = "UnknownCoding", .outcome = undecodable(), .serve = coded("x-own", "hello")},
      {.name = "CodingOfGarbage", .outcome = undecodable(), .serve = coded(",,;\x01\xff,", "hello")},
      {.name = "CodingThatSaysNone", .outcome = takes("hello"), .serve = coded("identity", "hello")},
      {.name = "BodyPackedButNotAnnounced",
       .outcome = takes(gzipped("hello")),
       .serve = coded("identity", gzipped("hello"))},
  };
}

}  // namespace tarnwick::testing
