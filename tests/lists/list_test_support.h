/// \file
/// What the tests of result lists share: the lists that a sweep walks and the expected count of
/// their columns.
#pragma once

#include <array>
#include <climits>
#include <cstddef>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/lists/list.h>

#include "catalogue/catalogue_test_support.h"
#include "catalogue/name_test_support.h"

namespace mqp::test {

// clang-format off
/// Every analysis type, the holes between them, and codes whose low bits would be one.
inline constexpr auto kListStudies = std::to_array<int>({
    -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 59, 256, 264, INT_MIN, INT_MIN + 8, INT_MAX,
});

/// Every kind of list set, neighbours, and codes whose low bits would be one.
inline constexpr auto kListSetKinds = std::to_array<int>({
    -1, 0, 1, 2, 3, 4, 5, 6, 256, 257, INT_MIN, INT_MIN + 1, INT_MAX,
});

/// Columns inside and outside every list.
inline constexpr auto kColumns = std::to_array<int>({
    INT_MIN, INT_MIN + 3, -256, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 256, 259, INT_MAX - 1, INT_MAX,
});

/// The components that some list looks at, their neighbours, and extremes.
inline constexpr auto kListedComponents = std::to_array<int>({
    -1, 0, 1, 2, 3, 4, 5, 8, 9, 10, 99, 100, 101, 256, 265, INT_MIN, INT_MAX,
});

/// The results that have list sets, and some that have none.
inline constexpr auto kListResults = std::to_array<Result>({
    Result::ResultType0, Result::Displacement, Result::Stress,        Result::Strain,
    Result::FactorOfSafety, Result::Thermal,   Result::FatigueResult, Result::Velocity,
    Result::Acceleration,   Result::StrainAlt, Result::StressAlt,     Result::BeamStress,
});
// clang-format on

/// Every state of the display flag that makes a difference, and others that are not 0.
inline constexpr auto kDisplayFlags = std::to_array<int>({0, 1, 2, -1});

/// A list of a single component.
inline CVekPostListParam SingleList(int analysisType, int resultType, int component) {
  CVekPostListParam list;
  list.m_nAnalysisType = analysisType;
  list.m_nResultType = resultType;
  list.m_nComponent = component;
  return list;
}
inline CVekPostListParam SingleList(Study study, Result result, int component) {
  return SingleList(Code(study), Code(result), component);
}

/// A list with a list set.
inline CVekPostListParam SetList(int analysisType, int resultType, int kind, int component = 0) {
  CVekPostListParam list = SingleList(analysisType, resultType, component);
  list.m_nListSetFlag = 1;
  list.m_nListSetKind = kind;
  return list;
}
inline CVekPostListParam SetList(Study study, Result result, int kind, int component = 0) {
  return SetList(Code(study), Code(result), kind, component);
}

struct CountRow {
  Result result;
  std::array<int, 5> columns;
  std::array<int, 5> columnsOverTime;  ///< in analysis types 5, 6 and 8
};

// clang-format off
inline constexpr auto kCounts = std::to_array<CountRow>({
    // result               kind  0  1  2  3  4         over time
    { Result::Displacement,     { 4, 4, 3, 4, 0 },    { 4, 4, 3, 4, 0 } },
    { Result::Stress,           { 6, 6, 0, 0, 0 },    { 6, 6, 0, 0, 0 } },
    { Result::Strain,           { 6, 1, 4, 0, 1 },    { 6, 1, 1, 0, 1 } },  // no principal strains over time
    { Result::Thermal,          { 5, 4, 0, 0, 0 },    { 5, 4, 0, 0, 0 } },
    { Result::Velocity,         { 4, 3, 0, 0, 0 },    { 4, 3, 0, 0, 0 } },
    { Result::Acceleration,     { 4, 3, 0, 0, 0 },    { 4, 3, 0, 0, 0 } },
});
// clang-format on

inline bool IsOverTime(int analysisType) {
  return analysisType == 5 || analysisType == 6 || analysisType == 8;
}

/// The count of columns of a list with a list set.
inline int ExpectedSetCount(int analysisType, int resultType, int kind) {
  if (resultType == Code(Result::FatigueResult)) {
    return 1;
  }
  for (const CountRow& row : kCounts) {
    if (resultType == Code(row.result) && kind >= 0 && kind < 5) {
      const auto& counts = IsOverTime(analysisType) ? row.columnsOverTime : row.columns;
      return counts[static_cast<std::size_t>(kind)];
    }
  }
  return 0;
}

}  // namespace mqp::test
