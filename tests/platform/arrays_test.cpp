#include <algorithm>
#include <cstddef>
#include <numeric>
#include <ostream>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/exceptions.h>

#include "platform/print_text.h"

namespace {

using Integers = CArray<int, int>;
using Texts = CArray<CString>;

/// Too long for a string's own buffer, so that reading it after it was freed is an error.
constexpr const mqChar* kLongText = MQ_TEXT("a text that lies in memory of its own");

Integers Filled(const std::vector<int>& elements) {
  Integers array;
  for (const int element : elements) {
    array.Add(element);
  }
  return array;
}

template <class Element, class Argument>
std::vector<Element> Read(const CArray<Element, Argument>& array) {
  std::vector<Element> elements;
  for (int index = 0; index < array.GetSize(); ++index) {
    elements.push_back(array[index]);
  }
  return elements;
}

TEST(Array, ANewArrayIsEmpty) {
  const Integers array;
  EXPECT_EQ(array.GetSize(), 0);
  EXPECT_EQ(array.GetCount(), 0);
  EXPECT_EQ(array.GetUpperBound(), -1);
  EXPECT_TRUE(array.IsEmpty());
  EXPECT_EQ(array.GetData(), nullptr);
}

TEST(Array, AddReturnsTheIndexOfTheNewElement) {
  Integers array;
  EXPECT_EQ(array.Add(7), 0);
  EXPECT_EQ(array.Add(8), 1);
  EXPECT_EQ(array.Add(7), 2);
  EXPECT_EQ(Read(array), (std::vector{7, 8, 7}));
  EXPECT_EQ(array.GetSize(), 3);
  EXPECT_EQ(array.GetUpperBound(), 2);
  EXPECT_FALSE(array.IsEmpty());
}

TEST(Array, ElementsAreReadAndWrittenByEveryAccessor) {
  Integers array = Filled({1, 2, 3});
  array[0] = 10;
  array.ElementAt(1) = 20;
  array.SetAt(2, 30);
  const Integers& fixed = array;
  EXPECT_EQ(fixed[0], 10);
  EXPECT_EQ(fixed.GetAt(1), 20);
  EXPECT_EQ(array.GetAt(2), 30);
}

TEST(Array, TheDataIsOneBlock) {
  Integers array = Filled({1, 2, 3});
  EXPECT_EQ(array.GetData() + 2, &array[2]);
  array.GetData()[1] = 20;
  EXPECT_EQ(Read(array), (std::vector{1, 20, 3}));
  array.RemoveAll();
  EXPECT_EQ(array.GetData(), nullptr);
}

TEST(Array, SetSizeCutsOrFillsWithTheDefaultValue) {
  Integers array = Filled({1, 2, 3});
  array.SetSize(5, 16);
  EXPECT_EQ(Read(array), (std::vector{1, 2, 3, 0, 0}));
  array.SetSize(2);
  EXPECT_EQ(Read(array), (std::vector{1, 2}));
  array.SetSize(3);
  EXPECT_EQ(Read(array), (std::vector{1, 2, 0}));
  array.SetSize(0, -1);
  EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, SetAtGrowMakesRoomOnlyWhereItIsMissing) {
  Integers array = Filled({1, 2});
  array.SetAtGrow(1, 20);
  EXPECT_EQ(Read(array), (std::vector{1, 20}));
  array.SetAtGrow(2, 30);
  EXPECT_EQ(Read(array), (std::vector{1, 20, 30}));
  array.SetAtGrow(5, 60);
  EXPECT_EQ(Read(array), (std::vector{1, 20, 30, 0, 0, 60}));

  Integers empty;
  empty.SetAtGrow(0, 4);
  EXPECT_EQ(Read(empty), (std::vector{4}));
}

TEST(Array, ElementsAreInsertedAtTheFrontInTheMiddleAndAtTheEnd) {
  Integers array = Filled({1, 2});
  array.InsertAt(0, 10);
  array.InsertAt(2, 20);
  array.InsertAt(4, 30);
  EXPECT_EQ(Read(array), (std::vector{10, 1, 20, 2, 30}));
  array.InsertAt(1, 7, 3);
  EXPECT_EQ(Read(array), (std::vector{10, 7, 7, 7, 1, 20, 2, 30}));
  array.InsertAt(1, 9, 0);
  EXPECT_EQ(array.GetSize(), 8);
}

TEST(Array, ElementsAreRemovedAtTheFrontInTheMiddleAndAtTheEnd) {
  Integers array = Filled({1, 2, 3, 4, 5, 6});
  array.RemoveAt(0);
  array.RemoveAt(4);
  array.RemoveAt(1, 2);
  EXPECT_EQ(Read(array), (std::vector{2, 5}));
  array.RemoveAt(1, 0);
  EXPECT_EQ(Read(array), (std::vector{2, 5}));
  array.RemoveAt(0, 2);
  EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, RemovingNothingLeavesTextsAsTheyAre) {
  Texts array;
  array.Add(MQ_TEXT("a"));
  array.Add(kLongText);
  array.RemoveAt(0, 0);
  EXPECT_EQ(Read(array), (std::vector<CString>{MQ_TEXT("a"), kLongText}));
}

/// A number that can only be copied, as far as an array can tell.
struct CopiedNumber {
  CopiedNumber(int number = 0) : value(number) {}  // NOLINT(google-explicit-constructor)
  CopiedNumber(const CopiedNumber& other) : value(other.value) {}  // NOLINT: may throw
  CopiedNumber& operator=(const CopiedNumber&) = default;
  ~CopiedNumber() = default;
  bool operator==(const CopiedNumber&) const = default;
  int value;
};

TEST(Array, ElementsThatAreCopiedAreRemovedAtTheFrontInTheMiddleAndAtTheEnd) {
  static_assert(!std::is_nothrow_move_constructible_v<CopiedNumber>);
  CArray<CopiedNumber> array;
  for (const int number : {1, 2, 3, 4, 5, 6, 7}) {
    array.Add(number);
  }
  array.RemoveAt(0);
  EXPECT_EQ(Read(array), (std::vector<CopiedNumber>{2, 3, 4, 5, 6, 7}));
  array.RemoveAt(5);
  EXPECT_EQ(Read(array), (std::vector<CopiedNumber>{2, 3, 4, 5, 6}));
  array.RemoveAt(1, 2);
  EXPECT_EQ(Read(array), (std::vector<CopiedNumber>{2, 5, 6}));
  array.RemoveAt(1, 0);
  EXPECT_EQ(Read(array), (std::vector<CopiedNumber>{2, 5, 6}));
  array.RemoveAt(0, 3);
  EXPECT_TRUE(array.IsEmpty());
}

TEST(Array, AppendReturnsTheIndexOfTheFirstNewElement) {
  Integers array = Filled({1, 2});
  EXPECT_EQ(array.Append(Filled({3, 4})), 2);
  EXPECT_EQ(Read(array), (std::vector{1, 2, 3, 4}));
  EXPECT_EQ(array.Append(Integers()), 4);
  EXPECT_EQ(array.GetSize(), 4);
}

TEST(Array, AnArrayAppendedToItselfIsDoubled) {
  Texts array;
  array.Add(kLongText);
  array.Add(MQ_TEXT("b"));
  EXPECT_EQ(array.Append(array), 2);
  EXPECT_EQ(Read(array), (std::vector<CString>{kLongText, MQ_TEXT("b"), kLongText, MQ_TEXT("b")}));
}

TEST(Array, CopyReplacesTheElementsAndTheCopyStandsByItself) {
  Integers array = Filled({9, 9, 9});
  const Integers source = Filled({1, 2});
  array.Copy(source);
  array[0] = 10;
  EXPECT_EQ(Read(array), (std::vector{10, 2}));
  EXPECT_EQ(Read(source), (std::vector{1, 2}));
  array.Copy(array);
  EXPECT_EQ(Read(array), (std::vector{10, 2}));
}

TEST(Array, RemovingAllAndFreeingTheRestLeavesAUsableArray) {
  Integers array = Filled({1, 2, 3});
  array.RemoveAll();
  array.FreeExtra();
  EXPECT_EQ(array.GetSize(), 0);
  EXPECT_EQ(array.Add(4), 0);
  array.FreeExtra();
  EXPECT_EQ(Read(array), (std::vector{4}));
}

TEST(Array, AnElementOfTheArrayItselfMayBeAddedAtEverySize) {
  Texts array;
  array.Add(kLongText);
  for (int size = 1; size < 70; ++size) {
    EXPECT_EQ(array.Add(array[0]), size);
  }
  for (const CString& text : Read(array)) {
    ASSERT_EQ(text, CString(kLongText));
  }
}

TEST(Array, AnElementOfTheArrayItselfMayBeInserted) {
  for (int size = 1; size < 20; ++size) {
    Texts array;
    array.SetSize(size);
    array.FreeExtra();
    array[size - 1] = kLongText;
    array.InsertAt(0, array[size - 1]);
    ASSERT_EQ(array[0], CString(kLongText)) << "size " << size;
    array.InsertAt(1, array[size], 2);
    ASSERT_EQ(array[1], CString(kLongText)) << "size " << size;
    ASSERT_EQ(array[2], CString(kLongText)) << "size " << size;
    ASSERT_EQ(array[size + 2], CString(kLongText)) << "size " << size;
  }
}

TEST(Array, AnElementOfTheArrayItselfMayBeSetBehindItsEnd) {
  for (int size = 1; size < 20; ++size) {
    Texts array;
    array.SetSize(size);
    array.FreeExtra();
    array[0] = kLongText;
    array.SetAtGrow(size + 3, array[0]);
    ASSERT_EQ(array.GetSize(), size + 4);
    ASSERT_EQ(array[0], CString(kLongText)) << "size " << size;
    ASSERT_EQ(array[size + 2], CString()) << "size " << size;
    ASSERT_EQ(array[size + 3], CString(kLongText)) << "size " << size;
  }
}

TEST(Array, ElementsMayBeTakenByReferenceThatIsNotConstant) {
  CArray<CString, CString&> array;
  CString text(kLongText);
  array.Add(text);
  array.SetAtGrow(2, array[0]);
  EXPECT_EQ(Read(array), (std::vector<CString>{kLongText, CString(), kLongText}));
}

TEST(Array, AnArrayIsMovedButNotCopiedByItself) {
  static_assert(!std::is_copy_constructible_v<Integers> && !std::is_copy_assignable_v<Integers>);
  Integers source = Filled({1, 2});
  Integers array = std::move(source);
  EXPECT_EQ(Read(array), (std::vector{1, 2}));
  array = Filled({3});
  EXPECT_EQ(Read(array), (std::vector{3}));
}

/// Remembers how it came to where it is: how often it was copied on the way, and whether it was
/// ever assigned. A moved element says nothing of it and leaves 0 behind.
struct Traveller {
  Traveller() = default;
  explicit Traveller(int number) : value(number) {}
  Traveller(const Traveller& other)
      : value(other.value), copies(other.copies + 1), isAssigned(other.isAssigned) {}
  Traveller(Traveller&& other) noexcept
      : value(std::exchange(other.value, 0)), copies(other.copies), isAssigned(other.isAssigned) {}
  Traveller& operator=(const Traveller& other) {
    value = other.value;
    isAssigned = true;
    return *this;
  }
  Traveller& operator=(Traveller&& other) noexcept {
    value = std::exchange(other.value, 0);
    isAssigned = true;
    return *this;
  }
  ~Traveller() = default;

