// Every function of the catalogue with any integers and texts: answers stay in the ranges that are
// promised, ignored arguments are ignored, null is taken, and what counts, names, look-ups, units
// and directions say of one component agrees.
#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <vector>

#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/directions.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/units.h>

#include "input.h"

namespace mqp::fuzz {
namespace {

constexpr int kStudies[] = {0, 1, 2, 3, 5, 6, 7, 8, 10};
constexpr int kNoUnit = 9999;
constexpr int kSentinel = -12345;

bool IsOneOf(int value, std::initializer_list<int> values) {
  return std::ranges::find(values, value) != values.end();
}

/// The component that is asked about. The options are whatever a function has beside it.
struct Question {
  int study;
  int result;
  int component;
  int meshKind;
  int ignored;
  int options[5];

  [[nodiscard]] bool IsStepped() const { return study == 5 || study == 6; }
};

Question AnyQuestion(Input& input) {
  Question question{};
  for (int* code : {&question.study, &question.result, &question.component, &question.meshKind}) {
    *code = input.AnyCode();
  }
  question.ignored = input.AnyInt();
  for (int& option : question.options) {
    option = input.AnyCode();
  }
  return question;
}

int CountComponents(const Question& q, int ignored) {
  return vekPostCommonGetComponentTotal(q.study, q.result, q.options[0], q.meshKind, ignored,
                                        q.options[1], q.options[2], q.options[3], q.options[4]);
}

void CheckCounts(const Question& q) {
  const int total = CountComponents(q, q.ignored);
  Require(total >= 0 && total <= 16, "a count of components");
  Require(total == CountComponents(q, 0), "the fifth argument of the count is ignored");
  Require(total == 0 || std::ranges::count(kStudies, q.study) == 1, "unknown studies have none");
  const int initial =
      vekPostCommonGetComponentDefault(q.study, q.result, q.ignored, q.meshKind, q.options[3]);
  Require(initial == 0 || initial < total ||
              (initial == 100 && q.study == 8 && q.result == 2 && q.options[3] == 1),
          "the default is one of the components");
  Require(IsOneOf(vekPostCommonGetEnvelopBoundTotal(q.study, q.result, q.component, q.options[0]),
                  {0, 2, 3}),
          "a count of bounds");
  Require(IsOneOf(vekPostCommonIsReferenceAvailable(q.study, q.result, q.component, q.meshKind),
                  {0, 1}),
          "whether there is a reference");
}

void CheckKind(const Question& q) {
  std::array members = {kSentinel, kSentinel, kSentinel, kSentinel};
  const int kind = vekPostCommonGetComponentDataType(q.study, q.result, q.component, members.data(),
                                                     q.options[0]);
  Require(kind >= 0 && kind <= 2, "a kind of component");
  Require(kind == vekPostCommonGetComponentDataType(q.study, q.result, q.component, nullptr,
                                                    q.options[0]),
          "the kind does not depend on where the members go");
  const bool isWritten = members[0] != kSentinel;
  const auto isMember = [&q](int member) {
    return member >= 0 && member <= 24 && member != q.component;
  };
  Require(isWritten ? kind != 0 && std::all_of(members.begin(), members.begin() + 3, isMember)
                    : std::ranges::count(members, kSentinel) == 4,
          "three members of a resultant, or none");
  Require(members[3] == kSentinel, "no fourth member is written");

  std::array<float, 5> direction = {9, 9, 9, 9, 9};
  vekPostCommonGetComponentVectorDir(q.study, q.result, q.component, q.options[0], nullptr);
  vekPostCommonGetComponentVectorDir(q.study, q.result, q.component, q.options[0],
                                     direction.data());
  const auto isWeight = [](float weight) { return weight == 0 || weight == 1; };
  Require(std::all_of(direction.begin(), direction.begin() + 3, isWeight) &&
              (direction[3] == 0 || direction[3] == 2) && direction[4] == 9,
          "a direction");
}

void CheckStudies(const Question& q) {
  CArray<int, int> studies;
  studies.Add(kSentinel);
  Require(vekPostCommonGetAvailableAnalysisType(q.result, q.ignored, studies) == 1, "the answer");
  const std::vector<int> listed(studies.GetData(), studies.GetData() + studies.GetSize());
  for (const int study : listed) {
    Require(std::ranges::count(kStudies, study) == 1 && std::ranges::count(listed, study) == 1,
            "known kinds of study, each once");
  }
  Require(vekPostCommonGetFirstAvailableAnalysisType(q.result, 0) ==
              (listed.empty() ? -1 : listed.front()),
          "the first kind of study");
}

void CheckUnits(const Question& q) {
  const int type =
      vekPostCommonGetUnitType(q.study, q.result, q.component, q.options[0], q.options[1]);
  Require(type == kNoUnit || (type >= 0 && type <= 40 && type != 32 && type != 33), "a unit type");
  const int initial = vekPostCommonGetComponentUnitsBasedOnSystemUnit(
      q.options[2], q.study, q.result, q.component, q.options[0], q.options[1]);
  Require(initial >= 0 && initial <= 3, "a default unit");
  Require(vekPostCommonGetUnitName(type, initial).IsEmpty() == IsOneOf(type, {25, 26, kNoUnit}),
          "the default unit has a name, where there are units");
  for (const int asked : {type, q.options[3]}) {
    const int total = vekPostCommonGetUnitTotal(asked);
    Require(total >= 0 && total <= 10 && (total == 0 || (asked >= 0 && asked < 38)),
            "a count of units");
    for (int index = 0; index < total; ++index) {
      Require(!vekPostCommonGetUnitName(asked, index).IsEmpty(), "every unit offered has a name");
    }
    Require(vekPostCommonGetUnitName(asked, -1 - total).IsEmpty(), "a negative unit has no name");
    Require(vekPostCommonGetUnitName(asked, q.options[4]).GetLength() <= 17, "the name of a unit");
  }
}

/// A name leads back to its component, or nowhere. The stepped studies take the names of angular
/// accelerations for other ones of the straight ones, and the fifth name of a fatigue result is its
/// first one.
void CheckNames(const Question& q) {
  Require(!vekPostCommonGetResultName(q.result).IsEmpty(), "every result type has a name");
  const CString name = vekPostCommonGetComponentName(q.study, q.result, q.ignored, q.component,
                                                     q.meshKind, q.options[0]);
  Require(name == vekPostCommonGetComponentName(q.study, q.result, 0, q.component, q.meshKind,
                                                q.options[0]),
          "the third argument of a name is ignored");
  const int found = vekPostCommonGetComponentIndexByName(q.study, q.result, q.options[1], name, 1);
  const bool isFourBefore = (q.IsStepped() && q.result == 20) || q.study == 7;
  Require(found == -1 || found == q.component || (isFourBefore && found == q.component - 4),
          "a name is found again where it is");
  const bool isListed =
      IsOneOf(q.study, {0, 1, 2, 3, 5, 6, 8}) && IsOneOf(q.result, {1, 2, 3, 5, 19, 20, 22, 59});
  const int total = vekPostCommonGetComponentTotal(q.study, q.result, 1, 0, 0, 1, 0, 0, 0);
  const CString plain = vekPostCommonGetComponentName(q.study, q.result, 0, q.component, 0, 0);
  Require(!isListed || q.component < 0 || q.component >= total || plain.IsEmpty() ||
              vekPostCommonGetComponentIndexByName(q.study, q.result, 1, plain, 1) == q.component,
          "the components of a solid mesh are found by their names");
  const CString bar = vekPostCommonGetComponentNameBar(q.study, q.result, q.ignored, q.component,
                                                       q.meshKind, q.options[1]);
  Require(q.meshKind == 4 || q.study == 7 ||
              bar == vekPostCommonGetComponentNameShort(q.study, q.result, 0, q.component),
          "the short name is that of the colour bar");
  Require(vekPostCommonGetComponentNameBrief(q.study, q.result, q.ignored, q.component) ==
              vekPostCommonGetComponentNameBrief(q.study, q.result, 0, q.component),
          "the third argument of a brief name is ignored");
  static_cast<void>(
      vekPostCommonGetGraphNameForReport(q.study, q.result, q.options[0], q.options[1]));
}

/// Only the first six units are the key, and only the blanks at the ends of a whole name go.
void CheckLookUp(const Question& q, const CString& text) {
  const auto lookUp = [&q](const CString& name, int exact) {
    return vekPostCommonGetComponentIndexByName(q.study, q.result, q.options[0], name, exact);
  };
  for (const int exact : {0, 1}) {
    const int found = lookUp(text, exact);
    Require((found >= -1 && found <= 15) || (found == 100 && q.study == 8 && q.result == 2),
            "a component that is found");
    Require(!text.IsEmpty() || found == -1, "an empty name is not found");
  }
  Require(lookUp(text, 0) == lookUp(text.Left(6), 0), "six units are looked up");
  Require(text.IsEmpty() ||
              lookUp(text, q.options[1] | 1) == lookUp(MQ_TEXT("\t") + text + MQ_TEXT(" "), 1),
          "white space at the ends is not looked up");
  const int result = vekPostCommonGetResultTypeByComponentName(text);
  Require(IsOneOf(result, {1, 2, 3, 5, 12, 19, 20, kNoUnit}) && (!text.IsEmpty() || result == 1),
          "a result that is found");
  Require(result == vekPostCommonGetResultTypeByComponentName(text.Left(6)),
          "six units are looked up among the results");
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mqp::fuzz;
  Input input(data, size);
  const int flag = input.AnyCode();
  vekPostCommonSetActualFreqDispFlag(flag);
  Require(vekPostCommonGetActualFreqDispFlag() == flag, "the flag is kept as it is");
  const Question question = AnyQuestion(input);
  CheckCounts(question);
  CheckKind(question);
  CheckStudies(question);
  CheckUnits(question);
  CheckNames(question);
  CheckLookUp(question, input.AnyText(12));
  return 0;
}
