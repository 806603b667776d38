#pragma once

namespace tarnwick {

/// The number that <cerrno> has for what a socket's function reports; where it has none, the number as it is.
int errnoOfSocket(int error);

}  // namespace tarnwick
