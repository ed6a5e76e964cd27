#pragma once

#include <utility>

#include <unistd.h>

namespace tocca::platform::linux {

/// A file descriptor that is closed with its owner. Threads: any, one at a time.
class FileDescriptor {
public:
    FileDescriptor() noexcept = default;

    /// Takes `descriptor` over; a negative one stands for none.
    explicit FileDescriptor(int descriptor) noexcept
        : descriptor_(descriptor)
    {}

    FileDescriptor(FileDescriptor&& other) noexcept
        : descriptor_(std::exchange(other.descriptor_, -1))
    {}

    FileDescriptor& operator=(FileDescriptor&& other) noexcept
    {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }

    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;

    ~FileDescriptor()
    {
        if (descriptor_ >= 0) {
            ::close(descriptor_);
        }
    }

    [[nodiscard]] int get() const noexcept { return descriptor_; }

    [[nodiscard]] bool isOpen() const noexcept { return descriptor_ >= 0; }

private:
    int descriptor_ = -1;
};

} // namespace tocca::platform::linux
