// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <vector>
#include <QDialog>

#include "program/program.h"
#include "ui/controls/boxes.h"
#include "ui/site/post_var_model.h"
#include "ui/site/site_editor_layout.h"

namespace tarnwick {

/// The form `site`: one site with its POST variables, to be changed, saved and deleted, and the way to its content, its
/// counters and the site itself. Not modal; a run goes on behind it. It takes itself down when it is closed.
class SiteEditor final : public QDialog, public UnsavedEdits {
  Q_OBJECT

 public:
  /// `program` outlives the editor. `parent` is the main window.
  SiteEditor(Program& program, QWidget* parent);

  /// Shows the editor on a site. When it shows another one with changes that are not saved, the user is asked first;
  /// while a box or dialog of the editor is open, that one comes to the front and nothing else happens.
  /// Raises DataAccessError, and std::runtime_error when there is no such site.
  void editSite(std::int16_t idSite);
  /// The same with the page that tells what is told of it.
  void editAlarm(std::int16_t idSite);
  /// The same for a site that `add` makes, once the editor is free for it. No pass takes that site before it has been
  /// saved, or is not edited any more.
  void editNew(const std::function<std::int16_t()>& add);

  /// Fills the controls with a site and its variables. Raises as `editSite` does.
  void populateMe(std::int16_t idSite);
  /// Empties the POST grid to its header.
  void resetGrid1();

  QString unsavedEdits() const override;

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
  /// Calls `then` when the site shown may be left: nothing to save, or nothing that the user wants to keep.
  void leaveSite(const std::function<void()>& then);
  void showSiteOf(std::int16_t idSite);
  /// Shows a dialog that this editor waits for.
  void openChild(QDialog& dialog);
  void unload();

  Program& program_;
  PostVarModel postVars_;
  SiteEditorControls controls_;
  std::int16_t idSite_ = 0;
  // The stored site, and what the controls made of it.
  SiteDraft stored_;
  SiteDraft loaded_;
  std::vector<PostVar> loadedVars_;
};

}  // namespace tarnwick
