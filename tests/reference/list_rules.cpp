#include "list_rules.h"

#include "catalogue.h"
#include "plot_rules.h"
#include "tally.h"
#include "texts.h"

namespace reference {

namespace {

/// The members that nearly every rule asks for.
struct Asked {
  explicit Asked(const Fields& list)
      : analysis(IntAt(list, "analysis type")),
        result(IntAt(list, "result type")),
        component(IntAt(list, "component")),
        variant(IntAt(list, "variant")),
        isSet(IntAt(list, "list-set flag") != 0),
        kind(IntAt(list, "list-set kind")),
        unitOption(IntAt(list, "row 22", 3)) {}

  [[nodiscard]] bool IsStepwise() const { return analysis == 5 || analysis == 6 || analysis == 8; }
  [[nodiscard]] bool IsNormalised() const {
    return (analysis == kFrequency || analysis == kBuckling) && ActualFrequencyFlag() == 0;
  }
  [[nodiscard]] bool HasFourthStress() const {
    return !isSet && analysis == kDynamic && result == 2 && (component == 9 || component == 100);
  }
  [[nodiscard]] bool IsDynamicStress() const {
    return kind == 1 && analysis == kDynamic && result == 2;
  }

  int analysis;
  int result;
  int component;
  int variant;
  bool isSet;
  int kind;
  int unitOption;
};

int CountOfKind(int kind, const Numbers& counts) {
  return kind >= 0 && kind < static_cast<int>(counts.size())
             ? counts[static_cast<std::size_t>(kind)]
             : 0;
}

int FatigueId(int component) {
  switch (component) {
    case 0: Hit("fatigue: 0"); return 54745;
    case 4: Hit("fatigue: 4"); return 54745;
    case 1: Hit("fatigue: 1"); return 54746;
    case 2: Hit("fatigue: 2"); return 54747;
    case 3: Hit("fatigue: 3"); return 54749;
    default: Hit("fatigue: none"); return 0;
  }
}

/// The ids of the columns of a set that has some.
Numbers SetIds(const Asked& list) {
  switch (list.result) {
    case 1:
      switch (list.kind) {
        case 0:
          Hit(list.IsNormalised() ? "set: normalised displacement" : "set: displacement");
          return list.IsNormalised() ? Parse("54865 54866 54867 54868")
                                     : Parse("54578 54579 54580 50341");
        case 1: Hit("set: reaction force"); return Parse("54581 54582 54583 50345");
        case 2:
          Hit(list.IsNormalised() ? "set: normalised rotation" : "set: rotation");
          return list.IsNormalised() ? Parse("55269 55270 55271") : Parse("54584 54585 54586");
        case 3: Hit("set: reaction moment"); return Parse("54587 54588 54589 54590");
        default: return {};
      }
    case 2:
      switch (list.kind) {
        case 0: Hit("set: stress components"); return Parse("54591-54596");
        case 1:
          Hit(list.component == 100 ? "set: stresses with component 100" : "set: stresses");
          return list.component == 100 ? Parse("54597 54598 54599 56061 54601 55085")
                                       : Parse("54597 54598 54599 54600 54601 55085");
        default: return {};
      }
    case 3:
      switch (list.kind) {
        case 0: Hit("set: strain components"); return Parse("54603-54608");
        case 1: Hit("set: strain energy density"); return Parse("54610");
        case 2:
          Hit(list.IsStepwise() ? "set: scalar strain" : "set: principal strains");
          return list.IsStepwise() ? Parse("54609") : Parse("50177 50178 50179 54609");
        case 4: Hit("set: strain energy"); return Parse("54611");
        default: return {};
      }
    case 5:
      Hit(list.kind == 0 ? "set: gradients" : "set: heat fluxes");
      return list.kind == 0 ? Parse("54612-54616") : Parse("54617 54618 54619 50264");
    case 12: return {FatigueId(list.component)};
    case 19:
      if (list.kind == 0) {
        Hit("set: velocity");
        return Parse("54405 54406 54407 54411");
      }
      Hit("set: angular velocity");
      return Parse("54408 54409 54410");
    case 20:
      if (list.kind == 0) {
        Hit("set: acceleration");
        return Parse("54412 54413 54414 54418");
      }
      Hit("set: angular acceleration");
      return Parse("54415 54416 54417");
    default: return {};
  }
}

int SetId(const Asked& list) {
  const auto pick = [&list](const Numbers& ids) { return CountOfKind(list.kind, ids); };
  switch (list.result) {
    case 1: return pick({50341, 50345, 54584, 54590});
    case 3: return pick({0, 54610, 0, 0, 54611});
    case 5: return pick({54612, 50264});
    case 12: return FatigueId(list.component);
    case 19: return pick({54411, 54408});
    case 20: return pick({54418, 54415});
    default: return 0;
  }
}

int Lookup(const Asked& list, const Text& name) {
  return ComponentByName(list.analysis, list.result, list.variant, name, 0);
}

}  // namespace

Fields DefaultList() {
  Fields list;
  PutEmpty(list, "study path");
  Put(list, "analysis type", {0});
  Put(list, "result type", {0});
  Put(list, "component", {0});
  Put(list, "row 5", {1});
  Put(list, "row 6", {1});
  Put(list, "variant", {0});
  Put(list, "unit index", {0});
  Put(list, "row 9", {0});
  Put(list, "row 10", {0});
  Put(list, "list-set flag", {0});
  Put(list, "row 12", {0});
  Put(list, "row 13", {1});
  Put(list, "row 14", {5.0});
  Put(list, "row 15", {1, 0});
  Put(list, "list-set kind", {0});
  Put(list, "title switch", {1});
  Put(list, "row 18", {-1});
  PutEmpty(list, "row 19");
  Put(list, "row 20", {0});
  PutIdentity(list);
  Put(list, "row 22", {0, 0, 0, 0});
  Put(list, "row 23 first", {0});
  Put(list, "row 23 second", {0});
  Put(list, "row 24", {0, 0, 0, 0, 0, 1, 0, -1, -1});
  return list;
}

int ColumnCount(const Fields& fields) {
  const Asked list(fields);
  if (!list.isSet) {
    return 1;
  }
  switch (list.result) {
    case 1: return CountOfKind(list.kind, {4, 4, 3, 4});
    case 2: return CountOfKind(list.kind, {6, 6});
    case 3: return CountOfKind(list.kind, {6, 1, list.IsStepwise() ? 1 : 4, 0, 1});
    case 5: return CountOfKind(list.kind, {5, 4});
    case 12: return 1;
    case 19:
    case 20: return CountOfKind(list.kind, {4, 3});
    default: return 0;
  }
}

Text ColumnName(const Fields& fields, int column) {
  const Asked list(fields);
  if (column == 3 && list.HasFourthStress()) {
    Hit("name: fourth stress");
    return FullName(8, 2, list.component, 0, 0);
  }
  if (column < 0 || column >= ColumnCount(fields)) {
    Hit("name: outside");
    return {};
  }
  if (!list.isSet) {
    Hit("name: single");
    return FullName(list.analysis, list.result, list.component, 0, 0);
  }
  Hit("name: of a set");
  return Load(list.result == 12 ? SetIds(list)[0] : SetIds(list)[static_cast<std::size_t>(column)]);
}

Text ColumnShortName(const Fields& list, int column) {
  return ShortKey(ColumnName(list, column));
}

int ColumnComponent(const Fields& list, int column) {
  return Lookup(Asked(list), ColumnName(list, column));
}

int SetComponent(const Fields& fields) {
  const Asked list(fields);
  const int id = SetId(list);
  Hit(id == 0 ? "whole: nothing stands for it" : "whole: one id");
  return Lookup(list, Load(id));
}

Fields ColumnPlot(const Fields& fields, int column) {
  const Asked list(fields);
  Fields plot = DefaultPlot();
  plot[{"plot name", 0}] = fields.at({"study path", 0});
  Put(plot, "analysis type", {list.analysis});
  Put(plot, "result type", {list.result});
  Put(plot, "component", {list.isSet ? ColumnComponent(fields, column) : list.component});
  Put(plot, "row 5", {IntAt(fields, "row 5")});
  Put(plot, "variant", {list.variant});
  Put(plot, "row 8", {0});
  const auto last = [&fields](int nth) { return IntAt(fields, "row 24", nth - 1); };
  Put(plot, "row 12", {IntAt(fields, "unit index"), 0, IntAt(fields, "row 10"), last(7)});
  Put(plot, "row 19", {IntAt(fields, "row 18")});
  plot[{"row 20", 0}] = fields.at({"row 19", 0});
  Put(plot, "row 21", {IntAt(fields, "row 20")});
  for (int place = 0; place < 16; ++place) {
    plot[{"view matrix", place}] = fields.at({"view matrix", place});
  }
  Put(plot, "row 25", {0, 0, IntAt(fields, "row 22", 2), list.unitOption, last(2), 0});
  Put(plot, "row 27", {last(4), 0, 0, last(5)});
  Put(plot, "row 28", {last(6), last(3), 0, 0, 0, last(8), last(9), 0, 0});
  return plot;
}

Text ColumnTitle(const Fields& fields, int column) {
  const Asked list(fields);
  const int count = ColumnCount(fields) + 1;
  if (column < 0 || column >= count) {
    if (column == 3 && list.HasFourthStress()) {
      Hit("column title: fourth stress");
      return ColumnShortName(fields, 3);
    }
    Hit("column title: outside");
    return {};
  }
  if (column == 0) {
    bool isNode = list.variant == 0;
    if (list.isSet && list.variant != 0) {
      isNode = IntAt(fields, "title switch") == 0;
    }
    Hit(isNode ? "column title: first" : "column title: other first");
    return Load(isNode ? 50733 : 50757);
  }
  if (list.isSet && list.IsDynamicStress() && list.unitOption != 0) {
    Hit(list.variant == 0 ? "column title: moved on" : "column title: always the fourth");
    return ColumnShortName(fields, list.variant == 0 ? column : 3);
  }
  Hit("column title: of its column");
  return ColumnShortName(fields, column - 1);
}

Text StudyName(const Fields& list) {
  const Text path = TextAt(list, "study path");
  const std::size_t last = path.rfind(MQ_TEXT('\\'));
  Hit(last == Text::npos ? "study: whole path" : "study: last part");
  return last == Text::npos ? path : path.substr(last + 1);
}

int ListUnitType(const Fields& fields) {
  const Asked list(fields);
  return UnitType(list.analysis, list.result, list.isSet ? SetComponent(fields) : list.component,
                  list.unitOption, 0);
}

Text ListUnitName(const Fields& list) {
  return UnitName(ListUnitType(list), IntAt(list, "unit index"));
}

}  // namespace reference
