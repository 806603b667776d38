// SPDX-License-Identifier: MIT
#include "ui/site/counters_dialog.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr std::int16_t kEverySite = -1;

}  // namespace

CountersDialog::CountersDialog(Program& program, QWidget* siteEditor) : QDialog(siteEditor), program_(program) {
  setObjectName(QStringLiteral("frmCounters"));
  setWindowTitle(tr("counters"));
  layOut();
  Form_Load();
}

void CountersDialog::layOut() {
  auto* frame = addFrame(*this, "Frame1", tr("Counter Options"));
  auto* clearSite = addButton(*frame, "btnClearSite", tr("Clear This &Site's Counter"));
  auto* clearAll = addButton(*frame, "btnClearAll", tr("Clear Counter For &All Sites"));
  auto* cancel = addButton(*frame, "btnCancel", tr("Cancel"));
  // Nothing is asked before clearing, so Enter clears nothing by chance.
  cancel->setDefault(true);
  onClick(*clearSite, program_.faults(), [this] { btnClearSite_Click(); });
  onClick(*clearAll, program_.faults(), [this] { btnClearAll_Click(); });
  onClick(*cancel, program_.faults(), [this] { btnCancel_Click(); });

  auto* lines = new QVBoxLayout(frame);
  for (QPushButton* button : {clearSite, clearAll, cancel}) {
    lines->addWidget(button);
  }
  auto* all = new QVBoxLayout(this);
  all->setSizeConstraint(QLayout::SetFixedSize);
  all->addWidget(frame);
  cancel->setFocus();
}

void CountersDialog::Form_Load() {
  idSite = 0;
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  adjustSize();
  placeAt(*this, *parentWidget());
}

void CountersDialog::btnClearSite_Click() {
  program_.data().clearCounters(idSite);
  accept();
}

void CountersDialog::btnClearAll_Click() {
  program_.data().clearCounters(kEverySite);
  accept();
}

void CountersDialog::btnCancel_Click() { reject(); }

void CountersDialog::closeEvent(QCloseEvent* event) {
  // A window manager that closes windows without a close button is not obeyed either.
  if (event->spontaneous()) {
    event->ignore();
    return;
  }
  QDialog::closeEvent(event);
}

}  // namespace tarnwick
