#include <algorithm>

#include <mqPostCommon/catalogue/display_flag.h>
#include <mqPostCommon/catalogue/name_ids.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/texts.h>

namespace mqp {
namespace {

using Study = AnalysisType;
using Result = ResultType;
using NameRow = SequenceRow<NameId>;

// clang-format off

// ---------------------------------------------------------------------------------------------
// Names of result types

struct ResultNameRow {
  Result result;
  NameId id;
};

constexpr auto kResultNames = std::to_array<ResultNameRow>({
    { Result::Displacement,   52941 },
    { Result::Stress,         52980 },
    { Result::Strain,         53557 },
    { Result::FactorOfSafety, 54327 },
    { Result::Thermal,        50006 },
    { Result::ModeFrequency,  50004 },
    { Result::ResultType18,   53153 },
    { Result::Velocity,       52961 },
    { Result::Acceleration,   52962 },
    { Result::BucklingResult, 54060 },
    { Result::ResultType55,   54464 },
    { Result::BeamStress,     54332 },
    { Result::ResultType62,   53326 },
    { Result::MassProperties, 55670 },
});
constexpr NameId kOtherResultName = 54465;  // StrainAlt and StressAlt included

// ---------------------------------------------------------------------------------------------
// Full names. What is named by the result alone goes before the tables of the studies.

constexpr Names kResult53Names = Ids16(50507, 54262, 54263, 50760, 53101);
constexpr Names kResult54Names = Ids16(51767, 53953, 53954, 53955, 53963, 51761);

constexpr auto kFullByResult = std::to_array<NameRow>({
//    studies                result                  when             names of components 0, 1, 2, ...
    { kAnyStudy,             Result::ResultType0,    When::Always,    Every(50330) },
    { kAnyStudy,             Result::FactorOfSafety, When::Always,    Ids16(53574, 53575, 50018, 50019, 53576) },
    { kAnyStudy,             Result::BucklingResult, When::Always,    Every(54629) },
    { kAnyStudy,             Result::ResultType53,   When::Always,    kResult53Names },
    { kAnyStudy,             Result::ResultType54,   When::Always,    kResult54Names },
    { Study::Static,         Result::ResultType56,   When::Always,    Every(54470) },
    { kAnyStudy,             Result::StressAlt,      When::Always,    Every(54525) },
    { kAnyStudy,             Result::ResultType62,   When::Always,    Every(53576) },  // the text of component 4 of FactorOfSafety
    { kAnyStudy,             Result::ResultType66,   When::Always,    Every(55541) },
    { Study::Frequency,      Result::ResultType56,   When::Always,    Every(54472) },
    { Study::Buckling,       Result::ResultType56,   When::Always,    Every(54473) },
    { Study::Stepped,        Result::ResultType56,   When::Always,    Every(54471) },
    { Study::Fatigue,        Result::ResultType56,   When::Always,    Every(kNoName) },  // not the names of a fatigue result
});

constexpr auto kFullByStudy = std::to_array<NameRow>({
//    studies                result                  when             names of components 0, 1, 2, ...
    { Study::Static,         Result::Displacement,   When::Always,    kDisplacementNames },
    { Study::Static,         Result::Displacement,   When::Alternate, kOtherDisplacementNames },
    { Study::Static,         Result::Stress,         When::Always,    kStressNames },
    { kStressStudies,        kStrains,               When::Always,    kStrainNames },
    { Study::Static,         Result::ResultType18,   When::Always,    Ids16(53154, 53156, 53155) },  // 53156 before 53155
    { Study::Static,         Result::ResultType55,   When::Always,    Run(53157, 53160) },
    { kStressStudies,        Result::BeamStress,     When::Always,    kBeamStressNames },
    { Study::Static,         Result::MassProperties, When::Always,    Ids16(51060) + Run(53401, 53405) },
    { kModalStudies,         Result::Displacement,   When::Always,    kModeTranslationNames + kModeRotationNames },
    { kModalStudies,         Result::Displacement,   When::RealModes, kTranslationNames + kRotationNames },
    { Study::Thermal,        Result::Thermal,        When::Always,    kThermalNames },
    { kTimeStudies,          Result::Displacement,   When::Always,    kDisplacementNames },
    { kTimeStudies,          Result::Displacement,   When::Alternate, kOtherDisplacementNames },
    { kStepStudies,          Result::Stress,         When::Always,    First(14, kStressNames) },
    { kStepStudies,          Result::Stress,         When::BeamMesh,  First(5, kBeamStressNames) },  // of the seven
    { kTimeStudies,          Result::Velocity,       When::Always,    kVelocityNames + kAngularVelocityNames + Ids16(kRotationalResultantName) },
    { kTimeStudies,          Result::Acceleration,   When::Always,    kAccelerationNames + kAngularAccelerationNames },
    { Study::Fatigue,        kAnyResult,             When::Always,    Ids16(54745, 54746, 54020, 54749, 54745) },  // component 4 repeats 0
    { Study::Dynamic,        Result::Displacement,   When::Always,    From(15, Ids16(kRotationalResultantName)) },
    { Study::Dynamic,        Result::Displacement,   When::Alternate, From(15, Ids16(kRotationalResultantName)) },
    { Study::Dynamic,        Result::Stress,         When::Always,    First(12, kStressNames) },
    { Study::Dynamic,        Result::Stress,         When::Always,    From(kDynamicStressComponent, Ids16(kDynamicStressName)) },
    { Study::Dynamic,        Result::Stress,         When::BeamMesh,  kBeamStressNames },
});

// ---------------------------------------------------------------------------------------------
// Colour-bar names. The full name takes the place of a missing one, except for results 53 and 54.

constexpr Names kSafetyBarNames = Ids16(53471, 53472);
constexpr Names kBarVelocityNames = Run(54022, 54028);
constexpr Names kBarDisplacementNames = Run(53981, 53984) + Run(53473, 53483);
constexpr Names kBarStressNames =
    Run(53987, 53993) + Ids16(53947, 53994, 53034, 53996, 55084, 52190, 53997, 54498, 54499);
constexpr Names kBarAccelerationNames =
    Run(54029, 54031) + Ids16(53945) + Run(54032, 54034) + Ids16(53946);

constexpr auto kBarByResult = std::to_array<NameRow>({
//    studies                result                  when                  names of components 0, 1, 2, ...
    { kAnyStudy,             Result::ResultType53,   When::Always,         kResult53Names },
    { kAnyStudy,             Result::ResultType54,   When::Always,         kResult54Names },
});

constexpr auto kBarByStudy = std::to_array<NameRow>({
//    studies                result                  when                  names of components 0, 1, 2, ...
    { kStressStudies,        Result::Displacement,   When::Always,         kBarDisplacementNames },
    { Study::Static,         kStresses,              When::Always,         kBarStressNames },
    { kStressStudies,        kStrains,               When::Always,         Ids16(53998, 53999) + Run(53971, 53980) },
    { Study::Static,         Result::FactorOfSafety, When::Always,         kSafetyBarNames },
    { Study::Static,         Result::BeamStress,     When::Always,         kBeamStressNames },
    { Study::Frequency,      Result::Displacement,   When::Always,         Run(54873, 54876) },
    { Study::Frequency,      Result::Displacement,   When::RealModes,      Run(53981, 53984) },
    { Study::Buckling,       Result::Displacement,   When::Always,         Run(54873, 54876) + Ids16(55275, 55276, 55268) },  // 55268 is no slip
    { Study::Buckling,       Result::Displacement,   When::RealModes,      Run(53981, 53984) + Run(53477, 53479) },
    { Study::Thermal,        Result::Thermal,        When::Always,         Ids16(53985, 53986) + Run(54000, 54008) },
    { kStepStudies,          Result::Stress,         When::Always,         First(14, kBarStressNames) },
    { kStepStudies,          Result::Stress,         When::BeamMesh,       kBeamStressNames },
    { Study::Stepped,        Result::FactorOfSafety, When::Always,         kSafetyBarNames },
    { kTimeStudies,          Result::Velocity,       When::Always,         kBarVelocityNames },
    { kTimeStudies,          Result::Acceleration,   When::Always,         kBarAccelerationNames },  // eight, one more than of velocities
    { Study::Fatigue,        kAnyResult,             When::Always,         Ids16(54015, 54019, 54020, 54021, 54015) },
    { Study::Fatigue,        kAnyResult,             When::FatigueVariant, Ids16(54015, 55362, 54020, 54021, 54015) },
    { Study::Dynamic,        Result::Stress,         When::Always,         First(12, kBarStressNames) },
});

// ---------------------------------------------------------------------------------------------
// Brief names. Nothing takes the place of a missing one.

constexpr Names kBriefStressNames =
    Run(54771, 54780) + Ids16(53996, 55084, 52190, 54781, 54496, 54497);
constexpr Names kBriefStrainNames = Run(54797, 54803) + Run(54813, 54817);
constexpr Names kBriefModeNames = Run(54869, 54872) + Run(55272, 55274);
constexpr Names kBriefRealModeNames = Run(54782, 54785) + Run(54790, 54792);
constexpr NameId kBriefDynamicStressName = 56060;

constexpr auto kBriefByStudy = std::to_array<NameRow>({
//    studies                result                  when                  names of components 0, 1, 2, ...
    { kStressStudies,        Result::Displacement,   When::Always,         Run(54782, 54796) },
    { Study::Static,         kStresses,              When::Always,         kBriefStressNames },
    { kStressStudies,        kStrains,               When::Always,         kBriefStrainNames },
    { Study::Static,         Result::FactorOfSafety, When::Always,         kSafetyBarNames },
    { Study::Frequency,      kResultsBelow2,         When::Always,         kBriefModeNames },  // tested by "not above 1" alone
    { Study::Frequency,      kResultsBelow2,         When::RealModes,      kBriefRealModeNames },
    { Study::Buckling,       Result::Displacement,   When::Always,         kBriefModeNames },
    { Study::Buckling,       Result::Displacement,   When::RealModes,      kBriefRealModeNames },
    { Study::Thermal,        Result::Thermal,        When::Always,         Ids16(50797) + Run(54804, 54811) + Ids16(54557, 54558) },
    { kStepStudies,          Result::Stress,         When::Always,         First(14, kBriefStressNames) },
    { Study::Stepped,        Result::FactorOfSafety, When::Always,         kSafetyBarNames },
    { kTimeStudies,          Result::Velocity,       When::Always,         kBarVelocityNames + Ids16(53946) },  // shared with accelerations
    { kTimeStudies,          Result::Acceleration,   When::Always,         kBarAccelerationNames },
    { Study::Fatigue,        kAnyResult,             When::Always,         Ids16(54223, 54224, 54020, 54812, 54223) },  // component 4 repeats 0
    { Study::Dynamic,        Result::Stress,         When::Always,         First(12, kBriefStressNames) },
    { Study::Dynamic,        Result::Stress,         When::Always,         From(kDynamicStressComponent, Ids16(kBriefDynamicStressName)) },
});

constexpr auto kBriefOfFatigueGraphs = std::to_array<NameRow>({
//    studies                result                  when                  names of components 0, 1, 2, ...
    { Study::Fatigue,        Result::FatigueGraph,   When::Always,         Ids16(54824, 54825) },
});

// ---------------------------------------------------------------------------------------------
// Titles of report graphs, in the order in which they are tested

constexpr auto kTitlesOfFatigueGraphs = std::to_array<NameRow>({
//    studies                result                  when                     title
    { Study::Fatigue,        Result::FatigueGraph,   When::Always,            Every(54823) },
    { Study::Fatigue,        Result::FatigueGraph,   When::ChartVariant,      Every(54822) },
});

constexpr auto kTitlesByResult = std::to_array<NameRow>({
//    studies                result                  when                     title
    { kAnyStudy,             Result::ResultType63,   When::Always,            Every(55144) },
});

constexpr auto kTitlesByStudy = std::to_array<NameRow>({
//    studies                result                  when                     title
    { Study::Stepped,        kAnyResult,             When::Always,            Every(54715) },
    { Study::SteppedReduced, kAnyResult,             When::Always,            Every(54714) },
    { Study::Dynamic,        kAnyResult,             When::Always,            Every(54714) },
    { Study::Dynamic,        kAnyResult,             When::DynamicOption1Or2, Every(50610) },
});

// clang-format on

static_assert(FirstUnsorted(kResultNames, &ResultNameRow::result) == kNone);
static_assert(FirstUnsorted(kFullByResult) == kNone);
static_assert(FirstRepeated(kFullByResult) == kNone);
static_assert(FirstUnsorted(kFullByStudy) == kNone);
static_assert(FirstRepeated(kFullByStudy) == kNone);
static_assert(FirstRepeated(kBarByResult) == kNone);
static_assert(FirstUnsorted(kBarByStudy) == kNone);
static_assert(FirstRepeated(kBarByStudy) == kNone);
static_assert(FirstUnsorted(kBriefByStudy) == kNone);
static_assert(FirstRepeated(kBriefByStudy) == kNone);
static_assert(FirstRepeated(kBriefOfFatigueGraphs) == kNone);
static_assert(FirstRepeated(kTitlesOfFatigueGraphs) == kNone);
static_assert(FirstUnsorted(kTitlesByStudy) == kNone);
static_assert(FirstRepeated(kTitlesByStudy) == kNone);

constexpr auto kFullIndex = MakeIndex<kNoName, kFullByResult, kFullByStudy>();
constexpr auto kBarIndex = MakeIndex<kNoName, kBarByResult, kBarByStudy>();
constexpr auto kBriefIndex =
    MakeIndex<kNoName, kBarByResult, kBriefOfFatigueGraphs, kBriefByStudy>();
constexpr auto kTitleIndex =
    MakeIndex<kNoName, kTitlesOfFatigueGraphs, kTitlesByResult, kTitlesByStudy>();

constexpr auto kResultNameIndex = [] {
  std::array<NameId, kResultSlots> index{};
  index.fill(kOtherResultName);
  for (const ResultNameRow& row : kResultNames) {
    index[ResultSlot(Code(row.result))] = row.id;
  }
  return index;
}();

When ModeCondition() noexcept {
  return If(LoadDisplayFlag() != 0, When::RealModes);
}

When BeamCondition(int meshKind) noexcept {
  return If(meshKind == Code(MeshKind::BeamMesh), When::BeamMesh);
}

/// Leaves the text before the first colon; all of it when there is none or it stands in front.
void CutAtColon(CString& text) {
  if (const int colon = text.Find(MQ_TEXT(':')); colon > 0) {
    text.Delete(colon, text.GetLength());
  }
}

}  // namespace
}  // namespace mqp

