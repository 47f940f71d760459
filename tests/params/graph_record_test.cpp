#include <algorithm>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/stream/record_field.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// Every version that added something or changed the meaning of something.
constexpr int kGates[] = {800018, 800026, 800062, 820022, 840028,
                          870002, 890002, 890005, 890109, 890110};

struct SizeRow {
  int version;
  std::size_t bytes;  // of a record whose strings are empty
};

// clang-format off
constexpr SizeRow kSizes[] = {
  // version  bytes
  {   800018,   168},
  {   800019,   168},
  {   800025,   168},
  {   800026,   304},
  {   800027,   304},
  {   800061,   304},
  {   800062,   316},
  {   800063,   316},
  {   820021,   316},
  {   820022,   344},
  {   820023,   344},
  {   840027,   344},
  {   840028,   348},
  {   840029,   348},
  {   870001,   348},
  {   870002,   356},
  {   870003,   356},
  {   890001,   356},
  {   890002,   356},
  {   890003,   356},
  {   890004,   356},
  {   890005,   388},
  {   890006,   388},
  {   890108,   388},
  {   890109,   388},
  {   890110,   392},
  {   890111,   392},
  {  INT_MAX,   392},
};
// clang-format on

std::string Trace(int version) {
  return "version " + std::to_string(version);
}

// --- the layout ---

TEST(GraphRecord, TheListOfFieldsTellsTheLayout) {
  struct Row {
    std::string_view name;
    FieldType type;
    int count;
    int since;
  };
  constexpr FieldType kInteger = FieldType::Integer;
  constexpr FieldType kDouble = FieldType::Double;
  constexpr FieldType kString = FieldType::String;
  // clang-format off
  constexpr Row kRows[] = {
    {"analysis type",                                   kInteger,  1, 800018},
    {"result type",                                     kInteger,  1, 800018},
    {"integer after the result type",                   kInteger,  1, 800018},
    {"result option",                                   kInteger,  1, 800018},
    {"five integers after the result option",           kInteger,  5, 800018},
    {"X axis quantity type",                            kInteger,  1, 800018},
    {"X axis component",                                kInteger,  1, 800018},
    {"X axis unit",                                     kInteger,  1, 800018},
    {"X axis sensor",                                   kInteger,  1, 870002},
    {"Y axis quantity type",                            kInteger,  1, 800018},
    {"Y axis component",                                kInteger,  1, 800018},
    {"Y axis unit",                                     kInteger,  1, 800018},
    {"Y axis transient sensor",                         kInteger,  1, 870002},
    {"three strings",                                   kString,   3, 800018},
    {"six integers",                                    kInteger,  6, 800018},
    {"eighteen integers",                               kInteger, 18, 800018},
    {"integer before the fourth string",                kInteger,  1, 800026},
    {"fourth string",                                   kString,   1, 800026},
    {"view matrix",                                     kDouble,  16, 800026},
    {"three integers after the view matrix",            kInteger,  3, 800062},
    {"integer before the two doubles",                  kInteger,  1, 820022},
    {"two doubles",                                     kDouble,   2, 820022},
    {"integer after the two doubles",                   kInteger,  1, 820022},
    {"Y unit flag",                                     kInteger,  1, 820022},
    {"integer after the Y unit flag",                   kInteger,  1, 840028},
    {"frequency response flag",                         kInteger,  1, 890005},
    {"frequency response mode",                         kInteger,  1, 890005},
    {"four integers after the frequency response mode", kInteger,  4, 890005},
    {"double after the four integers",                  kDouble,   1, 890005},
    {"last integer",                                    kInteger,  1, 890110},
  };
  // clang-format on
  const std::vector<RecordField> fields = CmqPostGraphParam::GetRecordFields();
  ASSERT_EQ(fields.size(), std::size(kRows));
  for (std::size_t position = 0; position < fields.size(); ++position) {
    const RecordField& field = fields[position];
    const Row& row = kRows[position];
    SCOPED_TRACE("field " + std::to_string(position) + ": " + std::string(row.name));
    EXPECT_EQ(field.name, row.name);
    EXPECT_EQ(field.type, row.type);
    EXPECT_EQ(field.count, row.count);
    EXPECT_EQ(field.since, row.since);
  }
  EXPECT_EQ(kNewestRecordVersion, 890110);
}

TEST(GraphRecord, TheHandLaidRecordsHaveTheSizesOfTheLayout) {
  const CmqPostGraphParam graph;
  for (const SizeRow& row : kSizes) {
    EXPECT_EQ(BuildRecord(graph, row.version).size(), row.bytes) << Trace(row.version);
  }
}

// --- writing ---

