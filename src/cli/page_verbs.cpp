#include "cli/verbs.h"

namespace tarnwick {

void addPageVerbs(CLI::App&, Action&) {}

}  // namespace tarnwick
