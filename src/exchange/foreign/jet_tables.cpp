// SPDX-License-Identifier: MIT
#include "exchange/foreign/jet_tables.h"

#include <mdbtools.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>

#include "base/text.h"
#include "base/windows_1252.h"
#include "exchange/foreign/foreign_sites.h"

namespace tarnwick {
namespace {

// More than any page of such a file, which is as much as the library writes there at a time.
constexpr std::size_t kPieceRoom = 65536;
constexpr unsigned long kCatalogPage = 2;
constexpr std::uint32_t kLengthOfLong = 0x3fffffff;
// The compressed form of a text, and what begins and ends a part of it that is not.
constexpr std::string_view kCompressed = "\xff\xfe";

struct HandleClose {
  void operator()(MdbHandle* handle) const { mdb_close(handle); }
};
struct TableFree {
  void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};

[[noreturn]] void raiseDamaged(const std::string& where) {
  throw ForeignError(
      0, "the database is damaged (" + where + "): have its own program repair it, or take an older copy of it");
}

/// The characters of a text of Jet 4.
std::u32string charactersOf(std::string_view stored) {
  std::u32string characters;
  bool compressed = stored.starts_with(kCompressed);
  const bool mayChange = compressed;
  stored.remove_prefix(compressed ? kCompressed.size() : 0);
  while (!stored.empty()) {
    const auto low = static_cast<unsigned char>(stored[0]);
    if (mayChange && low == 0) {
      compressed = !compressed;
      stored.remove_prefix(1);
    } else if (compressed || stored.size() == 1) {
      characters += low;
      stored.remove_prefix(1);
    } else {
      const auto high = static_cast<unsigned char>(stored[1]);
      const char32_t unit = static_cast<char32_t>(low) | static_cast<char32_t>(high) << 8U;
      const bool second = unit >= 0xdc00 && unit < 0xe000 && !characters.empty() && characters.back() >= 0xd800 &&
                          characters.back() < 0xdc00;
      if (second) {
        characters.back() = 0x10000 + ((characters.back() - 0xd800) << 10U) + (unit - 0xdc00);
      } else {
        characters += unit;
      }
      stored.remove_prefix(2);
    }
  }
  return characters;
}

std::string utf8Of(const std::u32string& characters) {
  std::string text;
  for (const char32_t character : characters) {
    appendUtf8(text, character);
  }
  return text;
}

std::string pageOf(const std::u32string& characters) {
  std::string bytes;
  for (const char32_t character : characters) {
    const auto byte = windows1252CodeOf(character);
    if (!byte) {
      return utf8Of(characters);
    }
    bytes += *byte;
  }
  return bytes;
}

std::string dateOf(double days) {
  std::tm date{};
  mdb_date_to_tm(days, &date);
  std::array<char, 40> text{};
  const std::size_t length = std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M:%S", &date);
  return {text.data(), length};
}

/// One table while it is read.
class JetTable {
 public:
  JetTable(MdbHandle& file, MdbCatalogEntry& entry) : file_(file), table_(mdb_read_table(&entry)) {
    if (table_ == nullptr || mdb_read_columns(table_.get()) == nullptr) {
      raiseDamaged("the form of the table " + std::string(entry.object_name));
    }
    mdb_rewind_table(table_.get());
    for (unsigned i = 0; i < table_->num_cols; ++i) {
      MdbColumn& column = *static_cast<MdbColumn*>(g_ptr_array_index(table_->columns, i));
      const bool isLong = column.col_type == MDB_MEMO || column.col_type == MDB_OLE;
      columns_.emplace_back(&column, lowerCase(std::string(column.name)), column.col_type, isLong ? kPieceRoom : 0);
      if (isLong) {
        column.col_type = MDB_OLE;  // whose bytes come as they are
      }
    }
    for (Column& column : columns_) {
      column.library->bind_ptr = column.piece.empty() ? nullptr : column.piece.data();
    }
  }