TEST(GraphRecord, ANewGraphIsWrittenByteForByte) {
  RecordBytes expected;
  expected.Integer(5).Integer(2).Integer(1).Integer(0);  // analysis and result type ...
  expected.Integer(0).Integer(0).Integer(1).Integer(0).Integer(0);
  expected.Integer(14).Integer(0).Integer(0).Integer(-1);  // X axis
  expected.Integer(2).Integer(9).Integer(0).Integer(-1);   // Y axis
  expected.Integer(0).Integer(0).Integer(0);               // three empty strings
  for (int count = 0; count < 6; ++count) {
    expected.Integer(-1);
  }
  for (int count = 0; count < 18; ++count) {
    expected.Integer(0);
  }
  expected.Integer(-1).Integer(0);
  for (const double value : {1., 0., 0., 0., 0., 1., 0., 0., 0., 0., 1., 0., 0., 0., 0., 1.}) {
    expected.Double(value);
  }
  expected.Integer(1).Integer(0).Integer(0);
  expected.Integer(1).Double(0.0).Double(0.0).Integer(1).Integer(1);
  expected.Integer(0);
  expected.Integer(0).Integer(-1).Integer(0).Integer(0).Integer(0).Integer(0).Double(0.0);
  expected.Integer(0);

  const CmqPostGraphParam graph;
  host::MemoryStream stream;
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  EXPECT_EQ(Hex(stream.Bytes()), Hex(expected.Get()));
  EXPECT_EQ(stream.Bytes().size(), 392U);
}

TEST(GraphRecord, AFilledGraphIsWrittenInTheNewestLayoutAndStaysAsItIs) {
  const CmqPostGraphParam graph = FilledGraph(1);
  host::MemoryStream stream;
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  EXPECT_EQ(ByteDifference(stream.Bytes(), BuildRecord(graph, 890110)), "");
  EXPECT_EQ(Differences(graph, FilledGraph(1)), "");
}

TEST(GraphRecord, TheLengthOfTheRecordGrowsByTwoBytesAUnit) {
  CmqPostGraphParam graph;
  graph.m_strHost18[0] = MQ_TEXT("Graph 1");
  graph.m_strHost18[1] = MQ_TEXT("Reaction \u03A3F, Y");
  graph.m_strHost20 = MQ_TEXT("Ansicht \u00DCbersicht");
  graph.m_strHost36 = MQ_TEXT("is not persisted");
  host::MemoryStream stream;
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  EXPECT_EQ(stream.Bytes().size(), 468U);
}

TEST(GraphRecord, LongStringsAreCutInTheRecord) {
  CmqPostGraphParam graph;
  graph.m_strHost18[2] = CString(MQ_TEXT('x'), 1025);
  graph.m_strHost20 = CString(MQ_TEXT('y'), 70000);
  CmqPostGraphParam kept;
  kept.m_strHost18[2] = CString(MQ_TEXT('x'), 1024);
  kept.m_strHost20 = CString(MQ_TEXT('y'), 1024);
  host::MemoryStream stream;
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  EXPECT_EQ(ByteDifference(stream.Bytes(), BuildRecord(kept, 890110)), "");
  EXPECT_EQ(graph.m_strHost20.GetLength(), 70000);
}

TEST(GraphRecord, SpecialDoublesKeepTheirBits) {
  CmqPostGraphParam graph;
  const std::uint64_t bits[] = {0x7FF8'0000'0000'0001, 0xFFF0'0000'0000'0000, 0x8000'0000'0000'0000,
                                0x0000'0000'0000'0001, 0x7FEF'FFFF'FFFF'FFFF};
  for (int column = 0; column < 4; ++column) {
    graph.m_ViewMatrix[1][column] = std::bit_cast<double>(bits[column]);
  }
  graph.m_dHost35 = std::bit_cast<double>(bits[4]);
  host::MemoryStream stream;
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  EXPECT_EQ(ByteDifference(stream.Bytes(), BuildRecord(graph, 890110)), "");

  stream.Rewind();
  CmqPostGraphParam read = FilledGraph(2);
  CmqPostGraphParam expected = graph;
  EXPECT_EQ(read.ReadFromStream(&stream, 890110), 1);
  for (int column = 0; column < 4; ++column) {
    EXPECT_TRUE(IsSame(read.m_ViewMatrix[1][column], expected.m_ViewMatrix[1][column])) << column;
  }
  EXPECT_TRUE(IsSame(read.m_dHost35, expected.m_dHost35));
}

