// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>
#include <QGridLayout>
#include <QScrollArea>

#include "program/program.h"
#include "store/site_options.h"

namespace tarnwick {

/// The control of an option.
struct OptionControl {
  QWidget* widget;
  /// Shows a value; without one `unset`, which says what holds then.
  std::function<void(const std::optional<std::string>& value, const QString& unset)> show;
  /// What is chosen.
  std::function<std::optional<std::string>()> value;
};

/// A page of options, of one site or of all: a row for each one that the program has, made from their table. An option
/// that is not set says so, and stays so until it is chosen. Nothing is read before the page is seen, and nothing is
/// written that was not changed.
class OptionForm final : public QScrollArea {
  Q_OBJECT

 public:
  /// `program` outlives the page.
  explicit OptionForm(Program& program, QWidget* parent = nullptr);

  /// Shows the options of a site, or those for all sites (`kAllSites`), when the page is next seen; what was changed
  /// and not stored is dropped.
  void setSite(std::int16_t idSite);

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
  void addRow(const OptionField& option);
  void storeRow(const Row& row);

  Program& program_;
  std::int16_t idSite_ = kAllSites;
  bool loaded_ = false;
  QGridLayout* lines_ = nullptr;
  std::vector<Row> rows_;
};

}  // namespace tarnwick
