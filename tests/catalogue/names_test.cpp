#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/names.h>

#include "catalogue_test_support.h"
#include "name_test_support.h"

namespace mqp::test {
namespace {

// ---- tables of the expected names ---------------------------------------------------------

/// The condition under which a line holds.
enum class When {
  Always,
  FirstNames,      // alternateNames zero
  AlternateNames,  // alternateNames not zero
  FlagSet,         // the actual-frequency display flag is not zero
  FlagClear,
  BeamMesh,
  OtherMesh,
};

struct Options {
  int meshKind = 0;
  int alternateNames = 0;
  int flag = 0;
};

bool Holds(When when, const Options& options) {
  switch (when) {
    case When::Always: return true;
    case When::FirstNames: return options.alternateNames == 0;
    case When::AlternateNames: return options.alternateNames != 0;
    case When::FlagSet: return options.flag != 0;
    case When::FlagClear: return options.flag == 0;
    case When::BeamMesh: return options.meshKind == 4;
    case When::OtherMesh: return options.meshKind != 4;
  }
  return false;
}

/// The component of a line whose one name is that of every component.
constexpr int kEveryComponent = -1;

/// Names of components from `first` on; the place behind the last name holds 0.
struct NameRow {
  std::optional<Study> study;
  std::optional<Result> result;
  When when;
  int first;
  std::array<UINT, 17> ids;
};

// clang-format off

// Full names that do not depend on the study, and the one list of names by study alone. Their
// result types are looked for here and nowhere else.
constexpr auto kFullNamesOfEveryStudy = std::to_array<NameRow>({
    // study          result                  when          first            ids
    { kAnyStudy,        Result::ResultType53,   When::Always, 0,               { 50507, 54262, 54263, 50760, 53101 } },
    { kAnyStudy,        Result::ResultType54,   When::Always, 0,               { 51767, 53953, 53954, 53955, 53963, 51761 } },
    { kAnyStudy,        Result::FactorOfSafety, When::Always, 0,               { 53574, 53575, 50018, 50019, 53576 } },
    { kAnyStudy,        Result::ResultType62,   When::Always, kEveryComponent, { 53576 } },
    { Study::Static,    Result::ResultType56,   When::Always, kEveryComponent, { 54470 } },
    { Study::Frequency, Result::ResultType56,   When::Always, kEveryComponent, { 54472 } },
    { Study::Buckling,  Result::ResultType56,   When::Always, kEveryComponent, { 54473 } },
    { Study::Stepped,   Result::ResultType56,   When::Always, kEveryComponent, { 54471 } },
    { kAnyStudy,        Result::StressAlt,      When::Always, kEveryComponent, { 54525 } },
    { kAnyStudy,        Result::ResultType0,    When::Always, kEveryComponent, { 50330 } },
    { kAnyStudy,        Result::BucklingResult, When::Always, kEveryComponent, { 54629 } },
    { kAnyStudy,        Result::ResultType66,   When::Always, kEveryComponent, { 55541 } },
});

constexpr auto kFullNames = std::to_array<NameRow>({
    // study               result                  when                  first ids
    { Study::Static,         Result::Displacement,   When::FirstNames,     0,   { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::Static,         Result::Displacement,   When::AlternateNames, 0,   { 54751, 54752, 54753, 50341, 54754, 54755, 54756, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::Static,         Result::Stress,         When::Always,         0,   { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718, 54494, 54495 } },
    { Study::Static,         Result::Strain,         When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Static,         Result::StrainAlt,      When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Static,         Result::ResultType55,   When::Always,         0,   { 53157, 53158, 53159, 53160 } },
    { Study::Static,         Result::ResultType18,   When::Always,         0,   { 53154, 53156, 53155 } },  // the middle ones are exchanged
    { Study::Static,         Result::MassProperties, When::Always,         0,   { 51060, 53401, 53402, 53403, 53404, 53405 } },
    { Study::Static,         Result::BeamStress,     When::Always,         0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },

    { Study::Frequency,      Result::Displacement,   When::FlagSet,        0,   { 54578, 54579, 54580, 50341, 54584, 54585, 54586 } },
    { Study::Frequency,      Result::Displacement,   When::FlagClear,      0,   { 54865, 54866, 54867, 54868, 55269, 55270, 55271 } },
    { Study::Buckling,       Result::Displacement,   When::FlagSet,        0,   { 54578, 54579, 54580, 50341, 54584, 54585, 54586 } },
    { Study::Buckling,       Result::Displacement,   When::FlagClear,      0,   { 54865, 54866, 54867, 54868, 55269, 55270, 55271 } },

    { Study::Thermal,        Result::Thermal,        When::Always,         0,   { 54612, 54613, 54614, 54615, 54616, 54617, 54618, 54619, 50264, 54555, 54556 } },

    { Study::Fatigue,        kAnyResult,             When::Always,         0,   { 54745, 54746, 54020, 54749, 54745 } },  // the last repeats the first

    { Study::Dynamic,        Result::Displacement,   When::FirstNames,     0,   { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590, 54419 } },
    { Study::Dynamic,        Result::Displacement,   When::AlternateNames, 0,   { 54751, 54752, 54753, 50341, 54754, 54755, 54756, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590, 54419 } },
    { Study::Dynamic,        Result::Stress,         When::BeamMesh,       0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },
    { Study::Dynamic,        Result::Stress,         When::OtherMesh,      0,   { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085 } },
    { Study::Dynamic,        Result::Stress,         When::OtherMesh,      100, { 56061 } },
    { Study::Dynamic,        Result::Strain,         When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Dynamic,        Result::StrainAlt,      When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Dynamic,        Result::Velocity,       When::Always,         0,   { 54405, 54406, 54407, 54411, 54408, 54409, 54410, 54419 } },
    { Study::Dynamic,        Result::Acceleration,   When::Always,         0,   { 54412, 54413, 54414, 54418, 54415, 54416, 54417 } },
    { Study::Dynamic,        Result::BeamStress,     When::Always,         0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },

    { Study::Stepped,        Result::Displacement,   When::FirstNames,     0,   { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::Stepped,        Result::Displacement,   When::AlternateNames, 0,   { 54751, 54752, 54753, 50341, 54754, 54755, 54756, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::Stepped,        Result::Stress,         When::BeamMesh,       0,   { 52020, 54009, 54010, 54011, 54012 } },
    { Study::Stepped,        Result::Stress,         When::OtherMesh,      0,   { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 } },
    { Study::Stepped,        Result::Strain,         When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Stepped,        Result::StrainAlt,      When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::Stepped,        Result::Velocity,       When::Always,         0,   { 54405, 54406, 54407, 54411, 54408, 54409, 54410, 54419 } },
    { Study::Stepped,        Result::Acceleration,   When::Always,         0,   { 54412, 54413, 54414, 54418, 54415, 54416, 54417 } },
    { Study::Stepped,        Result::BeamStress,     When::Always,         0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },

    { Study::SteppedReduced, Result::Displacement,   When::FirstNames,     0,   { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::SteppedReduced, Result::Displacement,   When::AlternateNames, 0,   { 54751, 54752, 54753, 50341, 54754, 54755, 54756, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Study::SteppedReduced, Result::Stress,         When::BeamMesh,       0,   { 52020, 54009, 54010, 54011, 54012 } },
    { Study::SteppedReduced, Result::Stress,         When::OtherMesh,      0,   { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 } },
    { Study::SteppedReduced, Result::Strain,         When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::SteppedReduced, Result::StrainAlt,      When::Always,         0,   { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Study::SteppedReduced, Result::Velocity,       When::Always,         0,   { 54405, 54406, 54407, 54411, 54408, 54409, 54410, 54419 } },
    { Study::SteppedReduced, Result::Acceleration,   When::Always,         0,   { 54412, 54413, 54414, 54418, 54415, 54416, 54417 } },
    { Study::SteppedReduced, Result::BeamStress,     When::Always,         0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },
});

// Bar names of their own. Their result types never fall back to the full name.
constexpr auto kBarNamesOfEveryStudy = std::to_array<NameRow>({
    // study  result                when          first ids
    { kAnyStudy, Result::ResultType53, When::Always, 0,   { 50507, 54262, 54263, 50760, 53101 } },
    { kAnyStudy, Result::ResultType54, When::Always, 0,   { 51767, 53953, 53954, 53955, 53963, 51761 } },
});

// The bar name of component 1 in a fatigue study depends on the variant and stands in its test.
constexpr auto kBarNames = std::to_array<NameRow>({
    // study               result                  when             first ids
    { Study::Static,         Result::FactorOfSafety, When::Always,    0,   { 53471, 53472 } },
    { Study::Static,         Result::Displacement,   When::Always,    0,   { 53981, 53982, 53983, 53984, 53473, 53474, 53475, 53476, 53477, 53478, 53479, 53480, 53481, 53482, 53483 } },
    { Study::Static,         Result::Stress,         When::Always,    0,   { 53987, 53988, 53989, 53990, 53991, 53992, 53993, 53947, 53994, 53034, 53996, 55084, 52190, 53997, 54498, 54499 } },
    { Study::Static,         Result::StressAlt,      When::Always,    0,   { 53987, 53988, 53989, 53990, 53991, 53992, 53993, 53947, 53994, 53034, 53996, 55084, 52190, 53997, 54498, 54499 } },
    { Study::Static,         Result::BeamStress,     When::Always,    0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },
    { Study::Static,         Result::Strain,         When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::Static,         Result::StrainAlt,      When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },

    { Study::Frequency,      Result::Displacement,   When::FlagSet,   0,   { 53981, 53982, 53983, 53984 } },
    { Study::Frequency,      Result::Displacement,   When::FlagClear, 0,   { 54873, 54874, 54875, 54876 } },
    { Study::Buckling,       Result::Displacement,   When::FlagSet,   0,   { 53981, 53982, 53983, 53984, 53477, 53478, 53479 } },
    { Study::Buckling,       Result::Displacement,   When::FlagClear, 0,   { 54873, 54874, 54875, 54876, 55275, 55276, 55268 } },  // the last leaves the run

    { Study::Thermal,        Result::Thermal,        When::Always,    0,   { 53985, 53986, 54000, 54001, 54002, 54003, 54004, 54005, 54006, 54007, 54008 } },

    { Study::Fatigue,        kAnyResult,             When::Always,    0,   { 54015 } },
    { Study::Fatigue,        kAnyResult,             When::Always,    2,   { 54020, 54021, 54015 } },

    { Study::Dynamic,        Result::Displacement,   When::Always,    0,   { 53981, 53982, 53983, 53984, 53473, 53474, 53475, 53476, 53477, 53478, 53479, 53480, 53481, 53482, 53483 } },
    { Study::Dynamic,        Result::Strain,         When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::Dynamic,        Result::StrainAlt,      When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::Dynamic,        Result::Stress,         When::Always,    0,   { 53987, 53988, 53989, 53990, 53991, 53992, 53993, 53947, 53994, 53034, 53996, 55084 } },  // on a beam mesh as well
    { Study::Dynamic,        Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028 } },
    { Study::Dynamic,        Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },

    { Study::Stepped,        Result::FactorOfSafety, When::Always,    0,   { 53471, 53472 } },
    { Study::Stepped,        Result::Displacement,   When::Always,    0,   { 53981, 53982, 53983, 53984, 53473, 53474, 53475, 53476, 53477, 53478, 53479, 53480, 53481, 53482, 53483 } },
    { Study::Stepped,        Result::Strain,         When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::Stepped,        Result::StrainAlt,      When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::Stepped,        Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028 } },
    { Study::Stepped,        Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },
    { Study::Stepped,        Result::Stress,         When::BeamMesh,  0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },
    { Study::Stepped,        Result::Stress,         When::OtherMesh, 0,   { 53987, 53988, 53989, 53990, 53991, 53992, 53993, 53947, 53994, 53034, 53996, 55084, 52190, 53997 } },

    { Study::SteppedReduced, Result::Displacement,   When::Always,    0,   { 53981, 53982, 53983, 53984, 53473, 53474, 53475, 53476, 53477, 53478, 53479, 53480, 53481, 53482, 53483 } },
    { Study::SteppedReduced, Result::Strain,         When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::SteppedReduced, Result::StrainAlt,      When::Always,    0,   { 53998, 53999, 53971, 53972, 53973, 53974, 53975, 53976, 53977, 53978, 53979, 53980 } },
    { Study::SteppedReduced, Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028 } },
    { Study::SteppedReduced, Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },
    { Study::SteppedReduced, Result::Stress,         When::BeamMesh,  0,   { 52020, 54009, 54010, 54011, 54012, 54013, 54014 } },
    { Study::SteppedReduced, Result::Stress,         When::OtherMesh, 0,   { 53987, 53988, 53989, 53990, 53991, 53992, 53993, 53947, 53994, 53034, 53996, 55084, 52190, 53997 } },
});

constexpr auto kBriefNamesOfEveryStudy = std::to_array<NameRow>({
    // study  result                when          first ids
    { kAnyStudy, Result::ResultType53, When::Always, 0,   { 50507, 54262, 54263, 50760, 53101 } },
    { kAnyStudy, Result::ResultType54, When::Always, 0,   { 51767, 53953, 53954, 53955, 53963, 51761 } },
});

// A frequency study gives the names of its displacement to every result type below 2.
constexpr auto kBriefNames = std::to_array<NameRow>({
    // study               result                  when             first ids
    { Study::Static,         Result::FactorOfSafety, When::Always,    0,   { 53471, 53472 } },
    { Study::Static,         Result::Displacement,   When::Always,    0,   { 54782, 54783, 54784, 54785, 54786, 54787, 54788, 54789, 54790, 54791, 54792, 54793, 54794, 54795, 54796 } },
    { Study::Static,         Result::Stress,         When::Always,    0,   { 54771, 54772, 54773, 54774, 54775, 54776, 54777, 54778, 54779, 54780, 53996, 55084, 52190, 54781, 54496, 54497 } },
    { Study::Static,         Result::StressAlt,      When::Always,    0,   { 54771, 54772, 54773, 54774, 54775, 54776, 54777, 54778, 54779, 54780, 53996, 55084, 52190, 54781, 54496, 54497 } },
    { Study::Static,         Result::Strain,         When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::Static,         Result::StrainAlt,      When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },

    { Study::Frequency,      kAnyResult,             When::FlagSet,   0,   { 54782, 54783, 54784, 54785, 54790, 54791, 54792 } },
    { Study::Frequency,      kAnyResult,             When::FlagClear, 0,   { 54869, 54870, 54871, 54872, 55272, 55273, 55274 } },
    { Study::Buckling,       Result::Displacement,   When::FlagSet,   0,   { 54782, 54783, 54784, 54785, 54790, 54791, 54792 } },
    { Study::Buckling,       Result::Displacement,   When::FlagClear, 0,   { 54869, 54870, 54871, 54872, 55272, 55273, 55274 } },

    { Study::Thermal,        Result::Thermal,        When::Always,    0,   { 50797, 54804, 54805, 54806, 54807, 54808, 54809, 54810, 54811, 54557, 54558 } },

    { Study::Stepped,        Result::FactorOfSafety, When::Always,    0,   { 53471, 53472 } },
    { Study::Stepped,        Result::Displacement,   When::Always,    0,   { 54782, 54783, 54784, 54785, 54786, 54787, 54788, 54789, 54790, 54791, 54792, 54793, 54794, 54795, 54796 } },
    { Study::Stepped,        Result::Stress,         When::Always,    0,   { 54771, 54772, 54773, 54774, 54775, 54776, 54777, 54778, 54779, 54780, 53996, 55084, 52190, 54781 } },
    { Study::Stepped,        Result::Strain,         When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::Stepped,        Result::StrainAlt,      When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::Stepped,        Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028, 53946 } },
    { Study::Stepped,        Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },

    { Study::SteppedReduced, Result::Displacement,   When::Always,    0,   { 54782, 54783, 54784, 54785, 54786, 54787, 54788, 54789, 54790, 54791, 54792, 54793, 54794, 54795, 54796 } },
    { Study::SteppedReduced, Result::Stress,         When::Always,    0,   { 54771, 54772, 54773, 54774, 54775, 54776, 54777, 54778, 54779, 54780, 53996, 55084, 52190, 54781 } },
    { Study::SteppedReduced, Result::Strain,         When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::SteppedReduced, Result::StrainAlt,      When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::SteppedReduced, Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028, 53946 } },
    { Study::SteppedReduced, Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },

    { Study::Dynamic,        Result::Displacement,   When::Always,    0,   { 54782, 54783, 54784, 54785, 54786, 54787, 54788, 54789, 54790, 54791, 54792, 54793, 54794, 54795, 54796 } },
    { Study::Dynamic,        Result::Stress,         When::Always,    0,   { 54771, 54772, 54773, 54774, 54775, 54776, 54777, 54778, 54779, 54780, 53996, 55084 } },
    { Study::Dynamic,        Result::Stress,         When::Always,    100, { 56060 } },
    { Study::Dynamic,        Result::Strain,         When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::Dynamic,        Result::StrainAlt,      When::Always,    0,   { 54797, 54798, 54799, 54800, 54801, 54802, 54803, 54813, 54814, 54815, 54816, 54817 } },
    { Study::Dynamic,        Result::Velocity,       When::Always,    0,   { 54022, 54023, 54024, 54025, 54026, 54027, 54028, 53946 } },
    { Study::Dynamic,        Result::Acceleration,   When::Always,    0,   { 54029, 54030, 54031, 53945, 54032, 54033, 54034, 53946 } },
});

constexpr auto kBriefFatigueGraphNames = std::to_array<NameRow>({
    { Study::Fatigue, Result::FatigueGraph, When::Always, 0, { 54824, 54825 } },
});
constexpr auto kBriefFatigueNames = std::to_array<NameRow>({
    { Study::Fatigue, kAnyResult,           When::Always, 0, { 54223, 54224, 54020, 54812, 54223 } },  // the last repeats the first
});

// clang-format on

// ---- how the tables answer ----------------------------------------------------------------

using Rows = std::span<const NameRow>;

/// The rows of one study and result, of which the options and the component choose.
class NameList {
 public:
  NameList(Rows rows, int analysisType, int resultType) {
    for (const NameRow& row : rows) {
      const bool isStudy = !row.study || Code(*row.study) == analysisType;
      const bool isResult = !row.result || Code(*row.result) == resultType;
      if (isStudy && isResult) {
        m_rows.push_back(&row);
      }
    }
  }

  /// The id of the name, 0 for none.
  [[nodiscard]] UINT At(int component, const Options& options) const {
    for (const NameRow* row : m_rows) {
      const UINT id = IdIn(*row, component);
      if (id != 0 && Holds(row->when, options)) {
        return id;
      }
    }
    return 0;
  }

 private:
  static UINT IdIn(const NameRow& row, int component) {
    if (row.first == kEveryComponent) {
      return row.ids[0];
    }
    const bool isInRow =
        component >= row.first && component < row.first + static_cast<int>(row.ids.size());
    return isInRow ? row.ids[static_cast<std::size_t>(component - row.first)] : 0;
  }

  std::vector<const NameRow*> m_rows;
};

bool HasResult(Rows rows, int resultType) {
  for (const NameRow& row : rows) {
    if (row.result && Code(*row.result) == resultType) {
      return true;
    }
  }
  return false;
}

NameList FullNames(int analysisType, int resultType) {
  const bool isOfEveryStudy = HasResult(kFullNamesOfEveryStudy, resultType);
  return {isOfEveryStudy ? Rows(kFullNamesOfEveryStudy) : Rows(kFullNames), analysisType,
          resultType};
}

NameList BriefNames(int analysisType, int resultType) {
  const auto select = [=]() -> Rows {
    if (HasResult(kBriefNamesOfEveryStudy, resultType)) {
      return kBriefNamesOfEveryStudy;
    }
    if (analysisType == Code(Study::Fatigue)) {
      return resultType == Code(Result::FatigueGraph) ? Rows(kBriefFatigueGraphNames)
                                                      : Rows(kBriefFatigueNames);
    }
    if (analysisType == Code(Study::Frequency) && resultType > 1) {
      return {};
    }
    return kBriefNames;
  };
  return {select(), analysisType, resultType};
}

/// Bar names with the fall-back to full names.
class BarNames {
 public:
  BarNames(int analysisType, int resultType)
      : m_isFatigue(analysisType == Code(Study::Fatigue)),
        m_fallsBack(!HasResult(kBarNamesOfEveryStudy, resultType)),
        m_own(m_fallsBack ? Rows(kBarNames) : Rows(kBarNamesOfEveryStudy), analysisType,
              resultType),
        m_full(FullNames(analysisType, resultType)) {}

  [[nodiscard]] Name At(int component, int fatigueVariant, const Options& options) const {
    if (m_isFatigue && m_fallsBack && component == 1) {
      return {fatigueVariant == 1 ? 55362U : 54019U, false};
    }
    if (const UINT own = m_own.At(component, options); own != 0 || !m_fallsBack) {
      return {own, false};
    }
    const UINT full = m_full.At(component, {.flag = options.flag});
    return {full, full != 0};
  }

 private:
  bool m_isFatigue;
  bool m_fallsBack;
  NameList m_own;
  NameList m_full;
};

// ---- shorter calls ------------------------------------------------------------------------

CString FullText(Study study, Result result, int component, int meshKind = 0,
                 int alternateNames = 0) {
  return vekPostCommonGetComponentName(Code(study), Code(result), 0, component, meshKind,
                                       alternateNames);
}
CString BarText(Study study, Result result, int component, int meshKind = 0,
                int fatigueVariant = 0) {
  return vekPostCommonGetComponentNameBar(Code(study), Code(result), 0, component, meshKind,
                                          fatigueVariant);
}
CString BriefText(Study study, Result result, int component) {
  return vekPostCommonGetComponentNameBrief(Code(study), Code(result), 0, component);
}

Name Full(Study study, Result result, int component, int meshKind = 0, int alternateNames = 0) {
  return SeenName(FullText(study, result, component, meshKind, alternateNames));
}
Name Bar(Study study, Result result, int component, int meshKind = 0, int fatigueVariant = 0) {
  return SeenName(BarText(study, result, component, meshKind, fatigueVariant));
}
Name Brief(Study study, Result result, int component) {
  return SeenName(BriefText(study, result, component));
}

// ---- what the sweeps walk -----------------------------------------------------------------

constexpr auto kFlags = std::to_array<int>({0, 1, 2, -1, 256});

/// Every result type that a rule names, and unknown ones between and around them.
// clang-format off
constexpr auto kResultsAndHoles = std::to_array<int>({
    INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 51, 52, 53,
    54, 55, 56, 57, 58, 59, 60, 62, 63, 65, 66, 67, 69, 70, 71, 72, INT_MAX});

/// Every component that a list names, its neighbours and the ends.
constexpr auto kListedComponents = std::to_array<int>({
    INT_MIN, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 50, 99, 100, 101, INT_MAX});
// clang-format on

/// Calls `check(analysisType, resultType)` with every combination of the code space.
template <class Check>
void ForTheWholeCodeSpace(Check check) {
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      check(analysisType, resultType);
    }
  }
}

/// Calls `check(flag, analysisType, resultType)` with every flag, which is set, and every
/// combination that a rule names or that stands next to one.
template <class Check>
void ForEveryFlagAndList(Check check) {
  for (const int flag : kFlags) {
    const ActualFrequencyFlag guard(flag);
    for (const int analysisType : kStudiesAndHoles) {
      for (const int resultType : kResultsAndHoles) {
        check(flag, analysisType, resultType);
      }
    }
  }
}

std::string BuiltIn(const Name& name) {
  const CString text = LoadText(name.id);
  return Narrow(name.isCut ? text.Left(text.Find(MQ_TEXT(':'))) : text);
}

// ---- the string table ---------------------------------------------------------------------

TEST(NamesTest, EveryExpectedNameHasABuiltInText) {
  const auto tables = std::to_array<Rows>(
      {kFullNamesOfEveryStudy, kFullNames, kBarNames, kBarNamesOfEveryStudy, kBriefNames,
       kBriefNamesOfEveryStudy, kBriefFatigueGraphNames, kBriefFatigueNames});
  for (const Rows& table : tables) {
    for (const NameRow& row : table) {
      for (const UINT id : row.ids) {
        EXPECT_TRUE(id == 0 || !LoadText(id).IsEmpty()) << id;
      }
    }
  }
}

TEST(NamesTest, EveryBuiltInFullNameIsCutAtAColonThatIsNotInFront) {
  for (const Rows& table : {Rows(kFullNamesOfEveryStudy), Rows(kFullNames)}) {
    for (const NameRow& row : table) {
      for (const UINT id : row.ids) {
        EXPECT_TRUE(id == 0 || LoadText(id).Find(MQ_TEXT(':')) > 0) << id;
      }
    }
  }
}

// ---- full names ---------------------------------------------------------------------------

TEST(FullNamesTest, EveryCodeWithoutOptions) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component"});
  ForTheWholeCodeSpace([&](int analysisType, int resultType) {
    const NameList names = FullNames(analysisType, resultType);
    for (const int component : kSweptCodes) {
      const Name got =
          SeenName(vekPostCommonGetComponentName(analysisType, resultType, 0, component, 0, 0));
      sweep.Check(Whole(names.At(component, {})), got, analysisType, resultType, component);
    }
  });
}

TEST(FullNamesTest, EveryOptionOfEveryList) {
  const NumberedTexts texts;
  Sweep sweep(
      {"flag", "analysis type", "result type", "component", "mesh kind", "alternate names"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const NameList names = FullNames(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int meshKind : kSweptMeshKinds) {
        for (const int alternateNames : kSweptOptions) {
          const Name expected = Whole(names.At(component, {meshKind, alternateNames, flag}));
          const Name got = SeenName(vekPostCommonGetComponentName(
              analysisType, resultType, 0, component, meshKind, alternateNames));
          sweep.Check(expected, got, flag, analysisType, resultType, component, meshKind,
                      alternateNames);
        }
      }
    }
  });
}

