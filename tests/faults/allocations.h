/// \file
/// The memory of a program under watch: counted, and refused where a test says so. Every form of
/// `operator new` and `operator delete` is replaced, of the program and of the objects that are
/// linked into it. For one thread.
#pragma once

#include <climits>
#include <cstddef>
#include <new>
#include <utility>

#include <mqPostCommon/platform/wide_string.h>

namespace mqp::test {

/// What has been handed out since the program began.
struct AllocationCounts {
  long allocations = 0;
  long liveBlocks = 0;  ///< not given back yet
  std::size_t bytes = 0;
  long refusals = 0;
};

AllocationCounts CountAllocations() noexcept;

/// Which allocations are refused while an operation runs, counted from 1.
struct Refusals {
  long first = LONG_MAX;
  bool isOnce = false;
};

/// How an operation ended.
struct Outcome {
  bool isComplete = false;
  bool isOutOfMemory = false;  ///< it threw `std::bad_alloc`; anything else when neither holds
  long allocations = 0;        ///< that it asked for, refused ones included
  long refusals = 0;
  std::size_t bytes = 0;
};

void BeginRefusals(Refusals refusals) noexcept;
void EndRefusals() noexcept;

/// Runs an operation whose allocations are refused.
template <class Operation>
Outcome RunWith(Refusals refusals, Operation&& operation) {
  Outcome outcome;
  const AllocationCounts before = CountAllocations();
  BeginRefusals(refusals);
  try {
    std::forward<Operation>(operation)();
    EndRefusals();
    outcome.isComplete = true;
  } catch (const std::bad_alloc&) {
    EndRefusals();
    outcome.isOutOfMemory = true;
  } catch (...) {
    EndRefusals();
  }
  const AllocationCounts after = CountAllocations();
  outcome.allocations = after.allocations - before.allocations;
  outcome.refusals = after.refusals - before.refusals;
  outcome.bytes = after.bytes - before.bytes;
  return outcome;
}

/// Skips the test where an instrument or a platform gives the library, or the string table, other
/// memory than that of this program; fails anywhere else where that is not under watch. An
/// instrument says so by the environment variable MQ_INSTRUMENTED.
void RequireLibraryWatched();
/// Asked while every display text is too long for a string's own room.
void RequireStringTableWatched();

}  // namespace mqp::test
