// SPDX-License-Identifier: MIT
#include "cli/verbs/site_edit_verbs.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <vector>

#include "base/one_line.h"
#include "base/text.h"
#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/verbs/unwatched.h"
#include "cli/verbs/verbs.h"
#include "exchange/list/site_import.h"
#include "exchange/list/site_list.h"
#include "platform/address.h"
#include "program/site_draft.h"

namespace tarnwick {
namespace {

/// What the command line says of a site; what it does not say is empty.
struct SiteEdit {
  std::int16_t idSite = 0;
  std::optional<std::string> url;
  std::optional<std::string> method;
  std::optional<std::string> interval;
  bool active = false;
  bool inactive = false;
  std::optional<std::string> alertEmail;
  bool noAlertEmail = false;
  std::optional<std::string> user;
  std::optional<std::string> password;
  std::optional<std::string> passwordFile;
  std::vector<std::string> posts;
  /// Of the fields that have no option of their own here, by name.
  std::map<std::string, std::optional<std::string>> further;
  bool json = false;

  bool saysNothing() const {
    return !url && !method && !interval && !active && !inactive && !alertEmail && !noAlertEmail && !user && !password &&
           !passwordFile && posts.empty() &&
           std::ranges::none_of(further, [](const auto& given) { return given.second.has_value(); });
  }
};

PostVar varOf(const std::string& text) {
  const auto sign = text.find('=');
  if (sign == std::string::npos) {
    throw std::runtime_error("--post takes NAME=VALUE, and \"" + visibleText(text) + "\" has no \"=\".");
  }
  return {text.substr(0, sign), text.substr(sign + 1)};
}

FieldValue valueOfText(const SiteField& field, const std::string& text) {
  ListFaults faults;
  auto value = ListValues(0, faults).value(field, text);
  if (!value) {
    throw std::runtime_error(faults.kept().front().text + ".");
  }
  return *std::move(value);
}

void apply(FileSystem& files, const Fields& fields, const SiteEdit& edit, SiteDraft& site) {
  for (const SiteField& field : fields.site) {
    if (const auto given = edit.further.find(field.name); given != edit.further.end() && given->second) {
      setValue(field, site, valueOfText(field, *given->second));
    }
  }
  if (edit.url) {
    requireFetchable(*edit.url);
    site.url = *edit.url;
  }
  if (edit.method) {
    site.method = methodOf(*edit.method);
  }
  if (edit.interval) {
    site.tInterval = intervalOf(*edit.interval);
  }
  if (edit.active || edit.inactive) {
    site.active = edit.active;
  }
  if (edit.alertEmail) {
    requireMailAddress(*edit.alertEmail);
    site.alertEmail = true;
    site.email = *edit.alertEmail;
  }
  if (edit.noAlertEmail) {
    site.alertEmail = false;
  }
  if (edit.user && hasLineEnd(*edit.user)) {
    throw std::runtime_error("The user name \"" + visibleText(*edit.user) +
                             "\" holds a line end, which could become a command to a server. Give it as one line.");
  }
  site.sUserName = edit.user.value_or(site.sUserName);
  site.sPassWord = edit.password.value_or(site.sPassWord);
  if (edit.passwordFile) {
    site.sPassWord = readLineOf(files, *edit.passwordFile);
  }
}

std::vector<PostVar> varsOf(const SiteEdit& edit) {
  std::vector<PostVar> vars;
  std::ranges::transform(edit.posts, std::back_inserter(vars), varOf);
  return vars;
}

int addSite(Tool& tool, const SiteEdit& edit) {
  const std::vector<PostVar> vars = varsOf(edit);
  SiteDraft site;
  site.method = vars.empty() ? "get" : "post";
  site.active = true;
  site.tInterval = "10";
  apply(tool.services().files, tool.fields(), edit, site);
  m& data = tool.data();
  Transaction whole(data.database());
  const std::int16_t id = data.addSite();
  storeSite(data, id, site, vars);
  whole.commit();
  if (edit.json) {
    sayJson(tool.console(), {{"idSite", id}});
  } else {
    tool.console().say(std::to_string(id));
    hintAtUnwatched(tool, {id});
  }
  if (!vars.empty()) {
    hintAtMethod(tool, id);
  }
  return exit_status::ok;
}

int setSite(Tool& tool, const SiteEdit& edit) {
  m& data = tool.data();
  requireListed(tool, edit.idSite);
  const std::string id = std::to_string(edit.idSite);
  if (edit.saysNothing()) {
    throw std::runtime_error("Say what is to be changed of site " + id + ". See: tarnwickctl set --help");
  }
  // What is read from standard input may take its time; nothing is locked meanwhile.
  SiteDraft given;
  apply(tool.services().files, tool.fields(), edit, given);
  SiteEdit known = edit;
  if (known.passwordFile) {
    known.passwordFile.reset();
    known.password = given.sPassWord;
  }
  const std::vector<PostVar> newVars = varsOf(edit);
  Transaction whole(data.database());
  requireListed(tool, edit.idSite);
  SiteDraft site = readSite(data, edit.idSite);
  apply(tool.services().files, tool.fields(), known, site);
  storeSite(data, edit.idSite, site, newVars.empty() ? readPostVars(data, edit.idSite) : newVars);
  whole.commit();
  tool.console().tell("Site " + id + " is changed.");
  if (edit.active || edit.url) {
    hintAtUnwatched(tool, {edit.idSite});
  }
  if (!newVars.empty()) {
    hintAtMethod(tool, edit.idSite);
  }
  return exit_status::ok;
}

void addFields(std::vector<VerbOption>& options, const Fields& fields, SiteEdit& edit) {
  options.insert(
      options.end(),
      {{.name = "--method", .target = &edit.method, .meaning = "How the page is fetched", .type = "get|post"},
       {.name = "--interval",
        .target = &edit.interval,
        .meaning = "The time between two checks, 1 to 32767 minutes",
        .type = "MINUTES"},
       {.name = "--user",
        .target = &edit.user,
        .meaning = "The user name for the fetch; \"\" for none",
        .type = "NAME"},
       VerbOption{"--password", &edit.password,
                  "The password for the fetch; other users of this machine may see it on the command line, so prefer "
                  "--password-file"},
       {.name = "--password-file",
        .target = &edit.passwordFile,
        .meaning = "Read the password from a file, without its line end; - is standard input",
        .type = "FILE",
        .excludes = "--password"},
       {.name = "--post",
        .target = &edit.posts,
        .meaning = "A POST variable; may be given several times",
        .type = "NAME=VALUE"}});
  for (const SiteField& field : fields.site) {
    if (std::holds_alternative<std::monostate>(field.member)) {
      options.push_back({.name = "--" + field.name, .target = &edit.further[field.name], .meaning = field.meaning});
    }
  }
}

VerbOption alertOption(SiteEdit& edit) {
  return {.name = "--alert-email",
          .target = &edit.alertEmail,
          .meaning = "Mail its failures to this address",
          .type = "ADDRESS"};
}

Verb addVerb(const Fields& fields) {
  auto edit = std::make_shared<SiteEdit>();
  std::vector<VerbOption> options{{.name = "URL",
                                   .target = &edit->url,
                                   .meaning = "The address of the page: http, https, ftp or ftps",
                                   .required = true}};
  addFields(options, fields, *edit);
  options.insert(options.end(), {VerbOption{"--inactive", &edit->inactive, "Leave it out of runs"}, alertOption(*edit),
                                 jsonOption(edit->json)});
  return Verb{
      "add", "Add a site to the list and print its id", std::move(options),
      "Without options it is fetched with GET every 10 minutes; with --post it is fetched with POST. The first page "
      "that is fetched becomes its baseline. A run that is on takes the site on once it was checked.\n" +
          examples(
              {{"add https://example.org/", "watch a page"},
               {"check $(tarnwickctl add https://example.org/)", "and check it at once, so that a run takes it on"},
               {"add https://example.org/search --post q=tarn --post lang=en --interval 60", "what a form answers"},
               {"add https://example.org/in --user ann --password-file secret.txt", "behind a password"},
               {"add https://example.org/ --alert-email ann@example.org", "with alert mails"}}),
      [edit](Tool& tool) { return addSite(tool, *edit); }};
}

Verb setVerb(const Fields& fields) {
  auto edit = std::make_shared<SiteEdit>();
  std::vector<VerbOption> options{
      siteIdOption(edit->idSite),
      VerbOption{"--url", &edit->url, "The address of the page: http, https, ftp or ftps"},
  };
  addFields(options, fields, *edit);
  options.insert(
      options.end(),
      {VerbOption{"--active", &edit->active, "Let runs check it"},
       {.name = "--inactive", .target = &edit->inactive, .meaning = "Leave it out of runs", .excludes = "--active"},
       alertOption(*edit),
       {.name = "--no-alert-email",
        .target = &edit->noAlertEmail,
        .meaning = "Mail no failures; the address is kept",
        .excludes = "--alert-email"}});
  return Verb{"set", "Change a site; what is not named stays as it is", std::move(options),
              "With --post the variables given replace all that the site has; the verb post changes single ones.\n" +
                  examples({{"set 3 --interval 5 --active", "check it more often"},
                            {"set 3 --url https://example.org/new", "the page has moved"},
                            {"set 3 --user \"\" --password \"\"", "no credentials any more"}}),
              [edit](Tool& tool) { return setSite(tool, *edit); }};
}

}  // namespace

void requireFetchable(const std::string& url) {
  const auto address = parseAddress(url);
  if (!address) {
    throw std::runtime_error("\"" + visibleText(url) +
                             "\" is not a valid address. One looks like https://example.org/page.");
  }
  if (!isFetchedScheme(address->scheme)) {
    throw std::runtime_error("\"" + visibleText(url) + "\" cannot be fetched: " + visibleText(address->scheme) +
                             " is none of http, https, ftp and ftps.");
  }
}

void requireMailAddress(const std::string& email) {
  if (!m::isEmail(email)) {
    throw std::runtime_error(
        "\"" + visibleText(email) +
        "\" is not a valid email address. One address is taken, like name@example.org: " + kMailAddressRule + ".");
  }
}

std::string methodOf(const std::string& text) {
  std::string method = lowerCase(text);
  if (method != "get" && method != "post") {
    throw std::runtime_error("\"" + visibleText(text) + "\" is no method. Take get or post.");
  }
  return method;
}

void hintAtMethod(Tool& tool, std::int16_t idSite) {
  if (lowerCase(readSite(tool.data(), idSite).method) != "post") {
    const std::string id = std::to_string(idSite);
    tool.console().complain("Site " + id + " is fetched with GET, so its POST variables are kept but not sent. To " +
                            "send them: tarnwickctl set " + id + " --method post");
  }
}

std::string intervalOf(const std::string& text) {
  std::int16_t minutes = 0;
  const char* end = text.data() + text.size();
  const auto [rest, fault] = std::from_chars(text.data(), end, minutes);
  if (fault != std::errc() || rest != end || minutes < 1) {
    throw std::runtime_error("\"" + visibleText(text) + "\" is no interval. Take a number of minutes from 1 to " +
                             std::to_string(std::numeric_limits<std::int16_t>::max()) + ".");
  }
  return std::to_string(minutes);
}

std::vector<Verb> siteEditVerbs(const Fields& fields) { return {addVerb(fields), setVerb(fields)}; }

}  // namespace tarnwick