TEST(GraphRecord, RecordsAreWrittenAndReadOneBehindTheOther) {
  host::MemoryStream stream;
  const CmqPostGraphParam one = FilledGraph(1);
  const CmqPostGraphParam two = FilledGraph(2);
  EXPECT_EQ(one.WriteToStream(&stream), 1);
  const std::size_t border = stream.Position();
  EXPECT_EQ(two.WriteToStream(&stream), 1);
  EXPECT_EQ(border, BuildRecord(one, 890110).size());
  EXPECT_EQ(stream.Bytes().size(), border + BuildRecord(two, 890110).size());

  stream.Rewind();
  CmqPostGraphParam read;
  EXPECT_EQ(read.ReadFromStream(&stream, 890110), 1);
  EXPECT_EQ(stream.Position(), border);
  EXPECT_EQ(read.m_nHost39, one.m_nHost39);
  EXPECT_EQ(read.ReadFromStream(&stream, 890110), 1);
  EXPECT_EQ(stream.Position(), stream.Bytes().size());
  EXPECT_EQ(read.m_nHost39, two.m_nHost39);
}

// --- reading: what a reader of the text leaves behind ---

/// What is assumed of a number of which a stream delivers the first bytes alone.
enum class CutNumber {
  StaysAsItWas,
  TakesTheDeliveredBytes,
};

/// The reader as a model: it walks the hand-typed layout over the bytes that there are.
class ModelReader {
 public:
  ModelReader(const ByteString& bytes, CutNumber cut) : m_bytes(bytes), m_cut(cut) {}

  void Read(CmqPostGraphParam& graph, int version) {
    for (const auto& slot : RecordSlots(graph)) {
      if (version < slot.since) {
        continue;
      }
      std::visit([this](auto* value) { Take(*value); }, slot.value);
      if (std::holds_alternative<int*>(slot.value) &&
          std::get<int*>(slot.value) == &graph.m_nYUnitFlag) {
        CorrectYUnitFlag(graph);
      }
    }
    if (version < 890002) {
      CorrectStressComponent(graph.m_XAxis);
      CorrectStressComponent(graph.m_YAxis);
    }
  }

 private:
  void Take(int& value) { TakeNumber<std::uint32_t>(value); }
  void Take(double& value) { TakeNumber<std::uint64_t>(value); }
  void Take(CString& text) {
    // The count starts at zero for every string, so that its delivered bytes always count.
    std::int32_t count = 0;
    LayOver<std::uint32_t>(count);
    if (count < 1) {
      return;
    }
    CString delivered;
    bool isEnded = false;
    for (int unit = 0; unit < std::min(count, 1024); ++unit) {
      std::uint16_t value = 0;
      LayOver<std::uint16_t>(value);
      isEnded = isEnded || value == 0;
      if (!isEnded) {
        delivered += static_cast<mqChar>(value);
      }
    }
    text = delivered;
  }

  template <class Bits, class Value>
  void TakeNumber(Value& value) {
    const Value held = value;
    if (LayOver<Bits>(value) < sizeof(Bits) && m_cut == CutNumber::StaysAsItWas) {
      value = held;
    }
  }

  /// Lays the delivered bytes of a number over it, lowest first, and returns how many there were.
  template <class Bits, class Value>
  std::size_t LayOver(Value& value) {
    const std::size_t delivered = std::min(sizeof(Bits), m_bytes.size() - m_position);
    std::uint64_t bits = std::bit_cast<Bits>(value);
    for (std::size_t byte = 0; byte < delivered; ++byte) {
      bits &= ~(std::uint64_t{0xFF} << (8 * byte));
      bits |= std::to_integer<std::uint64_t>(m_bytes[m_position++]) << (8 * byte);
    }
    value = std::bit_cast<Value>(static_cast<Bits>(bits));
    return delivered;
  }

  const ByteString& m_bytes;
  CutNumber m_cut;
  std::size_t m_position = 0;
};

CmqPostGraphParam Expect(const CmqPostGraphParam& held, const ByteString& bytes, int version,
                         CutNumber cut = CutNumber::StaysAsItWas) {
  CmqPostGraphParam graph = held;
  ModelReader(bytes, cut).Read(graph, version);
  return graph;
}

// --- reading whole records ---

TEST(GraphRecord, AVersionReadsTheFieldsThatItHasAndKeepsTheOthers) {
  const CmqPostGraphParam stored = FilledGraph(1);
  const CmqPostGraphParam kHeld[] = {CmqPostGraphParam(), FilledGraph(2)};
  for (const SizeRow& row : kSizes) {
    for (const CmqPostGraphParam& held : kHeld) {
      SCOPED_TRACE(Trace(row.version));
      // The bytes behind the record are the business of whoever reads on.
      ByteString bytes = BuildRecord(stored, row.version);
      const std::size_t length = bytes.size();
      bytes.resize(length + 500, std::byte{0x5A});
      host::MemoryStream stream(bytes);
      CmqPostGraphParam graph = held;
      EXPECT_EQ(graph.ReadFromStream(&stream, row.version), 1);
      EXPECT_EQ(stream.Position(), length);

      // Neither correction touches these values.
      CmqPostGraphParam expected = held;
      CmqPostGraphParam source = stored;
      const auto targets = RecordSlots(expected);
      const auto sources = RecordSlots(source);
      for (std::size_t slot = 0; slot < targets.size(); ++slot) {
        if (targets[slot].since <= row.version) {
          std::visit(
              [&](auto* target) { *target = *std::get<decltype(target)>(sources[slot].value); },
              targets[slot].value);
        }
      }
      EXPECT_EQ(Differences(graph, expected), "");
    }
  }
}

