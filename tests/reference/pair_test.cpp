#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "members.h"
#include "tally.h"

namespace reference {
namespace {

static_assert(std::has_virtual_destructor_v<CVekPostListPair> &&
              std::has_virtual_destructor_v<CVekIntPair>);

struct PlainPair {
  int first = 0;
  int second = 0;
};

template <class Pair>
class Pairs {
 public:
  void Change(Random& random) {
    const std::size_t one = AnyPlace(random);
    const std::size_t other = AnyPlace(random);
    switch (m_plain.empty() ? 0 : random.Below(7)) {
      case 0:
        Hit("pairs: new");
        m_pairs.push_back(Pair());
        m_plain.emplace_back();
        break;
      case 1:
        Hit("pairs: first");
        m_pairs[one].m_nFirst = m_plain[one].first = random.Int();
        break;
      case 2:
        Hit("pairs: second");
        m_pairs[one].m_nSecond = m_plain[one].second = random.Int();
        break;
      case 3:
        Hit("pairs: copied");
        m_pairs.push_back(Pair(m_pairs[one]));
        m_plain.push_back(PlainPair(m_plain[one]));
        break;
      case 4:
        Hit(one == other ? "pairs: assigned to itself" : "pairs: assigned");
        m_pairs[one] = m_pairs[other];
        m_plain[one] = m_plain[other];
        break;
      case 5:
        if (m_plain.size() > 20) {
          Hit("pairs: removed");
          m_pairs.erase(m_pairs.begin(), m_pairs.begin() + 15);
          m_plain.erase(m_plain.begin(), m_plain.begin() + 15);
        }
        break;
      default:
        Hit("pairs: sorted");
        std::ranges::sort(
            m_pairs, {}, [](const Pair& pair) { return std::pair(pair.m_nSecond, pair.m_nFirst); });
        std::ranges::sort(m_plain, {},
                          [](const PlainPair& pair) { return std::pair(pair.second, pair.first); });
    }
  }

  void Compare() const {
    ASSERT_EQ(m_plain.size(), m_pairs.size());
    for (std::size_t place = 0; place < m_plain.size(); ++place) {
      Fields expected;
      Put(expected, "first", {m_plain[place].first});
      Put(expected, "second", {m_plain[place].second});
      ASSERT_EQ("", FirstDifference(expected, Snapshot(m_pairs[place]))) << "pair " << place;
    }
  }

 private:
  std::size_t AnyPlace(Random& random) const {
    return m_plain.empty()
               ? 0
               : static_cast<std::size_t>(random.Below(static_cast<int>(m_plain.size())));
  }

  std::vector<Pair> m_pairs;
  std::vector<PlainPair> m_plain;
};

template <class Pair>
void ChangeAndCompare(std::uint64_t seed) {
  ResetTally();
  Random random(seed);
  const int cases = CountCases(5000);
  Pairs<Pair> pairs;
  for (int number = 0; number < cases; ++number) {
    SCOPED_TRACE("change " + std::to_string(number));
    ASSERT_NO_FATAL_FAILURE(pairs.Compare());
    pairs.Change(random);
  }
  CheckTally("pairs",
             {"pairs: new", "pairs: first", "pairs: second", "pairs: copied", "pairs: assigned",
              "pairs: assigned to itself", "pairs: removed", "pairs: sorted"});
  RecordCases(cases);
}

TEST(PairReference, PairsOfAListAreTwoIntegers) {
  ChangeAndCompare<CVekPostListPair>(3102);
}

TEST(PairReference, PairsToSortByAreTwoIntegers) {
  ChangeAndCompare<CVekIntPair>(3103);
}

}  // namespace
}  // namespace reference
