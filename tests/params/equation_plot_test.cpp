#include <climits>
#include <cstddef>
#include <initializer_list>
#include <limits>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/params/equation_plot.h>

#include "catalogue/name_test_support.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// Equations and names are full of double-quote characters: here an apostrophe stands for one.
CString Quoted(const mqChar* text) {
  CString quoted(text);
  quoted.Replace(MQ_TEXT('\''), MQ_TEXT('"'));
  return quoted;
}

using Objects = std::vector<const CmqEquationVariable*>;

Objects ObjectsOf(const CmqEquationPlotParam& plot) {
  Objects objects;
  for (POSITION position = plot.m_listVariables.GetHeadPosition(); position != nullptr;) {
    objects.push_back(plot.m_listVariables.GetNext(position));
  }
  return objects;
}

void AddVariable(CmqEquationPlotParam& plot, const VariableState& state) {
  SetState(plot.m_listVariables.Append(std::make_unique<CmqEquationVariable>()), state);
}

/// Calls `visit(name, member)` for every member of an editor's list in the order of declaration.
template <class List, class Visit>
void VisitEditorMembers(List& list, Visit visit) {
  visit("m_listStressNames", list.m_listStressNames);
  visit("m_listBeamStressNames", list.m_listBeamStressNames);
  visit("m_listStrainNames", list.m_listStrainNames);
  visit("m_listDisplacementNames", list.m_listDisplacementNames);
  visit("m_listThermalNames", list.m_listThermalNames);
  visit("m_nAnalysisType", list.m_nAnalysisType);
  for (auto& carried : list.m_nHost7) {
    visit("m_nHost7", carried);
  }
  visit("m_nLookupOption", list.m_nLookupOption);
  visit("m_strEquation", list.m_strEquation);
  visit("m_nCoefficientsFlag", list.m_nCoefficientsFlag);
  visit("m_listVariableNames", list.m_listVariableNames);
  visit("m_arrCoefficients", list.m_arrCoefficients);
}

std::string ShowAll(const StringValues& texts) {
  std::string all;
  for (POSITION position = texts.GetHeadPosition(); position != nullptr;) {
    all += Show(texts.GetNext(position)) + ", ";
  }
  return all;
}
std::string ShowAll(const ValueArray<double>& values) {
  std::string all;
  for (int index = 0; index < values.GetSize(); ++index) {
    all += Show(values[index]) + ", ";
  }
  return all;
}
std::string ShowAll(const CString& text) {
  return Show(text);
}
std::string ShowAll(int value) {
  return Show(value);
}

/// A line for every member.
std::string MembersOf(const CmqResultCompsEqnVarsList& list) {
  std::string lines;
  VisitEditorMembers(list, [&lines](const char* name, const auto& member) {
    lines += std::string(name) + ": " + ShowAll(member) + '\n';
  });
  return lines;
}

/// Gives every member values of its own.
void FillWithDistinctValues(CmqResultCompsEqnVarsList& list, int seed) {
  struct Filler {
    int next;
    void Set(int& member) { member = next++; }
    void Set(CString& member) { member.Format(MQ_TEXT("text %d"), next++); }
    void Set(StringValues& member) {
      CString text;
      Set(text);
      member.RemoveAll();
      member.AddTail(text);
      Set(text);
      member.AddTail(text);
    }
    void Set(ValueArray<double>& member) {
      member.RemoveAll();
      member.Add(next++ / 8.0);
      member.Add(next++ / 8.0);
    }
  };
  Filler filler{1000 * seed};
  VisitEditorMembers(list, [&filler](const char*, auto& member) { filler.Set(member); });
}

std::string FilledMembers(int seed) {
  CmqResultCompsEqnVarsList list;
  FillWithDistinctValues(list, seed);
  return MembersOf(list);
}

// --- defaults ---

TEST(EquationVariable, ANewVariableIsTheEquivalentStress) {
  const CmqEquationVariable variable;
  EXPECT_EQ(variable.m_strName, CString(MQ_TEXT("Variable")));
  EXPECT_EQ(variable.m_nResultType, 2);
  EXPECT_EQ(variable.m_nComponent, 9);
  EXPECT_EQ(variable.m_dCoefficient, 1.0);
}

TEST(EquationPlot, ANewPlotIsEmpty) {
  const CmqEquationPlotParam plot;
  EXPECT_EQ(plot.m_strEquation, CString());
  EXPECT_EQ(plot.m_nCoefficientsFlag, 0);
  EXPECT_EQ(plot.m_strHost3[0], CString());
  EXPECT_EQ(plot.m_strHost3[1], CString());
  EXPECT_EQ(plot.m_listVariables.GetCount(), 0);
  EXPECT_EQ(plot.m_strDisplayEquation, CString());
}

TEST(EquationEditorList, ANewListIsEmpty) {
  const CmqResultCompsEqnVarsList list;
  EXPECT_EQ(list.m_listStressNames.GetCount(), 0);
  EXPECT_EQ(list.m_listBeamStressNames.GetCount(), 0);
  EXPECT_EQ(list.m_listStrainNames.GetCount(), 0);
  EXPECT_EQ(list.m_listDisplacementNames.GetCount(), 0);
  EXPECT_EQ(list.m_listThermalNames.GetCount(), 0);
  EXPECT_EQ(list.m_nAnalysisType, 0);
  for (const int carried : list.m_nHost7) {
    EXPECT_EQ(carried, 0);
  }
  EXPECT_EQ(std::size(list.m_nHost7), 4U);
  EXPECT_EQ(list.m_nLookupOption, 0);
  EXPECT_EQ(list.m_strEquation, CString());
  EXPECT_EQ(list.m_nCoefficientsFlag, 0);
  EXPECT_EQ(list.m_listVariableNames.GetCount(), 0);
  EXPECT_EQ(list.m_arrCoefficients.GetSize(), 0);
}

static_assert(std::has_virtual_destructor_v<CmqEquationVariable>);
static_assert(std::has_virtual_destructor_v<CmqEquationPlotParam>);
static_assert(std::has_virtual_destructor_v<CmqResultCompsEqnVarsList>);
static_assert(std::is_base_of_v<CObject, CmqEquationVariable>);
static_assert(std::is_nothrow_move_constructible_v<CmqEquationPlotParam> &&
              std::is_nothrow_move_assignable_v<CmqEquationPlotParam>);

// --- copies ---

TEST(EquationVariable, CopiesHaveEveryMemberAndAreIndependent) {
  auto source = std::make_unique<CmqEquationVariable>();
  SetState(*source, FilledVariable(1));
  const CmqEquationVariable copy(*source);
  CmqEquationVariable assigned;
  SetState(assigned, FilledVariable(2));
  EXPECT_EQ(&(assigned = *source), &assigned);
  EXPECT_EQ(Differences(copy, FilledVariable(1)), "");
  EXPECT_EQ(Differences(assigned, FilledVariable(1)), "");

  SetState(*source, FilledVariable(3));
  EXPECT_EQ(Differences(copy, FilledVariable(1)), "");
  source.reset();
  EXPECT_EQ(Differences(assigned, FilledVariable(1)), "");
}

