// SPDX-License-Identifier: MIT
// The pieces of a check that run once for each site or once for each byte of its page, one by one.
//
//   cmake -S . -B build/bench -G Ninja -DTARNWICK_BENCH=ON
//   cmake --build build/bench --target hot_pieces_bench
//   QT_QPA_PLATFORM=offscreen taskset -c 0 build/bench/bench/hot_pieces_bench
//
// The database lies in a program folder in TMPDIR. With TMPDIR=/dev/shm the speed of the disk is left out.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>
#include <QApplication>

#include "engine/page_fetch.h"
#include "engine/result_recording.h"
#include "platform/clock.h"
#include "platform/sqlite/sql_dialect.h"
#include "platform/sqlite/sqlite_connection.h"
#include "store/database.h"
#include "store/settings_and_log.h"
#include "store/site_records.h"
#include "store/sql_quote.h"
#include "support/program_folder.h"
#include "ui/main_window/site_grid_model.h"
#include "ui/main_window/site_grid_view.h"

namespace tarnwick {
namespace {

constexpr std::size_t kUsualPage = 10'000;
constexpr std::size_t kLargePage = 10'000'000;
constexpr std::int16_t kManySites = 32767;

/// A page with the quotes and apostrophes that pages have.
std::string page(std::size_t size) {
  const std::string line = "<p class=\"line\">the quick brown fox doesn't jump over this lazy dog today</p>\r\n";
  std::string text;
  while (text.size() < size) {
    text += line;
  }
  text.resize(size);
  return text;
}

/// An open database with one site, whose baseline and latest page are `content`.
class OneSite {
 public:
  explicit OneSite(const std::string& content) {
    sites.addSite(1);
    results.updateContentCompare(1, content);
    results.testSite(1, content, 0, {});
    results.setStatus(1, true);
  }

  SystemClock clock;
  testing::ProgramFolder folder;
  SqliteConnections connections{clock};
  Database database{folder.path(), connections};
  SettingsAndLog settings{database};
  SiteRecords sites{database};
  ResultRecording results{database, settings, clock};
};

void countBytes(benchmark::State& state, std::size_t bytes) {
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes));
}

void translateShortStatement(benchmark::State& state) {
  const std::string sql = "update sites set success = 12 where idsite = 34";
  for (auto _ : state) {
    benchmark::DoNotOptimize(translateSql(sql, SystemClock()));
  }
}
BENCHMARK(translateShortStatement);

void translateLogStatement(benchmark::State& state) {
  const std::string sql =
      "insert into log (idSite,url,status,errCode,errDescription,content) values "
      "(1,'http://127.0.0.1/p1',True,0,'','')";
  for (auto _ : state) {
    benchmark::DoNotOptimize(translateSql(sql, SystemClock()));
  }
}
BENCHMARK(translateLogStatement);

void translatePageStatement(benchmark::State& state) {
  const auto size = static_cast<std::size_t>(state.range(0));
  const std::string sql =
      joinSql("update sites set content_runtime = '", sqlQuote(page(size)), "'", " WHERE idsite = ", sqlQuote(1));
  for (auto _ : state) {
    benchmark::DoNotOptimize(translateSql(sql, SystemClock()));
  }
  countBytes(state, size);
}
BENCHMARK(translatePageStatement)->Arg(kUsualPage)->Arg(kLargePage);

void quotePage(benchmark::State& state) {
  const std::string text = page(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(sqlQuote(text));
  }
  countBytes(state, text.size());
}
BENCHMARK(quotePage)->Arg(kUsualPage)->Arg(kLargePage);

void encodeForm(benchmark::State& state) {
  const std::string text = page(1000);
  for (auto _ : state) {
    benchmark::DoNotOptimize(PageFetch::urlEncode(text));
  }
  countBytes(state, text.size());
}
BENCHMARK(encodeForm);

void compareLargePages(benchmark::State& state) {
  const std::string stored = page(kLargePage);
  const std::string fetched = page(kLargePage);
  for (auto _ : state) {
    benchmark::DoNotOptimize(stored == fetched);
  }
  countBytes(state, kLargePage);
}
BENCHMARK(compareLargePages)->Unit(benchmark::kMicrosecond);

/// What a check stores of an unchanged page: one transaction.
void recordResult(benchmark::State& state) {
  const std::string content = page(static_cast<std::size_t>(state.range(0)));
  OneSite site(content);
  for (auto _ : state) {
    Transaction whole = site.results.beginTransaction();
    benchmark::DoNotOptimize(site.results.testSite(1, content, 0, {}));
    site.results.setStatus(1, true);
    site.results.updateStatusCounter(1, true);
    whole.commit();
    if (state.iterations() % 30'000 == 29'999) {
      site.sites.clearCounters(1);
    }
  }
  countBytes(state, content.size());
}
BENCHMARK(recordResult)->Arg(kUsualPage)->Arg(kLargePage)->Unit(benchmark::kMicrosecond);

/// A row of the grid after a result, read from the database again, in a list of as many sites as there can be.
void refreshRow(benchmark::State& state) {
  OneSite site(page(kUsualPage));
  site.folder.execute("with recursive n(id) as (select 2 union all select id + 1 from n where id < " +
                      std::to_string(kManySites) +
                      ") insert into sites (idSite, url, method, active, tInterval, status, success, failure) "
                      "select id, 'http://127.0.0.1/p' || id, 'GET', 1, 10, 1, 5, 0 from n");
  SiteGridModel model;
  SiteGridView view(model);
  view.setSites(site.sites.getArraySites(0));
  view.show();
  for (auto _ : state) {
    model.updateSite(site.sites.getArraySites(1));
    model.setResult(1, true);
  }
}
BENCHMARK(refreshRow)->Unit(benchmark::kMicrosecond);

/// The grid of as many sites as there can be, filled afresh.
void fillGrid(benchmark::State& state) {
  OneSite site(page(kUsualPage));
  site.folder.execute("with recursive n(id) as (select 2 union all select id + 1 from n where id < " +
                      std::to_string(kManySites) +
                      ") insert into sites (idSite, url, method, active, tInterval, status, success, failure) "
                      "select id, 'http://127.0.0.1/p' || id, 'GET', 1, 10, 1, 5, 0 from n");
  SiteGridModel model;
  SiteGridView view(model);
  for (auto _ : state) {
    view.setSites(site.sites.getArraySites(0));
  }
}
BENCHMARK(fillGrid)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tarnwick

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
    return 1;
  }
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
