#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include <nlohmann/json.hpp>
#include <gtest/gtest.h>
#include <mqCommFuncs/string_table.h>
#include <storage/compound_document.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/platform/comm_funcs.h>

#include "catalogue/name_test_support.h"
#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// The last of these is the first version with equations.
constexpr int kVersionsBefore[] = {INT_MIN, -890109, -1, 0, 1, 800018, 890108};
constexpr int kVersionsFrom[] = {890109, 890110, 890111, INT_MAX};
constexpr int kWriteVersions[] = {0, -1, INT_MIN, 890108, 890109, 890110, INT_MAX};

/// A reader takes at most this many variables of a record.
constexpr int kMaximumVariables = 65536;

double FromBits(std::uint64_t bits) {
  return std::bit_cast<double>(bits);
}

CmqEquationVariable VariableOf(const VariableState& state) {
  CmqEquationVariable variable;
  SetState(variable, state);
  return variable;
}

CmqEquationPlotParam PlotOf(const EquationState& state) {
  CmqEquationPlotParam plot;
  SetState(plot, state);
  return plot;
}

template <class Object>
ByteString Written(const Object& object, int version = 890110) {
  host::MemoryStream stream;
  EXPECT_EQ(object.WriteToStream(&stream, version), 1) << "version " << version;
  return stream.Bytes();
}

/// Reads bytes into an object and expects that `consumed` of them are taken.
template <class Object>
void ReadInto(Object& object, const ByteString& bytes, std::size_t consumed, int version = 890110) {
  host::MemoryStream stream(bytes);
  EXPECT_EQ(object.ReadFromStream(&stream, version), 1) << "version " << version;
  EXPECT_EQ(stream.Position(), consumed) << "version " << version;
}
template <class Object>
void ReadInto(Object& object, const ByteString& bytes) {
  ReadInto(object, bytes, bytes.size());
}

template <class Value>
void Append(std::vector<Value>& values, const std::vector<Value>& more) {
  values.insert(values.end(), more.begin(), more.end());
}

/// The first fields of a plot record: everything before the variables.
RecordBytes PlotHead(int count) {
  return RecordBytes()
      .Text(MQ_TEXT("e"))
      .Integer(7)
      .Text(MQ_TEXT("f"))
      .Text(MQ_TEXT("g"))
      .Integer(count);
}
constexpr std::size_t kPlotHeadBytes = 26;

/// A plot that was read from `PlotHead`.
EquationState HeadState() {
  return {.equation = MQ_TEXT("e"),
          .coefficientsFlag = 7,
          .host3 = {MQ_TEXT("f"), MQ_TEXT("g")},
          .variables = {},
          .displayEquation = {}};
}

// --- the layout ---

struct FieldRow {
  std::string_view name;
  FieldType type;
  int count;
};

void CheckFields(const std::vector<RecordField>& fields, const std::vector<FieldRow>& rows) {
  ASSERT_EQ(fields.size(), rows.size());
  for (std::size_t place = 0; place < fields.size(); ++place) {
    SCOPED_TRACE("field " + std::to_string(place));
    EXPECT_EQ(fields[place].name, rows[place].name);
    EXPECT_EQ(fields[place].type, rows[place].type);
    EXPECT_EQ(fields[place].count, rows[place].count);
    EXPECT_EQ(fields[place].since, 890109);
  }
}

TEST(EquationVariableRecord, TheListOfFieldsTellsTheLayout) {
  CheckFields(CmqEquationVariable::GetRecordFields(), {{"name", FieldType::String, 1},
                                                       {"result type", FieldType::Integer, 1},
                                                       {"component", FieldType::Integer, 1},
                                                       {"coefficient", FieldType::Double, 1}});
}

TEST(EquationPlotRecord, TheListOfFieldsTellsTheLayout) {
  CheckFields(CmqEquationPlotParam::GetRecordFields(),
              {{"equation", FieldType::String, 1},
               {"coefficients flag", FieldType::Integer, 1},
               {"two strings", FieldType::String, 2},
               {"number of variables", FieldType::Integer, 1}});
}

// --- writing: the bytes ---

TEST(EquationVariableRecord, ANewVariableIsWrittenByteForByte) {
  const ByteString expected =
      RecordBytes()
          .Raw({0x08, 0, 0, 0})
          .Raw({'V', 0, 'a', 0, 'r', 0, 'i', 0, 'a', 0, 'b', 0, 'l', 0, 'e', 0})
          .Raw({0x02, 0, 0, 0})
          .Raw({0x09, 0, 0, 0})
          .Raw({0, 0, 0, 0, 0, 0, 0xF0, 0x3F})
          .Get();
  EXPECT_EQ(Hex(Written(CmqEquationVariable())), Hex(expected));
  EXPECT_EQ(expected.size(), 36U);
}

