// Asks the library everything that its tables decide, over the whole space of codes: named ones,
// holes, neighbours and extremes. Asks it all twice and compares, piece by piece; run under the
// mutants of a table it says of each whether any answer tells it from the original.
#include "table_mutants.h"

#include <array>
#include <bit>
#include <cinttypes>
#include <climits>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <set>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>
#include <mqPostCommon/platform/case_folding.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/preference.h>

namespace {

/// The ids of texts that the library asked for, in their order.
std::vector<UINT>& AskedIds() {
  static std::vector<UINT> ids;
  return ids;
}

}  // namespace

/// Every id has a text, and none begins with that of another of five digits.
int mqpLoadString(CString& text, UINT id) {
  AskedIds().push_back(id);
  text.Format(MQ_TEXT("%05u"), id);
  return 1;
}

namespace mqp::proof {
namespace {

// ---------------------------------------------------------------------------------------------
// Answers and pieces

/// The answers of one piece of work, and the texts that it asked for, in one number.
class Answers {
 public:
  void Add(std::integral auto answer) {
    m_sum = (m_sum ^ static_cast<std::uint64_t>(answer)) * 0x9E3779B97F4A7C15U;
    m_sum ^= m_sum >> 29U;
  }
  void Add(mqTextView text) {
    Add(text.size());
    for (const mqChar unit : text) {
      Add(static_cast<std::uint32_t>(unit));
    }
  }
  void Add(const CString& text) { Add(text.View()); }
  void Add(const mqChar* text) { Add(mqTextView(text)); }
  void Add(std::string_view text) {
    for (const char unit : text) {
      Add(static_cast<int>(unit));
    }
  }
  [[nodiscard]] std::uint64_t Sum() const { return m_sum; }

 private:
  std::uint64_t m_sum = 0;
};

/// The first walk keeps the sum of each piece, the second compares.
class Walk {
 public:
  template <class Work>
  void Piece(Work work) {
    if (!m_isSecond) {
      m_sums.push_back(SumOf(work));
      return;
    }
    const auto isDifferent = [&, expected = m_sums[m_next++]] { return SumOf(work) != expected; };
    if (MqPieceBegins == nullptr) {
      m_differences += isDifferent() ? 1 : 0;
      return;
    }
    MqPieceBegins();
    m_differences += isDifferent() ? 1 : 0;
    MqPieceEnds([](void* piece) { return (*static_cast<decltype(&isDifferent)>(piece))() ? 1 : 0; },
                const_cast<void*>(static_cast<const void*>(&isDifferent)));
  }
  void BeginAgain() { m_isSecond = true; }
  [[nodiscard]] std::uint64_t Sum() const {
    Answers all;
    for (const std::uint64_t sum : m_sums) {
      all.Add(sum);
    }
    return all.Sum();
  }
  [[nodiscard]] std::size_t Pieces() const { return m_sums.size(); }
  [[nodiscard]] int Differences() const { return m_differences; }

 private:
  template <class Work>
  static std::uint64_t SumOf(const Work& work) {
    Answers answers;
    AskedIds().clear();
    work(answers);
    for (const UINT id : AskedIds()) {
      answers.Add(id);
    }
    return answers.Sum();
  }

