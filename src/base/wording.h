// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tarnwick {

/// Under which name the catalogues of the languages keep the messages of the rooms that know no language.
inline constexpr const char* kMessages = "Messages";

/// The messages of the program in the user's language. The rooms below window and terminal word, record and send them
/// in English; whoever shows one passes it through here. A message is found by its template, in which %1 to %9 stand
/// for what the program puts in, each once and in this order, and %% for a percent sign.
class Wording {
 public:
  /// A template, and the same in the user's language: there its values stand wherever they belong.
  using Entry = std::pair<std::string, std::string>;

  /// Leaves every text as it is.
  Wording() = default;
  explicit Wording(const std::vector<Entry>& entries);

  /// `text` in the user's language, line by line: the template that explains most of it, its values translated in turn,
  /// or else its sentences one by one. What no template knows stays as it is, byte for byte.
  std::string operator()(std::string_view text) const;

  bool isEmpty() const { return whole_.empty() && templates_.empty(); }

 private:
  class Reading;
  struct Template {
    std::vector<std::string> between;  ///< the fixed texts before, between and behind the values
    std::size_t weight = 0;            ///< how much of a text they explain
    std::string translation;
  };

  std::map<std::string, std::string, std::less<>> whole_;
  std::vector<Template> templates_;
};

}  // namespace tarnwick
