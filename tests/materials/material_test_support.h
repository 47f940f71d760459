/// \file
/// What the tests of materials share: the members of a record one by one, its six strengths in
/// order, and numbers shown with their bits.
#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/materials/material.h>
#include <mqPostCommon/materials/temperature_curve.h>
#include <mqPostCommon/platform/wide_string.h>

#include "platform/print_text.h"

namespace mqp::test {

/// How a value is shown; numbers by their bits as well, so that -0.0 is not 0.0.
inline std::string Show(int value) {
  return std::to_string(value);
}
inline std::string Show(double value) {
  std::array<char, 80> text{};
  std::snprintf(text.data(), text.size(), "%.17g (%a, %016llX)", value, value,
                static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(value)));
  return text.data();
}
inline std::string Show(float value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.9g (%a, %08X)", static_cast<double>(value),
                static_cast<double>(value), std::bit_cast<std::uint32_t>(value));
  return text.data();
}
inline std::string Show(const CString& value) {
  return testing::PrintToString(value);
}
inline std::string Show(const std::vector<double>& values) {
  std::string text = "{";
  for (const double value : values) {
    text += (text.size() > 1 ? ", " : "") + Show(value);
  }
  return text + '}';
}
inline std::string Show(const CmqTemperatureCurve& curve) {
  return std::to_string(curve.m_nPoints) + " points of " + Show(curve.m_vecX) + " and " +
         Show(curve.m_vecY);
}

/// Whether two values are the same, numbers to the bit.
inline bool IsSame(int left, int right) {
  return left == right;
}
inline bool IsSame(double left, double right) {
  return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}
inline bool IsSame(float left, float right) {
  return std::bit_cast<std::uint32_t>(left) == std::bit_cast<std::uint32_t>(right);
}
inline bool IsSame(const CString& left, const CString& right) {
  return left == right;
}
inline bool IsSame(const std::vector<double>& left, const std::vector<double>& right) {
  if (left.size() != right.size()) {
    return false;
  }
  for (std::size_t place = 0; place < left.size(); ++place) {
    if (!IsSame(left[place], right[place])) {
      return false;
    }
  }
  return true;
}
inline bool IsSame(const CmqTemperatureCurve& left, const CmqTemperatureCurve& right) {
  return left.m_nPoints == right.m_nPoints && IsSame(left.m_vecX, right.m_vecX) &&
         IsSame(left.m_vecY, right.m_vecY);
}

/// What an expectation of a value prints when it is not the same.
template <class Value>
std::string Difference(const Value& got, const Value& expected) {
  return IsSame(got, expected) ? std::string()
                               : "got " + Show(got) + ", expected " + Show(expected);
}

/// One of the six strengths of a record.
struct Strength {
  const char* name;
  int CmqpMaterialData::* has;
  double CmqpMaterialData::* value;
  int CmqpMaterialData::* varies;
  CmqTemperatureCurve CmqpMaterialData::* curve;
  int (CmqpMaterialData::*getValue)(double&) const noexcept;
  int (CmqpMaterialData::*isTempDepend)() const noexcept;
  CmqTemperatureCurve* (CmqpMaterialData::*getCurve)() noexcept;
};

inline constexpr int kStrengthTotal = 6;

/// Their places in `kStrengths`.
enum StrengthPlace { kYield, kTensile, kCompressive, kSecondTensile, kSecondCompressive, kShear };

using Record = CmqpMaterialData;

