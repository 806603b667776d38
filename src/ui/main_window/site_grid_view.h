// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>
#include <QTableView>

#include "ui/main_window/site_grid_model.h"
#include "ui/main_window/site_order.h"

namespace tarnwick {

/// The grid of the main window: the site list with its tooltips, its widths and its keys.
class SiteGridView final : public QTableView {
  Q_OBJECT

 public:
  /// `model` outlives the view.
  explicit SiteGridView(SiteGridModel& model, QWidget* parent = nullptr);

  /// The tooltip for a column under the mouse; empty for a column without one. The original hints are two columns off:
  /// the last one belongs to the column behind the last.
  QString columnToolTip(int column) const;

  /// What a click on one of the original cells does, beside that on the icon.
  enum class Click {
    opensSite,
    showsDetails,  ///< then a double click opens the site
  };
  void setClick(Click click) { click_ = click; }

  /// Shows one of `extraColumns()`, or hides it. With any of them the addresses keep a room of their own, and the list
  /// scrolls sideways where there is no more.
  void showExtraColumn(std::size_t extra, bool isShown);
  bool isExtraColumnShown(std::size_t extra) const;
  /// Has the cells of the further columns be painted again.
  void repaintExtraColumns();

  /// Which sites are shown, and in which order.
  SiteOrder& order() { return order_; }

  /// Selects a site's row and scrolls to it; tells that a filter hides it. Nothing when the list does not hold it.
  void selectSite(std::int16_t idSite);
  /// The site whose row is the current one.
  std::optional<std::int16_t> currentSite() const;
  /// The same where the last check brought a page that differs from the baseline.
  std::optional<std::int16_t> currentDifferingSite() const;

  /// The rows of the list that are chosen, in the order in which they are shown; that of the current one where none is.
  std::vector<int> chosenRows() const;
  /// Chooses those sites that are shown; the current row stays.
  void selectSites(const std::vector<std::int16_t>& ids);

  /// Shows `sites` in place of what is shown (see `SiteGridModel::setSites`); the rows that are chosen and the scroll
  /// position stay with their sites. Where there is a row, one is current.
  void setSites(SiteRows sites);
  void setSites(const TextTable& sites);
  /// The list is being read, and `setSites` follows: a site that is to be selected and not there yet is selected then.
  void awaitSites() { awaitsSites_ = true; }

  /// Lets `change` find or sort; the rows that are chosen stay with their sites while those are shown.
  void changeOrder(const std::function<void()>& change);

  /// Sets what tells why a site is down; it is asked for the site that somebody looks at, and may take its time.
  void setReasons(std::function<QString(std::int16_t idSite)> reasons) { reasons_ = std::move(reasons); }
  /// How many sites of the list are down.
  int downCount() const { return sites_.downCount(); }
  /// What is known of the site of a row of the list.
  const SiteGridModel& sites() const { return sites_; }
  /// The row of the list that an index of the grid stands for; -1 for none.
  int listRow(const QModelIndex& index) const { return order_.mapToSource(index).row(); }
  /// Why the site of a row of the list is down, or up without a page; empty for all others.
  QString reasonOf(int row) const;

  /// What is given there, as addresses, one a line.
  static QString addressesIn(const QMimeData& data);

  QSize sizeHint() const override;

 Q_SIGNALS:
  /// `setSites` has shown a list.
  void filled();
  /// A data row was clicked, or Enter was pressed on it: its row in the list. A click that only chooses rows, with Ctrl
  /// or Shift or on a further column, is none.
  void rowChosen(int row);
  /// The icon of a row was clicked, or another cell that does the same: somebody wants to know what has changed there.
  void detailsWanted(int row);
  /// Somebody drops or pastes addresses, one a line.
  void addressesGiven(const QString& text);
  /// A site is to be shown that the filter leaves out.
  void hiddenSiteWanted();
  /// The caption of a column was clicked.
  void captionClicked(int column);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void setUpColumns();
  void setUpExtraColumns();
  int columnOfExtra(std::size_t extra) const { return static_cast<int>(sites_.columns().size() + extra); }
  /// Lets the addresses have what the other columns leave, or scrolls sideways.
  void keepRoomForAddresses();
  void selectListRow(int row);
  void selectShown(int shownRow);
  void keepChosen(const std::function<void()>& change);
  void onClick(const QModelIndex& cell);
  void onDoubleClick(const QModelIndex& cell);
  void shareRoom();
  void setRowHeight();
  void followMouse(int x);
  QString toolTipOf(const QModelIndex& cell) const;
  void showColumnToolTip(const QPoint& globalPosition);

  SiteGridModel& sites_;
  SiteOrder order_;
  std::function<QString(std::int16_t)> reasons_;
  Click click_ = Click::opensSite;
  QPoint pressed_;
  Qt::KeyboardModifiers pressedWith_;
  int stretched_ = 0;
  bool awaitsSites_ = false;
  std::optional<std::int16_t> awaited_;
  bool isFilled_ = false;
  bool isShared_ = false;
  bool isSetUp_ = false;
  bool keepsRoom_ = false;
  bool isNarrow_ = false;
};

}  // namespace tarnwick
