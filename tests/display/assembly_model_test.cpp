// Random operations on lists of components, compared with a model that knows nothing but plain
// loops. The alphabets are small, so that names, bodies, colours and ranges meet often.
#include <algorithm>
#include <array>
#include <bit>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>
#include <mqPostCommon/display/assembly_list.h>

#include "display/display_test_support.h"

namespace mqp::test {
namespace {

constexpr int kOperations = 1'000'000;
constexpr int kLargest = 40;
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();

using Floats = std::array<float, 4>;
using Record = std::array<int, 3>;

struct Name {
  const mqChar* text;
  int group;  ///< the same for names that differ in case alone
};

struct PackedColor {
  unsigned long packed;
  Floats floats;
};

// clang-format off
const Name kNames[] = {
    {MQ_TEXT("a"),  0},
    {MQ_TEXT("A"),  0},
    {MQ_TEXT("ab"), 1},
    {MQ_TEXT("AB"), 1},
    {MQ_TEXT("Ab"), 1},
    {MQ_TEXT("b"),  2},
    {MQ_TEXT(""),   3},
};
const int kNumbers[] = {INT_MIN, INT_MIN + 1, -2, -1, -1, 0, 0, 1, 2, 3, 5, 8, 9, INT_MAX - 1, INT_MAX};
const int kFlags[] = {0, 0, 0, 1, 1, 2, -1};
const long kBodies[] = {0, 1, 2, 3, 4, -1, INT_MIN, INT_MAX};
const Floats kColors[] = {
    // red         green   blue    alpha
    {1.0F,         0.0F,   0.0F,   1.0F},
    {1.0F,         0.0F,   0.0F,   0.5F},
    {0.0F,         1.0F,   0.0F,   1.0F},
    {0.0F,         0.0F,   0.0F,   1.0F},
    {-0.0F,        0.0F,  -0.0F,   1.0F},
    {0.2F,         0.4F,   0.6F,   1.0F},
    {0.5F,         0.5F,   0.5F,   1.0F},
    {kNotANumber,  0.0F,   0.0F,   1.0F},
};
const PackedColor kPackedColors[] = {
    {0x000000FFUL, {1.0F,  0.0F,   0.0F,   1.0F}},
    {0x00000000UL, {0.0F,  0.0F,   0.0F,   1.0F}},
    {0x00996633UL, {0.2F,  0.4F,   0.6F,   1.0F}},
};
// clang-format on

/// Names, colours and records are plain values here; a name is its place in `kNames`.
struct ModelComponent {
  int compId = 0;
  int first = 0;
  int last = 0;
  Floats color{};
  Floats bottomColor{};
  int hidden = 0;
  int name = 0;
  int bodyName = 0;
  int bodyId = 0;
  int visIndexBase = 0;
  int tempHidden = 0;
  int serial = 0;  ///< tells components apart that are alike
  std::vector<Record> records;
};

struct ModelList {
  std::vector<ModelComponent> components;
  std::vector<int> values;
};

std::array<std::uint32_t, 4> Bits(const Floats& color) {
  return std::bit_cast<std::array<std::uint32_t, 4>>(color);
}

bool AreSame(const COGLColor& color, const Floats& expected) {
  return Bits({color.Red(), color.Green(), color.Blue(), color.Alpha()}) == Bits(expected);
}

bool AreSame(const CArray<CShellEntityID_FlipData*>& records, const std::vector<Record>& expected) {
  if (records.GetSize() != static_cast<int>(expected.size())) {
    return false;
  }
  for (int index = 0; index < records.GetSize(); ++index) {
    const CShellEntityID_FlipData& record = *records[index];
    if (Record{record.m_nHost1, record.m_nHost2, record.m_nHost3} !=
        expected[static_cast<std::size_t>(index)]) {
      return false;
    }
  }
  return true;
}

bool AreSame(const CDspAsmComp& got, const ModelComponent& expected) {
  return got.m_nCompID == expected.compId && got.m_nFirstElem == expected.first &&
         got.m_nLastElem == expected.last && AreSame(got.m_Color, expected.color) &&
         AreSame(got.m_BottomColor, expected.bottomColor) && got.m_bHidden == expected.hidden &&
         got.m_strCompName == kNames[expected.name].text &&
         got.m_strBodyName == kNames[expected.bodyName].text && got.m_nBodyID == expected.bodyId &&
         got.m_nVisIndexBase == expected.visIndexBase && got.m_bTempHidden == expected.tempHidden &&
         got.m_nHost27 == expected.serial &&
         got.m_bOwnsMeshData == (expected.records.empty() ? 0 : 1) &&
         AreSame(got.m_arrFlipData, expected.records);
}

bool AreSame(const CDspAsmCompList& got, const ModelList& expected) {
  const std::size_t size = expected.components.size();
  if (got.m_arrComps.GetSize() != static_cast<int>(size) ||
      got.m_arrCompValues.GetSize() != static_cast<int>(size)) {
    return false;
  }
  for (std::size_t index = 0; index < size; ++index) {
    if (!AreSame(got.m_arrComps[static_cast<int>(index)], expected.components[index]) ||
        got.m_arrCompValues[static_cast<int>(index)] != expected.values[index]) {
      return false;
    }
  }
  return true;
}

bool AreSame(const CArray<COGLColor, COGLColor>& got, const std::vector<Floats>& expected) {
  for (int index = 0; index < got.GetSize(); ++index) {
    if (index >= static_cast<int>(expected.size()) ||
        !AreSame(got[index], expected[static_cast<std::size_t>(index)])) {
      return false;
    }
  }
  return got.GetSize() == static_cast<int>(expected.size());
}

bool HaveEqualColors(const Floats& one, const Floats& other) {
  return one[0] == other[0] && one[1] == other[1] && one[2] == other[2] && one[3] == other[3];
}

bool AreEqual(const ModelComponent& one, const ModelComponent& other) {
  return one.compId == other.compId && one.first == other.first && one.last == other.last &&
         one.hidden == other.hidden && one.bodyId == other.bodyId;
}

bool AreEqual(const ModelList& one, const ModelList& other) {
  if (one.components.size() != other.components.size()) {
    return false;
  }
  for (std::size_t index = 0; index < one.components.size(); ++index) {
    if (!AreEqual(one.components[index], other.components[index])) {
      return false;
    }
  }
  return true;
}

bool Counts(const ModelComponent& component) {
  return component.first != 0 && component.last != 0;
}

bool HasName(const ModelList& list, int name) {
  for (const ModelComponent& component : list.components) {
    if (component.name == name) {
      return true;
    }
  }
  return false;
}

/// Adds as the processor does.
int Wrapped(std::uint32_t sum) {
  return static_cast<int>(sum);
}
std::uint32_t Word(int value) {
  return static_cast<std::uint32_t>(value);
}

CDspAsmComp Make(const ModelComponent& model) {
  CDspAsmComp component;
  component.m_nCompID = model.compId;
  component.m_nFirstElem = model.first;
  component.m_nLastElem = model.last;
  component.m_Color = COGLColor(model.color[0], model.color[1], model.color[2], model.color[3]);
  component.m_BottomColor = COGLColor(model.bottomColor[0], model.bottomColor[1],
                                      model.bottomColor[2], model.bottomColor[3]);
  component.m_bHidden = model.hidden;
  component.m_strCompName = kNames[model.name].text;
  component.m_strBodyName = kNames[model.bodyName].text;
  component.m_nBodyID = model.bodyId;
  component.m_nVisIndexBase = model.visIndexBase;
  component.m_bTempHidden = model.tempHidden;
  component.m_nHost27 = model.serial;
  component.m_bOwnsMeshData = model.records.empty() ? 0 : 1;
  for (const Record& record : model.records) {
    auto* data = new CShellEntityID_FlipData;
    data->m_nHost1 = record[0];
    data->m_nHost2 = record[1];
    data->m_nHost3 = record[2];
    component.m_arrFlipData.Add(data);
  }
  return component;
}

/// Takes the records that an assignment is about to leave behind.
std::vector<CShellEntityID_FlipData*> Take(const CDspAsmComp& component) {
  return Read(component.m_arrFlipData);
}

void Delete(const std::vector<CShellEntityID_FlipData*>& records) {
  for (CShellEntityID_FlipData* record : records) {
    delete record;
  }
}

/// Two lists and their models. Each operation works on `m_list` and `m_model`, which are now the
/// one pair, now the other, and answers whether the list did as its model.
class Play {
 public:
  using Operation = bool (Play::*)();
  struct Row {
    const char* name;
    int weight;
    Operation operation;
  };
  static const Row kRows[];

