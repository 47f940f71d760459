/// \file
/// Assembly components as plain values, for a list of them to be compared with, and who deletes
/// which flip record.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <tuple>
#include <vector>

#include <mqPostCommon/display/assembly_list.h>

namespace mqp::fuzz {

struct Plain {
  AsmCompMembers members;
  std::vector<int> records;  ///< a value that each flip record holds

  [[nodiscard]] bool IsOwner() const {
    return members.m_bOwnsMeshData == 1 || members.m_bOwnsMeshData2 == 1;
  }
  [[nodiscard]] bool Counts() const {
    return members.m_nFirstElem != 0 && members.m_nLastElem != 0;
  }
};
struct PlainList {
  std::vector<Plain> components;
  std::vector<int> values;
};

/// What the list looks at, and a number that tells components apart.
inline auto Compared(const AsmCompMembers& members) {
  return std::tie(members.m_nCompID, members.m_nFirstElem, members.m_nLastElem, members.m_bHidden,
                  members.m_strCompName, members.m_strBodyName, members.m_nBodyID,
                  members.m_nVisIndexBase, members.m_bOwnsMeshData, members.m_bOwnsMeshData2,
                  members.m_bTempHidden, members.m_nHost22[0]);
}

/// By the bits: a part can be no number.
inline bool AreSame(const COGLColor& one, const COGLColor& other) {
  using Bits = std::array<std::uint32_t, 4>;
  return std::bit_cast<Bits>(one) == std::bit_cast<Bits>(other);
}
inline bool AreSame(const CArray<COGLColor, COGLColor>& got,
                    const std::vector<COGLColor>& expected) {
  return std::equal(got.GetData(), got.GetData() + got.GetSize(), expected.begin(), expected.end(),
                    [](auto& one, auto& other) { return AreSame(one, other); });
}
inline bool AreSame(const CDspAsmComp& got, const Plain& expected) {
  const auto& records = got.m_arrFlipData;
  const auto isSame = [](const CShellEntityID_FlipData* record, int value) {
    return record->m_nHost1 == value;
  };
  return Compared(got) == Compared(expected.members) &&
         got.m_nHost27 == expected.members.m_nHost22[0] &&
         AreSame(got.m_Color, expected.members.m_Color) &&
         AreSame(got.m_BottomColor, expected.members.m_BottomColor) &&
         std::equal(records.GetData(), records.GetData() + records.GetSize(),
                    expected.records.begin(), expected.records.end(), isSame);
}
inline bool AreSame(const CDspAsmCompList& got, const PlainList& expected) {
  const auto size = static_cast<std::size_t>(got.GetSize());
  bool isSame =
      size == expected.components.size() && got.m_arrCompValues.GetSize() == got.GetSize();
  for (std::size_t index = 0; isSame && index < size; ++index) {
    int value = 0;
    isSame = AreSame(got.GetAt(static_cast<int>(index), &value), expected.components[index]) &&
             value == expected.values[index];
  }
  return isSame;
}

/// Holds the records that nobody else deletes. It outlives the components that point to them.
class Ledger {
 public:
  void Take(const CDspAsmComp& component) {
    for (int place = 0; place < component.m_arrFlipData.GetSize(); ++place) {
      m_records.emplace_back(component.m_arrFlipData[place]);
    }
  }
  /// What a plain component stands for. Records of one that is no owner are nobody's.
  CDspAsmComp Make(const Plain& plain) {
    CDspAsmComp component;
    static_cast<AsmCompMembers&>(component) = plain.members;
    component.m_nHost27 = plain.members.m_nHost22[0];
    for (const int value : plain.records) {
      auto record = std::make_unique<CShellEntityID_FlipData>();
      record->m_nHost1 = value;
      component.m_arrFlipData.Add(record.release());
    }
    if (!plain.IsOwner()) {
      Take(component);
    }
    return component;
  }
  /// Keeps account of an assignment: records that an owner held are left behind, and new ones of
  /// a component that is no owner are nobody's.
  template <class Assign>
  void Reassign(const CDspAsmComp& target, const Plain& before, const Plain& after,
                const Assign& assign) {
    if (before.IsOwner()) {
      Take(target);
    }
    assign();
    if (!after.IsOwner()) {
      Take(target);
    }
  }

 private:
  std::vector<std::unique_ptr<CShellEntityID_FlipData>> m_records;
};

}  // namespace mqp::fuzz
