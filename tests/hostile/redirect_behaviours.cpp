// SPDX-License-Identifier: MIT
// Redirects: in circles, to nowhere, to what is not fetched, and to other hosts that ask for the password.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

// A redirect to what stands behind "Location: " when it is sent.
std::function<void(HostileVisit&)> sendsTo(const std::string& location, const std::string& status = "302 Found") {
  return [location, status](HostileVisit& visit) {
    visit.readRequest();
    visit.send("HTTP/1.1 " + status + "\r\nLocation: " + location + "\r\nContent-Length: 5\r\n\r\nmoved");
  };
}

std::function<void(HostileVisit&)> sendsToDoor(const std::string& name, const std::string& tail = {}) {
  return [name, tail](HostileVisit& visit) { sendsTo(visit.urlOf(name) + tail)(visit); };
}

HostileBehaviour toScheme(const std::string& name, const std::string& scheme, const std::string& rest) {
  return {.name = name,
          .outcome = fails(TransferFault::badUrl,
                           "Addresses of the kind " + scheme + " are not fetched, only http, https, ftp and ftps."),
          .serve = sendsTo(scheme + ":" + rest)};
}

// Leads the site's credentials to a host that asks for them in its own way.
HostileBehaviour leadsAstray(const std::string& name, const std::string& thief, const std::string& page) {
  return {.name = name,
          .outcome = takes(page),
          .serve = sendsToDoor(thief),
          .userName = "me",
          .password = "secret",
          .traces = {{.name = thief, .text = "GET / HTTP/1.1", .expected = true},
                     {.name = thief, .text = "Authorization"},
                     {.name = thief, .text = "secret"}}};
}

// Asks for the password, and then sends the visitor away with it.
std::function<void(HostileVisit&)> asksAndSendsTo(const std::string& thief) {
  return [thief](HostileVisit& visit) {
    if (visit.readRequest().find("Authorization: Basic") == std::string::npos) {
      visit.send(
          "HTTP/1.1 401 Who\r\nWWW-Authenticate: Basic realm=\"x\"\r\nConnection: close\r\n"
          "Content-Length: 0\r\n\r\n");
      return;
    }
    visit.send("HTTP/1.1 302 Found\r\nLocation: " + visit.urlOf(thief) + "\r\nContent-Length: 0\r\n\r\n");
  };
}

std::function<void(HostileVisit&)> countsUpTo(int last) {
  return [last](HostileVisit& visit) {
    const std::string request = visit.readRequest();
    const int step = std::stoi("0" + request.substr(5, request.find(' ', 5) - 5));
    if (step == last) {
      visit.sendPage(kSteadyPage);
    } else {
      visit.send("HTTP/1.1 302 Found\r\nLocation: /" + std::to_string(step + 1) + "\r\nContent-Length: 0\r\n\r\n");
    }
  };
}

}  // namespace

