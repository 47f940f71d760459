#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/platform/find_unit.h>

namespace mqp {
namespace {

constexpr mqChar kWanted = MQ_TEXT(':');

TEST(FindUnit, FindsTheFirstAtEveryPlaceOfEveryLength) {
  for (std::size_t length = 0; length <= 40; ++length) {
    const std::vector<mqChar> none(length, MQ_TEXT('a'));  // of which not one unit more may be read
    EXPECT_EQ(FindUnit({none.data(), length}, kWanted), length);
    for (std::size_t first = 0; first < length; ++first) {
      for (std::size_t second = first; second < length; ++second) {
        std::vector<mqChar> units = none;
        units[first] = kWanted;
        units[second] = kWanted;
        EXPECT_EQ(FindUnit({units.data(), length}, kWanted), first)
            << length << " units, " << second;
      }
    }
  }
}

TEST(FindUnit, TellsUnitsApartByBothTheirBytes) {
  const std::basic_string<mqChar> units = {0x3A00, 0x013A, 0x3A3A, 0x003B, 0xFF3A,
                                           0x803A, 0x3A01, 0x0000, 0x003A};
  EXPECT_EQ(FindUnit(units, kWanted), 8U);
  EXPECT_EQ(FindUnit(mqTextView(units).substr(0, 8), kWanted), 8U);
  EXPECT_EQ(FindUnit(units, 0xFF3A), 4U);
  EXPECT_EQ(FindUnit(units, 0), 7U);
}

}  // namespace
}  // namespace mqp
