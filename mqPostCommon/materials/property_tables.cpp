#include <algorithm>
#include <array>
#include <cstdint>
#include <numeric>
#include <string_view>
#include <type_traits>

#include <mqPostCommon/materials/property_tables.h>

namespace mqp {
namespace {

/// The unit of a property in each material unit system.
using Units = std::array<std::string_view, kMatUnitSystemTotal>;

struct PropertyRow {
  std::string_view keyword;
  Units units;
};

// clang-format off

// ---------------------------------------------------------------------------------------------
// Units
//                               SI                       English                 Metric                       SI, millimetres            reserved
constexpr Units kStress           = { "N/m^2",                 "psi",                 "kgf/cm^2",                 "N/mm^2",                 "Future", "Future" };
constexpr Units kDensity          = { "kg/m^3",                "lb/in^3",             "kg/cm^3",                  "g/cm^3",                 "Future", "Future" };
constexpr Units kExpansion        = { "/Kelvin",               "/Fahrenheit",         "/Centigrade",              "/Kelvin",                "Future", "Future" };
constexpr Units kConductivity     = { "W/(m.K)",               "BTU/(in.s.F)",        "Cal/(cm.s.C)",             "W/(cm.K)",               "Future", "Future" };
constexpr Units kSpecificHeat     = { "J/(kg.K)",              "Btu/(lb.F)",          "Cal/(kg.C)",               "Cal/(kg.C)",             "Future", "Future" };  // "Btu", and the calories twice
constexpr Units kTemperature      = { "Kelvin",                "Fahrenheit",          "Centigrade",               "Kelvin",                 "Future", "Future" };
constexpr Units kCreepConstant    = { "(N/m^2)^-CREEPCONST2",  "(psi)^-CREEPCONST2",  "(kgf/cm^2)^-CREEPCONST2",  "(N/mm^2)^-CREEPCONST2",  "NA",     "NA"     };  // nothing is reserved
constexpr Units kCreepTemperature = { "SI",                    "IPS",                 "MKS",                      "Kelvin",                 "Future", "Future" };  // unit systems, but for the last
constexpr Units kAngle            = { "Deg",                   "Deg",                 "Deg",                      "Deg",                    "Deg",    "Deg"    };
constexpr Units kTime             = { "sec",                   "sec",                 "sec",                      "sec",                    "sec",    "sec"    };
constexpr Units kNone             = { "NA",                    "NA",                  "NA",                       "NA",                     "NA",     "NA"     };

// ---------------------------------------------------------------------------------------------
// Properties. Indices are positions in this order.

constexpr auto kProperties = std::to_array<PropertyRow>({
//    keyword         units
    { "EX",           kStress },
    { "EY",           kStress },
    { "EZ",           kStress },
    { "NUXY",         kNone },
    { "NUYZ",         kNone },
    { "NUXZ",         kNone },
    { "GXY",          kStress },
    { "GYZ",          kStress },
    { "GXZ",          kStress },
    { "DENS",         kDensity },
    { "SIGXT",        kStress },
    { "SIGXC",        kStress },
    { "SIGYLD",       kStress },
    { "ALPX",         kExpansion },
    { "ALPY",         kExpansion },
    { "ALPZ",         kExpansion },
    { "KX",           kConductivity },
    { "KY",           kConductivity },
    { "KZ",           kConductivity },
    { "C",            kSpecificHeat },
    { "MC11",         kNone },
    { "MC12",         kNone },
    { "MC13",         kNone },
    { "MC14",         kNone },
    { "MC15",         kNone },
    { "MC16",         kNone },
    { "MC22",         kNone },
    { "MC23",         kNone },
    { "MC24",         kNone },
    { "MC25",         kNone },
    { "MC26",         kNone },
    { "MC33",         kNone },
    { "MC34",         kNone },
    { "MC35",         kNone },
    { "MC36",         kNone },
    { "MC44",         kNone },
    { "MC45",         kNone },
    { "MC46",         kNone },
    { "MC55",         kNone },
    { "MC56",         kNone },
    { "MC66",         kNone },
    { "ETAN",         kStress },
    { "COHESN",       kStress },
    { "FRCANG",       kAngle },
    { "MOONEY_A",     kStress },
    { "MOONEY_B",     kStress },
    { "MOONEY_C",     kStress },
    { "MOONEY_D",     kStress },
    { "MOONEY_E",     kStress },
    { "MOONEY_F",     kStress },
    { "ALPH1",        kNone },
    { "ALPH2",        kNone },
    { "ALPH3",        kNone },
    { "ALPH4",        kNone },
    { "MU1",          kStress },
    { "MU2",          kStress },
    { "MU3",          kStress },
    { "MU4",          kStress },
    { "G1",           kNone },
    { "G2",           kNone },
    { "G3",           kNone },
    { "G4",           kNone },
    { "G5",           kNone },
    { "G6",           kNone },
    { "G7",           kNone },
    { "G8",           kNone },
    { "TAUG1",        kTime },
    { "TAUG2",        kNone },
    { "TAUG3",        kNone },
    { "TAUG4",        kNone },
    { "TAUG5",        kNone },
    { "TAUG6",        kNone },
    { "TAUG7",        kNone },
    { "TAUG8",        kNone },
    { "K1",           kNone },
    { "K2",           kNone },
    { "K3",           kNone },
    { "K4",           kNone },
    { "K5",           kNone },
    { "K6",           kNone },
    { "K7",           kNone },
    { "K8",           kNone },
    { "TAUK1",        kTime },
    { "TAUK2",        kNone },
    { "TAUK3",        kNone },
    { "TAUK4",        kNone },
    { "TAUK5",        kNone },
    { "TAUK6",        kNone },
    { "TAUK7",        kNone },
    { "TAUK8",        kNone },
    { "REFTEMP",      kTemperature },
    { "VC1",          kNone },
    { "VC2",          kNone },
    { "CREEPX",       kNone },
    { "CREEPC",       kNone },
    { "CREEPCONST1",  kCreepConstant },
    { "CREEPCONST2",  kNone },
    { "CREEPCONST3",  kNone },
    { "CREEPCONST4",  kNone },
    { "CREEPCONST5",  kNone },
    { "CREEPCONST6",  kNone },
    { "CREEPCONST7",  kNone },
    { "CREEPTC",      kCreepTemperature },
    { "RK",           kNone },
    { "SIGT_S1",      kStress },
    { "SIGT_F1",      kStress },
    { "SIGT_S2",      kStress },
    { "SIGT_F2",      kStress },
    { "SIGC_S1",      kStress },
    { "SIGC_F1",      kStress },
    { "SIGC_S2",      kStress },
    { "SIGC_F2",      kStress },
    { "EUL",          kNone },
    { "BETAT_1",      kNone },
    { "BETAT_2",      kNone },
    { "BETAC_1",      kNone },
    { "BETAC_2",      kNone },
    { "MDAMP",        kNone },
    { "SIGYT",        kStress },
    { "SIGYC",        kStress },
    { "SIGXY",        kStress },
});

// ---------------------------------------------------------------------------------------------
// Models

constexpr std::string_view kModel1 =
    "MC11 MC12 MC13 MC14 MC15 MC16 MC22 MC23 MC24 MC25 MC26 MC33 MC34 MC35 MC36 MC44 "
    "MC45 MC46 MC55 MC56 MC66 DENS";
constexpr std::string_view kModel2 =
    "EX ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC";
constexpr std::string_view kModel3 =
    "CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC DENS";
constexpr std::string_view kModel4 =
    "CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPCONST4 CREEPCONST5 CREEPCONST6 "
    "CREEPCONST7";
constexpr std::string_view kModel5 =
    "EX NUXY COHESN FRCANG ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 "
    "CREEPTC";
constexpr std::string_view kModel6 =
    "EX NUXY GXY DENS SIGXT SIGXC SIGYLD ALPX KX C MDAMP";
constexpr std::string_view kModel7 =
    "EX NUXY GXY DENS SIGXT SIGXC SIGYLD ALPX KX C MDAMP CREEPCONST1 CREEPCONST2 "
    "CREEPCONST3 CREEPTC";
constexpr std::string_view kModel8 =
    "NUXY ALPX MOONEY_A MOONEY_B MOONEY_C MOONEY_D MOONEY_E MOONEY_F DENS SIGXT "
    "CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC";
constexpr std::string_view kModel9 =
    "NUXY ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC";
constexpr std::string_view kModel10 =
    "EX NUXY SIGT_S1 SIGT_F1 SIGT_S2 SIGT_F2 SIGC_S1 SIGC_F1 SIGC_S2 SIGC_F2 EUL "
    "BETAT_1 BETAT_2 BETAC_1 BETAC_2 DENS ALPX";
constexpr std::string_view kModel11 =
    "NUXY ALPX ALPH1 ALPH2 ALPH3 ALPH4 MU1 MU2 MU3 MU4 DENS SIGXT CREEPCONST1 "
    "CREEPCONST2 CREEPCONST3 CREEPTC";
constexpr std::string_view kModel12 =
    "EX EY EZ NUXY NUYZ NUXZ GXY GYZ GXZ DENS SIGXT SIGYT SIGXC SIGYC SIGYLD SIGXY "
    "ALPX ALPY ALPZ KX KY KZ C MDAMP";
constexpr std::string_view kModel13 =
    "EX EY EZ NUXY NUYZ NUXZ GXY GYZ GXZ DENS SIGXT SIGXC SIGYLD ALPX ALPY ALPZ KX "
    "KY KZ C ETAN SIGYT SIGYC SIGXY";
constexpr std::string_view kModel14 =
    "EX NUXY SIGYLD ETAN ALPX DENS RK SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 "
    "CREEPTC";
constexpr std::string_view kModel15 =
    "EX NUXY GXY ALPX G1 G2 G3 G4 G5 G6 G7 G8 SIGXT TAUG1 TAUG2 TAUG3 TAUG4 TAUG5 "
    "TAUG6 TAUG7 TAUG8 K1 K2 K3 K4 K5 K6 K7 K8 TAUK1 TAUK2 TAUK3 TAUK4 TAUK5 TAUK6 "
    "TAUK7 TAUK8 REFTEMP VC1 VC2 DENS";

// clang-format on

static_assert(kProperties.size() == kMatPropTotal);

template <std::size_t Width>
constexpr void CopyText(std::string_view text, mqChar (&to)[Width]) {
  if (text.size() >= Width) {
    throw "a text is too long for its table";  // fails the build
  }
  std::ranges::copy(text, to);
}

consteval KeywordTable<kMatPropTotal> MakePropertyKeywords() {
  KeywordTable<kMatPropTotal> table{};
  for (std::size_t row = 0; row < kProperties.size(); ++row) {
    CopyText(kProperties[row].keyword, table.m_strTexts[row]);
  }
  return table;
}

consteval auto MakePropertyUnits() {
  std::remove_const_t<decltype(g_strMatPropUnits)> table{};
  std::size_t place = 0;
  for (const PropertyRow& row : kProperties) {
    for (const std::string_view unit : row.units) {
      CopyText(unit, table.m_strTexts[place++]);
    }
  }
  return table;
}

}  // namespace
}  // namespace mqp

