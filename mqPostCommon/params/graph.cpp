#include <iterator>
#include <map>
#include <utility>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/name_ids.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/catalogue/texts.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/stream/record.h>

namespace mqp {
namespace {

// ---------------------------------------------------------------------------------------------
// Codes of graphs

// Quantities of an axis that are no results.
constexpr int kStepQuantity = 14;
constexpr int kOtherQuantity = 16;

// Kinds of graphs. Two of them also occur as the stored result type.
constexpr int kResponseGraph = 13;
constexpr int kFatigueDamageMatrix = 52;
constexpr int kTransientSensorGraph = 61;
constexpr int kFrequencyResponseGraph = 63;

constexpr int kNoSensor = -1;

// Dynamic options.
constexpr int kUnitFlagOption = 1;  // motions are named by the Y unit flag
constexpr int kSpectralOption = 2;  // as for the units

constexpr bool IsMotion(int quantityType) noexcept {
  return quantityType == Code(ResultType::Displacement) ||
         quantityType == Code(ResultType::Velocity) ||
         quantityType == Code(ResultType::Acceleration);
}

CString InBrackets(const CString& text) {
  return MQ_TEXT(" (") + text + MQ_TEXT(")");
}

// ---------------------------------------------------------------------------------------------
// The record

constexpr int kFirstVersion = 800018;
constexpr int kYUnitFlagVersion = 820022;
constexpr int kRenumberedStressVersion = 890002;
constexpr int kFirstRenumberedStress = 11;

/// Hands the fields of a graph to a visitor, in the order of the record.
constexpr auto kVisitFields = [](auto& graph, auto& visitor) {
  // clang-format off
  //               since   field                                               member
  visitor.Integers(800018, "analysis type",                                    ValuesOf(graph.m_nAnalysisType));
  visitor.Integers(800018, "result type",                                      ValuesOf(graph.m_nResultType));
  visitor.Integers(800018, "integer after the result type",                    ValuesOf(graph.m_nHost3));
  visitor.Integers(800018, "result option",                                    ValuesOf(graph.m_nResultOption));
  visitor.Integers(800018, "five integers after the result option",            ValuesOf(graph.m_nHost5));
  visitor.Integers(800018, "five integers after the result option",            ValuesOf(graph.m_nHost6));
  visitor.Integers(800018, "five integers after the result option",            ValuesOf(graph.m_nHost7));
  visitor.Integers(800018, "X axis quantity type",                             ValuesOf(graph.m_XAxis.m_nQuantityType));
  visitor.Integers(800018, "X axis component",                                 ValuesOf(graph.m_XAxis.m_nComponent));
  visitor.Integers(800018, "X axis unit",                                      ValuesOf(graph.m_XAxis.m_nUnit));
  visitor.Integers(870002, "X axis sensor",                                    ValuesOf(graph.m_XAxis.m_nSensor));
  visitor.Integers(800018, "Y axis quantity type",                             ValuesOf(graph.m_YAxis.m_nQuantityType));
  visitor.Integers(800018, "Y axis component",                                 ValuesOf(graph.m_YAxis.m_nComponent));
  visitor.Integers(800018, "Y axis unit",                                      ValuesOf(graph.m_YAxis.m_nUnit));
  visitor.Integers(870002, "Y axis transient sensor",                          ValuesOf(graph.m_YAxis.m_nSensor));
  visitor.Strings (800018, "three strings",                                    ValuesOf(graph.m_strHost18));
  visitor.Integers(800018, "six integers",                                     ValuesOf(graph.m_nHost16));
  visitor.Integers(800018, "eighteen integers",                                ValuesOf(graph.m_nHost17));
  visitor.Integers(800026, "integer before the fourth string",                 ValuesOf(graph.m_nHost19));
  visitor.Strings (800026, "fourth string",                                    ValuesOf(graph.m_strHost20));
  visitor.Doubles (800026, "view matrix",                                      ValuesOf(graph.m_ViewMatrix.m_dRows));
  visitor.Integers(800062, "three integers after the view matrix",             ValuesOf(graph.m_nHost22));
  visitor.Integers(820022, "integer before the two doubles",                   ValuesOf(graph.m_nHost25));
  visitor.Doubles (820022, "two doubles",                                      ValuesOf(graph.m_dHost26));
  visitor.Integers(820022, "integer after the two doubles",                    ValuesOf(graph.m_nHost27));
  visitor.Integers(820022, "Y unit flag",                                      ValuesOf(graph.m_nYUnitFlag));
  visitor.Integers(840028, "integer after the Y unit flag",                    ValuesOf(graph.m_nHost30));
  visitor.Integers(890005, "frequency response flag",                          ValuesOf(graph.m_nFrequencyResponseFlag));
  visitor.Integers(890005, "frequency response mode",                          ValuesOf(graph.m_nFrequencyResponseMode));
  visitor.Integers(890005, "four integers after the frequency response mode",  ValuesOf(graph.m_nHost34));
  visitor.Doubles (890005, "double after the four integers",                   ValuesOf(graph.m_dHost35));
  visitor.Integers(890110, "last integer",                                     ValuesOf(graph.m_nHost39));
  // clang-format on
};

/// Whether what the Y axis shows always has a unit: reaction forces and moments, and in a Dynamic
/// study the resultants.
bool NeedsYUnit(const CmqPostGraphParam& graph) noexcept {
  const CmqGraphAxis& axis = graph.m_YAxis;
  if (!IsMotion(graph.m_nResultType) || axis.m_nQuantityType != graph.m_nResultType) {
    return false;
  }
  const int component = axis.m_nComponent;
  const bool reaction =
      graph.m_nResultType == Code(ResultType::Displacement) &&
      ((component >= 4 && component <= 7) || (component >= 11 && component <= 14));
  return reaction || (graph.m_nAnalysisType == Code(AnalysisType::Dynamic) && component == 3);
}

/// A stress component was inserted at 11: the ones behind it moved up.
void RenumberStress(CmqGraphAxis& axis) noexcept {
  if (axis.m_nQuantityType == Code(ResultType::Stress) &&
      axis.m_nComponent >= kFirstRenumberedStress) {
    // The largest integer, which no component has, wraps around.
    axis.m_nComponent = static_cast<int>(static_cast<unsigned>(axis.m_nComponent) + 1U);
  }
}

// ---------------------------------------------------------------------------------------------
// Names and titles

/// The name of what an axis shows; empty when it shows nothing that has a name.
CString NameAxis(const CmqPostGraphParam& graph, const CmqGraphAxis& axis, int nameOption) {
  const int quantityType = axis.m_nQuantityType;
  const bool dynamic = graph.m_nAnalysisType == Code(AnalysisType::Dynamic);
  if (quantityType == kStepQuantity) {
    return LoadText(dynamic && graph.m_nDynamicOption != 0 ? 50004 : 51724);
  }
  if (quantityType == kOtherQuantity) {
    return LoadText(50578);
  }
  if (!IsMotion(quantityType) && quantityType != Code(ResultType::Stress)) {
    return {};
  }
  CString name = vekPostCommonGetComponentNameBar(graph.m_nAnalysisType, quantityType, 1,
                                                  axis.m_nComponent, nameOption, 0);
  if (IsMotion(quantityType) && dynamic && graph.m_nDynamicOption == kUnitFlagOption) {
    name += InBrackets(LoadText(graph.m_nYUnitFlag != 0 ? 53044 : 54441));
  }
  return name;
}

CString NameFrequencyResponse(int mode) {
  constexpr UINT kModeNames[] = {54668, 55124, 55125};
  const auto place = static_cast<unsigned>(mode);
  return place < std::size(kModeNames) ? LoadText(55123) + LoadText(kModeNames[place]) : CString();
}

int YUnitType(const CmqPostGraphParam& graph) noexcept {
  return vekPostCommonGetUnitType(graph.m_nAnalysisType, graph.m_nResultType,
                                  graph.m_YAxis.m_nComponent, graph.m_nDynamicOption, 1);
}

CString NameYUnit(const CmqPostGraphParam& graph) {
  return vekPostCommonGetUnitName(YUnitType(graph), graph.m_YAxis.m_nUnit);
}

}  // namespace
}  // namespace mqp

