// SPDX-License-Identifier: MIT
#include "ui/controls/alarm_details.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

#include "store/alarm_values.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"

namespace tarnwick {
namespace {

enum Remind { everyCheck, never, regular, growing };

constexpr int kUsualCount = 3;
constexpr int kUsualReminder = 60;
constexpr int kUsualSlow = 2000;
constexpr const char* kUsualDays = "21";
constexpr UnsteadyLimit kUsualLimit{5, std::chrono::minutes(30)};
constexpr int kGap = 6;

QString textOf(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

int numberOf(const std::optional<std::string>& value, int other) {
  bool isNumber = false;
  const int number = QString::fromStdString(value.value_or("")).toInt(&isNumber);
  return isNumber ? number : other;
}

}  // namespace

AlarmDetails::AlarmDetails(QWidget* parent) : QGroupBox(tr("In detail"), parent), lines_(new QVBoxLayout(this)) {
  setObjectName(QStringLiteral("alarmDetails"));
  makeLines();
  connectLines();
}

QSpinBox* AlarmDetails::number(const char* name, const QString& spoken, int least, int most) {
  auto* box = named(new QSpinBox(this), name, spoken);
  box->setRange(least, most);
  box->setFocusPolicy(Qt::StrongFocus);
  return box;
}

QCheckBox* AlarmDetails::addLine(const char* name, const QString& caption, std::initializer_list<QWidget*> more,
                                 const QString& end) {
  auto* flag = named(new QCheckBox(caption, this), name, caption);
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  row->addWidget(flag);
  for (QWidget* part : more) {
    row->addWidget(part);
  }
  if (!end.isEmpty()) {
    row->addWidget(new QLabel(end, this));
  }
  row->addStretch();
  lines_->addLayout(row);
  return flag;
}

void AlarmDetails::makeLines() {
  confirmCount_ = number("alarmConfirmCount", tr("Failures until it is down for real"), 2, 20);
  confirmAfter_ = addText<QLineEdit>(*this, "alarmConfirmAfter", tr("Look again after"), 12);
  explain(*confirmAfter_,
          tr("The pauses before a failed check is repeated, as in \"5 s, 20 s\"; the last one holds for "
             "all further ones"));
  confirm_ = addLine("alarmConfirm", tr("Down for real after"),
                     {confirmCount_, new QLabel(tr("failures; look again after"), this), confirmAfter_});
  explain(*confirm_, tr("A failed check is repeated at once; only when so many have failed in a row it is told"));
  recovery_ = addLine("alarmRecovery", tr("Tell me when it is up again"), {});

  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  remind_ = named(new QComboBox(this), "alarmRemind", tr("While it stays down"));
  remind_->addItems({tr("tell me at every failed check"), tr("say no more"), tr("remind me every"),
                     tr("remind me after 1, 2, 4 … hours")});
  remind_->setFocusPolicy(Qt::StrongFocus);
  remindEvery_ = number("alarmRemindEvery", tr("Minutes between two reminders"), 1, 10080);
  remindUnit_ = new QLabel(tr("minutes"), this);
  row->addWidget(addLabel(tr("While it stays down"), *remind_));
  row->addWidget(remind_);
  row->addWidget(remindEvery_);
  row->addWidget(remindUnit_);
  row->addStretch();
  lines_->addLayout(row);

  changes_ = number("alarmFlappingChanges", tr("Changes that are borne"), 1, 100);
  within_ = number("alarmFlappingMinutes", tr("Minutes in which they are borne"), 1, 1440);
  flapping_ = addLine("alarmFlapping", tr("Unsteady: over"), {changes_, new QLabel(tr("changes in"), this), within_},
                      tr("min are one alert"));
  slowAfter_ = number("alarmSlowAfter", tr("Milliseconds of a slow answer"), 1, 600000);
  slowAfter_->setSuffix(QStringLiteral(" ms"));
  slowAfter_->setSingleStep(100);
  slow_ = addLine("alarmSlow", tr("Slow: an answer after"), {slowAfter_}, tr("is a warning, never \"down\""));
  certificateDays_ = addText<QLineEdit>(*this, "alarmCertificateDays", tr("Days before the certificate ends"), 8);
  explain(*certificateDays_,
          tr("One warning for each of these, as in \"21, 7, 1\"; \"third\" is a third of the certificate's lifetime"));
  certificate_ = addLine("alarmCertificate", tr("Certificate: warn"), {certificateDays_}, tr("days before it ends"));
  explain(*certificate_,
          tr("A site whose certificate ends soon, or is from another authority than before, is a warning, "
             "never \"down\""));
  QWidget* before = confirm_;
  for (QWidget* control :
       std::initializer_list<QWidget*>{confirmCount_, confirmAfter_, recovery_, remind_, remindEvery_, flapping_,
                                       changes_, within_, slow_, slowAfter_, certificate_, certificateDays_}) {
    // In the order in which the eye reads them.
    setTabOrder(before, control);
    before = control;
  }
}

void AlarmDetails::setValues(const OptionEdit& options) {
  isShowing_ = true;
  const int confirm = numberOf(options.inForce(option_name::confirm), 1);
  confirm_->setChecked(confirm > 1);
  confirmCount_->setValue(confirm > 1 ? confirm : kUsualCount);
  // A text that is being typed stays as it is.
  if (!confirmAfter_->hasFocus() || !confirmAfter_->isModified()) {
    confirmAfter_->setText(QString::fromStdString(options.inForce(option_name::confirmAfter).value_or("5 s, 20 s")));
  }
  recovery_->setChecked(options.inForce(option_name::recovery) == option_value::on);

  const std::string remind = options.inForce(option_name::remind).value_or(std::string(option_value::everyCheck));
  const int every = numberOf(remind, 0);
  remind_->setCurrentIndex(every > 0                         ? regular
                           : remind == option_value::never   ? never
                           : remind == option_value::growing ? growing
                                                             : everyCheck);
  remindEvery_->setValue(every > 0 ? every : kUsualReminder);

  const auto limit = readUnsteadyLimit(options.inForce(option_name::flapping).value_or(""));
  flapping_->setChecked(limit.has_value());
  changes_->setValue(limit.value_or(kUsualLimit).changes);
  within_->setValue(static_cast<int>(limit.value_or(kUsualLimit).within.count()));
  const int slow = numberOf(options.inForce(option_name::slow), 0);
  slow_->setChecked(slow > 0);
  slowAfter_->setValue(slow > 0 ? slow : kUsualSlow);
  const std::string certificate = options.inForce(option_name::certificate).value_or(std::string(option_value::off));
  certificate_->setChecked(certificate != option_value::off);
  if (!certificateDays_->hasFocus() || !certificateDays_->isModified()) {
    certificateDays_->setText(certificate_->isChecked() ? QString::fromStdString(certificate)
                                                        : QString::fromLatin1(kUsualDays));
  }
  isShowing_ = false;
  enableParts();
}

void AlarmDetails::enableParts() {
  confirmCount_->setEnabled(confirm_->isChecked());
  confirmAfter_->setEnabled(confirm_->isChecked());
  remindEvery_->setVisible(remind_->currentIndex() == regular);
  remindUnit_->setVisible(remind_->currentIndex() == regular);
  changes_->setEnabled(flapping_->isChecked());
  within_->setEnabled(flapping_->isChecked());
  slowAfter_->setEnabled(slow_->isChecked());
  certificateDays_->setEnabled(certificate_->isChecked());
}

void AlarmDetails::tellRemind() {
  const int choice = remind_->currentIndex();
  Q_EMIT touched(textOf(option_name::remind), choice == regular   ? QString::number(remindEvery_->value())
                                              : choice == never   ? textOf(option_value::never)
                                              : choice == growing ? textOf(option_value::growing)
                                                                  : textOf(option_value::everyCheck));
}

void AlarmDetails::tellFlapping() {
  const UnsteadyLimit limit{changes_->value(), std::chrono::minutes(within_->value())};
  Q_EMIT touched(textOf(option_name::flapping),
                 flapping_->isChecked() ? QString::fromStdString(unsteadyLimitText(limit)) : textOf(option_value::off));
}

void AlarmDetails::connectLines() {
  const auto whenTouched = [this](const auto& tell) {
    return [this, tell] {
      if (!isShowing_) {
        tell();
      }
    };
  };
  const auto confirm = whenTouched([this] {
    Q_EMIT touched(textOf(option_name::confirm), QString::number(confirm_->isChecked() ? confirmCount_->value() : 1));
  });
  connect(confirm_, &QCheckBox::toggled, this, confirm);
  connect(confirmCount_, &QSpinBox::valueChanged, this, confirm);
  connect(confirmAfter_, &QLineEdit::textEdited, this,
          [this](const QString& text) { Q_EMIT touched(textOf(option_name::confirmAfter), text.trimmed()); });
  connect(recovery_, &QCheckBox::toggled, this, whenTouched([this] {
            Q_EMIT touched(textOf(option_name::recovery),
                           textOf(recovery_->isChecked() ? option_value::on : option_value::off));
          }));
  const auto remind = whenTouched([this] { tellRemind(); });
  connect(remind_, &QComboBox::currentIndexChanged, this, remind);
  connect(remindEvery_, &QSpinBox::valueChanged, this, remind);
  const auto flapping = whenTouched([this] { tellFlapping(); });
  connect(flapping_, &QCheckBox::toggled, this, flapping);
  connect(changes_, &QSpinBox::valueChanged, this, flapping);
  connect(within_, &QSpinBox::valueChanged, this, flapping);
  const auto slow = whenTouched([this] {
    Q_EMIT touched(textOf(option_name::slow),
                   slow_->isChecked() ? QString::number(slowAfter_->value()) : textOf(option_value::off));
  });
  connect(slow_, &QCheckBox::toggled, this, slow);
  connect(slowAfter_, &QSpinBox::valueChanged, this, slow);
  const auto certificate = whenTouched([this] {
    const QString days = certificateDays_->text().trimmed();
    Q_EMIT touched(textOf(option_name::certificate), !certificate_->isChecked() ? textOf(option_value::off)
                                                     : days.isEmpty()           ? QString::fromLatin1(kUsualDays)
                                                                                : days);
  });
  connect(certificate_, &QCheckBox::toggled, this, certificate);
  // Half a list of days is none: what is wrong is told when it has been typed.
  connect(certificateDays_, &QLineEdit::textEdited, this, [certificate](const QString& days) {
    if (days.trimmed().isEmpty() || readCertificateLimits(days.trimmed().toStdString())) {
      certificate();
    }
  });
  connect(certificateDays_, &QLineEdit::editingFinished, this, [this, certificate] {
    if (certificateDays_->isModified()) {
      certificate();
    }
  });
}

}  // namespace tarnwick
