#include <algorithm>
#include <functional>
#include <memory>
#include <new>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>

#include "display/display_test_support.h"
#include "display/record_ledger.h"

namespace mqp::test {
namespace {

static_assert(std::is_nothrow_move_constructible_v<CDspAsmComp>);

using Record = CShellEntityID_FlipData;
using Records = std::vector<Record*>;

struct Flags {
  int first;
  int second;
  bool owns;
};

// clang-format off
const Flags kFlags[] = {
    // first   second    owns
    { 0,        0,       false},
    { 0,        1,       true },
    { 0,        2,       false},
    { 0,       -1,       false},
    { 1,        0,       true },
    { 1,        1,       true },
    { 1,        2,       true },
    { 1,       -1,       true },
    { 2,        0,       false},
    { 2,        1,       true },
    { 2,        2,       false},
    { 2,       -1,       false},
    {-1,        0,       false},
    {-1,        1,       true },
    {-1,        2,       false},
    {-1,       -1,       false},
};
// clang-format on

std::string Name(const Flags& flags) {
  return "flags " + std::to_string(flags.first) + " and " + std::to_string(flags.second);
}

void ForEachFlags(const std::function<void(const Flags&)>& check) {
  for (const Flags& flags : kFlags) {
    SCOPED_TRACE(Name(flags));
    check(flags);
  }
}

void ForEachTwoFlags(const std::function<void(const Flags&, const Flags&)>& check) {
  for (const Flags& source : kFlags) {
    for (const Flags& target : kFlags) {
      SCOPED_TRACE("source " + Name(source) + ", target " + Name(target));
      check(source, target);
    }
  }
}

/// A component of two records with a null pointer between them.
CDspAsmComp Holding(RecordLedger& ledger, const Flags& flags, int value) {
  CDspAsmComp component;
  component.m_nCompID = value;
  component.m_nLastElem = value;
  component.m_nBodyID = value;
  component.m_strCompName.Format(MQ_TEXT("%d"), value);
  component.m_bOwnsMeshData = flags.first;
  component.m_bOwnsMeshData2 = flags.second;
  component.m_arrFlipData.Add(ledger.NewRecord(value, value + 1, value + 2));
  component.m_arrFlipData.Add(nullptr);
  component.m_arrFlipData.Add(ledger.NewRecord(-value, 0, value));
  return component;
}

Records RecordsOf(const CDspAsmComp& component) {
  return Read(component.m_arrFlipData);
}

/// Expects what `Holding` made of `value`.
void ExpectValues(const CDspAsmComp& component, int value) {
  ASSERT_EQ(component.m_arrFlipData.GetSize(), 3);
  const Record* record = component.m_arrFlipData[0];
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->m_nHost1, value);
  EXPECT_EQ(record->m_nHost2, value + 1);
  EXPECT_EQ(record->m_nHost3, value + 2);
  EXPECT_EQ(component.m_arrFlipData[1], nullptr);
  record = component.m_arrFlipData[2];
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->m_nHost1, -value);
  EXPECT_EQ(record->m_nHost2, 0);
  EXPECT_EQ(record->m_nHost3, value);
}

/// Expects records of a component's own, equal to those of `originals`; they are watched from
/// then on.
void ExpectNewRecords(RecordLedger& ledger, const CDspAsmComp& component, const Records& originals,
                      int value) {
  ExpectValues(component, value);
  for (const Record* record : RecordsOf(component)) {
    if (record != nullptr) {
      EXPECT_EQ(std::count(originals.begin(), originals.end(), record), 0);
      ledger.Watch(record);
    }
  }
}

/// Expects what a copy of a component with `flags` holds: records of its own or the same ones.
void ExpectCopied(RecordLedger& ledger, const CDspAsmComp& copy, const Flags& flags,
                  const Records& originals, int value) {
  if (flags.owns) {
    ExpectNewRecords(ledger, copy, originals, value);
  } else {
    ExpectValues(copy, value);
    EXPECT_EQ(RecordsOf(copy), originals);
  }
  EXPECT_EQ(copy.m_bOwnsMeshData, flags.first);
  EXPECT_EQ(copy.m_bOwnsMeshData2, flags.second);
}

