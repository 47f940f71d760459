#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>

namespace mqp {
namespace {

using NamedCode = std::pair<int, std::string_view>;

template <class Table>
std::vector<NamedCode> SortedCodes(const Table& names) {
  std::vector<NamedCode> codes;
  for (const auto& entry : names) {
    codes.emplace_back(Code(entry.code), entry.name);
  }
  std::ranges::sort(codes);
  return codes;
}

struct CodeRow {
  int code;
  int expected;
  const char* name;
};

void ExpectCodes(std::span<const CodeRow> rows) {
  for (const CodeRow& row : rows) {
    EXPECT_EQ(row.code, row.expected) << row.name;
  }
}

std::vector<NamedCode> ExpectedNames(std::span<const CodeRow> rows) {
  std::vector<NamedCode> codes;
  for (const CodeRow& row : rows) {
    codes.emplace_back(row.expected, row.name);
  }
  return codes;
}

TEST(Codes, AreIntegersOf32BitsAsTheRecordsStoreThem) {
  EXPECT_EQ(sizeof(int), 4U);
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<AnalysisType>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ResultType>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<MeshKind>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<MeshFlags>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ComponentDataType>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<UnitSystem>, int>));
  EXPECT_TRUE((std::is_same_v<std::underlying_type_t<UnitType>, int>));
}

// clang-format off

constexpr CodeRow kStudies[] = {
    {Code(AnalysisType::Static),          0, "Static"},
    {Code(AnalysisType::Frequency),       1, "Frequency"},
    {Code(AnalysisType::Buckling),        2, "Buckling"},
    {Code(AnalysisType::Thermal),         3, "Thermal"},
    {Code(AnalysisType::Stepped),         5, "Stepped"},
    {Code(AnalysisType::SteppedReduced),  6, "SteppedReduced"},
    {Code(AnalysisType::Fatigue),         7, "Fatigue"},
    {Code(AnalysisType::Dynamic),         8, "Dynamic"},
    {Code(AnalysisType::FlowImport),     10, "FlowImport"},
};

constexpr CodeRow kResults[] = {
    {Code(ResultType::ResultType0),        0, "ResultType0"},
    {Code(ResultType::Displacement),       1, "Displacement"},
    {Code(ResultType::Stress),             2, "Stress"},
    {Code(ResultType::Strain),             3, "Strain"},
    {Code(ResultType::FactorOfSafety),     4, "FactorOfSafety"},
    {Code(ResultType::Thermal),            5, "Thermal"},
    {Code(ResultType::FlowVelocity),       6, "FlowVelocity"},
    {Code(ResultType::FlowPressure),       7, "FlowPressure"},
    {Code(ResultType::FlowFluidProperty),  8, "FlowFluidProperty"},
    {Code(ResultType::FlowTemperature),    9, "FlowTemperature"},
    {Code(ResultType::FlowWallLoad),      10, "FlowWallLoad"},
    {Code(ResultType::FlowHeatTransfer),  11, "FlowHeatTransfer"},
    {Code(ResultType::FatigueResult),     12, "FatigueResult"},
    {Code(ResultType::GraphStress),       13, "GraphStress"},
    {Code(ResultType::ModeFrequency),     15, "ModeFrequency"},
    {Code(ResultType::ResultType18),      18, "ResultType18"},
    {Code(ResultType::Velocity),          19, "Velocity"},
    {Code(ResultType::Acceleration),      20, "Acceleration"},
    {Code(ResultType::BucklingResult),    21, "BucklingResult"},
    {Code(ResultType::StrainAlt),         22, "StrainAlt"},
    {Code(ResultType::FatigueGraph),      52, "FatigueGraph"},
    {Code(ResultType::ResultType53),      53, "ResultType53"},
    {Code(ResultType::ResultType54),      54, "ResultType54"},
    {Code(ResultType::ResultType55),      55, "ResultType55"},
    {Code(ResultType::ResultType56),      56, "ResultType56"},
    {Code(ResultType::StressAlt),         57, "StressAlt"},
    {Code(ResultType::BeamStress),        59, "BeamStress"},
    {Code(ResultType::ResultType62),      62, "ResultType62"},
    {Code(ResultType::ResultType63),      63, "ResultType63"},
    {Code(ResultType::ResultType65),      65, "ResultType65"},
    {Code(ResultType::ResultType66),      66, "ResultType66"},
    {Code(ResultType::ResultType69),      69, "ResultType69"},
    {Code(ResultType::ResultType70),      70, "ResultType70"},
    {Code(ResultType::MassProperties),    71, "MassProperties"},
};

