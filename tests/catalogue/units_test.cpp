#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/units.h>
#include <mqPostCommon/platform/text.h>

#include "catalogue/catalogue_test_support.h"

namespace {

constexpr int kNo = 9999;

/// Without a default value, so that a row with a column missing does not compile.
struct Quantity {
  constexpr Quantity(int code) : unitType(code) {}  // NOLINT(google-explicit-constructor)
  int unitType;
};

enum class When { Always, FlagIsOne, Plain, Spectral };

/// The quantities of a result: one for each of the components 0 to 15, one for every other
/// component, negative ones included.
struct QuantitiesRow {
  AnalysisType analysisType;
  ResultType resultType;
  When when;
  std::array<Quantity, 16> components;
  Quantity other;

  [[nodiscard]] constexpr int Of(int component) const {
    return component >= 0 && component < 16
               ? components[static_cast<std::size_t>(component)].unitType
               : other.unitType;
  }
};

using enum When;
using mqp::Code;
using mqp::test::ActualFrequencyFlag;
using mqp::test::kSweptCodes;
using mqp::test::Sweep;
using Study = AnalysisType;
using Result = ResultType;
using Text = std::basic_string<mqChar>;

// clang-format off

/// Results with the same quantities in every study, known or not; the study of a row is idle.
constexpr auto kInEveryStudy = std::to_array<QuantitiesRow>({
    //                                           component
    //                                             0    1    2    3    4    5    6    7    8    9   10   11   12   13   14   15  other
    {Study::Static, Result::ResultType53,  Always, {kNo, kNo, kNo, kNo,   0, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Static, Result::ResultType54,  Always, {  2,   2,   2,   3,   3,   3,   3,   3,   3,   3,   3,   3,   3,   3,   3,   3},   3},
    {Study::Static, Result::ResultType55,  Always, {  2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2,   2},   2},
    {Study::Static, Result::ModeFrequency, Always, {  8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8,   8},   8},
    {Study::Static, Result::ResultType18,  Always, {  2,   2,   3, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Static, Result::ResultType65,  Always, {  1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1,   1},   1},
    {Study::Static, Result::ResultType69,  Always, {kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Static, Result::ResultType70,  Always, {kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
});

/// In every study, known or not, that has no row for it below.
constexpr QuantitiesRow kMassProperties =
    {Study::Static, Result::MassProperties, Always, { 38,  39,  40,   0,   0,   0, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo};

constexpr auto kByStudy = std::to_array<QuantitiesRow>({
    //                                                               component
    //                                                                 0    1    2    3    4    5    6    7    8    9   10   11   12   13   14   15  other
    {Study::Static,         Result::Displacement,      Always,    {  0,   0,   0,   0,   2,   2,   2,   2,   9,   9,   9,   3,   3,   3,   3, kNo}, kNo},
    {Study::Static,         Result::Stress,            Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4, kNo,   4,   4,   4},   4},
    {Study::Static,         Result::StressAlt,         Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4, kNo,   4,   4,   4},   4},
    {Study::Static,         Result::BeamStress,        Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4, kNo,   4,   4,   4},   4},
    {Study::Static,         Result::Strain,            Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo,  20,  19, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Static,         Result::StrainAlt,         Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo,  20,  19, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Static,         Result::FactorOfSafety,    Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},

    {Study::Frequency,      Result::Displacement,      FlagIsOne, {  0,   0,   0,   0, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::Buckling,       Result::Displacement,      FlagIsOne, {  0,   0,   0,   0,   9,   9,   9, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::Thermal,        Result::Thermal,           Always,    {  5,   6,   6,   6,   6,   7,   7,   7,   7,  35,  36, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::Stepped,        Result::Displacement,      Always,    {  0,   0,   0,   0,   2,   2,   2,   2,   9,   9,   9,   3,   3,   3,   3, kNo}, kNo},
    {Study::Stepped,        Result::Stress,            Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::Stepped,        Result::FactorOfSafety,    Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::Stepped,        Result::BeamStress,        Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::Stepped,        Result::Velocity,          Always,    { 14,  14,  14,  14,  27,  27,  27,  14,  14,  14,  14,  14,  14,  14,  14,  14},  14},
    {Study::Stepped,        Result::Acceleration,      Always,    { 18,  18,  18,  18,  29,  29,  29,  18,  18,  18,  18,  18,  18,  18,  18,  18},  18},
    {Study::Stepped,        Result::Strain,            Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo,  20,  19, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::SteppedReduced, Result::Displacement,      Always,    {  0,   0,   0,   0,   2,   2,   2,   2,   9,   9,   9,   3,   3,   3,   3, kNo}, kNo},
    {Study::SteppedReduced, Result::Stress,            Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::SteppedReduced, Result::FactorOfSafety,    Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::SteppedReduced, Result::BeamStress,        Always,    {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::SteppedReduced, Result::Velocity,          Always,    { 14,  14,  14,  14,  27,  27,  27,  14,  14,  14,  14,  14,  14,  14,  14,  14},  14},
    {Study::SteppedReduced, Result::Acceleration,      Always,    { 18,  18,  18,  18,  29,  29,  29,  18,  18,  18,  18,  18,  18,  18,  18,  18},  18},
    {Study::SteppedReduced, Result::Strain,            Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo,  20,  19, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::Fatigue,        Result::FatigueResult,     Always,    {kNo, kNo, kNo, kNo,  37, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::Fatigue,        Result::MassProperties,    Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::Dynamic,        Result::Displacement,      Plain,     {  0,   0,   0,   0,   2,   2,   2,   2,   9,   9,   9,   3,   3,   3,   3, kNo}, kNo},
    {Study::Dynamic,        Result::Displacement,      Spectral,  { 22,  22,  22,  22,  26,  26,  26,  26,   9,   9,   9,  25,  25,  25,  25, kNo}, kNo},
    {Study::Dynamic,        Result::Stress,            Plain,     {  4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::Dynamic,        Result::Stress,            Spectral,  { 21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21,  21},  21},
    {Study::Dynamic,        Result::Velocity,          Plain,     { 14,  14,  14,  14,  27,  27,  27,  14,  14,  14,  14,  14,  14,  14,  14,  14},  14},
    {Study::Dynamic,        Result::Velocity,          Spectral,  { 23,  23,  23,  23,  28,  28,  28,  23,  23,  23,  23,  23,  23,  23,  23,  23},  23},
    {Study::Dynamic,        Result::Acceleration,      Plain,     { 18,  18,  18,  18,  29,  29,  29,  18,  18,  18,  18,  18,  18,  18,  18,  18},  18},
    {Study::Dynamic,        Result::Acceleration,      Spectral,  { 24,  24,  24,  24,  30,  30,  30,  24,  24,  24,  24,  24,  24,  24,  24,  24},  24},
    {Study::Dynamic,        Result::Strain,            Always,    {kNo, kNo, kNo, kNo, kNo, kNo, kNo,  20,  19, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},

    {Study::FlowImport,     Result::FlowVelocity,      Always,    { 14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14,  14},  14},
    {Study::FlowImport,     Result::FlowPressure,      Always,    {  4,   4,   4,   4, kNo,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4,   4},   4},
    {Study::FlowImport,     Result::FlowFluidProperty, Always,    { 11,  11, kNo,  12,  17,   0,   4, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::FlowImport,     Result::FlowTemperature,   Always,    {  5, kNo,   6,   6,   6,   6,  11, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::FlowImport,     Result::FlowWallLoad,      Always,    {  2,   2,   2,   2,   4,   4,   4, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
    {Study::FlowImport,     Result::FlowHeatTransfer,  Always,    {kNo,  10,  13, kNo,  16,   7, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo},
});

constexpr QuantitiesRow kNoQuantities =
    {Study::Static, Result::ResultType0, Always, {kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo, kNo}, kNo};

/// The names of a quantity, joined by "|".
struct NamesRow {
  int unitType;
  mqTextView offered;
  mqTextView onlyStored;
};

constexpr auto kNames = std::to_array<NamesRow>({
    // type offered                                                                                     only stored
    { 0,   MQ_TEXT("mm|cm|m|in|ft|ft-in|am|nm|micron|mil"),                                            MQ_TEXT("microIn")},
    { 1,   MQ_TEXT("SI|English (IPS)|Metric (G)"),                                                     MQ_TEXT("")},
    { 2,   MQ_TEXT("N|lbf|kgf"),                                                                       MQ_TEXT("dyne")},
    { 3,   MQ_TEXT("N.m|lbf.in|kgf.cm"),                                                               MQ_TEXT("N.m|dyne.cm|N.mm|lbf.in")},
    { 4,   MQ_TEXT("N/m^2|psi|kgf/cm^2|N/mm^2 (MPa)|ksi"),                                             MQ_TEXT("")},
    { 5,   MQ_TEXT("Kelvin|Fahrenheit|Celsius"),                                                       MQ_TEXT("")},
    { 6,   MQ_TEXT("K/m|F/in|C/cm"),                                                                   MQ_TEXT("")},  // without a degree sign
    { 7,   MQ_TEXT("W/m^2|(BTU/s)/in^2|(Cal/s)/cm^2"),                                                 MQ_TEXT("")},
    { 8,   MQ_TEXT("rad/s|Hz"),                                                                        MQ_TEXT("rad/s")},  // the default of Metric
    { 9,   MQ_TEXT("deg|deg_min|deg_min_sec|rad"),                                                     MQ_TEXT("")},
    {10,   MQ_TEXT("kg/m^3|lb/in^3|kg/cm^3|g/cm^3|kg/m^3|kg/m^3"),                                     MQ_TEXT("")},
    {11,   MQ_TEXT("J/kg|BTU/lb|Cal/g|J/g|J/kg|J/kg"),                                                 MQ_TEXT("")},
    {12,   MQ_TEXT("kg/(m.s)|lb(in.s)|kg(cm.s)|g/(cm.s)|kg/(m.s)|kg/(m.s)"),                           MQ_TEXT("")},  // two without a slash
    {13,   MQ_TEXT("kg/s|lb/s|g/s|g/s|kg/s|kg/s"),                                                     MQ_TEXT("")},
    {14,   MQ_TEXT("mm/sec|cm/sec|m/sec|in/sec|ft/sec"),                                               MQ_TEXT("micron/sec|mills/sec|mm/s|cm/s|m/s|in/s|ft/s|micron/s|mills/s")},
    {15,   MQ_TEXT("mm^3/sec|cm^3/sec|m^3/sec|in^3/sec|ft^3/sec|litre/min|ft^3/min|US gal/hr|m^3/hr"), MQ_TEXT("")},
    {16,   MQ_TEXT("W/(m^2.K)|BTU/(s.in^2.°F)|Cal/(s.cm^2.°C)|W/(cm^2.K)|W/(m^2.K)|W/(m^2.K)"),        MQ_TEXT("")},
    {17,   MQ_TEXT("W/(m.K)|BTU/(in.s.°F)|Cal/(cm.s.°C)"),                                             MQ_TEXT("W/(cm.K)|W/(m.K)|W/(m.K)")},
    {18,   MQ_TEXT("mm/s^2|cm/s^2|m/s^2|in/s^2|ft/s^2|g"),                                             MQ_TEXT("micron/s^2|mills/s^2")},
    {19,   MQ_TEXT("N.m|ft.lbs|Cal"),                                                                  MQ_TEXT("BTU|J|J|joule|ergs")},
    {20,   MQ_TEXT("N.m/m^3|ft.lbs/ft^3|Cal/m^3"),                                                     MQ_TEXT("BTU/in^3|Cal/m^3|Cal/m^3")},
    {21,   MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/Hz|MPa^2/Hz|ksi^2/Hz"),                         MQ_TEXT("")},
    {22,   MQ_TEXT("mm^2/Hz|cm^2/Hz|m^2/Hz|in^2/Hz|ft^2/Hz|(ft-in)^2/Hz"),                             MQ_TEXT("am^2/Hz|nm^2/Hz|micron^2/Hz|mil^2/Hz|microIn^2/Hz")},
    {23,   MQ_TEXT("(mm/sec)^2/Hz|(cm/sec)^2/Hz|(m/sec)^2/Hz|(in/sec)^2/Hz|(ft/sec)^2/Hz"),            MQ_TEXT("(micron/sec)^2/Hz|(mills/sec)^2/Hz")},
    {24,   MQ_TEXT("(mm/s^2)^2/Hz|(cm/s^2)^2/Hz|(m/s^2)^2/Hz|(in/s^2)^2/Hz|(ft/s^2)^2/Hz|g^2/Hz"),     MQ_TEXT("(micron/s^2)^2/Hz|(mills/s^2)^2/Hz")},
    {27,   MQ_TEXT("rad/s|Hz|rpm|rad/s"),                                                              MQ_TEXT("rad/s|rad/s|deg/s")},
    {28,   MQ_TEXT("(rad/s)^2/Hz|Hz|rpm^2/Hz|(rad/s)^2/Hz"),                                           MQ_TEXT("(rad/s)^2/Hz|(rad/s)^2/Hz")},
    {29,   MQ_TEXT("rad/s^2|Hz/s|rpm^2|deg/s^2"),                                                      MQ_TEXT("")},
    {30,   MQ_TEXT("(rad/s^2)^2/Hz|Hz/s^2|rpm^4/Hz|rad/s"),                                            MQ_TEXT("")},  // the last is an angular velocity
    {31,   MQ_TEXT("kg|lb|kg|g"),                                                                      MQ_TEXT("kg|kg")},
    {34,   MQ_TEXT("am|nm|micron|mm|cm|m|microIn|mil|in|ft"),                                          MQ_TEXT("ft-in")},
    {35,   MQ_TEXT("Watt|BTU/s|Cal/s|KCal/s"),                                                         MQ_TEXT("")},
    {36,   MQ_TEXT("Joule|BTU|Cal|KCal"),                                                              MQ_TEXT("")},
    {37,   MQ_TEXT("sec|min|hr|day"),                                                                  MQ_TEXT("")},
    {38,   MQ_TEXT(""),                                                                                MQ_TEXT("kg|lb|kg|g|kg|kg")},
    {39,   MQ_TEXT(""),                                                                                MQ_TEXT("m^3|in^3|cm^3|cm^3|m^3|m^3")},
    {40,   MQ_TEXT(""),                                                                                MQ_TEXT("m^2|in^2|cm^2|cm^2|m^2|m^2")},
});

struct CountRow {
  int unitType;
  int offered;
  int stored;
};

constexpr auto kCounts = std::to_array<CountRow>({
    // type offered stored
    { 0,    10,     11},
    { 1,     3,      3},
    { 2,     3,      4},
    { 3,     3,      7},
    { 4,     5,      5},
    { 5,     3,      3},
    { 6,     3,      3},
    { 7,     3,      3},
    { 8,     2,      3},
    { 9,     4,      4},
    {10,     6,      6},
    {11,     6,      6},
    {12,     6,      6},
    {13,     6,      6},
    {14,     5,     14},
    {15,     9,      9},
    {16,     6,      6},
    {17,     3,      6},
    {18,     6,      8},
    {19,     3,      8},
    {20,     3,      6},
    {21,     5,      5},
    {22,     6,     11},
    {23,     5,      7},
    {24,     6,      8},
    {25,     0,      0},
    {26,     0,      0},
    {27,     4,      7},
    {28,     4,      6},
    {29,     4,      4},
    {30,     4,      4},
    {31,     4,      6},
    {32,     0,      0},
    {33,     0,      0},
    {34,    10,     11},
    {35,     4,      4},
    {36,     4,      4},
    {37,     4,      4},
    {38,     0,      6},
    {39,     0,      6},
    {40,     0,      6},
});

/// The default units of a quantity, and a component that has the quantity.
struct DefaultRow {
  int unitType;
  int si;
  int english;
  int metric;
  Study analysisType;
  Result resultType;
  int component;
  int option;
  int optionFlag;
};

/// Every quantity that a component can have.
constexpr auto kDefaults = std::to_array<DefaultRow>({
    // type SI English Metric  a component
    {   0,  2,  3,  1,  Study::Static,     Result::Displacement,        0, 0, 0},  // m, in, cm
    {   1,  0,  1,  2,  Study::Static,     Result::ResultType65,        0, 0, 0},
    {   2,  0,  1,  2,  Study::Static,     Result::Displacement,        4, 0, 0},
    {   3,  0,  1,  2,  Study::Static,     Result::Displacement,       11, 0, 0},
    {   4,  0,  1,  2,  Study::Static,     Result::Stress,              9, 0, 0},
    {   5,  0,  1,  2,  Study::Thermal,    Result::Thermal,             0, 0, 0},
    {   6,  0,  1,  2,  Study::Thermal,    Result::Thermal,             4, 0, 0},
    {   7,  0,  1,  2,  Study::Thermal,    Result::Thermal,             8, 0, 0},
    {   8,  0,  1,  2,  Study::Frequency,  Result::ModeFrequency,       0, 0, 0},  // two are offered
    {   9,  0,  1,  2,  Study::Static,     Result::Displacement,        8, 0, 0},
    {  10,  0,  1,  2,  Study::FlowImport, Result::FlowHeatTransfer,    1, 0, 0},
    {  11,  0,  1,  2,  Study::FlowImport, Result::FlowFluidProperty,   0, 0, 0},
    {  12,  0,  1,  2,  Study::FlowImport, Result::FlowFluidProperty,   3, 0, 0},
    {  13,  0,  1,  2,  Study::FlowImport, Result::FlowHeatTransfer,    2, 0, 0},
    {  14,  0,  1,  2,  Study::Stepped,    Result::Velocity,            3, 0, 0},
    {  16,  0,  1,  2,  Study::FlowImport, Result::FlowHeatTransfer,    4, 0, 0},
    {  17,  0,  1,  2,  Study::FlowImport, Result::FlowFluidProperty,   4, 0, 0},
    {  18,  0,  1,  2,  Study::Stepped,    Result::Acceleration,        3, 0, 0},
    {  19,  0,  1,  2,  Study::Static,     Result::Strain,              8, 0, 0},
    {  20,  0,  1,  2,  Study::Static,     Result::Strain,              7, 0, 0},
    {  21,  0,  1,  2,  Study::Dynamic,    Result::Stress,              9, 2, 1},
    {  22,  2,  3,  1,  Study::Dynamic,    Result::Displacement,        0, 2, 1},  // m^2/Hz, in^2/Hz, cm^2/Hz
    {  23,  0,  1,  2,  Study::Dynamic,    Result::Velocity,            3, 2, 1},
    {  24,  0,  1,  2,  Study::Dynamic,    Result::Acceleration,        3, 2, 1},
    {  25,  0,  0,  0,  Study::Dynamic,    Result::Displacement,       11, 2, 1},  // no names
    {  26,  0,  0,  0,  Study::Dynamic,    Result::Displacement,        4, 2, 1},  // no names
    {  27,  0,  1,  1,  Study::Stepped,    Result::Velocity,            4, 0, 0},  // Hz twice
    {  28,  0,  1,  2,  Study::Dynamic,    Result::Velocity,            4, 2, 1},
    {  29,  0,  1,  2,  Study::Stepped,    Result::Acceleration,        4, 0, 0},
    {  30,  0,  1,  2,  Study::Dynamic,    Result::Acceleration,        4, 2, 1},
    {  35,  0,  1,  2,  Study::Thermal,    Result::Thermal,             9, 0, 0},
    {  36,  0,  1,  2,  Study::Thermal,    Result::Thermal,            10, 0, 0},
    {  37,  0,  1,  2,  Study::Fatigue,    Result::FatigueResult,       4, 0, 0},
    {  38,  0,  0,  0,  Study::Static,     Result::MassProperties,      0, 0, 0},  // none is offered
    {  39,  0,  0,  0,  Study::Static,     Result::MassProperties,      1, 0, 0},  // none is offered
    {  40,  0,  0,  0,  Study::Static,     Result::MassProperties,      2, 0, 0},  // none is offered
    { kNo,  0,  0,  0,  Study::Static,     Result::Strain,              0, 0, 0},
});

// clang-format on

constexpr auto kSweptOptions = std::to_array<int>({-1, 0, 1, 2, 3, INT_MIN, INT_MAX});
constexpr auto kSweptOptionFlags = std::to_array<int>({-1, 0, 1, 2});
constexpr auto kSweptDisplayFlags = std::to_array<int>({0, 1, 2, -1});
constexpr auto kSweptUnitSystems =
    std::to_array<int>({-2, -1, 0, 1, 2, 3, 4, 256, INT_MIN, INT_MAX});

bool IsTrue(When when, int displayFlag, int option, int optionFlag) {
  const bool isSpectral = option == 2 && optionFlag != 0;
  switch (when) {
    case Always: return true;
    case FlagIsOne: return displayFlag == 1;
    case Plain: return !isSpectral;
    case Spectral: return isSpectral;
  }
  return false;
}

/// What the tables say of a result: first what holds in every study, then what a study says, then
/// the masses and lengths that no study but one denies.
const QuantitiesRow& ExpectedQuantities(int displayFlag, int analysisType, int resultType,
                                        int option, int optionFlag) {
  const auto everywhere = std::ranges::find_if(
      kInEveryStudy, [=](const QuantitiesRow& row) { return Code(row.resultType) == resultType; });
  if (everywhere != kInEveryStudy.end()) {
    return *everywhere;
  }
  const auto inStudy = std::ranges::find_if(kByStudy, [=](const QuantitiesRow& row) {
    return Code(row.analysisType) == analysisType && Code(row.resultType) == resultType &&
           IsTrue(row.when, displayFlag, option, optionFlag);
  });
  if (inStudy != kByStudy.end()) {
    return *inStudy;
  }
  return resultType == Code(Result::MassProperties) ? kMassProperties : kNoQuantities;
}

int UnitTypeOf(Study analysisType, Result resultType, int component, int option = 0,
               int optionFlag = 0) {
  return vekPostCommonGetUnitType(Code(analysisType), Code(resultType), component, option,
                                  optionFlag);
}

int DefaultUnitOf(int unitSystem, Study analysisType, Result resultType, int component,
                  int option = 0, int optionFlag = 0) {
  return vekPostCommonGetComponentUnitsBasedOnSystemUnit(
      unitSystem, Code(analysisType), Code(resultType), component, option, optionFlag);
}

Text UnitName(int unitType, int index) {
  return Text(vekPostCommonGetUnitName(unitType, index).View());
}

/// The names of a joined text; none for an empty one.
std::vector<Text> Split(mqTextView joined) {
  std::vector<Text> names;
  while (!joined.empty()) {
    const std::size_t end = std::min(joined.find(mqChar{'|'}), joined.size());
    names.emplace_back(joined.substr(0, end));
    joined.remove_prefix(std::min(end + 1, joined.size()));
  }
  return names;
}

/// Every stored name of a quantity, in order of the index; none for a quantity without a row.
std::vector<Text> ExpectedNames(int unitType) {
  const auto row = std::ranges::find(kNames, unitType, &NamesRow::unitType);
  if (row == kNames.end()) {
    return {};
  }
  std::vector<Text> names = Split(row->offered);
  std::ranges::copy(Split(row->onlyStored), std::back_inserter(names));
  return names;
}

int ExpectedTotal(int unitType) {
  const auto row = std::ranges::find(kCounts, unitType, &CountRow::unitType);
  return row == kCounts.end() ? 0 : row->offered;
}

/// The row of a quantity that a component can have.
const DefaultRow& DefaultsOf(int unitType) {
  const auto row = std::ranges::find(kDefaults, unitType, &DefaultRow::unitType);
  if (row == kDefaults.end()) {
    ADD_FAILURE() << "no defaults are listed for unit type " << unitType;
    return kDefaults.back();
  }
  return *row;
}

int ExpectedDefault(const DefaultRow& row, int unitSystem) {
  switch (unitSystem) {
    case 0: return row.si;
    case 1: return row.english;
    default: return row.metric;
  }
}

/// Calls `visit(row, displayFlag, analysisType, resultType, option, optionFlag)` for every display
/// flag, pair of codes and pair of options; the flag is set meanwhile.
template <class Visit>
void ForEveryResult(Visit visit) {
  for (const int displayFlag : kSweptDisplayFlags) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kSweptCodes) {
      for (const int resultType : kSweptCodes) {
        for (const int option : kSweptOptions) {
          for (const int optionFlag : kSweptOptionFlags) {
            visit(ExpectedQuantities(displayFlag, analysisType, resultType, option, optionFlag),
                  displayFlag, analysisType, resultType, option, optionFlag);
          }
        }
      }
    }
  }
}

// The quantity of a component

TEST(UnitType, IsAsListedForEveryCodeOptionAndFlag) {
  Sweep sweep({"flag", "analysis type", "result type", "component", "option", "option flag"});
  ForEveryResult([&](const QuantitiesRow& row, int displayFlag, int analysisType, int resultType,
                     int option, int optionFlag) {
    for (const int component : kSweptCodes) {
      sweep.Check(row.Of(component),
                  vekPostCommonGetUnitType(analysisType, resultType, component, option, optionFlag),
                  displayFlag, analysisType, resultType, component, option, optionFlag);
    }
  });
}

TEST(UnitType, OfANegativeComponentIsThatOfOneBeyondEveryList) {
  for (const int component : {-1, -2, INT_MIN}) {
    SCOPED_TRACE(component);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::ResultType53, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::ResultType54, component), 3);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::ResultType18, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::Displacement, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::Stress, component), 4);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::MassProperties, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Thermal, Result::Thermal, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Stepped, Result::Velocity, component), 14);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Acceleration, component, 2, 1), 24);
    EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowWallLoad, component), 9999);
    EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowPressure, component), 4);
  }
}

TEST(UnitType, OfADynamicStressIsADensityWithOptionTwoAndItsFlagOnly) {
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 2, 1), 21);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 2, -1), 21);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 2, 0), 4);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 1, 1), 4);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 3, 1), 4);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 258, 1), 4);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 9, 2, 256), 21);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 100, 2, 1), 21);
  EXPECT_EQ(UnitTypeOf(Study::Stepped, Result::Stress, 9, 2, 1), 4);
}

