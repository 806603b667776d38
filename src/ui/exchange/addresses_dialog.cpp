// SPDX-License-Identifier: MIT
#include "ui/exchange/addresses_dialog.h"

#include <algorithm>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QSize kSize{560, 340};
constexpr int kPause = 200;  // milliseconds
constexpr int kFull = 1000;
constexpr std::size_t kMostTold = 20;

}  // namespace

AddressesDialog::AddressesDialog(Program& program, const QString& text, QWidget* parent)
    : QDialog(parent), program_(program) {
  setObjectName(QStringLiteral("frmAddresses"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Add Addresses"));
  layOut();
  resize(kSize);
  placeOver(*this, *parent);
  text_->setPlainText(text);
  soon_.setSingleShot(true);
  soon_.setInterval(kPause);
  connect(&soon_, &QTimer::timeout, this, [this] { program_.faults().run([this] { read(); }); });
  connect(text_, &QPlainTextEdit::textChanged, this, [this] {
    btnAdd_->setEnabled(false);
    soon_.start();
  });
  read();
}

AddressesDialog::~AddressesDialog() = default;

void AddressesDialog::layOut() {
  text_ = named(new QPlainTextEdit(this), "addressesText", tr("Addresses, one a line"));
  text_->setTabChangesFocus(true);
  text_->setLineWrapMode(QPlainTextEdit::NoWrap);
  text_->setPlaceholderText(QStringLiteral("https://example.org/"));
  state_ = named(new QLabel(this), "addressesState");
  state_->setTextFormat(Qt::PlainText);
  state_->setWordWrap(true);
  bar_ = named(new QProgressBar(this), "addressesBar", tr("Adding"));
  bar_->setRange(0, kFull);
  bar_->setTextVisible(false);
  bar_->hide();
  btnAdd_ = addButton(*this, "btnAddAddresses", tr("&Add"));
  btnAdd_->setDefault(true);
  QPushButton* cancel = addButton(*this, "btnCancelAddresses", tr("Cancel"));
  onClick(*btnAdd_, program_.faults(), [this] { add(); });
  onClick(*cancel, program_.faults(), [this] { close(); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(btnAdd_);
  buttons->addWidget(cancel);
  auto* all = new QVBoxLayout(this);
  all->addWidget(addLabel(tr("Addresses, &one a line:"), *text_));
  all->addWidget(text_, 1);
  all->addWidget(state_);
  all->addWidget(bar_);
  all->addLayout(buttons);
}

void AddressesDialog::done(int result) {
  work_.reset();
  QDialog::done(result);
}

void AddressesDialog::read() {
  work_.reset();
  btnAdd_->setEnabled(false);
  btnAdd_->setText(tr("&Add"));
  explain(*state_, {});
  const QString text = text_->toPlainText();
  if (text.trimmed().isEmpty()) {
    state_->setText(tr("Paste or type addresses."));
    return;
  }
  ListFaults faults;
  list_ = readAnyList("addresses", text.toStdString(), program_.data().fields(), faults);
  if (!faults.none()) {
    state_->setText(displayMessage(lineOf(faults.kept().front())));
    return;
  }
  work_ = std::make_unique<ImportWork>(program_, list_, ImportWork::Aim::read,
                                       [this] { program_.faults().run([this] { tellPlan(); }); });
}

void AddressesDialog::tellPlan() {
  if (!work_->ended()) {
    return;
  }
  const ImportPlan& plan = work_->plan();
  if (!work_->faults().none()) {
    state_->setText(displayMessage(lineOf(work_->faults().kept().front())));
    return;
  }
  const std::vector<ForeignNote>& notes = list_.content.notes;
  const std::size_t added = plan.count(ImportStep::Action::add);
  const std::size_t there = plan.unchanged + plan.count(ImportStep::Action::change) + plan.repeated.size();
  const auto leftOut = static_cast<std::size_t>(std::ranges::count_if(notes, &ForeignNote::leftOut));
  const std::size_t none = leftOut - std::min(leftOut, plan.repeated.size());
  const std::size_t all = added + there + none;
  const QString counts = QStringLiteral("%1, %2, %3")
                             .arg(tr("%1 new").arg(added), tr("%1 there already").arg(there),
                                  none == 1 ? tr("1 is none") : tr("%1 are none").arg(none));
  state_->setText(all == 1 ? tr("1 address: %1").arg(counts)
                           : tr("%1 addresses: %2").arg(QString::number(all), counts));
  QStringList why;
  for (std::size_t i = 0; i < std::min(notes.size(), kMostTold); ++i) {
    why << displayMessage(lineOf(notes[i]));
  }
  explain(*state_, why.join(QLatin1Char('\n')));
  btnAdd_->setEnabled(added > 0);
  btnAdd_->setText(added > 0 ? tr("&Add %1").arg(added) : tr("&Add"));
}

void AddressesDialog::add() {
  btnAdd_->setEnabled(false);
  text_->setReadOnly(true);
  bar_->show();
  work_ = std::make_unique<ImportWork>(program_, list_, ImportWork::Aim::write,
                                       [this] { program_.faults().run([this] { lookAtAdding(); }); });
}

void AddressesDialog::lookAtAdding() {
  bar_->setValue(static_cast<int>(work_->done() * kFull));
  if (!work_->ended()) {
    if (work_->waits()) {
      state_->setText(tr("Waiting for another program, which has the list locked ..."));
    }
    return;
  }
  try {
    work_->plan();
  } catch (...) {
    text_->setReadOnly(false);
    bar_->hide();
    read();  // for the next attempt
    throw;
  }
  program_.run().init();
  close();
}

std::function<void(const QString& text)> addAddressesOf(Program& program, QWidget& parent) {
  return [&program, &parent](const QString& text) {
    auto* dialog = new AddressesDialog(program, text, &parent);
    dialog->show();
    bringToFront(*dialog);
  };
}

}  // namespace tarnwick
