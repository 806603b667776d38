// SPDX-License-Identifier: MIT
// Writes the folder it runs in, and every further argument in brackets, to the file that its first argument names.
#include <windows.h>

#include <fstream>

#include "platform/local_files.h"
#include "platform/os/windows_text.h"
#include "platform/terminal.h"

int main(int argc, char** argv) {
  const std::vector<std::string> arguments = tarnwick::programArguments(argc, argv);
  if (arguments.empty()) {
    return 1;
  }
  wchar_t folder[MAX_PATH]{};
  GetCurrentDirectoryW(MAX_PATH, folder);
  const std::string part = arguments.front() + ".part";
  {
    std::ofstream out(tarnwick::pathOf(part), std::ios::binary);
    out << tarnwick::utf8Of(folder) << '\n';
    for (std::size_t i = 1; i < arguments.size(); ++i) {
      out << '[' << arguments[i] << ']';
    }
  }
  tarnwick::LocalFiles().rename(part, arguments.front());
  return 0;
}
