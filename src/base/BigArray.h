// SPDX-License-Identifier: MIT
#pragma once

#include "base/HugePages.h"
#include "base/RunTimeError.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <memory>
#include <type_traits>

// An array that may grow to gigabytes: its spare room is address space that costs no memory until it is
// written to, and it grows by moving pages, not by copying them, where the system can. Elements are plain
// values.
template <typename T>
class BigArray {
    static_assert(std::is_trivially_copyable_v<T>);

  public:
    std::size_t Size() const { return size_; }
    const T* Data() const { return memory_.get(); }
    T* Data() { return memory_.get(); }
    const T& operator[](std::size_t i) const { return memory_.get()[i]; }
    T& operator[](std::size_t i) { return memory_.get()[i]; }

    // Makes room for `count` more elements and returns the place of the first of them. Throws RunTimeError
    // when there is no memory.
    T* MakeRoom(std::size_t count) {
        if (capacity_ - size_ < count)
            SetCapacity(std::max(size_ + count, capacity_ + capacity_ / 2));
        return memory_.get() + size_;
    }

    // Adds `count` elements that the caller has written to the place from MakeRoom.
    void Advance(std::size_t count) { size_ += count; }

    void Append(const T& element) {
        *MakeRoom(1) = element;
        ++size_;
    }

    // Reserves room for `capacity` elements in all. Where there is not that much memory, the array grows
    // later.
    void Expect(std::size_t capacity) {
        if (capacity > capacity_)
            TrySetCapacity(capacity);
    }

    // Gives the spare room back.
    void Trim() {
        if (size_ < capacity_)
            TrySetCapacity(std::max<std::size_t>(size_, 1));
    }

    void Clear() {
        memory_.reset();
        size_ = 0;
        capacity_ = 0;
    }

  private:
    // From this size on, in bytes, a last huge page that is mostly empty is a small part of the whole.
    static constexpr std::size_t LeastHugeSize = std::size_t{32} << 20U;

    struct Free {
        void operator()(T* memory) const { std::free(memory); }
    };

    bool TrySetCapacity(std::size_t capacity) {
        void* grown = std::realloc(static_cast<void*>(memory_.get()), capacity * sizeof(T));
        if (grown == nullptr)
            return false;
        (void)memory_.release();
        memory_.reset(static_cast<T*>(grown));
        capacity_ = capacity;
        if (capacity * sizeof(T) >= LeastHugeSize)
            PreferHugePages(memory_.get(), capacity * sizeof(T));
        return true;
    }

    void SetCapacity(std::size_t capacity) {
        if (!TrySetCapacity(capacity))
            throw RunTimeError("out of memory");
    }

    std::unique_ptr<T, Free> memory_;
    std::size_t size_ = 0;
    std::size_t capacity_ = 0;
};
