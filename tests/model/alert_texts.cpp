// SPDX-License-Identifier: MIT
// What an alert says: which alerts a failure raises, the mail to the byte, the command line with its arguments.

#include <algorithm>

#include "model/model.h"

namespace tarnwick::model {
namespace {

constexpr char kValueQuote = '\x01';  // stands for a quote that came from a value until the line has been split
constexpr auto kMailSubject = "A WEB SITE ERROR HAS OCCURED - message from tarnwick";

// What has just been put in is not searched again for the same token.
void replaceAll(std::string& text, const std::string& token, const std::string& value) {
  for (auto at = text.find(token); at != std::string::npos; at = text.find(token, at + value.size())) {
    text.replace(at, token.size(), value);
  }
}

// A stored text must not be able to add a line to a mail, neither to its commands nor to its header.
std::string oneLine(std::string text) {
  std::erase_if(text, [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
  return text;
}

// Splits at blanks outside of quotes. Only the quotes of the template count; those of a value are plain characters.
std::vector<std::string> splitLine(const std::string& line) {
  std::vector<std::string> arguments;
  bool quoted = false, open = false;
  for (const char c : line) {
    const bool blank = c == ' ' || c == '\t' || c == '\n' || c == '\r';
    if (blank && !quoted) {
      open = false;
      continue;
    }
    if (!open)
      arguments.emplace_back();
    open = true;
    if (c == '"') {
      quoted = !quoted;
    } else {
      arguments.back() += c == kValueQuote ? '"' : c;
    }
  }
  return arguments;
}

// Marks the quotes of the values, so that the split can tell them from those of the template.
Facts withMarkedQuotes(Facts facts) {
  for (std::string* value : {&facts.date, &facts.url, &facts.email, &facts.hostName, &facts.hostAddress}) {
    std::replace(value->begin(), value->end(), '"', kValueQuote);
  }
  return facts;
}

}  // namespace

// One after the other over the whole text: what a value brings in is open to the values that follow it.
std::string substitute(std::string text, const Facts& facts) {
  replaceAll(text, "~date~", facts.date);
  replaceAll(text, "~url~", facts.url);
  replaceAll(text, "~idsite~", facts.idSite);
  replaceAll(text, "~email~", facts.email);
  replaceAll(text, "~localhostname~", facts.hostName);
  replaceAll(text, "~localip~", facts.hostAddress);
  return text;
}

// The mail goes from the operator's own address to the one address of the site.
Mail mailFor(const std::string& server, const std::string& sender, Facts facts, const std::string& mailTemplate) {
  facts.url = oneLine(facts.url);
  facts.email = oneLine(facts.email);
  return {server, facts.email, oneLine(sender), kMailSubject, substitute(mailTemplate, facts)};
}

// All five go out, each after the reply to the one before, even when the server has refused one.
std::vector<std::string> mailCommands(const Mail& mail, const std::string& website) {
  const std::string header = "Subject:" + mail.subject + "\r\nTO:<" + mail.recipient +
                             ">\r\nTarnapplication: Tarnwick\r\nWebsite: " + website + "\r\n\r\n";
  return {"MAIL FROM:<" + mail.sender + ">\r\n", "RCPT TO:<" + mail.recipient + ">\r\n", "DATA\r\n",
          header + mail.body + "\r\n\r\n.\r\n", "QUIT\r\n"};
}

// The named facts first, then their short numbers, and only then the split: a blank in a value splits unless the
// template has put it into quotes.
Program programFor(const std::string& commandTemplate, const Facts& facts) {
  const Facts marked = withMarkedQuotes(facts);
  std::string line = substitute(commandTemplate, marked);
  replaceAll(line, "~1~", marked.date);
  replaceAll(line, "~2~", marked.url);
  replaceAll(line, "~3~", marked.idSite);
  replaceAll(line, "~4~", marked.email);
  replaceAll(line, "~5~", marked.hostName);
  replaceAll(line, "~6~", marked.hostAddress);
  Program program{trimmed(line), splitLine(line)};
  std::replace(program.line.begin(), program.line.end(), kValueQuote, '"');
  return program;
}

// A mail needs the switch of the program and the one of the site; sound and program ask only for their own.
Switches switchesFor(const Settings& settings, const Site& site) {
  return {isYes(settings.sendMail) && isYes(site.alertEmail), isYes(settings.playSound), isYes(settings.startProgram)};
}

// Always the mail, then the sound, then the program.
std::vector<Effect> alertsFor(const Switches& on, const Settings& texts, const Facts& facts, const Text& mailTemplate) {
  std::vector<Effect> alerts;
  if (on.mail) {
    alerts.push_back(mailFor(texts.smtp.value_or(""), texts.email.value_or(""), facts, mailTemplate.value_or("")));
  }
  if (on.sound)
    alerts.push_back(Sound{texts.audio.value_or("")});
  if (on.program)
    alerts.push_back(programFor(texts.program.value_or(""), facts));
  return alerts;
}

}  // namespace tarnwick::model
