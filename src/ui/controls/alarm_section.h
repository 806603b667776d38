// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <chrono>
#include <string>
#include <string_view>
#include <vector>
#include <QComboBox>
#include <QLabel>
#include <QRadioButton>
#include <QWidget>

#include "store/alarm_presets.h"
#include "store/option_table.h"
#include "ui/controls/alarm_details.h"
#include "ui/controls/alarm_strip.h"
#include "ui/controls/channel_choice.h"
#include "ui/controls/option_edit.h"

namespace tarnwick {

/// When somebody is told, of one site or of all: a usual answer, the same in detail, and an example of what would
/// happen. A usual answer fills in the details; who touches one has a choice of his own.
class AlarmSection final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives this.
  AlarmSection(Program& program, bool ofAll, QWidget* parent = nullptr);

  /// Whether the program has the options that this is about.
  static bool isFor(const std::vector<OptionField>& options);
  /// Whether the option has its control here, or on the page of the pauses.
  static bool hasPlaceFor(std::string_view option);

  /// Shows these values; what was changed before is dropped. Raises DataAccessError.
  void setValues(OptionEdit options, LocalTime now);
  /// How often the site is checked, for the example.
  void setInterval(std::chrono::minutes interval);

  /// What was changed.
  const OptionEdit& options() const { return options_; }

  /// The answer in words, of two lines where it is long.
  static QString captionOf(AlarmPreset preset, bool ofAll);

 private:
  void makePresets(QWidget& frame);
  void makeQuiet();
  QWidget* makePaused();
  void choose(AlarmPreset preset);
  void touch(const QString& name, const QString& value);
  void touchAlerts();
  void chooseQuiet(int choice);
  void editQuiet();
  void resume();
  void showAll();
  void showQuiet();
  void showPaused();
  void showExample();
  QString defaultWords() const;

  OptionEdit options_;
  LocalTime now_{};
  std::chrono::minutes interval_{10};
  std::array<QRadioButton*, 5> presets_{};
  AlarmDetails* details_;
  QComboBox* quiet_ = nullptr;
  QComboBox* quietHow_ = nullptr;
  ChannelChoice* channels_;
  AlarmStrip* example_;
  QWidget* paused_ = nullptr;
  QLabel* pausedText_ = nullptr;
  bool ofAll_;
};

}  // namespace tarnwick
