#include <array>
#include <cstdint>
#include <tuple>

#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/name_ids.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/table.h>
#include <mqPostCommon/catalogue/texts.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/lists/list.h>

namespace mqp {
namespace {

using Result = ResultType;

/// When a set has the columns of a row.
enum class Case : std::uint8_t {
  Always,
  ModeShapes,    ///< in a modal study, unless the actual-frequency display flag is set
  TimeStudy,     ///< in a study of results over time
  Component100,  ///< the listed component is that of a Dynamic stress
};

/// The columns of one list set, and the name of the component that stands for the whole of it.
struct SetRow {
  Result result;
  int kind;
  Case when;
  Names columns;
  NameId whole;
};

// clang-format off
constexpr Names kDynamicStressColumns = Slice(6, 8, kStressNames) + Ids16(kDynamicStressName) + Slice(10, 11, kStressNames);

constexpr auto kSets = std::to_array<SetRow>({
//    result                 kind case                columns                                                  the whole
    { Result::Displacement,  0, Case::Always,        kTranslationNames,                                       50341   },
    { Result::Displacement,  0, Case::ModeShapes,    kModeTranslationNames,                                   50341   },  // looked up by the name of a real mode
    { Result::Displacement,  1, Case::Always,        kReactionForceNames,                                     50345   },
    { Result::Displacement,  2, Case::Always,        kRotationNames,                                          54584   },  // has no resultant
    { Result::Displacement,  2, Case::ModeShapes,    kModeRotationNames,                                      54584   },
    { Result::Displacement,  3, Case::Always,        kReactionMomentNames,                                    54590   },
    { Result::Stress,        0, Case::Always,        First(6, kStressNames),                                  kNoName },
    { Result::Stress,        1, Case::Always,        Slice(6, 11, kStressNames),                              kNoName },
    { Result::Stress,        1, Case::Component100,  kDynamicStressColumns,                                   kNoName },
    { Result::Strain,        0, Case::Always,        First(6, kStrainNames),                                  kNoName },
    { Result::Strain,        1, Case::Always,        Slice(7, 7, kStrainNames),                               54610   },
    { Result::Strain,        2, Case::Always,        Slice(9, 11, kStrainNames) + Slice(6, 6, kStrainNames),  kNoName },
    { Result::Strain,        2, Case::TimeStudy,     Slice(6, 6, kStrainNames),                               kNoName },
    { Result::Strain,        4, Case::Always,        Slice(8, 8, kStrainNames),                               54611   },  // there is no kind 3
    { Result::Thermal,       0, Case::Always,        First(5, kThermalNames),                                 54612   },
    { Result::Thermal,       1, Case::Always,        Slice(5, 8, kThermalNames),                              50264   },
    { Result::Velocity,      0, Case::Always,        kVelocityNames,                                          54411   },
    { Result::Velocity,      1, Case::Always,        kAngularVelocityNames,                                   54408   },  // has no resultant
    { Result::Acceleration,  0, Case::Always,        kAccelerationNames,                                      54418   },
    { Result::Acceleration,  1, Case::Always,        kAngularAccelerationNames,                               54415   },
});

/// The set of a fatigue result, of whatever kind: one column, named by the listed component.
constexpr Names kFatigueSetNames = kFatigueNames + First(1, kFatigueNames);  // component 4 repeats 0
// clang-format on

constexpr bool IsFatigue(const CVekPostListParam& list) noexcept {
  return list.m_nResultType == Code(Result::FatigueResult);
}

bool Holds(Case when, const CVekPostListParam& list) noexcept {
  const auto study = static_cast<int>(StudySlot(list.m_nAnalysisType));
  if (when == Case::ModeShapes) {
    return kModalStudies.Has(study) && vekPostCommonGetActualFreqDispFlag() == 0;
  }
  if (when == Case::TimeStudy) {
    return kTimeStudies.Has(study);
  }
  return when == Case::Always || list.m_nComponent == kDynamicStressComponent;
}

/// The last row of a list set whose case holds: a special one stands behind the plain one. Null for
/// a set that is none.
const SetRow* FindSet(const CVekPostListParam& list) noexcept {
  const SetRow* found = nullptr;
  for (const SetRow& row : kSets) {
    if (Code(row.result) == list.m_nResultType && row.kind == list.m_nListSetKind &&
        Holds(row.when, list)) {
      found = &row;
    }
  }
  return found;
}

NameId FatigueName(const CVekPostListParam& list) noexcept {
  return kFatigueSetNames.At(list.m_nComponent);
}

int CountSet(const CVekPostListParam& list) noexcept {
  if (IsFatigue(list)) {
    return 1;
  }
  const SetRow* set = FindSet(list);
  return set == nullptr ? 0 : set->columns.count;
}

NameId ColumnName(const CVekPostListParam& list, int component) noexcept {
  if (IsFatigue(list)) {
    return component == 0 ? FatigueName(list) : kNoName;
  }
  const SetRow* set = FindSet(list);
  return set == nullptr ? kNoName : set->columns.At(component);
}

NameId WholeName(const CVekPostListParam& list) noexcept {
  if (IsFatigue(list)) {
    return FatigueName(list);
  }
  const SetRow* set = FindSet(list);
  return set == nullptr ? kNoName : set->whole;
}

/// Rows stand in order of result, kind and case, the special ones behind the plain one, none twice.
constexpr int FirstUnsortedSet() {
  for (std::size_t place = 1; place < kSets.size(); ++place) {
    const SetRow& before = kSets[place - 1];
    const SetRow& row = kSets[place];
    if (std::tuple(before.result, before.kind, before.when) >=
        std::tuple(row.result, row.kind, row.when)) {
      return static_cast<int>(place);
    }
  }
  return kNone;
}
static_assert(FirstUnsortedSet() == kNone);

constexpr UINT kLeadingTitle = 50733;
constexpr UINT kVariantLeadingTitle = 50757;

/// The component column that a single stress 9 or 100 of a Dynamic study has besides its own.
constexpr int kDynamicStressColumn = 3;
constexpr int kEquivalentStress = 9;

bool IsDynamicStress(const CVekPostListParam& list) noexcept {
  return list.m_nAnalysisType == Code(AnalysisType::Dynamic) &&
         list.m_nResultType == Code(Result::Stress);
}

bool HasDynamicStressColumn(const CVekPostListParam& list) noexcept {
  return IsDynamicStress(list) &&
         (list.m_nComponent == kEquivalentStress || list.m_nComponent == kDynamicStressComponent);
}

int LookUp(const CVekPostListParam& list, const CString& name) {
  return vekPostCommonGetComponentIndexByName(list.m_nAnalysisType, list.m_nResultType,
                                              list.m_nVariant, name, 0);
}

}  // namespace
}  // namespace mqp