TEST(EquationVariableRecord, EveryFieldIsWrittenLowByteFirst) {
  const CmqEquationVariable variable =
      VariableOf({MQ_TEXT("\"\u03A9\u4E2D"), -2, 0x01020304, FromBits(0x0123'4567'89AB'CDEF)});
  const ByteString expected = RecordBytes()
                                  .Raw({0x03, 0, 0, 0, 0x22, 0, 0xA9, 0x03, 0x2D, 0x4E})
                                  .Raw({0xFE, 0xFF, 0xFF, 0xFF})
                                  .Raw({0x04, 0x03, 0x02, 0x01})
                                  .Raw({0xEF, 0xCD, 0xAB, 0x89, 0x67, 0x45, 0x23, 0x01})
                                  .Get();
  EXPECT_EQ(Hex(Written(variable)), Hex(expected));
}

TEST(EquationPlotRecord, ANewPlotIsTwentyZeroBytes) {
  EXPECT_EQ(Hex(Written(CmqEquationPlotParam())), Hex(ByteString(20)));
}

TEST(EquationPlotRecord, OneVariableIsWrittenByteForByte) {
  const CmqEquationPlotParam plot = PlotOf({MQ_TEXT("2*\"V\""),
                                            0x11223344,
                                            {MQ_TEXT("\u00C4"), MQ_TEXT("ok")},
                                            {{MQ_TEXT("\"V\""), 59, -1, -0.125}},
                                            MQ_TEXT("the display equation is not stored")});
  const ByteString expected = RecordBytes()
                                  .Raw({5, 0, 0, 0, '2', 0, '*', 0, '"', 0, 'V', 0, '"', 0})
                                  .Raw({0x44, 0x33, 0x22, 0x11})
                                  .Raw({1, 0, 0, 0, 0xC4, 0})
                                  .Raw({2, 0, 0, 0, 'o', 0, 'k', 0})
                                  .Raw({1, 0, 0, 0})
                                  .Raw({3, 0, 0, 0, '"', 0, 'V', 0, '"', 0})
                                  .Raw({0x3B, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0xFF})
                                  .Raw({0, 0, 0, 0, 0, 0, 0xC0, 0xBF})
                                  .Get();
  EXPECT_EQ(Hex(Written(plot)), Hex(expected));
}

TEST(EquationPlotRecord, TwoVariablesStandInTheOrderOfTheList) {
  const CmqEquationPlotParam plot =
      PlotOf({{}, 1, {MQ_TEXT("a"), {}}, {{MQ_TEXT("q"), 3, 4, 2.0}, {{}, 1, 0, -0.0}}, {}});
  const ByteString expected = RecordBytes()
                                  .Raw({0, 0, 0, 0, 1, 0, 0, 0})
                                  .Raw({1, 0, 0, 0, 'a', 0, 0, 0, 0, 0})
                                  .Raw({2, 0, 0, 0})
                                  .Raw({1, 0, 0, 0, 'q', 0, 3, 0, 0, 0, 4, 0, 0, 0})
                                  .Raw({0, 0, 0, 0, 0, 0, 0x00, 0x40})
                                  .Raw({0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0})
                                  .Raw({0, 0, 0, 0, 0, 0, 0x00, 0x80})
                                  .Get();
  EXPECT_EQ(Hex(Written(plot)), Hex(expected));
}

TEST(EquationPlotRecord, TwelveVariablesAreCountedAndWritten) {
  // clang-format off
  const EquationState state = {MQ_TEXT("sum"), -1, {CString(), MQ_TEXT("z")}, {
    {MQ_TEXT("\"Variable0\""),   2,  9,  1.0},
    {MQ_TEXT("\"Variable1\""),   1,  3,  0.5},
    {MQ_TEXT("\"Variable2\""),   3,  0, -1.0},
    {MQ_TEXT("\"Variable3\""),   5,  1,  2.5},
    {MQ_TEXT("\"Variable4\""),  59,  6,  0.0},
    {MQ_TEXT("\"Variable5\""),  -1, -1,  1.0},
    {MQ_TEXT("\"Variable6\""),   2,  0,  4.0},
    {MQ_TEXT("\"Variable7\""),   2,  1,  8.0},
    {MQ_TEXT("\"Variable8\""),   2,  2, 16.0},
    {MQ_TEXT("\"Variable9\""),   2,  3, 32.0},
    {MQ_TEXT("\"Variable10\""),  2,  4, 64.0},
    {MQ_TEXT("\"Variable11\""),  1, 14, -8.0},
  }, {}};
  RecordBytes expected;
  expected.Text(MQ_TEXT("sum")).Integer(-1).Text({}).Text(MQ_TEXT("z")).Raw({0x0C, 0, 0, 0});
  expected.Text(MQ_TEXT("\"Variable0\"")) .Integer( 2).Integer( 9).Double( 1.0);
  expected.Text(MQ_TEXT("\"Variable1\"")) .Integer( 1).Integer( 3).Double( 0.5);
  expected.Text(MQ_TEXT("\"Variable2\"")) .Integer( 3).Integer( 0).Double(-1.0);
  expected.Text(MQ_TEXT("\"Variable3\"")) .Integer( 5).Integer( 1).Double( 2.5);
  expected.Text(MQ_TEXT("\"Variable4\"")) .Integer(59).Integer( 6).Double( 0.0);
  expected.Text(MQ_TEXT("\"Variable5\"")) .Integer(-1).Integer(-1).Double( 1.0);
  expected.Text(MQ_TEXT("\"Variable6\"")) .Integer( 2).Integer( 0).Double( 4.0);
  expected.Text(MQ_TEXT("\"Variable7\"")) .Integer( 2).Integer( 1).Double( 8.0);
  expected.Text(MQ_TEXT("\"Variable8\"")) .Integer( 2).Integer( 2).Double(16.0);
  expected.Text(MQ_TEXT("\"Variable9\"")) .Integer( 2).Integer( 3).Double(32.0);
  expected.Text(MQ_TEXT("\"Variable10\"")).Integer( 2).Integer( 4).Double(64.0);
  expected.Text(MQ_TEXT("\"Variable11\"")).Integer( 1).Integer(14).Double(-8.0);
  // clang-format on
  EXPECT_EQ(ByteDifference(Written(PlotOf(state)), expected.Get()), "");
  EXPECT_EQ(expected.Get().size(), 536U);  // 28 in front, ten of 42, two of 44

  CmqEquationPlotParam read;
  ReadInto(read, expected.Get());
  EXPECT_EQ(Differences(read, state), "");
}

TEST(EquationVariableRecord, TheVersionHasNoEffectOnWriting) {
  const CmqEquationVariable variable = VariableOf(FilledVariable(1));
  for (const int version : kWriteVersions) {
    EXPECT_EQ(ByteDifference(Written(variable, version), BuildRecord(FilledVariable(1))), "")
        << "version " << version;
  }
  EXPECT_EQ(Differences(variable, FilledVariable(1)), "");
}

TEST(EquationPlotRecord, TheVersionHasNoEffectOnWriting) {
  const CmqEquationPlotParam plot = PlotOf(FilledEquation(1));
  for (const int version : kWriteVersions) {
    EXPECT_EQ(ByteDifference(Written(plot, version), BuildRecord(FilledEquation(1))), "")
        << "version " << version;
  }
  EXPECT_EQ(Differences(plot, FilledEquation(1)), "");
}

TEST(EquationPlotRecord, LongTextsAreCutInTheRecordAlone) {
  const CString y(MQ_TEXT('y'), 1024);
  const CString x(MQ_TEXT('x'), 1024);
  const EquationState held = {
      y + MQ_TEXT("z"), 3, {CString(MQ_TEXT('x'), 70000), y}, {{x + x, 1, 2, 3.0}}, {}};
  const EquationState kept = {y, 3, {x, y}, {{x, 1, 2, 3.0}}, {}};
  const CmqEquationPlotParam plot = PlotOf(held);
  const ByteString bytes = Written(plot);
  EXPECT_EQ(bytes.size(), 4U * 2052U + 8U + 16U);
  EXPECT_EQ(ByteDifference(bytes, BuildRecord(kept)), "");
  EXPECT_EQ(Differences(plot, held), "");

  CmqEquationPlotParam read;
  ReadInto(read, bytes);
  EXPECT_EQ(Differences(read, kept), "");
}

TEST(EquationVariableRecord, ALongNameIsCutInTheRecordAlone) {
  for (const int length : {1023, 1024, 1025, 1500, 70000}) {
    SCOPED_TRACE(length);
    const CmqEquationVariable variable = VariableOf({CString(MQ_TEXT('n'), length), 1, 2, 3.0});
    const CString kept(MQ_TEXT('n'), length < 1024 ? length : 1024);
    EXPECT_EQ(ByteDifference(Written(variable), BuildRecord(VariableState{kept, 1, 2, 3.0})), "");
    EXPECT_EQ(variable.m_strName.GetLength(), length);
  }
}

/// Behind some of the names before it the longest one begins at the last place of a full buffer.
TEST(EquationPlotRecord, LongNamesFollowOneAnotherAtEveryDistance) {
  for (int length = 960; length <= 1024; ++length) {
    SCOPED_TRACE(length);
    EquationState state;
    for (const int count : {1024, length, 1024, 1024, length, 1024}) {
      state.variables.push_back({CString(MQ_TEXT('n'), count), count, 2, 3.0});
    }
    EXPECT_EQ(ByteDifference(Written(PlotOf(state)), BuildRecord(state)), "");
  }
}

// --- without a stream, and before the first version ---

TEST(EquationVariableRecord, WithoutAStreamNothingHappens) {
  CmqEquationVariable variable = VariableOf(FilledVariable(1));
  for (const int version : {0, 890108, 890109, 890110, INT_MIN, INT_MAX}) {
    EXPECT_EQ(variable.WriteToStream(nullptr, version), 0) << version;
    EXPECT_EQ(variable.ReadFromStream(nullptr, version), 0) << version;
  }
  EXPECT_EQ(Differences(variable, FilledVariable(1)), "");
}

TEST(EquationPlotRecord, WithoutAStreamNothingHappens) {
  CmqEquationPlotParam plot = PlotOf(FilledEquation(1));
  for (const int version : {0, 890108, 890109, 890110, INT_MIN, INT_MAX}) {
    EXPECT_EQ(plot.WriteToStream(nullptr, version), 0) << version;
    EXPECT_EQ(plot.ReadFromStream(nullptr, version), 0) << version;
  }
  EXPECT_EQ(Differences(plot, FilledEquation(1)), "");
}

template <class Object, class State>
void CheckOldVersions(const State& stored, const State& held) {
  for (const int version : kVersionsBefore) {
    SCOPED_TRACE("version " + std::to_string(version));
    CountingStream stream(BuildRecord(stored));
    Object object;
    SetState(object, held);
    EXPECT_EQ(object.ReadFromStream(&stream, version), 0);
    EXPECT_EQ(Differences(object, held), "");
    EXPECT_EQ(stream.reads, 0);
    EXPECT_EQ(stream.Position(), 0U);
  }
}

TEST(EquationVariableRecord, AVersionBeforeTheFirstReadsNothing) {
  CheckOldVersions<CmqEquationVariable>(FilledVariable(1), VariableState());
  CheckOldVersions<CmqEquationVariable>(FilledVariable(1), FilledVariable(2));
}

TEST(EquationPlotRecord, AVersionBeforeTheFirstReadsNothing) {
  CheckOldVersions<CmqEquationPlotParam>(FilledEquation(1), EquationState());
  CheckOldVersions<CmqEquationPlotParam>(FilledEquation(1), FilledEquation(2));
}

// --- reading whole records ---

TEST(EquationVariableRecord, VersionsFromTheFirstReadEveryField) {
  for (const int version : kVersionsFrom) {
    // The bytes behind the record are the business of whoever reads on.
    ByteString bytes = BuildRecord(FilledVariable(1));
    const std::size_t length = bytes.size();
    bytes.resize(length + 100, std::byte{0x5A});
    CmqEquationVariable variable = VariableOf(FilledVariable(2));
    ReadInto(variable, bytes, length, version);
    EXPECT_EQ(Differences(variable, FilledVariable(1)), "") << "version " << version;
  }
}

TEST(EquationPlotRecord, VersionsFromTheFirstReadEveryFieldAndTheVariables) {
  for (const int version : kVersionsFrom) {
    ByteString bytes = BuildRecord(FilledEquation(1));
    const std::size_t length = bytes.size();
    bytes.resize(length + 100, std::byte{0x5A});
    CmqEquationPlotParam plot;
    ReadInto(plot, bytes, length, version);
    EquationState expected = FilledEquation(1);
    expected.displayEquation.Empty();
    EXPECT_EQ(Differences(plot, expected), "") << "version " << version;
  }
}

TEST(EquationPlotRecord, ReadVariablesAreAppendedToThoseThatAreHeld) {
  CmqEquationPlotParam plot = PlotOf(FilledEquation(2));
  std::vector<const CmqEquationVariable*> held;
  for (POSITION position = plot.m_listVariables.GetHeadPosition(); position != nullptr;) {
    held.push_back(plot.m_listVariables.GetNext(position));
  }
  ReadInto(plot, BuildRecord(FilledEquation(1, 12)));

  EquationState expected = FilledEquation(1, 0);
  expected.displayEquation = FilledEquation(2).displayEquation;
  Append(expected.variables, FilledEquation(2).variables);
  Append(expected.variables, FilledEquation(1, 12).variables);
  EXPECT_EQ(Differences(plot, expected), "");

  ASSERT_EQ(plot.m_listVariables.GetCount(), 15);
  // Those that were held are the very objects.
  POSITION position = plot.m_listVariables.GetHeadPosition();
  for (const CmqEquationVariable* variable : held) {
    EXPECT_EQ(plot.m_listVariables.GetNext(position), variable);
  }
}

TEST(EquationPlotRecord, ARecordThatIsReadTwiceAppendsItsVariablesTwice) {
  CmqEquationPlotParam plot;
  ReadInto(plot, BuildRecord(FilledEquation(1, 2)));
  ReadInto(plot, BuildRecord(FilledEquation(1, 2)));
  EquationState expected = FilledEquation(1, 2);
  expected.displayEquation.Empty();
  Append(expected.variables, FilledEquation(1, 2).variables);
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(EquationPlotRecord, RecordsAreWrittenAndReadOneBehindTheOther) {
  host::MemoryStream stream;
  EXPECT_EQ(PlotOf(FilledEquation(1)).WriteToStream(&stream, 890110), 1);
  const std::size_t border = stream.Position();
  EXPECT_EQ(border, BuildRecord(FilledEquation(1)).size());
  EXPECT_EQ(VariableOf(FilledVariable(5)).WriteToStream(&stream, 890110), 1);
  EXPECT_EQ(PlotOf(FilledEquation(2, 1)).WriteToStream(&stream, 890110), 1);

  stream.Rewind();
  CmqEquationPlotParam first;
  CmqEquationVariable variable;
  CmqEquationPlotParam second;
  EXPECT_EQ(first.ReadFromStream(&stream, 890110), 1);
  EXPECT_EQ(stream.Position(), border);
  EXPECT_EQ(variable.ReadFromStream(&stream, 890110), 1);
  EXPECT_EQ(second.ReadFromStream(&stream, 890110), 1);
  EXPECT_EQ(stream.Position(), stream.Bytes().size());
  EquationState expected = FilledEquation(2, 1);
  expected.displayEquation.Empty();
  EXPECT_EQ(Differences(second, expected), "");
  EXPECT_EQ(Differences(variable, FilledVariable(5)), "");
}

TEST(EquationPlotRecord, ExtremeNumbersComeBackBitForBit) {
  // clang-format off
  const EquationState state = {MQ_TEXT("e"), INT_MIN, {MQ_TEXT("f"), MQ_TEXT("g")}, {
    {MQ_TEXT("quiet NaN with a payload"), INT_MIN, INT_MAX, FromBits(0x7FF8'0000'0000'0001)},
    {MQ_TEXT("signalling NaN"),           INT_MAX, INT_MIN, FromBits(0x7FF0'0000'0000'0001)},
    {MQ_TEXT("negative NaN"),             0,       0,       FromBits(0xFFFF'FFFF'FFFF'FFFF)},
    {MQ_TEXT("-0.0"),                     -1,      -1,      -0.0},
    {MQ_TEXT("-infinity"),                1,       65536,   -std::numeric_limits<double>::infinity()},
    {MQ_TEXT("denormal"),                 256,     -65536,  FromBits(0x0000'0000'0000'0001)},
    {MQ_TEXT("greatest"),                 2,       9,       std::numeric_limits<double>::max()},
  }, {}};
  // clang-format on
  const ByteString bytes = Written(PlotOf(state));
  EXPECT_EQ(ByteDifference(bytes, BuildRecord(state)), "");
  CmqEquationPlotParam read;
  ReadInto(read, bytes);
  EXPECT_EQ(Differences(read, state), "");
}

TEST(EquationVariableRecord, AFilledVariableComesBackIntoANewAndAFilledOne) {
  for (const VariableState& held : {VariableState(), FilledVariable(3)}) {
    for (const VariableState& stored : {FilledVariable(1), VariableState(),
                                        VariableState{MQ_TEXT("n"), INT_MIN, INT_MAX, -0.0}}) {
      CmqEquationVariable variable = VariableOf(held);
      ReadInto(variable, Written(VariableOf(stored)));
      EXPECT_EQ(Differences(variable, stored), "");
    }
  }
}

// --- texts of the record ---

TEST(EquationPlotRecord, EmptyTextsOfTheRecordKeepThoseOfThePlot) {
  const EquationState stored = {{}, 5, {}, {{{}, 1, 3, 2.0}}, {}};
  CmqEquationPlotParam plot = PlotOf(FilledEquation(2, 0));
  ReadInto(plot, Written(PlotOf(stored)));
  EquationState expected = FilledEquation(2, 0);
  expected.coefficientsFlag = 5;
  expected.variables = {{MQ_TEXT("Variable"), 1, 3, 2.0}};  // a new variable's name
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(EquationVariableRecord, AnEmptyNameOfTheRecordKeepsTheHeldOne) {
  for (const int count : {0, -1, INT_MIN}) {
    CmqEquationVariable variable = VariableOf({MQ_TEXT("held"), 7, 8, 9.0});
    ReadInto(variable, RecordBytes().Integer(count).Integer(1).Integer(2).Double(3.0).Get());
    EXPECT_EQ(Differences(variable, {MQ_TEXT("held"), 1, 2, 3.0}), "") << "count " << count;
  }
}

TEST(EquationVariableRecord, AZeroUnitEndsTheNameAndAllItsUnitsAreConsumed) {
  struct Row {
    ByteString units;  // of a name of five units
    const mqChar* name;
  };
  const Row kRows[] = {
      {RecordBytes().Raw({'a', 0, 'b', 0, 0, 0, 'c', 0, 'd', 0}).Get(), MQ_TEXT("ab")},
      {RecordBytes().Raw({0, 0, 'b', 0, 'x', 0, 'c', 0, 'd', 0}).Get(), MQ_TEXT("")},
      {RecordBytes().Raw({'a', 0, 'b', 0, 'x', 0, 'c', 0, 0, 0}).Get(), MQ_TEXT("abxc")},
      {RecordBytes().Raw({0, 1, 0, 2, 'x', 0, 0, 0, 0, 3}).Get(), MQ_TEXT("\u0100\u0200x")},
  };
  for (const Row& row : kRows) {
    ByteString bytes = RecordBytes().Integer(5).Get();
    Append(bytes, row.units);
    Append(bytes, RecordBytes().Integer(1).Integer(2).Double(3.0).Get());
    CmqEquationVariable variable = VariableOf({MQ_TEXT("held"), 7, 8, 9.0});
    ReadInto(variable, bytes);
    EXPECT_EQ(Differences(variable, {row.name, 1, 2, 3.0}), "") << Hex(row.units);
  }
}

TEST(EquationPlotRecord, AZeroUnitEndsEachOfItsTexts) {
  const ByteString bytes = RecordBytes()
                               .Raw({3, 0, 0, 0, 'a', 0, 0, 0, 'c', 0})
                               .Raw({9, 0, 0, 0})
                               .Raw({2, 0, 0, 0, 0, 0, 'd', 0})
                               .Raw({2, 0, 0, 0, 'e', 0, 0, 0})
                               .Raw({0, 0, 0, 0})
                               .Get();
  CmqEquationPlotParam plot = PlotOf(FilledEquation(2, 1));
  ReadInto(plot, bytes);
  EquationState expected = FilledEquation(2, 1);
  expected.equation = MQ_TEXT("a");
  expected.coefficientsFlag = 9;
  expected.host3 = {CString(), CString(MQ_TEXT("e"))};
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(EquationVariableRecord, ANameOfMoreThan1024UnitsShiftsTheFieldsBehindIt) {
  const CString name(MQ_TEXT('x'), 1024);
  const ByteString bytes = RecordBytes()
                               .Integer(1026)
                               .Units(name.View())
                               .Raw({0x44, 0x33, 0x22, 0x11})  // the last two units of the name
                               .Integer(-2)
                               .Integer(1)
                               .Integer(2)
                               .Raw({0x55, 0x55, 0x55, 0x55})
                               .Get();
  CmqEquationVariable variable;
  ReadInto(variable, bytes, bytes.size() - 4);
  EXPECT_EQ(Differences(variable, {name, 0x11223344, -2, FromBits(0x0000'0002'0000'0001)}), "");
}

// --- the count of the variables ---

TEST(EquationPlotRecord, CountsBelowOneReadNoVariables) {
  for (const int count : {0, -1, -2, -65536, INT_MIN}) {
    ByteString bytes = PlotHead(count).Get();
    Append(bytes, BuildRecord(FilledVariable(1)));
    CmqEquationPlotParam plot = PlotOf(FilledEquation(2));
    ReadInto(plot, bytes, kPlotHeadBytes);
    EquationState expected = HeadState();
    expected.variables = FilledEquation(2).variables;
    expected.displayEquation = FilledEquation(2).displayEquation;
    EXPECT_EQ(Differences(plot, expected), "") << "count " << count;
  }
}

TEST(EquationPlotRecord, ACountOfOneReadsTheFirstVariable) {
  ByteString bytes = PlotHead(1).Get();
  Append(bytes, BuildRecord(FilledVariable(1)));
  const std::size_t consumed = bytes.size();
  Append(bytes, BuildRecord(FilledVariable(2)));
  CmqEquationPlotParam plot;
  ReadInto(plot, bytes, consumed);
  EquationState expected = HeadState();
  expected.variables = {FilledVariable(1)};
  EXPECT_EQ(Differences(plot, expected), "");
}

TEST(EquationPlotRecord, VariablesThatTheStreamDoesNotHaveHaveTheirDefaults) {
  ByteString bytes = PlotHead(3).Get();
  Append(bytes, BuildRecord(FilledVariable(1)));
  CmqEquationPlotParam plot;
  ReadInto(plot, bytes);
  EquationState expected = HeadState();
  expected.variables = {
      FilledVariable(1), {MQ_TEXT("Variable"), 2, 9, 1.0}, {MQ_TEXT("Variable"), 2, 9, 1.0}};
  EXPECT_EQ(Differences(plot, expected), "");
}

// No time is taken here: a reader stops at a fixed number of variables whatever a damaged count
// claims, so that its work and its memory are bounded by construction.
TEST(EquationPlotRecord, AClaimedCountStopsAtTheMaximum) {
  struct Row {
    int count;
    int read;
  };
  // clang-format off
  constexpr Row kRows[] = {
    // count     read
    {  65535,   65535},
    {  65536,   65536},
    {  65537,   65536},
    { 1 << 20,  65536},
    { 1 << 30,  65536},
    { INT_MAX,  65536},
  };
  // clang-format on
  for (const Row& row : kRows) {
    CmqEquationPlotParam plot;
    ReadInto(plot, PlotHead(row.count).Get());
    EquationState expected = HeadState();
    expected.variables.resize(static_cast<std::size_t>(row.read));
    EXPECT_EQ(Differences(plot, expected), "") << "count " << row.count;
  }
}

TEST(EquationPlotRecord, HeldVariablesDoNotCountTowardsTheMaximum) {
  CmqEquationPlotParam plot = PlotOf(FilledEquation(2, 3));
  ReadInto(plot, PlotHead(INT_MAX).Get());
  ASSERT_EQ(plot.m_listVariables.GetCount(), 3 + kMaximumVariables);
  EXPECT_EQ(Differences(StateOf(*plot.m_listVariables.GetHead()), FilledVariable(20)), "");
  EXPECT_EQ(Differences(StateOf(*plot.m_listVariables.GetTail()), VariableState()), "");
}

/// More variables than a reader takes: their components count up, their names are empty.
EquationState TooManyVariables() {
  EquationState state = HeadState();
  for (int place = 0; place < kMaximumVariables + 1; ++place) {
    state.variables.push_back({{}, 1, place, 0.5});
  }
  return state;
}

TEST(EquationPlotRecord, VariablesBeyondTheMaximumAreWrittenAndLeftInTheStream) {
  constexpr std::size_t kVariableBytes = 20;
  const EquationState state = TooManyVariables();
  const ByteString bytes = Written(PlotOf(state));
  ASSERT_EQ(bytes.size(), kPlotHeadBytes + 65537U * kVariableBytes);
  EXPECT_EQ(ByteDifference(bytes, BuildRecord(state)), "");

  CmqEquationPlotParam read;
  ReadInto(read, bytes, kPlotHeadBytes + 65536U * kVariableBytes);
  ASSERT_EQ(read.m_listVariables.GetCount(), 65536);
  EXPECT_EQ(Differences(*read.m_listVariables.GetHead(), {MQ_TEXT("Variable"), 1, 0, 0.5}), "");
  EXPECT_EQ(Differences(*read.m_listVariables.GetTail(), {MQ_TEXT("Variable"), 1, 65535, 0.5}), "");
}

// --- streams that end early ---

TEST(EquationVariableRecord, AVariableThatEndsAtAnyByteKeepsWhatWasNotDelivered) {
  struct Row {
    std::size_t delivered;
    const mqChar* name;
    unsigned resultType;
    unsigned component;
    std::uint64_t coefficient;
  };
  const ByteString bytes = RecordBytes()
                               .Raw({2, 0, 0, 0, 'a', 0, 0x2D, 0x4E})
                               .Raw({0x44, 0x33, 0x22, 0x11})
                               .Raw({0x88, 0x77, 0x66, 0x55})
                               .Raw({0xEF, 0xCD, 0xAB, 0x89, 0x67, 0x45, 0x23, 0x01})
                               .Get();
  // A count that arrived is the count of a text, whatever there is of its units. The half of a unit
  // is its low byte.
  // clang-format off
  constexpr Row kRows[] = {
    // bytes  name               result type  component   coefficient
    {      0, MQ_TEXT("held"),    0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      1, MQ_TEXT(""),        0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      2, MQ_TEXT(""),        0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      3, MQ_TEXT(""),        0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      4, MQ_TEXT(""),        0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      5, MQ_TEXT("a"),       0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      6, MQ_TEXT("a"),       0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      7, MQ_TEXT("a-"),      0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      8, MQ_TEXT("a\u4E2D"), 0x0A0B0C0D, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {      9, MQ_TEXT("a\u4E2D"), 0x0A0B0C44, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {     10, MQ_TEXT("a\u4E2D"), 0x0A0B3344, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {     11, MQ_TEXT("a\u4E2D"), 0x0A223344, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {     12, MQ_TEXT("a\u4E2D"), 0x11223344, 0xFFEEDDCC, 0xF0E0'D0C0'B0A0'9080},
    {     13, MQ_TEXT("a\u4E2D"), 0x11223344, 0xFFEEDD88, 0xF0E0'D0C0'B0A0'9080},
    {     14, MQ_TEXT("a\u4E2D"), 0x11223344, 0xFFEE7788, 0xF0E0'D0C0'B0A0'9080},
    {     15, MQ_TEXT("a\u4E2D"), 0x11223344, 0xFF667788, 0xF0E0'D0C0'B0A0'9080},
    {     16, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D0C0'B0A0'9080},
    {     17, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D0C0'B0A0'90EF},
    {     18, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D0C0'B0A0'CDEF},
    {     19, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D0C0'B0AB'CDEF},
    {     20, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D0C0'89AB'CDEF},
    {     21, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'D067'89AB'CDEF},
    {     22, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF0E0'4567'89AB'CDEF},
    {     23, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0xF023'4567'89AB'CDEF},
    {     24, MQ_TEXT("a\u4E2D"), 0x11223344, 0x55667788, 0x0123'4567'89AB'CDEF},
  };
  // clang-format on
  ASSERT_EQ(bytes.size() + 1, std::size(kRows));
  for (const Row& row : kRows) {
    CmqEquationVariable variable =
        VariableOf({MQ_TEXT("held"), 0x0A0B0C0D, static_cast<int>(0xFFEEDDCC),
                    FromBits(0xF0E0'D0C0'B0A0'9080)});
    ReadInto(variable, FirstBytes(bytes, row.delivered));
    EXPECT_EQ(Differences(variable, {row.name, static_cast<int>(row.resultType),
                                     static_cast<int>(row.component), FromBits(row.coefficient)}),
              "")
        << "after " << row.delivered << " bytes";
  }
}

TEST(EquationPlotRecord, ACutCountHasZerosInItsMissingBytes) {
  struct Row {
    std::size_t delivered;  // of the count's bytes
    int variables;
  };
  // clang-format off
  constexpr Row kRows[] = {
    {0, 0},
    {1, 0x02},
    {2, 0x0102},
    {3, 0x0102},
    {4, 0},       // the last byte makes it negative
  };
  // clang-format on
  const ByteString bytes = PlotHead(static_cast<int>(0x80000102)).Get();
  for (const Row& row : kRows) {
    CmqEquationPlotParam plot = PlotOf(FilledEquation(2, 1));
    ReadInto(plot, FirstBytes(bytes, kPlotHeadBytes - 4 + row.delivered));
    EquationState expected = HeadState();
    expected.displayEquation = FilledEquation(2).displayEquation;
    expected.variables = FilledEquation(2, 1).variables;
    expected.variables.resize(1 + static_cast<std::size_t>(row.variables));
    EXPECT_EQ(Differences(plot, expected), "") << "after " << row.delivered << " bytes";
  }
}

/// The reader as a model that walks the layout over the bytes that there are: every number is laid
/// over what was held.
class ModelReader {
 public:
  explicit ModelReader(const ByteString& bytes) : m_bytes(bytes) {}

  void Read(EquationState& plot) {
    Take(plot.equation);
    Take(plot.coefficientsFlag);
    Take(plot.host3[0]);
    Take(plot.host3[1]);
    int count = 0;
    Take(count);
    for (int place = 0; place < std::min(count, kMaximumVariables); ++place) {
      Read(plot.variables.emplace_back());
    }
  }
  void Read(VariableState& variable) {
    Take(variable.name);
    Take(variable.resultType);
    Take(variable.component);
    Take(variable.coefficient);
  }

 private:
  void Take(int& value) { value = static_cast<int>(LayOver(static_cast<std::uint32_t>(value), 4)); }
  void Take(double& value) { value = FromBits(LayOver(std::bit_cast<std::uint64_t>(value), 8)); }
  void Take(CString& text) {
    const int count = static_cast<int>(static_cast<std::uint32_t>(LayOver(0, 4)));
    if (count < 1) {
      return;
    }
    std::array<unsigned, 2048> bytes{};
    const std::size_t delivered = Deliver(2 * static_cast<std::size_t>(std::min(count, 1024)));
    for (std::size_t byte = 0; byte < delivered; ++byte) {
      bytes[byte] = std::to_integer<unsigned>(m_bytes[m_position++]);
    }
    text.Empty();
    for (std::size_t byte = 0; byte < delivered; byte += 2) {
      const auto unit = static_cast<mqChar>(bytes[byte] | bytes[byte + 1] << 8);
      if (unit == 0) {
        return;
      }
      text += unit;
    }
  }

  /// How many bytes there are of those that are asked for.
  [[nodiscard]] std::size_t Deliver(std::size_t asked) const {
    return std::min(asked, m_bytes.size() - m_position);
  }
  std::uint64_t LayOver(std::uint64_t bits, std::size_t width) {
    const std::size_t delivered = Deliver(width);
    for (std::size_t byte = 0; byte < delivered; ++byte) {
      bits &= ~(std::uint64_t{0xFF} << (8 * byte));
      bits |= std::to_integer<std::uint64_t>(m_bytes[m_position++]) << (8 * byte);
    }
    return bits;
  }

  const ByteString& m_bytes;
  std::size_t m_position = 0;
};

template <class State>
State Expect(const State& held, const ByteString& bytes) {
  State state = held;
  ModelReader(bytes).Read(state);
  return state;
}

/// Texts of few units, so that every byte and every bit can be gone through.
EquationState ShortTexts() {
  return {MQ_TEXT("\"a\"/\"\u4E2D\""),
          0x01020304,
          {MQ_TEXT("\u0100"), MQ_TEXT("xy")},
          {{MQ_TEXT("\"a\""), 2, 9, 1.0}, {MQ_TEXT("\"\u4E2D\""), 1, 3, -0.125}},
          {}};
}

TEST(EquationPlotRecord, AStreamThatEndsAtAnyByteLeavesWhatItDidNotDeliver) {
  const ByteString bytes = BuildRecord(ShortTexts());
  ASSERT_EQ(bytes.size(), 92U);
  for (const EquationState& held : {EquationState(), FilledEquation(2)}) {
    for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
      SCOPED_TRACE("cut at byte " + std::to_string(cut));
      const ByteString delivered = FirstBytes(bytes, cut);
      CmqEquationPlotParam plot = PlotOf(held);
      ReadInto(plot, delivered);
      EXPECT_EQ(Differences(plot, Expect(held, delivered)), "");
    }
  }
}

TEST(EquationPlotRecord, TheDeclaredVariablesExistWhereverTheStreamEndsBehindTheCount) {
  const ByteString bytes = BuildRecord(ShortTexts());
  constexpr std::size_t kFirstVariable = 40;
  constexpr std::size_t kSecondVariable = 66;
  for (std::size_t cut = kFirstVariable; cut <= bytes.size(); ++cut) {
    SCOPED_TRACE("cut at byte " + std::to_string(cut));
    CmqEquationPlotParam plot;
    ReadInto(plot, FirstBytes(bytes, cut));
    ASSERT_EQ(plot.m_listVariables.GetCount(), 2);
    if (cut <= kSecondVariable) {
      EXPECT_EQ(Differences(*plot.m_listVariables.GetTail(), {MQ_TEXT("Variable"), 2, 9, 1.0}), "");
    }
  }
}

// --- streams that fail ---

TEST(EquationVariableRecord, RefusedReadsLeaveTheVariableAsItWas) {
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    RefusingStream stream(result);
    CmqEquationVariable variable = VariableOf(FilledVariable(1));
    EXPECT_EQ(variable.ReadFromStream(&stream, 890110), 1);
    EXPECT_EQ(Differences(variable, FilledVariable(1)), "") << result;
  }
}

TEST(EquationPlotRecord, RefusedReadsLeaveThePlotAsItWas) {
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    RefusingStream stream(result);
    CmqEquationPlotParam plot = PlotOf(FilledEquation(1));
    EXPECT_EQ(plot.ReadFromStream(&stream, 890110), 1);
    EXPECT_EQ(Differences(plot, FilledEquation(1)), "") << result;
  }
}

// How many calls a record takes is the library's business. Whatever was read in whole calls stands,
// and nothing else is touched.
template <class Object, class State>
void CheckFailingReads(const State& stored, const State& held) {
  bool isWornOut = true;
  for (int successes = 0; isWornOut; ++successes) {
    SCOPED_TRACE("after " + std::to_string(successes) + " calls");
    WearyStream stream(BuildRecord(stored), successes);
    Object object;
    SetState(object, held);
    ASSERT_EQ(object.ReadFromStream(&stream, 890110), 1);

    const ByteString delivered = FirstBytes(stream.Bytes(), stream.Position());
    ASSERT_EQ(Differences(object, Expect(held, delivered)), "");
    isWornOut = stream.IsWornOut();
    ASSERT_EQ(isWornOut, stream.Position() < stream.Bytes().size());
  }
}

TEST(EquationVariableRecord, ReadsThatFailFromSomeCallOnAreSurvived) {
  CheckFailingReads<CmqEquationVariable>(FilledVariable(1), VariableState());
  CheckFailingReads<CmqEquationVariable>(FilledVariable(1), FilledVariable(2));
}

TEST(EquationPlotRecord, ReadsThatFailFromSomeCallOnAreSurvived) {
  CheckFailingReads<CmqEquationPlotParam>(FilledEquation(1), EquationState());
  CheckFailingReads<CmqEquationPlotParam>(FilledEquation(1), FilledEquation(2));
}

TEST(EquationPlotRecord, ShortReadsThatClaimSuccessAreSurvived) {
  for (const ULONG limit : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 9U, 15U}) {
    SCOPED_TRACE("at most " + std::to_string(limit) + " bytes");
    GrudgingStream stream(BuildRecord(FilledEquation(1)), limit);
    CmqEquationPlotParam plot = PlotOf(FilledEquation(2));
    EXPECT_EQ(plot.ReadFromStream(&stream, 890110), 1);

    // The fields may have anything; what no stream reaches stays as it was.
    EquationState read = StateOf(plot);
    EXPECT_EQ(read.displayEquation, FilledEquation(2).displayEquation);
    ASSERT_GE(read.variables.size(), 3U);
    EXPECT_LE(read.variables.size(), 3U + 65536U);
    read.variables.resize(3);
    EquationState held = FilledEquation(2);
    held.equation = read.equation;
    held.coefficientsFlag = read.coefficientsFlag;
    held.host3 = read.host3;
    EXPECT_EQ(Differences(read, held), "");
    if (limit == 0) {
      EXPECT_EQ(Differences(plot, FilledEquation(2)), "");
    }
  }
}

TEST(EquationVariableRecord, ReadsThatDeliverNothingAndClaimSuccessAreSurvived) {
  GrudgingStream nothing(BuildRecord(FilledVariable(1)), 0);
  CmqEquationVariable variable = VariableOf(FilledVariable(2));
  EXPECT_EQ(variable.ReadFromStream(&nothing, 890110), 1);
  EXPECT_EQ(Differences(variable, FilledVariable(2)), "");
}

template <class Object, class State>
void CheckFailingWrites(const State& state) {
  Object object;
  SetState(object, state);
  const ByteString bytes = BuildRecord(state);
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    RefusingStream refusing(result);
    EXPECT_EQ(object.WriteToStream(&refusing, 890110), 1) << result;
    EXPECT_TRUE(refusing.Bytes().empty());
  }
  for (const ULONG limit : {0U, 1U, 3U, 5U}) {
    GrudgingStream grudging({}, limit);
    EXPECT_EQ(object.WriteToStream(&grudging, 890110), 1) << limit;
  }
  bool isWornOut = true;
  for (int successes = 0; isWornOut; ++successes) {
    WearyStream weary({}, successes);
    ASSERT_EQ(object.WriteToStream(&weary, 890110), 1) << successes;
    isWornOut = weary.IsWornOut();
    // Nothing is written again, nothing out of order.
    const std::size_t written = weary.Bytes().size();
    ASSERT_LE(written, bytes.size());
    ASSERT_EQ(ByteDifference(weary.Bytes(), FirstBytes(bytes, written)), "") << successes;
    ASSERT_EQ(isWornOut, written < bytes.size()) << successes;
  }
  EXPECT_EQ(Differences(object, state), "");
}

TEST(EquationVariableRecord, RefusedShortAndFailingWritesAreNotLookedAt) {
  CheckFailingWrites<CmqEquationVariable>(FilledVariable(1));
}

TEST(EquationPlotRecord, RefusedShortAndFailingWritesAreNotLookedAt) {
  CheckFailingWrites<CmqEquationPlotParam>(FilledEquation(1));
}

template <class Object>
void CheckThatTransfersAreNotAskedFor(Object& object) {
  CountingStream stream;
  EXPECT_EQ(object.WriteToStream(&stream, 890110), 1);
  stream.Rewind();
  EXPECT_EQ(object.ReadFromStream(&stream, 890110), 1);
  EXPECT_GT(stream.reads, 0);
  EXPECT_GT(stream.writes, 0);
  EXPECT_EQ(stream.counted, 0);
}

TEST(EquationPlotRecord, TheNumberOfTransferredBytesIsNotAskedFor) {
  CmqEquationPlotParam plot = PlotOf(FilledEquation(1));
  CheckThatTransfersAreNotAskedFor(plot);
  CmqEquationVariable variable;
  CheckThatTransfersAreNotAskedFor(variable);
}

// --- damaged records ---

/// What comes back of a plot that is written and read into a new one. An empty name does not: a
/// damaged record may claim units that begin with a zero, and the new variable keeps its own name.
EquationState ComesBackAs(EquationState state) {
  for (VariableState& variable : state.variables) {
    if (variable.name.IsEmpty()) {
      variable.name = MQ_TEXT("Variable");
    }
  }
  return state;
}

TEST(EquationPlotRecord, AnyFlippedBitIsReadAndWhatWasReadComesBack) {
  const ByteString good = BuildRecord(ShortTexts());
  for (std::size_t bit = 0; bit < 8 * good.size(); ++bit) {
    SCOPED_TRACE("byte " + std::to_string(bit / 8) + ", bit " + std::to_string(bit % 8));
    ByteString bytes = good;
    bytes[bit / 8] ^= static_cast<std::byte>(1U << bit % 8);
    host::MemoryStream stream(bytes);
    CmqEquationPlotParam plot;
    ASSERT_EQ(plot.ReadFromStream(&stream, 890110), 1);
    const EquationState read = StateOf(plot);
    ASSERT_EQ(Differences(read, Expect(EquationState(), bytes)), "");

    host::MemoryStream copy(Written(plot));
    CmqEquationPlotParam again;
    ASSERT_EQ(again.ReadFromStream(&copy, 890110), 1);
    ASSERT_EQ(copy.Position(), copy.Bytes().size());
    ASSERT_EQ(Differences(again, ComesBackAs(read)), "");
  }
}

// --- the document ---

constexpr const char* kDocument = "study_890110.cfb";
constexpr const char* kStream = "Plots/EquationPlot1";

host::CompoundDocument StudyDocument() {
  return host::CompoundDocument(std::filesystem::path(MQ_DOCUMENTS_FOLDER) / kDocument);
}

EquationState DocumentPlot() {
  return {.equation = MQ_TEXT("(\"Variable0\"+2*\"Variable1\")/3"),
          .coefficientsFlag = 1,
          .host3 = {MQ_TEXT("Equation \u03B1"), MQ_TEXT("kept text")},
          .variables = {{MQ_TEXT("\"Variable0\""), 2, 9, 1.0},
                        {MQ_TEXT("\"Variable1\""), 1, 3, -0.125}},
          .displayEquation = {}};
}

CString Text(const nlohmann::json& value) {
  CString text;
  CharToCString(value.get<std::string>().c_str(), text);
  return text;
}

TEST(EquationDocument, TheDescriptionSaysWhatWasStored) {
  std::ifstream file(std::filesystem::path(MQ_DOCUMENTS_FOLDER) / "study_890110.json");
  const nlohmann::json document = nlohmann::json::parse(file);
  const nlohmann::json* record = nullptr;
  for (const nlohmann::json& candidate : document.at("records")) {
    if (candidate.at("stream") == kStream) {
      record = &candidate;
    }
  }
  ASSERT_NE(record, nullptr);
  EXPECT_EQ(record->at("kind"), "equation plot");
  EXPECT_EQ(record->at("length"), 200);

  const nlohmann::json& values = record->at("values");
  EXPECT_EQ(values.size(), 5U);
  EquationState described = {
      .equation = Text(values.at("equation")),
      .coefficientsFlag = values.at("coefficients flag").get<int>(),
      .host3 = {Text(values.at("first string")), Text(values.at("second string"))},
      .variables = {},
      .displayEquation = {}};
  for (const nlohmann::json& variable : values.at("variables")) {
    EXPECT_EQ(variable.size(), 4U);
    described.variables.push_back({Text(variable.at("name")), variable.at("result type").get<int>(),
                                   variable.at("component").get<int>(),
                                   variable.at("coefficient").get<double>()});
  }
  EXPECT_EQ(Differences(described, DocumentPlot()), "");
}

TEST(EquationDocument, TheStreamIsReadInPlace) {
  const host::CompoundDocument document = StudyDocument();
  const host::DocumentStream stream = document.OpenStream(kStream);
  CmqEquationPlotParam plot;
  EXPECT_EQ(plot.ReadFromStream(stream.get(), 890110), 1);
  EXPECT_EQ(Differences(plot, DocumentPlot()), "");
}

TEST(EquationDocument, TheSameBytesAreWrittenAgain) {
  const ByteString bytes = StudyDocument().ReadStream(kStream);
  ASSERT_EQ(bytes.size(), 200U);
  EXPECT_EQ(ByteDifference(bytes, BuildRecord(DocumentPlot())), "");
  CmqEquationPlotParam plot;
  ReadInto(plot, bytes);
  EXPECT_EQ(Differences(plot, DocumentPlot()), "");
  plot.PrepareEquationToDisplay(0, 0, 0, 0);
  EXPECT_FALSE(plot.m_strDisplayEquation.IsEmpty());
  EXPECT_EQ(ByteDifference(Written(plot), bytes), "");
}

TEST(EquationDocument, ThePlotIsShownInEnglishAndInGerman) {
  CmqEquationPlotParam plot;
  ReadInto(plot, StudyDocument().ReadStream(kStream));
  EquationState expected = DocumentPlot();

  plot.PrepareEquationToDisplay(0, 0, 0, 0);  // a static study, a solid mesh
  expected.displayEquation =
      MQ_TEXT("(\"SEQ: equivalent stress\"+2*\"DMAG: displacement magnitude\")/3");
  EXPECT_EQ(Differences(plot, expected), "");

  {
    const ReplacedTexts builtInAfterwards;
    const host::TranslationReport report =
        host::LoadTranslations(std::filesystem::path(MQ_TRANSLATIONS_FOLDER) / "de.mo");
    ASSERT_EQ(report.error, "");
    plot.PrepareEquationToDisplay(0, 0, 0, 0);
    expected.displayEquation =
        MQ_TEXT("(\"SEQ: Vergleichsspannung\"+2*\"DMAG: Betrag der Verschiebung\")/3");
    EXPECT_EQ(Differences(plot, expected), "");
  }

  plot.PrepareEquationToDisplay(0, 0, 0, 0);
  expected.displayEquation =
      MQ_TEXT("(\"SEQ: equivalent stress\"+2*\"DMAG: displacement magnitude\")/3");
  EXPECT_EQ(Differences(plot, expected), "");
}

}  // namespace
}  // namespace mqp::test