constexpr mqp::KeywordTable<mqp::kMatPropTotal> g_strMatPropKeywords = mqp::MakePropertyKeywords();

namespace mqp {
namespace {

constexpr mqTextView KeywordAt(int property) noexcept {
  return g_strMatPropKeywords[property];
}

/// The properties in order of their keywords.
constexpr auto kSorted = [] {
  std::array<std::uint8_t, kMatPropTotal> properties{};
  std::iota(properties.begin(), properties.end(), std::uint8_t{0});
  std::ranges::sort(properties, {}, KeywordAt);
  return properties;
}();
static_assert(std::ranges::adjacent_find(kSorted, {}, KeywordAt) == kSorted.end());

constexpr int Find(const auto& keyword) noexcept {
  const auto* const found = std::lower_bound(
      kSorted.begin(), kSorted.end(), keyword, [](int property, const auto& wanted) {
        return std::ranges::lexicographical_compare(KeywordAt(property), wanted);
      });
  return found != kSorted.end() && std::ranges::equal(KeywordAt(*found), keyword) ? *found : -1;
}

/// The keywords of a list, divided at its blanks; as many as the table holds, each of a property.
template <std::size_t Count>
consteval KeywordTable<Count> MakeKeywords(std::string_view list) {
  KeywordTable<Count> table{};
  for (mqChar(&text)[12] : table.m_strTexts) {
    const std::string_view keyword = list.substr(0, list.find(' '));
    if (Find(keyword) < 0) {
      throw "a model names an unknown property, or too few";
    }
    CopyText(keyword, text);
    list.remove_prefix(std::min(list.size(), keyword.size() + 1));
  }
  if (!list.empty()) {
    throw "a model names more properties than its table holds";
  }
  return table;
}

template <std::size_t Count>
constexpr MaterialModel Model(const KeywordTable<Count>& table) noexcept {
  return {table.m_strTexts, table.size()};
}

}  // namespace
}  // namespace mqp

