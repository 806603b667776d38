// SPDX-License-Identifier: MIT
#include "platform/secrets/kept_secrets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <QTimer>

#include <filesystem>

#include "platform/local_files.h"
#include "platform/secrets/key_ring.h"
#include "support/files_fixture.h"
#include "support/system.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::StartsWith;

/// A key ring in memory.
class MemoryRing final : public KeyRing {
 public:
  bool isThere() override { return there; }
  void read(const std::string& key, std::function<void(std::optional<std::string>, std::string)> done) override {
    QTimer::singleShot(0, [this, key, done = std::move(done)] {
      const auto found = kept.find(key);
      if (found != kept.end() && !locked) {
        done(found->second, "");
      } else {
        done(std::nullopt, "it is locked");
      }
    });
  }
  void write(const std::string& key, const std::string& secret, std::function<void(Kept, std::string)> done) override {
    QTimer::singleShot(0, [this, key, secret, done = std::move(done)] {
      if (answer == Kept::yes) {
        kept[key] = secret;
      }
      done(answer, "its user does not want it");
    });
  }
  void remove(const std::string& key) override { kept.erase(key); }

  bool there = true;
  bool locked = false;
  Kept answer = Kept::yes;
  std::map<std::string, std::string> kept;
};

class KeptSecretsTest : public FilesFixture {
 protected:
  std::string folder() const { return textOf(pathOf(at("x")).parent_path()); }
  std::unique_ptr<SecretStore> open(KeyRing* ring = nullptr) {
    makers_.push_back(std::make_unique<KeptSecrets>(files_, ring));
    return makers_.back()->makeSecretStore(folder());
  }

  static SecretStore::Answer read(SecretStore& store, const std::string& name) {
    std::optional<SecretStore::Answer> came;
    store.read(name, [&](SecretStore::Answer answer) { came = std::move(answer); });
    EXPECT_FALSE(came) << "answered from inside the call";
    EXPECT_TRUE(waitUntil([&] { return came.has_value(); }));
    return came.value_or(SecretStore::Answer());
  }
  static std::string keep(SecretStore& store, const std::string& name, const std::string& secret) {
    std::optional<std::string> came;
    store.store(name, secret, [&](std::string why) { came = std::move(why); });
    EXPECT_FALSE(came) << "answered from inside the call";
    EXPECT_TRUE(waitUntil([&] { return came.has_value(); }));
    return came.value_or("no answer");
  }
  static void forget(SecretStore& store, const std::string& name) {
    bool gone = false;
    store.remove(name, [&] { gone = true; });
    EXPECT_TRUE(waitUntil([&] { return gone; }));
  }
  std::string file() const { return FilesFixture::read("secrets"); }

  LocalFiles files_;
  MemoryRing ring_;

 private:
  std::vector<std::unique_ptr<KeptSecrets>> makers_;
};

TEST_F(KeptSecretsTest, AreKeptInAFileOfTheFolder) {
  using namespace std::string_literals;
  const auto store = open();
  EXPECT_FALSE(store->inKeyRing());
  EXPECT_EQ(read(*store, "mail").secret, std::nullopt);
  EXPECT_EQ(read(*store, "mail").why, "");
  EXPECT_EQ(keep(*store, "mail", "päss wörd"), "");
  EXPECT_EQ(keep(*store, "a hook", "\0\r\n\xFF"s), "");
  EXPECT_EQ(keep(*store, "", ""), "");
  const auto again = open();
  EXPECT_EQ(read(*again, "mail").secret, "päss wörd");
  EXPECT_EQ(read(*again, "a hook").secret, "\0\r\n\xFF"s);
  EXPECT_EQ(read(*again, "").secret, "");
  EXPECT_EQ(keep(*again, "mail", "new"), "");
  EXPECT_EQ(read(*store, "mail").secret, "new");
  forget(*store, "mail");
  EXPECT_EQ(read(*again, "mail").secret, std::nullopt);
  EXPECT_EQ(read(*again, "a hook").secret, "\0\r\n\xFF"s);
}

TEST_F(KeptSecretsTest, AreTheirOwnersAlone) {
  SKIP_ON_WINDOWS("There is no file mode there: the folder is its user's.");
  constexpr auto kOwnerOnly = std::filesystem::perms::owner_read | std::filesystem::perms::owner_write;
  make("secrets", "");
  std::filesystem::permissions(at("secrets"), std::filesystem::perms::all);
  EXPECT_EQ(keep(*open(), "mail", "secret"), "");
  EXPECT_EQ(std::filesystem::status(at("secrets")).permissions(), kOwnerOnly);
}

TEST_F(KeptSecretsTest, NoNameBecomesALine) {
  EXPECT_EQ(keep(*open(), "a\nbase64 eA== b", "secret"), "");
  EXPECT_EQ(read(*open(), "b").secret, std::nullopt);
  EXPECT_EQ(read(*open(), "a\nbase64 eA== b").secret, "secret");
}

TEST_F(KeptSecretsTest, WhatIsNotUnderstoodStaysInTheFile) {
  make("secrets", "# mine\nnew kind of line\nbase64 ??? broken\n");
  EXPECT_THAT(read(*open(), "broken").why, HasSubstr("is damaged. Enter it again."));
  EXPECT_EQ(keep(*open(), "mail", "secret"), "");
  EXPECT_THAT(file(), StartsWith("# mine\nnew kind of line\nbase64 ??? broken\n"));
  EXPECT_EQ(keep(*open(), "broken", "mended"), "");
  EXPECT_EQ(read(*open(), "broken").secret, "mended");
}

