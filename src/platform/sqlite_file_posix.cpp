#include <sys/stat.h>
#include <sys/statfs.h>

#include <algorithm>
#include <array>
#include <cstdint>

#include "platform/sqlite_file.h"

namespace tarnwick {
namespace {

// What statfs(2) calls NFS, SMB, SMB2, CIFS, AFS and Ceph.
constexpr std::array<std::uint32_t, 6> kNetworkKinds = {0x6969, 0x517B, 0xFE534D42, 0xFF534D42, 0x5346414F, 0x00C36400};

}  // namespace

std::string sqliteFileName(const std::string& path) { return path; }

int openSqliteFile(const std::string& path, int flags, sqlite3** database) {
  return sqlite3_open_v2(path.c_str(), database, flags, nullptr);
}

bool liesOnNetwork(const std::string& path) {
  struct statfs facts {};
  return ::statfs(path.c_str(), &facts) == 0 &&
         std::ranges::find(kNetworkKinds, static_cast<std::uint32_t>(facts.f_type)) != kNetworkKinds.end();
}

std::optional<FileIdentity> identityOf(const std::string& path) {
  struct stat facts {};
  if (::stat(path.c_str(), &facts) != 0) {
    return std::nullopt;
  }
  return FileIdentity{facts.st_dev, facts.st_ino};
}

}  // namespace tarnwick
