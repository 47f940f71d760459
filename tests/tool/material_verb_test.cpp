#include <mqpost/text.h>

#include "tool/tool_test_support.h"

namespace mqp::test {
namespace {

json SystemOf(int code, const json& name) {
  return {{"code", code}, {"name", name}};
}

json Property(int index, const char* keyword, const std::vector<std::string>& units) {
  return {{"index", index}, {"keyword", keyword}, {"units", units}};
}

TEST(MaterialVerb, KeywordsAreListedWithTheUnitsOfTheFourSystemsInUse) {
  const json answer = RunForJson({"material", "keywords"});
  EXPECT_EQ(answer.at("systems"), (json{SystemOf(0, "si"), SystemOf(1, "ips"),
                                        SystemOf(2, "metric"), SystemOf(3, "si-mm")}));
  const json& properties = answer.at("properties");
  ASSERT_EQ(properties.size(), 121U);
  EXPECT_EQ(properties[0], Property(0, "EX", {"N/m^2", "psi", "kgf/cm^2", "N/mm^2"}));
  EXPECT_EQ(properties[3], Property(3, "NUXY", {"NA", "NA", "NA", "NA"}));
  EXPECT_EQ(properties[9], Property(9, "DENS", {"kg/m^3", "lb/in^3", "kg/cm^3", "g/cm^3"}));
  EXPECT_EQ(properties[19],
            Property(19, "C", {"J/(kg.K)", "Btu/(lb.F)", "Cal/(kg.C)", "Cal/(kg.C)"}));
  EXPECT_EQ(properties[120], Property(120, "SIGXY", {"N/m^2", "psi", "kgf/cm^2", "N/mm^2"}));
}

TEST(MaterialVerb, UnitsAreShownInTheOrderAskedForWithTheReservedSystems) {
  const json answer = RunForJson({"material", "units", "SIGYLD", "EX", "FRCANG", "CREEPCONST1"});
  EXPECT_EQ(answer.at("systems")[5], SystemOf(5, nullptr));
  EXPECT_EQ(
      answer.at("properties"),
      (json{Property(12, "SIGYLD", {"N/m^2", "psi", "kgf/cm^2", "N/mm^2", "Future", "Future"}),
            Property(0, "EX", {"N/m^2", "psi", "kgf/cm^2", "N/mm^2", "Future", "Future"}),
            Property(43, "FRCANG", {"Deg", "Deg", "Deg", "Deg", "Deg", "Deg"}),
            Property(95, "CREEPCONST1",
                     {"(N/m^2)^-CREEPCONST2", "(psi)^-CREEPCONST2", "(kgf/cm^2)^-CREEPCONST2",
                      "(N/mm^2)^-CREEPCONST2", "NA", "NA"})}));
  EXPECT_EQ(RunForJson({"material", "units"}).at("properties").size(), 121U);
}

struct SystemCase {
  const char* word;
  int code;
  json name;
  const char* unitOfDensity;
};

TEST(MaterialVerb, OneSystemIsChosenByNameOrNumber) {
  const SystemCase cases[] = {
      {"si", 0, "si", "kg/m^3"},          {"IPS", 1, "ips", "lb/in^3"},
      {"Metric", 2, "metric", "kg/cm^3"}, {"si-mm", 3, "si-mm", "g/cm^3"},
      {"3", 3, "si-mm", "g/cm^3"},        {"0", 0, "si", "kg/m^3"},
      {"4", 4, nullptr, "Future"},        {"5", 5, nullptr, "Future"},
  };
  for (const SystemCase& row : cases) {
    SCOPED_TRACE(row.word);
    const json answer = RunForJson({"material", "units", "DENS", "--system", row.word});
    EXPECT_EQ(answer.at("systems"), json::array({SystemOf(row.code, row.name)}));
    EXPECT_EQ(answer.at("properties"), json::array({Property(9, "DENS", {row.unitOfDensity})}));
  }
  EXPECT_EQ(RunTool({"material", "units", "SIGYLD", "NUXY", "--system", "ips"}).out,
            "index  keyword  1 ips\n"
            "-----  -------  -----\n"
            "   12  SIGYLD   psi\n"
            "    3  NUXY     NA\n");
}

TEST(MaterialVerb, AModelListsItsPropertiesInItsOwnOrder) {
  const json answer = RunForJson({"material", "model", "3"});
  EXPECT_EQ(answer.at("model"), 3);
  std::vector<std::string> keywords;
  std::vector<int> indices;
  for (const json& property : answer.at("properties")) {
    keywords.push_back(property.at("keyword").get<std::string>());
    indices.push_back(property.at("index").get<int>());
  }
  EXPECT_EQ(keywords, (std::vector<std::string>{"CREEPCONST1", "CREEPCONST2", "CREEPCONST3",
                                                "CREEPTC", "DENS"}));
  EXPECT_EQ(indices, (std::vector<int>{95, 96, 97, 102, 9}));
  EXPECT_EQ(answer.at("properties")[3].at("units"), json({"SI", "IPS", "MKS", "Kelvin"}));
  EXPECT_EQ(RunForJson({"material", "model", "12", "--system", "ips"}).at("properties")[11],
            Property(118, "SIGYT", {"psi"}));
}

TEST(MaterialVerb, WithoutANumberTheFifteenModelsAreCounted) {
  const json models = RunForJson({"material", "model"}).at("models");
  const int counts[] = {22, 8, 5, 7, 11, 11, 15, 14, 8, 17, 16, 24, 24, 12, 41};
  ASSERT_EQ(models.size(), std::size(counts));
  int number = 0;
  for (const int count : counts) {
    const json& model = models[static_cast<std::size_t>(number)];
    EXPECT_EQ(model.at("model"), ++number);
    EXPECT_EQ(model.at("count"), count) << number;
    EXPECT_EQ(model.at("keywords").size(), static_cast<std::size_t>(count)) << number;
  }
  EXPECT_EQ(models[3].at("keywords")[6], "CREEPCONST7");
  EXPECT_TRUE(Contains(RunTool({"material", "model"}).out,
                       "\n    6          11  EX NUXY GXY DENS SIGXT SIGXC SIGYLD ALPX KX C "
                       "MDAMP\n"));
}

struct ComplaintCase {
  std::vector<std::string> arguments;
  int code;
  const char* said;
};

TEST(MaterialVerb, WhatIsNotThereIsAFindingAndWhatIsNotUnderstoodIsNot) {
  const std::vector<ComplaintCase> cases = {
      {{"units", "SIGYL"}, 1, "no material property \"SIGYL\". Did you mean SIGYLD"},
      {{"units", "EX", "sigyld"}, 1, "no material property \"sigyld\". Did you mean SIGYLD?"},
      {{"units", "QQQQQQ"}, 1, "mqpost material keywords has all"},
      {{"units", ""}, 1, "no material property \"\""},
      {{"model", "16"}, 1, "no material model 16. Did you mean 15? They are numbered from 1 to 15"},
      {{"model", "0"}, 1, "no material model 0. Did you mean 1?"},
      {{"model", "-7"}, 1, "no material model -7. Did you mean 1?"},
      {{"model", "2147483647"}, 1, "Did you mean 15?"},
      {{"model", "plastic"}, 2, "a number from 1 to 15, not \"plastic\""},
      {{"model", "2147483648"}, 2, "a number from 1 to 15"},
      {{"model", "3", "4"}, 2, "one argument too many: \"4\""},
      {{"model", "--system", "si"}, 2, "--system needs a model"},
      {{"keywords", "EX"},
       2,
       "one argument too many: \"EX\". mqpost material units takes keywords"},
      {{"keyword"}, 2, "no part \"keyword\". Did you mean keywords?"},
      {{"qqqqqq"}, 2, "Name keywords, units or model."},
      {{}, 2, "WHAT is required"},
      {{"units", "EX", "--system", "6"}, 2, "no material unit system \"6\". Known are si, ips"},
      {{"units", "EX", "--system", "-1"}, 2, "no material unit system \"-1\""},
      {{"units", "EX", "--system", "mks"}, 2, "metric, si-mm, and 0 to 5"},
  };
  for (const ComplaintCase& row : cases) {
    std::vector<std::string> arguments = row.arguments;
    arguments.insert(arguments.begin(), "material");
    SCOPED_TRACE(json(arguments).dump());
    const Outcome outcome = RunTool(arguments);
    EXPECT_EQ(outcome.code, row.code) << outcome;
    EXPECT_EQ(outcome.out, "");
    EXPECT_TRUE(Contains(outcome.err, row.said)) << outcome;
  }
}

TEST(MaterialVerb, NoLineIsWiderThanTheTerminal) {
  const std::vector<std::vector<std::string>> commands = {
      {"material", "keywords"},
      {"material", "units"},
      {"material", "units", "CREEPCONST1", "--system", "metric"},
      {"material", "model"},
      {"material", "model", "15"},
  };
  for (const auto& command : commands) {
    for (const int width : {60, 72, 80, 100, 132}) {
      const Outcome outcome = RunTool(command, Terminal(width));
      EXPECT_EQ(outcome.code, 0);
      ExpectNoLineWiderThan(width, outcome.out);
    }
  }
  // The reserved systems go first.
  const Outcome narrow = RunTool({"material", "units", "CREEPCONST1"}, Terminal(60));
  EXPECT_TRUE(Contains(narrow.err, "no room for 5, 4;")) << narrow;
  EXPECT_EQ(RunTool({"material", "units", "CREEPCONST1"}, Terminal(80)).err, "");
}

TEST(MaterialVerb, HelpNamesItsParts) {
  const Outcome outcome = RunTool({"material", "--help"});
  EXPECT_EQ(outcome.code, 0);
  for (const char* part : {"keywords ", "units [KEYWORD...]", "model [N]", "--system NAME",
                           "Example:\n  mqpost material units"}) {
    EXPECT_TRUE(Contains(outcome.out, part)) << part << outcome;
  }
}

}  // namespace
}  // namespace mqp::test
