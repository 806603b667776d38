#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>

#include "cli/verbs/tool.h"

namespace tarnwick {

// Each of these adds verbs to the command line. What a verb is to do is left in `chosen` when the user has asked for
// it; the options it was given live in what it captures.

/// sites, site, add, set, delete
void addSiteVerbs(CLI::App& app, Action& chosen);
/// post
void addPostVerb(CLI::App& app, Action& chosen);
/// baseline, diff
void addPageVerbs(CLI::App& app, Action& chosen);
/// counters
void addCountersVerb(CLI::App& app, Action& chosen);
/// check, run
void addCheckVerb(CLI::App& app, Action& chosen);
void addRunVerb(CLI::App& app, Action& chosen);
/// settings
void addSettingsVerb(CLI::App& app, Action& chosen);
/// log
void addLogVerb(CLI::App& app, Action& chosen);
/// report, compact
void addUpkeepVerbs(CLI::App& app, Action& chosen);
/// export, import
void addExchangeVerbs(CLI::App& app, Action& chosen);

/// Adds the positional id of a site.
CLI::Option* addSiteId(CLI::App& verb, std::int16_t& idSite);
/// Takes whole numbers in decimal only; the library alone reads 010 as 8.
CLI::Validator decimalNumber();
/// Takes whole numbers in decimal that can be the id of a site.
CLI::Validator siteNumber();
/// Adds `--json`.
CLI::Option* addJsonFlag(CLI::App& verb, bool& json);
/// The examples that stand below a verb's help: each the arguments behind the program's name, and what they do.
std::string examples(std::initializer_list<std::pair<const char*, const char*>> lines);

}  // namespace tarnwick
