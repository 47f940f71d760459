#include "graph_rules.h"

#include "catalogue.h"
#include "tally.h"
#include "texts.h"

namespace reference {

namespace {

bool IsMotion(int quantity) {
  return quantity == 1 || quantity == 19 || quantity == 20;
}

Text InBrackets(const Text& text) {
  return MQ_TEXT(" (") + text + MQ_TEXT(")");
}

Text AxisName(const Fields& graph, std::string_view axis, int nameOption) {
  const int analysis = IntAt(graph, "analysis type");
  const int dynamic = IntAt(graph, "dynamic option");
  const int quantity = IntAt(graph, axis, 0);
  const int component = IntAt(graph, axis, 1);
  if (IsMotion(quantity)) {
    Text name = BarName(analysis, quantity, component, nameOption, 0);
    if (analysis == kDynamic && dynamic == 1) {
      const bool isSet = IntAt(graph, "y unit flag") != 0;
      Hit(isSet ? "axis: motion with units" : "axis: motion without units");
      name += InBrackets(Load(isSet ? 53044 : 54441));
    } else {
      Hit("axis: motion");
    }
    return name;
  }
  if (quantity == 2) {
    Hit("axis: stress");
    return BarName(analysis, 2, component, nameOption, 0);
  }
  if (quantity == 14) {
    const bool isFrequency = analysis == kDynamic && dynamic != 0;
    Hit(isFrequency ? "axis: frequency" : "axis: time");
    return Load(isFrequency ? 50004 : 51724);
  }
  if (quantity == 16) {
    Hit("axis: parameter");
    return Load(50578);
  }
  Hit("axis: nothing");
  return {};
}

int YUnitType(const Fields& graph) {
  return UnitType(IntAt(graph, "analysis type"), IntAt(graph, "result type"),
                  IntAt(graph, "y axis", 1), IntAt(graph, "dynamic option"), 1);
}

Text YUnitName(const Fields& graph) {
  return UnitName(YUnitType(graph), IntAt(graph, "y axis", 2));
}

Text BeamStressTitle(int component) {
  const Numbers ids = Parse("52020 54009-54014");
  return component >= 0 && component < 7 ? Load(ids[static_cast<std::size_t>(component)]) : Text();
}

}  // namespace

void InitialiseGraph(Fields& graph, int analysis, int result, int option, int mesh, int dynamic) {
  const int stored = result == 13 ? 2 : result;
  Hit(result == 13 ? "init: graph stress" : stored == 2 ? "init: stress" : "init: other result");
  Put(graph, "analysis type", {analysis});
  Put(graph, "result type", {stored});
  Put(graph, "row 3", {1});
  Put(graph, "result option", {option});
  Put(graph, "row 5", {0, 0});
  Put(graph, "row 6", {1});
  Put(graph, "row 7", {0, 0});
  Put(graph, "x axis", {14, 0, 0, -1});
  const int component = ComponentDefault(
      {.analysis = analysis, .result = stored, .mesh = mesh, .dynamicOption = dynamic});
  Put(graph, "y axis", {stored == 2 ? 2 : 1, component, 0, -1});
  Put(graph, "row 16", {-1, -1, -1, -1, -1, -1});
  Put(graph, "row 17", {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  PutEmpty(graph, "row 18", 3);
  Put(graph, "row 19", {-1});
  PutEmpty(graph, "row 20");
  PutIdentity(graph);
  Put(graph, "row 22", {1, 0, 0});
  Put(graph, "dynamic option", {0});
  Put(graph, "row 24", {0});
  Put(graph, "row 25", {1});
  Put(graph, "row 26", {0.0, 0.0});
  Put(graph, "row 27", {1});
  Put(graph, "y unit flag", {1});
  Put(graph, "row 29", {1, 1});
  Put(graph, "row 30", {0});
  Put(graph, "row 31", {0});
  Put(graph, "frequency response flag", {0});
  Put(graph, "frequency response mode", {-1});
  Put(graph, "row 34", {0, 0, 0, 0});
  Put(graph, "row 35", {0.0});
  Put(graph, "row 37", {0, 0, 0});
  Put(graph, "row 39", {0});
}

int IsDamageMatrix(const Fields& graph) {
  return IntAt(graph, "analysis type") == 7 && IntAt(graph, "result type") == 52 ? 1 : 0;
}

int IsTransient(const Fields& graph) {
  return IntAt(graph, "y axis", 3) != -1 ? 1 : 0;
}

int GraphType(const Fields& graph) {
  if (IsDamageMatrix(graph) == 1) {
    Hit("kind: damage matrix");
    return 52;
  }
  if (IsTransient(graph) == 1) {
    Hit("kind: transient");
    return 61;
  }
  if (IntAt(graph, "frequency response flag") == 1) {
    Hit("kind: frequency response");
    return 63;
  }
  Hit("kind: other");
  return 13;
}

Text FolderName(const Fields& graph) {
  if (IsDamageMatrix(graph) == 1) {
    Hit("folder: damage matrix");
    return MQ_TEXT("Damage Matrix Charts");
  }
  if (IntAt(graph, "result type") == 61) {
    Hit("folder: transient");
    return MQ_TEXT("Graph Transient Sensors");
  }
  if (IntAt(graph, "result type") == 63) {
    Hit("folder: frequency response");
    return MQ_TEXT("Frequency Response Graph");
  }
  Hit("folder: response");
  return MQ_TEXT("Response");
}

Text PlotName(const Fields& graph, int nameOption) {
  if (IntAt(graph, "result type") == 63) {
    switch (IntAt(graph, "frequency response mode")) {
      case 0: Hit("plot name: mode 0"); return Load(55123) + Load(54668);
      case 1: Hit("plot name: mode 1"); return Load(55123) + Load(55124);
      case 2: Hit("plot name: mode 2"); return Load(55123) + Load(55125);
      default: Hit("plot name: no mode"); return {};
    }
  }
  const Text x = AxisName(graph, "x axis", nameOption);
  const Text y = AxisName(graph, "y axis", nameOption);
  Text name = x;
  if (!x.empty() && !y.empty()) {
    Hit("plot name: both parts");
    name += MQ_TEXT("-");
  } else {
    Hit(x.empty() && y.empty() ? "plot name: no part" : "plot name: one part");
  }
  name += y;
  if (IntAt(graph, "analysis type") == kDynamic && IntAt(graph, "dynamic option") == 2 &&
      IntAt(graph, "x axis", 0) == 14) {
    Hit("plot name: spectral");
    name += MQ_TEXT("-") + Load(54477);
  }
  return name;
}

Text YTitle(const Fields& graph, int nameOption, int flag) {
  const int analysis = IntAt(graph, "analysis type");
  const int result = IntAt(graph, "result type");
  const int dynamic = IntAt(graph, "dynamic option");
  const int quantity = IntAt(graph, "y axis", 0);
  const int component = IntAt(graph, "y axis", 1);
  if (analysis == kDynamic && dynamic == 1 && IsMotion(quantity)) {
    const Text title = BarName(analysis, result, component, 0, 0) + MQ_TEXT("-");
    if (IntAt(graph, "y unit flag") != 0) {
      Hit("y title: motion with units");
      return title + Load(53044) + InBrackets(YUnitName(graph));
    }
    Hit("y title: motion without units");
    return title + Load(54441) + InBrackets(Load(54684));
  }
  if (analysis == kDynamic && quantity == 2 &&
      (nameOption == 4 || (nameOption == 3 && flag != 0))) {
    Hit(nameOption == 4 ? "y title: beam stress" : "y title: beam stress of a mixed mesh");
    return BeamStressTitle(component) + InBrackets(YUnitName(graph));
  }
  Text title = BarName(analysis, result, component, nameOption, 0);
  if (analysis == kDynamic && dynamic == 2 && IntAt(graph, "x axis", 0) == 14) {
    Hit("y title: spectral");
    title += MQ_TEXT(" ") + Load(54477);
  } else {
    Hit("y title: plain");
  }
  return title + InBrackets(YUnitName(graph));
}

void UsePreferences(Fields& graph, int stress, int length, int temperature) {
  Value& unit = graph.at({"y axis", 2});
  const int type = YUnitType(graph);
  if (type == 1 || type == 4 || type == 21) {
    Hit(type == 1   ? "preference: unit system"
        : type == 4 ? "preference: stress"
                    : "preference: stress spectrum");
    unit = ValueOf(stress);
  } else if (type == 0 || type == 22) {
    Hit(type == 0 ? "preference: length" : "preference: displacement spectrum");
    unit = ValueOf(length);
  } else if (type == 5) {
    Hit("preference: temperature");
    unit = ValueOf(temperature);
  } else {
    Hit("preference: none");
  }
}

}  // namespace reference
