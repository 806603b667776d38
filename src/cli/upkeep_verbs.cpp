#include "cli/verbs.h"

namespace tarnwick {

void addUpkeepVerbs(CLI::App&, Action&) {}

}  // namespace tarnwick