TEST(UnitType, OfADynamicRotationAndStrainIsNoDensity) {
  for (const int optionFlag : {0, 1}) {
    SCOPED_TRACE(optionFlag);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 8, 2, optionFlag), 9);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 10, 2, optionFlag), 9);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Strain, 7, 2, optionFlag), 20);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Strain, 8, 2, optionFlag), 19);
  }
}

TEST(UnitType, OfSpectralReactionsExistsAlthoughItHasNoNames) {
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 4, 2, 1), 26);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 7, 2, 1), 26);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 11, 2, 1), 25);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Displacement, 14, 2, 1), 25);
  for (const int unitType : {25, 26}) {
    SCOPED_TRACE(unitType);
    EXPECT_EQ(vekPostCommonGetUnitTotal(unitType), 0);
    EXPECT_EQ(UnitName(unitType, 0), Text());
  }
}

TEST(UnitType, OfMassPropertiesIsGivenInEveryStudyButFatigue) {
  for (const int analysisType : kSweptCodes) {
    SCOPED_TRACE(analysisType);
    const bool isFatigue = analysisType == 7;
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 0, 0, 0), isFatigue ? 9999 : 38);
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 1, 0, 0), isFatigue ? 9999 : 39);
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 2, 0, 0), isFatigue ? 9999 : 40);
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 3, 0, 0), isFatigue ? 9999 : 0);
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 5, 0, 0), isFatigue ? 9999 : 0);
    EXPECT_EQ(vekPostCommonGetUnitType(analysisType, 71, 6, 0, 0), 9999);
  }
}