void ExpectDeletions(const RecordLedger& ledger, const Records& records, int count) {
  for (const Record* record : records) {
    if (record != nullptr) {
      ledger.ExpectDeletions(record, count);
    }
  }
}

/// What the host does with the records of components without a flag.
void HostDeletes(const Records& records) {
  for (Record* record : records) {
    delete record;
  }
}

/// After the component is gone: expects that an owner deleted its records; else the host does.
void ExpectGone(const RecordLedger& ledger, const Flags& flags, const Records& records) {
  ExpectDeletions(ledger, records, flags.owns ? 1 : 0);
  if (!flags.owns) {
    HostDeletes(records);
  }
}

TEST(AssemblyOwnership, DeletionsByTheLibraryAreSeen) {
  RecordLedger ledger;
  if (!ledger.SeesTheLibrary()) {
    GTEST_SKIP() << "the library has an operator delete of its own";
  }
  Record* record = ledger.NewRecord(1, 2, 3);
  ledger.ExpectDeletions(record, 0);
  delete record;
  ledger.ExpectDeletions(record, 1);
}

TEST(AssemblyOwnership, OnlyAFlagOf1DeletesRecordsWithTheComponent) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Records records;
    {
      const CDspAsmComp component = Holding(ledger, flags, 10);
      records = RecordsOf(component);
      ExpectValues(component, 10);
      ExpectDeletions(ledger, records, 0);
    }
    ExpectGone(ledger, flags, records);
  });
}

TEST(AssemblyOwnership, TheFlagsAtTheEndOfAComponentDecide) {
  ForEachTwoFlags([](const Flags& first, const Flags& last) {
    RecordLedger ledger;
    Records records;
    {
      CDspAsmComp component = Holding(ledger, first, 10);
      records = RecordsOf(component);
      component.m_bOwnsMeshData = last.first;
      component.m_bOwnsMeshData2 = last.second;
      ExpectDeletions(ledger, records, 0);
    }
    ExpectGone(ledger, last, records);
  });
}

TEST(AssemblyOwnership, ACopyOfAnOwnerHasItsOwnRecordsAndAnyOtherTheSame) {
  for (const bool sourceGoesFirst : {false, true}) {
    ForEachFlags([sourceGoesFirst](const Flags& flags) {
      RecordLedger ledger;
      auto source = std::make_unique<CDspAsmComp>(Holding(ledger, flags, 10));
      const Records originals = RecordsOf(*source);
      auto copy = std::make_unique<CDspAsmComp>(*source);
      ExpectCopied(ledger, *copy, flags, originals, 10);
      EXPECT_EQ(RecordsOf(*source), originals);
      ExpectValues(*source, 10);
      const Records copies = RecordsOf(*copy);
      std::unique_ptr<CDspAsmComp>& first = sourceGoesFirst ? source : copy;
      std::unique_ptr<CDspAsmComp>& second = sourceGoesFirst ? copy : source;
      first.reset();
      ExpectDeletions(ledger, sourceGoesFirst ? originals : copies, flags.owns ? 1 : 0);
      ExpectValues(*second, 10);
      second.reset();
      ExpectGone(ledger, flags, originals);
      if (flags.owns) {
        ExpectDeletions(ledger, copies, 1);
      }
    });
  }
}

