#include <climits>
#include <cstddef>
#include <string>

#include <gtest/gtest.h>
#include <mqPostCommon/params/stream/strings.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

/// A text of `length` units, none of them zero and neighbours different.
CString LongText(int length) {
  CString text;
  for (int position = 0; position < length; ++position) {
    text += static_cast<mqChar>(0x0101 + position % 0xA000);
  }
  return text;
}

ByteString Written(CString text) {
  host::MemoryStream stream;
  EXPECT_EQ(CStringWriteToStream(&stream, &text), 1);
  return stream.Bytes();
}

struct ReadOutcome {
  int result;
  CString text;
  std::size_t consumed;
};

ReadOutcome ReadInto(const CString& held, const ByteString& bytes) {
  host::MemoryStream stream(bytes);
  CString text = held;
  const int result = CStringReadFromStream(&stream, &text);
  return {result, text, stream.Position()};
}

TEST(StringRecord, AnEmptyTextIsFourZeroBytesAndDoesNotComeBack) {
  EXPECT_EQ(Hex(Written(CString())), Hex(RecordBytes().Raw({0, 0, 0, 0}).Get()));

  const ReadOutcome read = ReadInto(MQ_TEXT("abc"), RecordBytes().Raw({0, 0, 0, 0}).Get());
  EXPECT_EQ(read.result, 0);
  EXPECT_EQ(read.text, CString(MQ_TEXT("abc")));
  EXPECT_EQ(read.consumed, 4U);
}

TEST(StringRecord, UnitsAreWrittenLowByteFirstWithoutATerminator) {
  EXPECT_EQ(Hex(Written(MQ_TEXT("a\u03A9\u4E2D"))),
            Hex(RecordBytes().Raw({3, 0, 0, 0, 0x61, 0, 0xA9, 0x03, 0x2D, 0x4E}).Get()));
}

TEST(StringRecord, SurrogatesCountAsTwoUnitsAndMayStandAlone) {
  EXPECT_EQ(Hex(Written(MQ_TEXT("\U0001D6D1"))),
            Hex(RecordBytes().Raw({2, 0, 0, 0, 0x35, 0xD8, 0xD1, 0xDE}).Get()));
  const CString alone(static_cast<mqChar>(0xDEAD), 1);
  EXPECT_EQ(Hex(Written(alone)), Hex(RecordBytes().Raw({1, 0, 0, 0, 0xAD, 0xDE}).Get()));
  EXPECT_EQ(ReadInto(CString(), RecordBytes().Raw({1, 0, 0, 0, 0xAD, 0xDE}).Get()).text, alone);
}

TEST(StringRecord, LongTextsAreCutToTheFirst1024Units) {
  struct Row {
    int length;
    int written;
    std::size_t bytes;
  };
  // clang-format off
  constexpr Row kRows[] = {
    // length  written  bytes
    {       1,       1,     6},
    {       3,       3,    10},
    {     255,     255,   514},
    {     256,     256,   516},
    {    1023,    1023,  2050},
    {    1024,    1024,  2052},
    {    1025,    1024,  2052},
    {    1500,    1024,  2052},
    {   70000,    1024,  2052},
  };
  // clang-format on
  for (const Row& row : kRows) {
    SCOPED_TRACE("length " + std::to_string(row.length));
    const CString text = LongText(row.length);
    const CString kept = text.Left(row.written);
    const ByteString bytes = Written(text);
    EXPECT_EQ(bytes.size(), row.bytes);
    EXPECT_EQ(ByteDifference(bytes, RecordBytes().Text(kept.View()).Get()), "");

    const ReadOutcome read = ReadInto(MQ_TEXT("held"), bytes);
    EXPECT_EQ(read.result, 1);
    EXPECT_EQ(read.text, kept);
    EXPECT_EQ(read.consumed, row.bytes);
  }
}

TEST(StringRecord, TheCountOf1500UnitsIsWrittenAs1024) {
  EXPECT_EQ(Hex(FirstBytes(Written(LongText(1500)), 4)),
            Hex(RecordBytes().Raw({0x00, 0x04, 0x00, 0x00}).Get()));
}

TEST(StringRecord, WritingLeavesTheTextAsItIs) {
  host::MemoryStream stream;
  CString text = LongText(1500);
  EXPECT_EQ(CStringWriteToStream(&stream, &text), 1);
  EXPECT_EQ(text, LongText(1500));
}

