// SPDX-License-Identifier: MIT
#include <windows.h>

#include <objbase.h>
#include <objidl.h>
#include <shellapi.h>
#include <shlobj.h>

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <string_view>
#include <QCoreApplication>
#include <QDir>

#include "base/text.h"
#include "base/windows_command_line.h"
#include "platform/local_files.h"
#include "platform/os/windows_text.h"
#include "platform/process/detached_programs.h"

namespace tarnwick {
namespace {

/// The program wants rights that Windows asks the user for first; winerror.h of this compiler leaves it out.
constexpr DWORD kElevationRequired = 740;

constexpr std::array<std::string_view, 6> kScriptEndings = {".vbs", ".vbe", ".js", ".jse", ".wsf", ".wsh"};
constexpr std::array<std::string_view, 8> kTriedEndings = {"", ".com", ".exe", ".bat", ".cmd", ".vbs", ".js", ".wsf"};

/// What a shortcut can hold, and how many may lead to each other.
constexpr int kLongestPath = 32768;
constexpr int kMostShortcuts = 5;

std::string endingOf(const std::string& path) { return lowerCase(textOf(pathOf(path).extension())); }

std::string programFolder() { return QDir::toNativeSeparators(QCoreApplication::applicationDirPath()).toStdString(); }

/// The file of that name in the folders where the system looks for programs; empty without one.
std::string searched(const std::string& name) {
  // The folder that is current comes last, for whatever looks for a file: somebody else may have filled it.
  static const BOOL safely = SetSearchPathMode(BASE_SEARCH_PATH_ENABLE_SAFE_SEARCHMODE | BASE_SEARCH_PATH_PERMANENT);
  static_cast<void>(safely);
  const std::wstring wide = wideOf(name);
  std::wstring found(SearchPathW(nullptr, wide.c_str(), nullptr, 0, nullptr, nullptr), L'\0');
  if (found.empty()) {
    return {};
  }
  found.resize(SearchPathW(nullptr, wide.c_str(), nullptr, static_cast<DWORD>(found.size()), found.data(), nullptr));
  return utf8Of(found);
}

/// The whole path of the program that the user means; empty when there is none.
std::string findProgram(const std::string& name) {
  const bool inFolder = name.find_first_of("/\\:") != std::string::npos;
  for (const std::string_view ending : kTriedEndings) {
    const std::string tried = name + std::string(ending);
    const std::string path = inFolder ? textOf(pathOf(programFolder()) / pathOf(tried)) : searched(tried);
    if (!path.empty() && LocalFiles().kindOf(path) == FileKind::file) {
      // Interpreters take a slash for the start of an option.
      return QDir::toNativeSeparators(QString::fromStdString(path)).toStdString();
    }
  }
  return {};
}

std::string inSystemFolder(const char* program) {
  std::array<wchar_t, MAX_PATH> folder{};
  const UINT length = GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
  return utf8Of({folder.data(), length}) + "\\" + program;
}

struct LocalEnd {
  void operator()(wchar_t** list) const { LocalFree(list); }
};

/// The arguments of a line that has no program before them, behind an empty place for one.
std::vector<std::string> argumentsOf(const wchar_t* line) {
  int count = 0;
  const std::wstring whole = L"x " + std::wstring(line);
  const std::unique_ptr<wchar_t*, LocalEnd> wide(CommandLineToArgvW(whole.c_str(), &count));
  std::vector<std::string> arguments(1);
  for (int i = 1; wide && i < count; ++i) {
    arguments.push_back(utf8Of(wide.get()[i]));
  }
  return arguments;
}

/// The null device, for a program to inherit.
class NullDevice {
 public:
  NullDevice() {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    handle_ = CreateFileW(L"NUL", GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                          OPEN_EXISTING, 0, nullptr);
  }
  ~NullDevice() { CloseHandle(handle_); }
  NullDevice(const NullDevice&) = delete;
  NullDevice& operator=(const NullDevice&) = delete;

  HANDLE handle() const { return handle_; }

 private:
  HANDLE handle_;
};

/// Says which handles a program inherits: one, of all that can be.
class OnlyInherited {
 public:
  explicit OnlyInherited(HANDLE handle) : handle_(handle) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    room_.resize(size);
    InitializeProcThreadAttributeList(list(), 1, 0, &size);
    UpdateProcThreadAttribute(list(), 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, &handle_, sizeof(handle_), nullptr,
                              nullptr);
  }
  ~OnlyInherited() { DeleteProcThreadAttributeList(list()); }
  OnlyInherited(const OnlyInherited&) = delete;
  OnlyInherited& operator=(const OnlyInherited&) = delete;

  LPPROC_THREAD_ATTRIBUTE_LIST list() { return reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(room_.data()); }

