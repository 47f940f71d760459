#include <algorithm>
#include <cstddef>

#include <gtest/gtest.h>
#include <mqPostCommon/params/stream/record.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// A record of more numbers without a text between them than any that is stored today.
struct ManyNumbers {
  int before[300];
  double values[600];
  int behind[300];
};

template <class Record, class Visitor>
void VisitNumbers(Record& record, Visitor& visitor) {
  visitor.Integers(1, "before", ValuesOf(record.before));
  visitor.Doubles(1, "values", ValuesOf(record.values));
  visitor.Integers(1, "behind", ValuesOf(record.behind));
}

ManyNumbers NumbersFrom(int first) {
  ManyNumbers numbers{};
  for (int place = 0; place < 300; ++place) {
    numbers.before[place] = first + place;
    numbers.behind[place] = -first - place;
  }
  for (int place = 0; place < 600; ++place) {
    numbers.values[place] = first + 0.5 * place;
  }
  return numbers;
}

ByteString BytesOf(const ManyNumbers& numbers) {
  RecordBytes bytes;
  for (const int value : numbers.before) {
    bytes.Integer(value);
  }
  for (const double value : numbers.values) {
    bytes.Double(value);
  }
  for (const int value : numbers.behind) {
    bytes.Integer(value);
  }
  return bytes.Get();
}

TEST(Record, ManyNumbersInARowAreWritten) {
  const ManyNumbers numbers = NumbersFrom(1000);
  host::MemoryStream stream;
  EXPECT_EQ(WriteRecord(&stream, [&](auto& writer) { VisitNumbers(numbers, writer); }), 1);
  EXPECT_EQ(stream.Bytes().size(), 7200U);
  EXPECT_EQ(ByteDifference(stream.Bytes(), BytesOf(numbers)), "");
}

TEST(Record, ManyNumbersInARowAreReadAsFarAsTheStreamHasThem) {
  const ByteString stored = BytesOf(NumbersFrom(1000));
  constexpr std::size_t kStep = 13;  // ends at every byte of a field sooner or later
  for (std::size_t length = stored.size() % kStep; length <= stored.size(); length += kStep) {
    // What the stream does not deliver keeps its bytes.
    ByteString expected = BytesOf(NumbersFrom(-77));
    std::copy_n(stored.begin(), length, expected.begin());
    ManyNumbers numbers = NumbersFrom(-77);
    host::MemoryStream stream(FirstBytes(stored, length));
    EXPECT_EQ(ReadRecord(&stream, 1, 1, [&](auto& reader) { VisitNumbers(numbers, reader); }), 1);
    ASSERT_EQ(ByteDifference(BytesOf(numbers), expected), "") << length << " bytes";
  }
}

}  // namespace
}  // namespace mqp::test
