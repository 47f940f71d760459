#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <numeric>
#include <span>
#include <unordered_set>
#include <utility>
#include <vector>

#include <emmintrin.h>

#include <mqPostCommon/display/assembly_list.h>
#include <mqPostCommon/lists/pairs.h>
#include <mqPostCommon/platform/lookup_tables.h>

namespace mqp {
namespace {

using List = CDspAsmCompList;

constexpr int kNone = -1;

/// Sums wrap around as the host's do; element numbers of a real mesh never do.
constexpr unsigned Wrapping(int value) noexcept {
  return static_cast<unsigned>(value);
}

std::span<const CDspAsmComp> Components(const List& list) noexcept {
  return {list.m_arrComps.GetData(), static_cast<std::size_t>(list.m_arrComps.GetSize())};
}
std::span<CDspAsmComp> Components(List& list) noexcept {
  return {list.m_arrComps.GetData(), static_cast<std::size_t>(list.m_arrComps.GetSize())};
}

/// The first component that meets a condition, or null.
const CDspAsmComp* FindFirst(const List& list, auto meets) noexcept {
  const std::span<const CDspAsmComp> components = Components(list);
  // libstdc++ looks at four at a time here, and not in std::ranges::find_if.
  const auto found = std::find_if(components.begin(), components.end(), meets);
  return found == components.end() ? nullptr : &*found;
}

const CDspAsmComp* FindBody(const List& list, long bodyId) noexcept {
  return FindFirst(
      list, [bodyId](const CDspAsmComp& component) { return component.m_nBodyID == bodyId; });
}

List SelectByName(const List& list, CString CDspAsmComp::* name, const CString& wanted) {
  List selected;
  for (const CDspAsmComp& component : Components(list)) {
    if (component.*name == wanted) {
      selected.Add(component);
    }
  }
  return selected;
}

void RequireIndex(const List& list, int index) {
  if (index < 0 || index >= list.GetSize()) {
    throw CInvalidArgException("a component index lies outside the list");
  }
}

/// Lets `place` put a component at an index and sets its value. When memory runs out neither has
/// happened.
void PlaceWithValue(ValueArray<int>& values, int index, int value, auto place) {
  const int before = values.GetSize();
  values.SetSize(std::max(before, index + 1));
  try {
    place();
  } catch (...) {
    values.SetSize(before);
    throw;
  }
  values[index] = value;
}

constexpr bool HasRangeOffZero(const CDspAsmComp& component) noexcept {
  return component.m_nFirstElem != 0 && component.m_nLastElem != 0;
}

using Colors = CArray<COGLColor, COGLColor>;

/// A colour that is not made of numbers equals none, not even itself.
bool AreEqual(__m128 left, __m128 right) noexcept {
  constexpr int kAllParts = 0b1111;
  return _mm_movemask_ps(_mm_cmpeq_ps(left, right)) == kAllParts;
}

/// The same for equal colours: -0 becomes 0.
std::uint32_t KeyOf(__m128 color) noexcept {
  constexpr std::uint64_t kGoldenRatio = 0x9E3779B97F4A7C15U;
  const auto bits =
      std::bit_cast<std::array<std::uint64_t, 2>>(_mm_add_ps(color, _mm_setzero_ps()));
  return static_cast<std::uint32_t>((bits[0] * kGoldenRatio ^ bits[1]) * kGoldenRatio >> 32);
}

/// Whether `colors` lacks a colour. `places` knows where each of them is, and takes note that this
/// one comes next.
bool IsNew(const COGLColor& color, const Colors& colors, KeyTable& places) {
  const auto parts = std::bit_cast<__m128>(color);
  if (!AreEqual(parts, parts)) {
    return true;
  }
  const int next = colors.GetSize();
  const auto isSame = [&](int place) {
    return AreEqual(std::bit_cast<__m128>(colors[place]), parts);
  };
  return places.FindOrAdd(KeyOf(parts), next, isSame) == next;
}

int CompareKeys(const void* left, const void* right) noexcept {
  const int leftKey = static_cast<const CVekIntPair*>(left)->m_nSecond;
  const int rightKey = static_cast<const CVekIntPair*>(right)->m_nSecond;
  return (leftKey > rightKey ? 1 : 0) - (leftKey < rightKey ? 1 : 0);
}
int CompareKeysDescending(const void* left, const void* right) noexcept {
  return CompareKeys(right, left);
}

}  // namespace
}  // namespace mqp

CDspAsmCompList::CDspAsmCompList() = default;
CDspAsmCompList::CDspAsmCompList(const CDspAsmCompList&) = default;
CDspAsmCompList::CDspAsmCompList(CDspAsmCompList&&) noexcept = default;
CDspAsmCompList& CDspAsmCompList::operator=(const CDspAsmCompList& other) {
  if (this != &other) {
    *this = CDspAsmCompList(other);
  }
  return *this;
}
CDspAsmCompList& CDspAsmCompList::operator=(CDspAsmCompList&&) noexcept = default;
CDspAsmCompList::~CDspAsmCompList() = default;

