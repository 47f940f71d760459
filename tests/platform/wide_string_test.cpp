#include <array>
#include <climits>
#include <clocale>
#include <compare>
#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/wide_string.h>

#include "platform/print_text.h"

namespace {

constexpr mqChar kZero = 0;

/// "a", a zero unit, "b".
CString ZeroInside() {
  const mqChar units[] = {MQ_TEXT('a'), kZero, MQ_TEXT('b')};
  return CString(units, 3);
}

/// Too long for a string's own buffer: the text lies in memory that growing moves.
constexpr const mqChar* kLongText = MQ_TEXT("0123456789 0123456789 0123456789");

// ---- Construction, assignment, access --------------------------------------------------------

TEST(WideString, ANewStringIsEmpty) {
  const CString text;
  EXPECT_EQ(text.GetLength(), 0);
  EXPECT_TRUE(text.IsEmpty());
  ASSERT_NE(text.GetString(), nullptr);
  EXPECT_EQ(text.GetString()[0], kZero);
  EXPECT_EQ(text[0], kZero);
}

TEST(WideString, ANullPointerCountsAsEmpty) {
  const mqChar* none = nullptr;
  EXPECT_EQ(CString(none), CString());
  EXPECT_EQ(CString(none, 0), CString());
  EXPECT_EQ(CString(none, 3), CString());
  CString text = MQ_TEXT("abc");
  text = none;
  EXPECT_EQ(text, CString());
  text = MQ_TEXT("abc");
  text += none;
  EXPECT_EQ(text + none, CString(MQ_TEXT("abc")));
  EXPECT_EQ(none + text, CString(MQ_TEXT("abc")));
  EXPECT_EQ(text.Insert(1, none), 3);
  EXPECT_EQ(text.Find(none), -1);
  EXPECT_EQ(text.Replace(none, MQ_TEXT("x")), 0);
  EXPECT_EQ(text.Trim(none), CString(MQ_TEXT("abc")));
  EXPECT_EQ(text.Compare(none), 1);
  EXPECT_EQ(text.CompareNoCase(none), 1);
  EXPECT_EQ(CString().Compare(none), 0);
  EXPECT_EQ(CString().CompareNoCase(none), 0);
  EXPECT_FALSE(text == none);
  EXPECT_TRUE(CString() == none);
}

TEST(WideString, APointerIsReadUpToItsZeroOrForTheGivenLength) {
  EXPECT_EQ(CString(MQ_TEXT("abc")).GetLength(), 3);
  EXPECT_EQ(CString(MQ_TEXT("abc"), 2), CString(MQ_TEXT("ab")));
  EXPECT_EQ(CString(MQ_TEXT("abc"), 0), CString());
  EXPECT_EQ(CString(MQ_TEXT("abc"), -1), CString());
  EXPECT_EQ(CString(MQ_TEXT("abc"), INT_MIN), CString());
  EXPECT_EQ(CString(MQ_TEXT("abc"), 4).GetLength(), 4);  // the terminator is a unit like any other
}

TEST(WideString, AUnitIsRepeated) {
  EXPECT_EQ(CString(MQ_TEXT('x')), CString(MQ_TEXT("x")));
  EXPECT_EQ(CString(MQ_TEXT('x'), 3), CString(MQ_TEXT("xxx")));
  EXPECT_EQ(CString(MQ_TEXT('x'), 0), CString());
  EXPECT_EQ(CString(MQ_TEXT('x'), -2), CString());
  EXPECT_EQ(CString(kZero, 2).GetLength(), 2);
}

TEST(WideString, ZeroUnitsInsideCountExceptForAReaderOfThePointer) {
  const CString text = ZeroInside();
  EXPECT_EQ(text.GetLength(), 3);
  EXPECT_EQ(text.GetAt(2), MQ_TEXT('b'));
  EXPECT_EQ(text.View().size(), 3U);
  EXPECT_EQ(CString(text.View()).GetLength(), 3);
  EXPECT_EQ(CString(text).GetLength(), 3);
  EXPECT_EQ(CString(text.GetString()), CString(MQ_TEXT("a")));
  EXPECT_FALSE(text == CString(MQ_TEXT("a")));
  EXPECT_EQ((text + text).GetLength(), 6);
  EXPECT_EQ(text.Find(MQ_TEXT('b')), 2);
  EXPECT_EQ(text.Find(kZero), 1);
  EXPECT_EQ(text.Find(text), 0);
  EXPECT_EQ(text.ReverseFind(kZero), 1);
  EXPECT_EQ(text.Right(2).GetLength(), 2);
  EXPECT_EQ(text.Mid(1).GetLength(), 2);

  CString changed = text;
  EXPECT_EQ(changed.Replace(MQ_TEXT("b"), MQ_TEXT("cd")), 1);
  EXPECT_EQ(changed.GetLength(), 4);
  EXPECT_EQ(changed.Replace(kZero, MQ_TEXT('-')), 1);
  EXPECT_EQ(changed, CString(MQ_TEXT("a-cd")));
  changed = text;
  EXPECT_EQ(changed.Remove(kZero), 1);
  EXPECT_EQ(changed, CString(MQ_TEXT("ab")));
  changed = text;
  EXPECT_EQ(changed.Trim(MQ_TEXT("ab")).GetLength(), 1);
}

TEST(WideString, AViewIsCopied) {
  std::basic_string<mqChar> source(MQ_TEXT("abc"));
  const CString text{mqTextView(source)};
  source[0] = MQ_TEXT('x');
  EXPECT_EQ(text, CString(MQ_TEXT("abc")));
}

TEST(WideString, AViewTakesThePlaceOfATextAndTheRoomThatItHas) {
  CString text = kLongText;
  const mqChar* const room = text.GetString();
  text = ZeroInside().View();
  EXPECT_EQ(text.GetLength(), 3);
  EXPECT_EQ(text, ZeroInside());
  text = mqTextView(MQ_TEXT("abcdefghijklmno"));
  EXPECT_EQ(text, MQ_TEXT("abcdefghijklmno"));
  EXPECT_EQ(text.GetString(), room);
  text = mqTextView();
  EXPECT_EQ(text, MQ_TEXT(""));
}

TEST(WideString, APaddedTextTakesThePlaceOfAText) {
  const std::basic_string<mqChar> units = MQ_TEXT("mm") + std::basic_string<mqChar>(42, '?');
  const mqp::PaddedText padded{units.data(), 2};
  CString text(padded);
  EXPECT_EQ(text, MQ_TEXT("mm"));
  text = MQ_TEXT("newton");
  text = padded;
  EXPECT_EQ(text, MQ_TEXT("mm"));
  EXPECT_EQ(text.GetLength(), 2);
  EXPECT_EQ(text.GetString()[2], 0);
}

TEST(WideString, AViewOfItsOwnPartTakesThePlaceOfAText) {
  CString text = MQ_TEXT("abcdefghijklmno");
  text = text.View().substr(4, 9);
  EXPECT_EQ(text, MQ_TEXT("efghijklm"));
}

TEST(WideString, ACopyStandsByItselfAndAMovedTextArrives) {
  const CString source(kLongText);
  CString copy = source;
  copy.SetAt(0, MQ_TEXT('x'));
  EXPECT_EQ(source, CString(kLongText));
  const CString moved = std::move(copy);
  EXPECT_EQ(moved[0], MQ_TEXT('x'));
  CString assigned;
  assigned = source;
  EXPECT_EQ(assigned, source);
  CString& self = assigned;
  assigned = self;
  EXPECT_EQ(assigned, source);
}

TEST(WideString, UnitsAreReadUpToTheTerminatorAndWrittenBelowIt) {
  CString text = MQ_TEXT("abc");
  EXPECT_EQ(text.GetAt(0), MQ_TEXT('a'));
  EXPECT_EQ(text.GetAt(2), MQ_TEXT('c'));
  EXPECT_EQ(text.GetAt(3), kZero);
  EXPECT_EQ(text[2], MQ_TEXT('c'));
  text.SetAt(1, MQ_TEXT('x'));
  EXPECT_EQ(text, CString(MQ_TEXT("axc")));
}

TEST(WideString, AnySubscriptTypeIsTaken) {
  const CString text = MQ_TEXT("abc");
  EXPECT_EQ(text[1], MQ_TEXT('b'));
  EXPECT_EQ(text[1U], MQ_TEXT('b'));
  EXPECT_EQ(text[1L], MQ_TEXT('b'));
  EXPECT_EQ(text[1LL], MQ_TEXT('b'));
  EXPECT_EQ(text[std::size_t{1}], MQ_TEXT('b'));
  EXPECT_EQ(text[std::ptrdiff_t{1}], MQ_TEXT('b'));
  EXPECT_EQ(text[static_cast<short>(1)], MQ_TEXT('b'));
}

TEST(WideString, EmptyingLeavesAUsableString) {
  CString text(kLongText);
  text.Empty();
  EXPECT_TRUE(text.IsEmpty());
  EXPECT_EQ(text[0], kZero);
  text += MQ_TEXT("a");
  EXPECT_EQ(text, CString(MQ_TEXT("a")));
}

// ---- Putting texts together ------------------------------------------------------------------

TEST(WideString, TextsAndUnitsAreJoinedInEveryOrder) {
  const CString b = MQ_TEXT("b");
  const mqChar* pointer = MQ_TEXT("p");
  EXPECT_EQ(b + b, CString(MQ_TEXT("bb")));
  EXPECT_EQ(b + MQ_TEXT("c"), CString(MQ_TEXT("bc")));
  EXPECT_EQ(MQ_TEXT("a") + b, CString(MQ_TEXT("ab")));
  EXPECT_EQ(b + MQ_TEXT('c'), CString(MQ_TEXT("bc")));
  EXPECT_EQ(MQ_TEXT('a') + b, CString(MQ_TEXT("ab")));
  EXPECT_EQ(pointer + b + pointer + MQ_TEXT('!') + b, CString(MQ_TEXT("pbp!b")));
  EXPECT_EQ(CString() + CString(), CString());
  EXPECT_EQ(b, CString(MQ_TEXT("b")));

  CString text;
  EXPECT_EQ(&(text += MQ_TEXT('a')), &text);
  EXPECT_EQ(&(text += MQ_TEXT("bc")), &text);
  EXPECT_EQ(&(text += CString(MQ_TEXT("de"))), &text);
  text += kZero;
  EXPECT_EQ(text.GetLength(), 6);
}

TEST(WideString, ATextMayBeAssignedFromItsOwnPart) {
  for (const mqChar* source : {MQ_TEXT("abcd"), kLongText}) {
    CString text(source);
    text = text.GetString() + 1;
    EXPECT_EQ(text, CString(source + 1));
    text = text.GetString();
    EXPECT_EQ(text, CString(source + 1));
    text = text.GetString() + text.GetLength();
    EXPECT_EQ(text, CString());
  }
}

TEST(WideString, ATextMayBeAppendedToItselfAtEverySize) {
  for (int length = 0; length < 80; ++length) {
    CString text(MQ_TEXT('x'), length);
    text += text;
    ASSERT_EQ(text, CString(MQ_TEXT('x'), 2 * length));
    text += text.GetString();
    ASSERT_EQ(text, CString(MQ_TEXT('x'), 4 * length));
  }
  CString text = MQ_TEXT("abc");
  text += text.GetString() + 1;
  EXPECT_EQ(text, CString(MQ_TEXT("abcbc")));
  text += text[0];
  EXPECT_EQ(text, CString(MQ_TEXT("abcbca")));
  EXPECT_EQ(text + text, CString(MQ_TEXT("abcbcaabcbca")));
}

// ---- Comparison ------------------------------------------------------------------------------

struct OrderRow {
  const mqChar* left;
  const mqChar* right;
  int expected;
};

TEST(WideString, TextsAreOrderedByTheirUnits) {
  // clang-format off
  const OrderRow rows[] = {
      // left               right                expected
      {MQ_TEXT(""),         MQ_TEXT(""),          0},
      {MQ_TEXT(""),         MQ_TEXT("a"),        -1},
      {MQ_TEXT("a"),        MQ_TEXT(""),          1},
      {MQ_TEXT("abc"),      MQ_TEXT("abc"),       0},
      {MQ_TEXT("abc"),      MQ_TEXT("abd"),      -1},
      {MQ_TEXT("abd"),      MQ_TEXT("abc"),       1},
      {MQ_TEXT("ab"),       MQ_TEXT("abc"),      -1},
      {MQ_TEXT("b"),        MQ_TEXT("abc"),       1},
      {MQ_TEXT("A"),        MQ_TEXT("a"),        -1},
      {MQ_TEXT("z"),        MQ_TEXT("\u00E4"),   -1},
      {MQ_TEXT("\u7FFF"),   MQ_TEXT("\u8000"),   -1},  // units are unsigned
      {MQ_TEXT("\uFFFD"),   MQ_TEXT("a"),         1},
      {MQ_TEXT("\uE000"),   MQ_TEXT("\U00010000"), 1},  // by units, not by characters
  };
  // clang-format on
  for (const OrderRow& row : rows) {
    const CString left(row.left);
    const CString right(row.right);
    SCOPED_TRACE(testing::PrintToString(left) + " against " + testing::PrintToString(right));
    EXPECT_EQ(left.Compare(right), row.expected);
    EXPECT_EQ(left.Compare(row.right), row.expected);
    EXPECT_EQ(left.Compare(mqTextView(row.right)), row.expected);
    EXPECT_EQ(left == right, row.expected == 0);
    EXPECT_EQ(left == row.right, row.expected == 0);
    EXPECT_EQ(row.left == right, row.expected == 0);
    EXPECT_EQ(left != right, row.expected != 0);
    EXPECT_EQ(left != row.right, row.expected != 0);
    EXPECT_EQ(left < right, row.expected < 0);
    EXPECT_EQ(left < row.right, row.expected < 0);
    EXPECT_EQ(row.left < right, row.expected < 0);
    EXPECT_EQ(left <= right, row.expected <= 0);
    EXPECT_EQ(left <= row.right, row.expected <= 0);
    EXPECT_EQ(row.left <= right, row.expected <= 0);
    EXPECT_EQ(left > right, row.expected > 0);
    EXPECT_EQ(left > row.right, row.expected > 0);
    EXPECT_EQ(row.left > right, row.expected > 0);
    EXPECT_EQ(left >= right, row.expected >= 0);
    EXPECT_EQ(left >= row.right, row.expected >= 0);
    EXPECT_EQ(row.left >= right, row.expected >= 0);
  }
}

TEST(WideString, ZeroUnitsInsideTakePartInComparisons) {
  const mqChar upper[] = {MQ_TEXT('A'), kZero, MQ_TEXT('B')};
  const mqChar other[] = {MQ_TEXT('a'), kZero, MQ_TEXT('c')};
  EXPECT_EQ(ZeroInside().Compare(CString(other, 3)), -1);
  EXPECT_EQ(ZeroInside().CompareNoCase(CString(other, 3)), -1);
  EXPECT_EQ(ZeroInside().CompareNoCase(CString(upper, 3)), 0);
  EXPECT_EQ(ZeroInside().Compare(MQ_TEXT("a")), 1);
  EXPECT_EQ(ZeroInside().CompareNoCase(MQ_TEXT("A")), 1);
}

// clang-format off
constexpr OrderRow kNoCaseRows[] = {
    // left                          right                         expected
    {MQ_TEXT(""),                    MQ_TEXT(""),                   0},
    {MQ_TEXT(""),                    MQ_TEXT("a"),                 -1},
    {MQ_TEXT("a"),                   MQ_TEXT(""),                   1},
    {MQ_TEXT("Body-1"),              MQ_TEXT("bODY-1"),             0},
    {MQ_TEXT("abc"),                 MQ_TEXT("ABCD"),              -1},
    {MQ_TEXT("ABCD"),                MQ_TEXT("abc"),                1},
    {MQ_TEXT("b"),                   MQ_TEXT("A"),                  1},
    {MQ_TEXT("B"),                   MQ_TEXT("a"),                  1},
    {MQ_TEXT("_"),                   MQ_TEXT("A"),                 -1},  // letters count as small ones
    {MQ_TEXT("@["),                  MQ_TEXT("`{"),                -1},
    {MQ_TEXT("\u00C4CIER"),          MQ_TEXT("\u00E4cier"),         0},
    {MQ_TEXT("\u00D7"),              MQ_TEXT("\u00F7"),            -1},  // signs of multiplication, division
    {MQ_TEXT("\u0178"),              MQ_TEXT("\u00FF"),             0},
    {MQ_TEXT("\u03A3\u038A\u03A3\u03A5\u03A6\u039F\u03A3"),
     MQ_TEXT("\u03C3\u03AF\u03C3\u03C5\u03C6\u03BF\u03C2"),         0},  // the final sigma too
    {MQ_TEXT("\u041C\u041F\u0430"),  MQ_TEXT("\u043C\u043F\u0410"), 0},
    {MQ_TEXT("TITLE"),               MQ_TEXT("title"),              0},  // "i" with "I", in Turkey too
    {MQ_TEXT("\u0131"),              MQ_TEXT("I"),                  1},
    {MQ_TEXT("\u0131"),              MQ_TEXT("i"),                  1},
    {MQ_TEXT("\u0130"),              MQ_TEXT("i"),                  1},
    {MQ_TEXT("\u0130"),              MQ_TEXT("\u0131"),            -1},
    {MQ_TEXT("\u00DF"),              MQ_TEXT("\u1E9E"),             0},
    {MQ_TEXT("\u00DF"),              MQ_TEXT("ss"),                 1},
    {MQ_TEXT("stra\u00DFe"),         MQ_TEXT("STRASSE"),            1},
    {MQ_TEXT("\u212A"),              MQ_TEXT("k"),                  0},  // Kelvin
    {MQ_TEXT("\u212A"),              MQ_TEXT("K"),                  0},
    {MQ_TEXT("\u212B"),              MQ_TEXT("\u00E5"),             0},  // Angstrom
    {MQ_TEXT("\u2126"),              MQ_TEXT("\u03C9"),             0},  // Ohm
    {MQ_TEXT("\u00B5m"),             MQ_TEXT("\u03BCM"),            0},  // micro sign and mu
    {MQ_TEXT("\U00010400"),          MQ_TEXT("\U00010400"),         0},
    {MQ_TEXT("\U00010400"),          MQ_TEXT("\U00010428"),        -1},  // pairs are not folded
};
// clang-format on

void ExpectNoCaseRows() {
  for (const OrderRow& row : kNoCaseRows) {
    const CString left(row.left);
    const CString right(row.right);
    SCOPED_TRACE(testing::PrintToString(left) + " against " + testing::PrintToString(right));
    EXPECT_EQ(left.CompareNoCase(right), row.expected);
    EXPECT_EQ(left.CompareNoCase(row.right), row.expected);
    EXPECT_EQ(left.CompareNoCase(mqTextView(row.right)), row.expected);
    EXPECT_EQ(right.CompareNoCase(left), -row.expected);
  }
}

TEST(WideString, TextsAreComparedWithoutCase) {
  ExpectNoCaseRows();
}

TEST(WideString, NoLocaleChangesTheComparisonWithoutCase) {
  // A machine has some of these; "C" is always there.
  int tried = 0;
  for (const char* name : {"C", "C.UTF-8", "tr_TR.UTF-8", "de_DE.UTF-8", "Turkish_Turkey.1254",
                           "German_Germany.1252"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) {
      SCOPED_TRACE(name);
      ++tried;
      ExpectNoCaseRows();
      EXPECT_EQ(CString(MQ_TEXT("\u00A0a\u3000")).Trim(), CString(MQ_TEXT("a")));
      RecordProperty(name, "tried");
    }
  }
  std::setlocale(LC_ALL, "C");
  EXPECT_GE(tried, 1);
}

// ---- Case folding ----------------------------------------------------------------------------

TEST(CaseFolding, SmallLettersStandForTheirCapitals) {
  struct Row {
    unsigned unit;
    unsigned expected;
  };
  // clang-format off
  const Row rows[] = {
      // unit   folded
      {0x0041, 0x0061}, {0x005A, 0x007A},                    // A, Z
      {0x00C0, 0x00E0}, {0x00D6, 0x00F6}, {0x00DE, 0x00FE},  // Latin-1
      {0x0100, 0x0101}, {0x0139, 0x013A}, {0x0147, 0x0148},  // pairs that start at even, at odd numbers
      {0x0178, 0x00FF},                                      // Y with diaeresis goes back to Latin-1
      {0x017F, 0x0073},                                      // long s
      {0x01C4, 0x01C6}, {0x01C5, 0x01C6},                    // DZ with caron, as capital and as title
      {0x018F, 0x0259},                                      // schwa
      {0x0220, 0x019E}, {0x023A, 0x2C65},
      {0x0345, 0x03B9},                                      // iota below
      {0x0386, 0x03AC}, {0x0391, 0x03B1}, {0x03A9, 0x03C9},  // Greek
      {0x03C2, 0x03C3}, {0x03A3, 0x03C3},                    // both sigmas
      {0x03D0, 0x03B2}, {0x03F4, 0x03B8},                    // beta and theta symbols
      {0x0401, 0x0451}, {0x0410, 0x0430}, {0x042F, 0x044F},  // Cyrillic
      {0x04C0, 0x04CF},                                      // palochka
      {0x0531, 0x0561},                                      // Armenian
      {0x10A0, 0x2D00}, {0x1C90, 0x10D0}, {0x1CBF, 0x10FF},  // Georgian
      {0xAB70, 0x13A0}, {0xABBF, 0x13EF}, {0x13F8, 0x13F0},  // Cherokee folds to its capitals
      {0x1C80, 0x0432}, {0x1C88, 0xA64B},
      {0x1E00, 0x1E01}, {0x1E9B, 0x1E61}, {0x1E9E, 0x00DF},
      {0x1F08, 0x1F00}, {0x1F59, 0x1F51}, {0x1FBE, 0x03B9}, {0x1FFC, 0x1FF3},
      {0x2126, 0x03C9}, {0x212A, 0x006B}, {0x212B, 0x00E5},  // Ohm, Kelvin, Angstrom
      {0x2160, 0x2170}, {0x216F, 0x217F}, {0x2183, 0x2184},  // Roman numerals
      {0x24B6, 0x24D0}, {0x24CF, 0x24E9},                    // circled letters
      {0x2C00, 0x2C30}, {0x2C2F, 0x2C5F}, {0x2C62, 0x026B},
      {0xA640, 0xA641}, {0xA77D, 0x1D79}, {0xA7B3, 0xAB53},
      {0xFF21, 0xFF41}, {0xFF3A, 0xFF5A},                    // full width
      // stay as they are
      {0x0000, 0x0000}, {0x0040, 0x0040}, {0x005B, 0x005B}, {0x0061, 0x0061},
      {0x00D7, 0x00D7}, {0x00DF, 0x00DF}, {0x00F7, 0x00F7},
      {0x0130, 0x0130}, {0x0131, 0x0131},                    // I with dot, dotless i
      {0x0138, 0x0138}, {0x0149, 0x0149}, {0x01F0, 0x01F0},
      {0x03A2, 0x03A2}, {0x10C6, 0x10C6}, {0x13A0, 0x13A0}, {0x1CBB, 0x1CBB}, {0x1F58, 0x1F58},
      {0x2170, 0x2170}, {0x24D0, 0x24D0}, {0x4E2D, 0x4E2D},
      {0xD801, 0xD801}, {0xDC00, 0xDC00},                    // the halves of a Deseret letter
      {0xFF20, 0xFF20}, {0xFF3B, 0xFF3B}, {0xFFFF, 0xFFFF},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(unsigned{mqp::FoldCase(static_cast<mqChar>(row.unit))}, row.expected)
        << std::hex << "unit 0x" << row.unit << ", expected 0x" << row.expected;
  }
}

TEST(CaseFolding, InAsciiExactlyTheCapitalsChange) {
  const mqTextView capitals = MQ_TEXT("ABCDEFGHIJKLMNOPQRSTUVWXYZ");
  const mqTextView small = MQ_TEXT("abcdefghijklmnopqrstuvwxyz");
  for (unsigned code = 0; code < 0x80; ++code) {
    const auto unit = static_cast<mqChar>(code);
    const std::size_t letter = capitals.find(unit);
    EXPECT_EQ(mqp::FoldCase(unit), letter == mqTextView::npos ? unit : small[letter]) << code;
  }
}

TEST(CaseFolding, WhatIsFoldedStaysWhenItIsFoldedAgain) {
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    const mqChar folded = mqp::FoldCase(static_cast<mqChar>(code));
    ASSERT_EQ(mqp::FoldCase(folded), folded) << std::hex << code;
  }
}

