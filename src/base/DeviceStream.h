// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <ostream>
#include <streambuf>
#include <string>

// Writes to standard output, or to a device or pipe by its name. A write waits for a reader, but fails once
// the process is asked to end (Interruption).
class DeviceStream {
  public:
    DeviceStream(); // standard output
    explicit DeviceStream(const std::string& device);
    ~DeviceStream();
    DeviceStream(const DeviceStream&) = delete;
    DeviceStream& operator=(const DeviceStream&) = delete;

    // In a failed state where the device cannot be opened.
    std::ostream& Stream() { return stream_; }

    bool IsTerminal() const { return isTerminal_; }

  private:
    std::unique_ptr<std::streambuf> buffer_;
    std::ostream stream_{nullptr};
    bool isTerminal_ = false;
};