constexpr CodeRow kUnitTypes[] = {
    {Code(UnitType::Length),                              0, "Length"},
    {Code(UnitType::UnitSystemName),                      1, "UnitSystemName"},
    {Code(UnitType::Force),                               2, "Force"},
    {Code(UnitType::Moment),                              3, "Moment"},
    {Code(UnitType::Stress),                              4, "Stress"},
    {Code(UnitType::Temperature),                         5, "Temperature"},
    {Code(UnitType::TemperatureGradient),                 6, "TemperatureGradient"},
    {Code(UnitType::HeatFlux),                            7, "HeatFlux"},
    {Code(UnitType::Frequency),                           8, "Frequency"},
    {Code(UnitType::Angle),                               9, "Angle"},
    {Code(UnitType::Density),                            10, "Density"},
    {Code(UnitType::SpecificEnergy),                     11, "SpecificEnergy"},
    {Code(UnitType::DynamicViscosity),                   12, "DynamicViscosity"},
    {Code(UnitType::MassFlowRate),                       13, "MassFlowRate"},
    {Code(UnitType::Velocity),                           14, "Velocity"},
    {Code(UnitType::VolumeFlowRate),                     15, "VolumeFlowRate"},
    {Code(UnitType::HeatTransferCoefficient),            16, "HeatTransferCoefficient"},
    {Code(UnitType::ThermalConductivity),                17, "ThermalConductivity"},
    {Code(UnitType::Acceleration),                       18, "Acceleration"},
    {Code(UnitType::Energy),                             19, "Energy"},
    {Code(UnitType::EnergyDensity),                      20, "EnergyDensity"},
    {Code(UnitType::StressSpectralDensity),              21, "StressSpectralDensity"},
    {Code(UnitType::DisplacementSpectralDensity),        22, "DisplacementSpectralDensity"},
    {Code(UnitType::VelocitySpectralDensity),            23, "VelocitySpectralDensity"},
    {Code(UnitType::AccelerationSpectralDensity),        24, "AccelerationSpectralDensity"},
    {Code(UnitType::MomentSpectralDensity),              25, "MomentSpectralDensity"},
    {Code(UnitType::ForceSpectralDensity),               26, "ForceSpectralDensity"},
    {Code(UnitType::AngularVelocity),                    27, "AngularVelocity"},
    {Code(UnitType::AngularVelocitySpectralDensity),     28, "AngularVelocitySpectralDensity"},
    {Code(UnitType::AngularAcceleration),                29, "AngularAcceleration"},
    {Code(UnitType::AngularAccelerationSpectralDensity), 30, "AngularAccelerationSpectralDensity"},
    {Code(UnitType::Mass),                               31, "Mass"},
    {Code(UnitType::Reserved32),                         32, "Reserved32"},
    {Code(UnitType::Reserved33),                         33, "Reserved33"},
    {Code(UnitType::LengthSmallestFirst),                34, "LengthSmallestFirst"},
    {Code(UnitType::HeatPower),                          35, "HeatPower"},
    {Code(UnitType::HeatEnergy),                         36, "HeatEnergy"},
    {Code(UnitType::Time),                               37, "Time"},
    {Code(UnitType::MassOfProperties),                   38, "MassOfProperties"},
    {Code(UnitType::Volume),                             39, "Volume"},
    {Code(UnitType::Area),                               40, "Area"},
    {Code(UnitType::None),                             9999, "None"},
};

TEST(Codes, OfStudiesAreNeverRenumbered) { ExpectCodes(kStudies); }

TEST(Codes, OfResultsAreNeverRenumbered) { ExpectCodes(kResults); }

TEST(Codes, OfUnitTypesAreNeverRenumbered) { ExpectCodes(kUnitTypes); }

TEST(Codes, OfMeshesAndTheirFlagsLeaveOutOne) {
  constexpr CodeRow kRows[] = {
      {Code(MeshKind::SolidMesh),                 0, "SolidMesh"},
      {Code(MeshKind::ShellMesh),                 2, "ShellMesh"},
      {Code(MeshKind::MixedMesh),                 3, "MixedMesh"},
      {Code(MeshKind::BeamMesh),                  4, "BeamMesh"},
      {Code(MeshFlags::RotationalElements),       2, "RotationalElements"},
      {Code(MeshFlags::OtherRotationalElements),  4, "OtherRotationalElements"},
  };
  ExpectCodes(kRows);
}

TEST(Codes, OfComponentDataTypesAndUnitSystemsCountFromZero) {
  constexpr CodeRow kRows[] = {
      {Code(ComponentDataType::ScalarComponent),         0, "ScalarComponent"},
      {Code(ComponentDataType::DirectionalComponent),    1, "DirectionalComponent"},
      {Code(ComponentDataType::PrincipalBasedComponent), 2, "PrincipalBasedComponent"},
      {Code(UnitSystem::SI),                             0, "SI"},
      {Code(UnitSystem::English),                        1, "English"},
      {Code(UnitSystem::Metric),                         2, "Metric"},
  };
  ExpectCodes(kRows);
}

// clang-format on

TEST(Codes, HaveOneNameForEachStudy) {
  EXPECT_EQ(SortedCodes(kAnalysisTypeNames), ExpectedNames(kStudies));
}

TEST(Codes, HaveOneNameForEachResult) {
  EXPECT_EQ(SortedCodes(kResultTypeNames), ExpectedNames(kResults));
}

TEST(Codes, HaveOneNameForEachUnitType) {
  EXPECT_EQ(SortedCodes(kUnitTypeNames), ExpectedNames(kUnitTypes));
}

}  // namespace
}  // namespace mqp
