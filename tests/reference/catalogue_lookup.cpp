#include "catalogue.h"
#include "tally.h"
#include "texts.h"

namespace reference {

namespace {

bool HasVariant(const Question& q) {
  return q.option != 0;
}

/// Ids in the order tried, and the index that each gives.
struct Candidates {
  std::string_view ids;
  std::string_view indices;
};

// clang-format off
constexpr std::string_view kDisplacements = "54578 54579 54580 50341 54581 54582 54583 50345";
constexpr std::string_view kModes = "54578 54865 54579 54866 54580 54867 50341 54868";

Rules<Candidates>& Lists() {
  static Rules<Candidates> rules("names looked up", {
      { "1",         "1",    Always,     { kModes, "0 0 1 1 2 2 3 3" } },
      { "2",         "1",    Always,     { "54578 54865 54579 54866 54580 54867 50341 54868"
                                           " 54584 55269 54585 55270 54586 55271",
                                           "0 0 1 1 2 2 3 3 4 4 5 5 6 6" } },
      { "3",         "5",    Always,     { "54612-54619 50264 54555 54556", "0-10" } },
      { "7",         "",     Always,     { "54745 54746 54747 54749", "0-3" } },
      { "5 6",       "1",    Always,     { kDisplacements, "0-7" } },
      { "0 8",       "1",    Always,     { "54578 54579 54580 50341 54581 54582 54583 50345"
                                           " 54584-54590", "0-14" } },
      { "0",         "2",    HasVariant, { "54591-54601 55085 54602 54718 54494 54495", "0-15" } },
      { "0 5 6",     "2",    Always,     { "54591-54601 55085 54602 54718", "0-13" } },
      { "8",         "2",    Always,     { "54591-54601 55085 56061", "0-11 100" } },
      { "0 5 6 8",   "3 22", Always,     { "54603-54611 50177 50178 50179", "0-11" } },
      { "5 6 8",     "19",   Always,     { "54405-54411 54419", "0 1 2 4 5 6 3 7" } },
      { "8",         "20",   Always,     { "54412-54418 54419", "0 1 2 4 5 6 3 7" } },
      { "5 6",       "20",   Always,     { "54412-54418 54419", "0 1 2 0 1 2 3 7" } },
      { "0 5 6 8 10", "59",  Always,     { "52020 54009-54014", "0-6" } },
  });
  return rules;
}
// clang-format on

struct TypeCandidates {
  int resultType;
  std::string_view ids;
};

const std::vector<TypeCandidates> kTypes = {
    {1, "54578-54580 50341 54581-54583 50345 54584-54590"},
    {2, "54591-54601 55085 54602 54718"},
    {3, "54603-54611 50177 50178 50179"},
    {5, "54612-54619 50264"},
    {12, "54745 54746 54747 54749"},
    {19, "54763-54766 54405-54411"},
    {20, "54412-54418"},
};

Text Trimmed(Text text) {
  const auto isBlank = [](mqChar unit) { return unit == MQ_TEXT(' ') || unit == MQ_TEXT('\t'); };
  while (!text.empty() && isBlank(text.back())) {
    text.pop_back();
  }
  while (!text.empty() && isBlank(text.front())) {
    text.erase(0, 1);
  }
  return text;
}

bool BeginsWith(const Text& text, const Text& key) {
  return text.find(key) == 0;
}

void CutBefore(Text& key, mqChar unit, std::string_view branch) {
  const std::size_t place = key.find(unit);
  if (place != Text::npos && place > 0) {
    Hit(branch);
    key = key.substr(0, place);
  }
}

}  // namespace

Text ShortKey(const Text& text) {
  Text key = text.substr(0, 6);
  CutBefore(key, MQ_TEXT(':'), "key: cut at a colon");
  CutBefore(key, MQ_TEXT(' '), "key: cut at a blank");
  return key;
}

int ComponentByName(int analysis, int result, int variant, const Text& name, int exact) {
  if (name.empty()) {
    Hit("lookup: empty name");
    return -1;
  }
  const Candidates* list =
      Lists().Find({.analysis = analysis, .result = result, .option = variant});
  if (list == nullptr) {
    Hit("lookup: no list");
    return -1;
  }
  const Text key = exact != 0 ? Trimmed(name) : ShortKey(name);
  const Numbers ids = Parse(list->ids);
  const Numbers indices = Parse(list->indices);
  for (std::size_t place = 0; place < ids.size(); ++place) {
    if (BeginsWith(Load(ids[place]), key)) {
      Hit(key.empty()  ? "lookup: empty key"
          : place == 0 ? "lookup: first name"
                       : "lookup: later name");
      return indices[place];
    }
  }
  Hit("lookup: no name");
  return -1;
}

int ResultTypeByName(const Text& name) {
  const Text key = ShortKey(name);
  for (const TypeCandidates& candidates : kTypes) {
    for (const int id : Parse(candidates.ids)) {
      if (BeginsWith(Load(id), key)) {
        Hit("type: " + std::to_string(candidates.resultType));
        return candidates.resultType;
      }
    }
  }
  Hit("type: none");
  return 9999;
}

void ResetLookupTables() {
  Lists().Reset();
}

void CheckLookupTables() {
  Lists().Check();
}

}  // namespace reference
