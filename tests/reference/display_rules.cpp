#include "display_rules.h"

#include <algorithm>

#include "material_rules.h"
#include "tally.h"

namespace reference {

namespace {

bool IsNamed(const Fields& component, std::string_view which, const Text& name) {
  return TextAt(component, which) == name;
}

/// Sums as 32-bit numbers have them: beyond the last begins the first again.
int Wrapped(std::int64_t sum) {
  return static_cast<int>(static_cast<std::uint32_t>(sum));
}

Color Grey(float shade) {
  return {ValueOf(shade), ValueOf(shade), ValueOf(shade), ValueOf(1.0F)};
}

}  // namespace

Fields DefaultComponent() {
  Fields component;
  Put(component, "comp id", {0});
  Put(component, "first", {-1});
  Put(component, "last", {-1});
  SetColor(component, "colour", Grey(1.0F));
  SetColor(component, "bottom colour", Grey(0.5F));
  Put(component, "hidden", {0});
  PutEmpty(component, "comp name");
  PutEmpty(component, "body name");
  Put(component, "body id", {0});
  Put(component, "index base", {1});
  Put(component, "row 11", {0, 0, 0, 0, 0, 0, 0, 0});
  Put(component, "row 11 doubles", {0.0, 0.0, 0.0, 0.0});
  Put(component, "owns", {0});
  Put(component, "row 14", {-1.0});
  PutEmpty(component, "extra");
  Put(component, "row 16", {0, 0, 0, 0});
  Put(component, "row 16 pointers", {0, 0, 0, 0, 0, 0});
  for (const std::string_view arrays : {"row 17", "row 18"}) {
    component[{arrays, 0}] = ValueOf(0);
    component[{arrays, 1000}] = ValueOf(0);
    component[{arrays, 2000}] = ValueOf(0);
  }
  for (int place = 0; place < 27; ++place) {
    component[{"row 19", place}] = ValueOf(0);
  }
  Put(component, "row 20 pointers", {0, 0});
  Put(component, "row 20", {0, 0, 1, 0, 0});
  Put(component, "row 20 doubles", {0.0, 0.0});
  Put(component, "owns too", {0});
  Put(component, "row 22", {0, 0, 0, 0});
  Put(component, "row 23", {0});
  Put(component, "row 24", {0});
  Put(component, "hidden for now", {0});
  Put(component, "row 27", {0});
  Put(component, "flips", {0});
  return component;
}

Fields RangeComponent(int id, int first, int last, const Color& color, const Color& bottom,
                      int hidden) {
  Fields component = DefaultComponent();
  Put(component, "comp id", {id});
  Put(component, "first", {first});
  Put(component, "last", {last});
  SetColor(component, "colour", color);
  SetColor(component, "bottom colour", bottom);
  Put(component, "hidden", {hidden});
  Put(component, "index base", {Wrapped(std::int64_t{first} + 1)});
  return component;
}

Color ColorAt(const Fields& component, std::string_view name) {
  Color color;
  for (int place = 0; place < 4; ++place) {
    color.push_back(component.at({name, place}));
  }
  return color;
}

void SetColor(Fields& component, std::string_view name, const Color& color) {
  for (int place = 0; place < 4; ++place) {
    component[{name, place}] = color[static_cast<std::size_t>(place)];
  }
}

int IsEqual(const Fields& one, const Fields& other) {
  for (const std::string_view name : {"comp id", "first", "last", "hidden", "body id"}) {
    if (IntAt(one, name) != IntAt(other, name)) {
      Hit("equal: no");
      return 0;
    }
  }
  Hit(one == other ? "equal: in all" : "equal: in what counts");
  return 1;
}

int HasRange(const Fields& component) {
  const int first = IntAt(component, "first");
  const int last = IntAt(component, "last");
  const bool hasRange = first >= 0 && last >= 0 && last >= first;
  Hit(hasRange ? "range: yes" : "range: no");
  return hasRange ? 1 : 0;
}

void Flip(Fields& component) {
  const Color color = ColorAt(component, "colour");
  SetColor(component, "colour", ColorAt(component, "bottom colour"));
  SetColor(component, "bottom colour", color);
}

int IsEqual(const Entries& one, const Entries& other) {
  if (one.size() != other.size()) {
    Hit("lists: other size");
    return 0;
  }
  for (std::size_t index = 0; index < one.size(); ++index) {
    if (IsEqual(one[index].component, other[index].component) == 0) {
      Hit("lists: unequal");
      return 0;
    }
  }
  Hit(one.empty() ? "lists: both empty" : "lists: equal");
  return 1;
}

void Append(Entries& entries, const Fields& component) {
  entries.push_back({component, static_cast<int>(entries.size()) + 1});
}

int AllHidden(const Entries& entries) {
  for (const Entry& entry : entries) {
    if (IntAt(entry.component, "hidden") == 0) {
      Hit("hidden: not all");
      return 0;
    }
  }
  Hit(entries.empty() ? "hidden: none there" : "hidden: all");
  return 1;
}

namespace {

bool CountsAsResult(const Fields& component) {
  return IntAt(component, "first") != 0 && IntAt(component, "last") != 0;
}

}  // namespace

int CountWithResults(const Entries& entries) {
  int count = 0;
  for (const Entry& entry : entries) {
    const bool counts = CountsAsResult(entry.component);
    Hit(counts ? "results: counted" : "results: begins or ends at 0");
    count += counts ? 1 : 0;
  }
  return count;
}

int IsPartMissing(const Entries& entries, const Entries& other) {
  for (const Entry& entry : other) {
    if (CountsAsResult(entry.component) &&
        Exists(entries, TextAt(entry.component, "comp name")) == 0) {
      Hit("missing: yes");
      return 1;
    }
  }
  Hit(other.empty() ? "missing: nothing asked" : "missing: no");
  return 0;
}

std::optional<int> VisibleIndex(const Entries& entries, int element) {
  std::optional<int> index;
  for (const Entry& entry : entries) {
    const int first = IntAt(entry.component, "first");
    const bool contains = first <= element && element <= IntAt(entry.component, "last");
    if (!contains || HasRange(entry.component) == 0) {
      continue;
    }
    if (IntAt(entry.component, "hidden") != 0) {
      Hit("visible: hidden");
      continue;
    }
    if (index.has_value()) {
      Hit("visible: the first of some");
      return index;
    }
    index = Wrapped(std::int64_t{IntAt(entry.component, "index base")} - first + element);
  }
  Hit(index.has_value() ? "visible: the only one" : "visible: no");
  return index;
}

int ActiveIndex(const Entries& entries, int index, int base) {
  if (index < 0 || index >= static_cast<int>(entries.size())) {
    Hit("active: outside");
    return 1;
  }
  Hit(index == 0 ? "active: first" : "active: later");
  std::int64_t sum = base;
  for (int before = 0; before < index; ++before) {
    const Fields& component = entries[static_cast<std::size_t>(before)].component;
    sum += std::int64_t{IntAt(component, "last")} - IntAt(component, "first") + 1;
  }
  return Wrapped(sum);
}

int FindBody(const Entries& entries, long body) {
  for (std::size_t index = 0; index < entries.size(); ++index) {
    if (IntAt(entries[index].component, "body id") == body) {
      Hit("body id: found");
      return static_cast<int>(index);
    }
  }
  Hit("body id: unknown");
  return -1;
}

std::vector<int> PartsNamed(const Entries& entries, const Text& name) {
  std::vector<int> indices;
  for (std::size_t index = 0; index < entries.size(); ++index) {
    if (IsSameName(TextAt(entries[index].component, "comp name"), name)) {
      const bool isExact = IsNamed(entries[index].component, "comp name", name);
      Hit(isExact ? "part: same name" : "part: other case");
      indices.push_back(static_cast<int>(index));
    }
  }
  return indices;
}

Entries OnesNamed(const Entries& entries, std::string_view which, const Text& name) {
  Entries found;
  for (const Entry& entry : entries) {
    if (IsNamed(entry.component, which, name)) {
      Append(found, entry.component);
    }
  }
  Hit(found.empty() ? "named: none" : found.size() == 1 ? "named: one" : "named: some");
  return found;
}

int Exists(const Entries& entries, const Text& name) {
  for (const Entry& entry : entries) {
    if (IsNamed(entry.component, "comp name", name)) {
      return 1;
    }
  }
  return 0;
}

int Rename(Entries& entries, const Text& from, const Text& to) {
  const std::vector<int> indices = PartsNamed(entries, from);
  if (indices.empty()) {
    Hit("rename: none");
    return 0;
  }
  Hit(indices.size() > 1 ? "rename: the first of some" : "rename: the only one");
  entries[static_cast<std::size_t>(indices[0])].component[{"comp name", 0}] = ValueOf(to);
  return 1;
}

void HideAllBut(Entries& entries, const Text& name) {
  if (Exists(entries, name) == 0) {
    Hit("hide: name unknown");
    return;
  }
  for (Entry& entry : entries) {
    const bool isShown = IsNamed(entry.component, "comp name", name);
    Hit(isShown ? "hide: shown" : "hide: hidden");
    Put(entry.component, "hidden", {isShown ? 0 : 1});
  }
}

void Unhide(Entries& entries) {
  for (Entry& entry : entries) {
    if (IntAt(entry.component, "hidden for now") == 1) {
      Hit("unhide: shown again");
      Put(entry.component, "hidden", {0});
      Put(entry.component, "hidden for now", {0});
    } else {
      Hit("unhide: left alone");
    }
  }
}

void ListColors(const Entries& entries, std::vector<Color>& colors, std::vector<Color>& bottoms) {
  colors.clear();
  bottoms.clear();
  for (std::size_t index = 0; index < entries.size(); ++index) {
    const Color color = ColorAt(entries[index].component, "colour");
    const Color bottom = ColorAt(entries[index].component, "bottom colour");
    if (index == 0) {
      Hit("colours: first");
      colors.push_back(color);
      bottoms.push_back(bottom);
      continue;
    }
    const auto known = std::ranges::find(colors, color);
    if (known != colors.end()) {
      Hit("colours: known");
      continue;
    }
    Hit("colours: new");
    colors.push_back(color);
    colors.push_back(bottom);
    bottoms.push_back(bottom);
  }
}

}  // namespace reference
