// SPDX-License-Identifier: MIT
#pragma once

namespace tarnwick {

/// The number that <cerrno> has for what a socket's function reports; where it has none, the number as it is.
int errnoOfSocket(int error);

/// That number for what the last function of sockets has reported to this thread.
int lastSocketError();

/// The number of the error with which the system refuses some sockets just now; 0 when it has them.
int shortageOfSockets();

}  // namespace tarnwick
