// SPDX-License-Identifier: MIT
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <shellapi.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

#include "platform/os/windows_text.h"
#include "platform/terminal.h"

namespace tarnwick {
namespace {

struct LocalEnd {
  void operator()(wchar_t** list) const { LocalFree(list); }
};

/// Makes the console obey the same control sequences as the terminals of other systems.
bool obeysSequences(HANDLE console) {
  DWORD mode = 0;
  return GetConsoleMode(console, &mode) != FALSE &&
         SetConsoleMode(console, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

bool isConsole(HANDLE stream) {
  DWORD mode = 0;
  return GetConsoleMode(stream, &mode) != FALSE;
}

}  // namespace

TerminalFacts standardOutputFacts() {
  const bool isTerminal = isConsole(GetStdHandle(STD_OUTPUT_HANDLE));
  const bool isDumb = !obeysSequences(GetStdHandle(STD_OUTPUT_HANDLE));
  const wchar_t* const noColor = _wgetenv(L"NO_COLOR");
  const bool canAsk = isConsole(GetStdHandle(STD_INPUT_HANDLE)) && isConsole(GetStdHandle(STD_ERROR_HANDLE));
  return {isTerminal, isTerminal && !isDumb && (noColor == nullptr || *noColor == L'\0'), canAsk, isDumb};
}

std::vector<std::string> programArguments(int, char**) {
  // What `main` is given has lost every character that the old character set of the system does not know.
  int count = 0;
  const std::unique_ptr<wchar_t*, LocalEnd> wide(CommandLineToArgvW(GetCommandLineW(), &count));
  std::vector<std::string> arguments;
  for (int i = 1; wide && i < count; ++i) {
    arguments.push_back(utf8Of(wide.get()[i]));
  }
  return arguments;
}

void prepareStandardStreams() {
  SetConsoleOutputCP(CP_UTF8);
  for (std::FILE* stream : {stdin, stdout, stderr}) {
    _setmode(_fileno(stream), _O_BINARY);
  }
}

std::size_t terminalWidth() {
  CONSOLE_SCREEN_BUFFER_INFO facts{};
  return GetConsoleScreenBufferInfo(GetStdHandle(STD_OUTPUT_HANDLE), &facts) != FALSE && facts.dwSize.X > 0
             ? static_cast<std::size_t>(facts.dwSize.X)
             : kUsualTerminalWidth;
}

struct HiddenTyping::Before {
  DWORD mode = 0;
};

HiddenTyping::HiddenTyping() {
  Before before;
  if (GetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), &before.mode) != FALSE) {
    before_ = std::make_unique<Before>(before);
    SetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), before.mode & ~static_cast<DWORD>(ENABLE_ECHO_INPUT));
  }
}

HiddenTyping::~HiddenTyping() {
  if (before_) {
    SetConsoleMode(GetStdHandle(STD_INPUT_HANDLE), before_->mode);
  }
}

}  // namespace tarnwick
