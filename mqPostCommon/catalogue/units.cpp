#include <mqPostCommon/catalogue/display_flag.h>
#include <mqPostCommon/catalogue/table.h>
#include <mqPostCommon/catalogue/units.h>

namespace mqp {
namespace {

using Study = AnalysisType;
using Result = ResultType;

/// A `UnitType` in a byte.
using Unit = std::uint8_t;

constexpr Unit kNoUnit = 255;

constexpr Unit In(UnitType type) {
  return type == UnitType::None ? kNoUnit : static_cast<Unit>(type);
}

// clang-format off

constexpr Unit kLength       = In(UnitType::Length);
constexpr Unit kForce        = In(UnitType::Force);
constexpr Unit kMoment       = In(UnitType::Moment);
constexpr Unit kStress       = In(UnitType::Stress);
constexpr Unit kAngle        = In(UnitType::Angle);

constexpr ResultSet kAllStresses    = kStresses | Result::BeamStress;
constexpr ResultSet kSafetyAndBeams = Result::FactorOfSafety | Result::BeamStress;

// ---------------------------------------------------------------------------------------------
// The quantity of a component. What is the same in every study goes before the studies.

constexpr auto kUnitsByResult = std::to_array<ComponentRow<Unit>>({
//    studies                result                      when             components                     quantity
    { kAnyStudy,             Result::ModeFrequency,      When::Always,    kOthers,                       In(UnitType::Frequency) },
    { kAnyStudy,             Result::ResultType18,       When::Always,    {0, 1},                        kForce },
    { kAnyStudy,             Result::ResultType18,       When::Always,    {2},                           kMoment },
    { kAnyStudy,             Result::ResultType53,       When::Always,    {4},                           kLength },
    { kAnyStudy,             Result::ResultType54,       When::Always,    To(0, 2),                      kForce },
    { kAnyStudy,             Result::ResultType54,       When::Always,    kOthers,                       kMoment },
    { kAnyStudy,             Result::ResultType55,       When::Always,    kOthers,                       kForce },
    { kAnyStudy,             Result::ResultType65,       When::Always,    kOthers,                       In(UnitType::UnitSystemName) },
    { kAnyStudy,             Result::ResultType69,       When::Always,    kOthers,                       kNoUnit },
    { kAnyStudy,             Result::ResultType70,       When::Always,    kOthers,                       kNoUnit },
});

constexpr auto kUnitsByStudy = std::to_array<ComponentRow<Unit>>({
//    studies                result                      when             components                     quantity
    { Study::Static,         Result::Displacement,       When::Always,    To(0, 3),                      kLength },
    { Study::Static,         Result::Displacement,       When::Always,    To(4, 7),                      kForce },
    { Study::Static,         Result::Displacement,       When::Always,    To(8, 10),                     kAngle },
    { Study::Static,         Result::Displacement,       When::Always,    To(11, 14),                    kMoment },
    { Study::Static,         kAllStresses,               When::Always,    {12},                          kNoUnit },  // dimensionless in Static alone
    { Study::Static,         kAllStresses,               When::Always,    kOthers,                       kStress },
    { kStressStudies,        Result::Strain,             When::Always,    {7},                           In(UnitType::EnergyDensity) },
    { kStressStudies,        Result::Strain,             When::Always,    {8},                           In(UnitType::Energy) },
    { Study::Static,         Result::FactorOfSafety,     When::Always,    kOthers,                       kStress },
    { Study::Static,         Result::StrainAlt,          When::Always,    {7},                           In(UnitType::EnergyDensity) },  // in Static alone
    { Study::Static,         Result::StrainAlt,          When::Always,    {8},                           In(UnitType::Energy) },
    { kModalStudies,         Result::Displacement,       When::RealModes, To(0, 3),                      kLength },
    { Study::Buckling,       Result::Displacement,       When::RealModes, To(4, 6),                      kAngle },
    { Study::Thermal,        Result::Thermal,            When::Always,    {0},                           In(UnitType::Temperature) },
    { Study::Thermal,        Result::Thermal,            When::Always,    To(1, 4),                      In(UnitType::TemperatureGradient) },
    { Study::Thermal,        Result::Thermal,            When::Always,    To(5, 8),                      In(UnitType::HeatFlux) },
    { Study::Thermal,        Result::Thermal,            When::Always,    {9},                           In(UnitType::HeatPower) },
    { Study::Thermal,        Result::Thermal,            When::Always,    {10},                          In(UnitType::HeatEnergy) },
    { kTimeStudies,          Result::Displacement,       When::Always,    To(0, 3),                      kLength },
    { kTimeStudies,          Result::Displacement,       When::Always,    To(4, 7),                      kForce },
    { kTimeStudies,          Result::Displacement,       When::Always,    To(8, 10),                     kAngle },
    { kTimeStudies,          Result::Displacement,       When::Always,    To(11, 14),                    kMoment },
    { kTimeStudies,          Result::Stress,             When::Always,    kOthers,                       kStress },
    { kStepStudies,          kSafetyAndBeams,            When::Always,    kOthers,                       kStress },
    { kTimeStudies,          Result::Velocity,           When::Always,    To(4, 6),                      In(UnitType::AngularVelocity) },
    { kTimeStudies,          Result::Velocity,           When::Always,    kOthers,                       In(UnitType::Velocity) },
    { kTimeStudies,          Result::Acceleration,       When::Always,    To(4, 6),                      In(UnitType::AngularAcceleration) },
    { kTimeStudies,          Result::Acceleration,       When::Always,    kOthers,                       In(UnitType::Acceleration) },
    { Study::Fatigue,        kAnyResult,                 When::Always,    kOthers,                       kNoUnit },  // mass properties included
    { Study::Fatigue,        Result::FatigueResult,      When::Always,    {4},                           In(UnitType::Time) },
    { Study::Dynamic,        Result::Displacement,       When::Spectral,  To(0, 3),                      In(UnitType::DisplacementSpectralDensity) },
    { Study::Dynamic,        Result::Displacement,       When::Spectral,  To(4, 7),                      In(UnitType::ForceSpectralDensity) },
    { Study::Dynamic,        Result::Displacement,       When::Spectral,  To(11, 14),                    In(UnitType::MomentSpectralDensity) },
    { Study::Dynamic,        Result::Stress,             When::Spectral,  kOthers,                       In(UnitType::StressSpectralDensity) },
    { Study::Dynamic,        Result::Velocity,           When::Spectral,  To(4, 6),                      In(UnitType::AngularVelocitySpectralDensity) },
    { Study::Dynamic,        Result::Velocity,           When::Spectral,  kOthers,                       In(UnitType::VelocitySpectralDensity) },
    { Study::Dynamic,        Result::Acceleration,       When::Spectral,  To(4, 6),                      In(UnitType::AngularAccelerationSpectralDensity) },
    { Study::Dynamic,        Result::Acceleration,       When::Spectral,  kOthers,                       In(UnitType::AccelerationSpectralDensity) },
    { Study::FlowImport,     Result::FlowVelocity,       When::Always,    kOthers,                       In(UnitType::Velocity) },
    { Study::FlowImport,     Result::FlowPressure,       When::Always,    {4},                           kNoUnit },
    { Study::FlowImport,     Result::FlowPressure,       When::Always,    kOthers,                       kStress },
    { Study::FlowImport,     Result::FlowFluidProperty,  When::Always,    {0, 1},                        In(UnitType::SpecificEnergy) },
    { Study::FlowImport,     Result::FlowFluidProperty,  When::Always,    {3},                           In(UnitType::DynamicViscosity) },
    { Study::FlowImport,     Result::FlowFluidProperty,  When::Always,    {4},                           In(UnitType::ThermalConductivity) },
    { Study::FlowImport,     Result::FlowFluidProperty,  When::Always,    {5},                           kLength },
    { Study::FlowImport,     Result::FlowFluidProperty,  When::Always,    {6},                           kStress },
    { Study::FlowImport,     Result::FlowTemperature,    When::Always,    {0},                           In(UnitType::Temperature) },
    { Study::FlowImport,     Result::FlowTemperature,    When::Always,    To(2, 5),                      In(UnitType::TemperatureGradient) },
    { Study::FlowImport,     Result::FlowTemperature,    When::Always,    {6},                           In(UnitType::SpecificEnergy) },
    { Study::FlowImport,     Result::FlowWallLoad,       When::Always,    To(0, 3),                      kForce },
    { Study::FlowImport,     Result::FlowWallLoad,       When::Always,    To(4, 6),                      kStress },
    { Study::FlowImport,     Result::FlowHeatTransfer,   When::Always,    {1},                           In(UnitType::Density) },
    { Study::FlowImport,     Result::FlowHeatTransfer,   When::Always,    {2},                           In(UnitType::MassFlowRate) },
    { Study::FlowImport,     Result::FlowHeatTransfer,   When::Always,    {4},                           In(UnitType::HeatTransferCoefficient) },
    { Study::FlowImport,     Result::FlowHeatTransfer,   When::Always,    {5},                           In(UnitType::HeatFlux) },
});

// Mass properties, in every study that does not answer before: in all but Fatigue.
constexpr auto kUnitsOfMassProperties = std::to_array<ComponentRow<Unit>>({
//    studies                result                      when             components                     quantity
    { kAnyStudy,             Result::MassProperties,     When::Always,    {0},                           In(UnitType::MassOfProperties) },
    { kAnyStudy,             Result::MassProperties,     When::Always,    {1},                           In(UnitType::Volume) },
    { kAnyStudy,             Result::MassProperties,     When::Always,    {2},                           In(UnitType::Area) },
    { kAnyStudy,             Result::MassProperties,     When::Always,    To(3, 5),                      kLength },
});

// ---------------------------------------------------------------------------------------------
// The units of a quantity. More can be stored than are offered; the defaults are those of SI,
// English (IPS) and Metric (G).

struct NameList {
  constexpr NameList(std::initializer_list<mqTextView> names) : count(names.size()) {
    std::ranges::copy(names, texts.begin());
  }
  constexpr auto begin() const { return texts.begin(); }
  constexpr auto end() const { return texts.begin() + static_cast<std::ptrdiff_t>(count); }

