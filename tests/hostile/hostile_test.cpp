// SPDX-License-Identifier: MIT
// Every bad behaviour of a server, met by a real pass among steady neighbours: it ends in time, is judged and logged in
// words that a person understands, takes bounded memory, leaks no connection and harms no other site.
#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "behaviours.h"
#include "own_process.h"
#include "program/program.h"
#include "support/hostile_process.h"
#include "support/program_folder.h"
#include "support/recording_view.h"
#include "support/test_certificates.h"
#include "support/test_services.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

/// How long after its time-out a request may take to be over, on a machine that has much else to do.
constexpr milliseconds kMargin{2500};
constexpr std::size_t kMebibyte = std::size_t{1024} * 1024;
/// What a check with a baseline other than the page comes to.
constexpr const char* kOtherPage = "what was there before";
/// More than the pool has slots, so that a slot which the bad one held is needed again.
constexpr int kNeighboursBefore = 2;
constexpr int kNeighboursAfter = 5;

/// The server for all cases of a suite, and the authority that its good certificate is signed by.
struct HostileWorld {
  explicit HostileWorld(std::unique_ptr<TestCertificates> made = nullptr)
      : certificates(std::move(made)), process(TARNWICK_HOSTILE_SERVER, identities()) {}

  std::map<std::string, TlsIdentity> identities() const {
    if (!certificates || !certificates->problem().empty()) {
      return {};
    }
    return {{"good", certificates->good()},          {"expired", certificates->expired()},
            {"self", certificates->selfSigned()},    {"other", certificates->wrongHost()},
            {"future", certificates->notYetValid()}, {"strange", certificates->ofAStranger()}};
  }

  std::unique_ptr<TestCertificates> certificates;
  HostileProcess process;
};

class HostileTest : public ::testing::TestWithParam<HostileBehaviour> {
 protected:
  static void SetUpTestSuite() { world_ = std::make_unique<HostileWorld>(); }
  static void TearDownTestSuite() { world_.reset(); }

  void SetUp() override {
    program_.start();
    program_.data().setControl("timeout", GetParam().timeoutSeconds);
  }

  static HostileProcess& server() { return world_->process; }
  static std::string authorityFile() {
    return world_->certificates ? world_->certificates->authorityFile() : std::string();
  }

  std::int16_t addSite(const std::string& url, const std::string& baseline) {
    const std::int16_t id = program_.data().addSite();
    program_.data().updateSites(id, url, GetParam().method, true, 10, false, "", GetParam().userName,
                                GetParam().password);
    program_.data().updateContentCompare(id, baseline);
    return id;
  }

  std::int16_t addNeighbour() {
    const std::int16_t id = program_.data().addSite();
    program_.data().updateSites(id, server().url("Steady"), "get", true, 10, false, "", "", "");
    program_.data().updateContentCompare(id, kSteadyPage);
    return id;
  }

  std::string logged(const std::string& column, std::int16_t id) const {
    return folder_.queryText("select " + column + " from log where idSite = " + std::to_string(id));
  }

  /// The words of a failure, with the places of the behaviours that it names.
  std::string words(std::string text) const {
    for (auto start = text.find('{'); start != std::string::npos; start = text.find('{')) {
      const auto end = text.find('}', start);
      const std::string name = text.substr(start + 1, end - start - 1);
      text.replace(start, end - start + 1, server().place(name.empty() ? GetParam().name : name));
    }
    return text;
  }

  static bool expectedUp() { return GetParam().outcome.fault == TransferFault::none; }

  std::string expectedPage() const {
    std::string page;
    for (std::size_t time = 0; time < GetParam().outcome.times; ++time) {
      page += GetParam().outcome.page;
    }
    return page;
  }

  void expectJudgedInTimeAndNobodyHarmed();
  void expectOutcome(std::int16_t id) const;
  void expectTraces() const;

  ProgramFolder folder_;
  TestServices machine_{TestServices::Time::clockByHand, {.caFile = authorityFile()}};
  SilentView view_;
  Program program_{folder_.path(), machine_.services(), view_};

  static std::unique_ptr<HostileWorld> world_;
};

std::unique_ptr<HostileWorld> HostileTest::world_;

/// The same with certificates, which take their time to be made.
class SecureHostileTest : public HostileTest {
 protected:
  static void SetUpTestSuite() { world_ = std::make_unique<HostileWorld>(std::make_unique<TestCertificates>()); }

