// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "store/site_options.h"

namespace tarnwick {

/// The values of options while a form changes them: what a site, or all of them, has of its own, above what holds for
/// all.
class OptionEdit {
 public:
  OptionEdit() = default;
  /// `defaults` are what holds where nothing is set; none when the values are those for all.
  explicit OptionEdit(OptionValues own, OptionValues defaults = {})
      : stored_(own), own_(std::move(own)), defaults_(std::move(defaults)) {}

  const OptionValues& own() const { return own_; }
  /// What is set, as it is stored; nothing for what another tool has left there.
  std::optional<std::string> ownOf(std::string_view name) const;
  std::optional<std::string> defaultOf(std::string_view name) const;
  /// The own one, else the one for all.
  std::optional<std::string> inForce(std::string_view name) const;
  /// All that is in force, as a pass sees it.
  OptionsInForce options() const;

  void set(std::string_view name, std::string value) { own_.insert_or_assign(std::string(name), std::move(value)); }
  void unset(std::string_view name);

  /// What was changed: its new value, or nothing where none is left.
  std::map<std::string, std::optional<std::string>> changes() const;
  /// Stores that of a site, or of all. Raises as `SiteOptions::setOption`.
  void store(SiteOptions& options, std::int16_t idSite) const;

 private:
  OptionValues stored_;
  OptionValues own_;
  OptionValues defaults_;
};

}  // namespace tarnwick
