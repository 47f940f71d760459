/// \file
/// The unit lists for the choosers of the add-in: the unit names of one quantity in one text,
/// joined by "|". The catalogue functions do not read them, and where a list differs from the
/// names of `vekPostCommonGetUnitName` each keeps its own text.
#pragma once

#include <array>

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/text.h>

namespace mqp {

/// The place of each list in `g_UnitLists`.
enum class UnitListId : int {
  UnitSystem,
  Force,
  ForceSpectralDensity,
  Moment,
  Impulse,
  AngularImpulse,
  MomentSpectralDensity,
  Stress,
  ForcePerLength,
  StressSpectralDensityTruncated,  ///< its third name ends in "/H"
  StressSpectralDensity,
  Temperature,
  TemperatureGradient,
  HeatPower,
  HeatEnergy,
  HeatFlux,
  Power,
  RadiationCoefficient,
  AngularAcceleration,
  AngularAccelerationSpectralDensity,
  AngularVelocity,
  AngularVelocitySpectralDensity,
  Length,
  LengthSmallestFirst,
  DisplacementSpectralDensity,
  ThermalResistance,
  DistributedThermalResistance,
  Angle,
  HeatTransferCoefficient,
  ThermalConductivity,
  SpecificEnergy,
  DynamicViscosity,
  VolumeFlowRate,
  MassFlowRate,
  Pressure,
  BaseAcceleration,
  BaseAccelerationSpectralDensity,
  Velocity,
  Acceleration,
  MassMomentOfInertia,
  Mass,
  Density,
  SpecificHeat,
  Area,
  Volume,
  Time,
  ThermalExpansion,
  Stiffness,
  StiffnessPerArea,
  StiffnessPerLength,
  RotationalStiffness,
  Energy,
  EnergyDensity,
  Damping,
};

/// One unit list. The texts lie in the record itself, zero-terminated.
struct UnitList {
  mqChar m_strName[48];   ///< the name of its `UnitListId`
  mqChar m_strText[112];  ///< the unit names, joined by "|"; a name may contain blanks
};

inline constexpr int kUnitListTotal = 54;

}  // namespace mqp

/// Every unit list, in order of `UnitListId`. Constant, ready before any code runs.
extern MQPOSTCOMMON_API const std::array<mqp::UnitList, mqp::kUnitListTotal> g_UnitLists;
