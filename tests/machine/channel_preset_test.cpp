// SPDX-License-Identifier: MIT
#include "delivery/channel_preset.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <nlohmann/json.hpp>

#include "delivery/hook_request.h"
#include "store/channel_table.h"
#include "support/file_bytes.h"
#include "support/files_fixture.h"
#include "support/http_server.h"
#include "support/test_services.h"
#include "support/wait_until.h"

namespace tarnwick::testing {
namespace {

using Json = nlohmann::json;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// What no service may take for anything but text.
constexpr const char* kTroubled =
    "\"}, {\"x\": \\ \n\r\t\x01 <!channel> @everyone **b** [a](http://b) \xc3\xa9 \xff {secret}";

TEST(ChannelPreset, IsReadFromLinesOfNamesAndValues) {
  const ChannelPreset preset = readPreset("Bell",
                                          "# a comment\n\n label = The bell \nabout=Rings\nsecret = A word\n"
                                          "ADDRESS = https://bell.example.org/ring?a=b\r\nheaders = A: 1\\nB: \\\\2\n");
  EXPECT_EQ(preset.name, "bell");
  EXPECT_EQ(preset.label, "The bell");
  EXPECT_EQ(preset.about, "Rings");
  EXPECT_EQ(preset.secret, "A word");
  EXPECT_THAT(preset.settings, ElementsAre(std::pair("address", "https://bell.example.org/ring?a=b"),
                                           std::pair("headers", "A: 1\nB: \\2")));
}

std::string faultOf(const std::string& text) {
  try {
    readPreset("bell", text);
    return "";
  } catch (const std::runtime_error& error) {
    return error.what();
  }
}

TEST(ChannelPreset, TellsWhatIsWrongWithItsLine) {
  EXPECT_EQ(faultOf("address = http://a/\nhello"),
            "The preset bell, line 2: \"hello\" has no \"=\" between a name and a value.");
  EXPECT_THAT(faultOf("colour = red"), HasSubstr("line 1: A channel of the kind web hook has no \"colour\". It has: "));
  EXPECT_THAT(faultOf("address = ftp://a/"), HasSubstr("http:// or https://"));
  EXPECT_THAT(faultOf("address = http://a/\nbody = a\\tb"), HasSubstr("line 2: behind a backslash stands n"));
  EXPECT_THAT(faultOf("address = http://a/\naddress = http://b/"), HasSubstr("line 2: address is given twice"));
  EXPECT_THAT(faultOf("label = a\\nb"), HasSubstr("give it one line"));
  EXPECT_THAT(faultOf("address = x\\ny\x1b"), HasSubstr("x\\ny\\x1b"));
  EXPECT_THAT(faultOf("label = a"), HasSubstr("there is no address"));
}

class ChannelPresetFiles : public FilesFixture {
 protected:
  void lay(const std::string& folder, const std::string& name, const std::string& text) {
    std::filesystem::create_directories(at(folder + "/channels"));
    writeFile(at(folder + "/channels/" + name), text);
  }
  LocalFiles files;
};

TEST_F(ChannelPresetFiles, OneOfTheUsersOwnGoesBeforeThatOfTheProgram) {
  lay("program", "bell.txt", "address = http://a/\n");
  lay("program", "horn.txt", "address = http://b/\n");
  lay("own", "Bell.TXT", "address = http://c/\n");
  lay("own", "broken.txt", "address\n");
  lay("own", "note.md", "address\n");
  const ChannelPresets presets = readPresets(files, at("program"), at("own"));
  ASSERT_EQ(presets.presets.size(), 2U);
  EXPECT_EQ(presets.preset("BELL").settings.at("address"), "http://c/");
  EXPECT_EQ(presets.preset("horn").settings.at("address"), "http://b/");
  EXPECT_THAT(presets.faults, ElementsAre(HasSubstr("The preset broken, line 1")));
  EXPECT_THROW(presets.preset("drum"), std::runtime_error);
  EXPECT_THAT(readPresets(files, at("nowhere"), at("nowhere")).presets, IsEmpty());
}

TEST(ChannelPreset, WhatTheUserGivesGoesBeforeIt) {
  const ChannelPreset preset =
      readPreset("bell", "address = http://a/\nbody = {text}\nheaders = Title: {title}\\nTags: warning\n");
  EXPECT_THAT(withPreset(preset, {{"address", "http://b/"}, {"headers", "TAGS: bell\nX: 1"}}),
              ElementsAre(std::pair("address", "http://b/"), std::pair("body", "{text}"),
                          std::pair("headers", "Title: {title}\nTAGS: bell\nX: 1")));
}

/// Those that come with the program, at a server of the test.
class ShippedPreset : public ::testing::TestWithParam<std::string> {
 protected:
  static ChannelPreset preset() {
    return readPreset(GetParam(), bytesOfFile(std::string(TARNWICK_PRESETS) + "/" + GetParam() + ".txt"));
  }
  static Alert troubled() {
    Alert alert;
    alert.idSite = 3;
    alert.event = "down";
    alert.url = std::string("http://shop.example.org/") + kTroubled;
    alert.cause = kTroubled;
    alert.firstError = kTroubled;
    for (int line = 0; line < 30; ++line) {
      alert.difference += "+" + std::string(400, '\\') + kTroubled + "\n";
    }
    return alert;
  }

