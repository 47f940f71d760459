// Display texts by value, into a text that is there already, and back to an index. The texts are
// the German ones for every variant.

#include <algorithm>
#include <clocale>
#include <cstddef>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <string_view>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

#include <libintl.h>
#include <unicode/ures.h>

#include <mqCommFuncs/string_table.h>
#include <mqPostCommon/mqPostCommon.h>

#include "family.h"

namespace mqp::bench {
namespace {

// -------------------------------------------------------------------------------------------------
// What is asked

struct NamedComponent {
  int analysisType;
  int resultType;
  int component;
};

template <class Question>
std::vector<Question> DrawFrom(const std::vector<Question>& all) {
  std::mt19937 random(20260101);
  std::uniform_int_distribution<std::size_t> any(0, all.size() - 1);
  std::vector<Question> drawn(kDrawn);
  for (Question& question : drawn) {
    question = all[any(random)];
  }
  return drawn;
}

/// The components that `name` has a text for.
template <class Name>
std::vector<NamedComponent> DrawNamed(Name name) {
  std::vector<NamedComponent> all;
  for (const auto& study : kAnalysisTypeNames) {
    for (const auto& result : kResultTypeNames) {
      for (int component = 0; component < 16; ++component) {
        const NamedComponent asked{Code(study.code), Code(result.code), component};
        if (!name(asked).IsEmpty()) {
          all.push_back(asked);
        }
      }
    }
  }
  return DrawFrom(all);
}

struct UnitPlace {
  int unitType;
  int index;
};

std::vector<UnitPlace> DrawUnits() {
  std::vector<UnitPlace> all;
  for (int type = 0; type < 64; ++type) {
    for (int index = 0; index < 16; ++index) {
      if (!vekPostCommonGetUnitName(type, index).IsEmpty()) {
        all.push_back({type, index});
      }
    }
  }
  return DrawFrom(all);
}

/// The ids of all texts, and an id for each text.
struct Texts {
  std::vector<UINT> ids;
  std::map<std::u16string, UINT> idOf;
};

const Texts& AllTexts() {
  static const Texts texts = [] {
    Texts all;
    for (const auto& entry : host::BuiltInTexts()) {
      CString text;
      mqpLoadString(text, entry.id);
      all.ids.push_back(entry.id);
      all.idOf.emplace(text.View(), entry.id);
    }
    return all;
  }();
  return texts;
}

// -------------------------------------------------------------------------------------------------
// Peers

/// Texts by a small number, as views into one run: what a copy into a standard string costs at
/// least.
class DenseTable {
 public:
  std::size_t Add(const std::u16string& text) {
    m_places.push_back({m_units.size(), text.size()});
    m_units += text;
    return m_places.size() - 1;
  }
  [[nodiscard]] std::u16string Copy(std::size_t number) const {
    const Place place = m_places[number];
    return {m_units.data() + place.offset, place.length};
  }

 private:
  struct Place {
    std::size_t offset;
    std::size_t length;
  };
  std::vector<Place> m_places;
  std::u16string m_units;
};

/// The messages of gettext by their ids; the texts are UTF-8.
class Gettext {
 public:
  Gettext() {
    setenv("LANGUAGE", "de", 1);
    std::setlocale(LC_ALL, "C.UTF-8");
    bindtextdomain(kDomain, MQ_BENCH_CATALOGUES);
    bind_textdomain_codeset(kDomain, "UTF-8");
    for (const auto& entry : host::BuiltInTexts()) {
      std::string key = std::to_string(entry.id) + '\x04';
      for (const char16_t unit : entry.text) {
        key += static_cast<char>(unit);  // built-in texts are ASCII
      }
      m_keys.emplace(entry.id, key);
    }
  }
  [[nodiscard]] const std::string& KeyOf(UINT id) const { return m_keys.at(id); }
  [[nodiscard]] static std::string Find(const std::string& key) {
    return dgettext(kDomain, key.c_str());
  }

