#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include <mqCommFuncs/string_table.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/wide_string.h>

namespace {

using mqp::host::BuiltInTexts;
using mqp::host::CountMissingIds;
using mqp::host::LoadTranslations;
using mqp::host::ReplaceText;
using mqp::host::StringTableEntry;
using mqp::host::TranslationReport;
using mqp::host::UseBuiltInTexts;

namespace fs = std::filesystem;

/// Ids from the first to the last, both included.
struct IdRange {
  UINT first;
  UINT last;
};

// clang-format off

/// Every id that the library asks for.
constexpr IdRange kIds[] = {
    // result names
    { 52941, 52941 }, { 52980, 52980 }, { 53557, 53557 }, { 54327, 54327 }, { 50006, 50006 },
    { 50004, 50004 }, { 53153, 53153 }, { 52961, 52962 }, { 54060, 54060 }, { 54464, 54465 },
    { 54332, 54332 }, { 53326, 53326 }, { 55670, 55670 },
    // full names, results named the same in every study
    { 50507, 50507 }, { 54262, 54263 }, { 50760, 50760 }, { 53101, 53101 },
    { 51767, 51767 }, { 53953, 53955 }, { 53963, 53963 }, { 51761, 51761 },
    { 53574, 53576 }, { 50018, 50019 }, { 54470, 54473 }, { 54525, 54525 }, { 50330, 50330 },
    { 54629, 54629 }, { 55541, 55541 },
    // full names: displacements, their second list, mode shapes
    { 54578, 54580 }, { 50341, 50341 }, { 54581, 54583 }, { 50345, 50345 }, { 54584, 54590 },
    { 54751, 54756 }, { 54865, 54868 }, { 55269, 55271 },
    // full names: stresses, strains, forces, mass properties, beams
    { 54591, 54602 }, { 55085, 55085 }, { 54718, 54718 }, { 54494, 54495 }, { 56061, 56061 },
    { 54603, 54611 }, { 50177, 50179 }, { 53157, 53160 }, { 53154, 53156 }, { 51060, 51060 },
    { 53401, 53405 }, { 52020, 52020 }, { 54009, 54014 },
    // full names: thermal, fatigue, velocity, acceleration
    { 54612, 54619 }, { 50264, 50264 }, { 54555, 54556 }, { 54745, 54747 }, { 54749, 54749 },
    { 54020, 54020 }, { 54405, 54419 }, { 54763, 54766 },
    // bar names
    { 53471, 53483 }, { 53981, 53984 }, { 53987, 53994 }, { 53947, 53947 }, { 53034, 53034 },
    { 53996, 53999 }, { 55084, 55084 }, { 52190, 52190 }, { 54498, 54499 }, { 53971, 53980 },
    { 54873, 54876 }, { 55275, 55276 }, { 55268, 55268 }, { 53985, 53986 }, { 54000, 54008 },
    { 54015, 54015 }, { 54019, 54019 }, { 54021, 54021 }, { 55362, 55362 }, { 54022, 54034 },
    { 53945, 53946 },
    // brief names
    { 54782, 54796 }, { 54771, 54781 }, { 54496, 54497 }, { 56060, 56060 }, { 54797, 54803 },
    { 54813, 54817 }, { 54869, 54872 }, { 55272, 55274 }, { 50797, 50797 }, { 54804, 54811 },
    { 54557, 54558 }, { 54223, 54224 }, { 54812, 54812 }, { 54824, 54825 },
    // titles of graphs, their axes and of lists
    { 54822, 54823 }, { 55144, 55144 }, { 54714, 54715 }, { 50610, 50610 }, { 50578, 50578 },
    { 51724, 51724 }, { 53044, 53044 }, { 54441, 54441 }, { 54477, 54477 }, { 54668, 54668 },
    { 54684, 54684 }, { 55123, 55125 }, { 50733, 50733 }, { 50757, 50757 },
};
constexpr std::size_t kIdCount = 315;

/// The ids of full component names: a symbol, a colon, a blank and a description.
constexpr IdRange kFullNames[] = {
    { 50507, 50507 }, { 54262, 54263 }, { 50760, 50760 }, { 53101, 53101 },
    { 51767, 51767 }, { 53953, 53955 }, { 53963, 53963 }, { 51761, 51761 },
    { 53574, 53576 }, { 50018, 50019 }, { 54470, 54473 }, { 54525, 54525 }, { 50330, 50330 },
    { 54629, 54629 }, { 55541, 55541 },
    { 54578, 54590 }, { 50341, 50341 }, { 50345, 50345 }, { 54751, 54756 }, { 54865, 54868 },
    { 55269, 55271 },
    { 54591, 54611 }, { 55085, 55085 }, { 54718, 54718 }, { 54494, 54495 }, { 56061, 56061 },
    { 50177, 50179 }, { 53157, 53160 }, { 53154, 53156 }, { 51060, 51060 }, { 53401, 53405 },
    { 52020, 52020 }, { 54009, 54014 }, { 54612, 54619 }, { 50264, 50264 }, { 54555, 54556 },
    { 54745, 54747 }, { 54749, 54749 }, { 54020, 54020 }, { 54405, 54419 }, { 54763, 54766 },
};

/// Ids that no text has, at both ends of the table, in its holes and far outside.
constexpr UINT kUnknownIds[] = { 0, 1, 49999, 50003, 50005, 53995, 56062, 99999,
                                 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF };

// clang-format on

std::vector<UINT> Expand(auto& ranges) {
  std::vector<UINT> ids;
  for (const IdRange& range : ranges) {
    for (UINT id = range.first; id <= range.last; ++id) {
      ids.push_back(id);
    }
  }
  return ids;
}

CString Load(UINT id) {
  CString text;
  EXPECT_EQ(mqpLoadString(text, id), 1) << "id " << id;
  return text;
}

/// The text with every code unit but ASCII as \u and four digits.
std::string Show(mqTextView text) {
  std::string shown;
  for (const mqChar unit : text) {
    if (unit >= 0x20 && unit < 0x7F) {
      shown += static_cast<char>(unit);
    } else {
      char escaped[sizeof "\\uFFFF"];
      std::snprintf(escaped, sizeof escaped, "\\u%04X", static_cast<unsigned>(unit));
      shown += escaped;
    }
  }
  return shown;
}
std::string Show(const CString& text) {
  return Show(text.View());
}
std::string Show(const mqChar* text) {
  return Show(mqTextView(text));
}

std::string InUtf8(const fs::path& file) {
  const std::u8string name = file.u8string();
  return {name.begin(), name.end()};
}

using Texts = std::map<UINT, std::string>;

Texts AllTexts() {
  Texts texts;
  for (const UINT id : Expand(kIds)) {
    texts[id] = Show(Load(id));
  }
  return texts;
}

struct Message {
  std::string key;
  std::string text;
};

std::string Key(UINT id, const std::string& english) {
  return std::to_string(id) + '\x04' + english;
}

enum class ByteOrder { Little, Big };

std::string Integer(std::size_t value, ByteOrder order) {
  std::string bytes;
  for (unsigned shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>((value >> shift) & 0xFFU);
  }
  return order == ByteOrder::Little ? bytes : std::string(bytes.rbegin(), bytes.rend());
}

/// A compiled message file: header of 28 bytes, key table, text table, keys, texts.
std::string MakeMo(const std::vector<Message>& messages, ByteOrder order = ByteOrder::Little) {
  const std::size_t keyTable = 28;
  const std::size_t textTable = keyTable + 8 * messages.size();
  std::size_t end = textTable + 8 * messages.size();
  std::string keyRows;
  std::string textRows;
  std::string texts;
  for (const Message& message : messages) {
    keyRows += Integer(message.key.size(), order) + Integer(end, order);
    texts += message.key + '\0';
    end += message.key.size() + 1;
  }
  for (const Message& message : messages) {
    textRows += Integer(message.text.size(), order) + Integer(end, order);
    texts += message.text + '\0';
    end += message.text.size() + 1;
  }
  return Integer(0x950412DE, order) + Integer(0, order) + Integer(messages.size(), order) +
         Integer(keyTable, order) + Integer(textTable, order) + Integer(0, order) +
         Integer(0, order) + keyRows + textRows + texts;
}

class StringTable : public testing::Test {
 protected:
  StringTable() {
    std::ostringstream name;
    name << "mqStringTable" << std::hex << std::random_device()();
    m_folder = fs::temp_directory_path() / name.str();
    fs::create_directory(m_folder);
  }
  ~StringTable() override {
    UseBuiltInTexts();
    std::error_code ignored;
    fs::remove_all(m_folder, ignored);
  }

