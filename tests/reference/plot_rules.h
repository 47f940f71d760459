#pragma once

#include "values.h"

/// A plot definition: its defaults, what a copy and what an assignment carries over, its questions.
namespace reference {

Fields DefaultPlot();
Fields CopiedPlot(const Fields& source);
Fields AssignedPlot(const Fields& target, const Fields& source);

float DeformScaleFactor(const Fields& plot);
int IsEnvelope(const Fields& plot);
int IsHeatEnergy(const Fields& plot);

}  // namespace reference
