// SPDX-License-Identifier: MIT
#include "ui/site/new_post_var.h"

#include <stdexcept>
#include <utility>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QPoint kBesideCorner{40, 40};
constexpr int kFieldCharacters = 48;

}  // namespace

NewPostVar::NewPostVar(Program& program, std::int16_t idSite, PostVar var, QWidget* siteEditor)
    : QDialog(siteEditor), program_(program), idSite_(idSite), var_(std::move(var)) {
  setObjectName(QStringLiteral("newPostVar"));
  setWindowTitle(tr("Add / Edit Post Variable"));
  layOut();
  Form_Load();
}

void NewPostVar::layOut() {
  auto* frame = addFrame(*this, "Frame1", tr("HTTP Post Variables"));
  pvName_ = named(new ByteLineEdit(frame), "pvName", tr("Name"));
  pvName_->setText(tr("enter name here"));
  pvValue_ = named(new ByteLineEdit(frame), "pvValue", tr("Value"));
  pvValue_->setText(tr("enter value here"));
  pvValue_->setMinimumWidth(fontMetrics().averageCharWidth() * kFieldCharacters);
  auto* label1 = named(new QLabel(tr("&Name"), frame), "Label1", tr("Name"));
  label1->setBuddy(pvName_);
  auto* label2 = named(new QLabel(tr("&Value"), frame), "Label2", tr("Value"));
  label2->setBuddy(pvValue_);

  auto* command4 = addButton(*frame, "Command4", tr("&Update"));
  auto* command1 = addButton(*frame, "Command1", tr("&Delete"));
  auto* command2 = addButton(*frame, "Command2", tr("Cancel"));
  command4->setDefault(true);
  onClick(*command4, program_.faults(), [this] { Command4_Click(); });
  onClick(*command1, program_.faults(), [this] { Command1_Click(); });
  onClick(*command2, program_.faults(), [this] { Command2_Click(); });

  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(command4);
  buttons->addWidget(command1);
  buttons->addWidget(command2);
  auto* lines = new QGridLayout(frame);
  lines->addWidget(label1, 0, 0);
  lines->addWidget(pvName_, 0, 1);
  lines->addWidget(label2, 1, 0);
  lines->addWidget(pvValue_, 1, 1);
  lines->addLayout(buttons, 2, 0, 1, 2);
  auto* all = new QVBoxLayout(this);
  all->addWidget(frame);
}

void NewPostVar::Form_Load() {
  adjustSize();
  placeAt(*this, *parentWidget(), kBesideCorner);
}

void NewPostVar::populateMe() {
  pvName_->setBytes(var_.name);
  pvValue_->setBytes(var_.value);
  pvName_->setFocus();
  pvName_->selectAll();
}

QString NewPostVar::unsavedEdits() const {
  return pvName_->bytes() != var_.name || pvValue_->bytes() != var_.value ? tr("a variable of site %1").arg(idSite_)
                                                                          : QString();
}

std::int16_t NewPostVar::idPostVars() {
  const std::int16_t id = program_.data().getIdPostVars(idSite_, var_.name, var_.value);
  if (id == 0) {
    throw std::runtime_error(
        tr("This variable was changed or removed by another program. Press Cancel, and look at the list.")
            .toStdString());
  }
  return id;
}

void NewPostVar::Command4_Click() {
  // Nobody numbers anew in between.
  Transaction whole(program_.data().database());
  program_.data().updatePostVars(idPostVars(), pvName_->bytes(), pvValue_->bytes());
  whole.commit();
  accept();
}

void NewPostVar::Command1_Click() {
  Transaction whole(program_.data().database());
  program_.data().deletePostVars(idPostVars());
  whole.commit();
  accept();
}

void NewPostVar::Command2_Click() { reject(); }

}  // namespace tarnwick
