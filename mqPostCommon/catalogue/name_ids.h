// The string ids of names that occur in several tables: in the full names, in the look-up of a
// name, in the columns of lists. A sequence gives the ids of consecutive components.
#pragma once

#include <cstdint>

#include <mqPostCommon/catalogue/table.h>

namespace mqp {

/// A `StringId`; every id of a name fits into 16 bits.
using NameId = std::uint16_t;

/// No name: the text is empty.
inline constexpr NameId kNoName = 0;

using Names = Sequence<NameId>;

template <class... Ids>
constexpr Names Ids16(Ids... ids) {
  return {{static_cast<NameId>(ids)...}, sizeof...(ids), 0, false, kNoName};
}

/// The ids that follow one another from `first` to `last`.
constexpr Names Run(int first, int last) {
  Names names;
  for (int id = first; id <= last; ++id) {
    names.values.at(static_cast<std::size_t>(names.count++)) = static_cast<NameId>(id);
  }
  return names;
}

/// One name for every component, negative ones included.
constexpr Names Every(NameId id) {
  Names names;
  names.hasOthers = true;
  names.others = id;
  return names;
}

/// Names that start at a component behind 0.
constexpr Names From(int component, Names names) {
  names.first = component;
  return names;
}

/// The names of the components `first` to `last` of a longer sequence.
constexpr Names Slice(int first, int last, const Names& names) {
  Names slice;
  for (int component = first; component <= last; ++component) {
    slice.values.at(static_cast<std::size_t>(slice.count++)) = names.At(component);
  }
  return slice;
}

/// The first names of a longer sequence.
constexpr Names First(int count, const Names& names) {
  return Slice(0, count - 1, names);
}

// clang-format off

// Displacements
inline constexpr Names kTranslationNames          = Ids16(54578, 54579, 54580, 50341);  // X, Y, Z, resultant
inline constexpr Names kReactionForceNames        = Ids16(54581, 54582, 54583, 50345);
inline constexpr Names kRotationNames             = Ids16(54584, 54585, 54586);
inline constexpr Names kReactionMomentNames       = Ids16(54587, 54588, 54589, 54590);
inline constexpr Names kOtherTranslationNames     = Ids16(54751, 54752, 54753, 50341);  // while alternate names are asked for
inline constexpr Names kOtherReactionForceNames   = Ids16(54754, 54755, 54756, 50345);
inline constexpr Names kModeTranslationNames      = Ids16(54865, 54866, 54867, 54868);  // normalised amplitudes
inline constexpr Names kModeRotationNames         = Ids16(55269, 55270, 55271);
inline constexpr Names kDisplacementNames         = kTranslationNames + kReactionForceNames + kRotationNames + kReactionMomentNames;
inline constexpr Names kOtherDisplacementNames    = kOtherTranslationNames + kOtherReactionForceNames + kRotationNames + kReactionMomentNames;

// Stresses and strains
inline constexpr Names kStressNames               = Run(54591, 54601) + Ids16(55085, 54602, 54718, 54494, 54495);
inline constexpr Names kBeamStressNames           = Ids16(52020) + Run(54009, 54014);
inline constexpr Names kStrainNames               = Run(54603, 54611) + Ids16(50177, 50178, 50179);
inline constexpr NameId kDynamicStressName        = 56061;                              // component 100

// Temperatures, life, motions
inline constexpr Names kThermalNames              = Run(54612, 54619) + Ids16(50264, 54555, 54556);
inline constexpr Names kFatigueNames              = Ids16(54745, 54746, 54747, 54749);
inline constexpr Names kVelocityNames             = Run(54405, 54407) + Ids16(54411);  // X, Y, Z, resultant
inline constexpr Names kAngularVelocityNames      = Run(54408, 54410);
inline constexpr Names kAccelerationNames         = Run(54412, 54414) + Ids16(54418);
inline constexpr Names kAngularAccelerationNames  = Run(54415, 54417);
inline constexpr NameId kRotationalResultantName  = 54419;

// clang-format on

/// The component that a `Dynamic` stress keeps outside the counted range.
inline constexpr int kDynamicStressComponent = 100;

}  // namespace mqp
