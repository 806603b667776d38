// SPDX-License-Identifier: MIT
#include "delivery/channel_preset.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <optional>
#include <stdexcept>

#include "base/text.h"
#include "base/visible_text.h"
#include "store/channel_table.h"

namespace tarnwick {
namespace {

constexpr const char* kFolder = "/channels";
constexpr const char* kEnd = ".txt";
/// More than any service wants, and little enough to be read at once.
constexpr std::size_t kLongestFile = 65536;
constexpr std::size_t kShown = 60;

/// Takes the text off, line by line.
std::string_view nextLine(std::string_view& text) {
  const std::size_t end = text.find('\n');
  const std::string_view line = trimmed(text.substr(0, end));
  text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  return line;
}

std::string valueOf(std::string_view written) {
  std::string value;
  for (std::size_t at = 0; at < written.size(); ++at) {
    if (written[at] != '\\') {
      value += written[at];
      continue;
    }
    const char sign = ++at < written.size() ? written[at] : '\0';
    if (sign != 'n' && sign != '\\') {
      throw std::runtime_error(R"(behind a backslash stands n, for a line end, or a second backslash)");
    }
    value += sign == 'n' ? '\n' : '\\';
  }
  return value;
}

class PresetReader {
 public:
  explicit PresetReader(const std::string& name) { preset_.name = lowerCase(name); }

  void take(std::string_view line) {
    const std::size_t sign = line.find('=');
    if (sign == std::string_view::npos) {
      throw std::runtime_error("\"" + visibleText(line, kShown) + "\" has no \"=\" between a name and a value");
    }
    const std::string name = lowerCase(std::string(trimmed(line.substr(0, sign))));
    const std::string value = valueOf(trimmed(line.substr(sign + 1)));
    if (std::string* const text = placeOf(name)) {
      set(name, *text, oneLine(name, value));
      return;
    }
    const OptionField& field = channelField(channelKind(channel_kind::hook), visibleText(name, kShown));
    set(field.name, preset_.settings[field.name], field.checked(value));
  }

  ChannelPreset finish() && {
    if (preset_.label.empty()) {
      preset_.label = preset_.name;
    }
    const auto address = preset_.settings.find(channel_field::address);
    if (address == preset_.settings.end()) {
      throw std::runtime_error("there is no address: give an example of one, as in address = https://example.org/");
    }
    return std::move(preset_);
  }

 private:
  std::string* placeOf(std::string_view name) {
    return name == "label"    ? &preset_.label
           : name == "about"  ? &preset_.about
           : name == "secret" ? &preset_.secret
                              : nullptr;
  }

  static std::string oneLine(const std::string& name, const std::string& value) {
    if (visibleText(value) != value) {
      throw std::runtime_error(name + " is for people: give it one line of text");
    }
    return value;
  }

  static void set(const std::string& name, std::string& place, std::string value) {
    if (!place.empty()) {
      throw std::runtime_error(name + " is given twice");
    }
    place = std::move(value);
  }

  ChannelPreset preset_;
};

std::string bytesOf(FileSystem& files, const std::string& path) {
  if (files.sizeOf(path) > kLongestFile) {
    throw std::runtime_error("The file \"" + visibleText(path) + "\" is too long for a preset of a web hook.");
  }
  std::string bytes;
  FileSystem::readAll(*files.open(path), [&](std::string_view some) { bytes += some; });
  return bytes;
}

/// The files of its presets; none without such a folder.
std::vector<std::string> filesIn(const std::string& folder) {
  std::vector<std::string> names;
  std::error_code fault;
  for (std::filesystem::directory_iterator entry(pathOf(folder), fault), end; !fault && entry != end;
       entry.increment(fault)) {
    const std::string name = textOf(entry->path().filename());
    if (lowerCase(name).ends_with(kEnd) && !name.starts_with('.')) {
      names.push_back(name);
    }
  }
  std::ranges::sort(names);
  return names;
}

std::string nameOf(const std::string& file) { return file.substr(0, file.rfind('.')); }

std::string headerName(std::string_view line) { return lowerCase(std::string(line.substr(0, line.find(':')))); }

std::string withHeaders(std::string_view preset, const std::string& own) {
  std::vector<std::string> names;
  for (std::string_view rest = own; !rest.empty();) {
    names.push_back(headerName(nextLine(rest)));
  }
  std::string all;
  while (!preset.empty()) {
    const std::string_view line = nextLine(preset);
    if (std::ranges::find(names, headerName(line)) == names.end()) {
      all.append(line).append("\n");
    }
  }
  return all + own;
}

}  // namespace

ChannelPreset readPreset(const std::string& name, std::string_view text) {
  PresetReader reader(name);
  std::size_t number = 0;
  const auto where = [&] { return "The preset " + visibleText(name, kShown) + ", line " + std::to_string(number); };
  try {
    while (!text.empty()) {
      const std::string_view line = nextLine(text);
      ++number;
      if (!line.empty() && !line.starts_with('#')) {
        reader.take(line);
      }
    }
    return std::move(reader).finish();
  } catch (const std::runtime_error& error) {
    const std::string why = visibleText(error.what());  // it may name a value, of which any byte may be a part
    throw std::runtime_error(where() + ": " + why + (why.ends_with('.') ? "" : "."));
  }
}

const ChannelPreset& ChannelPresets::preset(std::string_view name) const {
  const auto found = std::ranges::find_if(
      presets, [&](const ChannelPreset& one) { return equalsIgnoringCase(one.name, trimmed(name)); });
  if (found == presets.end()) {
    std::string names;
    for (const ChannelPreset& one : presets) {
      names += (names.empty() ? "" : ", ") + one.name;
    }
    throw std::runtime_error("There is no preset \"" + visibleText(name, kShown) +
                             "\". The presets are: " + (names.empty() ? "none" : names) + ".");
  }
  return *found;
}

ChannelPresets readPresets(FileSystem& files, const std::string& installation, const std::string& programFolder) {
  std::map<std::string, ChannelPreset> byName;
  ChannelPresets all;
  std::vector<std::string> folders{installation};
  if (programFolder != installation) {
    folders.push_back(programFolder);
  }
  for (const std::string& folder : folders) {
    const std::string place = folder + kFolder;
    const std::string within = place + "/";
    for (const std::string& file : filesIn(place)) {
      try {
        ChannelPreset preset = readPreset(nameOf(file), bytesOf(files, std::string(within).append(file)));
        byName.insert_or_assign(preset.name, std::move(preset));
      } catch (const std::exception& error) {
        all.faults.emplace_back(error.what());
      }
    }
  }
  for (auto& [name, preset] : byName) {
    all.presets.push_back(std::move(preset));
  }
  return all;
}

OptionValues withPreset(const ChannelPreset& preset, OptionValues own) {
  const auto headers = own.find(channel_field::headers);
  const auto further = preset.settings.find(channel_field::headers);
  if (headers != own.end() && further != preset.settings.end()) {
    headers->second = withHeaders(further->second, headers->second);
  }
  own.insert(preset.settings.begin(), preset.settings.end());
  return own;
}

}  // namespace tarnwick
