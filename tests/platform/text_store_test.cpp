#include <algorithm>
#include <cstddef>
#include <new>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/text_store.h>

#include "platform/print_text.h"

namespace mqp {
namespace {

using Units = std::basic_string<mqChar>;

/// As many different units.
Units UnitsOf(std::size_t count) {
  Units units;
  for (std::size_t place = 0; place < count; ++place) {
    units += static_cast<mqChar>('A' + place);
  }
  return units;
}

/// The text, and that a zero stands behind it.
void Expect(const TextStore& text, const Units& expected) {
  EXPECT_EQ(Units(text.View()), expected);
  EXPECT_EQ(text.Length(), expected.size());
  EXPECT_EQ(text.Units(), text.View().data());
  EXPECT_EQ(text.Units()[expected.size()], 0);
}

/// Whether the units lie in the object.
bool IsWithin(const TextStore& text) {
  const auto* const begin = reinterpret_cast<const mqChar*>(&text);
  const auto* const end = reinterpret_cast<const mqChar*>(&text + 1);
  return begin <= text.Units() && text.Units() + 44 <= end;
}

/// Nothing, one, as many as there is room for in the object, one more, far more.
constexpr std::size_t kLengths[] = {0, 1, 42, 43, 44, 45, 87, 88, 89, 500};

TEST(TextStore, HasRoomForADisplayNameInItself) {
  EXPECT_EQ(sizeof(TextStore), 96U);
  for (const std::size_t length : kLengths) {
    EXPECT_EQ(IsWithin(TextStore(UnitsOf(length))), length <= 43) << length;
  }
  EXPECT_TRUE(IsWithin(TextStore()));
}

TEST(TextStore, HoldsACopyOfTheUnitsItIsMadeOf) {
  Expect(TextStore(), {});
  Expect(TextStore(mqTextView()), {});
  for (const std::size_t length : kLengths) {
    Expect(TextStore(UnitsOf(length)), UnitsOf(length));
    Expect(TextStore(length, MQ_TEXT('x')), Units(length, MQ_TEXT('x')));
  }
}

TEST(TextStore, IsCopiedAndMovedAtEveryLength) {
  for (const std::size_t length : kLengths) {
    TextStore source(UnitsOf(length));
    const TextStore copy(source);
    Expect(source, UnitsOf(length));
    const mqChar* const units = source.Units();
    const TextStore moved(std::move(source));
    EXPECT_EQ(moved.Units() == units, length > 43) << length;
    EXPECT_NE(copy.Units(), units);
    Expect(copy, UnitsOf(length));
    Expect(moved, UnitsOf(length));
    Expect(source, {});  // NOLINT(bugprone-use-after-move): empty, as promised
    source.Append(UnitsOf(44));
    Expect(source, UnitsOf(44));
  }
}

TEST(TextStore, TakesTheTextOfAnotherOneAtEveryLength) {
  for (const std::size_t before : kLengths) {
    for (const std::size_t length : kLengths) {
      const TextStore source(UnitsOf(length));
      TextStore target(UnitsOf(before));
      target = source;
      Expect(target, UnitsOf(length));

      TextStore moving(source);
      TextStore movedTo(UnitsOf(before));
      movedTo = std::move(moving);
      Expect(movedTo, UnitsOf(length));
      Expect(moving, {});  // NOLINT(bugprone-use-after-move): empty, as promised
      moving.Append(UnitsOf(50));
      Expect(moving, UnitsOf(50));
      movedTo.Append(UnitsOf(50));
      Expect(movedTo, UnitsOf(length) + UnitsOf(50));
    }
    TextStore itself(UnitsOf(before));
    TextStore& same = itself;
    itself = same;
    Expect(itself, UnitsOf(before));
    itself = std::move(same);
    Expect(itself, UnitsOf(before));
  }
}

/// A padded text in memory of its own, of which not one unit more may be read.
class Padded {
 public:
  explicit Padded(const Units& text)
      : m_memory(std::max<std::size_t>(text.size(), 44), MQ_TEXT('?')), m_length(text.size()) {
    std::ranges::copy(text, m_memory.begin());
  }
  [[nodiscard]] PaddedText Text() const { return {m_memory.data(), m_length}; }

