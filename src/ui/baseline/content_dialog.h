// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <QDialog>
#include <QLabel>
#include <QPushButton>

#include "program/program.h"
#include "ui/baseline/baseline_edit.h"
#include "ui/baseline/holes_panel.h"
#include "ui/controls/boxes.h"
#include "ui/controls/status_line.h"

namespace tarnwick {

/// The form `frmContent`: a site's baseline, the page that every check is compared with, to be seen, edited and fetched
/// anew. What is not edited is stored byte for byte as it was. Beside it stands what may vary in it, where there is
/// anything or the user asks for it.
class ContentDialog final : public QDialog, public UnsavedEdits {
  Q_OBJECT

 public:
  /// `program` outlives the form. `below` is the window below it.
  ContentDialog(Program& program, QWidget* below);

  /// Shows the stored baseline of a site. Raises DataAccessError.
  void populateMe(std::int16_t idSite);
  /// The same, with what of the latest page's difference looks like something that always changes as proposals.
  void proposeChanges(std::int16_t idSite);
  /// Hides the form and has it taken down.
  void formExit();

  QString unsavedEdits() const override;

  /// Cancel; a page that is being fetched is given up.
  void reject() override;

 private:
  void layOut();
  void Form_Load();
  void btnLoad_Click();
  void btnOk_Click();
  void btnCancel_Click();
  void setLoading(bool loading);
  void showHoles(bool shown);
  void showFetched(const std::string& page);

  Program& program_;
  std::int16_t idSite_ = 0;
  bool loading_ = false;
  bool fetched_ = false;  // another page is shown than the one that is stored
  BaselineEdit* tContent_ = nullptr;
  StatusLine* address_ = nullptr;
  HolesPanel* holes_ = nullptr;
  QPushButton* btnHoles_ = nullptr;
  QPushButton* btnLoad_ = nullptr;
  QPushButton* btnOk_ = nullptr;
  QPushButton* btnCancel_ = nullptr;
};

}  // namespace tarnwick
