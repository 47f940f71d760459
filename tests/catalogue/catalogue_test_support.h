/// \file
/// What the tests of the catalogue share: the codes that a sweep walks, a sweep's failure report,
/// lines of expected answers with one character a component, and a guard of the display flag.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <ranges>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/components.h>

namespace mqp::test {

/// Beyond the dense range: the ends of `int`, the code of no unit, and codes that would pass for
/// 0, 1 or 8 if a look-up kept only their low bits.
// clang-format off
inline constexpr auto kFarCodes = std::to_array<int>({
    INT_MIN, INT_MIN + 1, INT_MIN + 8, -65536, -255, 256, 257, 264, 9999, 65537, INT_MAX - 1, INT_MAX,
});
// clang-format on

inline constexpr int kFirstSweptCode = -2;
inline constexpr int kLastSweptCode = 130;

/// Every code that a sweep hands to a function as analysis type, result type, component or unit
/// type: named ones, the holes between them, neighbours and extremes.
inline constexpr auto kSweptCodes = [] {
  std::array<int, kLastSweptCode - kFirstSweptCode + 1 + kFarCodes.size()> codes{};
  std::size_t count = 0;
  for (int code = kFirstSweptCode; code <= kLastSweptCode; ++code) {
    codes[count++] = code;
  }
  for (const int code : kFarCodes) {
    codes[count++] = code;
  }
  return codes;
}();

/// Every named mesh kind, their neighbours, and the extremes.
inline constexpr auto kSweptMeshKinds =
    std::to_array<int>({-1, 0, 1, 2, 3, 4, 5, 256, INT_MIN, INT_MAX});

/// Compares answer by answer through any number of cases and fails its test once, when it goes
/// out of scope, with the first rows that differ: arguments, expected, got.
class Sweep {
 public:
  explicit Sweep(std::initializer_list<std::string_view> argumentNames)
      : m_argumentNames(argumentNames) {}
  Sweep(const Sweep&) = delete;
  Sweep& operator=(const Sweep&) = delete;
  ~Sweep() {
    EXPECT_GT(m_cases, 0U) << "nothing was swept";
    EXPECT_EQ(m_failures, 0U) << "of " << m_cases << " cases; the first:\n" << m_rows.str();
    testing::Test::RecordProperty("cases", static_cast<int>(m_cases));
  }

  template <class Answer, std::same_as<int>... Arguments>
  void Check(const Answer& expected, const Answer& got, Arguments... arguments) {
    ++m_cases;
    if (expected == got) [[likely]] {
      return;
    }
    if (++m_failures <= kPrintedRows) {
      Print({arguments...}, testing::PrintToString(expected), testing::PrintToString(got));
    }
    if (GTEST_FLAG_GET(break_on_failure)) {
      ADD_FAILURE() << m_rows.str();  // a debugger is to stop at this row
    }
  }

 private:
  static constexpr std::size_t kPrintedRows = 20;

  void Print(std::initializer_list<int> arguments, const std::string& expected,
             const std::string& got) {
    std::size_t position = 0;
    for (const int argument : arguments) {
      const bool isNamed = position < m_argumentNames.size();
      m_rows << (isNamed ? m_argumentNames[position] : "argument") << ' ' << argument << ", ";
      ++position;
    }
    m_rows << "expected " << expected << ", got " << got << '\n';
  }

  std::vector<std::string_view> m_argumentNames;
  std::size_t m_cases = 0;
  std::size_t m_failures = 0;
  std::ostringstream m_rows;
};

/// Stands in a line of answers for a component about which nothing is known.
inline constexpr char kNothing = '.';

/// What is expected of a result in a study, one character a component from index 0 on.
struct ComponentLine {
  AnalysisType study;
  ResultType result;
  std::string_view answers;
};

/// The rows of a table that belong to a study and a result; they stand together in the table.
template <class Row, std::size_t kSize>
std::span<const Row> RowsOf(const std::array<Row, kSize>& table, int analysisType, int resultType) {
  const auto isMeant = [=](const Row& row) {
    return Code(row.study) == analysisType && Code(row.result) == resultType;
  };
  const auto first = std::ranges::find_if(table, isMeant);
  const auto last = std::ranges::find_if_not(first, table.end(), isMeant);
  EXPECT_EQ(std::ranges::find_if(last, table.end(), isMeant), table.end())
      << "rows of analysis type " << analysisType << ", result type " << resultType
      << " do not stand together";
  return {first, last};
}

/// The character of a component; `kNothing` for one in front of the line or behind its end.
inline char AnswerAt(std::string_view answers, int component) {
  const bool isListed = component >= 0 && component < static_cast<int>(answers.size());
  return isListed ? answers[static_cast<std::size_t>(component)] : kNothing;
}

/// The answers that a table holds for a study and a result; empty when it has no line for them.
template <std::size_t kSize>
std::string_view LineOf(const std::array<ComponentLine, kSize>& table, int analysisType,
                        int resultType) {
  const std::span<const ComponentLine> lines = RowsOf(table, analysisType, resultType);
  EXPECT_LE(lines.size(), 1U) << "analysis type " << analysisType << ", result type " << resultType;
  return lines.empty() ? std::string_view() : lines.front().answers;
}

/// Sets the actual-frequency display flag and puts the old value back at the end of the scope.
class ActualFrequencyFlag {
 public:
  explicit ActualFrequencyFlag(int value) : m_previous(vekPostCommonGetActualFreqDispFlag()) {
    vekPostCommonSetActualFreqDispFlag(value);
  }
  ActualFrequencyFlag(const ActualFrequencyFlag&) = delete;
  ActualFrequencyFlag& operator=(const ActualFrequencyFlag&) = delete;
  ~ActualFrequencyFlag() { vekPostCommonSetActualFreqDispFlag(m_previous); }

 private:
  int m_previous;
};

}  // namespace mqp::test
