// Components of an assembly: found by their elements, told apart by their colours, and sorted.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <functional>
#include <map>
#include <numeric>
#include <random>
#include <span>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include <boost/icl/interval_map.hpp>
#include <mqPostCommon/lists/pairs.h>
#include <mqPostCommon/mqPostCommon.h>

#include "family.h"

namespace mqp::bench {
namespace {

using Components = CDspAsmCompList;
using Colors = CArray<COGLColor, COGLColor>;

constexpr std::array kSizes = {100, 1'000, 10'000, 100'000};
constexpr std::array kSizesOfElements = {100, 1'000, 10'000, 100'000, 1'000'000};
constexpr int kMostChecked = 10'000;   // whose answers are compared
constexpr int kMostQuadratic = 1'000;  // with which a peer is done in time
constexpr int kMostCopied = 10'000;

/// Scenes are made once for all variants: those of a million components are large.
template <class Scene>
Scene* SceneOf(int size) {
  static std::map<int, Scene> scenes;
  return &scenes.try_emplace(size, size).first->second;
}

std::span<const CDspAsmComp> All(const Components& list) {
  return {list.m_arrComps.GetData(), static_cast<std::size_t>(list.GetSize())};
}

std::vector<int> ShuffledNumbers(int count) {
  std::vector<int> numbers(static_cast<std::size_t>(count));
  std::iota(numbers.begin(), numbers.end(), 0);
  std::shuffle(numbers.begin(), numbers.end(), std::mt19937(20260101));
  return numbers;
}

// ---------------------------------------------------------------------------------------------
// Elements

constexpr int kStride = 12;  // ten elements of a component and two of none

// The enricher keeps index 0, which is otherwise taken for no value.
using ByInterval = boost::icl::interval_map<int, int, boost::icl::partial_enricher>;

/// Components in random order.
Components MakeElements(int count) {
  Components list;
  for (const int number : ShuffledNumbers(count)) {
    const int first = kStride * number;
    CDspAsmComp component(number, first, first + 9, COGLColor(), 0);
    component.m_nVisIndexBase = 10 * number + 1;
    component.m_nBodyID = 7 * number;
    list.Add(component);
  }
  return list;
}

/// Elements are asked for that some component holds, and in `gaps` such as none does.
struct Elements {
  explicit Elements(int count)
      : list(MakeElements(count)), index(list), dense(static_cast<std::size_t>(count), 1) {
    for (int place = 0; place < count; ++place) {
      const CDspAsmComp& component = list.m_arrComps[place];
      byInterval.set(
          {boost::icl::interval<int>::closed(component.m_nFirstElem, component.m_nLastElem),
           place});
      byBody.emplace(component.m_nBodyID, place);
    }
    std::mt19937 random(20260102);
    std::uniform_int_distribution<int> draw(0, count - 1);
    for (std::size_t place = 0; place < kDrawn; ++place) {
      const int number = draw(random);
      held[place] = kStride * number + number % 10;
      gaps[place] = kStride * number + 10 + number % 2;
      bodies[place] = 7 * number;
      places[place] = static_cast<std::size_t>(number);
    }
  }

  Components list;
  CDspAsmCompIndex index;
  ByInterval byInterval;
  std::unordered_map<int, int> byBody;
  std::vector<int> dense;
  std::array<int, kDrawn> held{};
  std::array<int, kDrawn> gaps{};
  std::array<int, kDrawn> bodies{};
  std::array<std::size_t, kDrawn> places{};
};

int ByList(const Elements& elements, int element) {
  int index = 0;
  return elements.list.GetVisPartIndex_1based(element, &index) == 0 ? 0 : index;
}

int ByIndex(const Elements& elements, int element) {
  int index = 0;
  return elements.index.GetVisPartIndex_1based(element, &index) == 0 ? 0 : index;
}

int ByLoop(const Elements& elements, int element) {
  for (const CDspAsmComp& component : All(elements.list)) {
    if (component.m_bHidden == 0 && component.m_nFirstElem >= 0 &&
        component.m_nFirstElem <= element && element <= component.m_nLastElem) {
      return component.m_nVisIndexBase + element - component.m_nFirstElem;
    }
  }
  return 0;
}

int ByIntervals(const Elements& elements, int element) {
  const auto found = elements.byInterval.find(element);
  if (found == elements.byInterval.end()) {
    return 0;
  }
  const CDspAsmComp& component = elements.list.m_arrComps[found->second];
  return component.m_nVisIndexBase + element - component.m_nFirstElem;
}

unsigned ReadALineOfEach(const Elements& elements) {
  unsigned sum = 0;
  for (const CDspAsmComp& component : All(elements.list)) {
    sum += static_cast<unsigned>(component.m_nFirstElem);
  }
  return sum;
}

void CheckElements(int size) {
  const Elements& elements = *SceneOf<Elements>(size);
  for (std::size_t place = 0; place < kDrawn; ++place) {
    for (const int element : {elements.held[place], elements.gaps[place]}) {
      const int answer = ByList(elements, element);
      RequireSame(answer == ByLoop(elements, element) && answer == ByIntervals(elements, element) &&
                      answer == ByIndex(elements, element),
                  "element " + std::to_string(element));
    }
    const int body = elements.bodies[place];
    const int answer = elements.list.GetIndexByBodyID(body);
    RequireSame(answer == elements.index.GetIndexByBodyID(body) &&
                    answer == elements.byBody.find(body)->second,
                "body " + std::to_string(body));
  }
}

/// Registers what asks one question; `call(elements, i)` asks the i-th one.
template <class Call>
void AddQuestion(const std::string& operation, const char* variant, int size, Call call,
                 bool isForEach = false) {
  AddGrowing(
      operation, variant, size, SceneOf<Elements>,
      [call](const Elements* elements, std::size_t place) { Keep(call(*elements, place)); },
      isForEach);
}

int LoadAnInt(const Elements& elements, std::size_t place) {
  return elements.dense[elements.places[place]];
}

void RegisterElements() {
  const std::string scan = "element none holds, in the list";
  const std::string byIndex = "element to component, by the index";
  const std::string body = "body to component, by the index";
  for (const int size : kSizesOfElements) {
    if (size <= 1'000) {
      CheckElements(size);
    }
    // clang-format off
    AddQuestion(scan, kOurs, size, [](const Elements& elements, std::size_t place) { return ByList(elements, elements.gaps[place]); }, true);
    AddQuestion(scan, kLimit, size, [](const Elements& elements, std::size_t) { return ReadALineOfEach(elements); }, true);
    AddQuestion(scan, "loop", size, [](const Elements& elements, std::size_t place) { return ByLoop(elements, elements.gaps[place]); }, true);
    AddQuestion(byIndex, kOurs, size, [](const Elements& elements, std::size_t place) { return ByIndex(elements, elements.held[place]); });
    AddQuestion(byIndex, kLimit, size, LoadAnInt);
    AddQuestion(byIndex, "interval_map", size, [](const Elements& elements, std::size_t place) { return ByIntervals(elements, elements.held[place]); });
    AddQuestion(body, kOurs, size, [](const Elements& elements, std::size_t place) { return elements.index.GetIndexByBodyID(elements.bodies[place]); });
    AddQuestion(body, kLimit, size, LoadAnInt);
    AddQuestion(body, "unordered_map", size, [](const Elements& elements, std::size_t place) { return elements.byBody.find(elements.bodies[place])->second; });
    // clang-format on
  }
}

// ---------------------------------------------------------------------------------------------
// Colours

/// Components of which each has a colour of its own, or one of sixteen.
template <bool kAreAllDifferent>
struct Coloured {
  explicit Coloured(int count) {
    for (const int number : ShuffledNumbers(count)) {
      const int color = kAreAllDifferent ? number : number % 16;
      const auto part = [color](int shift) { return static_cast<float>(color >> shift & 0xFF); };
      list.Add(CDspAsmComp(number, 0, 9, {part(0), part(8), part(16), 1.0F}, 0));
    }
  }
  Components list;
};

std::uint64_t HashOf(const COGLColor& color) {
  std::uint64_t hash = 0;
  for (const std::uint64_t half : std::bit_cast<std::array<std::uint64_t, 2>>(color)) {
    hash = (hash ^ half) * 0x9E3779B97F4A7C15U;
    hash ^= hash >> 32;
  }
  return hash;
}

struct ColorHash {
  std::size_t operator()(const COGLColor& color) const { return HashOf(color); }
};

int CountByList(const Components& list) {
  static Colors colors;
  static Colors bottoms;
  list.MakeColorList(&colors, &bottoms);
  return colors.GetSize();
}

/// What the list does, on vectors. `isNew` takes a colour note of and says whether it was new.
template <class IsNew>
int CountColors(const Components& list, IsNew isNew) {
  static std::vector<COGLColor> colors;
  static std::vector<COGLColor> bottoms;
  colors.clear();
  bottoms.clear();
  for (const CDspAsmComp& component : All(list)) {
    if (!isNew(colors, component.m_Color)) {
      continue;
    }
    colors.push_back(component.m_Color);
    if (colors.size() > 1) {
      isNew(colors, component.m_BottomColor);
      colors.push_back(component.m_BottomColor);
    }
    bottoms.push_back(component.m_BottomColor);
  }
  return static_cast<int>(colors.size());
}

int CountByScan(const Components& list) {
  return CountColors(list, [](const std::vector<COGLColor>& colors, const COGLColor& color) {
    return std::ranges::find(colors, color) == colors.end();
  });
}

int CountBySet(const Components& list) {
  std::unordered_set<COGLColor, ColorHash> known;
  return CountColors(list, [&known](const std::vector<COGLColor>&, const COGLColor& color) {
    return known.insert(color).second;
  });
}

std::uint64_t HashEachColor(const Components& list) {
  std::uint64_t sum = 0;
  for (const CDspAsmComp& component : All(list)) {
    sum += HashOf(component.m_Color);
  }
  return sum;
}

template <bool kAreAllDifferent>
void RegisterColors(const std::string& operation) {
  using Scene = Coloured<kAreAllDifferent>;
  for (const int size : kSizes) {
    const auto add = [&](const char* variant, auto ask) {
      AddGrowing(
          operation, variant, size, SceneOf<Scene>,
          [ask](Scene* scene, std::size_t) { Keep(ask(scene->list)); }, true);
    };
    if (size <= kMostChecked) {
      const Components& list = SceneOf<Scene>(size)->list;
      RequireSame(CountByList(list) == CountBySet(list), operation);
      RequireSame(CountByList(list) == CountByScan(list), operation);
    }
    add(kOurs, CountByList);
    add(kLimit, HashEachColor);
    add("unordered_set", CountBySet);
    if (size <= kMostQuadratic) {
      add("scan", CountByScan);
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Sorted, by turns upwards and downwards

struct Sorted {
  explicit Sorted(int count) {
    for (const int number : ShuffledNumbers(count)) {
      list.Add(CDspAsmComp(number, 10 * number, 10 * number + 9, COGLColor(), 0));
    }
    list.SortByElemID(1);
    pairs.resize(static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
      CVekIntPair& pair = pairs[static_cast<std::size_t>(index)];
      pair.m_nFirst = index;
      pair.m_nSecond = -index;
    }
  }
  Components list;
  std::vector<CVekIntPair> pairs;  // in falling order, as the list is when it is asked
};

int CompareSeconds(const void* left, const void* right) {
  const int leftKey = static_cast<const CVekIntPair*>(left)->m_nSecond;
  const int rightKey = static_cast<const CVekIntPair*>(right)->m_nSecond;
  return (leftKey > rightKey ? 1 : 0) - (leftKey < rightKey ? 1 : 0);
}

void SortByList(Sorted* sorted, std::size_t place) {
  sorted->list.SortByElemID(place % 2 == 0 ? 0 : 1);
}

/// Components have no assignment but by copying, so each step copies.
void SortByCopies(Sorted* sorted, std::size_t place) {
  CDspAsmComp* const first = sorted->list.m_arrComps.GetData();
  CDspAsmComp* const last = first + sorted->list.GetSize();
  if (place % 2 == 0) {
    std::ranges::sort(first, last, std::ranges::greater(), &CDspAsmComp::m_nLastElem);
  } else {
    std::ranges::sort(first, last, std::ranges::less(), &CDspAsmComp::m_nLastElem);
  }
}

/// The pairs are there, and each component is moved once.
void SortPairsAndMove(Sorted* sorted, std::size_t /*place*/) {
  static std::vector<CVekIntPair> order;
  static std::vector<int> places;
  order = sorted->pairs;
  std::qsort(order.data(), order.size(), sizeof(CVekIntPair), CompareSeconds);
  places.resize(order.size());
  std::ranges::transform(order, places.begin(), &CVekIntPair::m_nFirst);
  sorted->list.m_arrComps.Reorder(places);
}

std::vector<int> NumbersAfter(void (*sort)(Sorted*, std::size_t), std::size_t place) {
  Sorted sorted(kMostChecked);
  sort(&sorted, place);
  std::vector<int> numbers;
  for (int index = 0; index < sorted.list.GetSize(); ++index) {
    numbers.push_back(sorted.list.m_arrComps[index].m_nCompID);
  }
  return numbers;
}

void RegisterSorting() {
  const std::string operation = "sort by last element";
  RequireSame(NumbersAfter(SortByList, 0) == NumbersAfter(SortPairsAndMove, 0), operation);
  RequireSame(NumbersAfter(SortByList, 0) == NumbersAfter(SortByCopies, 0), operation);
  RequireSame(NumbersAfter(SortByList, 1) == NumbersAfter(SortByCopies, 1), operation);
  for (const int size : kSizes) {
    const auto add = [&](const char* variant, auto sort) {
      AddGrowing(
          operation, variant, size, SceneOf<Sorted>,
          [sort](Sorted* sorted, std::size_t place) { sort(sorted, place); }, true);
    };
    add(kOurs, SortByList);
    add(kLimit, SortPairsAndMove);
    if (size <= kMostCopied) {
      add("sort of copies", SortByCopies);
    }
  }
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  using namespace mqp::bench;
  RegisterElements();
  RegisterColors<false>("colours of a list, few");
  RegisterColors<true>("colours of a list, all different");
  RegisterSorting();
  return RunFamily(argc, argv);
}
