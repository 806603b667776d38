// SPDX-License-Identifier: MIT
#include <exception>
#include <iostream>
#include <new>
#include <string>
#include <vector>
#include <QCoreApplication>

#include "app/headless_platform.h"
#include "app/translations.h"
#include "base/errors.h"
#include "cli/verbs/tool.h"
#include "platform/process/unwanted_signals.h"

namespace {

int run(int argc, char** argv) {
  // The application object takes arguments of its own away, so the tool's are kept first.
  const std::vector<std::string> arguments = tarnwick::programArguments(argc, argv);
  tarnwick::prepareStandardStreams();
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("tarnwickctl"));
  tarnwick::HeadlessPlatform machine;
  tarnwick::Console console(std::cout, std::cerr, tarnwick::standardOutputFacts(), tarnwick::terminalWidth,
                            tarnwick::loadTranslations(application, QCoreApplication::applicationDirPath()));
  return tarnwick::runTool(arguments, QCoreApplication::applicationDirPath().toStdString(), machine.services(),
                           console);
}

// Where not even the tool could be made, and so nothing that complains.
int failed(const char* why) {
  std::cerr << "tarnwickctl: " << tarnwick::visibleText(why) << '\n';
  return tarnwick::exit_status::failed;
}

}  // namespace

int main(int argc, char** argv) {
  tarnwick::ignoreUnwantedSignals();
  try {
    return run(argc, argv);
  } catch (const std::bad_alloc&) {
    // Its own text is the name of the class.
    return failed(tarnwick::kNotEnoughMemory);
  } catch (const std::exception& error) {
    return failed(error.what());
  }
}