CmqPostGraphParam::CmqPostGraphParam()
    : CmqPostGraphParam(mqp::Code(AnalysisType::Stepped), mqp::Code(ResultType::Stress), 0, 0, -1) {
}

CmqPostGraphParam::CmqPostGraphParam(int analysisType, int resultType, int resultOption,
                                     int meshKind, int dynamicOption) {
  ConstructInit(analysisType, resultType, resultOption, meshKind, dynamicOption);
}

CmqPostGraphParam::CmqPostGraphParam(MemberDefaults) {}

CmqPostGraphParam::CmqPostGraphParam(const CmqPostGraphParam&) = default;
CmqPostGraphParam& CmqPostGraphParam::operator=(const CmqPostGraphParam&) = default;
CmqPostGraphParam::~CmqPostGraphParam() = default;

void CmqPostGraphParam::ConstructInit(int analysisType, int resultType, int resultOption,
                                      int meshKind, int dynamicOption) {
  CString text = std::move(m_strHost36);
  std::map<int, CString> texts = std::move(m_mapHost38);
  *this = CmqPostGraphParam(MemberDefaults{});
  m_strHost36 = std::move(text);
  m_mapHost38 = std::move(texts);

  const int storedType =
      resultType == mqp::Code(ResultType::GraphStress) ? mqp::Code(ResultType::Stress) : resultType;
  m_nAnalysisType = analysisType;
  m_nResultType = storedType;
  m_nResultOption = resultOption;
  m_YAxis.m_nQuantityType = storedType == mqp::Code(ResultType::Stress)
                                ? mqp::Code(ResultType::Stress)
                                : mqp::Code(ResultType::Displacement);
  m_YAxis.m_nComponent = vekPostCommonGetComponentDefault(analysisType, storedType, resultOption,
                                                          meshKind, dynamicOption);
}