TEST(EquationVariable, AssignedToItselfItStaysAsItIs) {
  CmqEquationVariable variable;
  SetState(variable, FilledVariable(1));
  const CmqEquationVariable& itself = variable;
  variable = itself;
  EXPECT_EQ(Differences(variable, FilledVariable(1)), "");
}

TEST(EquationPlot, ACopyHasEveryMemberAndVariablesOfItsOwn) {
  for (const int count : {0, 1, 3, 12}) {
    SCOPED_TRACE(std::to_string(count) + " variables");
    CmqEquationPlotParam source;
    SetState(source, FilledEquation(1, count));
    const Objects objects = ObjectsOf(source);
    const CmqEquationPlotParam copy(source);
    EXPECT_EQ(Differences(copy, FilledEquation(1, count)), "");
    EXPECT_EQ(Differences(source, FilledEquation(1, count)), "");
    EXPECT_EQ(ObjectsOf(source), objects);
    for (const CmqEquationVariable* variable : ObjectsOf(copy)) {
      for (const CmqEquationVariable* other : objects) {
        EXPECT_NE(variable, other);
      }
    }
  }
}

TEST(EquationPlot, ACopyOutlivesItsSourceAndNeitherChangesTheOther) {
  auto source = std::make_unique<CmqEquationPlotParam>();
  SetState(*source, FilledEquation(1));
  CmqEquationPlotParam copy(*source);
  CmqEquationPlotParam assigned;
  assigned = *source;

  SetState(*source->m_listVariables.GetHead(), FilledVariable(70));
  source->m_strEquation = MQ_TEXT("changed");
  EXPECT_EQ(Differences(copy, FilledEquation(1)), "");
  EXPECT_EQ(Differences(assigned, FilledEquation(1)), "");
  source.reset();
  EXPECT_EQ(Differences(copy, FilledEquation(1)), "");

  SetState(copy, FilledEquation(2));
  EXPECT_EQ(Differences(assigned, FilledEquation(1)), "");
}

TEST(EquationPlot, AnAssignmentReplacesEverythingThatTheTargetHeld) {
  for (const int held : {0, 1, 5}) {
    for (const int count : {0, 1, 3, 12}) {
      SCOPED_TRACE(std::to_string(count) + " variables in place of " + std::to_string(held));
      CmqEquationPlotParam source;
      SetState(source, FilledEquation(1, count));
      CmqEquationPlotParam target;
      SetState(target, FilledEquation(2, held));
      EXPECT_EQ(&(target = source), &target);
      EXPECT_EQ(Differences(target, FilledEquation(1, count)), "");
      EXPECT_EQ(Differences(source, FilledEquation(1, count)), "");
      for (const CmqEquationVariable* variable : ObjectsOf(target)) {
        for (const CmqEquationVariable* other : ObjectsOf(source)) {
          EXPECT_NE(variable, other);
        }
      }
    }
  }
}

TEST(EquationPlot, AnEmptyPlotIsAssignedAsWell) {
  CmqEquationPlotParam target;
  SetState(target, FilledEquation(2));
  target = CmqEquationPlotParam();
  EXPECT_EQ(Differences(target, EquationState()), "");

  SetState(target, FilledEquation(2));
  const CmqEquationPlotParam empty;
  target = empty;
  EXPECT_EQ(Differences(target, EquationState()), "");
}

TEST(EquationPlot, AssignedToItselfItKeepsTheVeryVariables) {
  CmqEquationPlotParam plot;
  SetState(plot, FilledEquation(1));
  const Objects objects = ObjectsOf(plot);
  const CmqEquationPlotParam& itself = plot;
  EXPECT_EQ(&(plot = itself), &plot);
  EXPECT_EQ(ObjectsOf(plot), objects);
  EXPECT_EQ(Differences(plot, FilledEquation(1)), "");
}

TEST(EquationPlot, AssignmentsAreChained) {
  CmqEquationPlotParam first;
  CmqEquationPlotParam second;
  CmqEquationPlotParam third;
  SetState(first, FilledEquation(1, 1));
  SetState(second, FilledEquation(2, 2));
  SetState(third, FilledEquation(3, 3));
  first = second = third;
  EXPECT_EQ(Differences(first, FilledEquation(3, 3)), "");
  EXPECT_EQ(Differences(second, FilledEquation(3, 3)), "");
  EXPECT_EQ(Differences(third, FilledEquation(3, 3)), "");
}

TEST(EquationPlot, AMoveTakesTheVeryVariablesAndTheSourceIsUsableAgain) {
  CmqEquationPlotParam source;
  SetState(source, FilledEquation(1));
  const Objects objects = ObjectsOf(source);
  CmqEquationPlotParam taken(std::move(source));
  EXPECT_EQ(ObjectsOf(taken), objects);
  EXPECT_EQ(Differences(taken, FilledEquation(1)), "");

  CmqEquationPlotParam target;
  SetState(target, FilledEquation(2, 5));
  EXPECT_EQ(&(target = std::move(taken)), &target);
  EXPECT_EQ(ObjectsOf(target), objects);
  EXPECT_EQ(Differences(target, FilledEquation(1)), "");

  SetState(source, FilledEquation(3));
  EXPECT_EQ(Differences(source, FilledEquation(3)), "");
  taken = source;
  EXPECT_EQ(Differences(taken, FilledEquation(3)), "");
  EXPECT_EQ(Differences(target, FilledEquation(1)), "");
}

TEST(EquationEditorList, CopiesHaveEveryMemberAndAreIndependent) {
  auto source = std::make_unique<CmqResultCompsEqnVarsList>();
  FillWithDistinctValues(*source, 1);
  const CmqResultCompsEqnVarsList copy(*source);
  CmqResultCompsEqnVarsList assigned;
  FillWithDistinctValues(assigned, 2);
  EXPECT_EQ(&(assigned = *source), &assigned);
  EXPECT_EQ(MembersOf(copy), FilledMembers(1));
  EXPECT_EQ(MembersOf(assigned), FilledMembers(1));
  EXPECT_EQ(MembersOf(*source), FilledMembers(1));

  FillWithDistinctValues(*source, 3);
  EXPECT_EQ(MembersOf(copy), FilledMembers(1));
  EXPECT_EQ(MembersOf(assigned), FilledMembers(1));
  source.reset();
  EXPECT_EQ(MembersOf(copy), FilledMembers(1));
  EXPECT_EQ(MembersOf(assigned), FilledMembers(1));
}

TEST(EquationEditorList, AssignedToItselfItStaysAsItIs) {
  CmqResultCompsEqnVarsList list;
  FillWithDistinctValues(list, 1);
  const CmqResultCompsEqnVarsList& itself = list;
  list = itself;
  EXPECT_EQ(MembersOf(list), FilledMembers(1));
}

// --- the name of a variable ---

struct ComponentNameRow {
  int analysisType;
  int resultType;
  int component;
  int meshKind;
  const mqChar* name;
};

