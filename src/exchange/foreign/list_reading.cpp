// SPDX-License-Identifier: MIT
#include "exchange/foreign/list_reading.h"

#include <exception>
#include <utility>

#include "exchange/foreign/list_packing.h"

namespace tarnwick {
namespace {

std::string readAndPack(const std::string& name, const std::string& word, const ListReading::Source& source,
                        const Fields& fields) {
  try {
    const std::string bytes = source();
    ReadList read;
    read.word = word.empty() ? wordOfFile(name, bytes).value_or("") : word;
    if (!read.word.empty()) {
      read.list = readAnyList(read.word, bytes, fields, read.faults);
    }
    return packed(std::move(read));
  } catch (const std::exception& error) {
    return packedFailure(error.what());
  }
}

}  // namespace

ListReading::ListReading(const std::string& name, const std::string& word, const Source& source, const Fields& fields)
    : work_([&] { return readAndPack(name, word, source, fields); }) {}

ReadList ListReading::finish() {
  work_.wait();
  if (const auto bytes = work_.result()) {
    return unpacked(*bytes);
  }
  ReadList damaged;
  damaged.word = "-";
  damaged.faults.add(0, "the file is damaged so badly that it cannot be read: copy it anew, or export it again");
  return damaged;
}

}  // namespace tarnwick