HostileBehaviours redirectBehaviours() {
  const auto nowhere = fails(TransferFault::badUrl, "The server {} redirected to an address that is not valid.");
  const auto away = fails(TransferFault::badUrl,
                          "The server {} redirected to an address of a kind that is not fetched; only http, https, "
                          "ftp and ftps are.");
  const auto tooMany = fails(TransferFault::tooManyRedirects, "The server redirected more than 20 times.");
  return {
      {.name = "RedirectToItself", .outcome = tooMany, .serve = sendsToDoor("RedirectToItself"), .timeoutSeconds = 10},
      {.name = "RedirectThereAndBack", .outcome = tooMany, .serve = sendsToDoor("RedirectBack"), .timeoutSeconds = 10},
      {.name = "RedirectBack", .outcome = tooMany, .serve = sendsToDoor("RedirectThereAndBack"), .timeoutSeconds = 10},
      {.name = "TwentyRedirects", .outcome = takes(kSteadyPage), .serve = countsUpTo(20), .timeoutSeconds = 10},
      {.name = "TwentyOneRedirects", .outcome = tooMany, .serve = countsUpTo(21), .timeoutSeconds = 10},
      {.name = "RedirectsThatGrow",
       .outcome = fails(TransferFault::tooLarge, "The header of the answer is too large."),
       .serve =
           [](HostileVisit& visit) {
             const std::string request = visit.readRequest();
             const std::string target = request.substr(4, request.find(' ', 4) - 4);
             visit.send("HTTP/1.1 302 Found\r\nLocation: " + target + std::string(2000, 'a') +
                        "\r\nContent-Length: 0\r\n\r\n");
           },
       .timeoutSeconds = 10},
      {.name = "RedirectOf100Kilobytes",
       .outcome = takes(kSteadyPage),
       .serve = sendsToDoor("Steady", std::string(90'000, 'a'))},
      {.name = "SlowRedirects",
       .outcome = fails(TransferFault::timeOut, "The request took longer than 1 second."),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.pause(std::chrono::milliseconds{300});
             visit.send("HTTP/1.1 302 Found\r\nLocation: /\r\nContent-Length: 0\r\n\r\n");
           }},
      {.name = "RedirectWithoutLocation",
       .outcome = takes("moved"),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nContent-Length: 5\r\n\r\nmoved");
           }},
      {.name = "RedirectToAnEmptyLocation", .outcome = takes("moved"), .serve = sendsTo("")},
      {.name = "TwoLocations",
       .outcome = takes(kSteadyPage),
       .serve =
           [](HostileVisit& visit) {
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nLocation: " + visit.urlOf("Steady") +
                        "\r\nLocation: http://127.0.0.2:1/\r\nContent-Length: 0\r\n\r\n");
           }},
      {.name = "RedirectToNoAddress", .outcome = nowhere, .serve = sendsTo("http://[::1")},
      {.name = "RedirectToAPortThatIsNone", .outcome = nowhere, .serve = sendsTo("http://127.0.0.1:99999/")},
      {.name = "RedirectToNoHost", .outcome = nowhere, .serve = sendsTo("http://")},
      toScheme("RedirectToAFile", "file", "///etc/hostname"),
      toScheme("RedirectToGopher", "gopher", "//127.0.0.1:1/_x"),
      toScheme("RedirectToADictionary", "dict", "//127.0.0.1:1/d:x"),
      toScheme("RedirectToAShare", "smb", "//127.0.0.1/share/x"),
      toScheme("RedirectToALdapServer", "ldap", "//127.0.0.1:1/"),
      toScheme("RedirectToAMailServer", "smtp", "//127.0.0.1:1/"),
      toScheme("RedirectToTelnet", "telnet", "//127.0.0.1:1/"),
      {.name = "RedirectToAScript", .outcome = away, .serve = sendsTo("javascript://alert(1)")},
      {.name = "RedirectToAClosedPort",
       .outcome = fails(TransferFault::refused, "The connection to {ClosedPort} was refused."),
       .serve = sendsToDoor("ClosedPort")},
      {.name = "RedirectToSilence",
       .outcome = fails(TransferFault::timeOut, "The request took longer than 1 second."),
       .serve = sendsToDoor("SaysNothing")},
      {.name = "RedirectWithCredentialsInIt",
       .outcome = takes(kSteadyPage),
       .serve =
           [](HostileVisit& visit) {
             std::string url = visit.urlOf("Steady");
             visit.readRequest();
             visit.send("HTTP/1.1 302 Found\r\nLocation: " + url.insert(7, "you:theirs@") +
                        "\r\nContent-Length: 0\r\n\r\n");
           },
       .userName = "me",
       .password = "secret",
       .traces = {{.name = "Steady", .text = "secret"}}},
      {.name = "RedirectWithBlanks", .outcome = takes(kSteadyPage), .serve = sendsToDoor("Steady", "a b c?d e")},
      {.name = "RedirectWithATab", .outcome = nowhere, .serve = sendsToDoor("Steady", "a\tb")},
      {.name = "RedirectToAMailbox", .outcome = away, .serve = sendsTo("mailto:me@example.test")},
      {.name = "RedirectToData", .outcome = away, .serve = sendsTo("data:text/plain,hello")},
      {.name = "RedirectWithBackslashes",
       .outcome = takes(kSteadyPage),
       .serve = sendsToDoor("Steady", "..\\..\\windows\\win.ini")},
      {.name = "RedirectAboveTheRoot", .outcome = takes(kSteadyPage), .serve = sendsToDoor("Steady", "../../../../x")},
      {.name = "RedirectWithRawBytes",
       .outcome = takes(kSteadyPage),
       .serve = sendsToDoor("Steady", "\xff\xc3\x28\xe2")},
      {.name = "RedirectToItsSchemeOnly",
       .outcome = takes(kSteadyPage),
       .serve = [](HostileVisit& visit) { sendsTo(visit.urlOf("Steady").substr(5))(visit); }},
      {.name = "RedirectWithAFragment", .outcome = takes(kSteadyPage), .serve = sendsToDoor("Steady", "#part")},
      {.name = "RedirectOfAPost",
       .outcome = takes(kSteadyPage),
       .serve = [](HostileVisit& visit) { sendsTo(visit.urlOf("Steady"), "307 Again")(visit); },
       .method = "post"},
      {.name = "RedirectStatusWithoutMeaning",
       .outcome = takes(kSteadyPage),
       .serve = [](HostileVisit& visit) { sendsTo(visit.urlOf("Steady"), "306 Unused")(visit); }},
      {.name = "NewPageInTheMiddleOfNothing", .outcome = takes("moved"), .serve = sendsTo("/elsewhere", "201 Created")},
      leadsAstray("LeadsToABasicThief", "BasicThief", "who are you?"),
      leadsAstray("LeadsToADigestThief", "DigestThief", "who are you?"),
      leadsAstray("LeadsToANtlmThief", "NtlmThief", "who are you?"),
      {.name = "LeadsToAThiefAfterAsking",
       .outcome = takes("who are you?"),
       .serve = asksAndSendsTo("BasicThief"),
       .userName = "me",
       .password = "secret",
       .traces = {{.name = "LeadsToAThiefAfterAsking", .text = "Authorization: Basic", .expected = true},
                  {.name = "BasicThief", .text = "Authorization"}}},
      {.name = "LeadsToAThiefAtAnotherPort",
       .outcome = takes("who are you?"),
       .serve = asksAndSendsTo("NearThief"),
       .userName = "me",
       .password = "secret",
       .traces = {{.name = "NearThief", .text = "Authorization"}}},
      {.name = "RefererIsKeptToItself",
       .outcome = takes(kSteadyPage),
       .serve = sendsToDoor("Listener"),
       .path = "/?token=private",
       .traces = {{.name = "Listener", .text = "private"}}},
  };
}

}  // namespace tarnwick::testing
