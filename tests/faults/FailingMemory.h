// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <new>

// Allocations of this program that fail on demand. FailingMemory.cpp replaces the operators new and, except
// under the address sanitizer, which has its own, the C library's functions, so that other libraries have no
// memory either.

enum class FailingAllocations : std::uint8_t {
    One,        // the next one succeeds
    AllFromNow, // until the end of the work
};

// After `count` allocations that succeed, the next one fails.
void BeginFailing(std::size_t count, FailingAllocations which);

// No allocation fails any more. True when at least one did.
bool EndFailing();

// What became of a piece of work.
enum class WorkOutcome : std::uint8_t { Done, Refused, OutOfMemory };

// Does `work` again and again. The first time its first allocation fails, then its second, and so on, until
// it needs no more; then all of this with every allocation failing from that one on. `prepare` comes before
// each work, `check` behind it with the outcome; in both there is memory. `work` returns false when it
// reports a failure. It may also end by std::bad_alloc, but by nothing else. Without a failing allocation it
// must be done. Gives how many allocations it made.
template <typename Prepare, typename Work, typename Check>
std::size_t AtEveryAllocation(Prepare prepare, Work work, Check check) {
    constexpr std::size_t Most = 20000;
    std::size_t count = 0;
    for (const FailingAllocations which : {FailingAllocations::One, FailingAllocations::AllFromNow})
        for (count = 0; count < Most; ++count) {
            SCOPED_TRACE(testing::Message()
                         << "allocation " << count
                         << (which == FailingAllocations::One ? "" : " and all later ones"));
            prepare();
            WorkOutcome outcome = WorkOutcome::OutOfMemory;
            BeginFailing(count, which);
            try {
                outcome = work() ? WorkOutcome::Done : WorkOutcome::Refused;
            } catch (const std::bad_alloc&) {
            }
            const bool failed = EndFailing();
            check(outcome);
            if (!failed) {
                EXPECT_EQ(outcome, WorkOutcome::Done);
            }
            if (!failed || testing::Test::HasFailure())
                break;
        }
    EXPECT_LT(count, Most);
    return count;
}