TEST(FullNamesTest, BuiltInTextsOfEveryList) {
  Sweep sweep(
      {"flag", "analysis type", "result type", "component", "mesh kind", "alternate names"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const NameList names = FullNames(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int meshKind : {0, 4}) {
        for (const int alternateNames : {0, 1}) {
          const UINT id = names.At(component, {meshKind, alternateNames, flag});
          const CString got = vekPostCommonGetComponentName(analysisType, resultType, 0, component,
                                                            meshKind, alternateNames);
          sweep.Check(id == 0 ? std::string() : BuiltIn(Whole(id)), Narrow(got), flag, analysisType,
                      resultType, component, meshKind, alternateNames);
        }
      }
    }
  });
}

TEST(FullNamesTest, TheThirdArgumentHasNoEffect) {
  const NumberedTexts texts;
  Sweep sweep({"third argument", "flag", "analysis type", "result type", "component"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const NameList names = FullNames(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int ignored : {INT_MIN, -1, 1, 4, 100, INT_MAX}) {
        const Name expected = Whole(names.At(component, {.flag = flag}));
        const Name got = SeenName(
            vekPostCommonGetComponentName(analysisType, resultType, ignored, component, 0, 0));
        sweep.Check(expected, got, ignored, flag, analysisType, resultType, component);
      }
    }
  });
}