TEST(CaseFolding, HalvesOfSurrogatePairsAreNotTouched) {
  for (unsigned code = 0xD800; code <= 0xDFFF; ++code) {
    const auto unit = static_cast<mqChar>(code);
    ASSERT_EQ(mqp::FoldCase(unit), unit) << std::hex << code;
  }
}

TEST(CaseFolding, AgreesInSumWithTheUnicodeTable) {
  // Both figures were counted in the published CaseFolding table of Unicode 14, statuses C and S.
  int changed = 0;
  std::int64_t sum = 0;
  for (int code = 0; code <= 0xFFFF; ++code) {
    const int folded = mqp::FoldCase(static_cast<mqChar>(code));
    if (folded != code) {
      ++changed;
      sum += std::int64_t{code} * folded;
    }
  }
  EXPECT_EQ(changed, 1194);
  EXPECT_EQ(sum, 368698536792);
}

TEST(CaseFolding, IsKnownToTheCompiler) {
  static_assert(mqp::FoldCase(MQ_TEXT('Q')) == MQ_TEXT('q'));
}

// ---- Finding ---------------------------------------------------------------------------------

TEST(WideString, TextsAreFoundAtOrBehindAStart) {
  struct Row {
    const mqChar* text;
    const mqChar* sought;
    int start;
    int expected;
  };
  // clang-format off
  const Row rows[] = {
      // text              sought            start    expected
      {MQ_TEXT("abcabc"),  MQ_TEXT("abc"),        0,   0},
      {MQ_TEXT("abcabc"),  MQ_TEXT("abc"),        1,   3},
      {MQ_TEXT("abcabc"),  MQ_TEXT("abc"),        3,   3},
      {MQ_TEXT("abcabc"),  MQ_TEXT("abc"),        4,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("c"),          5,   5},
      {MQ_TEXT("abcabc"),  MQ_TEXT("c"),          6,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("c"),          7,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("a"),         -1,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("a"),    INT_MIN,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("a"),    INT_MAX,  -1},
      {MQ_TEXT("abcabc"),  MQ_TEXT("ABC"),        0,  -1},
      {MQ_TEXT("abc"),     MQ_TEXT("abcd"),       0,  -1},
      {MQ_TEXT("aab"),     MQ_TEXT("ab"),         0,   1},
      {MQ_TEXT("abc"),     MQ_TEXT(""),           0,   0},
      {MQ_TEXT("abc"),     MQ_TEXT(""),           2,   2},
      {MQ_TEXT("abc"),     MQ_TEXT(""),           3,   3},
      {MQ_TEXT("abc"),     MQ_TEXT(""),           4,  -1},
      {MQ_TEXT("abc"),     MQ_TEXT(""),          -1,  -1},
      {MQ_TEXT(""),        MQ_TEXT(""),           0,   0},
      {MQ_TEXT(""),        MQ_TEXT(""),           1,  -1},
      {MQ_TEXT(""),        MQ_TEXT("a"),          0,  -1},
  };
  // clang-format on
  for (const Row& row : rows) {
    const CString text(row.text);
    const CString sought(row.sought);
    SCOPED_TRACE(testing::PrintToString(sought) + " in " + testing::PrintToString(text) + " from " +
                 std::to_string(row.start));
    EXPECT_EQ(text.Find(sought, row.start), row.expected);
    EXPECT_EQ(text.Find(row.sought, row.start), row.expected);
    EXPECT_EQ(text.Find(mqTextView(row.sought), row.start), row.expected);
    if (sought.GetLength() == 1) {
      EXPECT_EQ(text.Find(sought[0], row.start), row.expected);
    }
  }
}

