// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "exchange/foreign/any_list.h"
#include "support/file_bytes.h"

namespace tarnwick::testing {

/// A file as another program writes it.
inline std::string foreignFile(const std::string& name) { return bytesOfFile(FOREIGN_FILES + name); }

/// Lists of other programs, read.
class ForeignLists : public ::testing::Test {
 protected:
  /// Reads the file by what it shows itself to be; a fault fails the case.
  void read(const std::string& bytes) {
    const auto word = wordOfFile("file", bytes);
    ASSERT_TRUE(word) << "the kind does not show";
    kind = *word;
    ListFaults faults;
    list = readAnyList(kind, bytes, programFields(), faults).content;
    for (const ListFaults::Fault& fault : faults.kept()) {
      ADD_FAILURE() << fault.line << ": " << fault.text;
    }
  }

  std::vector<std::string> addresses() const {
    std::vector<std::string> urls;
    for (const ListedSite& site : list.sites) {
      urls.push_back(site.site.url);
    }
    return urls;
  }

  std::vector<std::string> notes() const {
    std::vector<std::string> lines;
    for (const ForeignNote& note : list.notes) {
      lines.push_back(lineOf(note));
    }
    return lines;
  }

  /// The first fault of a file of that kind; empty for none.
  static std::string faultOf(const std::string& word, const std::string& bytes) {
    ListFaults faults;
    readAnyList(word, bytes, programFields(), faults);
    return faults.none() ? std::string()
                         : std::to_string(faults.kept().front().line) + ": " + faults.kept().front().text;
  }

  std::string kind;
  ForeignList list;
};

}  // namespace tarnwick::testing
