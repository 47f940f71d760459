#include "display/record_ledger.h"

#include <atomic>
#include <cstdlib>
#include <cstring>
#include <new>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>

namespace {

std::atomic<long> g_blocks = 0;       // allocated and not given back
std::atomic<long> g_allocations = 0;  // ever made
constexpr long kPlenty = -1;
std::atomic<long> g_allocationsLeft = kPlenty;
mqp::test::RecordLedger* g_ledger = nullptr;

void GiveBack(void* memory) noexcept {
  if (memory == nullptr) {
    return;
  }
  if (g_ledger != nullptr && g_ledger->Keep(memory)) {
    return;
  }
  --g_blocks;
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) {
  if (g_allocationsLeft == 0) {
    throw std::bad_alloc();
  }
  if (g_allocationsLeft != kPlenty) {
    --g_allocationsLeft;
  }
  void* memory = std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) {
    throw std::bad_alloc();
  }
  ++g_blocks;
  ++g_allocations;
  return memory;
}
void operator delete(void* memory) noexcept {
  GiveBack(memory);
}
void operator delete(void* memory, std::size_t /*size*/) noexcept {
  GiveBack(memory);
}

namespace mqp::test {

RecordLedger::RecordLedger() {
  EXPECT_EQ(g_ledger, nullptr);
  {
    CDspAsmCompList list;
    const CDspAsmComp component;
    const long before = g_allocations;
    list.Add(component);
    m_seesTheLibrary = g_allocations != before;
  }
  m_blocks = g_blocks;
  g_ledger = m_seesTheLibrary ? this : nullptr;
}

RecordLedger::~RecordLedger() {
  g_ledger = nullptr;
  for (std::size_t index = 0; index < m_size && m_seesTheLibrary; ++index) {
    EXPECT_EQ(m_entries[index].deletions, 1) << "deletions of record " << index;
    GiveBack(m_entries[index].memory);
  }
  // A failure is kept in memory of its own.
  if (m_seesTheLibrary && !::testing::Test::HasFailure()) {
    EXPECT_EQ(g_blocks - m_blocks, 0) << "blocks of memory were lost";
  }
}

CShellEntityID_FlipData* RecordLedger::NewRecord(int first, int second, int third) {
  auto* record = new CShellEntityID_FlipData;
  record->m_nHost1 = first;
  record->m_nHost2 = second;
  record->m_nHost3 = third;
  Watch(record);
  return record;
}

void RecordLedger::Watch(const CShellEntityID_FlipData* record) {
  if (!m_seesTheLibrary) {
    return;  // memory that is not kept comes back as another record
  }
  for (std::size_t index = 0; index < m_size; ++index) {
    ASSERT_NE(m_entries[index].memory, record) << "watched already";
  }
  ASSERT_LT(m_size, m_entries.size());
  m_entries[m_size++] = {const_cast<CShellEntityID_FlipData*>(record), 0};
}

void RecordLedger::ExpectDeletions(const CShellEntityID_FlipData* record, int count) const {
  for (std::size_t index = 0; index < m_size && m_seesTheLibrary; ++index) {
    if (m_entries[index].memory == record) {
      EXPECT_EQ(m_entries[index].deletions, count) << "deletions of record " << index;
      return;
    }
  }
  EXPECT_FALSE(m_seesTheLibrary) << "nobody watches this record";
}

bool RecordLedger::Keep(void* memory) noexcept {
  for (std::size_t index = 0; index < m_size; ++index) {
    if (m_entries[index].memory == memory) {
      ++m_entries[index].deletions;
      std::memset(memory, 0xDD, sizeof(CShellEntityID_FlipData));
      return true;
    }
  }
  return false;
}

ScarceMemory::ScarceMemory(long allocations) {
  g_allocationsLeft = allocations;
}
ScarceMemory::~ScarceMemory() {
  g_allocationsLeft = kPlenty;
}

}  // namespace mqp::test