CString vekPostCommonGetResultName(int resultType) {
  using namespace mqp;
  return LoadText(kResultNameIndex[ResultSlot(resultType)]);
}

CString vekPostCommonGetComponentName(int analysisType, int resultType, int /*ignored*/,
                                      int component, int meshKind, int alternateNames) {
  using namespace mqp;
  const When given =
      ModeCondition() | BeamCondition(meshKind) | If(alternateNames != 0, When::Alternate);
  return LoadText(kFullIndex.At(analysisType, resultType, given, component));
}

CString vekPostCommonGetComponentNameBar(int analysisType, int resultType, int passOn,
                                         int component, int meshKind, int fatigueVariant) {
  using namespace mqp;
  const When given =
      ModeCondition() | BeamCondition(meshKind) | If(fatigueVariant == 1, When::FatigueVariant);
  CString text = LoadText(kBarIndex.At(analysisType, resultType, given, component));
  const bool fallsBack =
      resultType != Code(ResultType::ResultType53) && resultType != Code(ResultType::ResultType54);
  if (text.IsEmpty() && fallsBack) {
    text = vekPostCommonGetComponentName(analysisType, resultType, passOn, component, 0, 0);
    CutAtColon(text);
  }
  return text;
}

CString vekPostCommonGetComponentNameShort(int analysisType, int resultType, int passOn,
                                           int component) {
  return vekPostCommonGetComponentNameBar(analysisType, resultType, passOn, component, 0, 0);
}

CString vekPostCommonGetComponentNameBrief(int analysisType, int resultType, int /*passOn*/,
                                           int component) {
  using namespace mqp;
  // A negative result is below 2 as well. No other row tells it from result 0.
  const int result = std::max(resultType, 0);
  return LoadText(kBriefIndex.At(analysisType, result, ModeCondition(), component));
}

CString vekPostCommonGetGraphNameForReport(int analysisType, int resultType, int chartVariant,
                                           int dynamicOption) {
  using namespace mqp;
  const When given = If(chartVariant != 0, When::ChartVariant) |
                     If(dynamicOption == 1 || dynamicOption == 2, When::DynamicOption1Or2);
  return LoadText(kTitleIndex.At(analysisType, resultType, given, 0));
}
