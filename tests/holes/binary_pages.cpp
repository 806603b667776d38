// SPDX-License-Identifier: MIT
// What is no text: compressed pages, pictures and documents that say when they were made.
#include "holes/calendar_words.h"
#include "holes/file_forms.h"
#include "holes/page_content.h"
#include "holes/slots.h"

namespace tarnwick::generated {
namespace {

using namespace std::string_literals;

constexpr std::string_view kPngHead = "\x89PNG\r\n\x1A\n";

std::string chunk(std::string_view kind, std::string_view content) {
  const auto checked = std::string(kind) + std::string(content);
  return bigEndian(static_cast<std::uint32_t>(content.size())) + checked + bigEndian(crc32(checked));
}

/// The lines of a picture in grey, 96 by 64, which is always the same.
std::string picture() {
  std::string lines;
  Rng rng("picture");
  for (unsigned y = 0; y < 64; ++y) {
    lines += '\0';
    for (unsigned x = 0; x < 96; ++x) {
      lines += static_cast<char>((x * y / 16 + rng.below(9)) & 0xFFU);
    }
  }
  return zlibStream(lines);
}

std::string pngSize() { return chunk("IHDR", bigEndian(96) + bigEndian(64) + "\x08\x00\x00\x00\x00"s); }

std::string timeChunkContent(const Moment& moment) {
  const auto text = dateText(moment, "%Y%m%d%H%M%S");
  const auto two = [&text](std::size_t at) { return static_cast<char>(std::stoi(text.substr(at, 2))); };
  const auto year = static_cast<std::uint32_t>(std::stoi(text.substr(0, 4)));
  return bigEndian(year).substr(2) + two(4) + two(6) + two(8) + two(10) + two(12);
}

Generator pngWithText() {
  const auto head = std::string(kPngHead) + pngSize();
  const auto tail = chunk("IDAT", picture()) + chunk("IEND", "");
  return {.name = "binary: PNG with a time in words", .page = [=](const Moment& moment, Rng& rng) {
            Made made;
            const auto when = date("%a, %d %b %Y %H:%M:%S +0000")(moment, rng);
            const auto kind = "tEXtCreation Time\0"s;
            made.fixed(head + bigEndian(static_cast<std::uint32_t>(14 + when.bytes.size())) + kind);
            made.varying(when);
            made.varying(bytes(bigEndian(crc32(kind + when.bytes))));
            made.fixed(tail);
            return made;
          }};
}

Generator pngWithTime() {
  const auto head = std::string(kPngHead) + pngSize() + chunk("gAMA", bigEndian(45455)) + bigEndian(7) + "tIME";
  const auto tail = chunk("IDAT", picture()) + chunk("IEND", "");
  return {.name = "binary: PNG with a time in bytes", .page = [=](const Moment& moment, Rng&) {
            Made made;
            const auto content = timeChunkContent(moment);
            made.fixed(head);
            made.varying(bytes(content + bigEndian(crc32("tIME" + content))));
            made.fixed(tail);
            return made;
          }};
}

/// A picture of a camera: its date stands twice among what the camera tells.
Generator camera() {
  Rng rng("camera");
  const auto tables = "\xFF\xDB\x00\x43\x00"s + rng.text(64, kBase64);
  std::string scan = "\xFF\xDA\x00\x08\x01\x01\x00\x00\x3F\x00"s;
  for (int i = 0; i < 9000; ++i) {
    scan += static_cast<char>(rng.below(255));
  }
  const auto slots = Slots{{"when", date("%Y:%m:%d %H:%M:%S")}};
  const auto text =
      "\xFF\xD8\xFF\xE1\x00\xA4"
      "Exif\0\0II*\0\x08\0\0\0Harbour Camera 3, north pier\0"s +
      "{{when}}" + "\0\0\0 firmware 1.08, lens 35 mm, exposure 1/125, no flash \0"s + "{{when}}" + "\0"s + tables +
      replaced(std::move(scan), "{{", "{,") + "\xFF\xD9 the end";
  return page("binary: a picture of a camera", text, slots);
}

/// A page as it is kept compressed, with the time of it in its head.
Generator gzipped() {
  const auto page = text({.seed = "gzip", .articles = 10});
  const auto tail =
      "\x02\x03"s + deflated(page) + littleEndian(crc32(page)) + littleEndian(static_cast<std::uint32_t>(page.size()));
  return {.name = "binary: gzip with the time in its head", .page = [tail](const Moment& moment, Rng&) {
            Made made;
            made.fixed("\x1F\x8B\x08\x00"s);
            made.varying(bytes(littleEndian(static_cast<std::uint32_t>(moment.time.time_since_epoch().count()))));
            made.fixed(tail);
            return made;
          }};
}

Generator document() {
  std::string objects;
  for (int i = 0; i < 12; ++i) {
    objects += std::to_string(i + 4) + " 0 obj\n<< /Length 1200 /Filter /FlateDecode >>\nstream\n" +
               replaced(zlibStream(prose("pdf " + std::to_string(i), "en", 14)), "{{", "{,") + "\nendstream\nendobj\n";
  }
  return page("binary: a document made for each",
              "%PDF-1.4\n1 0 obj\n<< /Title (Timetable) /Producer (Town press 2.1)\n/CreationDate "
              "(D:{{when}}Z)\n/ModDate (D:{{when}}Z) >>"
              "\nendobj\n" +
                  objects +
                  "trailer\n<< /Size 16 /Root 2 0 R /Info 1 0 R\n/ID [<{{id}}> <{{id}}>] >>\nstartxref\n"
                  "18220\n%%EOF\n",
              {{"when", date("%Y%m%d%H%M%S")}, {"id", hex(32, kUpperHex)}});
}

}  // namespace

std::vector<Generator> binaryPages() { return {pngWithText(), pngWithTime(), camera(), gzipped(), document()}; }

}  // namespace tarnwick::generated
