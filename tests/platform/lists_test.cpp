#include <climits>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/lists.h>

#include "platform/print_text.h"

namespace {

struct Body : CObject {
  explicit Body(int bodyId) : id(bodyId) {}
  int id;
};

using Bodies = CTypedPtrList<CObList, Body*>;

/// Reads forwards, and checks that the way back shows the same.
std::vector<CString> Read(const CStringList& list) {
  std::vector<CString> texts;
  for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
    texts.push_back(list.GetNext(position));
  }
  std::vector<CString> backwards;
  for (POSITION position = list.GetTailPosition(); position != nullptr;) {
    backwards.insert(backwards.begin(), list.GetPrev(position));
  }
  EXPECT_EQ(texts, backwards);
  EXPECT_EQ(list.GetCount(), static_cast<int>(texts.size()));
  EXPECT_EQ(list.GetSize(), static_cast<int>(texts.size()));
  EXPECT_EQ(list.IsEmpty(), texts.empty());
  return texts;
}

std::vector<int> Ids(const Bodies& list) {
  std::vector<int> ids;
  for (POSITION position = list.GetHeadPosition(); position != nullptr;) {
    ids.push_back(list.GetNext(position)->id);
  }
  return ids;
}

using Expected = std::vector<CString>;

/// "a", "b", "c", and the positions of the three.
class ThreeTexts : public testing::Test {
 protected:
  CStringList m_list;
  POSITION m_a = m_list.AddTail(MQ_TEXT("a"));
  POSITION m_b = m_list.AddTail(MQ_TEXT("b"));
  POSITION m_c = m_list.AddTail(MQ_TEXT("c"));
};

TEST(StringList, ANewListIsEmpty) {
  const CStringList list;
  EXPECT_EQ(list.GetHeadPosition(), nullptr);
  EXPECT_EQ(list.GetTailPosition(), nullptr);
  EXPECT_EQ(list.FindIndex(0), nullptr);
  EXPECT_EQ(list.Find(MQ_TEXT("a")), nullptr);
  EXPECT_EQ(Read(list), Expected());
}

TEST(StringList, TheBlockSizeHasNoEffect) {
  CStringList list(1);
  list.AddTail(MQ_TEXT("a"));
  list.AddTail(MQ_TEXT("b"));
  EXPECT_EQ(Read(list), (Expected{MQ_TEXT("a"), MQ_TEXT("b")}));
}

/// Counts how many of its kind there are, copies included.
struct Copied {
  explicit Copied(int& owner) : count(&owner) { ++*count; }
  Copied(const Copied& other) : count(other.count) { ++*count; }
  Copied& operator=(const Copied&) = delete;
  ~Copied() { --*count; }
  int* count;
};

TEST(LinkedList, ValuesGoWithTheListThatHoldsThem) {
  int count = 0;
  {
    mqp::LinkedList<Copied> list;
    list.AddTail(Copied(count));
    list.AddTail(Copied(count));
    list.AddTail(Copied(count));
    list.AddTail(Copied(count));
    EXPECT_EQ(count, 4);
    list.RemoveAt(list.GetHeadPosition());
    EXPECT_EQ(count, 3);
    list.RemoveTail();
    EXPECT_EQ(count, 2);
    mqp::LinkedList<Copied> other;
    other.AddHead(Copied(count));
    other = std::move(list);
    EXPECT_EQ(count, 2);
  }
  EXPECT_EQ(count, 0);
}