TEST(WideString, TheStartOfASearchIsTheFrontUnlessItIsGiven) {
  const CString text = MQ_TEXT("abab");
  EXPECT_EQ(text.Find(MQ_TEXT("a")), 0);
  EXPECT_EQ(text.Find(MQ_TEXT('a')), 0);
  EXPECT_EQ(text.Find(CString(MQ_TEXT("a"))), 0);
  EXPECT_EQ(text.Find(mqTextView(MQ_TEXT("a"))), 0);
  EXPECT_EQ(text.Find(MQ_TEXT('x')), -1);
}

TEST(WideString, TheLastOccurrenceIsFoundFromTheEnd) {
  EXPECT_EQ(CString(MQ_TEXT("a\\b\\c")).ReverseFind(MQ_TEXT('\\')), 3);
  EXPECT_EQ(CString(MQ_TEXT("abc")).ReverseFind(MQ_TEXT('a')), 0);
  EXPECT_EQ(CString(MQ_TEXT("abc")).ReverseFind(MQ_TEXT('x')), -1);
  EXPECT_EQ(CString(MQ_TEXT("abc")).ReverseFind(kZero), -1);
  EXPECT_EQ(CString().ReverseFind(MQ_TEXT('a')), -1);
}

// ---- Parts -----------------------------------------------------------------------------------

