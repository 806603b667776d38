// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>
#include <QFontMetrics>
#include <QPainter>
#include <QPalette>
#include <QRect>
#include <QString>

#include "difference/difference_rows.h"
#include "ui/details/compared_pages.h"

namespace tarnwick {

/// What a fold stands for: "4 equal lines".
QString foldWords(const DifferenceRow& row);

/// Draws the rows of a difference.
class DifferencePainter {
 public:
  struct Look {
    DifferenceLayout layout;
    bool invisible;  ///< blanks, tabs and line ends are drawn
    int scrolled;    ///< to the right, in pixels
  };

  DifferencePainter(const ComparedPages& pages, const PageDifference& difference, const DifferenceRows& rows,
                    const QFontMetrics& metrics, const QPalette& palette, Look look);

  int rowHeight() const;
  /// How wide a page would have to be for its widest row.
  int wholeWidth() const;
  void paint(QPainter& painter, const QRect& area, std::size_t row) const;
  /// Where the first mark of a row is, in pixels from the begin of its texts; nothing where none is in it.
  std::optional<std::pair<int, int>> firstMark(const DifferenceRow& row) const;
  /// How much of that is seen of a page when the view is so wide.
  int textWidth(int viewWidth) const;
  /// What of a page stands in a row, as text.
  QString textOf(const DifferenceRow& row, bool after) const;

 private:
  struct Side;
  void paintSide(QPainter& painter, const QRect& area, const DifferenceRow& row, const Side& side) const;
  void paintRuns(QPainter& painter, QRect area, const DifferenceRow& row, const Side& side) const;
  void paintVarying(QPainter& painter, QRect area, const Side& side) const;
  void paintHex(QPainter& painter, QRect area, const DifferenceRow& row, const Side& side) const;
  void paintFold(QPainter& painter, const QRect& area, const DifferenceRow& row) const;
  Side sideOf(const DifferenceRow& row, bool after) const;
  int gutter() const;

  const ComparedPages& pages_;
  const PageDifference& difference_;
  const DifferenceRows& rows_;
  QFontMetrics metrics_;
  QPalette palette_;
  Look look_;
};

}  // namespace tarnwick
