#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

#include <cerrno>
#include <memory>
#include <system_error>

#include "platform/errors.h"
#include "platform/private_file.h"
#include "platform/windows_text.h"

namespace tarnwick {
namespace {

/// Full access for the owner and nobody else, and nothing taken over from the folder.
constexpr const wchar_t* kOwnerOnly = L"D:P(A;;FA;;;OW)";

struct LocalFreer {
  void operator()(void* memory) const { LocalFree(memory); }
};

std::unique_ptr<void, LocalFreer> ownerOnly(const std::string& path) {
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (ConvertStringSecurityDescriptorToSecurityDescriptorW(kOwnerOnly, SDDL_REVISION_1, &descriptor, nullptr) ==
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

}  // namespace tarnwick
