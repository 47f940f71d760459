/// \file
/// What the tests of the value types share: their members one by one, as lines of text that can
/// be compared after the object is changed or gone, and values that tell each member from all
/// others.
#pragma once

#include <algorithm>
#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/params/animation.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/platform/arrays.h>

#include "params/record_test_support.h"

namespace mqp::test {

/// A member, or one element of an array of fixed size, with what it holds.
struct MemberLine {
  std::string name;
  std::string value;
};
using MemberLines = std::vector<MemberLine>;

template <class Element>
std::string Show(const CArray<Element>& array) {
  std::string text = "{";
  for (int index = 0; index < array.GetSize(); ++index) {
    text += (index == 0 ? "" : ", ") + Show(array[index]);
  }
  return text + '}';
}
inline std::string Show(const CmqEquationPlotParam& equation) {
  const EquationState state = StateOf(equation);
  std::string text = Show(state.equation) + ", " + Show(state.coefficientsFlag) + ", " +
                     Show(state.host3[0]) + ", " + Show(state.host3[1]) + ", " +
                     Show(state.displayEquation);
  for (const VariableState& variable : state.variables) {
    text += ", (" + Show(variable.name) + ", " + Show(variable.resultType) + ", " +
            Show(variable.component) + ", " + Show(variable.coefficient) + ')';
  }
  return text;
}

/// Visits each element of an array of fixed size on its own, under the name of the array and its
/// index.
template <class Visit>
auto ForEachElement(Visit& visit) {
  return [&visit](const std::string& name, auto& array) {
    int index = 0;
    for (auto& element : array) {
      visit(name + '[' + std::to_string(index++) + ']', element);
    }
  };
}

/// Calls `visit(name, member)` for every member of a plot in the order of declaration.
template <class Plot, class Visit>
  requires std::same_as<std::remove_const_t<Plot>, CmqPostDataParam>
void VisitMembers(Plot& plot, Visit visit) {
  const auto each = ForEachElement(visit);
  visit("m_strPlotName", plot.m_strPlotName);
  visit("m_nAnalysisType", plot.m_nAnalysisType);
  visit("m_nResultType", plot.m_nResultType);
  visit("m_nComponent", plot.m_nComponent);
  visit("m_nHost5", plot.m_nHost5);
  visit("m_nHost6", plot.m_nHost6);
  visit("m_nVariant", plot.m_nVariant);
  visit("m_nHost8", plot.m_nHost8);
  visit("m_nDeformScaleMode", plot.m_nDeformScaleMode);
  visit("m_fDeformScaleFactor1", plot.m_fDeformScaleFactor1);
  visit("m_fDeformScaleFactor0", plot.m_fDeformScaleFactor0);
  visit("m_nUnitIndex", plot.m_nUnitIndex);
  each("m_nHost12", plot.m_nHost12);
  visit("m_nFailureCriterion", plot.m_nFailureCriterion);
  visit("m_nHost14", plot.m_nHost14);
  visit("m_dHost15", plot.m_dHost15);
  each("m_dHost16", plot.m_dHost16);
  each("m_nCriterionOptions", plot.m_nCriterionOptions);
  each("m_dHost18", plot.m_dHost18);
  visit("m_nHost19", plot.m_nHost19);
  each("m_strHost20", plot.m_strHost20);
  visit("m_nHost21", plot.m_nHost21);
  each("m_ViewMatrix[0]", plot.m_ViewMatrix[0]);
  each("m_ViewMatrix[1]", plot.m_ViewMatrix[1]);
  each("m_ViewMatrix[2]", plot.m_ViewMatrix[2]);
  each("m_ViewMatrix[3]", plot.m_ViewMatrix[3]);
  visit("m_nBodyId", plot.m_nBodyId);
  visit("m_nEnvelopeFlag", plot.m_nEnvelopeFlag);
  each("m_nHost25", plot.m_nHost25);
  visit("m_n64Host26", plot.m_n64Host26);
  each("m_nHost27", plot.m_nHost27);
  each("m_nHost28", plot.m_nHost28);
  visit("m_dHost29", plot.m_dHost29);
  each("m_nHost30", plot.m_nHost30);
  visit("m_arrHost31", plot.m_arrHost31);
  visit("m_arrHost32", plot.m_arrHost32);
  visit("m_nHost33", plot.m_nHost33);
  visit("m_dHost34", plot.m_dHost34);
  each("m_n64Host35", plot.m_n64Host35);
  visit("m_EquationPlot", plot.m_EquationPlot);
  each("m_nHost37", plot.m_nHost37);
  visit("m_strHost38", plot.m_strHost38);
  visit("m_strHost39", plot.m_strHost39);
  each("m_arrHost40", plot.m_arrHost40);
  each("m_nHost41", plot.m_nHost41);
}

/// The same for a list.
template <class List, class Visit>
  requires std::same_as<std::remove_const_t<List>, CVekPostListParam>
void VisitMembers(List& list, Visit visit) {
  const auto each = ForEachElement(visit);
  visit("m_strStudyPath", list.m_strStudyPath);
  visit("m_nAnalysisType", list.m_nAnalysisType);
  visit("m_nResultType", list.m_nResultType);
  visit("m_nComponent", list.m_nComponent);
  visit("m_nHost5", list.m_nHost5);
  visit("m_nHost6", list.m_nHost6);
  visit("m_nVariant", list.m_nVariant);
  visit("m_nUnitIndex", list.m_nUnitIndex);
  visit("m_nHost9", list.m_nHost9);
  visit("m_nHost10", list.m_nHost10);
  visit("m_nListSetFlag", list.m_nListSetFlag);
  visit("m_nHost12", list.m_nHost12);
  visit("m_nHost13", list.m_nHost13);
  visit("m_dHost14", list.m_dHost14);
  each("m_nHost15", list.m_nHost15);
  visit("m_nListSetKind", list.m_nListSetKind);
  visit("m_nTitleSwitch", list.m_nTitleSwitch);
  visit("m_nHost18", list.m_nHost18);
  visit("m_strHost19", list.m_strHost19);
  visit("m_nHost20", list.m_nHost20);
  each("m_ViewMatrix[0]", list.m_ViewMatrix[0]);
  each("m_ViewMatrix[1]", list.m_ViewMatrix[1]);
  each("m_ViewMatrix[2]", list.m_ViewMatrix[2]);
  each("m_ViewMatrix[3]", list.m_ViewMatrix[3]);
  each("m_nHost22", list.m_nHost22);
  visit("m_nUnitOption", list.m_nUnitOption);
  each("m_arrHost23", list.m_arrHost23);
  each("m_nHost24", list.m_nHost24);
}

/// The same for an animation.
template <class Animation, class Visit>
  requires std::same_as<std::remove_const_t<Animation>, CmqpAnimateParam>
void VisitMembers(Animation& animation, Visit visit) {
  visit("m_nHost1", animation.m_nHost1);
  visit("m_nFrames", animation.m_nFrames);
  visit("m_nHost3", animation.m_nHost3);
  visit("m_nHost4", animation.m_nHost4);
  visit("m_nHost5", animation.m_nHost5);
  visit("m_strHost6", animation.m_strHost6);
  visit("m_n64Host7", animation.m_n64Host7);
}

/// An object as something that is about to go. `std::move` would promise a move, which the value
/// types with copies of their own do not have.
template <class Object>
Object&& AsTemporary(Object& object) noexcept {
  return static_cast<Object&&>(object);
}

/// What every member holds now.
template <class Object>
MemberLines LinesOf(const Object& object) {
  MemberLines lines;
  VisitMembers(object, [&lines](const std::string& name, const auto& member) {
    lines.push_back({name, Show(member)});
  });
  return lines;
}

/// Every line in which two objects differ; empty when they are equal.
inline std::string Differences(const MemberLines& got, const MemberLines& expected) {
  if (got.size() != expected.size()) {
    return "got " + std::to_string(got.size()) + " members, expected " +
           std::to_string(expected.size());
  }
  std::string text;
  for (std::size_t line = 0; line < got.size(); ++line) {
    if (got[line].name != expected[line].name || got[line].value != expected[line].value) {
      text +=
          got[line].name + ": got " + got[line].value + ", expected " + expected[line].value + '\n';
    }
  }
  return text;
}
template <class Object>
std::string Differences(const Object& got, const MemberLines& expected) {
  return Differences(LinesOf(got), expected);
}

/// The first lines, with the named ones taken from the second.
inline MemberLines Mixed(MemberLines lines, const MemberLines& others,
                         std::initializer_list<std::string_view> names) {
  for (const std::string_view name : names) {
    const auto line = std::ranges::find(lines, name, &MemberLine::name);
    const auto other = std::ranges::find(others, name, &MemberLine::name);
    if (line == lines.end() || other == others.end()) {
      lines.push_back({std::string(name), "is no member"});
    } else {
      line->value = other->value;
    }
  }
  return lines;
}

/// Hands out values that differ from each other and from every default.
struct DistinctValues {
  int seed;
  int next;

