// SPDX-License-Identifier: MIT
#include "alerts/event_texts.h"

#include <algorithm>
#include <array>

namespace tarnwick {
namespace {

// With the line ends of mails.
constexpr std::string_view kRecovered =
    "A web site that Tarnwick watches for you is up again.\r\n"
    "\r\n"
    "  Address:        ~url~\r\n"
    "  Site number:    ~idsite~\r\n"
    "  Up again at:    ~date~\r\n"
    "  Down since:     ~downSince~\r\n"
    "  Down for:       ~downFor~\r\n"
    "  Failed checks:  ~checks~\r\n"
    "  First error:    ~firstError~\r\n"
    "\r\n"
    "There is nothing left to do about it.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "To change this text, edit the file recovered.txt in Tarnwick's folder.\r\n";

constexpr std::string_view kUnsteady =
    "A web site that Tarnwick watches for you goes down and comes up again and again.\r\n"
    "\r\n"
    "  Address:        ~url~\r\n"
    "  Site number:    ~idsite~\r\n"
    "  Unsteady at:    ~date~\r\n"
    "  First error:    ~firstError~\r\n"
    "\r\n"
    "You are told again when it has held still for a while: that it is down, if it\r\n"
    "is, and that it is up, if you want to be told that.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "For another text, write a file unsteady.txt into Tarnwick's folder.\r\n";

constexpr std::string_view kSlow =
    "A web site that Tarnwick watches for you has become slow.\r\n"
    "\r\n"
    "  Address:        ~url~\r\n"
    "  Site number:    ~idsite~\r\n"
    "  Slow at:        ~date~\r\n"
    "\r\n"
    "Its page came as it should, and later than you allow. You are told again when\r\n"
    "it has been in time meanwhile.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "For another text, write a file slow.txt into Tarnwick's folder.\r\n";

constexpr std::string_view kCertificate =
    "The certificate of a web site that Tarnwick watches for you ends soon.\r\n"
    "\r\n"
    "  Address:        ~url~\r\n"
    "  Site number:    ~idsite~\r\n"
    "  Certificate:    ~certificate~\r\n"
    "\r\n"
    "The site is up. From that moment on nobody can reach it safely, unless the\r\n"
    "certificate is renewed before.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "For another text, write a file certificate.txt into Tarnwick's folder.\r\n";

constexpr std::string_view kIssuer =
    "The certificate of a web site that Tarnwick watches for you is from another\r\n"
    "authority than before.\r\n"
    "\r\n"
    "  Address:        ~url~\r\n"
    "  Site number:    ~idsite~\r\n"
    "  Certificate:    ~certificate~\r\n"
    "\r\n"
    "The certificate holds, and the site is up. If nobody has changed the authority\r\n"
    "on purpose, somebody else may answer in its place.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "For another text, write a file issuer.txt into Tarnwick's folder.\r\n";

constexpr std::string_view kReturn =
    "This machine was offline from ~downSince~ to ~date~ (~downFor~).\r\n"
    "\r\n"
    "Nothing was counted as down meanwhile. All sites are checked again now.\r\n"
    "\r\n"
    "--\r\n"
    "Sent to ~email~ by Tarnwick on ~localhostname~ (~localip~).\r\n"
    "For another text, write a file online.txt into Tarnwick's folder.\r\n";

// The spelling is part of it: people's mail filters look for this text.
constexpr std::string_view kErrorSubject = "A WEB SITE ERROR HAS OCCURED - message from tarnwick";
constexpr std::string_view kErrorFile = "email.txt";

/// In the order of the kinds. Without its file an alert of an outage has no text, as it always was.
constexpr std::array<EventTexts, 7> kTexts{{
    {"down", kErrorSubject, kErrorFile, ""},
    {"still down", "A WEB SITE IS STILL DOWN - message from tarnwick", kErrorFile, ""},
    {"up", "A WEB SITE IS UP AGAIN - message from tarnwick", "recovered.txt", kRecovered},
    {"unsteady", "A WEB SITE IS UNSTEADY - message from tarnwick", "unsteady.txt", kUnsteady},
    {"slow", "A WEB SITE IS SLOW - message from tarnwick", "slow.txt", kSlow},
    {"certificate", "A CERTIFICATE ENDS SOON - message from tarnwick", "certificate.txt", kCertificate},
    {"issuer", "A CERTIFICATE IS FROM ANOTHER AUTHORITY - message from tarnwick", "issuer.txt", kIssuer},
}};
constexpr EventTexts kReturnTexts{"online", "THIS MACHINE WAS OFFLINE - message from tarnwick", "online.txt", kReturn};

}  // namespace

const EventTexts& textsOf(AlertKind kind) { return kTexts[static_cast<std::size_t>(kind)]; }

const EventTexts& textsOfReturn() { return kReturnTexts; }

AlertEvent eventOf(std::string_view word, const OutageFacts& outage) {
  return {std::string(word),
          outage.since ? dateTimeText(*outage.since) : std::string(),
          outage.since ? spanText(outage.now - *outage.since) : std::string(),
          std::to_string(outage.checks),
          outage.firstError,
          outage.certificate};
}

AlertEvent eventOf(AlertKind kind, const OutageFacts& outage) {
  return eventOf(textsOf(kind).word, kind == AlertKind::slow || isOfCertificate(kind)
                                         ? OutageFacts{.now = outage.now, .certificate = outage.certificate}
                                         : outage);
}

std::string spanText(std::chrono::seconds span) {
  struct Unit {
    std::chrono::seconds length;
    const char* name;
  };
  static constexpr std::array<Unit, 4> kUnits{{{std::chrono::days(1), " d"},
                                               {std::chrono::hours(1), " h"},
                                               {std::chrono::minutes(1), " min"},
                                               {std::chrono::seconds(1), " s"}}};
  span = std::max(span, std::chrono::seconds(0));  // the clock may have been set back
  const Unit* const unit =
      std::ranges::find_if(kUnits.begin(), kUnits.end() - 1, [&](const Unit& known) { return span >= known.length; });
  std::string text = std::to_string(span / unit->length) + unit->name;
  if (unit + 1 != kUnits.end() && span % unit->length >= unit[1].length) {
    text += " " + std::to_string(span % unit->length / unit[1].length) + unit[1].name;
  }
  return text;
}

}  // namespace tarnwick
