// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/local_files.h"
#include "store/compaction.h"
#include "support/data_fixture.h"
#include "support/file_bytes.h"
#include "support/recording_desktop.h"

namespace tarnwick::testing {

/// A database with rows in every table and much unused space, ready to be compacted.
class CompactionFixture : public DataFixture {
 protected:
  CompactionFixture() {
    folder.execute(
        "insert into sites (idSite, url, active, content_compare) values (3, 'http://a/', 1, 'page'), (9, 'b', 0, "
        "null);"
        "insert into postVars (idPostVars, idSite, pname, pvalue) values (7, 3, 'n', 'v');"
        "insert into methods values (3, 'GET');"
        "insert into test (tname) values ('t');"
        "with recursive n(i) as (select 1 union all select i + 1 from n where i < 400)"
        " insert into log (idSite, url, status, content) select i, 'http://a/', i % 2, randomblob(3000) from n;"
        "delete from log where idSite > 100;");
  }

  /// Everything that the file `name` of the program folder defines and holds, as text.
  std::string contents(const std::string& name = "tarnwick.mdb") const {
    const Reader reader(connections, folder.file(name));
    std::string all = reader.rows("select type, name, tbl_name, sql from sqlite_master order by 1, 2");
    for (const char* table : {"sites", "postVars", "control", "log", "test", "methods"}) {
      all += reader.rows(std::string("select * from ") + table);
    }
    return all + reader.rows("pragma integrity_check");
  }

  std::string bytes(const std::string& name) const { return bytesOfFile(folder.file(name)); }
  bool exists(const std::string& name) const { return std::filesystem::exists(folder.file(name)); }

  /// The names of all files in the program folder but the database's own three, open or closed, joined with blanks.
  std::string others() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.path())) {
      const std::string name = entry.path().filename().string();
      if (!name.starts_with("tarnwick.mdb") || name.ends_with(".new") || name.ends_with("-journal")) {
        names.push_back(name);
      }
    }
    std::sort(names.begin(), names.end());
    std::string all;
    for (const std::string& name : names) {
      all += (all.empty() ? "" : " ") + name;
    }
    return all;
  }

  mutable SqliteConnections connections{clock};
  LocalFiles files;
  RecordingPrompts prompts;

 private:
  class Reader {
   public:
    Reader(SqliteConnections& maker, const std::string& path) : connection_(maker.makeSqlConnection()) {
      connection_->open("Data Source=" + path + ";");
    }
    std::string rows(const std::string& sql) const {
      const auto recordset = connection_->execute(sql);
      std::string text;
      for (; !recordset->eof(); recordset->moveNext()) {
        for (std::size_t field = 0; field < recordset->fieldCount(); ++field) {
          text += recordset->field(field).toTableText() + "|";
        }
        text += "\n";
      }
      return text;
    }

   private:
    std::unique_ptr<SqlConnection> connection_;
  };
};

}  // namespace tarnwick::testing
