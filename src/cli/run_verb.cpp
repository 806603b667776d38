#include "cli/verbs.h"

namespace tarnwick {

void addRunVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
