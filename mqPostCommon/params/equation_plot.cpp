#include <algorithm>
#include <array>
#include <cstdint>
#include <memory>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/stream/record.h>

namespace mqp {
namespace {

constexpr mqChar kQuote = MQ_TEXT('"');
constexpr int kUnknown = -1;

/// How far a display equation grows. Component names are taken to be shorter than sixteen
/// placeholders; only in a damaged record names occur in what they are replaced by, and the text
/// doubles with each.
std::int64_t MaximumDisplayLength(const CString& equation) noexcept {
  return std::int64_t{16} * std::max(equation.GetLength(), kMaximumStringRecordLength);
}

// ---------------------------------------------------------------------------------------------
// Where a name is looked for

struct OfferedNames {
  StringValues CmqResultCompsEqnVarsList::* names;
  ResultType result;
  int exactName;  ///< of the look-up; the names of beam stresses are too alike for a short key
};

// clang-format off
constexpr auto kOfferedNames = std::to_array<OfferedNames>({
//    names                                               result                    exact    in the order in which they are searched
    { &CmqResultCompsEqnVarsList::m_listStressNames,       ResultType::Stress,       0 },
    { &CmqResultCompsEqnVarsList::m_listBeamStressNames,   ResultType::BeamStress,   1 },
    { &CmqResultCompsEqnVarsList::m_listStrainNames,       ResultType::Strain,       0 },
    { &CmqResultCompsEqnVarsList::m_listDisplacementNames, ResultType::Displacement, 0 },
    { &CmqResultCompsEqnVarsList::m_listThermalNames,      ResultType::Thermal,      0 },
});

// ---------------------------------------------------------------------------------------------
// The records

constexpr int kFirstVersion = 890109;

/// Hands the fields of a variable to a visitor, in the order of the record.
constexpr auto kVisitVariable = [](auto& variable, auto& visitor) {
  //               since          field                  member
  visitor.Strings (kFirstVersion, "name",                ValuesOf(variable.m_strName));
  visitor.Integers(kFirstVersion, "result type",         ValuesOf(variable.m_nResultType));
  visitor.Integers(kFirstVersion, "component",           ValuesOf(variable.m_nComponent));
  visitor.Doubles (kFirstVersion, "coefficient",         ValuesOf(variable.m_dCoefficient));
};

/// Hands the fields of a plot to a visitor, in the order of the record.
constexpr auto kVisitPlot = [](auto& plot, auto& visitor) {
  //               since          field                  member
  visitor.Strings (kFirstVersion, "equation",            ValuesOf(plot.m_strEquation));
  visitor.Integers(kFirstVersion, "coefficients flag",   ValuesOf(plot.m_nCoefficientsFlag));
  visitor.Strings (kFirstVersion, "two strings",         ValuesOf(plot.m_strHost3));
  visitor.Records (kFirstVersion, "number of variables", plot.m_listVariables, kVisitVariable);
};
// clang-format on

CString Placeholder(int index) {
  CString placeholder;
  placeholder.Format(MQ_TEXT("\"Variable%d\""), index);
  return placeholder;
}

}  // namespace
}  // namespace mqp

// ---------------------------------------------------------------------------------------------
// The variable

CmqEquationVariable::CmqEquationVariable() = default;
CmqEquationVariable::CmqEquationVariable(const CmqEquationVariable&) = default;
CmqEquationVariable& CmqEquationVariable::operator=(const CmqEquationVariable&) = default;
CmqEquationVariable::~CmqEquationVariable() = default;

CString CmqEquationVariable::GetComponentName(int analysisType, int /*ignored*/, int meshKind,
                                              int passOn) const {
  return vekPostCommonGetComponentName(analysisType, m_nResultType, passOn, m_nComponent, meshKind,
                                       0);
}

int CmqEquationVariable::WriteToStream(IStream* stream, int /*version*/) const {
  return mqp::WriteRecord(stream, *this, mqp::kVisitVariable);
}

int CmqEquationVariable::ReadFromStream(IStream* stream, int version) {
  return mqp::ReadRecord(stream, version, mqp::kFirstVersion, *this, mqp::kVisitVariable);
}

std::vector<mqp::RecordField> CmqEquationVariable::GetRecordFields() {
  return mqp::ListFields(CmqEquationVariable(), mqp::kVisitVariable);
}