TEST(FullNamesTest, OnlyADynamicDisplacementHasAComponent15) {
  const NumberedTexts texts;
  EXPECT_EQ(Full(Study::Static, Result::Displacement, 14), Whole(54590));
  EXPECT_EQ(Full(Study::Static, Result::Displacement, 15), kNoName);
  EXPECT_EQ(Full(Study::Stepped, Result::Displacement, 15), kNoName);
  EXPECT_EQ(Full(Study::SteppedReduced, Result::Displacement, 15), kNoName);
  EXPECT_EQ(Full(Study::Dynamic, Result::Displacement, 15), Whole(54419));
  EXPECT_EQ(Full(Study::Dynamic, Result::Displacement, 15, 0, 1), Whole(54419));
  EXPECT_EQ(Full(Study::Dynamic, Result::Displacement, 16), kNoName);
}

TEST(FullNamesTest, ADynamicStressKeepsComponent100OutsideItsRun) {
  const NumberedTexts texts;
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 11), Whole(55085));
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 12), kNoName);
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 50), kNoName);
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 99), kNoName);
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 100), Whole(56061));
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 101), kNoName);
  EXPECT_EQ(Full(Study::Static, Result::Stress, 100), kNoName);
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 100, 4), kNoName);
}

TEST(FullNamesTest, ASteppedBeamMeshNamesFiveStressesAndADynamicOneSeven) {
  const NumberedTexts texts;
  for (const Study study : {Study::Stepped, Study::SteppedReduced}) {
    EXPECT_EQ(Full(study, Result::Stress, 4, 4), Whole(54012));
    EXPECT_EQ(Full(study, Result::Stress, 5, 4), kNoName);
    EXPECT_EQ(Full(study, Result::BeamStress, 6), Whole(54014));
  }
  EXPECT_EQ(Full(Study::Dynamic, Result::Stress, 6, 4), Whole(54014));
  EXPECT_EQ(Full(Study::Static, Result::Stress, 0, 4), Whole(54591));
}

