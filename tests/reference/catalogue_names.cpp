#include "catalogue.h"
#include "tally.h"
#include "texts.h"

namespace reference {

namespace {

bool HasAlternateNames(const Question& q) {
  return q.option != 0;
}
bool IsBeam(const Question& q) {
  return q.mesh == 4;
}
bool IsComponent100(const Question& q) {
  return q.component == 100;
}
bool IsFlagSet(const Question&) {
  return ActualFrequencyFlag() != 0;
}
bool IsFatigueVariant(const Question& q) {
  return q.option == 1;
}
bool IsBelow2(const Question& q) {
  return q.result < 2;
}

/// The id of each component from 0 on.
using Ids = std::string_view;

constexpr Ids kBeamNames = "52020 54009-54014";

// clang-format off
Rules<Ids>& SameEverywhere() {
  static Rules<Ids> rules("names the same in every analysis", {
      { "",  "53", Always, "50507 54262 54263 50760 53101" },
      { "",  "54", Always, "51767 53953 53954 53955 53963 51761" },
      { "",  "4",  Always, "53574 53575 50018 50019 53576" },
  });
  return rules;
}

Rules<int>& OneName() {
  static Rules<int> rules("one name for every component", {
      { "",  "62", Always, 53576 },
      { "0", "56", Always, 54470 },
      { "1", "56", Always, 54472 },
      { "2", "56", Always, 54473 },
      { "5", "56", Always, 54471 },
      { "",  "56", Always, 0     },
      { "",  "57", Always, 54525 },
      { "",  "0",  Always, 50330 },
      { "",  "21", Always, 54629 },
      { "",  "66", Always, 55541 },
  });
  return rules;
}

Rules<Ids>& FullNames() {
  static Rules<Ids> rules("full names", {
      { "0",     "1",    HasAlternateNames, "54751-54753 50341 54754-54756 50345 54584-54590" },
      { "0",     "1",    Always,            "54578-54580 50341 54581-54583 50345 54584-54590" },
      { "0",     "2",    Always,            "54591-54601 55085 54602 54718 54494 54495" },
      { "0",     "3 22", Always,            "54603-54611 50177 50178 50179" },
      { "0",     "55",   Always,            "53157 53158 53159 53160" },
      { "0",     "18",   Always,            "53154 53156 53155" },
      { "0",     "71",   Always,            "51060 53401 53402 53403 53404 53405" },
      { "0",     "59",   Always,            kBeamNames },
      { "1 2",   "1",    IsFlagSet,         "54578 54579 54580 50341 54584 54585 54586" },
      { "1 2",   "1",    Always,            "54865 54866 54867 54868 55269 55270 55271" },
      { "3",     "5",    Always,            "54612-54619 50264 54555 54556" },
      { "7",     "",     Always,            "54745 54746 54020 54749 54745" },
      { "8",     "1",    HasAlternateNames, "54751-54753 50341 54754-54756 50345 54584-54590 54419" },
      { "8",     "1",    Always,            "54578-54580 50341 54581-54583 50345 54584-54590 54419" },
      { "8",     "2",    IsBeam,            kBeamNames },
      { "8",     "2",    Always,            "54591-54601 55085" },
      { "5 6 8", "3 22", Always,            "54603-54611 50177 50178 50179" },
      { "5 6 8", "19",   Always,            "54405 54406 54407 54411 54408 54409 54410 54419" },
      { "5 6 8", "20",   Always,            "54412 54413 54414 54418 54415 54416 54417" },
      { "5 6 8", "59",   Always,            kBeamNames },
      { "5 6",   "1",    HasAlternateNames, "54751-54753 50341 54754-54756 50345 54584-54590" },
      { "5 6",   "1",    Always,            "54578-54580 50341 54581-54583 50345 54584-54590" },
      { "5 6",   "2",    IsBeam,            "52020 54009 54010 54011 54012" },
      { "5 6",   "2",    Always,            "54591-54601 55085 54602 54718" },
  });
  return rules;
}

Rules<Ids>& BarNames() {
  static Rules<Ids> rules("colour-bar names", {
      { "0",       "4",    Always,           "53471 53472" },
      { "0 5 6 8", "1",    Always,           "53981 53982 53983 53984 53473-53483" },
      { "0",       "2 57", Always,           "53987-53993 53947 53994 53034 53996 55084 52190 53997"
                                             " 54498 54499" },
      { "0",       "59",   Always,           kBeamNames },
      { "0 5 6 8", "3 22", Always,           "53998 53999 53971-53980" },
      { "1",       "1",    IsFlagSet,        "53981 53982 53983 53984" },
      { "1",       "1",    Always,           "54873 54874 54875 54876" },
      { "2",       "1",    IsFlagSet,        "53981 53982 53983 53984 53477 53478 53479" },
      { "2",       "1",    Always,           "54873 54874 54875 54876 55275 55276 55268" },
      { "3",       "5",    Always,           "53985 53986 54000-54008" },
      { "7",       "",     IsFatigueVariant, "54015 55362 54020 54021 54015" },
      { "7",       "",     Always,           "54015 54019 54020 54021 54015" },
      { "8",       "2",    Always,           "53987-53993 53947 53994 53034 53996 55084" },
      { "5 6 8",   "19",   Always,           "54022-54028" },
      { "5 6 8",   "20",   Always,           "54029 54030 54031 53945 54032 54033 54034 53946" },
      { "5",       "4",    Always,           "53471 53472" },
      { "5 6",     "2",    IsBeam,           kBeamNames },
      { "5 6",     "2",    Always,           "53987-53993 53947 53994 53034 53996 55084 52190 53997" },
  });
  return rules;
}

Rules<Ids>& BriefNames() {
  static Rules<Ids> rules("brief names", {
      { "",        "53",   Always,    "50507 54262 54263 50760 53101" },
      { "",        "54",   Always,    "51767 53953 53954 53955 53963 51761" },
      { "0 5",     "4",    Always,    "53471 53472" },
      { "0 5 6 8", "1",    Always,    "54782-54796" },
      { "0",       "2 57", Always,    "54771-54780 53996 55084 52190 54781 54496 54497" },
      { "5 6",     "2",    Always,    "54771-54780 53996 55084 52190 54781" },
      { "8",       "2",    Always,    "54771-54780 53996 55084" },
      { "0 5 6 8", "3 22", Always,    "54797-54803 54813-54817" },
      { "5 6 8",   "19",   Always,    "54022-54028 53946" },
      { "5 6 8",   "20",   Always,    "54029 54030 54031 53945 54032 54033 54034 53946" },
      { "3",       "5",    Always,    "50797 54804-54811 54557 54558" },
      { "7",       "52",   Always,    "54824 54825" },
      { "7",       "",     Always,    "54223 54224 54020 54812 54223" },
  });
  return rules;
}

Rules<int>& ResultNames() {
  static Rules<int> rules("result names", {
      { "", "1",  Always, 52941 },
      { "", "2",  Always, 52980 },
      { "", "3",  Always, 53557 },
      { "", "4",  Always, 54327 },
      { "", "5",  Always, 50006 },
      { "", "15", Always, 50004 },
      { "", "18", Always, 53153 },
      { "", "19", Always, 52961 },
      { "", "20", Always, 52962 },
      { "", "21", Always, 54060 },
      { "", "55", Always, 54464 },
      { "", "59", Always, 54332 },
      { "", "62", Always, 53326 },
      { "", "71", Always, 55670 },
  });
  return rules;
}
// clang-format on

template <class Act>
void ForEachNameTable(Act act) {
  act(SameEverywhere());
  act(OneName());
  act(FullNames());
  act(BarNames());
  act(BriefNames());
  act(ResultNames());
}

Text Pick(Ids ids, int component) {
  const Numbers numbers = Parse(ids);
  return component >= 0 && component < static_cast<int>(numbers.size())
             ? Load(numbers[static_cast<std::size_t>(component)])
             : Text();
}

Text PickFrom(const Ids* ids, int component) {
  return ids == nullptr ? Text() : Pick(*ids, component);
}

Text CutAtColon(const Text& text) {
  const std::size_t colon = text.find(MQ_TEXT(':'));
  if (colon == Text::npos) {
    Hit("bar: no colon");
    return text;
  }
  Hit(colon == 0 ? "bar: colon first" : "bar: colon inside");
  return colon == 0 ? text : text.substr(0, colon);
}

}  // namespace

Text ResultName(int resultType) {
  const int* id = ResultNames().Find({.analysis = 0, .result = resultType});
  return Load(id == nullptr ? 54465 : *id);
}

Text FullName(int analysis, int result, int component, int mesh, int alternate) {
  const Question question{.analysis = analysis,
                          .result = result,
                          .component = component,
                          .mesh = mesh,
                          .option = alternate};
  if (const Ids* ids = SameEverywhere().Find(question)) {
    return Pick(*ids, component);
  }
  if (const int* id = OneName().Find(question)) {
    return Load(*id);
  }
  if (analysis == kDynamic && result == 2 && mesh != 4 && IsComponent100(question)) {
    Hit("full: component 100");
    return Load(56061);
  }
  return PickFrom(FullNames().Find(question), component);
}

Text BarName(int analysis, int result, int component, int mesh, int fatigueVariant) {
  const Question question{.analysis = analysis,
                          .result = result,
                          .component = component,
                          .mesh = mesh,
                          .option = fatigueVariant};
  if (result == 53 || result == 54) {
    Hit("bar: never falls back");
    return PickFrom(SameEverywhere().Find(question), component);
  }
  const Text text = PickFrom(BarNames().Find(question), component);
  if (!text.empty()) {
    Hit("bar: of its own");
    return text;
  }
  return CutAtColon(FullName(analysis, result, component, 0, 0));
}

Text BriefName(int analysis, int result, int component) {
  const Question question{.analysis = analysis, .result = result, .component = component};
  const bool isMode =
      (analysis == kFrequency && IsBelow2(question)) || (analysis == kBuckling && result == 1);
  if (isMode) {
    Hit(IsFlagSet(question) ? "brief: real amplitude" : "brief: normalised amplitude");
    return IsFlagSet(question) ? Pick("54782 54783 54784 54785 54790 54791 54792", component)
                               : Pick("54869 54870 54871 54872 55272 55273 55274", component);
  }
  if (analysis == kDynamic && result == 2 && IsComponent100(question)) {
    Hit("brief: component 100");
    return Load(56060);
  }
  return PickFrom(BriefNames().Find(question), component);
}

Text ReportTitle(int analysis, int result, int chartVariant, int dynamicOption) {
  if (analysis == kFatigue && result == 52) {
    Hit(chartVariant != 0 ? "title: chart variant" : "title: chart");
    return Load(chartVariant != 0 ? 54822 : 54823);
  }
  if (result == 63) {
    Hit("title: 63");
    return Load(55144);
  }
  if (analysis == kStepped) {
    Hit("title: stepped");
    return Load(54715);
  }
  if (analysis == kReduced) {
    Hit("title: reduced");
    return Load(54714);
  }
  if (analysis == kDynamic) {
    const bool isOverFrequency = dynamicOption == 1 || dynamicOption == 2;
    Hit(isOverFrequency ? "title: dynamic option" : "title: dynamic");
    return Load(isOverFrequency ? 50610 : 54714);
  }
  Hit("title: none");
  return {};
}

void ResetNameTables() {
  ForEachNameTable([](auto& table) { table.Reset(); });
}

void CheckNameTables() {
  ForEachNameTable([](auto& table) { table.Check(); });
}

}  // namespace reference
