// SPDX-License-Identifier: MIT
#include <algorithm>
#include <optional>
#include <set>

#include "cli/terminal/input_file.h"
#include "cli/terminal/json_output.h"
#include "cli/terminal/text_grid.h"
#include "cli/verbs/site_edit_verbs.h"
#include "cli/verbs/tool.h"
#include "cli/verbs/verbs.h"
#include "exchange/list/site_facts.h"

namespace tarnwick {
namespace {

using Text = std::optional<std::string>;

struct PostOptions {
  std::int16_t idSite = 0;
  std::string action = "list";
  Text name;
  Text value;
  Text newName;
  Text newValue;
  Text nameOption;
  Text valueOption;
  Text valueFile;
  bool json = false;
};

std::string inQuotes(const std::string& text) { return "\"" + visibleText(text) + "\""; }

std::string siteName(const PostOptions& options) { return "Site " + std::to_string(options.idSite); }

std::runtime_error wrongUse(const PostOptions& options, const std::string& form) {
  return std::runtime_error("It is: tarnwickctl post " + std::to_string(options.idSite) + " " + options.action + form);
}

int listVars(Tool& tool, const PostOptions& options) {
  const std::vector<PostVar> vars = readPostVars(tool.data(), options.idSite);
  Console& console = tool.console();
  if (options.json) {
    sayJson(console, postVarsJson(vars));
  } else if (vars.empty()) {
    console.complain(siteName(options) + " has no POST variables. Add one with: tarnwickctl post " +
                     std::to_string(options.idSite) + " add NAME VALUE");
  } else {
    TextGrid grid({{"NAME"}, {"VALUE"}});
    for (const PostVar& var : vars) {
      grid.addRow({{var.name}, {var.value}});
    }
    grid.print(console);
  }
  return exit_status::ok;
}

// The place of the one variable that is meant: exactly that name, and exactly that value where one is given.
std::size_t placeOf(const std::vector<PostVar>& vars, const PostOptions& options) {
  std::set<std::string> values;
  std::size_t place = vars.size();
  for (std::size_t i = vars.size(); i-- > 0;) {
    if (vars[i].name == options.name && (!options.value || vars[i].value == *options.value)) {
      values.insert(vars[i].value);
      place = i;
    }
  }
  if (values.empty()) {
    throw std::runtime_error(siteName(options) + " has no variable " + inQuotes(*options.name) +
                             (options.value ? " of the value " + inQuotes(*options.value) : "") +
                             ". Letter case and blanks count; they are listed by: tarnwickctl post " +
                             std::to_string(options.idSite));
  }
  if (values.size() > 1) {
    std::string list;
    for (const std::string& value : values) {
      list += (list.empty() ? "" : ", ") + inQuotes(value);
    }
    throw std::runtime_error(siteName(options) + " has several variables " + inQuotes(*options.name) +
                             ". Add behind the name the value of the one that is meant: " + list);
  }
  return place;
}

// A variable of which a part is a Null cannot be looked up; the whole list is stored anew then.
void storeAnew(m& data, std::int16_t idSite, const std::vector<PostVar>& vars) {
  data.clearPostVars(idSite);
  for (const PostVar& var : vars) {
    data.addPostVars(idSite, var.name, var.value);
  }
}

int addVar(Tool& tool, PostOptions options) {
  if (!options.name || options.value.has_value() == options.valueFile.has_value() || options.newName ||
      options.nameOption || options.valueOption) {
    throw wrongUse(options, " NAME VALUE, or: NAME --value-file FILE");
  }
  if (options.valueFile) {
    options.value = readLineOf(tool.services().files, *options.valueFile);
  }
  m& data = tool.data();
  Transaction whole(data.database());
  requireListed(tool, options.idSite);  // the variables of a site that is gone would be sent by the next one of its id
  data.addPostVars(options.idSite, *options.name, *options.value);
  whole.commit();
  tool.console().tell(siteName(options) + " has the variable " + inQuotes(*options.name) + " now.");
  hintAtMethod(tool, options.idSite);
  return exit_status::ok;
}

int changeVar(Tool& tool, const PostOptions& options) {
  const bool byPosition = options.newValue && !options.nameOption && !options.valueOption;
  const bool byOption = options.name && !options.newName && (options.nameOption || options.valueOption);
  if (!byPosition && !byOption) {
    throw wrongUse(options, " NAME VALUE NEW_NAME NEW_VALUE, or: NAME [VALUE] [--name NEW_NAME] [--value NEW_VALUE]");
  }
  m& data = tool.data();
  Transaction whole(data.database());
  std::vector<PostVar> vars = readPostVars(data, options.idSite);
  PostVar& var = vars[placeOf(vars, options)];
  const std::int16_t id = data.getIdPostVars(options.idSite, var.name, var.value);
  var = byPosition ? PostVar{*options.newName, *options.newValue}
                   : PostVar{options.nameOption.value_or(var.name), options.valueOption.value_or(var.value)};
  if (id != 0) {
    data.updatePostVars(id, var.name, var.value);
  } else {
    storeAnew(data, options.idSite, vars);
  }
  whole.commit();
  tool.console().tell("The variable is " + inQuotes(var.name) + " = " + inQuotes(var.value) + " now.");
  return exit_status::ok;
}

int removeVar(Tool& tool, const PostOptions& options) {
  if (!options.name || options.newName || options.nameOption || options.valueOption) {
    throw wrongUse(options, " NAME [VALUE]");
  }
  m& data = tool.data();
  Transaction whole(data.database());
  std::vector<PostVar> vars = readPostVars(data, options.idSite);
  const std::size_t place = placeOf(vars, options);
  const std::int16_t id = data.getIdPostVars(options.idSite, vars[place].name, vars[place].value);
  if (id != 0) {
    data.deletePostVars(id);
  } else {
    vars.erase(vars.begin() + static_cast<std::ptrdiff_t>(place));
    storeAnew(data, options.idSite, vars);
  }
  whole.commit();
  tool.console().tell("The variable " + inQuotes(*options.name) + " is removed.");
  return exit_status::ok;
}

int post(Tool& tool, const PostOptions& options) {
  requireListed(tool, options.idSite);
  if (options.json && options.action != "list") {
    throw std::runtime_error("Only \"list\" prints JSON.");
  }
  if (options.action == "add") {
    return addVar(tool, options);
  }
  if (options.valueFile) {
    throw std::runtime_error("Only \"add\" takes --value-file.");
  }
  if (options.action == "change") {
    return changeVar(tool, options);
  }
  if (options.action == "remove") {
    return removeVar(tool, options);
  }
  if (options.name || options.nameOption || options.valueOption) {
    throw wrongUse(options, "");
  }
  return listVars(tool, options);
}

}  // namespace

Verb postVerb() {
  auto options = std::make_shared<PostOptions>();
  return Verb{
      "post",
      "List, add, change or remove the POST variables of a site",
      {siteIdOption(options->idSite),
       {.name = "ACTION",
        .target = &options->action,
        .meaning = "list (default), add, change, remove",
        .oneOf = {"list", "add", "change", "remove"}},
       {"NAME", &options->name, "The variable's name"},
       {"VALUE", &options->value, "Its value; not needed to find the only one of a name"},
       {"NEW_NAME", &options->newName, "For \"change\": the new name"},
       {"NEW_VALUE", &options->newValue, "For \"change\": the new value"},
       {"--name", &options->nameOption, "For \"change\": the new name alone"},
       {"--value", &options->valueOption, "For \"change\": the new value alone"},
       {.name = "--value-file",
        .target = &options->valueFile,
        .meaning =
            "For \"add\": read the value from a file, without its line end, so that no other user of this machine "
            "sees it on the command line; - is standard input",
        .type = "FILE"},
       jsonOption(options->json)},
      "Names and values are found exactly as they are: letter case and blanks count. What begins with a minus sign is "
      "written behind --.\n" +
          examples({{"post 3", "the variables, in the order in which they are sent"},
                    {"post 3 add lang en", "one more"},
                    {"post 3 change lang en lang de", "the one of this name and value"},
                    {"post 3 change lang --value de", "the same, where it is the only one of its name"},
                    {"post 3 remove lang", "one less"},
                    {"post 3 add -- offset -1", "a value with a minus sign"}}),
      [options](Tool& tool) { return post(tool, *options); }};
}

}  // namespace tarnwick
