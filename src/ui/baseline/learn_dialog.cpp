// SPDX-License-Identifier: MIT
#include "ui/baseline/learn_dialog.h"

#include <algorithm>
#include <utility>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "holes/hole_words.h"
#include "ui/baseline/share_words.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr int kFewestFetches = 2;
constexpr int kMostFetches = 50;
constexpr int kWidthInLetters = 76;
constexpr qsizetype kMostTold = 8;
constexpr int kHour = 3600;
constexpr int kDay = 24 * kHour;

// So many of them that they can be read.
QStringList shortened(const QStringList& all) {
  return all.size() <= kMostTold
             ? all
             : all.first(kMostTold - 1) + QStringList{LearnDialog::tr("%1 more").arg(all.size() - kMostTold + 1)};
}

QString wordsOf(const Holes& holes) {
  QStringList words;
  for (const Hole& hole : holes) {
    words.append(displayMessage(describe(hole)));
  }
  return shortened(words).join(LearnDialog::tr(", "));
}

QStringList warningsOn(const Learnt& learnt) {
  QStringList warnings;
  for (const std::string& warning : learnt.warnings) {
    warnings.append(displayMessage(warning));
  }
  if (!learnt.lost.empty()) {
    warnings.append(LearnDialog::tr("The baseline has no place for: %1.").arg(wordsOf(learnt.lost)));
  }
  if (!learnt.explains) {
    warnings.append(LearnDialog::tr("The page differs from the baseline also in line %1: take the page as it is now as "
                                    "the baseline first.")
                        .arg(learnt.line));
  }
  return warnings;
}

}  // namespace

LearnDialog::LearnDialog(Program& program, std::int16_t idSite, std::string baseline, QWidget* parent)
    : QDialog(parent),
      program_(program),
      idSite_(idSite),
      baseline_(std::move(baseline)),
      learning_({program.data(), program.services().transfers, program.services().timers, program.services().clock}),
      plan_(makePlan()) {
  setObjectName(QStringLiteral("frmLearn"));
  setWindowTitle(tr("Learn What Varies"));
  progress_ = named(new QProgressBar(this), "learnProgress", tr("Fetched"));
  progress_->setFormat(tr("%v of %m"));
  progress_->setRange(0, times_->value());
  result_ = new QLabel(tr("The page is fetched several times. What differs from one time to another is shown then, and "
                          "nothing is stored yet."),
                       this);
  result_->setObjectName(QStringLiteral("learnResult"));
  result_->setTextFormat(Qt::PlainText);
  result_->setWordWrap(true);
  result_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  warnings_ = new AmberLine(this);
  warnings_->setObjectName(QStringLiteral("learnWarnings"));
  warnings_->hide();
  btnTake_ = addButton(*this, "btnTake", tr("&Take These"), tr("Let these places vary; OK of the content stores them"));
  btnTake_->setEnabled(false);
  auto* cancel = addButton(*this, "learnCancel", tr("Cancel"), tr("Stop fetching, and close without a change (Esc)"));
  onClick(*btnTake_, program_.faults(), [this] { take(); });
  onClick(*cancel, program_.faults(), [this] { reject(); });

  auto* foot = new QHBoxLayout;
  foot->addStretch();
  foot->addWidget(btnTake_);
  foot->addWidget(cancel);
  auto* lines = new QVBoxLayout(this);
  lines->addWidget(plan_);
  lines->addWidget(progress_);
  lines->addWidget(result_);
  lines->addWidget(warnings_);
  lines->addStretch();
  lines->addLayout(foot);
  setMinimumWidth(std::min(fontMetrics().averageCharWidth() * kWidthInLetters, parent->width()));
  btnStart_->setDefault(true);
  btnStart_->setFocus();
  placeOver(*this, *parent);
}