/// Does something with less memory than it needs. Returns whether it came to its end.
bool IsDoneWith(long allocations, const std::function<void()>& act) {
  const ScarceMemory scarce(allocations);
  try {
    act();
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

TEST(AssemblyOwnership, ACopyThatRunsOutOfMemoryLosesNothing) {
  long allocations = 0;
  for (bool done = false; !done; ++allocations) {
    SCOPED_TRACE(std::to_string(allocations) + " allocations");
    RecordLedger ledger;
    if (!ledger.SeesTheLibrary()) {
      GTEST_SKIP() << "the library has an operator new of its own";
    }
    const CDspAsmComp source = Holding(ledger, {1, 0, true}, 10);
    done = IsDoneWith(allocations, [&source] { const CDspAsmComp copy(source); });
    ExpectValues(source, 10);
  }
  EXPECT_GE(allocations, 3);  // two records and the array of them at least
}

TEST(AssemblyOwnership, AnAssignmentThatRunsOutOfMemoryLeavesTheTargetItsRecords) {
  long allocations = 0;
  for (bool done = false; !done; ++allocations) {
    SCOPED_TRACE(std::to_string(allocations) + " allocations");
    RecordLedger ledger;
    if (!ledger.SeesTheLibrary()) {
      GTEST_SKIP() << "the library has an operator new of its own";
    }
    const CDspAsmComp source = Holding(ledger, {1, 0, true}, 10);
    CDspAsmComp target = Holding(ledger, {1, 0, true}, 20);
    const Records records = RecordsOf(target);
    done = IsDoneWith(allocations, [&source, &target] { target = source; });
    ExpectValues(target, done ? 10 : 20);
    EXPECT_EQ(target.m_nCompID, done ? 10 : 20);
    if (done) {
      HostDeletes(records);
    }
  }
  EXPECT_GE(allocations, 3);
}

TEST(AssemblyOwnership, AnAssignmentMakesNewRecordsAndLeavesTheOldOnesToTheHost) {
  ForEachTwoFlags([](const Flags& sourceFlags, const Flags& targetFlags) {
    RecordLedger ledger;
    Records originals;
    Records copies;
    Records left;
    {
      const CDspAsmComp source = Holding(ledger, sourceFlags, 10);
      CDspAsmComp target = Holding(ledger, targetFlags, 20);
      originals = RecordsOf(source);
      left = RecordsOf(target);
      target = source;
      copies = RecordsOf(target);
      ExpectNewRecords(ledger, target, originals, 10);
      for (const Record* record : copies) {
        EXPECT_TRUE(record == nullptr || std::count(left.begin(), left.end(), record) == 0);
      }
      EXPECT_EQ(target.m_bOwnsMeshData, sourceFlags.first);
      EXPECT_EQ(target.m_bOwnsMeshData2, sourceFlags.second);
      EXPECT_EQ(RecordsOf(source), originals);
      ExpectValues(source, 10);
      ExpectDeletions(ledger, left, 0);
    }
    ExpectDeletions(ledger, left, 0);
    HostDeletes(left);
    ExpectGone(ledger, sourceFlags, originals);
    ExpectGone(ledger, sourceFlags, copies);
  });
}

TEST(AssemblyOwnership, AssignmentsOneAfterAnotherLeaveEachSetOfRecordsToTheHost) {
  RecordLedger ledger;
  Records left;
  {
    const CDspAsmComp source = Holding(ledger, {1, 0, true}, 10);
    CDspAsmComp target;
    for (int round = 0; round < 3; ++round) {
      left.insert(left.end(), target.m_arrFlipData.GetData(),
                  target.m_arrFlipData.GetData() + target.m_arrFlipData.GetSize());
      target = source;
      ExpectNewRecords(ledger, target, RecordsOf(source), 10);
    }
  }
  EXPECT_EQ(left.size(), 6U);
  ExpectDeletions(ledger, left, 0);
  HostDeletes(left);
}

TEST(AssemblyOwnership, AnAssignmentOfNoRecordsLeavesTheOldOnesToTheHost) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Records left;
    {
      CDspAsmComp target = Holding(ledger, flags, 10);
      left = RecordsOf(target);
      target = CDspAsmComp();
      EXPECT_TRUE(target.m_arrFlipData.IsEmpty());
    }
    ExpectDeletions(ledger, left, 0);
    HostDeletes(left);
  });
}

TEST(AssemblyOwnership, AnAssignmentToItselfKeepsTheRecords) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Records records;
    {
      CDspAsmComp component = Holding(ledger, flags, 10);
      records = RecordsOf(component);
      const CDspAsmComp& self = component;
      component = self;
      EXPECT_EQ(RecordsOf(component), records);
      ExpectValues(component, 10);
    }
    ExpectGone(ledger, flags, records);
  });
}

