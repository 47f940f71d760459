/// \file
/// Who deletes which flip record.
#pragma once

#include <array>
#include <cstddef>

#include <mqPostCommon/display/shell_flip_data.h>

namespace mqp::test {

/// Counts the deletions of flip records. The memory of a record that it watches is overwritten
/// when it is deleted, but freed only with the ledger, so that a second deletion is counted too.
/// With the ledger ends a balance: every record was deleted exactly once, and no memory was lost
/// since the ledger began. One at a time.
///
/// The library is watched where the program can take the place of its `operator delete`, that is,
/// not on Windows. Elsewhere nothing is counted, and the records are deleted as usual.
class RecordLedger {
 public:
  RecordLedger();
  RecordLedger(const RecordLedger&) = delete;
  RecordLedger& operator=(const RecordLedger&) = delete;
  ~RecordLedger();

  /// A new record to be deleted by someone else.
  CShellEntityID_FlipData* NewRecord(int first, int second, int third);
  /// Watches a record that the library made.
  void Watch(const CShellEntityID_FlipData* record);
  /// Expects that a watched record was deleted as often, if that is known.
  void ExpectDeletions(const CShellEntityID_FlipData* record, int count) const;
  [[nodiscard]] bool SeesTheLibrary() const noexcept { return m_seesTheLibrary; }

  /// Called for all memory that is given back; true when it is kept.
  bool Keep(void* memory) noexcept;

 private:
  struct Entry {
    void* memory;
    int deletions;
  };

  bool m_seesTheLibrary = false;
  long m_blocks = 0;
  std::size_t m_size = 0;
  std::array<Entry, 4096> m_entries;
};

/// Lets memory run out behind a number of allocations, until it is gone.
class ScarceMemory {
 public:
  explicit ScarceMemory(long allocations);
  ScarceMemory(const ScarceMemory&) = delete;
  ScarceMemory& operator=(const ScarceMemory&) = delete;
  ~ScarceMemory();
};

}  // namespace mqp::test
