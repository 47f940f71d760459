#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include <mqPostCommon/catalogue/codes.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>

#include "catalogue_test_support.h"
#include "name_test_support.h"

namespace mqp::test {
namespace {

// ---- tables of the expected candidates ----------------------------------------------------

enum class Variant { Any, Zero, NonZero };

constexpr std::size_t kMostCandidates = 18;

/// The candidates of a study and a result in the order in which they are tried, each with the
/// component below it; the place behind the last one holds 0.
struct CandidateList {
  Study study;
  std::optional<Result> result;
  Variant variant;
  std::array<UINT, kMostCandidates> ids;
  std::array<int, kMostCandidates> components;

  [[nodiscard]] std::size_t Count() const {
    std::size_t count = 0;
    while (count < ids.size() && ids[count] != 0) {
      ++count;
    }
    return count;
  }

  [[nodiscard]] bool Answers(int analysisType, int resultType, int variantOption) const {
    return analysisType == Code(study) && (!result || resultType == Code(*result)) &&
           (variant == Variant::Any || (variant == Variant::NonZero) == (variantOption != 0));
  }
};

// clang-format off

constexpr auto kCandidates = std::to_array<CandidateList>({
    { Study::Static,         Result::Displacement, Variant::Any,
      { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13,    14 } },
    { Study::Static,         Result::Stress,       Variant::Zero,
      { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13 } },
    { Study::Static,         Result::Stress,       Variant::NonZero,
      { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718, 54494, 54495 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13,    14,    15 } },
    { Study::Static,         Result::Strain,       Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Static,         Result::StrainAlt,    Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Static,         Result::BeamStress,   Variant::Any,
      { 52020, 54009, 54010, 54011, 54012, 54013, 54014 },
      {     0,     1,     2,     3,     4,     5,     6 } },

    // Each name of a mode shape in both forms, whatever the flag.
    { Study::Frequency,      Result::Displacement, Variant::Any,
      { 54578, 54865, 54579, 54866, 54580, 54867, 50341, 54868 },
      {     0,     0,     1,     1,     2,     2,     3,     3 } },
    { Study::Buckling,       Result::Displacement, Variant::Any,
      { 54578, 54865, 54579, 54866, 54580, 54867, 50341, 54868, 54584, 55269, 54585, 55270, 54586, 55271 },
      {     0,     0,     1,     1,     2,     2,     3,     3,     4,     4,     5,     5,     6,     6 } },

    { Study::Thermal,        Result::Thermal,      Variant::Any,
      { 54612, 54613, 54614, 54615, 54616, 54617, 54618, 54619, 50264, 54555, 54556 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10 } },

    { Study::Fatigue,        kAnyResult,           Variant::Any,
      { 54745, 54746, 54747, 54749 },
      {     0,     1,     2,     3 } },

    { Study::Stepped,        Result::Displacement, Variant::Any,
      { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345 },
      {     0,     1,     2,     3,     4,     5,     6,     7 } },
    { Study::Stepped,        Result::Stress,       Variant::Any,
      { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13 } },
    { Study::Stepped,        Result::Strain,       Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Stepped,        Result::StrainAlt,    Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Stepped,        Result::Velocity,     Variant::Any,          // the resultant behind the angular ones
      { 54405, 54406, 54407, 54408, 54409, 54410, 54411, 54419 },
      {     0,     1,     2,     4,     5,     6,     3,     7 } },
    { Study::Stepped,        Result::Acceleration, Variant::Any,          // the angular names are others of 0 to 2
      { 54412, 54413, 54414, 54415, 54416, 54417, 54418, 54419 },
      {     0,     1,     2,     0,     1,     2,     3,     7 } },
    { Study::Stepped,        Result::BeamStress,   Variant::Any,
      { 52020, 54009, 54010, 54011, 54012, 54013, 54014 },
      {     0,     1,     2,     3,     4,     5,     6 } },

    { Study::SteppedReduced, Result::Displacement, Variant::Any,
      { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345 },
      {     0,     1,     2,     3,     4,     5,     6,     7 } },
    { Study::SteppedReduced, Result::Stress,       Variant::Any,
      { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13 } },
    { Study::SteppedReduced, Result::Strain,       Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::SteppedReduced, Result::StrainAlt,    Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::SteppedReduced, Result::Velocity,     Variant::Any,
      { 54405, 54406, 54407, 54408, 54409, 54410, 54411, 54419 },
      {     0,     1,     2,     4,     5,     6,     3,     7 } },
    { Study::SteppedReduced, Result::Acceleration, Variant::Any,          // as in a stepped study
      { 54412, 54413, 54414, 54415, 54416, 54417, 54418, 54419 },
      {     0,     1,     2,     0,     1,     2,     3,     7 } },
    { Study::SteppedReduced, Result::BeamStress,   Variant::Any,
      { 52020, 54009, 54010, 54011, 54012, 54013, 54014 },
      {     0,     1,     2,     3,     4,     5,     6 } },

    { Study::Dynamic,        Result::Displacement, Variant::Any,
      { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,    12,    13,    14 } },
    { Study::Dynamic,        Result::Stress,       Variant::Any,          // 100 is kept outside the count
      { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 56061 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11,   100 } },
    { Study::Dynamic,        Result::Strain,       Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Dynamic,        Result::StrainAlt,    Variant::Any,
      { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 },
      {     0,     1,     2,     3,     4,     5,     6,     7,     8,     9,    10,    11 } },
    { Study::Dynamic,        Result::Velocity,     Variant::Any,
      { 54405, 54406, 54407, 54408, 54409, 54410, 54411, 54419 },
      {     0,     1,     2,     4,     5,     6,     3,     7 } },
    { Study::Dynamic,        Result::Acceleration, Variant::Any,
      { 54412, 54413, 54414, 54415, 54416, 54417, 54418, 54419 },
      {     0,     1,     2,     4,     5,     6,     3,     7 } },
    { Study::Dynamic,        Result::BeamStress,   Variant::Any,
      { 52020, 54009, 54010, 54011, 54012, 54013, 54014 },
      {     0,     1,     2,     3,     4,     5,     6 } },

    { Study::FlowImport,     Result::BeamStress,   Variant::Any,
      { 52020, 54009, 54010, 54011, 54012, 54013, 54014 },
      {     0,     1,     2,     3,     4,     5,     6 } },
});

struct ResultCandidates {
  Result result;
  std::array<UINT, kMostCandidates> ids;
};

constexpr auto kResultCandidates = std::to_array<ResultCandidates>({
    { Result::Displacement,  { 54578, 54579, 54580, 50341, 54581, 54582, 54583, 50345, 54584, 54585, 54586, 54587, 54588, 54589, 54590 } },
    { Result::Stress,        { 54591, 54592, 54593, 54594, 54595, 54596, 54597, 54598, 54599, 54600, 54601, 55085, 54602, 54718 } },
    { Result::Strain,        { 54603, 54604, 54605, 54606, 54607, 54608, 54609, 54610, 54611, 50177, 50178, 50179 } },
    { Result::Thermal,       { 54612, 54613, 54614, 54615, 54616, 54617, 54618, 54619, 50264 } },
    { Result::FatigueResult, { 54745, 54746, 54747, 54749 } },
    { Result::Velocity,      { 54763, 54764, 54765, 54766, 54405, 54406, 54407, 54408, 54409, 54410, 54411 } },
    { Result::Acceleration,  { 54412, 54413, 54414, 54415, 54416, 54417, 54418 } },
});

/// Names that some component look-up knows and the look-up of result types does not.
constexpr auto kNamesWithoutResultType = std::to_array<UINT>({
    54865, 54866, 54867, 54868, 55269, 55270, 55271,     // amplitudes of mode shapes
    54555, 54556,                                        // heat power and heat energy
    54494, 54495, 56061,                                 // stresses of some studies only
    54419,
    52020, 54009, 54010, 54011, 54012, 54013, 54014,     // stresses of beams
});

// clang-format on

constexpr int kNoComponent = -1;
constexpr int kNoResultType = 9999;

const CandidateList* ListOf(int analysisType, int resultType, int variant) {
  for (const CandidateList& list : kCandidates) {
    if (list.Answers(analysisType, resultType, variant)) {
      return &list;
    }
  }
  return nullptr;
}

int ExpectedComponent(const CandidateList* list, UINT id) {
  for (std::size_t place = 0; list != nullptr && place < list->Count(); ++place) {
    if (list->ids[place] == id) {
      return list->components[place];
    }
  }
  return kNoComponent;
}

int ExpectedResultType(UINT id) {
  for (const ResultCandidates& row : kResultCandidates) {
    for (const UINT candidate : row.ids) {
      if (candidate == id) {
        return Code(row.result);
      }
    }
  }
  return kNoResultType;
}

// ---- shorter calls ------------------------------------------------------------------------

constexpr int kLongerText = 0;
constexpr int kExactName = 1;

int Component(Study study, Result result, const CString& name, int exactName, int variant = 0) {
  return vekPostCommonGetComponentIndexByName(Code(study), Code(result), variant, name, exactName);
}

/// A result type to ask a list for: the list's own, or any when it serves all.
int AskedResultType(const CandidateList& list) {
  return Code(list.result.value_or(Result::FatigueResult));
}

int AskedVariant(const CandidateList& list) {
  return list.variant == Variant::NonZero ? 1 : 0;
}

int Component(const CandidateList& list, const CString& name, int exactName) {
  return vekPostCommonGetComponentIndexByName(Code(list.study), AskedResultType(list),
                                              AskedVariant(list), name, exactName);
}

std::string Describe(const CandidateList& list, std::size_t place) {
  return "analysis type " + std::to_string(Code(list.study)) + ", result type " +
         std::to_string(AskedResultType(list)) + ", variant " + std::to_string(AskedVariant(list)) +
         ", candidate " + std::to_string(list.ids[place]);
}

// ---- which names every combination knows --------------------------------------------------

TEST(ComponentByNameTest, EveryTextOfTheTableInEveryStudyAndResult) {
  const NumberedTexts texts;
  struct NumberedName {
    UINT id;
    CString text;
  };
  std::vector<NumberedName> names;
  for (const host::StringTableEntry& entry : host::BuiltInTexts()) {
    names.push_back({entry.id, NumberedText(entry.id)});
  }
  Sweep sweep({"analysis type", "result type", "variant", "name of id", "exact name"});
  for (const int analysisType : kStudiesAndHoles) {
    for (int resultType = -1; resultType <= 73; ++resultType) {
      for (const int variant : {-1, 0, 1, 256}) {
        const CandidateList* const list = ListOf(analysisType, resultType, variant);
        for (const NumberedName& name : names) {
          for (const int exactName : {kLongerText, kExactName}) {
            sweep.Check(ExpectedComponent(list, name.id),
                        vekPostCommonGetComponentIndexByName(analysisType, resultType, variant,
                                                             name.text, exactName),
                        analysisType, resultType, variant, static_cast<int>(name.id), exactName);
          }
        }
      }
    }
  }
}

TEST(ComponentByNameTest, TheFirstCandidateOfEveryCodeThatHasAList) {
  const CString blank(MQ_TEXT(" "));
  Sweep sweep({"analysis type", "result type", "variant"});
  for (const int analysisType : kSweptCodes) {
    for (const int resultType : kSweptCodes) {
      for (const int variant : {-1, 0, 1, INT_MIN, INT_MAX}) {
        const CandidateList* const list = ListOf(analysisType, resultType, variant);
        const int expected = list == nullptr ? kNoComponent : list->components[0];
        sweep.Check(expected,
                    vekPostCommonGetComponentIndexByName(analysisType, resultType, variant, blank,
                                                         kExactName),
                    analysisType, resultType, variant);
      }
    }
  }
}

TEST(ComponentByNameTest, BuiltInTextsOfEveryCandidate) {
  for (const CandidateList& list : kCandidates) {
    for (std::size_t place = 0; place < list.Count(); ++place) {
      const CString text = LoadText(list.ids[place]);
      ASSERT_FALSE(text.IsEmpty()) << list.ids[place];
      EXPECT_EQ(Component(list, text, kExactName), list.components[place]) << Describe(list, place);
      EXPECT_EQ(Component(list, text + MQ_TEXT(" (mm)"), kLongerText), list.components[place])
          << Describe(list, place);
    }
  }
}

TEST(ComponentByNameTest, EveryNonZeroExactNameIsOne) {
  const NumberedTexts texts;
  const CString beyondSix(MQ_TEXT("54613: nothing"));
  for (const int exactName : {INT_MIN, -1, 1, 2, 256, 65536, INT_MAX}) {
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, beyondSix, exactName), kNoComponent)
        << exactName;
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, NumberedText(54613), exactName), 1)
        << exactName;
  }
  EXPECT_EQ(Component(Study::Thermal, Result::Thermal, beyondSix, 0), 1);
}

