// SPDX-License-Identifier: MIT
#pragma once

// SIGINT, SIGTERM, SIGHUP and SIGPIPE end a process in good order: the running step stops and fails without a
// message, the program removes unpacked and half-written files, and then the process ends by that signal,
// which its caller can see. Signals often come in pairs, so a further one changes nothing; but one that comes
// more than three seconds later ends the process at once. A signal that is ignored stays ignored.
class Interruption {
  public:
    // From now on signals only make a StopRequest.
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Ends the process by the signal that has come; returns when none has.
    static void EndBySignal();
};
