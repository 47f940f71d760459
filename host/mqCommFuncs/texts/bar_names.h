/// \file
/// Component names on colour bars: the symbol of the full name and a few words. Several results
/// use them as brief names as well.
#pragma once

#include <array>

#include "text_row.h"

namespace mqp::host {

// clang-format off

inline constexpr auto kDisplacementBarNames = std::to_array<TextRow>({
    // id             text
    { 53981, MQ_TEXT("DX displacement") },
    { 53982, MQ_TEXT("DY displacement") },
    { 53983, MQ_TEXT("DZ displacement") },
    { 53984, MQ_TEXT("DMAG displacement") },
    { 53473, MQ_TEXT("FRX reaction force") },
    { 53474, MQ_TEXT("FRY reaction force") },
    { 53475, MQ_TEXT("FRZ reaction force") },
    { 53476, MQ_TEXT("FRMAG reaction force") },
    { 53477, MQ_TEXT("ROTX rotation") },
    { 53478, MQ_TEXT("ROTY rotation") },
    { 53479, MQ_TEXT("ROTZ rotation") },
    { 53480, MQ_TEXT("MRX reaction moment") },
    { 53481, MQ_TEXT("MRY reaction moment") },
    { 53482, MQ_TEXT("MRZ reaction moment") },
    { 53483, MQ_TEXT("MRMAG reaction moment") },
});

inline constexpr auto kNormalisedModeShapeBarNames = std::to_array<TextRow>({
    // id             text
    { 54873, MQ_TEXT("AX amplitude") },
    { 54874, MQ_TEXT("AY amplitude") },
    { 54875, MQ_TEXT("AZ amplitude") },
    { 54876, MQ_TEXT("AMAG amplitude") },
    { 55275, MQ_TEXT("ARX normalised rotation") },
    { 55276, MQ_TEXT("ARY normalised rotation") },
    { 55268, MQ_TEXT("ARZ normalised rotation") },  // not in the run of the two above
});

inline constexpr auto kStressBarNames = std::to_array<TextRow>({
    // id             text
    { 53987, MQ_TEXT("SX stress") },
    { 53988, MQ_TEXT("SY stress") },
    { 53989, MQ_TEXT("SZ stress") },
    { 53990, MQ_TEXT("TXY shear stress") },
    { 53991, MQ_TEXT("TXZ shear stress") },
    { 53992, MQ_TEXT("TYZ shear stress") },
    { 53993, MQ_TEXT("SP1 principal stress") },
    { 53947, MQ_TEXT("SP2 principal stress") },
    { 53994, MQ_TEXT("SP3 principal stress") },
    { 53034, MQ_TEXT("SEQ equivalent stress") },
    { 53996, MQ_TEXT("SA scalar stress") },            // also the brief name
    { 55084, MQ_TEXT("SB scalar stress") },            // also the brief name
    { 52190, MQ_TEXT("SNUM dimensionless stress") },   // also the brief name
    { 53997, MQ_TEXT("SVEC directional stress") },
    { 54498, MQ_TEXT("SC scalar stress") },
    { 54499, MQ_TEXT("SD scalar stress") },
});

inline constexpr auto kStrainBarNames = std::to_array<TextRow>({
    // id             text
    { 53998, MQ_TEXT("EX strain") },
    { 53999, MQ_TEXT("EY strain") },
    { 53971, MQ_TEXT("EZ strain") },
    { 53972, MQ_TEXT("GXY shear strain") },
    { 53973, MQ_TEXT("GXZ shear strain") },
    { 53974, MQ_TEXT("GYZ shear strain") },
    { 53975, MQ_TEXT("ES scalar strain") },
    { 53976, MQ_TEXT("WD energy density") },
    { 53977, MQ_TEXT("WT strain energy") },
    { 53978, MQ_TEXT("EP1 principal strain") },
    { 53979, MQ_TEXT("EP2 principal strain") },
    { 53980, MQ_TEXT("EP3 principal strain") },
});

inline constexpr auto kThermalBarNames = std::to_array<TextRow>({
    // id             text
    { 53985, MQ_TEXT("TEMP temperature") },
    { 53986, MQ_TEXT("GTX gradient") },
    { 54000, MQ_TEXT("GTY gradient") },
    { 54001, MQ_TEXT("GTZ gradient") },
    { 54002, MQ_TEXT("GTMAG gradient") },
    { 54003, MQ_TEXT("HFX heat flux") },
    { 54004, MQ_TEXT("HFY heat flux") },
    { 54005, MQ_TEXT("HFZ heat flux") },
    { 54006, MQ_TEXT("HFMAG heat flux") },
    { 54007, MQ_TEXT("HPOW heat power") },
    { 54008, MQ_TEXT("HEN heat energy") },
});

inline constexpr auto kVelocityBarNames = std::to_array<TextRow>({
    // id             text                                 also the brief names
    { 54022, MQ_TEXT("VX velocity") },
    { 54023, MQ_TEXT("VY velocity") },
    { 54024, MQ_TEXT("VZ velocity") },
    { 54025, MQ_TEXT("VMAG velocity") },
    { 54026, MQ_TEXT("AVX angular velocity") },
    { 54027, MQ_TEXT("AVY angular velocity") },
    { 54028, MQ_TEXT("AVZ angular velocity") },
});

inline constexpr auto kAccelerationBarNames = std::to_array<TextRow>({
    // id             text                                 also the brief names
    { 54029, MQ_TEXT("ACX acceleration") },
    { 54030, MQ_TEXT("ACY acceleration") },
    { 54031, MQ_TEXT("ACZ acceleration") },
    { 53945, MQ_TEXT("ACMAG acceleration") },
    { 54032, MQ_TEXT("AAX angular acceleration") },
    { 54033, MQ_TEXT("AAY angular acceleration") },
    { 54034, MQ_TEXT("AAZ angular acceleration") },
    { 53946, MQ_TEXT("RMAG rotational part") },  // brief name of a velocity as well
});

inline constexpr auto kFatigueBarNames = std::to_array<TextRow>({
    // id             text
    { 54015, MQ_TEXT("LIFE fatigue") },
    { 54019, MQ_TEXT("FAT1 fatigue") },
    { 55362, MQ_TEXT("FAT1 fatigue, variant") },
    { 54021, MQ_TEXT("FAT3 fatigue") },
});

inline constexpr auto kSafetyBarNames = std::to_array<TextRow>({
    // id             text                                 also the brief names
    { 53471, MQ_TEXT("FSA safety") },
    { 53472, MQ_TEXT("FSB safety") },
});

// clang-format on

}  // namespace mqp::host
