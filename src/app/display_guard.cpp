// SPDX-License-Identifier: MIT
#include "app/display_guard.h"

#include <cstdlib>
#include <iostream>
#include <vector>
#include <QString>

#include "base/visible_text.h"

namespace tarnwick {
namespace {

struct Remark {
  QtMsgType type;
  QString text;
};

QtMessageHandler usual = nullptr;
std::vector<Remark> remarks;
Wording messages;

std::string valueOf(const char* name) { return visibleText(qEnvironmentVariable(name).toStdString()); }

std::string whatIsMissing() {
  std::string display;
  for (const char* const name : {"WAYLAND_DISPLAY", "DISPLAY"}) {
    if (!qEnvironmentVariableIsEmpty(name)) {
      display += (display.empty() ? "" : ", ") + (name + ("=" + valueOf(name)));
    }
  }
  const bool isChosen = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
  if (display.empty() && !isChosen) {
    return "There is no display for the window: neither DISPLAY nor WAYLAND_DISPLAY is set.";
  }
  const std::string why =
      remarks.empty() ? "" : " (" + visibleText(remarks.front().text.simplified().toStdString()) + ")";
  return "The window cannot be opened on the display " +
         (display.empty() ? "QT_QPA_PLATFORM=" + valueOf("QT_QPA_PLATFORM") : display) + why + ".";
}

void listen(QtMsgType type, const QMessageLogContext&, const QString& text) {
  if (type != QtFatalMsg) {
    remarks.push_back({type, text});
    return;
  }
  std::cerr << messages("tarnwick: " + whatIsMissing() +
                        " Start it on a desktop, or watch your sites in a terminal with: tarnwickctl run")
            << std::endl;
  std::_Exit(EXIT_FAILURE);
}

}  // namespace

DisplayGuard::DisplayGuard(const Wording& wording) {
  messages = wording;
  usual = qInstallMessageHandler(listen);
}

DisplayGuard::~DisplayGuard() {
  qInstallMessageHandler(usual);
  for (const Remark& remark : remarks) {
    qt_message_output(remark.type, QMessageLogContext(), remark.text);
  }
  remarks.clear();
}

}  // namespace tarnwick