// clang-format off
// Not constexpr: the address of an imported function is known at load.
inline const Strength kStrengths[kStrengthTotal] = {
    {"SIGYLD", &Record::m_bHasSIGYLD, &Record::m_dSIGYLD, &Record::m_bSIGYLDTempDepend, &Record::m_SIGYLDTempCurve,
     &Record::GetPropertyValue_SIGYLD, &Record::IsSIGYLDTempDepend, &Record::GetSIGYLDTempCurve},
    {"SIGXT",  &Record::m_bHasSIGXT,  &Record::m_dSIGXT,  &Record::m_bSIGXTTempDepend,  &Record::m_SIGXTTempCurve,
     &Record::GetPropertyValue_SIGXT,  &Record::IsSIGXTTempDepend,  &Record::GetSIGXTTempCurve},
    {"SIGXC",  &Record::m_bHasSIGXC,  &Record::m_dSIGXC,  &Record::m_bSIGXCTempDepend,  &Record::m_SIGXCTempCurve,
     &Record::GetPropertyValue_SIGXC,  &Record::IsSIGXCTempDepend,  &Record::GetSIGXCTempCurve},
    {"SIGYT",  &Record::m_bHasSIGYT,  &Record::m_dSIGYT,  &Record::m_bSIGYTTempDepend,  &Record::m_SIGYTTempCurve,
     &Record::GetPropertyValue_SIGYT,  &Record::IsSIGYTTempDepend,  &Record::GetSIGYTTempCurve},
    {"SIGYC",  &Record::m_bHasSIGYC,  &Record::m_dSIGYC,  &Record::m_bSIGYCTempDepend,  &Record::m_SIGYCTempCurve,
     &Record::GetPropertyValue_SIGYC,  &Record::IsSIGYCTempDepend,  &Record::GetSIGYCTempCurve},
    {"SIGXY",  &Record::m_bHasSIGXY,  &Record::m_dSIGXY,  &Record::m_bSIGXYTempDepend,  &Record::m_SIGXYTempCurve,
     &Record::GetPropertyValue_SIGXY,  &Record::IsSIGXYTempDepend,  &Record::GetSIGXYTempCurve},
};
// clang-format on

/// Calls `visit(name, member)` for every member of a record in the order of declaration.
template <class Material, class Visit>
void VisitMembers(Material& material, Visit visit) {
  visit("m_nCount", material.m_nCount);
  visit("m_nMaterialSource", material.m_nMaterialSource);
  visit("m_nDefinedUnits", material.m_nDefinedUnits);
  visit("m_bHasSIGYLD", material.m_bHasSIGYLD);
  visit("m_dSIGYLD", material.m_dSIGYLD);
  visit("m_bSIGYLDTempDepend", material.m_bSIGYLDTempDepend);
  visit("m_SIGYLDTempCurve", material.m_SIGYLDTempCurve);
  visit("m_bHasSIGXT", material.m_bHasSIGXT);
  visit("m_dSIGXT", material.m_dSIGXT);
  visit("m_bSIGXTTempDepend", material.m_bSIGXTTempDepend);
  visit("m_SIGXTTempCurve", material.m_SIGXTTempCurve);
  visit("m_bHasSIGXC", material.m_bHasSIGXC);
  visit("m_dSIGXC", material.m_dSIGXC);
  visit("m_bSIGXCTempDepend", material.m_bSIGXCTempDepend);
  visit("m_SIGXCTempCurve", material.m_SIGXCTempCurve);
  visit("m_bHasSIGYT", material.m_bHasSIGYT);
  visit("m_dSIGYT", material.m_dSIGYT);
  visit("m_bSIGYTTempDepend", material.m_bSIGYTTempDepend);
  visit("m_SIGYTTempCurve", material.m_SIGYTTempCurve);
  visit("m_bHasSIGYC", material.m_bHasSIGYC);
  visit("m_dSIGYC", material.m_dSIGYC);
  visit("m_bSIGYCTempDepend", material.m_bSIGYCTempDepend);
  visit("m_SIGYCTempCurve", material.m_SIGYCTempCurve);
  visit("m_bHasSIGXY", material.m_bHasSIGXY);
  visit("m_dSIGXY", material.m_dSIGXY);
  visit("m_bSIGXYTempDepend", material.m_bSIGXYTempDepend);
  visit("m_SIGXYTempCurve", material.m_SIGXYTempCurve);
  visit("m_strMaterialName", material.m_strMaterialName);
  visit("m_strExtraText", material.m_strExtraText);
  visit("m_nBodyID", material.m_nBodyID);
  visit("m_nTreatAsMaterial", material.m_nTreatAsMaterial);
  visit("m_nDefaultFailureCriteria", material.m_nDefaultFailureCriteria);
  visit("m_nSecondaryID", material.m_nSecondaryID);
  visit("m_nReserved", material.m_nReserved);
}

