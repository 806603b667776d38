// SPDX-License-Identifier: MIT
// Every allocation of a fetch, refused in turn: the fetch may fail, the next one works.
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <new>
#include <string>
#include <utility>

#include "platform/web/curl_transfers.h"
#include "platform/web/transfer_probe.h"
#include "support/failing_memory.h"
#include "support/hostile_process.h"
#include "support/test_certificates.h"

namespace tarnwick::testing {
namespace {

/// The server, in a process of its own, so that each refusal meets the program.
struct Servers {
  Servers() : process(TARNWICK_HOSTILE_SERVER, identities()) {}

  std::map<std::string, TlsIdentity> identities() const {
    return certificates.problem().empty() ? std::map<std::string, TlsIdentity>{{"good", certificates.good()}}
                                          : std::map<std::string, TlsIdentity>{};
  }

  TestCertificates certificates;
  HostileProcess process;
};

class TransferMemory : public ::testing::TestWithParam<const char*> {
 protected:
  static constexpr int kMost = 3000;

  static void SetUpTestSuite() { servers_ = std::make_unique<Servers>(); }
  static void TearDownTestSuite() { servers_.reset(); }

  /// A fetch that is refused its `n`-th allocation; false when there are fewer.
  bool meets(int n) {
    TransferProbe probe(transfers);
    probe.request.timeout = std::chrono::seconds(5);
    const std::string url = servers_->process.url(GetParam());
    bool begun = false;
    try {
      // Once the timer of the waiting runs: refused in the middle of its start, it would outlive itself.
      waitUntil(
          [&] {
            if (!std::exchange(begun, true)) {
              refuseAllocation(Allocator::program, n);
              probe.start(url);
            }
            return probe.ended();
          },
          std::chrono::seconds(30));
    } catch (const std::bad_alloc&) {
      // told by whoever asked for the page
    }
    const bool struck = allocationWasRefused();
    if (probe.failed()) {
      EXPECT_EQ(probe.fault(), TransferFault::shortage) << "nothing is known of the site: " << probe.cause();
    }
    return struck;
  }

  void expectThatAFetchWorks() {
    TransferProbe probe(transfers);
    probe.request.timeout = std::chrono::seconds(5);
    EXPECT_EQ(probe.fetch(servers_->process.url(GetParam())), wanted) << probe.cause();
    EXPECT_TRUE(probe.ended());
  }

  CurlTransfers transfers{{.caFile = servers_->certificates.authorityFile()}};
  std::string wanted;
  static std::unique_ptr<Servers> servers_;
};
std::unique_ptr<Servers> TransferMemory::servers_;

TEST_P(TransferMemory, TheNextFetchWorksWhicheverAllocationWasRefused) {
  if (servers_->process.url(GetParam()).empty()) {
    GTEST_SKIP() << servers_->certificates.problem();
  }
  {
    TransferProbe probe(transfers);
    wanted = probe.fetch(servers_->process.url(GetParam()));
    ASSERT_FALSE(wanted.empty()) << probe.cause();
  }
  int n = 1;
  for (; n < kMost && meets(n) && !HasFailure(); ++n) {
    SCOPED_TRACE("allocation " + std::to_string(n));
    expectThatAFetchWorks();
  }
  EXPECT_GT(n, 10);
  EXPECT_LT(n, kMost);
  RecordProperty("allocations", n - 1);
}

INSTANTIATE_TEST_SUITE_P(Pages, TransferMemory,
                         ::testing::Values("Steady", "RedirectWithAFragment", "CertificateThatIsGood", "FtpFile"),
                         [](const auto& chosen) { return std::string(chosen.param); });

}  // namespace
}  // namespace tarnwick::testing
