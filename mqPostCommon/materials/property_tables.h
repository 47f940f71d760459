/// \file
/// The keywords of material properties, the units that they are shown in, and which properties a
/// material model uses. Constant, ready before any code runs, never translated.
#pragma once

#include <cstddef>

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/text.h>

namespace mqp {

/// A constant table of zero-terminated texts, which lie in the table itself. `table[index]` is a
/// text; an index outside the table gives an empty one.
template <std::size_t Count, std::size_t Width>
struct TextTable {
  mqChar m_strTexts[Count][Width];

  [[nodiscard]] static constexpr int size() noexcept { return static_cast<int>(Count); }
  [[nodiscard]] constexpr const mqChar* operator[](int index) const noexcept {
    const auto place = static_cast<std::size_t>(index);  // beyond the table for one below 0
    return place < Count ? m_strTexts[place] : MQ_TEXT("");
  }
};

inline constexpr int kMatPropTotal = 121;
inline constexpr int kMatUnitSystemTotal = 6;
inline constexpr std::size_t kMatUnitTotal = std::size_t{kMatPropTotal} * kMatUnitSystemTotal;

/// As wide as the longest keyword and its terminator.
template <std::size_t Count>
using KeywordTable = TextTable<Count, 12>;

/// The keywords of one material model.
struct MaterialModel {
  const mqChar (*m_strKeywords)[12];
  int m_nKeywords;
};

inline constexpr int kMaterialModelTotal = 15;

/// The property that a keyword names, compared as it is written.
/// \return its index in `g_strMatPropKeywords`, -1 for an unknown keyword
MQPOSTCOMMON_API int FindMaterialProperty(mqTextView keyword) noexcept;

/// The keyword list of a material model.
/// \param number 1 to 15, as in the names of the lists
/// \return no keywords for any other number
MQPOSTCOMMON_API MaterialModel GetMaterialModel(int number) noexcept;

}  // namespace mqp

/// The keyword of each property. The strengths SIGYT, SIGYC and SIGXY stand at the end.
extern MQPOSTCOMMON_API const mqp::KeywordTable<mqp::kMatPropTotal> g_strMatPropKeywords;

/// The unit of property i in material unit system j at `i * 6 + j`: 0 N/m^2 and its like, 1 psi,
/// 2 kgf/cm^2, 3 N/mm^2; 4 and 5 are reserved. "NA": the property has no unit there; "Future": one
/// is reserved. CREEPTC holds the names of unit systems.
extern MQPOSTCOMMON_API const mqp::TextTable<mqp::kMatUnitTotal, 24> g_strMatPropUnits;

/// The properties that a material model uses, in order.
extern MQPOSTCOMMON_API const mqp::KeywordTable<22> g_strMatModelKeywords1;
extern MQPOSTCOMMON_API const mqp::KeywordTable<8> g_strMatModelKeywords2;
extern MQPOSTCOMMON_API const mqp::KeywordTable<5> g_strMatModelKeywords3;
extern MQPOSTCOMMON_API const mqp::KeywordTable<7> g_strMatModelKeywords4;
extern MQPOSTCOMMON_API const mqp::KeywordTable<11> g_strMatModelKeywords5;
extern MQPOSTCOMMON_API const mqp::KeywordTable<11> g_strMatModelKeywords6;
extern MQPOSTCOMMON_API const mqp::KeywordTable<15> g_strMatModelKeywords7;
extern MQPOSTCOMMON_API const mqp::KeywordTable<14> g_strMatModelKeywords8;
extern MQPOSTCOMMON_API const mqp::KeywordTable<8> g_strMatModelKeywords9;
extern MQPOSTCOMMON_API const mqp::KeywordTable<17> g_strMatModelKeywords10;
extern MQPOSTCOMMON_API const mqp::KeywordTable<16> g_strMatModelKeywords11;
extern MQPOSTCOMMON_API const mqp::KeywordTable<24> g_strMatModelKeywords12;
extern MQPOSTCOMMON_API const mqp::KeywordTable<24> g_strMatModelKeywords13;
extern MQPOSTCOMMON_API const mqp::KeywordTable<12> g_strMatModelKeywords14;
extern MQPOSTCOMMON_API const mqp::KeywordTable<41> g_strMatModelKeywords15;