  void read(const std::function<void(const JetRow& row)>& take) {
    unsigned rows = 0;
    for (; mdb_fetch_row(table_.get()) != 0; ++rows) {
      JetRow row;
      // The long ones last: reading them leaves the page of the row.
      for (const bool isLong : {false, true}) {
        for (Column& column : columns_) {
          if (column.piece.empty() != isLong) {
            if (auto value = isLong ? longValue(column) : shortValue(column)) {
              row.set(column.name, std::move(*value));
            }
          }
        }
      }
      take(row);
    }
    // A page that is not there ends the table without a word.
    if (rows < table_->num_rows) {
      raiseDamaged("of the " + std::to_string(table_->num_rows) + " rows of the table " + std::string(table_->name) +
                   " " + std::to_string(rows) + " can be read");
    }
  }

 private:
  struct Column {
    Column(MdbColumn* of, std::string called, int kind, std::size_t room)
        : library(of), name(std::move(called)), type(kind), piece(room, '\0') {}
    MdbColumn* library;
    std::string name;
    int type;
    std::string piece;
  };

  bool isJet3() const { return file_.f->jet_version == MDB_VER_JET3; }

  std::string_view stored(const MdbColumn& column) const {
    const auto start = static_cast<std::size_t>(std::max(0, column.cur_value_start));
    const auto length = static_cast<std::size_t>(std::max(0, column.cur_value_len));
    const auto whole = static_cast<std::size_t>(file_.fmt->pg_size);
    if (start > whole || length > whole - start) {
      raiseDamaged("a row of the table " + std::string(table_->name));
    }
    return {reinterpret_cast<const char*>(file_.pg_buf) + start, length};
  }

  std::optional<std::string> shortValue(const Column& column) const {
    MdbColumn& of = *column.library;
    if (column.type == MDB_BOOL) {
      return of.cur_value_len == 0 ? "1" : "0";
    }
    const std::string_view bytes = stored(of);
    if (bytes.empty() && !(column.type == MDB_TEXT && of.cur_value_start > 0)) {
      return std::nullopt;
    }
    const auto at = of.cur_value_start;
    const auto holds = [&](std::size_t size) { return bytes.size() >= size; };
    switch (column.type) {
      case MDB_BYTE:
        return std::to_string(static_cast<unsigned char>(bytes[0]));
      case MDB_INT:
        return holds(2) ? std::optional(std::to_string(static_cast<std::int16_t>(mdb_get_int16(file_.pg_buf, at))))
                        : std::nullopt;
      case MDB_LONGINT:
        return holds(4) ? std::optional(std::to_string(static_cast<std::int32_t>(mdb_get_int32(file_.pg_buf, at))))
                        : std::nullopt;
      case MDB_DATETIME:
        return holds(8) ? std::optional(dateOf(mdb_get_double(file_.pg_buf, at))) : std::nullopt;
      case MDB_DOUBLE:
        return holds(8) ? std::optional(whole(mdb_get_double(file_.pg_buf, at))) : std::nullopt;
      case MDB_FLOAT:
        return holds(4) ? std::optional(whole(mdb_get_single(file_.pg_buf, at))) : std::nullopt;
      case MDB_TEXT:
        return textOf(bytes);
      default:
        return std::nullopt;
    }
  }

  static std::string whole(double number) {
    std::array<char, 40> text{};
    const int length = std::snprintf(text.data(), text.size(), "%.0f", number);
    return {text.data(), static_cast<std::size_t>(std::max(0, length))};
  }

  std::string textOf(std::string_view bytes) const {
    if (!isJet3()) {
      return utf8Of(charactersOf(bytes));
    }
    std::u32string characters;
    for (const char byte : bytes) {
      characters += characterOfWindows1252(static_cast<unsigned char>(byte));
    }
    return utf8Of(characters);
  }

