// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

// Standard output, or a device or a pipe by its name, to write to. Whoever writes waits for a reader no
// longer than until the process is asked to end (Interruption): writing fails then.
class DeviceStream {
  public:
    DeviceStream(); // standard output
    explicit DeviceStream(const std::string& device);
    ~DeviceStream();
    DeviceStream(const DeviceStream&) = delete;
    DeviceStream& operator=(const DeviceStream&) = delete;

    // Has failed where the device cannot be opened.
    std::ostream& Stream() { return stream_; }

    bool IsTerminal() const { return isTerminal_; }

  private:
    std::unique_ptr<std::streambuf> buffer_;
    std::ostream stream_{nullptr};
    bool isTerminal_ = false;
};
