// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <QString>
#include <QtCore/Qt>

#include "platform/clock.h"
#include "store/listed_facts.h"
#include "ui/main_window/site_row.h"

namespace tarnwick {

/// What the text of a further column is made of.
struct ExtraCell {
  const SiteRow& row;
  const ListedFacts& facts;
  LocalTime now;
  bool isTested = false;
  bool runIsOn = false;
  bool newSitesAtOnce = false;
  /// What is wrong in a few words, where it has been looked up.
  std::optional<QString> wrong{};
};

/// What rows are sorted by: by the number, then by the text. What is not known is the last one, whichever way they are
/// sorted.
struct SortKey {
  std::int64_t number = 0;
  std::string text{};
  bool isKnown = true;

  auto operator<=>(const SortKey&) const = default;
};

/// A column of the list that is hidden until somebody wants it: all that the list knows of it.
struct ExtraColumn {
  const char* name;  ///< of the entry in the menu, as an object
  const char* header;
  /// What is told of its caption.
  const char* hint;
  Qt::AlignmentFlag alignment;
  /// The text that the column is as wide as, when it is first shown.
  const char* widest;
  FactsWanted facts;
  /// Whether time makes another text of it. What its tooltip says then is what is copied.
  bool ages;
  QString (*text)(const ExtraCell& cell);
  QString (*toolTip)(const ExtraCell& cell);
  SortKey (*key)(const ExtraCell& cell);
};

/// Where two of them stand of which more is to be known.
inline constexpr std::size_t kLastResultColumn = 1;
inline constexpr std::size_t kNextCheckColumn = 4;

/// The further columns, from left to right; a new one comes last, since people remember which they have chosen.
std::span<const ExtraColumn> extraColumns();

/// What knows the cells of the further columns, by the rows of the list.
class ExtraCells {
 public:
  virtual ~ExtraCells() = default;

  virtual QString textOf(int row, std::size_t column) const = 0;
  virtual QString toolTipOf(int row, std::size_t column) const = 0;
  virtual SortKey keyOf(int row, std::size_t column) const = 0;
};

}  // namespace tarnwick
