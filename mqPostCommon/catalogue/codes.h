/// \file
/// The code spaces of the catalogue. Every code is a plain 32-bit integer where the library is
/// called and in the stream records, so no value here is ever renumbered; the enumerations give
/// the values their names. A code that is not listed is no error anywhere: counts are 0, names
/// empty or a catch-all text, unit types 9999, look-ups -1.
#pragma once

#include <array>
#include <string_view>
#include <type_traits>

// clang-format off

/// The kind of a study.
enum class AnalysisType : int {
  Static         = 0,
  Frequency      = 1,   ///< mode shapes and `ModeFrequency`
  Buckling       = 2,   ///< mode shapes and `BucklingResult`
  Thermal        = 3,
  Stepped        = 5,   ///< time- or step-based, with the full sets of components
  SteppedReduced = 6,   ///< time- or step-based, with reduced sets
  Fatigue        = 7,
  Dynamic        = 8,   ///< dynamic response; its spectral option gives spectral densities
  FlowImport     = 10,  ///< quantities of an imported fluid-flow solution
};

/// The family of a result. The comment gives the layout of the components.
enum class ResultType : int {
  ResultType0       = 0,   ///< one name for every component
  Displacement      = 1,   ///< 0-2 translations, 3 resultant; 4-6 reaction forces, 7 resultant; 8-10 rotations; 11-13 reaction moments, 14 resultant
  Stress            = 2,   ///< 0-5 components, 6-8 principal, 9 equivalent (the default), 10-11 scalars, 12 dimensionless in `Static`, 13 directional, 14-15 scalars; 100 principal-based (`Dynamic`)
  Strain            = 3,   ///< 0-5 components, 6 scalar (the default), 7 energy density, 8 energy, 9-11 principal
  FactorOfSafety    = 4,   ///< stress; 0-4 have names
  Thermal           = 5,   ///< 0 temperature; 1-3 gradient, 4 magnitude; 5-7 heat flux, 8 magnitude; 9 heat power, 10 heat energy
  FlowVelocity      = 6,   ///< 0-2 and their resultant 3 (the default), 4-6 and their resultant 7
  FlowPressure      = 7,   ///< 0-3 pressure, 4 without unit
  FlowFluidProperty = 8,   ///< 0-1 specific energy, 3 viscosity, 4 conductivity, 5 length, 6 stress
  FlowTemperature   = 9,   ///< 0 temperature, 2-4 gradient, 5 its magnitude
  FlowWallLoad      = 10,  ///< 0-2 force, 3 resultant; 4-6 stress
  FlowHeatTransfer  = 11,  ///< 1 density, 2 mass flow, 4 film coefficient, 5 heat flux
  FatigueResult     = 12,  ///< 4 is a life in time units
  GraphStress       = 13,  ///< accepted by the graph definition, which stores it as `Stress`
  ModeFrequency     = 15,
  ResultType18      = 18,  ///< 0-1 forces, 2 a moment
  Velocity          = 19,  ///< 0-2 and their resultant 3; 4-6 angular
  Acceleration      = 20,  ///< as `Velocity`
  BucklingResult    = 21,
  StrainAlt         = 22,  ///< counts and is laid out as `Strain`
  FatigueGraph      = 52,  ///< report graphs of a `Fatigue` study
  ResultType53      = 53,  ///< 0-4 have names, 4 is a length
  ResultType54      = 54,  ///< 0-2 force, 3-5 moment
  ResultType55      = 55,  ///< 0-3 forces
  ResultType56      = 56,
  StressAlt         = 57,  ///< counts as `Stress` in a `Static` study
  BeamStress        = 59,  ///< stresses of beam elements
  ResultType62      = 62,
  ResultType63      = 63,  ///< report graphs
  ResultType65      = 65,
  ResultType66      = 66,
  ResultType69      = 69,
  ResultType70      = 70,
  MassProperties    = 71,  ///< 0 mass, 1 volume, 2 area, 3-5 lengths
};

/// The kind of mesh. Value 1 is never tested by value: it counts as rotational where only zero
/// and non-zero differ, and as `SolidMesh` everywhere else.
enum class MeshKind : int {
  SolidMesh = 0,
  ShellMesh = 2,
  MixedMesh = 3,  ///< rotational when `MeshFlags` say so
  BeamMesh  = 4,
};

