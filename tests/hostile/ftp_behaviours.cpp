// SPDX-License-Identifier: MIT
// FTP servers that do not keep to their side of the talk.
#include "behaviours.h"

namespace tarnwick::testing {
namespace {

constexpr const char* kFile = "a file\r\nof two lines";

// Answers as a good server would, up to and without the passive mode; then `rest` takes the command that came.
std::function<void(HostileVisit&)> talks(std::function<void(HostileVisit&, const std::string&)> rest) {
  return [rest = std::move(rest)](HostileVisit& visit) {
    visit.send("220 ready\r\n");
    for (;;) {
      const std::string line = visit.readLine();
      const std::string verb = line.substr(0, line.find(' '));
      if (verb == "USER") {
        visit.send("331 password, please\r\n");
      } else if (verb == "PASS") {
        visit.send("230 welcome\r\n");
      } else if (verb == "PWD") {
        visit.send("257 \"/\"\r\n");
      } else if (verb == "TYPE") {
        visit.send("200 done\r\n");
      } else if (verb == "QUIT") {
        visit.send("221 bye\r\n");
        return;
      } else {
        rest(visit, verb);
      }
    }
  };
}

// Gives the file by `give` over a connection of its own and ends with `last`.
std::function<void(HostileVisit&)> gives(std::function<void(const SideDoor&)> give,
                                         std::function<void(HostileVisit&)> last) {
  return [give = std::move(give), last = std::move(last)](HostileVisit& visit) {
    const SideDoor side;
    talks([&](HostileVisit& same, const std::string& verb) {
      if (verb == "EPSV") {
        same.send("229 (|||" + std::to_string(side.port()) + "|)\r\n");
      } else if (verb == "RETR") {
        same.send("150 here it comes\r\n");
        give(side);
        last(same);
      } else {
        same.send("502 unknown\r\n");
      }
    })(visit);
  };
}

std::function<void(HostileVisit&)> gives(std::function<void(const SideDoor&)> give, const std::string& last) {
  return gives(std::move(give), [last](HostileVisit& visit) { visit.send(last); });
}

// Answers the request for the file with `last`, and never with the file.
std::function<void(HostileVisit&)> promises(const std::string& last) {
  return [last](HostileVisit& visit) {
    const SideDoor side;
    talks([&](HostileVisit& same, const std::string& verb) {
      same.send(verb == "EPSV"   ? "229 (|||" + std::to_string(side.port()) + "|)\r\n"
                : verb == "RETR" ? last
                                 : "502 unknown\r\n");
    })(visit);
  };
}

// Sends who asks for the passive mode elsewhere: `epsv` and `pasv` are its answers.
std::function<void(HostileVisit&)> pointsTo(const std::string& epsv, const std::string& pasv) {
  return talks([epsv, pasv](HostileVisit& visit, const std::string& verb) {
    visit.send(verb == "EPSV" ? epsv : verb == "PASV" ? pasv : "502 unknown\r\n");
  });
}

HostileBehaviour ftp(const std::string& name, HostileOutcome outcome, std::function<void(HostileVisit&)> serve) {
  return {.name = name, .outcome = std::move(outcome), .serve = std::move(serve), .scheme = "ftp", .path = "/page.txt"};
}

// Gives the file and then says `piece` for ever, which libcurl listens to without coming back.
HostileBehaviour neverDone(const std::string& name, const std::string& piece) {
  HostileBehaviour behaviour =
      ftp(name, fails(TransferFault::dropped, "The server {} did not confirm the end of the transfer."),
          gives([](const SideDoor& side) { side.give(kFile); },
                [piece](HostileVisit& visit) {
                  for (;;) {
                    visit.send(piece);
                    visit.pause(std::chrono::milliseconds{150});
                  }
                }));
  behaviour.timeoutSeconds = 20;
  behaviour.mostSeconds = 1;
  return behaviour;
}

}  // namespace

HostileBehaviours ftpBehaviours() {
  const auto timesOut = fails(TransferFault::timeOut, "The request took longer than 1 second.");
  const auto notFtp = fails(TransferFault::other, "The server {} did not answer in the language of FTP.");
  return {
      ftp("FtpFile", takes(kFile), gives([](const SideDoor& side) { side.give(kFile); }, "226 done\r\n")),
      ftp("FtpSaysNothing", timesOut, [](HostileVisit& visit) { visit.stay(); }),
      ftp("FtpIsTooBusy", fails(TransferFault::dropped, "The server {} is not available for now."),
          [](HostileVisit& visit) { visit.send("421 too many users\r\n"); }),
      ftp("FtpIsAWebServer", timesOut,
          [](HostileVisit& visit) {
            visit.send("HTTP/1.1 400 Bad Request\r\nContent-Length: 0\r\n\r\n");
            visit.stay();
          }),
      ftp("FtpEndlessBanner", fails(TransferFault::tooLarge, "The header of the answer is too large."),
          [](HostileVisit& visit) {
            for (;;) {
              visit.send("220-welcome to a very long story\r\n");
            }
          }),
      ftp("FtpEndlessLine", fails(TransferFault::tooLarge, "The header of the answer is too large."),
          [](HostileVisit& visit) {
            for (;;) {
              visit.send(std::string(10'000, '2'));
            }
          }),
      ftp("FtpClosesAtOnce", fails(TransferFault::dropped, "The server {} closed the connection without an answer."),
          [](HostileVisit&) {}),
      ftp("FtpWantsMoreForEver", timesOut,
          [](HostileVisit& visit) {
            visit.send("220 ready\r\n");
            visit.readLine();
            visit.stay();
          }),
      {.name = "FtpPointsToAnotherHost",
       .outcome = takes(kFile),
       .serve =
           [](HostileVisit& visit) {
             const SideDoor side;
             const std::string port = std::to_string(side.port() / 256) + "," + std::to_string(side.port() % 256);
             talks([&](HostileVisit& same, const std::string& verb) {
               if (verb == "PASV") {
                 same.send("227 Entering (127,0,0,2," + port + ")\r\n");
               } else if (verb == "RETR") {
                 same.send("150 here it comes\r\n");
                 side.give(kFile);
                 same.send("226 done\r\n");
               } else {
                 same.send("502 unknown\r\n");
               }
             })(visit);
           },
       .scheme = "ftp",
       .path = "/page.txt"},
      ftp("FtpPointsToNowhere",
          fails(TransferFault::refused, "The server {} gives its files out at a port that cannot be reached."),
          pointsTo("229 (|||1|)\r\n", "227 (127,0,0,1,0,1)\r\n")),
      ftp("FtpPointsToGarbage", notFtp, pointsTo("229 (|||x|)\r\n", "227 somewhere\r\n")),
      ftp("FtpHasNoPassiveMode", notFtp, pointsTo("502 no\r\n", "502 no\r\n")),
      ftp("FtpFileIsMissing", fails(TransferFault::other, "The server {} does not give the file out."),
          promises("550 no such file\r\n")),
      ftp("FtpFileNeverComes", timesOut, promises("150 here it comes\r\n")),
      ftp("FtpBreaksOffTheFile",
          fails(TransferFault::dropped, "The server {} broke the connection off during its answer."),
          gives([](const SideDoor& side) { side.give("a fi"); }, "426 broken\r\n")),
      neverDone("FtpDripsItsConfirmation", "226-"),
      neverDone("FtpNeverEndsItsConfirmation", "226-still at it\r\n"),
      ftp("FtpResetsTheFile",
          fails(TransferFault::dropped, "The server {} broke the connection off during its answer."),
          gives([](const SideDoor& side) { side.giveAndReset("a fi"); }, "426 broken\r\n")),
      ftp("FtpEndsInTheMiddle",
          fails(TransferFault::dropped, "The server {} broke the connection off during its answer."),
          [](HostileVisit& visit) {
            const SideDoor side;
            bool over = false;
            talks([&](HostileVisit& same, const std::string& verb) {
              if (verb == "EPSV") {
                same.send("229 (|||" + std::to_string(side.port()) + "|)\r\n");
              } else if (verb == "RETR") {
                same.send("150 here it comes\r\n");
                side.give("a fi");
                over = true;
                throw VisitorGone();
              } else {
                same.send("502 unknown\r\n");
              }
            })(visit);
          }),
  };
}

}  // namespace tarnwick::testing
