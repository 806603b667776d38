// SPDX-License-Identifier: MIT
#include "ui/settings/control_dialog.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <QPointer>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/page_opener.h"
#include "ui/controls/placement.h"

namespace tarnwick {
namespace {

constexpr const char* kAudioFiles = "Audio Files (*.wav)|*.wav";
constexpr const char* kProgramFiles = "Program Files (*.exe;*.bat;*.vbs)|*.exe;*.bat;*.vbs";

constexpr const char* kAskClearLogs = "Are You Sure You Want To Delete All Logs?";
constexpr const char* kAskCompact =
    "Compacting the database may take several minutes and disable this application during that time. Are You Sure You "
    "Want To Compact This DataBase?";

/// Brings a window with all its controls on the screen at once; its own repaint would spare those that cover it.
void showAnew(QWidget& window) {
  window.repaint();
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (control->window() == &window) {
      control->repaint();
    }
  }
}

/// While it lives, the pointer over two windows is that of a program that works and takes no input. Boxes keep theirs.
class BusyPointer {
 public:
  BusyPointer(QWidget& dialog, QWidget& parent) : windows_{&dialog, &parent} {
    for (QWidget* window : windows_) {
      window->setCursor(Qt::WaitCursor);
    }
  }
  ~BusyPointer() {
    for (const auto& window : windows_) {
      if (window != nullptr) {
        window->unsetCursor();
      }
    }
  }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  std::array<QPointer<QWidget>, 2> windows_;
};

}  // namespace

ControlDialog::ControlDialog(Program& program, QWidget* parent)
    : QDialog(parent), program_(program), controls_(layOutControlDialog(*this, program)) {
  setObjectName(QStringLiteral("frmControl"));
  setWindowTitle(tr("Settings"));
  connectButtons();
  Form_Load();
}

void ControlDialog::Form_Load() { populateMe(); }

void ControlDialog::connectButtons() {
  onClick(*controls_.Command1, program_.faults(), [this] { Command1_Click(); });
  onClick(*controls_.Command2, program_.faults(), [this] { Command2_Click(); });
  onClick(*controls_.Command3, program_.faults(), [this] { Command3_Click(); });
  onClick(*controls_.Command4, program_.faults(), [this] { Command4_Click(); });
  onClick(*controls_.Command5, program_.faults(), [this] { Command5_Click(); });
  onClick(*controls_.Command6, program_.faults(), [this] { Command6_Click(); });
  onClick(*controls_.Command7, program_.faults(), [this] { Command7_Click(); });
  onClick(*controls_.Command8, program_.faults(), [this] { Command8_Click(); });
  onClick(*controls_.Command9, program_.faults(), [this] { Command9_Click(); });
  onClick(*controls_.btnOk, program_.faults(), [this] { Command1_Click(); });
  onClick(*controls_.btnCancel, program_.faults(), [this] { Command2_Click(); });
  connect(controls_.pages, &QTabWidget::currentChanged, this,
          [this](int page) { (page == 0 ? controls_.Command1 : controls_.btnOk)->setDefault(true); });
}

void ControlDialog::populateMe() {
  for (const FieldControl& setting : controls_.settings) {
    const SqlValue stored = program_.data().getControl(setting.field);
    const bool flag = qobject_cast<QCheckBox*>(setting.widget) != nullptr;
    setting.show(flag ? FieldValue(stored.toBool()) : FieldValue(stored.toText()));
  }
  tellStoredTimeout(controls_, displayText(program_.data().getControl("timeout").toText()));
}

void ControlDialog::bringUp() {
  if (!isVisible()) {
    controls_.tEmail->setFocus();
    controls_.tEmail->selectAll();
    adjustSize();
    placeOver(*this, *parentWidget());
    show();
  } else {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
  }
  activateWindow();
}

