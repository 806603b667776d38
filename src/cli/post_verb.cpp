#include "cli/verbs.h"

namespace tarnwick {

void addPostVerb(CLI::App&, Action&) {}

}  // namespace tarnwick
