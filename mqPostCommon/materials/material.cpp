#include <algorithm>
#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <utility>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/materials/material.h>
#include <mqPostCommon/platform/lookup_tables.h>

namespace mqp {
namespace {

using Material = CmqpMaterialData;

// ---------------------------------------------------------------------------------------------
// Strengths

/// The members of one strength property.
struct Strength {
  int Material::* has;
  double Material::* value;
  int Material::* isTempDepend;
  CmqTemperatureCurve Material::* curve;
};

// clang-format off
//                              defined                 constant              varies                          over temperature
constexpr Strength kSIGYLD = { &Material::m_bHasSIGYLD, &Material::m_dSIGYLD, &Material::m_bSIGYLDTempDepend, &Material::m_SIGYLDTempCurve };
constexpr Strength kSIGXT  = { &Material::m_bHasSIGXT,  &Material::m_dSIGXT,  &Material::m_bSIGXTTempDepend,  &Material::m_SIGXTTempCurve };
constexpr Strength kSIGXC  = { &Material::m_bHasSIGXC,  &Material::m_dSIGXC,  &Material::m_bSIGXCTempDepend,  &Material::m_SIGXCTempCurve };
constexpr Strength kSIGYT  = { &Material::m_bHasSIGYT,  &Material::m_dSIGYT,  &Material::m_bSIGYTTempDepend,  &Material::m_SIGYTTempCurve };
constexpr Strength kSIGYC  = { &Material::m_bHasSIGYC,  &Material::m_dSIGYC,  &Material::m_bSIGYCTempDepend,  &Material::m_SIGYCTempCurve };
constexpr Strength kSIGXY  = { &Material::m_bHasSIGXY,  &Material::m_dSIGXY,  &Material::m_bSIGXYTempDepend,  &Material::m_SIGXYTempCurve };
// clang-format on

constexpr std::array kStrengths = {kSIGYLD, kSIGXT, kSIGXC, kSIGYT, kSIGYC, kSIGXY};

int Read(const Material& material, const Strength& strength, double& value) noexcept {
  value = material.*strength.value;
  return material.*strength.has;
}

bool Varies(const Material& material, const Strength& strength) noexcept {
  return material.*strength.has != 0 && material.*strength.isTempDepend != 0 &&
         (material.*strength.curve).m_nPoints >= 1;
}

CmqTemperatureCurve* CurveOf(Material& material, const Strength& strength) noexcept {
  return Varies(material, strength) ? &(material.*strength.curve) : nullptr;
}

// ---------------------------------------------------------------------------------------------
// Factors of safety

// Failure criteria of the host that look at other strengths than the yield strength alone.
constexpr int kTensionAndCompression = 2;
constexpr int kAllThree = 4;

/// The option that does not depend on temperature.
constexpr int kIndependentOption = 2;

/// Whether the criterion of a plot uses a strength of a record that varies.
bool UsesVaryingStrength(const CmqPostDataParam& plot, const Material& material) noexcept {
  const bool inTensionOrCompression = Varies(material, kSIGXC) || Varies(material, kSIGXT);
  switch (plot.m_nFailureCriterion) {
    case kAllThree: return inTensionOrCompression || Varies(material, kSIGYLD);
    case kTensionAndCompression: return inTensionOrCompression;
    default: return plot.m_nCriterionOptions[0] != kIndependentOption && Varies(material, kSIGYLD);
  }
}

/// The index of the record of a body; the number of records when there is none.
int FindBody(const CmqpMaterialDataList& list, long bodyId, int secondaryId) noexcept {
  int index = 0;
  for (; index < list.m_arrMaterials.GetSize(); ++index) {
    const Material& material = list.m_arrMaterials[index];
    if (material.m_nBodyID == bodyId &&
        (secondaryId < 1 || material.m_nSecondaryID == secondaryId)) {
      break;
    }
  }
  return index;
}

}  // namespace
}  // namespace mqp

// ---------------------------------------------------------------------------------------------
// One record

CmqpMaterialData::CmqpMaterialData() = default;
CmqpMaterialData::CmqpMaterialData(const CmqpMaterialData&) = default;
CmqpMaterialData::CmqpMaterialData(CmqpMaterialData&&) noexcept = default;
CmqpMaterialData& CmqpMaterialData::operator=(const CmqpMaterialData&) = default;
CmqpMaterialData& CmqpMaterialData::operator=(CmqpMaterialData&&) noexcept = default;
CmqpMaterialData::~CmqpMaterialData() = default;