// clang-format off
const ComponentNameRow kComponentNames[] = {
  // analysis  result  component  mesh
  {        0,       2,         9,    0, MQ_TEXT("SEQ: equivalent stress")},
  {        0,       2,        15,    0, MQ_TEXT("SD: scalar stress D")},
  {        0,       2,        16,    0, MQ_TEXT("")},
  {        0,       2,        -1,    0, MQ_TEXT("")},
  {        0,       2,         0,    4, MQ_TEXT("SX: stress along X")},
  {        0,       1,         0,    4, MQ_TEXT("DX: displacement along X")},
  {        0,       1,         3,    0, MQ_TEXT("DMAG: displacement magnitude")},
  {        0,       3,         6,    0, MQ_TEXT("ES: scalar strain")},
  {        0,      59,         1,    0, MQ_TEXT("BB: beam stress B")},
  {        0,      -1,        -1,    0, MQ_TEXT("")},
  {        3,       5,         0,    0, MQ_TEXT("TEMP: temperature")},
  {        5,       2,         0,    0, MQ_TEXT("SX: stress along X")},
  {        5,       2,         0,    1, MQ_TEXT("SX: stress along X")},
  {        5,       2,         0,    2, MQ_TEXT("SX: stress along X")},
  {        5,       2,         0,    3, MQ_TEXT("SX: stress along X")},
  {        5,       2,         0,    4, MQ_TEXT("BA: beam stress A")},
  {        5,       2,         4,    4, MQ_TEXT("BE: beam stress E")},
  {        5,       2,         5,    4, MQ_TEXT("")},      // only five of the seven
  {        5,       2,         5,    0, MQ_TEXT("TYZ: shear stress in plane YZ")},
  {        8,       2,         6,    4, MQ_TEXT("BG: beam stress G")},
  {        8,       2,         6,    5, MQ_TEXT("SP1: first principal stress")},
  {        8,       2,       100,    0, MQ_TEXT("SPB: stress from the principal stresses")},
  {        8,       1,        15,    0, MQ_TEXT("RMAG: rotational magnitude")},
  {        4,       2,         0,    0, MQ_TEXT("")},
  {  INT_MIN, INT_MAX,   INT_MIN,    0, MQ_TEXT("")},
};
// clang-format on

TEST(EquationVariable, IsNamedByItsResultTypeComponentAndTheKindOfMesh) {
  for (const ComponentNameRow& row : kComponentNames) {
    CmqEquationVariable variable;
    SetState(variable, {MQ_TEXT("has no effect"), row.resultType, row.component, 4.0});
    for (const int ignored : {0, 1, 4, -1}) {
      for (const int passOn : {0, 1, 4, -1}) {
        EXPECT_EQ(variable.GetComponentName(row.analysisType, ignored, row.meshKind, passOn),
                  CString(row.name))
            << "analysis type " << row.analysisType << ", result type " << row.resultType
            << ", component " << row.component << ", arguments " << ignored << ", " << row.meshKind
            << ", " << passOn;
      }
    }
  }
}

// --- looking a name up ---

/// A list of offered names, in the order in which they are searched.
struct Offer {
  StringValues CmqResultCompsEqnVarsList::* names;
  int resultType;
};

// clang-format off
constexpr Offer kStress       = {&CmqResultCompsEqnVarsList::m_listStressNames,        2};
constexpr Offer kBeamStress   = {&CmqResultCompsEqnVarsList::m_listBeamStressNames,   59};
constexpr Offer kStrain       = {&CmqResultCompsEqnVarsList::m_listStrainNames,        3};
constexpr Offer kDisplacement = {&CmqResultCompsEqnVarsList::m_listDisplacementNames,  1};
constexpr Offer kThermal      = {&CmqResultCompsEqnVarsList::m_listThermalNames,       5};
// clang-format on
constexpr Offer kOffers[] = {kStress, kBeamStress, kStrain, kDisplacement, kThermal};

struct Found {
  int component;
  int resultType;

  friend bool operator==(const Found&, const Found&) = default;
};
constexpr Found kNotOffered = {-1, -1};

void PrintTo(const Found& found, std::ostream* out) {
  *out << "component " << found.component << " of result type " << found.resultType;
}

Found LookUp(const CmqResultCompsEqnVarsList& list, const CString& name) {
  int resultType = 77;
  const int component = list.GetComponentNumberAndResultTypeForVariable(name, resultType);
  return {component, resultType};
}

/// Offers a name between two others and looks it up.
Found LookUpOffered(const Offer& offer, int analysisType, int lookupOption, const CString& name) {
  CmqResultCompsEqnVarsList list;
  list.m_nAnalysisType = analysisType;
  list.m_nLookupOption = lookupOption;
  (list.*offer.names).AddTail(MQ_TEXT("\"before\""));
  (list.*offer.names).AddTail(name);
  (list.*offer.names).AddTail(MQ_TEXT("\"behind\""));
  const std::string before = MembersOf(list);
  const Found found = LookUp(list, name);
  EXPECT_EQ(MembersOf(list), before);
  return found;
}

struct LookUpRow {
  Offer offer;
  int analysisType;
  int lookupOption;
  const mqChar* name;
  int component;
};

void CheckLookUps(std::initializer_list<LookUpRow> rows) {
  for (const LookUpRow& row : rows) {
    const Found expected = {row.component, row.offer.resultType};
    EXPECT_EQ(LookUpOffered(row.offer, row.analysisType, row.lookupOption, Quoted(row.name)),
              expected)
        << "offered for result type " << row.offer.resultType << ", analysis type "
        << row.analysisType << ", option " << row.lookupOption << ", name "
        << Show(Quoted(row.name));
  }
}

TEST(EquationEditorList, EachListOfNamesStandsForAResultType) {
  // clang-format off
  CheckLookUps({
      {kStress,       0, 0, MQ_TEXT("'SX: stress along X'"),                0},
      {kStress,       0, 0, MQ_TEXT("'SEQ: equivalent stress'"),            9},
      {kStress,       0, 0, MQ_TEXT("'SVEC: directional stress'"),         13},
      {kBeamStress,   0, 0, MQ_TEXT("'BA: beam stress A'"),                 0},
      {kBeamStress,   0, 0, MQ_TEXT("'BG: beam stress G'"),                 6},
      {kStrain,       0, 0, MQ_TEXT("'EX: strain along X'"),                0},
      {kStrain,       0, 0, MQ_TEXT("'EP3: third principal strain'"),      11},
      {kDisplacement, 0, 0, MQ_TEXT("'DX: displacement along X'"),          0},
      {kDisplacement, 0, 0, MQ_TEXT("'MRMAG: reaction moment magnitude'"), 14},
      {kThermal,      3, 0, MQ_TEXT("'TEMP: temperature'"),                 0},
      {kThermal,      3, 0, MQ_TEXT("'HEN: heat energy'"),                 10},
  });
  // clang-format on
}