  explicit Play(unsigned seed) : m_random(seed) {}

  void ChooseList() {
    const std::size_t chosen = Below(2);
    m_list = &m_lists[chosen];
    m_model = &m_models[chosen];
    m_other = &m_lists[1 - chosen];
    m_otherModel = &m_models[1 - chosen];
  }
  const Row& ChooseRow();
  [[nodiscard]] bool StateIsSame() const { return AreSame(*m_list, *m_model); }
  [[nodiscard]] std::size_t Size() const { return m_model->components.size(); }
  [[nodiscard]] Lines State() const { return Describe(*m_list); }

 private:
  std::size_t Below(std::size_t bound) { return m_random() % bound; }
  template <class Element, std::size_t kCount>
  const Element& AnyOf(const Element (&elements)[kCount]) {
    return elements[Below(kCount)];
  }
  int AnyName() { return static_cast<int>(Below(std::size(kNames))); }

  ModelComponent AnyComponent() {
    ModelComponent component;
    component.compId = static_cast<int>(Below(2));
    component.first = AnyOf(kNumbers);
    component.last = AnyOf(kNumbers);
    component.color = AnyOf(kColors);
    component.bottomColor = AnyOf(kColors);
    component.hidden = AnyOf(kFlags);
    component.name = AnyName();
    component.bodyName = AnyName();
    component.bodyId = static_cast<int>(AnyOf(kBodies));
    component.visIndexBase = AnyOf(kNumbers);
    component.tempHidden = AnyOf(kFlags);
    component.serial = m_serial++;
    if (Below(8) == 0) {
      component.records.assign(1 + Below(2), Record{component.serial, -1, AnyOf(kNumbers)});
    }
    return component;
  }
  /// An index inside the list as often as possible.
  int AnyIndex() {
    const int outside[] = {-1, static_cast<int>(Size()), INT_MAX, INT_MIN};
    return Size() == 0 || Below(16) == 0 ? AnyOf(outside) : static_cast<int>(Below(Size()));
  }
  [[nodiscard]] bool IsInside(int index) const {
    return index >= 0 && index < static_cast<int>(Size());
  }
  ModelComponent& ModelAt(int index) {
    return m_model->components[static_cast<std::size_t>(index)];
  }
  int& ValueAt(int index) { return m_model->values[static_cast<std::size_t>(index)]; }
  /// The index of the first component that `matches`, or -1.
  template <class Predicate>
  int FirstOf(const Predicate& matches) {
    for (std::size_t index = 0; index < Size(); ++index) {
      if (matches(m_model->components[index])) {
        return static_cast<int>(index);
      }
    }
    return -1;
  }
  /// Whether an operation is refused.
  template <class Call>
  static bool Refuses(const Call& call) {
    try {
      call();
    } catch (const CInvalidArgException&) {
      return true;
    }
    return false;
  }

