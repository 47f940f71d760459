#pragma once

#include <vector>

#include "values.h"

/// Temperature curves, strength records and lists of them, as the rules read.
namespace reference {

struct Curve {
  int points = 0;
  std::vector<double> x;
  std::vector<double> y;
};

double ValueAt(const Curve& curve, double x);
Fields CopiedCurve(const Curve& curve);
Fields AssignedCurve(const Curve& curve);

/// The strengths in the order of a record: SIGYLD, SIGXT, SIGXC, SIGYT, SIGYC, SIGXY.
inline constexpr int kStrengths = 6;

/// Sets what an initialisation sets: everything but the curves.
void InitialiseMaterial(Fields& material);

int DependsOnTemperature(const Fields& material, int strength);
int StressUnit(const Fields& material);
int IsSafeForComposite(const Fields& material);
int IsSameForDesign(const Fields& one, const Fields& other);

using Materials = std::vector<Fields>;

/// The index of the record, or -1.
int FindBody(const Materials& materials, int body, int secondary);
std::vector<int> UniqueMaterials(const Materials& materials);
int AreAllSame(const Materials& materials);
int DependsOnTemperature(const Materials& materials, const Fields& plot);

/// Whether two names differ at most in the case of their letters.
bool IsSameName(const Text& one, const Text& other);

}  // namespace reference