TEST(StringRecord, AZeroUnitIsWrittenLikeAnyOther) {
  const CString text(MQ_TEXT("ab\0cd"), 5);
  EXPECT_EQ(Hex(Written(text)),
            Hex(RecordBytes().Raw({5, 0, 0, 0, 0x61, 0, 0x62, 0, 0, 0, 0x63, 0, 0x64, 0}).Get()));
}

TEST(StringRecord, AZeroUnitEndsTheTextThatIsReadButAllUnitsAreConsumed) {
  struct Row {
    mqTextView units;
    mqTextView text;
  };
  const Row kRows[] = {
      {mqTextView(MQ_TEXT("ab\0cd"), 5), MQ_TEXT("ab")},
      {mqTextView(MQ_TEXT("abcd\0"), 5), MQ_TEXT("abcd")},
      {mqTextView(MQ_TEXT("\0abcd"), 5), MQ_TEXT("")},
      {mqTextView(MQ_TEXT("a\0b\0c"), 5), MQ_TEXT("a")},
  };
  for (const Row& row : kRows) {
    SCOPED_TRACE(Show(CString(row.units)));
    const ByteString bytes = RecordBytes().Text(row.units).Raw({1, 2, 3}).Get();
    const ReadOutcome read = ReadInto(MQ_TEXT("held"), bytes);
    EXPECT_EQ(read.result, 1);
    EXPECT_EQ(read.text, CString(row.text));
    EXPECT_EQ(read.consumed, 14U);
  }
}

TEST(StringRecord, UnitsWithAZeroByteDoNotEndTheText) {
  const CString text = MQ_TEXT("\u0100\u0001\uFF00\uFFFF");
  const ReadOutcome read = ReadInto(CString(), RecordBytes().Text(text.View()).Get());
  EXPECT_EQ(read.text, text);
}

TEST(StringRecord, TheCountDecidesHowManyBytesAreConsumed) {
  struct Row {
    int count;
    int result;
    int units;  // of the text that comes back; -1: the held text stays
    std::size_t consumed;
  };
  // clang-format off
  constexpr Row kRows[] = {
    //  count  result  units  consumed
    { INT_MIN,      0,    -1,        4},
    {-INT_MAX,      0,    -1,        4},
    {  -65536,      0,    -1,        4},
    {      -1,      0,    -1,        4},
    {       0,      0,    -1,        4},
    {       1,      1,     1,        6},
    {       2,      1,     2,        8},
    {    1023,      1,  1023,     2050},
    {    1024,      1,  1024,     2052},
    {    1025,      1,  1024,     2052},
    {    2000,      1,  1024,     2052},
    {   65535,      1,  1024,     2052},
    {   65536,      1,  1024,     2052},
    { INT_MAX,      1,  1024,     2052},
  };
  // clang-format on
  const CString units = LongText(66000);
  for (const Row& row : kRows) {
    SCOPED_TRACE("count " + std::to_string(row.count));
    const ByteString bytes = RecordBytes().Integer(row.count).Units(units.View()).Get();
    const ReadOutcome read = ReadInto(MQ_TEXT("held"), bytes);
    EXPECT_EQ(read.result, row.result);
    EXPECT_EQ(read.text, row.units < 0 ? CString(MQ_TEXT("held")) : units.Left(row.units));
    EXPECT_EQ(read.consumed, row.consumed);
  }
}

TEST(StringRecord, WhatACountAboveTheLimitLeavesIsReadAsTheNextRecord) {
  // 1026 units, the last two of which look like the count 3.
  const ByteString bytes = RecordBytes()
                               .Integer(1026)
                               .Units(LongText(1024).View())
                               .Raw({3, 0, 0, 0})
                               .Units(MQ_TEXT("xyz"))
                               .Get();
  host::MemoryStream stream(bytes);
  CString text;
  EXPECT_EQ(CStringReadFromStream(&stream, &text), 1);
  EXPECT_EQ(CStringReadFromStream(&stream, &text), 1);
  EXPECT_EQ(text, CString(MQ_TEXT("xyz")));
  EXPECT_EQ(stream.Position(), bytes.size());
}