TEST(ComponentByNameTest, TheFlagHidesNeitherFormOfAModeShape) {
  const NumberedTexts texts;
  for (const int value : {0, 1, 2}) {
    const ActualFrequencyFlag flag(value);
    for (const Study study : {Study::Frequency, Study::Buckling}) {
      EXPECT_EQ(Component(study, Result::Displacement, NumberedText(54579), kExactName), 1);
      EXPECT_EQ(Component(study, Result::Displacement, NumberedText(54866), kExactName), 1);
    }
  }
}

// ---- the order of the candidates ----------------------------------------------------------

// One candidate after the other is taken out of those that share a text: the first of the rest
// answers. Any other order with another answer fails somewhere on the way.
TEST(ComponentByNameTest, TheFirstOfEqualTextsDecides) {
  const NumberedTexts texts;
  const CString shared(MQ_TEXT("shared"));
  for (const CandidateList& list : kCandidates) {
    for (std::size_t place = 0; place < list.Count(); ++place) {
      host::ReplaceText(list.ids[place], shared);
    }
    for (std::size_t place = 0; place < list.Count(); ++place) {
      EXPECT_EQ(Component(list, shared, kExactName), list.components[place])
          << Describe(list, place);
      EXPECT_EQ(Component(list, shared, kLongerText), list.components[place])
          << Describe(list, place);
      EXPECT_EQ(Component(list, MQ_TEXT("s"), kLongerText), list.components[place])
          << Describe(list, place);
      host::ReplaceText(list.ids[place], NumberedText(list.ids[place]));
    }
    EXPECT_EQ(Component(list, shared, kExactName), kNoComponent);
  }
}

