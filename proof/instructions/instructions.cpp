// Each operation a thousand times, with a dump of callgrind's counts behind it; see count.

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include <storage/memory_stream.h>
#include <valgrind/callgrind.h>
#include <mqPostCommon/mqPostCommon.h>

namespace {

using namespace mqp;

constexpr int kCalls = 1000;
constexpr int kRecords = 1000;

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

/// Writes and reads a record of its own.
template <class Record>
void CountRecord(const std::string& name, Record& record) {
  host::MemoryStream stream;
  Count((name + ", written").c_str(), [&](int) {
    stream.Rewind();
    record.WriteToStream(&stream);
  });
  Count((name + ", read").c_str(), [&](int) {
    stream.Rewind();
    record.ReadFromStream(&stream, kNewestRecordVersion);
  });
}

void CountRecords() {
  CmqPostGraphParam graph;
  graph.m_strHost18[0] = MQ_TEXT("Graph 1");
  CountRecord("graph record", graph);
}

}  // namespace

int main() {
  CountCatalogue();
  CountRecords();
}
