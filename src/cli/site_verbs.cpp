#include <ostream>

#include "cli/json_text.h"
#include "cli/text_grid.h"
#include "cli/verbs.h"
#include "store/site_table.h"

namespace tarnwick {
namespace {

}  // namespace

void addSiteVerbs(CLI::App& app, Action& chosen) {
  (void)app;
  (void)chosen;
}

}  // namespace tarnwick