TEST(FullNamesTest, AnyFlagButZeroShowsRealAmplitudes) {
  const NumberedTexts texts;
  for (const Study study : {Study::Frequency, Study::Buckling}) {
    for (const int flag : {1, 2, -1, 256, INT_MIN, INT_MAX}) {
      const ActualFrequencyFlag guard(flag);
      EXPECT_EQ(Full(study, Result::Displacement, 0), Whole(54578)) << flag;
      EXPECT_EQ(Full(study, Result::Displacement, 4), Whole(54584)) << flag;
    }
    const ActualFrequencyFlag guard(0);
    EXPECT_EQ(Full(study, Result::Displacement, 0), Whole(54865));
    EXPECT_EQ(Full(study, Result::Displacement, 4), Whole(55269));
  }
}

TEST(FullNamesTest, ResultTypesNamedAlikeComeBeforeTheFatigueList) {
  const NumberedTexts texts;
  EXPECT_EQ(Full(Study::Fatigue, Result::ResultType53, 0), Whole(50507));
  EXPECT_EQ(Full(Study::Fatigue, Result::FactorOfSafety, 4), Whole(53576));
  EXPECT_EQ(Full(Study::Fatigue, Result::ResultType56, 0), kNoName);
  EXPECT_EQ(Full(Study::Fatigue, Result::FatigueResult, 0), Whole(54745));
  EXPECT_EQ(Full(Study::Fatigue, Result::ModeFrequency, 0), Whole(54745));
}

