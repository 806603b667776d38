// SPDX-License-Identifier: MIT
#include "ui/exchange/import_dialog.h"

#include <utility>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QListView>
#include <QPointer>
#include <QVBoxLayout>

#include "delivery/delivery.h"
#include "exchange/list/site_import.h"
#include "platform/file_system.h"
#include "store/database.h"
#include "ui/controls/boxes.h"
#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr QSize kSize{640, 400};
constexpr int kFull = 1000;

std::string bytesOf(FileSystem& files, const std::string& path) {
  files.sizeOf(path);  // which refuses what is no plain file
  std::string bytes;
  FileSystem::readAll(*files.open(path), [&](std::string_view piece) { bytes += piece; });
  return bytes;
}

std::vector<std::string> linesOf(const ForeignList& list) {
  std::vector<std::string> lines;
  lines.reserve(list.notes.size());
  for (const ForeignNote& note : list.notes) {
    lines.push_back(lineOf(note));
  }
  return lines;
}

}  // namespace

ImportDialog::ImportDialog(Program& program, std::string file, QWidget* parent)
    : QDialog(parent), program_(program), file_(std::move(file)) {
  setObjectName(QStringLiteral("frmImport"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(tr("Import %1").arg(QFileInfo(QString::fromStdString(file_)).fileName()));
  layOut();
  resize(kSize);
  placeOver(*this, *parent);
  read();
}

ImportDialog::~ImportDialog() = default;

void ImportDialog::makeKinds() {
  importKind_ = named(new QComboBox(this), "importKind", tr("Kind of file"));
  importKind_->addItem(tr("As its content shows"), QString());
  const std::vector<std::pair<QString, const char*>> kinds{
      {tr("CSV of Tarnwick"), "csv"},
      {tr("JSON of Tarnwick"), "json"},
      {tr("List of addresses"), "addresses"},
      {tr("Bookmarks of a browser"), "bookmarks"},
      {tr("OPML"), "opml"},
      {tr("List of urlwatch"), "urlwatch"},
      {tr("List or backup of changedetection.io"), "changedetection"},
      {tr("Jet database of these tables"), "jet"}};
  for (const auto& [name, word] : kinds) {
    importKind_->addItem(name, QString::fromLatin1(word));
  }
  connect(importKind_, &QComboBox::activated, this, [this] { program_.faults().run([this] { read(); }); });
}

void ImportDialog::layOut() {
  makeKinds();
  importState_ = named(new QLabel(this), "importState");
  importState_->setTextFormat(Qt::PlainText);
  importState_->setWordWrap(true);
  importState_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  importBar_ = named(new QProgressBar(this), "importBar", tr("Reading the file"));
  importBar_->setRange(0, 0);
  importBar_->setTextVisible(false);
  auto* list = named(new QListView(this), "importNotes", tr("What is not taken over"));
  notes_ = new NoteList(this);
  list->setModel(notes_);
  list->setUniformItemSizes(true);
  btnImport_ = addButton(*this, "btnImport", tr("&Import"));
  btnCancel_ = addButton(*this, "btnCancel", tr("Cancel"));
  onClick(*btnImport_, program_.faults(), [this] { btnImport_Click(); });
  onClick(*btnCancel_, program_.faults(), [this] { close(); });

  auto* kind = new QFormLayout;
  kind->addRow(tr("&Kind of file:"), importKind_);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch(1);
  buttons->addWidget(btnImport_);
  buttons->addWidget(btnCancel_);
  auto* all = new QVBoxLayout(this);
  all->addLayout(kind);
  all->addWidget(importState_);
  all->addWidget(importBar_);
  all->addWidget(list, 1);
  all->addLayout(buttons);
}

void ImportDialog::done(int result) {
  work_.reset();
  QDialog::done(result);
}

void ImportDialog::read() {
  more_.reset();
  work_.reset();
  list_ = {};
  notes_->setLines({});
  btnImport_->setEnabled(false);
  importKind_->setEnabled(true);
  importBar_->setRange(0, 0);
  importBar_->show();
  importState_->setText(tr("Reading %1 ...").arg(QDir::toNativeSeparators(QString::fromStdString(file_))));
  FileSystem& files = program_.services().files;
  reading_ = std::make_unique<ListReading>(
      file_, importKind_->currentData().toString().toStdString(), [&] { return bytesOf(files, file_); },
      program_.data().fields());
  if (reading_->handle() < 0) {
    finishReading();
    return;
  }
  more_ = std::make_unique<QSocketNotifier>(reading_->handle(), QSocketNotifier::Read);
  connect(more_.get(), &QSocketNotifier::activated, this,
          [this] { program_.faults().run([this] { lookAtReading(); }); });
}

void ImportDialog::lookAtReading() {
  if (reading_->take()) {
    finishReading();
  }
}

void ImportDialog::finishReading() {
  if (more_ != nullptr) {
    more_.release()->deleteLater();  // it may be at work right now
  }
  importBar_->hide();
  try {
    list_ = reading_->finish();
    if (list_.word.empty()) {
      importState_->setText(
          tr("What kind of file this is does not show in its content. Choose it above, or see whether "
             "it is the right one."));
    } else if (!list_.faults.none()) {
      tellFaults(list_.faults);
    } else {
      plan();
    }
  } catch (const std::exception& error) {
    importState_->setText(displayMessage(error.what()));
  }
}

void ImportDialog::tellFaults(const ListFaults& faults) {
  std::vector<std::string> lines;
  for (const ListFaults::Fault& fault : faults.kept()) {
    lines.push_back(lineOf(fault));
  }
  notes_->setLines(std::move(lines));
  importState_->setText(tr("Nothing can be imported. Faults of the file: %1.").arg(faults.count()));
}

void ImportDialog::showDone(const QString& what) {
  importState_->setText(work_->waits() ? tr("Waiting for another program, which has the list locked ...") : what);
  importBar_->setRange(0, kFull);
  importBar_->setValue(static_cast<int>(work_->done() * kFull));
  importBar_->setVisible(!work_->ended());
}

void ImportDialog::plan() {
  work_ = std::make_unique<ImportWork>(program_, list_.list, ImportWork::Aim::read,
                                       [this] { program_.faults().run([this] { tellPlan(); }); });
  showDone(tr("Comparing with the list ..."));
}

void ImportDialog::tellPlan() {
  using enum ImportStep::Action;
  showDone(importState_->text());
  if (!work_->ended()) {
    return;
  }
  const ImportPlan& plan = work_->plan();
  if (!work_->faults().none()) {
    tellFaults(work_->faults());
    return;
  }
  notes_->setLines(linesOf(list_.list.content));
  importState_->setText(tr("New sites: %1. To change: %2. There already: %3. Not taken over, and named below: %4.")
                            .arg(plan.count(add))
                            .arg(plan.count(change))
                            .arg(plan.unchanged)
                            .arg(list_.list.content.notes.size()));
  btnImport_->setEnabled(!plan.steps.empty() || plan.optionsOfAll || !plan.channels.empty());
  btnImport_->setDefault(true);
  if (!btnImport_->isEnabled()) {
    showNothingLeftToDo();
  }
}

void ImportDialog::btnImport_Click() {
  btnImport_->setEnabled(false);
  importKind_->setEnabled(false);
  btnCancel_->setFocus();
  work_ = std::make_unique<ImportWork>(program_, list_.list, ImportWork::Aim::write,
                                       [this] { program_.faults().run([this] { lookAtImport(); }); });
}

void ImportDialog::lookAtImport() {
  using enum ImportStep::Action;
  showDone(tr("Taking the sites into the list ..."));
  if (!work_->ended()) {
    return;
  }
  try {
    const ImportPlan& plan = work_->plan();
    if (!work_->faults().none()) {
      tellFaults(work_->faults());
      return;
    }
    importState_->setText(tr("Sites added: %1. Changed: %2. What was not taken over is named below.")
                              .arg(plan.count(add))
                              .arg(plan.count(change)));
  } catch (...) {
    read();  // for the next attempt
    throw;
  }
  for (const auto& [channel, secret] : channelsWithSecret(program_.data(), work_->plan())) {
    program_.data().delivery().secrets().store(
        secretName(channel.id), *secret, [dialog = QPointer(this)](const std::string& why) {
          if (dialog && !why.empty()) {
            dialog->importState_->setText(dialog->importState_->text() + QLatin1Char('\n') +
                                          QString::fromStdString(why));
          }
        });
  }
  program_.data().delivery().deliver();
  showNothingLeftToDo();
  program_.run().init();
}

void ImportDialog::showNothingLeftToDo() {
  btnImport_->setEnabled(false);
  importKind_->setEnabled(false);
  btnCancel_->setText(tr("Close"));
  btnCancel_->setDefault(true);
  btnCancel_->setFocus();
}

std::function<void()> importOf(Program& program, QWidget& parent) {
  return [&program, &parent] {
    const QString filter = QObject::tr("Lists and bookmarks") +
                           QStringLiteral(
                               " (*.txt;*.html;*.htm;*.opml;*.xml;*.yaml;*.yml;*.json;*.zip;*.csv;*.mdb)"
                               "|*.txt;*.html;*.htm;*.opml;*.xml;*.yaml;*.yml;*.json;*.zip;*.csv;*.mdb|") +
                           QObject::tr("All files") + QStringLiteral(" (*.*)|*.*");
    program.services().prompts.chooseFile(
        {.folder = QDir::homePath().toStdString(), .filter = filter.toStdString(), .owner = &parent},
        [&program, &parent](const std::string& file) {
          program.faults().run([&] {
            auto* dialog = new ImportDialog(program, file, &parent);
            dialog->show();
            bringToFront(*dialog);
          });
        });
  };
}

}  // namespace tarnwick
