#include "cli/run_terminal.h"
#include "cli/verbs.h"
#include "platform/interrupts.h"
#include "program.h"

namespace tarnwick {
namespace {

int run(Tool& tool, const RunTerminal::Style& style) {
  Console& console = tool.console();
  EventPump& pump = tool.services().pump;
  RunTerminal terminal(console, tool.services().clock, style);
  Program program(tool.programFolder(), tool.services(), terminal);
  program.start();
  const Interrupts interrupts([&program] {
    program.stopRun();
    program.close();
  });
  if (program.data().getArraySitesActiveTrue(site_choice::active).lastRow() == 0) {
    console.complain("There is no active site to watch yet. Add the first one with: tarnwickctl add URL");
  }
  terminal.prepare(program.data());
  program.startRun();
  if (!program.run().running() && !pump.closing()) {
    return exit_status::failed;  // why has been told
  }
  while (!pump.closing()) {
    pump.waitForEvent();
  }
  terminal.end();
  return exit_status::ok;
}

}  // namespace

void addRunVerb(CLI::App& app, Action& chosen) {
  auto style = std::make_shared<RunTerminal::Style>();
  CLI::App* verb =
      app.add_subcommand("run", "Watch the sites until interrupted: check all active ones, then each when it is due");
  verb->add_flag("--verbose", style->verbose, "A line for every result, not only for failures and recoveries");
  verb->add_flag("--json", style->json, "Print an object a line for every event");
  verb->footer(
      "Ctrl+C (SIGINT) and SIGTERM stop the run and close the database. One run at a time is possible on a folder.\n" +
      examples({{"run", "a countdown on a terminal, lines with their time elsewhere"},
                {"run --json | jq 'select(.status == false)'", "only the failures"}}));
  verb->callback([style, &chosen] { chosen = [style](Tool& tool) { return run(tool, *style); }; });
}

}  // namespace tarnwick
