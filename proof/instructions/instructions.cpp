// Each operation a thousand times, with a dump of callgrind's counts behind it; see count.

#include <algorithm>
#include <array>
#include <cstddef>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <vector>

#include <storage/memory_stream.h>
#include <valgrind/callgrind.h>
#include <mqPostCommon/mqPostCommon.h>

namespace {

using namespace mqp;

constexpr int kCalls = 1000;
/// Counts the calls of an operation; the first ones, which fill caches of the loader, are not.
template <class Operation>
void Count(const char* name, Operation operation) {
  for (int call = 0; call < 10; ++call) {
    operation(call);
  }
  CALLGRIND_ZERO_STATS;
  for (int call = 0; call < kCalls; ++call) {
    operation(call);
  }
  CALLGRIND_DUMP_STATS_AT(name);
}

/// The same codes in every run.
struct Codes {
  int study, result, component, meshKind, option;
};

std::vector<Codes> DrawCodes() {
  std::mt19937 random(20260101);
  const auto any = [&random](unsigned count) { return static_cast<int>(random() % count); };
  std::vector<Codes> drawn(kCalls);
  for (Codes& codes : drawn) {
    codes = {any(12), any(74), any(16), any(5), any(3)};
  }
  return drawn;
}

void CountCatalogue() {
  const std::vector<Codes> drawn = DrawCodes();
  const auto at = [&drawn](int call) { return drawn[static_cast<std::size_t>(call)]; };
  Count("component total", [&](int call) {
    const Codes c = at(call);
    vekPostCommonGetComponentTotal(c.study, c.result, c.option, c.meshKind, 0, 0, 0, 0, 0);
  });
  Count("data type with members", [&](int call) {
    const Codes c = at(call);
    std::array<int, 3> members;
    vekPostCommonGetComponentDataType(c.study, c.result, c.component, members.data(), 0);
  });
  Count("default component", [&](int call) {
    const Codes c = at(call);
    vekPostCommonGetComponentDefault(c.study, c.result, 0, c.meshKind, c.option);
  });
  Count("unit type", [&](int call) {
    const Codes c = at(call);
    vekPostCommonGetUnitType(c.study, c.result, c.component, c.option, 1);
  });
  Count("vector direction", [&](int call) {
    const Codes c = at(call);
    std::array<float, 4> direction;
    vekPostCommonGetComponentVectorDir(c.study, c.result, c.component, c.option, direction.data());
  });
  Count("full name", [&](int call) {
    const Codes c = at(call);
    vekPostCommonGetComponentName(c.study, c.result, 0, c.component, c.meshKind, c.option);
  });
  Count("colour-bar name", [&](int call) {
    const Codes c = at(call);
    vekPostCommonGetComponentNameBar(c.study, c.result, 0, c.component, c.meshKind, c.option);
  });
  Count("unit name", [](int call) { vekPostCommonGetUnitName(call % 40, call % 5); });
  const CString tenth = vekPostCommonGetComponentName(0, 2, 0, 9, 0, 0);
  Count("name to component, 10 tried",
        [&](int) { vekPostCommonGetComponentIndexByName(0, 2, 0, tenth, 0); });
}

void CountGraphRecord() {
  CmqPostGraphParam graph;
  graph.m_strHost18[0] = MQ_TEXT("Graph 1");
  host::MemoryStream stream;
  Count("graph record, written", [&](int) {
    stream.Rewind();
    graph.WriteToStream(&stream);
  });
  Count("graph record, read", [&](int) {
    stream.Rewind();
    graph.ReadFromStream(&stream, kNewestRecordVersion);
  });
}

void CountEquationRecord() {
  CmqEquationPlotParam plot;
  plot.m_strEquation = MQ_TEXT("(\"Variable0\" + \"Variable1\") / 2");
  for (int variable = 0; variable < 40; ++variable) {
    plot.m_listVariables.Append(std::make_unique<CmqEquationVariable>())
        .m_strName.Format(MQ_TEXT("\"Variable%d\""), variable);
  }
  host::MemoryStream stream;
  Count("equation record of 40, written", [&](int) {
    stream.Rewind();
    plot.WriteToStream(&stream, kNewestRecordVersion);
  });
  Count("equation record of 40, read", [&](int) {
    stream.Rewind();
    plot.m_listVariables.DeleteAll();  // a plot appends what it reads
    plot.ReadFromStream(&stream, kNewestRecordVersion);
  });
}

/// Ten elements of each component, two of none behind them; components in no order.
CDspAsmCompList MakeComponents(int count) {
  std::vector<int> numbers(static_cast<std::size_t>(count));
  std::iota(numbers.begin(), numbers.end(), 0);
  std::shuffle(numbers.begin(), numbers.end(), std::mt19937(20260101));
  CDspAsmCompList list;
  for (const int number : numbers) {
    const COGLColor color(static_cast<float>(number), 0.0F, 0.0F, 1.0F);
    list.Add(CDspAsmComp(number, 12 * number, 12 * number + 9, color, 0));
  }
  return list;
}

void CountDisplay() {
  CDspAsmCompList list = MakeComponents(100);
  const CDspAsmCompIndex index(list);
  int place = 0;
  Count("element none holds, 100 components",
        [&](int) { list.GetVisPartIndex_1based(1198, &place); });
  Count("element to component, by the index",
        [&](int call) { index.GetVisPartIndex_1based(call, &place); });
  CArray<COGLColor, COGLColor> colors;
  CArray<COGLColor, COGLColor> bottoms;
  Count("colours of 100 components", [&](int) { list.MakeColorList(&colors, &bottoms); });
  Count("sort of 100 components", [&](int call) { list.SortByElemID(call % 2); });
}

void CountMaterials() {
  for (const int points : {10, 1000}) {
    CmqTemperatureCurve curve;
    curve.m_nPoints = points;
    for (int point = 0; point < points; ++point) {
      curve.m_vecX.push_back(1.5 * point);
      curve.m_vecY.push_back(1000.0 - point);
    }
    const double step = 1.5 * (points - 1) / kCalls;
    Count(("curve of " + std::to_string(points) + " points").c_str(),
          [&](int call) { return curve.GetYValueAt(step * call); });
  }
  CmqpMaterialDataList list;
  for (int number = 0; number < 100; ++number) {
    CmqpMaterialData material;
    material.m_strMaterialName.Format(MQ_TEXT("Alloy steel %d"), number % 50);
    list.Add(material);
  }
  std::vector<int> indices;
  Count("distinct names of 100 materials", [&](int) { list.GetUniqueMaterialList(indices); });
  CMqStressTensorValuesOfAllNodesOfElement element;
  Count("units of element stresses", [&](int) { element.ApplyUnits(2.0F); });
}

}  // namespace

int main() {
  CountCatalogue();
  CountGraphRecord();
  CountEquationRecord();
  CountDisplay();
  CountMaterials();
}