TEST(EquationEditorList, TheAnalysisTypeOfTheListDecidesWhichComponentsAreKnown) {
  // clang-format off
  CheckLookUps({
      {kStress,        8, 0, MQ_TEXT("'SPB: stress from the principal stresses'"), 100},
      {kStress,        0, 0, MQ_TEXT("'SPB: stress from the principal stresses'"),  -1},
      {kStress,        0, 0, MQ_TEXT("'SNUM: dimensionless stress value'"),         12},
      {kStress,        8, 0, MQ_TEXT("'SNUM: dimensionless stress value'"),         -1},
      {kStress,        3, 0, MQ_TEXT("'SX: stress along X'"),                       -1},
      {kStress,        4, 0, MQ_TEXT("'SX: stress along X'"),                       -1},
      {kBeamStress,   10, 0, MQ_TEXT("'BC: beam stress C'"),                         2},
      {kBeamStress,    1, 0, MQ_TEXT("'BC: beam stress C'"),                        -1},
      {kStrain,        8, 0, MQ_TEXT("'WD: strain energy density'"),                 7},
      {kStrain,        2, 0, MQ_TEXT("'WD: strain energy density'"),                -1},
      {kDisplacement,  5, 0, MQ_TEXT("'MRMAG: reaction moment magnitude'"),         -1},
      {kDisplacement,  1, 0, MQ_TEXT("'AX: normalised amplitude along X'"),          0},
      {kDisplacement,  0, 0, MQ_TEXT("'AX: normalised amplitude along X'"),         -1},
      {kDisplacement,  2, 0, MQ_TEXT("'ARZ: normalised rotation about Z'"),          6},
      {kDisplacement,  1, 0, MQ_TEXT("'ARZ: normalised rotation about Z'"),         -1},
      {kThermal,       0, 0, MQ_TEXT("'TEMP: temperature'"),                        -1},
      {kThermal,       7, 0, MQ_TEXT("'FAT3: fatigue quantity 3'"),                  3},
      {kThermal, INT_MIN, 0, MQ_TEXT("'TEMP: temperature'"),                        -1},
  });
  // clang-format on
}

TEST(EquationEditorList, TheLookUpOptionMakesTwoMoreStaticStressesKnown) {
  // clang-format off
  CheckLookUps({
      {kStress, 0,       0, MQ_TEXT("'SC: scalar stress C'"), -1},
      {kStress, 0,       0, MQ_TEXT("'SD: scalar stress D'"), -1},
      {kStress, 0,       1, MQ_TEXT("'SC: scalar stress C'"), 14},
      {kStress, 0,       1, MQ_TEXT("'SD: scalar stress D'"), 15},
      {kStress, 0,      -1, MQ_TEXT("'SC: scalar stress C'"), 14},
      {kStress, 0,     256, MQ_TEXT("'SC: scalar stress C'"), 14},
      {kStress, 0, INT_MIN, MQ_TEXT("'SD: scalar stress D'"), 15},
      {kStress, 5,       1, MQ_TEXT("'SC: scalar stress C'"), -1},
  });
  // clang-format on
}

TEST(EquationEditorList, BeamStressesAreComparedWholeAndTheOthersByTheirSymbol) {
  // clang-format off
  CheckLookUps({
      {kStress,       0, 0, MQ_TEXT("'SY: something else'"),     1},
      {kStress,       0, 0, MQ_TEXT("'SY (MPa)'"),               1},
      {kStrain,       0, 0, MQ_TEXT("'EY: something else'"),     1},
      {kDisplacement, 0, 0, MQ_TEXT("'DY: something else'"),     1},
      {kThermal,      3, 0, MQ_TEXT("'GTX: something else'"),    1},
      {kBeamStress,   0, 0, MQ_TEXT("'BB: something else'"),    -1},
      {kBeamStress,   0, 0, MQ_TEXT("'BB (MPa)'"),              -1},
      {kBeamStress,   0, 0, MQ_TEXT("'BB: beam'"),               1},   // begins the whole name
      {kBeamStress,   0, 0, MQ_TEXT("'BB'"),                     1},
      {kBeamStress,   0, 0, MQ_TEXT("'  BB: beam stress B\t '"), 1},
      {kStress,       0, 0, MQ_TEXT("' SY: stress along Y'"),   -1},
      {kDisplacement, 0, 0, MQ_TEXT("' DY'"),                   -1},
      {kBeamStress,   0, 0, MQ_TEXT("'  '"),                     0},   // blanks match the first name
      {kStress,       0, 0, MQ_TEXT("'  '"),                    -1},
      {kBeamStress,   0, 0, MQ_TEXT("''"),                      -1},
      {kStress,       0, 0, MQ_TEXT("''"),                      -1},
      {kStress,       0, 0, MQ_TEXT(""),                        -1},
  });
  // clang-format on
}

TEST(EquationEditorList, SymbolsOfMoreThanSixUnitsAreToldApartInBeamStressesAlone) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54591, MQ_TEXT("STRESSONE: first"));
  ReplacedTexts::Set(54592, MQ_TEXT("STRESSTWO: second"));
  ReplacedTexts::Set(52020, MQ_TEXT("BEAMSTONE: first"));
  ReplacedTexts::Set(54009, MQ_TEXT("BEAMSTTWO: second"));
  CheckLookUps({
      {kStress, 0, 0, MQ_TEXT("'STRESSTWO: second'"), 0},
      {kBeamStress, 0, 0, MQ_TEXT("'BEAMSTTWO: second'"), 1},
  });
}

TEST(EquationEditorList, NamesAreKnownInTheLanguageOfTheStringTable) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54600, MQ_TEXT("VGL: Vergleichsspannung"));
  ReplacedTexts::Set(54010, MQ_TEXT("\u03C3C: Balkenspannung C"));
  CheckLookUps({
      {kStress, 0, 0, MQ_TEXT("'VGL: Vergleichsspannung'"), 9},
      {kStress, 0, 0, MQ_TEXT("'SEQ: equivalent stress'"), -1},
      {kBeamStress, 0, 0, MQ_TEXT("'\u03C3C: Balkenspannung C'"), 2},
  });
}

TEST(EquationEditorList, EveryQuoteIsRemovedBeforeTheLookUp) {
  // clang-format off
  CheckLookUps({
      {kStress,     0, 0, MQ_TEXT("SZ: stress along Z"),       2},
      {kStress,     0, 0, MQ_TEXT("'SZ: stress along Z"),      2},
      {kStress,     0, 0, MQ_TEXT("SZ'"),                      2},
      {kStress,     0, 0, MQ_TEXT("''SZ: stress along Z''"),   2},
      {kStress,     0, 0, MQ_TEXT("'S'Z: 'stress' along Z'"),  2},
      {kStress,     0, 0, MQ_TEXT("'S'''''''''Z'"),            2},   // six units without the quotes
      {kBeamStress, 0, 0, MQ_TEXT("'BC: 'beam' stress C'"),    2},
      {kThermal,    3, 0, MQ_TEXT("T'EM'P"),                   0},
  });
  // clang-format on
}

TEST(EquationEditorList, ANameThatIsOfferedButNotKnownKeepsTheResultTypeOfItsList) {
  for (const Offer& offer : kOffers) {
    const Found expected = {-1, offer.resultType};
    EXPECT_EQ(LookUpOffered(offer, 0, 1, MQ_TEXT("\"UNKNOWN: text\"")), expected);
    EXPECT_EQ(LookUpOffered(offer, 99, 1, MQ_TEXT("\"SX: stress along X\"")), expected);
  }
}

