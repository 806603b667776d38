// SPDX-License-Identifier: MIT
#include <zip.h>

#include <memory>

#include "base/visible_text.h"
#include "exchange/foreign/foreign_sites.h"

namespace tarnwick {
namespace {

struct ArchiveClose {
  void operator()(zip_t* archive) const { zip_discard(archive); }
};
struct FileClose {
  void operator()(zip_file_t* file) const { zip_fclose(file); }
};
using Archive = std::unique_ptr<zip_t, ArchiveClose>;

[[noreturn]] void raiseDamaged(const std::string& why) {
  throw ForeignError(0, "the zip archive is damaged or cut short (" + visibleText(why) + "): copy or download it anew");
}

Archive opened(std::string_view bytes) {
  zip_error_t error;
  zip_error_init(&error);
  zip_source_t* const source = zip_source_buffer_create(bytes.data(), bytes.size(), 0, &error);
  Archive archive(source == nullptr ? nullptr : zip_open_from_source(source, ZIP_RDONLY, &error));
  const std::string why = archive == nullptr ? zip_error_strerror(&error) : "";
  zip_error_fini(&error);
  if (archive == nullptr) {
    zip_source_free(source);
    raiseDamaged(why);
  }
  return archive;
}

std::string bytesOf(zip_t* archive, zip_uint64_t index, std::size_t size) {
  const std::unique_ptr<zip_file_t, FileClose> file(zip_fopen_index(archive, index, 0));
  if (file == nullptr) {
    raiseDamaged(zip_strerror(archive));
  }
  std::string bytes(size, '\0');
  if (zip_fread(file.get(), bytes.data(), bytes.size()) != static_cast<zip_int64_t>(size)) {
    raiseDamaged("a file in it does not come to its end");
  }
  return bytes;
}

}  // namespace

std::vector<ZipMember> zipMembers(std::string_view bytes, const ZipFilter& isWanted) {
  const Archive archive = opened(bytes);
  std::vector<ZipMember> members;
  std::size_t room = kLargestForeign;
  const zip_int64_t count = zip_get_num_entries(archive.get(), 0);
  for (zip_uint64_t index = 0; count > 0 && index < static_cast<zip_uint64_t>(count); ++index) {
    zip_stat_t facts;
    zip_stat_init(&facts);
    if (zip_stat_index(archive.get(), index, 0, &facts) != 0 || (facts.valid & ZIP_STAT_NAME) == 0 ||
        !isWanted(facts.name)) {
      continue;
    }
    if ((facts.valid & ZIP_STAT_SIZE) == 0 || facts.size > room) {
      throw ForeignError(0,
                         "the lists in the zip archive are larger than 64 MiB, and none is: see whether it is the "
                         "right one");
    }
    room -= facts.size;
    members.push_back({facts.name, bytesOf(archive.get(), index, facts.size)});
  }
  return members;
}

}  // namespace tarnwick