  void RemoveAt(int index, int count) {
    m_list->m_arrComps.RemoveAt(index, count);
    m_list->m_arrCompValues.RemoveAt(index, count);
    m_model->components.erase(m_model->components.begin() + index,
                              m_model->components.begin() + index + count);
    m_model->values.erase(m_model->values.begin() + index, m_model->values.begin() + index + count);
  }
  void MakeRoom() {
    if (Size() == kLargest) {
      const int index = static_cast<int>(Below(kLargest));
      RemoveAt(index, 1 + static_cast<int>(Below(static_cast<std::size_t>(kLargest - index))));
    }
  }

  bool Add() {
    MakeRoom();
    const ModelComponent component = AnyComponent();
    m_model->components.push_back(component);
    m_model->values.push_back(static_cast<int>(Size()));
    return m_list->Add(Make(component)) == static_cast<int>(Size()) - 1;
  }
  bool AddWithValue() {
    MakeRoom();
    const ModelComponent component = AnyComponent();
    const int value = AnyOf(kNumbers);
    m_model->components.push_back(component);
    m_model->values.push_back(value);
    return m_list->Add(Make(component), value) == static_cast<int>(Size()) - 1;
  }
  bool AddOwn() {
    MakeRoom();
    if (Size() == 0) {
      return true;
    }
    const int index = static_cast<int>(Below(Size()));
    m_model->components.push_back(ModelComponent(ModelAt(index)));
    m_model->values.push_back(static_cast<int>(Size()));
    return m_list->Add(m_list->GetDspAsmCompList()[index]) == static_cast<int>(Size()) - 1;
  }
  bool Remove() {
    if (Size() > 0) {
      RemoveAt(static_cast<int>(Below(Size())), 1);
    }
    return true;
  }
  bool RemoveAll() {
    m_list->RemoveAll();
    *m_model = ModelList();
    return m_list->GetSize() == 0;
  }
  bool GetSize() { return m_list->GetSize() == static_cast<int>(Size()); }
  bool GetAt() {
    const int index = AnyIndex();
    if (!IsInside(index)) {
      return Refuses([&] { static_cast<void>(m_list->GetAt(index)); });
    }
    return AreSame(m_list->GetAt(index), ModelAt(index));
  }
  bool GetAtWithValue() {
    const int index = AnyIndex();
    int value = 12345;
    if (!IsInside(index)) {
      return Refuses([&] { static_cast<void>(m_list->GetAt(index, &value)); }) && value == 12345;
    }
    return AreSame(m_list->GetAt(index, &value), ModelAt(index)) && value == ValueAt(index);
  }
  bool SetAt() {
    const int index = AnyIndex();
    const ModelComponent component = AnyComponent();
    if (!IsInside(index)) {
      return Refuses([&] { m_list->SetAt(index, Make(component)); });
    }
    const auto left = Take(m_list->m_arrComps[index]);
    m_list->SetAt(index, Make(component));
    Delete(left);
    ModelAt(index) = component;
    return true;
  }
  bool SetAtWithValue() {
    const int index = AnyIndex();
    const ModelComponent component = AnyComponent();
    const int value = AnyOf(kNumbers);
    if (!IsInside(index)) {
      return Refuses([&] { m_list->SetAt(index, Make(component), value); });
    }
    const auto left = Take(m_list->m_arrComps[index]);
    m_list->SetAt(index, Make(component), value);
    Delete(left);
    ModelAt(index) = component;
    ValueAt(index) = value;
    return true;
  }
  bool SetSequence() {
    const int index = AnyIndex();
    const int first = AnyOf(kNumbers);
    const int last = AnyOf(kNumbers);
    if (!IsInside(index)) {
      return Refuses([&] { m_list->SetSequence(index, first, last); });
    }
    m_list->SetSequence(index, first, last);
    ModelAt(index).first = first;
    ModelAt(index).last = last;
    return true;
  }
  bool AllHidden() {
    const int shown =
        FirstOf([](const ModelComponent& component) { return component.hidden == 0; });
    return m_list->AllHidden() == (shown < 0 ? 1 : 0);
  }
  bool GetPostAvailableCompCount() {
    int count = 0;
    for (const ModelComponent& component : m_model->components) {
      count += Counts(component) ? 1 : 0;
    }
    return m_list->GetPostAvailableCompCount() == count;
  }
  bool HasPostCompMissing() {
    int expected = 0;
    for (const ModelComponent& component : m_otherModel->components) {
      if (Counts(component) && !HasName(*m_model, component.name)) {
        expected = 1;
      }
    }
    return m_list->HasPostCompMissing(*m_other) == expected;
  }
  bool GetVisPartIndex() {
    const int elem = AnyOf(kNumbers);
    const int found = FirstOf([elem](const ModelComponent& component) {
      return component.hidden == 0 && component.first >= 0 && component.last >= component.first &&
             component.first <= elem && elem <= component.last;
    });
    int index = 12345;
    const int result = m_list->GetVisPartIndex_1based(elem, &index);
    if (found < 0) {
      return result == 0 && index == 12345;
    }
    const ModelComponent& component = ModelAt(found);
    return result == 1 &&
           index == Wrapped(Word(component.visIndexBase) - Word(component.first) + Word(elem));
  }
  bool GetActiveElemIndex() {
    const int index = AnyIndex();
    const int base = AnyOf(kNumbers);
    if (!IsInside(index)) {
      return m_list->GetActiveElemIndex(index, base) == 1;
    }
    std::uint32_t sum = Word(base);
    for (int before = 0; before < index; ++before) {
      sum += Word(ModelAt(before).last) - Word(ModelAt(before).first) + 1U;
    }
    return m_list->GetActiveElemIndex(index, base) == Wrapped(sum);
  }
  int FirstOfBody(long bodyId) {
    return FirstOf(
        [bodyId](const ModelComponent& component) { return component.bodyId == bodyId; });
  }
  bool GetIndexByBodyId() {
    const long bodyId = AnyOf(kBodies);
    return m_list->GetIndexByBodyID(bodyId) == FirstOfBody(bodyId);
  }
  bool GetComponentByBodyId() {
    const long bodyId = AnyOf(kBodies);
    const int found = FirstOfBody(bodyId);
    const ModelComponent before = AnyComponent();
    CDspAsmComp out = Make(before);
    const auto left = Take(out);
    const int result = m_list->GetComponentByBodyID(bodyId, out);
    const int assigned = found >= 0 ? found : static_cast<int>(Size()) - 1;
    const bool isSame = AreSame(out, assigned < 0 ? before : ModelAt(assigned));
    if (Take(out) != left) {
      Delete(left);
    }
    return isSame && result == (found >= 0 ? 1 : 0);
  }
  bool GetNamesByBodyId() {
    const long bodyId = AnyOf(kBodies);
    const int found = FirstOfBody(bodyId);
    const mqChar* part = found < 0 ? MQ_TEXT("") : kNames[ModelAt(found).name].text;
    const mqChar* body = found < 0 ? MQ_TEXT("") : kNames[ModelAt(found).bodyName].text;
    return m_list->GetPartNameByBodyID(bodyId) == part &&
           m_list->GetBodyNameByBodyID(bodyId) == body;
  }
  bool GetBodyListByPartName() {
    const int name = AnyName();
    std::vector<int> out = {-5};
    std::vector<int> expected = {-5};
    for (std::size_t index = 0; index < Size(); ++index) {
      if (kNames[m_model->components[index].name].group == kNames[name].group) {
        expected.push_back(static_cast<int>(index));
      }
    }
    m_list->GetBodyListByPartName(&out, kNames[name].text);
    return out == expected;
  }
  bool GetCompLists() {
    const int name = AnyName();
    ModelList ofName;
    ModelList ofBody;
    for (const ModelComponent& component : m_model->components) {
      if (component.name == name) {
        ofName.components.push_back(component);
        ofName.values.push_back(static_cast<int>(ofName.components.size()));
      }
      if (component.bodyName == name) {
        ofBody.components.push_back(component);
        ofBody.values.push_back(static_cast<int>(ofBody.components.size()));
      }
    }
    return AreSame(m_list->GetCompListByComponentName(kNames[name].text), ofName) &&
           AreSame(m_list->GetCompListByBodyName(kNames[name].text), ofBody);
  }
  bool IsComponentExistByName() {
    const int name = AnyName();
    return m_list->IsComponentExistByName(kNames[name].text) == (HasName(*m_model, name) ? 1 : 0);
  }
  bool ChangeCompName() {
    const int oldName = AnyName();
    const int newName = AnyName();
    const int found = FirstOf([oldName](const ModelComponent& component) {
      return kNames[component.name].group == kNames[oldName].group;
    });
    if (found >= 0) {
      ModelAt(found).name = newName;
    }
    return m_list->ChangeCompName(kNames[oldName].text, kNames[newName].text) ==
           (found >= 0 ? 1 : 0);
  }
  bool HideAllExceptOneComponent() {
    const int name = AnyName();
    if (HasName(*m_model, name)) {
      for (ModelComponent& component : m_model->components) {
        component.hidden = component.name == name ? 0 : 1;
      }
    }
    m_list->HideAllExceptOneComponent(kNames[name].text);
    return true;
  }
  bool UnHideTemporarilyHiddenComps() {
    for (ModelComponent& component : m_model->components) {
      if (component.tempHidden == 1) {
        component.tempHidden = 0;
        component.hidden = 0;
      }
    }
    m_list->UnHideTemporarilyHiddenComps();
    return true;
  }
  bool FlipColor() {
    for (ModelComponent& component : m_model->components) {
      std::swap(component.color, component.bottomColor);
    }
    m_list->FlipColor();
    return true;
  }
  bool SetShellBottomFaceColor() {
    const PackedColor& color = AnyOf(kPackedColors);
    for (ModelComponent& component : m_model->components) {
      component.bottomColor = color.floats;
    }
    m_list->SetShellBottomFaceColor(color.packed);
    return true;
  }
  bool MakeColorList() {
    std::vector<Floats> colors;
    std::vector<Floats> bottomColors;
    for (const ModelComponent& component : m_model->components) {
      bool isKnown = false;
      for (const Floats& color : colors) {
        isKnown = isKnown || HaveEqualColors(color, component.color);
      }
      if (isKnown) {
        continue;
      }
      const bool isFirst = colors.empty();
      colors.push_back(component.color);
      if (!isFirst) {
        colors.push_back(component.bottomColor);
      }
      bottomColors.push_back(component.bottomColor);
    }
    const int result = m_list->MakeColorList(&m_colors, &m_bottomColors);
    return result == (Size() == 0 ? 0 : 1) && AreSame(m_colors, colors) &&
           AreSame(m_bottomColors, bottomColors);
  }
  /// Takes the order of components that end alike over from the list.
  bool SortByElemId() {
    const int ascending = AnyOf(kFlags);
    if (m_list->SortByElemID(ascending) != 1) {
      return false;
    }
    if (Size() < 2) {
      return StateIsSame();
    }
    ModelList sorted;
    std::vector<bool> isTaken(Size());
    for (int index = 0; index < m_list->m_arrComps.GetSize(); ++index) {
      std::size_t old = 0;
      while (old < Size() &&
             (isTaken[old] || !AreSame(m_list->m_arrComps[index], m_model->components[old]))) {
        ++old;
      }
      if (old == Size()) {
        return false;
      }
      isTaken[old] = true;
      sorted.components.push_back(m_model->components[old]);
      sorted.values.push_back(index + 1);
      if (index > 0) {
        const int before = sorted.components[static_cast<std::size_t>(index) - 1].last;
        const int last = sorted.components.back().last;
        if (ascending != 0 ? before > last : before < last) {
          return false;
        }
      }
    }
    *m_model = std::move(sorted);
    return StateIsSame();
  }
  bool Compare() {
    const int expected = AreEqual(*m_model, *m_otherModel) ? 1 : 0;
    return (*m_list == *m_other) == expected && (*m_other == *m_list) == expected &&
           (*m_list == *m_list) == 1;
  }
  bool CompareWithAnAlteredCopy() {
    ModelList altered = *m_model;
    CDspAsmCompList copy(*m_list);
    if (!altered.components.empty()) {
      const std::size_t index = Below(altered.components.size());
      const ModelComponent other = AnyComponent();
      CDspAsmComp& component = copy.m_arrComps[static_cast<int>(index)];
      altered.components[index].bodyId = component.m_nBodyID = other.bodyId;
      altered.components[index].compId = component.m_nCompID = other.compId;
      component.m_strCompName = kNames[other.name].text;
    }
    return (*m_list == copy) == (AreEqual(*m_model, altered) ? 1 : 0);
  }
  bool Assign() {
    *m_list = *m_other;
    *m_model = *m_otherModel;
    return StateIsSame();
  }
  bool AssignItself() {
    const CDspAsmCompList& self = *m_list;
    *m_list = self;
    return StateIsSame();
  }
  bool Copy() {
    const CDspAsmCompList copy(*m_list);
    return AreSame(copy, *m_model);
  }
  bool Move() {
    CDspAsmCompList moved(std::move(*m_list));
    const bool isSame = AreSame(moved, *m_model);
    *m_list = std::move(moved);
    return isSame && StateIsSame();
  }

