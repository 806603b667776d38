// SPDX-License-Identifier: MIT
#include "cli/verbs/run_terminal.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "platform/interrupts.h"
#include "platform/service_notice.h"
#include "program/program.h"

namespace tarnwick {
namespace {

int run(Tool& tool, const RunTerminal::Style& style) {
  Console& console = tool.console();
  EventPump& pump = tool.services().pump;
  RunTerminal terminal(console, tool.services().clock, pump, style);
  Program program(tool.programFolder(), tool.services(), terminal);
  program.start();
  const Interrupts interrupts([&program] {
    program.stopRun();
    program.close();
  });
  if (program.data().getArraySitesActiveTrue(site_choice::active).lastRow() == 0) {
    console.complain(
        "There is no active site to watch yet. Add one and check it once, so that this run takes it on: tarnwickctl "
        "add URL, then: tarnwickctl check ID");
  }
  terminal.prepare(program.data());
  program.startRun();
  if (!program.run().running() && !pump.closing()) {
    return exit_status::failed;  // why has been told
  }
  const ServiceNotice notice(tool.services().timers);
  while (!pump.closing()) {
    pump.waitForEvent();
  }
  terminal.end();
  if (console.flush() == std::errc::broken_pipe) {
    program.stopRun();
    program.close();
    console.complain("The run has ended, since nobody reads its lines any more.");
    return exit_status::failed;
  }
  return terminal.hasLostLines() ? exit_status::failed : exit_status::ok;
}

}  // namespace

Verb runVerb() {
  auto style = std::make_shared<RunTerminal::Style>();
  return Verb{
      "run",
      "Watch the sites until interrupted: check all active ones, then each when it is due",
      {{"--verbose", &style->verbose, "A line for every result, not only for failures and recoveries"},
       {"--json", &style->json, "Print an object a line for every event"}},
      "Ctrl+C (SIGINT) and SIGTERM stop the run and close the database; so does the end of what reads its output. One "
      "run at a time is possible on a folder. A site that is added meanwhile is taken on once it was checked.\n" +
          examples({{"run", "a countdown on a terminal, lines with their time elsewhere"},
                    {"run --json | jq 'select(.status == false)'", "only the failures"}}),
      [style](Tool& tool) { return run(tool, *style); }};
}

}  // namespace tarnwick
