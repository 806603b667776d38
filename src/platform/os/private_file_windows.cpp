#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <memory>
#include <string>
#include <system_error>

#include "base/errors.h"
#include "platform/os/windows_text.h"
#include "platform/private_file.h"

namespace tarnwick {
namespace {

/// Full access for the owner, whoever that becomes, and nothing taken over from the folder.
const std::wstring kOwnerOnly = L"D:P(A;;FA;;;OW)";

struct LocalFreer {
  void operator()(void* memory) const { LocalFree(memory); }
};

/// The user that this process works for, in the words of an access list; empty when that cannot be told.
std::wstring accessOfThisUser() {
  HANDLE raw = nullptr;
  if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &raw) == FALSE) {
    return {};
  }
  std::array<std::byte, sizeof(TOKEN_USER) + SECURITY_MAX_SID_SIZE> room{};
  DWORD size = 0;
  const BOOL known = GetTokenInformation(raw, TokenUser, room.data(), static_cast<DWORD>(room.size()), &size);
  CloseHandle(raw);
  wchar_t* name = nullptr;
  if (known == FALSE ||
      ConvertSidToStringSidW(reinterpret_cast<const TOKEN_USER*>(room.data())->User.Sid, &name) == FALSE) {
    return {};
  }
  const std::unique_ptr<void, LocalFreer> owner(name);
  return L"(A;;FA;;;" + std::wstring(name) + L")";
}

std::unique_ptr<void, LocalFreer> ownerOnly(const std::string& path) {
  // A member of the administrators makes files that belong to all of these.
  const std::wstring list = kOwnerOnly + accessOfThisUser();
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(list.c_str(), SDDL_REVISION_1, &descriptor, nullptr) ==
      FALSE) {
    throw FileError(path, systemMessage(GetLastError()));
  }
  return std::unique_ptr<void, LocalFreer>(descriptor);
}

}  // namespace

FileHandle openNewPrivateFile(const std::string& path) {
  const auto descriptor = ownerOnly(path);
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
  const HANDLE handle = CreateFileW(systemPath(path).c_str(), GENERIC_WRITE, FILE_SHARE_DELETE, &attributes, CREATE_NEW,
                                    FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    const DWORD error = GetLastError();
    if (error == ERROR_FILE_EXISTS || error == ERROR_ALREADY_EXISTS) {
      return nullptr;
    }
    throw FileError(path, systemMessage(error));
  }
  const int descriptorNumber = _open_osfhandle(reinterpret_cast<intptr_t>(handle), _O_BINARY | _O_NOINHERIT);
  if (descriptorNumber < 0) {
    CloseHandle(handle);
    throw FileError(path, std::generic_category().message(errno));
  }
  FileHandle file(_fdopen(descriptorNumber, "wb"));
  if (!file) {
    const int cause = errno;
    _close(descriptorNumber);
    throw FileError(path, std::generic_category().message(cause));
  }
  return file;
}

FileHandle openNewFileLike(const std::string& path, const std::string&) {
  // A file has the access list of its folder from the moment it is made.
  return isTaken(path) ? nullptr : openFile(path, FileUse::write);
}

}  // namespace tarnwick