TEST(WideString, TheEndsAreCutToTheText) {
  struct Row {
    int count;
    const mqChar* left;
    const mqChar* right;
  };
  // clang-format off
  const Row rows[] = {
      // count   left             right
      {INT_MIN, MQ_TEXT(""),     MQ_TEXT("")},
      {-1,      MQ_TEXT(""),     MQ_TEXT("")},
      {0,       MQ_TEXT(""),     MQ_TEXT("")},
      {1,       MQ_TEXT("a"),    MQ_TEXT("c")},
      {2,       MQ_TEXT("ab"),   MQ_TEXT("bc")},
      {3,       MQ_TEXT("abc"),  MQ_TEXT("abc")},
      {4,       MQ_TEXT("abc"),  MQ_TEXT("abc")},
      {INT_MAX, MQ_TEXT("abc"),  MQ_TEXT("abc")},
  };
  // clang-format on
  const CString text = MQ_TEXT("abc");
  for (const Row& row : rows) {
    EXPECT_EQ(text.Left(row.count), CString(row.left)) << row.count;
    EXPECT_EQ(text.Right(row.count), CString(row.right)) << row.count;
    EXPECT_EQ(CString().Left(row.count), CString()) << row.count;
    EXPECT_EQ(CString().Right(row.count), CString()) << row.count;
  }
}

