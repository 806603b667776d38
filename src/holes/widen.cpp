// SPDX-License-Identifier: MIT
#include "holes/widen.h"

#include <algorithm>

#include "base/text.h"
#include "holes/classify.h"
#include "holes/date_form.h"
#include "holes/hole_values.h"

namespace tarnwick {
namespace {

/// The form that reads what all copies have there; nothing when there is none.
std::optional<std::string> formFor(const Copies& copies, const Region& region) {
  const auto values = copies.values(region);
  for (const std::string_view value : values) {
    const auto found = dateOver(value, 0, value.size());
    if (!found || found->begin != 0 || found->length != value.size()) {
      continue;
    }
    if (std::ranges::all_of(values, [&](std::string_view other) {
          const auto read = readDate(other, found->form);
          return read && read->length == other.size();
        })) {
      return found->form;
    }
  }
  return std::nullopt;
}

Hole dateHole(std::string form) { return {.kind = HoleClass::date, .form = std::move(form)}; }

bool widenToDate(Copies& copies, std::size_t index) {
  const Region& region = copies.places()[index].region;
  const auto found = dateOver(copies.first(), region.from.front(), region.to.front());
  if (!found) {
    return false;
  }
  const auto whole = copies.regionOf(found->begin, found->end());
  if (!whole) {
    return false;
  }
  const auto form = formFor(copies, *whole);
  if (!form) {
    return false;
  }
  copies.put({*whole, dateHole(*form)});
  return true;
}

/// What all values begin with, as far as it is no part of what varies: "sess_" of "sess_3f2a", "web" of "web1".
std::size_t fixedBeginning(std::span<const std::string_view> values) {
  std::size_t common = values.front().size();
  for (const std::string_view value : values) {
    common = std::min<std::size_t>(
        common, static_cast<std::size_t>(std::ranges::mismatch(value, values.front()).in1 - value.begin()));
  }
  const std::string_view beginning = values.front().substr(0, common);
  if (const std::size_t mark = beginning.find_last_of('_'); mark != std::string_view::npos) {
    return mark + 1;
  }
  const std::size_t letters =
      static_cast<std::size_t>(std::ranges::find_if_not(beginning, isLetter) - beginning.begin());
  if (letters == 0) {
    return 0;
  }
  const auto isDigitsAfter = [&](std::string_view value) {
    return value.size() > letters && std::ranges::all_of(value.substr(letters), isDigit);
  };
  return std::ranges::all_of(values, isDigitsAfter) ? letters : 0;
}

/// The letters that all values end with behind a number: "ms" of "12ms".
std::size_t fixedEnd(std::span<const std::string_view> values) {
  const std::string_view first = values.front();
  std::size_t letters = 0;
  while (letters < first.size() && isLetter(first[first.size() - 1 - letters])) {
    ++letters;
  }
  const std::string_view end = first.substr(first.size() - letters);
  const bool isNumber = letters > 0 && std::ranges::all_of(values, [&](std::string_view value) {
                          return value.size() > letters && value.ends_with(end) &&
                                 std::ranges::all_of(value.substr(0, value.size() - letters), isDigit);
                        });
  return isNumber ? letters : 0;
}

void takeFixedFromWord(Copies& copies, std::size_t index) {
  Region& region = copies.places()[index].region;
  const auto values = copies.values(region);
  const std::size_t left = fixedBeginning(values);
  for (std::size_t& from : region.from) {
    from += left;
  }
  const std::size_t right = fixedEnd(copies.values(region));
  for (std::size_t& to : region.to) {
    to -= right;
  }
}

std::size_t indexOf(const Copies& copies, std::size_t begin) {
  const auto& places = copies.places();
  return static_cast<std::size_t>(
      std::ranges::find_if(places, [&](const Place& place) { return place.region.to.front() >= begin; }) -
      places.begin());
}

}  // namespace

void widenToWhole(Copies& copies) {
  const bool binary = isBinary(copies.first());
  for (std::size_t index = 0; index < copies.places().size(); ++index) {
    if (copies.places()[index].known) {
      continue;
    }
    const std::size_t begin = copies.places()[index].region.from.front();
    if (widenToDate(copies, index) || (binary && widenToField(copies, index))) {
      index = indexOf(copies, begin);
      continue;
    }
    if (!binary && widenToNumbers(copies, index)) {
      index = indexOf(copies, begin);
    } else if (!binary) {
      takeFixedFromWord(copies, index);
    }
  }
}

void takeDatesBesideTimes(Copies& copies, std::chrono::year_month_day today) {
  constexpr std::size_t kNear = 96;
  for (std::size_t index = 0; index < copies.places().size(); ++index) {
    const Place& place = copies.places()[index];
    const bool isTime = place.known && place.known->kind == HoleClass::date &&
                        place.known->form.find("%H") != std::string::npos &&
                        place.known->form.find("%d") == std::string::npos;
    if (!isTime) {
      continue;
    }
    const std::size_t time = place.region.from.front();
    const std::size_t end = place.region.to.front();
    for (auto date = nextDate(copies.first(), time - std::min(time, kNear)); date && date->begin < end + kNear;
         date = nextDate(copies.first(), date->end())) {
      const auto read = readDate(copies.first().substr(date->begin), date->form);
      const auto whole = copies.regionOf(date->begin, date->end());
      if (date->hasDate && read && read->mayBeOn(today) && whole && (date->end() <= time || date->begin >= end)) {
        copies.put({*whole, dateHole(date->form)});
        break;
      }
    }
    index = indexOf(copies, end);
  }
}

}  // namespace tarnwick
