#include "cli/verbs.h"

namespace tarnwick {

void addSettingsVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
