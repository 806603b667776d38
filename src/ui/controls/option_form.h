// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>
#include <QGridLayout>
#include <QScrollArea>
#include <QVBoxLayout>

#include "program/program.h"
#include "store/site_options.h"
#include "ui/controls/alarm_section.h"
#include "ui/controls/option_control.h"

namespace tarnwick {

/// A page of options, of one site or of all: when it is told on top, below it a row for each other option that the
/// program has, made from their table. An option that is not set says so, and stays so until it is chosen. Nothing is
/// read before the page is seen, and nothing is written that was not changed.
class OptionForm final : public QScrollArea {
  Q_OBJECT

 public:
  /// `program` outlives the page.
  explicit OptionForm(Program& program, QWidget* parent = nullptr);

  /// Shows the options of a site, or those for all sites (`kAllSites`), when the page is next seen; what was changed
  /// and not stored is dropped.
  void setSite(std::int16_t idSite);

  /// Makes the controls, after which the page knows how wide it is. `setSite` does it as well. Nothing is read.
  void prepare();

  /// How often the site is checked, for the example on the page.
  void setInterval(std::chrono::minutes interval);

  /// Whether something else is chosen than what is stored.
  bool isChanged() const;
  /// Stores what is chosen, if anything was changed. Raises what `SiteOptions::setOption` does, which names the
  /// option, and turns to the page then.
  void store();

  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // An option in its control.
  struct Row {
    const OptionField* option;
    OptionControl control;
    // What the control made of the stored value: one that it cannot show is kept while it is not touched.
    std::optional<std::string> untouched;
  };

  void load();
  void makeRows();
  QGridLayout* addGroup(QVBoxLayout& page, const QString& caption);
  void addRow(const OptionField& option, QGridLayout& lines);
  void addChooser(const OptionField& option, QWidget& control, QGridLayout& lines, int line);
  void storeRow(const Row& row);

  Program& program_;
  std::int16_t idSite_ = kAllSites;
  bool loaded_ = false;
  // The controls until the page is first seen, and no part of the dialog yet; then it is `widget()`.
  std::unique_ptr<QWidget> unseen_;
  std::chrono::minutes interval_{10};
  AlarmSection* alarm_ = nullptr;
  std::vector<Row> rows_;
};

}  // namespace tarnwick