/// Bits that say a `MixedMesh` holds elements with rotational freedom; other bits are ignored.
enum class MeshFlags : int {
  RotationalElements      = 2,
  OtherRotationalElements = 4,
};

/// What a component is, as `vekPostCommonGetComponentDataType` answers.
enum class ComponentDataType : int {
  ScalarComponent         = 0,  ///< not directional; also the answer for unknown codes
  DirectionalComponent    = 1,  ///< along an axis, or a resultant of three that are
  PrincipalBasedComponent = 2,  ///< derived from the three principal stresses
};

/// The unit systems; every other code counts as `Metric` where a default unit is chosen.
enum class UnitSystem : int {
  SI      = 0,
  English = 1,  ///< "English (IPS)"
  Metric  = 2,  ///< "Metric (G)"
};

/// The physical quantity of a component. 25, 26, 32 and 33 are reserved: no unit names exist for
/// them, and 32 and 33 are never produced.
enum class UnitType : int {
  Length                              = 0,
  UnitSystemName                      = 1,
  Force                               = 2,
  Moment                              = 3,
  Stress                              = 4,
  Temperature                         = 5,
  TemperatureGradient                 = 6,
  HeatFlux                            = 7,
  Frequency                           = 8,
  Angle                               = 9,
  Density                             = 10,
  SpecificEnergy                      = 11,
  DynamicViscosity                    = 12,
  MassFlowRate                        = 13,
  Velocity                            = 14,
  VolumeFlowRate                      = 15,
  HeatTransferCoefficient             = 16,
  ThermalConductivity                 = 17,
  Acceleration                        = 18,
  Energy                              = 19,
  EnergyDensity                       = 20,
  StressSpectralDensity               = 21,
  DisplacementSpectralDensity         = 22,
  VelocitySpectralDensity             = 23,
  AccelerationSpectralDensity         = 24,
  MomentSpectralDensity               = 25,  // reserved
  ForceSpectralDensity                = 26,  // reserved
  AngularVelocity                     = 27,
  AngularVelocitySpectralDensity      = 28,
  AngularAcceleration                 = 29,
  AngularAccelerationSpectralDensity  = 30,
  Mass                                = 31,
  Reserved32                          = 32,
  Reserved33                          = 33,
  LengthSmallestFirst                 = 34,
  HeatPower                           = 35,
  HeatEnergy                          = 36,
  Time                                = 37,
  MassOfProperties                    = 38,
  Volume                              = 39,
  Area                                = 40,
  None                                = 9999,  ///< dimensionless, or unknown
};