  void Set(int& member) { member = next++; }
  void Set(float& member) { member = static_cast<float>(next++ & 0xFFFF) + 0.25F; }
  void Set(double& member) { member = -1.0 / 3.0 - next++ / 7.0; }
  void Set(__int64& member) { member = 0x1234'5678'9ABC'0000 + next++; }
  void Set(CString& member) {
    member.Format(MQ_TEXT("text \u03A9 %d, for which a string has no room in itself"), next++);
  }
  void Set(CmqEquationPlotParam& member) { SetState(member, FilledEquation(seed, seed)); }
  template <class Element>
  void Set(CArray<Element>& member) {
    member.SetSize(seed + 1);
    for (int index = 0; index < member.GetSize(); ++index) {
      Set(member[index]);
    }
  }
};

/// Gives every member a value of its own, different from each default, from every other member
/// and from those of another seed from 1 to 7. Growable arrays get one element more than the seed
/// says, equation plots as many variables.
template <class Object>
void FillWithDistinctValues(Object& object, int seed) {
  DistinctValues values{seed, seed * 0x1111'1111};
  VisitMembers(object, [&values](const std::string&, auto& member) { values.Set(member); });
}

/// The names of the lines that hold what another line of the same object holds, or what the line
/// of the same name in `others` holds.
inline std::string Undistinguished(const MemberLines& lines, const MemberLines& others) {
  std::string names;
  for (const MemberLine& line : lines) {
    const auto sameValue = [&line](const MemberLine& other) { return other.value == line.value; };
    const auto sameLine = [&line](const MemberLine& other) {
      return other.name == line.name && other.value == line.value;
    };
    if (std::ranges::count_if(lines, sameValue) != 1 || std::ranges::any_of(others, sameLine)) {
      names += line.name + '\n';
    }
  }
  return names;
}

/// Sets every member of a plot to its default, one by one.
inline void SetDefaults(CmqPostDataParam& plot) {
  plot.m_strPlotName = MQ_TEXT("");
  plot.m_nAnalysisType = 0;
  plot.m_nResultType = 2;
  plot.m_nComponent = 9;
  plot.m_nHost5 = 1;
  plot.m_nHost6 = 0;
  plot.m_nVariant = 0;
  plot.m_nHost8 = 1;
  plot.m_nDeformScaleMode = 0;
  plot.m_fDeformScaleFactor1 = 0.0F;
  plot.m_fDeformScaleFactor0 = 0.0F;
  plot.m_nUnitIndex = 0;
  plot.m_nHost12[0] = 0;
  plot.m_nHost12[1] = 0;
  plot.m_nHost12[2] = 0;
  plot.m_nFailureCriterion = 0;
  plot.m_nHost14 = 0;
  plot.m_dHost15 = 1.0;
  plot.m_dHost16[0] = 0.0;
  plot.m_dHost16[1] = 0.0;
  plot.m_dHost16[2] = 0.0;
  plot.m_nCriterionOptions[0] = 0;
  plot.m_nCriterionOptions[1] = 0;
  plot.m_dHost18[0] = 1.0;
  plot.m_dHost18[1] = 1.0;
  plot.m_nHost19 = -1;
  plot.m_strHost20[0] = MQ_TEXT("");
  plot.m_strHost20[1] = MQ_TEXT("");
  plot.m_nHost21 = 0;
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 4; ++column) {
      plot.m_ViewMatrix[row][column] = row == column ? 1.0 : 0.0;
    }
  }
  plot.m_nBodyId = 0;
  plot.m_nEnvelopeFlag = 0;
  for (int& value : plot.m_nHost25) {
    value = 0;
  }
  plot.m_n64Host26 = 0;
  for (int& value : plot.m_nHost27) {
    value = 0;
  }
  plot.m_nHost28[0] = 1;
  plot.m_nHost28[1] = 1;
  plot.m_nHost28[2] = 0;
  plot.m_nHost28[3] = 0;
  plot.m_nHost28[4] = 0;
  plot.m_nHost28[5] = -1;
  plot.m_nHost28[6] = -1;
  plot.m_nHost28[7] = 0;
  plot.m_nHost28[8] = 0;
  plot.m_dHost29 = -1.0;
  plot.m_nHost30[0] = 0;
  plot.m_nHost30[1] = 0;
  plot.m_nHost30[2] = 0;
  plot.m_arrHost31.RemoveAll();
  plot.m_arrHost32.RemoveAll();
  plot.m_nHost33 = 1;
  plot.m_dHost34 = 3.0;
  plot.m_n64Host35[0] = 0;
  plot.m_n64Host35[1] = 0;
  SetState(plot.m_EquationPlot, EquationState());
  for (int& value : plot.m_nHost37) {
    value = 0;
  }
  plot.m_strHost38 = MQ_TEXT(" ");
  plot.m_strHost39 = MQ_TEXT("");
  plot.m_arrHost40[0].RemoveAll();
  plot.m_arrHost40[1].RemoveAll();
  plot.m_nHost41[0] = -1;
  plot.m_nHost41[1] = -1;
}

}  // namespace mqp::test
