// SPDX-License-Identifier: MIT
#include "exchange/list/site_list.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <utility>

#include "base/base64.h"
#include "base/decode_error.h"
#include "base/text.h"
#include "base/visible_text.h"
#include "platform/clock.h"
#include "platform/transfer_control.h"

namespace tarnwick {
namespace {

constexpr std::size_t kLongestQuoted = 60;
constexpr std::int16_t kHighest = std::numeric_limits<std::int16_t>::max();

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> words) {
  return std::ranges::any_of(words, [&](std::string_view word) { return equalsIgnoringCase(text, word); });
}

std::string summaryOf(const ListFaults& faults) {
  const std::size_t count = faults.count();
  return "The file has " + std::to_string(count) + (count == 1 ? " fault" : " faults");
}

}  // namespace

ListForm::ListForm(const Fields& fields) : fields_(fields) {
  using enum ListField::Role;
  all_.push_back({std::string(list_name::idSite), idSite});
  for (const SiteField& field : fields.site) {
    all_.push_back({field.name, siteField, &field});
  }
  all_.push_back({std::string(list_name::postVars), postVars});
  all_.push_back({std::string(list_name::baseline), baseline});
  all_.push_back({std::string(list_name::options), options});
  all_.push_back({std::string(list_name::rules), rules});
  all_.push_back({std::string(list_name::tags), tags});
  all_.push_back({std::string(list_name::kept), kept});
  all_.push_back({std::string(list_name::history), history});
}

const ListField* ListForm::find(std::string_view name) const {
  const auto found =
      std::ranges::find_if(all_, [&](const ListField& known) { return equalsIgnoringCase(known.name, name); });
  return found == all_.end() ? nullptr : &*found;
}

std::string ListForm::names() const {
  std::string names;
  for (const ListField& field : all_) {
    names += (names.empty() ? "" : ", ") + field.name;
  }
  return names;
}

void ListFaults::add(std::size_t line, std::string text) {
  ++count_;
  if (faults_.size() < kMostKept) {
    faults_.push_back({line, std::move(text)});
  }
}

std::vector<ListFaults::Fault> ListFaults::kept() const {
  std::vector<Fault> sorted = faults_;
  std::ranges::stable_sort(sorted, {}, &Fault::line);
  return sorted;
}

SiteListError::SiteListError(const ListFaults& faults) : std::runtime_error(summaryOf(faults)), faults_(faults) {}

std::optional<std::int16_t> ListValues::number(std::string_view text, std::string_view field,
                                               const std::string& remedy) {
  const std::string name(field);
  const std::string_view digits = withoutBlanks(text);
  const std::string_view unsignedPart = digits.starts_with('-') ? digits.substr(1) : digits;
  if (unsignedPart.empty() || unsignedPart.find_first_not_of("0123456789") != std::string_view::npos) {
    fault(name + " " + quotedForMessage(text) + " is no whole number: " + remedy);
    return std::nullopt;
  }
  std::int32_t value = 0;
  const auto [end, cause] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (cause != std::errc() || value < 1 || value > kHighest) {
    fault(name + " " + quotedForMessage(digits) + " is outside 1 to " + std::to_string(kHighest) + ": " + remedy);
    return std::nullopt;
  }
  return static_cast<std::int16_t>(value);
}

std::optional<std::int16_t> ListValues::id(std::string_view text) {
  return number(text, list_name::idSite, "give the site's id, or leave it out to add the site as a new one");
}

std::optional<std::string> ListValues::interval(const std::string& name, std::string_view text) {
  const auto minutes = number(text, name, "give the whole minutes between two checks");
  return minutes ? std::optional(std::to_string(*minutes)) : std::nullopt;
}

std::optional<bool> ListValues::yesNo(const std::string& name, std::string_view text) {
  const std::string_view word = withoutBlanks(text);
  if (isOneOf(word, {"true", "yes", "on", "1"})) {
    return true;
  }
  if (isOneOf(word, {"false", "no", "off", "0"})) {
    return false;
  }
  fault(name + " " + quotedForMessage(text) + " is neither yes nor no: give True or False");
  return std::nullopt;
}

std::optional<std::string> ListValues::method(const std::string& name, std::string_view text) {
  if (isOneOf(text, {"get", "post"})) {
    return std::string(text);
  }
  fault(name + " " + quotedForMessage(text) + " is none that is sent: give get or post");
  return std::nullopt;
}

std::optional<FieldValue> ListValues::value(const SiteField& field, std::string text) {
  switch (field.kind) {
    case FieldKind::flag:
      return yesNo(field.name, text);
    case FieldKind::method:
      return method(field.name, text);
    case FieldKind::minutes:
      return interval(field.name, text);
    default:
      return text;
  }
}

void ListValues::option(const Fields& fields, OptionValues& options, std::string_view name, std::string_view text) {
  const auto option = std::ranges::find_if(
      fields.options, [&](const OptionField& known) { return equalsIgnoringCase(known.name, name); });
  if (option == fields.options.end()) {
    fault("there is no option " + quotedForMessage(name) + ": they are listed by tarnwickctl option --help");
    return;
  }
  if (options.contains(option->name)) {
    fault("the option " + option->name + " is given twice: leave one of them out");
    return;
  }
  try {
    options[option->name] = option->checked(text);
  } catch (const std::runtime_error&) {
    fault("the option " + option->name + " does not take " + quotedForMessage(text) + ": give " + option->values());
  }
}

void ListValues::rule(RuleSet& rules, std::string_view text) {
  if (!addLine(rules, text)) {
    fault("the rule " + quotedForMessage(text) +
          " is none: give it as an export writes it, for instance \"leave out css div.clock\"");
  }
}

void ListValues::tag(Tags& tags, std::string_view text) {
  if (const std::string wrong = faultOfTag(text); !wrong.empty()) {
    fault(wrong.substr(0, wrong.size() - 1));
    return;
  }
  tags = withTags(std::move(tags), {std::string(text)});
}

void ListValues::kept(std::vector<ListedBaseline>& baselines, std::string_view text) {
  constexpr std::size_t kStamp = 19;
  const std::string_view word = text.substr(0, text.find(' '));
  const std::string_view rest = text.substr(std::min(text.size(), word.size() + 1));
  const auto origin = baselineOriginOf(word);
  const std::string taken(rest.substr(0, kStamp));
  try {
    if (origin && parseDateTime(taken) && rest.substr(kStamp).starts_with(' ')) {
      if (auto page = baseline(decodeBase64(rest.substr(kStamp + 1)))) {
        baselines.push_back({taken, *origin, std::move(*page)});
      }
      return;
    }
  } catch (const DecodeError&) {
    // As any other that is none.
  }
  fault("the kept baseline " + quotedForMessage(text) + " is none: give it as an export writes it");
}

std::string textOf(const ListedBaseline& baseline) {
  return std::string(wordOf(baseline.origin)) + " " + baseline.taken + " " + encodeBase64(baseline.page);
}

std::optional<std::string> ListValues::baseline(std::string bytes) {
  if (bytes.size() > kLargestPage) {
    fault("the baseline is larger than the largest page that is fetched, 64 MiB: leave it out");
    return std::nullopt;
  }
  return bytes;
}

std::string quotedForMessage(std::string_view text) { return '"' + visibleText(text, kLongestQuoted) + '"'; }

std::string_view withoutBlanks(std::string_view text) { return trimmed(text, " \t"); }

}  // namespace tarnwick
