// SPDX-License-Identifier: MIT
#include "base/wording.h"

#include <algorithm>
#include <optional>

namespace tarnwick {
namespace {

// Longer lines are no messages, and reading them would take its time.
constexpr std::size_t kLongestLine = 2000;
constexpr std::size_t kLongestSentences = 600;
constexpr std::string_view kBlanks = " \t\r";

using Values = std::vector<std::string_view>;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::size_t lettersIn(std::string_view text) {
  return text.size() - static_cast<std::size_t>(std::ranges::count(text, ' '));
}

// The fixed texts of a template. Where no value is next, a percent sign is one.
std::vector<std::string> fixedTexts(std::string_view text) {
  std::vector<std::string> between(1);
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isSign = text[at] == '%' && at + 1 < text.size();
    if (isSign && text[at + 1] == '%') {
      between.back() += '%';
      ++at;
    } else if (isSign && static_cast<std::size_t>(text[at + 1] - '0') == between.size()) {
      between.emplace_back();
      ++at;
    } else {
      between.back() += text[at];
    }
  }
  return between;
}

std::string filledIn(std::string_view translation, const std::vector<std::string>& values) {
  std::string text;
  for (std::size_t at = 0; at < translation.size(); ++at) {
    const char next = translation[at] == '%' && at + 1 < translation.size() ? translation[at + 1] : '\0';
    const auto value = static_cast<std::size_t>(next - '0');
    if (next == '%') {
      text += '%';
      ++at;
    } else if (isDigit(next) && value >= 1 && value <= values.size()) {
      text += values[value - 1];
      ++at;
    } else {
      text += translation[at];
    }
  }
  return text;
}

// What was taken from a page or typed by a user.
bool isQuoted(std::string_view text) { return text.size() > 1 && text.starts_with('"') && text.ends_with('"'); }

// What stands in `text` between the fixed texts; nothing when it does not have them.
std::optional<Values> valuesIn(std::string_view text, const std::vector<std::string>& between) {
  if (!text.starts_with(between.front()) || !text.ends_with(between.back())) {
    return std::nullopt;
  }
  Values values;
  std::size_t at = between.front().size();
  for (std::size_t next = 1; next < between.size(); ++next) {
    const bool isLast = next + 1 == between.size();
    const std::size_t end = isLast ? text.size() - between[next].size() : text.find(between[next], at + 1);
    if (end == std::string_view::npos || end <= at || end > text.size()) {
      return std::nullopt;
    }
    values.push_back(text.substr(at, end - at));
    at = end + between[next].size();
  }
  return values;
}

}  // namespace

/// One line on its way into another language. The same piece of it is asked for again and again.
class Wording::Reading {
 public:
  explicit Reading(const Wording& wording) : wording_(wording) {}

  std::string of(std::string_view line) { return read(line).text; }

 private:
  struct Result {
    std::string text;
    std::size_t explained = 0;
  };

  const Result& read(std::string_view text) {
    const auto [found, isNew] = known_.try_emplace(text, Result{std::string(text)});
    if (isNew) {
      found->second = readAnew(text);
    }
    return found->second;
  }

  Result readAnew(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(kBlanks), text.size());
    const std::size_t end = text.find_last_not_of(kBlanks) + 1;
    if (begin > 0 || end < text.size()) {
      return begin >= end ? Result{std::string(text)}
                          : joined({std::string(text.substr(0, begin))}, read(text.substr(begin, end - begin)),
                                   text.substr(end));
    }
    if (isQuoted(text)) {
      return {std::string(text)};
    }
    if (const auto whole = wording_.whole_.find(text); whole != wording_.whole_.end()) {
      return {whole->second, lettersIn(text)};
    }
    Result best{std::string(text)};
    for (const Template& one : wording_.templates_) {
      if (const auto values = valuesIn(text, one.between)) {
        keepBetter(best, withValues(one, *values));
      }
    }
    for (std::size_t at = text.size() > kLongestSentences ? std::string_view::npos : text.find(' ');
         at != std::string_view::npos; at = text.find(' ', at + 1)) {
      if (at > 0 && std::string_view(".!?").find(text[at - 1]) != std::string_view::npos) {
        keepBetter(best, joined(joined(read(text.substr(0, at)), {}, " "), read(text.substr(at + 1)), {}));
      }
    }
    return best;
  }

  Result withValues(const Template& one, const Values& values) {
    std::size_t explained = one.weight;
    std::vector<std::string> texts;
    for (const std::string_view value : values) {
      const Result& result = read(value);
      explained += result.explained;
      texts.push_back(result.text);
    }
    return {filledIn(one.translation, texts), explained};
  }

  static Result joined(const Result& first, const Result& second, std::string_view end) {
    return {first.text + second.text + std::string(end), first.explained + second.explained};
  }

  static void keepBetter(Result& best, Result other) {
    if (other.explained > best.explained) {
      best = std::move(other);
    }
  }

  const Wording& wording_;
  std::map<std::string_view, Result> known_;
};

Wording::Wording(const std::vector<Entry>& entries) {
  for (const auto& [text, translation] : entries) {
    std::vector<std::string> between = fixedTexts(text);
    if (between.size() == 1) {
      whole_.emplace(between.front(), filledIn(translation, {}));
      continue;
    }
    std::size_t weight = 0;
    for (const std::string& fixed : between) {
      weight += lettersIn(fixed);
    }
    templates_.push_back({std::move(between), weight, translation});
  }
}

std::string Wording::operator()(std::string_view text) const {
  if (isEmpty()) {
    return std::string(text);
  }
  std::string worded;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find('\n', begin), text.size());
    const std::string_view line = text.substr(begin, end - begin);
    worded += line.size() > kLongestLine ? std::string(line) : Reading(*this).of(line);
    worded += text.substr(end, 1);
    begin = end + 1;
  }
  return worded;
}

}  // namespace tarnwick