TEST(AssemblyOwnership, MovingHandsTheRecordsOver) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Records records;
    {
      auto source = std::make_unique<CDspAsmComp>(Holding(ledger, flags, 10));
      records = RecordsOf(*source);
      const CDspAsmComp target(std::move(*source));
      EXPECT_TRUE(source->m_arrFlipData.IsEmpty());
      source.reset();
      ExpectDeletions(ledger, records, 0);
      EXPECT_EQ(RecordsOf(target), records);
      ExpectValues(target, 10);
      EXPECT_EQ(target.m_bOwnsMeshData, flags.first);
      EXPECT_EQ(target.m_bOwnsMeshData2, flags.second);
    }
    ExpectGone(ledger, flags, records);
  });
}

TEST(AssemblyOwnership, AnArrayThatGrowsMovesItsComponents) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    std::vector<Records> records;
    {
      CArray<CDspAsmComp> array;
      for (int index = 0; index < 20; ++index) {
        array.SetSize(index + 1);
        CDspAsmComp& added = array[index];
        added.m_bOwnsMeshData = flags.first;
        added.m_bOwnsMeshData2 = flags.second;
        added.m_arrFlipData.Add(ledger.NewRecord(index, index + 1, index + 2));
        records.push_back(RecordsOf(added));
      }
      for (int index = 0; index < 20; ++index) {
        EXPECT_EQ(RecordsOf(array[index]), records[static_cast<std::size_t>(index)]);
        EXPECT_EQ(array[index].m_arrFlipData[0]->m_nHost1, index);
      }
    }
    for (const Records& gone : records) {
      ExpectGone(ledger, flags, gone);
    }
  });
}

/// A list and the records that each of its components holds.
struct Shelf {
  CDspAsmCompList list;
  std::vector<Records> records;
};

/// Puts copies of components that hold records of 10, 20 and 30 into a list. What the components
/// without a flag share with the list is still there.
void Fill(RecordLedger& ledger, const Flags& flags, Shelf& shelf) {
  for (const int value : {10, 20, 30}) {
    Records originals;
    {
      const CDspAsmComp component = Holding(ledger, flags, value);
      originals = RecordsOf(component);
      shelf.list.Add(component);
    }
    ExpectDeletions(ledger, originals, flags.owns ? 1 : 0);
    const CDspAsmComp& added = shelf.list.m_arrComps[shelf.list.GetSize() - 1];
    ExpectCopied(ledger, added, flags, originals, value);
    shelf.records.push_back(RecordsOf(added));
  }
}

void ExpectGone(const RecordLedger& ledger, const Flags& flags,
                const std::vector<Records>& records) {
  for (const Records& gone : records) {
    ExpectGone(ledger, flags, gone);
  }
}

void ExpectHeld(const CDspAsmCompList& list, const std::vector<Records>& records) {
  ASSERT_EQ(list.m_arrComps.GetSize(), static_cast<int>(records.size()));
  for (int index = 0; index < list.m_arrComps.GetSize(); ++index) {
    EXPECT_EQ(RecordsOf(list.m_arrComps[index]), records[static_cast<std::size_t>(index)]);
  }
}

TEST(AssemblyOwnership, AListDeletesTheRecordsOfItsOwners) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    std::vector<Records> records;
    {
      Shelf shelf;
      Fill(ledger, flags, shelf);
      ExpectHeld(shelf.list, shelf.records);
      records = shelf.records;
    }
    ExpectGone(ledger, flags, records);
  });
}

