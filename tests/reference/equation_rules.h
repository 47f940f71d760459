#pragma once

#include <vector>

#include "records.h"

/// What an editor of equations hands over, and what an equation plot makes of it.
namespace reference {

struct Offer {
  std::vector<Text> stress;
  std::vector<Text> beamStress;
  std::vector<Text> strain;
  std::vector<Text> displacement;
  std::vector<Text> thermal;
  int analysis = 0;
  int lookupOption = 0;
  Text equation;
  int coefficientsFlag = 0;
  std::vector<Text> variables;
  std::vector<double> coefficients;
};

int FindOperand(const Offer& offer, const Text& name, int& resultType);
void TakeOver(EquationPlot& plot, const Offer& offer);
void MakeDisplay(EquationPlot& plot, int analysis, int mesh);

}  // namespace reference
