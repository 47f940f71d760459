#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/owned.h>

#include "platform/print_text.h"

namespace mqp::test {
namespace {

// --- strings ---

using Texts = std::vector<CString>;

void Add(StringValues& list, const Texts& texts) {
  for (const CString& text : texts) {
    list.AddTail(text);
  }
}

/// Reads forwards, and checks that the way back and the count say the same.
Texts Read(const StringValues& list) {
  Texts texts;
  for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
    texts.push_back(list.GetNext(position));
  }
  Texts backwards;
  for (POSITION position = list.GetTailPosition(); position != nullptr;) {
    backwards.insert(backwards.begin(), list.GetPrev(position));
  }
  EXPECT_EQ(texts, backwards);
  EXPECT_EQ(list.GetCount(), static_cast<int>(texts.size()));
  return texts;
}

const Texts kAbc = {MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c")};
const Texts kXy = {MQ_TEXT("x"), MQ_TEXT("y")};

TEST(StringValues, ACopyHoldsEqualStringsOfItsOwn) {
  auto source = std::make_unique<StringValues>();
  Add(*source, kAbc);
  StringValues copy(*source);
  EXPECT_EQ(Read(copy), kAbc);
  EXPECT_NE(copy.GetHeadPosition(), source->GetHeadPosition());

  source->GetHead() = MQ_TEXT("changed");
  source->RemoveTail();
  EXPECT_EQ(Read(copy), kAbc);
  copy.AddTail(MQ_TEXT("d"));
  EXPECT_EQ(Read(*source), (Texts{MQ_TEXT("changed"), MQ_TEXT("b")}));
  source.reset();
  EXPECT_EQ(Read(copy), (Texts{MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c"), MQ_TEXT("d")}));
}

TEST(StringValues, AnAssignmentReplacesWhatTheTargetHeld) {
  for (const Texts& held : {Texts(), kXy}) {
    for (const Texts& assigned : {Texts(), kAbc}) {
      StringValues source;
      Add(source, assigned);
      StringValues target;
      Add(target, held);
      EXPECT_EQ(&(target = source), &target);
      EXPECT_EQ(Read(target), assigned);
      EXPECT_EQ(Read(source), assigned);
    }
  }
}

TEST(StringValues, AssignedToItselfItKeepsItsPositions) {
  StringValues list;
  Add(list, kAbc);
  const POSITION head = list.GetHeadPosition();
  const StringValues& itself = list;
  list = itself;
  EXPECT_EQ(list.GetHeadPosition(), head);
  EXPECT_EQ(Read(list), kAbc);
}

TEST(StringValues, AMoveTakesTheStringsAndTheirPositions) {
  StringValues source;
  Add(source, kAbc);
  const POSITION head = source.GetHeadPosition();
  StringValues taken(std::move(source));
  EXPECT_EQ(taken.GetHeadPosition(), head);
  EXPECT_EQ(Read(taken), kAbc);
  EXPECT_EQ(Read(source), Texts());  // promised of a list that was moved

  StringValues target;
  Add(target, kXy);
  target = std::move(taken);
  EXPECT_EQ(target.GetHeadPosition(), head);
  EXPECT_EQ(Read(target), kAbc);
  EXPECT_EQ(Read(taken), Texts());  // promised of a list that was moved
  Add(taken, kXy);
  EXPECT_EQ(Read(taken), kXy);
  EXPECT_EQ(Read(target), kAbc);
}

// --- values ---

std::vector<double> Read(const ValueArray<double>& array) {
  std::vector<double> values;
  for (int index = 0; index < array.GetSize(); ++index) {
    values.push_back(array.GetAt(index));
  }
  return values;
}

TEST(ValueArray, ACopyHoldsEqualElementsOfItsOwn) {
  auto source = std::make_unique<ValueArray<double>>();
  source->Add(1.5);
  source->Add(-2.0);
  ValueArray<double> copy(*source);
  EXPECT_EQ(Read(copy), (std::vector{1.5, -2.0}));

  source->SetAt(0, 7.0);
  source->RemoveAt(1);
  EXPECT_EQ(Read(copy), (std::vector{1.5, -2.0}));
  copy.Add(3.0);
  EXPECT_EQ(Read(*source), std::vector{7.0});
  source.reset();
  EXPECT_EQ(Read(copy), (std::vector{1.5, -2.0, 3.0}));
}

TEST(ValueArray, AnAssignmentReplacesWhatTheTargetHeld) {
  ValueArray<double> source;
  source.Add(1.5);
  ValueArray<double> target;
  target.Add(8.0);
  target.Add(9.0);
  EXPECT_EQ(&(target = source), &target);
  EXPECT_EQ(Read(target), std::vector{1.5});
  source.SetAt(0, 2.0);
  EXPECT_EQ(Read(target), std::vector{1.5});
  target = ValueArray<double>();
  EXPECT_TRUE(target.IsEmpty());
}

TEST(ValueArray, AssignedToItselfItStaysAsItIs) {
  ValueArray<double> array;
  array.Add(1.5);
  array.Add(2.5);
  const ValueArray<double>& itself = array;
  array = itself;
  EXPECT_EQ(Read(array), (std::vector{1.5, 2.5}));
}

TEST(ValueArray, AMoveTakesTheElements) {
  ValueArray<double> source;
  source.Add(1.5);
  const double* elements = source.GetData();
  ValueArray<double> target;
  target.Add(8.0);
  target = std::move(source);
  EXPECT_EQ(target.GetData(), elements);
  EXPECT_EQ(Read(target), std::vector{1.5});
  ValueArray<double> taken(std::move(target));
  EXPECT_EQ(taken.GetData(), elements);
  EXPECT_EQ(Read(taken), std::vector{1.5});
}

// --- owned objects ---

/// Counts the objects that are alive, copies included.
struct Body : CObject {
  Body(int bodyId, int& aliveBodies) : id(bodyId), alive(aliveBodies) { ++alive; }
  Body(const Body& other) : CObject(other), id(other.id), alive(other.alive) { ++alive; }
  Body& operator=(const Body&) = delete;
  ~Body() override { --alive; }
  int id;
  int& alive;
};

using Bodies = OwnedList<Body>;
using Objects = std::vector<const Body*>;

void Add(Bodies& list, const std::vector<int>& ids, int& alive) {
  for (const int id : ids) {
    list.Append(std::make_unique<Body>(id, alive));
  }
}

Objects ObjectsOf(const Bodies& list) {
  Objects objects;
  for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
    objects.push_back(list.GetNext(position));
  }
  EXPECT_EQ(list.GetCount(), static_cast<int>(objects.size()));
  return objects;
}

std::vector<int> Ids(const Bodies& list) {
  std::vector<int> ids;
  for (const Body* body : ObjectsOf(list)) {
    ids.push_back(body->id);
  }
  return ids;
}

TEST(OwnedList, AppendedObjectsStandInOrderAndAreReturned) {
  int alive = 0;
  {
    Bodies list;
    auto first = std::make_unique<Body>(1, alive);
    Body* const address = first.get();
    EXPECT_EQ(&list.Append(std::move(first)), address);
    Add(list, {2, 3}, alive);
    EXPECT_EQ(list.GetHead(), address);
    EXPECT_EQ(Ids(list), (std::vector{1, 2, 3}));
    EXPECT_EQ(alive, 3);
  }
  EXPECT_EQ(alive, 0);
}

TEST(OwnedList, ACopyOwnsCopies) {
  int alive = 0;
  {
    auto source = std::make_unique<Bodies>();
    Add(*source, {1, 2}, alive);
    Bodies copy(*source);
    EXPECT_EQ(alive, 4);
    EXPECT_EQ(Ids(copy), (std::vector{1, 2}));
    EXPECT_NE(copy.GetHead(), source->GetHead());
    EXPECT_NE(copy.GetTail(), source->GetTail());

    source->GetHead()->id = 9;
    EXPECT_EQ(Ids(copy), (std::vector{1, 2}));
    source.reset();
    EXPECT_EQ(alive, 2);
    EXPECT_EQ(Ids(copy), (std::vector{1, 2}));
  }
  EXPECT_EQ(alive, 0);
}

TEST(OwnedList, AnAssignmentDeletesWhatTheTargetHeld) {
  int alive = 0;
  for (const std::vector<int>& held : {std::vector<int>(), {7, 8, 9}}) {
    for (const std::vector<int>& assigned : {std::vector<int>(), {1, 2}}) {
      Bodies source;
      Add(source, assigned, alive);
      Bodies target;
      Add(target, held, alive);
      EXPECT_EQ(&(target = source), &target);
      EXPECT_EQ(Ids(target), assigned);
      EXPECT_EQ(Ids(source), assigned);
      EXPECT_EQ(alive, static_cast<int>(2 * assigned.size()));
    }
  }
  EXPECT_EQ(alive, 0);
}

TEST(OwnedList, AssignedToItselfItKeepsItsObjects) {
  int alive = 0;
  Bodies list;
  Add(list, {1, 2}, alive);
  const Objects objects = ObjectsOf(list);
  const Bodies& itself = list;
  list = itself;
  EXPECT_EQ(ObjectsOf(list), objects);
  Bodies& same = list;
  list = std::move(same);
  EXPECT_EQ(ObjectsOf(list), objects);
  EXPECT_EQ(Ids(list), (std::vector{1, 2}));
  EXPECT_EQ(alive, 2);
}

TEST(OwnedList, AMoveTakesTheObjectsAndDeletesThoseOfTheTarget) {
  int alive = 0;
  {
    Bodies source;
    Add(source, {1, 2}, alive);
    const Objects objects = ObjectsOf(source);
    Bodies taken(std::move(source));
    EXPECT_EQ(ObjectsOf(taken), objects);
    EXPECT_TRUE(source.IsEmpty());  // promised of a list that was moved

    Bodies target;
    Add(target, {7, 8, 9}, alive);
    target = std::move(taken);
    EXPECT_EQ(ObjectsOf(target), objects);
    EXPECT_TRUE(taken.IsEmpty());  // promised of a list that was moved
    EXPECT_EQ(alive, 2);
    Add(taken, {3}, alive);
    EXPECT_EQ(Ids(taken), std::vector{3});
    EXPECT_EQ(Ids(target), (std::vector{1, 2}));
  }
  EXPECT_EQ(alive, 0);
}

TEST(OwnedList, WhatIsRemovedIsTheCallers) {
  int alive = 0;
  {
    Bodies list;
    Add(list, {1, 2, 3, 4}, alive);
    const std::unique_ptr<Body> head(list.RemoveHead());
    const std::unique_ptr<Body> tail(list.RemoveTail());
    const std::unique_ptr<Body> second(list.GetHead());
    list.RemoveAt(list.GetHeadPosition());
    const std::unique_ptr<Body> third(list.GetHead());
    list.SetAt(list.GetHeadPosition(), std::make_unique<Body>(5, alive).release());
    EXPECT_EQ(alive, 5);
    EXPECT_EQ(head->id, 1);
    EXPECT_EQ(second->id, 2);
    EXPECT_EQ(third->id, 3);
    EXPECT_EQ(tail->id, 4);
    EXPECT_EQ(Ids(list), std::vector{5});
  }
  EXPECT_EQ(alive, 0);
}

TEST(OwnedList, RemoveAllForgetsTheObjectsAndDeleteAllDeletesThem) {
  int alive = 0;
  Bodies list;
  const std::unique_ptr<Body> forgotten(&list.Append(std::make_unique<Body>(1, alive)));
  list.RemoveAll();
  EXPECT_EQ(alive, 1);
  EXPECT_TRUE(list.IsEmpty());

  Add(list, {2, 3}, alive);
  list.DeleteAll();
  EXPECT_EQ(alive, 1);
  EXPECT_TRUE(list.IsEmpty());
  list.DeleteAll();
  Add(list, {4}, alive);
  EXPECT_EQ(Ids(list), std::vector{4});
}

static_assert(std::is_nothrow_move_constructible_v<StringValues> &&
              std::is_nothrow_move_assignable_v<StringValues>);
static_assert(std::is_nothrow_move_constructible_v<ValueArray<double>> &&
              std::is_nothrow_move_assignable_v<ValueArray<double>>);
static_assert(std::is_nothrow_move_constructible_v<Bodies> &&
              std::is_nothrow_move_assignable_v<Bodies>);

}  // namespace
}  // namespace mqp::test
