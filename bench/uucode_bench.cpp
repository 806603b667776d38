// SPDX-License-Identifier: MIT
// How fast 100 MB are encoded and decoded, on one core and through files as a user does it.
//
//   cmake -S . -B build/bench -G Ninja -DTARNWICK_BENCH=ON
//   cmake --build build/bench --target uucode_bench
//   TMPDIR=/dev/shm taskset -c 0 build/bench/bench/uucode_bench
//
// A memory disk leaves the speed of the real one out of the figures. Bytes per second are those of the plain data, not
// of the longer encoded text; the counter "peak_MiB" is the most memory that the whole process has had.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>

#include "platform/local_files.h"
#include "uucode/uu_code.h"

namespace tarnwick {
namespace {

constexpr std::size_t kSize = 100'000'000;
constexpr std::size_t kPiece = 1'000'000;

/// Overwrites without asking.
class YesToAll final : public Prompts {
 public:
  void inform(const std::string& text, const std::string&, PromptIcon) override { throw std::runtime_error(text); }
  bool confirm(const std::string&, const std::string&, PromptIcon) override { return true; }
  std::optional<std::string> chooseFile(const std::string&, const std::string&) override { return std::nullopt; }
};

std::string randomBytes(std::size_t size) {
  std::mt19937 random(1);
  std::string bytes(size, '\0');
  for (char& byte : bytes) {
    byte = static_cast<char>(random() & 0xFF);
  }
  return bytes;
}

/// A folder with 100 MB of data and their encoded form.
class Files {
 public:
  Files() {
    std::filesystem::create_directory(folder_);
    std::ofstream file(data(), std::ios::binary);
    const std::string piece = randomBytes(kPiece);
    for (std::size_t written = 0; written < kSize; written += piece.size()) {
      file << piece;
    }
  }
  ~Files() { std::filesystem::remove_all(folder_); }
  Files(const Files&) = delete;
  Files& operator=(const Files&) = delete;

  std::string data() const { return (folder_ / "data.bin").string(); }
  std::string text() const { return (folder_ / "data.uue").string(); }
  std::string back() const { return (folder_ / "back.bin").string(); }

 private:
  std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() / ("tarnwick-bench-" + std::to_string(std::random_device{}()));
};

void report(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  state.counters["peak_MiB"] = static_cast<double>(usage.ru_maxrss) / 1024;
}

void encodeFile(benchmark::State& state) {
  const Files files;
  YesToAll prompts;
  LocalFiles disk;
  for (auto _ : state) {
    UUCode(prompts, disk).UUEncodeFile(files.data(), files.text());
  }
  report(state, kSize);
}
BENCHMARK(encodeFile)->Unit(benchmark::kMillisecond);

void decodeFile(benchmark::State& state) {
  const Files files;
  YesToAll prompts;
  LocalFiles disk;
  UUCode(prompts, disk).UUEncodeFile(files.data(), files.text());
  for (auto _ : state) {
    UUCode(prompts, disk).UUDecodeFile(files.text(), files.back());
  }
  report(state, kSize);
}
BENCHMARK(decodeFile)->Unit(benchmark::kMillisecond);

void encodeStream(benchmark::State& state) {
  std::string bytes = randomBytes(1800);
  std::string text;
  for (auto _ : state) {
    UUCode::EncodeStream(bytes, text);
    benchmark::DoNotOptimize(text.data());
  }
  report(state, bytes.size());
}
BENCHMARK(encodeStream);

void decodeStream(benchmark::State& state) {
  std::string bytes = randomBytes(kPiece);
  std::string text;
  UUCode::EncodeStream(bytes, text);
  for (auto _ : state) {
    UUCode::DecodeStream(text, bytes);
    benchmark::DoNotOptimize(bytes.data());
  }
  report(state, bytes.size());
}
BENCHMARK(decodeStream);

void mimeDecodeStream(benchmark::State& state) {
  std::string text;
  for (std::size_t line = 0; line < 10'000; ++line) {
    text += std::string(76, static_cast<char>('A' + line % 26)) + "\r\n";
  }
  std::string bytes;
  for (auto _ : state) {
    UUCode::MIMEDecodeStream(text, bytes);
    benchmark::DoNotOptimize(bytes.data());
  }
  report(state, bytes.size());
}
BENCHMARK(mimeDecodeStream);

}  // namespace
}  // namespace tarnwick