TEST(UnitType, OfAModeShapeExistsWhileTheDisplayFlagIsExactlyOne) {
  for (const int displayFlag : {0, 2, -1, 257, INT_MIN, INT_MAX}) {
    SCOPED_TRACE(displayFlag);
    const ActualFrequencyFlag flag(displayFlag);
    EXPECT_EQ(UnitTypeOf(Study::Frequency, Result::Displacement, 0), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 3), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 4), 9999);
  }
  const ActualFrequencyFlag flag(1);
  EXPECT_EQ(UnitTypeOf(Study::Frequency, Result::Displacement, 0), 0);
  EXPECT_EQ(UnitTypeOf(Study::Frequency, Result::Displacement, 3), 0);
  EXPECT_EQ(UnitTypeOf(Study::Frequency, Result::Displacement, 4), 9999);
  EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 3), 0);
  EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 4), 9);
  EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 6), 9);
  EXPECT_EQ(UnitTypeOf(Study::Buckling, Result::Displacement, 7), 9999);
}

TEST(UnitType, OfAStaticDisplacementDoesNotDependOnTheDisplayFlag) {
  for (const int displayFlag : kSweptDisplayFlags) {
    SCOPED_TRACE(displayFlag);
    const ActualFrequencyFlag flag(displayFlag);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::Displacement, 0), 0);
    EXPECT_EQ(UnitTypeOf(Study::Static, Result::Displacement, 8), 9);
  }
}

