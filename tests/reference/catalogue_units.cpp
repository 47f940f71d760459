#include "catalogue.h"

namespace reference {

namespace {

bool IsSpectral(const Question& q) {
  return q.option == 2 && q.moreStress != 0;
}
bool IsFlagOne(const Question&) {
  return ActualFrequencyFlag() == 1;
}

struct UnitLine {
  std::string_view components;  ///< "" stands for all that no earlier line names
  int unitType;
};
using UnitLines = std::vector<UnitLine>;

// clang-format off
Rules<UnitLines>& UnitTypes() {
  static const UnitLines displacement = { { "0-3", 0 }, { "4-7", 2 }, { "8-10", 9 }, { "11-14", 3 } };
  static Rules<UnitLines> rules("unit types", {
      { "",      "53",      Always,     { { "4", 0 }, { "", 9999 } } },
      { "",      "54",      Always,     { { "0-2", 2 }, { "", 3 } } },
      { "",      "55",      Always,     { { "", 2 } } },
      { "",      "15",      Always,     { { "", 8 } } },
      { "",      "18",      Always,     { { "0 1", 2 }, { "2", 3 }, { "", 9999 } } },
      { "",      "65",      Always,     { { "", 1 } } },
      { "",      "69 70",   Always,     { { "", 9999 } } },
      { "7",     "12",      Always,     { { "4", 37 }, { "", 9999 } } },
      { "7",     "",        Always,     { { "", 9999 } } },
      { "",      "71",      Always,     { { "0", 38 }, { "1", 39 }, { "2", 40 }, { "3-5", 0 },
                                          { "", 9999 } } },
      { "0",     "1",       Always,     displacement },
      { "0",     "2 57 59", Always,     { { "12", 9999 }, { "", 4 } } },
      { "0",     "3 22",    Always,     { { "8", 19 }, { "7", 20 } } },
      { "0",     "4",       Always,     { { "", 4 } } },
      { "1",     "1",       IsFlagOne,  { { "0-3", 0 } } },
      { "2",     "1",       IsFlagOne,  { { "0-3", 0 }, { "4-6", 9 } } },
      { "3",     "5",       Always,     { { "0", 5 }, { "1-4", 6 }, { "5-8", 7 }, { "9", 35 },
                                          { "10", 36 } } },
      { "5 6",   "1",       Always,     displacement },
      { "5 6",   "2 4 59",  Always,     { { "", 4 } } },
      { "5 6",   "19",      Always,     { { "4-6", 27 }, { "", 14 } } },
      { "5 6",   "20",      Always,     { { "4-6", 29 }, { "", 18 } } },
      { "5 6 8", "3",       Always,     { { "8", 19 }, { "7", 20 } } },
      { "8",     "1",       IsSpectral, { { "0-3", 22 }, { "4-7", 26 }, { "8-10", 9 },
                                          { "11-14", 25 } } },
      { "8",     "1",       Always,     displacement },
      { "8",     "2",       IsSpectral, { { "", 21 } } },
      { "8",     "2",       Always,     { { "", 4 } } },
      { "8",     "19",      IsSpectral, { { "4-6", 28 }, { "", 23 } } },
      { "8",     "19",      Always,     { { "4-6", 27 }, { "", 14 } } },
      { "8",     "20",      IsSpectral, { { "4-6", 30 }, { "", 24 } } },
      { "8",     "20",      Always,     { { "4-6", 29 }, { "", 18 } } },
      { "10",    "6",       Always,     { { "", 14 } } },
      { "10",    "7",       Always,     { { "4", 9999 }, { "", 4 } } },
      { "10",    "8",       Always,     { { "0 1", 11 }, { "3", 12 }, { "4", 17 }, { "5", 0 },
                                          { "6", 4 } } },
      { "10",    "9",       Always,     { { "0", 5 }, { "2-5", 6 }, { "6", 11 } } },
      { "10",    "10",      Always,     { { "0-3", 2 }, { "4-6", 4 } } },
      { "10",    "11",      Always,     { { "1", 10 }, { "2", 13 }, { "4", 16 }, { "5", 7 } } },
  });
  return rules;
}

struct UnitNames {
  std::vector<Text> names;
  int count;
};

/// By unit type from 0 on; the last names of a list may lie behind its count.
const std::vector<UnitNames> kUnitNames = {
    { { MQ_TEXT("mm"), MQ_TEXT("cm"), MQ_TEXT("m"), MQ_TEXT("in"), MQ_TEXT("ft"), MQ_TEXT("ft-in"),
        MQ_TEXT("am"), MQ_TEXT("nm"), MQ_TEXT("micron"), MQ_TEXT("mil"), MQ_TEXT("microIn") }, 10 },
    { { MQ_TEXT("SI"), MQ_TEXT("English (IPS)"), MQ_TEXT("Metric (G)") }, 3 },
    { { MQ_TEXT("N"), MQ_TEXT("lbf"), MQ_TEXT("kgf"), MQ_TEXT("dyne") }, 3 },
    { { MQ_TEXT("N.m"), MQ_TEXT("lbf.in"), MQ_TEXT("kgf.cm"), MQ_TEXT("N.m"), MQ_TEXT("dyne.cm"),
        MQ_TEXT("N.mm"), MQ_TEXT("lbf.in") }, 3 },
    { { MQ_TEXT("N/m^2"), MQ_TEXT("psi"), MQ_TEXT("kgf/cm^2"), MQ_TEXT("N/mm^2 (MPa)"),
        MQ_TEXT("ksi") }, 5 },
    { { MQ_TEXT("Kelvin"), MQ_TEXT("Fahrenheit"), MQ_TEXT("Celsius") }, 3 },
    { { MQ_TEXT("K/m"), MQ_TEXT("F/in"), MQ_TEXT("C/cm") }, 3 },
    { { MQ_TEXT("W/m^2"), MQ_TEXT("(BTU/s)/in^2"), MQ_TEXT("(Cal/s)/cm^2") }, 3 },
    { { MQ_TEXT("rad/s"), MQ_TEXT("Hz"), MQ_TEXT("rad/s") }, 2 },
    { { MQ_TEXT("deg"), MQ_TEXT("deg_min"), MQ_TEXT("deg_min_sec"), MQ_TEXT("rad") }, 4 },
    { { MQ_TEXT("kg/m^3"), MQ_TEXT("lb/in^3"), MQ_TEXT("kg/cm^3"), MQ_TEXT("g/cm^3"),
        MQ_TEXT("kg/m^3"), MQ_TEXT("kg/m^3") }, 6 },
    { { MQ_TEXT("J/kg"), MQ_TEXT("BTU/lb"), MQ_TEXT("Cal/g"), MQ_TEXT("J/g"), MQ_TEXT("J/kg"),
        MQ_TEXT("J/kg") }, 6 },
    { { MQ_TEXT("kg/(m.s)"), MQ_TEXT("lb(in.s)"), MQ_TEXT("kg(cm.s)"), MQ_TEXT("g/(cm.s)"),
        MQ_TEXT("kg/(m.s)"), MQ_TEXT("kg/(m.s)") }, 6 },
    { { MQ_TEXT("kg/s"), MQ_TEXT("lb/s"), MQ_TEXT("g/s"), MQ_TEXT("g/s"), MQ_TEXT("kg/s"),
        MQ_TEXT("kg/s") }, 6 },
    { { MQ_TEXT("mm/sec"), MQ_TEXT("cm/sec"), MQ_TEXT("m/sec"), MQ_TEXT("in/sec"),
        MQ_TEXT("ft/sec"), MQ_TEXT("micron/sec"), MQ_TEXT("mills/sec"), MQ_TEXT("mm/s"),
        MQ_TEXT("cm/s"), MQ_TEXT("m/s"), MQ_TEXT("in/s"), MQ_TEXT("ft/s"), MQ_TEXT("micron/s"),
        MQ_TEXT("mills/s") }, 5 },
    { { MQ_TEXT("mm^3/sec"), MQ_TEXT("cm^3/sec"), MQ_TEXT("m^3/sec"), MQ_TEXT("in^3/sec"),
        MQ_TEXT("ft^3/sec"), MQ_TEXT("litre/min"), MQ_TEXT("ft^3/min"), MQ_TEXT("US gal/hr"),
        MQ_TEXT("m^3/hr") }, 9 },
    { { MQ_TEXT("W/(m^2.K)"), MQ_TEXT("BTU/(s.in^2.\u00B0F)"), MQ_TEXT("Cal/(s.cm^2.\u00B0C)"),
        MQ_TEXT("W/(cm^2.K)"), MQ_TEXT("W/(m^2.K)"), MQ_TEXT("W/(m^2.K)") }, 6 },
    { { MQ_TEXT("W/(m.K)"), MQ_TEXT("BTU/(in.s.\u00B0F)"), MQ_TEXT("Cal/(cm.s.\u00B0C)"),
        MQ_TEXT("W/(cm.K)"), MQ_TEXT("W/(m.K)"), MQ_TEXT("W/(m.K)") }, 3 },
    { { MQ_TEXT("mm/s^2"), MQ_TEXT("cm/s^2"), MQ_TEXT("m/s^2"), MQ_TEXT("in/s^2"),
        MQ_TEXT("ft/s^2"), MQ_TEXT("g"), MQ_TEXT("micron/s^2"), MQ_TEXT("mills/s^2") }, 6 },
    { { MQ_TEXT("N.m"), MQ_TEXT("ft.lbs"), MQ_TEXT("Cal"), MQ_TEXT("BTU"), MQ_TEXT("J"),
        MQ_TEXT("J"), MQ_TEXT("joule"), MQ_TEXT("ergs") }, 3 },
    { { MQ_TEXT("N.m/m^3"), MQ_TEXT("ft.lbs/ft^3"), MQ_TEXT("Cal/m^3"), MQ_TEXT("BTU/in^3"),
        MQ_TEXT("Cal/m^3"), MQ_TEXT("Cal/m^3") }, 3 },
    { { MQ_TEXT("(N/m^2)^2/Hz"), MQ_TEXT("psi^2/Hz"), MQ_TEXT("(kgf/cm^2)^2/Hz"),
        MQ_TEXT("MPa^2/Hz"), MQ_TEXT("ksi^2/Hz") }, 5 },
    { { MQ_TEXT("mm^2/Hz"), MQ_TEXT("cm^2/Hz"), MQ_TEXT("m^2/Hz"), MQ_TEXT("in^2/Hz"),
        MQ_TEXT("ft^2/Hz"), MQ_TEXT("(ft-in)^2/Hz"), MQ_TEXT("am^2/Hz"), MQ_TEXT("nm^2/Hz"),
        MQ_TEXT("micron^2/Hz"), MQ_TEXT("mil^2/Hz"), MQ_TEXT("microIn^2/Hz") }, 6 },
    { { MQ_TEXT("(mm/sec)^2/Hz"), MQ_TEXT("(cm/sec)^2/Hz"), MQ_TEXT("(m/sec)^2/Hz"),
        MQ_TEXT("(in/sec)^2/Hz"), MQ_TEXT("(ft/sec)^2/Hz"), MQ_TEXT("(micron/sec)^2/Hz"),
        MQ_TEXT("(mills/sec)^2/Hz") }, 5 },
    { { MQ_TEXT("(mm/s^2)^2/Hz"), MQ_TEXT("(cm/s^2)^2/Hz"), MQ_TEXT("(m/s^2)^2/Hz"),
        MQ_TEXT("(in/s^2)^2/Hz"), MQ_TEXT("(ft/s^2)^2/Hz"), MQ_TEXT("g^2/Hz"),
        MQ_TEXT("(micron/s^2)^2/Hz"), MQ_TEXT("(mills/s^2)^2/Hz") }, 6 },
    { {}, 0 },
    { {}, 0 },
    { { MQ_TEXT("rad/s"), MQ_TEXT("Hz"), MQ_TEXT("rpm"), MQ_TEXT("rad/s"), MQ_TEXT("rad/s"),
        MQ_TEXT("rad/s"), MQ_TEXT("deg/s") }, 4 },
    { { MQ_TEXT("(rad/s)^2/Hz"), MQ_TEXT("Hz"), MQ_TEXT("rpm^2/Hz"), MQ_TEXT("(rad/s)^2/Hz"),
        MQ_TEXT("(rad/s)^2/Hz"), MQ_TEXT("(rad/s)^2/Hz") }, 4 },
    { { MQ_TEXT("rad/s^2"), MQ_TEXT("Hz/s"), MQ_TEXT("rpm^2"), MQ_TEXT("deg/s^2") }, 4 },
    { { MQ_TEXT("(rad/s^2)^2/Hz"), MQ_TEXT("Hz/s^2"), MQ_TEXT("rpm^4/Hz"), MQ_TEXT("rad/s") }, 4 },
    { { MQ_TEXT("kg"), MQ_TEXT("lb"), MQ_TEXT("kg"), MQ_TEXT("g"), MQ_TEXT("kg"),
        MQ_TEXT("kg") }, 4 },
    { {}, 0 },
    { {}, 0 },
    { { MQ_TEXT("am"), MQ_TEXT("nm"), MQ_TEXT("micron"), MQ_TEXT("mm"), MQ_TEXT("cm"), MQ_TEXT("m"),
        MQ_TEXT("microIn"), MQ_TEXT("mil"), MQ_TEXT("in"), MQ_TEXT("ft"), MQ_TEXT("ft-in") }, 10 },
    { { MQ_TEXT("Watt"), MQ_TEXT("BTU/s"), MQ_TEXT("Cal/s"), MQ_TEXT("KCal/s") }, 4 },
    { { MQ_TEXT("Joule"), MQ_TEXT("BTU"), MQ_TEXT("Cal"), MQ_TEXT("KCal") }, 4 },
    { { MQ_TEXT("sec"), MQ_TEXT("min"), MQ_TEXT("hr"), MQ_TEXT("day") }, 4 },
    { { MQ_TEXT("kg"), MQ_TEXT("lb"), MQ_TEXT("kg"), MQ_TEXT("g"), MQ_TEXT("kg"),
        MQ_TEXT("kg") }, 0 },
    { { MQ_TEXT("m^3"), MQ_TEXT("in^3"), MQ_TEXT("cm^3"), MQ_TEXT("cm^3"), MQ_TEXT("m^3"),
        MQ_TEXT("m^3") }, 0 },
    { { MQ_TEXT("m^2"), MQ_TEXT("in^2"), MQ_TEXT("cm^2"), MQ_TEXT("cm^2"), MQ_TEXT("m^2"),
        MQ_TEXT("m^2") }, 0 },
};
// clang-format on

}  // namespace

int UnitType(int analysis, int result, int component, int option, int optionFlag) {
  const Question question{.analysis = analysis,
                          .result = result,
                          .component = component,
                          .option = option,
                          .moreStress = optionFlag};
  const UnitLines* lines = UnitTypes().Find(question);
  if (lines == nullptr) {
    return 9999;
  }
  for (const UnitLine& line : *lines) {
    if (line.components.empty() || Holds(Parse(line.components), component)) {
      return line.unitType;
    }
  }
  return 9999;
}

int UnitTotal(int unitType) {
  return unitType >= 0 && unitType <= 37 ? kUnitNames[static_cast<std::size_t>(unitType)].count : 0;
}

Text UnitName(int unitType, int index) {
  if (index < 0 || unitType < 0 || unitType > 40) {
    return {};
  }
  const std::vector<Text>& names = kUnitNames[static_cast<std::size_t>(unitType)].names;
  // What lies behind a list is nobody's promise; the empty text is the safe answer.
  return index < static_cast<int>(names.size()) ? names[static_cast<std::size_t>(index)] : Text();
}

int DefaultUnit(int system, int unitType) {
  const int slot = system == 0 || system == 1 ? system : 2;
  if (Holds({4, 2, 3, 5, 6, 7, 19, 35, 36}, unitType)) {
    return slot;
  }
  if (unitType == 0 || unitType == 22) {
    return slot == 0 ? 2 : slot == 1 ? 3 : 1;
  }
  if (unitType == 27) {
    return slot == 0 ? 0 : 1;
  }
  return std::min(slot, UnitTotal(unitType));
}

void ResetUnitTables() {
  UnitTypes().Reset();
}

void CheckUnitTables() {
  UnitTypes().Check();
}

}  // namespace reference
