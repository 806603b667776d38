// SPDX-License-Identifier: MIT
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>

#include "support/child_process.h"

namespace tarnwick::testing {

struct ChildProcess::System {
  pid_t child = 0;
  int input = -1;
  int output = -1;
};

ChildProcess::ChildProcess(const std::string& program, const std::vector<std::string>& arguments)
    : system_(std::make_unique<System>()) {
  std::vector<char*> words{const_cast<char*>(program.c_str())};
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  std::array<int, 2> input{};
  std::array<int, 2> output{};
  if (pipe(input.data()) != 0 || pipe(output.data()) != 0) {
    throw std::runtime_error("no pipe");
  }
  system_->child = fork();
  if (system_->child == 0) {
    dup2(input[0], STDIN_FILENO);
    dup2(output[1], STDOUT_FILENO);
    for (const int end : {input[0], input[1], output[0], output[1]}) {
      close(end);
    }
    execv(program.c_str(), words.data());
    _exit(127);
  }
  close(input[0]);
  close(output[1]);
  system_->input = input[1];
  system_->output = output[0];
}

ChildProcess::~ChildProcess() {
  kill();
  close(system_->input);
  close(system_->output);
}

bool ChildProcess::read(char& byte) { return ::read(system_->output, &byte, 1) == 1; }

void ChildProcess::kill() {
  if (system_->child > 0) {
    ::kill(system_->child, SIGKILL);
    waitpid(system_->child, nullptr, 0);
    system_->child = 0;
  }
}

}  // namespace tarnwick::testing