 private:
  static constexpr const char* kDomain = "mqCommFuncs";
  std::unordered_map<UINT, std::string> m_keys;
};

class ResourceBundle {
 public:
  ResourceBundle() {
    UErrorCode status = U_ZERO_ERROR;
    m_bundle = ures_openDirect(MQ_BENCH_BUNDLES, "de", &status);
    RequireSame(U_SUCCESS(status), "resource bundle");
  }
  ResourceBundle(const ResourceBundle&) = delete;
  ResourceBundle& operator=(const ResourceBundle&) = delete;
  ~ResourceBundle() { ures_close(m_bundle); }

  [[nodiscard]] std::u16string Find(const std::string& key) const {
    UErrorCode status = U_ZERO_ERROR;
    int32_t length = 0;
    const UChar* text = ures_getStringByKey(m_bundle, key.c_str(), &length, &status);
    return {text, static_cast<std::size_t>(length)};
  }

 private:
  UResourceBundle* m_bundle;
};

// -------------------------------------------------------------------------------------------------
// Texts

std::u16string Wide(const CString& text) {
  return std::u16string(text.View());
}
std::u16string Wide(const std::u16string& text) {
  return text;
}
std::u16string Wide(const std::string& utf8) {
  CString wide;
  CharToCString(utf8.c_str(), wide);
  return Wide(wide);
}

/// An operation that answers with texts. Each variant is asked in its own way, and must answer as
/// ours did.
class TextOperation {
 public:
  template <class Question, class Ours>
  TextOperation(std::string name, const std::vector<Question>& asked, Ours ours)
      : m_name(std::move(name)) {
    for (const Question& question : asked) {
      m_answers.push_back(Wide(ours(question)));
    }
    Ask(kOurs, asked, ours);
    DenseTable table;
    std::map<std::u16string, std::size_t> numbers;
    for (const std::u16string& answer : m_answers) {
      if (!numbers.contains(answer)) {
        numbers.emplace(answer, table.Add(answer));
      }
    }
    Ask(kLimit, Map([&](const std::u16string& answer) { return numbers.at(answer); }),
        [table](std::size_t number) { return table.Copy(number); });
  }

  /// What a variant is asked with for each answer.
  template <class Make>
  auto Map(Make make) const {
    std::vector<std::decay_t<decltype(make(m_answers.front()))>> asked;
    for (const std::u16string& answer : m_answers) {
      asked.push_back(make(answer));
    }
    return asked;
  }

  template <class Question, class Call>
  void Ask(const std::string& variant, const std::vector<Question>& asked, Call call) const {
    for (std::size_t place = 0; place < asked.size(); ++place) {
      RequireSame(Wide(call(asked[place])) == m_answers[place], m_name + " of " + variant);
    }
    Add(m_name, variant, [asked, call](std::size_t place) mutable { Keep(call(asked[place])); });
  }

