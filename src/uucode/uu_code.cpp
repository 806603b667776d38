// SPDX-License-Identifier: MIT
#include "uucode/uu_code.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "base/decode_error.h"
#include "base/errors.h"
#include "uucode/uu_decoder.h"
#include "uucode/uu_parts.h"
#include "uucode/uu_record.h"

namespace tarnwick {
namespace {

constexpr std::size_t kHeaderSearchSize = 512;
/// Bytes read, and characters written, at a time.
constexpr std::size_t kPieceSize = 1 << 16;
constexpr auto kToTheEnd = std::numeric_limits<std::uint64_t>::max();

std::string headerLine(const std::string& InFile) {
  const std::string name = fileName(InFile);
  if (name.find_first_of("\r\n") != std::string::npos) {
    throw FileError(InFile, "The name has a line break in it and cannot stand in a header. Rename the file.");
  }
  return "begin " + uuLowerCase(name) + "\r\n";
}

/// Encodes up to `most` bytes of what is left of a file as a complete encoded file that begins with the line `text`;
/// the bytes taken.
std::uint64_t encodeInto(const ByteSink& sink, OpenedFile& input, std::string text, std::uint64_t most) {
  std::string block;
  std::string lines;
  std::uint64_t taken = 0;
  while (taken < most) {
    input.read(block, static_cast<std::size_t>(std::min<std::uint64_t>(kUuBlockBytes, most - taken)));
    if (block.empty()) {
      break;
    }
    taken += block.size();
    UUCode::EncodeStream(block, lines);
    text += lines;
    if (text.size() >= kPieceSize) {
      sink(text);
      text.clear();
    }
  }
  sink(text + kUuZero + "\r\nend\r\n");
  return taken;
}

/// Decodes a file; the bytes it gave.
std::uint64_t decodeInto(const ByteSink& sink, FileSystem& files, const std::string& path) {
  const auto input = files.open(path);
  UuDecoder decoder(UuDecoder::Form::file, path);
  std::string text;
  std::string bytes;
  std::uint64_t given = 0;
  const auto pass = [&] {
    sink(bytes);
    given += bytes.size();
    bytes.clear();
  };
  for (input->read(text, kPieceSize); !text.empty(); input->read(text, kPieceSize)) {
    decoder.feed(text, bytes);
    pass();
  }
  decoder.finish(bytes);
  pass();
  return given;
}

UuPart partOf(FileSystem& files, const std::string& path) {
  const auto input = files.open(path);
  UuDecoder decoder(UuDecoder::Form::file, path);
  std::string text;
  std::string ignored;
  do {
    input->read(text, kPieceSize);
    decoder.feed(text, ignored);
  } while (!decoder.headerFound() && !text.empty());
  if (!decoder.headerFound()) {
    decoder.finish(ignored);  // raises what is wrong
  }
  return {path, uuLowerCase(decoder.name())};
}

std::string missingParts(const UuOrder& order) {
  std::string numbers;
  for (const auto& [first, last] : order.missing) {
    numbers += (numbers.empty() ? "" : ", ") + std::to_string(first);
    numbers += first == last ? "" : " to " + std::to_string(last);
  }
  const bool one = order.missing.size() == 1 && order.missing.front().first == order.missing.front().second;
  return one ? "Part " + numbers + " is missing!" : "Parts " + numbers + " are missing!";
}

void refuseOwnInput(FileSystem& files, const std::string& InFile, const std::string& OutFile) {
  if (files.isSameFile(InFile, OutFile)) {
    throw FileError(OutFile, "This is the input file itself; choose another name for the output.");
  }
}

/// All parts but the last have one size, and the last one is not longer.
class PartSizes {
 public:
  void take(const std::string& path, std::uint64_t size) {
    if (previous_ && (*previous_ != *first_ || size > *first_)) {
      throw DecodeError(path, 0,
                        "This part does not continue the ones before it: their sizes differ. Are there parts of an "
                        "earlier encoding among them?");
    }
    first_ = first_.value_or(size);
    previous_ = size;
  }

