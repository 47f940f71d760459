/// \file
/// The definition of a result list.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/params/view_matrix.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/wide_string.h>

/// One result list of a study: which component is listed, or which set of components in several
/// columns, and in which unit. A value type; not persisted.
///
/// A list has a leading column, 0, and behind it one column for each component. The functions of a
/// component take its 0-based index among these. Where nothing is known texts are empty and counts
/// are 0.
///
/// When memory runs out a function throws `std::bad_alloc` and nothing else; a list that was
/// assigned to then has some of its new values.
class MQPOSTCOMMON_API CVekPostListParam {
 public:
  CVekPostListParam();
  CVekPostListParam(const CVekPostListParam&);
  CVekPostListParam& operator=(const CVekPostListParam&);
  ~CVekPostListParam();

  /// The number of component columns: 1 without a list set, that of the set otherwise.
  [[nodiscard]] int GetComponentCount() const noexcept;
  /// The component columns and the leading one.
  [[nodiscard]] int GetListColCount() const noexcept;
  /// The title of a list column: of the leading one a text that depends on the variant and the
  /// title switch, of a component its short name. In a list of set 1 of a `Dynamic` stress with a
  /// unit option the titles stand one column early, and with a variant all have that of
  /// component 3. Beyond the columns it is empty, but for column 3 as in `GetComponentName`.
  /// \param column 0 for the leading one
  [[nodiscard]] CString GetListColTitle(int column) const;

  /// The full name of a component. Beyond the count it is empty, but for component 3 of a single
  /// stress 9 or 100 of a `Dynamic` study, which has the name of that.
  [[nodiscard]] CString GetComponentName(int component) const;
  /// The first six code units of the name, cut before a colon and then before a blank where these
  /// stand behind the first position.
  [[nodiscard]] CString GetComponentNameShort(int component) const;
  /// The component of the result that the name stands for, by
  /// `vekPostCommonGetComponentIndexByName`; -1 for none.
  [[nodiscard]] int GetComponentIndex(int component) const;
  /// Writes the `GetComponentIndex` of every component column.
  /// \param out room for `GetComponentCount` integers; null writes nothing
  void GetComponentSet(int* out) const;
  /// The component of the result that stands for the whole set, which need not be one of its
  /// columns; -1 for a set without one. The list-set flag does not matter.
  [[nodiscard]] int GetComponentIndexByListSet() const;

  /// A plot of one column. With a list set it shows the component of that column, -1 beyond the
  /// count; without one the listed component, whatever the column.
  [[nodiscard]] CmqPostDataParam GetDataParam(int component) const;

  /// The text behind the last backslash of the study path, the whole path when it has none.
  [[nodiscard]] CString GetStudyName() const;
  /// The `UnitType` of the listed component, of the one that stands for the set when there is one;
  /// 9999 for none.
  [[nodiscard]] int GetUnitType() const;
  /// The name of the chosen unit.
  [[nodiscard]] CString GetUnitName() const;

  // clang-format off
  CString              m_strStudyPath;       ///< full path, its parts divided by backslashes
  int                  m_nAnalysisType = 0;  ///< an `AnalysisType`
  int                  m_nResultType = 0;    ///< a `ResultType`
  int                  m_nComponent = 0;     ///< 0-based component, listed when there is no list set
  int                  m_nHost5 = 1;
  int                  m_nHost6 = 1;
  int                  m_nVariant = 0;       ///< third argument of the catalogue's naming and look-up
  int                  m_nUnitIndex = 0;     ///< unit index within the unit type
  int                  m_nHost9 = 0;
  int                  m_nHost10 = 0;
  int                  m_nListSetFlag = 0;   ///< non-zero: a set of components is listed
  int                  m_nHost12 = 0;
  int                  m_nHost13 = 1;
  double               m_dHost14 = 5.0;
  int                  m_nHost15[2] = {1, 0};
  int                  m_nListSetKind = 0;   ///< 0 to 4: which set of the result
  int                  m_nTitleSwitch = 1;   ///< with a list set and a variant: which title column 0 has
  int                  m_nHost18 = -1;
  CString              m_strHost19;
  int                  m_nHost20 = 0;
  mqp::ViewMatrix      m_ViewMatrix;
  int                  m_nHost22[3] = {0, 0, 0};
  int                  m_nUnitOption = 0;    ///< fourth argument of `vekPostCommonGetUnitType`; titles test it
  mqp::ValueArray<int> m_arrHost23[2];
  int                  m_nHost24[9] = {0, 0, 0, 0, 0, 1, 0, -1, -1};
  // clang-format on
};
