// SPDX-License-Identifier: MIT
#include <cstdlib>
#include <iostream>
#include <limits>
#include <optional>
#include <QApplication>

#include "app/desktop_platform.h"
#include "app/display_guard.h"
#include "app/translations.h"
#include "app/window_arguments.h"
#include "platform/desktop/desktop_habits.h"
#include "platform/process/unwanted_signals.h"
#include "platform/program_folder.h"
#include "platform/terminal.h"
#include "program/fault_box.h"
#include "ui/exchange/addresses_dialog.h"
#include "ui/exchange/export_dialog.h"
#include "ui/exchange/import_dialog.h"
#include "ui/main_window/master.h"
#include "ui/main_window/tray_icon.h"
#include "ui/outbox/outbox_dialog.h"
#include "ui/settings/control_dialog.h"
#include "ui/site/one_site_editor.h"

namespace {

/// The status of arguments that cannot be understood, as the terminal tool has it.
constexpr int kNotUnderstood = 2;

// Without a display there will never be the application that has them.
tarnwick::Wording messagesBeforeAll(int& argc, char** argv) {
  QCoreApplication early(argc, argv);
  return tarnwick::loadTranslations(early, QCoreApplication::applicationDirPath());
}

}  // namespace

int main(int argc, char** argv) {
  tarnwick::ignoreUnwantedSignals();
  const auto arguments = tarnwick::programArguments(argc, argv);
  const tarnwick::Wording messages = messagesBeforeAll(argc, argv);
  if (const auto answer = tarnwick::answerTo(arguments)) {
    (answer->isComplaint ? std::cerr : std::cout) << messages(answer->text) << std::endl;
    return answer->isComplaint ? kNotUnderstood : EXIT_SUCCESS;
  }
  auto guard = std::make_optional<tarnwick::DisplayGuard>(messages);
  QApplication application(argc, argv);
  guard.reset();
  QApplication::setApplicationName(QString::fromLatin1(tarnwick::kProductName));
  QApplication::setApplicationVersion(QStringLiteral(TARNWICK_VERSION));
  // The desktop finds icon and name of the window by it.
  QApplication::setDesktopFileName(QStringLiteral("tarnwick"));
  // A drag out of a text, a box or the list of files is an event loop of the toolkit's own, which does not outlive its
  // window; any of them may be closed meanwhile. What comes from other programs can still be dropped.
  QApplication::setStartDragDistance(std::numeric_limits<int>::max());
  tarnwick::DesktopPlatform machine;
  const QString executableFolder = QCoreApplication::applicationDirPath();
  std::string folder;
  const auto choose = [&] { folder = tarnwick::programFolderFor(executableFolder.toStdString()); };
  // The box tells why, and closing it ends the program.
  const auto failed = [] {
    QApplication::exec();
    return EXIT_FAILURE;
  };
  tarnwick::loadTranslations(application, executableFolder);
  if (!tarnwick::FaultBox(machine.services().prompts).run(choose)) {
    return failed();
  }
  const auto habits = tarnwick::makeUserHabits();
  tarnwick::Master window(folder, machine.services());
  const auto channels = tarnwick::channelSettingsOf(window.program(), window, habits.get());
  window.setEditors({.site = tarnwick::siteEditorOf(window.program(), window),
                     .settings = tarnwick::settingsDialogOf(window.program(), window, habits.get()),
                     .importList = tarnwick::importOf(window.program(), window),
                     .outbox = tarnwick::outboxOf(window.program(), window, channels),
                     .channels = [&channels] { channels(0); },
                     .addAddresses = tarnwick::addAddressesOf(window.program(), window),
                     .exportList = tarnwick::exportOf(window.program(), window)});
  window.rememberIn(*habits);
  window.useTray(tarnwick::makeTrayIcon(), [&habits] { return habits->closesToTray(); });
  if (!window.load()) {
    failed();
    return window.isLoaded() ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  // It may have been closed while it loaded.
  return window.isVisible() ? QApplication::exec() : EXIT_SUCCESS;
}