TEST(ComponentByNameTest, NamesThatShareSixCharactersResolveToTheEarlierOne) {
  const NumberedTexts texts;
  for (const CandidateList& list : kCandidates) {
    const auto sharing = [&](std::size_t place) {
      return CString(MQ_TEXT("Common")) + NumberedText(list.ids[place]);
    };
    for (std::size_t place = 0; place < list.Count(); ++place) {
      host::ReplaceText(list.ids[place], sharing(place));
    }
    for (std::size_t place = 0; place < list.Count(); ++place) {
      EXPECT_EQ(Component(list, sharing(list.Count() - 1), kLongerText), list.components[place])
          << Describe(list, place);
      EXPECT_EQ(Component(list, sharing(place), kExactName), list.components[place])
          << Describe(list, place);
      host::ReplaceText(list.ids[place], NumberedText(list.ids[place]));
    }
  }
}

TEST(ComponentByNameTest, AVelocityResultantIsTriedBehindTheAngularVelocities) {
  const NumberedTexts texts;
  for (const Study study : {Study::Stepped, Study::SteppedReduced, Study::Dynamic}) {
    ReplacedTexts::Set(54411, MQ_TEXT("V: resultant"));
    ReplacedTexts::Set(54410, MQ_TEXT("VRZ: about Z"));
    EXPECT_EQ(Component(study, Result::Velocity, MQ_TEXT("V"), kExactName), 6);
    ReplacedTexts::Set(54410, MQ_TEXT("WZ: about Z"));
    EXPECT_EQ(Component(study, Result::Velocity, MQ_TEXT("V"), kExactName), 3);
  }
}