void CmqpMaterialData::ConstructorInit() {
  CmqpMaterialData defaults;
  for (const mqp::Strength& strength : mqp::kStrengths) {
    defaults.*strength.curve = std::move(this->*strength.curve);
  }
  *this = std::move(defaults);
}

// clang-format off
int CmqpMaterialData::GetPropertyValue_SIGYLD(double& value) const noexcept { return mqp::Read(*this, mqp::kSIGYLD, value); }
int CmqpMaterialData::GetPropertyValue_SIGXT (double& value) const noexcept { return mqp::Read(*this, mqp::kSIGXT,  value); }
int CmqpMaterialData::GetPropertyValue_SIGXC (double& value) const noexcept { return mqp::Read(*this, mqp::kSIGXC,  value); }
int CmqpMaterialData::GetPropertyValue_SIGYT (double& value) const noexcept { return mqp::Read(*this, mqp::kSIGYT,  value); }
int CmqpMaterialData::GetPropertyValue_SIGYC (double& value) const noexcept { return mqp::Read(*this, mqp::kSIGYC,  value); }
int CmqpMaterialData::GetPropertyValue_SIGXY (double& value) const noexcept { return mqp::Read(*this, mqp::kSIGXY,  value); }

int CmqpMaterialData::IsSIGYLDTempDepend() const noexcept { return mqp::Varies(*this, mqp::kSIGYLD) ? 1 : 0; }
int CmqpMaterialData::IsSIGXTTempDepend () const noexcept { return mqp::Varies(*this, mqp::kSIGXT)  ? 1 : 0; }
int CmqpMaterialData::IsSIGXCTempDepend () const noexcept { return mqp::Varies(*this, mqp::kSIGXC)  ? 1 : 0; }
int CmqpMaterialData::IsSIGYTTempDepend () const noexcept { return mqp::Varies(*this, mqp::kSIGYT)  ? 1 : 0; }
int CmqpMaterialData::IsSIGYCTempDepend () const noexcept { return mqp::Varies(*this, mqp::kSIGYC)  ? 1 : 0; }
int CmqpMaterialData::IsSIGXYTempDepend () const noexcept { return mqp::Varies(*this, mqp::kSIGXY)  ? 1 : 0; }

CmqTemperatureCurve* CmqpMaterialData::GetSIGYLDTempCurve() noexcept { return mqp::CurveOf(*this, mqp::kSIGYLD); }
CmqTemperatureCurve* CmqpMaterialData::GetSIGXTTempCurve () noexcept { return mqp::CurveOf(*this, mqp::kSIGXT);  }
CmqTemperatureCurve* CmqpMaterialData::GetSIGXCTempCurve () noexcept { return mqp::CurveOf(*this, mqp::kSIGXC);  }
CmqTemperatureCurve* CmqpMaterialData::GetSIGYTTempCurve () noexcept { return mqp::CurveOf(*this, mqp::kSIGYT);  }
CmqTemperatureCurve* CmqpMaterialData::GetSIGYCTempCurve () noexcept { return mqp::CurveOf(*this, mqp::kSIGYC);  }
CmqTemperatureCurve* CmqpMaterialData::GetSIGXYTempCurve () noexcept { return mqp::CurveOf(*this, mqp::kSIGXY);  }
// clang-format on

int CmqpMaterialData::GetMatUnitInStressUnit() const noexcept {
  return GetMatInStressUnit(this);
}

int CmqpMaterialData::IsSafeForCompositeFOS() const noexcept {
  return m_bHasSIGXT != 0 && m_bHasSIGXC != 0 && m_bHasSIGXY != 0 ? 1 : 0;
}

int CmqpMaterialData::IsSameValueForDesignCheck(const CmqpMaterialData& other) const noexcept {
  if (m_nCount != other.m_nCount || m_nDefinedUnits != other.m_nDefinedUnits) {
    return 0;
  }
  for (const mqp::Strength& strength : mqp::kStrengths) {
    // Whether a shear strength is defined is left out on purpose.
    const bool isFlagCompared = strength.has != &CmqpMaterialData::m_bHasSIGXY;
    if ((isFlagCompared && this->*strength.has != other.*strength.has) ||
        this->*strength.value != other.*strength.value) {
      return 0;
    }
  }
  return 1;
}