TEST(StringRecord, RecordsFollowEachOtherFromThePositionOfTheStream) {
  host::MemoryStream stream;
  CString first = MQ_TEXT("one");
  CString empty;
  CString second = MQ_TEXT("\u03C3");
  EXPECT_EQ(CStringWriteToStream(&stream, &first), 1);
  EXPECT_EQ(CStringWriteToStream(&stream, &empty), 1);
  EXPECT_EQ(CStringWriteToStream(&stream, &second), 1);
  EXPECT_EQ(Hex(stream.Bytes()), Hex(RecordBytes()
                                         .Raw({3, 0, 0, 0, 0x6F, 0, 0x6E, 0, 0x65, 0})
                                         .Raw({0, 0, 0, 0})
                                         .Raw({1, 0, 0, 0, 0xC3, 0x03})
                                         .Get()));

  stream.Rewind();
  CString held = MQ_TEXT("held");
  CString kept = MQ_TEXT("kept");
  CString third;
  EXPECT_EQ(CStringReadFromStream(&stream, &held), 1);
  EXPECT_EQ(stream.Position(), 10U);
  EXPECT_EQ(CStringReadFromStream(&stream, &kept), 0);
  EXPECT_EQ(stream.Position(), 14U);
  EXPECT_EQ(CStringReadFromStream(&stream, &third), 1);
  EXPECT_EQ(stream.Position(), 20U);
  EXPECT_EQ(held, first);
  EXPECT_EQ(kept, CString(MQ_TEXT("kept")));
  EXPECT_EQ(third, second);
}

TEST(StringRecord, NullPointersTransferNothing) {
  CountingStream stream(RecordBytes().Text(MQ_TEXT("abc")).Get());
  CString text = MQ_TEXT("held");
  EXPECT_EQ(CStringWriteToStream(nullptr, &text), 0);
  EXPECT_EQ(CStringWriteToStream(&stream, nullptr), 0);
  EXPECT_EQ(CStringWriteToStream(nullptr, nullptr), 0);
  EXPECT_EQ(CStringReadFromStream(nullptr, &text), 0);
  EXPECT_EQ(CStringReadFromStream(&stream, nullptr), 0);
  EXPECT_EQ(CStringReadFromStream(nullptr, nullptr), 0);
  EXPECT_EQ(text, CString(MQ_TEXT("held")));
  EXPECT_EQ(stream.Position(), 0U);
  EXPECT_EQ(stream.reads + stream.writes, 0);
  EXPECT_EQ(stream.Bytes().size(), 10U);
}

TEST(StringRecord, AStreamThatEndsInTheCountKeepsTheTextUnlessTheDeliveredBytesCountSomething) {
  struct Row {
    int count;
    std::size_t delivered;
    int result;
    mqTextView text;
  };
  // The bytes that are not delivered count as zero, and so do the characters.
  // clang-format off
  const Row kRows[] = {
    //   count  delivered  result  text
    {       5,          0,      0, MQ_TEXT("held")},
    {       5,          1,      1, MQ_TEXT("")},
    {       5,          2,      1, MQ_TEXT("")},
    {       5,          3,      1, MQ_TEXT("")},
    {   0x100,          0,      0, MQ_TEXT("held")},
    {   0x100,          1,      0, MQ_TEXT("held")},
    {   0x100,          2,      1, MQ_TEXT("")},
    {   0x100,          3,      1, MQ_TEXT("")},
    { 0x10000,          2,      0, MQ_TEXT("held")},
    { 0x10000,          3,      1, MQ_TEXT("")},
    {      -1,          0,      0, MQ_TEXT("held")},
    {      -1,          3,      1, MQ_TEXT("")},       // 0x00FFFFFF without its sign
    { INT_MIN,          3,      0, MQ_TEXT("held")},
    {       0,          3,      0, MQ_TEXT("held")},
  };
  // clang-format on
  for (const Row& row : kRows) {
    SCOPED_TRACE("count " + std::to_string(row.count) + ", delivered " +
                 std::to_string(row.delivered));
    const ByteString bytes = FirstBytes(RecordBytes().Integer(row.count).Get(), row.delivered);
    const ReadOutcome read = ReadInto(MQ_TEXT("held"), bytes);
    EXPECT_EQ(read.result, row.result);
    EXPECT_EQ(read.text, CString(row.text));
    EXPECT_EQ(read.consumed, row.delivered);
  }
}

