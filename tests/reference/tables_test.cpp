#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "rules.h"
#include "tally.h"
#include "values.h"

namespace reference {
namespace {

std::vector<Text> Split(const Text& text, mqChar separator) {
  std::vector<Text> parts(1);
  for (const mqChar unit : text) {
    if (unit == separator) {
      parts.emplace_back();
    } else {
      parts.back() += unit;
    }
  }
  return parts;
}

std::vector<Text> Words(const mqChar* text) {
  return Split(text, MQ_TEXT(' '));
}

// clang-format off
const std::vector<Text>& Keywords() {
  static const std::vector<Text> words = Words(
      MQ_TEXT("EX EY EZ NUXY NUYZ NUXZ GXY GYZ GXZ DENS SIGXT SIGXC SIGYLD ALPX ALPY ALPZ KX ")
      MQ_TEXT("KY KZ C MC11 MC12 MC13 MC14 MC15 MC16 MC22 MC23 MC24 MC25 MC26 MC33 MC34 MC35 ")
      MQ_TEXT("MC36 MC44 MC45 MC46 MC55 MC56 MC66 ETAN COHESN FRCANG MOONEY_A MOONEY_B ")
      MQ_TEXT("MOONEY_C MOONEY_D MOONEY_E MOONEY_F ALPH1 ALPH2 ALPH3 ALPH4 MU1 MU2 MU3 MU4 G1 ")
      MQ_TEXT("G2 G3 G4 G5 G6 G7 G8 TAUG1 TAUG2 TAUG3 TAUG4 TAUG5 TAUG6 TAUG7 TAUG8 K1 K2 K3 ")
      MQ_TEXT("K4 K5 K6 K7 K8 TAUK1 TAUK2 TAUK3 TAUK4 TAUK5 TAUK6 TAUK7 TAUK8 REFTEMP VC1 VC2 ")
      MQ_TEXT("CREEPX CREEPC CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPCONST4 CREEPCONST5 ")
      MQ_TEXT("CREEPCONST6 CREEPCONST7 CREEPTC RK SIGT_S1 SIGT_F1 SIGT_S2 SIGT_F2 SIGC_S1 ")
      MQ_TEXT("SIGC_F1 SIGC_S2 SIGC_F2 EUL BETAT_1 BETAT_2 BETAC_1 BETAC_2 MDAMP SIGYT SIGYC ")
      MQ_TEXT("SIGXY"));
  return words;
}

/// The units of one row for the six unit systems, and the properties that have them.
struct UnitRow {
  const mqChar* units;
  const mqChar* properties;
};

const std::vector<UnitRow> kUnitRows = {
    { MQ_TEXT("N/m^2 psi kgf/cm^2 N/mm^2 Future Future"),
      MQ_TEXT("EX EY EZ GXY GYZ GXZ SIGXT SIGXC SIGYLD ETAN COHESN MOONEY_A MOONEY_B MOONEY_C "
              "MOONEY_D MOONEY_E MOONEY_F MU1 MU2 MU3 MU4 SIGT_S1 SIGT_F1 SIGT_S2 SIGT_F2 SIGC_S1 "
              "SIGC_F1 SIGC_S2 SIGC_F2 SIGYT SIGYC SIGXY") },
    { MQ_TEXT("kg/m^3 lb/in^3 kg/cm^3 g/cm^3 Future Future"), MQ_TEXT("DENS") },
    { MQ_TEXT("/Kelvin /Fahrenheit /Centigrade /Kelvin Future Future"), MQ_TEXT("ALPX ALPY ALPZ") },
    { MQ_TEXT("W/(m.K) BTU/(in.s.F) Cal/(cm.s.C) W/(cm.K) Future Future"), MQ_TEXT("KX KY KZ") },
    { MQ_TEXT("J/(kg.K) Btu/(lb.F) Cal/(kg.C) Cal/(kg.C) Future Future"), MQ_TEXT("C") },
    { MQ_TEXT("Kelvin Fahrenheit Centigrade Kelvin Future Future"), MQ_TEXT("REFTEMP") },
    { MQ_TEXT("(N/m^2)^-CREEPCONST2 (psi)^-CREEPCONST2 (kgf/cm^2)^-CREEPCONST2 "
              "(N/mm^2)^-CREEPCONST2 NA NA"), MQ_TEXT("CREEPCONST1") },
    { MQ_TEXT("SI IPS MKS Kelvin Future Future"), MQ_TEXT("CREEPTC") },
    { MQ_TEXT("Deg Deg Deg Deg Deg Deg"), MQ_TEXT("FRCANG") },
    { MQ_TEXT("sec sec sec sec sec sec"), MQ_TEXT("TAUG1 TAUK1") },
};

/// In the order of their storage.
const std::vector<const mqChar*> kModels = {
    MQ_TEXT("MC11 MC12 MC13 MC14 MC15 MC16 MC22 MC23 MC24 MC25 MC26 MC33 MC34 MC35 MC36 MC44 ")
    MQ_TEXT("MC45 MC46 MC55 MC56 MC66 DENS"),
    MQ_TEXT("EX ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC"),
    MQ_TEXT("CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC DENS"),
    MQ_TEXT("CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPCONST4 CREEPCONST5 CREEPCONST6 ")
    MQ_TEXT("CREEPCONST7"),
    MQ_TEXT("EX NUXY COHESN FRCANG ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 ")
    MQ_TEXT("CREEPTC"),
    MQ_TEXT("EX NUXY GXY DENS SIGXT SIGXC SIGYLD ALPX KX C MDAMP"),
    MQ_TEXT("EX NUXY GXY DENS SIGXT SIGXC SIGYLD ALPX KX C MDAMP CREEPCONST1 CREEPCONST2 ")
    MQ_TEXT("CREEPCONST3 CREEPTC"),
    MQ_TEXT("NUXY ALPX MOONEY_A MOONEY_B MOONEY_C MOONEY_D MOONEY_E MOONEY_F DENS SIGXT ")
    MQ_TEXT("CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC"),
    MQ_TEXT("NUXY ALPX DENS SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 CREEPTC"),
    MQ_TEXT("EX NUXY SIGT_S1 SIGT_F1 SIGT_S2 SIGT_F2 SIGC_S1 SIGC_F1 SIGC_S2 SIGC_F2 EUL ")
    MQ_TEXT("BETAT_1 BETAT_2 BETAC_1 BETAC_2 DENS ALPX"),
    MQ_TEXT("NUXY ALPX ALPH1 ALPH2 ALPH3 ALPH4 MU1 MU2 MU3 MU4 DENS SIGXT CREEPCONST1 ")
    MQ_TEXT("CREEPCONST2 CREEPCONST3 CREEPTC"),
    MQ_TEXT("EX EY EZ NUXY NUYZ NUXZ GXY GYZ GXZ DENS SIGXT SIGYT SIGXC SIGYC SIGYLD SIGXY ")
    MQ_TEXT("ALPX ALPY ALPZ KX KY KZ C MDAMP"),
    MQ_TEXT("EX EY EZ NUXY NUYZ NUXZ GXY GYZ GXZ DENS SIGXT SIGXC SIGYLD ALPX ALPY ALPZ KX KY ")
    MQ_TEXT("KZ C ETAN SIGYT SIGYC SIGXY"),
    MQ_TEXT("EX NUXY SIGYLD ETAN ALPX DENS RK SIGXT CREEPCONST1 CREEPCONST2 CREEPCONST3 ")
    MQ_TEXT("CREEPTC"),
    MQ_TEXT("EX NUXY GXY ALPX G1 G2 G3 G4 G5 G6 G7 G8 SIGXT TAUG1 TAUG2 TAUG3 TAUG4 TAUG5 ")
    MQ_TEXT("TAUG6 TAUG7 TAUG8 K1 K2 K3 K4 K5 K6 K7 K8 TAUK1 TAUK2 TAUK3 TAUK4 TAUK5 TAUK6 ")
    MQ_TEXT("TAUK7 TAUK8 REFTEMP VC1 VC2 DENS"),
};

/// In the order of their storage.
const std::vector<const mqChar*> kUnitLists = {
    MQ_TEXT("SI|English (IPS)|Metric (G)"),
    MQ_TEXT("N|lbf|kgf"),
    MQ_TEXT("N^2/Hz|lb^2/Hz|kgf^2/Hz"),
    MQ_TEXT("N.m|lbf.in|kgf.cm"),
    MQ_TEXT("N.s|dyne.s|lbf.s"),
    MQ_TEXT("N.m.s|dyne.cm.s|lbf.in.s"),
    MQ_TEXT("(N.m)^2/Hz|(lb.in)^2/Hz|(kgf.cm)^2/Hz"),
    MQ_TEXT("N/m^2|psi|kgf/cm^2|N/mm^2 (MPa)|ksi"),
    MQ_TEXT("N/m|lb/in|kgf/cm|N/mm|klb/in"),
    MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/H|MPa^2/Hz|ksi^2/Hz"),
    MQ_TEXT("(N/m^2)^2/Hz|psi^2/Hz|(kgf/cm^2)^2/Hz|MPa^2/Hz|ksi^2/Hz"),
    MQ_TEXT("Kelvin|Fahrenheit|Celsius"),
    MQ_TEXT("K/m|F/in|C/cm"),
    MQ_TEXT("Watt|BTU/s|Cal/s|KCal/s"),
    MQ_TEXT("Joule|BTU|Cal|KCal"),
    MQ_TEXT("W/m^2|(BTU/s)/in^2|(Cal/s)/cm^2"),
    MQ_TEXT("W|BTU/s|Cal/s"),
    MQ_TEXT("W/(m^2.K^4)|BTU/(in^2.\u00B0F^4)|Cal/(cm^2.\u00B0C^4)"),
    MQ_TEXT("rad/s^2|Hz/sec"),
    MQ_TEXT("(rad/s^2)^2/Hz|Hz/sec^2"),
    MQ_TEXT("rad/s|Hz|rpm"),
    MQ_TEXT("(rad/s)^2/Hz|Hz|rpm^2/Hz"),
    MQ_TEXT("mm|cm|m|in|ft|ft-in|am|nm|micron|mil|microIn"),
    MQ_TEXT("am|nm|micron|mm|cm|m|microIn|mil|in|ft|ft-in"),
    MQ_TEXT("mm^2/Hz|cm^2/Hz|m^2/Hz|in^2/Hz|ft^2/Hz|(ft-in)^2/Hz|am^2/Hz|nm^2/Hz|micron^2/Hz|mil^2/Hz|microIn^2/Hz"),
    MQ_TEXT("K/W|\u00B0F/(BTU/s)|\u00B0C/(Cal/s)"),
    MQ_TEXT("(K.m^2)/W|\u00B0F.in^2/(BTU/s)|\u00B0C.cm^2/(Cal/s)"),
    MQ_TEXT("deg|deg_min|deg_min_sec|rad"),
    MQ_TEXT("W/(m^2.K)|BTU/(s.in^2.\u00B0F)|Cal/(s.cm^2.\u00B0C)|W/(cm^2.K)"),
    MQ_TEXT("W/(m.K)|BTU/(in.s.\u00B0F)|Cal/(cm.s.\u00B0C)|W/(cm.K)"),
    MQ_TEXT("J/kg|BTU/lb|Cal/g|J/g"),
    MQ_TEXT("kg/(m.s)|lb(in.s)|kg(cm.s)|g/(cm.s)"),
    MQ_TEXT("mm^3/sec|cm^3/sec|m^3/sec|in^3/sec|ft^3/sec|litre/min|ft^3/min|US gal/hr|m^3/hr"),
    MQ_TEXT("kg/s|lb/s|g/s"),
    MQ_TEXT("N/m^2|psi|kgf/cm^2|dyne/cm^2|MPa|mmHg|inH20"),
    MQ_TEXT("m/s^2|in/s^2|cm/s^2|g"),
    MQ_TEXT("(m/s^2)^2/Hz|(in/s^2)^2/Hz|(cm/s^2)^2/Hz|g^2/Hz"),
    MQ_TEXT("mm/sec|cm/sec|m/sec|in/sec|ft/sec|micron/sec|mills/sec|mm/s"),
    MQ_TEXT("mm/s^2|cm/s^2|m/s^2|in/s^2|ft/s^2|g|micron/s^2|mills/s^2"),
    MQ_TEXT("kg.m^2|lb.in^2|kg.cm^2|g.cm^2"),
    MQ_TEXT("kg|lb|kg|g"),
    MQ_TEXT("kg/m^3|lb/in^3|kg/cm^3|g/cm^3"),
    MQ_TEXT("J/(kg.K)|Btu/(lb.F)|Cal/(kg.C)"),
    MQ_TEXT("mm^2|cm^2|m^2|in^2|ft^2|micron^2|mills^2"),
    MQ_TEXT("mm^3|cm^3|m^3|in^3|ft^3|litre|yard^3"),
    MQ_TEXT("sec|min|hr|day"),
    MQ_TEXT("/Kelvin (/K)|/Fahrenheit (/\u00B0F)|/Celsius (/\u00B0C)"),
    MQ_TEXT("N/m|lbf/in|kgf/cm"),
    MQ_TEXT("(N/m)/m^2|(lbf/in)/in^2|(kgf/cm)/cm^2"),
    MQ_TEXT("(N/m)/m|(lbf/in)/in|(kgf/cm)/cm"),
    MQ_TEXT("N.m/rad|lbf.in/rad|kgf.cm/rad"),
    MQ_TEXT("N.m|ft.lbs|Cal|BTU|J|joule|ergs"),
    MQ_TEXT("N.m/m^3|ft.lbs/ft^3|Cal/m^3|BTU/in^3"),
    MQ_TEXT("N.(sec/m)|lb.(sec/in)|lb.(sec/cm)"),
};
// clang-format on

Text UnitOf(const Text& property, int system) {
  for (const UnitRow& row : kUnitRows) {
    for (const Text& other : Words(row.properties)) {
      if (other == property) {
        return Words(row.units)[static_cast<std::size_t>(system)];
      }
    }
  }
  return MQ_TEXT("NA");
}

TEST(TableReference, KeywordsUnitsAndModelsOfMaterialProperties) {
  long cases = 0;
  ASSERT_EQ(121U, Keywords().size());
  ASSERT_EQ(121, g_strMatPropKeywords.size());
  ASSERT_EQ(726, g_strMatPropUnits.size());
  for (int property = 0; property < 121; ++property) {
    const Text& keyword = Keywords()[static_cast<std::size_t>(property)];
    ASSERT_EQ(Printable(keyword), Printable(g_strMatPropKeywords[property])) << property;
    for (int system = 0; system < 6; ++system, ++cases) {
      ASSERT_EQ(Printable(UnitOf(keyword, system)),
                Printable(g_strMatPropUnits[property * 6 + system]))
          << Printable(keyword) << " in unit system " << system;
    }
  }
  const Numbers counts = Parse("22 8 5 7 11 11 15 14 8 17 16 24 24 12 41");
  const auto compare = [&](int number, const auto& model) {
    const auto place = static_cast<std::size_t>(number - 1);
    const std::vector<Text> expected = Words(kModels[place]);
    ASSERT_EQ(counts[place], model.size()) << number;
    ASSERT_EQ(counts[place], static_cast<int>(expected.size())) << number;
    for (int keyword = 0; keyword < model.size(); ++keyword, ++cases) {
      ASSERT_EQ(Printable(expected[static_cast<std::size_t>(keyword)]), Printable(model[keyword]))
          << "model " << number << ", keyword " << keyword;
    }
  };
  compare(1, g_strMatModelKeywords1);
  compare(2, g_strMatModelKeywords2);
  compare(3, g_strMatModelKeywords3);
  compare(4, g_strMatModelKeywords4);
  compare(5, g_strMatModelKeywords5);
  compare(6, g_strMatModelKeywords6);
  compare(7, g_strMatModelKeywords7);
  compare(8, g_strMatModelKeywords8);
  compare(9, g_strMatModelKeywords9);
  compare(10, g_strMatModelKeywords10);
  compare(11, g_strMatModelKeywords11);
  compare(12, g_strMatModelKeywords12);
  compare(13, g_strMatModelKeywords13);
  compare(14, g_strMatModelKeywords14);
  compare(15, g_strMatModelKeywords15);
  RecordCases(cases);
}

TEST(TableReference, UnitListsOfTheChoosers) {
  ASSERT_EQ(kUnitLists.size(), g_UnitLists.size());
  for (std::size_t place = 0; place < kUnitLists.size(); ++place) {
    ASSERT_EQ(Printable(kUnitLists[place]), Printable(g_UnitLists[place].m_strText)) << place;
  }
  RecordCases(static_cast<long>(kUnitLists.size()));
}

}  // namespace
}  // namespace reference
