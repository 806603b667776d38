// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace tarnwick::testing {

/// A program folder of its own in the temporary directory, with a fresh database made from the product's schema;
/// removed with everything in it at the end.
///
/// The statements below run on a second connection that is opened for each call, as another program's would be; they
/// are plain SQLite and know none of the program's dialect.
class ProgramFolder {
 public:
  /// Which options are set at the beginning.
  enum class Options {
    none,         ///< as in a list from before there were any: the original behaviour
    recommended,  ///< as in a fresh list
  };
  explicit ProgramFolder(Options options = Options::none);
  ~ProgramFolder();
  ProgramFolder(const ProgramFolder&) = delete;
  ProgramFolder& operator=(const ProgramFolder&) = delete;

  /// The folder, without a trailing separator.
  std::string path() const { return folder_.generic_string(); }
  /// A file or folder in it, for instance `file("images/start.bmp")`.
  std::string file(const std::string& name) const { return (folder_ / name).generic_string(); }
  std::string databasePath() const { return file("tarnwick.mdb"); }

  /// Makes `sites` the one table that it was in lists of older forms, and stays in one that another tool has extended.
  void laySitesAsOneTable() const;

  /// Runs one or more statements; raises std::runtime_error with the database's message when one fails.
  void execute(const std::string& sql) const;

  /// The first field of the first row as text, every byte of it: "NULL" for a Null, empty when there is no row.
  std::string queryText(const std::string& sql) const;
  /// All rows, their fields joined with "|" and each row ended with a line feed.
  std::string queryRows(const std::string& sql) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace tarnwick::testing