TEST(StringRecord, AStreamThatEndsInTheCharactersEndsTheText) {
  const ByteString bytes = RecordBytes().Text(MQ_TEXT("a\u03A9\u4E2Dd")).Get();
  // By the number of delivered character bytes; an odd byte is a unit of its low byte.
  const CString kTexts[] = {MQ_TEXT(""),
                            MQ_TEXT("a"),
                            MQ_TEXT("a"),
                            MQ_TEXT("a\u00A9"),
                            MQ_TEXT("a\u03A9"),
                            MQ_TEXT("a\u03A9\u002D"),
                            MQ_TEXT("a\u03A9\u4E2D"),
                            MQ_TEXT("a\u03A9\u4E2Dd"),
                            MQ_TEXT("a\u03A9\u4E2Dd")};
  std::size_t delivered = 4;
  for (const CString& text : kTexts) {
    SCOPED_TRACE("delivered " + std::to_string(delivered));
    const ReadOutcome read =
        ReadInto(MQ_TEXT("a longer text that was held before"), FirstBytes(bytes, delivered));
    EXPECT_EQ(read.result, 1);
    EXPECT_EQ(read.text, text);
    EXPECT_EQ(read.consumed, delivered);
    ++delivered;
  }
  EXPECT_EQ(delivered, bytes.size() + 1);
}

TEST(StringRecord, ALongTextIsCutAtEveryByteOfTheStream) {
  const CString text = LongText(1024);
  const ByteString bytes = RecordBytes().Text(text.View()).Get();
  for (std::size_t delivered = 4; delivered < bytes.size(); ++delivered) {
    CString expected = text.Left(static_cast<int>((delivered - 4) / 2));
    if (delivered % 2 == 1) {
      // An odd byte of zero is a unit of zero.
      const auto low = static_cast<mqChar>(bytes[delivered - 1]);
      expected = low == 0 ? expected : expected + low;
    }
    const ReadOutcome read = ReadInto(MQ_TEXT("held"), FirstBytes(bytes, delivered));
    ASSERT_EQ(read.result, 1) << delivered;
    ASSERT_EQ(read.text, expected) << delivered;
    ASSERT_EQ(read.consumed, delivered);
  }
}

TEST(StringRecord, AClaimOf1024UnitsWithoutOneIsAnEmptyText) {
  for (const int count : {1, 1024, 1025, INT_MAX}) {
    SCOPED_TRACE("count " + std::to_string(count));
    const ReadOutcome read = ReadInto(MQ_TEXT("held"), RecordBytes().Integer(count).Get());
    EXPECT_EQ(read.result, 1);
    EXPECT_EQ(read.text, CString());
    EXPECT_EQ(read.consumed, 4U);
  }
}

TEST(StringRecord, RefusedReadsKeepTheText) {
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    SCOPED_TRACE("result " + std::to_string(result));
    RefusingStream stream(result);
    CString text = MQ_TEXT("held");
    EXPECT_EQ(CStringReadFromStream(&stream, &text), 0);
    EXPECT_EQ(text, CString(MQ_TEXT("held")));
  }
}

TEST(StringRecord, ARefusedReadOfTheCharactersLeavesAnEmptyText) {
  WearyStream stream(RecordBytes().Text(MQ_TEXT("abc")).Get(), 1);
  CString text = MQ_TEXT("held");
  EXPECT_EQ(CStringReadFromStream(&stream, &text), 1);
  EXPECT_EQ(text, CString());
  EXPECT_TRUE(stream.IsWornOut());
}

TEST(StringRecord, RefusedAndShortWritesAreNotLookedAt) {
  CString text = MQ_TEXT("abc");
  for (const HRESULT result : {E_FAIL, STG_E_ACCESSDENIED, S_FALSE, S_OK}) {
    RefusingStream refusing(result);
    EXPECT_EQ(CStringWriteToStream(&refusing, &text), 1) << result;
  }
  for (const ULONG limit : {0U, 1U, 2U, 3U, 5U}) {
    GrudgingStream grudging({}, limit);
    EXPECT_EQ(CStringWriteToStream(&grudging, &text), 1) << limit;
  }
}

TEST(StringRecord, TheNumberOfTransferredBytesIsNotAskedFor) {
  CountingStream stream;
  CString text = MQ_TEXT("abc");
  EXPECT_EQ(CStringWriteToStream(&stream, &text), 1);
  stream.Rewind();
  EXPECT_EQ(CStringReadFromStream(&stream, &text), 1);
  EXPECT_GT(stream.reads, 0);
  EXPECT_GT(stream.writes, 0);
  EXPECT_EQ(stream.counted, 0);
}

}  // namespace
}  // namespace mqp::test