TEST(EquationEditorList, OfferedNamesAreComparedExactly) {
  struct Row {
    const mqChar* offered;
    const mqChar* name;
  };
  const Row kRows[] = {
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("SX: stress along X")},
      {MQ_TEXT("SX: stress along X"), MQ_TEXT("'SX: stress along X'")},
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'SX: stress along X")},
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'sx: stress along x'")},
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'SX: stress along x'")},
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'SX: stress along X' ")},
      {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'SX'")},
      {MQ_TEXT("'SX'"), MQ_TEXT("'SX: stress along X'")},
      {MQ_TEXT("'SX'"), MQ_TEXT("")},
      {MQ_TEXT("'SX'"), MQ_TEXT("''")},
      {MQ_TEXT(""), MQ_TEXT("''")},
  };
  for (const Row& row : kRows) {
    for (const Offer& offer : kOffers) {
      CmqResultCompsEqnVarsList list;
      (list.*offer.names).AddTail(Quoted(row.offered));
      EXPECT_EQ(LookUp(list, Quoted(row.name)), kNotOffered)
          << "offered " << Show(Quoted(row.offered)) << ", name " << Show(Quoted(row.name));
    }
  }
}

TEST(EquationEditorList, WithoutOffersNothingIsFound) {
  CmqResultCompsEqnVarsList list;
  EXPECT_EQ(LookUp(list, MQ_TEXT("\"SX: stress along X\"")), kNotOffered);
  EXPECT_EQ(LookUp(list, CString()), kNotOffered);
  // The names of the equation are no offer.
  list.m_listVariableNames.AddTail(MQ_TEXT("\"SX: stress along X\""));
  EXPECT_EQ(LookUp(list, MQ_TEXT("\"SX: stress along X\"")), kNotOffered);
}

TEST(EquationEditorList, ANameInSeveralListsIsTakenFromTheFirstInTheFixedOrder) {
  // A fatigue study knows its names in every result type.
  const CString name = MQ_TEXT("\"FAT1: fatigue quantity 1\"");
  for (std::size_t first = 0; first < std::size(kOffers); ++first) {
    for (std::size_t second = first; second < std::size(kOffers); ++second) {
      for (const bool isBehindOthers : {false, true}) {
        CmqResultCompsEqnVarsList list;
        list.m_nAnalysisType = 7;
        if (isBehindOthers) {
          (list.*kOffers[first].names).AddTail(MQ_TEXT("\"LIFE: fatigue life\""));
          (list.*kOffers[first].names).AddTail(MQ_TEXT("\"FAT3: fatigue quantity 3\""));
        }
        (list.*kOffers[second].names).AddTail(name);
        (list.*kOffers[first].names).AddTail(name);
        const Found expected = {1, kOffers[first].resultType};
        EXPECT_EQ(LookUp(list, name), expected)
            << "also in the list of result type " << kOffers[second].resultType;
      }
    }
  }
}

TEST(EquationEditorList, TheFirstListDecidesEvenWhenOnlyALaterOneKnowsTheName) {
  for (const CString& name : {Quoted(MQ_TEXT("'EX: strain along X'")), CString(MQ_TEXT("EX"))}) {
    SCOPED_TRACE(Show(name));
    CmqResultCompsEqnVarsList list;
    list.m_listStrainNames.AddTail(name);
    EXPECT_EQ(LookUp(list, name), (Found{0, 3}));
    list.m_listBeamStressNames.AddTail(name);
    EXPECT_EQ(LookUp(list, name), (Found{-1, 59}));
    list.m_listStressNames.AddTail(name);
    EXPECT_EQ(LookUp(list, name), (Found{-1, 2}));
  }
}

// --- taking an equation over ---

/// An editor's list with names that are known, one of each result type.
CmqResultCompsEqnVarsList EditorList(const mqChar* equation,
                                     const std::vector<const mqChar*>& names) {
  CmqResultCompsEqnVarsList list;
  list.m_listStressNames.AddTail(MQ_TEXT("\"SX: stress along X\""));
  list.m_listStressNames.AddTail(MQ_TEXT("\"SEQ: equivalent stress\""));
  list.m_listBeamStressNames.AddTail(MQ_TEXT("\"BB: beam stress B\""));
  list.m_listStrainNames.AddTail(MQ_TEXT("\"ES: scalar strain\""));
  list.m_listDisplacementNames.AddTail(MQ_TEXT("\"DX: displacement along X\""));
  list.m_listThermalNames.AddTail(MQ_TEXT("\"TEMP: temperature\""));
  list.m_strEquation = Quoted(equation);
  for (const mqChar* name : names) {
    list.m_listVariableNames.AddTail(Quoted(name));
  }
  return list;
}

TEST(EquationPlot, AnEquationIsTakenOverWithItsOperands) {
  CmqResultCompsEqnVarsList list = EditorList(
      MQ_TEXT("'SEQ: equivalent stress'+2*'DX: displacement along X'-'NEW: text'^'BB: beam stress "
              "B'/'ES: scalar strain'*'TEMP: temperature'"),
      {MQ_TEXT("'SEQ: equivalent stress'"), MQ_TEXT("'DX: displacement along X'"),
       MQ_TEXT("'NEW: text'"), MQ_TEXT("'BB: beam stress B'"), MQ_TEXT("'ES: scalar strain'"),
       MQ_TEXT("'TEMP: temperature'")});
  list.m_nCoefficientsFlag = 3;
  for (const double coefficient : {0.5, -2.0, 1e300, -0.0, 4.0, 5.0}) {
    list.m_arrCoefficients.Add(coefficient);
  }
  const std::string before = MembersOf(list);

  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&list);
  EquationState expected;
  expected.equation =
      Quoted(MQ_TEXT("'Variable0'+2*'Variable1'-'Variable2'^'Variable3'/'Variable4'*'Variable5'"));
  expected.coefficientsFlag = 3;
  expected.displayEquation =
      Quoted(MQ_TEXT("'SEQ: equivalent stress'+2*'DX: displacement along X'-'NEW: text'^'BB: beam "
                     "stress B'/'ES: scalar strain'*'TEMP: temperature'"));
  expected.variables = {
      {Quoted(MQ_TEXT("'Variable0'")), 2, 9, 0.5},
      {Quoted(MQ_TEXT("'Variable1'")), 1, 0, -2.0},
      {Quoted(MQ_TEXT("'Variable2'")), -1, -1, 1e300},
      {Quoted(MQ_TEXT("'Variable3'")), 59, 1, -0.0},
      {Quoted(MQ_TEXT("'Variable4'")), 3, 6, 4.0},
      {Quoted(MQ_TEXT("'Variable5'")), 5, -1, 5.0},  // a static study knows no temperature
  };
  EXPECT_EQ(Differences(plot, expected), "");
  EXPECT_EQ(MembersOf(list), before);
}

TEST(EquationPlot, WhatItHeldIsReplacedButForTheCarriedStrings) {
  const CmqResultCompsEqnVarsList list =
      EditorList(MQ_TEXT("'SX: stress along X'^2"), {MQ_TEXT("'SX: stress along X'")});
  EquationState expected;
  expected.equation = Quoted(MQ_TEXT("'Variable0'^2"));
  expected.host3 = FilledEquation(1).host3;
  expected.variables = {{Quoted(MQ_TEXT("'Variable0'")), 2, 0, 1.0}};
  expected.displayEquation = Quoted(MQ_TEXT("'SX: stress along X'^2"));
  for (const int held : {0, 1, 2, 12}) {
    CmqEquationPlotParam plot;
    SetState(plot, FilledEquation(1, held));
    plot.PrepareEquationParams(&list);
    EXPECT_EQ(Differences(plot, expected), "") << held << " variables";
    plot.PrepareEquationParams(&list);
    EXPECT_EQ(Differences(plot, expected), "") << "once more";
  }
}