  std::optional<std::string> longValue(Column& column) const {
    MdbColumn& of = *column.library;
    if (of.cur_value_len < MDB_MEMO_OVERHEAD) {
      return std::nullopt;
    }
    std::array<char, MDB_MEMO_OVERHEAD> header{};
    std::copy_n(column.piece.data(), header.size(), header.data());
    const auto claimed =
        static_cast<std::size_t>(static_cast<std::uint32_t>(mdb_get_int32(header.data(), 0)) & kLengthOfLong);
    std::string bytes;
    std::size_t length = mdb_ole_read(&file_, &of, header.data(), column.piece.size());
    while (length > 0 && length <= column.piece.size() && bytes.size() < claimed) {
      bytes.append(column.piece, 0, length);
      length = bytes.size() < claimed ? mdb_ole_read_next(&file_, &of, header.data()) : 0;
    }
    if (bytes.size() < claimed) {
      raiseDamaged("the column " + column.name + " of the table " + table_->name + " holds " +
                   std::to_string(bytes.size()) + " of " + std::to_string(claimed) + " bytes");
    }
    bytes.resize(claimed);
    const bool characters = column.type == MDB_MEMO && !isJet3();
    return characters ? pageOf(charactersOf(bytes)) : bytes;
  }

  MdbHandle& file_;
  std::unique_ptr<MdbTableDef, TableFree> table_;
  std::vector<Column> columns_;
};

}  // namespace

const std::string* JetRow::find(std::string_view column) const {
  const auto found = values_.find(lowerCase(std::string(column)));
  return found == values_.end() ? nullptr : &found->second;
}

std::string JetRow::text(std::string_view column) const {
  const std::string* const found = find(column);
  return found == nullptr ? std::string() : *found;
}

std::optional<std::string> JetRow::value(std::string_view column) const {
  const std::string* const found = find(column);
  return found == nullptr ? std::nullopt : std::optional(*found);
}

std::optional<std::int64_t> JetRow::number(std::string_view column) const {
  const std::string* const found = find(column);
  std::int64_t number = 0;
  if (found == nullptr || std::from_chars(found->data(), found->data() + found->size(), number).ec != std::errc()) {
    return std::nullopt;
  }
  return number;
}

struct JetTables::Library {
  std::string bytes;  // which the library wants to be allowed to write
  std::unique_ptr<MdbHandle, HandleClose> handle;
};

JetTables::JetTables(std::string_view bytes) : library_(std::make_unique<Library>()) {
  library_->bytes = bytes;
  library_->handle.reset(mdb_open_buffer(library_->bytes.data(), library_->bytes.size(), MDB_NOFLAGS));
  MdbHandle* const handle = library_->handle.get();
  if (handle == nullptr || mdb_read_catalog(handle, MDB_ANY) == nullptr) {
    raiseDamaged("its list of tables cannot be read");
  }
  MdbCatalogEntry catalog{};
  catalog.mdb = handle;
  catalog.object_type = MDB_TABLE;
  catalog.table_pg = kCatalogPage;
  const std::unique_ptr<MdbTableDef, TableFree> table(mdb_read_table(&catalog));
  if (table == nullptr || handle->num_catalog < table->num_rows ||
      bytes.size() % static_cast<std::size_t>(handle->fmt->pg_size) != 0) {
    raiseDamaged("it is cut short, or its list of tables is not whole");
  }
  for (unsigned i = 0; i < handle->num_catalog; ++i) {
    auto* const entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(handle->catalog, i));
    if (mdb_is_user_table(entry) != 0) {
      names_.emplace_back(entry->object_name);
    }
  }
}

JetTables::~JetTables() = default;

bool JetTables::read(std::string_view table, const std::function<void(const JetRow& row)>& take) {
  for (unsigned i = 0; i < library_->handle->num_catalog; ++i) {
    auto* const entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(library_->handle->catalog, i));
    if (mdb_is_user_table(entry) != 0 && equalsIgnoringCase(entry->object_name, table)) {
      JetTable(*library_->handle, *entry).read(take);
      return true;
    }
  }
  return false;
}

}  // namespace tarnwick