QWidget* LearnDialog::makePlan() {
  auto* plan = new QWidget(this);
  times_ = named(new QSpinBox(plan), "learnTimes", tr("Fetch so many times"));
  times_->setRange(kFewestFetches, kMostFetches);
  times_->setValue(PageLearning::Plan{}.fetches);
  now_ = named(new QRadioButton(tr("&now"), plan), "learnNow");
  spread_ = named(new QRadioButton(tr("&over"), plan), "learnSpread");
  now_->setChecked(true);
  over_ = named(new QComboBox(plan), "learnOver", tr("over so long a time"));
  over_->addItem(tr("10 minutes"), kHour / 6);
  over_->addItem(tr("1 hour"), kHour);
  over_->addItem(tr("6 hours"), 6 * kHour);
  over_->addItem(tr("1 day"), kDay);
  over_->setCurrentIndex(over_->count() - 1);
  over_->setEnabled(false);
  btnStart_ = addButton(*plan, "learnStart", tr("&Start"), tr("Fetch the page that often"));
  auto* line = new QHBoxLayout(plan);
  line->setContentsMargins({});
  line->addWidget(addLabel(tr("&Fetch"), *times_));
  line->addWidget(times_);
  line->addWidget(new QLabel(tr("times"), plan));
  line->addWidget(now_);
  line->addWidget(spread_);
  line->addWidget(over_);
  line->addStretch();
  line->addWidget(btnStart_);
  connect(spread_, &QRadioButton::toggled, over_, &QWidget::setEnabled);
  connect(times_, &QSpinBox::valueChanged, this, [this](int times) { progress_->setMaximum(times); });
  onClick(*btnStart_, program_.faults(), [this] { start(); });
  return plan;
}

void LearnDialog::start() {
  const std::chrono::seconds over(spread_->isChecked() ? over_->currentData().toInt() : 0);
  learning_.start(idSite_, baseline_, {times_->value(), over},
                  {[this](int done) { program_.faults().run([&] { showProgress(done); }); },
                   [this](Learnt learnt) { program_.faults().run([&] { showLearnt(std::move(learnt)); }); },
                   [this](const std::string& why) {
                     program_.faults().run([&] {
                       stop();
                       tell(tr("Nothing was learnt."), {displayMessage(why)});
                     });
                   }});
  progress_->setValue(0);
  plan_->setEnabled(false);
  btnTake_->setEnabled(false);
  tell(tr("Fetching the page …"), {});
}

void LearnDialog::showProgress(int fetched) {
  progress_->setValue(fetched);
  if (fetched == progress_->maximum()) {
    tell(tr("Looking at what varies …"), {});
  }
}

void LearnDialog::stop() {
  plan_->setEnabled(true);
  btnStart_->setFocus();
}

void LearnDialog::showLearnt(Learnt learnt) {
  learnt_ = std::move(learnt);
  progress_->setValue(progress_->maximum());
  stop();
  const qsizetype places = std::ssize(learnt_.holes);
  const QString words = wordsOf(learnt_.holes);
  const QString watched = shareWords(learnt_.watched);
  const QString result =
      places == 0   ? tr("Nothing varies: the page was the same each time.")
      : places == 1 ? tr("1 place: %1. %2 of the page stays watched.").arg(words, watched)
                    : tr("%1 places: %2. %3 of the page stays watched.").arg(QString::number(places), words, watched);
  tell(result, warningsOn(learnt_));
  if (places > 0) {
    btnTake_->setEnabled(true);
    btnTake_->setDefault(true);
    btnTake_->setFocus();
  }
}

void LearnDialog::tell(const QString& result, const QStringList& warnings) {
  result_->setText(result);
  warnings_->setText(shortened(warnings).join(QLatin1Char('\n')));
  warnings_->setVisible(!warnings.isEmpty());
  adjustSize();
}

void LearnDialog::take() {
  accept();
  Q_EMIT taken(learnt_);
}

void LearnDialog::reject() {
  learning_.cancel();
  QDialog::reject();
}

}  // namespace tarnwick