int CDspAsmCompList::operator==(const CDspAsmCompList& other) const noexcept {
  const auto isSame = [](const CDspAsmComp& left, const CDspAsmComp& right) {
    return (left == right) != 0;
  };
  return std::ranges::equal(mqp::Components(*this), mqp::Components(other), isSame) ? 1 : 0;
}

// ---------------------------------------------------------------------------------------------
// Single components

int CDspAsmCompList::GetSize() const noexcept {
  return m_arrComps.GetSize();
}

void CDspAsmCompList::RemoveAll() noexcept {
  m_arrComps.RemoveAll();
  m_arrCompValues.RemoveAll();
}

int CDspAsmCompList::Add(const CDspAsmComp& component) {
  return Add(component, GetSize() + 1);
}

int CDspAsmCompList::Add(const CDspAsmComp& component, int value) {
  const int index = GetSize();
  mqp::PlaceWithValue(m_arrCompValues, index, value, [&] { m_arrComps.Add(component); });
  return index;
}

CDspAsmComp CDspAsmCompList::GetAt(int index) const {
  mqp::RequireIndex(*this, index);
  return m_arrComps[index];
}

CDspAsmComp CDspAsmCompList::GetAt(int index, int* value) const {
  mqp::RequireIndex(*this, index);
  // Somebody who adds to the components themselves leaves their values behind.
  *value = index < m_arrCompValues.GetSize() ? m_arrCompValues[index] : 0;
  return m_arrComps[index];
}

void CDspAsmCompList::SetAt(int index, const CDspAsmComp& component) {
  mqp::RequireIndex(*this, index);
  m_arrComps.SetAt(index, component);
}

void CDspAsmCompList::SetAt(int index, const CDspAsmComp& component, int value) {
  mqp::RequireIndex(*this, index);
  mqp::PlaceWithValue(m_arrCompValues, index, value, [&] { m_arrComps.SetAt(index, component); });
}

void CDspAsmCompList::SetSequence(int index, int firstElem, int lastElem) {
  mqp::RequireIndex(*this, index);
  m_arrComps[index].m_nFirstElem = firstElem;
  m_arrComps[index].m_nLastElem = lastElem;
}

// ---------------------------------------------------------------------------------------------
// Questions

int CDspAsmCompList::AllHidden() const noexcept {
  const auto isHidden = [](const CDspAsmComp& component) { return component.m_bHidden != 0; };
  return std::ranges::all_of(mqp::Components(*this), isHidden) ? 1 : 0;
}

int CDspAsmCompList::GetPostAvailableCompCount() const noexcept {
  return static_cast<int>(std::ranges::count_if(mqp::Components(*this), mqp::HasRangeOffZero));
}

int CDspAsmCompList::HasPostCompMissing(const CDspAsmCompList& other) const {
  std::unordered_set<mqTextView> names;
  for (const CDspAsmComp& component : mqp::Components(*this)) {
    names.insert(component.m_strCompName.View());
  }
  const auto isMissing = [&names](const CDspAsmComp& component) {
    return mqp::HasRangeOffZero(component) && !names.contains(component.m_strCompName.View());
  };
  return std::ranges::any_of(mqp::Components(other), isMissing) ? 1 : 0;
}

int CDspAsmCompList::GetVisPartIndex_1based(int elem, int* index) const noexcept {
  // One comparison, which nearly always has the same outcome, is made of a component that does not
  // hold the element, and its range alone is read. It lets pass some that are no ranges.
  const CDspAsmComp* holder = mqp::FindFirst(*this, [elem](const CDspAsmComp& component) {
    const unsigned first = mqp::Wrapping(component.m_nFirstElem);
    return mqp::Wrapping(elem) - first <= mqp::Wrapping(component.m_nLastElem) - first &&
           component.PostAvailable() != 0 && component.m_bHidden == 0;
  });
  if (holder == nullptr) {
    return 0;
  }
  *index = static_cast<int>(mqp::Wrapping(holder->m_nVisIndexBase) -
                            mqp::Wrapping(holder->m_nFirstElem) + mqp::Wrapping(elem));
  return 1;
}

int CDspAsmCompList::GetActiveElemIndex(int compIndex, int base) const noexcept {
  if (compIndex < 0 || compIndex >= GetSize()) {
    return 1;  // whatever the base
  }
  unsigned sum = mqp::Wrapping(base);
  for (const CDspAsmComp& component :
       mqp::Components(*this).first(static_cast<std::size_t>(compIndex))) {
    sum += mqp::Wrapping(component.m_nLastElem) - mqp::Wrapping(component.m_nFirstElem) + 1U;
  }
  return static_cast<int>(sum);
}

int CDspAsmCompList::GetIndexByBodyID(long bodyId) const noexcept {
  const CDspAsmComp* found = mqp::FindBody(*this, bodyId);
  return found == nullptr ? mqp::kNone : static_cast<int>(found - m_arrComps.GetData());
}

int CDspAsmCompList::GetComponentByBodyID(long bodyId, CDspAsmComp& out) const {
  if (const CDspAsmComp* found = mqp::FindBody(*this, bodyId)) {
    out = *found;
    return 1;
  }
  if (!m_arrComps.IsEmpty()) {
    out = m_arrComps[m_arrComps.GetUpperBound()];
  }
  return 0;
}