  std::array<mqTextView, 14> texts{};
  std::size_t count;
};

struct UnitRow {
  UnitType type;
  std::uint8_t offered;
  std::array<std::uint8_t, 3> defaults;
  NameList names;
};

constexpr auto kUnits = std::to_array<UnitRow>({
//    quantity                                       offered  SI IPS G   names, those behind the offered ones by explicit index alone
    { UnitType::Length,                                 10, {2, 3, 1}, { MQ_TEXT("mm"), MQ_TEXT("cm"), MQ_TEXT("m"), MQ_TEXT("in"), MQ_TEXT("ft"), MQ_TEXT("ft-in"), MQ_TEXT("am"), MQ_TEXT("nm"), MQ_TEXT("micron"), MQ_TEXT("mil"), MQ_TEXT("microIn") } },  // defaults not in the order of the list
    { UnitType::UnitSystemName,                          3, {0, 1, 2}, { MQ_TEXT("SI"), MQ_TEXT("English (IPS)"), MQ_TEXT("Metric (G)") } },
    { UnitType::Force,                                   3, {0, 1, 2}, { MQ_TEXT("N"), MQ_TEXT("lbf"), MQ_TEXT("kgf"), MQ_TEXT("dyne") } },
    { UnitType::Moment,                                  3, {0, 1, 2}, { MQ_TEXT("N.m"), MQ_TEXT("lbf.in"), MQ_TEXT("kgf.cm"), MQ_TEXT("N.m"), MQ_TEXT("dyne.cm"), MQ_TEXT("N.mm"), MQ_TEXT("lbf.in") } },
    { UnitType::Stress,                                  5, {0, 1, 2}, { MQ_TEXT("N/m^2"), MQ_TEXT("psi"), MQ_TEXT("kgf/cm^2"), MQ_TEXT("N/mm^2 (MPa)"), MQ_TEXT("ksi") } },
    { UnitType::Temperature,                             3, {0, 1, 2}, { MQ_TEXT("Kelvin"), MQ_TEXT("Fahrenheit"), MQ_TEXT("Celsius") } },
    { UnitType::TemperatureGradient,                     3, {0, 1, 2}, { MQ_TEXT("K/m"), MQ_TEXT("F/in"), MQ_TEXT("C/cm") } },  // without degree signs
    { UnitType::HeatFlux,                                3, {0, 1, 2}, { MQ_TEXT("W/m^2"), MQ_TEXT("(BTU/s)/in^2"), MQ_TEXT("(Cal/s)/cm^2") } },
    { UnitType::Frequency,                               2, {0, 1, 2}, { MQ_TEXT("rad/s"), MQ_TEXT("Hz"), MQ_TEXT("rad/s") } },  // the default of Metric is not offered
    { UnitType::Angle,                                   4, {0, 1, 2}, { MQ_TEXT("deg"), MQ_TEXT("deg_min"), MQ_TEXT("deg_min_sec"), MQ_TEXT("rad") } },
    { UnitType::Density,                                 6, {0, 1, 2}, { MQ_TEXT("kg/m^3"), MQ_TEXT("lb/in^3"), MQ_TEXT("kg/cm^3"), MQ_TEXT("g/cm^3"), MQ_TEXT("kg/m^3"), MQ_TEXT("kg/m^3") } },  // lists of six: one entry for each of six unit-system slots
    { UnitType::SpecificEnergy,                          6, {0, 1, 2}, { MQ_TEXT("J/kg"), MQ_TEXT("BTU/lb"), MQ_TEXT("Cal/g"), MQ_TEXT("J/g"), MQ_TEXT("J/kg"), MQ_TEXT("J/kg") } },
    { UnitType::DynamicViscosity,                        6, {0, 1, 2}, { MQ_TEXT("kg/(m.s)"), MQ_TEXT("lb(in.s)"), MQ_TEXT("kg(cm.s)"), MQ_TEXT("g/(cm.s)"), MQ_TEXT("kg/(m.s)"), MQ_TEXT("kg/(m.s)") } },  // two without a slash
    { UnitType::MassFlowRate,                            6, {0, 1, 2}, { MQ_TEXT("kg/s"), MQ_TEXT("lb/s"), MQ_TEXT("g/s"), MQ_TEXT("g/s"), MQ_TEXT("kg/s"), MQ_TEXT("kg/s") } },
    { UnitType::Velocity,                                5, {0, 1, 2}, { MQ_TEXT("mm/sec"), MQ_TEXT("cm/sec"), MQ_TEXT("m/sec"), MQ_TEXT("in/sec"), MQ_TEXT("ft/sec"), MQ_TEXT("micron/sec"), MQ_TEXT("mills/sec"), MQ_TEXT("mm/s"), MQ_TEXT("cm/s"), MQ_TEXT("m/s"), MQ_TEXT("in/s"), MQ_TEXT("ft/s"), MQ_TEXT("micron/s"), MQ_TEXT("mills/s") } },
    { UnitType::VolumeFlowRate,                          9, {0, 1, 2}, { MQ_TEXT("mm^3/sec"), MQ_TEXT("cm^3/sec"), MQ_TEXT("m^3/sec"), MQ_TEXT("in^3/sec"), MQ_TEXT("ft^3/sec"), MQ_TEXT("litre/min"), MQ_TEXT("ft^3/min"), MQ_TEXT("US gal/hr"), MQ_TEXT("m^3/hr") } },
    { UnitType::HeatTransferCoefficient,                 6, {0, 1, 2}, { MQ_TEXT("W/(m^2.K)"), MQ_TEXT("BTU/(s.in^2.°F)"), MQ_TEXT("Cal/(s.cm^2.°C)"), MQ_TEXT("W/(cm^2.K)"), MQ_TEXT("W/(m^2.K)"), MQ_TEXT("W/(m^2.K)") } },
    { UnitType::ThermalConductivity,                     3, {0, 1, 2}, { MQ_TEXT("W/(m.K)"), MQ_TEXT("BTU/(in.s.°F)"), MQ_TEXT("Cal/(cm.s.°C)"), MQ_TEXT("W/(cm.K)"), MQ_TEXT("W/(m.K)"), MQ_TEXT("W/(m.K)") } },
    { UnitType::Acceleration,                            6, {0, 1, 2}, { MQ_TEXT("mm/s^2"), MQ_TEXT("cm/s^2"), MQ_TEXT("m/s^2"), MQ_TEXT("in/s^2"), MQ_TEXT("ft/s^2"), MQ_TEXT("g"), MQ_TEXT("micron/s^2"), MQ_TEXT("mills/s^2") } },
    { UnitType::Energy,                                  3, {0, 1, 2}, { MQ_TEXT("N.m"), MQ_TEXT("ft.lbs"), MQ_TEXT("Cal"), MQ_TEXT("BTU"), MQ_TEXT("J"), MQ_TEXT("J"), MQ_TEXT("joule"), MQ_TEXT("ergs") } },
    { UnitType::EnergyDensity,                           3, {0, 1, 2}, { MQ_TEXT("N.m/m^3"), MQ_TEXT("ft.lbs/ft^3"), MQ_TEXT("Cal/m^3"), MQ_TEXT("BTU/in^3"), MQ_TEXT("Cal/m^3"), MQ_TEXT("Cal/m^3") } },
    { UnitType::StressSpectralDensity,                   5, {0, 1, 2}, { MQ_TEXT("(N/m^2)^2/Hz"), MQ_TEXT("psi^2/Hz"), MQ_TEXT("(kgf/cm^2)^2/Hz"), MQ_TEXT("MPa^2/Hz"), MQ_TEXT("ksi^2/Hz") } },
    { UnitType::DisplacementSpectralDensity,             6, {2, 3, 1}, { MQ_TEXT("mm^2/Hz"), MQ_TEXT("cm^2/Hz"), MQ_TEXT("m^2/Hz"), MQ_TEXT("in^2/Hz"), MQ_TEXT("ft^2/Hz"), MQ_TEXT("(ft-in)^2/Hz"), MQ_TEXT("am^2/Hz"), MQ_TEXT("nm^2/Hz"), MQ_TEXT("micron^2/Hz"), MQ_TEXT("mil^2/Hz"), MQ_TEXT("microIn^2/Hz") } },
    { UnitType::VelocitySpectralDensity,                 5, {0, 1, 2}, { MQ_TEXT("(mm/sec)^2/Hz"), MQ_TEXT("(cm/sec)^2/Hz"), MQ_TEXT("(m/sec)^2/Hz"), MQ_TEXT("(in/sec)^2/Hz"), MQ_TEXT("(ft/sec)^2/Hz"), MQ_TEXT("(micron/sec)^2/Hz"), MQ_TEXT("(mills/sec)^2/Hz") } },
    { UnitType::AccelerationSpectralDensity,             6, {0, 1, 2}, { MQ_TEXT("(mm/s^2)^2/Hz"), MQ_TEXT("(cm/s^2)^2/Hz"), MQ_TEXT("(m/s^2)^2/Hz"), MQ_TEXT("(in/s^2)^2/Hz"), MQ_TEXT("(ft/s^2)^2/Hz"), MQ_TEXT("g^2/Hz"), MQ_TEXT("(micron/s^2)^2/Hz"), MQ_TEXT("(mills/s^2)^2/Hz") } },
    { UnitType::MomentSpectralDensity,                   0, {0, 0, 0}, {} },
    { UnitType::ForceSpectralDensity,                    0, {0, 0, 0}, {} },
    { UnitType::AngularVelocity,                         4, {0, 1, 1}, { MQ_TEXT("rad/s"), MQ_TEXT("Hz"), MQ_TEXT("rpm"), MQ_TEXT("rad/s"), MQ_TEXT("rad/s"), MQ_TEXT("rad/s"), MQ_TEXT("deg/s") } },
    { UnitType::AngularVelocitySpectralDensity,          4, {0, 1, 2}, { MQ_TEXT("(rad/s)^2/Hz"), MQ_TEXT("Hz"), MQ_TEXT("rpm^2/Hz"), MQ_TEXT("(rad/s)^2/Hz"), MQ_TEXT("(rad/s)^2/Hz"), MQ_TEXT("(rad/s)^2/Hz") } },
    { UnitType::AngularAcceleration,                     4, {0, 1, 2}, { MQ_TEXT("rad/s^2"), MQ_TEXT("Hz/s"), MQ_TEXT("rpm^2"), MQ_TEXT("deg/s^2") } },
    { UnitType::AngularAccelerationSpectralDensity,      4, {0, 1, 2}, { MQ_TEXT("(rad/s^2)^2/Hz"), MQ_TEXT("Hz/s^2"), MQ_TEXT("rpm^4/Hz"), MQ_TEXT("rad/s") } },  // the fourth is an angular velocity
    { UnitType::Mass,                                    4, {0, 1, 2}, { MQ_TEXT("kg"), MQ_TEXT("lb"), MQ_TEXT("kg"), MQ_TEXT("g"), MQ_TEXT("kg"), MQ_TEXT("kg") } },
    { UnitType::Reserved32,                              0, {0, 0, 0}, {} },
    { UnitType::Reserved33,                              0, {0, 0, 0}, {} },
    { UnitType::LengthSmallestFirst,                    10, {0, 1, 2}, { MQ_TEXT("am"), MQ_TEXT("nm"), MQ_TEXT("micron"), MQ_TEXT("mm"), MQ_TEXT("cm"), MQ_TEXT("m"), MQ_TEXT("microIn"), MQ_TEXT("mil"), MQ_TEXT("in"), MQ_TEXT("ft"), MQ_TEXT("ft-in") } },
    { UnitType::HeatPower,                               4, {0, 1, 2}, { MQ_TEXT("Watt"), MQ_TEXT("BTU/s"), MQ_TEXT("Cal/s"), MQ_TEXT("KCal/s") } },
    { UnitType::HeatEnergy,                              4, {0, 1, 2}, { MQ_TEXT("Joule"), MQ_TEXT("BTU"), MQ_TEXT("Cal"), MQ_TEXT("KCal") } },
    { UnitType::Time,                                    4, {0, 1, 2}, { MQ_TEXT("sec"), MQ_TEXT("min"), MQ_TEXT("hr"), MQ_TEXT("day") } },
    { UnitType::MassOfProperties,                        0, {0, 0, 0}, { MQ_TEXT("kg"), MQ_TEXT("lb"), MQ_TEXT("kg"), MQ_TEXT("g"), MQ_TEXT("kg"), MQ_TEXT("kg") } },  // named, but none offered
    { UnitType::Volume,                                  0, {0, 0, 0}, { MQ_TEXT("m^3"), MQ_TEXT("in^3"), MQ_TEXT("cm^3"), MQ_TEXT("cm^3"), MQ_TEXT("m^3"), MQ_TEXT("m^3") } },
    { UnitType::Area,                                    0, {0, 0, 0}, { MQ_TEXT("m^2"), MQ_TEXT("in^2"), MQ_TEXT("cm^2"), MQ_TEXT("cm^2"), MQ_TEXT("m^2"), MQ_TEXT("m^2") } },
});

// clang-format on

static_assert(FirstUnsorted(kUnitsByResult) == kNone);
static_assert(FirstRepeated(kUnitsByResult) == kNone);
static_assert(FirstUnsorted(kUnitsByStudy) == kNone);
static_assert(FirstRepeated(kUnitsByStudy) == kNone);
static_assert(FirstUnsorted(kUnitsOfMassProperties) == kNone);
static_assert(FirstRepeated(kUnitsOfMassProperties) == kNone);

static_assert(FirstOutOfPlace(kUnits, &UnitRow::type) == kNone);

/// What is offered is stored, and so are the defaults.
constexpr int FirstUnitNotStored() {
  for (std::size_t place = 0; place < kUnits.size(); ++place) {
    const UnitRow& row = kUnits[place];
    const std::size_t last = *std::ranges::max_element(row.defaults);
    if (row.offered > row.names.count || (last > 0 && last >= row.names.count)) {
      return static_cast<int>(place);
    }
  }
  return kNone;
}
static_assert(FirstUnitNotStored() == kNone);

constexpr auto kQuantityIndex =
    MakeIndex<kNoUnit, kUnitsByResult, kUnitsByStudy, kUnitsOfMassProperties>();

// ---------------------------------------------------------------------------------------------
// Names by quantity and index: all texts in one run, so that loading the library adjusts nothing.

constexpr std::size_t kUnitTypes = kUnits.size();

constexpr std::size_t CountNames() {
  std::size_t count = 0;
  for (const UnitRow& row : kUnits) {
    count += row.names.count;
  }
  return count;
}

constexpr std::size_t CountUnitsOfNames() {
  std::size_t count = 0;
  for (const UnitRow& row : kUnits) {
    for (const mqTextView name : row.names) {
      count += name.size();
    }
  }
  return count;
}

struct UnitNames {
  std::array<std::uint16_t, kUnitTypes + 1> firstName;    ///< by quantity
  std::array<std::uint16_t, CountNames() + 1> firstUnit;  ///< by name
  std::array<mqChar, CountUnitsOfNames() + PaddedText::kUnits> units;
};

constexpr UnitNames kUnitNames = [] {
  UnitNames result{};
  std::size_t names = 0;
  std::size_t units = 0;
  for (std::size_t type = 0; type < kUnitTypes; ++type) {
    for (const mqTextView name : kUnits[type].names) {
      std::ranges::copy(name, result.units.begin() + static_cast<std::ptrdiff_t>(units));
      units += name.size();
      result.firstUnit[++names] = static_cast<std::uint16_t>(units);
    }
    result.firstName[type + 1] = static_cast<std::uint16_t>(names);
  }
  return result;
}();

/// How many units are offered, and the default of each unit system; nothing behind the last one.
struct UnitChoice {
  std::uint8_t offered;
  std::array<std::uint8_t, 3> defaults;
};

constexpr auto kUnitChoices = [] {
  std::array<UnitChoice, kUnitTypes + 1> choices{};
  for (std::size_t type = 0; type < kUnitTypes; ++type) {
    choices[type] = {kUnits[type].offered, kUnits[type].defaults};
  }
  return choices;
}();

const UnitChoice& ChoiceOf(int unitType) noexcept {
  return kUnitChoices[std::min<std::size_t>(static_cast<unsigned>(unitType), kUnitTypes)];
}

/// The quantity of a component, or `kNoUnit`.
Unit FindQuantity(int analysisType, int resultType, int component, int option,
                  int optionFlag) noexcept {
  const bool isOption2 = option == 2;
  const bool isFlagSet = optionFlag != 0;
  return kQuantityIndex.At(
      analysisType, resultType,
      If(isOption2 & isFlagSet, When::Spectral) | If(LoadDisplayFlag() == 1, When::RealModes),
      component);
}

}  // namespace
}  // namespace mqp