CVekPostListParam::CVekPostListParam() = default;
CVekPostListParam::CVekPostListParam(const CVekPostListParam&) = default;
CVekPostListParam& CVekPostListParam::operator=(const CVekPostListParam&) = default;
CVekPostListParam::~CVekPostListParam() = default;

int CVekPostListParam::GetComponentCount() const noexcept {
  return m_nListSetFlag == 0 ? 1 : mqp::CountSet(*this);
}

int CVekPostListParam::GetListColCount() const noexcept {
  return GetComponentCount() + 1;
}

CString CVekPostListParam::GetListColTitle(int column) const {
  if (column < 0 || column >= GetListColCount()) {
    return column == mqp::kDynamicStressColumn ? GetComponentNameShort(column) : CString();
  }
  if (column == 0) {
    const bool isVariant = m_nVariant != 0 && (m_nListSetFlag == 0 || m_nTitleSwitch != 0);
    return mqp::LoadText(isVariant ? mqp::kVariantLeadingTitle : mqp::kLeadingTitle);
  }
  const bool isDynamicStressSet =
      m_nListSetFlag != 0 && m_nListSetKind == 1 && mqp::IsDynamicStress(*this);
  if (isDynamicStressSet && m_nUnitOption != 0) {
    // The titles of a spectral list are one column ahead; those of a variant are all alike.
    return GetComponentNameShort(m_nVariant == 0 ? column : mqp::kDynamicStressColumn);
  }
  return GetComponentNameShort(column - 1);
}

CString CVekPostListParam::GetComponentName(int component) const {
  if (m_nListSetFlag != 0) {
    return mqp::LoadText(mqp::ColumnName(*this, component));
  }
  if (component == 0 ||
      (component == mqp::kDynamicStressColumn && mqp::HasDynamicStressColumn(*this))) {
    return vekPostCommonGetComponentName(m_nAnalysisType, m_nResultType, m_nVariant, m_nComponent,
                                         0, 0);
  }
  return {};
}

CString CVekPostListParam::GetComponentNameShort(int component) const {
  return CString(mqp::KeyOf(GetComponentName(component).View()));
}

int CVekPostListParam::GetComponentIndex(int component) const {
  return mqp::LookUp(*this, GetComponentName(component));
}

void CVekPostListParam::GetComponentSet(int* out) const {
  const int count = out == nullptr ? 0 : GetComponentCount();
  for (int component = 0; component < count; ++component) {
    out[component] = GetComponentIndex(component);
  }
}

int CVekPostListParam::GetComponentIndexByListSet() const {
  return mqp::LookUp(*this, mqp::LoadText(mqp::WholeName(*this)));
}

CmqPostDataParam CVekPostListParam::GetDataParam(int component) const {
  CmqPostDataParam plot;
  plot.m_strPlotName = m_strStudyPath;
  plot.m_nAnalysisType = m_nAnalysisType;
  plot.m_nResultType = m_nResultType;
  plot.m_nComponent = m_nListSetFlag != 0 ? GetComponentIndex(component) : m_nComponent;
  plot.m_nHost5 = m_nHost5;
  plot.m_nVariant = m_nVariant;
  plot.m_nHost8 = 0;
  plot.m_nUnitIndex = m_nUnitIndex;
  plot.m_nHost12[1] = m_nHost10;
  plot.m_nHost12[2] = m_nHost24[6];
  plot.m_nHost19 = m_nHost18;
  plot.m_strHost20[0] = m_strHost19;
  plot.m_nHost21 = m_nHost20;
  plot.m_ViewMatrix = m_ViewMatrix;
  plot.m_nHost25[2] = m_nHost22[2];
  plot.m_nHost25[3] = m_nUnitOption;
  plot.m_nHost25[4] = m_nHost24[1];
  plot.m_nHost27[0] = m_nHost24[3];
  plot.m_nHost27[3] = m_nHost24[4];
  plot.m_nHost28[0] = m_nHost24[5];
  plot.m_nHost28[1] = m_nHost24[2];
  plot.m_nHost28[5] = m_nHost24[7];
  plot.m_nHost28[6] = m_nHost24[8];
  return plot;
}

CString CVekPostListParam::GetStudyName() const {
  return m_strStudyPath.Mid(m_strStudyPath.ReverseFind(MQ_TEXT('\\')) + 1);
}

int CVekPostListParam::GetUnitType() const {
  const int component = m_nListSetFlag != 0 ? GetComponentIndexByListSet() : m_nComponent;
  return vekPostCommonGetUnitType(m_nAnalysisType, m_nResultType, component, m_nUnitOption, 0);
}

CString CVekPostListParam::GetUnitName() const {
  return vekPostCommonGetUnitName(GetUnitType(), m_nUnitIndex);
}
