// SPDX-License-Identifier: MIT
#include <windows.h>

#include <stdexcept>

#include "base/windows_command_line.h"
#include "platform/os/windows_text.h"
#include "support/child_process.h"

namespace tarnwick::testing {

struct ChildProcess::System {
  HANDLE child = nullptr;
  HANDLE input = nullptr;
  HANDLE output = nullptr;
};

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments)
    : system_(std::make_unique<System>()) {
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  if (CreatePipe(&start.hStdInput, &system_->input, &inherited, 0) == FALSE ||
      CreatePipe(&system_->output, &start.hStdOutput, &inherited, 0) == FALSE) {
    throw std::runtime_error("no pipe");
  }
  SetHandleInformation(system_->input, HANDLE_FLAG_INHERIT, 0);
  SetHandleInformation(system_->output, HANDLE_FLAG_INHERIT, 0);
  std::vector<std::string> words{program};
  words.insert(words.end(), arguments.begin(), arguments.end());
  std::wstring line = wideOf(windowsCommandLine(words));
  PROCESS_INFORMATION process{};
  const BOOL started = CreateProcessW(systemPath(program).c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr,
                                      nullptr, &start, &process);
  CloseHandle(start.hStdInput);
  CloseHandle(start.hStdOutput);
  if (started == FALSE) {
    throw std::runtime_error(program + ": " + systemMessage(GetLastError()));
  }
  CloseHandle(process.hThread);
  system_->child = process.hProcess;
}

ChildProcess::~ChildProcess() {
  kill();
  CloseHandle(system_->input);
  CloseHandle(system_->output);
}

bool ChildProcess::read(char& byte) {
  DWORD count = 0;
  return ReadFile(system_->output, &byte, 1, &count, nullptr) != FALSE && count == 1;
}

void ChildProcess::kill() {
  if (system_->child != nullptr) {
    TerminateProcess(system_->child, 9);
    WaitForSingleObject(system_->child, INFINITE);
    CloseHandle(system_->child);
    system_->child = nullptr;
  }
}

}  // namespace tarnwick::testing