  void SetUp() override {
    if (!world_->certificates->problem().empty()) {
      GTEST_SKIP() << "no certificates can be made: " << world_->certificates->problem();
    }
    HostileTest::SetUp();
  }
};

void HostileTest::expectOutcome(std::int16_t id) const {
  const HostileOutcome& expected = GetParam().outcome;
  const bool up = expectedUp();
  EXPECT_EQ(logged("count(*)", id), "1");
  EXPECT_EQ(logged("errCode", id), std::to_string(static_cast<long>(expected.fault)));
  EXPECT_EQ(logged("errDescription", id), words(expected.cause));
  EXPECT_EQ(logged("status", id), up ? "1" : "0") << "page: " << logged("substr(content, 1, 300)", id);
  EXPECT_EQ(logged("content", id), up ? "" : "11:" + words(expected.cause));
  EXPECT_EQ(folder_.queryText("select ifnull(success, 0) || ' ' || ifnull(failure, 0) from sites where idSite = " +
                              std::to_string(id)),
            up ? "1 0" : "0 1");
}

void HostileTest::expectTraces() const {
  for (const HostileTrace& trace : GetParam().traces) {
    const std::string received = server().received(trace.name);
    EXPECT_EQ(received.find(trace.text) != std::string::npos, trace.expected) << trace.name << " was told:\n"
                                                                              << received;
  }
}

void HostileTest::expectJudgedInTimeAndNobodyHarmed() {
  std::vector<std::int16_t> neighbours;
  neighbours.reserve(kNeighboursBefore + kNeighboursAfter);
  for (int neighbour = 0; neighbour < kNeighboursBefore; ++neighbour) {
    neighbours.push_back(addNeighbour());
  }
  const std::int16_t id = addSite(server().url(GetParam().name), expectedUp() ? expectedPage() : kOtherPage);
  for (int neighbour = 0; neighbour < kNeighboursAfter; ++neighbour) {
    neighbours.push_back(addNeighbour());
  }

  const std::vector<std::string> descriptors = openDescriptors();
  const std::size_t memory = residentMemory();
  const bool measured = forgetPeakMemory();
  const auto start = steady_clock::now();
  ASSERT_TRUE(program_.startRun()) << (machine_.prompts.texts().empty() ? "" : machine_.prompts.texts().front());
  const auto taken = std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
  const std::size_t peak = peakMemory();
  program_.stopRun();

  waitUntil([&] { return openDescriptors() == descriptors; }, std::chrono::seconds{2});
  EXPECT_EQ(openDescriptors(), descriptors);
  EXPECT_LT(taken, std::chrono::seconds{GetParam().mostSeconds} + kMargin);
  expectOutcome(id);
  for (const std::int16_t neighbour : neighbours) {
    EXPECT_EQ(logged("status", neighbour), "1") << logged("errDescription", neighbour);
  }
  if (measured) {
    EXPECT_LT((peak - std::min(memory, peak)) / kMebibyte, GetParam().mebibytes);
  }
  EXPECT_TRUE(machine_.prompts.texts().empty());
  expectTraces();
}

TEST_P(HostileTest, IsJudgedInTimeAndHarmsNobody) { expectJudgedInTimeAndNobodyHarmed(); }
TEST_P(SecureHostileTest, IsJudgedInTimeAndHarmsNobody) { expectJudgedInTimeAndNobodyHarmed(); }

std::string nameOf(const ::testing::TestParamInfo<HostileBehaviour>& info) { return info.param.name; }

INSTANTIATE_TEST_SUITE_P(Silent, HostileTest, ::testing::ValuesIn(silentBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Length, HostileTest, ::testing::ValuesIn(lengthBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Coding, HostileTest, ::testing::ValuesIn(codingBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Status, HostileTest, ::testing::ValuesIn(statusBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Header, HostileTest, ::testing::ValuesIn(headerBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Redirect, HostileTest, ::testing::ValuesIn(redirectBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Challenge, HostileTest, ::testing::ValuesIn(challengeBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Secure, SecureHostileTest, ::testing::ValuesIn(secureBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Broken, HostileTest, ::testing::ValuesIn(brokenBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Large, HostileTest, ::testing::ValuesIn(largeBehaviours()), nameOf);
INSTANTIATE_TEST_SUITE_P(Ftp, HostileTest, ::testing::ValuesIn(ftpBehaviours()), nameOf);

}  // namespace

// Named in the output of a failed case.
void PrintTo(const HostileBehaviour& behaviour, std::ostream* out) { *out << behaviour.name; }

}  // namespace tarnwick::testing
