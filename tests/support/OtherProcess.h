// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A function of a test that runs in a process of its own, for example to be killed there. It is known by its
// name and is handed words, because Windows cannot split a process: there the test program starts itself
// again for the function alone.
//
//     const OtherProcess::Known Waits("Waits", [](const std::vector<std::string>& words) { ...; return 0; });
//     OtherProcess process("Waits", {folder / "a.log"});
//     EXPECT_EQ(process.End(), 0);
class OtherProcess {
  public:
    using Function = int (*)(const std::vector<std::string>& words); // returns the exit status

    // Makes a function known; only outside of functions.
    struct Known {
        Known(const char* name, Function function);
    };

    static constexpr int Killed = -1;

    OtherProcess(const std::string& name, const std::vector<std::string>& words);
    ~OtherProcess(); // kills it if it still runs
    OtherProcess(OtherProcess&& other) noexcept : process_(other.process_) { other.process_ = 0; }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    std::int64_t Number() const; // as the system counts processes
    int End();                   // waits for it; its exit status, or Killed
    void Kill();                 // ends it as it is, and waits for that

  private:
    std::intptr_t process_ = 0; // 0 = it has ended
};

// What the two systems' files share.
struct OtherProcessFunctions {
    static OtherProcess::Function Named(const std::string& name); // nullptr = there is none
};
