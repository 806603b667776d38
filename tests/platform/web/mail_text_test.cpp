// SPDX-License-Identifier: MIT
// How a mail is written, and what a server and a reader of mails that are none of ours make of it.
#include <nlohmann/json.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "mail_probe.h"
#include "platform/web/mail_text.h"
#include "support/fresh_seed.h"
#include "support/real_mail_server.h"
#include "support/test_certificates.h"

namespace tarnwick::testing {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

TEST(MailText, AddressesAreTakenApart) {
  EXPECT_EQ(parseMailAddress(" me@example.org ")->inHeader(), "me@example.org");
  EXPECT_EQ(parseMailAddress("A Name <me@example.org>")->inHeader(), "\"A Name\" <me@example.org>");
  EXPECT_EQ(parseMailAddress("\"A, Name\" <me@example.org>")->inHeader(), "\"A, Name\" <me@example.org>");
  EXPECT_EQ(parseMailAddress("J\xC3\xBCrgen <me@example.org>")->inHeader(),
            "=?utf-8?B?SsO8cmdlbg==?= <me@example.org>");
  EXPECT_EQ(parseMailAddress("a\r\nBcc: you@example.org <me@example.org>")->inHeader(),
            "\"a  Bcc: you@example.org\" <me@example.org>");
  EXPECT_EQ(parseMailAddress("root")->address, "root");
  EXPECT_FALSE(parseMailAddress("\xFF@example.org"));
}

TEST(MailText, LinesAreThoseThatAnyServerPassesOn) {
  EXPECT_EQ(quotedPrintable("a\nb\r\nc\rd"), "a\r\nb\r\nc\r\nd\r\n");
  EXPECT_EQ(quotedPrintable("1=2 \n\xC3\xBC"), "1=3D2=20\r\n=C3=BC\r\n");
  EXPECT_EQ(quotedPrintable(""), "");
  std::string all;
  for (int i = 0; i < 3000; ++i) {
    all += static_cast<char>(i * 7);
  }
  std::istringstream lines(quotedPrintable(all));
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 77U);  // with its CR
  }
}

TEST(MailText, NoValueBecomesAHeaderOrTheEndOfTheMail) {
  MailMessage message{.from = "a@example.org", .to = {"b@example.org"}};
  message.subject = "Down\r\nBcc: you@example.org\r\n\r\nbody";
  message.date = "now\r\nX-One: 1";
  message.messageId = "<1@a>\nX-Two: 2";
  message.headers = {{"X-Three", "3\r\nX-Four: 4\0"}};
  message.text = ".\r\n.\r\nQUIT\r\n..";
  message.attachment = MailPart{"a\"\r\nX-Five: 5.html", "text/html\r\nX-Six: 6", "<p>"};
  const std::string mail = wholeMail(message);
  for (const char* line : {"\nBcc:", "\nX-One", "\nX-Two", "\nX-Four", "\nX-Five", "\nX-Six", "\n.\r\n"}) {
    EXPECT_THAT(mail, Not(HasSubstr(line)));
  }
  EXPECT_THAT(mail, HasSubstr("\r\n..\r\n..\r\nQUIT\r\n...\r\n"));
}

TEST(MailText, WhateverTheValuesAreTheFormIsThatOfOneMail) {
  const std::string kPieces[] = {"\r",        "\n",
                                 "\r\n",      std::string(1, '\0'),
                                 ".",         "\r\n.\r\n",
                                 "Bcc: x@y",  ":",
                                 " ",         "=?utf-8?Q?a?=",
                                 "ü",         "\xFF",
                                 "a",         "<",
                                 ">",         "\"",
                                 "\\",        ",",
                                 "--=_mixed", "\r\n--=_alternative--",
                                 "=",         std::string(300, 'w')};
  FreshSeed chance;
  SCOPED_TRACE(chance.again());
  const auto any = [&] {
    std::string text;
    for (auto left = chance.below(12); left > 0; --left) {
      text += chance.oneOf(kPieces);
    }
    return text;
  };
  const std::vector<std::string> names{
      "Date: ", "From: ", "To: ", "Subject: ", "Message-ID: ", "X-Site: ", "MIME-Version: ", "Content-", " "};
  for (int i = 0; i < 3000; ++i) {
    MailMessage message{.from = any() + "<a@example.org>",
                        .to = {any() + " <b@example.org>", "c@example.org"},
                        .subject = any(),
                        .text = any(),
                        .html = any(),
                        .date = any(),
                        .messageId = any(),
                        .headers = {{"X-Site", any()}}};
    message.attachment = MailPart{any(), any(), any()};
    const std::string mail = wholeMail(message);
    bool inHeader = true;
    int ends = 0;
    for (std::size_t at = 0; at < mail.size();) {
      const auto end = mail.find("\r\n", at);
      ASSERT_NE(end, std::string::npos);
      const std::string line = mail.substr(at, end - at);
      at = end + 2;
      ASSERT_EQ(line.find_first_of(std::string("\r\n\0", 3)), std::string::npos) << line;
      ASSERT_LE(line.size(), 998U);
      ASSERT_NE(line, ".");
      inHeader = inHeader && !line.empty();
      ASSERT_TRUE(!inHeader || std::ranges::any_of(names, [&](const auto& name) { return line.starts_with(name); }))
          << line;
      ends += line == "--=_mixed--" || line == "--=_alternative--" ? 1 : 0;
    }
    ASSERT_LE(ends, 2);
  }
}

TEST(MailText, HeadersThatAreNotTheWritersAreRefused) {
  MailMessage message{.from = "a@example.org", .to = {"b@example.org"}};
  for (const char* name : {"", "From", "bcc", "X Y", "X:", "Content-Type", "MIME-Version", "X\r\nY"}) {
    message.headers = {{name, "x"}};
    EXPECT_THAT(refusalOf({.host = "mail.example"}, message), StartsWith("The header \"")) << name;
  }
  message.headers = {{"X-Site", "x"}};
  EXPECT_EQ(refusalOf({.host = "mail.example"}, message), "");
}