CString CDspAsmCompList::GetBodyNameByBodyID(long bodyId) const {
  const CDspAsmComp* found = mqp::FindBody(*this, bodyId);
  return found == nullptr ? CString() : found->m_strBodyName;
}

CString CDspAsmCompList::GetPartNameByBodyID(long bodyId) const {
  const CDspAsmComp* found = mqp::FindBody(*this, bodyId);
  return found == nullptr ? CString() : found->m_strCompName;
}

void CDspAsmCompList::GetBodyListByPartName(std::vector<int>* out, const CString& name) const {
  std::vector<int> found;
  for (int index = 0; index < GetSize(); ++index) {
    if (m_arrComps[index].m_strCompName.CompareNoCase(name) == 0) {
      found.push_back(index);
    }
  }
  out->insert(out->end(), found.begin(), found.end());
}

CDspAsmCompList CDspAsmCompList::GetCompListByComponentName(const CString& name) const {
  return mqp::SelectByName(*this, &CDspAsmComp::m_strCompName, name);
}

CDspAsmCompList CDspAsmCompList::GetCompListByBodyName(const CString& name) const {
  return mqp::SelectByName(*this, &CDspAsmComp::m_strBodyName, name);
}

int CDspAsmCompList::IsComponentExistByName(const CString& name) const noexcept {
  const auto* found = mqp::FindFirst(
      *this, [&name](const CDspAsmComp& component) { return component.m_strCompName == name; });
  return found == nullptr ? 0 : 1;
}

// ---------------------------------------------------------------------------------------------
// Edits

int CDspAsmCompList::ChangeCompName(const CString& oldName, const CString& newName) {
  for (CDspAsmComp& component : mqp::Components(*this)) {
    if (component.m_strCompName.CompareNoCase(oldName) == 0) {
      component.m_strCompName = newName;
      return 1;
    }
  }
  return 0;
}

void CDspAsmCompList::HideAllExceptOneComponent(const CString& name) noexcept {
  if (IsComponentExistByName(name) == 0) {
    return;
  }
  for (CDspAsmComp& component : mqp::Components(*this)) {
    component.m_bHidden = component.m_strCompName == name ? 0 : 1;
  }
}

void CDspAsmCompList::UnHideTemporarilyHiddenComps() noexcept {
  for (CDspAsmComp& component : mqp::Components(*this)) {
    if (component.m_bTempHidden == 1) {
      component.m_bHidden = 0;
      component.m_bTempHidden = 0;
    }
  }
}

void CDspAsmCompList::FlipColor() noexcept {
  for (CDspAsmComp& component : mqp::Components(*this)) {
    component.FlipColor();
  }
}

void CDspAsmCompList::SetShellBottomFaceColor(unsigned long color) noexcept {
  for (CDspAsmComp& component : mqp::Components(*this)) {
    component.m_BottomColor = color;
  }
}

int CDspAsmCompList::MakeColorList(CArray<COGLColor, COGLColor>* colors,
                                   CArray<COGLColor, COGLColor>* bottomColors) const {
  if (colors == nullptr || bottomColors == nullptr) {
    return 0;
  }
  colors->RemoveAll();
  bottomColors->RemoveAll();
  mqp::KeyTable places;
  const std::span<const CDspAsmComp> components = mqp::Components(*this);
  for (std::size_t place = 0; place < components.size(); ++place) {
    mqp::FetchAhead(components, place, &CDspAsmComp::m_Color);
    const CDspAsmComp& component = components[place];
    const bool isFirst = colors->IsEmpty();
    if (!mqp::IsNew(component.m_Color, *colors, places)) {
      continue;
    }
    colors->Add(component.m_Color);
    if (!isFirst) {  // on purpose: the bottom colour of the first one stays out
      static_cast<void>(mqp::IsNew(component.m_BottomColor, *colors, places));
      colors->Add(component.m_BottomColor);
    }
    bottomColors->Add(component.m_BottomColor);
  }
  return m_arrComps.IsEmpty() ? 0 : 1;
}

int CDspAsmCompList::SortByElemID(int ascending) {
  const int count = GetSize();
  if (count < 2) {
    return 1;
  }
  std::vector<CVekIntPair> order(static_cast<std::size_t>(count));
  for (int index = 0; index < count; ++index) {
    CVekIntPair& pair = order[static_cast<std::size_t>(index)];
    pair.m_nFirst = index;
    pair.m_nSecond = m_arrComps[index].m_nLastElem;
  }
  std::qsort(order.data(), order.size(), sizeof(CVekIntPair),
             ascending != 0 ? mqp::CompareKeys : mqp::CompareKeysDescending);
  std::vector<int> places(order.size());
  std::ranges::transform(order, places.begin(), &CVekIntPair::m_nFirst);
  mqp::ValueArray<int> values;
  values.SetSize(count);
  std::iota(values.GetData(), values.GetData() + count, 1);

  m_arrComps.Reorder(places);
  m_arrCompValues = std::move(values);
  return 1;
}