TEST(AssemblyOwnership, RemovingAllDeletesTheRecordsOfOwners) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, ACopyOfAListHasCopiesOfItsComponents) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    std::vector<Records> copies;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    {
      const CDspAsmCompList copy(shelf.list);
      for (int index = 0; index < 3; ++index) {
        ExpectCopied(ledger, copy.m_arrComps[index], flags,
                     shelf.records[static_cast<std::size_t>(index)], 10 * (index + 1));
        copies.push_back(RecordsOf(copy.m_arrComps[index]));
      }
    }
    if (flags.owns) {
      ExpectGone(ledger, flags, copies);
    }
    ExpectHeld(shelf.list, shelf.records);
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, AnAssignedListLetsItsOldComponentsGo) {
  ForEachTwoFlags([](const Flags& sourceFlags, const Flags& targetFlags) {
    RecordLedger ledger;
    std::vector<Records> copies;
    Shelf source;
    Fill(ledger, sourceFlags, source);
    Shelf target;
    Fill(ledger, targetFlags, target);
    target.list = source.list;
    ExpectGone(ledger, targetFlags, target.records);
    for (int index = 0; index < 3; ++index) {
      const CDspAsmComp& copy = target.list.m_arrComps[index];
      ExpectCopied(ledger, copy, sourceFlags, source.records[static_cast<std::size_t>(index)],
                   10 * (index + 1));
      copies.push_back(RecordsOf(copy));
    }
    target.list.RemoveAll();
    if (sourceFlags.owns) {
      ExpectGone(ledger, sourceFlags, copies);
    }
    ExpectHeld(source.list, source.records);
    source.list.RemoveAll();
    ExpectGone(ledger, sourceFlags, source.records);
  });
}

TEST(AssemblyOwnership, AListAssignedToItselfKeepsItsRecords) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    const CDspAsmCompList& self = shelf.list;
    shelf.list = self;
    ExpectHeld(shelf.list, shelf.records);
    for (int index = 0; index < 3; ++index) {
      ExpectValues(shelf.list.m_arrComps[index], 10 * (index + 1));
    }
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, AMovedListHandsItsComponentsOver) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    CDspAsmCompList moved(std::move(shelf.list));
    ExpectHeld(moved, shelf.records);
    CDspAsmCompList assigned;
    assigned = std::move(moved);
    ExpectHeld(assigned, shelf.records);
    assigned.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, SortingKeepsEveryComponentsRecords) {
  ForEachFlags([](const Flags& flags) {
    for (const int ascending : {0, 1}) {
      RecordLedger ledger;
      Shelf shelf;
      Fill(ledger, flags, shelf);
      shelf.list.m_arrComps[1].m_nLastElem = 25;
      shelf.list.m_arrComps[0].m_nLastElem = 27;
      EXPECT_EQ(shelf.list.SortByElemID(ascending), 1);
      const std::vector<int> values =
          ascending != 0 ? std::vector<int>{20, 10, 30} : std::vector<int>{30, 10, 20};
      std::vector<Records> after;
      for (int index = 0; index < 3; ++index) {
        const CDspAsmComp& component = shelf.list.m_arrComps[index];
        const int value = values[static_cast<std::size_t>(index)];
        EXPECT_EQ(component.m_nCompID, value);
        ExpectValues(component, value);
        after.push_back(RecordsOf(component));
        // Components may have been moved or copied on their way.
        const Records& before = shelf.records[static_cast<std::size_t>(value / 10 - 1)];
        if (after.back() != before) {
          EXPECT_TRUE(flags.owns);
          ExpectDeletions(ledger, before, 1);
          ExpectNewRecords(ledger, component, before, value);
        }
      }
      shelf.list.RemoveAll();
      ExpectGone(ledger, flags, after);
    }
  });
}

TEST(AssemblyOwnership, AComponentSetInAListIsAssigned) {
  ForEachTwoFlags([](const Flags& sourceFlags, const Flags& targetFlags) {
    for (const bool withValue : {false, true}) {
      RecordLedger ledger;
      Shelf shelf;
      Fill(ledger, targetFlags, shelf);
      Records originals;
      {
        const CDspAsmComp source = Holding(ledger, sourceFlags, 40);
        originals = RecordsOf(source);
        if (withValue) {
          shelf.list.SetAt(1, source, 9);
        } else {
          shelf.list.SetAt(1, source);
        }
        EXPECT_EQ(RecordsOf(source), originals);
      }
      ExpectGone(ledger, sourceFlags, originals);
      ExpectNewRecords(ledger, shelf.list.m_arrComps[1], originals, 40);
      const Records copies = RecordsOf(shelf.list.m_arrComps[1]);
      const Records left = std::exchange(shelf.records[1], Records());
      ExpectDeletions(ledger, left, 0);
      shelf.list.RemoveAll();
      ExpectGone(ledger, sourceFlags, copies);
      ExpectDeletions(ledger, left, 0);
      HostDeletes(left);
      ExpectGone(ledger, targetFlags, shelf.records);
    }
  });
}

