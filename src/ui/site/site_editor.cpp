// SPDX-License-Identifier: MIT
#include "ui/site/site_editor.h"

#include <chrono>
#include <stdexcept>
#include <utility>
#include <QKeyEvent>
#include <QPointer>

#include "base/one_line.h"
#include "ui/baseline/content_dialog.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/page_opener.h"
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
  connect(controls_.pages, &QTabWidget::currentChanged, this, [this] {
    // What is chosen on the first page, stored or not.
    const SiteDraft site = shownSite(controls_, program_.data().fields().site, stored_);
    controls_.options->setInterval(std::chrono::minutes(QString::fromStdString(site.tInterval).toInt()));
  });
  connect(controls_.grid1, &QTableView::clicked, this,
          [this](const QModelIndex& index) { program_.faults().run([&] { grid1_Click(index.row()); }); });
}

void SiteEditor::editSite(std::int16_t idSite) {
  if (isVisible() && idSite == idSite_) {
    bringToFront(dialogBefore(*this) != nullptr ? *dialogBefore(*this) : *this);
    return;
  }
  leaveSite([this, idSite] { showSiteOf(idSite); });
}

void SiteEditor::editAlarm(std::int16_t idSite) {
  if (isVisible() && idSite == idSite_) {
    editSite(idSite);
    controls_.pages->setCurrentWidget(controls_.options);
    return;
  }
  leaveSite([this, idSite] {
    showSiteOf(idSite);
    turnTo(*controls_.options);
  });
}

void SiteEditor::editNew(const std::function<std::int16_t()>& add) {
  leaveSite([this, add] {
    const std::int16_t idSite = add();
    showSiteOf(idSite);
    program_.run().beingTyped(idSite);
  });
}

void SiteEditor::leaveSite(const std::function<void()>& then) {
  if (QDialog* dialog = dialogBefore(*this)) {
    bringToFront(*dialog);
    return;
  }
  if (!isVisible() || !changed()) {
    then();
    return;
  }
  bringToFront(*this);
  const QString question = tr("Do You Want To Discard The Changes To Site %1?").arg(idSite_);
  ask(*this, program_, {.text = question.toStdString(), .destroys = true}, [then](bool yes) {
    if (yes) {
      then();
    }
  });
}

void SiteEditor::showSiteOf(std::int16_t idSite) {
  program_.run().beingTyped(std::nullopt);
  populateMe(idSite);
  controls_.tUrl->setFocus();
  // All of it, ready to be typed over, and its beginning to be seen.
  const auto length = static_cast<int>(controls_.tUrl->text().size());
  controls_.tUrl->setSelection(length, -length);
  if (!isVisible()) {
    sizeToContents(*this, *parentWidget());
    placeOver(*this, *parentWidget());
    endModalityAt(*this);
    show();
  }
  bringToFront(*this);
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
  if (hasLineEnd(controls_.tUsername->bytes())) {
    tell(*this, program_, tr("The user name holds a line end. Enter it as one line.").toStdString(),
         [this] { turnTo(*controls_.tUsername); });
    return false;
  }
  if (!controls_.cEmail->isChecked() || m::isEmail(controls_.tEmail->bytes())) {
    return true;
  }
  tell(*this, program_, "You must enter a valid email address.", [this] { turnTo(*controls_.tEmail); });
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
  program_.run().beingTyped(std::nullopt);
  return true;
}

bool SiteEditor::changed() const {
  return shownSite(controls_, program_.data().fields().site, stored_) != loaded_ || postVars_.vars() != loadedVars_ ||
         controls_.options->isChanged();
}

QString SiteEditor::unsavedEdits() const { return changed() ? tr("site %1").arg(idSite_) : QString(); }

void SiteEditor::Command1_Click() {
  save();
  if (validate()) {
    unload();
  }
}

void SiteEditor::Command2_Click() {
  if (!save()) {
    return;
  }
  auto* content = new ContentDialog(program_, this);
  content->populateMe(idSite_);
  openChild(*content);
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
  const QString site = tr("Site %1: %2").arg(idSite_).arg(displayText(stored_.url));
  ask(*this, program_, {.text = "Do You Want To Delete This Site?\n\n" + site.toStdString(), .destroys = true},
      [this](bool yes) {
        if (yes) {
          DeletedSite deleted = program_.data().takeSiteOut(idSite_);
          unload();
          program_.tellDeleted(std::move(deleted));
        }
      });
}

void SiteEditor::Command7_Click() {
  auto* counters = new CountersDialog(program_, this);
  counters->idSite = idSite_;
  openChild(*counters);
}

void SiteEditor::Command8_Click() { unload(); }

void SiteEditor::Command9_Click() { visitPage(program_.services(), controls_.tUrl->bytes(), this); }

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
  openChild(*editor);
}

void SiteEditor::openChild(QDialog& dialog) {
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
  dialog.open();
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
    program_.run().beingTyped(std::nullopt);
    program_.run().init();
  }
}

}  // namespace tarnwick
