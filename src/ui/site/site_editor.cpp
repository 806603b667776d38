// SPDX-License-Identifier: MIT
#include "ui/site/site_editor.h"

#include <memory>
#include <stdexcept>
#include <utility>
#include <QKeyEvent>

#include "platform/desktop/input_block.h"
#include "ui/baseline/content_dialog.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"
#include "ui/site/counters_dialog.h"
#include "ui/site/new_post_var.h"
#include "ui/site/site_editor_fields.h"

namespace tarnwick {

SiteEditor::SiteEditor(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), controls_(layOutSiteEditor(*this, postVars_, program)) {
  setObjectName(QStringLiteral("site"));
  setWindowTitle(tr("Site"));
  connectButtons();
  Form_Load();
}

void SiteEditor::Form_Load() { resetGrid1(); }

void SiteEditor::connectButtons() {
  onClick(*controls_.Command1, program_.faults(), [this] { Command1_Click(); });
  onClick(*controls_.Command2, program_.faults(), [this] { Command2_Click(); });
  onClick(*controls_.Command3, program_.faults(), [this] { Command3_Click(); });
  onClick(*controls_.Command4, program_.faults(), [this] { Command4_Click(); });
  onClick(*controls_.Command5, program_.faults(), [this] { Command5_Click(); });
  onClick(*controls_.Command6, program_.faults(), [this] { Command6_Click(); });
  onClick(*controls_.counters, program_.faults(), [this] { Command7_Click(); });
  onClick(*controls_.Command8, program_.faults(), [this] { Command8_Click(); });
  onClick(*controls_.Command9, program_.faults(), [this] { Command9_Click(); });
  connect(controls_.grid1, &QTableView::clicked, this,
          [this](const QModelIndex& index) { program_.faults().run([&] { grid1_Click(index.row()); }); });
}

void SiteEditor::editSite(std::int16_t idSite) {
  if (child_ != nullptr && child_->isVisible()) {
    bringToFront(*child_);
    return;
  }
  const bool other = !isVisible() || idSite != idSite_;
  if (other && isVisible()) {
    const auto there = stillThere();
    const bool leaves = mayLeave();
    if (!there()) {
      return;
    }
    if (!leaves) {
      bringToFront(*this);
      return;
    }
  }
  if (other) {
    populateMe(idSite);
    controls_.tUrl->setFocus();
    // All of it, ready to be typed over, and its beginning to be seen.
    const auto length = static_cast<int>(controls_.tUrl->text().size());
    controls_.tUrl->setSelection(length, -length);
  }
  if (isVisible()) {
    bringToFront(*this);
    return;
  }
  adjustSize();
  placeOver(*this, *parentWidget());
  show();
  activateWindow();
}

void SiteEditor::populateMe(std::int16_t idSite) {
  // All that may fail comes first: a form that shows an empty list would store it so.
  const SiteDraft site = readSite(program_.data(), idSite);
  std::vector<PostVar> vars = readPostVars(program_.data(), idSite);
  showReason(*this, program_.data().reasonOf(idSite));
  idSite_ = idSite;
  controls_.pages->setCurrentIndex(0);
  controls_.options->setSite(idSite);
  controls_.Frame1->setTitle(tr("Site ID: %1").arg(idSite));
  showSite(controls_, program_.data().fields().site, site);
  stored_ = site;
  loaded_ = shownSite(controls_, program_.data().fields().site, stored_);
  showPostVars(std::move(vars));
}

void SiteEditor::resetGrid1() { postVars_.setVars({}); }

void SiteEditor::reloadPostVars() { showPostVars(readPostVars(program_.data(), idSite_)); }

void SiteEditor::showPostVars(std::vector<PostVar> vars) {
  loadedVars_ = std::move(vars);
  postVars_.setVars(loadedVars_);
}

bool SiteEditor::validate() {
  if (!controls_.cEmail->isChecked() || m::isEmail(controls_.tEmail->bytes())) {
    return true;
  }
  const auto there = stillThere();
  program_.services().prompts.inform("You must enter a valid email address.");
  if (there()) {
    turnTo(*controls_.tEmail);
  }
  return false;
}

bool SiteEditor::save() {
  const SiteDraft site = shownSite(controls_, program_.data().fields().site, stored_);
  if (!validate()) {
    return false;
  }
  Transaction whole(program_.data().database());
  storeSite(program_.data(), idSite_, site, postVars_.vars());
  controls_.options->store();
  whole.commit();
  stored_ = loaded_ = site;
  loadedVars_ = postVars_.vars();
  return true;
}

std::function<bool()> SiteEditor::stillThere() {
  return [self = QPointer<SiteEditor>(this), idSite = idSite_] {
    return self != nullptr && self->isVisible() && self->idSite_ == idSite;
  };
}

bool SiteEditor::changed() const {
  return shownSite(controls_, program_.data().fields().site, stored_) != loaded_ || postVars_.vars() != loadedVars_ ||
         controls_.options->isChanged();
}

bool SiteEditor::mayLeave() {
  if (!changed()) {
    return true;
  }
  // Escape answers No, and must not lose what was typed.
  const QString question = tr("Do You Want To Discard The Changes To Site %1?").arg(idSite_);
  const Services& services = program_.services();
  return services.prompts.confirm(question.toStdString()) && !services.pump.closing();
}

void SiteEditor::Command1_Click() {
  const auto there = stillThere();
  save();
  if (there() && validate()) {
    unload();
  }
}

void SiteEditor::Command2_Click() {
  if (!save()) {
    return;
  }
  auto* content = new ContentDialog(program_, this);
  content->populateMe(idSite_);
  openChild(*content, false);
}

void SiteEditor::Command3_Click() { save(); }

void SiteEditor::Command4_Click() {
  PostVar var{controls_.pvName->text().toStdString(), controls_.pvValue->text().toStdString()};
  requireSite(program_.data(), idSite_);
  program_.data().addPostVars(idSite_, var.name, var.value);
  loadedVars_.push_back(var);
  postVars_.append(std::move(var));
  controls_.grid1->scrollToBottom();
  // Ready for the next one.
  controls_.pvName->setFocus();
  controls_.pvName->selectAll();
}

void SiteEditor::Command5_Click() { resetGrid1(); }

void SiteEditor::Command6_Click() {
  Program& program = program_;
  const std::int16_t asked = idSite_;
  const auto there = stillThere();
  if (!program.services().prompts.confirm("Do You Want To Delete This Site?")) {
    return;
  }
  program.data().deleteSite(asked);
  if (there()) {
    unload();
  } else {
    program.run().init();
  }
}

void SiteEditor::Command7_Click() {
  auto* counters = new CountersDialog(program_, this);
  counters->idSite = idSite_;
  openChild(*counters, true);
}

void SiteEditor::Command8_Click() { unload(); }

void SiteEditor::Command9_Click() {
  program_.data().openFileFromSystem(controls_.tUrl->text().trimmed().toStdString());
}

void SiteEditor::grid1_Click(int row) {
  const PostVar var = postVars_.vars().at(static_cast<std::size_t>(row));
  if (program_.data().getIdPostVars(idSite_, var.name, var.value) == 0) {
    // A Null, or a change by another program: an update would reach no variable and be lost.
    throw std::runtime_error(
        tr("This variable is not stored as it is shown. Press Apply to store the list, then click the variable again.")
            .toStdString());
  }
  auto* editor = new NewPostVar(program_, idSite_, var, this);
  editor->populateMe();
  connect(editor, &QDialog::finished, this, [this] {
    // Only the variables: what was typed elsewhere in this form is kept.
    if (!program_.services().pump.closing()) {
      program_.faults().run([this] { reloadPostVars(); });
    }
  });
  openChild(*editor, false);
}

void SiteEditor::openChild(QDialog& dialog, bool alone) {
  child_ = &dialog;
  const auto blocked = [this, alone](const QWidget& widget) {
    return widget.window() == this || (alone && widget.window() == parentWidget()->window());
  };
  new InputBlock(dialog, blocked, &dialog);
  connect(&dialog, &QDialog::finished, this, [this, &dialog, focused = QPointer<QWidget>(focusWidget())] {
    if (program_.services().pump.closing()) {
      return;
    }
    dialog.deleteLater();
    activateWindow();
    if (focused != nullptr) {
      focused->setFocus();
    }
  });
  dialog.show();
  dialog.activateWindow();
}

void SiteEditor::bringToFront(QDialog& dialog) {
  dialog.raise();
  dialog.activateWindow();
}

void SiteEditor::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    // Enter does what the control in hand is for, not what the default button does.
    const QWidget* inHand = focusWidget();
    if (inHand == controls_.pvName || inHand == controls_.pvValue) {
      controls_.Command4->click();
      return;
    }
    if (inHand == controls_.grid1) {
      const QModelIndex current = controls_.grid1->currentIndex();
      if (current.isValid()) {
        program_.faults().run([&] { grid1_Click(current.row()); });
      }
      return;
    }
  }
  QDialog::keyPressEvent(event);
}

void SiteEditor::reject() {
  program_.faults().run([this] { unload(); });
}

void SiteEditor::unload() {
  QDialog::done(QDialog::Rejected);
  // While the program is being closed a handler of this form may still be on its way back from a box.
  if (!program_.services().pump.closing()) {
    deleteLater();
    program_.run().init();
  }
}

std::function<void(std::int16_t)> siteEditorOf(Program& program, QWidget& parent) {
  return [&program, &parent, editor = QPointer<SiteEditor>()](std::int16_t idSite) mutable {
    if (editor != nullptr && editor->isVisible()) {
      editor->editSite(idSite);
      return;
    }
    auto fresh = std::make_unique<SiteEditor>(program, &parent);
    fresh->editSite(idSite);
    editor = fresh.release();
  };
}

}  // namespace tarnwick