CString CmqPostGraphParam::GetDefaultPlotName(int nameOption) const {
  using namespace mqp;
  if (m_nResultType == kFrequencyResponseGraph) {
    return NameFrequencyResponse(m_nFrequencyResponseMode);
  }
  CString name = NameAxis(*this, m_XAxis, nameOption);
  const CString yName = NameAxis(*this, m_YAxis, nameOption);
  if (!name.IsEmpty() && !yName.IsEmpty()) {
    name += MQ_TEXT("-");
  }
  name += yName;
  if (m_nAnalysisType == Code(AnalysisType::Dynamic) && m_nDynamicOption == kSpectralOption &&
      m_XAxis.m_nQuantityType == kStepQuantity) {
    name += MQ_TEXT("-") + LoadText(54477);
  }
  return name;
}

CString CmqPostGraphParam::GetYTitle(int nameOption, int flag) const {
  using namespace mqp;
  // The quantity of type 16 has no title of its own: it gets that of the stored result below.
  const bool dynamic = m_nAnalysisType == Code(AnalysisType::Dynamic);
  if (dynamic && m_nDynamicOption == kUnitFlagOption && IsMotion(m_YAxis.m_nQuantityType)) {
    const CString title = vekPostCommonGetComponentNameShort(m_nAnalysisType, m_nResultType,
                                                             m_nResultOption, m_YAxis.m_nComponent);
    return m_nYUnitFlag != 0 ? title + MQ_TEXT("-") + LoadText(53044) + InBrackets(NameYUnit(*this))
                             : title + MQ_TEXT("-") + LoadText(54441) + InBrackets(LoadText(54684));
  }
  if (dynamic && m_YAxis.m_nQuantityType == Code(ResultType::Stress) &&
      (nameOption == Code(MeshKind::BeamMesh) ||
       (nameOption == Code(MeshKind::MixedMesh) && flag != 0))) {
    return LoadText(kBeamStressNames.At(m_YAxis.m_nComponent)) + InBrackets(NameYUnit(*this));
  }
  CString title = vekPostCommonGetComponentNameBar(m_nAnalysisType, m_nResultType, m_nResultOption,
                                                   m_YAxis.m_nComponent, nameOption, 0);
  if (dynamic && m_nDynamicOption == kSpectralOption && m_XAxis.m_nQuantityType == kStepQuantity) {
    title += MQ_TEXT(" ") + LoadText(54477);
  }
  return title + InBrackets(NameYUnit(*this));
}

