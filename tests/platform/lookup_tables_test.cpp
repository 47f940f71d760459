#include <cstddef>
#include <cstdint>
#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/lookup_tables.h>

namespace mqp {
namespace {

constexpr auto kAny = [](int) { return true; };
constexpr auto kNobody = [](int) { return false; };

std::basic_string<mqChar> Numbered(int number) {
  std::basic_string<mqChar> text = MQ_TEXT("body ");
  for (int rest = number; rest > 0; rest /= 10) {
    text += static_cast<mqChar>('0' + rest % 10);
  }
  return text;
}

TEST(KeyTable, ANewOneKnowsNothing) {
  const KeyTable table;
  EXPECT_EQ(table.Find(0, kAny), -1);
  EXPECT_EQ(table.Find(0xFFFF'FFFF, kAny), -1);
}

TEST(KeyTable, TheFirstNumberUnderAKeyStays) {
  KeyTable table;
  EXPECT_EQ(table.FindOrAdd(7, 30, kAny), 30);
  EXPECT_EQ(table.FindOrAdd(7, 31, kAny), 30);
  EXPECT_EQ(table.FindOrAdd(8, 0, kAny), 0);
  EXPECT_EQ(table.Find(7, kAny), 30);
  EXPECT_EQ(table.Find(8, kAny), 0);
  EXPECT_EQ(table.Find(9, kAny), -1);
}

TEST(KeyTable, ThingsThatShareAKeyAreToldApart) {
  KeyTable table;
  for (int number = 0; number < 40; ++number) {
    const auto isMeant = [number](int other) { return other == number; };
    EXPECT_EQ(table.FindOrAdd(5, number, isMeant), number);
  }
  for (int number = 0; number < 40; ++number) {
    EXPECT_EQ(table.Find(5, [number](int other) { return other == number; }), number);
  }
  EXPECT_EQ(table.Find(5, kNobody), -1);
}

TEST(KeyTable, OnlyNumbersUnderTheSameKeyAreAskedFor) {
  KeyTable table;
  for (std::uint32_t key = 0; key < 1000; ++key) {
    table.FindOrAdd(key, static_cast<int>(key), kAny);
  }
  for (std::uint32_t key = 0; key < 1000; ++key) {
    std::vector<int> asked;
    const auto note = [&asked](int number) {
      asked.push_back(number);
      return true;
    };
    EXPECT_EQ(table.Find(key, note), static_cast<int>(key));
    EXPECT_EQ(asked, std::vector<int>{static_cast<int>(key)});
  }
  EXPECT_EQ(table.Find(1000, kAny), -1);
}

TEST(KeyTable, ManyKeysOfEveryKindAreFoundAgain) {
  KeyTable table;
  std::vector<std::uint32_t> keys;
  for (std::uint32_t step = 0; step < 3000; ++step) {
    keys.push_back(step);
    keys.push_back(0xFFFF'FFFF - step);
    keys.push_back(step * 0x0001'0000 + 0x4000);
  }
  const std::set<std::uint32_t> different(keys.begin(), keys.end());
  ASSERT_EQ(different.size(), keys.size());
  for (std::size_t place = 0; place < keys.size(); ++place) {
    EXPECT_EQ(table.FindOrAdd(keys[place], static_cast<int>(place), kAny), static_cast<int>(place));
    EXPECT_EQ(table.Find(keys[place / 2], kAny), static_cast<int>(place / 2));
  }
  for (std::size_t place = 0; place < keys.size(); ++place) {
    EXPECT_EQ(table.Find(keys[place], kAny), static_cast<int>(place)) << keys[place];
  }
  EXPECT_EQ(table.Find(123'456'789, kAny), -1);
}

TEST(TextTable, NumbersTextsInTheOrderOfTheirFirstComing) {
  TextTable table;
  EXPECT_EQ(table.GetSize(), 0);
  EXPECT_EQ(table.Find(MQ_TEXT("")), -1);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("bolt")), 0);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("")), 1);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("bol")), 2);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("bolt")), 0);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("t")), 3);
  EXPECT_EQ(table.FindOrAdd(MQ_TEXT("")), 1);
  EXPECT_EQ(table.GetSize(), 4);
  EXPECT_EQ(table.Find(MQ_TEXT("bolt")), 0);
  EXPECT_EQ(table.Find(MQ_TEXT("")), 1);
  EXPECT_EQ(table.Find(MQ_TEXT("bol")), 2);
  EXPECT_EQ(table.Find(MQ_TEXT("t")), 3);
  EXPECT_EQ(table.Find(MQ_TEXT("Bolt")), -1);
}

TEST(TextTable, KeepsCopiesOfManyTexts) {
  TextTable table;
  for (int number = 0; number < 500; ++number) {
    EXPECT_EQ(table.FindOrAdd(Numbered(number)), number);
  }
  for (int number = 0; number < 500; ++number) {
    EXPECT_EQ(table.Find(Numbered(number)), number);
    EXPECT_EQ(table.FindOrAdd(Numbered(number)), number);
  }
  EXPECT_EQ(table.GetSize(), 500);
  EXPECT_EQ(table.Find(Numbered(500)), -1);
}

TEST(FoldedText, IsTheSameForTextsThatDifferInLetterCaseAlone) {
  std::basic_string<mqChar> folded = MQ_TEXT("something longer that was here");
  FoldText(MQ_TEXT("Br\u00FCcke 7A"), folded);
  std::basic_string<mqChar> other;
  FoldText(MQ_TEXT("bR\u00DCCKE 7a"), other);
  EXPECT_EQ(folded, other);
  EXPECT_EQ(folded.size(), 9U);
  FoldText(MQ_TEXT("BRUCKE 7A"), other);
  EXPECT_NE(folded, other);
  FoldText(mqTextView(), folded);
  EXPECT_TRUE(folded.empty());
}

}  // namespace
}  // namespace mqp
