#include <algorithm>
#include <limits>

#include <gtest/gtest.h>

#include <mqCommFuncs/string_table.h>
#include <storage/memory_stream.h>
#include <mqPostCommon/mqPostCommon.h>

#include "members.h"
#include "records.h"
#include "tally.h"

namespace reference {
namespace {

using mqp::host::MemoryStream;

Text LongText(Random& random) {
  Text text(static_cast<std::size_t>(random.Between(1015, 1035)), MQ_TEXT('l'));
  text[static_cast<std::size_t>(random.Below(1015))] = MQ_TEXT('\u00E9');
  return text;
}

Text AnyText(Random& random) {
  return random.Once(40) ? LongText(random) : RandomText(random);
}

/// At a gate, beside one, or anywhere.
int AnyVersion(Random& random) {
  if (random.Once(6)) {
    return random.Of({std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0,
                      random.Between(790000, 900000)});
  }
  return random.Between(-1, 1) + random.Of({800018, 800026, 800062, 820022, 840028, 870002, 890002,
                                            890005, 890109, 890110, 890110, 890110});
}

/// Counts, small numbers and noise where a reader may expect anything.
void Disturb(Bytes& bytes, Random& random) {
  for (int times = random.Between(1, 4); times > 0 && !bytes.empty(); --times) {
    const auto place = static_cast<std::size_t>(random.Below(static_cast<int>(bytes.size())));
    const auto at = bytes.begin() + static_cast<std::ptrdiff_t>(place);
    switch (random.Below(4)) {
      case 0: *at = static_cast<std::byte>(random.Bits() & 0xFF); break;
      case 1: bytes.erase(at); break;
      case 2: bytes.insert(at, static_cast<std::byte>(random.Bits() & 0xFF)); break;
      default: {
        Writer writer;
        writer.Int(random.Of({-1, 0, 1, 5, 1024, 1025, 2000, std::numeric_limits<int>::min()}));
        std::copy_n(writer.Written().begin(), std::min<std::size_t>(4, bytes.size() - place), at);
      }
    }
  }
}

void CutOff(Bytes& bytes, Random& random) {
  bytes.resize(static_cast<std::size_t>(random.Below(static_cast<int>(bytes.size()) + 1)));
}

Bytes Noise(Random& random) {
  Bytes bytes(static_cast<std::size_t>(random.Between(0, 3000)));
  // Mostly zeros, so that counts come out small enough for the fields behind them to be reached.
  for (std::byte& byte : bytes) {
    byte = static_cast<std::byte>(random.Once(4) ? random.Bits() & 0xFF : 0);
  }
  return bytes;
}

/// What becomes of a valid record before it is read.
Bytes Treat(Bytes record, Random& random) {
  switch (random.Below(6)) {
    case 0: Hit("input: noise"); return Noise(random);
    case 1:
      Hit("input: disturbed");
      Disturb(record, random);
      return record;
    case 2:
      Hit("input: cut off");
      CutOff(record, random);
      return record;
    case 3: {
      Hit("input: disturbed and cut off");
      Disturb(record, random);
      CutOff(record, random);
      return record;
    }
    default: Hit("input: valid"); return record;
  }
}

void CheckInputs() {
  CheckTally("input", {"input: noise", "input: disturbed", "input: cut off",
                       "input: disturbed and cut off", "input: valid"});
}

std::string BytesDiffer(const Bytes& expected, const Bytes& got) {
  return expected == got ? "" : "expected " + HexOf(expected) + "\n     got " + HexOf(got);
}

class RecordReference : public testing::Test {
 protected:
  void SetUp() override {
    mqp::host::UseBuiltInTexts();
    ResetTally();
  }
};

TEST_F(RecordReference, Strings) {
  Random random(2101);
  const int cases = CountCases(20000);
  for (int number = 0; number < cases; ++number) {
    Writer writer;
    Text text = AnyText(random);
    if (random.Once(5) && !text.empty()) {
      text[static_cast<std::size_t>(random.Below(static_cast<int>(text.size())))] = mqChar{};
    }
    writer.String(text);
    CString written = StringOf(text);
    MemoryStream out;
    ASSERT_EQ(1, CStringWriteToStream(&out, &written));
    ASSERT_EQ("", BytesDiffer(writer.Written(), out.Bytes())) << Printable(text);

    const Bytes bytes = Treat(writer.Written(), random);
    Reader reader(bytes);
    Text expected = RandomText(random);
    CString got = StringOf(expected);
    MemoryStream in(bytes);
    const int result = reader.String(expected);
    ASSERT_EQ(result, CStringReadFromStream(&in, &got)) << HexOf(bytes);
    ASSERT_EQ(Printable(expected), Printable(TextOf(got))) << HexOf(bytes);
    ASSERT_EQ(reader.Position(), in.Position()) << HexOf(bytes);
  }
  CheckInputs();
  CheckTally("string", {"string: written short", "string: written empty", "string: written whole",
                        "string: negative count", "string: no count", "string: count too large",
                        "string: cut off", "string: read whole", "string: ended by a zero"});
  RecordCases(cases);
}

/// Members as a document may hold them, the codes of the two corrections often among them.
void MakeGraph(CmqPostGraphParam& graph, Random& random) {
  Scramble(graph, random);
  if (random.Once(4)) {
    for (CString& text : graph.m_strHost18) {
      text = StringOf(AnyText(random));
    }
  }
  if (random.Once(2)) {
    graph.m_nAnalysisType = random.Of({0, 5, 8, 8});
    graph.m_nResultType = random.Of({1, 2, 19, 20});
    graph.m_XAxis.m_nQuantityType = random.Of({2, 14, graph.m_nResultType});
    graph.m_YAxis.m_nQuantityType = random.Of({2, graph.m_nResultType});
    graph.m_XAxis.m_nComponent = random.Between(-1, 16);
    graph.m_YAxis.m_nComponent = random.Of({3, random.Between(-1, 16)});
    graph.m_nYUnitFlag = random.Of({0, 0, 1, -1});
  }
}

TEST_F(RecordReference, Graphs) {
  Random random(2301);
  const int cases = CountCases(8000);
  for (int number = 0; number < cases; ++number) {
    CmqPostGraphParam stored;
    MakeGraph(stored, random);
    MemoryStream out;
    ASSERT_EQ(1, stored.WriteToStream(&out));
    ASSERT_EQ("", BytesDiffer(WriteGraph(Snapshot(stored), kNewest), out.Bytes()));

    const int version = AnyVersion(random);
    const Bytes bytes = Treat(WriteGraph(Snapshot(stored), version), random);
    CmqPostGraphParam graph;
    if (random.Once(2)) {
      MakeGraph(graph, random);
    }
    Fields expected = Snapshot(graph);
    Reader reader(bytes);
    const int result = ReadGraph(expected, reader, version);
    MemoryStream in(bytes);
    ASSERT_EQ(result, graph.ReadFromStream(&in, version)) << version << ": " << HexOf(bytes);
    ASSERT_EQ("", FirstDifference(expected, Snapshot(graph))) << version << ": " << HexOf(bytes);
    ASSERT_EQ(reader.Position(), in.Position()) << version << ": " << HexOf(bytes);

    MemoryStream again;
    ASSERT_EQ(1, graph.WriteToStream(&again));
    ASSERT_EQ("", BytesDiffer(WriteGraph(expected, kNewest), again.Bytes())) << version;
  }
  CheckInputs();
  CheckTally("graph",
             {"graph: too old", "graph: read", "graph: part not there yet", "graph: flag is set",
              "graph: flag of a reaction", "graph: flag of a displacement resultant",
              "graph: flag of a velocity resultant", "graph: flag of an acceleration resultant",
              "graph: flag stays clear", "graph: component kept", "graph: x component moved on",
              "graph: y component moved on", "graph: components as they are"});
  CheckTally("number", {"number: not there", "number: half there"});
  CheckTally("string", {"string: written short", "string: written empty", "string: written whole",
                        "string: negative count", "string: no count", "string: count too large",
                        "string: cut off", "string: read whole", "string: ended by a zero"});
  RecordCases(cases);
}

int AnnouncedVariables(const Bytes& bytes) {
  Reader reader(bytes);
  EquationPlot plot;
  reader.String(plot.equation);
  reader.Int(plot.coefficientsFlag);
  reader.String(plot.strings[0]);
  reader.String(plot.strings[1]);
  int count = 0;
  reader.Int(count);
  return count;
}

TEST_F(RecordReference, EquationPlots) {
  Random random(2401);
  const int cases = CountCases(8000);
  const int mostHuge = CountCases(4);  // each makes many thousand variables
  int huge = 0;
  for (int number = 0; number < cases; ++number) {
    CmqEquationPlotParam stored;
    Scramble(stored, random);
    stored.m_strEquation = StringOf(AnyText(random));
    Writer writer;
    WriteEquationPlot(writer, EquationPlotOf(Snapshot(stored)));
    MemoryStream out;
    ASSERT_EQ(1, stored.WriteToStream(&out, random.Int()));
    ASSERT_EQ("", BytesDiffer(writer.Written(), out.Bytes()));

    const int version = random.Once(4) ? AnyVersion(random) : random.Between(890109, 890111);
    const Bytes bytes = Treat(writer.Written(), random);
    if (AnnouncedVariables(bytes) > 2100 && ++huge > mostHuge) {
      continue;
    }
    CmqEquationPlotParam plot;
    if (random.Once(2)) {
      Scramble(plot, random);
    }
    EquationPlot expected = EquationPlotOf(Snapshot(plot));
    Reader reader(bytes);
    const int result = ReadEquationPlot(expected, reader, version);
    MemoryStream in(bytes);
    ASSERT_EQ(result, plot.ReadFromStream(&in, version)) << version << ": " << HexOf(bytes);
    Fields expectedFields;
    PutFields(expectedFields, expected);
    ASSERT_EQ("", FirstDifference(expectedFields, Snapshot(plot)))
        << version << ": " << HexOf(bytes);
    ASSERT_EQ(reader.Position(), in.Position()) << version << ": " << HexOf(bytes);

    Writer expectedWriter;
    WriteEquationPlot(expectedWriter, expected);
    MemoryStream again;
    ASSERT_EQ(1, plot.WriteToStream(&again, version));
    ASSERT_EQ("", BytesDiffer(expectedWriter.Written(), again.Bytes())) << version;
  }
  CheckInputs();
  CheckTally("equation", {"equation: too old", "equation: negative count", "equation: no variables",
                          "equation: variables", "equation: variables behind others",
                          "equation: too many variables"});
  CheckTally("variable", {"variable: read"});
  CheckTally("number", {"number: not there", "number: half there"});
  RecordCases(cases - std::max(0, huge - mostHuge));
}

TEST_F(RecordReference, EquationVariables) {
  Random random(2402);
  const int cases = CountCases(8000);
  for (int number = 0; number < cases; ++number) {
    CmqEquationVariable stored;
    Scramble(stored, random);
    const auto variableOf = [](const CmqEquationVariable& it) {
      const Fields fields = Snapshot(it);
      return Variable{fields.at({"name", 0}).text, IntOf(fields.at({"result type", 0})),
                      IntOf(fields.at({"component", 0})), fields.at({"coefficient", 0}).bits};
    };
    Writer writer;
    WriteVariable(writer, variableOf(stored));
    MemoryStream out;
    ASSERT_EQ(1, stored.WriteToStream(&out, random.Int()));
    ASSERT_EQ("", BytesDiffer(writer.Written(), out.Bytes()));

    const int version = AnyVersion(random);
    const Bytes bytes = Treat(writer.Written(), random);
    CmqEquationVariable variable;
    Variable expected = variableOf(variable);
    Reader reader(bytes);
    const int result = ReadVariable(expected, reader, version);
    MemoryStream in(bytes);
    ASSERT_EQ(result, variable.ReadFromStream(&in, version)) << version << ": " << HexOf(bytes);
    const Fields expectedFields = {{{"name", 0}, ValueOf(expected.name)},
                                   {{"result type", 0}, ValueOf(expected.resultType)},
                                   {{"component", 0}, ValueOf(expected.component)},
                                   {{"coefficient", 0}, {expected.coefficient, {}}}};
    ASSERT_EQ("", FirstDifference(expectedFields, Snapshot(variable)))
        << version << ": " << HexOf(bytes);
    ASSERT_EQ(reader.Position(), in.Position()) << version << ": " << HexOf(bytes);
  }
  CheckInputs();
  CheckTally("variable", {"variable: too old", "variable: read"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