TEST(ComponentByNameTest, AngularAccelerationsAreComponentsOfADynamicStudyOnly) {
  const NumberedTexts texts;
  // clang-format off
  struct Row { Study study; UINT id; int component; };
  const auto rows = std::to_array<Row>({
      { Study::Stepped,        54415, 0 }, { Study::Stepped,        54416, 1 }, { Study::Stepped,        54417, 2 },
      { Study::SteppedReduced, 54415, 0 }, { Study::SteppedReduced, 54416, 1 }, { Study::SteppedReduced, 54417, 2 },
      { Study::Dynamic,        54415, 4 }, { Study::Dynamic,        54416, 5 }, { Study::Dynamic,        54417, 6 },
  });
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_EQ(Component(row.study, Result::Acceleration, NumberedText(row.id), kExactName),
              row.component)
        << Code(row.study) << ' ' << row.id;
  }
}

TEST(ComponentByNameTest, AnEmptyKeyMatchesTheFirstCandidateEvenWithoutAText) {
  const NumberedTexts texts;
  ReplacedTexts::Set(54405, MQ_TEXT(""));
  EXPECT_EQ(Component(Study::Dynamic, Result::Velocity, MQ_TEXT("  "), kExactName), 0);
}

TEST(ComponentByNameTest, ACandidateWithoutATextIsPassedOver) {
  const NumberedTexts texts;
  ReplacedTexts::Set(54612, MQ_TEXT(""));
  EXPECT_EQ(Component(Study::Thermal, Result::Thermal, NumberedText(54612), kExactName),
            kNoComponent);
  EXPECT_EQ(Component(Study::Thermal, Result::Thermal, NumberedText(54613), kExactName), 1);
}

TEST(ComponentByNameTest, AOneLetterKeyMatchesTheFirstNameThatBeginsWithIt) {
  const NumberedTexts texts;
  ReplacedTexts::Set(54614, MQ_TEXT("GY: gradient"));
  ReplacedTexts::Set(54615, MQ_TEXT("GZ: gradient"));
  for (const int exactName : {kLongerText, kExactName}) {
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, MQ_TEXT("G"), exactName), 2);
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, MQ_TEXT("GZ"), exactName), 3);
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, MQ_TEXT("g"), exactName), kNoComponent);
  }
}

// ---- how the key is made ------------------------------------------------------------------

/// A text in the place of the second of the thermal candidates, and what a name finds: 1 for it,
/// 0 for the first candidate (only an empty key matches that), -1 for none.
struct KeyCase {
  const mqChar* candidate;
  const mqChar* name;
  int component;
};

void CheckKeys(std::initializer_list<KeyCase> rows, int exactName) {
  const NumberedTexts texts;
  for (const KeyCase& row : rows) {
    ReplacedTexts::Set(54613, row.candidate);
    EXPECT_EQ(Component(Study::Thermal, Result::Thermal, row.name, exactName), row.component)
        << "candidate '" << Narrow(row.candidate) << "', name '" << Narrow(row.name) << "'";
  }
}

// clang-format off

