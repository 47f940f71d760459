/// \file
/// Names of results, titles of graphs and their axes, titles of list columns.
#pragma once

#include <array>

#include "text_row.h"

namespace mqp::host {

// clang-format off

inline constexpr auto kResultNames = std::to_array<TextRow>({
    // id             text
    { 52941, MQ_TEXT("Displacement") },
    { 52980, MQ_TEXT("Stress") },
    { 53557, MQ_TEXT("Strain") },
    { 54327, MQ_TEXT("Factor of safety") },
    { 50006, MQ_TEXT("Thermal") },
    { 50004, MQ_TEXT("Frequency") },  // also the frequency axis of a graph
    { 53153, MQ_TEXT("Forces and moment") },
    { 52961, MQ_TEXT("Velocity") },
    { 52962, MQ_TEXT("Acceleration") },
    { 54060, MQ_TEXT("Buckling") },
    { 54464, MQ_TEXT("Force with components") },
    { 54332, MQ_TEXT("Beam stress") },
    { 53326, MQ_TEXT("Safety quantity") },
    { 55670, MQ_TEXT("Mass properties") },
    { 54465, MQ_TEXT("Result") },  // every result type without a name of its own
});

inline constexpr auto kReportGraphTitles = std::to_array<TextRow>({
    // id             text
    { 54823, MQ_TEXT("Damage matrix chart") },
    { 54822, MQ_TEXT("Damage matrix chart, variant") },
    { 55144, MQ_TEXT("Frequency response graph") },
    { 54715, MQ_TEXT("Response over the steps") },
    { 54714, MQ_TEXT("Response over time") },
    { 50610, MQ_TEXT("Response over frequency") },
});

inline constexpr auto kGraphAxes = std::to_array<TextRow>({
    // id             text
    { 51724, MQ_TEXT("Time or step") },
    { 50578, MQ_TEXT("Parameter") },
    { 53044, MQ_TEXT("dimensional") },
    { 54441, MQ_TEXT("dimensionless") },
    { 54684, MQ_TEXT("no unit") },  // in brackets, where a unit name would stand
    { 54477, MQ_TEXT("spectral density") },
});

inline constexpr auto kFrequencyResponseNames = std::to_array<TextRow>({
    // id             text
    { 55123, MQ_TEXT("Frequency response, ") },  // one of the three below follows directly
    { 54668, MQ_TEXT("first kind") },
    { 55124, MQ_TEXT("second kind") },
    { 55125, MQ_TEXT("third kind") },
});

inline constexpr auto kListTitles = std::to_array<TextRow>({
    // id             text
    { 50733, MQ_TEXT("Node") },
    { 50757, MQ_TEXT("Element") },
});

// clang-format on

}  // namespace mqp::host