TEST(GraphRecord, WhatIsWrittenIsReadBack) {
  const CmqPostGraphParam written = FilledGraph(1);
  for (const int version : {890110, 890111, INT_MAX}) {
    SCOPED_TRACE(Trace(version));
    host::MemoryStream stream;
    EXPECT_EQ(written.WriteToStream(&stream), 1);
    stream.Rewind();
    CmqPostGraphParam read = FilledGraph(2);
    EXPECT_EQ(read.ReadFromStream(&stream, version), 1);
    EXPECT_EQ(stream.Position(), stream.Bytes().size());

    CmqPostGraphParam expected = FilledGraph(1);
    const CmqPostGraphParam held = FilledGraph(2);
    expected.m_nDynamicOption = held.m_nDynamicOption;
    expected.m_nHost24 = held.m_nHost24;
    expected.m_nHost29[0] = held.m_nHost29[0];
    expected.m_nHost29[1] = held.m_nHost29[1];
    expected.m_nHost31 = held.m_nHost31;
    expected.m_strHost36 = held.m_strHost36;
    expected.m_nHost37[0] = held.m_nHost37[0];
    expected.m_nHost37[1] = held.m_nHost37[1];
    expected.m_n64Host37 = held.m_n64Host37;
    expected.m_mapHost38 = held.m_mapHost38;
    EXPECT_EQ(Differences(read, expected), "");
  }
}

TEST(GraphRecord, EmptyStringsOfTheRecordKeepTheStringsOfTheGraph) {
  CmqPostGraphParam stored = FilledGraph(1);
  stored.m_strHost18[0].Empty();
  stored.m_strHost18[2].Empty();
  stored.m_strHost20.Empty();
  for (const SizeRow& row : kSizes) {
    SCOPED_TRACE(Trace(row.version));
    host::MemoryStream stream(BuildRecord(stored, row.version));
    CmqPostGraphParam graph = FilledGraph(2);
    EXPECT_EQ(graph.ReadFromStream(&stream, row.version), 1);
    EXPECT_EQ(graph.m_strHost18[0], FilledGraph(2).m_strHost18[0]);
    EXPECT_EQ(graph.m_strHost18[1], FilledGraph(1).m_strHost18[1]);
    EXPECT_EQ(graph.m_strHost18[2], FilledGraph(2).m_strHost18[2]);
    EXPECT_EQ(graph.m_strHost20, FilledGraph(2).m_strHost20);
    EXPECT_EQ(stream.Position(), stream.Bytes().size());
  }
}

TEST(GraphRecord, ARecordBeforeTheSensorsLeavesThemAndTheFrequencyResponse) {
  for (const int version : {800018, 820022, 870001}) {
    SCOPED_TRACE(Trace(version));
    host::MemoryStream stream(BuildRecord(FilledGraph(1), version));
    CmqPostGraphParam graph;
    EXPECT_EQ(graph.ReadFromStream(&stream, version), 1);
    EXPECT_EQ(graph.m_XAxis.m_nSensor, -1);
    EXPECT_EQ(graph.m_YAxis.m_nSensor, -1);
    EXPECT_EQ(graph.m_nFrequencyResponseFlag, 0);
    EXPECT_EQ(graph.m_nFrequencyResponseMode, -1);
  }
}

TEST(GraphRecord, AVersionBeforeTheFirstReadsNothing) {
  for (const int version : {INT_MIN, -890110, -1, 0, 1, 18, 800000, 800017}) {
    for (const int seed : {0, 2}) {
      SCOPED_TRACE(Trace(version));
      CountingStream stream(BuildRecord(FilledGraph(1), 890110));
      CmqPostGraphParam graph;
      CmqPostGraphParam expected;
      if (seed != 0) {
        FillWithDistinctValues(graph, seed);
        FillWithDistinctValues(expected, seed);
      }
      // What a correction would change.
      graph.m_XAxis.m_nQuantityType = expected.m_XAxis.m_nQuantityType = 2;
      graph.m_XAxis.m_nComponent = expected.m_XAxis.m_nComponent = 12;
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 0);
      EXPECT_EQ(Differences(graph, expected), "");
      EXPECT_EQ(stream.Position(), 0U);
      EXPECT_EQ(stream.reads, 0);
    }
  }
}

