#include "cli/verbs.h"

namespace tarnwick {

void addCheckVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