  std::mt19937 m_random;
  int m_serial = 1;
  CDspAsmCompList m_lists[2];
  ModelList m_models[2];
  CDspAsmCompList* m_list = nullptr;
  ModelList* m_model = nullptr;
  CDspAsmCompList* m_other = nullptr;
  ModelList* m_otherModel = nullptr;
  CArray<COGLColor, COGLColor> m_colors;  // what they held last time is to be emptied
  CArray<COGLColor, COGLColor> m_bottomColors;
};

// clang-format off
const Play::Row Play::kRows[] = {
    // operation                        weight
    {"Add",                             60,  &Play::Add},
    {"Add with a value",                40,  &Play::AddWithValue},
    {"Add of its own component",        10,  &Play::AddOwn},
    {"removal from the array",          80,  &Play::Remove},
    {"RemoveAll",                       1,   &Play::RemoveAll},
    {"GetSize",                         10,  &Play::GetSize},
    {"GetAt",                           40,  &Play::GetAt},
    {"GetAt with a value",              40,  &Play::GetAtWithValue},
    {"SetAt",                           40,  &Play::SetAt},
    {"SetAt with a value",              40,  &Play::SetAtWithValue},
    {"SetSequence",                     50,  &Play::SetSequence},
    {"AllHidden",                       20,  &Play::AllHidden},
    {"GetPostAvailableCompCount",       20,  &Play::GetPostAvailableCompCount},
    {"HasPostCompMissing",              40,  &Play::HasPostCompMissing},
    {"GetVisPartIndex_1based",          100, &Play::GetVisPartIndex},
    {"GetActiveElemIndex",              60,  &Play::GetActiveElemIndex},
    {"GetIndexByBodyID",                40,  &Play::GetIndexByBodyId},
    {"GetComponentByBodyID",            40,  &Play::GetComponentByBodyId},
    {"names by body",                   40,  &Play::GetNamesByBodyId},
    {"GetBodyListByPartName",           40,  &Play::GetBodyListByPartName},
    {"component lists by name",         10,  &Play::GetCompLists},
    {"IsComponentExistByName",          40,  &Play::IsComponentExistByName},
    {"ChangeCompName",                  40,  &Play::ChangeCompName},
    {"HideAllExceptOneComponent",       4,   &Play::HideAllExceptOneComponent},
    {"UnHideTemporarilyHiddenComps",    6,   &Play::UnHideTemporarilyHiddenComps},
    {"FlipColor",                       20,  &Play::FlipColor},
    {"SetShellBottomFaceColor",         2,   &Play::SetShellBottomFaceColor},
    {"MakeColorList",                   40,  &Play::MakeColorList},
    {"SortByElemID",                    4,   &Play::SortByElemId},
    {"comparison",                      20,  &Play::Compare},
    {"comparison with a copy",          4,   &Play::CompareWithAnAlteredCopy},
    {"assignment",                      2,   &Play::Assign},
    {"assignment to itself",            2,   &Play::AssignItself},
    {"copy",                            4,   &Play::Copy},
    {"move",                            4,   &Play::Move},
};
// clang-format on

const Play::Row& Play::ChooseRow() {
  int total = 0;
  for (const Row& row : kRows) {
    total += row.weight;
  }
  int drawn = static_cast<int>(Below(static_cast<std::size_t>(total)));
  std::size_t chosen = 0;
  while (drawn >= kRows[chosen].weight) {
    drawn -= kRows[chosen++].weight;
  }
  return kRows[chosen];
}

TEST(AssemblyModel, RandomOperationsDoAsThePlainModel) {
  Play play(5489);
  std::array<int, std::size(Play::kRows)> calls{};
  std::array<int, kLargest + 1> sizes{};
  for (int step = 0; step < kOperations; ++step) {
    play.ChooseList();
    const Play::Row& row = play.ChooseRow();
    ASSERT_TRUE((play.*row.operation)())
        << row.name << " in step " << step << " with " << ::testing::PrintToString(play.State());
    if (step % 32 == 0) {
      ASSERT_TRUE(play.StateIsSame()) << "after " << row.name << " in step " << step << ": "
                                      << ::testing::PrintToString(play.State());
    }
    ++calls[static_cast<std::size_t>(&row - Play::kRows)];
    ++sizes[play.Size()];
  }
  for (std::size_t index = 0; index < calls.size(); ++index) {
    EXPECT_GT(calls[index], 500) << Play::kRows[index].name;
  }
  for (std::size_t size = 0; size < sizes.size(); ++size) {
    EXPECT_GT(sizes[size], 500) << "size " << size;
  }
}

}  // namespace
}  // namespace mqp::test
