// Operations on lists of assembly components, beside a vector of plain components. Two lists are
// played, so that they are compared and assigned. An index of a list answers like the list, which
// is gone by then. Flip records are deleted once: by their owners, or at the end, where nobody owns
// them or an assignment left them behind; a second deletion and a forgotten one end the program by
// themselves.
#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

#include <mqPostCommon/display/assembly_index.h>
#include <mqPostCommon/display/assembly_list.h>

#include "assembly_model.h"
#include "input.h"

namespace mqp::fuzz {
namespace {

constexpr std::size_t kMostComponents = 24;
constexpr int kMostOperations = 200;

const CString kNames[] = {MQ_TEXT("a"), MQ_TEXT("A"), MQ_TEXT("ab"), MQ_TEXT("AB"), MQ_TEXT("")};
const COGLColor kColors[] = {
    {1, 0, 0, 1},     {0, 1, 0, 1},          {0, 0, 0, 1},
    {-0.0F, 0, 0, 1}, {0.5F, 0.5F, 0.5F, 1}, {std::numeric_limits<float>::quiet_NaN(), 0, 0, 1}};

int Wrapped(std::int64_t sum) {
  return static_cast<int>(static_cast<std::uint32_t>(sum));
}

template <class Call>
bool IsRefused(const Call& call) {
  try {
    call();
  } catch (const CInvalidArgException&) {
    return true;
  }
  return false;
}

class Play {
 public:
  explicit Play(Input& input) : m_input(input) {}

  void Run() {
    for (int step = 0; step < kMostOperations && !m_input.IsOver(); ++step) {
      const int chosen = m_input.Below(2);
      m_list = &m_lists[chosen];
      m_plain = &m_plains[chosen];
      m_other = &m_lists[1 - chosen];
      m_otherPlain = &m_plains[1 - chosen];
      (this->*kOperations[m_input.Below(std::size(kOperations))])();
      Require(AreSame(*m_list, *m_plain), "the list after an operation");
    }
  }

 private:
  using Operation = void (Play::*)();
  static const Operation kOperations[16];

  std::vector<Plain>& Plains() { return m_plain->components; }
  template <class Predicate>
  int FirstOf(const Predicate& meets) {
    const auto found = std::ranges::find_if(Plains(), meets, &Plain::members);
    return found == Plains().end() ? -1 : static_cast<int>(found - Plains().begin());
  }
  Plain& At(int index) { return Plains()[static_cast<std::size_t>(index)]; }
  int AnyNumber() {
    constexpr int kFar[] = {INT_MIN, INT_MIN + 1, INT_MAX - 1, INT_MAX};
    const int number = m_input.Below(20) - 4;
    return number < 12 ? number : kFar[(number - 12) % 4];
  }
  int AnyFlag() { return m_input.Below(4) - 1; }
  const CString& AnyName() { return kNames[m_input.Below(std::size(kNames))]; }
  const COGLColor& AnyColor() { return kColors[m_input.Below(std::size(kColors))]; }
  /// Inside the list or just outside.
  int AnyIndex() { return m_input.Below(static_cast<int>(Plains().size()) + 2) - 1; }
  [[nodiscard]] CDspAsmCompIndex IndexOfACopy() const {
    return CDspAsmCompIndex(CDspAsmCompList(*m_list));
  }
  bool IsInside(int index) { return index >= 0 && index < static_cast<int>(Plains().size()); }

  Plain AnyPlain() {
    Plain plain;
    plain.members.m_nCompID = m_input.Below(2);
    plain.members.m_nFirstElem = AnyNumber();
    plain.members.m_nLastElem = AnyNumber();
    plain.members.m_Color = AnyColor();
    plain.members.m_BottomColor = AnyColor();
    plain.members.m_bHidden = AnyFlag();
    plain.members.m_strCompName = AnyName();
    plain.members.m_strBodyName = AnyName();
    plain.members.m_nBodyID = m_input.Below(4);
    plain.members.m_nVisIndexBase = AnyNumber();
    plain.members.m_bOwnsMeshData = AnyFlag();
    plain.members.m_bOwnsMeshData2 = AnyFlag();
    plain.members.m_bTempHidden = AnyFlag();
    plain.members.m_nHost22[0] = m_serial++;
    plain.records.assign(static_cast<std::size_t>(m_input.Below(3)), plain.members.m_nHost22[0]);
    return plain;
  }
  void Add();
  void AddOwn();
  void Remove();
  void SetAt();
  void SetSequence();
  void AskIndex();
  void AskCounts();
  void AskElement();
  void AskBody();
  void AskNames();
  void Rename();
  void Hide();
  void Recolor();
  void MakeColorList();
  void Sort();
  void CompareAndCopy();