  [[nodiscard]] const fs::path& Folder() const { return m_folder; }
  [[nodiscard]] static fs::path Compiled(const char* language) {
    return fs::path(MQ_TRANSLATIONS_FOLDER) / (std::string(language) + ".mo");
  }

  fs::path WriteFile(std::string_view bytes) {
    const fs::path file = m_folder / "messages.mo";
    std::ofstream stream(file, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    EXPECT_TRUE(stream.good());
    return file;
  }
  TranslationReport LoadBytes(std::string_view bytes) { return LoadTranslations(WriteFile(bytes)); }

  static std::string ReadFile(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    EXPECT_TRUE(stream.good()) << file;
    return {std::istreambuf_iterator<char>(stream), {}};
  }

 private:
  fs::path m_folder;
};

TEST_F(StringTable, EveryIdHasAnEnglishText) {
  const std::vector<UINT> ids = Expand(kIds);
  ASSERT_EQ(ids.size(), kIdCount);
  for (const UINT id : ids) {
    CString text;
    EXPECT_EQ(mqpLoadString(text, id), 1) << "id " << id;
    EXPECT_FALSE(text.IsEmpty()) << "id " << id;
  }
}

TEST_F(StringTable, TheTableHoldsTheseIdsAloneAndInTheirOrder) {
  std::vector<UINT> ids = Expand(kIds);
  std::ranges::sort(ids);
  std::vector<UINT> held;
  for (const StringTableEntry& entry : BuiltInTexts()) {
    held.push_back(entry.id);
    EXPECT_EQ(Show(entry.text), Show(Load(entry.id))) << "id " << entry.id;
  }
  EXPECT_EQ(held, ids);
}

TEST_F(StringTable, EnglishTextsSayWhatTheComponentIs) {
  // clang-format off
  const std::pair<UINT, const mqChar*> rows[] = {
      // id      text                                        first and last of their groups
      { 50004, MQ_TEXT("Frequency") },
      { 54578, MQ_TEXT("DX: displacement along X") },
      { 54590, MQ_TEXT("MRMAG: reaction moment magnitude") },
      { 54600, MQ_TEXT("SEQ: equivalent stress") },
      { 50179, MQ_TEXT("EP3: third principal strain") },
      { 54617, MQ_TEXT("HFX: heat flux along X") },
      { 55268, MQ_TEXT("ARZ normalised rotation") },
      { 53946, MQ_TEXT("RMAG rotational part") },
      { 54783, MQ_TEXT("Displacement Y") },
      { 55123, MQ_TEXT("Frequency response, ") },
      { 56060, MQ_TEXT("Stress from principal stresses") },
      { 56061, MQ_TEXT("SPB: stress from the principal stresses") },
  };
  // clang-format on
  for (const auto& [id, text] : rows) {
    EXPECT_EQ(Show(Load(id)), Show(text)) << "id " << id;
  }
}

TEST_F(StringTable, AnUnknownIdEmptiesTheTextAndIsCounted) {
  for (const UINT id : kUnknownIds) {
    const int before = CountMissingIds();
    CString text(MQ_TEXT("left over"));
    EXPECT_EQ(mqpLoadString(text, id), 0) << "id " << id;
    EXPECT_TRUE(text.IsEmpty()) << "id " << id << " gave " << Show(text);
    EXPECT_EQ(CountMissingIds(), before + 1) << "id " << id;
  }
}

TEST_F(StringTable, AKnownIdReplacesTheTextAndIsNotCounted) {
  const int before = CountMissingIds();
  CString text(MQ_TEXT("left over"));
  EXPECT_EQ(mqpLoadString(text, 52941), 1);
  EXPECT_EQ(Show(text), "Displacement");
  EXPECT_EQ(CountMissingIds(), before);
}

TEST_F(StringTable, ThreadsThatMissIdsAreAllCounted) {
  const int before = CountMissingIds();
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 4; ++thread) {
    threads.emplace_back([] {
      CString text;
      for (int round = 0; round < 100000; ++round) {
        mqpLoadString(text, 54578);
        mqpLoadString(text, 50005);
      }
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
  EXPECT_EQ(CountMissingIds(), before + 400000);
}

TEST_F(StringTable, NoTwoEnglishTextsAreEqual) {
  std::map<std::string, UINT> seen;
  for (const auto& [id, text] : AllTexts()) {
    const auto [other, isNew] = seen.try_emplace(text, id);
    EXPECT_TRUE(isNew) << "ids " << other->second << " and " << id << ": " << text;
  }
}

/// The rules of full names, which each language has to keep; nullptr stands for English.
class FullNames : public StringTable, public testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override {
    if (GetParam() != nullptr) {
      const TranslationReport report = LoadTranslations(Compiled(GetParam()));
      ASSERT_EQ(report.error, "");
    }
  }

  /// What look-ups compare of a name: its first six units, cut at a colon and then at a blank.
  static CString Shorten(const CString& name) {
    CString key = name.Left(6);
    for (const mqChar cut : {mqChar{':'}, mqChar{' '}}) {
      if (const int position = key.Find(cut); position > 0) {
        key = key.Left(position);
      }
    }
    return key;
  }
};

TEST_P(FullNames, AreASymbolAColonABlankAndADescription) {
  for (const UINT id : Expand(kFullNames)) {
    const CString name = Load(id);
    const int colon = name.Find(mqChar{':'});
    EXPECT_TRUE(colon >= 2 && colon <= 6) << "id " << id << ": " << Show(name);
    const CString symbol = name.Left(colon);
    EXPECT_EQ(symbol.Find(mqChar{' '}), -1) << "id " << id << ": " << Show(name);
    EXPECT_EQ(Show(name.Mid(colon, 2)), ": ") << "id " << id << ": " << Show(name);
    EXPECT_GT(name.GetLength(), colon + 2) << "id " << id << ": " << Show(name);
    EXPECT_EQ(Show(CString(name).Trim()), Show(name)) << "id " << id;
    EXPECT_EQ(Show(Shorten(name)), Show(symbol)) << "id " << id;
  }
}

TEST_P(FullNames, AreFoundByTheirSymbolAlone) {
  const std::vector<UINT> ids = Expand(kFullNames);
  for (const UINT id : ids) {
    const CString symbol = Shorten(Load(id));
    for (const UINT other : ids) {
      if (other != id) {
        EXPECT_NE(Load(other).Find(symbol), 0)
            << "id " << other << " " << Show(Load(other)) << " begins with the symbol "
            << Show(symbol) << " of id " << id;
      }
    }
  }
}

TEST_P(FullNames, LieLikeAllTextsInAStringWithoutMemoryOfTheirOwn) {
  for (const UINT id : Expand(kIds)) {
    EXPECT_LE(Load(id).GetLength(), 43) << "id " << id << ": " << Show(Load(id));
  }
}

INSTANTIATE_TEST_SUITE_P(EachLanguage, FullNames, testing::Values(nullptr, "de", "en_XA"),
                         [](const auto& language) {
                           return language.param == nullptr ? "en" : language.param;
                         });

TEST_F(StringTable, GermanIsComplete) {
  const TranslationReport report = LoadTranslations(Compiled("de"));
  EXPECT_EQ(report.error, "");
  EXPECT_EQ(report.translated, 315);
  EXPECT_EQ(report.untranslated, 0);
  EXPECT_EQ(Show(Load(54578)), Show(MQ_TEXT("DX: Verschiebung in X")));
  EXPECT_EQ(Show(Load(54617)), Show(MQ_TEXT("HFX: W\u00E4rmestromdichte in X")));
  EXPECT_EQ(Show(Load(50004)), Show(MQ_TEXT("Frequenz")));
  EXPECT_EQ(Show(Load(55123)), Show(MQ_TEXT("Frequenzantwort, ")));
  EXPECT_EQ(Show(Load(56061)), Show(MQ_TEXT("SPB: Spannung aus den Hauptspannungen")));
}

TEST_F(StringTable, ThePseudoLocaleChangesEveryText) {
  const Texts english = AllTexts();
  const TranslationReport report = LoadTranslations(Compiled("en_XA"));
  EXPECT_EQ(report.error, "");
  EXPECT_EQ(report.translated, 315);
  EXPECT_EQ(report.untranslated, 0);
  for (const auto& [id, text] : AllTexts()) {
    EXPECT_NE(text, english.at(id)) << "id " << id;
    EXPECT_EQ(text.find("\\uFFFD"), std::string::npos) << "id " << id << ": " << text;
  }
}

TEST_F(StringTable, TranslatedTablesMissTheSameIds) {
  ASSERT_EQ(LoadTranslations(Compiled("de")).error, "");
  for (const UINT id : kUnknownIds) {
    CString text(MQ_TEXT("left over"));
    EXPECT_EQ(mqpLoadString(text, id), 0) << "id " << id;
    EXPECT_TRUE(text.IsEmpty()) << "id " << id;
  }
}

TEST_F(StringTable, BothByteOrdersAreRead) {
  for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
    const TranslationReport report =
        LoadBytes(MakeMo({{"", "Content-Type: text/plain; charset=UTF-8\n"},
                          {Key(52941, "Displacement"), "Forskydning"},
                          {Key(52980, "Stress"), "Sp\xC3\xA6nding"}},
                         order));
    EXPECT_EQ(report.error, "");
    EXPECT_EQ(report.translated, 2);
    EXPECT_EQ(report.untranslated, 313);
    EXPECT_EQ(Show(Load(52941)), "Forskydning");
    EXPECT_EQ(Show(Load(52980)), "Sp\\u00E6nding");
    EXPECT_EQ(Show(Load(53557)), "Strain");
    UseBuiltInTexts();
  }
}

TEST_F(StringTable, AMessageThatDoesNotFitLeavesTheEnglishText) {
  // clang-format off
  const std::pair<const char*, Message> rows[] = {
      { "empty",                 { Key(52941, "Displacement"),      "" } },
      { "other English text",    { Key(52941, "Displacements"),     "translated" } },
      { "shorter English text",  { Key(52941, "Displacemen"),       "translated" } },
      { "English text of 52980", { Key(52941, "Stress"),            "translated" } },
      { "no English text",       { Key(52941, ""),                  "translated" } },
      { "unknown id",            { Key(52942, "Displacement"),      "translated" } },
      { "id 0",                  { Key(0, "Displacement"),          "translated" } },
      { "id with a zero before", { "052941\x04" "Displacement",     "translated" } },
      { "id with a blank",       { " 52941\x04" "Displacement",     "translated" } },
      { "id with a letter",      { "52941a\x04" "Displacement",     "translated" } },
      { "id beyond 32 bits",     { "4295020237\x04" "Displacement", "translated" } },
      { "negative id",           { "-52941\x04" "Displacement",     "translated" } },
      { "empty context",         { "\x04" "Displacement",           "translated" } },
      { "no context",            { "Displacement",                  "translated" } },
      { "Latin-1",               { Key(52941, "Displacement"),      "gr\xF6\xDF" "er" } },
      { "UTF-8 cut short",       { Key(52941, "Displacement"),      "gr\xC3" } },
      { "surrogate",             { Key(52941, "Displacement"),      "\xED\xA0\x80" } },
  };
  // clang-format on
  for (const auto& [what, message] : rows) {
    const TranslationReport report = LoadBytes(MakeMo({message}));
    EXPECT_EQ(report.error, "") << what;
    EXPECT_EQ(report.translated, 0) << what;
    EXPECT_EQ(report.untranslated, 315) << what;
    EXPECT_EQ(Show(Load(52941)), "Displacement") << what;
  }
}

TEST_F(StringTable, AnotherTranslationTakesThePlaceOfTheFirst) {
  ASSERT_EQ(LoadTranslations(Compiled("de")).error, "");
  ReplaceText(54578, CString(MQ_TEXT("replaced")));
  ReplaceText(99, CString(MQ_TEXT("new")));
  ASSERT_EQ(LoadBytes(MakeMo({{Key(52941, "Displacement"), "Forskydning"}})).error, "");
  EXPECT_EQ(Show(Load(52941)), "Forskydning");
  EXPECT_EQ(Show(Load(52980)), "Stress");
  EXPECT_EQ(Show(Load(54578)), "DX: displacement along X");
  CString text;
  EXPECT_EQ(mqpLoadString(text, 99), 0);
}

/// Loads a damaged file over a table that shows any change.
class DamagedTranslations : public StringTable {
 protected:
  void SetUp() override {
    ASSERT_EQ(LoadTranslations(Compiled("de")).error, "");
    ReplaceText(50005, CString(MQ_TEXT("new")));
    m_before = AllTexts();
  }