TEST(WideString, TheMiddleIsCutToTheText) {
  struct Row {
    int first;
    int count;
    const mqChar* expected;
    const mqChar* rest;  // without a count
  };
  // clang-format off
  const Row rows[] = {
      // first    count    expected         rest
      {0,         0,       MQ_TEXT(""),     MQ_TEXT("abcd")},
      {0,         2,       MQ_TEXT("ab"),   MQ_TEXT("abcd")},
      {1,         2,       MQ_TEXT("bc"),   MQ_TEXT("bcd")},
      {3,         2,       MQ_TEXT("d"),    MQ_TEXT("d")},
      {4,         1,       MQ_TEXT(""),     MQ_TEXT("")},
      {5,         1,       MQ_TEXT(""),     MQ_TEXT("")},
      {1,        -1,       MQ_TEXT(""),     MQ_TEXT("bcd")},
      {-1,        2,       MQ_TEXT("ab"),   MQ_TEXT("abcd")},
      {INT_MIN,   1,       MQ_TEXT("a"),    MQ_TEXT("abcd")},
      {1,         INT_MAX, MQ_TEXT("bcd"),  MQ_TEXT("bcd")},
      {INT_MAX,   INT_MAX, MQ_TEXT(""),     MQ_TEXT("")},
      {INT_MIN,   INT_MIN, MQ_TEXT(""),     MQ_TEXT("abcd")},
  };
  // clang-format on
  const CString text = MQ_TEXT("abcd");
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.first) + ", " + std::to_string(row.count));
    EXPECT_EQ(text.Mid(row.first, row.count), CString(row.expected));
    EXPECT_EQ(text.Mid(row.first), CString(row.rest));
  }
}

