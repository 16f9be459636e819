// SPDX-License-Identifier: MIT
#pragma once

// SIGINT, SIGTERM, SIGHUP and SIGPIPE end a process in good order: the step that runs stops and fails without
// a word, what was unpacked and half written is removed, and then the process ends by that signal, which
// tells whoever called it. Further signals change nothing, as they often come in pairs; one that comes more
// than three seconds later ends it at once. A signal that is ignored stays ignored.
class Interruption {
  public:
    // From here on signals only make a StopRequest.
    Interruption();
    Interruption(const Interruption&) = delete;
    Interruption& operator=(const Interruption&) = delete;

    // Ends the process by the signal that has come; returns when there was none.
    static void EndBySignal();
};