TEST(StringList, ElementsAreAddedAtBothEnds) {
  CStringList list;
  const POSITION middle = list.AddHead(MQ_TEXT("b"));
  EXPECT_EQ(list.GetHeadPosition(), middle);
  EXPECT_EQ(list.GetTailPosition(), middle);
  const POSITION head = list.AddHead(MQ_TEXT("a"));
  EXPECT_EQ(list.GetHeadPosition(), head);
  const POSITION tail = list.AddTail(MQ_TEXT("c"));
  EXPECT_EQ(list.GetTailPosition(), tail);
  EXPECT_EQ(Read(list), (Expected{MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c")}));
  EXPECT_EQ(list.GetHead(), CString(MQ_TEXT("a")));
  EXPECT_EQ(list.GetTail(), CString(MQ_TEXT("c")));
}

TEST(StringList, ElementsComeAndGoInManyTimesTheirRoom) {
  CStringList list;
  Expected expected;
  for (int number = 0; number < 200; ++number) {
    CString text;
    text.Format(MQ_TEXT("%d"), number);
    list.InsertBefore(list.FindIndex(list.GetCount() / 2), text);
    expected.insert(expected.begin() + static_cast<int>(expected.size() / 2), text);
    if (number % 3 == 0) {
      const int removed = number % list.GetCount();
      list.RemoveAt(list.FindIndex(removed));
      expected.erase(expected.begin() + removed);
    }
    ASSERT_EQ(Read(list), expected) << number;
  }
  while (!list.IsEmpty()) {
    EXPECT_EQ(list.RemoveHead(), expected.front());
    expected.erase(expected.begin());
  }
  EXPECT_EQ(Read(list), Expected());
  list.AddTail(MQ_TEXT("a"));
  EXPECT_EQ(Read(list), Expected{MQ_TEXT("a")});
}

TEST_F(ThreeTexts, AreReadAndReplacedAtTheirPositions) {
  EXPECT_EQ(m_list.GetAt(m_b), CString(MQ_TEXT("b")));
  m_list.SetAt(m_b, MQ_TEXT("B"));
  m_list.GetHead() = MQ_TEXT("A");
  m_list.GetTail() = MQ_TEXT("C");
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("A"), MQ_TEXT("B"), MQ_TEXT("C")}));
  m_list.GetAt(m_a) += MQ_TEXT("+");
  POSITION position = m_b;
  m_list.GetNext(position) += MQ_TEXT("+");
  EXPECT_EQ(position, m_c);
  m_list.GetPrev(position) += MQ_TEXT("+");
  EXPECT_EQ(position, m_b);
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("A+"), MQ_TEXT("B+"), MQ_TEXT("C+")}));
}

TEST_F(ThreeTexts, EndWithANullPositionOnBothSides) {
  POSITION position = m_c;
  EXPECT_EQ(m_list.GetNext(position), CString(MQ_TEXT("c")));
  EXPECT_EQ(position, nullptr);
  position = m_a;
  EXPECT_EQ(m_list.GetPrev(position), CString(MQ_TEXT("a")));
  EXPECT_EQ(position, nullptr);
}

TEST_F(ThreeTexts, TakeInsertionsBeforeEachPosition) {
  const POSITION first = m_list.InsertBefore(m_a, MQ_TEXT("1"));
  m_list.InsertBefore(m_b, MQ_TEXT("2"));
  m_list.InsertBefore(m_c, MQ_TEXT("3"));
  EXPECT_EQ(first, m_list.GetHeadPosition());
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("1"), MQ_TEXT("a"), MQ_TEXT("2"), MQ_TEXT("b"),
                                    MQ_TEXT("3"), MQ_TEXT("c")}));
}

TEST_F(ThreeTexts, TakeInsertionsBehindEachPosition) {
  m_list.InsertAfter(m_a, MQ_TEXT("1"));
  m_list.InsertAfter(m_b, MQ_TEXT("2"));
  const POSITION last = m_list.InsertAfter(m_c, MQ_TEXT("3"));
  EXPECT_EQ(last, m_list.GetTailPosition());
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("a"), MQ_TEXT("1"), MQ_TEXT("b"), MQ_TEXT("2"),
                                    MQ_TEXT("c"), MQ_TEXT("3")}));
}

TEST_F(ThreeTexts, TakeInsertionsAtANullPositionAtTheNearerEnd) {
  const POSITION head = m_list.InsertBefore(nullptr, MQ_TEXT("head"));
  const POSITION tail = m_list.InsertAfter(nullptr, MQ_TEXT("tail"));
  EXPECT_EQ(m_list.GetHeadPosition(), head);
  EXPECT_EQ(m_list.GetTailPosition(), tail);
  EXPECT_EQ(Read(m_list),
            (Expected{MQ_TEXT("head"), MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c"), MQ_TEXT("tail")}));
}

TEST(StringList, AnInsertionAtANullPositionOfAnEmptyListIsItsOnlyElement) {
  CStringList before;
  before.InsertBefore(nullptr, MQ_TEXT("a"));
  EXPECT_EQ(Read(before), Expected{MQ_TEXT("a")});
  CStringList after;
  after.InsertAfter(nullptr, MQ_TEXT("a"));
  EXPECT_EQ(Read(after), Expected{MQ_TEXT("a")});
}

TEST_F(ThreeTexts, LoseTheHeadTheMiddleOrTheTail) {
  m_list.RemoveAt(m_b);
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("a"), MQ_TEXT("c")}));
  m_list.RemoveAt(m_a);
  EXPECT_EQ(Read(m_list), Expected{MQ_TEXT("c")});
  EXPECT_EQ(m_list.GetHeadPosition(), m_c);
  m_list.RemoveAt(m_c);
  EXPECT_EQ(Read(m_list), Expected());
  EXPECT_EQ(m_list.GetHeadPosition(), nullptr);
  EXPECT_EQ(m_list.GetTailPosition(), nullptr);
  m_list.AddTail(MQ_TEXT("d"));
  EXPECT_EQ(Read(m_list), Expected{MQ_TEXT("d")});
}