TEST(FullNamesTest, TheLastFatigueComponentRepeatsTheFirst) {
  const NumberedTexts texts;
  EXPECT_EQ(Full(Study::Fatigue, Result::FatigueResult, 0), Whole(54745));
  EXPECT_EQ(Full(Study::Fatigue, Result::FatigueResult, 4), Whole(54745));
  EXPECT_EQ(Full(Study::Fatigue, Result::FatigueResult, 5), kNoName);
}

TEST(FullNamesTest, OneNameForEveryComponentEvenForNegativeOnes) {
  const NumberedTexts texts;
  for (const int component : {INT_MIN, -1, 0, 5, 100, INT_MAX}) {
    EXPECT_EQ(Full(Study::Thermal, Result::ResultType62, component), Whole(53576)) << component;
    EXPECT_EQ(Full(Study::Static, Result::StressAlt, component), Whole(54525)) << component;
    EXPECT_EQ(Full(Study::FlowImport, Result::ResultType0, component), Whole(50330)) << component;
  }
}

TEST(FullNamesTest, ATextThatTheTableLacksIsEmpty) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54578, MQ_TEXT(""));
  EXPECT_TRUE(FullText(Study::Static, Result::Displacement, 0).IsEmpty());
}

TEST(FullNamesTest, TextsAreLoadedOnDemand) {
  const ReplacedTexts texts;
  FullText(Study::Static, Result::Displacement, 0);
  ReplacedTexts::Set(54578, MQ_TEXT("UX: Verschiebung in X"));
  EXPECT_EQ(FullText(Study::Static, Result::Displacement, 0), MQ_TEXT("UX: Verschiebung in X"));
}

