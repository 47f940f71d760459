#include "plot_rules.h"

#include <bit>

#include "records.h"
#include "tally.h"

namespace reference {

namespace {

float FloatAt(const Fields& fields, std::string_view name) {
  return std::bit_cast<float>(static_cast<std::uint32_t>(fields.at({name, 0}).bits));
}

void Erase(Fields& fields, std::string_view name) {
  std::erase_if(fields, [name](const auto& entry) { return entry.first.first == name; });
}

void Take(Fields& fields, const Fields& source, std::string_view name) {
  Erase(fields, name);
  for (const auto& [field, value] : source) {
    if (field.first == name) {
      fields[field] = value;
    }
  }
}

}  // namespace

Fields DefaultPlot() {
  Fields plot;
  PutEmpty(plot, "plot name");
  Put(plot, "analysis type", {0});
  Put(plot, "result type", {2});
  Put(plot, "component", {9});
  Put(plot, "row 5", {1});
  Put(plot, "row 6", {0});
  Put(plot, "variant", {0});
  Put(plot, "row 8", {1});
  Put(plot, "deform scale mode", {0});
  Put(plot, "row 10", {0.0F});
  Put(plot, "row 11", {0.0F});
  Put(plot, "row 12", {0, 0, 0, 0});
  Put(plot, "failure criterion", {0});
  Put(plot, "row 14", {0});
  Put(plot, "row 15", {1.0});
  Put(plot, "row 16", {0.0, 0.0, 0.0});
  Put(plot, "row 17", {0, 0});
  Put(plot, "row 18", {1.0, 1.0});
  Put(plot, "row 19", {-1});
  PutEmpty(plot, "row 20", 2);
  Put(plot, "row 21", {0});
  PutIdentity(plot);
  Put(plot, "body id", {0});
  Put(plot, "envelope flag", {0});
  Put(plot, "row 25", {0, 0, 0, 0, 0, 0});
  Put(plot, "row 26", {0});
  Put(plot, "row 27", {0, 0, 0, 0});
  Put(plot, "row 28", {1, 1, 0, 0, 0, -1, -1, 0, 0});
  Put(plot, "row 29", {-1.0});
  Put(plot, "row 30", {0, 0, 0});
  Put(plot, "row 31", {0});
  Put(plot, "row 32", {0});
  Put(plot, "row 33", {1});
  Put(plot, "row 34", {3.0});
  Put(plot, "row 35", {0, 0});
  PutFields(plot, EquationPlot{});
  Put(plot, "row 37", {0, 0, 0, 0});
  plot[{"row 38", 0}] = ValueOf(Text(MQ_TEXT(" ")));
  PutEmpty(plot, "row 39");
  Put(plot, "row 40 first", {0});
  Put(plot, "row 40 second", {0});
  Put(plot, "row 41", {-1, -1});
  return plot;
}

Fields CopiedPlot(const Fields& source) {
  Fields copy = source;
  for (const std::string_view name : {"row 40 first", "row 40 second"}) {
    Erase(copy, name);
    Put(copy, name, {0});
  }
  return copy;
}

Fields AssignedPlot(const Fields& target, const Fields& source) {
  Fields plot = source;
  Put(plot, "row 30", {IntAt(source, "row 30"), 0, 0});
  Put(plot, "row 41", {IntAt(target, "row 41")});
  Take(plot, target, "row 40 first");
  Take(plot, target, "row 40 second");
  for (const std::string_view name : {"row 31", "row 32"}) {
    if (IntAt(source, name) > 0) {
      Hit(IntAt(target, name) > 0 ? "assign: array refilled" : "assign: array filled");
    } else {
      Hit(IntAt(target, name) > 0 ? "assign: array left" : "assign: array empty");
      Take(plot, target, name);
    }
  }
  return plot;
}

float DeformScaleFactor(const Fields& plot) {
  const int mode = IntAt(plot, "deform scale mode");
  Hit(mode == 1 ? "scale: mode 1" : mode == 0 ? "scale: mode 0" : "scale: other mode");
  return mode == 1 ? FloatAt(plot, "row 10") : mode == 0 ? FloatAt(plot, "row 11") : 1.0F;
}

int IsEnvelope(const Fields& plot) {
  const int analysis = IntAt(plot, "analysis type");
  const bool isFlagged = IntAt(plot, "envelope flag") != 0;
  for (const int stepwise : {3, 5, 6, 8}) {
    if (analysis == stepwise) {
      Hit(isFlagged ? "envelope: yes" : "envelope: flag clear");
      return isFlagged ? 1 : 0;
    }
  }
  Hit("envelope: not in this analysis");
  return 0;
}

int IsHeatEnergy(const Fields& plot) {
  const bool isHeatEnergy = IntAt(plot, "analysis type") == 3 && IntAt(plot, "result type") == 5 &&
                            IntAt(plot, "component") == 10;
  Hit(isHeatEnergy ? "heat: yes" : "heat: no");
  return isHeatEnergy ? 1 : 0;
}

}  // namespace reference
