// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>

#include "engine/page_learning.h"
#include "program/program.h"

namespace tarnwick {

/// The form `frmLearn`: fetches a site's page several times, and shows what varies in it. Nothing is stored.
class LearnDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the form. `baseline` is the one that the holes are to lie in; it may be empty.
  LearnDialog(Program& program, std::int16_t idSite, std::string baseline, QWidget* parent);

  /// Gives up what is being fetched, and closes.
  void reject() override;

 Q_SIGNALS:
  /// The user takes what was learnt.
  void taken(const Learnt& learnt);

 private:
  QWidget* makePlan();
  void start();
  void showProgress(int fetched);
  void stop();
  void showLearnt(Learnt learnt);
  void tell(const QString& result, const QStringList& warnings);
  void take();

  Program& program_;
  std::int16_t idSite_;
  std::string baseline_;
  PageLearning learning_;
  Learnt learnt_;
  QSpinBox* times_ = nullptr;
  QRadioButton* now_ = nullptr;
  QRadioButton* spread_ = nullptr;
  QComboBox* over_ = nullptr;
  QPushButton* btnStart_ = nullptr;
  QWidget* plan_;
  QProgressBar* progress_;
  QLabel* result_;
  QLabel* warnings_;
  QPushButton* btnTake_;
};

}  // namespace tarnwick
