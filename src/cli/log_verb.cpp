#include "cli/verbs.h"

namespace tarnwick {

void addLogVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