TEST(UnitType, OfStressComponent12IsMissingInAStaticStudyOnly) {
  for (const Result resultType : {Result::Stress, Result::StressAlt, Result::BeamStress}) {
    SCOPED_TRACE(Code(resultType));
    EXPECT_EQ(UnitTypeOf(Study::Static, resultType, 11), 4);
    EXPECT_EQ(UnitTypeOf(Study::Static, resultType, 12), 9999);
    EXPECT_EQ(UnitTypeOf(Study::Static, resultType, 13), 4);
  }
  EXPECT_EQ(UnitTypeOf(Study::Static, Result::FactorOfSafety, 12), 4);
  EXPECT_EQ(UnitTypeOf(Study::Stepped, Result::Stress, 12), 4);
  EXPECT_EQ(UnitTypeOf(Study::SteppedReduced, Result::BeamStress, 12), 4);
  EXPECT_EQ(UnitTypeOf(Study::Dynamic, Result::Stress, 12), 4);
}

TEST(UnitType, OfTheSecondStressAndStrainExistsInAStaticStudyOnly) {
  EXPECT_EQ(UnitTypeOf(Study::Static, Result::StressAlt, 0), 4);
  EXPECT_EQ(UnitTypeOf(Study::Static, Result::StrainAlt, 7), 20);
  EXPECT_EQ(UnitTypeOf(Study::Static, Result::StrainAlt, 8), 19);
  for (const Study analysisType : {Study::Stepped, Study::SteppedReduced, Study::Dynamic}) {
    SCOPED_TRACE(Code(analysisType));
    EXPECT_EQ(UnitTypeOf(analysisType, Result::StressAlt, 0), 9999);
    EXPECT_EQ(UnitTypeOf(analysisType, Result::StrainAlt, 7), 9999);
    EXPECT_EQ(UnitTypeOf(analysisType, Result::StrainAlt, 8), 9999);
  }
}

