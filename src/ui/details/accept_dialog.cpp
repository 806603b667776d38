// SPDX-License-Identifier: MIT
#include "ui/details/accept_dialog.h"

#include <utility>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "ui/controls/colour_text.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/tones.h"
#include "ui/details/settling_words.h"

namespace tarnwick {
namespace {

constexpr QSize kUsualSize{760, 460};

QLabel* makeDoubt(QWidget& parent, const QString& words) {
  auto* doubt = named(new QLabel(words, &parent), "acceptDoubt");
  doubt->setWordWrap(true);
  doubt->setMargin(6);
  const NoticeColours colours = noticeColours(NoticeTone::amber, isDark(parent.palette()));
  QPalette palette = doubt->palette();
  palette.setColor(QPalette::Window, colours.fill);
  palette.setColor(QPalette::WindowText, colours.ink);
  doubt->setPalette(palette);
  doubt->setAutoFillBackground(true);
  doubt->setVisible(!words.isEmpty());
  return doubt;
}

}  // namespace

AcceptDialog::AcceptDialog(Program& program, std::int16_t idSite, ToSettle found, bool beside,
                           std::function<void(AcceptAs)> accepted, QWidget* parent)
    : QDialog(parent),
      program_(program),
      idSite_(idSite),
      found_(std::move(found)),
      accepted_(std::move(accepted)),
      sentence_(named(new QLabel(this), "acceptSentence")),
      difference_(new DifferencePanel(program.services().clock, this)) {
  setObjectName(QStringLiteral("frmAccept"));
  setWindowTitle(tr("Accept a Page"));
  sentence_->setWordWrap(true);
  layOut(beside);
  tellSize();
  connect(&difference_->view(), &DifferenceView::compared, this, &AcceptDialog::tellSize);
  difference_->heads().tell(baselineHead(found_.baseline.size()), latestHead(found_.page.size(), {}, {}));
  difference_->compare(comparedPages(found_), tr("What changed in site %1").arg(idSite_));
  resize(kUsualSize);
}

void AcceptDialog::layOut(bool beside) {
  auto* inPlace = named(new QRadioButton(tr("in &place of the baseline"), this), "acceptInPlace");
  beside_ = named(new QRadioButton(tr("&beside it: either page is good"), this), "acceptBeside");
  (beside ? beside_ : inPlace)->setChecked(true);
  QPushButton* accept = addButton(*this, "acceptAccept", tr("&Accept"));
  QPushButton* cancel = addButton(*this, "acceptCancel", tr("Cancel"));
  const QString doubt = doubtWords(found_);
  (doubt.isEmpty() ? accept : cancel)->setDefault(true);
  onClick(*accept, program_.faults(), [this] { take(); });
  onClick(*cancel, program_.faults(), [this] { reject(); });
  auto* foot = new QHBoxLayout;
  foot->addWidget(inPlace);
  foot->addWidget(beside_);
  foot->addStretch(1);
  foot->addWidget(accept);
  foot->addWidget(cancel);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(sentence_);
  lines->addWidget(makeDoubt(*this, doubt));
  lines->addWidget(difference_, 1);
  lines->addLayout(foot);
  (doubt.isEmpty() ? accept : cancel)->setFocus();
}

void AcceptDialog::tellSize() {
  QString words =
      tr("This page becomes the baseline of site %1: %2 instead of %3.")
          .arg(QString::number(idSite_), bytesWords(found_.page.size()), bytesWords(found_.baseline.size()));
  if (difference_->view().difference() != nullptr) {
    const int changes = difference_->view().changes();
    words.chop(1);
    words += changes == 1 ? tr(", 1 change.") : tr(", %1 changes.").arg(changes);
  }
  sentence_->setText(words);
}

void AcceptDialog::take() {
  const AcceptAs as = beside_->isChecked() ? AcceptAs::also : AcceptAs::baseline;
  program_.data().accept(idSite_, found_.page, as);
  const auto accepted = accepted_;
  accept();
  accepted(as);
}

void AcceptDialog::done(int result) {
  QDialog::done(result);
  deleteLater();
}

}  // namespace tarnwick
