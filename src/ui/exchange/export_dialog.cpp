// SPDX-License-Identifier: MIT
#include "ui/exchange/export_dialog.h"

#include <stdexcept>
#include <vector>
#include <QDir>
#include <QHBoxLayout>
#include <QPointer>
#include <QVBoxLayout>

#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QSize kSize{460, 220};
/// Of a path.
constexpr int kMostLines = 3;

QString shown(const std::string& file) { return QDir::toNativeSeparators(QString::fromStdString(file)); }

// Their passwords and tokens stay where they are kept.
std::vector<ListedChannel> channelsOf(m& data, ListFormat format) {
  std::vector<ListedChannel> listed;
  if (format == ListFormat::json) {
    for (Channel& channel : data.channels()) {
      listed.push_back({std::move(channel), std::nullopt});
    }
  }
  return listed;
}

}  // namespace

ExportDialog::ExportDialog(Program& program, QWidget* parent) : QDialog(parent), program_(program) {
  setObjectName(QStringLiteral("frmExport"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Export"));
  layOut();
  resize(sizeHint().expandedTo(kSize));
  placeOver(*this, *parent);
}

ExportDialog::~ExportDialog() = default;

void ExportDialog::layOut() {
  passwords_ = named(new QCheckBox(tr("&Passwords of the sites"), this), "exportPasswords");
  passwords_->setChecked(true);
  baselines_ = named(new QCheckBox(tr("&Baselines: the pages that they are compared with"), this), "exportBaselines");
  history_ = named(new QCheckBox(tr("&History: when they were up or down, and how fast"), this), "exportHistory");
  state_ = named(new QLabel(this), "exportState");
  state_->setTextFormat(Qt::PlainText);
  state_->setWordWrap(true);
  state_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  state_->setAlignment(Qt::AlignTop);
  state_->setMinimumHeight(kMostLines * state_->fontMetrics().lineSpacing());
  state_->setText(tr("CSV is for a spreadsheet. JSON has the channels, too, without their passwords and tokens."));
  bar_ = named(new QProgressBar(this), "exportBar", tr("Writing the file"));
  bar_->setRange(0, 0);
  bar_->setTextVisible(false);
  bar_->hide();
  btnExport_ = addButton(*this, "btnExport", tr("&Choose File…"));
  btnExport_->setDefault(true);
  btnCancel_ = addButton(*this, "btnCancelExport", tr("Cancel"));
  onClick(*btnExport_, program_.faults(), [this] { chooseFile(); });
  onClick(*btnCancel_, program_.faults(), [this] { close(); });

  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(btnExport_);
  buttons->addWidget(btnCancel_);
  auto* all = new QVBoxLayout(this);
  auto* what = new QLabel(tr("What is set for each site is in the file, and on wish:"), this);
  all->addWidget(what);
  all->addWidget(passwords_);
  all->addWidget(baselines_);
  all->addWidget(history_);
  all->addWidget(state_, 1);
  all->addWidget(bar_);
  all->addLayout(buttons);
}

void ExportDialog::done(int result) {
  stop();
  QDialog::done(result);
}

void ExportDialog::stop() {
  export_.reset();
  work_.reset();
  file_.reset();
}

void ExportDialog::chooseFile() {
  const QString filter = tr("CSV, for a spreadsheet") + QStringLiteral(" (*.csv)|*.csv|") +
                         tr("JSON, with all that is set") + QStringLiteral(" (*.json)|*.json");
  program_.services().prompts.chooseFile(
      {.folder = QDir::homePath().toStdString(), .filter = filter.toStdString(), .owner = this, .isNew = true},
      [this, dialog = QPointer(this)](const std::string& file) {
        if (dialog != nullptr) {
          program_.faults().run([&] { begin(file); });
        }
      });
}

void ExportDialog::begin(const std::string& file) {
  const auto format = listFormatOf(file);
  if (!format) {
    throw std::runtime_error("The name of the file " + file +
                             " ends neither in .csv nor in .json, so its format is not known. Give it one of them.");
  }
  if (program_.services().files.isSameFile(file, program_.data().database().dbPath())) {
    throw std::runtime_error("The file \"" + file + "\" is the list itself. Export to a file of another name.");
  }
  putFile(program_, file, [this, dialog = QPointer(this), file, format = *format] {
    if (dialog != nullptr) {
      write(file, format);
    }
  });
}

void ExportDialog::write(const std::string& file, ListFormat format) {
  columns_ = {
      .passwords = passwords_->isChecked(), .baselines = baselines_->isChecked(), .history = history_->isChecked()};
  file_ = program_.services().files.beginPrivately(file);
  btnExport_->setEnabled(false);
  btnCancel_->setFocus();
  bar_->show();
  work_ = std::make_unique<SlicedWork>(
      program_, SlicedWork::Aim::read, [this, format](m& list) { return next(list, format); },
      [this, file] { program_.faults().run([&] { lookAtWriting(file); }); });
}

bool ExportDialog::next(m& list, ListFormat format) {
  if (!export_) {
    export_.emplace(list, format, columns_, channelsOf(list, format),
                    [this](std::string_view bytes) { file_->write(bytes); });
    return true;
  }
  if (export_->next()) {
    return true;
  }
  count_ = export_->count();
  export_.reset();
  file_->complete();
  return false;
}

void ExportDialog::lookAtWriting(const std::string& file) {
  if (!work_->ended()) {
    state_->setText(tr("Sites written: %1").arg(export_ ? export_->count() : 0));
    return;
  }
  bar_->hide();
  const std::unique_ptr<SlicedWork> ended = std::move(work_);
  stop();
  btnExport_->setEnabled(true);
  state_->clear();
  ended->raiseFailure();
  state_->setText(count_ == 1 ? tr("Exported 1 site to %1").arg(shown(file))
                              : tr("Exported %1 sites to %2").arg(QString::number(count_), shown(file)));
  btnExport_->setDefault(false);
  btnCancel_->setText(tr("Close"));
  btnCancel_->setDefault(true);
  btnCancel_->setFocus();
}

std::function<void()> exportOf(Program& program, QWidget& parent) {
  return [&program, &parent] {
    auto* dialog = new ExportDialog(program, &parent);
    dialog->show();
    bringToFront(*dialog);
  };
}

}  // namespace tarnwick