  int value = 0;
  int copies = 0;
  bool isAssigned = false;

  friend void PrintTo(const Traveller& traveller, std::ostream* out) {
    *out << traveller.value << ", copied " << traveller.copies << " times"
         << (traveller.isAssigned ? ", assigned" : "");
  }
  /// Compares everything.
  bool operator==(const Traveller&) const = default;
};

using Travellers = CArray<Traveller>;

/// The values 1, 2, ... of elements that were never copied, with room behind them for more.
Travellers Boarded(int size) {
  Travellers array;
  array.SetSize(size + 8);
  array.SetSize(size);
  for (int index = 0; index < size; ++index) {
    array[index].value = index + 1;
  }
  return array;
}

/// A traveller as it is after a number of copies.
Traveller Copied(int value, int copies) {
  Traveller traveller(value);
  traveller.copies = copies;
  return traveller;
}

std::vector<Traveller> Travelled(const Travellers& array) {
  std::vector<Traveller> elements;
  elements.reserve(static_cast<std::size_t>(array.GetSize()));
  for (int index = 0; index < array.GetSize(); ++index) {
    elements.push_back(Copied(array[index].value, array[index].copies));
    elements.back().isAssigned = array[index].isAssigned;
  }
  return elements;
}

std::vector<Traveller> Expected(const std::vector<std::pair<int, int>>& valuesAndCopies) {
  std::vector<Traveller> elements;
  elements.reserve(valuesAndCopies.size());
  for (const auto& [value, copies] : valuesAndCopies) {
    elements.emplace_back(value).copies = copies;
  }
  return elements;
}

TEST(Array, ElementsAreMovedToTheirNewPlaceWhenTheArrayGrows) {
  Travellers array = Boarded(2);
  array.FreeExtra();
  array.Add(Traveller(9));
  EXPECT_EQ(Travelled(array), Expected({{1, 0}, {2, 0}, {9, 1}}));
  array.SetSize(5);
  EXPECT_EQ(Travelled(array), Expected({{1, 0}, {2, 0}, {9, 1}, {0, 0}, {0, 0}}));
  array.SetSize(1);
  array.FreeExtra();
  EXPECT_EQ(Travelled(array), Expected({{1, 0}}));
}

TEST(Array, ElementsBesideARemovedOneAreMovedAndNeverAssigned) {
  for (int size = 0; size <= 5; ++size) {
    for (int index = 0; index <= size; ++index) {
      for (int count = 0; index + count <= size; ++count) {
        Travellers array = Boarded(size);
        array.RemoveAt(index, count);
        std::vector<std::pair<int, int>> expected;
        for (int value = 1; value <= size; ++value) {
          if (value <= index || value > index + count) {
            expected.emplace_back(value, 0);
          }
        }
        ASSERT_EQ(Travelled(array), Expected(expected))
            << "removed " << count << " at " << index << " of " << size;
      }
    }
  }
}

TEST(Array, ElementsBesideAnInsertedOneAreMovedAndNeverAssigned) {
  for (int size = 0; size <= 5; ++size) {
    for (int index = 0; index <= size; ++index) {
      for (int count = 0; count <= 3; ++count) {
        Travellers array = Boarded(size);
        const Traveller inserted(9);
        array.InsertAt(index, inserted, count);
        ASSERT_EQ(array.GetSize(), size + count);
        const std::vector<Traveller> got = Travelled(array);
        for (int at = 0; at < size + count; ++at) {
          const Traveller& element = got[static_cast<std::size_t>(at)];
          const bool isInserted = at >= index && at < index + count;
          const int old = at < index ? at : at - count;
          ASSERT_EQ(element.value, isInserted ? 9 : old + 1)
              << "inserted " << count << " at " << index << " of " << size << ", element " << at;
          ASSERT_EQ(element.copies > 0, isInserted);
          ASSERT_FALSE(element.isAssigned);
        }
        ASSERT_EQ(inserted, Copied(9, 0));
      }
    }
  }
}

TEST(Array, EveryElementOfTheArrayMayBeInsertedAtEveryPlace) {
  for (int size = 1; size <= 4; ++size) {
    for (int index = 0; index <= size; ++index) {
      for (int from = 0; from < size; ++from) {
        for (int count = 0; count <= 3; ++count) {
          Texts array;
          std::vector<CString> expected;
          for (int number = 0; number < size; ++number) {
            CString text(kLongText);
            text.AppendFormat(MQ_TEXT(" %d"), number);
            array.Add(text);
            expected.push_back(text);
          }
          const CString inserted = expected[static_cast<std::size_t>(from)];
          expected.insert(expected.begin() + index, static_cast<std::size_t>(count), inserted);
          array.InsertAt(index, array[from], count);
          ASSERT_EQ(Read(array), expected) << "element " << from << " at " << index << " of "
                                           << size << ", " << count << " times";
        }
      }
    }
  }
}

TEST(Array, ElementsArePutInEveryOrderWithoutAnAssignment) {
  for (int size = 0; size <= 4; ++size) {
    std::vector<int> order(static_cast<std::size_t>(size));
    std::iota(order.begin(), order.end(), 0);
    do {
      Travellers array = Boarded(size);
      array.Reorder(order);
      std::vector<std::pair<int, int>> expected;
      for (const int index : order) {
        expected.emplace_back(index + 1, 0);
      }
      ASSERT_EQ(Travelled(array), Expected(expected)) << ::testing::PrintToString(order);
    } while (std::next_permutation(order.begin(), order.end()));
  }
}

TEST(Array, ACopyConstructsElementsAndAssignsNone) {
  for (const int size : {0, 1, 3, 8}) {
    Travellers array = Boarded(size);
    const Travellers source = Boarded(3);
    array.Copy(source);
    EXPECT_EQ(Travelled(array), Expected({{1, 1}, {2, 1}, {3, 1}})) << size;
    EXPECT_EQ(Travelled(source), Expected({{1, 0}, {2, 0}, {3, 0}})) << size;
    array.Copy(Travellers());
    EXPECT_TRUE(array.IsEmpty());
  }
  Travellers array = Boarded(2);
  array.Copy(array);
  EXPECT_EQ(Read(array).size(), 2U);
  EXPECT_EQ(array[1].value, 2);
  EXPECT_FALSE(array[1].isAssigned);
}

TEST(Array, OnlySettingAnElementAssignsIt) {
  Travellers array = Boarded(2);
  array.SetAt(1, array[0]);
  EXPECT_EQ(array[1].value, 1);
  EXPECT_TRUE(array[1].isAssigned);
  EXPECT_FALSE(array[0].isAssigned);
  array.SetAt(0, array[0]);
  EXPECT_EQ(array[0].value, 1);
}

/// Elements that are alive.
struct Counted {
  Counted() { ++alive; }
  Counted(const Counted&) { ++alive; }
  Counted(Counted&&) noexcept { ++alive; }
  Counted& operator=(const Counted&) = default;
  Counted& operator=(Counted&&) noexcept = default;
  ~Counted() { --alive; }