TEST(ComponentByNameTest, ALongerTextIsCutToSixUnitsThenAtColonAndBlank) {
  CheckKeys({
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB: another text"),   1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB:x"),               1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB (mm)"),            1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB"),                 1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB:"),                1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB "),                1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("A"),                  1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("ABC: text"),         -1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("ab: text"),          -1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("B: text"),           -1 },   // in the text, but not in front
      { MQ_TEXT("AB"),            MQ_TEXT("A B:C"),              1 },
      { MQ_TEXT("AB"),            MQ_TEXT("A:B C"),              1 },
      { MQ_TEXT("Temperature"),   MQ_TEXT("Temperance"),         1 },   // alike in the first six
      { MQ_TEXT("Temperature"),   MQ_TEXT("Tempex"),            -1 },
      { MQ_TEXT("Tempe"),         MQ_TEXT("Temperature"),       -1 },   // shorter than the key
      { MQ_TEXT("Temper: x"),     MQ_TEXT("Temper: y"),          1 },   // a colon behind the sixth
      { MQ_TEXT("Temper x"),      MQ_TEXT("Temper y"),           1 },
      { MQ_TEXT("Tempe: x"),      MQ_TEXT("Tempe: y"),           1 },
      { MQ_TEXT("AB\tC"),         MQ_TEXT("AB\tD"),             -1 },   // only a blank cuts
      { MQ_TEXT("AB\tC"),         MQ_TEXT("AB\tC"),              1 },
      { MQ_TEXT("12345\U0001F600"), MQ_TEXT("12345\U0001F601"),  1 },   // six units end inside a pair
  }, kLongerText);
}

TEST(ComponentByNameTest, AColonOrBlankInFrontCutsNothing) {
  CheckKeys({
      { MQ_TEXT(":AB"),           MQ_TEXT(":AB"),                1 },
      { MQ_TEXT(":AB"),           MQ_TEXT(":AC"),               -1 },
      { MQ_TEXT(":A:B"),          MQ_TEXT(":A:C"),              -1 },   // the first colon decides
      { MQ_TEXT(":A B"),          MQ_TEXT(":A C"),               1 },
      { MQ_TEXT(" AB"),           MQ_TEXT(" AB"),                1 },
      { MQ_TEXT(" AB"),           MQ_TEXT(" AC"),               -1 },
      { MQ_TEXT(" A B"),          MQ_TEXT(" A C"),              -1 },   // the first blank decides
      { MQ_TEXT(" A:B"),          MQ_TEXT(" A:C"),               1 },
      { MQ_TEXT("AB"),            MQ_TEXT(" AB"),               -1 },   // nothing is trimmed
      { MQ_TEXT("AB"),            MQ_TEXT(":"),                 -1 },
      { MQ_TEXT("AB"),            MQ_TEXT(" "),                 -1 },
      { MQ_TEXT(" AB"),           MQ_TEXT(" "),                  1 },
      { MQ_TEXT(":AB"),           MQ_TEXT(":"),                  1 },
  }, kLongerText);
}

TEST(ComponentByNameTest, AnExactNameIsTrimmedAndComparedWhole) {
  CheckKeys({
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB: text"),           1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("  AB: text  "),       1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("\t\r\nAB: text\n"),   1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB"),                 1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB:"),                1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB: another text"),  -1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB: text (mm)"),     -1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB:  text"),         -1 },   // blanks inside count
      { MQ_TEXT("AB: text"),      MQ_TEXT("ab: text"),          -1 },
      { MQ_TEXT("AB: text"),      MQ_TEXT("AB (mm)"),           -1 },
      { MQ_TEXT("Temperature"),   MQ_TEXT("Temperance"),        -1 },
      { MQ_TEXT("Temperature"),   MQ_TEXT("Temperat"),           1 },
      { MQ_TEXT(" AB"),           MQ_TEXT("AB"),                -1 },   // the table's text is not trimmed
      { MQ_TEXT(" AB"),           MQ_TEXT(" AB"),               -1 },
      { MQ_TEXT("XAB"),           MQ_TEXT("AB"),                -1 },
      { MQ_TEXT("ABAB"),          MQ_TEXT("AB"),                 1 },
      { MQ_TEXT("AB"),            MQ_TEXT("   "),                0 },
      { MQ_TEXT("AB"),            MQ_TEXT("\t\n"),               0 },
      { MQ_TEXT(":"),             MQ_TEXT(" : "),                1 },
  }, kExactName);
}

// clang-format on

TEST(ComponentByNameTest, AnEmptyNameIsNoComponent) {
  for (const CandidateList& list : kCandidates) {
    EXPECT_EQ(Component(list, CString(), kLongerText), kNoComponent) << Describe(list, 0);
    EXPECT_EQ(Component(list, CString(), kExactName), kNoComponent) << Describe(list, 0);
  }
}

TEST(ComponentByNameTest, ATwoLetterNameBeforeAColonOrAUnit) {
  const NumberedTexts texts;
  ReplacedTexts::Set(54592, MQ_TEXT("SY: stress along Y"));
  EXPECT_EQ(Component(Study::Static, Result::Stress, MQ_TEXT("SY: anything"), kLongerText), 1);
  EXPECT_EQ(Component(Study::Static, Result::Stress, MQ_TEXT("SY (N/m^2)"), kLongerText), 1);
}

TEST(ComponentByNameTest, AStaticStressKnowsItsLastNamesByTheVariantOnly) {
  const NumberedTexts texts;
  for (const int variant : {INT_MIN, -1, 1, 2, 256, INT_MAX}) {
    EXPECT_EQ(Component(Study::Static, Result::Stress, NumberedText(54494), kExactName, variant),
              14)
        << variant;
    EXPECT_EQ(Component(Study::Static, Result::Stress, NumberedText(54495), kExactName, variant),
              15)
        << variant;
    EXPECT_EQ(Component(Study::Stepped, Result::Stress, NumberedText(54494), kExactName, variant),
              kNoComponent)
        << variant;
  }
  EXPECT_EQ(Component(Study::Static, Result::Stress, NumberedText(54494), kExactName, 0),
            kNoComponent);
  EXPECT_EQ(Component(Study::Static, Result::Stress, NumberedText(54495), kExactName, 0),
            kNoComponent);
}

