#include "cli/verbs.h"

namespace tarnwick {

void addExchangeVerbs(CLI::App&, Action&) {}

}  // namespace tarnwick