// clang-format off
constinit const mqp::TextTable<mqp::kMatUnitTotal, 24> g_strMatPropUnits = mqp::MakePropertyUnits();
constinit const mqp::KeywordTable<22> g_strMatModelKeywords1 = mqp::MakeKeywords<22>(mqp::kModel1);
constinit const mqp::KeywordTable<8> g_strMatModelKeywords2 = mqp::MakeKeywords<8>(mqp::kModel2);
constinit const mqp::KeywordTable<5> g_strMatModelKeywords3 = mqp::MakeKeywords<5>(mqp::kModel3);
constinit const mqp::KeywordTable<7> g_strMatModelKeywords4 = mqp::MakeKeywords<7>(mqp::kModel4);
constinit const mqp::KeywordTable<11> g_strMatModelKeywords5 = mqp::MakeKeywords<11>(mqp::kModel5);
constinit const mqp::KeywordTable<11> g_strMatModelKeywords6 = mqp::MakeKeywords<11>(mqp::kModel6);
constinit const mqp::KeywordTable<15> g_strMatModelKeywords7 = mqp::MakeKeywords<15>(mqp::kModel7);
constinit const mqp::KeywordTable<14> g_strMatModelKeywords8 = mqp::MakeKeywords<14>(mqp::kModel8);
constinit const mqp::KeywordTable<8> g_strMatModelKeywords9 = mqp::MakeKeywords<8>(mqp::kModel9);
constinit const mqp::KeywordTable<17> g_strMatModelKeywords10 = mqp::MakeKeywords<17>(mqp::kModel10);
constinit const mqp::KeywordTable<16> g_strMatModelKeywords11 = mqp::MakeKeywords<16>(mqp::kModel11);
constinit const mqp::KeywordTable<24> g_strMatModelKeywords12 = mqp::MakeKeywords<24>(mqp::kModel12);
constinit const mqp::KeywordTable<24> g_strMatModelKeywords13 = mqp::MakeKeywords<24>(mqp::kModel13);
constinit const mqp::KeywordTable<12> g_strMatModelKeywords14 = mqp::MakeKeywords<12>(mqp::kModel14);
constinit const mqp::KeywordTable<41> g_strMatModelKeywords15 = mqp::MakeKeywords<41>(mqp::kModel15);
// clang-format on

int mqp::FindMaterialProperty(mqTextView keyword) noexcept {
  return Find(keyword);
}

mqp::MaterialModel mqp::GetMaterialModel(int number) noexcept {
  switch (number) {
    case 1: return Model(g_strMatModelKeywords1);
    case 2: return Model(g_strMatModelKeywords2);
    case 3: return Model(g_strMatModelKeywords3);
    case 4: return Model(g_strMatModelKeywords4);
    case 5: return Model(g_strMatModelKeywords5);
    case 6: return Model(g_strMatModelKeywords6);
    case 7: return Model(g_strMatModelKeywords7);
    case 8: return Model(g_strMatModelKeywords8);
    case 9: return Model(g_strMatModelKeywords9);
    case 10: return Model(g_strMatModelKeywords10);
    case 11: return Model(g_strMatModelKeywords11);
    case 12: return Model(g_strMatModelKeywords12);
    case 13: return Model(g_strMatModelKeywords13);
    case 14: return Model(g_strMatModelKeywords14);
    case 15: return Model(g_strMatModelKeywords15);
    default: return {nullptr, 0};
  }
}
