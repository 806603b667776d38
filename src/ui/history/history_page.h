// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <vector>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QStackedWidget>
#include <QTableView>
#include <QWidget>

#include "program/program.h"
#include "ui/history/latency_view.h"
#include "ui/history/outage_list.h"
#include "ui/history/stripe_view.h"

namespace tarnwick {

/// How a site has been: a stripe for each of the `periods()`, or one with its answer times, and its outages.
class HistoryPage final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives this.
  explicit HistoryPage(Program& program, QWidget* parent = nullptr);

  /// Raises DataAccessError.
  void showSite(std::int16_t idSite);
  void clear();

  /// What belongs beside the tabs: figures, the choice of a period, and Save….
  QWidget& corner() { return *corner_; }
  /// What takes the focus when this is turned to.
  QWidget& first();

 Q_SIGNALS:
  /// What came at the first failed check of an outage is wanted.
  void failureWanted(std::int16_t idSite, tarnwick::Moment began);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QWidget* makeStripes();
  QWidget* makeInvitation();
  void makeCorner();
  void show();
  bool isShown(std::size_t period) const;
  void showOutages(Moment from, Moment until);
  void tellFigures();
  void keep();
  void save();

  struct Line {
    QLabel* name;
    StripeView* stripe;
    QLabel* uptime;
  };

  Program& program_;
  std::optional<std::int16_t> idSite_;
  std::vector<Stripe> stripes_;
  QStackedWidget* pages_;
  std::vector<Line> lines_;
  LatencyView* latency_ = nullptr;
  OutageList* outages_;
  QTableView* table_ = nullptr;
  QWidget* corner_;
  QLabel* figures_ = nullptr;
  QComboBox* period_ = nullptr;
  QPushButton* save_ = nullptr;
  QPushButton* keep_ = nullptr;
};

}  // namespace tarnwick
