#include "ui/site_editor.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <utility>
#include <QKeyEvent>

#include "platform/desktop/input_block.h"
#include "ui/content_dialog.h"
#include "ui/counters_dialog.h"
#include "ui/dialog_parts.h"
#include "ui/new_post_var.h"
#include "ui/placement.h"

namespace tarnwick {
namespace {

constexpr std::array<int, 9> kIntervals = {1, 5, 10, 15, 30, 45, 60, 90, 120};

QString lowerCase(const std::string& text) { return QString::fromLatin1(text).toLower(); }

}  // namespace

SiteEditor::SiteEditor(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), controls_(layOutSiteEditor(*this, postVars_)) {
  setObjectName(QStringLiteral("site"));
  setWindowTitle(tr("Site"));
  connectButtons();
  Form_Load();
}

void SiteEditor::Form_Load() {
  for (const int minutes : kIntervals) {
    controls_.lbInterval->addItem(QString::number(minutes));
  }
  resetGrid1();
}

void SiteEditor::connectButtons() {
  onClick(*controls_.Command1, program_.faults(), [this] { Command1_Click(); });
  onClick(*controls_.Command2, program_.faults(), [this] { Command2_Click(); });
  onClick(*controls_.Command3, program_.faults(), [this] { Command3_Click(); });
  onClick(*controls_.Command4, program_.faults(), [this] { Command4_Click(); });
  onClick(*controls_.Command5, program_.faults(), [this] { Command5_Click(); });
  onClick(*controls_.Command6, program_.faults(), [this] { Command6_Click(); });
  onClick(*controls_.Command7, program_.faults(), [this] { Command7_Click(); });
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
  if (other && (!isVisible() || mayLeave())) {
    populateMe(idSite);
    controls_.tUrl->setFocus();
    controls_.tUrl->selectAll();
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
  const SiteDraft site = readSite(program_.data(), idSite);
  idSite_ = idSite;
  controls_.Frame1->setTitle(tr("Site ID: %1").arg(idSite));
  fill(site);
  reloadPostVars();
}

void SiteEditor::fill(const SiteDraft& site) {
  controls_.tUrl->setBytes(site.url);
  controls_.tUsername->setBytes(site.sUserName);
  controls_.tPassword->setBytes(site.sPassWord);
  controls_.tEmail->setBytes(site.email);
  controls_.cEmail->setChecked(site.alertEmail);
  // Any other method selects neither, also when one is selected from the site shown before.
  const QString method = lowerCase(site.method);
  for (QRadioButton* button : {controls_.tGet, controls_.tPost}) {
    button->setAutoExclusive(false);
    button->setChecked(false);
  }
  controls_.tGet->setChecked(method == QLatin1String("get"));
  controls_.tPost->setChecked(method == QLatin1String("post"));
  for (QRadioButton* button : {controls_.tGet, controls_.tPost}) {
    button->setAutoExclusive(true);
  }
  controls_.tActive->setChecked(site.active);

  const auto stored = std::ranges::find(kIntervals, QString::fromStdString(site.tInterval).toInt());
  controls_.lbInterval->setCurrentRow(stored == kIntervals.end() ? -1 : static_cast<int>(stored - kIntervals.begin()));
  stored_ = site;
  loaded_ = gather();
}

void SiteEditor::resetGrid1() { postVars_.setVars({}); }

void SiteEditor::reloadPostVars() {
  resetGrid1();
  loadedVars_ = readPostVars(program_.data(), idSite_);
  postVars_.setVars(loadedVars_);
}

SiteDraft SiteEditor::gather() const {
  // What is selected and not what is current: the Tab key makes an item current on its way through the list.
  const auto selected = controls_.lbInterval->selectedItems();
  return {
      controls_.tUrl->bytes(),        controls_.tPost->isChecked() ? "post" : "get",
      controls_.tActive->isChecked(), selected.isEmpty() ? stored_.tInterval : selected.front()->text().toStdString(),
      controls_.cEmail->isChecked(),  controls_.tEmail->bytes(),
      controls_.tUsername->bytes(),   controls_.tPassword->bytes()};
}

bool SiteEditor::validate() {
  if (!controls_.cEmail->isChecked() || m::isEmail(controls_.tEmail->bytes())) {
    return true;
  }
  program_.services().prompts.inform("You must enter a valid email address.");
  controls_.tEmail->setFocus();
  return false;
}

bool SiteEditor::save() {
  const SiteDraft site = gather();
  if (!validate()) {
    return false;
  }
  storeSite(program_.data(), idSite_, site, postVars_.vars());
  stored_ = loaded_ = site;
  loadedVars_ = postVars_.vars();
  return true;
}

bool SiteEditor::changed() const { return gather() != loaded_ || postVars_.vars() != loadedVars_; }

bool SiteEditor::mayLeave() {
  if (!changed()) {
    return true;
  }
  // Escape answers No, and must not lose what was typed.
  const QString question = tr("Do You Want To Discard The Changes To Site %1?").arg(idSite_);
  return program_.services().prompts.confirm(question.toStdString()) && !program_.services().pump.closing();
}

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
  if (program_.services().prompts.confirm("Do You Want To Delete This Site?")) {
    program_.data().deleteSite(idSite_);
    unload();
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
  const std::int16_t idPostVars = program_.data().getIdPostVars(idSite_, var.name, var.value);
  if (idPostVars == 0) {
    // A Null, or a change by another program: an update would reach no variable and be lost.
    throw std::runtime_error(
        tr("This variable is not stored as it is shown. Press Apply to store the list, then click the variable again.")
            .toStdString());
  }
  auto* editor = new NewPostVar(program_, idPostVars, var, this);
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