CString CmqPostGraphParam::GetFolderName() const {
  if (IsFatigueDamageMatrix() != 0) {
    return MQ_TEXT("Damage Matrix Charts");
  }
  switch (m_nResultType) {
    case mqp::kTransientSensorGraph: return MQ_TEXT("Graph Transient Sensors");
    case mqp::kFrequencyResponseGraph: return MQ_TEXT("Frequency Response Graph");
    default: return MQ_TEXT("Response");
  }
}

int CmqPostGraphParam::GetResultGraphType() const noexcept {
  if (IsFatigueDamageMatrix() != 0) {
    return mqp::kFatigueDamageMatrix;
  }
  if (IsTransientGraphMatrix() != 0) {
    return mqp::kTransientSensorGraph;
  }
  return m_nFrequencyResponseFlag == 1 ? mqp::kFrequencyResponseGraph : mqp::kResponseGraph;
}

int CmqPostGraphParam::IsFatigueDamageMatrix() const noexcept {
  return m_nAnalysisType == mqp::Code(AnalysisType::Fatigue) &&
                 m_nResultType == mqp::Code(ResultType::FatigueGraph)
             ? 1
             : 0;
}

int CmqPostGraphParam::IsTransientGraphMatrix() const noexcept {
  return m_YAxis.m_nSensor != mqp::kNoSensor ? 1 : 0;
}

void CmqPostGraphParam::SetDefaultOptionByPreferences(const preference* preferences) noexcept {
  if (preferences == nullptr) {
    return;
  }
  switch (static_cast<UnitType>(mqp::YUnitType(*this))) {
    case UnitType::UnitSystemName:  // takes the stress unit too
    case UnitType::Stress:
    case UnitType::StressSpectralDensity: m_YAxis.m_nUnit = preferences->m_nStressUnit; break;
    case UnitType::Length:
    case UnitType::DisplacementSpectralDensity: m_YAxis.m_nUnit = preferences->m_nLengthUnit; break;
    case UnitType::Temperature: m_YAxis.m_nUnit = preferences->m_nTemperatureUnit; break;
    default: break;
  }
}

int CmqPostGraphParam::WriteToStream(IStream* stream) const {
  return mqp::WriteRecord(stream, *this, mqp::kVisitFields);
}

int CmqPostGraphParam::ReadFromStream(IStream* stream, int version) {
  if (mqp::ReadRecord(stream, version, mqp::kFirstVersion, *this, mqp::kVisitFields) == 0) {
    return 0;
  }
  if (version >= mqp::kYUnitFlagVersion && m_nYUnitFlag == 0 && mqp::NeedsYUnit(*this)) {
    m_nYUnitFlag = 1;
  }
  if (version < mqp::kRenumberedStressVersion) {
    mqp::RenumberStress(m_XAxis);
    mqp::RenumberStress(m_YAxis);
  }
  return 1;
}

std::vector<mqp::RecordField> CmqPostGraphParam::GetRecordFields() {
  return mqp::ListFields(CmqPostGraphParam(), mqp::kVisitFields);
}
