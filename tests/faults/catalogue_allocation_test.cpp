// Memory runs out while the catalogue is asked for names and lists.

#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/directions.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/units.h>

#include "faults/allocation_failures.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr Guarantee kStrong = Guarantee::Strong;
constexpr Guarantee kNeverFails = Guarantee::NeverFails;

const Subject<CString> kAnswer = {"catalogue", [] { return CString(MQ_TEXT("before")); },
                                  [] { return CString(MQ_TEXT("SX: stress along X")); },
                                  [](const CString& text) { return Show(text); }};

/// The names of the catalogue, which take memory or not.
std::vector<Operation<CString>> Names(Guarantee guarantee) {
  // clang-format off
  return {
      {"result name",           guarantee, [](CString& name, CString&) { name = vekPostCommonGetResultName(1); }},
      {"component name",        guarantee, [](CString& name, CString&) { name = vekPostCommonGetComponentName(0, 2, 0, 0, 0, 0); }},
      {"name on a bar",         guarantee, [](CString& name, CString&) { name = vekPostCommonGetComponentNameBar(0, 1, 0, 4, 0, 0); }},
      {"name on a bar, cut",    guarantee, [](CString& name, CString&) { name = vekPostCommonGetComponentNameBar(7, 51, 0, 0, 0, 0); }},
      {"short name",            guarantee, [](CString& name, CString&) { name = vekPostCommonGetComponentNameShort(0, 1, 0, 4); }},
      {"brief name",            guarantee, [](CString& name, CString&) { name = vekPostCommonGetComponentNameBrief(0, 1, 0, 3); }},
      {"name in a report",      guarantee, [](CString& name, CString&) { name = vekPostCommonGetGraphNameForReport(8, 1, 0, 0); }},
      {"component by its name", guarantee, [](CString&, CString& other) { Use(vekPostCommonGetComponentIndexByName(0, 2, 0, other, 1)); }},
      {"result by its name",    guarantee, [](CString&, CString& other) { Use(vekPostCommonGetResultTypeByComponentName(other)); }},
  };
  // clang-format on
}

TEST_F(TextAllocationFailures, InTheNamesOfTheCatalogue) {
  Try(kAnswer, {Names(kStrong)});
}

TEST_F(AllocationFailures, NeverInTheNamesOfTheBuiltInTable) {
  Try(kAnswer, {Names(kNeverFails)});
}

TEST_F(AllocationFailures, InTheUnitsOfTheCatalogue) {
  // clang-format off
  Try(kAnswer, {{
      {"unit names",       kNeverFails, [](CString& name, CString&) {
         for (int type = -1; type < 60; ++type) {
           for (int unit = -1; unit < 20; ++unit) {
             name = vekPostCommonGetUnitName(type, unit);
           }
         }
       }},
      {"unknown unit",     kNeverFails, [](CString& name, CString&) { name = vekPostCommonGetUnitName(9999, 0); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, InTheStudiesOfAResult) {
  using Studies = CArray<int, int>;
  const auto describe = [](const Studies& studies) { return Show(studies.GetSize()); };
  const auto make = [] { return Studies(); };
  const Subject<Studies> subject = {"catalogue", make, make, describe};
  // clang-format off
  Try(subject, {{
      {"studies of a result", Guarantee::Basic, [](Studies& studies, Studies&) { vekPostCommonGetAvailableAnalysisType(1, 0, studies); }},
      {"the first of them",   kNeverFails,      [](Studies&, Studies&) { Use(vekPostCommonGetFirstAvailableAnalysisType(1, 0)); }},
      {"numbers",             kNeverFails,      [](Studies&, Studies&) {
         float direction[4] = {};
         vekPostCommonGetComponentVectorDir(0, 1, 0, 0, direction);
         Use(vekPostCommonGetComponentTotal(0, 2, 1, 0, 0, 1, 0, 0, 0), vekPostCommonGetComponentDataType(0, 1, 3, nullptr, 0),
             vekPostCommonGetComponentDefault(0, 2, 0, 0, 0), vekPostCommonGetEnvelopBoundTotal(5, 2, 0, 0),
             vekPostCommonIsReferenceAvailable(0, 1, 0, 0), vekPostCommonGetUnitType(0, 2, 0, 0, 0), vekPostCommonGetUnitTotal(4),
             vekPostCommonGetComponentUnitsBasedOnSystemUnit(0, 0, 2, 0, 0, 0));
       }},
  }});
  // clang-format on
}

}  // namespace
}  // namespace mqp::test
