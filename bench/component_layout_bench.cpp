// What other layouts of a component would give: a scan for an element that nobody holds, over
// components of the same content laid out in several ways, as a ratio to reading one cache line
// of each component.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>

namespace mqp::bench {
namespace {

// An element beyond all; the compiler is not to know that.
volatile int g_nobodys = std::numeric_limits<int>::max();
constexpr std::array kSizes = {100, 1000, 10000, 100000};

/// What a scan reads of a component.
struct Range {
  int m_nFirstElem = 0;
  int m_nLastElem = 0;
  int m_bHidden = 0;
  int m_nVisIndexBase = 1;
};

struct RangeInFront : Range {
  std::array<std::byte, sizeof(CDspAsmComp) - sizeof(Range)> rest;
};

struct alignas(64) OnItsOwnLines : Range {
  std::array<std::byte, sizeof(CDspAsmComp) - sizeof(Range)> rest;
};

/// Ranges in an array of their own; the rest stands behind a pointer.
struct SplitOff : Range {
  void* rest;
};

template <class Component>
bool Holds(const Component& component, int elem) {
  return component.m_nFirstElem <= elem && elem <= component.m_nLastElem &&
         component.m_nFirstElem >= 0 && component.m_bHidden == 0;
}

template <class Component>
std::vector<Component> MakeComponents(int count) {
  std::vector<Component> components(static_cast<std::size_t>(count));
  for (int number = 0; number < count; ++number) {
    Component& component = components[static_cast<std::size_t>(number)];
    component.m_nFirstElem = 10 * number + 1;
    component.m_nLastElem = 10 * number + 10;
  }
  return components;
}

volatile int g_sink = 0;

/// Nanoseconds for one component: the fastest of several runs.
template <class Scan>
double Measure(int count, Scan scan) {
  using Clock = std::chrono::steady_clock;
  constexpr auto kLongEnough = std::chrono::milliseconds(10);
  double fastest = std::numeric_limits<double>::max();
  for (int run = 0; run < 11; ++run) {
    int repetitions = 0;
    const Clock::time_point start = Clock::now();
    do {
      g_sink = scan();
      ++repetitions;
    } while (Clock::now() - start < kLongEnough);
    const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
    fastest = std::min(fastest, taken.count() / repetitions);
  }
  return fastest / count;
}

template <class Component>
double MeasureLayout(int count) {
  const std::vector<Component> components = MakeComponents<Component>(count);
  return Measure(count, [&components] {
    const auto found = std::ranges::find_if(
        components,
        [elem = int{g_nobodys}](const Component& component) { return Holds(component, elem); });
    return static_cast<int>(found - components.begin());
  });
}

double MeasureList(int count) {
  CDspAsmCompList list;
  for (const CDspAsmComp& component : MakeComponents<CDspAsmComp>(count)) {
    list.Add(component);
  }
  return Measure(count, [&list] {
    int index = 0;
    return list.GetVisPartIndex_1based(g_nobodys, &index);
  });
}

/// One int of each component, added up.
double MeasureLimit(int count) {
  const auto components = MakeComponents<CDspAsmComp>(count);
  return Measure(count, [&components] {
    unsigned sum = 0;
    for (const CDspAsmComp& component : components) {
      sum += static_cast<unsigned>(component.m_nFirstElem);
    }
    return static_cast<int>(sum);
  });
}

struct Layout {
  const char* name;
  std::size_t size;
  double (*measure)(int count);
};

constexpr auto kLayouts = std::to_array<Layout>({
    {"limit: one line of each component is read", sizeof(CDspAsmComp), MeasureLimit},
    {"the list, through the library", sizeof(CDspAsmComp), MeasureList},
    {"a component as it is", sizeof(CDspAsmComp), MeasureLayout<CDspAsmComp>},
    {"the range in front, the same size", sizeof(RangeInFront), MeasureLayout<RangeInFront>},
    {"the range in front, whole cache lines", sizeof(OnItsOwnLines), MeasureLayout<OnItsOwnLines>},
    {"the ranges split off", sizeof(SplitOff), MeasureLayout<SplitOff>},
});

}  // namespace
}  // namespace mqp::bench

int main() {
  using namespace mqp::bench;
  std::printf("%-44s %6s", "scan for an element, ns for one component", "bytes");
  for (const int size : kSizes) {
    std::printf(" %14d", size);
  }
  std::printf("\n");
  std::array<double, kSizes.size()> limits{};
  for (const Layout& layout : kLayouts) {
    std::printf("%-44s %6zu", layout.name, layout.size);
    for (std::size_t place = 0; place < kSizes.size(); ++place) {
      const double time = layout.measure(kSizes[place]);
      limits[place] = limits[place] == 0.0 ? time : limits[place];
      std::printf(" %6.2f (%4.2fx)", time, time / limits[place]);
    }
    std::printf("\n");
  }
}