// ---------------------------------------------------------------------------------------------
// What the editor hands over

CmqResultCompsEqnVarsList::CmqResultCompsEqnVarsList() = default;
CmqResultCompsEqnVarsList::CmqResultCompsEqnVarsList(const CmqResultCompsEqnVarsList&) = default;
CmqResultCompsEqnVarsList& CmqResultCompsEqnVarsList::operator=(const CmqResultCompsEqnVarsList&) =
    default;
CmqResultCompsEqnVarsList::~CmqResultCompsEqnVarsList() = default;

int CmqResultCompsEqnVarsList::GetComponentNumberAndResultTypeForVariable(CString name,
                                                                          int& resultType) const {
  resultType = mqp::kUnknown;
  for (const mqp::OfferedNames& offered : mqp::kOfferedNames) {
    if ((this->*offered.names).Find(name) != nullptr) {
      name.Remove(mqp::kQuote);
      resultType = mqp::Code(offered.result);
      return vekPostCommonGetComponentIndexByName(m_nAnalysisType, resultType, m_nLookupOption,
                                                  name, offered.exactName);
    }
  }
  return mqp::kUnknown;
}

// ---------------------------------------------------------------------------------------------
// The plot

CmqEquationPlotParam::CmqEquationPlotParam() = default;
CmqEquationPlotParam::CmqEquationPlotParam(const CmqEquationPlotParam&) = default;
CmqEquationPlotParam::CmqEquationPlotParam(CmqEquationPlotParam&&) noexcept = default;
CmqEquationPlotParam& CmqEquationPlotParam::operator=(const CmqEquationPlotParam&) = default;
CmqEquationPlotParam& CmqEquationPlotParam::operator=(CmqEquationPlotParam&&) noexcept = default;
CmqEquationPlotParam::~CmqEquationPlotParam() = default;

void CmqEquationPlotParam::PrepareEquationParams(const CmqResultCompsEqnVarsList* list) {
  if (list == nullptr) {
    return;
  }
  m_strDisplayEquation = list->m_strEquation;
  m_nCoefficientsFlag = list->m_nCoefficientsFlag;
  m_listVariables.DeleteAll();
  m_strEquation = list->m_strEquation;
  const mqp::StringValues& names = list->m_listVariableNames;
  int index = 0;
  for (POSITION position = names.GetHeadPosition(); position != nullptr; ++index) {
    const CString& name = names.GetNext(position);
    CmqEquationVariable& variable = m_listVariables.Append(std::make_unique<CmqEquationVariable>());
    variable.m_strName = mqp::Placeholder(index);
    variable.m_nComponent =
        list->GetComponentNumberAndResultTypeForVariable(name, variable.m_nResultType);
    if (m_nCoefficientsFlag != 0 && index < list->m_arrCoefficients.GetSize()) {
      variable.m_dCoefficient = list->m_arrCoefficients[index];
    }
    m_strEquation.Replace(name, variable.m_strName);
  }
}

void CmqEquationPlotParam::PrepareEquationToDisplay(int analysisType, int ignored, int meshKind,
                                                    int passOn) {
  m_strDisplayEquation = m_strEquation;
  const std::int64_t maximum = mqp::MaximumDisplayLength(m_strEquation);
  POSITION position = m_listVariables.GetHeadPosition();
  while (position != nullptr && m_strDisplayEquation.GetLength() <= maximum) {
    const CmqEquationVariable& variable = *m_listVariables.GetNext(position);
    const CString name = variable.GetComponentName(analysisType, ignored, meshKind, passOn);
    m_strDisplayEquation.Replace(variable.m_strName, mqp::kQuote + name + mqp::kQuote);
  }
}

int CmqEquationPlotParam::WriteToStream(IStream* stream, int /*version*/) const {
  return mqp::WriteRecord(stream, *this, mqp::kVisitPlot);
}

int CmqEquationPlotParam::ReadFromStream(IStream* stream, int version) {
  return mqp::ReadRecord(stream, version, mqp::kFirstVersion, *this, mqp::kVisitPlot);
}

std::vector<mqp::RecordField> CmqEquationPlotParam::GetRecordFields() {
  return mqp::ListFields(CmqEquationPlotParam(), mqp::kVisitPlot);
}