TEST(EquationPlot, AnEmptyEquationWithoutNamesEmptiesThePlot) {
  CmqEquationPlotParam plot;
  SetState(plot, FilledEquation(1));
  const CmqResultCompsEqnVarsList list;
  plot.PrepareEquationParams(&list);
  EquationState expected;
  expected.host3 = FilledEquation(1).host3;
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(EquationPlot, WithoutAListNothingChanges) {
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(nullptr);
  EXPECT_EQ(Differences(plot, EquationState()), "");
  SetState(plot, FilledEquation(1));
  const Objects objects = ObjectsOf(plot);
  plot.PrepareEquationParams(nullptr);
  EXPECT_EQ(Differences(plot, FilledEquation(1)), "");
  EXPECT_EQ(ObjectsOf(plot), objects);
}

constexpr const mqChar* kPlaceholders[] = {
    MQ_TEXT("\"Variable0\""), MQ_TEXT("\"Variable1\""),  MQ_TEXT("\"Variable2\""),
    MQ_TEXT("\"Variable3\""), MQ_TEXT("\"Variable4\""),  MQ_TEXT("\"Variable5\""),
    MQ_TEXT("\"Variable6\""), MQ_TEXT("\"Variable7\""),  MQ_TEXT("\"Variable8\""),
    MQ_TEXT("\"Variable9\""), MQ_TEXT("\"Variable10\""), MQ_TEXT("\"Variable11\"")};

struct PlaceholderRow {
  std::vector<const mqChar*> names;
  const mqChar* typed;
  const mqChar* equation;
};

void CheckPlaceholders(std::initializer_list<PlaceholderRow> rows) {
  for (const PlaceholderRow& row : rows) {
    SCOPED_TRACE(Show(Quoted(row.typed)));
    const CmqResultCompsEqnVarsList list = EditorList(row.typed, row.names);
    CmqEquationPlotParam plot;
    SetState(plot, FilledEquation(1));
    plot.PrepareEquationParams(&list);
    EXPECT_EQ(plot.m_strEquation, Quoted(row.equation));
    EXPECT_EQ(plot.m_strDisplayEquation, Quoted(row.typed));
    const Objects variables = ObjectsOf(plot);
    EXPECT_EQ(variables.size(), row.names.size());
    for (std::size_t place = 0; place < variables.size(); ++place) {
      EXPECT_EQ(variables[place]->m_strName, CString(kPlaceholders[place]));
    }
  }
}

TEST(EquationPlot, EveryOccurrenceOfANameIsReplaced) {
  CheckPlaceholders({
      {{MQ_TEXT("'a'")}, MQ_TEXT("'a'"), MQ_TEXT("'Variable0'")},
      {{MQ_TEXT("'a'")},
       MQ_TEXT("'a'+'a'*('a'-'a')"),
       MQ_TEXT("'Variable0'+'Variable0'*('Variable0'-'Variable0')")},
      {{MQ_TEXT("'a'"), MQ_TEXT("'b'")},
       MQ_TEXT("'b'/'a'-'b'"),
       MQ_TEXT("'Variable1'/'Variable0'-'Variable1'")},
      {{MQ_TEXT("'a'")}, MQ_TEXT("a+'A'+' a'+'a"), MQ_TEXT("a+'A'+' a'+'a")},
      {{MQ_TEXT("aa")}, MQ_TEXT("aaa aaaa"), MQ_TEXT("'Variable0'a 'Variable0''Variable0'")},
      {{MQ_TEXT("'\u03C3'")}, MQ_TEXT("'\u03C3'+\u03C3"), MQ_TEXT("'Variable0'+\u03C3")},
  });
}

TEST(EquationPlot, NamesThatDoNotOccurHaveVariablesAllTheSame) {
  CheckPlaceholders({
      {{MQ_TEXT("'x'"), MQ_TEXT("'a'"), MQ_TEXT("'y'")},
       MQ_TEXT("2*'a'"),
       MQ_TEXT("2*'Variable1'")},
      {{MQ_TEXT(""), MQ_TEXT("'a'"), MQ_TEXT("")}, MQ_TEXT("2*'a'"), MQ_TEXT("2*'Variable1'")},
      {{MQ_TEXT("'a'"), MQ_TEXT("'a'")}, MQ_TEXT("'a'+'a'"), MQ_TEXT("'Variable0'+'Variable0'")},
      {{MQ_TEXT("'a'"), MQ_TEXT("")}, MQ_TEXT(""), MQ_TEXT("")},
      {{}, MQ_TEXT("'a'+1"), MQ_TEXT("'a'+1")},
  });
}

TEST(EquationPlot, MoreThanTenOperandsHaveTwoDigits) {
  CheckPlaceholders({
      {{MQ_TEXT("'a'"), MQ_TEXT("'b'"), MQ_TEXT("'c'"), MQ_TEXT("'d'"), MQ_TEXT("'e'"),
        MQ_TEXT("'f'"), MQ_TEXT("'g'"), MQ_TEXT("'h'"), MQ_TEXT("'i'"), MQ_TEXT("'j'"),
        MQ_TEXT("'k'"), MQ_TEXT("'l'")},
       MQ_TEXT("'a''b''c''d''e''f''g''h''i''j''k''l'-'b'*'k'"),
       MQ_TEXT("'Variable0''Variable1''Variable2''Variable3''Variable4''Variable5''Variable6'"
               "'Variable7''Variable8''Variable9''Variable10''Variable11'-'Variable1'*"
               "'Variable10'")},
  });
}

TEST(EquationPlot, QuotesKeepNamesApartThatBeginAlike) {
  CheckPlaceholders({
      {{MQ_TEXT("'SX'"), MQ_TEXT("'SX: stress'")},
       MQ_TEXT("'SX: stress'-'SX'"),
       MQ_TEXT("'Variable1'-'Variable0'")},
      {{MQ_TEXT("'SX: stress'"), MQ_TEXT("'SX'")},
       MQ_TEXT("'SX: stress'-'SX'"),
       MQ_TEXT("'Variable0'-'Variable1'")},
      {{MQ_TEXT("SX"), MQ_TEXT("SX: stress")},
       MQ_TEXT("SX: stress-SX"),
       MQ_TEXT("'Variable0': stress-'Variable0'")},
      {{MQ_TEXT("SX: stress"), MQ_TEXT("SX")},
       MQ_TEXT("SX: stress-SX"),
       MQ_TEXT("'Variable0'-'Variable1'")},
      // What stands between two operands may look like one.
      {{MQ_TEXT("'+'"), MQ_TEXT("'a'")}, MQ_TEXT("'a'+'b'"), MQ_TEXT("'Variable1'Variable0'b'")},
  });
}

TEST(EquationPlot, NamesAreReplacedInsideEarlierPlaceholdersToo) {
  CheckPlaceholders({
      {{MQ_TEXT("'a'"), MQ_TEXT("'Variable0'")},
       MQ_TEXT("'a'+'Variable0'"),
       MQ_TEXT("'Variable1'+'Variable1'")},
      {{MQ_TEXT("'a'"), MQ_TEXT("Variable0")}, MQ_TEXT("'a'"), MQ_TEXT("''Variable1''")},
      {{MQ_TEXT("'a'"), MQ_TEXT("0")},
       MQ_TEXT("'a'*10"),
       MQ_TEXT("'Variable'Variable1''*1'Variable1'")},
      {{MQ_TEXT("'a'"), MQ_TEXT("Variable"), MQ_TEXT("0")},
       MQ_TEXT("'a'"),
       MQ_TEXT("''Variable1''Variable2''")},
      {{MQ_TEXT("'Variable1'"), MQ_TEXT("'Variable0'")},
       MQ_TEXT("'Variable0'-'Variable1'"),
       MQ_TEXT("'Variable1'-'Variable1'")},
      {{MQ_TEXT("'Variable0'"), MQ_TEXT("'Variable1'")},
       MQ_TEXT("'Variable1'-'Variable0'"),
       MQ_TEXT("'Variable1'-'Variable0'")},
      // What a name is replaced by is not looked at for the same name again.
      {{MQ_TEXT("Variable0")}, MQ_TEXT("Variable0"), MQ_TEXT("'Variable0'")},
      {{MQ_TEXT("'")}, MQ_TEXT("'a'"), MQ_TEXT("'Variable0'a'Variable0'")},
  });
}

struct CoefficientRow {
  int flag;
  std::vector<double> given;
  std::vector<double> expected;
};

TEST(EquationPlot, OperandsTakeTheirCoefficientsWhileTheFlagIsSet) {
  const double infinity = std::numeric_limits<double>::infinity();
  const CoefficientRow kRows[] = {
      {0, {2.0, 3.0, 4.0}, {1.0, 1.0, 1.0}},
      {0, {}, {1.0, 1.0, 1.0}},
      {1, {2.0, 3.0, 4.0}, {2.0, 3.0, 4.0}},
      {2, {2.0, 3.0, 4.0}, {2.0, 3.0, 4.0}},
      {-1, {2.0, 3.0, 4.0}, {2.0, 3.0, 4.0}},
      {256, {2.0, 3.0, 4.0}, {2.0, 3.0, 4.0}},
      {INT_MIN, {2.0, 3.0, 4.0}, {2.0, 3.0, 4.0}},
      {1, {0.0, -0.0, -infinity}, {0.0, -0.0, -infinity}},
      {1, {2.0, 3.0, 4.0, 5.0, 6.0}, {2.0, 3.0, 4.0}},
      {1, {2.0, 3.0}, {2.0, 3.0, 1.0}},
      {1, {2.0}, {2.0, 1.0, 1.0}},
      {-7, {}, {1.0, 1.0, 1.0}},
  };
  for (const CoefficientRow& row : kRows) {
    SCOPED_TRACE("flag " + std::to_string(row.flag) + ", " + std::to_string(row.given.size()) +
                 " coefficients");
    CmqResultCompsEqnVarsList list =
        EditorList(MQ_TEXT("'SX: stress along X'+'unknown'"),
                   {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'unknown'"), MQ_TEXT("'none'")});
    list.m_nCoefficientsFlag = row.flag;
    for (const double coefficient : row.given) {
      list.m_arrCoefficients.Add(coefficient);
    }
    CmqEquationPlotParam plot;
    SetState(plot, FilledEquation(1));
    plot.PrepareEquationParams(&list);
    EXPECT_EQ(plot.m_nCoefficientsFlag, row.flag);
    const Objects variables = ObjectsOf(plot);
    ASSERT_EQ(variables.size(), 3U);
    for (std::size_t place = 0; place < 3; ++place) {
      EXPECT_TRUE(IsSame(variables[place]->m_dCoefficient, row.expected[place]))
          << "variable " << place << ": " << variables[place]->m_dCoefficient;
    }
  }
}

TEST(EquationPlot, TheNamesAreLookedUpAsTheListSays) {
  CmqResultCompsEqnVarsList list;
  list.m_nLookupOption = 1;
  list.m_listStressNames.AddTail(MQ_TEXT("\"SD: scalar stress D\""));
  list.m_listStrainNames.AddTail(MQ_TEXT("\"SD: scalar stress D\""));
  list.m_listVariableNames.AddTail(MQ_TEXT("\"SD: scalar stress D\""));
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&list);
  ASSERT_EQ(plot.m_listVariables.GetCount(), 1);
  EXPECT_EQ(plot.m_listVariables.GetHead()->m_nResultType, 2);
  EXPECT_EQ(plot.m_listVariables.GetHead()->m_nComponent, 15);

  list.m_nAnalysisType = 5;
  plot.PrepareEquationParams(&list);
  ASSERT_EQ(plot.m_listVariables.GetCount(), 1);
  EXPECT_EQ(plot.m_listVariables.GetHead()->m_nResultType, 2);
  EXPECT_EQ(plot.m_listVariables.GetHead()->m_nComponent, -1);
}

// --- showing an equation ---

struct Arguments {
  int analysisType = 0;
  int ignored = 0;
  int meshKind = 0;
  int passOn = 0;
};

/// The display equation of a plot, all the rest of which stays as it was.
CString Display(CmqEquationPlotParam& plot, const Arguments& arguments = {}) {
  EquationState expected = StateOf(plot);
  const Objects objects = ObjectsOf(plot);
  plot.PrepareEquationToDisplay(arguments.analysisType, arguments.ignored, arguments.meshKind,
                                arguments.passOn);
  expected.displayEquation = plot.m_strDisplayEquation;
  EXPECT_EQ(Differences(plot, expected), "");
  EXPECT_EQ(ObjectsOf(plot), objects);
  return plot.m_strDisplayEquation;
}

/// `'Variable0'` is a stress along X, `'Variable1'` a displacement.
CmqEquationPlotParam TwoOperands(const mqChar* equation) {
  CmqEquationPlotParam plot;
  plot.m_strEquation = Quoted(equation);
  plot.m_nCoefficientsFlag = 1;
  plot.m_strHost3[0] = MQ_TEXT("carried \"Variable0\"");
  plot.m_strDisplayEquation = MQ_TEXT("old");
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable0'")), 2, 0, 3.0});
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable1'")), 1, 3, 4.0});
  return plot;
}

TEST(EquationPlot, PlaceholdersAreShownAsTheNamesOfTheirComponents) {
  CmqEquationPlotParam plot = TwoOperands(MQ_TEXT("('Variable1'-'Variable0')/'Variable1'"));
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("('DMAG: displacement magnitude'-'SX: stress along X')/"
                                          "'DMAG: displacement magnitude'")));
  plot.m_strEquation = Quoted(MQ_TEXT("2*Variable0+'Variable2'+'variable0'"));
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("2*Variable0+'Variable2'+'variable0'")));
  plot.m_strEquation.Empty();
  EXPECT_EQ(Display(plot), CString());
}