TEST(GraphRecord, WithoutAStreamNothingHappens) {
  for (const int version : {INT_MIN, 800017, 800018, 890001, 890110, INT_MAX}) {
    SCOPED_TRACE(Trace(version));
    CmqPostGraphParam graph = FilledGraph(2);
    CmqPostGraphParam expected = FilledGraph(2);
    graph.m_XAxis.m_nQuantityType = expected.m_XAxis.m_nQuantityType = 2;
    graph.m_XAxis.m_nComponent = expected.m_XAxis.m_nComponent = 12;
    EXPECT_EQ(graph.ReadFromStream(nullptr, version), 0);
    EXPECT_EQ(graph.WriteToStream(nullptr), 0);
    EXPECT_EQ(Differences(graph, expected), "");
  }
}

// --- the corrections ---

struct FlagRow {
  int version;
  int analysisType;
  int resultType;
  int yType;
  int yComponent;
  int stored;
  int read;
};

// clang-format off
constexpr FlagRow kFlags[] = {
  // version  analysis  result   Y   c  stored  read
  {   820022,       0,      1,   1,  5,      0,    1},
  {   820022,       0,      1,   1,  3,      0,    0},
  {   820022,       0,      1,   1,  4,      0,    1},
  {   820022,       0,      1,   1,  6,      0,    1},
  {   820022,       0,      1,   1,  7,      0,    1},
  {   820022,       0,      1,   1,  8,      0,    0},
  {   820022,       0,      1,   1,  9,      0,    0},
  {   820022,       0,      1,   1, 10,      0,    0},
  {   820022,       0,      1,   1, 11,      0,    1},
  {   820022,       0,      1,   1, 12,      0,    1},
  {   820022,       0,      1,   1, 13,      0,    1},
  {   820022,       0,      1,   1, 14,      0,    1},
  {   820022,       0,      1,   1, 15,      0,    0},
  {   820022,       0,      1,   1,  0,      0,    0},
  {   820022,       0,      1,   1,  2,      0,    0},
  {   820022,       0,      1,   1, -1,      0,    0},
  {   820022,       0,      1,   1, INT_MIN, 0,    0},
  {   820022,       0,      1,   1, INT_MAX, 0,    0},
  {   820022,       8,      1,   1,  3,      0,    1},
  {   820022,       8,      1,   1,  2,      0,    0},
  {   820022,       8,      1,   1,  4,      0,    1},
  {   820022,       8,      1,   1,  7,      0,    1},
  {   820022,       8,      1,   1,  8,      0,    0},
  {   820022,       8,      1,   1, 10,      0,    0},
  {   820022,       8,      1,   1, 11,      0,    1},
  {   820022,       8,      1,   1, 14,      0,    1},
  {   820022,       8,      1,   1, 15,      0,    0},
  {   820022,       7,      1,   1,  3,      0,    0},
  {   820022,       9,      1,   1,  3,      0,    0},
  {   820022,       5,      1,   1,  3,      0,    0},
  {   820022,      99,      1,   1,  5,      0,    1},   // reactions whatever the study
  {   820022,       8,     19,  19,  3,      0,    1},
  {   820022,       8,     19,  19,  2,      0,    0},
  {   820022,       8,     19,  19,  4,      0,    0},
  {   820022,       8,     19,  19,  7,      0,    0},
  {   820022,       8,     19,  19, 11,      0,    0},
  {   820022,       5,     19,  19,  3,      0,    0},
  {   820022,       0,     19,  19,  5,      0,    0},
  {   820022,       8,     20,  20,  3,      0,    1},
  {   820022,       8,     20,  20,  2,      0,    0},
  {   820022,       8,     20,  20,  4,      0,    0},
  {   820022,       8,     20,  20,  7,      0,    0},
  {   820022,       7,     20,  20,  3,      0,    0},
  {   820022,       8,     18,  18,  3,      0,    0},
  {   820022,       8,     21,  21,  3,      0,    0},
  {   820022,       8,      2,   2,  3,      0,    0},
  {   820022,       0,      2,   2,  5,      0,    0},
  {   820022,       8,      0,   0,  3,      0,    0},
  {   820022,       8,      1,  19,  3,      0,    0},   // the axis shows another result
  {   820022,       8,     19,   1,  3,      0,    0},
  {   820022,       8,     20,  19,  3,      0,    0},
  {   820022,       8,     19,  20,  3,      0,    0},
  {   820022,       8,      1,  20,  5,      0,    0},
  {   820022,       0,      1,   2,  5,      0,    0},
  {   820022,       0,      2,   1,  5,      0,    0},
  {   820022,       8,     20,   1,  5,      0,    0},
  {   820022,       0,      1,  14,  5,      0,    0},
  {   820022,       0,      1,   0,  5,      0,    0},
  {   820022,       0,      1,   1,  5,      1,    1},
  {   820022,       0,      1,   1,  5,     -5,   -5},   // only a zero is put right
  {   820022,       0,      1,   1,  5,      2,    2},
  {   820022,       0,      1,   1,  5, INT_MIN, INT_MIN},
  {   820022,       0,      1,   1,  5, 0x01000000, 0x01000000},
  {   820022,       8,     19,  19,  3,      2,    2},
  {   820023,       0,      1,   1,  5,      0,    1},
  {   840028,       0,      1,   1,  5,      0,    1},
  {   890001,       0,      1,   1, 14,      0,    1},
  {   890002,       8,      1,   1,  3,      0,    1},
  {   890005,       8,     19,  19,  3,      0,    1},
  {   890110,       0,      1,   1,  5,      0,    1},
  {   890110,       8,     20,  20,  3,      0,    1},
  {   890110,       8,     20,  20,  4,      0,    0},
  {  INT_MAX,       8,     20,  20,  3,      0,    1},
};
// clang-format on

