#include "material_rules.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "tally.h"

namespace reference {

namespace {

double DoubleAt(const Fields& fields, std::string_view name, int place) {
  return std::bit_cast<double>(fields.at({name, place}).bits);
}

void PutElements(Fields& fields, std::string_view name, const std::vector<double>& elements,
                 std::size_t count) {
  fields[{name, 0}] = ValueOf(static_cast<int>(count));
  for (std::size_t index = 0; index < count; ++index) {
    fields[{name, static_cast<int>(index) + 1}] = ValueOf(elements[index]);
  }
}

/// The letters of the tests' names, both cases.
mqChar Lower(mqChar unit) {
  if (unit >= MQ_TEXT('A') && unit <= MQ_TEXT('Z')) {
    return static_cast<mqChar>(unit - MQ_TEXT('A') + MQ_TEXT('a'));
  }
  return unit == MQ_TEXT('\u00C9')   ? MQ_TEXT('\u00E9')
         : unit == MQ_TEXT('\u0416') ? MQ_TEXT('\u0436')
                                     : unit;
}

}  // namespace

bool IsSameName(const Text& one, const Text& other) {
  return std::ranges::equal(one, other, {}, Lower, Lower);
}

double ValueAt(const Curve& curve, double x) {
  if (curve.points == 1 && !curve.y.empty()) {
    Hit("curve: single point");
    return curve.y[0];
  }
  // Nothing is promised of points that an array does not hold; they are left out of account.
  const int held = static_cast<int>(std::min(curve.x.size(), curve.y.size()));
  if (curve.points > held) {
    Hit("curve: more points than held");
  }
  const int n = std::min(curve.points, held);
  const auto X = [&curve](int index) { return curve.x[static_cast<std::size_t>(index)]; };
  const auto Y = [&curve](int index) { return curve.y[static_cast<std::size_t>(index)]; };
  if (n < 1) {
    Hit("curve: no point");
    return 0.0;
  }
  if (n == 1) {
    Hit("curve: one point held");
    return Y(0);
  }
  if (!(x > X(0))) {
    Hit(std::isnan(x) ? "curve: not a number" : "curve: below");
    return Y(0);
  }
  if (x >= X(n - 1)) {
    Hit("curve: above");
    return Y(n - 1);
  }
  for (int i = 0; i < n; ++i) {
    if (X(i) == x) {
      Hit("curve: at a point");
      return Y(i);
    }
  }
  for (int hi = 0; hi < n; ++hi) {
    if (x < X(hi)) {
      const int lo = hi - 1;
      if (Y(hi) == Y(lo)) {
        Hit("curve: level");
        return Y(hi);
      }
      if (X(hi) == X(lo)) {
        Hit("curve: step");
        return Y(hi);
      }
      Hit(std::isnan(X(lo)) ? "curve: from a point without temperature" : "curve: between");
      return Y(hi) + (Y(lo) - Y(hi)) * (x - X(hi)) / (X(lo) - X(hi));
    }
  }
  // Only a last temperature that is not a number leads here; the curve is then held flat.
  Hit("curve: no upper point");
  return Y(n - 1);
}

Fields CopiedCurve(const Curve& curve) {
  Fields copy;
  const auto points = static_cast<std::size_t>(std::max(0, curve.points));
  Put(copy, "points", {curve.points});
  PutElements(copy, "x", curve.x, std::min(points, curve.x.size()));
  PutElements(copy, "y", curve.y, std::min(points, curve.y.size()));
  return copy;
}

Fields AssignedCurve(const Curve& curve) {
  Fields target;
  Put(target, "points", {curve.points});
  PutElements(target, "x", curve.x, curve.x.size());
  PutElements(target, "y", curve.y, curve.y.size());
  return target;
}

void InitialiseMaterial(Fields& material) {
  Put(material, "count", {0});
  Put(material, "source", {0});
  Put(material, "defined units", {0});
  Put(material, "has", {0, 0, 0, 0, 0, 0});
  Put(material, "value", {-1.0, -1.0, -1.0, -1.0, -1.0, -1.0});
  Put(material, "depends", {0, 0, 0, 0, 0, 0});
  PutEmpty(material, "name");
  PutEmpty(material, "extra text");
  Put(material, "body id", {-1});
  Put(material, "treat as", {0});
  Put(material, "default criteria", {0});
  Put(material, "secondary id", {0});
  Put(material, "reserved", {0});
}

int DependsOnTemperature(const Fields& material, int strength) {
  if (IntAt(material, "has", strength) == 0) {
    Hit("depends: not defined");
    return 0;
  }
  if (IntAt(material, "depends", strength) == 0) {
    Hit("depends: constant");
    return 0;
  }
  const bool hasPoints = IntAt(material, "curve points", strength) >= 1;
  Hit(hasPoints ? "depends: yes" : "depends: no points");
  return hasPoints ? 1 : 0;
}

int StressUnit(const Fields& material) {
  if (IntAt(material, "count") == 0) {
    Hit("stress unit: no data");
    return 0;
  }
  const int units = IntAt(material, "defined units");
  Hit(units == 1 || units == 2 ? "stress unit: passed on" : "stress unit: first");
  return units == 1 || units == 2 ? units : 0;
}

int IsSafeForComposite(const Fields& material) {
  const bool isSafe = IntAt(material, "has", 1) != 0 && IntAt(material, "has", 2) != 0 &&
                      IntAt(material, "has", 5) != 0;
  Hit(isSafe ? "composite: yes" : "composite: no");
  return isSafe ? 1 : 0;
}

int IsSameForDesign(const Fields& one, const Fields& other) {
  for (const std::string_view name : {"count", "defined units"}) {
    if (IntAt(one, name) != IntAt(other, name)) {
      Hit("same: counts or units differ");
      return 0;
    }
  }
  for (int strength = 0; strength < kStrengths; ++strength) {
    const bool isShear = strength == 5;
    if (!isShear && IntAt(one, "has", strength) != IntAt(other, "has", strength)) {
      Hit("same: a flag differs");
      return 0;
    }
    if (DoubleAt(one, "value", strength) != DoubleAt(other, "value", strength)) {
      Hit(isShear ? "same: the shear strength differs" : "same: a strength differs");
      return 0;
    }
  }
  Hit(IntAt(one, "has", 5) == IntAt(other, "has", 5) ? "same: yes"
                                                     : "same: in spite of the shear flag");
  return 1;
}

int FindBody(const Materials& materials, int body, int secondary) {
  for (std::size_t index = 0; index < materials.size(); ++index) {
    if (IntAt(materials[index], "body id") != body) {
      continue;
    }
    if (secondary < 1) {
      Hit("body: by its id alone");
      return static_cast<int>(index);
    }
    if (IntAt(materials[index], "secondary id") == secondary) {
      Hit("body: by both ids");
      return static_cast<int>(index);
    }
    Hit("body: another secondary id");
  }
  Hit("body: none");
  return -1;
}

std::vector<int> UniqueMaterials(const Materials& materials) {
  std::vector<int> indices = {0};
  if (materials.empty()) {
    Hit("unique: empty list");
  }
  for (std::size_t index = 1; index < materials.size(); ++index) {
    const Text name = TextAt(materials[index], "name");
    const bool isKnown = std::ranges::any_of(indices, [&](int known) {
      return IsSameName(TextAt(materials[static_cast<std::size_t>(known)], "name"), name);
    });
    Hit(isKnown ? "unique: known" : "unique: new");
    if (!isKnown) {
      indices.push_back(static_cast<int>(index));
    }
  }
  return indices;
}

int AreAllSame(const Materials& materials) {
  if (materials.empty()) {
    Hit("all same: empty list");
    return 0;
  }
  for (std::size_t index = 1; index < materials.size(); ++index) {
    if (IsSameForDesign(materials[0], materials[index]) == 0) {
      Hit("all same: no");
      return 0;
    }
  }
  Hit(materials.size() == 1 ? "all same: one" : "all same: yes");
  return 1;
}

namespace {

bool TestRecord(const Fields& material, const Fields& plot) {
  const int criterion = IntAt(plot, "failure criterion");
  if (criterion == 4) {
    Hit("criterion: 4");
    return DependsOnTemperature(material, 0) != 0 || DependsOnTemperature(material, 2) != 0 ||
           DependsOnTemperature(material, 1) != 0;
  }
  if (criterion == 2) {
    Hit("criterion: 2");
    return DependsOnTemperature(material, 2) != 0 || DependsOnTemperature(material, 1) != 0;
  }
  if (IntAt(plot, "row 17", 0) == 2) {
    Hit("criterion: other, first option 2");
    return false;
  }
  Hit("criterion: other");
  return DependsOnTemperature(material, 0) != 0;
}

}  // namespace

int DependsOnTemperature(const Materials& materials, const Fields& plot) {
  if (IntAt(plot, "result type") != 4) {
    Hit("safety: other result");
    return 0;
  }
  if (IntAt(plot, "row 17", 0) == 2 && IntAt(plot, "row 17", 1) == 2) {
    Hit("safety: both options 2");
    return 0;
  }
  const int body = IntAt(plot, "body id");
  if (body > 0) {
    const int index = FindBody(materials, body, 0);
    if (index < 0) {
      Hit("safety: body unknown");
      return 0;
    }
    const bool depends = TestRecord(materials[static_cast<std::size_t>(index)], plot);
    Hit(depends ? "safety: body depends" : "safety: body does not");
    return depends ? 1 : 0;
  }
  for (const Fields& material : materials) {
    if (TestRecord(material, plot)) {
      Hit("safety: some body depends");
      return 1;
    }
  }
  Hit("safety: no body depends");
  return 0;
}

}  // namespace reference
