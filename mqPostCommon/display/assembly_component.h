/// \file
/// One component of an assembly as a result view shows it.
#pragma once

#include <mqPostCommon/display/shell_flip_data.h>
#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/gfx_core.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/wide_string.h>

class cSectPropPerMeshElem;  // the host's; never looked into here

namespace mqp {

/// What copies and assignments of a component take over member by member. It stands apart so that
/// the compiler copies it, and `CDspAsmComp` says no more than how flip records are copied.
///
/// Members without a meaning here are carried for the host; their pointers are copied as pointers
/// and never followed.
///
/// The element range stands within the first 16 bytes, so a scan for an element reads one cache
/// line of each component that does not hold it. Ranges in an array of their own would be faster,
/// but the members are open to the host.
struct AsmCompMembers {
  // clang-format off
  int       m_nCompID = 0;                           ///< component number of the host
  int       m_nFirstElem = -1;                       ///< first element number of the component
  int       m_nLastElem = -1;                        ///< the last one, which belongs to it
  COGLColor m_Color{1.0F, 1.0F, 1.0F, 1.0F};         ///< white; of the top face of shells
  COGLColor m_BottomColor{0.5F, 0.5F, 0.5F, 1.0F};   ///< grey; of the bottom face of shells
  int       m_bHidden = 0;
  CString   m_strCompName;                           ///< name of the part
  CString   m_strBodyName;
  int       m_nBodyID = 0;
  int       m_nVisIndexBase = 1;                     ///< 1-based visible index of the first element
  int       m_nHost11[8] = {};
  double    m_dHost11[4] = {};
  int       m_bOwnsMeshData = 0;                     ///< 1: the component deletes its flip records
  ValueArray<cSectPropPerMeshElem*> m_arrSectProp;   ///< section property of each mesh element, never owned
  double    m_dHost14 = -1.0;
  CString   m_strExtra;
  int       m_nHost16[4] = {};                       ///< one in front of the pointers, three behind
  void*     m_pHost16[6] = {};
  ValueArray<double> m_arrHost17[3];                 ///< mesh data
  ValueArray<int>    m_arrHost18[3];                 ///< mesh data
  int       m_nHost19[3][9] = {};
  void*     m_pHost20[2] = {};
  int       m_nHost20[5] = {0, 0, 1, 0, 0};          ///< the third one starts with 1
  double    m_dHost20[2] = {};
  int       m_bOwnsMeshData2 = 0;                    ///< 1: the same as 1 in `m_bOwnsMeshData`
  int       m_nHost22[4] = {};
  ValueArray<double> m_arrHost23;                    ///< mesh data
  ValueArray<int>    m_arrHost24;
  int       m_bTempHidden = 0;                       ///< 1: hidden for a time
  // clang-format on
};

}  // namespace mqp

/// One component (body) of an assembly: its range of element numbers, its colours, its names and
/// whether it is hidden.
///
/// Who deletes flip records:
///   - A component whose `m_bOwnsMeshData` or `m_bOwnsMeshData2` is 1 owns those in
///     `m_arrFlipData`: its destructor deletes each once. No other component may hold them.
///   - A component without such a flag deletes none. What it holds, and what it leaves behind, is
///     the host's.
///   - A copy of an owner holds records of its own. A copy of a component that owns nothing holds
///     the same pointers, as they are nobody's here to delete.
///   - Assignment always makes records of its own, and what the target held before is the host's,
///     also when the target was an owner. Assigning a component to itself does nothing.
///   - Moving hands the records over and leaves none behind.
/// Section properties are never deleted here, so every copy holds the same pointers.
///
/// A copy or an assignment that runs out of memory throws `std::bad_alloc`; the target is as it
/// was, with the records that it had.
class MQPOSTCOMMON_API CDspAsmComp : public mqp::AsmCompMembers {
 public:
  CDspAsmComp();
  /// The visible index of an element of the range becomes its number plus 1.
  /// \param firstElem   first element number of the range, `lastElem` the last one
  /// \param color       of the top face of shells, `bottomColor` of the bottom face
  /// \param hidden      non-zero: hidden
  CDspAsmComp(int compId, int firstElem, int lastElem, const COGLColor& color,
              const COGLColor& bottomColor, int hidden);
  /// The same with a grey bottom face.
  CDspAsmComp(int compId, int firstElem, int lastElem, const COGLColor& color, int hidden);
  CDspAsmComp(const CDspAsmComp& other);
  CDspAsmComp(CDspAsmComp&& other) noexcept;
  CDspAsmComp& operator=(const CDspAsmComp& other);
  ~CDspAsmComp();

  /// 1 when component number, element range, hidden flag and body id are equal, else 0.
  [[nodiscard]] int operator==(const CDspAsmComp& other) const noexcept;
  [[nodiscard]] int operator!=(const CDspAsmComp& other) const noexcept {
    return (*this == other) == 0 ? 1 : 0;
  }
  /// 1 when the first element number is at least 0 and the last one not below it, else 0.
  [[nodiscard]] int PostAvailable() const noexcept;
  /// Swaps the two colours.
  void FlipColor() noexcept;

  CArray<CShellEntityID_FlipData*> m_arrFlipData;
  int m_nHost27 = 0;
};
