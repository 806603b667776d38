#include "ui/page_opener.h"

namespace tarnwick {

void openPage(const Services& services, const std::string& target) {
  if (!services.opener.open(target)) {
    services.prompts.inform("This desktop could not open the page. You find it at:\n\n" + target, kProductName,
                            PromptIcon::information);
  }
}

}  // namespace tarnwick
