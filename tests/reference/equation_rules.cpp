#include "equation_rules.h"

#include <algorithm>
#include <bit>
#include <string>

#include "catalogue.h"
#include "tally.h"

namespace reference {

namespace {

/// Every occurrence from left to right; what was put in is not looked at again.
Text Replaced(const Text& text, const Text& old, const Text& replacement) {
  Text result;
  std::size_t place = 0;
  while (place < text.size()) {
    if (!old.empty() && text.compare(place, old.size(), old) == 0) {
      Hit("replace: occurrence");
      result += replacement;
      place += old.size();
    } else {
      result += text[place++];
    }
  }
  return result;
}

Text PlaceholderOf(std::size_t index) {
  Text name = MQ_TEXT("\"Variable");
  for (const char digit : std::to_string(index)) {
    name += static_cast<mqChar>(digit);
  }
  return name + MQ_TEXT("\"");
}

}  // namespace

int FindOperand(const Offer& offer, const Text& name, int& resultType) {
  struct Group {
    const std::vector<Text>& names;
    int resultType;
    const char* branch;
  };
  resultType = -1;
  for (const Group& group : {Group{offer.stress, 2, "operand: stress"},
                             Group{offer.beamStress, 59, "operand: beam stress"},
                             Group{offer.strain, 3, "operand: strain"},
                             Group{offer.displacement, 1, "operand: displacement"},
                             Group{offer.thermal, 5, "operand: thermal"}}) {
    if (std::ranges::find(group.names, name) != group.names.end()) {
      Hit(group.branch);
      resultType = group.resultType;
      Text unquoted = name;
      std::erase(unquoted, MQ_TEXT('"'));
      const int component = ComponentByName(offer.analysis, resultType, offer.lookupOption,
                                            unquoted, resultType == 59 ? 1 : 0);
      Hit(component < 0 ? "operand: component unknown" : "operand: component known");
      return component;
    }
  }
  Hit("operand: unknown");
  return -1;
}

void TakeOver(EquationPlot& plot, const Offer& offer) {
  plot.display = offer.equation;
  plot.coefficientsFlag = offer.coefficientsFlag;
  plot.variables.clear();
  plot.equation = offer.equation;
  for (std::size_t index = 0; index < offer.variables.size(); ++index) {
    Variable variable;
    variable.name = PlaceholderOf(index);
    variable.component = FindOperand(offer, offer.variables[index], variable.resultType);
    plot.equation = Replaced(plot.equation, offer.variables[index], variable.name);
    if (offer.coefficientsFlag == 0) {
      Hit("take over: no coefficients");
    } else if (index < offer.coefficients.size()) {
      Hit("take over: coefficient");
      variable.coefficient = std::bit_cast<std::uint64_t>(offer.coefficients[index]);
    } else {
      Hit("take over: too few coefficients");  // the default is all that is known
    }
    plot.variables.push_back(variable);
  }
}

void MakeDisplay(EquationPlot& plot, int analysis, int mesh) {
  plot.display = plot.equation;
  for (const Variable& variable : plot.variables) {
    const Text name = FullName(analysis, variable.resultType, variable.component, mesh, 0);
    Hit(name.empty() ? "display: no name" : "display: name");
    plot.display = Replaced(plot.display, variable.name, MQ_TEXT("\"") + name + MQ_TEXT("\""));
  }
}

}  // namespace reference
