#include "assembly_file.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <iterator>
#include <optional>
#include <system_error>
#include <utility>

#include "json_output.h"
#include "text.h"
#include "text_file.h"

namespace mqp::tool {
namespace {

enum class Kind { Number, Flag, Color, Text };

struct Key {
  std::string_view name;
  Kind kind;
  int CDspAsmComp::* number = nullptr;
  COGLColor CDspAsmComp::* color = nullptr;
  CString CDspAsmComp::* text = nullptr;
};

constexpr std::string_view kFirst = "first";
constexpr std::string_view kVisibleBase = "visIndexBase";

// clang-format off
constexpr auto kKeys = std::to_array<Key>({
    {"id",           Kind::Number, &CDspAsmComp::m_nCompID},
    {kFirst,         Kind::Number, &CDspAsmComp::m_nFirstElem},
    {"last",         Kind::Number, &CDspAsmComp::m_nLastElem},
    {"bodyId",       Kind::Number, &CDspAsmComp::m_nBodyID},
    {kVisibleBase,   Kind::Number, &CDspAsmComp::m_nVisIndexBase},
    {"hidden",       Kind::Flag,   &CDspAsmComp::m_bHidden},
    {"tempHidden",   Kind::Flag,   &CDspAsmComp::m_bTempHidden},
    {"color",        Kind::Color,  nullptr, &CDspAsmComp::m_Color},
    {"bottomColor",  Kind::Color,  nullptr, &CDspAsmComp::m_BottomColor},
    {"name",         Kind::Text,   nullptr, nullptr, &CDspAsmComp::m_strCompName},
    {"bodyName",     Kind::Text,   nullptr, nullptr, &CDspAsmComp::m_strBodyName},
});
// clang-format on

std::string_view DescribeKind(Kind kind) {
  switch (kind) {
    case Kind::Number: return "a whole number from -2147483648 to 2147483647";
    case Kind::Flag: return "true, false or a whole number of 32 bits";
    case Kind::Color: return "a colour such as \"#4477AA\"";
    case Kind::Text: break;
  }
  return "a text without zero characters";
}

std::optional<int> ReadNumber(const Json& json) {
  if (json.is_number_unsigned()) {  // only these may be larger than the signed ones
    const auto number = json.get<std::uint64_t>();
    return std::in_range<int>(number) ? std::optional(static_cast<int>(number)) : std::nullopt;
  }
  if (json.is_number_integer()) {
    const auto number = json.get<std::int64_t>();
    return std::in_range<int>(number) ? std::optional(static_cast<int>(number)) : std::nullopt;
  }
  return std::nullopt;
}

std::optional<int> ReadFlag(const Json& json) {
  return json.is_boolean() ? std::optional(json.get<bool>() ? 1 : 0) : ReadNumber(json);
}

std::optional<COGLColor> ReadColor(const Json& json) {
  constexpr std::size_t kLength = 7;
  const std::string text = json.is_string() ? json.get<std::string>() : std::string();
  unsigned long rgb = 0;
  const char* const end = text.data() + text.size();
  if (text.size() != kLength || text.front() != '#' ||
      std::from_chars(text.data() + 1, end, rgb, 16).ptr != end) {
    return std::nullopt;
  }
  COGLColor color;
  color = (rgb & 0xFFU) << 16 | (rgb & 0xFF00U) | rgb >> 16;
  return color;
}

std::optional<CString> ReadText(const Json& json) {
  const std::string text = json.is_string() ? json.get<std::string>() : std::string();
  const bool isText = json.is_string() && text.find('\0') == std::string::npos;
  return isText ? std::optional(Wide(text)) : std::nullopt;
}

/// \return whether there was a value
template <class Value>
bool Assign(const std::optional<Value>& value, Value& target) {
  target = value.value_or(target);
  return value.has_value();
}

/// \return false for a value of another kind
bool ReadValue(const Key& key, const Json& value, CDspAsmComp& component) {
  switch (key.kind) {
    case Kind::Number: return Assign(ReadNumber(value), component.*key.number);
    case Kind::Flag: return Assign(ReadFlag(value), component.*key.number);
    case Kind::Color: return Assign(ReadColor(value), component.*key.color);
    case Kind::Text: break;
  }
  return Assign(ReadText(value), component.*key.text);
}

class Reader {
 public:
  explicit Reader(const std::string& file) : m_path(file), m_file(Printable(file)) {}

  [[nodiscard]] CDspAsmCompList Read() const {
    const Json json = Parse(ReadTextFile(m_path));
    if (!json.is_object()) {
      Fail("the whole file", "an object {\"components\": [...]}", json);
    }
    const auto components = json.find("components");
    if (components == json.end()) {
      throw Problem(ExitCode::Damaged,
                    m_file + ": There is no \"components\". Write {\"components\": [...]}" +
                        " around the list." + AskWhether(Nearest("components", json)));
    }
    if (!components->is_array()) {
      Fail("components", "an array of objects", *components);
    }
    CDspAsmCompList list;
    for (std::size_t index = 0; index < components->size(); ++index) {
      list.Add(ReadComponent((*components)[index], "components[" + std::to_string(index) + "]"));
    }
    return list;
  }

