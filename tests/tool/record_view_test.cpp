#include <optional>

#include <mqpost/record_view.h>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

using tool::RecordLayout;
using tool::RecordView;

/// 16 bytes and a text in version 10, 4 bytes more from 20 on, a text more from 30 on.
const RecordLayout kLayout = {{
                                  {"numbers", FieldType::Integer, 2, 10},
                                  {"late", FieldType::Integer, 1, 20},
                                  {"real", FieldType::Double, 1, 10},
                                  {"text", FieldType::String, 1, 10},
                                  {"more", FieldType::String, 1, 30},
                              },
                              {},
                              {}};

// clang-format off
const ByteString kVersion10 = Joined({}, {
    0x01, 0x00, 0x00, 0x00, 0xFE, 0xFF, 0xFF, 0xFF,              // 1, -2
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0xBF,              // -0.5
    0x02, 0x00, 0x00, 0x00, 0xA3, 0x03, 0x00, 0x00,              // "Σ" and a zero unit
});
const ByteString kVersion30 = Joined({}, {
    0x01, 0x00, 0x00, 0x00, 0xFE, 0xFF, 0xFF, 0xFF,
    0x07, 0x00, 0x00, 0x00,                                      // 7
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0xBF,
    0x00, 0x00, 0x00, 0x00,                                      // ""
    0x01, 0x00, 0x00, 0x00, 0x41, 0x00,                          // "A"
});
// clang-format on

TEST(RecordViewing, FieldsOfTheVersionAreDecodedInPlace) {
  const RecordView record = tool::ViewRecord(kVersion10, kLayout, 19);
  ASSERT_TRUE(record.Fits());
  ASSERT_EQ(record.fields.size(), 3U);
  EXPECT_EQ(record.fields[0].field.name, "numbers");
  EXPECT_EQ(record.fields[0].values[1].offset, 4U);
  EXPECT_EQ(std::get<int>(record.fields[0].values[1].value), -2);
  EXPECT_EQ(record.fields[1].values[0].offset, 8U);
  EXPECT_EQ(std::get<double>(record.fields[1].values[0].value), -0.5);
  EXPECT_EQ(record.fields[2].values[0].bytes.size(), 8U);
  EXPECT_EQ(std::get<std::basic_string<mqChar>>(record.fields[2].values[0].value),
            mqTextView(MQ_TEXT("\u03A3\0"), 2));
  EXPECT_EQ(tool::FindField(record, "late"), nullptr);
  EXPECT_EQ(tool::FindField(record, "real"), &record.fields[1]);
}

TEST(RecordViewing, ARecordOfEveryShorterLengthHasAFaultWhereItEnds) {
  for (std::size_t length = 0; length < kVersion30.size(); ++length) {
    const ByteString bytes = FirstBytes(kVersion30, length);
    const RecordView record = tool::ViewRecord(bytes, kLayout, 30);
    EXPECT_FALSE(record.Fits()) << length;
    ASSERT_TRUE(record.fault) << length;
    EXPECT_LE(record.fault->offset, length);
    EXPECT_GT(record.fault->offset + 8, length);
  }
  const ByteString bytes = FirstBytes(kVersion30, 29);
  const RecordView record = tool::ViewRecord(bytes, kLayout, 30);
  ASSERT_TRUE(record.fault);
  EXPECT_EQ(record.fault->field, "more");
  EXPECT_EQ(record.fault->offset, 24U);
  EXPECT_EQ(record.fault->what, "2 bytes are needed at byte 28, and only 1 are left");
}

TEST(RecordViewing, BytesLeftOverAreCounted) {
  const ByteString bytes = Joined(kVersion10, {1, 2, 3});
  const RecordView record = tool::ViewRecord(bytes, kLayout, 10);
  EXPECT_FALSE(record.fault);
  EXPECT_FALSE(record.Fits());
  EXPECT_EQ(record.end, 24U);
  EXPECT_EQ(record.leftover, 3U);
}