int vekPostCommonGetUnitType(int analysisType, int resultType, int component, int option,
                             int optionFlag) noexcept {
  using namespace mqp;
  const Unit unit = FindQuantity(analysisType, resultType, component, option, optionFlag);
  return unit == kNoUnit ? Code(UnitType::None) : unit;
}

int vekPostCommonGetUnitTotal(int unitType) noexcept {
  return mqp::ChoiceOf(unitType).offered;
}

CString vekPostCommonGetUnitName(int unitType, int index) {
  using namespace mqp;
  const auto type = static_cast<std::size_t>(static_cast<unsigned>(unitType));
  if (type >= kUnitTypes) {
    return {};
  }
  const std::size_t first = kUnitNames.firstName[type];
  const std::size_t count = kUnitNames.firstName[type + 1] - first;
  const auto place = static_cast<std::size_t>(static_cast<unsigned>(index));
  if (place >= count) {
    return {};
  }
  const std::size_t begin = kUnitNames.firstUnit[first + place];
  const std::size_t end = kUnitNames.firstUnit[first + place + 1];
  return CString(PaddedText{kUnitNames.units.data() + begin, end - begin});
}

int vekPostCommonGetComponentUnitsBasedOnSystemUnit(int unitSystem, int analysisType,
                                                    int resultType, int component, int option,
                                                    int optionFlag) noexcept {
  using namespace mqp;
  const Unit unit = FindQuantity(analysisType, resultType, component, option, optionFlag);
  const auto system = std::min<std::size_t>(static_cast<unsigned>(unitSystem),
                                            static_cast<std::size_t>(UnitSystem::Metric));
  return ChoiceOf(unit).defaults[system];
}