TEST(UnitType, OfABeamStressAndAFactorOfSafetyIsMissingInADynamicStudy) {
  for (const Result resultType : {Result::BeamStress, Result::FactorOfSafety}) {
    SCOPED_TRACE(Code(resultType));
    EXPECT_EQ(UnitTypeOf(Study::Static, resultType, 0), 4);
    EXPECT_EQ(UnitTypeOf(Study::Stepped, resultType, 0), 4);
    EXPECT_EQ(UnitTypeOf(Study::SteppedReduced, resultType, 0), 4);
    EXPECT_EQ(UnitTypeOf(Study::Dynamic, resultType, 0), 9999);
  }
}

TEST(UnitType, OfHeatPowerAndEnergyExistsBeyondTheCount) {
  EXPECT_EQ(UnitTypeOf(Study::Thermal, Result::Thermal, 9), 35);
  EXPECT_EQ(UnitTypeOf(Study::Thermal, Result::Thermal, 10), 36);
  EXPECT_EQ(UnitTypeOf(Study::Thermal, Result::Thermal, 11), 9999);
}

TEST(UnitType, OfAnImportedFlowLeavesHolesBetweenTheComponents) {
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowPressure, 4), 9999);
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowPressure, 5), 4);
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowFluidProperty, 2), 9999);
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowTemperature, 1), 9999);
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowHeatTransfer, 0), 9999);
  EXPECT_EQ(UnitTypeOf(Study::FlowImport, Result::FlowHeatTransfer, 3), 9999);
}