TEST(RecordViewing, ATextOfImpossibleLengthIsAFault) {
  const RecordLayout layout = {{{"text", FieldType::String, 3, 1}}, {}, {}};
  struct Case {
    ByteString bytes;
    bool fits;
  };
  const auto ofLength = [](std::initializer_list<int> count, std::size_t units) {
    ByteString bytes = Joined({}, count);
    bytes.resize(bytes.size() + 2 * units, std::byte{0x41});
    bytes.resize(bytes.size() + 8, std::byte{0});  // two empty texts
    return bytes;
  };
  const Case cases[] = {
      {ofLength({0x00, 0x04, 0, 0}, 1024), true},
      {ofLength({0x01, 0x04, 0, 0}, 1025), false},
      {ofLength({0xFF, 0xFF, 0xFF, 0xFF}, 0), false},
      {ofLength({0x00, 0x00, 0x00, 0x80}, 0), false},
  };
  for (const Case& row : cases) {
    const RecordView record = tool::ViewRecord(row.bytes, layout, 1);
    EXPECT_EQ(record.Fits(), row.fits) << row.bytes.size();
    if (!row.fits) {
      ASSERT_TRUE(record.fault);
      EXPECT_EQ(record.fault->field, "text [0]");
      EXPECT_EQ(record.fault->offset, 0U);
    }
  }
}

TEST(RecordViewing, TheVersionsThatFitAreFound) {
  const auto ten = tool::FindFittingVersions(kVersion10, kLayout);
  ASSERT_EQ(ten.size(), 1U);
  EXPECT_EQ(ten[0].first, 10);
  EXPECT_EQ(ten[0].last, 19);
  const auto thirty = tool::FindFittingVersions(kVersion30, kLayout);
  ASSERT_EQ(thirty.size(), 1U);
  EXPECT_EQ(thirty[0].first, 30);
  EXPECT_EQ(thirty[0].last, std::nullopt);
  EXPECT_TRUE(tool::FindFittingVersions(FirstBytes(kVersion10, 7), kLayout).empty());
}

// ---------------------------------------------------------------------------------------------
// Records that hold others

/// A text and a counted list of children: 12 bytes or more each in version 10, 4 more from 20 on.
const RecordLayout kFamily = {
    {{"title", FieldType::String, 1, 10}, {"number of parts", FieldType::Integer, 1, 10}},
    {{"name", FieldType::String, 1, 10},
     {"weight", FieldType::Double, 1, 10},
     {"age", FieldType::Integer, 1, 20}},
    "part"};

// clang-format off
const ByteString kTwoChildren = Joined({}, {
    0x00, 0x00, 0x00, 0x00,                                      // ""
    0x02, 0x00, 0x00, 0x00,                                      // 2
    0x01, 0x00, 0x00, 0x00, 0x41, 0x00,                          // "A"
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xE0, 0xBF,              // -0.5
    0x00, 0x00, 0x00, 0x00,                                      // ""
    0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xF0, 0x3F,              // 1.0
});
// clang-format on

TEST(RecordViewing, ChildRecordsFollowTheirCounter) {
  const RecordView record = tool::ViewRecord(kTwoChildren, kFamily, 10);
  ASSERT_TRUE(record.Fits());
  std::vector<std::string> names;
  for (const tool::FieldView& field : record.fields) {
    names.push_back(field.name);
  }
  EXPECT_EQ(names, (std::vector<std::string>{"title", "number of parts", "part 0: name",
                                             "part 0: weight", "part 1: name", "part 1: weight"}));
  EXPECT_EQ(record.fields[1].child, std::nullopt);
  EXPECT_EQ(record.fields[3].child, 0U);
  EXPECT_EQ(record.fields[3].field.name, "weight");
  EXPECT_EQ(record.fields[3].values[0].offset, 14U);
  EXPECT_EQ(std::get<double>(record.fields[3].values[0].value), -0.5);
  EXPECT_EQ(record.fields[5].child, 1U);
  EXPECT_EQ(record.fields[5].values[0].offset, 26U);
  EXPECT_EQ(tool::FindField(record, "part 1: name"), &record.fields[4]);
  EXPECT_EQ(tool::FindField(record, "name"), nullptr);
}

