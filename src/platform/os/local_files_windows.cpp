// SPDX-License-Identifier: MIT
#include <windows.h>

#include <fcntl.h>
#include <io.h>
#include <sddl.h>

#include <array>
#include <cerrno>
#include <cstddef>
#include <optional>
#include <system_error>
#include <utility>

#include "base/errors.h"
#include "platform/local_files.h"
#include "platform/os/open_file.h"
#include "platform/os/windows_text.h"

namespace tarnwick {
namespace {

/// Virus scanners and search services look at a file as soon as it was written, and hold it for a moment.
constexpr DWORD kPatienceMs = 2000;
constexpr DWORD kPauseMs = 20;
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

struct HandleCloser {
  using pointer = HANDLE;
  void operator()(HANDLE handle) const {
    if (handle != INVALID_HANDLE_VALUE) {
      CloseHandle(handle);
    }
  }
};
using Handle = std::unique_ptr<HANDLE, HandleCloser>;

[[noreturn]] void fail(const std::string& path, DWORD error) { throw FileError(path, systemMessage(error)); }

bool isHeldByOthers(DWORD error) {
  return error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_USER_MAPPED_FILE;
}

/// Also for a text that can be no name.
bool isNothingThere(DWORD error) {
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND || error == ERROR_INVALID_NAME ||
         error == ERROR_BAD_NETPATH || error == ERROR_BAD_NET_NAME;
}

/// Tries until `action` returns ERROR_SUCCESS, an error that will last, or the patience is at its end. Returns the last
/// error. A file that someone holds so that it can be deleted gives "access denied" to who would replace it.
template <typename Action>
DWORD patiently(Action action, bool isDenialPassing) {
  const ULONGLONG end = GetTickCount64() + kPatienceMs;
  for (;;) {
    const DWORD error = action();
    const bool passing = isHeldByOthers(error) || (isDenialPassing && error == ERROR_ACCESS_DENIED);
    if (!passing || GetTickCount64() >= end) {
      return error;
    }
    Sleep(kPauseMs);
  }
}

DWORD errorUnless(BOOL done) { return done != FALSE ? ERROR_SUCCESS : GetLastError(); }

/// For looking at what stands there, a folder included; nothing is kept from anybody meanwhile.
Handle lookAt(const std::string& path) {
  return Handle(CreateFileW(systemPath(path).c_str(), FILE_READ_ATTRIBUTES, kShareAll, nullptr, OPEN_EXISTING,
                            FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

std::optional<BY_HANDLE_FILE_INFORMATION> factsOf(const std::string& path) {
  const Handle handle = lookAt(path);
  BY_HANDLE_FILE_INFORMATION facts{};
  if (handle.get() == INVALID_HANDLE_VALUE || GetFileInformationByHandle(handle.get(), &facts) == FALSE) {
    return std::nullopt;
  }
  return facts;
}

bool isFolder(DWORD attributes) {
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

void refuseFolder(const std::wstring& place, const std::string& path) {
  if (isFolder(GetFileAttributesW(place.c_str()))) {
    throw FileError(path, "This is a folder, where a file was expected.");
  }
}

DWORD moveOver(const std::wstring& from, const std::wstring& to) {
  const DWORD error =
      errorUnless(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
  // Moves a file that others are reading aside first, where they allow it.
  if (error != ERROR_SUCCESS &&
      ReplaceFileW(to.c_str(), from.c_str(), nullptr, REPLACEFILE_IGNORE_MERGE_ERRORS, nullptr, nullptr) != FALSE) {
    return ERROR_SUCCESS;
  }
  return error;
}

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

/// An access list with the owner alone.
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

FileHandle fileOf(Handle handle, const std::string& path, const char* manner) {
  const int descriptor = _open_osfhandle(reinterpret_cast<intptr_t>(handle.get()), _O_BINARY | _O_NOINHERIT);
  if (descriptor < 0) {
    throw FileError(path, std::generic_category().message(errno));
  }
  static_cast<void>(handle.release());
  FileHandle file(_fdopen(descriptor, manner));
  if (!file) {
    const int cause = errno;
    _close(descriptor);
    throw FileError(path, std::generic_category().message(cause));
  }
  return file;
}

}  // namespace

FileKind LocalFiles::kindOf(const std::string& path) {
  const DWORD attributes = GetFileAttributesW(systemPath(path).c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) {
    return isNothingThere(GetLastError()) ? FileKind::none : FileKind::other;
  }
  if (isFolder(attributes)) {
    return FileKind::folder;
  }
  return (attributes & FILE_ATTRIBUTE_DEVICE) != 0 ? FileKind::other : FileKind::file;
}

bool LocalFiles::exists(const std::string& path) {
  return GetFileAttributesW(systemPath(path).c_str()) != INVALID_FILE_ATTRIBUTES;
}

std::uint64_t LocalFiles::sizeOf(const std::string& path) {
  const Handle handle = lookAt(path);
  LARGE_INTEGER size{};
  if (handle.get() == INVALID_HANDLE_VALUE || GetFileSizeEx(handle.get(), &size) == FALSE) {
    fail(path, GetLastError());
  }
  if (kindOf(path) == FileKind::folder) {
    throw FileError(path, "This is a folder, where a file was expected.");
  }
  return static_cast<std::uint64_t>(size.QuadPart);
}

bool LocalFiles::isSameFile(const std::string& one, const std::string& other) {
  const auto first = factsOf(one);
  const auto second = factsOf(other);
  return first && second && first->dwVolumeSerialNumber == second->dwVolumeSerialNumber &&
         first->nFileIndexHigh == second->nFileIndexHigh && first->nFileIndexLow == second->nFileIndexLow;
}

FileHandle openFile(const std::string& path, FileUse use) {
  const std::wstring place = systemPath(path);
  const DWORD access = use == FileUse::read ? GENERIC_READ : GENERIC_WRITE;
  const DWORD manner = use == FileUse::read ? OPEN_EXISTING : use == FileUse::write ? CREATE_ALWAYS : OPEN_ALWAYS;
  Handle handle(INVALID_HANDLE_VALUE);
  const DWORD error = patiently(
      [&] {
        // Without security attributes no program inherits it.
        handle.reset(CreateFileW(place.c_str(), access, kShareAll, nullptr, manner, FILE_ATTRIBUTE_NORMAL, nullptr));
        return errorUnless(handle.get() != INVALID_HANDLE_VALUE);
      },
      false);
  if (error != ERROR_SUCCESS) {
    fail(path, error);
  }
  return fileOf(std::move(handle), path, use == FileUse::read ? "rb" : "wb");
}

FileHandle openNewFile(const std::string& path, const std::string& like) {
  // Without a list of its own a file has that of its folder from the moment it is made.
  const auto descriptor = like.empty() ? ownerOnly(path) : nullptr;
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
  Handle handle(CreateFileW(systemPath(path).c_str(), GENERIC_WRITE, like.empty() ? FILE_SHARE_DELETE : kShareAll,
                            &attributes, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (handle.get() == INVALID_HANDLE_VALUE) {
    fail(path, GetLastError());
  }
  return fileOf(std::move(handle), path, "wb");
}

FileHandle openAlone(const std::string& path) {
  const auto descriptor = ownerOnly(path);
  SECURITY_ATTRIBUTES attributes{sizeof(SECURITY_ATTRIBUTES), descriptor.get(), FALSE};
  // Others may read who has it, and nothing else; the system removes it with its last handle.
  Handle handle(CreateFileW(systemPath(path).c_str(), GENERIC_WRITE | DELETE, FILE_SHARE_READ, &attributes,
                            CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
  if (handle.get() != INVALID_HANDLE_VALUE) {
    return fileOf(std::move(handle), path, "wb");
  }
  if (const DWORD error = GetLastError(); !isHeldByOthers(error)) {
    fail(path, error);
  }
  return nullptr;
}

// Who has it so keeps everybody from renaming and removing it.
bool standsAt(std::FILE* /*file*/, const std::string& path) { return LocalFiles().exists(path); }

void syncToDisk(std::FILE* file, const std::string& path) {
  if (std::fflush(file) != 0 || _commit(_fileno(file)) != 0) {
    throw FileError(path, std::generic_category().message(errno));
  }
}

void LocalFiles::rename(const std::string& from, const std::string& to) {
  const std::wstring source = systemPath(from);
  const std::wstring target = systemPath(to);
  refuseFolder(target, to);
  const DWORD error = patiently([&] { return moveOver(source, target); }, true);
  if (error != ERROR_SUCCESS) {
    fail(to, error);
  }
}

bool LocalFiles::replacesOpenFiles() { return false; }

void LocalFiles::remove(const std::string& path) {
  const std::wstring place = systemPath(path);
  refuseFolder(place, path);
  const DWORD error = patiently([&] { return errorUnless(DeleteFileW(place.c_str())); }, true);
  if (error != ERROR_SUCCESS && !isNothingThere(error)) {
    fail(path, error);
  }
}

bool LocalFiles::makeFolder(const std::string& path) {
  const DWORD error = errorUnless(CreateDirectoryW(systemPath(path).c_str(), nullptr));
  if (error == ERROR_ALREADY_EXISTS && kindOf(path) == FileKind::folder) {
    return false;
  }
  if (error != ERROR_SUCCESS) {
    fail(path, error);
  }
  return true;
}

bool LocalFiles::holdsVisibleFile(const std::string& folder) {
  constexpr DWORD kNotShown = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM;
  WIN32_FIND_DATAW entry{};
  const HANDLE search = FindFirstFileW(systemPath(folder + "/*").c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) {
    return false;
  }
  bool found = false;
  do {
    found = (entry.dwFileAttributes & kNotShown) == 0 && entry.cFileName[0] != L'.';
  } while (!found && FindNextFileW(search, &entry) != FALSE);
  FindClose(search);
  return found;
}

}  // namespace tarnwick
