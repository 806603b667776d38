// SPDX-License-Identifier: MIT
#include <windows.h>

#include "platform/file_system.h"
#include "platform/os/windows_text.h"

namespace tarnwick {
namespace {

/// Folders may be shorter than files: there must be room behind them for a name of the old form.
constexpr std::size_t kLongestPlainPath = MAX_PATH - 13;
constexpr std::wstring_view kNoBound = L"\\\\?\\";
constexpr std::wstring_view kDevice = L"\\\\.\\";
constexpr std::wstring_view kShare = L"\\\\";

}  // namespace

std::wstring wideOf(std::string_view utf8) {
  const int size = static_cast<int>(utf8.size());
  const int length = MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(CP_UTF8, 0, utf8.data(), size, wide.data(), length);
  return wide;
}

std::string utf8Of(std::wstring_view wide) {
  const int size = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string utf8(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, utf8.data(), length, nullptr, nullptr);
  return utf8;
}

std::wstring systemPath(const std::string& utf8) {
  // For its check of the text.
  static_cast<void>(pathOf(utf8));
  const std::wstring path = wideOf(utf8);
  if (path.starts_with(kNoBound) || path.starts_with(kDevice)) {
    return path;
  }
  const DWORD room = GetFullPathNameW(path.c_str(), 0, nullptr, nullptr);
  if (room <= kLongestPlainPath) {
    return path;
  }
  std::wstring whole(room, L'\0');
  whole.resize(GetFullPathNameW(path.c_str(), room, whole.data(), nullptr));
  if (whole.starts_with(kShare)) {
    return std::wstring(kNoBound) + L"UNC\\" + whole.substr(kShare.size());
  }
  return std::wstring(kNoBound) + whole;
}

std::string systemMessage(std::uint32_t error) {
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION || error == ERROR_USER_MAPPED_FILE) {
    return "Another program is using the file. Close that program and try again.";
  }
  wchar_t* raw = nullptr;
  const DWORD length =
      FormatMessageW(FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS,
                     nullptr, error, 0, reinterpret_cast<wchar_t*>(&raw), 0, nullptr);
  std::string message = utf8Of({raw, length});
  LocalFree(raw);
  // A line end is part of the system's text.
  message.resize(message.find_last_not_of(" \r\n") + 1);
  return message.empty() ? "Windows reports the error " + std::to_string(error) + "." : message;
}

}  // namespace tarnwick
