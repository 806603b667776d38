// SPDX-License-Identifier: MIT
#include "ui/controls/option_edit.h"

namespace tarnwick {
namespace {

std::optional<std::string> taken(const OptionValues& values, std::string_view name) {
  const auto value = values.find(name);
  // All sites' options are taken at least of those that one may have.
  return value == values.end() ? std::nullopt : takenOption(programOptions(), kAllSites, name, value->second);
}

OptionValues takenOf(const OptionValues& values) {
  OptionValues all;
  for (const auto& [name, value] : values) {
    if (const auto known = taken(values, name)) {
      all.emplace(name, *known);
    }
  }
  return all;
}

}  // namespace

std::optional<std::string> OptionEdit::ownOf(std::string_view name) const { return taken(own_, name); }

std::optional<std::string> OptionEdit::defaultOf(std::string_view name) const { return taken(defaults_, name); }

std::optional<std::string> OptionEdit::inForce(std::string_view name) const {
  const auto own = ownOf(name);
  return own ? own : defaultOf(name);
}

OptionsInForce OptionEdit::options() const {
  OptionValues all = takenOf(defaults_);
  for (auto& [name, value] : takenOf(own_)) {
    all.insert_or_assign(name, value);
  }
  return OptionsInForce({{kAllSites, std::move(all)}});
}

void OptionEdit::unset(std::string_view name) {
  if (const auto value = own_.find(name); value != own_.end()) {
    own_.erase(value);
  }
}

std::map<std::string, std::optional<std::string>> OptionEdit::changes() const {
  std::map<std::string, std::optional<std::string>> changed;
  for (const auto& [name, value] : stored_) {
    if (!own_.contains(name)) {
      changed.emplace(name, std::nullopt);
    }
  }
  for (const auto& [name, value] : own_) {
    const auto before = stored_.find(name);
    if (before == stored_.end() || before->second != value) {
      changed.emplace(name, value);
    }
  }
  return changed;
}

void OptionEdit::store(SiteOptions& options, std::int16_t idSite) const {
  for (const auto& [name, value] : changes()) {
    value ? options.setOption(idSite, name, *value) : options.removeOption(idSite, name);
  }
}

}  // namespace tarnwick
