#include <algorithm>
#include <array>
#include <cstddef>

#include <mqPostCommon/catalogue/table.h>
#include <mqPostCommon/catalogue/unit_lists.h>

namespace mqp {
namespace {

struct UnitListRow {
  UnitListId id;
  mqTextView name;
  mqTextView text;
};

// clang-format off
constexpr auto kRows = std::to_array<UnitListRow>({
    { UnitListId::UnitSystem,                         MQ_TEXT("UnitSystem"),                         MQ_TEXT("SI|English (IPS)|Metric (G)") },
    { UnitListId::Force,                              MQ_TEXT("Force"),                              MQ_TEXT("N|lbf|kgf") },
    { UnitListId::ForceSpectralDensity,               MQ_TEXT("ForceSpectralDensity"),               MQ_TEXT("N^2/Hz|lb^2/Hz|kgf^2/Hz") },
    { UnitListId::Moment,                             MQ_TEXT("Moment"),                             MQ_TEXT("N.m|lbf.in|kgf.cm") },
    { UnitListId::Impulse,                            MQ_TEXT("Impulse"),                            MQ_TEXT("N.s|dyne.s|lbf.s") },
    { UnitListId::AngularImpulse,                     MQ_TEXT("AngularImpulse"),                     MQ_TEXT("N.m.s|dyne.cm.s|lbf.in.s") },
    { UnitListId::MomentSpectralDensity,              MQ_TEXT("MomentSpectralDensity"),              MQ_TEXT("(N.m)^2/Hz|(lb.in)^2/Hz|(kgf.cm)^2/Hz") },
    { UnitListId::Stress,                             MQ_TEXT("Stress"),                             MQ_TEXT("N/m^2|psi|kgf/cm^2|N/mm^2 (MPa)|ksi") },
    { UnitListId::ForcePerLength,                     MQ_TEXT("ForcePerLength"),                     MQ_TEXT("N/m|lb/in|kgf/cm|N/mm|klb/in") },
    { UnitListId::StressSpectralDensityTruncated,     MQ_TEXT("StressSpectralDensityTruncated"),     MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/H|MPa^2/Hz|ksi^2/Hz") },  // "/H", as its choosers know it
    { UnitListId::StressSpectralDensity,              MQ_TEXT("StressSpectralDensity"),              MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/Hz|MPa^2/Hz|ksi^2/Hz") },
    { UnitListId::Temperature,                        MQ_TEXT("Temperature"),                        MQ_TEXT("Kelvin|Fahrenheit|Celsius") },
    { UnitListId::TemperatureGradient,                MQ_TEXT("TemperatureGradient"),                MQ_TEXT("K/m|F/in|C/cm") },
    { UnitListId::HeatPower,                          MQ_TEXT("HeatPower"),                          MQ_TEXT("Watt|BTU/s|Cal/s|KCal/s") },
    { UnitListId::HeatEnergy,                         MQ_TEXT("HeatEnergy"),                         MQ_TEXT("Joule|BTU|Cal|KCal") },
    { UnitListId::HeatFlux,                           MQ_TEXT("HeatFlux"),                           MQ_TEXT("W/m^2|(BTU/s)/in^2|(Cal/s)/cm^2") },
    { UnitListId::Power,                              MQ_TEXT("Power"),                              MQ_TEXT("W|BTU/s|Cal/s") },
    { UnitListId::RadiationCoefficient,               MQ_TEXT("RadiationCoefficient"),               MQ_TEXT("W/(m^2.K^4)|BTU/(in^2.°F^4)|Cal/(cm^2.°C^4)") },
    { UnitListId::AngularAcceleration,                MQ_TEXT("AngularAcceleration"),                MQ_TEXT("rad/s^2|Hz/sec") },
    { UnitListId::AngularAccelerationSpectralDensity, MQ_TEXT("AngularAccelerationSpectralDensity"), MQ_TEXT("(rad/s^2)^2/Hz|Hz/sec^2") },
    { UnitListId::AngularVelocity,                    MQ_TEXT("AngularVelocity"),                    MQ_TEXT("rad/s|Hz|rpm") },
    { UnitListId::AngularVelocitySpectralDensity,     MQ_TEXT("AngularVelocitySpectralDensity"),     MQ_TEXT("(rad/s)^2/Hz|Hz|rpm^2/Hz") },
    { UnitListId::Length,                             MQ_TEXT("Length"),                             MQ_TEXT("mm|cm|m|in|ft|ft-in|am|nm|micron|mil|microIn") },
    { UnitListId::LengthSmallestFirst,                MQ_TEXT("LengthSmallestFirst"),                MQ_TEXT("am|nm|micron|mm|cm|m|microIn|mil|in|ft|ft-in") },
    { UnitListId::DisplacementSpectralDensity,        MQ_TEXT("DisplacementSpectralDensity"),        MQ_TEXT("mm^2/Hz|cm^2/Hz|m^2/Hz|in^2/Hz|ft^2/Hz|(ft-in)^2/Hz|am^2/Hz|nm^2/Hz|micron^2/Hz|mil^2/Hz|microIn^2/Hz") },
    { UnitListId::ThermalResistance,                  MQ_TEXT("ThermalResistance"),                  MQ_TEXT("K/W|°F/(BTU/s)|°C/(Cal/s)") },
    { UnitListId::DistributedThermalResistance,       MQ_TEXT("DistributedThermalResistance"),       MQ_TEXT("(K.m^2)/W|°F.in^2/(BTU/s)|°C.cm^2/(Cal/s)") },
    { UnitListId::Angle,                              MQ_TEXT("Angle"),                              MQ_TEXT("deg|deg_min|deg_min_sec|rad") },
    { UnitListId::HeatTransferCoefficient,            MQ_TEXT("HeatTransferCoefficient"),            MQ_TEXT("W/(m^2.K)|BTU/(s.in^2.°F)|Cal/(s.cm^2.°C)|W/(cm^2.K)") },
    { UnitListId::ThermalConductivity,                MQ_TEXT("ThermalConductivity"),                MQ_TEXT("W/(m.K)|BTU/(in.s.°F)|Cal/(cm.s.°C)|W/(cm.K)") },
    { UnitListId::SpecificEnergy,                     MQ_TEXT("SpecificEnergy"),                     MQ_TEXT("J/kg|BTU/lb|Cal/g|J/g") },
    { UnitListId::DynamicViscosity,                   MQ_TEXT("DynamicViscosity"),                   MQ_TEXT("kg/(m.s)|lb(in.s)|kg(cm.s)|g/(cm.s)") },
    { UnitListId::VolumeFlowRate,                     MQ_TEXT("VolumeFlowRate"),                     MQ_TEXT("mm^3/sec|cm^3/sec|m^3/sec|in^3/sec|ft^3/sec|litre/min|ft^3/min|US gal/hr|m^3/hr") },
    { UnitListId::MassFlowRate,                       MQ_TEXT("MassFlowRate"),                       MQ_TEXT("kg/s|lb/s|g/s") },
    { UnitListId::Pressure,                           MQ_TEXT("Pressure"),                           MQ_TEXT("N/m^2|psi|kgf/cm^2|dyne/cm^2|MPa|mmHg|inH20") },
    { UnitListId::BaseAcceleration,                   MQ_TEXT("BaseAcceleration"),                   MQ_TEXT("m/s^2|in/s^2|cm/s^2|g") },
    { UnitListId::BaseAccelerationSpectralDensity,    MQ_TEXT("BaseAccelerationSpectralDensity"),    MQ_TEXT("(m/s^2)^2/Hz|(in/s^2)^2/Hz|(cm/s^2)^2/Hz|g^2/Hz") },
    { UnitListId::Velocity,                           MQ_TEXT("Velocity"),                           MQ_TEXT("mm/sec|cm/sec|m/sec|in/sec|ft/sec|micron/sec|mills/sec|mm/s") },
    { UnitListId::Acceleration,                       MQ_TEXT("Acceleration"),                       MQ_TEXT("mm/s^2|cm/s^2|m/s^2|in/s^2|ft/s^2|g|micron/s^2|mills/s^2") },
    { UnitListId::MassMomentOfInertia,                MQ_TEXT("MassMomentOfInertia"),                MQ_TEXT("kg.m^2|lb.in^2|kg.cm^2|g.cm^2") },
    { UnitListId::Mass,                               MQ_TEXT("Mass"),                               MQ_TEXT("kg|lb|kg|g") },
    { UnitListId::Density,                            MQ_TEXT("Density"),                            MQ_TEXT("kg/m^3|lb/in^3|kg/cm^3|g/cm^3") },
    { UnitListId::SpecificHeat,                       MQ_TEXT("SpecificHeat"),                       MQ_TEXT("J/(kg.K)|Btu/(lb.F)|Cal/(kg.C)") },
    { UnitListId::Area,                               MQ_TEXT("Area"),                               MQ_TEXT("mm^2|cm^2|m^2|in^2|ft^2|micron^2|mills^2") },
    { UnitListId::Volume,                             MQ_TEXT("Volume"),                             MQ_TEXT("mm^3|cm^3|m^3|in^3|ft^3|litre|yard^3") },
    { UnitListId::Time,                               MQ_TEXT("Time"),                               MQ_TEXT("sec|min|hr|day") },
    { UnitListId::ThermalExpansion,                   MQ_TEXT("ThermalExpansion"),                   MQ_TEXT("/Kelvin (/K)|/Fahrenheit (/°F)|/Celsius (/°C)") },
    { UnitListId::Stiffness,                          MQ_TEXT("Stiffness"),                          MQ_TEXT("N/m|lbf/in|kgf/cm") },
    { UnitListId::StiffnessPerArea,                   MQ_TEXT("StiffnessPerArea"),                   MQ_TEXT("(N/m)/m^2|(lbf/in)/in^2|(kgf/cm)/cm^2") },
    { UnitListId::StiffnessPerLength,                 MQ_TEXT("StiffnessPerLength"),                 MQ_TEXT("(N/m)/m|(lbf/in)/in|(kgf/cm)/cm") },
    { UnitListId::RotationalStiffness,                MQ_TEXT("RotationalStiffness"),                MQ_TEXT("N.m/rad|lbf.in/rad|kgf.cm/rad") },
    { UnitListId::Energy,                             MQ_TEXT("Energy"),                             MQ_TEXT("N.m|ft.lbs|Cal|BTU|J|joule|ergs") },
    { UnitListId::EnergyDensity,                      MQ_TEXT("EnergyDensity"),                      MQ_TEXT("N.m/m^3|ft.lbs/ft^3|Cal/m^3|BTU/in^3") },
    { UnitListId::Damping,                            MQ_TEXT("Damping"),                            MQ_TEXT("N.(sec/m)|lb.(sec/in)|lb.(sec/cm)") },
});
// clang-format on

static_assert(kRows.size() == kUnitListTotal);

static_assert(FirstOutOfPlace(kRows, &UnitListRow::id) == kNone);

/// A row as a record; the element behind each text stays zero and ends it.
constexpr UnitList MakeList(const UnitListRow& row) {
  UnitList list{};
  std::ranges::copy(row.name, list.m_strName);
  std::ranges::copy(row.text, list.m_strText);
  return list;
}

constexpr bool AllFit() {
  return std::ranges::all_of(kRows, [](const UnitListRow& row) {
    return row.name.size() < std::size(UnitList{}.m_strName) &&
           row.text.size() < std::size(UnitList{}.m_strText);
  });
}
static_assert(AllFit());

constexpr std::array<UnitList, kUnitListTotal> MakeLists() {
  std::array<UnitList, kUnitListTotal> lists{};
  std::ranges::transform(kRows, lists.begin(), MakeList);
  return lists;
}

}  // namespace
}  // namespace mqp

constinit const std::array<mqp::UnitList, mqp::kUnitListTotal> g_UnitLists = mqp::MakeLists();
