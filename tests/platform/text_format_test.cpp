#include <cfloat>
#include <climits>
#include <clocale>
#include <cstdint>
#include <limits>
#include <string>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/wide_string.h>

#include "platform/print_text.h"

namespace {

/// Formats the arguments and names the format when the result is another one.
template <class... Arguments>
void ExpectFormat(const mqChar* expected, const mqChar* format, const Arguments&... arguments) {
  CString text = MQ_TEXT("left over");
  text.Format(format, arguments...);
  EXPECT_EQ(text, CString(expected)) << "of " << testing::PrintToString(CString(format));
}

template <class... Arguments>
int FormattedLength(const mqChar* format, const Arguments&... arguments) {
  CString text;
  text.Format(format, arguments...);
  return text.GetLength();
}

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

TEST(Format, TextAroundTheConversionsStays) {
  ExpectFormat(MQ_TEXT(""), MQ_TEXT(""));
  ExpectFormat(MQ_TEXT(""), nullptr);
  ExpectFormat(MQ_TEXT("plain"), MQ_TEXT("plain"));
  ExpectFormat(MQ_TEXT("Step 3: 2.5 \u00B5m \U0001D6D1"), MQ_TEXT("Step %d: %g \u00B5m \U0001D6D1"),
               3, 2.5);
  ExpectFormat(MQ_TEXT("12"), MQ_TEXT("%d%d"), 1, 2);
  ExpectFormat(MQ_TEXT("1"), MQ_TEXT("%d"), 1, 2, MQ_TEXT("unused"));
}

TEST(Format, SignedIntegersOfEveryWidth) {
  ExpectFormat(MQ_TEXT("0"), MQ_TEXT("%d"), 0);
  ExpectFormat(MQ_TEXT("-1"), MQ_TEXT("%i"), -1);
  ExpectFormat(MQ_TEXT("2147483647"), MQ_TEXT("%d"), INT_MAX);
  ExpectFormat(MQ_TEXT("-2147483648"), MQ_TEXT("%d"), INT_MIN);
  ExpectFormat(MQ_TEXT("9223372036854775807"), MQ_TEXT("%d"), INT64_MAX);
  ExpectFormat(MQ_TEXT("-9223372036854775808"), MQ_TEXT("%lld"), INT64_MIN);
  ExpectFormat(MQ_TEXT("-32768"), MQ_TEXT("%hd"), static_cast<short>(-32768));
  ExpectFormat(MQ_TEXT("-7"), MQ_TEXT("%ld"), -7L);
  ExpectFormat(MQ_TEXT("4294967295"), MQ_TEXT("%d"), 4294967295U);
  ExpectFormat(MQ_TEXT("-1"), MQ_TEXT("%d"), UINT64_MAX);
  ExpectFormat(MQ_TEXT("1 0"), MQ_TEXT("%d %d"), true, false);
  ExpectFormat(MQ_TEXT("65"), MQ_TEXT("%d"), MQ_TEXT('A'));
}

TEST(Format, UnsignedIntegersAreTakenInTheirOwnWidth) {
  ExpectFormat(MQ_TEXT("4294967295"), MQ_TEXT("%u"), -1);
  ExpectFormat(MQ_TEXT("2147483648"), MQ_TEXT("%u"), INT_MIN);
  ExpectFormat(MQ_TEXT("18446744073709551615"), MQ_TEXT("%u"), UINT64_MAX);
  ExpectFormat(MQ_TEXT("18446744073709551615"), MQ_TEXT("%llu"), std::int64_t{-1});
  ExpectFormat(MQ_TEXT("65535"), MQ_TEXT("%u"), static_cast<short>(-1));
  ExpectFormat(MQ_TEXT("255"), MQ_TEXT("%u"), static_cast<signed char>(-1));
  ExpectFormat(MQ_TEXT("ffffffff"), MQ_TEXT("%x"), -1);
  ExpectFormat(MQ_TEXT("ffffffffffffffff"), MQ_TEXT("%x"), std::int64_t{-1});
  ExpectFormat(MQ_TEXT("ABCDEF09"), MQ_TEXT("%X"), 0xABCDEF09U);
  ExpectFormat(MQ_TEXT("abcdef09"), MQ_TEXT("%x"), 0xABCDEF09U);
  ExpectFormat(MQ_TEXT("37777777777"), MQ_TEXT("%o"), -1);
  ExpectFormat(MQ_TEXT("10 0"), MQ_TEXT("%o %x"), 8, 0);
}

TEST(Format, WidthAndFlagsOfIntegers) {
  ExpectFormat(MQ_TEXT("|   42|"), MQ_TEXT("|%5d|"), 42);
  ExpectFormat(MQ_TEXT("|42   |"), MQ_TEXT("|%-5d|"), 42);
  ExpectFormat(MQ_TEXT("|00042|"), MQ_TEXT("|%05d|"), 42);
  ExpectFormat(MQ_TEXT("|-0042|"), MQ_TEXT("|%05d|"), -42);
  ExpectFormat(MQ_TEXT("|  -42|"), MQ_TEXT("|%5d|"), -42);
  ExpectFormat(MQ_TEXT("|12345|"), MQ_TEXT("|%5d|"), 12345);
  ExpectFormat(MQ_TEXT("|123456|"), MQ_TEXT("|%5d|"), 123456);
  ExpectFormat(MQ_TEXT("|+42|+0|-42|"), MQ_TEXT("|%+d|%+d|%+d|"), 42, 0, -42);
  ExpectFormat(MQ_TEXT("| 42|-42|"), MQ_TEXT("|% d|% d|"), 42, -42);
  ExpectFormat(MQ_TEXT("|+42|+42|"), MQ_TEXT("|% +d|%+ d|"), 42, 42);
  ExpectFormat(MQ_TEXT("|42   |42   |"), MQ_TEXT("|%-05d|%0-5d|"), 42, 42);
  ExpectFormat(MQ_TEXT("|+0042|"), MQ_TEXT("|%+05d|"), 42);
  ExpectFormat(MQ_TEXT("|42|42|"), MQ_TEXT("|%+u|% x|"), 42, 0x42);
}

TEST(Format, OnlySignedIntegersHaveASign) {
  ExpectFormat(MQ_TEXT("+7 7 10 ff FF"), MQ_TEXT("%+d %+u %+o %+x %+X"), 7, 7U, 8U, 255U, 255U);
}

TEST(Format, PrecisionOfIntegersIsTheLeastNumberOfDigits) {
  ExpectFormat(MQ_TEXT("|007|"), MQ_TEXT("|%.3d|"), 7);
  ExpectFormat(MQ_TEXT("|-007|"), MQ_TEXT("|%.3d|"), -7);
  ExpectFormat(MQ_TEXT("|     007|"), MQ_TEXT("|%8.3d|"), 7);
  ExpectFormat(MQ_TEXT("|007     |"), MQ_TEXT("|%-8.3d|"), 7);
  ExpectFormat(MQ_TEXT("|     007|"), MQ_TEXT("|%08.3d|"),
               7);  // a precision takes the zeros' place
  ExpectFormat(MQ_TEXT("|1234|"), MQ_TEXT("|%.3d|"), 1234);
  ExpectFormat(MQ_TEXT("||"), MQ_TEXT("|%.0d|"), 0);
  ExpectFormat(MQ_TEXT("||"), MQ_TEXT("|%.d|"), 0);
  ExpectFormat(MQ_TEXT("|+|"), MQ_TEXT("|%+.0d|"), 0);
  ExpectFormat(MQ_TEXT("|     |"), MQ_TEXT("|%5.0d|"), 0);
  ExpectFormat(MQ_TEXT("|1|"), MQ_TEXT("|%.0d|"), 1);
  ExpectFormat(MQ_TEXT("|    7|"), MQ_TEXT("|%05.0d|"), 7);
  ExpectFormat(MQ_TEXT("|00ff|0017|"), MQ_TEXT("|%.4x|%.4o|"), 255, 15);
}

TEST(Format, TheAlternateFormNamesTheBase) {
  ExpectFormat(MQ_TEXT("|0xff|0XFF|010|"), MQ_TEXT("|%#x|%#X|%#o|"), 255, 255, 8);
  ExpectFormat(MQ_TEXT("|0|0|"), MQ_TEXT("|%#x|%#o|"), 0, 0);
  ExpectFormat(MQ_TEXT("|0x0000ff|"), MQ_TEXT("|%#08x|"), 255);
  ExpectFormat(MQ_TEXT("|    0xff|0xff    |"), MQ_TEXT("|%#8x|%-#8x|"), 255, 255);
  ExpectFormat(MQ_TEXT("|0x00ff|"), MQ_TEXT("|%#.4x|"), 255);
  ExpectFormat(MQ_TEXT("|010|"), MQ_TEXT("|%#.3o|"), 8);
  ExpectFormat(MQ_TEXT("|0||"), MQ_TEXT("|%#.0o|%#.0x|"), 0, 0);
  ExpectFormat(MQ_TEXT("|42|2|"), MQ_TEXT("|%#d|%#g|"), 42, 2.0);
}

TEST(Format, NumbersWithAFixedPoint) {
  ExpectFormat(MQ_TEXT("1.500000"), MQ_TEXT("%f"), 1.5);
  ExpectFormat(MQ_TEXT("0.000000 -0.000000"), MQ_TEXT("%f %f"), 0.0, -0.0);
  ExpectFormat(MQ_TEXT("0 2 2 4"), MQ_TEXT("%.0f %.0f %.0f %.0f"), 0.5, 1.5, 2.5, 3.5);
  ExpectFormat(MQ_TEXT("2.67 2.68"), MQ_TEXT("%.2f %.2f"), 2.675, 2.676);
  ExpectFormat(MQ_TEXT("-0.0"), MQ_TEXT("%.1f"), -0.01);
  ExpectFormat(MQ_TEXT("10.00"), MQ_TEXT("%.2f"), 9.999);
  ExpectFormat(MQ_TEXT("0.1000000000000000055511151231257827"), MQ_TEXT("%.34f"), 0.1);
  ExpectFormat(MQ_TEXT("1.250000 0.50"), MQ_TEXT("%lf %.2f"), 1.25F, 0.5L);
}

TEST(Format, TheLargestNumberHasAllItsDigits) {
  ExpectFormat(
      MQ_TEXT("-1797693134862315708145274237317043567980705675258449965989174768031572")
          MQ_TEXT("6078002853876058955863276687817154045895351438246423432132688946418276")
              MQ_TEXT("8467546703537516986049910576551282076245490090389328944075868508455133")
                  MQ_TEXT("9423045832369032229481658085593321233482747978262041447231687381771809")
                      MQ_TEXT("19299881250404026184124858368"),
      MQ_TEXT("%.0f"), -DBL_MAX);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%.1024f"), -DBL_MAX), 1 + 309 + 1 + 1024);
}

TEST(Format, NumbersWithAnExponent) {
  ExpectFormat(MQ_TEXT("1.234568e+04 1.234568E+04"), MQ_TEXT("%e %E"), 12345.678, 12345.678);
  ExpectFormat(MQ_TEXT("1e+04 1.e3"), MQ_TEXT("%.0e 1.e3"), 12345.0);
  ExpectFormat(MQ_TEXT("0.000000e+00 -0.000000e+00"), MQ_TEXT("%e %e"), 0.0, -0.0);
  ExpectFormat(MQ_TEXT("1.000000e-300 1.000000e+300"), MQ_TEXT("%e %e"), 1e-300, 1e300);
  ExpectFormat(MQ_TEXT("1.00e+10"), MQ_TEXT("%.2e"), 9.999e9);
}

TEST(Format, NumbersInTheShorterForm) {
  ExpectFormat(MQ_TEXT("0 -0 1 0.1"), MQ_TEXT("%g %g %g %g"), 0.0, -0.0, 1.0, 0.1);
  ExpectFormat(MQ_TEXT("100000 1e+06"), MQ_TEXT("%g %g"), 100000.0, 1000000.0);
  ExpectFormat(MQ_TEXT("999999 1e+06"), MQ_TEXT("%g %g"), 999999.0, 999999.5);
  ExpectFormat(MQ_TEXT("0.0001 1e-05 1E-05"), MQ_TEXT("%g %g %G"), 0.0001, 0.00001, 0.00001);
  ExpectFormat(MQ_TEXT("1.23e+03 1e+03"), MQ_TEXT("%.3g %.0g"), 1234.5, 1234.5);
  ExpectFormat(MQ_TEXT("0.10000000000000001"), MQ_TEXT("%.17g"), 0.1);
  ExpectFormat(MQ_TEXT("1.79769e+308 4.94066e-324"), MQ_TEXT("%g %g"), DBL_MAX, DBL_TRUE_MIN);
}

TEST(Format, WidthAndFlagsOfNumbers) {
  ExpectFormat(MQ_TEXT("|    1.50|1.50    |00001.50|"), MQ_TEXT("|%8.2f|%-8.2f|%08.2f|"), 1.5, 1.5,
               1.5);
  ExpectFormat(MQ_TEXT("|-0003.14|"), MQ_TEXT("|%08.2f|"), -3.14159);
  ExpectFormat(MQ_TEXT("|+2.0| 2.0|-2.0|"), MQ_TEXT("|%+.1f|% .1f|%+.1f|"), 2.0, 2.0, -2.0);
  ExpectFormat(MQ_TEXT("|+00002.5|"), MQ_TEXT("|%+08g|"), 2.5);
}

TEST(Format, WhatIsNoFiniteNumberIsAWordWithoutZerosInFront) {
  ExpectFormat(MQ_TEXT("nan inf -inf"), MQ_TEXT("%f %g %e"), kNotANumber, kInfinity, -kInfinity);
  ExpectFormat(MQ_TEXT("NAN INF -INF"), MQ_TEXT("%F %G %E"), kNotANumber, kInfinity, -kInfinity);
  ExpectFormat(MQ_TEXT("|     inf|    -inf|     nan|"), MQ_TEXT("|%08f|%08.2f|%08g|"), kInfinity,
               -kInfinity, kNotANumber);
  ExpectFormat(MQ_TEXT("|+inf| inf|"), MQ_TEXT("|%+f|% f|"), kInfinity, kInfinity);
}

TEST(Format, Units) {
  ExpectFormat(MQ_TEXT("A\u20AC"), MQ_TEXT("%c%c"), MQ_TEXT('A'), MQ_TEXT('\u20AC'));
  ExpectFormat(MQ_TEXT("B"), MQ_TEXT("%lc"), 66);
  ExpectFormat(MQ_TEXT("|  A|A  |"), MQ_TEXT("|%3c|%-3c|"), MQ_TEXT('A'), 'A');
  EXPECT_EQ(FormattedLength(MQ_TEXT("a%cb"), 0), 3);
}

TEST(Format, Texts) {
  const CString abc = MQ_TEXT("abc");
  const mqChar* none = nullptr;
  mqChar changeable[] = {MQ_TEXT('x'), MQ_TEXT('y'), 0};
  ExpectFormat(MQ_TEXT("abc-abc-def"), MQ_TEXT("%s-%s-%s"), abc, abc.GetString(), MQ_TEXT("def"));
  ExpectFormat(MQ_TEXT("xy abc!"), MQ_TEXT("%ls %hs"), changeable, abc + MQ_TEXT("!"));
  ExpectFormat(MQ_TEXT("|   abc|abc   |   abc|"), MQ_TEXT("|%6s|%-6s|%06s|"), abc, abc, abc);
  ExpectFormat(MQ_TEXT("|abc|"), MQ_TEXT("|%2s|"), abc);
  ExpectFormat(MQ_TEXT("|ab|||abc|"), MQ_TEXT("|%.2s|%.0s|%.s|%.9s|"), abc, abc, abc, abc);
  ExpectFormat(MQ_TEXT("|    ab|"), MQ_TEXT("|%6.2s|"), abc);
  ExpectFormat(MQ_TEXT("|(null)|(nu|"), MQ_TEXT("|%s|%.3s|"), none, nullptr);
  ExpectFormat(MQ_TEXT("||"), MQ_TEXT("|%s|"), CString());
  const mqChar zeroInside[] = {MQ_TEXT('a'), 0, MQ_TEXT('b')};
  ExpectFormat(MQ_TEXT("|a|"), MQ_TEXT("|%s|"), CString(zeroInside, 3));
}

TEST(Format, CodesAreTheirIntegers) {
  enum Plain { kMinusOne = -1, kThree = 3 };
  enum class Scoped : std::uint8_t { kTop = 200 };
  ExpectFormat(MQ_TEXT("3 -1 200"), MQ_TEXT("%d %d %d"), kThree, kMinusOne, Scoped::kTop);
}

TEST(Format, AStarTakesItsNumberFromTheArguments) {
  ExpectFormat(MQ_TEXT("|   42|"), MQ_TEXT("|%*d|"), 5, 42);
  ExpectFormat(MQ_TEXT("|42   |"), MQ_TEXT("|%*d|"), -5, 42);
  ExpectFormat(MQ_TEXT("|42   |"), MQ_TEXT("|%-*d|"), -5, 42);
  ExpectFormat(MQ_TEXT("|00042|"), MQ_TEXT("|%0*d|"), 5, 42);
  ExpectFormat(MQ_TEXT("|3.14|"), MQ_TEXT("|%.*f|"), 2, 3.14159);
  ExpectFormat(MQ_TEXT("|3.141590|"), MQ_TEXT("|%.*f|"), -1, 3.14159);  // below 0: none given
  ExpectFormat(MQ_TEXT("|     3.1|ab |"), MQ_TEXT("|%*.*f|%*.*s|"), 8, 1, 3.14159, -3, 2,
               MQ_TEXT("abc"));
  ExpectFormat(MQ_TEXT("|42|"), MQ_TEXT("|%*d|"), 1.5, 42);  // no integer counts as 0
}

TEST(Format, DigitsDoNotContinueAStar) {
  ExpectFormat(MQ_TEXT("|%*5d|"), MQ_TEXT("|%*5d|"), 3, 42);
  ExpectFormat(MQ_TEXT("|%*5d|"), MQ_TEXT("|%*5d|"), INT64_MIN, 42);
}

TEST(Format, WidthsAndPrecisionsAreCutTo1024) {
  EXPECT_EQ(FormattedLength(MQ_TEXT("%1024d"), 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%1025d"), 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%-99999999999999999999999d"), 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%*d"), INT_MAX, 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%*d"), INT64_MIN, 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%*s"), INT_MIN, MQ_TEXT("a")), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%.5000d"), 1), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%.5000f"), 1.0), 1026);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%.*e"), INT64_MAX, 1.0), 1 + 1 + 1024 + 4);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%.5000s"), CString(MQ_TEXT('x'), 2000)), 1024);
  EXPECT_EQ(FormattedLength(MQ_TEXT("%s"), CString(MQ_TEXT('x'), 2000)), 2000);
}