TEST(ComponentByNameTest, ADynamicStressFindsComponent100) {
  const NumberedTexts texts;
  EXPECT_EQ(Component(Study::Dynamic, Result::Stress, NumberedText(56061), kExactName), 100);
  EXPECT_EQ(Component(Study::Dynamic, Result::Stress, NumberedText(54602), kExactName),
            kNoComponent);
  EXPECT_EQ(Component(Study::Static, Result::Stress, NumberedText(56061), kExactName, 1),
            kNoComponent);
}

TEST(ComponentByNameTest, AFatigueStudyKnowsItsNamesForAnyResultType) {
  const NumberedTexts texts;
  Sweep sweep({"result type", "name of id"});
  for (const int resultType : kSweptCodes) {
    for (const UINT id : {54745U, 54746U, 54747U, 54749U, 54020U, 54748U}) {
      const CandidateList& list = *ListOf(7, resultType, 0);
      sweep.Check(
          ExpectedComponent(&list, id),
          vekPostCommonGetComponentIndexByName(7, resultType, 0, NumberedText(id), kExactName),
          resultType, static_cast<int>(id));
    }
  }
}

TEST(ComponentByNameTest, AnImportedFlowKnowsBeamStressesOnly) {
  const NumberedTexts texts;
  EXPECT_EQ(Component(Study::FlowImport, Result::BeamStress, NumberedText(54014), kExactName), 6);
  EXPECT_EQ(Component(Study::FlowImport, Result::FlowVelocity, MQ_TEXT(" "), kExactName),
            kNoComponent);
}

TEST(ComponentByNameTest, TheCallersNameStaysAsItIs) {
  CString name(MQ_TEXT("  DX: displacement along X "));
  Component(Study::Static, Result::Displacement, name, kExactName);
  Component(Study::Static, Result::Displacement, name, kLongerText);
  EXPECT_EQ(name, MQ_TEXT("  DX: displacement along X "));
}

// ---- from a full name back to its component -----------------------------------------------

/// How a full name was asked for, and how it is looked up.
struct Circumstances {
  int analysisType;
  int resultType;
  int component;
  bool isBeamMesh;
  bool isAlternateName;
  bool isVariant;
};

enum class Only { Always, BeamMesh, AlternateNames, VariantZero };

/// Full names that do not lead back to their component.
struct OneWayName {
  std::optional<Study> study;
  std::optional<Result> result;
  int first;
  int last;
  Only only;
  int found;
};

// clang-format off
constexpr auto kOneWayNames = std::to_array<OneWayName>({
    // study                result                   from     to       only                 found
    { kAnyStudy,             Result::ResultType53,   0,       4,       Only::Always,         -1 },   // these nine have names and no list
    { kAnyStudy,             Result::ResultType54,   0,       5,       Only::Always,         -1 },
    { kAnyStudy,             Result::FactorOfSafety, 0,       4,       Only::Always,         -1 },
    { kAnyStudy,             Result::ResultType62,   INT_MIN, INT_MAX, Only::Always,         -1 },
    { kAnyStudy,             Result::ResultType56,   INT_MIN, INT_MAX, Only::Always,         -1 },
    { kAnyStudy,             Result::StressAlt,      INT_MIN, INT_MAX, Only::Always,         -1 },
    { kAnyStudy,             Result::ResultType0,    INT_MIN, INT_MAX, Only::Always,         -1 },
    { kAnyStudy,             Result::BucklingResult, INT_MIN, INT_MAX, Only::Always,         -1 },
    { kAnyStudy,             Result::ResultType66,   INT_MIN, INT_MAX, Only::Always,         -1 },
    { Study::Static,         Result::ResultType55,   0,       3,       Only::Always,         -1 },   // nor have these
    { Study::Static,         Result::ResultType18,   0,       2,       Only::Always,         -1 },
    { Study::Static,         Result::MassProperties, 0,       5,       Only::Always,         -1 },

    { Study::Static,         Result::Displacement,   0,       2,       Only::AlternateNames, -1 },   // the lists know the first names only
    { Study::Static,         Result::Displacement,   4,       6,       Only::AlternateNames, -1 },
    { Study::Dynamic,        Result::Displacement,   0,       2,       Only::AlternateNames, -1 },
    { Study::Dynamic,        Result::Displacement,   4,       6,       Only::AlternateNames, -1 },
    { Study::Stepped,        Result::Displacement,   0,       2,       Only::AlternateNames, -1 },
    { Study::Stepped,        Result::Displacement,   4,       6,       Only::AlternateNames, -1 },
    { Study::SteppedReduced, Result::Displacement,   0,       2,       Only::AlternateNames, -1 },
    { Study::SteppedReduced, Result::Displacement,   4,       6,       Only::AlternateNames, -1 },

    { Study::Stepped,        Result::Displacement,   8,       14,      Only::Always,         -1 },   // the list ends at the reaction forces
    { Study::SteppedReduced, Result::Displacement,   8,       14,      Only::Always,         -1 },
    { Study::Frequency,      Result::Displacement,   4,       6,       Only::Always,         -1 },   // the list ends at the resultant
    { Study::Dynamic,        Result::Displacement,   15,      15,      Only::Always,         -1 },   // a name of velocities in the lists

    { Study::Static,         Result::Stress,         14,      15,      Only::VariantZero,    -1 },
    { Study::Dynamic,        Result::Stress,         0,       6,       Only::BeamMesh,       -1 },   // in the lists of beam stresses instead
    { Study::Stepped,        Result::Stress,         0,       4,       Only::BeamMesh,       -1 },
    { Study::SteppedReduced, Result::Stress,         0,       4,       Only::BeamMesh,       -1 },

    { Study::Stepped,        Result::Acceleration,   4,       4,       Only::Always,          0 },   // other names of the first three
    { Study::Stepped,        Result::Acceleration,   5,       5,       Only::Always,          1 },
    { Study::Stepped,        Result::Acceleration,   6,       6,       Only::Always,          2 },
    { Study::SteppedReduced, Result::Acceleration,   4,       4,       Only::Always,          0 },
    { Study::SteppedReduced, Result::Acceleration,   5,       5,       Only::Always,          1 },
    { Study::SteppedReduced, Result::Acceleration,   6,       6,       Only::Always,          2 },

    { Study::Fatigue,        kAnyResult,             2,       2,       Only::Always,         -1 },   // the list has a name of its own
    { Study::Fatigue,        kAnyResult,             4,       4,       Only::Always,          0 },   // named like the first
});
// clang-format on

