#include <atomic>
#include <cstdint>
#include <initializer_list>

#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/display_flag.h>
#include <mqPostCommon/catalogue/table.h>

namespace mqp {

constinit std::atomic<std::int32_t> actualFrequencyDisplayFlag = 0;

namespace {

using Study = AnalysisType;
using Result = ResultType;

// clang-format off

// ---------------------------------------------------------------------------------------------
// Counts. Of the rows of one result the first whose condition holds decides.

constexpr auto kCounts = std::to_array<ChoiceRow>({
//    studies                result                    when                        components
    { Study::Static,         Result::Displacement,     When::Rotational,           15 },
    { Study::Static,         Result::Displacement,     When::Always,                8 },
    { Study::Static,         kStresses,                When::ExtraAndMoreStress,   16 },
    { Study::Static,         kStresses,                When::ExtraStress,          14 },
    { Study::Static,         kStresses,                When::Always,               12 },  // StressAlt counts here alone
    { Study::Static,         kStrains,                 When::Always,               12 },
    { Study::Static,         Result::ResultType18,     When::Always,                3 },
    { Study::Static,         Result::ResultType55,     When::Always,                4 },
    { Study::Static,         Result::BeamStress,       When::Always,                7 },
    { Study::Frequency,      Result::Displacement,     When::Always,                4 },
    { Study::Buckling,       Result::Displacement,     When::Rotational,            7 },
    { Study::Buckling,       Result::Displacement,     When::Always,                4 },
    { Study::Thermal,        Result::Thermal,          When::Always,                9 },
    { Study::Stepped,        Result::Displacement,     When::Rotational,           15 },
    { Study::Stepped,        Result::Displacement,     When::Always,                8 },
    { Study::Stepped,        Result::Stress,           When::BeamMesh,              7 },
    { Study::Stepped,        Result::Stress,           When::Always,               14 },
    { kTimeStudies,          kStrains,                 When::Always,               12 },
    { Study::Stepped,        kMotions,                 When::BeamMesh,              7 },  // angular on beams alone
    { Study::Stepped,        kMotions,                 When::Always,                4 },
    { Study::Stepped,        Result::BeamStress,       When::Always,                7 },
    { Study::SteppedReduced, Result::Displacement,     When::Always,                4 },
    { Study::SteppedReduced, Result::Stress,           When::Always,               14 },
    { Study::SteppedReduced, kMotions,                 When::Always,                4 },
    { Study::Fatigue,        kAnyResult,               When::Always,                4 },
    { Study::Dynamic,        Result::Displacement,     When::AnyMeshButSolid,      15 },  // every mesh kind but 0 is rotational here
    { Study::Dynamic,        Result::Displacement,     When::Always,                8 },
    { Study::Dynamic,        Result::Stress,           When::BeamMesh,              5 },
    { Study::Dynamic,        Result::Stress,           When::WideDynamicStress,    13 },
    { Study::Dynamic,        Result::Stress,           When::Always,               12 },
    { Study::Dynamic,        kMotions,                 When::AnyMeshButSolid,       7 },
    { Study::Dynamic,        kMotions,                 When::Always,                4 },
    { Study::Dynamic,        Result::BeamStress,       When::Always,                5 },
    { Study::FlowImport,     Result::FlowVelocity,     When::Always,                8 },
    { Study::FlowImport,     Result::FlowPressure,     When::Always,                5 },
    { Study::FlowImport,     Result::FlowFluidProperty, When::Always,               7 },
    { Study::FlowImport,     Result::FlowTemperature,  When::Always,                7 },
    { Study::FlowImport,     Result::FlowWallLoad,     When::Always,                7 },
    { Study::FlowImport,     Result::FlowHeatTransfer, When::Always,               12 },
});

// ---------------------------------------------------------------------------------------------
// Defaults, in the same manner; 0 where no row covers a result.

constexpr auto kDefaults = std::to_array<ChoiceRow>({
//    studies                result                    when                        component
    { Study::Static,         Result::Displacement,     When::Always,                3 },
    { Study::Static,         Result::Stress,           When::Always,                9 },  // StressAlt starts on 0 although it counts as Stress
    { kStressStudies,        kStrains,                 When::Always,                6 },
    { kModalStudies,         Result::Displacement,     When::Always,                3 },
    { kTimeStudies,          Result::Displacement,     When::Always,                3 },
    { kStepStudies,          Result::Stress,           When::BeamMesh,              0 },
    { kStepStudies,          Result::Stress,           When::Always,                9 },
    { kTimeStudies,          kMotions,                 When::Always,                3 },
    { Study::Fatigue,        kAnyResult,               When::Always,                1 },
    { Study::Dynamic,        Result::Stress,           When::BeamMesh,              3 },
    { Study::Dynamic,        Result::Stress,           When::DynamicOption1,      100 },  // kept outside the counted range
    { Study::Dynamic,        Result::Stress,           When::Always,                9 },
    { Study::FlowImport,     Result::FlowVelocity,     When::Always,                3 },
    { Study::FlowImport,     Result::FlowWallLoad,     When::Always,                3 },
});

// ---------------------------------------------------------------------------------------------
// Data types; what no row lists is scalar.

constexpr auto kDirectional = ComponentDataType::DirectionalComponent;
constexpr auto kPrincipal = ComponentDataType::PrincipalBasedComponent;

constexpr auto kDataTypes = std::to_array<ComponentRow<ComponentDataType>>({
//    studies                result                    when                     components                   data type
    { Study::Static,         Result::Displacement,     When::Always,            To(0, 14),                   kDirectional },
    { Study::Static,         Result::Displacement,     When::ForcedDirectional, To(0, 14) | kOthers,         kDirectional },
    { Study::Static,         kStresses,                When::Always,            To(0, 8) | ComponentSet{13}, kDirectional },
    { Study::Static,         kStresses,                When::Always,            {9},                         kPrincipal },
    { kStressStudies,        kStrains,                 When::Always,            To(0, 5) | To(9, 11),        kDirectional },
    { Study::Static,         Result::ResultType18,     When::Always,            To(0, 2),                    kDirectional },
    { Study::Static,         Result::ResultType18,     When::ForcedDirectional, To(0, 2) | kOthers,          kDirectional },
    { Study::Static,         Result::ResultType55,     When::Always,            To(0, 3),                    kDirectional },
    { Study::Static,         Result::ResultType55,     When::ForcedDirectional, To(0, 3) | kOthers,          kDirectional },
    { kModalStudies,         Result::Displacement,     When::Always,            To(0, 3),                    kDirectional },
    { kModalStudies,         Result::Displacement,     When::ForcedDirectional, To(0, 3) | kOthers,          kDirectional },
    { Study::Thermal,        Result::Thermal,          When::Always,            To(1, 8),                    kDirectional },
    { kStepStudies,          Result::Displacement,     When::Always,            To(0, 25),                   kDirectional },  // beyond the counted 15
    { kStepStudies,          Result::Stress,           When::Always,            To(0, 8) | ComponentSet{13}, kDirectional },
    { kStepStudies,          Result::Stress,           When::Always,            {9},                         kPrincipal },
    { kTimeStudies,          kMotions,                 When::Always,            To(0, 6),                    kDirectional },
    { Study::Dynamic,        Result::Displacement,     When::Always,            To(0, 14),                   kDirectional },
    { Study::Dynamic,        Result::Stress,           When::Always,            To(0, 8),                    kDirectional },
    { Study::Dynamic,        Result::Stress,           When::Always,            {9, 100},                    kPrincipal },
    { Study::FlowImport,     Result::FlowVelocity,     When::Always,            {3, 7},                      kDirectional },  // the axis components are scalar here
    { Study::FlowImport,     Result::FlowTemperature,  When::Always,            {5},                         kDirectional },
    { Study::FlowImport,     Result::FlowWallLoad,     When::Always,            {3},                         kDirectional },
});

// ---------------------------------------------------------------------------------------------
// Members of resultants and of principal-based components

using Members = std::array<std::int8_t, 3>;
constexpr Members kNoMembers = {-1, -1, -1};

constexpr auto kMembers = std::to_array<ComponentRow<Members>>({
//    studies                          result                    when          component   members
    { Study::Static | Study::Dynamic,  Result::Displacement,     When::Always, {3},        { 0,  1,  2} },
    { Study::Static | Study::Dynamic,  Result::Displacement,     When::Always, {7},        { 4,  5,  6} },
    { Study::Static | Study::Dynamic,  Result::Displacement,     When::Always, {14},       {11, 12, 13} },
    { Study::Static,                   kStresses,                When::Always, {9},        { 6,  7,  8} },
    { Study::Static,                   Result::ResultType55,     When::Always, {0},        { 1,  1,  3} },  // the second repeats the first
    { kModalStudies,                   Result::Displacement,     When::Always, {3},        { 0,  1,  2} },
    { Study::Thermal,                  Result::Thermal,          When::Always, {4},        { 1,  2,  3} },
    { Study::Thermal,                  Result::Thermal,          When::Always, {8},        { 5,  6,  7} },
    { kStepStudies,                    Result::Displacement,     When::Always, {3},        { 0,  1,  2} },
    { kStepStudies,                    Result::Displacement,     When::Always, {7},        { 4,  5,  6} },
    { kStepStudies,                    Result::Displacement,     When::Always, {14},       {11, 12, 13} },
    { kStepStudies,                    Result::Displacement,     When::Always, {18},       {15, 16, 17} },
    { kStepStudies,                    Result::Displacement,     When::Always, {25},       {22, 23, 24} },
    { kStepStudies,                    Result::Stress,           When::Always, {9},        { 6,  7,  8} },
    { Study::Dynamic,                  Result::Stress,           When::Always, {9, 100},   { 6,  7,  8} },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always, {3},        { 0,  1,  2} },
    { Study::FlowImport,               Result::FlowVelocity,     When::Always, {7},        { 4,  5,  6} },
    { Study::FlowImport,               Result::FlowTemperature,  When::Always, {5},        { 2,  3,  4} },
    { Study::FlowImport,               Result::FlowWallLoad,     When::Always, {3},        { 0,  1,  2} },
});

// ---------------------------------------------------------------------------------------------
// Envelope bounds: 3 of a signed component, 2 of a magnitude

constexpr auto kBounds = std::to_array<ComponentRow<std::uint8_t>>({
//    studies                result                    when                     components                           bounds
    { Study::Thermal,        kAnyResult,               When::Always,            To(0, 3) | To(5, 7) | ComponentSet{9},  3 },
    { Study::Thermal,        kAnyResult,               When::Always,            {4, 8},                                 2 },
    { kTimeStudies,          Result::Displacement,     When::Always,            To(0, 2) | To(4, 6) | To(8, 13),        3 },
    { kTimeStudies,          Result::Displacement,     When::Always,            {3, 7, 14},                             2 },
    { kTimeStudies,          Result::Stress,           When::Always,            To(0, 8),                               3 },
    { kTimeStudies,          Result::Stress,           When::Always,            To(9, 11),                              2 },
    { kStepStudies,          Result::Stress,           When::StressComponent12, {12},                                   2 },  // has no effect in Dynamic
    { kStepStudies,          kStrains,                 When::Always,            To(0, 5) | To(8, 11),                   3 },
    { kStepStudies,          kStrains,                 When::Always,            {6, 7},                                 2 },
    { kTimeStudies,          kMotions,                 When::Always,            To(0, 2) | To(4, 6),                    3 },
    { kTimeStudies,          kMotions,                 When::Always,            {3, 7},                                 2 },
    { Study::Dynamic,        kStrains,                 When::Always,            To(0, 5),                               3 },
    { Study::Dynamic,        kStrains,                 When::Always,            To(6, 8),                               2 },
});

// ---------------------------------------------------------------------------------------------
// Components that can be shown relative to a reference geometry

constexpr auto kReferences = std::to_array<ComponentRow<std::uint8_t>>({
//    studies                result                    when                     components                                 available
    { Study::Static,         Result::Displacement,     When::Always,            To(0, 2) | To(4, 6) | To(8, 14),              1 },
    { kStressStudies,        Result::Stress,           When::Always,            To(0, 5),                                     1 },
    { kStressStudies,        kStrains,                 When::Always,            To(0, 5),                                     1 },
    { Study::Static,         Result::ResultType55,     When::Always,            kOthers,                                      1 },
    { kModalStudies,         Result::Displacement,     When::Always,            To(0, 2),                                     1 },
    { Study::Thermal,        Result::Thermal,          When::Always,            To(1, 3) | To(5, 7),                          1 },
    { kStepStudies,          Result::Displacement,     When::Always,            To(0, 2) | To(4, 6) | To(8, 28),              1 },  // the resultants 14, 18 and 25 as well
    { kStepStudies,          Result::Stress,           When::BeamMesh,          To(0, 5),                                     0 },
    { kTimeStudies,          kMotions,                 When::Always,            To(0, 2) | To(4, 6),                          1 },
    { Study::Dynamic,        Result::Displacement,     When::Always,            To(0, 2) | To(4, 6) | To(8, 13),              1 },
});

// ---------------------------------------------------------------------------------------------
// Studies that offer a result, in the order of the user's choices. They do not match the counts
// everywhere: displacement is listed for Thermal, velocity and acceleration for Dynamic alone.

struct StudyList {
  constexpr StudyList(std::initializer_list<Study> list)
      : count(static_cast<std::uint8_t>(list.size())) {
    std::ranges::copy(list, studies.begin());
  }

