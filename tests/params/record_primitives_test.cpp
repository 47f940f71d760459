// The two directions of a record by themselves, with records longer than any of a document.

#include <algorithm>
#include <array>
#include <cstddef>
#include <numeric>

#include <gtest/gtest.h>
#include <mqPostCommon/params/stream/record.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr int kVersion = 890000;

/// A record of integers that no buffer holds.
struct LongRecord {
  std::array<int, 1500> integers{};
  std::array<double, 200> doubles{};

  template <class Visitor>
  void VisitFields(Visitor& visitor) {
    visitor.Integers(0, "integers", integers);
    visitor.Doubles(0, "doubles", doubles);
  }
};

template <class Record>
auto Visiting(Record& record) {
  return [&record](auto& visitor) { record.VisitFields(visitor); };
}

LongRecord Numbered() {
  LongRecord record;
  std::iota(record.integers.begin(), record.integers.end(), 1);
  std::iota(record.doubles.begin(), record.doubles.end(), 0.5);
  return record;
}

TEST(RecordPrimitives, ARecordLongerThanTheBuffersComesBack) {
  LongRecord written = Numbered();
  CountingStream stream;
  EXPECT_EQ(WriteRecord(&stream, Visiting(written)), 1);
  ASSERT_EQ(stream.Bytes().size(), 1500U * 4 + 200U * 8);
  EXPECT_EQ(stream.writes, 2);  // 4,096 bytes and the rest
  stream.Rewind();
  LongRecord read;
  EXPECT_EQ(ReadRecord(&stream, kVersion, 0, Visiting(read)), 1);
  EXPECT_EQ(read.integers, written.integers);
  EXPECT_EQ(read.doubles, written.doubles);
  EXPECT_EQ(stream.reads, 15);  // 512 bytes at a time
}

TEST(RecordPrimitives, WhatTheStreamDoesNotDeliverKeepsItsValue) {
  LongRecord written = Numbered();
  host::MemoryStream whole;
  WriteRecord(&whole, Visiting(written));
  for (const std::size_t delivered : {0U, 4U, 511U, 512U, 513U, 5996U, 6000U, 6004U, 7592U}) {
    host::MemoryStream stream(
        {whole.Bytes().begin(), whole.Bytes().begin() + static_cast<std::ptrdiff_t>(delivered)});
    LongRecord read;
    read.integers.fill(-1);
    read.doubles.fill(-1.0);
    ReadRecord(&stream, kVersion, 0, Visiting(read));
    for (std::size_t place = 0; place < read.integers.size(); ++place) {
      const std::size_t end = 4 * (place + 1);
      if (end <= delivered) {
        EXPECT_EQ(read.integers[place], static_cast<int>(place) + 1) << delivered;
      } else if (end - 4 >= delivered) {
        EXPECT_EQ(read.integers[place], -1) << delivered;
      }
    }
    EXPECT_EQ(read.doubles[0], delivered >= 6008 ? 0.5 : read.doubles[0]) << delivered;
    EXPECT_EQ(read.doubles[199], -1.0) << delivered;
  }
}

/// Every kind of field, each since a version of its own.
struct GatedRecord {
  int integer = -1;
  double number = -1.0;
  CString text = MQ_TEXT("old");
  OwnedList<CmqEquationVariable> children;
  int last = -1;

  template <class Visitor>
  void VisitFields(Visitor& visitor) {
    visitor.Integers(10, "integer", ValuesOf(integer));
    visitor.Doubles(20, "number", ValuesOf(number));
    visitor.Strings(30, "text", ValuesOf(text));
    visitor.Records(40, "children", children, [&visitor](CmqEquationVariable& child) {
      visitor.Integers(40, "component", ValuesOf(child.m_nComponent));
    });
    visitor.Integers(50, "last", ValuesOf(last));
  }
};

TEST(RecordPrimitives, AFieldIsReadFromTheVersionOnThatHasIt) {
  struct Row {
    int version;
    ByteString bytes;
    int integer;
    double number;
    const mqChar* text;
    int children;
    int last;
  };
  const auto record = [] { return RecordBytes().Integer(7); };
  const auto withNumber = [&] { return record().Double(2.5); };
  const auto withText = [&] { return withNumber().Text(MQ_TEXT("new")); };
  const auto withChildren = [&] { return withText().Integer(2).Integer(3).Integer(4); };
  // clang-format off
  const Row rows[] = {
      // version  bytes                            integer  number  text             children  last
      {10,        record().Get(),                    7,     -1.0,  MQ_TEXT("old"),   0,       -1},
      {19,        record().Get(),                    7,     -1.0,  MQ_TEXT("old"),   0,       -1},
      {20,        withNumber().Get(),                7,      2.5,  MQ_TEXT("old"),   0,       -1},
      {29,        withNumber().Get(),                7,      2.5,  MQ_TEXT("old"),   0,       -1},
      {30,        withText().Get(),                  7,      2.5,  MQ_TEXT("new"),   0,       -1},
      {39,        withText().Get(),                  7,      2.5,  MQ_TEXT("new"),   0,       -1},
      {40,        withChildren().Get(),              7,      2.5,  MQ_TEXT("new"),   2,       -1},
      {49,        withChildren().Get(),              7,      2.5,  MQ_TEXT("new"),   2,       -1},
      {50,        withChildren().Integer(11).Get(),  7,      2.5,  MQ_TEXT("new"),   2,       11},
  };
  // clang-format on
  for (const Row& row : rows) {
    SCOPED_TRACE(row.version);
    // What follows belongs to the next record.
    ByteString bytes = row.bytes;
    bytes.resize(bytes.size() + 16, std::byte{0x55});
    host::MemoryStream stream(bytes);
    GatedRecord read;
    EXPECT_EQ(ReadRecord(&stream, row.version, 10, Visiting(read)), 1);
    EXPECT_EQ(read.integer, row.integer);
    EXPECT_EQ(read.number, row.number);
    EXPECT_EQ(read.text, CString(row.text));
    EXPECT_EQ(read.children.GetCount(), row.children);
    EXPECT_EQ(read.last, row.last);
    EXPECT_EQ(stream.Position(), row.bytes.size());
  }
}

}  // namespace
}  // namespace mqp::test