TEST(RecordViewing, ChildRecordsHaveTheFieldsOfTheVersion) {
  const ByteString bytes = Joined({}, {0, 0, 0, 0, 1, 0, 0, 0,              // one child
                                       0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0,  // without a name
                                       7, 0, 0, 0});
  const RecordView late = tool::ViewRecord(bytes, kFamily, 20);
  ASSERT_TRUE(late.Fits());
  EXPECT_EQ(std::get<int>(late.fields.back().values[0].value), 7);
  EXPECT_EQ(tool::ViewRecord(bytes, kFamily, 19).leftover, 4U);
  const auto ranges = tool::FindFittingVersions(bytes, kFamily);
  ASSERT_EQ(ranges.size(), 1U);
  EXPECT_EQ(ranges[0].first, 20);
  EXPECT_TRUE(tool::ViewRecord(kTwoChildren, kFamily, 9).fields.empty());
}

TEST(RecordViewing, ChildrenOfEveryShorterLengthHaveAFault) {
  for (std::size_t length = 0; length < kTwoChildren.size(); ++length) {
    const ByteString bytes = FirstBytes(kTwoChildren, length);
    const RecordView record = tool::ViewRecord(bytes, kFamily, 10);
    EXPECT_FALSE(record.Fits()) << length;
    ASSERT_TRUE(record.fault) << length;
    EXPECT_LE(record.fault->offset, length);
  }
}

TEST(RecordViewing, ACounterThatCannotBeTrueIsAFaultOfItsOwn) {
  struct Case {
    std::initializer_list<int> counter;
    std::size_t bytesBehind;
    const char* what;  ///< null for none
  };
  const Case cases[] = {
      {{0, 0, 0, 0}, 0, nullptr},
      {{1, 0, 0, 0}, 12, nullptr},
      {{1, 0, 0, 0},
       11,
       "the record claims 1 parts of at least 12 bytes each, and only 11 bytes are left"},
      {{1, 0, 0, 0},
       0,
       "the record claims 1 parts of at least 12 bytes each, and the record ends there"},
      {{0xFF, 0xFF, 0xFF, 0xFF}, 12, "the record claims -1 parts, and 0 to 65536 are possible"},
      {{0x00, 0x00, 0x01, 0x00}, 12 * 65536, nullptr},
      {{0x01, 0x00, 0x01, 0x00},
       12 * 65537,
       "the record claims 65537 parts, and 0 to 65536 are possible"},
      {{0xFF, 0xFF, 0xFF, 0x7F},
       12,
       "the record claims 2147483647 parts, and 0 to 65536 are possible"},
  };
  for (const Case& row : cases) {
    ByteString bytes = Joined(Joined({}, {0, 0, 0, 0}), row.counter);
    bytes.resize(bytes.size() + row.bytesBehind, std::byte{0});
    const RecordView record = tool::ViewRecord(bytes, kFamily, 10);
    EXPECT_EQ(record.Fits(), row.what == nullptr) << row.bytesBehind;
    if (row.what != nullptr) {
      ASSERT_TRUE(record.fault);
      EXPECT_EQ(record.fault->field, "number of parts");
      EXPECT_EQ(record.fault->offset, 4U);
      EXPECT_EQ(record.fault->what, row.what);
      // The counter itself is shown, and nothing behind it.
      EXPECT_EQ(record.fields.size(), 2U);
      EXPECT_EQ(record.end, 8U);
    }
  }
}

}  // namespace
}  // namespace mqp::test
