// What holds for all catalogue functions that answer with numbers: they take any code, answer
// from a small documented set, never allocate, never throw, and may be asked from any thread.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <new>
#include <string_view>
#include <thread>
#include <type_traits>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/directions.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/text.h>

#include "catalogue_test_support.h"

// ---- allocation counting ------------------------------------------------------------------

namespace {

std::atomic<std::size_t> allocationCount{0};

void* CountedAllocation(std::size_t size) noexcept {
  allocationCount.fetch_add(1, std::memory_order_relaxed);
  return std::malloc(size == 0 ? 1 : size);
}

void* CountedAllocationOrThrow(std::size_t size) {
  void* const block = CountedAllocation(size);
  if (block == nullptr) {
    throw std::bad_alloc();
  }
  return block;
}

}  // namespace

// The whole family is replaced, so that each block goes back to the `free` of its `malloc`. Weak,
// because the thread sanitizer insists on a family of its own.
// clang-format off
[[gnu::weak]] void* operator new(std::size_t size) { return CountedAllocationOrThrow(size); }
[[gnu::weak]] void* operator new[](std::size_t size) { return CountedAllocationOrThrow(size); }
[[gnu::weak]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return CountedAllocation(size); }
[[gnu::weak]] void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return CountedAllocation(size); }
[[gnu::weak]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::weak]] void operator delete[](void* block) noexcept { std::free(block); }
[[gnu::weak]] void operator delete(void* block, std::size_t) noexcept { std::free(block); }
[[gnu::weak]] void operator delete[](void* block, std::size_t) noexcept { std::free(block); }
[[gnu::weak]] void operator delete(void* block, const std::nothrow_t&) noexcept { std::free(block); }
[[gnu::weak]] void operator delete[](void* block, const std::nothrow_t&) noexcept { std::free(block); }
// clang-format on

namespace mqp::test {
namespace {

// ---- the functions under one signature ----------------------------------------------------

using Ask = int(int analysisType, int resultType, int component, int option);

int AskTotal(int analysisType, int resultType, int component, int option) {
  return vekPostCommonGetComponentTotal(analysisType, resultType, component, option, component,
                                        component, option, option, component);
}

int AskDataType(int analysisType, int resultType, int component, int option) {
  std::array<int, 3> members{};
  return vekPostCommonGetComponentDataType(analysisType, resultType, component, members.data(),
                                           option);
}

int AskDefault(int analysisType, int resultType, int component, int option) {
  return vekPostCommonGetComponentDefault(analysisType, resultType, component, component, option);
}

/// The four numbers as the digits of one.
int AskDirection(int analysisType, int resultType, int component, int option) {
  std::array<float, 4> dir{9, 9, 9, 9};
  vekPostCommonGetComponentVectorDir(analysisType, resultType, component, option, dir.data());
  int digits = 0;
  for (const float number : dir) {
    digits = 10 * digits + static_cast<int>(number);
  }
  return digits;
}

int AskUnitType(int analysisType, int resultType, int component, int option) {
  return vekPostCommonGetUnitType(analysisType, resultType, component, option, 1);
}

int AskDefaultUnit(int analysisType, int resultType, int component, int option) {
  return vekPostCommonGetComponentUnitsBasedOnSystemUnit(option, analysisType, resultType,
                                                         component, 2, 1);
}

struct Question {
  std::string_view name;
  Ask* ask;
  int nothing;
  /// Every answer that the function may give.
  std::vector<int> answers;
};

// clang-format off
const std::vector<Question> kQuestions = {
    {"component total",    AskTotal,                             0, {0, 3, 4, 5, 7, 8, 9, 12, 13, 14, 15, 16}},
    {"data type",          AskDataType,                          0, {0, 1, 2}},
    {"default component",  AskDefault,                           0, {0, 1, 3, 6, 9, 100}},
    {"envelope bounds",    vekPostCommonGetEnvelopBoundTotal,    0, {0, 2, 3}},
    {"reference",          vekPostCommonIsReferenceAvailable,    0, {0, 1}},
    {"vector direction",   AskDirection,                         0, {0, 1000, 100, 10, 1110, 1002, 102, 12, 1112}},
    {"unit type",          AskUnitType,                       9999, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 16, 17, 18, 19, 20, 21, 22, 23,
                                                                     24, 25, 26, 27, 28, 29, 30, 35, 36, 37, 38, 39, 40, 9999}},
    {"default unit",       AskDefaultUnit,                       0, {0, 1, 2, 3}},
};
// clang-format on

/// Asks one question with every code; `check` gets the codes, the option and the answer.
template <class Check>
void AskWithEveryCode(const Question& question, Check check) {
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      for (const int component : {INT_MIN, -1, 0, 1, 3, 7, 9, 12, 14, 29, 100, 256, INT_MAX}) {
        for (const int option : {0, 1, 2, 4, -1, INT_MIN}) {
          check(analysisType, resultType, component, option,
                question.ask(analysisType, resultType, component, option));
        }
      }
    }
  }
}

