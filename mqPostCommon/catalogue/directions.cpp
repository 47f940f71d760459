#include <mqPostCommon/catalogue/directions.h>
#include <mqPostCommon/catalogue/table.h>

namespace mqp {
namespace {

using Study = AnalysisType;
using Result = ResultType;

/// What is written for a component: the weights of X, Y and Z, and the marker.
enum class Direction : std::uint8_t { None, X, Y, Z, All, X2, Y2, Z2, All2 };
using enum Direction;

struct Pattern {
  float x;
  float y;
  float z;
  float marker;
};

// clang-format off

constexpr auto kPatterns = std::to_array<Pattern>({
//    X  Y  Z  marker
    { 0, 0, 0, 0 },  // None
    { 1, 0, 0, 0 },  // X
    { 0, 1, 0, 0 },  // Y
    { 0, 0, 1, 0 },  // Z
    { 1, 1, 1, 0 },  // All
    { 1, 0, 0, 2 },  // X2
    { 0, 1, 0, 2 },  // Y2
    { 0, 0, 1, 2 },  // Z2
    { 1, 1, 1, 2 },  // All2
});

constexpr auto kDirections = std::to_array<ComponentRow<Direction>>({
//    studies                          result                    when             components                                   direction
    { Study::Static,                   Result::Displacement,     When::Always,    {0, 4, 8, 11},                               X },
    { Study::Static,                   Result::Displacement,     When::Always,    {1, 5, 9, 12},                               Y },
    { Study::Static,                   Result::Displacement,     When::Always,    {2, 6, 10, 13},                              Z },
    { Study::Static,                   Result::Displacement,     When::Always,    {3, 7, 14},                                  All },
    { Study::Static,                   kStresses,                When::Always,    {0, 5, 9, 10, 11},                           X },
    { Study::Static,                   kStresses,                When::Alternate, {12},                                        X },
    { Study::Static,                   kStresses,                When::Always,    {1, 4},                                      Y },
    { Study::Static,                   kStresses,                When::Always,    {2, 3},                                      Z },
    { Study::Static,                   kStresses,                When::Always,    {6, 7, 8},                                   All2 },
    { Study::Static,                   kStresses,                When::Always,    {13},                                        All },
    { Study::Static,                   kStrains,                 When::Always,    {0, 5, 6, 7, 8},                             X },
    { Study::Static,                   kStrains,                 When::Always,    {1, 4},                                      Y },
    { Study::Static,                   kStrains,                 When::Always,    {2, 3},                                      Z },
    { Study::Static,                   kStrains,                 When::Always,    {9, 10, 11},                                 All2 },
    { kModalStudies,                   Result::Displacement,     When::Always,    {0, 4},                                      X },
    { kModalStudies,                   Result::Displacement,     When::Always,    {1, 5},                                      Y },
    { kModalStudies,                   Result::Displacement,     When::Always,    {2, 6},                                      Z },
    { kModalStudies,                   Result::Displacement,     When::Always,    {3},                                         All },
    { Study::Thermal,                  Result::Thermal,          When::Always,    {0, 1, 5, 9, 10},                            X },
    { Study::Thermal,                  Result::Thermal,          When::Always,    {2, 6},                                      Y },
    { Study::Thermal,                  Result::Thermal,          When::Always,    {3, 7},                                      Z },
    { Study::Thermal,                  Result::Thermal,          When::Always,    {4, 8},                                      All },
    { kStepStudies,                    Result::Displacement,     When::Always,    {0, 4, 8, 11, 15, 19, 22, 26},               X },
    { kStepStudies,                    Result::Displacement,     When::Always,    {1, 5, 9, 12, 16, 20, 23, 27},               Y },
    { kStepStudies,                    Result::Displacement,     When::Always,    {2, 6, 10, 13, 17, 21, 24, 28},              Z },
    { kStepStudies,                    Result::Displacement,     When::Always,    {3, 7, 14, 18, 25},                          All },
    { kStepStudies,                    Result::Stress,           When::Always,    {0, 5, 9, 10, 11},                           X },
    { kStepStudies,                    Result::Stress,           When::Alternate, {12},                                        X },
    { kStepStudies,                    Result::Stress,           When::Always,    {1, 4},                                      Y },
    { kStepStudies,                    Result::Stress,           When::Always,    {2, 3},                                      Z },
    { kStepStudies,                    Result::Stress,           When::Always,    {6, 7, 8},                                   All2 },
    { kStepStudies,                    Result::Stress,           When::Always,    {13},                                        All },
    { kStepStudies,                    kStrains,                 When::Always,    {0, 5, 6, 7},                                X },  // not 8, which Static and Dynamic have
    { kStepStudies,                    kStrains,                 When::Always,    {1, 4},                                      Y },
    { kStepStudies,                    kStrains,                 When::Always,    {2, 3},                                      Z },
    { kStepStudies,                    kStrains,                 When::Always,    {9, 10, 11},                                 All2 },
    { kTimeStudies,                    kMotions,                 When::Always,    {1, 5},                                      Y },
    { kTimeStudies,                    kMotions,                 When::Always,    {2, 6},                                      Z },
    { kTimeStudies,                    kMotions,                 When::Always,    {3},                                         All },
    { kTimeStudies,                    kMotions,                 When::Always,    kOthers,                                     X },  // without an upper bound
    { Study::Dynamic,                  Result::Displacement,     When::Always,    {0, 4, 8, 11, 15},                           X },
    { Study::Dynamic,                  Result::Displacement,     When::Always,    {1, 5, 9, 12},                               Y },
    { Study::Dynamic,                  Result::Displacement,     When::Always,    {2, 6, 10, 13},                              Z },
    { Study::Dynamic,                  Result::Displacement,     When::Always,    {3, 7, 14},                                  All },
    { Study::Dynamic,                  Result::Stress,           When::Always,    {0, 5, 9, 10, 11},                           X },
    { Study::Dynamic,                  Result::Stress,           When::Always,    {1, 4},                                      Y },
    { Study::Dynamic,                  Result::Stress,           When::Always,    {2, 3},                                      Z },
    { Study::Dynamic,                  Result::Stress,           When::Always,    {6},                                         X2 },  // one axis each, not all as elsewhere
    { Study::Dynamic,                  Result::Stress,           When::Always,    {7},                                         Y2 },
    { Study::Dynamic,                  Result::Stress,           When::Always,    {8},                                         Z2 },
    { Study::Dynamic,                  kStrains,                 When::Always,    {0, 5, 6, 7, 8},                             X },
    { Study::Dynamic,                  kStrains,                 When::Always,    {1, 4},                                      Y },
    { Study::Dynamic,                  kStrains,                 When::Always,    {2, 3},                                      Z },
    { Study::Dynamic,                  kStrains,                 When::Always,    {9},                                         X2 },
    { Study::Dynamic,                  kStrains,                 When::Always,    {10},                                        Y2 },
    { Study::Dynamic,                  kStrains,                 When::Always,    {11},                                        Z2 },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always,    {0, 4},                                      X },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always,    {1, 5},                                      Y },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always,    {2, 6},                                      Z },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always,    {3, 7},                                      All },
    { Study::FlowImport,               Result::FlowPressure,     When::Always,    To(0, 4),                                    X },  // scalars, drawn along X all the same
    { Study::FlowImport,               Result::FlowFluidProperty, When::Always,    To(0, 6),                                   X },
    { Study::FlowImport,               Result::FlowTemperature,  When::Always,    {0, 1, 2, 6},                                X },
    { Study::FlowImport,               Result::FlowTemperature,  When::Always,    {3},                                         Y },
    { Study::FlowImport,               Result::FlowTemperature,  When::Always,    {4},                                         Z },
    { Study::FlowImport,               Result::FlowTemperature,  When::Always,    {5},                                         All },
    { Study::FlowImport,               Result::FlowWallLoad,     When::Always,    {0, 4},                                      X },
    { Study::FlowImport,               Result::FlowWallLoad,     When::Always,    {1, 5},                                      Y },
    { Study::FlowImport,               Result::FlowWallLoad,     When::Always,    {2, 6},                                      Z },
    { Study::FlowImport,               Result::FlowWallLoad,     When::Always,    {3},                                         All },
    { Study::FlowImport,               Result::FlowHeatTransfer, When::Always,    To(0, 8) | ComponentSet{11},                 X },
    { Study::FlowImport,               Result::FlowHeatTransfer, When::Always,    {9},                                         Y },
    { Study::FlowImport,               Result::FlowHeatTransfer, When::Always,    {10},                                        Z },
});

// clang-format on

static_assert(kPatterns.size() == static_cast<std::size_t>(All2) + 1);
static_assert(FirstUnsorted(kDirections) == kNone);
static_assert(FirstRepeated(kDirections) == kNone);

constexpr auto kDirectionIndex = MakeIndex<None, kDirections>();

}  // namespace
}  // namespace mqp

void vekPostCommonGetComponentVectorDir(int analysisType, int resultType, int component,
                                        int variant, float* dir) noexcept {
  using namespace mqp;
  if (dir == nullptr) {
    return;
  }
  // A negative component has no direction, not even where every high one points along X.
  const Direction direction =
      component < 0 ? None
                    : kDirectionIndex.At(analysisType, resultType,
                                         If(variant != 0, When::Alternate), component);
  const Pattern& pattern = kPatterns[static_cast<std::size_t>(direction)];
  dir[0] = pattern.x;
  dir[1] = pattern.y;
  dir[2] = pattern.z;
  dir[3] = pattern.marker;
}
