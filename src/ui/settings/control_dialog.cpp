// SPDX-License-Identifier: MIT
#include "ui/settings/control_dialog.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <utility>
#include <QPointer>

#include "ui/controls/dialog_parts.h"
#include "ui/controls/display_text.h"
#include "ui/controls/page_opener.h"
#include "ui/controls/placement.h"
#include "ui/settings/file_kinds.h"

namespace tarnwick {
namespace {

constexpr const char* kAskClearLogs = "Are You Sure You Want To Delete All Logs?";
constexpr const char* kAskCompact =
    "Compacting the database may take several minutes and disable this application during that time. Are You Sure You "
    "Want To Compact This DataBase?";

/// Repaints a window with all its controls at once; its own repaint would spare those that cover it.
void repaintAll(QWidget& window) {
  window.repaint();
  for (QWidget* control : window.findChildren<QWidget*>()) {
    if (control->window() == &window) {
      control->repaint();
    }
  }
}

void showState(QLabel& status, const QString& text) {
  status.setText(text);
  // The window may not come to repaint itself for a long time.
  status.repaint();
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
    for (QWidget* window : windows_) {
      window->unsetCursor();
    }
  }
  BusyPointer(const BusyPointer&) = delete;
  BusyPointer& operator=(const BusyPointer&) = delete;

 private:
  std::array<QWidget*, 2> windows_;
};

}  // namespace

ControlDialog::ControlDialog(Program& program, QWidget* parent, UserHabits* habits)
    : QDialog(parent), program_(program), controls_(layOutControlDialog(*this, program, habits)) {
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
  connect(controls_.mailWay, &MailWayHint::followed, this, [this] { turnTo(*controls_.channels); });
  for (QPushButton* ok : controls_.btnOks) {
    onClick(*ok, program_.faults(), [this] { Command1_Click(); });
  }
  for (QPushButton* cancel : controls_.btnCancels) {
    onClick(*cancel, program_.faults(), [this] { Command2_Click(); });
  }
  connect(controls_.pages, &QTabWidget::currentChanged, this, [this](int page) {
    (page == 0 ? controls_.Command1 : controls_.btnOks.at(static_cast<std::size_t>(page) - 1))->setDefault(true);
  });
}

void ControlDialog::populateMe() {
  for (const FieldControl& setting : controls_.settings) {
    const SqlValue stored = program_.data().getControl(setting.field);
    const bool flag = qobject_cast<QCheckBox*>(setting.widget) != nullptr;
    setting.show(flag ? FieldValue(stored.toBool()) : FieldValue(stored.toText()));
  }
  tellStoredTimeout(controls_, displayText(program_.data().getControl("timeout").toText()));
  loaded_ = shownSettings();
}

void ControlDialog::showInFront() {
  if (!isVisible()) {
    controls_.tEmail->setFocus();
    controls_.tEmail->selectAll();
    controls_.defaults->prepare();
    sizeToContents(*this, *parentWidget());
    placeOver(*this, *parentWidget());
    endModalityAt(*this);
    show();
  }
  QDialog* dialog = dialogBefore(*this);
  bringToFront(dialog != nullptr ? *dialog : *this);
}

void ControlDialog::showChannel(std::int64_t idChannel) {
  showInFront();
  turnTo(*controls_.channels);
  controls_.channels->choose(idChannel);
}

std::vector<Setting> ControlDialog::shownSettings() const {
  std::vector<Setting> settings;
  for (const FieldControl& setting : controls_.settings) {
    settings.push_back({setting.field, setting.value().value_or(FieldValue())});
  }
  return settings;
}

QString ControlDialog::unsavedEdits() const {
  return shownSettings() != loaded_ || controls_.defaults->isChanged() || controls_.channels->isChanged() ||
                 controls_.pause->isChanged() || (controls_.window != nullptr && controls_.window->isChanged())
             ? tr("the settings")
             : QString();
}

void ControlDialog::storeSettings() {
  try {
    program_.data().storeSettings(shownSettings());
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
  controls_.channels->store();
  controls_.pause->store();
  if (controls_.window != nullptr) {
    controls_.window->store();
  }
  whole.commit();
  controls_.channels->settle();
  unload(Accepted);
}

void ControlDialog::Command2_Click() { reject(); }

void ControlDialog::administrate(QLabel& status, const std::function<void()>& action) {
  showState(status, tr("In Progress ..."));
  try {
    action();
  } catch (...) {
    showState(status, tr("Failed"));
    throw;
  }
}

void ControlDialog::administrateIf(QLabel& status, Message question, const std::function<std::string()>& action) {
  const auto complete = [&status] { showState(status, tr("Complete")); };
  showState(status, tr("In Progress ..."));
  ask(*this, program_, std::move(question), [this, &status, action, complete](bool yes) {
    if (!yes) {
      complete();
      return;
    }
    std::string outcome;
    administrate(status, [&] { outcome = action(); });
    tell(*this, program_, outcome, complete);
  });
}

void ControlDialog::Command3_Click() {
  administrateIf(*controls_.lblLogs, {.text = kAskClearLogs, .destroys = true}, [this] {
    program_.data().clearLog();
    return std::string("Logs Cleared");
  });
}

void ControlDialog::Command4_Click() {
  administrateIf(*controls_.lblCompact, {.text = kAskCompact}, [this] {
    const BusyPointer busy(*this, *parentWidget());
    // The question stood before the windows, which now stand still until the end.
    repaintAll(*parentWidget());
    repaintAll(*this);
    return std::string(program_.data().compact() ? "Compact Successful" : "Compact Failed - Data May Be Corrupt");
  });
}

void ControlDialog::Command5_Click() {
  std::string page;
  administrate(*controls_.lblReport, [&] { page = program_.data().createReport(); });
  showState(*controls_.lblReport, tr("Complete"));
  openPage(program_.services(), page);
}

void ControlDialog::chooseFileInto(ByteLineEdit& text, const std::string& filter) {
  program_.services().prompts.chooseFile({.folder = program_.programFolder(), .filter = filter, .owner = this},
                                         [box = QPointer<ByteLineEdit>(&text)](const std::string& path) {
                                           if (box != nullptr) {
                                             box->setBytes(path);
                                             box->setFocus();
                                           }
                                         });
}

void ControlDialog::Command6_Click() { chooseFileInto(*controls_.tAudio, file_kind::sounds); }

void ControlDialog::Command7_Click() { program_.data().playWave(controls_.tAudio->bytes()); }

void ControlDialog::Command8_Click() { program_.data().testShellExecuteAlert(controls_.tProgram->bytes()); }

void ControlDialog::Command9_Click() { chooseFileInto(*controls_.tProgram, file_kind::programs); }

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

namespace {

// The one that is shown, else a new one: one that has been closed may not have been taken down yet.
ControlDialog& theSettings(Program& program, QWidget& parent, UserHabits* habits) {
  for (auto* dialog : parent.findChildren<ControlDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
    if (dialog->isVisible()) {
      return *dialog;
    }
  }
  return *new ControlDialog(program, &parent, habits);
}

}  // namespace

std::function<void()> settingsDialogOf(Program& program, QWidget& parent, UserHabits* habits) {
  return [&program, &parent, habits] { theSettings(program, parent, habits).showInFront(); };
}

std::function<void(std::int64_t)> channelSettingsOf(Program& program, QWidget& parent, UserHabits* habits) {
  return [&program, &parent, habits](std::int64_t idChannel) {
    theSettings(program, parent, habits).showChannel(idChannel);
  };
}

}  // namespace tarnwick