class RealMail : public ::testing::Test {
 protected:
  /// What a reader made of the mail that a server has taken.
  nlohmann::json sent(const std::vector<std::string>& options = {}) {
    const RealMailServer server(options);
    if (!server.available()) {
      return {};
    }
    const std::string words = probe_.send(server.port());
    EXPECT_TRUE(probe_.delivered()) << words;
    envelope_ = server.envelope();
    return probe_.delivered() ? nlohmann::json::parse(server.read()) : nlohmann::json();
  }

  MailProbe probe_;
  std::string envelope_;
};

#define SKIP_WITHOUT(read) \
  if ((read).is_null())    \
  GTEST_SKIP() << "aiosmtpd is not installed, or took no mail"

TEST_F(RealMail, IsReadAsItWasWritten) {
  std::string longText;
  for (int i = 0; i < 5; ++i) {
    longText += "Zeile " + std::to_string(i) +
                ": größer = besser, ein sehr langer Satz, der kein Ende nimmt, wird umbrochen. \n";
  }
  probe_.message = {
      .from = "Tarnwick, Wächter <watch@example.org>",
      .to = {"me@example.org", "Jürgen \"J\" Müller <you@example.org>"},
      .subject = "Die Seite „Über uns“ antwortet nicht mehr, und das ist ein Betreff, der in keine Zeile passt: äöüß",
      .text = longText + ".\n..\nFrom me\n",
      .html = "<p>Gr\u00F6\u00DFe</p>\n.\n",
      .date = "Sun, 22 Nov 2026 22:15:24 +0000",
      .messageId = "<1.2@example.org>",
      .headers = {{"X-Site", "7 – Übersicht"}, {"Auto-Submitted", "auto-generated"}},
      .attachment = MailPart{"Seite 7 – größer.html", "text/html", std::string("\0\1\xFF\r\n.\r\n", 8)},
  };
  const nlohmann::json read = sent();
  SKIP_WITHOUT(read);
  EXPECT_EQ(read["defects"], nlohmann::json::array());
  const auto& headers = read["headers"];
  EXPECT_EQ(headers["Subject"], probe_.message.subject);
  EXPECT_EQ(headers["From"], "\"Tarnwick, Wächter\" <watch@example.org>");
  EXPECT_EQ(headers["To"], "me@example.org, \"Jürgen \\\"J\\\" Müller\" <you@example.org>");
  EXPECT_EQ(headers["Date"], probe_.message.date);
  EXPECT_EQ(headers["Message-ID"], probe_.message.messageId);
  EXPECT_EQ(headers["X-Site"], "7 – Übersicht");
  EXPECT_EQ(headers["Auto-Submitted"], "auto-generated");
  EXPECT_EQ(headers["MIME-Version"], "1.0");
  EXPECT_EQ(read["text"], probe_.message.text);
  EXPECT_EQ(read["html"], probe_.message.html);
  EXPECT_EQ(read["files"],
            nlohmann::json::parse(R"([["Seite 7 – größer.html", "text/html", "\u0000\u0001ÿ\r\n.\r\n"]])"));
  EXPECT_EQ(envelope_, "watch@example.org\nme@example.org\nyou@example.org\n");
}

TEST_F(RealMail, OfATextAloneIsATextAlone) {
  const nlohmann::json read = sent();
  SKIP_WITHOUT(read);
  EXPECT_EQ(read["headers"]["Content-Type"], "text/plain; charset=\"utf-8\"");
  EXPECT_EQ(read["text"], "The page is gone.\n");
}

TEST_F(RealMail, IsSecuredAndLoggedInTo) {
  const TestCertificates certificates;
  if (!certificates.problem().empty()) {
    GTEST_SKIP() << certificates.problem();
  }
  probe_.server.caFile = certificates.authorityFile();
  probe_.server.user = "me@example.org";
  probe_.server.secret = "ein gröẞeres Geheimnis";
  const TlsIdentity own = certificates.good();
  const std::vector<std::string> login{"--certificate", own.certificateFile, own.keyFile,
                                       "--login",       probe_.server.user,  probe_.server.secret};
  for (const auto& [option, safety] : {std::pair{"--starttls", MailSafety::startTls}, {"--tls", MailSafety::tls}}) {
    for (const MailLogin kind : {MailLogin::automatic, MailLogin::plain, MailLogin::login}) {
      probe_.server.safety = safety;
      probe_.server.login = kind;
      std::vector<std::string> options = login;
      options.emplace_back(option);
      const nlohmann::json read = sent(options);
      SKIP_WITHOUT(read);
      EXPECT_EQ(read["text"], "The page is gone.\n");
    }
  }
}

TEST_F(RealMail, ARefusedLogInIsTold) {
  const TestCertificates certificates;
  const TlsIdentity own = certificates.good();
  const RealMailServer server(
      {"--certificate", own.certificateFile, own.keyFile, "--starttls", "--login", "me", "right"});
  if (!server.available()) {
    GTEST_SKIP() << "aiosmtpd is not installed";
  }
  probe_.server.caFile = certificates.authorityFile();
  probe_.server.safety = MailSafety::startTls;
  EXPECT_EQ(probe_.send(server.port()), "MAIL FROM: 530 5.7.0 Authentication required");
  probe_.server.user = "me";
  probe_.server.secret = "wrong";
  EXPECT_EQ(probe_.send(server.port()), "AUTH: 535 5.7.8 Authentication credentials invalid");
}

}  // namespace
}  // namespace tarnwick::testing
