// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>

#include "ui/controls/option_edit.h"

class QVBoxLayout;

namespace tarnwick {

/// The options of the alarm that a preset decides about, one by one.
class AlarmDetails final : public QGroupBox {
  Q_OBJECT

 public:
  explicit AlarmDetails(QWidget* parent = nullptr);

  /// Shows what is in force. Touches nothing.
  void setValues(const OptionEdit& options);

  QVBoxLayout& lines() { return *lines_; }

 Q_SIGNALS:
  /// The user has chosen a value of an option.
  void touched(const QString& name, const QString& value);

 private:
  QCheckBox* addLine(const char* name, const QString& caption, std::initializer_list<QWidget*> more,
                     const QString& end = {});
  QSpinBox* number(const char* name, const QString& spoken, int least, int most);
  void makeLines();
  void connectLines();
  void enableParts();
  void tellRemind();
  void tellFlapping();

  QVBoxLayout* lines_;
  QCheckBox* confirm_;
  QSpinBox* confirmCount_;
  QLineEdit* confirmAfter_;
  QCheckBox* recovery_;
  QComboBox* remind_;
  QSpinBox* remindEvery_;
  QLabel* remindUnit_;
  QCheckBox* flapping_;
  QSpinBox* changes_;
  QSpinBox* within_;
  QCheckBox* slow_;
  QSpinBox* slowAfter_;
  QCheckBox* certificate_;
  QLineEdit* certificateDays_;
  bool isShowing_ = false;
};

}  // namespace tarnwick
