#include "platform/socket_errors.h"

namespace tarnwick {

int errnoOfSocket(int error) { return error; }

}  // namespace tarnwick
