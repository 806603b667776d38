// SPDX-License-Identifier: MIT
#include "simulation/process.h"

#include <exception>

#include "cli/verbs/tool.h"

namespace tarnwick::simulation {

JournalStream::int_type JournalStream::overflow(int_type character) {
  const char byte = traits_type::to_char_type(character);
  return traits_type::eq_int_type(character, traits_type::eof()) || xsputn(&byte, 1) == 1
             ? traits_type::not_eof(character)
             : traits_type::eof();
}

std::streamsize JournalStream::xsputn(const char* bytes, std::streamsize count) {
  line_.append(bytes, static_cast<std::size_t>(count));
  for (std::size_t end = line_.find('\n'); end != std::string::npos; end = line_.find('\n')) {
    journal_.add(kind_, std::string_view(line_).substr(0, end));
    line_.erase(0, end + 1);
  }
  return count;
}

Process::Process(World& world)
    : world_(world),
      loop_(world),
      out_(world.journal, "out"),
      err_(world.journal, "err"),
      console_(outStream_, errStream_, TerminalFacts{}),
      terminal_(console_, world.clock, loop_.pump, {.verbose = true}),
      view_(world, terminal_),
      program_(world.disk.folder(), world.services(loop_.pump), view_) {}

bool Process::live() {
  try {
    {
      const SimulatedMemory::OfProgram program;
      program_.start();
      terminal_.prepare(program_.data());
    }
    if (onStarted) {
      onStarted();
    }
    {
      const SimulatedMemory::OfProgram program;
      program_.startRun();
    }
    while (!loop_.pump.closing()) {
      loop_.pump.waitForEvent();
    }
    terminal_.end();
    return true;
  } catch (const std::exception& error) {
    world_.journal.add("err", error.what());
    why_ = error.what();
    return false;
  }
}

int runVerb(World& world, const std::vector<std::string>& arguments) {
  std::string line = "tarnwickctl";
  for (const std::string& argument : arguments) {
    line += " " + argument;
  }
  world.journal.add("verb", line);
  LivingPump loop(world);
  JournalStream out(world.journal, "verb out");
  JournalStream err(world.journal, "verb err");
  std::ostream outStream(&out);
  std::ostream errStream(&err);
  Console console(outStream, errStream, TerminalFacts{});
  std::vector<std::string> whole = arguments;
  whole.insert(whole.begin(), {"--folder", world.disk.folder()});
  const int status = runTool(whole, world.disk.folder(), world.services(loop.pump), console);
  world.journal.add("verb", "ends with " + std::to_string(status));
  return status;
}

}  // namespace tarnwick::simulation