std::string Trace(const FlagRow& row) {
  return "version " + std::to_string(row.version) + ", analysis type " +
         std::to_string(row.analysisType) + ", result type " + std::to_string(row.resultType) +
         ", Y " + std::to_string(row.yType) + " component " + std::to_string(row.yComponent) +
         ", stored flag " + std::to_string(row.stored);
}

CmqPostGraphParam FlagGraph(const FlagRow& row) {
  CmqPostGraphParam graph = FilledGraph(1);
  graph.m_nAnalysisType = row.analysisType;
  graph.m_nResultType = row.resultType;
  // The X axis takes no part.
  graph.m_XAxis.m_nQuantityType = 1;
  graph.m_XAxis.m_nComponent = 5;
  graph.m_YAxis.m_nQuantityType = row.yType;
  graph.m_YAxis.m_nComponent = row.yComponent;
  graph.m_nYUnitFlag = row.stored;
  return graph;
}

TEST(GraphRecord, AZeroYUnitFlagIsPutRightWhereTheComponentRulesItOut) {
  for (const FlagRow& row : kFlags) {
    const CmqPostGraphParam stored = FlagGraph(row);
    host::MemoryStream stream(BuildRecord(stored, row.version));
    CmqPostGraphParam graph = stored;
    graph.m_nYUnitFlag = 77;
    CmqPostGraphParam expected = stored;
    expected.m_nYUnitFlag = row.read;
    EXPECT_EQ(graph.ReadFromStream(&stream, row.version), 1);
    EXPECT_EQ(Differences(graph, expected), "") << Trace(row);
  }
}

TEST(GraphRecord, AVersionWithoutTheYUnitFlagLeavesTheHeldOneAlone) {
  for (const FlagRow& row : kFlags) {
    for (const int version : {800018, 800062, 820021}) {
      SCOPED_TRACE(Trace(row) + ", but version " + std::to_string(version));
      const CmqPostGraphParam stored = FlagGraph(row);
      host::MemoryStream stream(BuildRecord(stored, version));
      CmqPostGraphParam graph = stored;
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 1);
      EXPECT_EQ(graph.m_nYUnitFlag, row.stored);
    }
  }
}

TEST(GraphRecord, AHeldZeroIsPutRightWhenTheStreamEndsBeforeTheFlag) {
  for (const FlagRow& row : kFlags) {
    if (row.stored != 0) {
      continue;
    }
    const CmqPostGraphParam stored = FlagGraph(row);
    CmqPostGraphParam graph = stored;
    host::MemoryStream empty;
    EXPECT_EQ(graph.ReadFromStream(&empty, row.version), 1);
    EXPECT_EQ(graph.m_nYUnitFlag, row.read) << Trace(row);
  }
}

struct StressRow {
  int xType;
  int xStored;
  int yType;
  int yStored;
  int xRead;
  int yRead;
};

// Documents before the version in which a stress component was inserted at 11.
// clang-format off
constexpr StressRow kStresses[] = {
  //  X  stored    Y  stored      X read   Y read
  {   2,     10,   2,     10,         10,      10},
  {   2,     11,   2,     11,         12,      12},
  {   2,     12,   2,     13,         13,      14},
  {   2,     12,  14,     12,         13,      12},
  {  14,     12,   2,     12,         12,      13},
  {   2,     10,   2,     11,         10,      12},
  {   2,     11,   2,     10,         12,      10},
  {   2,      0,   2,     -1,          0,      -1},
  {   2,     14,   2,    100,         15,     101},
  {   1,     11,   1,     12,         11,      12},
  {   3,     11,   3,     12,         11,      12},
  {  13,     11,  13,     12,         11,      12},   // the graph's own code for a stress
  {  57,     11,  59,     12,         11,      12},
  {   0,     11,  -2,     12,         11,      12},
  {   2, INT_MIN,  2, INT_MIN,   INT_MIN, INT_MIN},
  {   2, INT_MAX - 1, 2,   11,   INT_MAX,      12},
};
// clang-format on