TEST(EquationPlot, APlotWithoutVariablesShowsItsEquation) {
  CmqEquationPlotParam plot;
  plot.m_strEquation = Quoted(MQ_TEXT("'Variable0'+1"));
  plot.m_strDisplayEquation = MQ_TEXT("old");
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'Variable0'+1")));
}

TEST(EquationPlot, TwoDigitsAreNotTakenForOne) {
  CmqEquationPlotParam plot = TwoOperands(MQ_TEXT("'Variable1'+'Variable10'+'Variable0'"));
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable10'")), 3, 0, 1.0});
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'DMAG: displacement magnitude'+'EX: strain along X'+"
                                          "'SX: stress along X'")));
}

TEST(EquationPlot, TheArgumentsAreTheStudyNothingTheKindOfMeshAndNothing) {
  struct Row {
    Arguments arguments;
    const mqChar* shown;
  };
  const mqChar* const solid = MQ_TEXT("'SX: stress along X'/'DMAG: displacement magnitude'");
  const mqChar* const beam = MQ_TEXT("'BA: beam stress A'/'DMAG: displacement magnitude'");
  // clang-format off
  const Row kRows[] = {
    // study  ignored  mesh  passed on
    {{     0,       0,    0,         0}, solid},
    {{     0,       4,    4,         4}, solid},
    {{     5,       0,    0,         0}, solid},
    {{     5,       4,    0,         0}, solid},
    {{     5,       0,    4,         0}, beam},
    {{     5,       0,    0,         4}, solid},
    {{     5,       4,    0,         4}, solid},
    {{     6,       1,    4,         1}, beam},
    {{     8,       0,    4,         0}, beam},
    {{     4,       0,    0,         0}, MQ_TEXT("''/''")},
    {{     3,       5,    5,         5}, MQ_TEXT("''/''")},
  };
  // clang-format on
  for (const Row& row : kRows) {
    CmqEquationPlotParam plot = TwoOperands(MQ_TEXT("'Variable0'/'Variable1'"));
    EXPECT_EQ(Display(plot, row.arguments), Quoted(row.shown))
        << row.arguments.analysisType << ", " << row.arguments.ignored << ", "
        << row.arguments.meshKind << ", " << row.arguments.passOn;
  }
}