// The number of offered names

TEST(UnitTotal, IsAsListedForEveryCode) {
  Sweep sweep({"unit type"});
  for (const int unitType : kSweptCodes) {
    sweep.Check(ExpectedTotal(unitType), vekPostCommonGetUnitTotal(unitType), unitType);
  }
  for (const int unitType : {9998, 9999, 10000}) {
    sweep.Check(0, vekPostCommonGetUnitTotal(unitType), unitType);
  }
}

TEST(UnitTotal, OfMassVolumeAndAreaIsZeroAlthoughTheyHaveNames) {
  EXPECT_EQ(vekPostCommonGetUnitTotal(38), 0);
  EXPECT_EQ(UnitName(38, 1), MQ_TEXT("lb"));
  EXPECT_EQ(vekPostCommonGetUnitTotal(39), 0);
  EXPECT_EQ(UnitName(39, 1), MQ_TEXT("in^3"));
  EXPECT_EQ(vekPostCommonGetUnitTotal(40), 0);
  EXPECT_EQ(UnitName(40, 1), MQ_TEXT("in^2"));
}

// The names

TEST(UnitName, IsAsListedForEveryCodeAndIndex) {
  Sweep sweep({"unit type", "index"});
  const auto check = [&](int unitType) {
    const std::vector<Text> names = ExpectedNames(unitType);
    for (const int index : kSweptCodes) {
      const bool isStored = index >= 0 && index < static_cast<int>(names.size());
      sweep.Check(isStored ? names[static_cast<std::size_t>(index)] : Text(),
                  UnitName(unitType, index), unitType, index);
    }
  };
  for (const int unitType : kSweptCodes) {
    check(unitType);
  }
  check(9998);
  check(10000);
}

