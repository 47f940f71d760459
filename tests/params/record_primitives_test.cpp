// The two directions of a record by themselves, with records longer than any of a document.

#include <algorithm>
#include <cstddef>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/params/stream/record.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// A record of more numbers without a text between them than any that is stored today.
struct ManyNumbers {
  int before[150];
  double values[300];
  int behind[150];
};

constexpr auto kVisitNumbers = [](auto& record, auto& visitor) {
  visitor.Integers(1, "before", ValuesOf(record.before));
  visitor.Doubles(1, "values", ValuesOf(record.values));
  visitor.Integers(1, "behind", ValuesOf(record.behind));
};

ManyNumbers NumbersFrom(int first) {
  ManyNumbers numbers{};
  for (int place = 0; place < 150; ++place) {
    numbers.before[place] = first + place;
    numbers.behind[place] = -first - place;
  }
  for (int place = 0; place < 300; ++place) {
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

TEST(RecordPrimitives, ManyNumbersInARowAreWritten) {
  const ManyNumbers numbers = NumbersFrom(1000);
  host::MemoryStream stream;
  EXPECT_EQ(WriteRecord(&stream, numbers, kVisitNumbers), 1);
  EXPECT_EQ(stream.Bytes().size(), 3600U);
  EXPECT_EQ(ByteDifference(stream.Bytes(), BytesOf(numbers)), "");
}

TEST(RecordPrimitives, ManyNumbersInARowAreReadAsFarAsTheStreamHasThem) {
  const ByteString stored = BytesOf(NumbersFrom(1000));
  constexpr std::size_t kStep = 13;  // ends at every byte of a field sooner or later
  for (std::size_t length = stored.size() % kStep; length <= stored.size(); length += kStep) {
    // What the stream does not deliver keeps its bytes.
    ByteString expected = BytesOf(NumbersFrom(-77));
    std::copy_n(stored.begin(), length, expected.begin());
    ManyNumbers numbers = NumbersFrom(-77);
    host::MemoryStream stream(FirstBytes(stored, length));
    EXPECT_EQ(ReadRecord(&stream, 1, 1, numbers, kVisitNumbers), 1);
    ASSERT_EQ(ByteDifference(BytesOf(numbers), expected), "") << length << " bytes";
  }
}

struct ManyTexts {
  CString texts[20];
};

TEST(RecordPrimitives, MoreTextsThanABufferHoldsAreWritten) {
  ManyTexts record;
  RecordBytes expected;
  for (int place = 0; place < 20; ++place) {
    record.texts[place] = CString(static_cast<mqChar>('a' + place), 1024);
    expected.Text(record.texts[place].View());
  }
  host::MemoryStream stream;
  const auto visit = [](auto& object, auto& visitor) {
    visitor.Strings(1, "texts", ValuesOf(object.texts));
  };
  EXPECT_EQ(WriteRecord(&stream, record, visit), 1);
  EXPECT_EQ(stream.Bytes().size(), 20U * 2052U);
  EXPECT_EQ(ByteDifference(stream.Bytes(), expected.Get()), "");
}

/// Every kind of field, each since a version of its own.
struct GatedRecord {
  int integer = -1;
  double number = -1.0;
  CString text = MQ_TEXT("old");
  OwnedList<CmqEquationVariable> children;
  int last = -1;
};

constexpr auto kVisitGated = [](auto& record, auto& visitor) {
  visitor.Integers(10, "integer", ValuesOf(record.integer));
  visitor.Doubles(20, "number", ValuesOf(record.number));
  visitor.Strings(30, "text", ValuesOf(record.text));
  visitor.Records(40, "children", record.children, [](auto& child, auto& inner) {
    inner.Integers(40, "component", ValuesOf(child.m_nComponent));
  });
  visitor.Integers(50, "last", ValuesOf(record.last));
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
    EXPECT_EQ(ReadRecord(&stream, row.version, 10, read, kVisitGated), 1);
    EXPECT_EQ(read.integer, row.integer);
    EXPECT_EQ(read.number, row.number);
    EXPECT_EQ(read.text, CString(row.text));
    EXPECT_EQ(read.children.GetCount(), row.children);
    EXPECT_EQ(read.last, row.last);
    EXPECT_EQ(stream.Position(), row.bytes.size());
  }
}

/// A variable that is not read has component 9.
TEST(RecordPrimitives, RecordsWithoutATextAreReadAsFarAsTheStreamHasThem) {
  RecordBytes record = RecordBytes().Integer(1).Double(2.5).Text(MQ_TEXT("t")).Integer(3);
  record.Integer(0x01010101).Integer(0x02020202).Integer(0x03030303).Integer(7);
  const ByteString stored = record.Get();
  const std::size_t begin = stored.size() - 16;
  for (std::size_t delivered = 0; delivered <= 16; ++delivered) {
    // Its bytes in the order in which they lie in the stream.
    ByteString expected = RecordBytes().Integer(9).Integer(9).Integer(9).Integer(-1).Get();
    std::copy_n(stored.begin() + static_cast<std::ptrdiff_t>(begin), delivered, expected.begin());
    host::MemoryStream stream(FirstBytes(stored, begin + delivered));
    GatedRecord read;
    EXPECT_EQ(ReadRecord(&stream, 50, 10, read, kVisitGated), 1);
    ASSERT_EQ(read.children.GetCount(), 3);
    RecordBytes bytes;
    for (POSITION position = read.children.GetHeadPosition(); position != nullptr;) {
      bytes.Integer(read.children.GetNext(position)->m_nComponent);
    }
    EXPECT_EQ(ByteDifference(bytes.Integer(read.last).Get(), expected), "") << delivered;
    EXPECT_EQ(stream.Position(), begin + delivered);
  }
}

/// An object of a list with as many numbers as it has room for.
struct Numbers : CObject {
  ManyNumbers values = NumbersFrom(-77);
};
struct NumbersList {
  OwnedList<Numbers> children;
};

TEST(RecordPrimitives, RecordsOfManyNumbersAreReadOneAfterTheOther) {
  RecordBytes count = RecordBytes().Integer(3);
  ByteString bytes = count.Get();
  for (const int first : {1000, 2000, 3000}) {
    const ByteString record = BytesOf(NumbersFrom(first));
    bytes.insert(bytes.end(), record.begin(), record.end());
  }
  for (const std::size_t missing : {std::size_t{0}, std::size_t{3601}}) {
    host::MemoryStream stream(FirstBytes(bytes, bytes.size() - missing));
    NumbersList list;
    const auto visit = [](auto& object, auto& visitor) {
      visitor.Records(1, "children", object.children,
                      [](auto& child, auto& inner) { kVisitNumbers(child.values, inner); });
    };
    EXPECT_EQ(ReadRecord(&stream, 1, 1, list, visit), 1);
    ASSERT_EQ(list.children.GetCount(), 3);
    std::vector<ByteString> expected = {BytesOf(NumbersFrom(1000)), BytesOf(NumbersFrom(2000)),
                                        BytesOf(NumbersFrom(3000))};
    if (missing > 0) {  // the whole of the last one, and a byte of the one before
      expected[1].back() = BytesOf(NumbersFrom(-77)).back();
      expected[2] = BytesOf(NumbersFrom(-77));
    }
    POSITION position = list.children.GetHeadPosition();
    for (const ByteString& record : expected) {
      EXPECT_EQ(ByteDifference(BytesOf(list.children.GetNext(position)->values), record), "")
          << missing;
    }
  }
}

/// An object of a list whose record has numbers with defaults before, between and behind texts.
struct Mixed : CObject {
  int first = 11;
  double second = 2.5;
  CString text = MQ_TEXT("old");
  int third = -7;
  CString other;
  double last = 0.125;
};
struct MixedList {
  OwnedList<Mixed> children;
  int behind = 99;
};

constexpr auto kVisitMixed = [](auto& record, auto& visitor) {
  visitor.Integers(1, "first", ValuesOf(record.first));
  visitor.Doubles(1, "second", ValuesOf(record.second));
  visitor.Strings(1, "text", ValuesOf(record.text));
  visitor.Integers(1, "third", ValuesOf(record.third));
  visitor.Strings(1, "other", ValuesOf(record.other));
  visitor.Doubles(1, "last", ValuesOf(record.last));
};

TEST(RecordPrimitives, RecordsOfAListAreReadLikeSingleOnesWhereverTheStreamEnds) {
  RecordBytes record;
  record.Integer(3);
  for (const int index : {1, 2, 3}) {
    record.Integer(index).Double(index + 0.5).Text(MQ_TEXT("abc")).Integer(10 * index);
    record.Text(index == 2 ? MQ_TEXT("") : MQ_TEXT("d")).Double(0.25 * index);
  }
  const ByteString bytes = record.Integer(5).Get();
  for (std::size_t length = 4; length <= bytes.size(); ++length) {
    SCOPED_TRACE(length);
    host::MemoryStream stream(FirstBytes(bytes, length));
    MixedList list;
    const auto visit = [](auto& object, auto& visitor) {
      visitor.Records(1, "children", object.children, kVisitMixed);
      visitor.Integers(1, "behind", ValuesOf(object.behind));
    };
    EXPECT_EQ(ReadRecord(&stream, 1, 1, list, visit), 1);
    EXPECT_EQ(stream.Position(), length);
    ASSERT_EQ(list.children.GetCount(), 3);

    host::MemoryStream same(FirstBytes(bytes, length));
    int count = 0;
    same.Read(&count, sizeof count, nullptr);
    for (POSITION position = list.children.GetHeadPosition(); position != nullptr;) {
      Mixed single;
      EXPECT_EQ(ReadRecord(&same, 1, 1, single, kVisitMixed), 1);
      const Mixed& child = *list.children.GetNext(position);
      EXPECT_EQ(child.first, single.first);
      EXPECT_EQ(child.second, single.second);
      EXPECT_EQ(child.text, single.text);
      EXPECT_EQ(child.third, single.third);
      EXPECT_EQ(child.other, single.other);
      EXPECT_EQ(child.last, single.last);
    }
    int behind = 99;
    same.Read(&behind, sizeof behind, nullptr);
    EXPECT_EQ(list.behind, behind);
  }
}

TEST(RecordPrimitives, ARecordOfAListIsReadInOneCall) {
  const auto callsFor = [](int variables) {
    RecordBytes bytes = RecordBytes().Text(MQ_TEXT("e")).Integer(0).Integer(0).Integer(0);
    bytes.Integer(variables);
    for (int index = 0; index < variables; ++index) {
      bytes.Text(MQ_TEXT("name")).Integer(1).Integer(2).Double(3.0);
    }
    CountingStream stream(bytes.Get());
    CmqEquationPlotParam plot;
    plot.ReadFromStream(&stream, 890109);
    EXPECT_EQ(plot.m_listVariables.GetCount(), variables);
    EXPECT_EQ(stream.Position(), stream.Bytes().size());
    return stream.reads;
  };
  EXPECT_EQ(callsFor(0), 4);          // each ends with the count of a text or of the variables
  EXPECT_EQ(callsFor(1), 4 + 1 + 1);  // the count of the first name by itself
  EXPECT_EQ(callsFor(40), 4 + 1 + 40);
}

TEST(RecordPrimitives, MoreRecordsOfAListThanABufferHoldsAreWritten) {
  GatedRecord record;
  RecordBytes expected = RecordBytes().Integer(-1).Double(-1.0).Text(MQ_TEXT("old")).Integer(5000);
  for (int place = 0; place < 5000; ++place) {
    record.children.Append(std::make_unique<CmqEquationVariable>()).m_nComponent = place;
    expected.Integer(place);
  }
  host::MemoryStream stream;
  EXPECT_EQ(WriteRecord(&stream, record, kVisitGated), 1);
  EXPECT_EQ(ByteDifference(stream.Bytes(), expected.Integer(-1).Get()), "");
}

}  // namespace
}  // namespace mqp::test