 private:
  HANDLE handle_;
  std::vector<char> room_;
};

/// ERROR_SUCCESS when the program was started.
DWORD startProcess(const std::string& program, const std::string& line) {
  const NullDevice null;
  OnlyInherited inherited(null.handle());
  STARTUPINFOEXW start{};
  start.StartupInfo.cb = sizeof(start);
  start.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  start.StartupInfo.hStdInput = start.StartupInfo.hStdOutput = start.StartupInfo.hStdError = null.handle();
  start.lpAttributeList = inherited.list();
  // Its output is thrown away, so a console would be an empty window; a window of its own it shows all the same.
  constexpr DWORD kManner =
      EXTENDED_STARTUPINFO_PRESENT | CREATE_NO_WINDOW | CREATE_NEW_PROCESS_GROUP | CREATE_DEFAULT_ERROR_MODE;
  std::wstring wideLine = wideOf(line);
  const std::wstring folder = wideOf(programFolder());
  // The system takes no longer name for this.
  const wchar_t* const where = folder.size() < MAX_PATH - 1 ? folder.c_str() : nullptr;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(systemPath(program).c_str(), wideLine.data(), nullptr, nullptr, TRUE, kManner, nullptr, where,
                     &start.StartupInfo, &process) == FALSE) {
    return GetLastError();
  }
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return ERROR_SUCCESS;
}

/// As if the user had opened it. What the parameters mean there depends on the kind of the file: only a program takes
/// them as they are.
bool openByShell(const std::string& program, const std::string& parameters) {
  const std::wstring file = wideOf(program);
  const std::wstring line = wideOf(parameters);
  const std::wstring folder = wideOf(programFolder());
  SHELLEXECUTEINFOW order{};
  order.cbSize = sizeof(order);
  order.fMask = SEE_MASK_FLAG_NO_UI | SEE_MASK_NOASYNC;
  order.lpFile = file.c_str();
  order.lpParameters = line.c_str();
  order.lpDirectory = folder.c_str();
  order.nShow = SW_SHOWNORMAL;
  return ShellExecuteExW(&order) != FALSE;
}

struct Releaser {
  void operator()(IUnknown* object) const { object->Release(); }
};

/// What a shortcut starts, with the arguments that it gives; nothing when it leads to no file.
std::optional<std::vector<std::string>> targetOf(const std::string& shortcut) {
  const HRESULT begun = CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  std::optional<std::vector<std::string>> target;
  {
    IShellLinkW* rawLink = nullptr;
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkW,
                     reinterpret_cast<void**>(&rawLink));
    const std::unique_ptr<IShellLinkW, Releaser> link(rawLink);
    IPersistFile* rawFile = nullptr;
    if (link) {
      link->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&rawFile));
    }
    const std::unique_ptr<IPersistFile, Releaser> file(rawFile);
    std::wstring path(kLongestPath, L'\0');
    std::wstring line(kLongestPath, L'\0');
    if (file && SUCCEEDED(file->Load(wideOf(shortcut).c_str(), STGM_READ)) &&
        link->GetPath(path.data(), kLongestPath, nullptr, 0) == S_OK &&
        SUCCEEDED(link->GetArguments(line.data(), kLongestPath)) && path[0] != L'\0') {
      target = argumentsOf(line.c_str());
      target->front() = windowsFileName(utf8Of(path.c_str()));
    }
  }
  if (SUCCEEDED(begun)) {
    CoUninitialize();
  }
  return target;
}

bool startByKind(const std::vector<std::string>& arguments, int shortcuts = 0) {
  const std::string& program = arguments.front();
  const std::string ending = endingOf(program);
  if (ending == ".bat" || ending == ".cmd") {
    const std::string interpreter = inSystemFolder("cmd.exe");
    const auto line = batchCommandLine(arguments);
    return line && startProcess(interpreter, windowsCommandLine({interpreter}) + " " + *line) == ERROR_SUCCESS;
  }
  if (std::ranges::find(kScriptEndings, ending) != kScriptEndings.end()) {
    const std::string host = inSystemFolder("wscript.exe");
    return startProcess(host, windowsCommandLine({host}) + " " + scriptCommandLine(arguments)) == ERROR_SUCCESS;
  }
  if (ending == ".exe" || ending == ".com") {
    const DWORD error = startProcess(program, windowsCommandLine(arguments));
    return error == kElevationRequired
               ? openByShell(program, windowsCommandLine({arguments.begin() + 1, arguments.end()}))
               : error == ERROR_SUCCESS;
  }
  if (ending == ".lnk" && shortcuts < kMostShortcuts) {
    if (auto target = targetOf(program)) {
      target->insert(target->end(), arguments.begin() + 1, arguments.end());
      return startByKind(*target, shortcuts + 1);
    }
  }
  return openByShell(program, {});
}

}  // namespace

bool DetachedPrograms::start(const std::vector<std::string>& arguments) {
  const bool passable = std::none_of(arguments.begin(), arguments.end(), [](const std::string& argument) {
    return argument.find('\0') != std::string::npos;
  });
  if (arguments.empty() || arguments.front().empty() || !passable) {
    return false;
  }
  std::vector<std::string> whole = arguments;
  whole.front() = findProgram(windowsFileName(arguments.front()));
  return !whole.front().empty() && startByKind(whole);
}

}  // namespace tarnwick