// ---- Trimming --------------------------------------------------------------------------------

TEST(WideString, WhiteSpaceIsTrimmedAtTheEndsOnly) {
  struct Row {
    const mqChar* text;
    const mqChar* left;
    const mqChar* right;
    const mqChar* both;
  };
  // clang-format off
  const Row rows[] = {
      // text                 left                right               both
      {MQ_TEXT(""),           MQ_TEXT(""),        MQ_TEXT(""),        MQ_TEXT("")},
      {MQ_TEXT(" \t\r\n"),    MQ_TEXT(""),        MQ_TEXT(""),        MQ_TEXT("")},
      {MQ_TEXT("a"),          MQ_TEXT("a"),       MQ_TEXT("a"),       MQ_TEXT("a")},
      {MQ_TEXT("  a b  "),    MQ_TEXT("a b  "),   MQ_TEXT("  a b"),   MQ_TEXT("a b")},
      {MQ_TEXT("\v\fa"),      MQ_TEXT("a"),       MQ_TEXT("\v\fa"),   MQ_TEXT("a")},
      {MQ_TEXT("\u00A0a\u3000"), MQ_TEXT("a\u3000"), MQ_TEXT("\u00A0a"), MQ_TEXT("a")},
      {MQ_TEXT("\u200Ba"),    MQ_TEXT("\u200Ba"), MQ_TEXT("\u200Ba"), MQ_TEXT("\u200Ba")},
  };
  // clang-format on
  for (const Row& row : rows) {
    SCOPED_TRACE(testing::PrintToString(CString(row.text)));
    EXPECT_EQ(CString(row.text).TrimLeft(), CString(row.left));
    EXPECT_EQ(CString(row.text).TrimRight(), CString(row.right));
    EXPECT_EQ(CString(row.text).Trim(), CString(row.both));
  }
}

TEST(WideString, TheWhiteSpaceIsThatOfUnicode) {
  constexpr auto kSpaces = std::to_array<unsigned>(
      {0x0009, 0x000A, 0x000B, 0x000C, 0x000D, 0x0020, 0x0085, 0x00A0, 0x1680,
       0x2000, 0x2001, 0x2002, 0x2003, 0x2004, 0x2005, 0x2006, 0x2007, 0x2008,
       0x2009, 0x200A, 0x2028, 0x2029, 0x202F, 0x205F, 0x3000});
  const std::set<unsigned> spaces(kSpaces.begin(), kSpaces.end());
  ASSERT_EQ(spaces.size(), 25U);
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    ASSERT_EQ(CString::IsSpace(static_cast<mqChar>(code)), spaces.contains(code))
        << std::hex << code;
  }
}

TEST(WideString, GivenUnitsAreTrimmed) {
  EXPECT_EQ(CString(MQ_TEXT("xyaxybyx")).Trim(MQ_TEXT("xy")), CString(MQ_TEXT("axyb")));
  EXPECT_EQ(CString(MQ_TEXT("xyaxybyx")).TrimLeft(MQ_TEXT("xy")), CString(MQ_TEXT("axybyx")));
  EXPECT_EQ(CString(MQ_TEXT("xyaxybyx")).TrimRight(MQ_TEXT("xy")), CString(MQ_TEXT("xyaxyb")));
  const mqChar* none = nullptr;
  EXPECT_EQ(CString(MQ_TEXT(" xyx ")).TrimRight(none), CString(MQ_TEXT(" xyx ")));
  EXPECT_EQ(CString(MQ_TEXT("xyx")).Trim(MQ_TEXT("xy")), CString());
  EXPECT_EQ(CString(MQ_TEXT(" a ")).Trim(MQ_TEXT("")), CString(MQ_TEXT(" a ")));
  EXPECT_EQ(CString(MQ_TEXT(" a ")).Trim(MQ_TEXT("x")), CString(MQ_TEXT(" a ")));
  EXPECT_EQ(CString().Trim(MQ_TEXT("x")), CString());

  EXPECT_EQ(CString(MQ_TEXT("xxaxbxx")).Trim(MQ_TEXT('x')), CString(MQ_TEXT("axb")));
  EXPECT_EQ(CString(MQ_TEXT("xxaxbxx")).TrimLeft(MQ_TEXT('x')), CString(MQ_TEXT("axbxx")));
  EXPECT_EQ(CString(MQ_TEXT("xxaxbxx")).TrimRight(MQ_TEXT('x')), CString(MQ_TEXT("xxaxb")));
  EXPECT_EQ(CString(MQ_TEXT("xx")).Trim(MQ_TEXT('x')), CString());
}