bool Covers(const OneWayName& row, const Circumstances& name) {
  const bool isOnly = row.only == Only::Always || (row.only == Only::BeamMesh && name.isBeamMesh) ||
                      (row.only == Only::AlternateNames && name.isAlternateName) ||
                      (row.only == Only::VariantZero && !name.isVariant);
  return (!row.study || Code(*row.study) == name.analysisType) &&
         (!row.result || Code(*row.result) == name.resultType) && name.component >= row.first &&
         name.component <= row.last && isOnly;
}

/// Counts how often each exception was needed, so that none outlives its reason.
class WayBack {
 public:
  int ExpectedComponent(const Circumstances& name) {
    for (std::size_t row = 0; row < kOneWayNames.size(); ++row) {
      if (Covers(kOneWayNames[row], name)) {
        ++m_uses[row];
        return kOneWayNames[row].found;
      }
    }
    return name.component;
  }

  void ExpectEveryExceptionUsed() const {
    for (std::size_t row = 0; row < m_uses.size(); ++row) {
      EXPECT_GT(m_uses[row], 0) << "row " << row;
    }
  }

 private:
  std::array<int, kOneWayNames.size()> m_uses{};
};

void CheckTheWayBack(int exactName) {
  WayBack wayBack;
  Sweep sweep({"flag", "analysis type", "result type", "component", "mesh kind", "alternate names",
               "variant"});
  const auto check = [&](int flag, int meshKind, int alternateNames, int variant) {
    const ActualFrequencyFlag guard(flag);
    for (const int analysisType : kStudiesAndHoles) {
      for (int resultType = -1; resultType <= 73; ++resultType) {
        for (int component = -1; component <= 101; ++component) {
          const CString name = vekPostCommonGetComponentName(analysisType, resultType, 0, component,
                                                             meshKind, alternateNames);
          if (name.IsEmpty()) {
            continue;
          }
          const int expected =
              wayBack.ExpectedComponent({analysisType, resultType, component, meshKind == 4,
                                         alternateNames != 0, variant != 0});
          const int got = vekPostCommonGetComponentIndexByName(analysisType, resultType, variant,
                                                               name, exactName);
          sweep.Check(expected, got, flag, analysisType, resultType, component, meshKind,
                      alternateNames, variant);
        }
      }
    }
  };
  for (const int flag : {0, 1}) {
    for (const int meshKind : {0, 4}) {
      for (const int alternateNames : {0, 1}) {
        for (const int variant : {0, 1}) {
          check(flag, meshKind, alternateNames, variant);
        }
      }
    }
  }
  wayBack.ExpectEveryExceptionUsed();
}

TEST(ComponentByNameTest, FullNamesLeadBackToTheirComponents) {
  const NumberedTexts texts;
  CheckTheWayBack(kExactName);
}

TEST(ComponentByNameTest, TextsThatBeginWithAFullNameLeadBackToItsComponent) {
  const NumberedTexts texts;
  CheckTheWayBack(kLongerText);
}

TEST(ComponentByNameTest, BuiltInFullNamesLeadBackToTheirComponents) {
  CheckTheWayBack(kExactName);
}

