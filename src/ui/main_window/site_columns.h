// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <QtCore/Qt>

namespace tarnwick {

/// A column of the list of sites: all that the list knows of it.
struct SiteColumn {
  const char* header;
  /// What is told where the mouse stands on the column; null for nothing.
  const char* hint;
  Qt::AlignmentFlag alignment;
  /// The text that the column is as wide as, when it is first shown; null: it shares the room that the others leave.
  const char* widest;
  /// Its part of that room, among those who share it; the widest of them takes what a wider window gives. Else 0.
  int part;
  /// The field of a site table that it shows, one of `site_column`.
  std::size_t field;
};

using SiteColumns = std::span<const SiteColumn>;

/// The columns of the list, from left to right.
SiteColumns siteColumns();

}  // namespace tarnwick