TEST_F(ThreeTexts, AreReturnedWhenTheyAreRemovedAtTheEnds) {
  EXPECT_EQ(m_list.RemoveHead(), CString(MQ_TEXT("a")));
  EXPECT_EQ(m_list.RemoveTail(), CString(MQ_TEXT("c")));
  EXPECT_EQ(Read(m_list), Expected{MQ_TEXT("b")});
  EXPECT_EQ(m_list.RemoveTail(), CString(MQ_TEXT("b")));
  EXPECT_EQ(Read(m_list), Expected());
}

TEST_F(ThreeTexts, KeepTheirPositionsWhileOthersComeAndGo) {
  m_list.RemoveAt(m_a);
  m_list.AddHead(MQ_TEXT("1"));
  m_list.InsertAfter(m_b, MQ_TEXT("2"));
  m_list.RemoveAt(m_c);
  EXPECT_EQ(m_list.GetAt(m_b), CString(MQ_TEXT("b")));
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("1"), MQ_TEXT("b"), MQ_TEXT("2")}));
}

TEST(StringList, EachElementMayBeRemovedWhileTheListIsWalked) {
  for (const mqChar* unwanted : {MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c")}) {
    CStringList list;
    list.AddTail(MQ_TEXT("a"));
    list.AddTail(MQ_TEXT("b"));
    list.AddTail(MQ_TEXT("c"));
    int visited = 0;
    for (POSITION position = list.GetHeadPosition(); position != nullptr; ++visited) {
      const POSITION current = position;
      if (list.GetNext(position) == unwanted) {
        list.RemoveAt(current);
      }
    }
    EXPECT_EQ(visited, 3);
    EXPECT_EQ(list.Find(unwanted), nullptr);
    EXPECT_EQ(Read(list).size(), 2U);
  }
}

TEST_F(ThreeTexts, AreAllRemovedWhileTheListIsWalked) {
  for (POSITION position = m_list.GetHeadPosition(); position != nullptr;) {
    const POSITION current = position;
    m_list.GetNext(position);
    m_list.RemoveAt(current);
  }
  EXPECT_EQ(Read(m_list), Expected());
}

TEST_F(ThreeTexts, AreFoundByTheirTextExactly) {
  EXPECT_EQ(m_list.Find(MQ_TEXT("a")), m_a);
  EXPECT_EQ(m_list.Find(MQ_TEXT("c")), m_c);
  EXPECT_EQ(m_list.Find(MQ_TEXT("A")), nullptr);
  EXPECT_EQ(m_list.Find(MQ_TEXT("")), nullptr);
}

TEST_F(ThreeTexts, AreFoundOnlyBehindTheGivenPosition) {
  const POSITION second = m_list.AddTail(MQ_TEXT("a"));
  EXPECT_EQ(m_list.Find(MQ_TEXT("a"), nullptr), m_a);
  EXPECT_EQ(m_list.Find(MQ_TEXT("a"), m_a), second);
  EXPECT_EQ(m_list.Find(MQ_TEXT("a"), second), nullptr);
  EXPECT_EQ(m_list.Find(MQ_TEXT("b"), m_b), nullptr);
}

TEST_F(ThreeTexts, AreFoundByTheirIndex) {
  EXPECT_EQ(m_list.FindIndex(0), m_a);
  EXPECT_EQ(m_list.FindIndex(1), m_b);
  EXPECT_EQ(m_list.FindIndex(2), m_c);
  for (const int index : {-1, 3, 4, INT_MIN, INT_MAX}) {
    EXPECT_EQ(m_list.FindIndex(index), nullptr) << "index " << index;
  }
}

TEST_F(ThreeTexts, MayBeAddedToTheirOwnList) {
  m_list.AddTail(m_list.GetHead());
  m_list.AddHead(m_list.GetAt(m_b));
  m_list.SetAt(m_c, m_list.GetAt(m_c));
  EXPECT_EQ(Read(m_list),
            (Expected{MQ_TEXT("b"), MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c"), MQ_TEXT("a")}));
}

TEST_F(ThreeTexts, AreGoneAfterRemoveAllAndTheListIsUsableAgain) {
  m_list.RemoveAll();
  EXPECT_EQ(Read(m_list), Expected());
  m_list.RemoveAll();
  m_list.AddTail(MQ_TEXT("d"));
  EXPECT_EQ(Read(m_list), Expected{MQ_TEXT("d")});
}

TEST(TypedPointerList, ReturnsPointersOfItsType) {
  Body first(1);
  Body second(2);
  Bodies list;
  const POSITION tail = list.AddTail(&second);
  const POSITION head = list.AddHead(&first);
  EXPECT_EQ(list.GetCount(), 2);
  EXPECT_EQ(list.GetSize(), 2);
  EXPECT_FALSE(list.IsEmpty());
  EXPECT_EQ(list.GetHead()->id, 1);
  EXPECT_EQ(list.GetTail()->id, 2);
  EXPECT_EQ(list.GetAt(head), &first);
  EXPECT_EQ(list.FindIndex(1), tail);

  POSITION position = list.GetHeadPosition();
  EXPECT_EQ(list.GetNext(position), &first);
  EXPECT_EQ(list.GetNext(position), &second);
  EXPECT_EQ(position, nullptr);
  position = list.GetTailPosition();
  EXPECT_EQ(list.GetPrev(position), &second);
  EXPECT_EQ(list.GetPrev(position), &first);
  EXPECT_EQ(position, nullptr);
  static_assert(std::is_same_v<decltype(list.GetNext(position)), Body*>);
}

TEST(TypedPointerList, InsertsReplacesAndRemoves) {
  Body one(1);
  Body two(2);
  Body three(3);
  Body four(4);
  Bodies list(64);
  const POSITION middle = list.AddTail(&two);
  list.InsertBefore(middle, &one);
  list.InsertAfter(middle, &three);
  list.InsertBefore(nullptr, &four);
  list.InsertAfter(nullptr, &four);
  EXPECT_EQ(Ids(list), (std::vector{4, 1, 2, 3, 4}));
  list.SetAt(middle, &four);
  EXPECT_EQ(Ids(list), (std::vector{4, 1, 4, 3, 4}));
  list.RemoveAt(middle);
  EXPECT_EQ(list.RemoveHead(), &four);
  EXPECT_EQ(list.RemoveTail(), &four);
  EXPECT_EQ(Ids(list), (std::vector{1, 3}));
  list.RemoveAll();
  EXPECT_TRUE(list.IsEmpty());
  EXPECT_EQ(list.GetHeadPosition(), nullptr);
}

TEST(TypedPointerList, FindsAnObjectByItsAddress) {
  Body one(1);
  Body twin(1);
  Bodies list;
  const POSITION first = list.AddTail(&one);
  const POSITION second = list.AddTail(&one);
  EXPECT_EQ(list.Find(&one), first);
  EXPECT_EQ(list.Find(&one, first), second);
  EXPECT_EQ(list.Find(&one, second), nullptr);
  EXPECT_EQ(list.Find(&twin), nullptr);
}

TEST(TypedPointerList, HoldsNullPointers) {
  Bodies list;
  const POSITION position = list.AddTail(nullptr);
  EXPECT_NE(position, nullptr);
  EXPECT_EQ(list.GetHead(), nullptr);
  EXPECT_EQ(list.Find(nullptr), position);
}

struct Counted : CObject {
  explicit Counted(int& aliveObjects) : alive(aliveObjects) { ++alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() override { --alive; }
  int& alive;
};

TEST(ObjectList, DoesNotOwnItsObjects) {
  int alive = 0;
  {
    Counted first(alive);
    Counted second(alive);
    {
      CObList list;
      list.AddTail(&first);
      list.AddTail(&second);
      EXPECT_EQ(list.RemoveHead(), &first);
    }
    EXPECT_EQ(alive, 2);
  }
  EXPECT_EQ(alive, 0);
}

TEST(ObjectList, ObjectsAreDeletedThroughTheirBase) {
  int alive = 0;
  CObList list;
  list.AddTail(new Counted(alive));
  list.AddTail(new Counted(alive));
  while (!list.IsEmpty()) {
    delete list.RemoveHead();
  }
  EXPECT_EQ(alive, 0);
}

// --- moving ---

TEST_F(ThreeTexts, MoveWithTheirPositionsAndLeaveAnEmptyList) {
  CStringList taken(std::move(m_list));
  EXPECT_EQ(Read(taken), (Expected{MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c")}));
  EXPECT_EQ(taken.GetHeadPosition(), m_a);
  EXPECT_EQ(taken.GetTailPosition(), m_c);
  EXPECT_EQ(Read(m_list), Expected());
  EXPECT_EQ(m_list.GetHeadPosition(), nullptr);
  EXPECT_EQ(m_list.GetTailPosition(), nullptr);

  // The positions are those of the new list, and the old one begins anew.
  taken.InsertAfter(m_b, MQ_TEXT("2"));
  taken.RemoveAt(m_a);
  m_list.AddTail(MQ_TEXT("x"));
  EXPECT_EQ(Read(taken), (Expected{MQ_TEXT("b"), MQ_TEXT("2"), MQ_TEXT("c")}));
  EXPECT_EQ(Read(m_list), Expected{MQ_TEXT("x")});
}

TEST_F(ThreeTexts, MoveIntoAListThatLosesWhatItHeld) {
  for (const bool isFilled : {false, true}) {
    CStringList source;
    source.AddTail(MQ_TEXT("a"));
    const POSITION last = source.AddTail(MQ_TEXT("b"));
    CStringList target;
    if (isFilled) {
      target.AddTail(MQ_TEXT("x"));
      target.AddTail(MQ_TEXT("y"));
      target.AddTail(MQ_TEXT("z"));
    }
    EXPECT_EQ(&(target = std::move(source)), &target);
    EXPECT_EQ(Read(target), (Expected{MQ_TEXT("a"), MQ_TEXT("b")}));
    EXPECT_EQ(target.GetTailPosition(), last);
    EXPECT_EQ(Read(source), Expected());  // promised of a list that was moved
    source.AddHead(MQ_TEXT("c"));
    target.AddTail(MQ_TEXT("d"));
    EXPECT_EQ(Read(source), Expected{MQ_TEXT("c")});
    EXPECT_EQ(Read(target), (Expected{MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("d")}));
  }
  m_list = CStringList();
  EXPECT_EQ(Read(m_list), Expected());
}

TEST_F(ThreeTexts, StayWhenTheirListIsMovedToItself) {
  CStringList& same = m_list;
  m_list = std::move(same);
  EXPECT_EQ(Read(m_list), (Expected{MQ_TEXT("a"), MQ_TEXT("b"), MQ_TEXT("c")}));
  EXPECT_EQ(m_list.GetHeadPosition(), m_a);
}

TEST(StringList, AnEmptyListIsMovedAsWell) {
  CStringList empty;
  CStringList taken(std::move(empty));
  EXPECT_EQ(Read(taken), Expected());
  taken.AddTail(MQ_TEXT("a"));
  EXPECT_EQ(Read(taken), Expected{MQ_TEXT("a")});
}

TEST(TypedPointerList, MovesItsPointersAndDeletesNoObject) {
  Body one(1);
  Body two(2);
  Bodies source;
  source.AddTail(&one);
  const POSITION tail = source.AddTail(&two);
  Bodies taken(std::move(source));
  EXPECT_EQ(Ids(taken), (std::vector{1, 2}));
  EXPECT_EQ(taken.GetTailPosition(), tail);
  EXPECT_TRUE(source.IsEmpty());  // promised of a list that was moved
  source.AddTail(&two);
  source = std::move(taken);
  EXPECT_EQ(Ids(source), (std::vector{1, 2}));
  EXPECT_EQ(source.GetHead(), &one);
  EXPECT_TRUE(taken.IsEmpty());  // promised of a list that was moved
}

static_assert(std::is_nothrow_move_constructible_v<CObList> &&
              std::is_nothrow_move_assignable_v<CStringList>);
static_assert(!std::is_copy_constructible_v<CObList> && !std::is_copy_assignable_v<CStringList>);

}  // namespace