  std::uint8_t count;
  std::array<Study, 7> studies{};
};

struct StudiesRow {
  Result result;
  StudyList list;
};

constexpr auto kStudies = std::to_array<StudiesRow>({
    { Result::Displacement,   { Study::Static, Study::Frequency, Study::Buckling, Study::Thermal, Study::Stepped, Study::Dynamic, Study::SteppedReduced } },
    { Result::Stress,         { Study::Static, Study::Stepped, Study::Dynamic, Study::SteppedReduced } },
    { Result::Strain,         { Study::Static, Study::Stepped, Study::Dynamic, Study::SteppedReduced } },
    { Result::Thermal,        { Study::Thermal } },
    { Result::ModeFrequency,  { Study::Frequency } },
    { Result::ResultType18,   { Study::Static } },
    { Result::Velocity,       { Study::Dynamic } },
    { Result::Acceleration,   { Study::Dynamic } },
    { Result::BucklingResult, { Study::Buckling } },
    { Result::ResultType55,   { Study::Static } },
    { Result::BeamStress,     { Study::Static, Study::Stepped } },
});

// clang-format on

static_assert(FirstUnsorted(kCounts) == kNone);
static_assert(FirstRepeated(kCounts) == kNone);
static_assert(FirstUnsorted(kDefaults) == kNone);
static_assert(FirstRepeated(kDefaults) == kNone);
static_assert(FirstUnsorted(kDataTypes) == kNone);
static_assert(FirstRepeated(kDataTypes) == kNone);
static_assert(FirstUnsorted(kMembers) == kNone);
static_assert(FirstRepeated(kMembers) == kNone);
static_assert(FirstUnsorted(kBounds) == kNone);
static_assert(FirstRepeated(kBounds) == kNone);
static_assert(FirstUnsorted(kReferences) == kNone);
static_assert(FirstRepeated(kReferences) == kNone);
static_assert(FirstUnsorted(kStudies, &StudiesRow::result) == kNone);

constexpr auto kCountIndex = MakeChoices<kCounts>();
constexpr auto kDefaultIndex = MakeChoices<kDefaults>();
constexpr auto kDataTypeIndex = MakeIndex<ComponentDataType::ScalarComponent, kDataTypes>();
constexpr auto kMemberIndex = MakeIndex<kNoMembers, kMembers>();
constexpr auto kBoundIndex = MakeIndex<std::uint8_t{0}, kBounds>();
constexpr auto kReferenceIndex = MakeIndex<std::uint8_t{0}, kReferences>();

/// For each result its row in `kStudies`; one beyond the last for a result without.
constexpr auto kStudiesIndex = [] {
  std::array<std::uint8_t, kResultSlots> index{};
  index.fill(kStudies.size());
  for (std::size_t place = 0; place < kStudies.size(); ++place) {
    index[ResultSlot(Code(kStudies[place].result))] = static_cast<std::uint8_t>(place);
  }
  return index;
}();

constexpr When kOtherMesh = When::AnyMeshButSolid;
constexpr When kRotationalMesh = kOtherMesh | When::Rotational;
constexpr When kBeamMesh = kRotationalMesh | When::BeamMesh;

/// What holds for each kind of mesh, without and with elements that have rotations.
// clang-format off
constexpr std::array<std::array<When, 2>, 6> kMeshes = {{
    { When::Always,      When::Always },     // SolidMesh
    { kOtherMesh,        kOtherMesh },       // 1 is unknown
    { kRotationalMesh,   kRotationalMesh },  // ShellMesh
    { kOtherMesh,        kRotationalMesh },  // MixedMesh
    { kBeamMesh,         kBeamMesh },        // BeamMesh
    { kOtherMesh,        kOtherMesh },       // unknown
}};
// clang-format on

When MeshConditions(int meshKind, int meshFlags) noexcept {
  constexpr int kRotationalFlags =
      Code(MeshFlags::RotationalElements) | Code(MeshFlags::OtherRotationalElements);
  const bool hasRotations = (meshFlags & kRotationalFlags) != 0;
  return kMeshes[std::min<std::size_t>(static_cast<unsigned>(meshKind), kMeshes.size() - 1)]
                [static_cast<std::size_t>(hasRotations)];
}

}  // namespace
}  // namespace mqp

