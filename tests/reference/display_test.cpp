#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include <gtest/gtest.h>

#include <mqPostCommon/mqPostCommon.h>

#include "display_rules.h"
#include "members.h"
#include "tally.h"

namespace reference {
namespace {

Text AnyName(Random& random) {
  static const std::vector<Text> kNames = {
      MQ_TEXT("Wheel"), MQ_TEXT("wheel"),         MQ_TEXT("WHEEL"),         MQ_TEXT("Axle"),
      MQ_TEXT("axle"),  MQ_TEXT("\u00C9t\u0436"), MQ_TEXT("\u00E9T\u0416"), MQ_TEXT("")};
  return random.From(kNames);
}

COGLColor AnyColor(Random& random) {
  const auto shade = [&random] { return static_cast<float>(random.Below(2)) / 2.0F; };
  return {shade(), shade(), 1.0F, 1.0F};
}

Color ColorOf(const COGLColor& color) {
  return {ValueOf(color.Red()), ValueOf(color.Green()), ValueOf(color.Blue()),
          ValueOf(color.Alpha())};
}

std::vector<Color> ColorsOf(const CArray<COGLColor, COGLColor>& colors) {
  std::vector<Color> all;
  for (int index = 0; index < colors.GetSize(); ++index) {
    all.push_back(ColorOf(colors.GetAt(index)));
  }
  return all;
}

void MakeComponent(CDspAsmComp& component, Random& random) {
  if (random.Once(3)) {
    Scramble(component, random);
  }
  component.m_nCompID = random.Between(0, 2);
  component.m_nFirstElem = random.Between(-2, 30);
  component.m_nLastElem = component.m_nFirstElem + random.Between(-3, 12);
  if (random.Once(30)) {
    component.m_nFirstElem = random.Int();
    component.m_nLastElem = random.Int();
  }
  component.m_Color = AnyColor(random);
  component.m_BottomColor = AnyColor(random);
  component.m_bHidden = random.Of({0, 0, 1, -1});
  component.m_bTempHidden = random.Of({0, 1, 2});
  component.m_strCompName = StringOf(AnyName(random));
  component.m_strBodyName = StringOf(AnyName(random));
  component.m_nBodyID = random.Between(-1, 4);
  component.m_nVisIndexBase = random.Once(30) ? random.Int() : random.Between(1, 50);
}

Entries Snapshots(const CDspAsmCompList& list) {
  Entries entries;
  for (int index = 0; index < list.GetSize(); ++index) {
    int value = 0;
    const Fields component = Snapshot(list.GetAt(index, &value));
    entries.push_back({component, value});
  }
  return entries;
}

std::string Difference(const Entries& expected, const CDspAsmCompList& list) {
  const Entries got = Snapshots(list);
  if (expected.size() != got.size()) {
    return "expected " + std::to_string(expected.size()) + " components, got " +
           std::to_string(got.size());
  }
  for (std::size_t index = 0; index < got.size(); ++index) {
    const std::string difference = FirstDifference(expected[index].component, got[index].component);
    if (!difference.empty()) {
      return "component " + std::to_string(index) + ": " + difference;
    }
    if (expected[index].value != got[index].value) {
      return "value " + std::to_string(index) + " expected " +
             std::to_string(expected[index].value) + ", got " + std::to_string(got[index].value);
    }
  }
  return {};
}

void MakeList(CDspAsmCompList& list, Entries& model, Random& random, int most = 7) {
  list.RemoveAll();
  model.clear();
  for (int size = random.Between(0, most); size > 0; --size) {
    CDspAsmComp component;
    MakeComponent(component, random);
    const int value = random.Int();
    const bool isGiven = random.Once(2);
    ASSERT_EQ(static_cast<int>(model.size()),
              isGiven ? list.Add(component, value) : list.Add(component));
    if (isGiven) {
      model.push_back({Snapshot(component), value});
    } else {
      Append(model, Snapshot(component));
    }
  }
}

template <class Act>
void ExpectRefused(Act act, int index) {
  EXPECT_THROW(act(), CInvalidArgException) << index;
}

/// Where `long` is wider than the ids, some differ from one of them in the upper half alone.
long AnyBody(Random& random) {
  const std::int64_t body = random.Once(6) ? random.Int() : random.Between(-2, 6);
  return static_cast<long>(body + (std::int64_t{random.Of({0, 0, 0, 0, -1, 1})} << 32));
}

void AskByBody(const CDspAsmCompList& list, const Entries& model, Random& random) {
  const long body = AnyBody(random);
  const int found = FindBody(model, body);
  ASSERT_EQ(found, list.GetIndexByBodyID(body)) << body;
  CDspAsmComp out;
  out.m_nHost27 = 777;
  Fields expected = Snapshot(out);
  if (!model.empty()) {
    expected = (found >= 0 ? model[static_cast<std::size_t>(found)] : model.back()).component;
  }
  ASSERT_EQ(found >= 0 ? 1 : 0, list.GetComponentByBodyID(body, out)) << body;
  ASSERT_EQ("", FirstDifference(expected, Snapshot(out))) << body;
  const auto nameOf = [&](std::string_view which) {
    return found >= 0 ? TextAt(model[static_cast<std::size_t>(found)].component, which) : Text();
  };
  ASSERT_EQ(Printable(nameOf("body name")), Printable(TextOf(list.GetBodyNameByBodyID(body))));
  ASSERT_EQ(Printable(nameOf("comp name")), Printable(TextOf(list.GetPartNameByBodyID(body))));
}

void AskByName(const CDspAsmCompList& list, const Entries& model, Random& random) {
  const Text name = AnyName(random);
  const CString asked = StringOf(name);
  SCOPED_TRACE(Printable(name));
  ASSERT_EQ(Exists(model, name), list.IsComponentExistByName(asked));
  std::vector<int> expected = {99};
  std::vector<int> indices = {99};
  std::ranges::copy(PartsNamed(model, name), std::back_inserter(expected));
  list.GetBodyListByPartName(&indices, asked);
  ASSERT_EQ(expected, indices);
  ASSERT_EQ(
      "", Difference(OnesNamed(model, "comp name", name), list.GetCompListByComponentName(asked)));
  ASSERT_EQ("", Difference(OnesNamed(model, "body name", name), list.GetCompListByBodyName(asked)));
}

void AskForPlaces(const CDspAsmCompList& list, const Entries& model, Random& random) {
  const int element = random.Once(10) ? random.Int() : random.Between(-3, 45);
  int index = -777;
  const std::optional<int> visible = VisibleIndex(model, element);
  ASSERT_EQ(visible.has_value() ? 1 : 0, list.GetVisPartIndex_1based(element, &index)) << element;
  ASSERT_EQ(visible.value_or(-777), index) << element;
  const int component = random.Once(10) ? random.Int() : random.Between(-1, 8);
  const int base = random.Once(10) ? random.Int() : random.Between(-5, 100);
  ASSERT_EQ(ActiveIndex(model, component, base), list.GetActiveElemIndex(component, base))
      << component << " from " << base;
  ASSERT_EQ(AllHidden(model), list.AllHidden());
  ASSERT_EQ(CountWithResults(model), list.GetPostAvailableCompCount());
}

/// One question of each kind.
void AskIndex(const CDspAsmCompIndex& index, const Entries& model, int element, Random& random) {
  ASSERT_EQ(static_cast<int>(model.size()), index.GetSize());
  int got = -777;
  const std::optional<int> visible = VisibleIndex(model, element);
  ASSERT_EQ(visible.has_value() ? 1 : 0, index.GetVisPartIndex_1based(element, &got)) << element;
  ASSERT_EQ(visible.value_or(-777), got) << element;
  const int component = random.Once(10) ? random.Int() : random.Between(-1, index.GetSize() + 1);
  const int base = random.Once(10) ? random.Int() : random.Between(-5, 100);
  ASSERT_EQ(ActiveIndex(model, component, base), index.GetActiveElemIndex(component, base))
      << component << " from " << base;
  const long body = AnyBody(random);
  ASSERT_EQ(FindBody(model, body), index.GetIndexByBodyID(body)) << body;
  const Text name = AnyName(random);
  ASSERT_EQ(Exists(model, name), index.IsComponentExistByName(StringOf(name))) << Printable(name);
  std::vector<int> expected = {99};
  std::vector<int> indices = {99};
  std::ranges::copy(PartsNamed(model, name), std::back_inserter(expected));
  index.GetBodyListByPartName(&indices, StringOf(name));
  ASSERT_EQ(expected, indices) << Printable(name);
}

void AskForColors(const CDspAsmCompList& list, const Entries& model) {
  CArray<COGLColor, COGLColor> colors;
  CArray<COGLColor, COGLColor> bottoms;
  colors.Add(COGLColor());
  bottoms.Add(COGLColor());
  std::vector<Color> expectedColors;
  std::vector<Color> expectedBottoms;
  ListColors(model, expectedColors, expectedBottoms);
  ASSERT_EQ(0, list.MakeColorList(nullptr, &bottoms));
  ASSERT_EQ(0, list.MakeColorList(&colors, nullptr));
  ASSERT_EQ(model.empty() ? 0 : 1, list.MakeColorList(&colors, &bottoms));
  ASSERT_TRUE(expectedColors == ColorsOf(colors)) << colors.GetSize() << " colours";
  ASSERT_TRUE(expectedBottoms == ColorsOf(bottoms)) << bottoms.GetSize() << " bottom colours";
}

void AskForOthers(const CDspAsmCompList& list, const Entries& model, Random& random) {
  CDspAsmCompList other;
  Entries otherModel;
  if (random.Once(2)) {
    ASSERT_NO_FATAL_FAILURE(MakeList(other, otherModel, random, 2));
  } else {
    other = list;
    otherModel = model;
    if (!model.empty() && random.Once(2)) {
      CDspAsmComp changed = other.GetAt(0);
      changed.m_nHost27 = random.Int();
      changed.m_nBodyID += random.Below(2);
      other.SetAt(0, changed);
      otherModel[0].component = Snapshot(changed);
    }
  }
  ASSERT_EQ(IsEqual(model, otherModel), list == other);
  ASSERT_EQ(IsPartMissing(model, otherModel), list.HasPostCompMissing(other));
}

void AskComponents(const CDspAsmCompList& list, const Entries& model) {
  for (std::size_t index = 0; index < model.size(); ++index) {
    const CDspAsmComp component = list.GetAt(static_cast<int>(index));
    ASSERT_EQ(HasRange(model[index].component), component.PostAvailable());
    for (std::size_t second = 0; second < model.size(); ++second) {
      ASSERT_EQ(IsEqual(model[index].component, model[second].component),
                component == list.GetAt(static_cast<int>(second)));
    }
  }
}

void Replace(CDspAsmCompList& list, Entries& model, Random& random) {
  const int size = list.GetSize();
  const int index = random.Once(10) ? random.Int() : random.Between(-1, size);
  CDspAsmComp component;
  MakeComponent(component, random);
  const int first = random.Between(-1, 9);
  const int last = random.Between(-1, 20);
  if (index < 0 || index >= size) {
    Hit("index: refused");
    int value = 5;
    ExpectRefused([&] { (void)list.GetAt(index); }, index);
    ExpectRefused([&] { (void)list.GetAt(index, &value); }, index);
    ExpectRefused([&] { list.SetAt(index, component); }, index);
    ExpectRefused([&] { list.SetAt(index, component, 3); }, index);
    ExpectRefused([&] { list.SetSequence(index, first, last); }, index);
    return;
  }
  Entry& entry = model[static_cast<std::size_t>(index)];
  switch (random.Below(3)) {
    case 0:
      Hit("index: component");
      list.SetAt(index, component);
      entry.component = Snapshot(component);
      break;
    case 1:
      Hit("index: component and value");
      list.SetAt(index, component, first);
      entry = {Snapshot(component), first};
      break;
    default:
      Hit("index: range");
      list.SetSequence(index, first, last);
      Put(entry.component, "first", {first});
      Put(entry.component, "last", {last});
  }
}

/// The order among equal keys is nobody's promise: it is taken over from the list.
void Sort(CDspAsmCompList& list, Entries& model, Random& random) {
  const int ascending = random.Between(-1, 1);
  const auto key = [](const Entry& entry) { return IntAt(entry.component, "last"); };
  const Entries before = model;
  ASSERT_EQ(1, list.SortByElemID(ascending));
  if (model.size() < 2) {
    Hit("sort: nothing to do");
    ASSERT_EQ("", Difference(before, list));
    return;
  }
  std::ranges::sort(model, [&](const Entry& one, const Entry& other) {
    return ascending != 0 ? key(one) < key(other) : key(one) > key(other);
  });
  const Entries got = Snapshots(list);
  ASSERT_EQ(model.size(), got.size());
  for (std::size_t first = 0; first < model.size();) {
    std::size_t last = first;
    while (last < model.size() && key(model[last]) == key(model[first])) {
      ++last;
    }
    Hit(last - first > 1 ? "sort: equal keys" : ascending != 0 ? "sort: up" : "sort: down");
    const auto at = [](const Entries& entries, std::size_t place) {
      return entries.begin() + static_cast<std::ptrdiff_t>(place);
    };
    ASSERT_TRUE(std::is_permutation(
        at(model, first), at(model, last), at(got, first), at(got, last),
        [](const Entry& one, const Entry& other) { return one.component == other.component; }))
        << "places " << first << " to " << last << ", ascending " << ascending;
    first = last;
  }
  model = got;
  for (std::size_t index = 0; index < model.size(); ++index) {
    ASSERT_EQ(static_cast<int>(index) + 1, model[index].value);
  }
}

void Change(CDspAsmCompList& list, Entries& model, Random& random) {
  switch (random.Below(8)) {
    case 0: {
      const Text from = AnyName(random);
      const Text to = AnyName(random);
      ASSERT_EQ(Rename(model, from, to), list.ChangeCompName(StringOf(from), StringOf(to)));
      break;
    }
    case 1: {
      const Text name = AnyName(random);
      HideAllBut(model, name);
      list.HideAllExceptOneComponent(StringOf(name));
      break;
    }
    case 2:
      Unhide(model);
      list.UnHideTemporarilyHiddenComps();
      break;
    case 3:
      std::ranges::for_each(model, [](Entry& entry) { Flip(entry.component); });
      list.FlipColor();
      break;
    case 4: {
      const auto packed = static_cast<unsigned long>(random.Bits() & 0xFFFFFF);
      COGLColor color;
      color = packed;
      for (Entry& entry : model) {
        SetColor(entry.component, "bottom colour", ColorOf(color));
      }
      list.SetShellBottomFaceColor(packed);
      break;
    }
    case 5: Replace(list, model, random); break;
    case 6: Sort(list, model, random); break;
    default: {
      CDspAsmCompList copy(list);
      CDspAsmCompList target;
      Entries old;
      MakeList(target, old, random, 2);
      target = list;
      list.RemoveAll();
      ASSERT_EQ(0, list.GetSize());
      ASSERT_EQ("", Difference(model, copy));
      list = target;
      Hit("change: copied");
    }
  }
}

TEST(DisplayReference, ListsChangeAndAnswerAsAPlainVectorDoes) {
  ResetTally();
  Random random(5101);
  const int lists = CountCases(1200);
  long cases = 0;
  for (int number = 0; number < lists; ++number) {
    CDspAsmCompList list;
    Entries model;
    ASSERT_NO_FATAL_FAILURE(MakeList(list, model, random));
    for (int step = 0; step < 6; ++step, ++cases) {
      SCOPED_TRACE("list " + std::to_string(number) + ", step " + std::to_string(step));
      ASSERT_EQ("", Difference(model, list));
      ASSERT_NO_FATAL_FAILURE(AskByBody(list, model, random));
      ASSERT_NO_FATAL_FAILURE(AskByName(list, model, random));
      ASSERT_NO_FATAL_FAILURE(AskForPlaces(list, model, random));
      ASSERT_NO_FATAL_FAILURE(AskForColors(list, model));
      ASSERT_NO_FATAL_FAILURE(AskForOthers(list, model, random));
      ASSERT_NO_FATAL_FAILURE(AskComponents(list, model));
      const CDspAsmCompIndex index(list);
      const Entries indexed = model;
      ASSERT_EQ("", Difference(model, list)) << "a question changed the list";
      ASSERT_NO_FATAL_FAILURE(Change(list, model, random));
      ASSERT_NO_FATAL_FAILURE(AskIndex(index, indexed, random.Between(-3, 45), random));
    }
  }
  CheckTally("equal", {"equal: no", "equal: in all", "equal: in what counts"});
  CheckTally("range", {"range: yes", "range: no"});
  CheckTally("lists", {"lists: other size", "lists: unequal", "lists: both empty", "lists: equal"});
  CheckTally("hidden", {"hidden: not all", "hidden: none there", "hidden: all"});
  CheckTally("results", {"results: counted", "results: begins or ends at 0"});
  CheckTally("missing", {"missing: yes", "missing: nothing asked", "missing: no"});
  CheckTally("visible", {"visible: the only one", "visible: the first of some", "visible: hidden",
                         "visible: no"});
  CheckTally("active", {"active: outside", "active: first", "active: later"});
  CheckTally("body id", {"body id: found", "body id: unknown"});
  CheckTally("part", {"part: same name", "part: other case"});
  CheckTally("named", {"named: none", "named: one", "named: some"});
  CheckTally("rename", {"rename: none", "rename: the first of some", "rename: the only one"});
  CheckTally("hide", {"hide: name unknown", "hide: shown", "hide: hidden"});
  CheckTally("unhide", {"unhide: shown again", "unhide: left alone"});
  CheckTally("colours", {"colours: first", "colours: known", "colours: new"});
  CheckTally("index",
             {"index: refused", "index: component", "index: component and value", "index: range"});
  CheckTally("sort", {"sort: nothing to do", "sort: equal keys", "sort: up", "sort: down"});
  CheckTally("change", {"change: copied"});
  RecordCases(cases);
}

constexpr std::int64_t kLastElement = std::numeric_limits<int>::max();

/// Mostly near a place at which ranges crowd.
int ElementNear(int place, Random& random) {
  switch (random.Below(12)) {
    case 0: return random.Int();
    case 1: return random.Between(0, std::numeric_limits<int>::max());
    case 2: return place + random.Between(-100'000, 100'000);
    default: return place + random.Between(-60, 60);
  }
}

CDspAsmComp ComponentNear(int place, Random& random) {
  CDspAsmComp component;
  const std::int64_t first = ElementNear(place, random);
  const std::int64_t last = random.Once(4) ? ElementNear(place, random) : first + random.Below(10);
  component.m_nFirstElem = static_cast<int>(first);
  component.m_nLastElem = static_cast<int>(std::min(last, kLastElement));
  component.m_bHidden = random.Of({0, 0, 0, 0, 1, -1});
  component.m_strCompName = StringOf(AnyName(random));
  component.m_nBodyID = random.Once(4) ? random.Int() : random.Between(-2, 40);
  component.m_nVisIndexBase = random.Once(4) ? random.Int() : random.Between(1, 500);
  return component;
}

// Enough of them for an index to look in steps, among ranges that lie about one another.
TEST(DisplayReference, IndexesOfManyComponentsAnswerAsAPlainVectorDoes) {
  ResetTally();
  Random random(5103);
  const int lists = CountCases(150);
  constexpr int kQuestions = 60;
  for (int number = 0; number < lists; ++number) {
    SCOPED_TRACE("list " + std::to_string(number));
    const int place =
        random.Once(2) ? 50 : random.Between(200'000, std::numeric_limits<int>::max() - 200'000);
    CDspAsmCompList list;
    Entries model;
    for (int size = random.Between(0, 120); size > 0; --size) {
      const CDspAsmComp component = ComponentNear(place, random);
      list.Add(component);
      Append(model, Snapshot(component));
    }
    const CDspAsmCompIndex index(list);
    list.RemoveAll();
    for (int question = 0; question < kQuestions; ++question) {
      ASSERT_NO_FATAL_FAILURE(AskIndex(index, model, ElementNear(place, random), random));
    }
  }
  CheckTally("visible", {"visible: the only one", "visible: the first of some", "visible: hidden",
                         "visible: no"});
  CheckTally("active", {"active: outside", "active: first", "active: later"});
  CheckTally("body id", {"body id: found", "body id: unknown"});
  CheckTally("part", {"part: same name", "part: other case"});
  RecordCases(long{lists} * kQuestions);
}

void DeleteFlips(CDspAsmComp& component) {
  for (int index = 0; index < component.m_arrFlipData.GetSize(); ++index) {
    delete component.m_arrFlipData.GetAt(index);
  }
  component.m_arrFlipData.RemoveAll();
}

void CompareCopy(const Fields& members, const CDspAsmComp& source, const CDspAsmComp& copy,
                 bool isShared) {
  ASSERT_EQ("", FirstDifference(members, Snapshot(copy)));
  for (int index = 0; index < source.m_arrFlipData.GetSize(); ++index) {
    ASSERT_EQ(isShared, source.m_arrFlipData.GetAt(index) == copy.m_arrFlipData.GetAt(index));
  }
}

TEST(DisplayReference, ComponentsMadeCopiedAndAssigned) {
  ResetTally();
  Random random(5102);
  ASSERT_EQ("", FirstDifference(DefaultComponent(), Snapshot(CDspAsmComp())));
  const int cases = CountCases(3000);
  for (int number = 0; number < cases; ++number) {
    const int id = random.Int();
    const int first = random.Int();
    const int last = random.Int();
    const int hidden = random.Int();
    const COGLColor color = AnyColor(random);
    const COGLColor bottom = AnyColor(random);
    ASSERT_EQ("", FirstDifference(
                      RangeComponent(id, first, last, ColorOf(color), ColorOf(bottom), hidden),
                      Snapshot(CDspAsmComp(id, first, last, color, bottom, hidden))));
    const COGLColor grey(0.5F, 0.5F, 0.5F, 1.0F);
    ASSERT_EQ(
        "", FirstDifference(RangeComponent(id, first, last, ColorOf(color), ColorOf(grey), hidden),
                            Snapshot(CDspAsmComp(id, first, last, color, hidden))));

    CDspAsmComp source;
    Scramble(source, random);
    source.m_bOwnsMeshData = random.Between(0, 2);
    source.m_bOwnsMeshData2 = random.Between(0, 2);
    for (int flips = random.Between(0, 3); flips > 0; --flips) {
      auto flip = std::make_unique<CShellEntityID_FlipData>();
      flip->m_nHost1 = random.Int();
      flip->m_nHost2 = random.Int();
      flip->m_nHost3 = random.Int();
      source.m_arrFlipData.Add(flip.release());
    }
    const bool areOwned = source.m_bOwnsMeshData == 1 || source.m_bOwnsMeshData2 == 1;
    Hit(areOwned ? "flips: owned" : "flips: the host's");
    const Fields members = Snapshot(source);
    CDspAsmComp copy(source);
    CDspAsmComp target;
    Scramble(target, random);
    target = source;
    // Two owners of one record would delete it twice; where nobody owns, a pointer is a value.
    ASSERT_NO_FATAL_FAILURE(CompareCopy(members, source, copy, !areOwned));
    ASSERT_NO_FATAL_FAILURE(CompareCopy(members, source, target, false));
    ASSERT_EQ("", FirstDifference(members, Snapshot(source)));
    if (!areOwned) {
      DeleteFlips(source);  // with those of the copy
      DeleteFlips(target);
    }
  }
  CheckTally("flips", {"flips: owned", "flips: the host's"});
  RecordCases(cases);
}

}  // namespace
}  // namespace reference
