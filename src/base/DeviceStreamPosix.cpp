// SPDX-License-Identifier: MIT
#include "base/DeviceStream.h"

#include "base/Paths.h"

#include "base/InterruptionState.h"
#include "base/StopRequest.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <iterator>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// Who closes a descriptor.
enum class Owner : std::uint8_t { Stream, Process };

class DescriptorBuffer : public std::streambuf {
  public:
    DescriptorBuffer(int descriptor, Owner owner) : descriptor_(descriptor), owner_(owner) {
        struct stat status = {};
        mayWait_ = ::fstat(descriptor_, &status) != 0 || !S_ISREG(status.st_mode);
        setp(bytes_.data(), bytes_.data() + bytes_.size());
    }
    ~DescriptorBuffer() override {
        DescriptorBuffer::sync();
        if (owner_ == Owner::Stream)
            ::close(descriptor_);
    }
    DescriptorBuffer(const DescriptorBuffer&) = delete;
    DescriptorBuffer& operator=(const DescriptorBuffer&) = delete;

  protected:
    int_type overflow(int_type c) override {
        if (sync() != 0)
            return traits_type::eof();
        if (!traits_type::eq_int_type(c, traits_type::eof()))
            sputc(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }

    int sync() override {
        const char* next = pbase();
        const bool written = WriteUntil(next);
        setp(bytes_.data(), bytes_.data() + bytes_.size());
        return written ? 0 : -1;
    }

  private:
    bool WriteUntil(const char* next) {
        while (next != pptr()) {
            // A device that takes only part of a write may keep the writer waiting for the rest, but not with
            // so few bytes.
            const auto left = static_cast<std::size_t>(pptr() - next);
            const std::size_t count = mayWait_ ? std::min<std::size_t>(left, PIPE_BUF) : left;
            if (mayWait_ && !WaitForReader())
                return false;
            const ssize_t written = ::write(descriptor_, next, count);
            if (written >= 0)
                next += written;
            else if ((errno != EINTR && errno != EAGAIN) || StopRequest::IsMade())
                return false;
        }
        return true;
    }

    bool WaitForReader() const {
        pollfd ends[] = {{descriptor_, POLLOUT, 0}, {InterruptionState::WakePipe[0], POLLIN, 0}};
        while (!StopRequest::IsMade() && ::poll(ends, std::size(ends), -1) < 0 && errno == EINTR) {
        }
        return !StopRequest::IsMade();
    }

    int descriptor_;
    Owner owner_;
    bool mayWait_ = true;
    std::array<char, 65536> bytes_;
};

} // namespace

DeviceStream::DeviceStream()
    : buffer_(std::make_unique<DescriptorBuffer>(STDOUT_FILENO, Owner::Process)),
      isTerminal_(::isatty(STDOUT_FILENO) == 1) {
    stream_.rdbuf(buffer_.get());
}

DeviceStream::DeviceStream(const std::string& device) {
    const int descriptor = ::open(ToPath(device).c_str(), O_WRONLY | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    buffer_ = std::make_unique<DescriptorBuffer>(descriptor, Owner::Stream);
    stream_.rdbuf(buffer_.get());
    isTerminal_ = ::isatty(descriptor) == 1;
}

DeviceStream::~DeviceStream() = default;
