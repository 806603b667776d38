// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>
#include <QMenu>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <QToolButton>
#include <QWidget>

#include "engine/settling.h"
#include "program/program.h"
#include "ui/controls/link_button.h"
#include "ui/controls/status_line.h"
#include "ui/details/alarm_page.h"
#include "ui/details/difference_panel.h"
#include "ui/details/log_list.h"
#include "ui/details/site_settling.h"
#include "ui/history/history_page.h"

namespace tarnwick {

/// What there is to know of one site: why it is as it is, what has changed, what its log says, and what settles it.
class DetailsPane final : public QWidget {
  Q_OBJECT

 public:
  /// Both outlive this.
  DetailsPane(Program& program, SiteSettling& settling, QWidget* parent = nullptr);

  /// Shows that site after a pause, so that nobody who wanders through the list is held up; nothing: that none is
  /// chosen. One that is shown is read anew.
  void showSite(std::optional<std::int16_t> idSite);
  std::optional<std::int16_t> site() const { return idSite_; }

  /// Says how many sites are chosen, and how many of them are down, where they are several. What settles one of them
  /// alone is not offered then.
  void tellChosen(int sites, int down);

  /// Gives the focus to what the tab that is open shows.
  void takeFocus();
  /// Shows what the first failed check from a time on has brought, in the place of the latest page, until another tab
  /// is turned to.
  void showFailure(LocalTime since);
  void showHistory() { tabs_->setCurrentWidget(history_); }
  /// Settles the site that is shown, as the buttons do.
  void accept();
  void acknowledge();

  /// What the button Pause offers. It has an action `resume`, which the button does where the site is paused. Outlives
  /// this.
  void setPauses(QMenu& pauses);
  QTabWidget& tabs() { return *tabs_; }
  DifferencePanel& panel() { return *panel_; }

  QSize sizeHint() const override { return {800, 170}; }

 Q_SIGNALS:
  void closed();
  /// The same in a window of its own is wanted.
  void windowWanted(std::int16_t idSite);
  /// What differs always changes, so it may vary.
  void varyWanted();
  /// The sites that are chosen are to be looked at together.
  void sameChangesWanted();
  /// What is told of the site is to be changed.
  void alarmWanted(std::int16_t idSite);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QWidget* makeHead();
  void layOut();
  QWidget* makeLog();
  QWidget* makeCorner();
  void turn();
  void read();
  void tellNothing();
  void readTab();
  void readDifference();
  void makeChoices(const std::vector<KeptBaseline>& kept);
  void tellHeadline();
  QString whatIsWrong();
  void tellButtons();
  void tellPause();
  void tellVary();
  bool offersCheck() const {
    return found_ &&
           (found_->state == ToSettle::State::failedFetch || found_->state == ToSettle::State::emptyPage || isSettled_);
  }

  Program& program_;
  SiteSettling& settling_;
  QTimer pause_;
  std::optional<std::int16_t> idSite_;
  std::optional<ToSettle> found_;
  StatusLine* headline_ = nullptr;
  LinkButton* vary_ = nullptr;
  LinkButton* same_ = nullptr;
  QPushButton* btnAccept_ = nullptr;
  QPushButton* btnAcknowledge_ = nullptr;
  QPushButton* btnPause_ = nullptr;
  QTabWidget* tabs_ = nullptr;
  DifferencePanel* panel_ = nullptr;
  HistoryPage* history_;
  LogList* log_ = nullptr;
  AlarmPage* alarm_;
  QMenu* pauses_ = nullptr;
  QMenu* choices_;
  /// The kept baseline that somebody wants to see in the place of the baseline.
  std::optional<std::int64_t> kept_;
  /// The row of the log whose page somebody wants to see in the place of the latest one.
  std::optional<LogRow> logged_;
  int chosen_ = 1;
  int chosenDown_ = 0;
  bool isPaused_ = false;
  /// It is down as yet, with a page that is a good one now.
  bool isSettled_ = false;
};

}  // namespace tarnwick