TEST_F(KeptSecretsTest, AFileThatCannotBeReadOrWrittenIsNamed) {
  std::filesystem::create_directory(at("secrets"));
  EXPECT_THAT(keep(*open(), "mail", "secret"), HasSubstr("secrets"));
  EXPECT_THAT(read(*open(), "mail").why, HasSubstr("secrets"));
  std::filesystem::remove(at("secrets"));
}

TEST_F(KeptSecretsTest, AnswersComeInTheOrderOfTheCalls) {
  const auto store = open(&ring_);
  std::string order;
  store->store("a", "1", [&](const std::string&) { order += "s"; });
  store->read("a", [&](const SecretStore::Answer& answer) { order += answer.secret.value_or("none"); });
  store->remove("a", [&] { order += "r"; });
  store->read("a", [&](const SecretStore::Answer& answer) { order += answer.secret.value_or("none"); });
  EXPECT_TRUE(waitUntil([&] { return order == "s1rnone"; })) << order;
}

TEST_F(KeptSecretsTest, NoAnswerComesWhenTheStoreHasGone) {
  bool answered = false;
  for (KeyRing* ring : {static_cast<KeyRing*>(nullptr), static_cast<KeyRing*>(&ring_)}) {
    open(ring)->store("mail", "secret", [&](const std::string&) { answered = true; });
    auto store = open(ring);
    store->store("mail", "secret", [&](const std::string&) { answered = true; });
    pumpFor(std::chrono::milliseconds(ring == nullptr ? 0 : 1));
    store.reset();
  }
  answered = false;
  pumpFor(std::chrono::milliseconds(20));
  EXPECT_FALSE(answered);
}

TEST_F(KeptSecretsTest, AnAnswerMayEndItAll) {
  auto store = open(&ring_);
  bool gone = false;
  store->store("mail", "secret", [&](const std::string&) {
    store.reset();
    gone = true;
  });
  EXPECT_TRUE(waitUntil([&] { return gone; }));
}

TEST_F(KeptSecretsTest, AreInTheKeyRingWhereThereIsOne) {
  const auto store = open(&ring_);
  EXPECT_TRUE(store->inKeyRing());
  EXPECT_EQ(keep(*store, "mail", "secret"), "");
  ASSERT_EQ(ring_.kept.size(), 1U);
  EXPECT_EQ(ring_.kept.begin()->second, "secret");
  EXPECT_THAT(file(), Not(HasSubstr("c2VjcmV0")));
  EXPECT_EQ(read(*open(&ring_), "mail").secret, "secret");
  EXPECT_EQ(keep(*store, "mail", "new"), "");
  EXPECT_EQ(ring_.kept.size(), 1U);
  EXPECT_EQ(read(*store, "mail").secret, "new");
  forget(*store, "mail");
  EXPECT_THAT(ring_.kept, IsEmpty());
}

TEST_F(KeptSecretsTest, WhatIsInTheKeyRingIsOutOfReachWithoutIt) {
  EXPECT_EQ(keep(*open(&ring_), "mail", "secret"), "");
  const auto terminal = open();
  EXPECT_THAT(read(*terminal, "mail").why,
              StartsWith("The password is kept in the key ring of the desktop, which only "));
  EXPECT_EQ(keep(*terminal, "mail", "another"), "");
  EXPECT_EQ(read(*terminal, "mail").secret, "another");
  EXPECT_EQ(read(*open(&ring_), "mail").secret, "another");
}

TEST_F(KeptSecretsTest, AKeyRingThatStaysLockedSaysWhatToDo) {
  EXPECT_EQ(keep(*open(&ring_), "mail", "secret"), "");
  ring_.locked = true;
  EXPECT_EQ(read(*open(&ring_), "mail").why,
            "The key ring of the desktop did not give the password out: it is locked. Unlock it, or enter the password "
            "again.");
}

TEST_F(KeptSecretsTest, AKeyRingThatDoesNotWorkIsDoneWithout) {
  ring_.answer = KeyRing::Kept::unable;
  EXPECT_EQ(keep(*open(&ring_), "mail", "secret"), "");
  EXPECT_EQ(read(*open(), "mail").secret, "secret");
  ring_.answer = KeyRing::Kept::refused;
  EXPECT_EQ(keep(*open(&ring_), "mail", "another"),
            "The key ring of the desktop did not take the password: its user does not want it.");
  EXPECT_EQ(read(*open(), "mail").secret, "secret");
}

TEST_F(KeptSecretsTest, TwoFoldersKeepApart) {
  std::filesystem::create_directory(at("other"));
  KeptSecrets maker(files_, &ring_);
  const auto one = maker.makeSecretStore(folder());
  const auto other = maker.makeSecretStore(at("other"));
  EXPECT_EQ(keep(*one, "mail", "one"), "");
  EXPECT_EQ(keep(*other, "mail", "other"), "");
  EXPECT_EQ(read(*one, "mail").secret, "one");
  forget(*other, "mail");
  EXPECT_EQ(read(*one, "mail").secret, "one");
}

}  // namespace
}  // namespace tarnwick::testing
