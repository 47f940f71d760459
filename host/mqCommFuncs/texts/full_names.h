/// \file
/// Full component names: a symbol of two to six characters, a colon, a blank and a description.
///
/// Look-ups turn a name back into its component by the symbol alone, and compare by prefix: no
/// symbol may begin another full name, of whatever result. Translations keep that rule.
#pragma once

#include <array>

#include "text_row.h"

namespace mqp::host {

// clang-format off

inline constexpr auto kDisplacementNames = std::to_array<TextRow>({
    // id             text
    { 54578, MQ_TEXT("DX: displacement along X") },
    { 54579, MQ_TEXT("DY: displacement along Y") },
    { 54580, MQ_TEXT("DZ: displacement along Z") },
    { 50341, MQ_TEXT("DMAG: displacement magnitude") },
    { 54581, MQ_TEXT("FRX: reaction force along X") },
    { 54582, MQ_TEXT("FRY: reaction force along Y") },
    { 54583, MQ_TEXT("FRZ: reaction force along Z") },
    { 50345, MQ_TEXT("FRMAG: reaction force magnitude") },
    { 54584, MQ_TEXT("ROTX: rotation about X") },
    { 54585, MQ_TEXT("ROTY: rotation about Y") },
    { 54586, MQ_TEXT("ROTZ: rotation about Z") },
    { 54587, MQ_TEXT("MRX: reaction moment about X") },
    { 54588, MQ_TEXT("MRY: reaction moment about Y") },
    { 54589, MQ_TEXT("MRZ: reaction moment about Z") },
    { 54590, MQ_TEXT("MRMAG: reaction moment magnitude") },
    { 54419, MQ_TEXT("RMAG: rotational magnitude") },  // of velocities and accelerations as well
});

inline constexpr auto kAlternateDisplacementNames = std::to_array<TextRow>({
    // id             text
    { 54751, MQ_TEXT("D1: displacement along axis 1") },
    { 54752, MQ_TEXT("D2: displacement along axis 2") },
    { 54753, MQ_TEXT("D3: displacement along axis 3") },
    { 54754, MQ_TEXT("FR1: reaction force along axis 1") },
    { 54755, MQ_TEXT("FR2: reaction force along axis 2") },
    { 54756, MQ_TEXT("FR3: reaction force along axis 3") },
});

inline constexpr auto kNormalisedModeShapeNames = std::to_array<TextRow>({
    // id             text
    { 54865, MQ_TEXT("AX: normalised amplitude along X") },
    { 54866, MQ_TEXT("AY: normalised amplitude along Y") },
    { 54867, MQ_TEXT("AZ: normalised amplitude along Z") },
    { 54868, MQ_TEXT("AMAG: normalised amplitude magnitude") },
    { 55269, MQ_TEXT("ARX: normalised rotation about X") },
    { 55270, MQ_TEXT("ARY: normalised rotation about Y") },
    { 55271, MQ_TEXT("ARZ: normalised rotation about Z") },
});

inline constexpr auto kStressNames = std::to_array<TextRow>({
    // id             text
    { 54591, MQ_TEXT("SX: stress along X") },
    { 54592, MQ_TEXT("SY: stress along Y") },
    { 54593, MQ_TEXT("SZ: stress along Z") },
    { 54594, MQ_TEXT("TXY: shear stress in plane XY") },
    { 54595, MQ_TEXT("TXZ: shear stress in plane XZ") },
    { 54596, MQ_TEXT("TYZ: shear stress in plane YZ") },
    { 54597, MQ_TEXT("SP1: first principal stress") },
    { 54598, MQ_TEXT("SP2: second principal stress") },
    { 54599, MQ_TEXT("SP3: third principal stress") },
    { 54600, MQ_TEXT("SEQ: equivalent stress") },
    { 54601, MQ_TEXT("SA: scalar stress A") },
    { 55085, MQ_TEXT("SB: scalar stress B") },
    { 54602, MQ_TEXT("SNUM: dimensionless stress value") },
    { 54718, MQ_TEXT("SVEC: directional stress") },
    { 54494, MQ_TEXT("SC: scalar stress C") },
    { 54495, MQ_TEXT("SD: scalar stress D") },
    { 56061, MQ_TEXT("SPB: stress from the principal stresses") },
    { 54525, MQ_TEXT("STALT: alternate stress") },
});

inline constexpr auto kBeamStressNames = std::to_array<TextRow>({
    // id             text                                 also bar names and axis titles
    { 52020, MQ_TEXT("BA: beam stress A") },
    { 54009, MQ_TEXT("BB: beam stress B") },
    { 54010, MQ_TEXT("BC: beam stress C") },
    { 54011, MQ_TEXT("BD: beam stress D") },
    { 54012, MQ_TEXT("BE: beam stress E") },
    { 54013, MQ_TEXT("BF: beam stress F") },
    { 54014, MQ_TEXT("BG: beam stress G") },
});

inline constexpr auto kStrainNames = std::to_array<TextRow>({
    // id             text
    { 54603, MQ_TEXT("EX: strain along X") },
    { 54604, MQ_TEXT("EY: strain along Y") },
    { 54605, MQ_TEXT("EZ: strain along Z") },
    { 54606, MQ_TEXT("GXY: shear strain in plane XY") },
    { 54607, MQ_TEXT("GXZ: shear strain in plane XZ") },
    { 54608, MQ_TEXT("GYZ: shear strain in plane YZ") },
    { 54609, MQ_TEXT("ES: scalar strain") },
    { 54610, MQ_TEXT("WD: strain energy density") },
    { 54611, MQ_TEXT("WT: total strain energy") },
    { 50177, MQ_TEXT("EP1: first principal strain") },
    { 50178, MQ_TEXT("EP2: second principal strain") },
    { 50179, MQ_TEXT("EP3: third principal strain") },
});

inline constexpr auto kThermalNames = std::to_array<TextRow>({
    // id             text
    { 54612, MQ_TEXT("TEMP: temperature") },
    { 54613, MQ_TEXT("GTX: temperature gradient along X") },
    { 54614, MQ_TEXT("GTY: temperature gradient along Y") },
    { 54615, MQ_TEXT("GTZ: temperature gradient along Z") },
    { 54616, MQ_TEXT("GTMAG: temperature gradient magnitude") },
    { 54617, MQ_TEXT("HFX: heat flux along X") },
    { 54618, MQ_TEXT("HFY: heat flux along Y") },
    { 54619, MQ_TEXT("HFZ: heat flux along Z") },
    { 50264, MQ_TEXT("HFMAG: heat flux magnitude") },
    { 54555, MQ_TEXT("HPOW: heat power") },
    { 54556, MQ_TEXT("HEN: heat energy") },
});

inline constexpr auto kVelocityNames = std::to_array<TextRow>({
    // id             text
    { 54405, MQ_TEXT("VX: velocity along X") },
    { 54406, MQ_TEXT("VY: velocity along Y") },
    { 54407, MQ_TEXT("VZ: velocity along Z") },
    { 54411, MQ_TEXT("VMAG: velocity magnitude") },
    { 54408, MQ_TEXT("AVX: angular velocity about X") },
    { 54409, MQ_TEXT("AVY: angular velocity about Y") },
    { 54410, MQ_TEXT("AVZ: angular velocity about Z") },
    { 54763, MQ_TEXT("VA: velocity quantity A") },  // look-ups alone know A to D
    { 54764, MQ_TEXT("VB: velocity quantity B") },
    { 54765, MQ_TEXT("VC: velocity quantity C") },
    { 54766, MQ_TEXT("VD: velocity quantity D") },
});

inline constexpr auto kAccelerationNames = std::to_array<TextRow>({
    // id             text
    { 54412, MQ_TEXT("ACX: acceleration along X") },
    { 54413, MQ_TEXT("ACY: acceleration along Y") },
    { 54414, MQ_TEXT("ACZ: acceleration along Z") },
    { 54418, MQ_TEXT("ACMAG: acceleration magnitude") },
    { 54415, MQ_TEXT("AAX: angular acceleration about X") },
    { 54416, MQ_TEXT("AAY: angular acceleration about Y") },
    { 54417, MQ_TEXT("AAZ: angular acceleration about Z") },
});

inline constexpr auto kFatigueNames = std::to_array<TextRow>({
    // id             text
    { 54745, MQ_TEXT("LIFE: fatigue life") },
    { 54746, MQ_TEXT("FAT1: fatigue quantity 1") },
    { 54020, MQ_TEXT("FAT2: fatigue quantity 2") },             // full, bar and brief name in one
    { 54747, MQ_TEXT("FATL2: fatigue quantity 2 of a list") },  // lists and look-ups have their own
    { 54749, MQ_TEXT("FAT3: fatigue quantity 3") },
});

inline constexpr auto kSafetyNames = std::to_array<TextRow>({
    // id             text
    { 53574, MQ_TEXT("FSA: safety quantity A") },
    { 53575, MQ_TEXT("FSB: safety quantity B") },
    { 50018, MQ_TEXT("FSC: safety quantity C") },
    { 50019, MQ_TEXT("FSD: safety quantity D") },
    { 53576, MQ_TEXT("FSE: safety quantity E") },  // the one name of another result type as well
});

inline constexpr auto kForceNames = std::to_array<TextRow>({
    // id             text                                 force and moment, also bar and brief
    { 51767, MQ_TEXT("F1: force 1") },
    { 53953, MQ_TEXT("F2: force 2") },
    { 53954, MQ_TEXT("F3: force 3") },
    { 53955, MQ_TEXT("M1: moment 1") },
    { 53963, MQ_TEXT("M2: moment 2") },
    { 51761, MQ_TEXT("M3: moment 3") },

    //                                                      two forces with a moment
    { 53154, MQ_TEXT("FMA: force A") },
    { 53156, MQ_TEXT("FMB: force B") },  // the ids of B and of the moment are crossed
    { 53155, MQ_TEXT("FMM: moment") },

    //                                                      a force with its members
    { 53157, MQ_TEXT("CFMAG: force magnitude") },
    { 53158, MQ_TEXT("CF1: force component 1") },
    { 53159, MQ_TEXT("CF2: force component 2") },
    { 53160, MQ_TEXT("CF3: force component 3") },
});

inline constexpr auto kMassPropertyNames = std::to_array<TextRow>({
    // id             text
    { 51060, MQ_TEXT("MASS: mass") },
    { 53401, MQ_TEXT("VOL: volume") },
    { 53402, MQ_TEXT("AREA: area") },
    { 53403, MQ_TEXT("LEN1: length 1") },
    { 53404, MQ_TEXT("LEN2: length 2") },
    { 53405, MQ_TEXT("LEN3: length 3") },
});

inline constexpr auto kOtherNames = std::to_array<TextRow>({
    // id             text
    { 50507, MQ_TEXT("QA: dimensionless quantity A") },
    { 54262, MQ_TEXT("QB: dimensionless quantity B") },
    { 54263, MQ_TEXT("QC: dimensionless quantity C") },
    { 50760, MQ_TEXT("QD: dimensionless quantity D") },
    { 53101, MQ_TEXT("QLEN: length quantity") },
    { 54470, MQ_TEXT("NSTA: quantity of a static study") },
    { 54471, MQ_TEXT("NSTE: quantity of a stepped study") },
    { 54472, MQ_TEXT("NFRE: quantity of a frequency study") },
    { 54473, MQ_TEXT("NBUC: quantity of a buckling study") },
    { 50330, MQ_TEXT("GEN: general quantity") },
    { 54629, MQ_TEXT("BUCK: buckling quantity") },
    { 55541, MQ_TEXT("OTH: other quantity") },
});

// clang-format on

}  // namespace mqp::host
