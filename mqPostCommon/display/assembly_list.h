/// \file
/// The components of an assembly in the order of a result view.
#pragma once

#include <vector>

#include <mqPostCommon/display/assembly_component.h>
#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/exceptions.h>
#include <mqPostCommon/platform/gfx_core.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/wide_string.h>

/// The components of an assembly, held by value and handed out as copies, and beside each a value
/// of the host's. Indices are 0-based; look-ups go in index order and take the first match. Names
/// are compared as they are written unless said otherwise.
///
/// When memory runs out a function throws `std::bad_alloc`, and the list is as it was, as is what
/// the function adds to or assigns; `MakeColorList` leaves some of the colours.
class MQPOSTCOMMON_API CDspAsmCompList {
 public:
  CDspAsmCompList();
  CDspAsmCompList(const CDspAsmCompList&);
  CDspAsmCompList(CDspAsmCompList&&) noexcept;
  CDspAsmCompList& operator=(const CDspAsmCompList& other);
  CDspAsmCompList& operator=(CDspAsmCompList&&) noexcept;
  ~CDspAsmCompList();

  /// 1 when both have the same number of components, equal one by one by `CDspAsmComp`'s rule,
  /// else 0. The values of the host are not compared.
  [[nodiscard]] int operator==(const CDspAsmCompList& other) const noexcept;
  [[nodiscard]] int operator!=(const CDspAsmCompList& other) const noexcept {
    return (*this == other) == 0 ? 1 : 0;
  }

  [[nodiscard]] int GetSize() const noexcept;
  void RemoveAll() noexcept;
  /// Appends a copy; its value becomes the new number of components.
  /// \return its index
  int Add(const CDspAsmComp& component);
  /// Appends a copy with a value. Returns its index.
  int Add(const CDspAsmComp& component, int value);

  /// A copy of a component.
  /// \throw CInvalidArgException for an index outside the list
  [[nodiscard]] CDspAsmComp GetAt(int index) const;
  /// A copy of a component, and its value: 0 for one that was added to the components alone.
  /// \param value receives it; not null
  /// \throw CInvalidArgException for an index outside the list
  [[nodiscard]] CDspAsmComp GetAt(int index, int* value) const;
  /// Replaces a component by assignment. The flip records of the old one are the host's from then
  /// on.
  /// \throw CInvalidArgException for an index outside the list
  void SetAt(int index, const CDspAsmComp& component);
  /// Replaces a component in the same way, and its value.
  /// \throw CInvalidArgException for an index outside the list
  void SetAt(int index, const CDspAsmComp& component, int value);
  /// Sets the element range of a component.
  /// \throw CInvalidArgException for an index outside the list
  void SetSequence(int index, int firstElem, int lastElem);
  /// The components themselves, which belong to the list.
  [[nodiscard]] CArray<CDspAsmComp>& GetDspAsmCompList() noexcept { return m_arrComps; }

  /// 1 when no component is shown, also in an empty list, else 0.
  [[nodiscard]] int AllHidden() const noexcept;
  /// How many components have neither end of their range at 0. Not those of
  /// `CDspAsmComp::PostAvailable`: the default range counts, and one that starts at 0 does not.
  [[nodiscard]] int GetPostAvailableCompCount() const noexcept;
  /// 1 when `other` has a component that counts as above and whose name no component here has,
  /// else 0.
  [[nodiscard]] int HasPostCompMissing(const CDspAsmCompList& other) const;

  /// The 1-based visible index of an element, by the first component that is shown, has a range
  /// and holds it: `m_nVisIndexBase - m_nFirstElem + elem`, wrapping around.
  /// \param index receives it; not null
  /// \return 1; 0 for none, with `index` as it was
  int GetVisPartIndex_1based(int elem, int* index) const noexcept;
  /// \return `base` and the lengths of all element ranges before a component; 1 for an index
  ///         outside the list
  [[nodiscard]] int GetActiveElemIndex(int compIndex, int base) const noexcept;

  /// The index of the first component of a body, or -1.
  [[nodiscard]] int GetIndexByBodyID(long bodyId) const noexcept;
  /// Assigns the first component of a body to `out`.
  /// \return 1; 0 for none, when `out` becomes the last component of the list, or stays as it was
  ///         when that is empty
  int GetComponentByBodyID(long bodyId, CDspAsmComp& out) const;
  /// The names of the first component of a body; empty for none.
  [[nodiscard]] CString GetBodyNameByBodyID(long bodyId) const;
  [[nodiscard]] CString GetPartNameByBodyID(long bodyId) const;

  /// Appends the index of every component of a name, whatever the letter case.
  /// \param out not emptied; not null
  void GetBodyListByPartName(std::vector<int>* out, const CString& name) const;
  /// Copies of all components of a name, or of a body name, with the values 1, 2, ...
  [[nodiscard]] CDspAsmCompList GetCompListByComponentName(const CString& name) const;
  [[nodiscard]] CDspAsmCompList GetCompListByBodyName(const CString& name) const;
  /// 1 when a component has the name, else 0.
  [[nodiscard]] int IsComponentExistByName(const CString& name) const noexcept;
  /// Renames the first component of a name, whatever its letter case. Returns 1, 0 for none.
  int ChangeCompName(const CString& oldName, const CString& newName);

  /// Shows the components of a name and hides all others; an unknown name changes nothing.
  void HideAllExceptOneComponent(const CString& name) noexcept;
  /// Shows every component whose `m_bTempHidden` is 1 and clears that.
  void UnHideTemporarilyHiddenComps() noexcept;
  /// Swaps the two colours of every component.
  void FlipColor() noexcept;
  /// \param color packed as `COGLColor` takes it
  void SetShellBottomFaceColor(unsigned long color) noexcept;

  /// The distinct colours in use, in linear time: of the first component its colour goes to
  /// `colors` and its bottom colour to `bottomColors`; of each further one whose colour `colors`
  /// does not hold yet both go to `colors`, the bottom colour to `bottomColors` as well.
  /// \param colors       emptied first, and so is `bottomColors`, another array
  /// \return 1; 0 when a pointer is null, and for an empty list
  int MakeColorList(CArray<COGLColor, COGLColor>* colors,
                    CArray<COGLColor, COGLColor>* bottomColors) const;

  /// Sorts by the last element number; components of the same one in no defined order. The values
  /// of the host become 1, 2, ... in the new order, unless there are fewer than two components.
  /// \param ascending 0: the largest first
  /// \return 1
  int SortByElemID(int ascending);

  mqp::ValueArray<CDspAsmComp> m_arrComps;
  mqp::ValueArray<int> m_arrCompValues;  ///< one for each component
};