TEST(EquationPlot, TheSecondListOfDisplacementNamesIsNeverShown) {
  CmqEquationPlotParam plot;
  plot.m_strEquation = Quoted(MQ_TEXT("'Variable0'"));
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable0'")), 1, 0, 1.0});
  for (const int analysisType : {0, 5, 6, 8}) {
    EXPECT_EQ(Display(plot, {analysisType, 1, 1, 1}),
              Quoted(MQ_TEXT("'DX: displacement along X'")));
  }
}

TEST(EquationPlot, AnOperandWithoutANameIsShownAsTwoQuotes) {
  CmqEquationPlotParam plot;
  plot.m_strEquation = Quoted(MQ_TEXT("2*'Variable0'+'Variable1'"));
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable0'")), -1, -1, 1.0});
  AddVariable(plot, {Quoted(MQ_TEXT("'Variable1'")), 2, 99, 1.0});
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("2*''+''")));
}

TEST(EquationPlot, VariablesAreReplacedByWhateverNameTheyHave) {
  struct Row {
    const mqChar* name;
    const mqChar* equation;
    const mqChar* shown;
  };
  // The one variable is a stress along X.
  const Row kRows[] = {
      {MQ_TEXT("x"), MQ_TEXT("x+xx"),
       MQ_TEXT("'SX: stress along X'+'SX: stress along X''SX: stress along X'")},
      {MQ_TEXT("Variable"), MQ_TEXT("'Variable0'"), MQ_TEXT("''SX: stress along X'0'")},
      {MQ_TEXT("Variable1"), MQ_TEXT("'Variable10'"), MQ_TEXT("''SX: stress along X'0'")},
      {MQ_TEXT(""), MQ_TEXT("'Variable0'"), MQ_TEXT("'Variable0'")},
      // What it is replaced by is not looked at again.
      {MQ_TEXT("SX"), MQ_TEXT("SX"), MQ_TEXT("'SX: stress along X'")},
      {MQ_TEXT("'"), MQ_TEXT("'"), MQ_TEXT("'SX: stress along X'")},
  };
  for (const Row& row : kRows) {
    CmqEquationPlotParam plot;
    plot.m_strEquation = Quoted(row.equation);
    AddVariable(plot, {Quoted(row.name), 2, 0, 1.0});
    EXPECT_EQ(Display(plot), Quoted(row.shown)) << Show(Quoted(row.name));
  }
}

TEST(EquationPlot, LaterVariablesAreReplacedInsideTheNamesOfEarlierOnes) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54591, MQ_TEXT("S \"Variable1\" with \"Variable0\""));
  ReplacedTexts::Set(50341, MQ_TEXT("D \"Variable0\""));
  CmqEquationPlotParam plot = TwoOperands(MQ_TEXT("'Variable0'-'Variable1'"));
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'S 'D 'Variable0'' with 'Variable0''-'D 'Variable0''")));
}

TEST(EquationPlot, VariablesAreReplacedInTheOrderOfTheList) {
  CmqEquationPlotParam plot;
  plot.m_strEquation = MQ_TEXT("ab");
  AddVariable(plot, {MQ_TEXT("a"), 2, 0, 1.0});
  AddVariable(plot, {MQ_TEXT("ab"), 1, 3, 1.0});
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'SX: stress along X'b")));
  // Two variables of one name: the first takes it all.
  plot.m_strEquation = Quoted(MQ_TEXT("'Variable0'"));
  plot.m_listVariables.GetHead()->m_strName = Quoted(MQ_TEXT("'Variable0'"));
  plot.m_listVariables.GetTail()->m_strName = Quoted(MQ_TEXT("'Variable0'"));
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'SX: stress along X'")));
}

TEST(EquationPlot, TheEquationIsShownInTheLanguageOfTheStringTable) {
  CmqEquationPlotParam plot = TwoOperands(MQ_TEXT("'Variable0'/'Variable1'"));
  {
    const ReplacedTexts texts;
    ReplacedTexts::Set(54591, MQ_TEXT("SX: Spannung in X"));
    ReplacedTexts::Set(50341, MQ_TEXT("DMAG: Verschiebung, Gr\u00F6\u00DFe"));
    EXPECT_EQ(Display(plot),
              Quoted(MQ_TEXT("'SX: Spannung in X'/'DMAG: Verschiebung, Gr\u00F6\u00DFe'")));
  }
  EXPECT_EQ(Display(plot), Quoted(MQ_TEXT("'SX: stress along X'/'DMAG: displacement magnitude'")));
}

TEST(EquationPlot, AnEquationThatWasTakenOverIsShownAsItWasTyped) {
  const mqChar* const typed =
      MQ_TEXT("('SX: stress along X'+'ES: scalar strain')*'SX: stress along X'");
  const CmqResultCompsEqnVarsList list =
      EditorList(typed, {MQ_TEXT("'SX: stress along X'"), MQ_TEXT("'ES: scalar strain'")});
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&list);
  EXPECT_EQ(plot.m_strEquation, Quoted(MQ_TEXT("('Variable0'+'Variable1')*'Variable0'")));
  EXPECT_EQ(Display(plot), Quoted(typed));
}

}  // namespace
}  // namespace mqp::test