// ---- bar names ----------------------------------------------------------------------------

TEST(BarNamesTest, EveryCodeWithoutOptions) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component"});
  ForTheWholeCodeSpace([&](int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kSweptCodes) {
      const Name got =
          SeenName(vekPostCommonGetComponentNameBar(analysisType, resultType, 0, component, 0, 0));
      sweep.Check(names.At(component, 0, {}), got, analysisType, resultType, component);
    }
  });
}

TEST(BarNamesTest, EveryOptionOfEveryList) {
  const NumberedTexts texts;
  Sweep sweep(
      {"flag", "analysis type", "result type", "component", "mesh kind", "fatigue variant"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int meshKind : kSweptMeshKinds) {
        for (const int fatigueVariant : kSweptOptions) {
          const Name expected =
              names.At(component, fatigueVariant, {.meshKind = meshKind, .flag = flag});
          const Name got = SeenName(vekPostCommonGetComponentNameBar(
              analysisType, resultType, 0, component, meshKind, fatigueVariant));
          sweep.Check(expected, got, flag, analysisType, resultType, component, meshKind,
                      fatigueVariant);
        }
      }
    }
  });
}

TEST(BarNamesTest, BuiltInTextsOfEveryList) {
  Sweep sweep(
      {"flag", "analysis type", "result type", "component", "mesh kind", "fatigue variant"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int meshKind : {0, 4}) {
        for (const int fatigueVariant : {0, 1}) {
          const Name name =
              names.At(component, fatigueVariant, {.meshKind = meshKind, .flag = flag});
          const CString got = vekPostCommonGetComponentNameBar(analysisType, resultType, 0,
                                                               component, meshKind, fatigueVariant);
          sweep.Check(name == kNoName ? std::string() : BuiltIn(name), Narrow(got), flag,
                      analysisType, resultType, component, meshKind, fatigueVariant);
        }
      }
    }
  });
}

TEST(BarNamesTest, ThePassedOnArgumentHasNoEffect) {
  const NumberedTexts texts;
  Sweep sweep({"third argument", "flag", "analysis type", "result type", "component"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int passOn : {INT_MIN, -1, 1, 4, 100, INT_MAX}) {
        const Name expected = names.At(component, 0, {.flag = flag});
        const Name got = SeenName(
            vekPostCommonGetComponentNameBar(analysisType, resultType, passOn, component, 0, 0));
        sweep.Check(expected, got, passOn, flag, analysisType, resultType, component);
      }
    }
  });
}

TEST(BarNamesTest, RotationsOfAFrequencyStudyFollowTheFlagThroughTheFullName) {
  const NumberedTexts texts;
  {
    const ActualFrequencyFlag flag(1);
    EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 4), CutAtColon(54584));
    EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 5), CutAtColon(54585));
    EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 6), CutAtColon(54586));
  }
  const ActualFrequencyFlag flag(0);
  EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 4), CutAtColon(55269));
  EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 5), CutAtColon(55270));
  EXPECT_EQ(Bar(Study::Frequency, Result::Displacement, 6), CutAtColon(55271));
}

TEST(BarNamesTest, TheNormalisedRotationsOfABucklingStudyLeaveTheirRun) {
  const NumberedTexts texts;
  const ActualFrequencyFlag flag(0);
  EXPECT_EQ(Bar(Study::Buckling, Result::Displacement, 4), Whole(55275));
  EXPECT_EQ(Bar(Study::Buckling, Result::Displacement, 5), Whole(55276));
  EXPECT_EQ(Bar(Study::Buckling, Result::Displacement, 6), Whole(55268));
}

TEST(BarNamesTest, AccelerationHasEightNamesAndVelocitySeven) {
  const NumberedTexts texts;
  for (const Study study : {Study::Dynamic, Study::Stepped, Study::SteppedReduced}) {
    EXPECT_EQ(Bar(study, Result::Acceleration, 7), Whole(53946));
    EXPECT_EQ(Bar(study, Result::Acceleration, 8), kNoName);
    EXPECT_EQ(Bar(study, Result::Velocity, 6), Whole(54028));
    EXPECT_EQ(Bar(study, Result::Velocity, 7), CutAtColon(54419));
    EXPECT_EQ(Bar(study, Result::Velocity, 8), kNoName);
  }
}

TEST(BarNamesTest, ADisplacementBeyondTheTableIsCutFromItsFullName) {
  const NumberedTexts texts;
  EXPECT_EQ(Bar(Study::Dynamic, Result::Displacement, 14), Whole(53483));
  EXPECT_EQ(Bar(Study::Dynamic, Result::Displacement, 15), CutAtColon(54419));
  EXPECT_EQ(Bar(Study::Dynamic, Result::Displacement, 16), kNoName);
  EXPECT_EQ(Bar(Study::Dynamic, Result::Displacement, -1), kNoName);
  EXPECT_EQ(Bar(Study::Static, Result::Displacement, 15), kNoName);
}