TEST(AssemblyOwnership, AComponentReadFromAListIsACopy) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    for (const bool withValue : {false, true}) {
      Records copies;
      {
        int value = 0;
        const CDspAsmComp copy = withValue ? shelf.list.GetAt(1, &value) : shelf.list.GetAt(1);
        ExpectCopied(ledger, copy, flags, shelf.records[1], 20);
        copies = RecordsOf(copy);
      }
      ExpectDeletions(ledger, copies, flags.owns ? 1 : 0);
      ExpectHeld(shelf.list, shelf.records);
    }
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, ListsByNameHoldCopies) {
  ForEachFlags([](const Flags& flags) {
    for (const bool byBodyName : {false, true}) {
      RecordLedger ledger;
      Shelf shelf;
      Fill(ledger, flags, shelf);
      shelf.list.m_arrComps[1].m_strBodyName = MQ_TEXT("20");
      Records copies;
      {
        const CDspAsmCompList found = byBodyName
                                          ? shelf.list.GetCompListByBodyName(MQ_TEXT("20"))
                                          : shelf.list.GetCompListByComponentName(MQ_TEXT("20"));
        ASSERT_EQ(found.GetSize(), 1);
        ExpectCopied(ledger, found.m_arrComps[0], flags, shelf.records[1], 20);
        copies = RecordsOf(found.m_arrComps[0]);
      }
      ExpectDeletions(ledger, copies, flags.owns ? 1 : 0);
      ExpectHeld(shelf.list, shelf.records);
      shelf.list.RemoveAll();
      ExpectGone(ledger, flags, shelf.records);
    }
  });
}

TEST(AssemblyOwnership, AComponentFoundByItsBodyIsAssigned) {
  struct Row {
    long bodyId;
    int result;
    int value;
  };
  // clang-format off
  const Row rows[] = {
      // body    result    component
      {10,       1,        10},
      {30,       1,        30},
      {50,       0,        30},  // the last one
  };
  // clang-format on
  ForEachTwoFlags([&rows](const Flags& listFlags, const Flags& outFlags) {
    for (const Row& row : rows) {
      RecordLedger ledger;
      Shelf shelf;
      Fill(ledger, listFlags, shelf);
      Records copies;
      Records left;
      {
        CDspAsmComp out = Holding(ledger, outFlags, 70);
        left = RecordsOf(out);
        EXPECT_EQ(shelf.list.GetComponentByBodyID(row.bodyId, out), row.result);
        EXPECT_EQ(out.m_nCompID, row.value);
        ExpectNewRecords(ledger, out, shelf.records[static_cast<std::size_t>(row.value / 10 - 1)],
                         row.value);
        copies = RecordsOf(out);
      }
      ExpectDeletions(ledger, left, 0);
      HostDeletes(left);
      ExpectGone(ledger, listFlags, copies);
      ExpectHeld(shelf.list, shelf.records);
      shelf.list.RemoveAll();
      ExpectGone(ledger, listFlags, shelf.records);
    }
  });
}

TEST(AssemblyOwnership, AnArrayMovesItsComponentsWhenSomeAreRemoved) {
  ForEachFlags([](const Flags& flags) {
    for (int index = 0; index < 3; ++index) {
      for (int count = 0; index + count <= 3; ++count) {
        RecordLedger ledger;
        Shelf shelf;
        Fill(ledger, flags, shelf);
        shelf.list.GetDspAsmCompList().RemoveAt(index, count);
        for (int removed = 0; removed < count; ++removed) {
          ExpectGone(ledger, flags, shelf.records[static_cast<std::size_t>(index)]);
          shelf.records.erase(shelf.records.begin() + index);
        }
        ExpectHeld(shelf.list, shelf.records);
        shelf.list.RemoveAll();
        ExpectGone(ledger, flags, shelf.records);
      }
    }
  });
}

