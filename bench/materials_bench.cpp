// Materials: curves over temperature, distinct names, and units of element values.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include <Eigen/Core>
#include <gsl/gsl_interp.h>
#include <mqPostCommon/mqPostCommon.h>
#include <mqPostCommon/platform/case_folding.h>
#include <mqPostCommon/platform/comm_funcs.h>

#include "family.h"

namespace mqp::bench {
namespace {

// ---------------------------------------------------------------------------------------------
// A curve

constexpr std::array kPoints = {2, 10, 100, 1'000};

/// A curve with its points at uneven distances, and the temperatures that it is asked for: at
/// random, or rising and falling in small steps as over the nodes of a mesh.
struct Curve {
  Curve(int points, bool isSwept) : spline(gsl_interp_alloc(gsl_interp_linear, Count(points))) {
    std::mt19937 random(20260103);
    std::uniform_real_distribution<double> step(0.5, 1.5);
    std::uniform_real_distribution<double> strength(100e6, 300e6);
    curve.m_nPoints = points;
    for (double x = 20.0; curve.m_vecX.size() < Count(points); x += step(random)) {
      curve.m_vecX.push_back(x);
      curve.m_vecY.push_back(strength(random));
    }
    gsl_interp_init(spline.get(), curve.m_vecX.data(), curve.m_vecY.data(), Count(points));
    const double first = curve.m_vecX.front();
    const double width = curve.m_vecX.back() - first;
    std::uniform_real_distribution<double> draw(0.0, 1.0);
    for (std::size_t place = 0; place < kDrawn; ++place) {
      const double swept = std::abs(static_cast<double>(place) / (kDrawn / 2.0) - 1.0);
      asked[place] = first + width * (isSwept ? swept : draw(random));
      const auto above = std::ranges::upper_bound(curve.m_vecX, asked[place]);
      const std::size_t hi =
          std::min(static_cast<std::size_t>(above - curve.m_vecX.begin()), Count(points) - 1);
      intervals[place] = hi - 1;
      const double slope =
          (curve.m_vecY[hi] - curve.m_vecY[hi - 1]) / (curve.m_vecX[hi] - curve.m_vecX[hi - 1]);
      lines.at(hi - 1) = {slope, curve.m_vecY[hi - 1] - slope * curve.m_vecX[hi - 1]};
    }
  }
  static std::size_t Count(int points) { return static_cast<std::size_t>(points); }

  struct Line {
    double slope = 0.0;
    double atZero = 0.0;
  };
  struct Release {
    void operator()(gsl_interp* interp) const { gsl_interp_free(interp); }
    void operator()(gsl_interp_accel* accelerator) const { gsl_interp_accel_free(accelerator); }
  };

  CmqTemperatureCurve curve;
  std::unique_ptr<gsl_interp, Release> spline;
  std::unique_ptr<gsl_interp_accel, Release> accelerator{gsl_interp_accel_alloc()};
  std::array<Line, 1'000> lines{};
  std::array<double, kDrawn> asked{};
  std::array<std::size_t, kDrawn> intervals{};
};

double ByCurve(const Curve& curve, std::size_t place) {
  return curve.curve.GetYValueAt(curve.asked[place]);
}

double ByGsl(const Curve& curve, std::size_t place) {
  return gsl_interp_eval(curve.spline.get(), curve.curve.m_vecX.data(), curve.curve.m_vecY.data(),
                         curve.asked[place], curve.accelerator.get());
}

double ByUpperBound(const Curve& curve, std::size_t place) {
  const std::vector<double>& X = curve.curve.m_vecX;
  const std::vector<double>& Y = curve.curve.m_vecY;
  const double x = curve.asked[place];
  const auto above = std::upper_bound(X.begin(), X.end(), x);
  if (above == X.begin()) {
    return Y.front();
  }
  if (above == X.end()) {
    return Y.back();
  }
  const auto hi = static_cast<std::size_t>(above - X.begin());
  return Y[hi] + (Y[hi - 1] - Y[hi]) * (x - X[hi]) / (X[hi - 1] - X[hi]);
}

/// The interval is known, and so is its line.
double OnALine(const Curve& curve, std::size_t place) {
  const Curve::Line& line = curve.lines[curve.intervals[place]];
  return line.slope * curve.asked[place] + line.atZero;
}

void CheckCurve(const Curve& curve) {
  for (std::size_t place = 0; place < kDrawn; ++place) {
    const double answer = ByCurve(curve, place);
    const auto isNear = [answer](double other) { return std::abs(answer - other) < 1e-9 * answer; };
    RequireSame(answer == ByUpperBound(curve, place), "curve, upper_bound");
    RequireSame(isNear(ByGsl(curve, place)), "curve, GSL");
    RequireSame(isNear(OnALine(curve, place)), "curve, line");
  }
}

void RegisterCurves() {
  for (const bool isSwept : {false, true}) {
    const std::string operation =
        isSwept ? "curve, temperatures swept" : "curve, temperatures random";
    for (const int points : kPoints) {
      CheckCurve(Curve(points, isSwept));
      const auto add = [&](const char* variant, auto ask) {
        AddGrowing(
            operation, variant, points,
            [isSwept](int count) { return std::make_unique<Curve>(count, isSwept); },
            [ask](const std::unique_ptr<Curve>& curve, std::size_t place) {
              Keep(ask(*curve, place));
            });
      };
      add(kOurs, ByCurve);
      add(kLimit, OnALine);
      add("GSL", ByGsl);
      add("upper_bound", ByUpperBound);
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Distinct names

constexpr std::array kRecords = {100, 1'000, 10'000, 100'000};
constexpr int kMostQuadratic = 1'000;
constexpr int kMostChecked = 10'000;

using Materials = CmqpMaterialDataList;

/// Records of names of their own, or of one of sixteen.
template <bool kAreAllDifferent>
struct Named {
  explicit Named(int count) {
    for (int number = 0; number < count; ++number) {
      const int name = kAreAllDifferent ? number : number % 16;
      CmqpMaterialData material;
      material.m_strMaterialName.Format(MQ_TEXT("Alloy steel %d"), name);
      list.Add(material);
    }
  }
  Materials list;
};

/// Records are large; they are made once for all variants.
template <class Scene>
Scene* SceneOf(int size) {
  static std::map<int, Scene> scenes;
  return &scenes.try_emplace(size, size).first->second;
}

int CountByList(const Materials& list) {
  static std::vector<int> indices;
  return static_cast<int>(list.GetUniqueMaterialList(indices));
}

int CountByScan(const Materials& list) {
  std::vector<int> indices;
  for (int index = 0; index < list.GetSize(); ++index) {
    const CString& name = list.m_arrMaterials[index].m_strMaterialName;
    if (std::ranges::none_of(indices, [&](int known) {
          return list.m_arrMaterials[known].m_strMaterialName.CompareNoCase(name) == 0;
        })) {
      indices.push_back(index);
    }
  }
  return static_cast<int>(indices.size());
}

int CountBySet(const Materials& list) {
  std::unordered_set<std::basic_string<mqChar>> names;
  for (int index = 0; index < list.GetSize(); ++index) {
    std::basic_string<mqChar> key(list.m_arrMaterials[index].m_strMaterialName.View());
    std::ranges::transform(key, key.begin(), FoldCase);
    names.insert(std::move(key));
  }
  return static_cast<int>(names.size());
}

/// The names as they stand, letter case and all.
std::size_t HashEachName(const Materials& list) {
  std::size_t sum = 0;
  for (int index = 0; index < list.GetSize(); ++index) {
    sum += std::hash<mqTextView>()(list.m_arrMaterials[index].m_strMaterialName.View());
  }
  return sum;
}

template <bool kAreAllDifferent>
void RegisterNames(const std::string& operation) {
  using Scene = Named<kAreAllDifferent>;
  for (const int size : kRecords) {
    const auto add = [&](const char* variant, auto ask) {
      AddGrowing(
          operation, variant, size, SceneOf<Scene>,
          [ask](Scene* scene, std::size_t) { Keep(ask(scene->list)); }, true);
    };
    if (size <= kMostChecked) {
      const Materials& list = SceneOf<Scene>(size)->list;
      RequireSame(CountByList(list) == CountBySet(list), operation);
    }
    add(kOurs, CountByList);
    add(kLimit, HashEachName);
    add("unordered_set", CountBySet);
    if (size <= kMostQuadratic) {
      RequireSame(
          CountByList(SceneOf<Scene>(size)->list) == CountByScan(SceneOf<Scene>(size)->list),
          operation);
      add("scan", CountByScan);
    }
  }
}

// ---------------------------------------------------------------------------------------------
// Units

constexpr std::array kElements = {1'000, 10'000, 100'000, 1'000'000};

using Tensors = CMqStressTensorValuesOfAllNodesOfElement;
using Block = Eigen::Array<float, 10, 6, Eigen::RowMajor>;
using Block2 = Eigen::Array<float, 6, 6, Eigen::RowMajor>;

struct Stresses {
  explicit Stresses(int count) : elements(static_cast<std::size_t>(count)) {
    std::mt19937 random(20260104);
    std::uniform_real_distribution<float> draw(-1e6F, 1e6F);
    for (Tensors& element : elements) {
      for (float(&tensor)[6] : element.m_fStressTensor) {
        std::ranges::generate(tensor, [&] { return draw(random); });
      }
      for (float(&tensor)[6] : element.m_fStressTensor2) {
        std::ranges::generate(tensor, [&] { return draw(random); });
      }
    }
    flat.resize(elements.size() * sizeof(Tensors) / sizeof(float), 1.0F);
  }
  std::vector<Tensors> elements;
  std::vector<float> flat;
};

void ScaleByLibrary(Stresses& stresses, float factor) {
  for (Tensors& element : stresses.elements) {
    element.ApplyUnits(factor);
  }
}

void ScaleByLoop(Stresses& stresses, float factor) {
  for (Tensors& element : stresses.elements) {
    for (int node = 0; node < 10; ++node) {
      for (int component = 0; component < 6; ++component) {
        element.m_fStressTensor[node][component] *= factor;
      }
    }
    for (int node = 0; node < 6; ++node) {
      for (int component = 0; component < 6; ++component) {
        element.m_fStressTensor2[node][component] *= factor;
      }
    }
  }
}

void ScaleByEigen(Stresses& stresses, float factor) {
  for (Tensors& element : stresses.elements) {
    Eigen::Map<Block>(&element.m_fStressTensor[0][0]) *= factor;
    Eigen::Map<Block2>(&element.m_fStressTensor2[0][0]) *= factor;
  }
}

/// As many bytes in one block.
void ScaleFlat(Stresses& stresses, float factor) {
  for (float& value : stresses.flat) {
    value *= factor;
  }
}

bool AreSame(const Stresses& left, const Stresses& right) {
  return std::ranges::equal(
      left.elements, right.elements, [](const Tensors& one, const Tensors& other) {
        return std::ranges::equal(std::span(&one.m_fStressTensor[0][0], 60),
                                  std::span(&other.m_fStressTensor[0][0], 60)) &&
               std::ranges::equal(std::span(&one.m_fStressTensor2[0][0], 36),
                                  std::span(&other.m_fStressTensor2[0][0], 36));
      });
}

void RegisterUnits() {
  const std::string operation = "units of element stresses";
  Stresses byLibrary(kElements.front());
  Stresses byLoop(kElements.front());
  Stresses byEigen(kElements.front());
  ScaleByLibrary(byLibrary, 1.45e-4F);
  ScaleByLoop(byLoop, 1.45e-4F);
  ScaleByEigen(byEigen, 1.45e-4F);
  RequireSame(AreSame(byLibrary, byLoop) && AreSame(byLibrary, byEigen), operation);
  for (const int size : kElements) {
    const auto add = [&](const char* variant, auto scale) {
      AddGrowing(
          operation, variant, size, SceneOf<Stresses>,
          [scale](Stresses* stresses, std::size_t place) {
            scale(*stresses,
                  place % 2 == 0 ? 2.0F : 0.5F);  // back and forth, and never out of range
            benchmark::ClobberMemory();
          },
          true);
    };
    add(kOurs, ScaleByLibrary);
    add(kLimit, ScaleFlat);
    add("loop", ScaleByLoop);
    add("Eigen", ScaleByEigen);
  }
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  using namespace mqp::bench;
  RegisterCurves();
  RegisterNames<false>("names of materials, few");
  RegisterNames<true>("names of materials, all different");
  RegisterUnits();
  return RunFamily(argc, argv);
}
