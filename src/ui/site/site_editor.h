// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>
#include <QDialog>
#include <QPointer>

#include "program/program.h"
#include "ui/site/post_var_model.h"
#include "ui/site/site_editor_layout.h"

namespace tarnwick {

/// The form `site`: one site with its POST variables, to be changed, saved and deleted, and the way to its content, its
/// counters and the site itself. Not modal; a run goes on behind it. It takes itself down when it is closed.
class SiteEditor final : public QDialog {
  Q_OBJECT

 public:
  /// `program` outlives the editor. `parent` is the main window.
  SiteEditor(Program& program, QWidget* parent);

  /// Shows the editor on a site. When it shows another one with changes that are not saved, the user is asked; while a
  /// dialog of the editor is open, that one comes to the front and nothing else happens.
  /// Raises DataAccessError, and std::runtime_error when there is no such site.
  void editSite(std::int16_t idSite);

  /// Fills the controls with a site and its variables. Raises as `editSite` does.
  void populateMe(std::int16_t idSite);
  /// Empties the POST grid to its header.
  void resetGrid1();

  /// Cancel.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void Form_Load();
  void connectButtons();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();
  void Command8_Click();
  void Command9_Click();
  void grid1_Click(int row);

  void reloadPostVars();
  void showPostVars(std::vector<PostVar> vars);
  bool validate();
  bool save();
  bool changed() const;
  bool mayLeave();
  /// What looks after a question whether this form is still there, shown, and on the same site: a pass that begins
  /// while the question stands can outlast it.
  std::function<bool()> stillThere();
  /// Shows a dialog of this editor, which takes no input meanwhile; `alone`, nor does the main window.
  void openChild(QDialog& dialog, bool alone);
  void bringToFront(QDialog& dialog);
  void unload();

  Program& program_;
  PostVarModel postVars_;
  SiteEditorControls controls_;
  std::int16_t idSite_ = 0;
  // The stored site, and what the controls made of it.
  SiteDraft stored_;
  SiteDraft loaded_;
  std::vector<PostVar> loadedVars_;
  QPointer<QDialog> child_;
};

/// Opens the one site editor of `program` on the site given, above `parent`; made when it is first needed.
std::function<void(std::int16_t idSite)> siteEditorOf(Program& program, QWidget& parent);

}  // namespace tarnwick