  void ExpectNothingChanged(const std::string& what) const {
    EXPECT_EQ(AllTexts(), m_before) << what;
    EXPECT_EQ(Show(Load(50005)), "new") << what;
  }
  /// The quick look for loops; `ExpectNothingChanged` follows once behind them.
  static bool LooksUnchanged() {
    CString german;
    CString added;
    return mqpLoadString(german, 52941) == 1 && german == MQ_TEXT("Verschiebung") &&
           mqpLoadString(added, 50005) == 1 && added == MQ_TEXT("new");
  }

 private:
  Texts m_before;
};

TEST_F(DamagedTranslations, AFileCutAtAnyByteChangesNothing) {
  for (const ByteOrder order : {ByteOrder::Little, ByteOrder::Big}) {
    const std::string whole = MakeMo({{"", "Content-Type: text/plain; charset=UTF-8\n"},
                                      {Key(52941, "Displacement"), "A"},
                                      {Key(52980, "Stress"), "B"}},
                                     order);
    for (std::size_t kept = 0; kept < whole.size(); ++kept) {
      const TranslationReport report = LoadBytes(whole.substr(0, kept));
      ASSERT_NE(report.error, "") << "cut at byte " << kept << " of " << whole.size();
      ASSERT_EQ(report.translated, 0) << "cut at byte " << kept;
      ASSERT_EQ(report.untranslated, 0) << "cut at byte " << kept;
      ASSERT_TRUE(LooksUnchanged()) << "cut at byte " << kept;
    }
  }
  ExpectNothingChanged("cut at every byte");
}

TEST_F(DamagedTranslations, AnyBeginningOfARealFileChangesNothing) {
  const std::string whole = ReadFile(Compiled("en_XA"));
  ASSERT_GT(whole.size(), 10000U);
  // A step of 29 bytes meets every byte of the rows and, in turn, every part of the texts.
  for (std::size_t kept = whole.size() - 1; kept >= 29; kept -= 29) {
    ASSERT_NE(LoadBytes(whole.substr(0, kept)).error, "") << "cut at byte " << kept;
    ASSERT_TRUE(LooksUnchanged()) << "cut at byte " << kept;
  }
  ExpectNothingChanged("cut again and again");
}

TEST_F(DamagedTranslations, ChanceDamageIsRefusedOrLeavesEveryIdItsText) {
  const std::string good = ReadFile(Compiled("en_XA"));
  std::mt19937 chance(20260101);
  const auto draw = [&chance](std::size_t below) { return chance() % below; };
  int refused = 0;
  int read = 0;
  for (int round = 0; round < 1000; ++round) {
    std::string bytes = good;
    // Every other round aims at the header and the tables, where damage does most.
    const std::size_t reach = round % 2 == 0 ? bytes.size() : 28 + 16 * 316;
    for (std::size_t count = 1 + draw(8); count > 0; --count) {
      bytes[draw(reach)] = static_cast<char>(draw(256));
    }
    const TranslationReport report = LoadBytes(bytes);
    if (!report.error.empty()) {
      ++refused;
      ASSERT_TRUE(LooksUnchanged()) << "round " << round << ": " << report.error;
      continue;
    }
    ++read;
    ASSERT_EQ(report.translated + report.untranslated, 315) << "round " << round;
    ASSERT_GE(report.untranslated, 0) << "round " << round;
    for (const auto& [id, text] : AllTexts()) {
      ASSERT_FALSE(text.empty()) << "round " << round << ", id " << id;
    }
    UseBuiltInTexts();
    SetUp();
  }
  EXPECT_GT(refused, 100);
  EXPECT_GT(read, 100);
}

TEST_F(DamagedTranslations, TheErrorSaysWhatIsWrongAndWhere) {
  // Two messages: header 0, key table 28, text table 44, then from 60 the keys of 18 and 12 bytes
  // at 60 and 79, the texts of 1 byte at 92 and 94.
  const std::string good = MakeMo({{Key(52941, "Displacement"), "A"}, {Key(52980, "Stress"), "B"}});
  ASSERT_EQ(good.size(), 96U);
  struct Row {
    const char* what;
    std::size_t at;
    std::string bytes;
    const char* error;
  };
  // clang-format off
  const ByteOrder little = ByteOrder::Little;
  const Row rows[] = {
      // damage                      at  bytes                         error
      { "another mark",               0, "PK\3\4",                     "byte 0: not a compiled gettext file" },
      { "major revision 2",           4, Integer(0x20000, little),     "byte 4: revision 2 is not known" },
      { "7 messages",                 8, Integer(7, little),           "byte 16: a table of 7 messages from byte 44 does not fit into the file" },
      { "2^32-1 messages",            8, Integer(0xFFFFFFFF, little),  "byte 12: a table of 4294967295 messages from byte 28 does not fit into the file" },
      { "key table half outside",    12, Integer(81, little),          "byte 12: a table of 2 messages from byte 81 does not fit into the file" },
      { "key table far outside",     12, Integer(0xFFFFFFF8, little),  "byte 12: a table of 2 messages from byte 4294967288 does not fit into the file" },
      { "text table at the end",     16, Integer(96, little),          "byte 16: a table of 2 messages from byte 96 does not fit into the file" },
      { "key beyond the end",        28, Integer(37, little),          "byte 28: a text of 37 bytes from byte 60 does not fit into the file" },
      { "key without its zero",      28, Integer(17, little),          "byte 77: no zero behind a text" },
      { "key with the largest length", 36, Integer(0xFFFFFFFF, little), "byte 36: a text of 4294967295 bytes from byte 79 does not fit into the file" },
      { "key at the end",            40, Integer(96, little),          "byte 36: a text of 12 bytes from byte 96 does not fit into the file" },
      { "text outside",              48, Integer(0x80000000, little),  "byte 44: a text of 1 bytes from byte 2147483648 does not fit into the file" },
      { "text without its zero",     93, "x",                          "byte 93: no zero behind a text" },
      { "keys in the wrong order",   60, "9",                          "byte 36: the key of message 1 does not ascend" },
  };
  // clang-format on
  for (const Row& row : rows) {
    std::string bytes = good;
    bytes.replace(row.at, row.bytes.size(), row.bytes);
    const TranslationReport report = LoadBytes(bytes);
    const fs::path file = Folder() / "messages.mo";
    EXPECT_EQ(report.error, InUtf8(file) + ": " + row.error) << row.what;
    ExpectNothingChanged(row.what);
  }
  EXPECT_EQ(LoadBytes(good).translated, 2);
}

TEST_F(DamagedTranslations, AKeyThatComesTwiceIsRefused) {
  const Message message{Key(52941, "Displacement"), "A"};
  EXPECT_NE(LoadBytes(MakeMo({message, message})).error.find("does not ascend"), std::string::npos);
  ExpectNothingChanged("key twice");
}

TEST_F(DamagedTranslations, AnEmptyFileIsRefused) {
  const std::string error = LoadBytes("").error;
  EXPECT_NE(error.find("byte 0: the file ends inside its header of 28 bytes"), std::string::npos)
      << error;
  ExpectNothingChanged("empty file");
}

TEST_F(DamagedTranslations, AFileOfTextIsRefused) {
  const std::string error = LoadBytes("msgid \"Displacement\"\nmsgstr \"Verschiebung\"\n").error;
  EXPECT_NE(error.find("byte 0: not a compiled gettext file"), std::string::npos) << error;
  ExpectNothingChanged("text");
}

TEST_F(DamagedTranslations, AFileWithoutMessagesIsReadAndAllStaysEnglish) {
  const TranslationReport report = LoadBytes(MakeMo({}));
  EXPECT_EQ(report.error, "");
  EXPECT_EQ(report.translated, 0);
  EXPECT_EQ(report.untranslated, 315);
  EXPECT_EQ(Show(Load(52941)), "Displacement");
}

TEST_F(DamagedTranslations, AMissingFileIsNamedInUtf8) {
  const TranslationReport report = LoadTranslations(Folder() / u8"\u00FCber.mo");
  EXPECT_NE(report.error.find("\xC3\xBC"
                              "ber.mo: the file does not exist"),
            std::string::npos)
      << report.error;
  ExpectNothingChanged("missing file");
}

TEST_F(DamagedTranslations, AFolderIsRefused) {
  const TranslationReport report = LoadTranslations(Folder());
  EXPECT_EQ(report.error, InUtf8(Folder()) + ": this is a folder, not a file");
  ExpectNothingChanged("folder");
}

TEST_F(DamagedTranslations, AnEmptyPathIsRefused) {
  EXPECT_EQ(LoadTranslations({}).error, ": the file does not exist");
  ExpectNothingChanged("empty path");
}

TEST_F(DamagedTranslations, AFileFarTooLargeIsRefused) {
  const fs::path file = WriteFile(MakeMo({{Key(52941, "Displacement"), "A"}}));
  fs::resize_file(file, 16 * 1024 * 1024 + 1);
  EXPECT_EQ(LoadTranslations(file).error, InUtf8(file) + ": the file has more than 16777216 bytes");
  ExpectNothingChanged("large file");
  fs::resize_file(file, 16 * 1024 * 1024);
  EXPECT_EQ(LoadTranslations(file).translated, 1);
}

TEST_F(StringTable, AFileNamedInAnotherScriptIsRead) {
  const fs::path file = Folder() / u8"\u65E5\u672C\u8A9E.mo";
  fs::copy_file(Compiled("de"), file);
  EXPECT_EQ(LoadTranslations(file).translated, 315);
}

TEST_F(StringTable, AReplacedTextStandsUntilTheBuiltInTextsReturn) {
  // A known id, a hole between known ones, ids below, above and at the end of the numbers.
  for (const UINT id : {UINT{54578}, UINT{50005}, UINT{1}, UINT{56062}, UINT{0xFFFFFFFF}}) {
    ReplaceText(id, CString(MQ_TEXT("first")));
    ReplaceText(id, CString(MQ_TEXT("second, and longer")));
    EXPECT_EQ(Show(Load(id)), "second, and longer") << "id " << id;
  }
  EXPECT_EQ(Show(Load(54579)), "DY: displacement along Y");
  UseBuiltInTexts();
  EXPECT_EQ(Show(Load(54578)), "DX: displacement along X");
  for (const UINT id : kUnknownIds) {
    CString text(MQ_TEXT("left over"));
    EXPECT_EQ(mqpLoadString(text, id), 0) << "id " << id;
  }
}

TEST_F(StringTable, ATextReplacedByNothingIsKnownAndEmpty) {
  ReplaceText(54578, CString());
  ReplaceText(7, CString());
  const int before = CountMissingIds();
  EXPECT_TRUE(Load(54578).IsEmpty());
  EXPECT_TRUE(Load(7).IsEmpty());
  EXPECT_EQ(CountMissingIds(), before);
}

TEST_F(StringTable, AReplacedTextKeepsTheTranslationOfTheOthers) {
  ASSERT_EQ(LoadTranslations(Compiled("de")).error, "");
  ReplaceText(52941, CString(MQ_TEXT("Weg")));
  EXPECT_EQ(Show(Load(52941)), "Weg");
  EXPECT_EQ(Show(Load(52980)), "Spannung");
}

TEST_F(StringTable, TheBuiltInTextsReturnAfterATranslation) {
  const Texts english = AllTexts();
  ASSERT_EQ(LoadTranslations(Compiled("de")).error, "");
  EXPECT_NE(AllTexts(), english);
  UseBuiltInTexts();
  EXPECT_EQ(AllTexts(), english);
  UseBuiltInTexts();
  EXPECT_EQ(AllTexts(), english);
}

TEST(NarrowText, IsWidenedFromUtf8) {
  // clang-format off
  const std::pair<const char*, const char*> rows[] = {
      // bytes                            units
      { nullptr,                          "" },
      { "",                               "" },
      { "N/mm^2 (MPa)",                   "N/mm^2 (MPa)" },
      { "\x7F",                           "\\u007F" },
      { "\xC2\x80",                       "\\u0080" },
      { "\xC2\xB0" "F",                   "\\u00B0F" },
      { "\xDF\xBF",                       "\\u07FF" },
      { "\xE0\xA0\x80",                   "\\u0800" },
      { "\xE2\x82\xAC",                   "\\u20AC" },
      { "\xED\x9F\xBF\xEE\x80\x80",       "\\uD7FF\\uE000" },
      { "\xEF\xBF\xBF",                   "\\uFFFF" },
      { "\xF0\x90\x80\x80",               "\\uD800\\uDC00" },
      { "\xF0\x9F\x94\xA9",               "\\uD83D\\uDD29" },
      { "\xF4\x8F\xBF\xBF",               "\\uDBFF\\uDFFF" },
      // invalid: one U+FFFD a byte, and the reading goes on behind it
      { "a\x80" "b",                      "a\\uFFFDb" },
      { "\xB0" "F",                       "\\uFFFDF" },
      { "\xC3",                           "\\uFFFD" },
      { "\xC3" "A",                       "\\uFFFDA" },
      { "\xC0\xAF",                       "\\uFFFD\\uFFFD" },
      { "\xC1\xBF",                       "\\uFFFD\\uFFFD" },
      { "\xE2\x82",                       "\\uFFFD\\uFFFD" },
      { "\xE2\x82" "A",                   "\\uFFFD\\uFFFDA" },
      { "\xE0\x9F\xBF",                   "\\uFFFD\\uFFFD\\uFFFD" },
      { "\xED\xA0\x80",                   "\\uFFFD\\uFFFD\\uFFFD" },
      { "\xED\xBF\xBF",                   "\\uFFFD\\uFFFD\\uFFFD" },
      { "\xF0\x8F\xBF\xBF",               "\\uFFFD\\uFFFD\\uFFFD\\uFFFD" },
      { "\xF4\x90\x80\x80",               "\\uFFFD\\uFFFD\\uFFFD\\uFFFD" },
      { "\xF8\x88\x80\x80\x80",           "\\uFFFD\\uFFFD\\uFFFD\\uFFFD\\uFFFD" },
      { "\xFE\xFF",                       "\\uFFFD\\uFFFD" },
      { "\xF0\x9F\x94\xC2\xB0",           "\\uFFFD\\uFFFD\\uFFFD\\u00B0" },
  };
  // clang-format on
  for (const auto& [bytes, units] : rows) {
    CString wide(MQ_TEXT("left over"));
    CharToCString(bytes, wide);
    EXPECT_EQ(Show(wide), units) << "row of " << units;
  }
}

TEST(TextAsUnits, IsCopiedAsFarAsThereIsRoom) {
  struct Row {
    const mqChar* text;
    int capacity;
    int copied;
  };
  // clang-format off
  const Row rows[] = {
      // text                    capacity                              copied
      { MQ_TEXT(""),             4,                                    0 },
      { MQ_TEXT("abc"),          4,                                    3 },
      { MQ_TEXT("abcd"),         4,                                    4 },
      { MQ_TEXT("abcde"),        4,                                    4 },
      { MQ_TEXT("abcde"),        1,                                    1 },
      { MQ_TEXT("abcde"),        0,                                    0 },
      { MQ_TEXT("abcde"),       -1,                                    0 },
      { MQ_TEXT("abcde"),        std::numeric_limits<int>::min(),      0 },
      { MQ_TEXT("\u20AC\uFFFF"), 4,                                    2 },
  };
  // clang-format on
  for (const Row& row : rows) {
    const std::string what =
        "text " + Show(row.text) + ", capacity " + std::to_string(row.capacity);
    std::vector<unsigned short> units(6, 0xAAAA);
    EXPECT_EQ(STRING2LPUSHORT(CString(row.text), units.data(), row.capacity), row.copied) << what;
    for (std::size_t index = 0; index < units.size(); ++index) {
      const bool isCopied = index < static_cast<std::size_t>(row.copied);
      EXPECT_EQ(units[index], isCopied ? static_cast<unsigned>(row.text[index]) : 0xAAAAU)
          << what << ", unit " << index;
    }
  }
}

TEST(TextAsUnits, KeepsUnitsThatAreNoText) {
  // A zero in the middle and half a surrogate pair are units like any other.
  const mqChar text[] = {0x41, 0x0000, 0xD800, 0x42};
  unsigned short units[4] = {};
  EXPECT_EQ(STRING2LPUSHORT(CString(text, 4), units, 4), 4);
  EXPECT_EQ(units[0], 0x41);
  EXPECT_EQ(units[1], 0);
  EXPECT_EQ(units[2], 0xD800);
  EXPECT_EQ(units[3], 0x42);
}

TEST(TextAsUnits, NeedsAnArray) {
  EXPECT_EQ(STRING2LPUSHORT(CString(MQ_TEXT("abc")), nullptr, 3), 0);
}

}  // namespace