TEST(UnitName, EndsWithTheLastStoredOne) {
  for (const CountRow& row : kCounts) {
    SCOPED_TRACE(row.unitType);
    for (int index = 0; index < row.stored; ++index) {
      EXPECT_NE(UnitName(row.unitType, index), Text()) << "at " << index;
    }
    EXPECT_EQ(UnitName(row.unitType, row.stored), Text());
  }
}

TEST(UnitName, HasNoBlanksAtItsEnds) {
  for (const CountRow& row : kCounts) {
    for (int index = 0; index < row.stored; ++index) {
      CString trimmed = vekPostCommonGetUnitName(row.unitType, index);
      trimmed.Trim();
      EXPECT_EQ(UnitName(row.unitType, index), Text(trimmed.View()))
          << "of unit type " << row.unitType << " at " << index;
    }
  }
}

TEST(UnitName, OfAStressMayHoldABlankAndABracket) {
  EXPECT_EQ(UnitName(4, 3), MQ_TEXT("N/mm^2 (MPa)"));
}

TEST(UnitName, OfUnitType1IsThatOfTheUnitSystem) {
  EXPECT_EQ(UnitName(1, Code(UnitSystem::SI)), MQ_TEXT("SI"));
  EXPECT_EQ(UnitName(1, Code(UnitSystem::English)), MQ_TEXT("English (IPS)"));
  EXPECT_EQ(UnitName(1, Code(UnitSystem::Metric)), MQ_TEXT("Metric (G)"));
}

TEST(UnitName, IsEmptyRatherThanBlankWhereThereIsNone) {
  EXPECT_EQ(UnitName(9999, 0), Text());
  EXPECT_EQ(UnitName(25, 0), Text());
  EXPECT_EQ(UnitName(26, 0), Text());
  EXPECT_EQ(UnitName(32, 0), Text());
  EXPECT_EQ(UnitName(33, 0), Text());
  EXPECT_EQ(UnitName(41, 0), Text());
  EXPECT_EQ(UnitName(-1, 0), Text());
  EXPECT_EQ(UnitName(5, -1), Text());
}

TEST(UnitName, OfTheFourthAngularAccelerationDensityIsAnAngularVelocity) {
  EXPECT_EQ(UnitName(30, 3), MQ_TEXT("rad/s"));
  EXPECT_EQ(UnitName(30, 3), UnitName(27, 0));
}

TEST(UnitName, HoldsTheDegreeSignAsOneCodeUnit) {
  const Text name = UnitName(16, 1);
  ASSERT_EQ(name.size(), 15U);
  EXPECT_EQ(static_cast<int>(name[12]), 0x00B0);
  EXPECT_EQ(static_cast<int>(name[13]), 'F');
}

TEST(UnitName, LacksADegreeSignOrASlashInSomeLists) {
  EXPECT_EQ(UnitName(6, 1), MQ_TEXT("F/in"));
  EXPECT_EQ(UnitName(6, 2), MQ_TEXT("C/cm"));
  EXPECT_EQ(UnitName(12, 1), MQ_TEXT("lb(in.s)"));
  EXPECT_EQ(UnitName(12, 2), MQ_TEXT("kg(cm.s)"));
}

TEST(UnitName, OfTheSecondAngularDensityIsInHertz) {
  EXPECT_EQ(UnitName(28, 1), MQ_TEXT("Hz"));
  EXPECT_EQ(UnitName(30, 1), MQ_TEXT("Hz/s^2"));
}

TEST(UnitName, RepeatsTheSIUnitBehindTheUnitSystemsThatExist) {
  for (const int unitType : {10, 11, 12, 13, 16, 31, 38, 39, 40}) {
    SCOPED_TRACE(unitType);
    EXPECT_EQ(UnitName(unitType, 4), UnitName(unitType, 0));
    EXPECT_EQ(UnitName(unitType, 5), UnitName(unitType, 0));
  }
}

TEST(UnitName, OfTheMassOfMassPropertiesIsThatOfAMass) {
  for (int index = 0; index < 7; ++index) {
    EXPECT_EQ(UnitName(38, index), UnitName(31, index)) << "at " << index;
  }
}

// The default unit

TEST(DefaultUnit, IsAsListedForEveryQuantity) {
  for (const DefaultRow& row : kDefaults) {
    SCOPED_TRACE(row.unitType);
    const auto got = [&row](UnitSystem unitSystem) {
      return DefaultUnitOf(Code(unitSystem), row.analysisType, row.resultType, row.component,
                           row.option, row.optionFlag);
    };
    EXPECT_EQ(
        UnitTypeOf(row.analysisType, row.resultType, row.component, row.option, row.optionFlag),
        row.unitType);
    EXPECT_EQ(got(UnitSystem::SI), row.si);
    EXPECT_EQ(got(UnitSystem::English), row.english);
    EXPECT_EQ(got(UnitSystem::Metric), row.metric);
  }
}

