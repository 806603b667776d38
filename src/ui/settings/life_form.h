// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QWidget>

#include "program/program.h"
#include "store/site_options.h"
#include "ui/controls/byte_line_edit.h"

namespace tarnwick {

/// By what the user learns that the program itself is alive: a message a day that all is well, an alert a day that only
/// tries the channels, and requests to an address of the user's. What cannot be taken is told below the fields while it
/// is typed.
class LifeForm final : public QWidget {
  Q_OBJECT

 public:
  /// `program` outlives the form.
  explicit LifeForm(Program& program, QWidget* parent = nullptr);

  /// Shows what is stored. Raises DataAccessError.
  void load();
  /// Whether something else is chosen than what is stored.
  bool isChanged() const;
  /// Stores what was changed. Raises what `SiteOptions::setOption` does, which names the option, and turns to its field
  /// then.
  void store();

 private:
  struct Row {
    const OptionField* option = nullptr;
    QCheckBox* flag = nullptr;
    ByteLineEdit* value = nullptr;
    // What the controls made of the stored value: one that they cannot show is kept while they are not touched.
    std::optional<std::string> untouched{};
  };

  void addRow(std::string_view option, const char* name, QHBoxLayout& line);
  static std::optional<std::string> valueOf(const Row& row);
  void tellFaults();

  Program& program_;
  std::vector<Row> rows_;
  QLabel* fault_;
};

}  // namespace tarnwick
