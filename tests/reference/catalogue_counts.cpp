#include <mqPostCommon/catalogue/components.h>

#include "catalogue.h"

namespace reference {

namespace {

int& Flag() {
  static int flag = 0;
  return flag;
}

bool IsRotational(const Question& q) {
  return q.mesh == 2 || q.mesh == 4 || (q.mesh == 3 && (q.meshFlags & 6) != 0);
}
bool IsBeam(const Question& q) {
  return q.mesh == 4;
}
bool HasMesh(const Question& q) {
  return q.mesh != 0;
}
bool HasBothStressOptions(const Question& q) {
  return q.option != 0 && q.moreStress != 0;
}
bool HasOption(const Question& q) {
  return q.option != 0;
}
bool HasChosenDynamicStress(const Question& q) {
  return q.dynamicOption == 1 && q.dynamicChoice == 7;
}
bool IsDynamicOptionOne(const Question& q) {
  return q.dynamicOption == 1;
}

// clang-format off
Rules<int>& Totals() {
  static Rules<int> rules("component totals", {
      { "0",   "1",      IsRotational,           15 },
      { "0",   "1",      Always,                  8 },
      { "0",   "2 57",   HasBothStressOptions,   16 },
      { "0",   "2 57",   HasOption,              14 },
      { "0",   "2 57",   Always,                 12 },
      { "0",   "3 22",   Always,                 12 },
      { "0",   "55",     Always,                  4 },
      { "0",   "18",     Always,                  3 },
      { "0",   "59",     Always,                  7 },
      { "1",   "1",      Always,                  4 },
      { "2",   "1",      IsRotational,            7 },
      { "2",   "1",      Always,                  4 },
      { "3",   "5",      Always,                  9 },
      { "5",   "1",      IsRotational,           15 },
      { "5",   "1",      Always,                  8 },
      { "5",   "2",      IsBeam,                  7 },
      { "5",   "2",      Always,                 14 },
      { "5",   "3 22",   Always,                 12 },
      { "5",   "19 20",  IsBeam,                  7 },
      { "5",   "19 20",  Always,                  4 },
      { "5",   "59",     Always,                  7 },
      { "6",   "1",      Always,                  4 },
      { "6",   "2",      Always,                 14 },
      { "6",   "3 22",   Always,                 12 },
      { "6",   "19 20",  Always,                  4 },
      { "7",   "",       Always,                  4 },
      { "8",   "1",      HasMesh,                15 },
      { "8",   "1",      Always,                  8 },
      { "8",   "2",      IsBeam,                  5 },
      { "8",   "2",      HasChosenDynamicStress, 13 },
      { "8",   "2",      Always,                 12 },
      { "8",   "3 22",   Always,                 12 },
      { "8",   "19 20",  HasMesh,                 7 },
      { "8",   "19 20",  Always,                  4 },
      { "8",   "59",     Always,                  5 },
      { "10",  "6",      Always,                  8 },
      { "10",  "7",      Always,                  5 },
      { "10",  "8 9 10", Always,                  7 },
      { "10",  "11",     Always,                 12 },
  });
  return rules;
}

Rules<int>& Defaults() {
  static Rules<int> rules("default components", {
      { "0",     "1",      Always,               3 },
      { "0",     "2",      Always,               9 },
      { "0",     "3 22",   Always,               6 },
      { "1 2",   "1",      Always,               3 },
      { "3",     "",       Always,               0 },
      { "10",    "6 10",   Always,               3 },
      { "5 6",   "1",      Always,               3 },
      { "5 6",   "2",      IsBeam,               0 },
      { "5 6",   "2",      Always,               9 },
      { "5 6 8", "3 22",   Always,               6 },
      { "5 6 8", "19 20",  Always,               3 },
      { "7",     "",       Always,               1 },
      { "8",     "1",      Always,               3 },
      { "8",     "2",      IsBeam,               3 },
      { "8",     "2",      IsDynamicOptionOne, 100 },
      { "8",     "2",      Always,               9 },
  });
  return rules;
}

struct DirectionalLine {
  std::string_view directional;
  std::vector<std::pair<int, Numbers>> members;
  std::string_view principal;
  bool mayBeForced;
};

const std::vector<std::pair<int, Numbers>> kNoMembers;
const std::vector<std::pair<int, Numbers>> kOneTriple = {{3, {0, 1, 2}}};
const std::vector<std::pair<int, Numbers>> kThreeTriples = {
    {3, {0, 1, 2}}, {7, {4, 5, 6}}, {14, {11, 12, 13}}};

Rules<DirectionalLine>& DataTypes() {
  static Rules<DirectionalLine> rules("data types", {
      { "0",     "1",     Always, { "0-14",    kThreeTriples, "", true } },
      { "0",     "2 57",  Always, { "0-8 13",  kNoMembers, "9", false } },
      { "0",     "3 22",  Always, { "0-5 9-11", kNoMembers, "", false } },
      { "0",     "55",    Always, { "0-3",     {{0, {1, 1, 3}}}, "", true } },
      { "0",     "18",    Always, { "0-2",     kNoMembers, "", true } },
      { "1 2",   "1",     Always, { "0-3",     kOneTriple, "", true } },
      { "3",     "5",     Always, { "1-8",     {{4, {1, 2, 3}}, {8, {5, 6, 7}}}, "", false } },
      { "5 6",   "1",     Always, { "0-25",    {{3, {0, 1, 2}}, {7, {4, 5, 6}}, {14, {11, 12, 13}},
                                                {18, {15, 16, 17}}, {25, {22, 23, 24}}},
                                    "", false } },
      { "5 6",   "2",     Always, { "0-8 13",  kNoMembers, "9", false } },
      { "5 6",   "3 22",  Always, { "0-5 9-11", kNoMembers, "", false } },
      { "5 6 8", "19 20", Always, { "0-6",     kNoMembers, "", false } },
      { "8",     "1",     Always, { "0-14",    kThreeTriples, "", false } },
      { "8",     "2",     Always, { "0-8",     kNoMembers, "9 100", false } },
      { "8",     "3 22",  Always, { "0-5 9-11", kNoMembers, "", false } },
      { "10",    "6",     Always, { "3 7",     {{3, {0, 1, 2}}, {7, {4, 5, 6}}}, "", false } },
      { "10",    "9",     Always, { "5",       {{5, {2, 3, 4}}}, "", false } },
      { "10",    "10",    Always, { "3",       kOneTriple, "", false } },
  });
  return rules;
}

struct BoundsLine {
  std::string_view three;
  std::string_view two;
};

Rules<BoundsLine>& Envelopes() {
  static Rules<BoundsLine> rules("envelope bounds", {
      { "5 6 8", "1",     Always,    { "0-2 4-6 8-13", "3 7 14" } },
      { "5 6",   "2",     HasOption, { "0-8",          "9-12" } },
      { "5 6",   "2",     Always,    { "0-8",          "9-11" } },
      { "8",     "2",     Always,    { "0-8",          "9-11" } },
      { "5 6",   "3 22",  Always,    { "0-5 8-11",     "6 7" } },
      { "8",     "3 22",  Always,    { "0-5",          "6-8" } },
      { "5 6 8", "19 20", Always,    { "0-2 4-6",      "3 7" } },
      { "3",     "",      Always,    { "0-3 5-7 9",    "4 8" } },
  });
  return rules;
}

constexpr std::string_view kEveryIndex = "every";

Rules<std::string_view>& References() {
  static Rules<std::string_view> rules("reference availability", {
      { "0",     "1",      Always, "0-2 4-6 8-14" },
      { "0",     "2 3 22", Always, "0-5" },
      { "0",     "55",     Always, kEveryIndex },
      { "1 2",   "1",      Always, "0-2" },
      { "3",     "5",      Always, "1-3 5-7" },
      { "5 6",   "1",      Always, "0-2 4-6 8-28" },
      { "5 6",   "2",      IsBeam, "" },
      { "5 6",   "2",      Always, "0-5" },
      { "5 6 8", "3 22",   Always, "0-5" },
      { "5 6 8", "19 20",  Always, "0-2 4-6" },
      { "8",     "1",      Always, "0-2 4-6 8-13" },
      { "8",     "2",      Always, "0-5" },
  });
  return rules;
}

Rules<std::string_view>& Availability() {
  static Rules<std::string_view> rules("available analyses", {
      { "", "1",     Always, "0 1 2 3 5 8 6" },
      { "", "2 3",   Always, "0 5 8 6" },
      { "", "5",     Always, "3" },
      { "", "15",    Always, "1" },
      { "", "18 55", Always, "0" },
      { "", "19 20", Always, "8" },
      { "", "21",    Always, "2" },
      { "", "59",    Always, "0 5" },
  });
  return rules;
}

struct DirectionLine {
  std::string_view x;
  std::string_view y;
  std::string_view z;
  std::string_view all;
  std::string_view x2;
  std::string_view y2;
  std::string_view z2;
  std::string_view all2;
};

bool IsAbove7(const Question& q) { return q.component > 7; }

Rules<DirectionLine>& Directions() {
  static const DirectionLine modes =         { "0 4",        "1 5", "2 6",   "3",  "", "", "", "" };
  static const DirectionLine stress =        { "0 5 9-11",   "1 4", "2 3",   "13", "", "", "", "6-8" };
  static const DirectionLine stressWith12 =  { "0 5 9-12",   "1 4", "2 3",   "13", "", "", "", "6-8" };
  static const DirectionLine motion =        { "0 4 7",      "1 5", "2 6",   "3",  "", "", "", "" };
  static Rules<DirectionLine> rules("vector directions", {
      { "0",   "1",     Always,    { "0 4 8 11", "1 5 9 12", "2 6 10 13", "3 7 14", "", "", "", "" } },
      { "0",   "2 57",  HasOption, stressWith12 },
      { "0",   "2 57",  Always,    stress },
      { "0",   "3 22",  Always,    { "0 5-8", "1 4", "2 3", "", "", "", "", "9-11" } },
      { "1",   "1",     Always,    modes },
      { "2",   "1",     Always,    modes },
      { "3",   "5",     Always,    { "0 1 5 9 10", "2 6", "3 7", "4 8", "", "", "", "" } },
      { "5 6", "1",     Always,    { "0 4 8 11 15 19 22 26", "1 5 9 12 16 20 23 27",
                                     "2 6 10 13 17 21 24 28", "3 7 14 18 25", "", "", "", "" } },
      { "5 6", "2",     HasOption, stressWith12 },
      { "5 6", "2",     Always,    stress },
      { "5 6", "3 22",  Always,    { "0 5-7", "1 4", "2 3", "", "", "", "", "9-11" } },
      { "5 6 8", "19 20", IsAbove7, { "every", "", "", "", "", "", "", "" } },
      { "5 6 8", "19 20", Always,  motion },
      { "8",   "1",     Always,    { "0 4 8 11 15", "1 5 9 12", "2 6 10 13", "3 7 14", "", "", "", "" } },
      { "8",   "2",     Always,    { "0 5 9-11", "1 4", "2 3", "", "6", "7", "8", "" } },
      { "8",   "3 22",  Always,    { "0 5-8", "1 4", "2 3", "", "9", "10", "11", "" } },
      { "10",  "6",     Always,    { "0 4", "1 5", "2 6", "3 7", "", "", "", "" } },
      { "10",  "7",     Always,    { "0-4", "", "", "", "", "", "", "" } },
      { "10",  "8",     Always,    { "0-6", "", "", "", "", "", "", "" } },
      { "10",  "9",     Always,    { "0-2 6", "3", "4", "5", "", "", "", "" } },
      { "10",  "10",    Always,    { "0 4", "1 5", "2 6", "3", "", "", "", "" } },
      { "10",  "11",    Always,    { "0-8 11", "9", "10", "", "", "", "", "" } },
  });
  return rules;
}
// clang-format on

bool Names(std::string_view components, int component) {
  return components == kEveryIndex || (component >= 0 && Holds(Parse(components), component));
}

template <class Act>
void ForEachTotalTable(Act act) {
  act(Totals());
  act(Defaults());
}

template <class Act>
void ForEachComponentTable(Act act) {
  act(DataTypes());
  act(Envelopes());
  act(References());
  act(Availability());
  act(Directions());
}

}  // namespace

void SetActualFrequencyFlag(int flag) {
  Flag() = flag;
  vekPostCommonSetActualFreqDispFlag(flag);
}

int ActualFrequencyFlag() {
  return Flag();
}

int ComponentTotal(const Question& question) {
  const int* total = Totals().Find(question);
  return total == nullptr ? 0 : *total;
}

int ComponentDefault(const Question& question) {
  const int* component = Defaults().Find(question);
  return component == nullptr ? 0 : *component;
}

DataType ComponentDataType(const Question& question) {
  const DirectionalLine* line = DataTypes().Find(question);
  if (line == nullptr) {
    return {};
  }
  DataType answer;
  if (Names(line->directional, question.component)) {
    answer.type = 1;
  }
  for (const auto& [resultant, members] : line->members) {
    if (resultant == question.component) {
      answer.members = members;
    }
  }
  if (Names(line->principal, question.component)) {
    answer = {2, {6, 7, 8}};
  }
  if (line->mayBeForced && question.option != 0) {
    answer.type = 1;
  }
  return answer;
}

int EnvelopeBounds(const Question& question) {
  const BoundsLine* line = Envelopes().Find(question);
  if (line == nullptr) {
    return 0;
  }
  if (Names(line->three, question.component)) {
    return 3;
  }
  return Names(line->two, question.component) ? 2 : 0;
}

int IsReferenceAvailable(const Question& question) {
  const std::string_view* components = References().Find(question);
  return components != nullptr && Names(*components, question.component) ? 1 : 0;
}

Numbers AvailableAnalyses(int resultType) {
  const std::string_view* analyses = Availability().Find({.analysis = 0, .result = resultType});
  return analyses == nullptr ? Numbers() : Parse(*analyses);
}

std::array<float, 4> VectorDirection(const Question& question) {
  const DirectionLine* line = Directions().Find(question);
  if (line == nullptr) {
    return {0, 0, 0, 0};
  }
  const std::pair<std::string_view, std::array<float, 4>> patterns[] = {
      {line->x, {1, 0, 0, 0}},   {line->y, {0, 1, 0, 0}},   {line->z, {0, 0, 1, 0}},
      {line->all, {1, 1, 1, 0}}, {line->x2, {1, 0, 0, 2}},  {line->y2, {0, 1, 0, 2}},
      {line->z2, {0, 0, 1, 2}},  {line->all2, {1, 1, 1, 2}}};
  for (const auto& [components, direction] : patterns) {
    if (Names(components, question.component)) {
      return direction;
    }
  }
  return {0, 0, 0, 0};
}

void ResetCountTables() {
  ForEachTotalTable([](auto& table) { table.Reset(); });
  ForEachComponentTable([](auto& table) { table.Reset(); });
}

void CheckTotalTables() {
  ForEachTotalTable([](const auto& table) { table.Check(); });
}

void CheckComponentTables() {
  ForEachComponentTable([](const auto& table) { table.Check(); });
}

}  // namespace reference
