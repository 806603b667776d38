// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>

#include "program/program.h"
#include "ui/controls/filter_edit.h"
#include "ui/controls/sliced_work.h"
#include "ui/history/overview_list.h"

namespace tarnwick {

/// What the window of all histories asks of the main window.
struct HistorySites {
  /// The sites of the list that a line of filter words finds, in rising order. Raises std::invalid_argument.
  std::function<std::vector<std::int16_t>(const QString& line)> find{};
  /// Shows the history of that site alone.
  std::function<void(std::int16_t idSite)> show{};
};

/// The window `frmHistory`: a stripe for each site, the worst first. It stands beside the main window and is read piece
/// by piece, however many sites there are.
class HistoryWindow final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives this.
  HistoryWindow(Program& program, HistorySites sites, QWidget* parent);

  QSize sizeHint() const override { return {760, 460}; }

  /// Also takes the window down.
  void done(int result) override;

 private:
  void layOut();
  void read();
  bool readNext(m& own);
  void told();
  void tellCount();
  void save();
  const Period& period() const;

  Program& program_;
  HistorySites sites_;
  FilterEdit* filter_;
  QLabel* count_;
  QComboBox* period_;
  QTableView* table_;
  OverviewList* list_;
  QPushButton* save_ = nullptr;
  /// What is being read: which sites, how far, and what has come.
  std::vector<SiteToShow> wanted_;
  std::size_t next_ = 0;
  std::vector<OverviewList::Row> rows_;
  std::size_t known_ = 0;
  Moment now_{};
  std::unique_ptr<SlicedWork> work_;
};

/// Opens the one such window of `program`, above `parent`, or brings it to the front.
std::function<void()> historyOf(Program& program, QWidget& parent, HistorySites sites);

}  // namespace tarnwick