int vekPostCommonGetActualFreqDispFlag() noexcept {
  return mqp::LoadDisplayFlag();
}

void vekPostCommonSetActualFreqDispFlag(int flag) noexcept {
  mqp::actualFrequencyDisplayFlag.store(flag, std::memory_order_relaxed);
}

int vekPostCommonGetComponentTotal(int analysisType, int resultType, int extraStress, int meshKind,
                                   int /*ignored*/, int moreStress, int meshFlags,
                                   int dynamicOption, int dynamicChoice) noexcept {
  using namespace mqp;
  const bool hasExtra = extraStress != 0;
  const bool hasMore = moreStress != 0;
  const bool isOption1 = dynamicOption == 1;
  const bool isChoice7 = dynamicChoice == 7;
  const When given = MeshConditions(meshKind, meshFlags) | If(hasExtra, When::ExtraStress) |
                     If(hasExtra & hasMore, When::ExtraAndMoreStress) |
                     If(isOption1 & isChoice7, When::WideDynamicStress);
  return kCountIndex[CellOf(analysisType, resultType)].Pick(given);
}

int vekPostCommonGetComponentDataType(int analysisType, int resultType, int component,
                                      int* vectorMembers, int forceDirectional) noexcept {
  using namespace mqp;
  if (vectorMembers != nullptr) {
    const Members& members = kMemberIndex.At(analysisType, resultType, When::Always, component);
    if (members.front() != kNoMembers.front()) {  // three or none
      std::ranges::copy(members, vectorMembers);
    }
  }
  return Code(kDataTypeIndex.At(analysisType, resultType,
                                If(forceDirectional != 0, When::ForcedDirectional), component));
}