namespace mqp {

/// The integer that the exported interface and the records use for a named code.
template <class Enum>
  requires std::is_enum_v<Enum>
constexpr int Code(Enum named) noexcept {
  return static_cast<int>(named);
}

/// A code beside the name that it has in this header.
template <class Enum>
struct CodeName {
  Enum code;
  std::string_view name;
};

inline constexpr auto kAnalysisTypeNames = std::to_array<CodeName<AnalysisType>>({
    {AnalysisType::Static,         "Static"},
    {AnalysisType::Frequency,      "Frequency"},
    {AnalysisType::Buckling,       "Buckling"},
    {AnalysisType::Thermal,        "Thermal"},
    {AnalysisType::Stepped,        "Stepped"},
    {AnalysisType::SteppedReduced, "SteppedReduced"},
    {AnalysisType::Fatigue,        "Fatigue"},
    {AnalysisType::Dynamic,        "Dynamic"},
    {AnalysisType::FlowImport,     "FlowImport"},
});

inline constexpr auto kResultTypeNames = std::to_array<CodeName<ResultType>>({
    {ResultType::ResultType0,       "ResultType0"},
    {ResultType::Displacement,      "Displacement"},
    {ResultType::Stress,            "Stress"},
    {ResultType::Strain,            "Strain"},
    {ResultType::FactorOfSafety,    "FactorOfSafety"},
    {ResultType::Thermal,           "Thermal"},
    {ResultType::FlowVelocity,      "FlowVelocity"},
    {ResultType::FlowPressure,      "FlowPressure"},
    {ResultType::FlowFluidProperty, "FlowFluidProperty"},
    {ResultType::FlowTemperature,   "FlowTemperature"},
    {ResultType::FlowWallLoad,      "FlowWallLoad"},
    {ResultType::FlowHeatTransfer,  "FlowHeatTransfer"},
    {ResultType::FatigueResult,     "FatigueResult"},
    {ResultType::GraphStress,       "GraphStress"},
    {ResultType::ModeFrequency,     "ModeFrequency"},
    {ResultType::ResultType18,      "ResultType18"},
    {ResultType::Velocity,          "Velocity"},
    {ResultType::Acceleration,      "Acceleration"},
    {ResultType::BucklingResult,    "BucklingResult"},
    {ResultType::StrainAlt,         "StrainAlt"},
    {ResultType::FatigueGraph,      "FatigueGraph"},
    {ResultType::ResultType53,      "ResultType53"},
    {ResultType::ResultType54,      "ResultType54"},
    {ResultType::ResultType55,      "ResultType55"},
    {ResultType::ResultType56,      "ResultType56"},
    {ResultType::StressAlt,         "StressAlt"},
    {ResultType::BeamStress,        "BeamStress"},
    {ResultType::ResultType62,      "ResultType62"},
    {ResultType::ResultType63,      "ResultType63"},
    {ResultType::ResultType65,      "ResultType65"},
    {ResultType::ResultType66,      "ResultType66"},
    {ResultType::ResultType69,      "ResultType69"},
    {ResultType::ResultType70,      "ResultType70"},
    {ResultType::MassProperties,    "MassProperties"},
});

inline constexpr auto kUnitTypeNames = std::to_array<CodeName<UnitType>>({
    {UnitType::Length,                             "Length"},
    {UnitType::UnitSystemName,                     "UnitSystemName"},
    {UnitType::Force,                              "Force"},
    {UnitType::Moment,                             "Moment"},
    {UnitType::Stress,                             "Stress"},
    {UnitType::Temperature,                        "Temperature"},
    {UnitType::TemperatureGradient,                "TemperatureGradient"},
    {UnitType::HeatFlux,                           "HeatFlux"},
    {UnitType::Frequency,                          "Frequency"},
    {UnitType::Angle,                              "Angle"},
    {UnitType::Density,                            "Density"},
    {UnitType::SpecificEnergy,                     "SpecificEnergy"},
    {UnitType::DynamicViscosity,                   "DynamicViscosity"},
    {UnitType::MassFlowRate,                       "MassFlowRate"},
    {UnitType::Velocity,                           "Velocity"},
    {UnitType::VolumeFlowRate,                     "VolumeFlowRate"},
    {UnitType::HeatTransferCoefficient,            "HeatTransferCoefficient"},
    {UnitType::ThermalConductivity,                "ThermalConductivity"},
    {UnitType::Acceleration,                       "Acceleration"},
    {UnitType::Energy,                             "Energy"},
    {UnitType::EnergyDensity,                      "EnergyDensity"},
    {UnitType::StressSpectralDensity,              "StressSpectralDensity"},
    {UnitType::DisplacementSpectralDensity,        "DisplacementSpectralDensity"},
    {UnitType::VelocitySpectralDensity,            "VelocitySpectralDensity"},
    {UnitType::AccelerationSpectralDensity,        "AccelerationSpectralDensity"},
    {UnitType::MomentSpectralDensity,              "MomentSpectralDensity"},
    {UnitType::ForceSpectralDensity,               "ForceSpectralDensity"},
    {UnitType::AngularVelocity,                    "AngularVelocity"},
    {UnitType::AngularVelocitySpectralDensity,     "AngularVelocitySpectralDensity"},
    {UnitType::AngularAcceleration,                "AngularAcceleration"},
    {UnitType::AngularAccelerationSpectralDensity, "AngularAccelerationSpectralDensity"},
    {UnitType::Mass,                               "Mass"},
    {UnitType::Reserved32,                         "Reserved32"},
    {UnitType::Reserved33,                         "Reserved33"},
    {UnitType::LengthSmallestFirst,                "LengthSmallestFirst"},
    {UnitType::HeatPower,                          "HeatPower"},
    {UnitType::HeatEnergy,                         "HeatEnergy"},
    {UnitType::Time,                               "Time"},
    {UnitType::MassOfProperties,                   "MassOfProperties"},
    {UnitType::Volume,                             "Volume"},
    {UnitType::Area,                               "Area"},
    {UnitType::None,                               "None"},
});

// clang-format on

}  // namespace mqp