TEST(WideString, TheUnitsToTrimMayStandInTheTextItself) {
  CString text = MQ_TEXT("abcXa");
  text.Trim(text.GetString() + 3);
  EXPECT_EQ(text, CString(MQ_TEXT("bc")));
  text.Trim(text);
  EXPECT_EQ(text, CString());
  text = MQ_TEXT("aXcba");
  text.TrimRight(text.GetString() + 3);
  EXPECT_EQ(text, CString(MQ_TEXT("aXc")));
  text.TrimLeft(text.GetString() + 1);
  EXPECT_EQ(text, CString(MQ_TEXT("aXc")));
}

TEST(WideString, TrimmingReturnsTheStringItself) {
  CString text = MQ_TEXT(" -a- ");
  EXPECT_EQ(&text.Trim(), &text);
  EXPECT_EQ(&text.Trim(MQ_TEXT("-")), &text);
  EXPECT_EQ(&text.Trim(MQ_TEXT('-')), &text);
  EXPECT_EQ(text, CString(MQ_TEXT("a")));
}

// ---- Replacing, removing, inserting, deleting ------------------------------------------------

TEST(WideString, OccurrencesAreReplacedFromTheLeftWithoutOverlap) {
  struct Row {
    const mqChar* text;
    const mqChar* old;
    const mqChar* replacement;
    const mqChar* expected;
    int count;
  };
  // clang-format off
  const Row rows[] = {
      // text               old               replacement        expected                   count
      {MQ_TEXT(""),         MQ_TEXT("a"),     MQ_TEXT("b"),      MQ_TEXT(""),                0},
      {MQ_TEXT("abc"),      MQ_TEXT(""),      MQ_TEXT("x"),      MQ_TEXT("abc"),             0},
      {MQ_TEXT("abc"),      MQ_TEXT("x"),     MQ_TEXT("y"),      MQ_TEXT("abc"),             0},
      {MQ_TEXT("abc"),      MQ_TEXT("abcd"),  MQ_TEXT("y"),      MQ_TEXT("abc"),             0},
      {MQ_TEXT("abc"),      MQ_TEXT("abc"),   MQ_TEXT(""),       MQ_TEXT(""),                1},
      {MQ_TEXT("a.b.c"),    MQ_TEXT("."),     MQ_TEXT(" - "),    MQ_TEXT("a - b - c"),       2},
      {MQ_TEXT(".a."),      MQ_TEXT("."),     MQ_TEXT(":"),      MQ_TEXT(":a:"),             2},
      {MQ_TEXT("a--b--"),   MQ_TEXT("--"),    MQ_TEXT("-"),      MQ_TEXT("a-b-"),            2},
      {MQ_TEXT("aaa"),      MQ_TEXT("aa"),    MQ_TEXT("a"),      MQ_TEXT("aa"),              1},
      {MQ_TEXT("aaaa"),     MQ_TEXT("aa"),    MQ_TEXT("a"),      MQ_TEXT("aa"),              2},
      {MQ_TEXT("aaa"),      MQ_TEXT("a"),     MQ_TEXT("aa"),     MQ_TEXT("aaaaaa"),          3},
      {MQ_TEXT("aaa"),      MQ_TEXT("aaa"),   MQ_TEXT("aa"),     MQ_TEXT("aa"),              1},
      {MQ_TEXT("abab"),     MQ_TEXT("ab"),    MQ_TEXT("ab"),     MQ_TEXT("abab"),            2},
      {MQ_TEXT("aabb"),     MQ_TEXT("ab"),    MQ_TEXT(""),       MQ_TEXT("ab"),              1},
      {MQ_TEXT("Aa"),       MQ_TEXT("a"),     MQ_TEXT("b"),      MQ_TEXT("Ab"),              1},
  };
  // clang-format on
  for (const Row& row : rows) {
    CString text(row.text);
    SCOPED_TRACE(testing::PrintToString(CString(row.old)) + " in " + testing::PrintToString(text) +
                 " by " + testing::PrintToString(CString(row.replacement)));
    EXPECT_EQ(text.Replace(row.old, row.replacement), row.count);
    EXPECT_EQ(text, CString(row.expected));
  }
}

TEST(WideString, StringsAndPointersMixInAReplacement) {
  const CString a = MQ_TEXT("a");
  const mqChar* pointer = MQ_TEXT("p");
  CString text = MQ_TEXT("aXb");
  EXPECT_EQ(text.Replace(MQ_TEXT("X"), a), 1);
  EXPECT_EQ(text, CString(MQ_TEXT("aab")));
  EXPECT_EQ(text.Replace(a, pointer), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("ppb")));
  EXPECT_EQ(text.Replace(CString(pointer), a), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("aab")));
  EXPECT_EQ(text.Replace(a, nullptr), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("b")));
}

TEST(WideString, AReplacementMayPointIntoTheTextItself) {
  CString text = MQ_TEXT("abcabc");
  EXPECT_EQ(text.Replace(text, text), 1);
  EXPECT_EQ(text, CString(MQ_TEXT("abcabc")));
  EXPECT_EQ(text.Replace(MQ_TEXT("a"), text.GetString() + 3), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("abcbcabcbc")));
  EXPECT_EQ(text.Replace(text.GetString() + 8, MQ_TEXT("")), 4);
  EXPECT_EQ(text, CString(MQ_TEXT("aa")));
  EXPECT_EQ(text.Replace(MQ_TEXT("a"), text), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("aaaa")));
}

TEST(WideString, UnitsAreReplacedAndCounted) {
  CString text = MQ_TEXT("a/b/c");
  EXPECT_EQ(text.Replace(MQ_TEXT('/'), MQ_TEXT('\\')), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("a\\b\\c")));
  EXPECT_EQ(text.Replace(MQ_TEXT('x'), MQ_TEXT('y')), 0);
  EXPECT_EQ(text.Replace(MQ_TEXT('a'), MQ_TEXT('a')), 0);
  EXPECT_EQ(text.Replace(text[0], text[2]), 1);
  EXPECT_EQ(text, CString(MQ_TEXT("b\\b\\c")));
}