int vekPostCommonGetComponentDefault(int analysisType, int resultType, int /*ignored*/,
                                     int meshKind, int dynamicOption) noexcept {
  using namespace mqp;
  const When given = MeshConditions(meshKind, 0) | If(dynamicOption == 1, When::DynamicOption1);
  return kDefaultIndex[CellOf(analysisType, resultType)].Pick(given);
}

int vekPostCommonGetEnvelopBoundTotal(int analysisType, int resultType, int component,
                                      int stressComponent12) noexcept {
  using namespace mqp;
  return kBoundIndex.At(analysisType, resultType,
                        If(stressComponent12 != 0, When::StressComponent12), component);
}

int vekPostCommonIsReferenceAvailable(int analysisType, int resultType, int component,
                                      int meshKind) noexcept {
  using namespace mqp;
  return kReferenceIndex.At(analysisType, resultType, MeshConditions(meshKind, 0), component);
}

int vekPostCommonGetAvailableAnalysisType(int resultType, int /*ignored*/, CArray<int, int>& list) {
  using namespace mqp;
  list.RemoveAll();
  const std::size_t place = kStudiesIndex[ResultSlot(resultType)];
  if (place < kStudies.size()) {
    const StudyList& studies = kStudies[place].list;
    for (std::size_t study = 0; study < studies.count; ++study) {
      list.Add(Code(studies.studies[study]));
    }
  }
  return 1;
}

int vekPostCommonGetFirstAvailableAnalysisType(int resultType, int /*ignored*/) noexcept {
  using namespace mqp;
  const std::size_t place = kStudiesIndex[ResultSlot(resultType)];
  return place < kStudies.size() ? Code(kStudies[place].list.studies.front()) : -1;
}
