// SPDX-License-Identifier: MIT
// Plays sounds one after the other, for the sound test: sound_probe FILE MILLISECONDS [FILE MILLISECONDS]...
// Prints what starting each has returned and handles events for that long after it.
#include <iostream>
#include <QCoreApplication>
#include <QTimer>

#include "app/headless_platform.h"

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  tarnwick::HeadlessPlatform machine;
  const QStringList arguments = QCoreApplication::arguments();
  for (qsizetype i = 1; i + 1 < arguments.size(); i += 2) {
    std::cout << machine.services().sound.play(arguments[i].toStdString()) << std::endl;
    QTimer::singleShot(arguments[i + 1].toInt(), &application, &QCoreApplication::quit);
    QCoreApplication::exec();
  }
  return 0;
}
