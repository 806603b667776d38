// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <QDialog>

#include "program/program.h"
#include "ui/controls/boxes.h"
#include "ui/controls/byte_line_edit.h"
#include "ui/site/post_var_model.h"

namespace tarnwick {

/// The form `newPostVar`: changes or deletes one POST variable of the site that the site editor shows.
class NewPostVar final : public QDialog, public UnsavedEdits {
  Q_OBJECT

 public:
  /// Edits the variable `var` of the site `idSite`. `program` outlives the form; `siteEditor` is below it.
  NewPostVar(Program& program, std::int16_t idSite, PostVar var, QWidget* siteEditor);

  /// Shows the variable's name and value.
  void populateMe();

  QString unsavedEdits() const override;

 private:
  void layOut();
  void Form_Load();
  void Command4_Click();
  void Command1_Click();
  void Command2_Click();
  /// The variable's id as it is now: a run that begins in another process numbers all variables anew.
  std::int16_t idPostVars();

  Program& program_;
  std::int16_t idSite_;
  PostVar var_;
  ByteLineEdit* pvName_ = nullptr;
  ByteLineEdit* pvValue_ = nullptr;
};

}  // namespace tarnwick
