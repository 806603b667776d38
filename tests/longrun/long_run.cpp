// SPDX-License-Identifier: MIT
// Checks sites over and over again in one process, as a monitor that nobody restarts does.
//
//     long_run FOLDER CHECKS
//
// FOLDER is a program folder whose sites are all active. After each pass it prints how many checks were made so far and
// waits for a line on standard input, so that whoever started it can look at the process meanwhile.
#include <cstdlib>
#include <iostream>
#include <string>
#include <QCoreApplication>

#include "app/headless_platform.h"
#include "program/program.h"

namespace {

/// Counts the results.
class CountingView final : public tarnwick::SilentView {
 public:
  void showResult(const tarnwick::CheckResult& result) override { ++(result.passed ? up : down); }

  long up = 0;
  long down = 0;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: long_run FOLDER CHECKS\n";
    return EXIT_FAILURE;
  }
  QCoreApplication application(argc, argv);
  const long wanted = std::strtol(argv[2], nullptr, 10);
  tarnwick::HeadlessPlatform machine;
  CountingView view;
  tarnwick::Program program(argv[1], machine.services(), view);
  program.start();
  while (view.up + view.down < wanted) {
    if (!program.run().testOnce(program.data().getArraySitesActiveTrue(tarnwick::site_choice::active))) {
      return EXIT_FAILURE;
    }
    std::cout << view.up + view.down << ' ' << view.up << ' ' << view.down << std::endl;
    std::string goOn;
    if (!std::getline(std::cin, goOn)) {
      return EXIT_FAILURE;
    }
  }
  program.close();
  return EXIT_SUCCESS;
}
