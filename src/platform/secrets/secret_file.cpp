// SPDX-License-Identifier: MIT
#include "platform/secrets/secret_file.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "base/base64.h"

namespace tarnwick {
namespace {

constexpr std::string_view kHeading =
    "# Passwords and tokens of Tarnwick, for you alone: whoever reads this file has them.";
constexpr std::string_view kPlain = "base64";
constexpr std::string_view kRing = "keyring";

/// "base64 c2VjcmV0 name of it": the kind, the value, the name.
struct Line {
  explicit Line(std::string_view text) {
    const auto first = text.find(' ');
    const auto second = first == std::string_view::npos ? first : text.find(' ', first + 1);
    if (second != std::string_view::npos) {
      kind = text.substr(0, first);
      value = text.substr(first + 1, second - first - 1);
      name = text.substr(second + 1);
    }
  }
  bool names(std::string_view wanted) const { return (kind == kPlain || kind == kRing) && name == wanted; }

  std::string_view kind{};
  std::string_view value{};
  std::string_view name{};
};

}  // namespace

SecretFile::SecretFile(FileSystem& files, const std::string& path) : files_(files), path_(path) {
  if (!files.exists(path)) {
    return;
  }
  std::string all;
  const auto file = files.open(path);
  FileSystem::readAll(*file, [&all](std::string_view bytes) { all += bytes; });
  for (std::string_view rest = all; !rest.empty();) {
    const auto end = std::min(rest.find('\n'), rest.size());
    lines_.emplace_back(rest.substr(0, end));
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

std::optional<SecretFile::Entry> SecretFile::find(const std::string& name) const {
  const auto found = std::ranges::find_if(lines_, [&](const std::string& line) { return Line(line).names(name); });
  if (found == lines_.end()) {
    return std::nullopt;
  }
  const Line line(*found);
  const bool inKeyRing = line.kind == kRing;
  return Entry{inKeyRing ? std::string(line.value) : decodeBase64(line.value), inKeyRing};
}

void SecretFile::set(const std::string& name, const std::optional<Entry>& entry) {
  const auto before = lines_.size();
  std::erase_if(lines_, [&](const std::string& line) { return Line(line).names(name); });
  if (entry) {
    if (lines_.empty()) {
      lines_.emplace_back(kHeading);
    }
    lines_.push_back(std::string(entry->inKeyRing ? kRing : kPlain) + ' ' +
                     (entry->inKeyRing ? entry->value : encodeBase64(entry->value)) + ' ' + name);
  } else if (lines_.size() == before) {
    return;
  }
  files_.writePrivately(path_, [this](const ByteSink& sink) {
    for (const std::string& line : lines_) {
      sink(line);
      sink("\n");
    }
  });
}

}  // namespace tarnwick
