/// \file
/// Questions about the components of an assembly that are asked often.
#pragma once

#include <memory>
#include <vector>

#include <mqPostCommon/display/assembly_list.h>
#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/wide_string.h>

namespace mqp {
class AsmCompSnapshot;
}

/// What a loop over the elements, bodies or names of a display asks its list, answered in constant
/// time: whatever the number of components, and however their ranges lie. Each answer is exactly
/// that of the list as it was when the index was made, where components are hidden, ranges overlap
/// or are none, and bodies and names occur several times included.
///
/// The index is a snapshot. It owns copies of all that it needs and points to nothing in the list,
/// which may change or go. It learns of no change: make a new one once components were added,
/// removed or sorted, or a range, `m_nVisIndexBase`, `m_bHidden`, a part name or a body id is
/// another one. Making one takes the time of sorting the components; a single question is answered
/// sooner by the list.
///
/// An index never changes, except by assignment, so threads may share it. Copies share what they
/// know and take neither time nor memory.
class MQPOSTCOMMON_API CDspAsmCompIndex {
 public:
  /// \throw std::bad_alloc
  explicit CDspAsmCompIndex(const CDspAsmCompList& list);
  CDspAsmCompIndex(const CDspAsmCompIndex&) noexcept;
  CDspAsmCompIndex& operator=(const CDspAsmCompIndex&) noexcept;
  ~CDspAsmCompIndex();

  /// The number of components.
  [[nodiscard]] int GetSize() const noexcept;

  /// The 1-based visible index of an element, by the first component that is shown, has a range
  /// and holds it: `CDspAsmCompList::GetVisPartIndex_1based`.
  /// \param index receives it; not null
  /// \return 1; 0 for none, with `index` as it was
  int GetVisPartIndex_1based(int elem, int* index) const noexcept;
  /// \return `base` and the lengths of all element ranges before a component; 1 for an index
  ///         outside the list
  [[nodiscard]] int GetActiveElemIndex(int compIndex, int base) const noexcept;

  /// The index of the first component of a body, or -1.
  [[nodiscard]] int GetIndexByBodyID(long bodyId) const noexcept;

  /// Appends the index of every component of a name, whatever the letter case, in the order of the
  /// list.
  /// \param out not emptied; not null
  /// \throw std::bad_alloc, with `out` as it was
  void GetBodyListByPartName(std::vector<int>* out, const CString& name) const;
  /// 1 when a component has the name as it is written, else 0.
  [[nodiscard]] int IsComponentExistByName(const CString& name) const noexcept;

 private:
  std::shared_ptr<const mqp::AsmCompSnapshot> m_snapshot;  // never null: there is no moving
};
