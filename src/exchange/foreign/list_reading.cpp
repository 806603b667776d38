// SPDX-License-Identifier: MIT
#include "exchange/foreign/list_reading.h"

#include <cstddef>
#include <exception>
#include <new>
#include <utility>

#include "exchange/foreign/list_packing.h"

namespace tarnwick {
namespace {

constexpr std::size_t kMemoryOfByte = 16;

ReadList faulty(const std::string& fault) {
  ReadList read;
  read.word = "-";
  read.faults.add(0, fault);
  return read;
}

std::string readAndPack(const std::string& name, const std::string& word, const ListReading::Source& source,
                        const Fields& fields, std::size_t memory) {
  try {
    const std::string bytes = source();
    WorkApart::limitMemory(memory + kMemoryOfByte * bytes.size());
    ReadList read;
    read.word = word.empty() ? wordOfFile(name, bytes).value_or("") : word;
    if (!read.word.empty()) {
      read.list = readAnyList(read.word, bytes, fields, read.faults);
    }
    return packed(std::move(read));
  } catch (const std::bad_alloc&) {
    return packed(faulty(kNoMemoryToRead));
  } catch (const std::exception& error) {
    return packedFailure(error.what());
  }
}

}  // namespace

ListReading::ListReading(const std::string& name, const std::string& word, const Source& source, const Fields& fields,
                         std::size_t memory)
    : work_([&] { return readAndPack(name, word, source, fields, memory); }) {}

ReadList ListReading::finish() {
  work_.wait();
  if (const auto bytes = work_.result()) {
    return unpacked(*bytes);
  }
  return faulty("the file is damaged so badly that it cannot be read: copy it anew, or export it again");
}

}  // namespace tarnwick