template <class Table>
bool IsNamed(const Table& names, int code) {
  return std::ranges::any_of(names, [=](const auto& entry) { return Code(entry.code) == code; });
}

/// Some results have their unit in every study, even in one that does not exist.
bool HasItsUnitInEveryStudy(int resultType) {
  constexpr auto kResults = std::to_array<int>({15, 18, 53, 54, 55, 65, 71});
  return std::ranges::find(kResults, resultType) != kResults.end();
}

// ---- properties ---------------------------------------------------------------------------

TEST(NumberAnswers, NeverThrow) {
  EXPECT_TRUE(noexcept(vekPostCommonGetActualFreqDispFlag()));
  EXPECT_TRUE(noexcept(vekPostCommonSetActualFreqDispFlag(0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetComponentTotal(0, 0, 0, 0, 0, 0, 0, 0, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetComponentDataType(0, 0, 0, nullptr, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetComponentDefault(0, 0, 0, 0, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetEnvelopBoundTotal(0, 0, 0, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonIsReferenceAvailable(0, 0, 0, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetComponentVectorDir(0, 0, 0, 0, nullptr)));
  EXPECT_TRUE(noexcept(vekPostCommonGetUnitType(0, 0, 0, 0, 0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetUnitTotal(0)));
  EXPECT_TRUE(noexcept(vekPostCommonGetComponentUnitsBasedOnSystemUnit(0, 0, 0, 0, 0, 0)));
}

TEST(NumberAnswers, ComeFromTheDocumentedSetForEveryCode) {
  for (const Question& question : kQuestions) {
    SCOPED_TRACE(question.name);
    Sweep sweep{"analysisType", "resultType", "component", "option", "answer"};
    AskWithEveryCode(
        question, [&](int analysisType, int resultType, int component, int option, int answer) {
          const bool isDocumented =
              std::ranges::find(question.answers, answer) != question.answers.end();
          sweep.Check(true, isDocumented, analysisType, resultType, component, option, answer);
        });
  }
}

TEST(NumberAnswers, AreNothingForUnknownStudies) {
  for (const Question& question : kQuestions) {
    SCOPED_TRACE(question.name);
    const bool isOfUnits = question.ask == AskUnitType || question.ask == AskDefaultUnit;
    Sweep sweep{"analysisType", "resultType", "component", "option"};
    AskWithEveryCode(
        question, [&](int analysisType, int resultType, int component, int option, int answer) {
          const bool isAnswered = isOfUnits && HasItsUnitInEveryStudy(resultType);
          if (!isAnswered && !IsNamed(kAnalysisTypeNames, analysisType)) {
            sweep.Check(question.nothing, answer, analysisType, resultType, component, option);
          }
        });
  }
}

TEST(NumberAnswers, AreNothingForUnknownResults) {
  for (const Question& question : kQuestions) {
    SCOPED_TRACE(question.name);
    Sweep sweep{"analysisType", "resultType", "component", "option"};
    AskWithEveryCode(
        question, [&](int analysisType, int resultType, int component, int option, int answer) {
          // Two studies answer some questions without a look at the result.
          const bool isLookedAt = analysisType != Code(AnalysisType::Thermal) &&
                                  analysisType != Code(AnalysisType::Fatigue);
          if (isLookedAt && !IsNamed(kResultTypeNames, resultType)) {
            sweep.Check(question.nothing, answer, analysisType, resultType, component, option);
          }
        });
  }
}

TEST(NumberAnswers, OfUnitTotalAreNothingForCodesWithoutChoices) {
  Sweep sweep{"unitType"};
  for (const int unitType : kSweptCodes) {
    const bool isReserved = unitType == 25 || unitType == 26 || unitType == 32 || unitType == 33;
    if (unitType < 0 || unitType >= 38 || isReserved) {
      sweep.Check(0, vekPostCommonGetUnitTotal(unitType), unitType);
    } else {
      const int total = vekPostCommonGetUnitTotal(unitType);
      sweep.Check(true, total >= 2 && total <= 10, unitType);
    }
  }
}

// ---- allocation ---------------------------------------------------------------------------

template <class Work>
std::size_t AllocationsOf(Work work) {
  const std::size_t before = allocationCount.load(std::memory_order_relaxed);
  work();
  return allocationCount.load(std::memory_order_relaxed) - before;
}

/// A library for Windows carries an allocator of its own, whose blocks are not seen from here.
constexpr bool kLibraryHasItsOwnAllocator = std::is_same_v<mqChar, wchar_t>;

TEST(NumberAnswers, NeverAllocate) {
  if (AllocationsOf([] { ::operator delete(::operator new(1)); }) == 0) {
    GTEST_SKIP() << "a sanitizer's family of operators is in use, which does not count";
  }
  CArray<int, int> list;
  const std::size_t ofAList =
      AllocationsOf([&] { vekPostCommonGetAvailableAnalysisType(1, 0, list); });
  if (kLibraryHasItsOwnAllocator && ofAList == 0) {
    GTEST_SKIP() << "the library's allocations are not seen";
  }
  ASSERT_GT(ofAList, 0U) << "a function that fills a list is seen to allocate";

  int sum = 0;
  const std::size_t ofNumbers = AllocationsOf([&] {
    for (const Question& question : kQuestions) {
      AskWithEveryCode(question, [&](int, int, int, int, int answer) { sum ^= answer; });
    }
    for (const int unitType : kSweptCodes) {
      sum ^= vekPostCommonGetUnitTotal(unitType);
    }
    vekPostCommonSetActualFreqDispFlag(vekPostCommonGetActualFreqDispFlag());
  });
  EXPECT_EQ(ofNumbers, 0U) << "answers " << sum;
}

// ---- threads ------------------------------------------------------------------------------

struct FixedAnswer {
  Ask* ask;
  int analysisType, resultType, component, option;
  int expected, orExpected;  ///< they differ where the display flag decides
};

// clang-format off
constexpr auto kFixedAnswers = std::to_array<FixedAnswer>({
    //                   analysisType, resultType, component, option   expected  or
    {AskTotal,                              0,  1,  0,  2,                   15,    15},
    {AskTotal,                              1,  1,  0,  0,                    4,     4},
    {AskDataType,                           0,  2,  9,  0,                    2,     2},
    {AskDataType,                           1,  1,  3,  0,                    1,     1},
    {AskDefault,                            8,  2,  0,  1,                  100,   100},
    {AskDirection,                          8,  2,  7,  0,                  102,   102},
    {AskUnitType,                           0,  1,  0,  0,                    0,     0},
    {AskUnitType,                           1,  1,  0,  0,                 9999,     0},
    {AskUnitType,                           2,  1,  4,  0,                 9999,     9},
    {AskDefaultUnit,                        0,  1,  0,  0,                    2,     2},
    {AskDefaultUnit,                        1,  1,  0,  0,                    0,     2},
});
// clang-format on

std::size_t CountWrongAnswers(int rounds) {
  std::size_t wrong = 0;
  for (int round = 0; round < rounds; ++round) {
    for (const FixedAnswer& row : kFixedAnswers) {
      const int answer = row.ask(row.analysisType, row.resultType, row.component, row.option);
      wrong += answer != row.expected && answer != row.orExpected ? 1U : 0U;
    }
  }
  return wrong;
}

TEST(NumberAnswers, StayConsistentWhileFourThreadsAskAndTheFlagChanges) {
  constexpr int kRounds = 20000;
  const ActualFrequencyFlag restoring(0);
  std::atomic<std::size_t> wrong{0};
  std::atomic<int> asking{4};
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([&] {
      wrong += CountWrongAnswers(kRounds);
      --asking;
    });
  }
  for (int value = 0; asking > 0; value = 1 - value) {
    vekPostCommonSetActualFreqDispFlag(value);
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(wrong, 0U) << "of " << 4U * kRounds * kFixedAnswers.size();
}

}  // namespace
}  // namespace mqp::test
