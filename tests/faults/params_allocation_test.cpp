// Memory runs out while graphs, equation plots, plots, lists and animations are copied, read and
// asked for their texts.

#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/params/animation.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/params/stream/strings.h>

#include "catalogue/name_test_support.h"
#include "faults/allocation_failures.h"
#include "params/value_test_support.h"

namespace mqp::test {
namespace {

constexpr Guarantee kStrong = Guarantee::Strong;
constexpr Guarantee kBasic = Guarantee::Basic;
constexpr Guarantee kNeverFails = Guarantee::NeverFails;

constexpr int kVersion = 890110;

/// A text that no target has the room for.
CString LongText() {
  return CString(MQ_TEXT('l'), 100);
}

template <class Object>
std::string DescribeMembers(const Object& object) {
  std::string text;
  for (const MemberLine& line : LinesOf(object)) {
    text += line.name + ": " + line.value + '\n';
  }
  return text;
}

/// Reads a record from its beginning; the stream itself asks for no memory.
template <class Object>
Operation<Object> Reading(const ByteString& record) {
  const auto stream = std::make_shared<host::MemoryStream>(record);
  return {"reading", kBasic, [stream](Object& object, Object&) {
            stream->Rewind();
            object.ReadFromStream(stream.get(), kVersion);
          }};
}

// --- records ---

TEST_F(AllocationFailures, InAStringRecord) {
  const auto record = std::make_shared<host::MemoryStream>(
      RecordBytes().Text(MQ_TEXT("a text that is read from a stream, with no room for it")).Get());
  const auto sink = std::make_shared<RefusingStream>(S_OK);
  const Subject<CString> subject = {"string record", [] { return CString(MQ_TEXT("held")); },
                                    LongText, [](const CString& text) { return Show(text); }};
  Try(subject, {{
                   {"reading", kStrong,
                    [record](CString& text, CString&) {
                      record->Rewind();
                      CStringReadFromStream(record.get(), &text);
                    }},
                   {"writing", kNeverFails,
                    [sink](CString&, CString& other) { CStringWriteToStream(sink.get(), &other); }},
               }});
}

using Graph = CmqPostGraphParam;

Subject<Graph> GraphSubject() {
  const auto makeOther = [] {
    Graph graph = FilledGraph(2);
    graph.m_strHost18[1] = LongText();
    graph.m_strHost36 = LongText();
    return graph;
  };
  const auto describe = [](const Graph& graph) {
    std::string text;
    VisitMembers(graph, [&text](const char* name, int, const auto& member) {
      text += std::string(name) + ": " + Show(member) + '\n';
    });
    return text;
  };
  return {"CmqPostGraphParam", [] { return FilledGraph(1); }, makeOther, describe};
}

TEST_F(AllocationFailures, InAGraph) {
  Graph stored = FilledGraph(3);
  stored.m_strHost18[2] = LongText();
  stored.m_strHost20 = LongText();
  const auto sink = std::make_shared<RefusingStream>(S_OK);
  constexpr static preference kPreferences = {1, 2, 1};
  // clang-format off
  Try(GraphSubject(), {ValueOperations<Graph>(kBasic), {
      Reading<Graph>(BuildRecord(stored, kVersion)),
      {"writing",             kNeverFails, [sink](Graph&, Graph& other) { other.WriteToStream(sink.get()); }},
      {"listing its fields",  kStrong,     [](Graph&, Graph&) { Use(Graph::GetRecordFields()); }},
      {"construction",        kNeverFails, [](Graph&, Graph&) { const Graph made; }},
      {"ConstructInit",       kNeverFails, [](Graph& graph, Graph&) { graph.ConstructInit(8, 13, 1, 1, 1); }},
      {"GetFolderName",       kNeverFails, [](Graph& graph, Graph&) { Use(graph.GetFolderName()); }},
      {"its kinds",           kNeverFails, [](Graph& graph, Graph&) { Use(graph.GetResultGraphType(), graph.IsFatigueDamageMatrix(), graph.IsTransientGraphMatrix()); }},
      {"its preferences",     kNeverFails, [](Graph& graph, Graph&) { graph.SetDefaultOptionByPreferences(&kPreferences); }},
  }});
  // clang-format on
}

TEST_F(TextAllocationFailures, InTheTextsOfAGraph) {
  Subject<Graph> subject = GraphSubject();
  subject.make = [] {
    Graph motion(8, 1, 0, 0, 0);
    motion.m_XAxis = {1, 0, 0, -1};
    motion.m_nDynamicOption = 1;
    return motion;
  };
  subject.makeOther = [] {
    Graph response(4, 2, 0, 0, 0);
    response.m_nResultType = 63;
    response.m_nFrequencyResponseMode = 1;
    return response;
  };
  // clang-format off
  Try(subject, {{
      {"GetDefaultPlotName",                          kStrong, [](Graph& graph, Graph&) { Use(graph.GetDefaultPlotName(0)); }},
      {"GetDefaultPlotName of a frequency response",  kStrong, [](Graph&, Graph& other) { Use(other.GetDefaultPlotName(0)); }},
      {"GetYTitle",                                   kStrong, [](Graph& graph, Graph&) { Use(graph.GetYTitle(0, 0)); }},
  }});
  subject.make = [] { return Graph(0, 2, 0, 0, 0); };
  Try(subject, {{
      {"GetYTitle of a stress",                       kStrong, [](Graph& graph, Graph&) { Use(graph.GetYTitle(0, 0)); }},
  }});
  // clang-format on
}

// --- equation plots ---

using Variable = CmqEquationVariable;
using Equation = CmqEquationPlotParam;
using Editor = CmqResultCompsEqnVarsList;

TEST_F(AllocationFailures, InAVariableOfAnEquation) {
  const auto make = [](const CString& name) {
    Variable variable;
    SetState(variable, {name, 1, 2, 3.0});
    return variable;
  };
  const auto describe = [](const Variable& variable) {
    return Differences(variable, VariableState{MQ_TEXT("none"), -9, -9, -9.0});
  };
  const auto sink = std::make_shared<RefusingStream>(S_OK);
  const Subject<Variable> subject = {"CmqEquationVariable",
                                     [make] { return make(MQ_TEXT("\"Variable0\"")); },
                                     [make] { return make(LongText()); }, describe};
  // clang-format off
  Try(subject, {ValueOperations<Variable>(kBasic), {
      Reading<Variable>(BuildRecord(VariableState{LongText(), 4, 5, 6.0})),
      {"writing",             kNeverFails, [sink](Variable&, Variable& other) { other.WriteToStream(sink.get(), kVersion); }},
      {"construction",        kNeverFails, [](Variable&, Variable&) { const Variable made; }},
      {"listing its fields",  kStrong,     [](Variable&, Variable&) { Use(Variable::GetRecordFields()); }},
  }});
  // clang-format on
}

/// Every text of it takes memory.
EquationState LongEquation(int seed, int variables) {
  EquationState state = FilledEquation(seed, variables);
  state.equation += LongText();
  state.displayEquation += LongText();
  for (CString& text : state.host3) {
    text += LongText();
  }
  for (VariableState& variable : state.variables) {
    variable.name += LongText();
  }
  return state;
}

Subject<Equation> EquationSubject() {
  const auto make = [](const EquationState& state) {
    Equation plot;
    SetState(plot, state);
    return plot;
  };
  return {"CmqEquationPlotParam", [make] { return make(FilledEquation(1, 2)); },
          [make] { return make(LongEquation(2, 4)); },
          [](const Equation& plot) { return Show(plot); }};
}

TEST_F(AllocationFailures, InAnEquationPlot) {
  const auto sink = std::make_shared<RefusingStream>(S_OK);
  // clang-format off
  Try(EquationSubject(), {ValueOperations<Equation>(kBasic), {
      Reading<Equation>(BuildRecord(LongEquation(3, 3))),
      {"writing",             kNeverFails, [sink](Equation&, Equation& other) { other.WriteToStream(sink.get(), kVersion); }},
      {"construction",        kNeverFails, [](Equation&, Equation&) { const Equation made; }},
      {"listing its fields",  kStrong,     [](Equation&, Equation&) { Use(Equation::GetRecordFields()); }},
      {"another variable",    kStrong,     [](Equation& plot, Equation&) { plot.m_listVariables.Append(std::make_unique<Variable>()); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, AnEquationPlotIsLoadedInAsManyPiecesAsItHas) {
  host::MemoryStream stream(BuildRecord(LongEquation(3, 3)));
  Equation plot;
  const Outcome outcome = RunWith({}, [&] { plot.ReadFromStream(&stream, kVersion); });
  EXPECT_EQ(outcome.allocations, 3 + 3 * 2 + 1);  // three texts; variables, names; room for ten
}

/// What was typed, with the names that were offered.
Editor TypedEquation() {
  Editor list;
  list.m_strEquation = MQ_TEXT("\"SX: stress along X\" + 2 * \"UY: displacement along Y\" + \"?\"");
  list.m_listStressNames.AddTail(MQ_TEXT("\"SX: stress along X\""));
  list.m_listDisplacementNames.AddTail(MQ_TEXT("\"UY: displacement along Y\""));
  list.m_listVariableNames.AddTail(MQ_TEXT("\"SX: stress along X\""));
  list.m_listVariableNames.AddTail(MQ_TEXT("\"UY: displacement along Y\""));
  list.m_listVariableNames.AddTail(MQ_TEXT("\"?\""));
  list.m_nCoefficientsFlag = 1;
  list.m_arrCoefficients.Add(2.0);
  list.m_arrCoefficients.Add(3.0);
  return list;
}

TEST_F(TextAllocationFailures, InAnEquationThatIsPreparedAndShown) {
  const auto typed = std::make_shared<const Editor>(TypedEquation());
  Subject<Equation> subject = EquationSubject();
  subject.makeOther = [typed] {
    Equation plot;
    plot.PrepareEquationParams(typed.get());
    return plot;
  };
  // clang-format off
  Try(subject, {{
      {"PrepareEquationParams",    kBasic, [typed](Equation& plot, Equation&) { plot.PrepareEquationParams(typed.get()); }},
      {"the name of a component",  kStrong, [](Equation&, Equation& other) {
         const POSITION head = other.m_listVariables.GetHeadPosition();
         Use(other.m_listVariables.GetAt(head)->GetComponentName(0, 0, 0, 0));
       }},
  }});
  subject.make = subject.makeOther;
  subject.makeOther = [] { return Equation(); };
  Try(subject, {{
      {"PrepareEquationToDisplay", kBasic, [](Equation& plot, Equation&) { plot.PrepareEquationToDisplay(0, 0, 0, 0); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, InWhatTheEditorHandsOver) {
  const auto makeOther = [] {
    Editor list = TypedEquation();
    list.m_strEquation = LongText();
    list.m_listThermalNames.AddTail(LongText());
    list.m_arrCoefficients.SetSize(9);
    return list;
  };
  const auto describe = [](const Editor& list) {
    std::string text = Show(list.m_strEquation) + ' ' + Show(list.m_arrCoefficients);
    for (const StringValues* names :
         {&list.m_listStressNames, &list.m_listBeamStressNames, &list.m_listStrainNames,
          &list.m_listDisplacementNames, &list.m_listThermalNames, &list.m_listVariableNames}) {
      text += " |";
      for (POSITION position = names->GetHeadPosition(); position != nullptr;) {
        text += ' ' + Show(names->GetNext(position));
      }
    }
    return text;
  };
  const Subject<Editor> subject = {"CmqResultCompsEqnVarsList", TypedEquation, makeOther, describe};
  Try(subject, {ValueOperations<Editor>(kBasic)});
}

TEST_F(TextAllocationFailures, InTheLookUpOfATypedName) {
  const Subject<Editor> subject = {"CmqResultCompsEqnVarsList", TypedEquation, TypedEquation,
                                   [](const Editor& list) { return Show(list.m_strEquation); }};
  Try(subject, {{{"look-up", kStrong, [](Editor& list, Editor&) {
                    int resultType = 0;
                    Use(list.GetComponentNumberAndResultTypeForVariable(
                        list.m_listVariableNames.GetTail(), resultType));
                    Use(list.GetComponentNumberAndResultTypeForVariable(
                        list.m_listVariableNames.GetHead(), resultType));
                  }}}});
}

// --- plots, lists, animations ---

template <class Object>
Object FilledObject(int seed) {
  Object object;
  FillWithDistinctValues(object, seed);
  return object;
}

TEST_F(AllocationFailures, InAPlot) {
  using Plot = CmqPostDataParam;
  const Subject<Plot> subject = {"CmqPostDataParam", [] { return FilledObject<Plot>(1); },
                                 [] { return FilledObject<Plot>(2); }, DescribeMembers<Plot>};
  const auto withoutArrays = [](Plot& plot) {
    plot.m_arrHost31.RemoveAll();
    plot.m_arrHost32.RemoveAll();
  };
  // clang-format off
  Try(subject, {ValueOperations<Plot>(kStrong), {
      {"construction",                  kNeverFails, [](Plot&, Plot&) { const Plot made; }},
      {"assignment to one with arrays", kStrong,     [withoutArrays](Plot& plot, Plot&) { Plot source; withoutArrays(source); plot = source; }},
      {"questions",                     kNeverFails, [](Plot& plot, Plot&) { Use(plot.GetDeformScaleFactor(), plot.IsEnvelopPlot(), plot.IsThermalHeatEnergy()); }},
  }});
  // clang-format on
}

using List = CVekPostListParam;

Subject<List> ListSubject() {
  const auto make = [] {
    List list;
    list.m_strStudyPath =
        MQ_TEXT("C:\\projects\\bracket\\Study with a name that is longer than others");
    list.m_nResultType = 1;
    list.m_nListSetFlag = 1;
    return list;
  };
  const auto makeOther = [] {
    List list = FilledObject<List>(2);
    list.m_strStudyPath = LongText();
    list.m_strHost19 = LongText();
    return list;
  };
  return {"CVekPostListParam", make, makeOther, DescribeMembers<List>};
}

TEST_F(AllocationFailures, InAList) {
  // clang-format off
  Try(ListSubject(), {ValueOperations<List>(kBasic), {
      {"construction",  kNeverFails, [](List&, List&) { const List made; }},
      {"GetStudyName",  kStrong,     [](List& list, List&) { Use(list.GetStudyName()); }},
      {"its columns",   kNeverFails, [](List& list, List&) { Use(list.GetComponentCount(), list.GetListColCount()); }},
  }});
  // clang-format on
}

TEST_F(TextAllocationFailures, InTheColumnsOfAList) {
  constexpr UINT kLeadingTitle = 50733;
  const ReplacedTexts texts;
  host::ReplaceText(kLeadingTitle, LongText());
  // clang-format off
  Try(ListSubject(), {{
      {"GetListColTitle of the first",  kStrong, [](List& list, List&) { Use(list.GetListColTitle(0)); }},
      {"GetListColTitle of a column",   kStrong, [](List& list, List&) { Use(list.GetListColTitle(1)); }},
      {"GetComponentName",              kStrong, [](List& list, List&) { Use(list.GetComponentName(1)); }},
      {"GetComponentNameShort",         kStrong, [](List& list, List&) { Use(list.GetComponentNameShort(1)); }},
      {"GetComponentIndex",             kStrong, [](List& list, List&) { Use(list.GetComponentIndex(1)); }},
      {"GetComponentSet",               kStrong, [](List& list, List&) { int set[16] = {}; list.GetComponentSet(set); }},
      {"GetComponentIndexByListSet",    kStrong, [](List& list, List&) { Use(list.GetComponentIndexByListSet()); }},
      {"GetDataParam",                  kStrong, [](List& list, List&) { Use(list.GetDataParam(1)); }},
      {"GetUnitType",                   kStrong, [](List& list, List&) { Use(list.GetUnitType()); }},
      {"GetUnitName",                   kStrong, [](List& list, List&) { Use(list.GetUnitName()); }},
  }});
  // clang-format on
}

TEST_F(AllocationFailures, InAnAnimation) {
  using Animation = CmqpAnimateParam;
  const auto makeOther = [] {
    Animation animation = FilledObject<Animation>(2);
    animation.m_strHost6 = LongText();
    return animation;
  };
  const Subject<Animation> subject = {"CmqpAnimateParam", [] { return FilledObject<Animation>(1); },
                                      makeOther, DescribeMembers<Animation>};
  // clang-format off
  Try(subject, {ValueOperations<Animation>(kBasic), {
      {"construction", kNeverFails, [](Animation&, Animation&) { const Animation made; }},
      {"SetNFrames",   kNeverFails, [](Animation& animation, Animation&) { animation.SetNFrames(9); }},
  }});
  // clang-format on
}

}  // namespace
}  // namespace mqp::test
