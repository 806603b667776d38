#include <iostream>
#include <string>
#include <vector>
#include <QCoreApplication>

#include "cli/tool.h"
#include "platform/headless_platform.h"

int main(int argc, char** argv) {
  // The application object takes arguments of its own away, so the tool's are kept first.
  const std::vector<std::string> arguments = tarnwick::programArguments(argc, argv);
  tarnwick::prepareStandardStreams();
  QCoreApplication application(argc, argv);
  QCoreApplication::setApplicationName(QStringLiteral("tarnwickctl"));
  tarnwick::HeadlessPlatform machine;
  tarnwick::Console console(std::cout, std::cerr, tarnwick::standardOutputFacts());
  return tarnwick::runTool(arguments, QCoreApplication::applicationDirPath().toStdString(), machine.services(),
                           console);
}