 private:
  std::string m_name;
  std::vector<std::u16string> m_answers;
};

UINT IdOf(const std::u16string& text) {
  return AllTexts().idOf.at(text);
}

/// The peers that know a text by its id.
void AskPeers(const TextOperation& operation) {
  std::unordered_map<UINT, std::u16string> texts;
  for (const auto& [text, id] : AllTexts().idOf) {
    texts.emplace(id, text);
  }
  operation.Ask("unordered_map", operation.Map(IdOf),
                [texts](UINT id) { return texts.find(id)->second; });
  const Gettext gettext;
  operation.Ask("gettext",
                operation.Map([&](const auto& text) { return gettext.KeyOf(IdOf(text)); }),
                Gettext::Find);
  const auto bundle = std::make_shared<const ResourceBundle>();
  operation.Ask("ICU", operation.Map([](const auto& text) { return std::to_string(IdOf(text)); }),
                [bundle](const std::string& key) { return bundle->Find(key); });
}

void RegisterTexts() {
  const auto name = [](const NamedComponent& asked) {
    return vekPostCommonGetComponentName(asked.analysisType, asked.resultType, 0, asked.component,
                                         0, 0);
  };
  const TextOperation names("component name by value", DrawNamed(name), name);
  AskPeers(names);
  // The buffer is a copy in each variant that is registered.
  const TextOperation loaded("text of an id into the same buffer", names.Map(IdOf),
                             [buffer = CString()](UINT id) mutable -> const CString& {
                               mqpLoadString(buffer, id);
                               return buffer;
                             });
  const auto barName = [](const NamedComponent& asked) {
    return vekPostCommonGetComponentNameBar(asked.analysisType, asked.resultType, 0,
                                            asked.component, 0, 0);
  };
  TextOperation("colour-bar name by value", DrawNamed(barName), barName);
  TextOperation("unit name by value", DrawUnits(), [](const UnitPlace& asked) {
    return vekPostCommonGetUnitName(asked.unitType, asked.index);
  });
}

// -------------------------------------------------------------------------------------------------
// Back to an index

constexpr const char* kLookUp = "name to component, candidates tried";
constexpr int kStudy = 0;
constexpr int kResult = 2;

CString NameOf(int component) {
  return vekPostCommonGetComponentName(kStudy, kResult, 0, component, 0, 0);
}

/// The names in order, and the longest part of a label by which one is found.
int FindPrefix(const std::map<std::u16string, int, std::less<>>& names, std::u16string_view label) {
  const std::u16string_view key =
      label.substr(0, std::min(label.find_first_of(u": ", 1), std::size_t{6}));
  const auto found = names.lower_bound(key);
  return found != names.end() && found->first.starts_with(key) ? found->second : -1;
}

/// `size` candidates are tried, the last of them with success.
void RegisterLookUp(int size) {
  const CString label = NameOf(size - 1);
  const auto make = [label](int) { return label; };
  std::vector<UINT> ids;
  std::map<std::u16string, int, std::less<>> names;
  for (int component = 0; component < size; ++component) {
    ids.push_back(IdOf(Wide(NameOf(component))));
    names.emplace(Wide(NameOf(component)), component);
  }
  const auto ours = [](const CString& name, std::size_t) {
    return vekPostCommonGetComponentIndexByName(kStudy, kResult, 0, name, 0);
  };
  const auto byValue = [size](const CString& name, std::size_t) {
    for (int component = 0; component < size; ++component) {
      if (NameOf(component) == name) {
        return component;
      }
    }
    return -1;
  };
  const auto sorted = [names](const CString& name, std::size_t) {
    return FindPrefix(names, name.View());
  };
  RequireSame(ours(label, 0) == size - 1, kLookUp);
  RequireSame(byValue(label, 0) == size - 1, kLookUp);
  RequireSame(sorted(label, 0) == size - 1, kLookUp);
  AddGrowing(kLookUp, kOurs, size, make,
             [ours](const CString& name, std::size_t place) { Keep(ours(name, place)); });
  AddGrowing(kLookUp, "loaded by value", size, make,
             [byValue](const CString& name, std::size_t place) { Keep(byValue(name, place)); });
  AddGrowing(kLookUp, "sorted map", size, make,
             [sorted](const CString& name, std::size_t place) { Keep(sorted(name, place)); });
  AddGrowing(
      kLookUp, kLimit, size, [](int) { return CString(); },
      [ids](CString& buffer, std::size_t) {
        for (const UINT id : ids) {
          Keep(mqpLoadString(buffer, id));
        }
      });
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  using namespace mqp::bench;
  RequireSame(mqp::host::LoadTranslations(MQ_BENCH_TRANSLATION).error.empty(), "translation");
  RegisterTexts();
  for (const int size : {1, 5, 10}) {
    RegisterLookUp(size);
  }
  return RunFamily(argc, argv);
}
