// SPDX-License-Identifier: MIT
#include "store/option_table.h"

#include <algorithm>
#include <charconv>
#include <stdexcept>

#include "base/text.h"

namespace tarnwick {
namespace {

std::string inWords(const std::vector<std::string>& choices) {
  std::string words;
  for (const std::string& choice : choices) {
    words += (words.empty() ? "\"" : " or \"") + choice + "\"";
  }
  return words;
}

const std::vector<std::string>& words(const OptionField& option) {
  static const std::vector<std::string> flag{"on", "off"};
  return option.kind == OptionKind::flag ? flag : option.choices;
}

}  // namespace

std::string OptionField::values() const {
  switch (kind) {
    case OptionKind::number:
      return "a whole number from " + std::to_string(least) + " to " + std::to_string(most) +
             (unit.empty() ? std::string() : " (" + unit + ")") + (choices.empty() ? "" : " or " + inWords(choices));
    case OptionKind::text:
      return "a text";
    case OptionKind::flag:
    case OptionKind::choice:
      break;
  }
  return inWords(words(*this));
}

std::string OptionField::checked(std::string_view value) const {
  if (kind == OptionKind::text && !value.empty()) {
    return std::string(value);
  }
  if (kind == OptionKind::number) {
    std::int64_t number = 0;
    const char* const end = value.data() + value.size();
    const auto [rest, fault] = std::from_chars(value.data(), end, number);
    if (fault == std::errc() && rest == end && number >= least && number <= most) {
      return std::to_string(number);
    }
  }
  if (kind != OptionKind::text) {
    const auto word =
        std::ranges::find_if(words(*this), [&](const std::string& known) { return equalsIgnoringCase(known, value); });
    if (word != words(*this).end()) {
      return *word;
    }
  }
  throw std::runtime_error("The option " + name + " does not take \"" + std::string(value) + "\". It takes " +
                           values() + ".");
}

const std::vector<OptionField>& programOptions() {
  static const std::vector<OptionField> options{
      {.name = std::string(option_name::newSites),
       .kind = OptionKind::choice,
       .choices = {std::string(option_value::atOnce), "at the next start"},
       .recommended = std::string(option_value::atOnce),
       .original = "a site that was never checked is not taken on before the next Start",
       .label = "New sites",
       .meaning = "When a run takes on a site that was never checked"},
      {.name = std::string(option_name::adopt),
       .kind = OptionKind::choice,
       .ofSite = true,
       .choices = {std::string(option_value::pagesOnly), "anything"},
       .recommended = std::string(option_value::pagesOnly),
       .original = "the first answer becomes the baseline, also the text of a fetch that failed",
       .label = "First baseline",
       .meaning =
           "What becomes the baseline of a site that has none; with \"pages only\" a fetch that failed does not"},
      {.name = std::string(option_name::mailLimit),
       .kind = OptionKind::number,
       .least = 1,
       .most = 3600,
       .unit = "seconds",
       .recommended = "60",
       .original = "a mail server that stays silent is waited for without end",
       .label = "Mail exchange at most",
       .meaning = "The longest time that handing over one mail may take, connecting included"},
      {.name = std::string(option_name::logLimit),
       .kind = OptionKind::number,
       .least = 1,
       .most = 1048576,
       .unit = "MiB",
       .recommended = "1024",
       .original = "the log keeps the page of every failed check, and the disk may fill",
       .label = "Pages in the log at most",
       .meaning =
           "How much the log holds of pages; the oldest are emptied first, and no page is stored while less than "
           "1 GiB or 5 % of the disk is free"},
      {.name = std::string(option_name::parallel),
       .kind = OptionKind::number,
       .least = 5,
       .most = 256,
       .choices = {std::string(option_value::automatic)},
       .original = "five sites are fetched at a time",
       .label = "Requests at a time",
       .meaning = "How many sites are fetched at the same time; with \"auto\" as many as their answers bear"},
      {.name = std::string(option_name::perHost),
       .kind = OptionKind::number,
       .least = 1,
       .most = 256,
       .original = "2 where parallel is more than 5, else there is no such limit",
       .label = "Requests at a time to one host",
       .meaning = "How many pages of one host are fetched at the same time"},
      {.name = std::string(option_name::spacing),
       .kind = OptionKind::number,
       .least = 0,
       .most = 60000,
       .unit = "milliseconds",
       .original = "250 where parallel is more than 5, else there is no such pause",
       .label = "Pause between requests to one host",
       .meaning = "The least time between the starts of two requests to one host"},
  };
  return options;
}

}  // namespace tarnwick