TEST(Format, AConversionWithoutAnArgumentStaysAsItWasWritten) {
  ExpectFormat(MQ_TEXT("%d"), MQ_TEXT("%d"));
  ExpectFormat(MQ_TEXT("1 %s %-08.3lld"), MQ_TEXT("%d %s %-08.3lld"), 1);
  ExpectFormat(MQ_TEXT("%*d"), MQ_TEXT("%*d"));
  ExpectFormat(MQ_TEXT("%*d"), MQ_TEXT("%*d"), 5);
  ExpectFormat(MQ_TEXT("%*.*f."), MQ_TEXT("%*.*f."), 5, 2);
}

TEST(Format, AnUnknownConversionStaysAndTakesNoArgument) {
  ExpectFormat(MQ_TEXT("%q7"), MQ_TEXT("%q%d"), 7);
  ExpectFormat(MQ_TEXT("%p %n %a %S %y"), MQ_TEXT("%p %n %a %S %y"), 7);
  ExpectFormat(MQ_TEXT("%-5.2lly7"), MQ_TEXT("%-5.2lly%d"), 7);
  ExpectFormat(MQ_TEXT("%I64d"), MQ_TEXT("%I64d"), 7);
  ExpectFormat(MQ_TEXT("%\u00E47"), MQ_TEXT("%\u00E4%d"), 7);
}

