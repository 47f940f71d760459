/// \file
/// Operations whose memory runs out, at the first allocation, at the second, and so on until they
/// complete.
#pragma once

#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqCommFuncs/string_table.h>

#include "faults/allocations.h"

namespace mqp::test {

/// What holds of the object of an operation that ran out of memory. Whatever is only read stays as
/// it was in any case, nothing leaks, and all objects can be read, used and destroyed.
enum class Guarantee {
  Strong,     ///< the object is as it was
  Basic,      ///< the object holds something
  NeverFails  ///< the operation asks for no memory
};

/// One operation on an object and another one of its class.
template <class Object>
struct Operation {
  const char* name;
  Guarantee guarantee;
  std::function<void(Object& object, Object& other)> run;
};

/// A class, two objects of it that differ, and how they are told apart.
template <class Object>
struct Subject {
  const char* name;
  std::function<Object()> make;
  std::function<Object()> makeOther;
  std::function<std::string(const Object&)> describe;
};

/// Tries the operations of one class.
template <class Object>
class Trial {
 public:
  explicit Trial(Subject<Object> subject) : m_subject(std::move(subject)) {}

  /// Returns how many times operations were run.
  int Try(const std::vector<Operation<Object>>& operations) const {
    int cases = 0;
    for (const Operation<Object>& operation : operations) {
      cases += TryOne(operation);
    }
    return cases;
  }

 private:
  using Text = std::string;

  struct Scene {
    explicit Scene(const Subject<Object>& subject)
        : object(subject.make()), other(subject.makeOther()) {}
    Object object;
    Object other;
  };

  int TryOne(const Operation<Object>& operation) const {
    Scene scene(m_subject);
    const Outcome plain = RunWith({}, [&] { operation.run(scene.object, scene.other); });
    const Text done = m_subject.describe(scene.object);
    EXPECT_TRUE(plain.isComplete) << Row(operation);
    EXPECT_EQ(plain.allocations > 0, operation.guarantee != Guarantee::NeverFails)
        << Row(operation) << " asks for memory " << plain.allocations << " times";
    int cases = 1;
    if (!plain.isComplete || operation.guarantee == Guarantee::NeverFails) {
      return cases;  // a refusal that cannot leave the operation would end the program
    }
    for (const bool isOnce : {true, false}) {
      for (long first = 1; first <= plain.allocations; ++first, ++cases) {
        if (!IsSurvived(operation, {first, isOnce}, done)) {
          return cases;
        }
      }
    }
    return cases;
  }

  bool IsSurvived(const Operation<Object>& operation, Refusals refusals, const Text& done) const {
    const long blocks = CountAllocations().liveBlocks;
    {
      Scene scene(m_subject);
      if (const Text problem = RunAndJudge(operation, refusals, scene, done); !problem.empty()) {
        ADD_FAILURE() << Row(operation) << ", allocation " << refusals.first
                      << (refusals.isOnce ? "" : " and all behind it") << " refused\n"
                      << problem;
        return false;
      }
    }
    const long lost = CountAllocations().liveBlocks - blocks;
    EXPECT_EQ(lost, 0) << Row(operation) << ", allocation " << refusals.first
                       << (refusals.isOnce ? "" : " and all behind it") << " refused: blocks lost";
    return lost == 0;
  }

  /// What is wrong, in words.
  Text RunAndJudge(const Operation<Object>& operation, Refusals refusals, Scene& scene,
                   const Text& done) const {
    const auto run = [&] { operation.run(scene.object, scene.other); };
    const Text before = m_subject.describe(scene.object);
    const Text otherBefore = m_subject.describe(scene.other);
    const Outcome outcome = RunWith(refusals, run);
    const Text after = m_subject.describe(scene.object);
    if (outcome.refusals == 0) {
      return "nothing was refused";
    }
    if (outcome.isComplete) {  // by other means
      return Change("done otherwise", done, after);
    }
    if (!outcome.isOutOfMemory) {
      return "another exception than std::bad_alloc";
    }
    Text problem = Change("only read", otherBefore, m_subject.describe(scene.other));
    if (operation.guarantee == Guarantee::Strong) {
      problem += Change("left behind", before, after);
    }
    if (!RunWith({}, run).isComplete) {
      return problem + "fails also when there is memory again";
    }
    if (operation.guarantee == Guarantee::Strong) {
      problem += Change("done when there is memory again", done, m_subject.describe(scene.object));
    }
    return problem;
  }

  static Text Change(const char* what, const Text& expected, const Text& got) {
    return got == expected ? Text()
                           : Text(what) + ": got\n" + got + "\nexpected\n" + expected + '\n';
  }
  Text Row(const Operation<Object>& operation) const {
    return Text(m_subject.name) + ": " + operation.name;
  }

  Subject<Object> m_subject;
};

/// Tests that need the memory of the library; where it cannot be watched they say so.
class AllocationFailures : public testing::Test {
 protected:
  template <class Object>
  void Try(const Subject<Object>& subject, std::vector<std::vector<Operation<Object>>> operations) {
    for (const std::vector<Operation<Object>>& group : operations) {
      m_cases += Trial<Object>(subject).Try(group);
    }
  }
  void TearDown() override { RecordProperty("cases", m_cases); }

 private:
  int m_cases = 0;

 protected:
  void SetUp() override { RequireLibraryWatched(); }
};

/// The same for operations that load display texts, which are then longer than a string has room
/// for.
class TextAllocationFailures : public AllocationFailures {
 protected:
  void SetUp() override {
    AllocationFailures::SetUp();
    for (const host::StringTableEntry& entry : host::BuiltInTexts()) {
      host::ReplaceText(entry.id, CString(entry.text) + CString(MQ_TEXT('x'), 50));
    }
    if (!IsSkipped()) {
      RequireStringTableWatched();
    }
  }
  void TearDown() override {
    host::UseBuiltInTexts();
    AllocationFailures::TearDown();
  }
};

/// Takes answers that do not matter here.
template <class... Answers>
void Use(const Answers&... /*answers*/) {}

/// The operations that every value has, on objects of which both need memory.
template <class Object>
std::vector<Operation<Object>> ValueOperations(Guarantee assignment) {
  constexpr bool kMoves = std::is_nothrow_move_constructible_v<Object>;
  constexpr bool kMoveAssigns = std::is_nothrow_move_assignable_v<Object>;
  return {
      {"copy construction", Guarantee::Strong,
       [](Object&, Object& other) { const Object copy(other); }},
      {"copy assignment", assignment, [](Object& object, Object& other) { object = other; }},
      {"assignment to itself", Guarantee::NeverFails,
       [](Object& object, Object&) {
         const Object& same = object;
         object = same;
       }},
      {"move construction", kMoves ? Guarantee::NeverFails : Guarantee::Strong,
       [](Object&, Object& other) { const Object moved(static_cast<Object&&>(other)); }},
      {"move assignment", kMoveAssigns ? Guarantee::NeverFails : assignment,
       [](Object& object, Object& other) { object = static_cast<Object&&>(other); }},
  };
}

}  // namespace mqp::test