void ControlDialog::storeSettings() {
  std::vector<Setting> settings;
  for (const FieldControl& setting : controls_.settings) {
    settings.push_back({setting.field, setting.value().value_or(FieldValue())});
  }
  try {
    program_.data().storeSettings(settings);
  } catch (const SettingRefused& refused) {
    const auto control = std::ranges::find(controls_.settings, refused.key(), &FieldControl::field);
    turnTo(*control->widget);
    throw;
  }
}

void ControlDialog::Command1_Click() {
  Transaction whole(program_.data().database());
  storeSettings();
  controls_.defaults->store();
  whole.commit();
  unload(Accepted);
}

void ControlDialog::Command2_Click() { reject(); }

void ControlDialog::administrate(QLabel& status, const std::function<void()>& action) {
  // What is shown counts at once: the window may not come to repaint itself for a long time.
  const auto show = [status = QPointer<QLabel>(&status)](const QString& text) {
    if (status != nullptr) {
      status->setText(text);
      status->repaint();
    }
  };
  show(tr("In Progress ..."));
  try {
    action();
  } catch (...) {
    show(tr("Failed"));
    throw;
  }
  show(tr("Complete"));
}

void ControlDialog::Command3_Click() {
  // By its own reference: the form may be gone when the answer comes.
  administrate(*controls_.lblLogs, [&program = program_] {
    Prompts& prompts = program.services().prompts;
    if (prompts.confirm(kAskClearLogs)) {
      program.data().clearLog();
      prompts.inform("Logs Cleared");
    }
  });
}

void ControlDialog::Command4_Click() {
  administrate(*controls_.lblCompact, [this, self = QPointer<ControlDialog>(this), &program = program_] {
    Prompts& prompts = program.services().prompts;
    // Who has closed the form before the answer got here looks for no compaction any more.
    if (!prompts.confirm(kAskCompact) || self == nullptr || !isVisible()) {
      return;
    }
    bool compacted = false;
    {
      const BusyPointer busy(*this, *parentWidget());
      // The question stood before the windows, which now stand still until the end.
      showAnew(*parentWidget());
      showAnew(*this);
      compacted = program_.data().compact();
    }
    prompts.inform(compacted ? "Compact Successful" : "Compact Failed - Data May Be Corrupt");
  });
}

void ControlDialog::Command5_Click() {
  std::string page;
  administrate(*controls_.lblReport, [&] { page = program_.data().createReport(); });
  openPage(program_.services(), page);
}

void ControlDialog::chooseFileInto(ByteLineEdit& text, const std::string& filter) {
  const QPointer<ByteLineEdit> box(&text);
  const auto file = program_.services().prompts.chooseFile(program_.programFolder(), filter);
  if (file && box != nullptr) {
    box->setBytes(*file);
    box->setFocus();
  }
}

void ControlDialog::Command6_Click() { chooseFileInto(*controls_.tAudio, kAudioFiles); }

void ControlDialog::Command7_Click() { program_.data().playWave(controls_.tAudio->bytes()); }

void ControlDialog::Command8_Click() { program_.data().testShellExecuteAlert(controls_.tProgram->bytes()); }

void ControlDialog::Command9_Click() { chooseFileInto(*controls_.tProgram, kProgramFiles); }

void ControlDialog::reject() {
  program_.faults().run([this] { unload(Rejected); });
}

void ControlDialog::unload(DialogCode result) {
  QDialog::done(result);
  // While the program is being closed a handler of this form may still be on its way back from a box.
  if (!program_.services().pump.closing()) {
    deleteLater();
    program_.run().init();
  }
}

std::function<void()> settingsDialogOf(Program& program, QWidget& parent) {
  return [&program, &parent, dialog = QPointer<ControlDialog>()]() mutable {
    // One that has been closed may not have been taken down yet.
    if (dialog == nullptr || !dialog->isVisible()) {
      dialog = new ControlDialog(program, &parent);
    }
    dialog->bringUp();
  };
}

}  // namespace tarnwick
