// SPDX-License-Identifier: MIT
#include "exchange/foreign/list_packing.h"

#include <chrono>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <type_traits>
#include <utility>

namespace tarnwick {
namespace {

/// Both directions in one: each thing is named once, so that they cannot differ. Numbers and sizes are 64 bits.
class Packer {
 public:
  static constexpr bool reading = false;
  std::string bytes;

  void number(std::uint64_t& value) { bytes.append(reinterpret_cast<const char*>(&value), sizeof value); }
  void text(std::string& value) {
    std::uint64_t size = value.size();
    number(size);
    bytes += value;
  }
};

class Unpacker {
 public:
  static constexpr bool reading = true;
  explicit Unpacker(std::string_view bytes) : rest_(bytes) {}

  void number(std::uint64_t& value) {
    const std::string_view taken = next(sizeof value);
    std::memcpy(&value, taken.data(), sizeof value);
  }
  void text(std::string& value) {
    std::uint64_t size = 0;
    number(size);
    value = next(size);
  }

 private:
  std::string_view next(std::uint64_t size) {
    if (size > rest_.size()) {
      throw std::runtime_error("The list was not handed over whole.");
    }
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(size);
    return taken;
  }

  std::string_view rest_;
};

template <typename Way>
void pack(Way& way, std::string& value) {
  way.text(value);
}

template <typename Way, typename Number>
requires(std::is_integral_v<Number>) void pack(Way& way, Number& value) {
  auto wide = static_cast<std::uint64_t>(value);
  way.number(wide);
  value = static_cast<Number>(wide);
}

template <typename Way, typename Element>
void pack(Way& way, std::vector<Element>& values) {
  std::uint64_t count = values.size();
  way.number(count);
  if constexpr (Way::reading) {
    values.clear();
    for (std::uint64_t i = 0; i < count; ++i) {
      pack(way, values.emplace_back());
    }
  } else {
    for (Element& value : values) {
      pack(way, value);
    }
  }
}

template <typename Way, typename Value>
void pack(Way& way, std::optional<Value>& value) {
  bool given = value.has_value();
  pack(way, given);
  if (given) {
    pack(way, value ? *value : value.emplace());
  }
}

template <typename Way>
void pack(Way& way, std::map<std::string, std::string, std::less<>>& values) {
  std::vector<std::pair<std::string, std::string>> pairs(values.begin(), values.end());
  pack(way, pairs);
  values = {pairs.begin(), pairs.end()};
}

template <typename Way>
void pack(Way& way, std::pair<std::string, std::string>& value) {
  pack(way, value.first);
  pack(way, value.second);
}

template <typename Way>
void pack(Way& way, PostVar& value) {
  pack(way, value.name);
  pack(way, value.value);
}

template <typename Way>
void pack(Way& way, ListFields& fields) {
  std::vector<std::string> names = fields.names();
  pack(way, names);
  for (const std::string& name : names) {
    fields.set(name);
  }
}

template <typename Way>
void pack(Way& way, SiteDraft& site) {
  for (std::string* text : {&site.url, &site.method, &site.tInterval, &site.email, &site.sUserName, &site.sPassWord}) {
    pack(way, *text);
  }
  pack(way, site.active);
  pack(way, site.alertEmail);
  pack(way, site.further);
}

template <typename Way>
void pack(Way& way, CheckedState& state) {
  pack(way, state.lastChecked);
  pack(way, state.status);
  pack(way, state.success);
  pack(way, state.failure);
  pack(way, state.contentRuntime);
}

template <typename Way>
void pack(Way& way, Setting& setting) {
  bool isFlag = std::holds_alternative<bool>(setting.value);
  pack(way, setting.key);
  pack(way, isFlag);
  if (isFlag) {
    pack(way, Way::reading ? setting.value.emplace<bool>() : std::get<bool>(setting.value));
  } else {
    pack(way, Way::reading ? setting.value.emplace<std::string>() : std::get<std::string>(setting.value));
  }
}

template <typename Way>
void pack(Way& way, LogRow& row) {
  pack(way, row.idSite);
  pack(way, row.url);
  pack(way, row.status);
  pack(way, row.errCode);
  pack(way, row.errDescription);
  pack(way, row.dateStamp);
  pack(way, row.content);
}

template <typename Way>
void pack(Way& way, RuleSet& rules) {
  std::vector<std::pair<std::string, std::string>> lines;
  for (RuleLine& line : linesOf(rules)) {
    lines.emplace_back(std::move(line.kind), std::move(line.rule));
  }
  pack(way, lines);
  rules = {};
  for (const auto& [kind, rule] : lines) {
    addLine(rules, kind, rule);
  }
}

template <typename Way>
void pack(Way& way, ListedChannel& listed) {
  pack(way, listed.channel.id);
  pack(way, listed.channel.name);
  pack(way, listed.channel.kind);
  pack(way, listed.channel.on);
  pack(way, listed.channel.forAll);
  pack(way, listed.channel.settings);
  pack(way, listed.secret);
}

template <typename Way>
void pack(Way& way, ListedBaseline& kept) {
  bool isFurther = kept.origin == BaselineOrigin::also;
  pack(way, kept.taken);
  pack(way, isFurther);
  pack(way, kept.page);
  kept.origin = isFurther ? BaselineOrigin::also : BaselineOrigin::replaced;
}

template <typename Way, typename Number, typename Unit>
void pack(Way& way, std::chrono::duration<Number, Unit>& time) {
  Number count = time.count();
  pack(way, count);
  time = std::chrono::duration<Number, Unit>(count);
}

template <typename Way>
void pack(Way& way, Moment& moment) {
  auto time = moment.time_since_epoch();
  pack(way, time);
  moment = Moment(time);
}

template <typename Way>
void pack(Way& way, LatestCheck& check) {
  pack(way, check.at);
  pack(way, check.up);
  pack(way, check.until);
}

template <typename Way>
void pack(Way& way, KnownTime& row) {
  pack(way, row.time.from);
  pack(way, row.time.until);
  pack(way, row.sum.checks);
  pack(way, row.sum.up);
  pack(way, row.sum.down);
  pack(way, row.sum.tookInAll);
  pack(way, row.sum.slowest);
  std::string latency = row.sum.latency.packed();
  pack(way, latency);
  row.sum.latency = Latency::unpacked(latency);
}

template <typename Way>
void pack(Way& way, Outage& outage) {
  pack(way, outage.began);
  pack(way, outage.ended);
  pack(way, outage.checks);
  pack(way, outage.cause);
}

template <typename Way>
void pack(Way& way, KeptHistory& history) {
  pack(way, history.latest);
  pack(way, history.hours);
  pack(way, history.days);
  pack(way, history.months);
  pack(way, history.outages);
}

template <typename Way>
void pack(Way& way, ListedSite& site) {
  pack(way, site.line);
  pack(way, site.idSite);
  pack(way, site.site);
  pack(way, site.postVars);
  pack(way, site.baseline);
  pack(way, site.options);
  pack(way, site.channels);
  pack(way, site.rules);
  pack(way, site.tags);
  pack(way, site.kept);
  pack(way, site.history);
  pack(way, site.state);
  pack(way, site.given);
}

template <typename Way>
void pack(Way& way, ForeignNote& note) {
  pack(way, note.line);
  pack(way, note.subject);
  pack(way, note.things);
  pack(way, note.leftOut);
}

template <typename Way>
void pack(Way& way, ListFaults::Fault& fault) {
  pack(way, fault.line);
  pack(way, fault.text);
}

template <typename Way>
void pack(Way& way, ListFaults& faults) {
  std::vector<ListFaults::Fault> kept = faults.kept();
  std::uint64_t count = faults.count();
  pack(way, kept);
  pack(way, count);
  if constexpr (Way::reading) {
    for (std::uint64_t i = 0; i < count; ++i) {
      const bool named = i < kept.size();
      faults.add(named ? kept[i].line : 0, named ? std::move(kept[i].text) : std::string());
    }
  }
}

template <typename Way>
void pack(Way& way, ReadList& read) {
  pack(way, read.word);
  pack(way, read.list.foreign);
  pack(way, read.list.content.sites);
  pack(way, read.list.content.notes);
  pack(way, read.list.content.settings);
  pack(way, read.list.content.log);
  pack(way, read.faults);
}

}  // namespace

std::string packed(ReadList list) {
  Packer packer;
  std::string noFailure;
  pack(packer, noFailure);
  pack(packer, list);
  return std::move(packer.bytes);
}

std::string packedFailure(const std::string& message) {
  Packer packer;
  std::string failure = message;
  pack(packer, failure);
  return std::move(packer.bytes);
}

ReadList unpacked(const std::string& bytes) {
  Unpacker unpacker(bytes);
  std::string failure;
  pack(unpacker, failure);
  if (!failure.empty()) {
    throw std::runtime_error(failure);
  }
  ReadList list;
  pack(unpacker, list);
  return list;
}

}  // namespace tarnwick