TEST(Format, TwoPercentSignsAreOneAndTheLastOneStays) {
  ExpectFormat(MQ_TEXT("100 %"), MQ_TEXT("%d %%"), 100);
  ExpectFormat(MQ_TEXT("%%"), MQ_TEXT("%%%%"));
  ExpectFormat(MQ_TEXT("%d"), MQ_TEXT("%%d"), 7);
  ExpectFormat(MQ_TEXT("%7"), MQ_TEXT("%%%d"), 7);
  ExpectFormat(MQ_TEXT("%"), MQ_TEXT("%5%"), 7);
  ExpectFormat(MQ_TEXT("%"), MQ_TEXT("%"), 7);
  ExpectFormat(MQ_TEXT("7%"), MQ_TEXT("%d%"), 7);
  ExpectFormat(MQ_TEXT("%-+ #05.3"), MQ_TEXT("%-+ #05.3"), 7);
  ExpectFormat(MQ_TEXT("%."), MQ_TEXT("%."), 7);
  ExpectFormat(MQ_TEXT("%ll"), MQ_TEXT("%ll"), 7);
  ExpectFormat(MQ_TEXT("%*"), MQ_TEXT("%*"), 7);
}

TEST(Format, AnArgumentOfAnotherKindCountsAsNothing) {
  ExpectFormat(MQ_TEXT("0 0"), MQ_TEXT("%d %x"), 1.5, MQ_TEXT("12"));
  ExpectFormat(MQ_TEXT("0.000000 0"), MQ_TEXT("%f %g"), 3, MQ_TEXT("1.5"));
  ExpectFormat(MQ_TEXT("[][]"), MQ_TEXT("[%s][%s]"), 5, 1.5);
}