 private:
  std::optional<std::uint64_t> first_;
  std::optional<std::uint64_t> previous_;
};

UuPlan planFor(std::uint64_t size, std::int64_t most, const std::string& InFile) {
  try {
    return planUuParts(size, most);
  } catch (const std::length_error& tooMany) {
    throw FileError(InFile, tooMany.what());
  }
}

}  // namespace

/// Hidden ones included; a folder is none.
bool UUCode::isFile(const std::string& path) { return files_.exists(path) && files_.kindOf(path) != FileKind::folder; }

bool UUCode::hasInput(const std::string& InFile) {
  if (isFile(InFile)) {
    return true;
  }
  prompts_.inform({.text = "Input file " + InFile + " does not exist!",
                   .title = "Input file does not exist...",
                   .icon = PromptIcon::exclamation});
  return false;
}

bool UUCode::ifMayWrite(const std::vector<std::string>& outFiles, const std::function<void()>& write) {
  const auto there = std::ranges::find_if(outFiles, [&](const std::string& file) { return isFile(file); });
  if (there == outFiles.end()) {
    write();
    return true;
  }
  const auto written = std::make_shared<bool>(false);
  const std::vector<std::string> others(there + 1, outFiles.end());
  prompts_.confirm(
      {.text = "Output file " + *there + " already exists.\r\nDo you wish to overwrite it?",
       .title = "Output Already File Exists...",
       .icon = PromptIcon::question,
       .destroys = true},
      [code = *this, others, write, written](bool yes) mutable { *written = yes && code.ifMayWrite(others, write); });
  return *written;
}

bool UUCode::UUEncodeFile(const std::string& InFile, const std::string& OutFile) {
  if (!hasInput(InFile)) {
    return false;
  }
  refuseOwnInput(files_, InFile, OutFile);
  return ifMayWrite({OutFile}, [&files = files_, InFile, OutFile] {
    const auto input = files.open(InFile);
    OutputFiles output(files);
    output.write(OutFile, InFile,
                 [&](const ByteSink& sink) { encodeInto(sink, *input, headerLine(InFile), kToTheEnd); });
    output.finish();
  });
}

bool UUCode::UUEncodeFiles(const std::string& InFile, const std::string& OutPath, std::int64_t MaxFileSize) {
  if (!hasInput(InFile)) {
    return false;
  }
  const std::string base = uuBaseName(fileName(InFile));
  if (base.empty()) {
    throw FileError(InFile, "The name has nothing before its first dot to name the output after. Rename the file.");
  }
  const std::uint64_t size = files_.sizeOf(InFile);
  const UuPlan plan = planFor(size, MaxFileSize, InFile);
  const auto pathOfPart = [&](std::uint64_t number) { return inFolder(OutPath, uuPartName(base, plan, number)); };
  if (plan.digits == 0) {
    return UUEncodeFile(InFile, pathOfPart(1));
  }
  std::vector<std::string> parts;
  for (std::uint64_t number = 1; number <= plan.count; ++number) {
    parts.push_back(pathOfPart(number));
    refuseOwnInput(files_, InFile, parts.back());
  }
  return ifMayWrite(parts, [&files = files_, InFile, parts, size, bytesEach = plan.bytesEach] {
    const auto input = files.open(InFile);
    OutputFiles output(files);
    std::uint64_t left = size;
    for (const std::string& part : parts) {
      const std::uint64_t most = std::min(bytesEach, left);
      output.write(part, InFile, [&](const ByteSink& sink) {
        if (encodeInto(sink, *input, headerLine(InFile), most) != most) {
          throw FileError(InFile, "The file has become shorter while it was read. Try again.");
        }
      });
      left -= most;
    }
    output.finish();
  });
}

bool UUCode::UUDecodeFile(const std::string& InFile, const std::string& OutFile) {
  if (!hasInput(InFile)) {
    return false;
  }
  refuseOwnInput(files_, InFile, OutFile);
  return ifMayWrite({OutFile}, [&files = files_, InFile, OutFile] {
    OutputFiles output(files);
    output.write(OutFile, InFile, [&](const ByteSink& sink) { decodeInto(sink, files, InFile); });
    output.finish();
  });
}

bool UUCode::UUDecodeFiles(const std::vector<std::string>& InFiles, const std::string& OutFile) {
  if (!std::all_of(InFiles.begin(), InFiles.end(), [&](const std::string& file) { return hasInput(file); })) {
    return false;
  }
  std::vector<UuPart> parts;
  std::transform(InFiles.begin(), InFiles.end(), std::back_inserter(parts),
                 [&](const std::string& file) { return partOf(files_, file); });
  const UuOrder order = orderUuParts(parts);
  if (!order.missing.empty()) {
    prompts_.inform({.text = missingParts(order), .title = "Part is missing...", .icon = PromptIcon::exclamation});
    return false;
  }
  for (const std::string& file : InFiles) {
    refuseOwnInput(files_, file, OutFile);
  }
  return ifMayWrite({OutFile}, [&files = files_, InFiles, OutFile, order] {
    OutputFiles output(files);
    output.write(OutFile, InFiles.front(), [&](const ByteSink& sink) {
      PartSizes sizes;
      for (const std::size_t index : order.indexes) {
        sizes.take(InFiles[index], decodeInto(sink, files, InFiles[index]));
      }
    });
    output.finish();
  });
}

bool UUCode::GetHeaderInfo(const std::string& InFile, std::string& Name) {
  std::string text;
  files_.open(InFile)->read(text, kHeaderSearchSize);
  return GetHeaderInfoFromStream(text, Name);
}

}  // namespace tarnwick