  static int alive;
};
int Counted::alive = 0;

TEST(Array, ElementsLiveAsLongAsTheyAreInTheArray) {
  {
    CArray<Counted> array;
    array.SetSize(5);
    EXPECT_EQ(Counted::alive, 5);
    array.RemoveAt(1, 2);
    EXPECT_EQ(Counted::alive, 3);
    array.InsertAt(1, array[0], 4);
    EXPECT_EQ(Counted::alive, 7);
    array.Reorder(std::vector{6, 5, 4, 3, 2, 1, 0});
    EXPECT_EQ(Counted::alive, 7);
    CArray<Counted> copy;
    copy.SetSize(2);
    copy.Copy(array);
    EXPECT_EQ(Counted::alive, 14);
    copy.SetSize(1);
    EXPECT_EQ(Counted::alive, 8);
    array.RemoveAll();
    EXPECT_EQ(Counted::alive, 1);
  }
  EXPECT_EQ(Counted::alive, 0);
}

TEST(InvalidArgument, IsCaughtByItsOwnNameAndAsEachStandardBase) {
  EXPECT_THROW(throw CInvalidArgException(), CInvalidArgException);
  EXPECT_THROW(throw CInvalidArgException(), std::invalid_argument);
  EXPECT_THROW(throw CInvalidArgException(), std::logic_error);
  EXPECT_THROW(throw CInvalidArgException(), std::exception);
}

TEST(InvalidArgument, SaysWhatItWasTold) {
  EXPECT_STREQ(CInvalidArgException().what(), "invalid argument");
  EXPECT_STREQ(CInvalidArgException("index 5 of 3").what(), "index 5 of 3");
  EXPECT_STREQ(CInvalidArgException(std::string("index -1 of 3")).what(), "index -1 of 3");
}

}  // namespace