 private:
  [[noreturn]] void Fail(const std::string& place, std::string_view expected,
                         const Json& found) const {
    constexpr int kShown = 40;
    const std::string text = found.dump(-1, ' ', false, Json::error_handler_t::replace);
    throw Problem(ExitCode::Damaged, m_file + " > " + place + ": " + std::string(expected) +
                                         " is expected, not " + Shorten(Printable(text), kShown) +
                                         ".");
  }

  static std::vector<std::string> Nearest(std::string_view wanted, const Json& object) {
    std::vector<std::string> keys;
    for (const auto& [key, value] : object.items()) {
      keys.push_back(Printable(key));
    }
    return FindNearest(wanted, keys);
  }

  [[nodiscard]] Json Parse(const std::string& text) const {
    try {
      return Json::parse(text, [this](int depth, Json::parse_event_t, const Json&) {
        RequireShallow(depth);
        return true;
      });
    } catch (const Json::parse_error& error) {
      FailAt(text, error.byte, error.what());
    } catch (const Json::exception& error) {
      throw Problem(ExitCode::Damaged, m_file + ": " + WithoutOrigin(error.what()) + ".");
    }
  }

  /// A value is shown and destroyed level by level, on a stack that ends.
  void RequireShallow(int depth) const {
    constexpr int kDeepest = 64;
    if (depth > kDeepest) {
      throw Problem(ExitCode::Damaged, m_file + ": The brackets are nested more than " +
                                           std::to_string(kDeepest) +
                                           " deep. A list of components needs two levels.");
    }
  }

  [[noreturn]] void FailAt(const std::string& text, std::size_t byte,
                           const std::string& what) const {
    const std::string_view before = std::string_view(text).substr(0, byte == 0 ? 0 : byte - 1);
    const auto line = std::ranges::count(before, '\n') + 1;
    const std::size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    throw Problem(ExitCode::Damaged, m_file + " > line " + std::to_string(line) + ", column " +
                                         std::to_string(column) +
                                         ": This is not JSON: " + WithoutOrigin(what) + ".");
  }

  /// The parser's text without its own number and place in front.
  static std::string WithoutOrigin(std::string what) {
    for (const std::string_view mark : {"] ", ": "}) {
      const std::size_t at = what.find(mark);
      what.erase(0, at == std::string::npos ? 0 : at + mark.size());
    }
    constexpr int kShown = 200;  // it quotes the file
    return Shorten(Printable(what), kShown);
  }

  [[nodiscard]] CDspAsmComp ReadComponent(const Json& json, const std::string& place) const {
    if (!json.is_object()) {
      Fail(place, "an object with the keys of a component", json);
    }
    CDspAsmComp component;
    for (const auto& [name, value] : json.items()) {
      const auto key = std::ranges::find(kKeys, name, &Key::name);
      if (key == kKeys.end()) {
        FailUnknown(place, name);
      }
      if (!ReadValue(*key, value, component)) {
        Fail(Join({place, name}, "."), DescribeKind(key->kind), value);
      }
    }
    if (json.contains(kFirst) && !json.contains(kVisibleBase)) {
      // As a host that makes a component for a range of elements gets it.
      component.m_nVisIndexBase =
          CDspAsmComp(component.m_nCompID, component.m_nFirstElem, component.m_nLastElem,
                      component.m_Color, component.m_bHidden)
              .m_nVisIndexBase;
    }
    return component;
  }

  [[noreturn]] void FailUnknown(const std::string& place, const std::string& name) const {
    std::vector<std::string> names;
    std::ranges::transform(kKeys, std::back_inserter(names),
                           [](const Key& key) { return std::string(key.name); });
    const std::vector<std::string> nearest = FindNearest(name, names);
    throw Problem(
        ExitCode::Damaged,
        m_file + " > " + place + ": There is no key " + Quoted(name) + "." +
            (nearest.empty() ? " Known are " + Join(names, ", ") + "." : AskWhether(nearest)));
  }

  std::string m_path;
  std::string m_file;  ///< as it is shown
};

}  // namespace

CDspAsmCompList ReadAssembly(const std::string& file) {
  return Reader(file).Read();
}

std::string ShowColor(const COGLColor& color) {
  constexpr float kFull = 255.0F;
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  const std::array parts = {color.Red(), color.Green(), color.Blue()};
  std::string text = "#";
  bool isExact = color.Alpha() == 1.0F;
  for (const float part : parts) {
    const float rounded = std::round(part * kFull);
    isExact = isExact && rounded >= 0 && rounded <= kFull && rounded / kFull == part;
    const unsigned byte = isExact ? static_cast<unsigned>(rounded) : 0;
    text += kDigits[byte >> 4];
    text += kDigits[byte & 0xF];
  }
  if (isExact) {
    return text;
  }
  return "(" + ShowNumber(parts[0]) + ", " + ShowNumber(parts[1]) + ", " + ShowNumber(parts[2]) +
         ", " + ShowNumber(color.Alpha()) + ")";
}

}  // namespace mqp::tool