int GetMatInStressUnit(const CmqpMaterialData* material) noexcept {
  if (material == nullptr || material->m_nCount == 0) {
    return 0;
  }
  // N/mm^2 has an index of its own among the result units and is reported as N/m^2 on purpose.
  const int units = material->m_nDefinedUnits;
  return units == 1 || units == 2 ? units : 0;
}

// ---------------------------------------------------------------------------------------------
// The list

CmqpMaterialDataList::CmqpMaterialDataList() = default;
CmqpMaterialDataList::~CmqpMaterialDataList() = default;

CmqpMaterialDataList::CmqpMaterialDataList(const CmqpMaterialDataList& other) {
  m_arrMaterials.Copy(other.m_arrMaterials);
}

CmqpMaterialDataList& CmqpMaterialDataList::operator=(const CmqpMaterialDataList& other) {
  if (this != &other) {
    CmqpMaterialDataList copy(other);
    m_arrMaterials = std::move(copy.m_arrMaterials);
  }
  return *this;
}

__int64 CmqpMaterialDataList::Add(const CmqpMaterialData& material) {
  return m_arrMaterials.Add(material);
}

__int64 CmqpMaterialDataList::GetSize() const noexcept {
  return m_arrMaterials.GetSize();
}

void CmqpMaterialDataList::RemoveAll() noexcept {
  m_arrMaterials.RemoveAll();
}

CmqpMaterialData CmqpMaterialDataList::GetAt(int index) const {
  if (index < 0 || index >= m_arrMaterials.GetSize()) {
    return {};
  }
  return m_arrMaterials[index];
}

int CmqpMaterialDataList::GetByBodyID(long bodyId, CmqpMaterialData* out, int* index,
                                      int secondaryId) const {
  const int found = mqp::FindBody(*this, bodyId, secondaryId);
  if (found == m_arrMaterials.GetSize()) {
    return 0;
  }
  *out = m_arrMaterials[found];
  if (index != nullptr) {
    *index = found;
  }
  return 1;
}

unsigned long long CmqpMaterialDataList::GetUniqueMaterialList(std::vector<int>& indices) const {
  indices.assign(1, 0);
  mqp::TextTable names;
  std::basic_string<mqChar> folded;
  const std::span<const CmqpMaterialData> materials(
      m_arrMaterials.GetData(), static_cast<std::size_t>(m_arrMaterials.GetSize()));
  for (std::size_t place = 0; place < materials.size(); ++place) {
    mqp::FetchAhead(materials, place, &CmqpMaterialData::m_strMaterialName);
    const int known = names.GetSize();
    mqp::FoldText(materials[place].m_strMaterialName.View(), folded);
    if (names.FindOrAdd(folded) == known && place > 0) {
      indices.push_back(static_cast<int>(place));
    }
  }
  return indices.size();
}

int CmqpMaterialDataList::IsSameValueForDesignCheck() const noexcept {
  const int count = m_arrMaterials.GetSize();
  for (int index = 1; index < count; ++index) {
    if (m_arrMaterials[0].IsSameValueForDesignCheck(m_arrMaterials[index]) == 0) {
      return 0;
    }
  }
  return count == 0 ? 0 : 1;
}

int CmqpMaterialDataList::IsTemperatureDependentFOSCriterion(
    const CmqPostDataParam* plot) const noexcept {
  using namespace mqp;
  if (plot == nullptr || plot->m_nResultType != Code(ResultType::FactorOfSafety) ||
      (plot->m_nCriterionOptions[0] == kIndependentOption &&
       plot->m_nCriterionOptions[1] == kIndependentOption)) {
    return 0;
  }
  if (plot->m_nBodyId > 0) {
    const int found = FindBody(*this, plot->m_nBodyId, 0);
    return found < m_arrMaterials.GetSize() && UsesVaryingStrength(*plot, m_arrMaterials[found])
               ? 1
               : 0;
  }
  for (int index = 0; index < m_arrMaterials.GetSize(); ++index) {
    if (UsesVaryingStrength(*plot, m_arrMaterials[index])) {
      return 1;
    }
  }
  return 0;
}
