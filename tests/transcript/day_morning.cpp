// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>

#include "transcript/day.h"

namespace tarnwick::testing {
namespace {

using std::chrono::minutes;
using std::chrono::seconds;

struct Site {
  std::string url;
  std::string method = "get";
  std::int16_t tInterval = 10;
  std::string email{};
  std::string userName{};
  std::string password{};
  bool active = true;
};

std::int16_t add(World& world, const Site& site) {
  const std::int16_t id = world.data().addSite();
  world.data().updateSites(id, site.url, site.method, site.active, site.tInterval, !site.email.empty(), site.email,
                           site.userName, site.password);
  return id;
}

void openTheServers(ScriptedWeb& web) {
  web.page("/steady", {.body = "<html>always the same</html>\n"});
  web.page("/news", {.body = "the news of the morning"});
  web.page("/error", {.status = 500, .body = "the server has a fault, and says so in a page"});
  web.page("/login", {.headers = {{"Set-Cookie", "session=1"}}, .body = "welcome"});
  web.page("/private", [](const HttpRequest& request) {
    const bool known = request.header("Authorization") == "Basic YW5uYTpzJ2VjcmV0";
    return known ? HttpResponse{.body = "for anna alone"}
                 : HttpResponse{.status = 401,
                                .headers = {{"WWW-Authenticate", "Basic realm=\"day\""}},
                                .body = "credentials, please"};
  });
  web.page("/moved", HttpResponse::redirect(web.url("beta", "/landing?from=alpha")));
  web.page("/landing", {.body = "moved here"});
  web.page("/slow", {.body = "slow, but there"});
  web.page("/form", {.status = 303, .headers = {{"Location", "/thanks"}, {"Set-Cookie", "taken=yes"}}});
  web.page("/thanks", {.body = "thank you"});
  web.page("/binary", {.body = std::string("NUL \0 'quoted' \xff\xfe \xe2\x82\xac\r\n\ttab", 27),
                       .coding = HttpCoding::gzip,
                       .chunked = true});
  web.page("/head", {.body = "never seen"});
  web.page("/broken", {.drop = true});
  web.page("/cut", {.body = "a page that ends too ear", .missingBytes = 4});
  web.page("/search", {.body = "found"});
}

void addTheSites(World& world) {
  const ScriptedWeb& web = world.web;
  add(world, {.url = web.url("alpha", "/steady")});
  add(world, {.url = web.url("alpha", "/news"), .method = "GET", .tInterval = 5, .email = "news@example.org"});
  add(world, {.url = web.url("alpha", "/error")});
  const auto refused = add(world, {.url = "http://127.0.0.1:1/", .tInterval = 15, .email = "ops@example.org"});
  const auto login = add(world, {.url = web.url("beta", "/login"), .method = "post"});
  add(world, {.url = web.url("alpha", "/private"), .tInterval = 20, .userName = "anna", .password = "s'ecret"});
  add(world, {.url = web.url("alpha", "/moved"), .tInterval = 20, .userName = "anna", .password = "s'ecret"});
  add(world, {.url = web.url("alpha", "/idle"), .tInterval = 1, .active = false});
  add(world, {.url = web.url("beta", "/slow"), .tInterval = 7});
  const auto nothing = add(world, {.url = "", .tInterval = 30, .email = "a@example.org>\r\nRCPT TO:<b@example.org"});
  add(world, {.url = "gopher://127.0.0.1/", .tInterval = 45});
  const auto form = add(world, {.url = web.url("alpha", "/form"), .method = "POST", .tInterval = 30});
  add(world, {.url = web.url("beta", "/binary")});
  add(world, {.url = web.url("beta", "/head"), .method = "head", .tInterval = 40});
  const auto broken = add(world, {.url = web.url("beta", "/broken"), .tInterval = 40});
  const auto cut = add(world, {.url = web.url("beta", "/cut"), .tInterval = 40});
  add(world, {.url = web.url("alpha", "/search?q='a%20b'&c=\"~url~\"&d=$(x);~1~")});
  for (const std::int16_t id : {refused, nothing, broken, cut}) {
    world.data().updateContentCompare(id, "what it's expected to be");
  }
  world.data().addPostVars(login, "user name", "J\xc3\xb6rg O'Neil & S\xc3\xb6hne");
  world.data().addPostVars(login, "", "\xe2\x82\xac 5 = \xf0\x9f\x8c\x8d");
  world.data().addPostVars(form, "a", "1");
  world.data().addPostVars(form, "b", "");
  world.data().addPostVars(form, "b", "3");
}

void changeTheVariables(World& world, std::int16_t form) {
  m& data = world.data();
  data.getPostVars(form);
  data.updatePostVars(data.getIdPostVars(form, "b", "3"), "c", "it's 3");
  data.deletePostVars(data.getIdPostVars(form, "a", "1"));
  data.deletePostVars(data.getIdPostVars(form, "none", "none"));
}

}  // namespace

void settingsAndSites(World& world) {
  world.scene("A program folder as it is found");
  world.folder.execute(
      "insert into postVars (idPostVars, idSite, pname, pvalue) values (5, 12, 'left', 'over'), (9, 30, 'of no', Null);"
      "insert into methods (idSite, method) values (3, 'POST')");
  std::ofstream(world.folder.file("email.txt"), std::ios::binary)
      << "Site ~idsite~, ~url~, failed at ~date~.\r\n~email~ hears of it from ~localhostname~ (~localip~).\r\n"
         "..dots and 100% ~unknown~ ~1~\r\n";
  std::ofstream(world.folder.file("reports")) << "in the place of the folder";
  openTheServers(world.web);
  world.start();

  world.scene("Settings");
  world.attempt("stores settings", [&] {
    world.data().storeSettings({{"email", std::string("tarnwick@example.org")},
                                {"smtp", std::string("mail.example")},
                                {"audio", std::string("/sounds/it's down.wav")},
                                {"program", std::string("/usr/bin/notify --site ~idsite~ \"~url~\" '~4~' ~date~")},
                                {"timeout", std::string("30")},
                                {"clogs", true},
                                {"creports", true},
                                {"cemail", true},
                                {"caudio", true},
                                {"cprogram", true}});
  });
  world.attempt("stores settings that are refused", [&] {
    world.data().storeSettings({{"email", std::string("lost@example.org")}, {"timeout", std::string("soon")}});
  });
  world.attempt("asks for a setting that there is not", [&] { world.data().getControl("nothing"); });

  world.scene("Sites");
  world.attempt("adds them", [&] { addTheSites(world); });
  world.attempt("changes form variables", [&] { changeTheVariables(world, 12); });
  world.attempt("closes the editor", [&] { world.program().run().init(); });
}

void firstPasses(World& world) {
  world.scene("Start: the first pages become the baselines");
  world.web.answerFirst({"/login", "/slow", "/private", "/news"});
  world.web.beforeAnswer("/login", [&] { world.pass(seconds(2)); });
  world.attempt("starts the run", [&] { world.program().startRun(); });
  world.web.answerFirst({});

  world.scene("A minute later: a report that cannot be written, once");
  world.pass(minutes(2));
  std::filesystem::remove(world.folder.file("reports"));

  world.scene("The news change: a mail, a sound, a program");
  world.web.page("/news", {.body = "the news of the day: it's \"new\""});
  world.recordedSockets.onSent = [&](const std::string& line) {
    if (line == "DATA\r\n") {
      world.attempt("changes a setting while the mail is sent",
                    [&] { world.data().setControl("audio", std::string("/sounds/other.wav")); });
      world.pass(seconds(1));
    }
  };
  world.pass(minutes(4));
  world.recordedSockets.onSent = {};

  world.scene("A server falls silent");
  world.attempt("shortens the time-out", [&] { world.data().setControl("timeout", 1); });
  world.web.keepSilent({"/slow"});
  world.pass(minutes(1));
  world.web.keepSilent({});
  world.attempt("lengthens the time-out", [&] { world.data().setControl("timeout", std::string("30")); });
  world.attempt("asks for a report", [&] { world.data().createReport(); });
  world.recordFile("reports/report.html");
}

void editsInMidPass(World& world) {
  m& data = world.data();
  world.scene("Edits in mid-pass");
  world.mailServer.reply(SmtpStage::rcptTo, "550 no such user\r\n");
  world.web.page("/steady", {.status = 404, .body = "gone"});
  world.web.page("/error", {.body = "the server is well again"});
  world.web.answerFirst({"/steady", "/binary", "/login"});
  world.web.beforeAnswer("/steady", [&] {
    world.attempt("gives a site that is being fetched another address", [&] {
      data.updateSites(5, world.web.url("beta", "/login?2"), "post", true, 10, false, "", "", "");
      world.program().run().init();
    });
    world.pass(seconds(1));
  });
  world.web.beforeAnswer("/binary", [&] {
    world.attempt("deletes a site that is being fetched", [&] {
      data.deleteSite(13);
      world.program().run().init();
    });
  });
  world.view.onJudged = [&](std::int16_t idSite) {
    if (idSite == 3) {
      world.attempt("deletes the last site and adds another in its place", [&] {
        data.deleteSite(17);
        const std::int16_t id = data.addSite();
        data.updateSites(id, world.web.url("beta", "/new"), "get", true, 3, true, "new@example.org", "", "");
        data.addPostVars(id, "x", "y");
        data.clearPostVars(id);
        world.program().run().init();
      });
      world.attempt("adds a site under an id that is taken", [&] { data.addSite(std::int16_t{1}); });
    }
  };
  world.pass(minutes(3));
  world.view.onJudged = {};
  world.web.answerFirst({});
  world.mailServer.reply(SmtpStage::rcptTo, "250 recipient ok\r\n");

  world.scene("Nobody takes the mails");
  // A site that was never checked is due for the countdown and for no pass: it would begin one each second.
  world.attempt("sets the new site inactive", [&] {
    data.setActive(17, false);
    world.program().run().init();
  });
  world.attempt("names another mail server", [&] { data.setControl("smtp", std::string(RecordedSockets::kNoServer)); });
  world.pass(minutes(5));
  world.attempt("names the first mail server again", [&] { data.setControl("smtp", std::string("mail.example")); });
  world.mailServer.reply(SmtpStage::greeting, "554 no service today\r\n");
  world.web.page("/steady", {.body = "<html>always the same</html>\n"});
  world.pass(minutes(5));
  world.mailServer.reply(SmtpStage::greeting, "220 mail.example ready\r\n");
}

}  // namespace tarnwick::testing