  HttpServer server;
  TestServices machine;
};

TEST_P(ShippedPreset, MakesARequestThatTheServiceTakesWhateverTheTextsHold) {
  const ChannelPreset shipped = preset();
  Channel channel{.name = "hook", .kind = std::string(channel_kind::hook)};
  channel.settings = withPreset(shipped, {{"address", server.url("/in")}});
  channel = checkedChannel(std::move(channel));
  server.respond("/in", {.body = "taken"});
  OutboxRow row;
  row.alert = troubled();
  const AlertText text = alertTextOf({&row, 1});
  const auto transfer = machine.transfers.makeTransferControl();
  bool isIdle = false;
  transfer->onIdle([&] { isIdle = true; });
  transfer->execute(hookRequest(channel, "to\r\nken\"", {&row, 1}, text));
  ASSERT_TRUE(waitUntil([&] { return isIdle; }));
  EXPECT_EQ(transfer->takeResult().page, "taken");

  ASSERT_EQ(server.requests().size(), 1U);
  const auto& request = server.requests().front();
  EXPECT_EQ(request.method, GetParam() == "matrix" ? "PUT" : "POST");
  EXPECT_THAT(request.body, HasSubstr("shop.example.org"));
  if (channel.setting(channel_field::form) == channel_value::json) {
    EXPECT_TRUE(Json::accept(request.body)) << request.body;
  }
}

TEST_P(ShippedPreset, StaysWithinWhatTheServiceTakes) {
  OutboxRow row;
  row.alert = troubled();
  Channel channel{.name = "hook", .kind = std::string(channel_kind::hook), .settings = preset().settings};
  const Request request = hookRequest(channel, "token", {&row, 1}, alertTextOf({&row, 1}));
  if (GetParam() == "discord") {
    const Json embed = Json::parse(request.body)["embeds"][0];
    EXPECT_LE(embed["title"].get<std::string>().size(), 256U);
    EXPECT_LE(embed["description"].get<std::string>().size(), 4096U);
  } else if (GetParam() == "ntfy") {
    EXPECT_LE(request.body.size(), 4096U);
  } else if (GetParam() == "matrix") {
    EXPECT_LE(request.body.size(), 65536U);
  }
}

TEST_P(ShippedPreset, LetsNoTextCallPeopleInOrSetALink) {
  OutboxRow row;
  row.alert = troubled();
  Channel channel{.name = "hook", .kind = std::string(channel_kind::hook), .settings = preset().settings};
  const Request request = hookRequest(channel, "token", {&row, 1}, alertTextOf({&row, 1}));
  if (GetParam() == "slack") {
    EXPECT_THAT(Json::parse(request.body)["text"].get<std::string>(), HasSubstr("&lt;!channel&gt;"));
  } else if (GetParam() == "discord") {
    EXPECT_THAT(Json::parse(request.body)["embeds"][0]["description"].get<std::string>(),
                HasSubstr("\\@everyone \\*\\*b\\*\\* \\[a\\]\\(http://b\\)"));
  }
}

INSTANTIATE_TEST_SUITE_P(Presets, ShippedPreset,
                         ::testing::Values("ntfy", "gotify", "matrix", "slack", "discord", "apprise"),
                         [](const auto& tested) { return tested.param; });

TEST(ShippedPresets, AreAllTested) {
  LocalFiles files;
  const std::string channels = TARNWICK_PRESETS;
  const ChannelPresets presets = readPresets(files, channels.substr(0, channels.rfind('/')), "");
  EXPECT_EQ(presets.presets.size(), 6U);
  EXPECT_THAT(presets.faults, IsEmpty());
}

}  // namespace
}  // namespace tarnwick::testing