TEST(Format, TheTextItselfMayBeTheFormatOrAnArgument) {
  CString text = MQ_TEXT("a text that lies in memory of its own, %d");
  text.Format(text, 1);
  EXPECT_EQ(text, CString(MQ_TEXT("a text that lies in memory of its own, 1")));
  text = MQ_TEXT("ab");
  text.Format(MQ_TEXT("%s-%s"), text, text.GetString() + 1);
  EXPECT_EQ(text, CString(MQ_TEXT("ab-b")));
  text.AppendFormat(MQ_TEXT("+%s"), text);
  EXPECT_EQ(text, CString(MQ_TEXT("ab-b+ab-b")));
}

TEST(Format, AppendingKeepsWhatIsThere) {
  CString text = MQ_TEXT("a");
  text.AppendFormat(MQ_TEXT("%d"), 1);
  text.AppendFormat(MQ_TEXT(""));
  text.AppendFormat(nullptr);
  text.AppendFormat(MQ_TEXT("%s"), MQ_TEXT("b"));
  EXPECT_EQ(text, CString(MQ_TEXT("a1b")));
}

TEST(Format, NoLocaleChangesTheDecimalPoint) {
  // A machine has some of these; "C" is always there.
  int tried = 0;
  for (const char* name : {"C", "de_DE.UTF-8", "tr_TR.UTF-8", "German_Germany.1252"}) {
    if (std::setlocale(LC_ALL, name) != nullptr) {
      SCOPED_TRACE(name);
      ++tried;
      ExpectFormat(MQ_TEXT("1234567.5 1.5 1.500000e+00 1000000"), MQ_TEXT("%.1f %g %e %d"),
                   1234567.5, 1.5, 1.5, 1000000);
      RecordProperty(name, "tried");
    }
  }
  std::setlocale(LC_ALL, "C");
  EXPECT_GE(tried, 1);
}

}  // namespace