TEST(AssemblyOwnership, AnArrayMovesItsComponentsWhenCopiesAreInserted) {
  ForEachTwoFlags([](const Flags& listFlags, const Flags& flags) {
    for (int index = 0; index <= 3; ++index) {
      RecordLedger ledger;
      Shelf shelf;
      Fill(ledger, listFlags, shelf);
      Records originals;
      std::vector<Records> copies;
      {
        const CDspAsmComp inserted = Holding(ledger, flags, 40);
        originals = RecordsOf(inserted);
        shelf.list.GetDspAsmCompList().InsertAt(index, inserted, 2);
        EXPECT_EQ(RecordsOf(inserted), originals);
      }
      for (const int at : {index, index + 1}) {
        ExpectCopied(ledger, shelf.list.m_arrComps[at], flags, originals, 40);
        copies.push_back(RecordsOf(shelf.list.m_arrComps[at]));
      }
      std::vector<Records> held = shelf.records;
      held.insert(held.begin() + index, copies.begin(), copies.end());
      ExpectHeld(shelf.list, held);
      shelf.list.RemoveAll();
      if (flags.owns) {
        ExpectGone(ledger, flags, copies);
      }
      ExpectGone(ledger, flags, originals);
      ExpectGone(ledger, listFlags, shelf.records);
    }
  });
}

TEST(AssemblyOwnership, AnArrayMovesItsComponentsIntoAnotherOrder) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    shelf.list.GetDspAsmCompList().Reorder(std::vector{2, 0, 1});
    ExpectHeld(shelf.list, {shelf.records[2], shelf.records[0], shelf.records[1]});
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, AComponentOfAListMayBeAddedToIt) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    std::vector<Records> copies;
    for (int size = 3; size < 20; ++size) {
      EXPECT_EQ(shelf.list.Add(shelf.list.GetDspAsmCompList()[1]), size);
      ExpectCopied(ledger, shelf.list.m_arrComps[size], flags, shelf.records[1], 20);
      copies.push_back(RecordsOf(shelf.list.m_arrComps[size]));
    }
    shelf.list.RemoveAll();
    if (flags.owns) {
      ExpectGone(ledger, flags, copies);
    }
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, AComponentOfAListMayBeSetAtItsOwnPlace) {
  ForEachFlags([](const Flags& flags) {
    RecordLedger ledger;
    Shelf shelf;
    Fill(ledger, flags, shelf);
    shelf.list.SetAt(1, shelf.list.GetDspAsmCompList()[1]);
    ExpectHeld(shelf.list, shelf.records);
    ExpectValues(shelf.list.m_arrComps[1], 20);
    shelf.list.RemoveAll();
    ExpectGone(ledger, flags, shelf.records);
  });
}

TEST(AssemblyOwnership, SectionPropertiesAreSharedAndNeverDeleted) {
  // Not from the heap: deleting one would not go unnoticed.
  auto* first = static_cast<cSectPropPerMeshElem*>(SomeAddress(1));
  auto* second = static_cast<cSectPropPerMeshElem*>(SomeAddress(2));
  const std::vector<cSectPropPerMeshElem*> expected = {first, nullptr, second, first};
  ForEachFlags([&](const Flags& flags) {
    RecordLedger ledger;
    CDspAsmComp component;
    component.m_bOwnsMeshData = flags.first;
    component.m_bOwnsMeshData2 = flags.second;
    for (cSectPropPerMeshElem* property : expected) {
      component.m_arrSectProp.Add(property);
    }
    const CDspAsmComp copy(component);
    CDspAsmComp assigned;
    assigned = component;
    CDspAsmCompList list;
    list.Add(component);
    list.Add(component);
    list.SetAt(1, component);
    list.SortByElemID(1);
    const CDspAsmCompList copiedList(list);
    const CDspAsmComp* const all[] = {&component,          &copy,
                                      &assigned,           &list.m_arrComps[0],
                                      &list.m_arrComps[1], &copiedList.m_arrComps[0]};
    for (const CDspAsmComp* each : all) {
      EXPECT_EQ(Read(each->m_arrSectProp), expected);
    }
    const CDspAsmComp moved(std::move(component));
    EXPECT_EQ(Read(moved.m_arrSectProp), expected);
  });
}

}  // namespace
}  // namespace mqp::test
