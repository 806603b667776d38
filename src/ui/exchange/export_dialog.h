// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

#include "exchange/list/site_export.h"
#include "program/program.h"
#include "ui/controls/sliced_work.h"

namespace tarnwick {

/// The window `frmExport`: asks what the file is to hold, and which file, CSV or JSON; writes it between the events, as
/// the list is at one moment. A file that cannot be completed, or that the user does not wait for, is not there at all;
/// one that is there already is replaced when the new one is complete, after a question.
class ExportDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the window.
  ExportDialog(Program& program, QWidget* parent);
  ~ExportDialog() override;

  void done(int result) override;

 private:
  void layOut();
  void chooseFile();
  void begin(const std::string& file);
  void write(const std::string& file, ListFormat format);
  /// Writes the next site; false when the file is complete.
  bool next(m& list, ListFormat format);
  void lookAtWriting(const std::string& file);
  void stop();

  Program& program_;
  ListColumns columns_;
  std::size_t count_ = 0;
  std::unique_ptr<FileInTheMaking> file_;
  // Has the connection that the other works on, which so goes before it.
  std::unique_ptr<SlicedWork> work_;
  std::optional<SiteListExport> export_;
  QCheckBox* passwords_ = nullptr;
  QCheckBox* baselines_ = nullptr;
  QCheckBox* history_ = nullptr;
  QLabel* state_ = nullptr;
  QProgressBar* bar_ = nullptr;
  QPushButton* btnExport_ = nullptr;
  QPushButton* btnCancel_ = nullptr;
};

/// Opens the window above `parent`.
std::function<void()> exportOf(Program& program, QWidget& parent);

}  // namespace tarnwick