TEST(WideString, UnitsAreRemovedAndCounted) {
  CString text = MQ_TEXT("banana");
  EXPECT_EQ(text.Remove(MQ_TEXT('a')), 3);
  EXPECT_EQ(text, CString(MQ_TEXT("bnn")));
  EXPECT_EQ(text.Remove(MQ_TEXT('a')), 0);
  EXPECT_EQ(text.Remove(MQ_TEXT('B')), 0);
  EXPECT_EQ(text.Remove(text[1]), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("b")));
  EXPECT_EQ(text.Remove(MQ_TEXT('b')), 1);
  EXPECT_EQ(text.Remove(MQ_TEXT('b')), 0);
  EXPECT_TRUE(text.IsEmpty());
}

TEST(WideString, TextsAreInsertedAtAPositionCutToTheText) {
  struct Row {
    int position;
    const mqChar* expected;
  };
  // clang-format off
  const Row rows[] = {
      {INT_MIN, MQ_TEXT("xyab")},
      {-1,      MQ_TEXT("xyab")},
      {0,       MQ_TEXT("xyab")},
      {1,       MQ_TEXT("axyb")},
      {2,       MQ_TEXT("abxy")},
      {3,       MQ_TEXT("abxy")},
      {INT_MAX, MQ_TEXT("abxy")},
  };
  // clang-format on
  for (const Row& row : rows) {
    CString text = MQ_TEXT("ab");
    EXPECT_EQ(text.Insert(row.position, MQ_TEXT("xy")), 4) << row.position;
    EXPECT_EQ(text, CString(row.expected)) << row.position;
  }
  CString text;
  EXPECT_EQ(text.Insert(0, MQ_TEXT("")), 0);
  EXPECT_EQ(text.Insert(0, MQ_TEXT('b')), 1);
  EXPECT_EQ(text.Insert(0, CString(MQ_TEXT("a"))), 2);
  EXPECT_EQ(text, CString(MQ_TEXT("ab")));
}

TEST(WideString, ATextMayBeInsertedIntoItself) {
  for (int length = 2; length < 80; ++length) {
    const CString half(MQ_TEXT('x'), length);
    CString text = half + MQ_TEXT('|');
    EXPECT_EQ(text.Insert(length, text), 2 * length + 2);
    ASSERT_EQ(text, half + half + MQ_TEXT("||"));
    text.Insert(1, text.GetString() + 2 * length);
    ASSERT_EQ(text, MQ_TEXT("x||") + CString(MQ_TEXT('x'), 2 * length - 1) + MQ_TEXT("||"));
  }
}

TEST(WideString, UnitsAreDeletedAsFarAsTheTextHasThem) {
  struct Row {
    int first;
    int count;
    const mqChar* expected;
  };
  // clang-format off
  const Row rows[] = {
      // first   count    expected
      {0,        1,       MQ_TEXT("bcd")},
      {0,        4,       MQ_TEXT("")},
      {1,        2,       MQ_TEXT("ad")},
      {3,        1,       MQ_TEXT("abc")},
      {3,        9,       MQ_TEXT("abc")},
      {1,        INT_MAX, MQ_TEXT("a")},
      {4,        1,       MQ_TEXT("abcd")},
      {INT_MAX,  1,       MQ_TEXT("abcd")},
      {1,        0,       MQ_TEXT("abcd")},
      {1,        -1,      MQ_TEXT("abcd")},
      {-1,       2,       MQ_TEXT("cd")},
      {INT_MIN,  INT_MIN, MQ_TEXT("abcd")},
  };
  // clang-format on
  for (const Row& row : rows) {
    SCOPED_TRACE(std::to_string(row.first) + ", " + std::to_string(row.count));
    const CString expected(row.expected);
    CString text = MQ_TEXT("abcd");
    EXPECT_EQ(text.Delete(row.first, row.count), expected.GetLength());
    EXPECT_EQ(text, expected);
  }
  CString text = MQ_TEXT("abcd");
  EXPECT_EQ(text.Delete(1), 3);
  EXPECT_EQ(text, CString(MQ_TEXT("acd")));
}

// ---- In the hands of a user ------------------------------------------------------------------

int LengthOf(const mqChar* text) {
  return static_cast<int>(mqTextView(text).size());
}
int LengthOfString(const CString& text) {
  return text.GetLength();
}

TEST(WideString, IsPassedWhereAPointerIsExpectedAndTheOtherWayRound) {
  const CString text = MQ_TEXT("abc");
  const mqChar* pointer = text;
  EXPECT_EQ(pointer, text.GetString());
  EXPECT_EQ(LengthOf(text), 3);
  EXPECT_EQ(LengthOf(text + MQ_TEXT("d")), 4);
  EXPECT_EQ(LengthOfString(MQ_TEXT("abcd")), 4);
  EXPECT_EQ(LengthOfString(pointer), 3);
  const CString chosen = text.IsEmpty() ? CString(MQ_TEXT("none")) : text;
  EXPECT_EQ(chosen, text);
}

TEST(WideString, IsAKeyAndAValueOfTheStandardContainers) {
  std::map<int, CString> names;
  names[2] = MQ_TEXT("two");
  EXPECT_TRUE(names[2] == MQ_TEXT("two"));
  EXPECT_TRUE(names[3].IsEmpty());

  std::map<CString, int> numbers{{MQ_TEXT("two"), 2}, {MQ_TEXT("one"), 1}};
  EXPECT_EQ(numbers.begin()->second, 1);
  EXPECT_EQ(numbers[MQ_TEXT("two")], 2);
  EXPECT_TRUE(numbers.contains(MQ_TEXT("one")));
  EXPECT_FALSE(numbers.contains(MQ_TEXT("One")));

  const std::vector<CString> texts{MQ_TEXT("a"), CString(MQ_TEXT('b')), {MQ_TEXT("cd"), 1}};
  EXPECT_EQ(texts[2], CString(MQ_TEXT("c")));
}

static_assert(std::is_nothrow_move_constructible_v<CString>);
static_assert(std::is_same_v<decltype(CString() <=> CString()), std::strong_ordering>);
static_assert(!std::is_convertible_v<int, CString>, "a number is no text");
static_assert(!std::is_convertible_v<mqChar, CString>, "a unit becomes a text only when asked");

}  // namespace
