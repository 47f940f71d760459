// Equations on their way between the editor, the record and the screen. What becomes of the texts
// and the variables is what replacing unit by unit gives; doing it again changes nothing; names in
// double quotes, and a display equation of damaged variables, stay bounded.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/params/equation_plot.h>

#include "input.h"
#include "params/record_test_support.h"

namespace mqp::fuzz {
namespace {

using Names = std::vector<CString>;
using Editor = CmqResultCompsEqnVarsList;

constexpr mqChar kQuote = MQ_TEXT('"');
constexpr int kMostNames = 12;  // an unquoted name can double the text

struct Offer {
  StringValues Editor::* names;
  int resultType;
};
constexpr Offer kOffers[] = {{&Editor::m_listStressNames, 2},
                             {&Editor::m_listBeamStressNames, 59},
                             {&Editor::m_listStrainNames, 3},
                             {&Editor::m_listDisplacementNames, 1},
                             {&Editor::m_listThermalNames, 5}};

CString Quoted(const CString& name) {
  return kQuote + name + kQuote;
}
CString Placeholder(int index) {
  CString text;
  text.Format(MQ_TEXT("\"Variable%d\""), index);
  return text;
}

CString Replaced(const CString& text, const CString& old, const CString& replacement) {
  const mqTextView units = text.View();
  std::basic_string<mqChar> result;
  for (std::size_t place = 0; place < units.size();) {
    const bool isFound = !old.IsEmpty() && units.substr(place).starts_with(old.View());
    result += isFound ? replacement.View() : units.substr(place, 1);
    place += isFound ? old.View().size() : 1;
  }
  return CString(mqTextView(result));
}

CString AnyName(Input& input, int study) {
  const int resultType = kOffers[input.Below(std::size(kOffers))].resultType;
  switch (input.Below(5)) {
    case 0: return CString(kQuote);  // stands in everything that replaces it
    case 1: return Placeholder(input.Below(kMostNames));
    case 2: return input.AnyText(4);
    case 3: return Quoted(input.AnyText(4));
    default: break;
  }
  return Quoted(
      vekPostCommonGetComponentName(study, resultType, 0, input.Below(16), input.Below(5), 0));
}

Names AnyNames(Input& input, int study) {
  Names names;
  for (int count = input.Below(kMostNames + 1); count > 0; --count) {
    names.push_back(AnyName(input, study));
  }
  return names;
}

/// Text with names in it.
CString AnyEquation(Input& input, const Names& names) {
  CString equation;
  for (int count = input.Below(16); count > 0; --count) {
    const int place = input.Below(2 * kMostNames);
    equation += place < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(place)]
                                                       : input.AnyText(3);
  }
  return equation;
}

Editor AnyEditor(Input& input, const Names& names) {
  Editor editor;
  editor.m_nAnalysisType = input.AnyCode();
  editor.m_nLookupOption = input.Below(2);
  editor.m_nCoefficientsFlag = input.Below(3) - 1;
  for (const CString& name : names) {
    editor.m_listVariableNames.AddTail(name);
    (editor.*kOffers[input.Below(std::size(kOffers))].names).AddTail(name);
    if (input.ConsumeBool()) {
      editor.m_arrCoefficients.Add(input.AnyCode());
    }
  }
  if (!names.empty() && input.ConsumeBool()) {  // nobody offered the first name
    for (const Offer& offer : kOffers) {
      (editor.*offer.names).RemoveAll();
    }
  }
  editor.m_strEquation = AnyEquation(input, names);
  return editor;
}

test::VariableState LookUpPlainly(const Editor& editor, const CString& name, int index) {
  test::VariableState variable{Placeholder(index), -1, -1};
  for (const Offer& offer : kOffers) {
    if (variable.resultType == -1 && (editor.*offer.names).Find(name) != nullptr) {
      variable.resultType = offer.resultType;
      variable.component = vekPostCommonGetComponentIndexByName(
          editor.m_nAnalysisType, offer.resultType, editor.m_nLookupOption,
          Replaced(name, CString(kQuote), CString()), offer.resultType == 59 ? 1 : 0);
    }
  }
  if (editor.m_nCoefficientsFlag != 0 && index < editor.m_arrCoefficients.GetSize()) {
    variable.coefficient = editor.m_arrCoefficients[index];
  }
  return variable;
}

test::EquationState PreparePlainly(const Editor& editor, const Names& names) {
  test::EquationState state;
  state.equation = editor.m_strEquation;
  state.displayEquation = editor.m_strEquation;
  state.coefficientsFlag = editor.m_nCoefficientsFlag;
  for (int index = 0; index < static_cast<int>(names.size()); ++index) {
    const CString& name = names[static_cast<std::size_t>(index)];
    state.variables.push_back(LookUpPlainly(editor, name, index));
    state.equation = Replaced(state.equation, name, Placeholder(index));
  }
  return state;
}

bool IsQuoted(const CString& name) {
  return name.GetLength() >= 2 && name.View().front() == kQuote && name.View().back() == kQuote;
}

/// What is replaced takes two quotes at least and puts two in, so that the quotes never get more.
void CheckGrowth(const Editor& editor, const Names& names, const CmqEquationPlotParam& plot) {
  const auto quotes = std::ranges::count(editor.m_strEquation.View(), kQuote);
  const auto longest = Placeholder(kMostNames - 1).GetLength();
  Require(plot.m_strEquation.GetLength() <=
              editor.m_strEquation.GetLength() +
                  static_cast<int>(names.size()) * static_cast<int>(quotes / 2) * (longest - 2),
          "quoted names let an equation grow in proportion");
}

void CheckPreparation(Input& input, int study) {
  const Names names = AnyNames(input, study);
  const Editor editor = AnyEditor(input, names);
  const test::EquationState expected = PreparePlainly(editor, names);
  CmqEquationPlotParam plot;
  for (const Editor* list : {&editor, &editor, static_cast<const Editor*>(nullptr)}) {
    plot.PrepareEquationParams(list);
    RequireNone(test::Differences(plot, expected));
  }
  if (std::ranges::all_of(names, IsQuoted)) {
    CheckGrowth(editor, names, plot);
  }
}

/// A plot as a damaged record gives it: variables of any name, and an equation up to the longest.
test::EquationState AnyState(Input& input, int study) {
  test::EquationState state;
  const Names names = AnyNames(input, study);
  for (const CString& name : names) {
    state.variables.push_back({name, input.AnyCode(), input.AnyCode(), 1.0});
  }
  const CString part = AnyEquation(input, names);
  for (int count = 1 << input.Below(11); count > 0; --count) {
    state.equation += state.equation.GetLength() < 1024 ? part : CString();
  }
  state.equation = state.equation.Left(1024);
  return state;
}

void CheckDisplay(Input& input, int study) {
  test::EquationState state = AnyState(input, study);
  CmqEquationPlotParam plot;
  test::SetState(plot, state);
  const int meshKind = input.AnyCode();
  const int passOn = input.AnyCode();
  state.displayEquation = state.equation;
  const int most = 16 * std::max(state.equation.GetLength(), 1024);
  for (const test::VariableState& variable : state.variables) {
    if (state.displayEquation.GetLength() > most) {
      break;
    }
    const CString name = vekPostCommonGetComponentName(study, variable.resultType, passOn,
                                                       variable.component, meshKind, 0);
    state.displayEquation = Replaced(state.displayEquation, variable.name, Quoted(name));
  }
  for (const int ignored : {input.AnyInt(), 0}) {
    plot.PrepareEquationToDisplay(study, ignored, meshKind, passOn);
    RequireNone(test::Differences(plot, state));
  }
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mqp::fuzz::Input input(data, size);
  const int study = input.AnyCode();
  if (input.ConsumeBool()) {
    mqp::fuzz::CheckPreparation(input, study);
  } else {
    mqp::fuzz::CheckDisplay(input, study);
  }
  return 0;
}
