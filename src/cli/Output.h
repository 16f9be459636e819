// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

// Standard output, or a device or a pipe by its name, to write to. Whoever writes waits for a reader no
// longer than until the process is asked to end: writing fails then.
class Output {
  public:
    Output(); // standard output
    explicit Output(const std::string& device);
    ~Output();
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    // Has failed where the device cannot be opened.
    std::ostream& Stream() { return stream_; }

    bool IsTerminal() const { return isTerminal_; }

  private:
    std::unique_ptr<std::streambuf> buffer_;
    std::ostream stream_{nullptr};
    bool isTerminal_ = false;
};
