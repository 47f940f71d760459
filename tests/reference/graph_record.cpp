#include "records.h"
#include "tally.h"

namespace reference {

namespace {

enum class Kind { Int, Double, String };

struct Part {
  std::string_view name;
  int first;
  int count;
  Kind kind;
  int version;
};

constexpr int kFlagPart = -28;  ///< stands behind the flag, where old flags are put right

// clang-format off
const std::vector<Part> kParts = {
    { "analysis type",           0,         1,  Kind::Int,    800018 },
    { "result type",             0,         1,  Kind::Int,    800018 },
    { "row 3",                   0,         1,  Kind::Int,    800018 },
    { "result option",           0,         1,  Kind::Int,    800018 },
    { "row 5",                   0,         2,  Kind::Int,    800018 },
    { "row 6",                   0,         1,  Kind::Int,    800018 },
    { "row 7",                   0,         2,  Kind::Int,    800018 },
    { "x axis",                  0,         3,  Kind::Int,    800018 },
    { "x axis",                  3,         1,  Kind::Int,    870002 },
    { "y axis",                  0,         3,  Kind::Int,    800018 },
    { "y axis",                  3,         1,  Kind::Int,    870002 },
    { "row 18",                  0,         3,  Kind::String, 800018 },
    { "row 16",                  0,         6,  Kind::Int,    800018 },
    { "row 17",                  0,         18, Kind::Int,    800018 },
    { "row 19",                  0,         1,  Kind::Int,    800026 },
    { "row 20",                  0,         1,  Kind::String, 800026 },
    { "view matrix",             0,         16, Kind::Double, 800026 },
    { "row 22",                  0,         3,  Kind::Int,    800062 },
    { "row 25",                  0,         1,  Kind::Int,    820022 },
    { "row 26",                  0,         2,  Kind::Double, 820022 },
    { "row 27",                  0,         1,  Kind::Int,    820022 },
    { "y unit flag",             0,         1,  Kind::Int,    820022 },
    { "",                        kFlagPart, 0,  Kind::Int,    820022 },
    { "row 30",                  0,         1,  Kind::Int,    840028 },
    { "frequency response flag", 0,         1,  Kind::Int,    890005 },
    { "frequency response mode", 0,         1,  Kind::Int,    890005 },
    { "row 34",                  0,         4,  Kind::Int,    890005 },
    { "row 35",                  0,         1,  Kind::Double, 890005 },
    { "row 39",                  0,         1,  Kind::Int,    890110 },
};
// clang-format on

bool IsBetween(int number, int first, int last) {
  return first <= number && number <= last;
}

bool NeedsUnitFlag(const Fields& graph) {
  const int result = IntAt(graph, "result type");
  const int quantity = IntAt(graph, "y axis", 0);
  const int component = IntAt(graph, "y axis", 1);
  const bool isDynamic = IntAt(graph, "analysis type") == 8;
  if (result == 1 && quantity == 1 &&
      (IsBetween(component, 4, 7) || IsBetween(component, 11, 14))) {
    Hit("graph: flag of a reaction");
    return true;
  }
  if (result == 1 && quantity == 1 && component == 3 && isDynamic) {
    Hit("graph: flag of a displacement resultant");
    return true;
  }
  if (result == 19 && quantity == 19 && component == 3 && isDynamic) {
    Hit("graph: flag of a velocity resultant");
    return true;
  }
  if (result == 20 && quantity == 20 && component == 3 && isDynamic) {
    Hit("graph: flag of an acceleration resultant");
    return true;
  }
  Hit("graph: flag stays clear");
  return false;
}

void CorrectFlag(Fields& graph) {
  if (IntAt(graph, "y unit flag") != 0) {
    Hit("graph: flag is set");
  } else if (NeedsUnitFlag(graph)) {
    graph[{"y unit flag", 0}] = ValueOf(1);
  }
}

void CorrectStress(Fields& graph, std::string_view axis) {
  const bool isStress = IntAt(graph, axis, 0) == 2;
  const int component = IntAt(graph, axis, 1);
  if (!isStress || component < 11) {
    Hit("graph: component kept");
    return;
  }
  Hit(axis == "x axis" ? "graph: x component moved on" : "graph: y component moved on");
  // One behind the last number there is begins again at the first.
  graph[{axis, 1}] = ValueOf(static_cast<int>(static_cast<unsigned>(component) + 1));
}

void ReadPart(Fields& graph, Reader& reader, const Part& part) {
  for (int place = part.first; place < part.first + part.count; ++place) {
    Value& value = graph.at({part.name, place});
    if (part.kind == Kind::String) {
      reader.String(value.text);
    } else if (part.kind == Kind::Double) {
      reader.Double(value.bits);
    } else {
      int number = IntOf(value);
      reader.Int(number);
      value = ValueOf(number);
    }
  }
}

}  // namespace

Bytes WriteGraph(const Fields& graph, int version) {
  Writer writer;
  for (const Part& part : kParts) {
    for (int place = part.first; version >= part.version && place < part.first + part.count;
         ++place) {
      const Value& value = graph.at({part.name, place});
      switch (part.kind) {
        case Kind::Int: writer.Int(IntOf(value)); break;
        case Kind::Double: writer.Double(value.bits); break;
        case Kind::String: writer.String(value.text); break;
      }
    }
  }
  return writer.Written();
}

int ReadGraph(Fields& graph, Reader& reader, int version) {
  if (version < 800018) {
    Hit("graph: too old");
    return 0;
  }
  Hit("graph: read");
  for (const Part& part : kParts) {
    if (version < part.version) {
      Hit("graph: part not there yet");
    } else if (part.first == kFlagPart) {
      CorrectFlag(graph);
    } else {
      ReadPart(graph, reader, part);
    }
  }
  if (version < 890002) {
    CorrectStress(graph, "x axis");
    CorrectStress(graph, "y axis");
  } else {
    Hit("graph: components as they are");
  }
  return 1;
}

}  // namespace reference