TEST(ComponentByNameTest, TextsThatBeginWithABuiltInFullNameLeadBackToItsComponent) {
  CheckTheWayBack(kLongerText);
}

// ---- result types -------------------------------------------------------------------------

struct ResultCandidate {
  UINT id;
  int resultType;
};

std::vector<ResultCandidate> ResultCandidatesInOrder() {
  std::vector<ResultCandidate> candidates;
  for (const ResultCandidates& row : kResultCandidates) {
    for (const UINT id : row.ids) {
      if (id != 0) {
        candidates.push_back({id, Code(row.result)});
      }
    }
  }
  return candidates;
}

TEST(ResultTypeByNameTest, EveryTextOfTheTable) {
  const NumberedTexts texts;
  Sweep sweep({"name of id"});
  for (const host::StringTableEntry& entry : host::BuiltInTexts()) {
    sweep.Check(ExpectedResultType(entry.id),
                vekPostCommonGetResultTypeByComponentName(NumberedText(entry.id)),
                static_cast<int>(entry.id));
  }
}

TEST(ResultTypeByNameTest, BuiltInTextsOfEveryCandidate) {
  for (const ResultCandidate& candidate : ResultCandidatesInOrder()) {
    const CString text = LoadText(candidate.id);
    ASSERT_FALSE(text.IsEmpty()) << candidate.id;
    EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(text), candidate.resultType)
        << candidate.id << ' ' << Narrow(text);
  }
}

TEST(ResultTypeByNameTest, NamesLeftOutOnPurposeHaveNone) {
  const NumberedTexts texts;
  for (const UINT id : kNamesWithoutResultType) {
    EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(NumberedText(id)), 9999) << id;
  }
}

TEST(ResultTypeByNameTest, ANameLeftOutThatAnEarlierCandidateBeginsWith) {
  const NumberedTexts texts;
  ReplacedTexts::Set(54419, MQ_TEXT("RMAG: of rotations"));
  ReplacedTexts::Set(54590, MQ_TEXT("RMAG: of moments"));
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT("RMAG: of rotations")), 1);
}

TEST(ResultTypeByNameTest, TheFirstOfEqualTextsDecides) {
  const NumberedTexts texts;
  const CString shared(MQ_TEXT("shared"));
  const std::vector<ResultCandidate> candidates = ResultCandidatesInOrder();
  for (const ResultCandidate& candidate : candidates) {
    host::ReplaceText(candidate.id, shared);
  }
  for (const ResultCandidate& candidate : candidates) {
    EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(shared), candidate.resultType)
        << candidate.id;
    host::ReplaceText(candidate.id, NumberedText(candidate.id));
  }
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(shared), 9999);
}

TEST(ResultTypeByNameTest, AnEmptyNameIsADisplacementAndABlankOneIsNothing) {
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(CString()), 1);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT(" ")), 9999);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT(":")), 9999);
}

TEST(ResultTypeByNameTest, AlternativeStrainsAreStrains) {
  const NumberedTexts texts;
  const CString name = vekPostCommonGetComponentName(0, 22, 0, 4, 0, 0);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(name), 3);
}

/// A text in the place of the first acceleration, and what a name finds: 20 for it, 9999 for
/// nothing.
TEST(ResultTypeByNameTest, TheKeyIsTheOneOfALongerText) {
  const NumberedTexts texts;
  // clang-format off
  const std::initializer_list<KeyCase> rows = {
      { MQ_TEXT("AX: along X"),   MQ_TEXT("AX: any"),      20 },
      { MQ_TEXT("AX: along X"),   MQ_TEXT("AX (m/s^2)"),   20 },
      { MQ_TEXT("AX: along X"),   MQ_TEXT("A"),            20 },
      { MQ_TEXT("AX: along X"),   MQ_TEXT("ax"),         9999 },
      { MQ_TEXT("AX: along X"),   MQ_TEXT("X"),          9999 },
      { MQ_TEXT("AX: along X"),   MQ_TEXT(" AX"),        9999 },   // nothing is trimmed
      { MQ_TEXT(" AX"),           MQ_TEXT(" AX"),          20 },
      { MQ_TEXT(":AX"),           MQ_TEXT(":AX"),          20 },
      { MQ_TEXT(":AX"),           MQ_TEXT(":AY"),        9999 },
      { MQ_TEXT("Acceleration"),  MQ_TEXT("Accelerate"),   20 },   // alike in the first six
      { MQ_TEXT("Accel"),         MQ_TEXT("Accele"),     9999 },
      { MQ_TEXT("Accel: x"),      MQ_TEXT("Accel: y"),     20 },
      { MQ_TEXT(""),              MQ_TEXT("AX"),         9999 },
  };
  // clang-format on
  for (const KeyCase& row : rows) {
    ReplacedTexts::Set(54412, row.candidate);
    EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(row.name), row.component)
        << "candidate '" << Narrow(row.candidate) << "', name '" << Narrow(row.name) << "'";
  }
}

}  // namespace
}  // namespace mqp::test