/// Every member in which two records differ, a line each; empty when they are equal.
inline std::string Differences(const CmqpMaterialData& got, const CmqpMaterialData& expected) {
  using Member =
      std::variant<const int*, const double*, const CString*, const CmqTemperatureCurve*>;
  std::vector<Member> expectedMembers;
  VisitMembers(expected,
               [&](const char*, const auto& member) { expectedMembers.emplace_back(&member); });
  std::string text;
  std::size_t place = 0;
  VisitMembers(got, [&](const char* name, const auto& member) {
    const std::string difference =
        Difference(member, *std::get<decltype(&member)>(expectedMembers[place++]));
    if (!difference.empty()) {
      text += std::string(name) + ": " + difference + '\n';
    }
  });
  return text;
}

/// Gives every member a value of its own, different from each default, from every other member
/// and from those of another seed from 1 to 9. The curves have three points, a fourth temperature
/// and a fourth and fifth value.
inline void FillWithDistinctValues(CmqpMaterialData& material, int seed) {
  struct Filler {
    int next;
    void Set(int& member) { member = next++; }
    void Set(double& member) { member = 0.1 + next++; }
    void Set(CString& member) { member.Format(MQ_TEXT("text \u03A9 %d"), next++); }
    void Set(CmqTemperatureCurve& member) {
      const double start = next++;
      member.m_nPoints = 3;
      member.m_vecX = {start + 0.1, start + 0.2, start + 0.3, start + 0.4};
      member.m_vecY = {start - 0.1, start - 0.2, start - 0.3, start - 0.4, start - 0.5};
    }
  };
  Filler filler{seed * 0x0111'1111};
  VisitMembers(material, [&filler](const char*, auto& member) { filler.Set(member); });
}

/// Sets every member to its default but for the curves.
inline void SetDefaults(CmqpMaterialData& material) {
  material.m_nCount = 0;
  material.m_nMaterialSource = 0;
  material.m_nDefinedUnits = 0;
  material.m_bHasSIGYLD = 0;
  material.m_dSIGYLD = -1.0;
  material.m_bSIGYLDTempDepend = 0;
  material.m_bHasSIGXT = 0;
  material.m_dSIGXT = -1.0;
  material.m_bSIGXTTempDepend = 0;
  material.m_bHasSIGXC = 0;
  material.m_dSIGXC = -1.0;
  material.m_bSIGXCTempDepend = 0;
  material.m_bHasSIGYT = 0;
  material.m_dSIGYT = -1.0;
  material.m_bSIGYTTempDepend = 0;
  material.m_bHasSIGYC = 0;
  material.m_dSIGYC = -1.0;
  material.m_bSIGYCTempDepend = 0;
  material.m_bHasSIGXY = 0;
  material.m_dSIGXY = -1.0;
  material.m_bSIGXYTempDepend = 0;
  material.m_strMaterialName = MQ_TEXT("");
  material.m_strExtraText = MQ_TEXT("");
  material.m_nBodyID = -1;
  material.m_nTreatAsMaterial = 0;
  material.m_nDefaultFailureCriteria = 0;
  material.m_nSecondaryID = 0;
  material.m_nReserved = 0;
}

/// Leaves each curve its first points and no entries behind them.
inline void ShortenCurves(CmqpMaterialData& material, std::size_t points) {
  for (const Strength& strength : kStrengths) {
    CmqTemperatureCurve& curve = material.*strength.curve;
    curve.m_nPoints = static_cast<int>(points);
    curve.m_vecX.resize(points);
    curve.m_vecY.resize(points);
  }
}

/// Makes `material` what a new record must be, out of one in which every member is something else.
inline void MakeNew(CmqpMaterialData& material) {
  FillWithDistinctValues(material, 9);
  SetDefaults(material);
  ShortenCurves(material, 0);
}

/// Defines a strength that varies with temperature.
inline void LetVary(CmqpMaterialData& material, const Strength& strength) {
  material.*strength.has = 1;
  material.*strength.varies = 1;
  (material.*strength.curve).m_nPoints = 1;
  (material.*strength.curve).m_vecX = {20.0};
  (material.*strength.curve).m_vecY = {200.0};
}

}  // namespace mqp::test
