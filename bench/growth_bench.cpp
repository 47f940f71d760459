// How the operations of the display list and of the material list grow with the number of
// records: time for one record as a ratio to that in a list of a hundred, so that 1.0 throughout
// is linear growth, and the memory that a record takes while the operation runs.

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <limits>
#include <new>
#include <random>
#include <string>
#include <vector>

#include <mqPostCommon/mqPostCommon.h>
#include <mqPostCommon/platform/comm_funcs.h>

namespace {

std::size_t g_allocated = 0;  // bytes handed out since it was last cleared

}  // namespace

void* operator new(std::size_t size) {
  g_allocated += size;
  if (void* block = std::malloc(size)) {
    return block;
  }
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept {
  std::free(block);
}
void operator delete(void* block, std::size_t /*size*/) noexcept {
  std::free(block);
}

namespace mqp::bench {
namespace {

constexpr std::array kSizes = {100, 1000, 10000, 100000};

CString Named(const char* beginning, int number) {
  CString text;
  CharToCString((beginning + std::to_string(number)).c_str(), text);
  return text;
}

COGLColor ColorOf(int number) {
  const auto part = [number](int shift) { return static_cast<float>(number >> shift & 0xFF); };
  return {part(0), part(8), part(16), 1.0F};
}

/// Components of 10 elements each with names of their own, in random order.
CDspAsmCompList MakeComponents(int count, int colors) {
  std::vector<int> order(static_cast<std::size_t>(count));
  for (int place = 0; place < count; ++place) {
    order[static_cast<std::size_t>(place)] = place;
  }
  std::shuffle(order.begin(), order.end(), std::mt19937(20260101));
  CDspAsmCompList list;
  for (const int number : order) {
    CDspAsmComp component(number, 10 * number + 1, 10 * number + 10, ColorOf(number % colors), 0);
    component.m_nBodyID = number;
    component.m_strCompName = Named("Part of the assembly ", number);
    list.Add(component);
  }
  return list;
}

CmqpMaterialDataList MakeMaterials(int count, int names) {
  CmqpMaterialDataList list;
  for (int number = 0; number < count; ++number) {
    CmqpMaterialData material;
    material.m_nBodyID = number;
    material.m_strMaterialName = Named("Alloy steel ", number % names);
    list.Add(material);
  }
  return list;
}

struct Cost {
  double nanoseconds = std::numeric_limits<double>::max();
  std::size_t bytes = 0;
};

/// The fastest of several runs; each of them long enough to be measured.
Cost Measure(const std::function<void()>& operation) {
  using Clock = std::chrono::steady_clock;
  constexpr auto kLongEnough = std::chrono::milliseconds(5);
  Cost cost;
  for (int run = 0; run < 7; ++run) {
    int repetitions = 0;
    const Clock::time_point start = Clock::now();
    do {
      g_allocated = 0;
      operation();
      ++repetitions;
    } while (Clock::now() - start < kLongEnough);
    const std::chrono::duration<double, std::nano> taken = Clock::now() - start;
    cost.nanoseconds = std::min(cost.nanoseconds, taken.count() / repetitions);
    cost.bytes = g_allocated;
  }
  return cost;
}

struct Operation {
  const char* name;
  std::function<std::function<void()>(int count)> prepare;
};

volatile int g_sink = 0;

std::vector<Operation> Operations() {
  const auto onComponents = [](auto colorsOf, auto ask) {
    return [=](int count) -> std::function<void()> {
      return [list = MakeComponents(count, colorsOf(count)), count, ask]() mutable {
        g_sink = ask(list, count);
      };
    };
  };
  const auto onMaterials = [](auto namesOf, auto ask) {
    return [=](int count) -> std::function<void()> {
      return [list = MakeMaterials(count, namesOf(count)), count, ask]() mutable {
        g_sink = ask(list, count);
      };
    };
  };
  const auto few = [](int) { return 16; };
  const auto all = [](int count) { return count; };
  const auto countColors = [](CDspAsmCompList& list, int) {
    CArray<COGLColor, COGLColor> colors;
    CArray<COGLColor, COGLColor> bottoms;
    list.MakeColorList(&colors, &bottoms);
    return colors.GetSize();
  };
  const auto countMaterials = [](CmqpMaterialDataList& list, int) {
    std::vector<int> indices;
    return static_cast<int>(list.GetUniqueMaterialList(indices));
  };
  // clang-format off
  return {
      {"components: copy the list", onComponents(few, [](CDspAsmCompList& list, int) { return CDspAsmCompList(list).GetSize(); })},
      {"components: sort both ways", onComponents(few, [](CDspAsmCompList& list, int) { return list.SortByElemID(1) + list.SortByElemID(0); })},
      {"components: colours, few", onComponents(few, countColors)},
      {"components: colours, all different", onComponents(all, countColors)},
      {"components: names missing elsewhere", onComponents(few, [](CDspAsmCompList& list, int) { return list.HasPostCompMissing(list); })},
      {"components: element, none holds it", onComponents(few, [](CDspAsmCompList& list, int) { int index = 0; return list.GetVisPartIndex_1based(-5, &index); })},
      {"components: body id, unknown", onComponents(few, [](CDspAsmCompList& list, int) { return list.GetIndexByBodyID(-5); })},
      {"components: name, unknown", onComponents(few, [](CDspAsmCompList& list, int) { return list.IsComponentExistByName(MQ_TEXT("Part of another assembly")); })},
      {"components: bodies of a part", onComponents(few, [](CDspAsmCompList& list, int) { std::vector<int> found; list.GetBodyListByPartName(&found, MQ_TEXT("PART OF THE ASSEMBLY 7")); return static_cast<int>(found.size()); })},
      {"components: elements before the last", onComponents(few, [](CDspAsmCompList& list, int count) { return list.GetActiveElemIndex(count - 1, 1); })},
      {"components: hide all but one", onComponents(few, [](CDspAsmCompList& list, int) { list.HideAllExceptOneComponent(MQ_TEXT("Part of the assembly 7")); return 0; })},
      {"materials: copy the list", onMaterials(few, [](CmqpMaterialDataList& list, int) { return static_cast<int>(CmqpMaterialDataList(list).GetSize()); })},
      {"materials: distinct names, few", onMaterials(few, countMaterials)},
      {"materials: distinct names, all different", onMaterials(all, countMaterials)},
      {"materials: body, unknown", onMaterials(few, [](CmqpMaterialDataList& list, int) { CmqpMaterialData out; return list.GetByBodyID(-5, &out, nullptr, 0); })},
      {"materials: one set of strengths", onMaterials(few, [](CmqpMaterialDataList& list, int) { return list.IsSameValueForDesignCheck(); })},
  };
  // clang-format on
}

void PrintRow(const Operation& operation) {
  std::printf("%-42s", operation.name);
  double first = 0.0;
  std::size_t bytes = 0;
  for (const int size : kSizes) {
    const Cost cost = Measure(operation.prepare(size));
    const double each = cost.nanoseconds / size;
    first = first == 0.0 ? each : first;
    bytes = cost.bytes / static_cast<std::size_t>(size);
    std::printf(" %8.2f", each / first);
    if (size == kSizes.back()) {
      std::printf(" %9.1f ns %8zu B\n", each, bytes);
    }
  }
}

}  // namespace
}  // namespace mqp::bench

int main() {
  using namespace mqp::bench;
  std::printf("%-42s", "time for one record, 1.00 with 100");
  for (const int size : kSizes) {
    std::printf(" %8d", size);
  }
  std::printf("   of the largest: time, memory\n");
  for (const Operation& operation : Operations()) {
    PrintRow(operation);
  }
  std::printf("a component takes %zu bytes, a material %zu\n", sizeof(CDspAsmComp),
              sizeof(CmqpMaterialData));
}
