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