TEST(BarNamesTest, TheFallBackKnowsNoBeamMesh) {
  const NumberedTexts texts;
  EXPECT_EQ(Bar(Study::Stepped, Result::Stress, 6, 4), Whole(54014));
  EXPECT_EQ(Bar(Study::Stepped, Result::Stress, 7, 4), CutAtColon(54598));
  EXPECT_EQ(Bar(Study::Stepped, Result::Stress, 13, 4), CutAtColon(54718));
  EXPECT_EQ(Bar(Study::Dynamic, Result::Stress, 0, 4), Whole(53987));
  EXPECT_EQ(Bar(Study::Dynamic, Result::Stress, 100, 4), CutAtColon(56061));
}

TEST(BarNamesTest, FactorsOfSafetyBeyondTheFirstTwoTakeTheirFullNames) {
  const NumberedTexts texts;
  EXPECT_EQ(Bar(Study::Static, Result::FactorOfSafety, 1), Whole(53472));
  EXPECT_EQ(Bar(Study::Static, Result::FactorOfSafety, 2), CutAtColon(50018));
  EXPECT_EQ(Bar(Study::SteppedReduced, Result::FactorOfSafety, 0), CutAtColon(53574));
  EXPECT_EQ(Bar(Study::FlowImport, Result::FactorOfSafety, 0), CutAtColon(53574));
}

TEST(BarNamesTest, AStudyWithoutABarTableTakesFullNames) {
  const NumberedTexts texts;
  EXPECT_EQ(Bar(Study::FlowImport, Result::ResultType62, 3), CutAtColon(53576));
  EXPECT_EQ(Bar(Study::FlowImport, Result::FlowVelocity, 0), kNoName);
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBar(9, 21, 0, 0, 0, 0)), CutAtColon(54629));
}

TEST(BarNamesTest, ResultTypes53And54NeverFallBack) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(50507, MQ_TEXT("A: first"));
  EXPECT_EQ(BarText(Study::Fatigue, Result::ResultType53, 0), MQ_TEXT("A: first"));
  EXPECT_EQ(BarText(Study::Fatigue, Result::ResultType53, 5), MQ_TEXT(""));
  ReplacedTexts::Set(51767, MQ_TEXT("B: first"));
  EXPECT_EQ(BarText(Study::Static, Result::ResultType54, 0), MQ_TEXT("B: first"));
  EXPECT_EQ(BarText(Study::Static, Result::ResultType54, 6), MQ_TEXT(""));
}

TEST(BarNamesTest, OnlyVariantOneGivesTheOtherFatigueName) {
  const NumberedTexts texts;
  EXPECT_EQ(Bar(Study::Fatigue, Result::FatigueResult, 1, 0, 1), Whole(55362));
  for (const int variant : {INT_MIN, -1, 0, 2, 257, INT_MAX}) {
    EXPECT_EQ(Bar(Study::Fatigue, Result::FatigueResult, 1, 0, variant), Whole(54019)) << variant;
  }
  EXPECT_EQ(Bar(Study::Fatigue, Result::FatigueResult, 0, 0, 1), Whole(54015));
  EXPECT_EQ(Bar(Study::Fatigue, Result::FactorOfSafety, 2), Whole(54020));
  EXPECT_EQ(Bar(Study::Fatigue, Result::FactorOfSafety, 5), kNoName);
}

TEST(BarNamesTest, TheNamesOfAFatigueStudyDependOnTheVariantAloneWhateverTheResult) {
  const NumberedTexts texts;
  Sweep sweep({"flag", "result type", "component", "mesh kind", "fatigue variant"});
  for (const int flag : {0, 1}) {
    const ActualFrequencyFlag guard(flag);
    for (const int resultType : kSweptCodes) {
      const BarNames names(Code(Study::Fatigue), resultType);
      for (const int component : {-1, 0, 1, 2, 3, 4, 5, 6, 100}) {
        for (const int meshKind : {0, 4}) {
          for (const int variant : {0, 1}) {
            const Name expected =
                names.At(component, variant, {.meshKind = meshKind, .flag = flag});
            const Name got = SeenName(vekPostCommonGetComponentNameBar(
                Code(Study::Fatigue), resultType, 0, component, meshKind, variant));
            sweep.Check(expected, got, flag, resultType, component, meshKind, variant);
          }
        }
      }
    }
  }
}

struct CutCase {
  const mqChar* fullName;
  const mqChar* barName;
};

TEST(BarNamesTest, AFullNameIsCutAtItsFirstColonUnlessThatStandsInFront) {
  const ReplacedTexts texts;
  // clang-format off
  const auto cases = std::to_array<CutCase>({
      { MQ_TEXT("ROTX: about X"), MQ_TEXT("ROTX") },
      { MQ_TEXT("R:X: about X"),  MQ_TEXT("R") },
      { MQ_TEXT("X:"),            MQ_TEXT("X") },           // a colon at the end cuts
      { MQ_TEXT("ROTX :about"),   MQ_TEXT("ROTX ") },       // blanks stay
      { MQ_TEXT("no colon"),      MQ_TEXT("no colon") },
      { MQ_TEXT(":about X"),      MQ_TEXT(":about X") },
      { MQ_TEXT(":about: X"),     MQ_TEXT(":about: X") },   // the first colon alone decides
      { MQ_TEXT("::"),            MQ_TEXT("::") },
      { MQ_TEXT(":"),             MQ_TEXT(":") },
      { MQ_TEXT(""),              MQ_TEXT("") },
  });
  // clang-format on
  const ActualFrequencyFlag flag(1);
  for (const CutCase& row : cases) {
    ReplacedTexts::Set(54585, row.fullName);
    ReplacedTexts::Set(54419, row.fullName);
    EXPECT_EQ(BarText(Study::Frequency, Result::Displacement, 5), row.barName)
        << Narrow(row.fullName);
    EXPECT_EQ(BarText(Study::Dynamic, Result::Displacement, 15), row.barName)
        << Narrow(row.fullName);
  }
}