std::string Trace(const StressRow& row) {
  return "X " + std::to_string(row.xType) + " component " + std::to_string(row.xStored) + ", Y " +
         std::to_string(row.yType) + " component " + std::to_string(row.yStored);
}

CmqPostGraphParam StressGraph(const StressRow& row) {
  CmqPostGraphParam graph = FilledGraph(1);
  graph.m_XAxis.m_nQuantityType = row.xType;
  graph.m_XAxis.m_nComponent = row.xStored;
  graph.m_YAxis.m_nQuantityType = row.yType;
  graph.m_YAxis.m_nComponent = row.yStored;
  return graph;
}

TEST(GraphRecord, StressComponentsFrom11OnMoveUpInDocumentsBeforeTheInsertion) {
  for (const StressRow& row : kStresses) {
    for (const int version : {800018, 800026, 820021, 820022, 870001, 870002, 890001}) {
      const CmqPostGraphParam stored = StressGraph(row);
      host::MemoryStream stream(BuildRecord(stored, version));
      CmqPostGraphParam graph = stored;
      CmqPostGraphParam expected = stored;
      expected.m_XAxis.m_nComponent = row.xRead;
      expected.m_YAxis.m_nComponent = row.yRead;
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 1);
      EXPECT_EQ(Differences(graph, expected), "") << Trace(row) << ", " << Trace(version);
    }
  }
}

TEST(GraphRecord, StressComponentsStayInDocumentsFromTheInsertionOn) {
  for (const StressRow& row : kStresses) {
    for (const int version : {890002, 890003, 890005, 890109, 890110, INT_MAX}) {
      const CmqPostGraphParam stored = StressGraph(row);
      host::MemoryStream stream(BuildRecord(stored, version));
      CmqPostGraphParam graph = stored;
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 1);
      EXPECT_EQ(Differences(graph, stored), "") << Trace(row) << ", " << Trace(version);
    }
  }
}

TEST(GraphRecord, HeldStressComponentsMoveUpWhenTheStreamIsEmpty) {
  for (const StressRow& row : kStresses) {
    CmqPostGraphParam graph = StressGraph(row);
    CmqPostGraphParam expected = StressGraph(row);
    expected.m_XAxis.m_nComponent = row.xRead;
    expected.m_YAxis.m_nComponent = row.yRead;
    host::MemoryStream empty;
    EXPECT_EQ(graph.ReadFromStream(&empty, 890001), 1);
    EXPECT_EQ(Differences(graph, expected), "") << Trace(row);
  }
}

TEST(GraphRecord, TheHighestStressComponentWrapsAround) {
  CmqPostGraphParam stored;
  stored.m_XAxis.m_nQuantityType = 2;
  stored.m_XAxis.m_nComponent = INT_MAX;
  stored.m_YAxis.m_nComponent = INT_MAX;
  host::MemoryStream stream(BuildRecord(stored, 890001));
  CmqPostGraphParam graph;
  EXPECT_EQ(graph.ReadFromStream(&stream, 890001), 1);
  EXPECT_EQ(graph.m_XAxis.m_nComponent, INT_MIN);
  EXPECT_EQ(graph.m_YAxis.m_nComponent, INT_MIN);
}

// --- streams that end early ---

/// A graph with short strings, so that a cut at every byte stays quick.
CmqPostGraphParam ShortStrings(CmqPostGraphParam graph, const mqChar* text) {
  for (CString& string : graph.m_strHost18) {
    string = text;
  }
  graph.m_strHost18[1].Empty();
  graph.m_strHost20 = text;
  return graph;
}

void CheckCuts(const CmqPostGraphParam& stored, const CmqPostGraphParam& held, int version) {
  const ByteString bytes = BuildRecord(stored, version);
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
    const ByteString delivered = FirstBytes(bytes, cut);
    host::MemoryStream stream(delivered);
    CmqPostGraphParam graph = held;
    ASSERT_EQ(graph.ReadFromStream(&stream, version), 1) << Trace(version) << ", byte " << cut;
    ASSERT_EQ(stream.Position(), cut) << Trace(version);

    // All behind the cut is held; the number in it is held, too, or takes what was delivered.
    const std::string kept = Differences(graph, Expect(held, delivered, version));
    if (!kept.empty()) {
      const CutNumber taken = CutNumber::TakesTheDeliveredBytes;
      ASSERT_EQ(Differences(graph, Expect(held, delivered, version, taken)), "")
          << Trace(version) << ", byte " << cut << "; without the delivered bytes:\n"
          << kept;
    }
  }
}

