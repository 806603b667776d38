// SPDX-License-Identifier: MIT
// Bodies whose length is not what was announced, and chunks that are none.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

HostileOutcome cutShort() {
  return fails(TransferFault::dropped, "The server {} broke the connection off during its answer.");
}
HostileOutcome badChunk() {
  return fails(TransferFault::dropped, "The answer of the server {} is damaged: bad chunk.");
}
HostileOutcome badLength() {
  return fails(TransferFault::dropped, "The answer of the server {} is damaged: its length is not clear.");
}

std::function<void(HostileVisit&)> answers(std::string text) {
  return [text = std::move(text)](HostileVisit& visit) {
    visit.readRequest();
    visit.send(text);
  };
}

// An answer whose header has these lines about its length.
std::function<void(HostileVisit&)> announces(const std::string& lines, const std::string& body) {
  return answers("HTTP/1.1 200 OK\r\n" + lines + "\r\n\r\n" + body);
}

std::function<void(HostileVisit&)> chunked(const std::string& chunks) {
  return announces("Transfer-Encoding: chunked", chunks);
}

std::string trailerFlood() {
  std::string flood = "5\r\nhello\r\n0\r\n";
  for (int line = 0; line < 40'000; ++line) {
    flood += "X-Trailer-" + std::to_string(line) + ": and one more\r\n";
  }
  return flood + "\r\n";
}

}  // namespace

HostileBehaviours lengthBehaviours() {
  return {
      {.name = "BodyShorterThanAnnounced", .outcome = cutShort(), .serve = announces("Content-Length: 100", "short")},
      {.name = "NoBodyAtAllAfterALength", .outcome = cutShort(), .serve = announces("Content-Length: 100", "")},
      {.name = "BodyLongerThanAnnounced",
       .outcome = takes("hello"),
       .serve = announces("Content-Length: 5", "hello and more")},
      {.name = "TwoAnswersAtOnce",
       .outcome = takes("first"),
       .serve = announces("Content-Length: 5", "firstHTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\nsecond")},
      {.name = "TwoDifferentLengths",
       .outcome = badLength(),
       .serve = announces("Content-Length: 5\r\nContent-Length: 11", "hello world")},
      {.name = "TwoLengthsInOneLine",
       .outcome = badLength(),
       .serve = announces("Content-Length: 5, 11", "hello world")},
      {.name = "TheSameLengthTwice",
       .outcome = takes("hello"),
       .serve = announces("Content-Length: 5\r\nContent-Length: 5", "hello")},
      {.name = "NegativeLength", .outcome = badLength(), .serve = announces("Content-Length: -1", "hello")},
      {.name = "LengthBeyondAllNumbers",
       .outcome = fails(TransferFault::tooLarge, "The page is larger than 64 MiB."),
       .serve = announces("Content-Length: 99999999999999999999999999", "hello")},
      {.name = "LengthOfAlmostAllNumbers",
       .outcome = fails(TransferFault::tooLarge, "The page is larger than 64 MiB."),
       .serve = announces("Content-Length: 9223372036854775807", "hello")},
      {.name = "LengthOfMoreThanAFileCanHave",
       .outcome = fails(TransferFault::tooLarge, "The page is larger than 64 MiB."),
       .serve = announces("Content-Length: 9223372036854775808", "hello")},
      {.name = "LengthThatIsNoNumber", .outcome = badLength(), .serve = announces("Content-Length: five", "hello")},
      {.name = "LengthWithATail", .outcome = badLength(), .serve = announces("Content-Length: 5x", "hello")},
      {.name = "EmptyLength", .outcome = badLength(), .serve = announces("Content-Length:", "hello")},
      {.name = "LengthAndChunks",
       .outcome = takes("hello"),
       .serve = announces("Content-Length: 3\r\nTransfer-Encoding: chunked", "5\r\nhello\r\n0\r\n\r\n")},
      {.name = "ChunkSizeThatIsNone", .outcome = badChunk(), .serve = chunked("zz\r\nhello\r\n0\r\n\r\n")},
      {.name = "NegativeChunkSize", .outcome = badChunk(), .serve = chunked("-5\r\nhello\r\n0\r\n\r\n")},
      {.name = "ChunkSizeBeyondAllNumbers",
       .outcome = badChunk(),
       .serve = chunked("fffffffffffffffffffffff\r\nhello\r\n0\r\n\r\n")},
      {.name = "ChunkOfAlmostAllNumbers", .outcome = cutShort(), .serve = chunked("7fffffffffffffff\r\nhello")},
      {.name = "ChunkLongerThanItsSize", .outcome = badChunk(), .serve = chunked("3\r\nhello\r\n0\r\n\r\n")},
      {.name = "ChunkCutShort", .outcome = cutShort(), .serve = chunked("64\r\nhello")},
      {.name = "NoLastChunk", .outcome = cutShort(), .serve = chunked("5\r\nhello\r\n")},
      {.name = "NoEndAfterTheLastChunk", .outcome = cutShort(), .serve = chunked("5\r\nhello\r\n0\r\n")},
      {.name = "ChunkExtensionOfGarbage",
       .outcome = takes("hello"),
       .serve = chunked("5;\x01garbage=\"" + std::string(3000, '\xff') + "\r\nhello\r\n0;end\r\n\r\n")},
      {.name = "ChunkSizeWithManyZeros",
       .outcome = badChunk(),
       .serve = chunked(std::string(200, '0') + "5\r\nhello\r\n0\r\n\r\n")},
      {.name = "TrailerFlood",
       .outcome = fails(TransferFault::tooLarge, "The header of the answer is too large."),
       .serve = chunked(trailerFlood())},
      {.name = "ChunksOfOneByte",
       .outcome = takes("x", 20'000),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
             std::string chunks;
             for (int chunk = 0; chunk < 20'000; ++chunk) {
               chunks += "1\r\nx\r\n";
             }
             visit.send(chunks + "0\r\n\r\n");
           },
       .timeoutSeconds = 10},
      {.name = "UnknownTransferCoding",
       .outcome =
           fails(TransferFault::badContentCoding, "The compressed answer of the server {} could not be decoded."),
       .serve = announces("Transfer-Encoding: x-own", "hello")},
  };
}

}  // namespace tarnwick::testing
