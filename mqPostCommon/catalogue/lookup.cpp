#include <cstddef>

#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/name_ids.h>
#include <mqPostCommon/catalogue/texts.h>
#include <mqPostCommon/platform/comm_funcs.h>

namespace mqp {
namespace {

using Study = AnalysisType;
using Result = ResultType;

/// A name to try, and the component that it stands for.
struct Candidate {
  NameId id;
  std::uint8_t component;

  friend constexpr bool operator==(const Candidate&, const Candidate&) = default;
};

using Candidates = Sequence<Candidate>;
using CandidateRow = SequenceRow<Candidate>;

/// The names of consecutive components from `first` on.
constexpr Candidates Numbered(const Names& names, int first = 0) {
  Candidates candidates;
  for (int place = 0; place < names.count; ++place) {
    candidates.values.at(static_cast<std::size_t>(candidates.count++)) = {
        names.values[static_cast<std::size_t>(place)], static_cast<std::uint8_t>(first + place)};
  }
  return candidates;
}

constexpr Candidates One(NameId id, int component) {
  return Numbered(Ids16(id), component);
}

/// Two names of each component, one tried behind the other: of real and of normalised modes.
constexpr Candidates Either(const Names& names, const Names& others, int first) {
  Candidates candidates;
  for (int place = 0; place < names.count; ++place) {
    const auto at = static_cast<std::size_t>(place);
    candidates =
        candidates + One(names.values[at], first + place) + One(others.values[at], first + place);
  }
  return candidates;
}

// clang-format off

constexpr Candidates kModeTranslations = Either(kTranslationNames, kModeTranslationNames, 0);
constexpr Candidates kModeRotations    = Either(kRotationNames, kModeRotationNames, 4);

constexpr StudySet kBeamStressStudies = kStressStudies | Study::FlowImport;

constexpr auto kCandidates = std::to_array<CandidateRow>({
//    studies                          result                  when             names in the order in which they are tried
    { Study::Static | Study::Dynamic,  Result::Displacement,   When::Always,    Numbered(kDisplacementNames) },
    { Study::Static,                   Result::Stress,         When::Always,    Numbered(First(14, kStressNames)) },
    { Study::Static,                   Result::Stress,         When::Alternate, Numbered(kStressNames) },
    { kStressStudies,                  kStrains,               When::Always,    Numbered(kStrainNames) },
    { kBeamStressStudies,              Result::BeamStress,     When::Always,    Numbered(kBeamStressNames) },
    { Study::Frequency,                Result::Displacement,   When::Always,    kModeTranslations },
    { Study::Buckling,                 Result::Displacement,   When::Always,    kModeTranslations + kModeRotations },
    { Study::Thermal,                  Result::Thermal,        When::Always,    Numbered(kThermalNames) },
    { kStepStudies,                    Result::Displacement,   When::Always,    Numbered(First(8, kDisplacementNames)) },  // the others have names, but are not looked up
    { kStepStudies,                    Result::Stress,         When::Always,    Numbered(First(14, kStressNames)) },
    { kTimeStudies,                    Result::Velocity,       When::Always,    Numbered(First(3, kVelocityNames)) + Numbered(kAngularVelocityNames, 4) + One(54411, 3) + One(kRotationalResultantName, 7) },  // the resultant behind the angular ones
    { kStepStudies,                    Result::Acceleration,   When::Always,    Numbered(First(3, kAccelerationNames)) + Numbered(kAngularAccelerationNames, 0) + One(54418, 3) + One(kRotationalResultantName, 7) },  // the angular ones stand for 0 to 2 here
    { Study::Fatigue,                  kAnyResult,             When::Always,    Numbered(kFatigueNames) },  // 54747, not 54020
    { Study::Dynamic,                  Result::Stress,         When::Always,    Numbered(First(12, kStressNames)) + One(kDynamicStressName, kDynamicStressComponent) },
    { Study::Dynamic,                  Result::Acceleration,   When::Always,    Numbered(First(3, kAccelerationNames)) + Numbered(kAngularAccelerationNames, 4) + One(54418, 3) + One(kRotationalResultantName, 7) },
});

// ---------------------------------------------------------------------------------------------
// Result types by the name of a component. Left out on purpose: the names of normalised modes, the
// last two thermal names, the stresses 14, 15 and 100, the rotational resultant and beam stresses.

struct ResultRow {
  Result result;
  Names names;
};

constexpr auto kResultCandidates = std::to_array<ResultRow>({
//    result                  names in the order in which they are tried
    { Result::Displacement,   kDisplacementNames },
    { Result::Stress,         First(14, kStressNames) },
    { Result::Strain,         kStrainNames },
    { Result::Thermal,        First(9, kThermalNames) },
    { Result::FatigueResult,  kFatigueNames },
    { Result::Velocity,       Run(54763, 54766) + Run(54405, 54411) },
    { Result::Acceleration,   Run(54412, 54418) },
});

// clang-format on

static_assert(FirstUnsorted(kCandidates) == kNone);
static_assert(FirstRepeated(kCandidates) == kNone);
static_assert(FirstUnsorted(kResultCandidates, &ResultRow::result) == kNone);

constexpr auto kCandidateIndex = MakeIndex<Candidate{kNoName, 0}, kCandidates>();

constexpr int kNotFound = -1;
constexpr int kNoResultType = 9999;

/// \param buffer takes the name; what a host leaves in it for an unknown id has been tried before
bool NameBeginsWith(NameId id, mqTextView key, CString& buffer) {
  mqpLoadString(buffer, id);
  return buffer.View().starts_with(key);
}

}  // namespace
}  // namespace mqp

int vekPostCommonGetComponentIndexByName(int analysisType, int resultType, int variant,
                                         CString name, int exactName) {
  using namespace mqp;
  if (name.IsEmpty()) {
    return kNotFound;
  }
  const mqTextView key = exactName != 0 ? name.Trim().View() : KeyOf(name.View());
  CString buffer;
  for (const Candidate& candidate :
       kCandidateIndex.Listed(analysisType, resultType, If(variant != 0, When::Alternate))) {
    if (NameBeginsWith(candidate.id, key, buffer)) {
      return candidate.component;
    }
  }
  return kNotFound;
}

int vekPostCommonGetResultTypeByComponentName(CString name) {
  using namespace mqp;
  const mqTextView key = KeyOf(name.View());
  CString buffer;
  for (const ResultRow& row : kResultCandidates) {
    for (int place = 0; place < row.names.count; ++place) {
      if (NameBeginsWith(row.names.values[static_cast<std::size_t>(place)], key, buffer)) {
        return Code(row.result);
      }
    }
  }
  return kNoResultType;
}