 private:
  std::vector<mqChar> m_memory;
  std::size_t m_length;
};

TEST(TextStore, TakesOfAPaddedTextNoMoreThanItsLength) {
  EXPECT_EQ(PaddedText::kUnits, 44U);
  for (const std::size_t length : kLengths) {
    const Padded padded(UnitsOf(length));
    const TextStore made(padded.Text());
    Expect(made, UnitsOf(length));
    EXPECT_EQ(IsWithin(made), length <= 43) << length;
    for (const std::size_t before : kLengths) {
      TextStore target(UnitsOf(before));
      const mqChar* const units = target.Units();
      target.Assign(padded.Text());
      Expect(target, UnitsOf(length));
      EXPECT_EQ(target.Units() == units, length <= std::max<std::size_t>(before, 43)) << length;
      target.Append(UnitsOf(50));
      Expect(target, UnitsOf(length) + UnitsOf(50));
    }
  }
}

TEST(TextStore, KeepsItsRoomWhenItBecomesShorter) {
  TextStore text(UnitsOf(100));
  const mqChar* const units = text.Units();
  text.Assign(UnitsOf(3));
  Expect(text, UnitsOf(3));
  EXPECT_EQ(text.Units(), units);
  text.Assign(UnitsOf(100));
  Expect(text, UnitsOf(100));
  EXPECT_EQ(text.Units(), units);
  text.Assign(UnitsOf(101));
  Expect(text, UnitsOf(101));
  text = TextStore(UnitsOf(2));
  Expect(text, UnitsOf(2));
  EXPECT_TRUE(IsWithin(text));
}

TEST(TextStore, TakesPartsOfItself) {
  for (const std::size_t length : {std::size_t{43}, std::size_t{60}}) {
    const Units units = UnitsOf(length);
    TextStore text(units);
    text.Assign(text.View().substr(5, 30));
    Expect(text, units.substr(5, 30));
    text = TextStore(units);
    text.Append(text.View().substr(2, 40));
    Expect(text, units + units.substr(2, 40));
    text = TextStore(UnitsOf(20));
    text.Append(text.View());
    Expect(text, UnitsOf(20) + UnitsOf(20));
  }
}

TEST(TextStore, AsksForMemoryAsOftenAsItsLengthDoubles) {
  TextStore text;
  Units expected;
  const mqChar* units = text.Units();
  int moves = 0;
  for (int unit = 0; unit < 1000; ++unit) {
    const auto appended = static_cast<mqChar>('A' + unit % 50);
    expected += appended;
    text.Append({&appended, 1});
    moves += text.Units() == units ? 0 : 1;
    units = text.Units();
  }
  Expect(text, expected);
  EXPECT_EQ(moves, 5);  // behind 43, 86, 172, 344 and 688 units
  text.Append(UnitsOf(2000));
  Expect(text, expected + UnitsOf(2000));
}

TEST(TextStore, HasNoMemoryForMoreUnitsThan32BitsCount) {
  EXPECT_THROW(TextStore(std::size_t{1} << 32, MQ_TEXT('x')), std::bad_alloc);
}

TEST(TextStore, LosesTheUnitsThatAreErased) {
  for (const std::size_t length : {std::size_t{10}, std::size_t{60}}) {
    const Units units = UnitsOf(length);
    for (std::size_t first = 0; first <= length; first += 5) {
      for (std::size_t last = first; last <= length; last += 5) {
        TextStore text(units);
        text.Erase(first, last);
        Expect(text, units.substr(0, first) + units.substr(last));
      }
    }
  }
}

}  // namespace
}  // namespace mqp
