#include <utility>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/table.h>
#include <mqPostCommon/params/plot.h>

namespace mqp {
namespace {

constexpr StudySet kEnvelopeStudies = kTimeStudies | AnalysisType::Thermal;
constexpr int kHeatEnergy = 10;

/// An array without elements says nothing of that of another plot.
template <class TYPE>
void KeepIfEmpty(ValueArray<TYPE>& taken, const ValueArray<TYPE>& own) {
  if (taken.IsEmpty()) {
    taken = own;
  }
}

}  // namespace
}  // namespace mqp

CmqPostDataParam::CmqPostDataParam() = default;
CmqPostDataParam::~CmqPostDataParam() = default;

CmqPostDataParam::CmqPostDataParam(const CmqPostDataParam&) = default;

CmqPostDataParam& CmqPostDataParam::operator=(const CmqPostDataParam& other) {
  if (this == &other) {
    return *this;
  }
  PlotMembers taken(other);
  taken.m_nHost30[1] = 0;
  taken.m_nHost30[2] = 0;
  taken.m_nHost41[0] = m_nHost41[0];
  mqp::KeepIfEmpty(taken.m_arrHost31, m_arrHost31);
  mqp::KeepIfEmpty(taken.m_arrHost32, m_arrHost32);
  PlotMembers::operator=(std::move(taken));
  return *this;
}

float CmqPostDataParam::GetDeformScaleFactor() const noexcept {
  switch (m_nDeformScaleMode) {
    case 0: return m_fDeformScaleFactor0;
    case 1: return m_fDeformScaleFactor1;
    default: return 1.0F;
  }
}

int CmqPostDataParam::IsEnvelopPlot() const noexcept {
  const int study = static_cast<int>(mqp::StudySlot(m_nAnalysisType));
  return m_nEnvelopeFlag != 0 && mqp::kEnvelopeStudies.Has(study) ? 1 : 0;
}

int CmqPostDataParam::IsThermalHeatEnergy() const noexcept {
  return m_nAnalysisType == mqp::Code(AnalysisType::Thermal) &&
                 m_nResultType == mqp::Code(ResultType::Thermal) && m_nComponent == mqp::kHeatEnergy
             ? 1
             : 0;
}