TEST(GraphRecord, AStreamThatEndsAtAnyByteLeavesWhatItDidNotDeliver) {
  const CmqPostGraphParam stored = ShortStrings(FilledGraph(1), MQ_TEXT("a\u03A9\u4E2D"));
  for (const int version : kGates) {
    CheckCuts(stored, CmqPostGraphParam(), version);
    CheckCuts(stored, FilledGraph(2), version);
  }
}

TEST(GraphRecord, AStreamThatEndsAtAnyByteIsCorrectedByWhatIsThen) {
  const CmqPostGraphParam stored = ShortStrings(FlagGraph({0, 8, 1, 1, 3, 0, 0}), MQ_TEXT("xy"));
  const CmqPostGraphParam stresses =
      ShortStrings(StressGraph({2, 11, 2, 0x0B0B, 0, 0}), MQ_TEXT("z"));
  const CmqPostGraphParam held = FlagGraph({0, 0, 1, 1, 5, 0, 0});
  const CmqPostGraphParam heldStresses = StressGraph({2, 12, 2, 300, 0, 0});
  for (const int version : kGates) {
    CheckCuts(stored, held, version);
    CheckCuts(stored, heldStresses, version);
    CheckCuts(stresses, held, version);
    CheckCuts(stresses, heldStresses, version);
  }
}

// --- streams that fail ---

TEST(GraphRecord, RefusedReadsLeaveTheGraphAsItWas) {
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    for (const int version : kGates) {
      RefusingStream stream(result);
      CmqPostGraphParam graph = FilledGraph(2);
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 1);
      EXPECT_EQ(Differences(graph, FilledGraph(2)), "") << Trace(version) << ", " << result;
    }
  }
}

TEST(GraphRecord, ReadsThatFailFromSomeCallOnAreSurvived) {
  for (const int version : kGates) {
    for (int successes = 0;; ++successes) {
      WearyStream stream(BuildRecord(FilledGraph(1), version), successes);
      CmqPostGraphParam graph = FilledGraph(2);
      ASSERT_EQ(graph.ReadFromStream(&stream, version), 1) << Trace(version);

      // Whatever was read in whole calls stands, and nothing else was touched.
      const ByteString delivered = FirstBytes(stream.Bytes(), stream.Position());
      ASSERT_EQ(Differences(graph, Expect(FilledGraph(2), delivered, version)), "")
          << Trace(version) << ", after " << successes << " calls";
      if (!stream.IsWornOut()) {
        ASSERT_EQ(stream.Position(), stream.Bytes().size());
        break;
      }
    }
  }
}

TEST(GraphRecord, ShortReadsThatClaimSuccessAreSurvived) {
  for (const ULONG limit : {0U, 1U, 2U, 3U, 5U, 7U, 9U}) {
    for (const int version : kGates) {
      GrudgingStream stream(BuildRecord(FilledGraph(1), version), limit);
      CmqPostGraphParam graph = FilledGraph(2);
      EXPECT_EQ(graph.ReadFromStream(&stream, version), 1) << Trace(version) << ", " << limit;
      // Not persisted, so that no stream reaches it.
      EXPECT_EQ(graph.m_strHost36, FilledGraph(2).m_strHost36);
      EXPECT_EQ(graph.m_nDynamicOption, FilledGraph(2).m_nDynamicOption);
    }
  }
}

TEST(GraphRecord, RefusedAndShortWritesAreNotLookedAt) {
  const CmqPostGraphParam graph = FilledGraph(1);
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    RefusingStream refusing(result);
    EXPECT_EQ(graph.WriteToStream(&refusing), 1) << result;
  }
  for (const ULONG limit : {0U, 1U, 3U, 5U}) {
    GrudgingStream grudging({}, limit);
    EXPECT_EQ(graph.WriteToStream(&grudging), 1) << limit;
  }
  for (int successes = 0; successes < 100; ++successes) {
    WearyStream weary({}, successes);
    ASSERT_EQ(graph.WriteToStream(&weary), 1) << successes;
  }
  EXPECT_EQ(Differences(graph, FilledGraph(1)), "");
}

TEST(GraphRecord, TheNumberOfTransferredBytesIsNotAskedFor) {
  CountingStream stream;
  CmqPostGraphParam graph = FilledGraph(1);
  EXPECT_EQ(graph.WriteToStream(&stream), 1);
  stream.Rewind();
  EXPECT_EQ(graph.ReadFromStream(&stream, 890110), 1);
  EXPECT_GT(stream.reads, 0);
  EXPECT_GT(stream.writes, 0);
  EXPECT_EQ(stream.counted, 0);
}

}  // namespace
}  // namespace mqp::test
