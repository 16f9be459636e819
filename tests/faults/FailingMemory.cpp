// SPDX-License-Identifier: MIT
#include "faults/FailingMemory.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <exception>

#include <unistd.h>

namespace {

bool Armed = false;
bool OnlyOne = false;
bool Failed = false;
std::size_t Left = 0; // allocations that still succeed
std::size_t Begun = 0;

bool Fails() {
    if (!Armed)
        return false;
    if (Left != 0) {
        --Left;
        return false;
    }
    Armed = !OnlyOne;
    Failed = true;
    return true;
}

[[noreturn]] void TellAndAbort() {
    Armed = false;
    std::fprintf(stderr, "The program would have ended at allocation %zu%s\n", Begun,
                 OnlyOne ? "" : " and all later ones");
    std::abort();
}

// These tests write some ten thousand files. Those in memory cost seconds, those on a disk minutes.
[[maybe_unused]] const bool FilesAreInMemory =
    access("/dev/shm", W_OK) == 0 && setenv("TMPDIR", "/dev/shm", 1) == 0;

} // namespace

void BeginFailing(std::size_t count, FailingAllocations which) {
    std::set_terminate(TellAndAbort);
    Begun = count;
    Left = count;
    OnlyOne = which == FailingAllocations::One;
    Failed = false;
    Armed = true;
}

bool EndFailing() {
    Armed = false;
    return Failed;
}

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)

extern "C" {

// The C library's own, by the names under which a program that replaces them finds them.
void* __libc_malloc(std::size_t size);
void* __libc_calloc(std::size_t count, std::size_t size);
void* __libc_realloc(void* block, std::size_t size);

void* malloc(std::size_t size) {
    if (!Fails())
        return __libc_malloc(size);
    errno = ENOMEM;
    return nullptr;
}

void* calloc(std::size_t count, std::size_t size) {
    if (!Fails())
        return __libc_calloc(count, size);
    errno = ENOMEM;
    return nullptr;
}

void* realloc(void* block, std::size_t size) {
    if (!Fails())
        return __libc_realloc(block, size);
    errno = ENOMEM;
    return nullptr;
}

} // extern "C"

namespace {
void* Allocate(std::size_t size) { return std::malloc(size); }
} // namespace

#else

namespace {
void* Allocate(std::size_t size) { return Fails() ? nullptr : std::malloc(size); }
} // namespace

#endif

void* operator new(std::size_t size) {
    if (void* const block = Allocate(size == 0 ? 1 : size))
        return block;
    throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size == 0 ? 1 : size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
    return Allocate(size == 0 ? 1 : size);
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete[](void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t) noexcept { std::free(block); }
void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
void operator delete(void* block, const std::nothrow_t&) noexcept { std::free(block); }
void operator delete[](void* block, const std::nothrow_t&) noexcept { std::free(block); }
