// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "holes/page_rule.h"

namespace tarnwick {

/// A hole as a person makes it: what the baseline has there, `own`, and what the latest page has, where that is known,
/// are both in it. Nothing when `own` is not of that class.
std::optional<Hole> holeOfClass(HoleClass kind, std::string_view own, const std::optional<std::string>& seen);
/// The same with the smallest class that has them in it.
Hole smallestHole(std::string_view own, const std::optional<std::string>& seen);

/// The holes and rules of a site while its baseline is edited together with them. All texts are as `pageText` gives
/// them.
class HoleDraft {
 public:
  struct Entry {
    Hole hole;
    /// Whether its place in the baseline is gone. It comes back with its place, as by an undo.
    bool isLost = false;
    /// Whether nobody has asked for it: it was found in the difference from the latest page.
    bool isProposed = false;
    /// What the latest page has there; nothing where that cannot be told.
    std::optional<std::string> seen{};
  };

  /// Shows what is stored, of that baseline.
  void start(RuleSet stored, std::string baseline);
  /// The page of the latest check; empty when there is none.
  void see(std::string latest);
  /// The baseline has been edited: holes stay where the text around them stays.
  void follow(std::string baseline);

  const std::vector<Entry>& entries() const { return entries_; }
  const std::vector<PageRule>& rules() const { return rules_; }
  const std::string& baseline() const { return baseline_; }
  const std::string& latest() const { return latest_; }
  /// The holes that have their place.
  Holes placed() const;
  /// What is to be stored.
  RuleSet set() const;
  /// How much of the baseline is compared byte for byte, from 0 to 1.
  double watched() const;

  void setRules(std::vector<PageRule> rules);
  /// Instead of all holes.
  void setHoles(Holes holes);
  /// In place of those that they touch, marked as proposed.
  void propose(const Holes& holes);
  /// Makes a hole of that part of the baseline, and of the holes that it touches; returns its place among the entries.
  std::size_t add(std::size_t begin, std::size_t end);
  void remove(std::size_t entry);
  /// The classes that what the baseline has there belongs to.
  std::vector<HoleClass> classesOf(std::size_t entry) const;
  /// False when it cannot have that class.
  bool setClass(std::size_t entry, HoleClass kind);
  /// Widened to the length that the baseline itself has there. False for a class whose lengths are not chosen.
  bool setLengths(std::size_t entry, std::size_t least, std::size_t most);

 private:
  std::string_view own(const Hole& hole) const { return std::string_view(baseline_).substr(hole.begin, hole.length); }
  void placeAgain(std::size_t from, std::size_t to);
  void changed();
  void look();

  std::string baseline_;
  std::string latest_;
  std::vector<Entry> entries_;
  std::vector<PageRule> rules_;
};

}  // namespace tarnwick