TEST(BarNamesTest, ABarNameOfItsOwnIsNotCut) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(53981, MQ_TEXT("UX: in plots"));
  EXPECT_EQ(BarText(Study::Static, Result::Displacement, 0), MQ_TEXT("UX: in plots"));
}

TEST(BarNamesTest, ABarNameWithoutATextFallsBackToTheFullName) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(53981, MQ_TEXT(""));
  ReplacedTexts::Set(54578, MQ_TEXT("UX: along X"));
  EXPECT_EQ(BarText(Study::Static, Result::Displacement, 0), MQ_TEXT("UX"));
  ReplacedTexts::Set(50507, MQ_TEXT(""));
  EXPECT_EQ(BarText(Study::Static, Result::ResultType53, 0), MQ_TEXT(""));
}

// ---- short names --------------------------------------------------------------------------

TEST(ShortNamesTest, EveryCodeIsNamedAsOnABarWithoutOptions) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component"});
  ForTheWholeCodeSpace([&](int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kSweptCodes) {
      const Name got =
          SeenName(vekPostCommonGetComponentNameShort(analysisType, resultType, 0, component));
      sweep.Check(names.At(component, 0, {}), got, analysisType, resultType, component);
    }
  });
}

TEST(ShortNamesTest, EveryFlagAndThirdArgument) {
  const NumberedTexts texts;
  Sweep sweep({"third argument", "flag", "analysis type", "result type", "component"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const BarNames names(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int passOn : {INT_MIN, -1, 0, 1, 4, INT_MAX}) {
        const Name got = SeenName(
            vekPostCommonGetComponentNameShort(analysisType, resultType, passOn, component));
        sweep.Check(names.At(component, 0, {.flag = flag}), got, passOn, flag, analysisType,
                    resultType, component);
      }
    }
  });
}

TEST(ShortNamesTest, NeitherABeamMeshNorTheFatigueVariant) {
  const NumberedTexts texts;
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameShort(5, 2, 4, 0)), Whole(53987));
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameShort(7, 12, 1, 1)), Whole(54019));
}

// ---- brief names --------------------------------------------------------------------------

TEST(BriefNamesTest, EveryCode) {
  const NumberedTexts texts;
  Sweep sweep({"analysis type", "result type", "component"});
  ForTheWholeCodeSpace([&](int analysisType, int resultType) {
    const NameList names = BriefNames(analysisType, resultType);
    for (const int component : kSweptCodes) {
      const Name got =
          SeenName(vekPostCommonGetComponentNameBrief(analysisType, resultType, 0, component));
      sweep.Check(Whole(names.At(component, {})), got, analysisType, resultType, component);
    }
  });
}

TEST(BriefNamesTest, EveryFlagAndThirdArgument) {
  const NumberedTexts texts;
  Sweep sweep({"third argument", "flag", "analysis type", "result type", "component"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const NameList names = BriefNames(analysisType, resultType);
    for (const int component : kListedComponents) {
      for (const int passOn : {INT_MIN, -1, 0, 1, 4, INT_MAX}) {
        const Name got = SeenName(
            vekPostCommonGetComponentNameBrief(analysisType, resultType, passOn, component));
        sweep.Check(Whole(names.At(component, {.flag = flag})), got, passOn, flag, analysisType,
                    resultType, component);
      }
    }
  });
}

TEST(BriefNamesTest, BuiltInTextsOfEveryList) {
  Sweep sweep({"flag", "analysis type", "result type", "component"});
  ForEveryFlagAndList([&](int flag, int analysisType, int resultType) {
    const NameList names = BriefNames(analysisType, resultType);
    for (const int component : kListedComponents) {
      const UINT id = names.At(component, {.flag = flag});
      const CString got =
          vekPostCommonGetComponentNameBrief(analysisType, resultType, 0, component);
      sweep.Check(id == 0 ? std::string() : BuiltIn(Whole(id)), Narrow(got), flag, analysisType,
                  resultType, component);
    }
  });
}

TEST(BriefNamesTest, AFrequencyStudyNamesEveryResultTypeBelowTwo) {
  const NumberedTexts texts;
  const ActualFrequencyFlag flag(0);
  for (const int resultType : {INT_MIN, -1, 0, 1}) {
    EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(1, resultType, 0, 6)), Whole(55274))
        << resultType;
    EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(1, resultType, 0, 7)), kNoName)
        << resultType;
  }
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(1, 2, 0, 0)), kNoName);
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(1, 53, 0, 0)), Whole(50507));
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(2, 0, 0, 0)), kNoName);
  EXPECT_EQ(SeenName(vekPostCommonGetComponentNameBrief(2, -1, 0, 0)), kNoName);
}

TEST(BriefNamesTest, VelocityAndAccelerationShareTheNameOfComponent7) {
  const NumberedTexts texts;
  for (const Study study : {Study::Dynamic, Study::Stepped, Study::SteppedReduced}) {
    EXPECT_EQ(Brief(study, Result::Velocity, 7), Whole(53946));
    EXPECT_EQ(Brief(study, Result::Acceleration, 7), Whole(53946));
  }
}

TEST(BriefNamesTest, AFatigueGraphHasTwoNamesOfItsOwn) {
  const NumberedTexts texts;
  EXPECT_EQ(Brief(Study::Fatigue, Result::FatigueGraph, 0), Whole(54824));
  EXPECT_EQ(Brief(Study::Fatigue, Result::FatigueGraph, 1), Whole(54825));
  EXPECT_EQ(Brief(Study::Fatigue, Result::FatigueGraph, 2), kNoName);
  EXPECT_EQ(Brief(Study::Fatigue, Result::FatigueResult, 2), Whole(54020));
  EXPECT_EQ(Brief(Study::Fatigue, Result::FatigueResult, 4), Whole(54223));
  EXPECT_EQ(Brief(Study::Static, Result::FatigueGraph, 0), kNoName);
}

TEST(BriefNamesTest, ANameWithoutATextStaysEmpty) {
  const ReplacedTexts texts;
  ReplacedTexts::Set(54782, MQ_TEXT(""));
  EXPECT_EQ(BriefText(Study::Static, Result::Displacement, 0), MQ_TEXT(""));
  EXPECT_EQ(BriefText(Study::Static, Result::BeamStress, 0), MQ_TEXT(""));
}

}  // namespace
}  // namespace mqp::test
