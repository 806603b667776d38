#include "cli/verbs.h"

namespace tarnwick {

void addCountersVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
