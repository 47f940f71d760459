/// \file
/// Brief component names: the quantity, then the axis or number. Results without a group here
/// use their bar names or full names.
#pragma once

#include <array>

#include "text_row.h"

namespace mqp::host {

// clang-format off

inline constexpr auto kDisplacementBriefNames = std::to_array<TextRow>({
    // id             text
    { 54782, MQ_TEXT("Displacement X") },
    { 54783, MQ_TEXT("Displacement Y") },
    { 54784, MQ_TEXT("Displacement Z") },
    { 54785, MQ_TEXT("Displacement, magnitude") },
    { 54786, MQ_TEXT("Reaction force X") },
    { 54787, MQ_TEXT("Reaction force Y") },
    { 54788, MQ_TEXT("Reaction force Z") },
    { 54789, MQ_TEXT("Reaction force, magnitude") },
    { 54790, MQ_TEXT("Rotation X") },
    { 54791, MQ_TEXT("Rotation Y") },
    { 54792, MQ_TEXT("Rotation Z") },
    { 54793, MQ_TEXT("Reaction moment X") },
    { 54794, MQ_TEXT("Reaction moment Y") },
    { 54795, MQ_TEXT("Reaction moment Z") },
    { 54796, MQ_TEXT("Reaction moment, magnitude") },
});

inline constexpr auto kNormalisedModeShapeBriefNames = std::to_array<TextRow>({
    // id             text
    { 54869, MQ_TEXT("Normalised amplitude X") },
    { 54870, MQ_TEXT("Normalised amplitude Y") },
    { 54871, MQ_TEXT("Normalised amplitude Z") },
    { 54872, MQ_TEXT("Normalised amplitude, magnitude") },
    { 55272, MQ_TEXT("Normalised rotation X") },
    { 55273, MQ_TEXT("Normalised rotation Y") },
    { 55274, MQ_TEXT("Normalised rotation Z") },
});

inline constexpr auto kStressBriefNames = std::to_array<TextRow>({
    // id             text
    { 54771, MQ_TEXT("Stress X") },
    { 54772, MQ_TEXT("Stress Y") },
    { 54773, MQ_TEXT("Stress Z") },
    { 54774, MQ_TEXT("Shear stress XY") },
    { 54775, MQ_TEXT("Shear stress XZ") },
    { 54776, MQ_TEXT("Shear stress YZ") },
    { 54777, MQ_TEXT("Principal stress 1") },
    { 54778, MQ_TEXT("Principal stress 2") },
    { 54779, MQ_TEXT("Principal stress 3") },
    { 54780, MQ_TEXT("Equivalent stress") },
    { 54781, MQ_TEXT("Directional stress") },
    { 54496, MQ_TEXT("Scalar stress C") },
    { 54497, MQ_TEXT("Scalar stress D") },
    { 56060, MQ_TEXT("Stress from principal stresses") },
});

inline constexpr auto kStrainBriefNames = std::to_array<TextRow>({
    // id             text
    { 54797, MQ_TEXT("Strain X") },
    { 54798, MQ_TEXT("Strain Y") },
    { 54799, MQ_TEXT("Strain Z") },
    { 54800, MQ_TEXT("Shear strain XY") },
    { 54801, MQ_TEXT("Shear strain XZ") },
    { 54802, MQ_TEXT("Shear strain YZ") },
    { 54803, MQ_TEXT("Scalar strain") },
    { 54813, MQ_TEXT("Strain energy density") },
    { 54814, MQ_TEXT("Strain energy, total") },
    { 54815, MQ_TEXT("Principal strain 1") },
    { 54816, MQ_TEXT("Principal strain 2") },
    { 54817, MQ_TEXT("Principal strain 3") },
});

inline constexpr auto kThermalBriefNames = std::to_array<TextRow>({
    // id             text
    { 50797, MQ_TEXT("Temperature") },
    { 54804, MQ_TEXT("Temperature gradient X") },
    { 54805, MQ_TEXT("Temperature gradient Y") },
    { 54806, MQ_TEXT("Temperature gradient Z") },
    { 54807, MQ_TEXT("Temperature gradient, magnitude") },
    { 54808, MQ_TEXT("Heat flux X") },
    { 54809, MQ_TEXT("Heat flux Y") },
    { 54810, MQ_TEXT("Heat flux Z") },
    { 54811, MQ_TEXT("Heat flux, magnitude") },
    { 54557, MQ_TEXT("Heat power") },
    { 54558, MQ_TEXT("Heat energy") },
});

inline constexpr auto kFatigueBriefNames = std::to_array<TextRow>({
    // id             text
    { 54223, MQ_TEXT("Fatigue life") },
    { 54224, MQ_TEXT("Fatigue quantity 1") },
    { 54812, MQ_TEXT("Fatigue quantity 3") },
    { 54824, MQ_TEXT("Damage matrix quantity 1") },
    { 54825, MQ_TEXT("Damage matrix quantity 2") },
});

// clang-format on

}  // namespace mqp::host