  std::vector<std::uint64_t> m_sums;
  std::size_t m_next = 0;
  int m_differences = 0;
  bool m_isSecond = false;
};

// ---------------------------------------------------------------------------------------------
// The codes

std::vector<int> FromTo(int first, int last, std::initializer_list<int> others) {
  std::vector<int> codes(others);
  for (int code = first; code <= last; ++code) {
    codes.push_back(code);
  }
  return codes;
}

const std::vector<int> kStudies = FromTo(-1, 13, {INT_MIN, 256, INT_MAX});
const std::vector<int> kResults = FromTo(-2, 76, {INT_MIN, 256, INT_MAX});
const std::vector<int> kComponents =
    FromTo(-1, 32, {INT_MIN, 64, 99, 100, 101, 127, 128, 256, 65536, INT_MAX});
const std::vector<int> kManyComponents = FromTo(-1, 128, {INT_MIN, 256, 65536, INT_MAX});
const std::vector<int> kMeshKinds = FromTo(-1, 5, {INT_MAX});
constexpr std::array kSwitch = {0, 1};
constexpr std::array kThreeValues = {0, 1, 2};
constexpr std::array kFourValues = {0, 1, 2, 3};
constexpr mqTextView kNoSuchText = MQ_TEXT("?");

/// The lists of a dynamic stress alone reach to component 100.
std::span<const int> ComponentsOf(int study, int result) {
  return study == 8 && result == 2 ? kManyComponents : kComponents;
}

template <class Work>
void ForEachCell(Walk& walk, Work work) {
  for (const int study : kStudies) {
    for (const int result : kResults) {
      walk.Piece([&](Answers& answers) { work(answers, study, result); });
    }
  }
}

template <class Work>
void ForEachDisplayFlag(Work work) {
  for (const int flag : kSwitch) {
    vekPostCommonSetActualFreqDispFlag(flag);
    work();
  }
  vekPostCommonSetActualFreqDispFlag(0);
}

// ---------------------------------------------------------------------------------------------
// The catalogue

void AskTotals(Answers& answers, int study, int result) {
  for (const int mesh : kMeshKinds) {
    for (const int flags : {0, 1, 2, 4}) {
      for (const int extra : kSwitch) {
        for (const int more : kSwitch) {
          for (const auto& [option, choice] : {std::pair(0, 0), std::pair(1, 7), std::pair(2, 7)}) {
            answers.Add(vekPostCommonGetComponentTotal(study, result, extra, mesh, 0, more, flags,
                                                       option, choice));
          }
        }
      }
    }
    for (const int option : kThreeValues) {
      answers.Add(vekPostCommonGetComponentDefault(study, result, 0, mesh, option));
    }
  }
}

void AskTypesAndBounds(Answers& answers, int study, int result) {
  for (const int component : ComponentsOf(study, result)) {
    for (const int choice : kSwitch) {
      std::array members = {-7, -7, -7};
      answers.Add(
          vekPostCommonGetComponentDataType(study, result, component, members.data(), choice));
      for (const int member : members) {
        answers.Add(member);
      }
      answers.Add(vekPostCommonGetEnvelopBoundTotal(study, result, component, choice));
    }
    for (const int mesh : kMeshKinds) {
      answers.Add(vekPostCommonIsReferenceAvailable(study, result, component, mesh));
    }
  }
}

void AskDirections(Answers& answers, int study, int result) {
  for (const int component : ComponentsOf(study, result)) {
    for (const int variant : kSwitch) {
      std::array<float, 4> direction{};
      vekPostCommonGetComponentVectorDir(study, result, component, variant, direction.data());
      for (const float weight : direction) {
        answers.Add(std::bit_cast<std::uint32_t>(weight));
      }
    }
  }
}

void AskNames(Answers& answers, int study, int result) {
  ForEachDisplayFlag([&] {
    for (const int component : ComponentsOf(study, result)) {
      for (const int mesh : {0, 4}) {
        for (const int choice : kSwitch) {
          answers.Add(vekPostCommonGetComponentName(study, result, 0, component, mesh, choice));
          answers.Add(vekPostCommonGetComponentNameBar(study, result, 0, component, mesh, choice));
        }
      }
      answers.Add(vekPostCommonGetComponentNameShort(study, result, 0, component));
      answers.Add(vekPostCommonGetComponentNameBrief(study, result, 0, component));
    }
  });
  for (const int chart : kSwitch) {
    for (const int option : kFourValues) {
      answers.Add(vekPostCommonGetGraphNameForReport(study, result, chart, option));
    }
  }
}

void AskUnits(Answers& answers, int study, int result) {
  ForEachDisplayFlag([&] {
    for (const int component : ComponentsOf(study, result)) {
      for (const int option : {1, 2}) {
        for (const int flag : kSwitch) {
          answers.Add(vekPostCommonGetUnitType(study, result, component, option, flag));
        }
      }
    }
    for (const int component : {0, 4}) {
      answers.Add(
          vekPostCommonGetComponentUnitsBasedOnSystemUnit(0, study, result, component, 0, 0));
    }
  });
}

std::vector<UINT> AskedSince(std::size_t begin) {
  return {AskedIds().begin() + static_cast<std::ptrdiff_t>(begin), AskedIds().end()};
}

/// The candidates are those texts that are compared with a name that is none.
void AskLookUp(Answers& answers, int study, int result) {
  for (const int variant : kSwitch) {
    const std::size_t begin = AskedIds().size();
    answers.Add(
        vekPostCommonGetComponentIndexByName(study, result, variant, CString(kNoSuchText), 1));
    for (const UINT id : AskedSince(begin)) {
      CString name;
      mqpLoadString(name, id);
      answers.Add(vekPostCommonGetComponentIndexByName(study, result, variant, name, 1));
    }
  }
}

void AskResult(Answers& answers, int result) {
  answers.Add(vekPostCommonGetResultName(result));
  answers.Add(vekPostCommonGetFirstAvailableAnalysisType(result, 0));
  CArray<int, int> studies;
  answers.Add(vekPostCommonGetAvailableAnalysisType(result, 0, studies));
  for (int place = 0; place < studies.GetSize(); ++place) {
    answers.Add(studies[place]);
  }
}

void AskResultsByName(Answers& answers) {
  const std::size_t begin = AskedIds().size();
  answers.Add(vekPostCommonGetResultTypeByComponentName(CString(kNoSuchText)));
  for (const UINT id : AskedSince(begin)) {
    CString name;
    mqpLoadString(name, id);
    answers.Add(vekPostCommonGetResultTypeByComponentName(name));
  }
}

/// A study, a result and a component of each quantity, so that its defaults are asked for too.
struct Shown {
  int study;
  int result;
  int component;
  int option;
};

std::vector<Shown> ShownQuantities() {
  std::set<int> seen;
  std::vector<Shown> shown;
  vekPostCommonSetActualFreqDispFlag(1);
  for (const int study : kStudies) {
    for (const int result : kResults) {
      for (const int component : kComponents) {
        for (const int option : {0, 2}) {
          if (seen.insert(vekPostCommonGetUnitType(study, result, component, option, 1)).second) {
            shown.push_back({study, result, component, option});
          }
        }
      }
    }
  }
  vekPostCommonSetActualFreqDispFlag(0);
  return shown;
}

void AskQuantity(Answers& answers, int unitType) {
  answers.Add(vekPostCommonGetUnitTotal(unitType));
  for (int index = -1; index <= 20; ++index) {
    answers.Add(vekPostCommonGetUnitName(unitType, index));
  }
  answers.Add(vekPostCommonGetUnitName(unitType, INT_MAX));
}

void WalkCatalogue(Walk& walk, std::span<const Shown> shown) {
  ForEachCell(walk, AskTotals);
  ForEachCell(walk, AskTypesAndBounds);
  ForEachCell(walk, AskDirections);
  ForEachCell(walk, AskNames);
  ForEachCell(walk, AskUnits);
  ForEachCell(walk, AskLookUp);
  for (const int result : kResults) {
    walk.Piece([=](Answers& answers) { AskResult(answers, result); });
  }
  walk.Piece(AskResultsByName);
  for (const int unitType : FromTo(-1, 45, {INT_MIN, 9999, INT_MAX})) {
    walk.Piece([=](Answers& answers) { AskQuantity(answers, unitType); });
  }
  for (const Shown& one : shown) {
    walk.Piece([&](Answers& answers) {
      for (const int system : {-1, 0, 1, 2, 3}) {
        answers.Add(vekPostCommonGetComponentUnitsBasedOnSystemUnit(system, one.study, one.result,
                                                                    one.component, one.option, 1));
      }
    });
  }
}

// ---------------------------------------------------------------------------------------------
// Lists

void AskList(Answers& answers, const CVekPostListParam& list) {
  answers.Add(list.GetComponentCount());
  answers.Add(list.GetListColCount());
  answers.Add(list.GetComponentIndexByListSet());
  answers.Add(list.GetUnitType());
  for (int column = -1; column <= 9; ++column) {
    answers.Add(list.GetComponentName(column));
  }
  for (const int column : {0, 1, 3, 4}) {
    answers.Add(list.GetListColTitle(column));
    answers.Add(list.GetComponentIndex(column));
  }
}

void WalkLists(Walk& walk) {
  for (const int result : FromTo(0, 6, {12, 13, 18, 19, 20, 21, 59})) {
    for (const int kind : FromTo(-1, 5, {})) {
      walk.Piece([&](Answers& answers) {
        ForEachDisplayFlag([&] {
          for (const int study : FromTo(0, 9, {})) {
            for (const int component : {-1, 0, 1, 2, 3, 4, 5, 9, 100}) {
              if (component < 0 || component > 4 || result == 12) {
                CVekPostListParam list;
                list.m_nAnalysisType = study;
                list.m_nResultType = result;
                list.m_nComponent = component;
                list.m_nListSetKind = kind;
                list.m_nListSetFlag = 1;
                AskList(answers, list);
              }
            }
          }
        });
      });
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Graphs and equations

void AskGraph(Answers& answers, CmqPostGraphParam& graph) {
  answers.Add(graph.GetFolderName());
  for (const int mesh : {0, 3, 4}) {
    answers.Add(graph.GetDefaultPlotName(mesh));
    answers.Add(graph.GetYTitle(mesh, 0));
    answers.Add(graph.GetYTitle(mesh, 1));
  }
  preference preferences;
  preferences.m_nStressUnit = 101;
  preferences.m_nLengthUnit = 102;
  preferences.m_nTemperatureUnit = 103;
  graph.SetDefaultOptionByPreferences(&preferences);
  answers.Add(graph.m_YAxis.m_nUnit);
}

void AddFields(Answers& answers, const std::vector<RecordField>& fields) {
  for (const RecordField& field : fields) {
    answers.Add(field.name);
    answers.Add(static_cast<int>(field.type));
    answers.Add(field.count);
    answers.Add(field.since);
  }
}

void WalkGraphs(Walk& walk) {
  for (const int study : FromTo(0, 10, {})) {
    for (const int result : {1, 2, 5, 14, 16, 19, 20, 52, 61, 63, 65}) {
      walk.Piece([&](Answers& answers) {
        for (const int option : kThreeValues) {
          for (const int flag : kSwitch) {
            for (int component = -1; component <= 16; ++component) {
              CmqPostGraphParam graph(study, result, 0, 0, option);
              graph.m_nDynamicOption = option;
              graph.m_nYUnitFlag = flag;
              graph.m_nFrequencyResponseMode = component;
              graph.m_YAxis.m_nQuantityType = result;
              graph.m_YAxis.m_nComponent = component;
              graph.m_XAxis.m_nQuantityType = flag == 0 ? 14 : 16;
              AskGraph(answers, graph);
            }
          }
        }
      });
    }
  }
  walk.Piece([](Answers& answers) {
    AddFields(answers, CmqPostGraphParam::GetRecordFields());
    AddFields(answers, CmqEquationPlotParam::GetRecordFields());
    AddFields(answers, CmqEquationVariable::GetRecordFields());
  });
}

/// The same name is offered in the lists from `first` on.
void AskOfferedNames(Answers& answers, int first, int study, mqTextView name) {
  CmqResultCompsEqnVarsList offered;
  offered.m_nAnalysisType = study;
  const std::array lists = {&offered.m_listStressNames, &offered.m_listBeamStressNames,
                            &offered.m_listStrainNames, &offered.m_listDisplacementNames,
                            &offered.m_listThermalNames};
  for (std::size_t place = static_cast<std::size_t>(first); place < lists.size(); ++place) {
    lists[place]->AddTail(CString(name));
  }
  offered.m_listVariableNames.AddTail(CString(name));
  offered.m_strEquation = CString(name);
  int result = 0;
  answers.Add(offered.GetComponentNumberAndResultTypeForVariable(CString(name), result));
  answers.Add(result);
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&offered);
  answers.Add(plot.m_strEquation);
  plot.PrepareEquationToDisplay(study, 0, 0, 0);
  answers.Add(plot.m_strDisplayEquation);
}

void WalkEquations(Walk& walk) {
  // Texts of components of each of the five results, whole, and longer than their key.
  constexpr auto kNames = std::to_array<mqTextView>(
      {MQ_TEXT("\"54592\""), MQ_TEXT("\"54010\""), MQ_TEXT("\"54604\""), MQ_TEXT("\"54579\""),
       MQ_TEXT("\"54613\""), MQ_TEXT("\"54592: a\""), MQ_TEXT("\"54010: a\""),
       MQ_TEXT("\"54604: a\""), MQ_TEXT("\"54579: a\""), MQ_TEXT("\"54613: a\"")});
  for (const mqTextView name : kNames) {
    walk.Piece([&](Answers& answers) {
      for (int first = 0; first <= 5; ++first) {
        for (const int study : {0, 3, 5}) {
          AskOfferedNames(answers, first, study, name);
        }
      }
    });
  }
  walk.Piece([](Answers& answers) {
    answers.Add(CmqEquationVariable().m_strName);
    answers.Add(CmqPostDataParam().m_strHost38);
    for (int first = 0; first <= 5; ++first) {
      AskOfferedNames(answers, first, 3, MQ_TEXT("\"54613\""));
    }
  });
}

// ---------------------------------------------------------------------------------------------
// Materials

/// Every text of a constant table, each up to its zero.
void AddTexts(Answers& answers, const auto& table) {
  for (const auto& text : table.m_strTexts) {
    answers.Add(static_cast<const mqChar*>(text));
  }
}

/// Piece by piece, so that a mutant of a text lives as long as it takes to read that text.
void WalkTexts(Walk& walk) {
  for (const UnitList& list : g_UnitLists) {
    walk.Piece([&](Answers& answers) {
      answers.Add(static_cast<const mqChar*>(list.m_strName));
      answers.Add(static_cast<const mqChar*>(list.m_strText));
    });
  }
  walk.Piece([](Answers& answers) { AddTexts(answers, g_strMatPropKeywords); });
  walk.Piece([](Answers& answers) { AddTexts(answers, g_strMatPropUnits); });
  for (const int number : FromTo(-1, kMaterialModelTotal + 1, {})) {
    walk.Piece([=](Answers& answers) {
      const MaterialModel model = GetMaterialModel(number);
      for (int place = 0; place < model.m_nKeywords; ++place) {
        answers.Add(static_cast<const mqChar*>(model.m_strKeywords[place]));
      }
    });
  }
  walk.Piece([](Answers& answers) {
    for (int index = 0; index < kMatPropTotal; ++index) {
      answers.Add(FindMaterialProperty(g_strMatPropKeywords[index]));
      answers.Add(FindMaterialProperty(g_strMatPropKeywords[index] + 1));
      const CString longer = CString(g_strMatPropKeywords[index]) + MQ_TEXT("0");
      answers.Add(FindMaterialProperty(longer.View()));
    }
  });
}

struct StrengthMembers {
  int CmqpMaterialData::* has;
  double CmqpMaterialData::* value;
  int CmqpMaterialData::* varies;
  CmqTemperatureCurve CmqpMaterialData::* curve;
  CmqTemperatureCurve* (CmqpMaterialData::*getCurve)() noexcept;
};

// clang-format off
constexpr auto kStrengthMembers = std::to_array<StrengthMembers>({
    { &CmqpMaterialData::m_bHasSIGYLD, &CmqpMaterialData::m_dSIGYLD, &CmqpMaterialData::m_bSIGYLDTempDepend, &CmqpMaterialData::m_SIGYLDTempCurve, &CmqpMaterialData::GetSIGYLDTempCurve },
    { &CmqpMaterialData::m_bHasSIGXT,  &CmqpMaterialData::m_dSIGXT,  &CmqpMaterialData::m_bSIGXTTempDepend,  &CmqpMaterialData::m_SIGXTTempCurve, &CmqpMaterialData::GetSIGXTTempCurve  },
    { &CmqpMaterialData::m_bHasSIGXC,  &CmqpMaterialData::m_dSIGXC,  &CmqpMaterialData::m_bSIGXCTempDepend,  &CmqpMaterialData::m_SIGXCTempCurve, &CmqpMaterialData::GetSIGXCTempCurve  },
    { &CmqpMaterialData::m_bHasSIGYT,  &CmqpMaterialData::m_dSIGYT,  &CmqpMaterialData::m_bSIGYTTempDepend,  &CmqpMaterialData::m_SIGYTTempCurve, &CmqpMaterialData::GetSIGYTTempCurve  },
    { &CmqpMaterialData::m_bHasSIGYC,  &CmqpMaterialData::m_dSIGYC,  &CmqpMaterialData::m_bSIGYCTempDepend,  &CmqpMaterialData::m_SIGYCTempCurve, &CmqpMaterialData::GetSIGYCTempCurve  },
    { &CmqpMaterialData::m_bHasSIGXY,  &CmqpMaterialData::m_dSIGXY,  &CmqpMaterialData::m_bSIGXYTempDepend,  &CmqpMaterialData::m_SIGXYTempCurve, &CmqpMaterialData::GetSIGXYTempCurve  },
});
// clang-format on

void AskMaterial(Answers& answers, CmqpMaterialData& material) {
  double value = 0;
  for (const auto get :
       {&CmqpMaterialData::GetPropertyValue_SIGYLD, &CmqpMaterialData::GetPropertyValue_SIGXT,
        &CmqpMaterialData::GetPropertyValue_SIGXC, &CmqpMaterialData::GetPropertyValue_SIGYT,
        &CmqpMaterialData::GetPropertyValue_SIGYC, &CmqpMaterialData::GetPropertyValue_SIGXY}) {
    answers.Add((material.*get)(value));
    answers.Add(static_cast<int>(value));
  }
  for (const auto varies :
       {&CmqpMaterialData::IsSIGYLDTempDepend, &CmqpMaterialData::IsSIGXTTempDepend,
        &CmqpMaterialData::IsSIGXCTempDepend, &CmqpMaterialData::IsSIGYTTempDepend,
        &CmqpMaterialData::IsSIGYCTempDepend, &CmqpMaterialData::IsSIGXYTempDepend}) {
    answers.Add((material.*varies)());
  }
}

/// A count of points that is seen when it is read a byte too early or too late.
constexpr std::array kPointTotals = {0, 1, 0x800000, 0x1000000};

void AskAboutMembers(Answers& answers, const StrengthMembers& strength) {
  for (const int has : kSwitch) {
    for (const int varies : kSwitch) {
      for (const int points : kPointTotals) {
        CmqpMaterialData material;
        material.*strength.has = has;
        material.*strength.varies = varies;
        (material.*strength.curve).m_nPoints = points;
        AskMaterial(answers, material);
        for (const StrengthMembers& other : kStrengthMembers) {
          answers.Add((material.*other.getCurve)() == &(material.*other.curve));
        }
      }
    }
  }
}

/// Values that differ from the record's in their first byte, in their last, and in others.
void AskAboutSameness(Answers& answers, const CmqpMaterialData& material,
                      const StrengthMembers& strength) {
  for (const int has : {7, 0x1000000}) {
    CmqpMaterialData changed = material;
    changed.*strength.has += has;
    answers.Add(material.IsSameValueForDesignCheck(changed));
  }
  const double value = material.*strength.value;
  for (const double other : {7.0, -value, std::nextafter(value, 100.0)}) {
    CmqpMaterialData changed = material;
    changed.*strength.value = other;
    answers.Add(material.IsSameValueForDesignCheck(changed));
  }
}

void AskAboutReset(Answers& answers, CmqpMaterialData& material, const StrengthMembers& strength) {
  (material.*strength.curve).m_nPoints = 0x01000002;  // the highest byte has its part in it
  material.ConstructorInit();
  AskMaterial(answers, material);
  for (const StrengthMembers& other : kStrengthMembers) {
    const CmqTemperatureCurve& curve = material.*other.curve;
    answers.Add(curve.m_nPoints);
    answers.Add(curve.m_vecX.size());
    answers.Add(curve.m_vecY.size());
  }
}

void AskAboutStrength(Answers& answers, const StrengthMembers& strength, int criterion,
                      int option) {
  CmqpMaterialData material;
  material.*strength.has = 1;
  material.*strength.value = 25;
  material.*strength.varies = 1;
  (material.*strength.curve).m_nPoints = 2;
  (material.*strength.curve).m_vecX = {1, 2};
  (material.*strength.curve).m_vecY = {3, 4};
  AskMaterial(answers, material);
  CmqpMaterialDataList list;
  list.Add(material);
  list.Add(material);
  CmqPostDataParam plot;
  plot.m_nResultType = 4;
  plot.m_nFailureCriterion = criterion;
  plot.m_nCriterionOptions[0] = option;
  answers.Add(list.IsTemperatureDependentFOSCriterion(&plot));
  for (const StrengthMembers& other : kStrengthMembers) {
    AskAboutSameness(answers, material, other);
  }
  AskAboutReset(answers, material, strength);
}

void WalkMaterials(Walk& walk) {
  for (const StrengthMembers& strength : kStrengthMembers) {
    walk.Piece([&](Answers& answers) {
      AskAboutMembers(answers, strength);
      for (int criterion = -1; criterion <= 5; ++criterion) {
        for (const int option : kThreeValues) {
          AskAboutStrength(answers, strength, criterion, option);
        }
      }
    });
  }
}

/// The units that have their folding in a table, and those at both ends of each range and inside.
std::vector<int> UnitsThatMayFold() {
  std::set<int> units;
  for (std::size_t unit = 0; unit < kFoldedFirst.size(); ++unit) {
    units.insert(static_cast<int>(unit));
  }
  for (const FoldingRange& range : kFoldingRanges) {
    for (int step = -3; step <= 3; ++step) {
      units.insert({range.first + step, range.last + step});
    }
  }
  return {units.begin(), units.end()};
}

CmqpMaterialDataList NamesOf(std::span<const int> units) {
  CmqpMaterialDataList names;
  CmqpMaterialData material;
  for (const int unit : units) {
    material.m_strMaterialName = CString(static_cast<mqChar>(unit), 1);
    names.Add(material);
  }
  return names;
}

/// Table and ranges are in this program as well, and change with those of the library.
void AskCaseFolding(Answers& answers) {
  static const std::vector<int> units = UnitsThatMayFold();
  static const CmqpMaterialDataList names = NamesOf(units);
  std::vector<int> indices;
  answers.Add(names.GetUniqueMaterialList(indices));
  for (const int unit : units) {
    answers.Add(static_cast<std::uint32_t>(FoldCase(static_cast<mqChar>(unit))));
  }
}

void WalkAll(Walk& walk, std::span<const Shown> shown) {
  WalkTexts(walk);
  WalkCatalogue(walk, shown);
  WalkLists(walk);
  WalkGraphs(walk);
  WalkEquations(walk);
  WalkMaterials(walk);
  walk.Piece(AskCaseFolding);
}

}  // namespace
}  // namespace mqp::proof

int main() {
  using namespace mqp::proof;
  Walk walk;
  const std::vector<Shown> shown = ShownQuantities();
  WalkAll(walk, shown);
  walk.BeginAgain();
  WalkAll(walk, shown);
  if (MqPiecesEnd != nullptr) {
    MqPiecesEnd();
  }
  std::printf("%zu pieces, %d of them different when asked again, sum %016" PRIx64 "\n",
              walk.Pieces(), walk.Differences(), walk.Sum());
  return walk.Differences() == 0 && walk.Pieces() > 0 ? 0 : 1;
}