TEST(DefaultUnit, IsThatOfTheQuantityForEveryCodeAndUnitSystem) {
  Sweep sweep({"unit system", "flag", "analysis type", "result type", "component", "option",
               "option flag"});
  const auto check = [&](int displayFlag, int option, int optionFlag) {
    const ActualFrequencyFlag flag(displayFlag);
    for (const int analysisType : kSweptCodes) {
      for (const int resultType : kSweptCodes) {
        const QuantitiesRow& row =
            ExpectedQuantities(displayFlag, analysisType, resultType, option, optionFlag);
        for (const int component : kSweptCodes) {
          const DefaultRow& defaults = DefaultsOf(row.Of(component));
          for (const int unitSystem : kSweptUnitSystems) {
            sweep.Check(ExpectedDefault(defaults, unitSystem),
                        vekPostCommonGetComponentUnitsBasedOnSystemUnit(
                            unitSystem, analysisType, resultType, component, option, optionFlag),
                        unitSystem, displayFlag, analysisType, resultType, component, option,
                        optionFlag);
          }
        }
      }
    }
  };
  check(0, 0, 0);
  check(1, 2, 0);
  check(1, 2, -1);
  check(2, 2, 1);
  check(-1, 1, 1);
}

TEST(DefaultUnit, OfALengthIsMetreInchOrCentimetre) {
  EXPECT_EQ(DefaultUnitOf(0, Study::Static, Result::Displacement, 0), 2);
  EXPECT_EQ(UnitName(0, 2), MQ_TEXT("m"));
  EXPECT_EQ(DefaultUnitOf(1, Study::Static, Result::Displacement, 0), 3);
  EXPECT_EQ(UnitName(0, 3), MQ_TEXT("in"));
  EXPECT_EQ(DefaultUnitOf(2, Study::Static, Result::Displacement, 0), 1);
  EXPECT_EQ(UnitName(0, 1), MQ_TEXT("cm"));
}

TEST(DefaultUnit, OfADisplacementDensityFollowsTheLength) {
  EXPECT_EQ(DefaultUnitOf(0, Study::Dynamic, Result::Displacement, 0, 2, 1), 2);
  EXPECT_EQ(UnitName(22, 2), MQ_TEXT("m^2/Hz"));
  EXPECT_EQ(DefaultUnitOf(1, Study::Dynamic, Result::Displacement, 0, 2, 1), 3);
  EXPECT_EQ(UnitName(22, 3), MQ_TEXT("in^2/Hz"));
  EXPECT_EQ(DefaultUnitOf(2, Study::Dynamic, Result::Displacement, 0, 2, 1), 1);
  EXPECT_EQ(UnitName(22, 1), MQ_TEXT("cm^2/Hz"));
}

TEST(DefaultUnit, OfAnUnknownUnitSystemIsThatOfMetric) {
  for (const int unitSystem : {-1, 3, 4, 256, INT_MIN, INT_MAX}) {
    SCOPED_TRACE(unitSystem);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Static, Result::Displacement, 0), 1);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Static, Result::Stress, 0), 2);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Stepped, Result::Velocity, 4), 1);
  }
}

TEST(DefaultUnit, OfAFrequencyInMetricIsANameThatIsNotOffered) {
  EXPECT_EQ(vekPostCommonGetUnitTotal(8), 2);
  EXPECT_EQ(DefaultUnitOf(2, Study::Frequency, Result::ModeFrequency, 0), 2);
  EXPECT_EQ(UnitName(8, 2), MQ_TEXT("rad/s"));
}

TEST(DefaultUnit, OfAnAngularVelocityIsHertzInEnglishAndInMetric) {
  EXPECT_EQ(DefaultUnitOf(0, Study::Stepped, Result::Velocity, 4), 0);
  EXPECT_EQ(DefaultUnitOf(1, Study::Stepped, Result::Velocity, 4), 1);
  EXPECT_EQ(DefaultUnitOf(2, Study::Stepped, Result::Velocity, 4), 1);
  EXPECT_EQ(UnitName(27, 1), MQ_TEXT("Hz"));
}

TEST(DefaultUnit, OfAnAngleIsDegreesMinutesOrSeconds) {
  EXPECT_EQ(DefaultUnitOf(0, Study::Static, Result::Displacement, 8), 0);
  EXPECT_EQ(UnitName(9, 0), MQ_TEXT("deg"));
  EXPECT_EQ(DefaultUnitOf(1, Study::Static, Result::Displacement, 8), 1);
  EXPECT_EQ(UnitName(9, 1), MQ_TEXT("deg_min"));
  EXPECT_EQ(DefaultUnitOf(2, Study::Static, Result::Displacement, 8), 2);
  EXPECT_EQ(UnitName(9, 2), MQ_TEXT("deg_min_sec"));
}

TEST(DefaultUnit, IsTheFirstWhereNoneIsOffered) {
  for (const int unitSystem : {0, 1, 2}) {
    SCOPED_TRACE(unitSystem);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Static, Result::MassProperties, 1), 0);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Static, Result::Strain, 0), 0);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Dynamic, Result::Displacement, 4, 2, 1), 0);
    EXPECT_EQ(DefaultUnitOf(unitSystem, Study::Dynamic, Result::Displacement, 11, 2, 1), 0);
  }
}

TEST(DefaultUnit, OfAModeShapeFollowsTheDisplayFlag) {
  {
    const ActualFrequencyFlag flag(1);
    EXPECT_EQ(DefaultUnitOf(0, Study::Frequency, Result::Displacement, 0), 2);
    EXPECT_EQ(DefaultUnitOf(2, Study::Buckling, Result::Displacement, 4), 2);
  }
  const ActualFrequencyFlag flag(2);
  EXPECT_EQ(DefaultUnitOf(0, Study::Frequency, Result::Displacement, 0), 0);
  EXPECT_EQ(DefaultUnitOf(2, Study::Buckling, Result::Displacement, 4), 0);
}

}  // namespace
