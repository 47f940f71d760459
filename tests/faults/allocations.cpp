#include "faults/allocations.h"

#include <cstdlib>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>
#include <mqPostCommon/platform/comm_funcs.h>

namespace {

constinit mqp::test::AllocationCounts g_counts;
constinit mqp::test::Refusals g_refusals;
constinit long g_asked = 0;  // since the refusals began

/// Null when it is refused.
void* Allocate(std::size_t size) noexcept {
  ++g_counts.allocations;
  ++g_asked;
  const bool isRefused =
      g_refusals.isOnce ? g_asked == g_refusals.first : g_asked >= g_refusals.first;
  void* const block = isRefused ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (block == nullptr) {
    ++g_counts.refusals;
    return nullptr;
  }
  ++g_counts.liveBlocks;
  g_counts.bytes += size;
  return block;
}

void GiveBack(void* block) noexcept {
  if (block != nullptr) {
    --g_counts.liveBlocks;
    std::free(block);
  }
}

/// The block stands in front of its aligned part, behind a gap that holds its address.
void* AllocateAligned(std::size_t size, std::align_val_t alignment) noexcept {
  const auto step = static_cast<std::size_t>(alignment);
  std::size_t room = size + step;
  void* const block = Allocate(room + sizeof(void*));
  if (block == nullptr) {
    return nullptr;
  }
  void* aligned = static_cast<void**>(block) + 1;
  aligned = std::align(step, size, aligned, room);
  static_cast<void**>(aligned)[-1] = block;
  return aligned;
}

void GiveBackAligned(void* aligned) noexcept {
  if (aligned != nullptr) {
    GiveBack(static_cast<void**>(aligned)[-1]);
  }
}

void* OrThrow(void* block) {
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

}  // namespace

// Weak under the thread sanitizer, which insists on a family of its own.
// clang-format off
MQ_REPLACEMENT void* operator new  (std::size_t size)                                                         { return OrThrow(Allocate(size)); }
MQ_REPLACEMENT void* operator new[](std::size_t size)                                                         { return OrThrow(Allocate(size)); }
MQ_REPLACEMENT void* operator new  (std::size_t size, const std::nothrow_t&) noexcept                         { return Allocate(size); }
MQ_REPLACEMENT void* operator new[](std::size_t size, const std::nothrow_t&) noexcept                         { return Allocate(size); }
MQ_REPLACEMENT void* operator new  (std::size_t size, std::align_val_t alignment)                             { return OrThrow(AllocateAligned(size, alignment)); }
MQ_REPLACEMENT void* operator new[](std::size_t size, std::align_val_t alignment)                             { return OrThrow(AllocateAligned(size, alignment)); }
MQ_REPLACEMENT void* operator new  (std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept { return AllocateAligned(size, alignment); }
MQ_REPLACEMENT void* operator new[](std::size_t size, std::align_val_t alignment, const std::nothrow_t&) noexcept { return AllocateAligned(size, alignment); }

MQ_REPLACEMENT void operator delete  (void* block) noexcept                                                   { GiveBack(block); }
MQ_REPLACEMENT void operator delete[](void* block) noexcept                                                   { GiveBack(block); }
MQ_REPLACEMENT void operator delete  (void* block, std::size_t) noexcept                                      { GiveBack(block); }
MQ_REPLACEMENT void operator delete[](void* block, std::size_t) noexcept                                      { GiveBack(block); }
MQ_REPLACEMENT void operator delete  (void* block, const std::nothrow_t&) noexcept                            { GiveBack(block); }
MQ_REPLACEMENT void operator delete[](void* block, const std::nothrow_t&) noexcept                            { GiveBack(block); }
MQ_REPLACEMENT void operator delete  (void* block, std::align_val_t) noexcept                                 { GiveBackAligned(block); }
MQ_REPLACEMENT void operator delete[](void* block, std::align_val_t) noexcept                                 { GiveBackAligned(block); }
MQ_REPLACEMENT void operator delete  (void* block, std::size_t, std::align_val_t) noexcept                    { GiveBackAligned(block); }
MQ_REPLACEMENT void operator delete[](void* block, std::size_t, std::align_val_t) noexcept                    { GiveBackAligned(block); }
MQ_REPLACEMENT void operator delete  (void* block, std::align_val_t, const std::nothrow_t&) noexcept          { GiveBackAligned(block); }
MQ_REPLACEMENT void operator delete[](void* block, std::align_val_t, const std::nothrow_t&) noexcept          { GiveBackAligned(block); }
// clang-format on

namespace mqp::test {

AllocationCounts CountAllocations() noexcept {
  return g_counts;
}

void BeginRefusals(Refusals refusals) noexcept {
  g_asked = 0;
  g_refusals = refusals;
}

void EndRefusals() noexcept {
  g_refusals = {};
}

namespace {

bool IsLibraryWatched() {
  CDspAsmCompList list;
  const CDspAsmComp component;
  const long before = g_counts.allocations;
  list.Add(component);
  return g_counts.allocations != before;
}

bool IsStringTableWatched() {
  constexpr UINT kText = 54600;
  const long before = g_counts.allocations;
  CString text;
  mqpLoadString(text, kText);
  return g_counts.allocations != before;
}

void RequireWatched(bool isWatched, bool isReplaced) {
  if (!isWatched) {
    ASSERT_TRUE(!isReplaced || std::getenv("MQ_INSTRUMENTED") != nullptr)
        << "memory is handed out that nobody counts";
    GTEST_SKIP() << "the memory is not that of this program";
  }
}

}  // namespace

void RequireLibraryWatched() {
  RequireWatched(IsLibraryWatched(), MQ_IS_REPLACED);
}

void RequireStringTableWatched() {
  RequireWatched(IsStringTableWatched(), MQ_IS_TABLE_REPLACED);
}

}  // namespace mqp::test
