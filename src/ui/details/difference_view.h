// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <QAbstractScrollArea>
#include <QTimer>

#include "difference/difference_rows.h"
#include "platform/clock.h"
#include "ui/details/compared_pages.h"
#include "ui/details/difference_painter.h"

namespace tarnwick {

/// How two pages differ. They are compared in pieces on the event loop, and only the rows that are seen are drawn, so
/// that nothing waits for a long page. Text of a page is text and nothing else.
class DifferenceView final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  /// `clock` outlives this.
  explicit DifferenceView(const Clock& clock, QWidget* parent = nullptr);

  /// Compares these and shows what differs; drops what was shown or being compared.
  void compare(ComparedPages pages);
  /// Shows a sentence in the place of pages.
  void tell(const QString& sentence);

  bool isComparing() const { return slices_.isActive(); }
  /// Nothing is shown as long as this is null.
  const PageDifference* difference() const { return rows_ ? difference_ : nullptr; }
  bool hasPages() const { return pages_ != nullptr; }
  /// REQUIRES: `hasPages()`.
  const ComparedPages& pages() const { return *pages_; }

  void setDifferenceLayout(DifferenceLayout layout);
  DifferenceLayout differenceLayout() const { return layout_; }
  /// Whether blanks, tabs and line ends are shown.
  void setInvisible(bool invisible);

  int changes() const;
  /// The change that the current row is in or behind, from 0 on; -1 before the first and for none.
  int currentChange() const;
  void goTo(int change);
  /// To the change behind the current row, or the one before it; stays where there is none.
  void goOn(int by);

  /// The rows that are selected as text, what was with "-" and what is with "+".
  QString selectedText() const;

 Q_SIGNALS:
  /// The pages are compared, and shown.
  void compared();
  /// Another row is current.
  void moved();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void goOnComparing();
  void layOut();
  void setBars();
  DifferencePainter painterOf() const;
  std::size_t rowToShow(std::size_t change) const;
  void scrollToMark();
  void setCurrent(std::size_t row, bool select);
  void openFold(std::size_t row);
  void copy() const;
  std::optional<std::size_t> rowAt(int y) const;
  std::size_t rowsOnPage() const;
  QString rowText(std::size_t row) const;

  const Clock& clock_;
  QTimer slices_;
  std::unique_ptr<const ComparedPages> pages_;
  std::optional<PageComparison> comparison_;
  const PageDifference* difference_ = nullptr;  // that of the comparison, once it is done
  std::optional<DifferenceRows> rows_;
  DifferenceLayout layout_ = DifferenceLayout::sideBySide;
  bool invisible_ = false;
  QString sentence_;
  // Rows: the one that the keyboard is at, and the one that the selection began at.
  std::size_t current_ = 0;
  std::size_t anchor_ = 0;
};

}  // namespace tarnwick
