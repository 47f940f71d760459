/// \file
/// Every group of the built-in string table, in the order of the translation template.
#pragma once

#include <array>

#include "bar_names.h"
#include "brief_names.h"
#include "full_names.h"
#include "titles.h"

namespace mqp::host {

// clang-format off
inline constexpr auto kTextGroups = std::to_array<TextGroup>({
    //  for translators                              rows
    { "Name of a result",                            kResultNames },

    { "Full name: displacement and reactions",       kDisplacementNames },
    { "Full name: displacement, second list",        kAlternateDisplacementNames },
    { "Full name: normalised mode shape",            kNormalisedModeShapeNames },
    { "Full name: stress",                           kStressNames },
    { "Full name: beam stress",                      kBeamStressNames },
    { "Full name: strain",                           kStrainNames },
    { "Full name: thermal result",                   kThermalNames },
    { "Full name: velocity",                         kVelocityNames },
    { "Full name: acceleration",                     kAccelerationNames },
    { "Full name: fatigue",                          kFatigueNames },
    { "Full name: factor of safety",                 kSafetyNames },
    { "Full name: forces and moments",               kForceNames },
    { "Full name: mass properties",                  kMassPropertyNames },
    { "Full name: other results",                    kOtherNames },

    { "Colour bar: displacement and reactions",      kDisplacementBarNames },
    { "Colour bar: normalised mode shape",           kNormalisedModeShapeBarNames },
    { "Colour bar: stress",                          kStressBarNames },
    { "Colour bar: strain",                          kStrainBarNames },
    { "Colour bar: thermal result",                  kThermalBarNames },
    { "Colour bar and brief name: velocity",         kVelocityBarNames },
    { "Colour bar and brief name: acceleration",     kAccelerationBarNames },
    { "Colour bar: fatigue",                         kFatigueBarNames },
    { "Colour bar and brief name: factor of safety", kSafetyBarNames },

    { "Brief name: displacement and reactions",      kDisplacementBriefNames },
    { "Brief name: normalised mode shape",           kNormalisedModeShapeBriefNames },
    { "Brief name: stress",                          kStressBriefNames },
    { "Brief name: strain",                          kStrainBriefNames },
    { "Brief name: thermal result",                  kThermalBriefNames },
    { "Brief name: fatigue",                         kFatigueBriefNames },

    { "Title of a graph in a report",                kReportGraphTitles },
    { "Axis of a graph",                             kGraphAxes },
    { "Plot name of a frequency response graph",     kFrequencyResponseNames },
    { "Title of the leading column of a list",       kListTitles },
});
// clang-format on

}  // namespace mqp::host
