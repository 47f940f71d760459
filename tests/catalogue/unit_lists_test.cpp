#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <set>
#include <string>

#include <mqPostCommon/catalogue/unit_lists.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/platform/text.h>

namespace mqp::test {
namespace {

using Text = std::basic_string<mqChar>;

struct UnitListRow {
  UnitListId id;
  mqTextView name;
  mqTextView text;
};

using enum UnitListId;

// clang-format off
constexpr auto kLists = std::to_array<UnitListRow>({
    // place                              name                                           text
    {UnitSystem,                          MQ_TEXT("UnitSystem"),                         MQ_TEXT("SI|English (IPS)|Metric (G)")},
    {Force,                               MQ_TEXT("Force"),                              MQ_TEXT("N|lbf|kgf")},
    {ForceSpectralDensity,                MQ_TEXT("ForceSpectralDensity"),               MQ_TEXT("N^2/Hz|lb^2/Hz|kgf^2/Hz")},
    {Moment,                              MQ_TEXT("Moment"),                             MQ_TEXT("N.m|lbf.in|kgf.cm")},
    {Impulse,                             MQ_TEXT("Impulse"),                            MQ_TEXT("N.s|dyne.s|lbf.s")},
    {AngularImpulse,                      MQ_TEXT("AngularImpulse"),                     MQ_TEXT("N.m.s|dyne.cm.s|lbf.in.s")},
    {MomentSpectralDensity,               MQ_TEXT("MomentSpectralDensity"),              MQ_TEXT("(N.m)^2/Hz|(lb.in)^2/Hz|(kgf.cm)^2/Hz")},
    {Stress,                              MQ_TEXT("Stress"),                             MQ_TEXT("N/m^2|psi|kgf/cm^2|N/mm^2 (MPa)|ksi")},
    {ForcePerLength,                      MQ_TEXT("ForcePerLength"),                     MQ_TEXT("N/m|lb/in|kgf/cm|N/mm|klb/in")},
    {StressSpectralDensityTruncated,      MQ_TEXT("StressSpectralDensityTruncated"),     MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/H|MPa^2/Hz|ksi^2/Hz")},
    {StressSpectralDensity,               MQ_TEXT("StressSpectralDensity"),              MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/Hz|MPa^2/Hz|ksi^2/Hz")},
    {Temperature,                         MQ_TEXT("Temperature"),                        MQ_TEXT("Kelvin|Fahrenheit|Celsius")},
    {TemperatureGradient,                 MQ_TEXT("TemperatureGradient"),                MQ_TEXT("K/m|F/in|C/cm")},
    {HeatPower,                           MQ_TEXT("HeatPower"),                          MQ_TEXT("Watt|BTU/s|Cal/s|KCal/s")},
    {HeatEnergy,                          MQ_TEXT("HeatEnergy"),                         MQ_TEXT("Joule|BTU|Cal|KCal")},
    {HeatFlux,                            MQ_TEXT("HeatFlux"),                           MQ_TEXT("W/m^2|(BTU/s)/in^2|(Cal/s)/cm^2")},
    {Power,                               MQ_TEXT("Power"),                              MQ_TEXT("W|BTU/s|Cal/s")},
    {RadiationCoefficient,                MQ_TEXT("RadiationCoefficient"),               MQ_TEXT("W/(m^2.K^4)|BTU/(in^2.°F^4)|Cal/(cm^2.°C^4)")},
    {AngularAcceleration,                 MQ_TEXT("AngularAcceleration"),                MQ_TEXT("rad/s^2|Hz/sec")},
    {AngularAccelerationSpectralDensity,  MQ_TEXT("AngularAccelerationSpectralDensity"), MQ_TEXT("(rad/s^2)^2/Hz|Hz/sec^2")},
    {AngularVelocity,                     MQ_TEXT("AngularVelocity"),                    MQ_TEXT("rad/s|Hz|rpm")},
    {AngularVelocitySpectralDensity,      MQ_TEXT("AngularVelocitySpectralDensity"),     MQ_TEXT("(rad/s)^2/Hz|Hz|rpm^2/Hz")},
    {Length,                              MQ_TEXT("Length"),                             MQ_TEXT("mm|cm|m|in|ft|ft-in|am|nm|micron|mil|microIn")},
    {LengthSmallestFirst,                 MQ_TEXT("LengthSmallestFirst"),                MQ_TEXT("am|nm|micron|mm|cm|m|microIn|mil|in|ft|ft-in")},
    {DisplacementSpectralDensity,         MQ_TEXT("DisplacementSpectralDensity"),        MQ_TEXT("mm^2/Hz|cm^2/Hz|m^2/Hz|in^2/Hz|ft^2/Hz|(ft-in)^2/Hz|am^2/Hz|nm^2/Hz|micron^2/Hz|mil^2/Hz|microIn^2/Hz")},
    {ThermalResistance,                   MQ_TEXT("ThermalResistance"),                  MQ_TEXT("K/W|°F/(BTU/s)|°C/(Cal/s)")},
    {DistributedThermalResistance,        MQ_TEXT("DistributedThermalResistance"),       MQ_TEXT("(K.m^2)/W|°F.in^2/(BTU/s)|°C.cm^2/(Cal/s)")},
    {Angle,                               MQ_TEXT("Angle"),                              MQ_TEXT("deg|deg_min|deg_min_sec|rad")},
    {HeatTransferCoefficient,             MQ_TEXT("HeatTransferCoefficient"),            MQ_TEXT("W/(m^2.K)|BTU/(s.in^2.°F)|Cal/(s.cm^2.°C)|W/(cm^2.K)")},
    {ThermalConductivity,                 MQ_TEXT("ThermalConductivity"),                MQ_TEXT("W/(m.K)|BTU/(in.s.°F)|Cal/(cm.s.°C)|W/(cm.K)")},
    {SpecificEnergy,                      MQ_TEXT("SpecificEnergy"),                     MQ_TEXT("J/kg|BTU/lb|Cal/g|J/g")},
    {DynamicViscosity,                    MQ_TEXT("DynamicViscosity"),                   MQ_TEXT("kg/(m.s)|lb(in.s)|kg(cm.s)|g/(cm.s)")},
    {VolumeFlowRate,                      MQ_TEXT("VolumeFlowRate"),                     MQ_TEXT("mm^3/sec|cm^3/sec|m^3/sec|in^3/sec|ft^3/sec|litre/min|ft^3/min|US gal/hr|m^3/hr")},
    {MassFlowRate,                        MQ_TEXT("MassFlowRate"),                       MQ_TEXT("kg/s|lb/s|g/s")},
    {Pressure,                            MQ_TEXT("Pressure"),                           MQ_TEXT("N/m^2|psi|kgf/cm^2|dyne/cm^2|MPa|mmHg|inH20")},
    {BaseAcceleration,                    MQ_TEXT("BaseAcceleration"),                   MQ_TEXT("m/s^2|in/s^2|cm/s^2|g")},
    {BaseAccelerationSpectralDensity,     MQ_TEXT("BaseAccelerationSpectralDensity"),    MQ_TEXT("(m/s^2)^2/Hz|(in/s^2)^2/Hz|(cm/s^2)^2/Hz|g^2/Hz")},
    {Velocity,                            MQ_TEXT("Velocity"),                           MQ_TEXT("mm/sec|cm/sec|m/sec|in/sec|ft/sec|micron/sec|mills/sec|mm/s")},
    {Acceleration,                        MQ_TEXT("Acceleration"),                       MQ_TEXT("mm/s^2|cm/s^2|m/s^2|in/s^2|ft/s^2|g|micron/s^2|mills/s^2")},
    {MassMomentOfInertia,                 MQ_TEXT("MassMomentOfInertia"),                MQ_TEXT("kg.m^2|lb.in^2|kg.cm^2|g.cm^2")},
    {Mass,                                MQ_TEXT("Mass"),                               MQ_TEXT("kg|lb|kg|g")},
    {Density,                             MQ_TEXT("Density"),                            MQ_TEXT("kg/m^3|lb/in^3|kg/cm^3|g/cm^3")},
    {SpecificHeat,                        MQ_TEXT("SpecificHeat"),                       MQ_TEXT("J/(kg.K)|Btu/(lb.F)|Cal/(kg.C)")},
    {Area,                                MQ_TEXT("Area"),                               MQ_TEXT("mm^2|cm^2|m^2|in^2|ft^2|micron^2|mills^2")},
    {Volume,                              MQ_TEXT("Volume"),                             MQ_TEXT("mm^3|cm^3|m^3|in^3|ft^3|litre|yard^3")},
    {Time,                                MQ_TEXT("Time"),                               MQ_TEXT("sec|min|hr|day")},
    {ThermalExpansion,                    MQ_TEXT("ThermalExpansion"),                   MQ_TEXT("/Kelvin (/K)|/Fahrenheit (/°F)|/Celsius (/°C)")},
    {Stiffness,                           MQ_TEXT("Stiffness"),                          MQ_TEXT("N/m|lbf/in|kgf/cm")},
    {StiffnessPerArea,                    MQ_TEXT("StiffnessPerArea"),                   MQ_TEXT("(N/m)/m^2|(lbf/in)/in^2|(kgf/cm)/cm^2")},
    {StiffnessPerLength,                  MQ_TEXT("StiffnessPerLength"),                 MQ_TEXT("(N/m)/m|(lbf/in)/in|(kgf/cm)/cm")},
    {RotationalStiffness,                 MQ_TEXT("RotationalStiffness"),                MQ_TEXT("N.m/rad|lbf.in/rad|kgf.cm/rad")},
    {Energy,                              MQ_TEXT("Energy"),                             MQ_TEXT("N.m|ft.lbs|Cal|BTU|J|joule|ergs")},
    {EnergyDensity,                       MQ_TEXT("EnergyDensity"),                      MQ_TEXT("N.m/m^3|ft.lbs/ft^3|Cal/m^3|BTU/in^3")},
    {Damping,                             MQ_TEXT("Damping"),                            MQ_TEXT("N.(sec/m)|lb.(sec/in)|lb.(sec/cm)")},
});
// clang-format on

/// The text in front of the first zero; the whole array when it has none.
template <std::size_t kSize>
Text TextOf(const mqChar (&array)[kSize]) {
  return Text(std::begin(array), std::ranges::find(array, mqChar{0}));
}

Text ListText(UnitListId id) {
  return TextOf(g_UnitLists[static_cast<std::size_t>(id)].m_strText);
}

TEST(UnitLists, StandInTheOrderOfTheirIds) {
  ASSERT_EQ(std::size(g_UnitLists), kLists.size());
  for (std::size_t place = 0; place < kLists.size(); ++place) {
    SCOPED_TRACE(place);
    EXPECT_EQ(static_cast<std::size_t>(kLists[place].id), place);
    EXPECT_EQ(TextOf(g_UnitLists[place].m_strName), Text(kLists[place].name));
    EXPECT_EQ(TextOf(g_UnitLists[place].m_strText), Text(kLists[place].text));
  }
}

TEST(UnitLists, AreFiftyFour) {
  EXPECT_EQ(kUnitListTotal, 54);
}

TEST(UnitLists, EndWithinTheirArrays) {
  for (const UnitList& list : g_UnitLists) {
    EXPECT_NE(std::ranges::find(list.m_strName, mqChar{0}), std::end(list.m_strName));
    EXPECT_NE(std::ranges::find(list.m_strText, mqChar{0}), std::end(list.m_strText));
  }
}

TEST(UnitLists, HaveEachTheirOwnName) {
  std::set<Text> names;
  for (const UnitList& list : g_UnitLists) {
    const Text name = TextOf(list.m_strName);
    EXPECT_TRUE(names.insert(name).second) << testing::PrintToString(name);
  }
}

TEST(UnitLists, HaveNeitherEmptyNamesNorBlanksBesideASeparator) {
  for (const UnitList& list : g_UnitLists) {
    const Text fenced = MQ_TEXT("|") + TextOf(list.m_strText) + MQ_TEXT("|");
    SCOPED_TRACE(testing::PrintToString(fenced));
    EXPECT_EQ(fenced.find(MQ_TEXT("||")), Text::npos);
    EXPECT_EQ(fenced.find(MQ_TEXT("| ")), Text::npos);
    EXPECT_EQ(fenced.find(MQ_TEXT(" |")), Text::npos);
  }
}

TEST(UnitLists, KeepBlanksInsideANameAlone) {
  EXPECT_NE(ListText(Stress).find(MQ_TEXT("|N/mm^2 (MPa)|")), Text::npos);
  EXPECT_NE(ListText(VolumeFlowRate).find(MQ_TEXT("|US gal/hr|")), Text::npos);
}

TEST(UnitLists, HoldTheDegreeSignAsOneCodeUnit) {
  const Text text = ListText(ThermalResistance);
  ASSERT_EQ(text.size(), 25U);
  EXPECT_EQ(static_cast<int>(text[4]), 0x00B0);
  EXPECT_EQ(static_cast<int>(text[15]), 0x00B0);
}

TEST(UnitLists, KeepTheTruncatedStressDensityBesideTheCorrectOne) {
  const Text truncated = ListText(StressSpectralDensityTruncated);
  const Text correct = ListText(StressSpectralDensity);
  EXPECT_NE(truncated.find(MQ_TEXT("|(kgf/cm^2)^2/H|")), Text::npos);
  EXPECT_NE(correct.find(MQ_TEXT("|(kgf/cm^2)^2/Hz|")), Text::npos);
  EXPECT_EQ(truncated.size() + 1, correct.size());
}

TEST(UnitLists, DifferFromTheNamesOfTheSameQuantity) {
  EXPECT_EQ(ListText(AngularAcceleration), MQ_TEXT("rad/s^2|Hz/sec"));
  EXPECT_EQ(Text(vekPostCommonGetUnitName(29, 1).View()), MQ_TEXT("Hz/s"));
  EXPECT_EQ(ListText(AngularAccelerationSpectralDensity), MQ_TEXT("(rad/s^2)^2/Hz|Hz/sec^2"));
  EXPECT_EQ(Text(vekPostCommonGetUnitName(30, 1).View()), MQ_TEXT("Hz/s^2"));
}

}  // namespace
}  // namespace mqp::test