  Input& m_input;
  Ledger m_ledger;  // outlives the lists
  int m_serial = 1;
  CDspAsmCompList m_lists[2];
  PlainList m_plains[2];
  CDspAsmCompList* m_list = nullptr;
  PlainList* m_plain = nullptr;
  CDspAsmCompList* m_other = nullptr;
  PlainList* m_otherPlain = nullptr;
};

const Play::Operation Play::kOperations[16] = {
    &Play::Add,         &Play::AddOwn,        &Play::Remove,    &Play::SetAt,
    &Play::SetSequence, &Play::AskIndex,      &Play::AskCounts, &Play::AskElement,
    &Play::AskBody,     &Play::AskNames,      &Play::Rename,    &Play::Hide,
    &Play::Recolor,     &Play::MakeColorList, &Play::Sort,      &Play::CompareAndCopy};

void Play::Add() {
  if (Plains().size() == kMostComponents) {
    return;
  }
  const Plain plain = AnyPlain();
  const bool hasValue = m_input.ConsumeBool();
  const int last = static_cast<int>(Plains().size());
  Plains().push_back(plain);
  m_plain->values.push_back(hasValue ? AnyNumber() : last + 1);
  const int index = hasValue ? m_list->Add(m_ledger.Make(plain), m_plain->values.back())
                             : m_list->Add(m_ledger.Make(plain));
  Require(index == last, "the index of an added component");
}

void Play::AddOwn() {
  const int index = AnyIndex();
  if (IsInside(index) && Plains().size() < kMostComponents) {
    m_list->Add(m_list->GetDspAsmCompList()[index]);
    Plains().push_back(Plain(At(index)));
    m_plain->values.push_back(static_cast<int>(Plains().size()));
  }
}

void Play::Remove() {
  const int index = AnyIndex();
  if (IsInside(index)) {
    m_list->m_arrComps.RemoveAt(index);
    m_list->m_arrCompValues.RemoveAt(index);
    Plains().erase(Plains().begin() + index);
    m_plain->values.erase(m_plain->values.begin() + index);
  } else if (index > 0) {
    m_list->RemoveAll();
    *m_plain = {};
  }
}

void Play::SetAt() {
  const int index = AnyIndex();
  const Plain plain = AnyPlain();
  const CDspAsmComp component = m_ledger.Make(plain);
  const int value = AnyNumber();
  if (!IsInside(index)) {
    Require(IsRefused([&] { m_list->SetAt(index, component); }) &&
                IsRefused([&] { m_list->SetAt(index, component, value); }),
            "SetAt outside the list is refused");
    return;
  }
  const bool hasValue = m_input.ConsumeBool();
  m_ledger.Reassign(m_list->m_arrComps[index], At(index), plain, [&] {
    hasValue ? m_list->SetAt(index, component, value) : m_list->SetAt(index, component);
  });
  At(index) = plain;
  int& kept = m_plain->values[static_cast<std::size_t>(index)];
  kept = hasValue ? value : kept;
}

void Play::SetSequence() {
  const int index = AnyIndex();
  const int first = AnyNumber();
  const int last = AnyNumber();
  if (!IsInside(index)) {
    Require(IsRefused([&] { m_list->SetSequence(index, first, last); }),
            "SetSequence outside the list is refused");
    return;
  }
  m_list->SetSequence(index, first, last);
  At(index).members.m_nFirstElem = first;
  At(index).members.m_nLastElem = last;
}

void Play::AskIndex() {
  const int index = AnyIndex();
  const int base = AnyNumber();
  std::int64_t sum = base;
  for (int before = 0; IsInside(index) && before < index; ++before) {
    sum += std::int64_t{At(before).members.m_nLastElem} - At(before).members.m_nFirstElem + 1;
  }
  int value = 0;
  Require(IsInside(index) || (IsRefused([&] { static_cast<void>(m_list->GetAt(index)); }) &&
                              IsRefused([&] { static_cast<void>(m_list->GetAt(index, &value)); })),
          "GetAt outside the list is refused");
  const int active = IsInside(index) ? Wrapped(sum) : 1;
  Require(m_list->GetActiveElemIndex(index, base) == active, "the active index");
  Require(IndexOfACopy().GetActiveElemIndex(index, base) == active, "the active index by an index");
}

void Play::AskCounts() {
  const auto hasName = [this](const CString& name) {
    return FirstOf([&](const AsmCompMembers& members) { return members.m_strCompName == name; }) >=
           0;
  };
  const bool isMissing = std::ranges::any_of(m_otherPlain->components, [&](const Plain& plain) {
    return plain.Counts() && !hasName(plain.members.m_strCompName);
  });
  Require(m_list->AllHidden() ==
              (FirstOf([](const AsmCompMembers& one) { return one.m_bHidden == 0; }) < 0 ? 1 : 0),
          "whether all are hidden");
  Require(m_list->GetPostAvailableCompCount() == std::ranges::count_if(Plains(), &Plain::Counts),
          "the count of components with results");
  Require(m_list->HasPostCompMissing(*m_other) == (isMissing ? 1 : 0), "whether one is missing");
  Require(IndexOfACopy().GetSize() == static_cast<int>(Plains().size()), "the size of an index");
}

void Play::AskElement() {
  const int element = AnyNumber();
  const int holder = FirstOf([element](const AsmCompMembers& one) {
    return one.m_bHidden == 0 && one.m_nFirstElem >= 0 && one.m_nLastElem >= one.m_nFirstElem &&
           one.m_nFirstElem <= element && element <= one.m_nLastElem;
  });
  const auto ask = [&](const auto& asked) {
    constexpr int kUntouched = 12345;
    int index = kUntouched;
    const int answer = asked.GetVisPartIndex_1based(element, &index);
    Require(answer == (holder < 0 ? 0 : 1), "whether an element is shown");
    Require(index == (holder < 0 ? kUntouched
                                 : Wrapped(std::int64_t{At(holder).members.m_nVisIndexBase} -
                                           At(holder).members.m_nFirstElem + element)),
            "the visible index of an element");
  };
  ask(*m_list);
  ask(IndexOfACopy());
}

void Play::AskBody() {
  const int body = m_input.Below(5);
  const int found = FirstOf([body](const AsmCompMembers& one) { return one.m_nBodyID == body; });
  Require(m_list->GetIndexByBodyID(body) == found, "the index of a body");
  Require(IndexOfACopy().GetIndexByBodyID(body) == found, "the index of a body by an index");
  Require(m_list->GetPartNameByBodyID(body) ==
                  (found < 0 ? CString() : At(found).members.m_strCompName) &&
              m_list->GetBodyNameByBodyID(body) ==
                  (found < 0 ? CString() : At(found).members.m_strBodyName),
          "the names of a body");
  const Plain before = AnyPlain();
  CDspAsmComp out = m_ledger.Make(before);
  if (Plains().empty()) {
    Require(m_list->GetComponentByBodyID(body, out) == 0 && AreSame(out, before), "no component");
    return;
  }
  const Plain& assigned = found < 0 ? Plains().back() : At(found);
  m_ledger.Reassign(out, before, assigned, [&] {
    Require(m_list->GetComponentByBodyID(body, out) == (found < 0 ? 0 : 1), "whether it is found");
  });
  Require(AreSame(out, assigned), "the component of a body");
}

void Play::AskNames() {
  const CString& name = AnyName();
  PlainList ofName;
  PlainList ofBody;
  std::vector<int> indices = {-5};
  for (int index = 0; IsInside(index); ++index) {
    const Plain& plain = At(index);
    for (auto [list, own] : {std::pair(&ofName, &plain.members.m_strCompName),
                             std::pair(&ofBody, &plain.members.m_strBodyName)}) {
      if (*own == name) {
        list->components.push_back(plain);
        list->values.push_back(static_cast<int>(list->components.size()));
      }
    }
    if (plain.members.m_strCompName.CompareNoCase(name) == 0) {
      indices.push_back(index);
    }
  }
  const auto ask = [&](const auto& asked) {
    std::vector<int> out = {-5};
    asked.GetBodyListByPartName(&out, name);
    Require(out == indices, "the indices of a name");
    Require(asked.IsComponentExistByName(name) == (ofName.values.empty() ? 0 : 1),
            "whether a name exists");
  };
  ask(*m_list);
  ask(IndexOfACopy());
  Require(AreSame(m_list->GetCompListByComponentName(name), ofName), "the components of a name");
  Require(AreSame(m_list->GetCompListByBodyName(name), ofBody), "the components of a body name");
}

void Play::Rename() {
  const CString& oldName = AnyName();
  const CString& newName = AnyName();
  const int found = FirstOf(
      [&](const AsmCompMembers& one) { return one.m_strCompName.CompareNoCase(oldName) == 0; });
  if (found >= 0) {
    At(found).members.m_strCompName = newName;
  }
  Require(m_list->ChangeCompName(oldName, newName) == (found < 0 ? 0 : 1),
          "whether one is renamed");
}

void Play::Hide() {
  if (m_input.ConsumeBool()) {
    m_list->UnHideTemporarilyHiddenComps();
    for (Plain& plain : Plains()) {
      const bool isHiddenForATime = plain.members.m_bTempHidden == 1;
      plain.members.m_bHidden = isHiddenForATime ? 0 : plain.members.m_bHidden;
      plain.members.m_bTempHidden = isHiddenForATime ? 0 : plain.members.m_bTempHidden;
    }
    return;
  }
  const CString& name = AnyName();
  m_list->HideAllExceptOneComponent(name);
  if (FirstOf([&](const AsmCompMembers& one) { return one.m_strCompName == name; }) >= 0) {
    for (Plain& plain : Plains()) {
      plain.members.m_bHidden = plain.members.m_strCompName == name ? 0 : 1;
    }
  }
}

void Play::Recolor() {
  constexpr unsigned long kRed = 0x0000FFUL;
  const bool isFlip = m_input.ConsumeBool();
  isFlip ? m_list->FlipColor() : m_list->SetShellBottomFaceColor(kRed);
  for (Plain& plain : Plains()) {
    if (isFlip) {
      std::swap(plain.members.m_Color, plain.members.m_BottomColor);
    } else {
      plain.members.m_BottomColor = COGLColor(1, 0, 0, 1);
    }
  }
}

void Play::MakeColorList() {
  std::vector<COGLColor> colors;
  std::vector<COGLColor> bottomColors;
  for (const Plain& plain : Plains()) {
    if (std::ranges::count(colors, plain.members.m_Color) == 0) {
      const bool isFirst = colors.empty();
      colors.push_back(plain.members.m_Color);
      bottomColors.push_back(plain.members.m_BottomColor);
      if (!isFirst) {
        colors.push_back(plain.members.m_BottomColor);
      }
    }
  }
  CArray<COGLColor, COGLColor> got;
  CArray<COGLColor, COGLColor> gotBottom;
  got.Add(kColors[0]);  // to be emptied
  Require(m_list->MakeColorList(&got, nullptr) == 0 && got.GetSize() == 1, "null is refused");
  Require(m_list->MakeColorList(&got, &gotBottom) == (Plains().empty() ? 0 : 1), "the answer");
  Require(AreSame(got, colors) && AreSame(gotBottom, bottomColors), "the colours in use");
}

/// The order of components that end alike is taken over from the list.
void Play::Sort() {
  const int ascending = AnyFlag();
  Require(m_list->SortByElemID(ascending) == 1, "the answer of sorting");
  if (Plains().size() < 2) {
    return;
  }
  std::vector<Plain> left = std::exchange(Plains(), {});
  m_plain->values.clear();
  for (int index = 0; index < m_list->GetSize(); ++index) {
    const auto found = std::ranges::find_if(
        left, [&](const Plain& plain) { return AreSame(m_list->m_arrComps[index], plain); });
    Require(found != left.end(), "sorting keeps the components");
    Plains().push_back(*found);
    m_plain->values.push_back(index + 1);
    left.erase(found);
  }
  const auto last = [](const Plain& plain) { return plain.members.m_nLastElem; };
  Require(ascending != 0 ? std::ranges::is_sorted(Plains(), std::less(), last)
                         : std::ranges::is_sorted(Plains(), std::greater(), last),
          "components are sorted");
}

void Play::CompareAndCopy() {
  const auto areEqual = [](const Plain& one, const Plain& other) {
    return one.members.m_nCompID == other.members.m_nCompID &&
           one.members.m_nFirstElem == other.members.m_nFirstElem &&
           one.members.m_nLastElem == other.members.m_nLastElem &&
           one.members.m_bHidden == other.members.m_bHidden &&
           one.members.m_nBodyID == other.members.m_nBodyID;
  };
  const int expected = std::ranges::equal(Plains(), m_otherPlain->components, areEqual) ? 1 : 0;
  Require((*m_list == *m_other) == expected && (*m_list != *m_other) == 1 - expected,
          "whether two lists are equal");
  CDspAsmCompList copy(*m_list);
  Require(AreSame(copy, *m_plain) && (copy == *m_list) == 1, "a copy");
  switch (m_input.Below(4)) {
    case 0: *m_list = std::move(copy); break;
    case 1: *m_list = static_cast<const CDspAsmCompList&>(*m_list); break;
    case 2:
      *m_list = *m_other;
      *m_plain = *m_otherPlain;
      break;
    default: break;
  }
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  mqp::fuzz::Input input(data, size);
  mqp::fuzz::Play(input).Run();
  return 0;
}
