#include <algorithm>
#include <ostream>

#include "assembly_file.h"
#include "command_line.h"
#include "json_output.h"
#include "table.h"
#include "text.h"
#include "verbs.h"

namespace mqp::tool {
namespace {

using Colors = CArray<COGLColor, COGLColor>;

constexpr int kNone = -1;

/// The component that an element falls in.
struct Holder {
  int element;
  int component = kNone;  ///< its index
  int visibleIndex = 0;
  int hidden = kNone;  ///< where no component shows the element: a hidden one that holds it
};

/// The first component that answers for an element. The list itself does not say which one does,
/// so each is asked in a list of its own.
std::optional<Holder> AskEach(const CDspAsmCompList& list, int element, bool isHiddenAsked) {
  for (int index = 0; index < list.GetSize(); ++index) {
    CDspAsmComp component = list.GetAt(index);
    component.m_bHidden = isHiddenAsked ? 0 : component.m_bHidden;
    CDspAsmCompList alone;
    alone.Add(component);
    int visible = 0;
    if (alone.GetVisPartIndex_1based(element, &visible) != 0) {
      return Holder{element, index, visible};
    }
  }
  return std::nullopt;
}

Holder FindHolder(const CDspAsmCompList& list, int element) {
  if (const std::optional<Holder> shown = AskEach(list, element, false)) {
    return *shown;
  }
  const std::optional<Holder> hidden = AskEach(list, element, true);
  Holder holder{element};
  holder.hidden = hidden ? hidden->component : kNone;
  return holder;
}

std::string NameComponent(const CDspAsmCompList& list, int index) {
  const std::string name = Utf8(list.GetAt(index).m_strCompName);
  return std::to_string(index) + (name.empty() ? "" : " " + Quoted(name));
}

std::string ShowHidden(const CDspAsmComp& component) {
  const std::string text = component.m_bHidden == 0 ? "no" : "yes";
  return component.m_bTempHidden == 1 ? text + ", temp" : text;
}

std::string ShowNames(const CDspAsmComp& component) {
  const std::string body = Utf8(component.m_strBodyName);
  return std::to_string(component.m_nBodyID) + (body.empty() ? "" : " " + Printable(body));
}

void PrintComponents(Session& session, const CDspAsmCompList& list) {
  Table table({{"index", Align::Right},
               {"id", Align::Right, 3},
               {"name", Align::Left, 0, 8},
               {"body", Align::Left, 4, 10},
               {"first", Align::Right},
               {"last", Align::Right},
               {"base", Align::Right, 1},
               {"available", Align::Left, 2},
               {"hidden", Align::Left, 0, 6},
               {"colour", Align::Left, 5, 10},
               {"bottom", Align::Left, 6, 10},
               {"value", Align::Right, 7}});
  for (int index = 0; index < list.GetSize(); ++index) {
    int value = 0;
    const CDspAsmComp component = list.GetAt(index, &value);
    table.Add({std::to_string(index), std::to_string(component.m_nCompID),
               Printable(Utf8(component.m_strCompName)), ShowNames(component),
               std::to_string(component.m_nFirstElem), std::to_string(component.m_nLastElem),
               std::to_string(component.m_nVisIndexBase),
               component.PostAvailable() != 0 ? "yes" : "no", ShowHidden(component),
               ShowColor(component.m_Color), ShowColor(component.m_BottomColor),
               std::to_string(value)});
  }
  table.Print(session);
}

std::vector<std::string> ShowColors(const Colors& colors) {
  std::vector<std::string> texts;
  for (int index = 0; index < colors.GetSize(); ++index) {
    texts.push_back(ShowColor(colors[index]));
  }
  return texts;
}

void PrintSummary(Session& session, const CDspAsmCompList& list) {
  Colors colors;
  Colors bottomColors;
  list.MakeColorList(&colors, &bottomColors);
  const auto show = [](const Colors& some) {
    return some.IsEmpty() ? std::string("-") : Join(ShowColors(some), ", ");
  };
  PrintFacts(session, {{"Components", std::to_string(list.GetSize())},
                       {"No end at element 0", std::to_string(list.GetPostAvailableCompCount())},
                       {"All hidden", list.AllHidden() != 0 ? "yes" : "no"},
                       {"Colours", show(colors)},
                       {"Bottom colours", show(bottomColors)}});
}

void PrintHolders(Session& session, const CDspAsmCompList& list,
                  const std::vector<Holder>& holders) {
  std::vector<Fact> facts;
  for (const Holder& holder : holders) {
    std::string text = "no component";
    if (holder.component != kNone) {
      text = "component " + NameComponent(list, holder.component) + ", visible index " +
             std::to_string(holder.visibleIndex);
    } else if (holder.hidden != kNone) {
      text += " shows it; " + NameComponent(list, holder.hidden) + " is hidden";
    }
    facts.emplace_back("Element " + std::to_string(holder.element), text);
  }
  PrintFacts(session, facts);
}

Json ComponentToJson(const CDspAsmCompList& list, int index) {
  int value = 0;
  const CDspAsmComp component = list.GetAt(index, &value);
  return {{"index", index},
          {"id", component.m_nCompID},
          {"name", Utf8(component.m_strCompName)},
          {"bodyId", component.m_nBodyID},
          {"bodyName", Utf8(component.m_strBodyName)},
          {"first", component.m_nFirstElem},
          {"last", component.m_nLastElem},
          {"visIndexBase", component.m_nVisIndexBase},
          {"available", component.PostAvailable() != 0},
          {"hidden", component.m_bHidden},
          {"tempHidden", component.m_bTempHidden},
          {"color", ShowColor(component.m_Color)},
          {"bottomColor", ShowColor(component.m_BottomColor)},
          {"value", value}};
}

Json AssemblyToJson(const std::string& file, const CDspAsmCompList& list,
                    const std::vector<Holder>& holders) {
  Colors colors;
  Colors bottomColors;
  list.MakeColorList(&colors, &bottomColors);
  const auto orNull = [](int index) { return index == kNone ? Json() : Json(index); };
  Json json = NewJson();
  json["file"] = file;
  json["components"] = Json::array();
  for (int index = 0; index < list.GetSize(); ++index) {
    json["components"].push_back(ComponentToJson(list, index));
  }
  json["noEndAtElement0"] = list.GetPostAvailableCompCount();
  json["allHidden"] = list.AllHidden() != 0;
  json["colors"] = ShowColors(colors);
  json["bottomColors"] = ShowColors(bottomColors);
  json["elements"] = Json::array();
  for (const Holder& holder : holders) {
    const bool isShown = holder.component != kNone;
    json["elements"].push_back({{"element", holder.element},
                                {"component", orNull(holder.component)},
                                {"visibleIndex", isShown ? Json(holder.visibleIndex) : Json()},
                                {"hiddenComponent", orNull(holder.hidden)}});
  }
  return json;
}

/// Whether the library orders by the last element in ascending order; empty for as in the file.
std::optional<bool> ParseOrder(const std::optional<std::string>& word) {
  if (word && *word != "asc" && *word != "desc") {
    throw Problem(ExitCode::Usage, "--sort takes asc or desc, not " + Quoted(*word) + ".");
  }
  return word ? std::optional(*word == "asc") : std::nullopt;
}

std::vector<int> ParseElements(const std::vector<std::string>& words) {
  std::vector<int> elements;
  for (const std::string& word : words) {
    const std::optional<int> element = ParseInteger(word);
    if (!element) {
      throw Problem(ExitCode::Usage,
                    "--element takes a whole number of 32 bits, not " + Quoted(word) + ".");
    }
    elements.push_back(*element);
  }
  return elements;
}

/// \return false for a name that no component has, which hides nothing
bool HideAllBut(Session& session, CDspAsmCompList& list, const std::string& name) {
  if (list.IsComponentExistByName(Wide(name)) != 0) {
    list.HideAllExceptOneComponent(Wide(name));
    return true;
  }
  std::vector<std::string> names;
  for (int index = 0; index < list.GetSize(); ++index) {
    names.push_back(Printable(Utf8(list.GetAt(index).m_strCompName)));
  }
  std::ranges::sort(names);
  names.erase(std::ranges::unique(names).begin(), names.end());
  session.err << "mqpost: No component is called " << Quoted(name) << ", nothing was hidden."
              << AskWhether(FindNearest(name, names)) << '\n';
  return false;
}

void ComplainAboutMissing(Session& session, const std::vector<Holder>& holders) {
  for (const Holder& holder : holders) {
    if (holder.component == kNone) {
      session.err << "mqpost: No component shows element " << holder.element << ".\n";
    }
  }
}

}  // namespace

ExitCode RunComponents(Session& session) {
  std::string file;
  std::optional<std::string> order;
  std::vector<std::string> words;
  std::optional<std::string> name;
  bool isJson = false;
  CommandLine line(
      session, "components",
      "The display list of an assembly from {\"components\": [...]}. Every key of a\n"
      "component is optional:\n"
      "  id, first, last, bodyId   whole numbers; first and last are element numbers\n"
      "  visIndexBase              visible index of the first element; otherwise first + 1\n"
      "  hidden, tempHidden        true, false or a whole number\n"
      "  color, bottomColor        as in \"#4477AA\"\n"
      "  name, bodyName            texts\n"
      "Components are hidden first, then sorted. Exit code 1 when no component has the\n"
      "name or shows an element.",
      "mqpost components examples/assembly.json --sort desc --element 1500");
  line.Positional("FILE.json", file, "the components");
  line.Text("--sort", order, "by the last element: asc or desc", "ORDER");
  line.Texts("--element", words, "an element's component and visible index; as often as you like",
             "N");
  line.Text("--hide-all-but", name, "show the components of this name alone", "NAME");
  line.Flag("--json", isJson, "for programs");
  if (!line.Parse()) {
    return ExitCode::Fine;
  }
  const std::optional<bool> isAscending = ParseOrder(order);
  const std::vector<int> elements = ParseElements(words);
  CDspAsmCompList list = ReadAssembly(file);
  bool isFound = !name || HideAllBut(session, list, *name);
  if (isAscending) {
    list.SortByElemID(*isAscending ? 1 : 0);
  }
  std::vector<Holder> holders;
  for (const int element : elements) {
    holders.push_back(FindHolder(list, element));
    isFound = isFound && holders.back().component != kNone;
  }
  if (isJson) {
    Print(session, AssemblyToJson(file, list, holders));
  } else {
    PrintComponents(session, list);
    session.out << '\n';
    PrintSummary(session, list);
    PrintHolders(session, list, holders);
  }
  ComplainAboutMissing(session, holders);
  return isFound ? ExitCode::Fine : ExitCode::Finding;
}

}  // namespace mqp::tool
