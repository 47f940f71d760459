/// \file
/// The definition of a result plot.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/view_matrix.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/wide_string.h>

namespace mqp {

/// The members of a plot. They stand apart so that the compiler copies them, and the assignment of
/// `CmqPostDataParam` says no more than what it does otherwise.
struct PlotMembers {
  // clang-format off
  CString                  m_strPlotName;                          ///< the title
  int                      m_nAnalysisType = 0;                    ///< an `AnalysisType`
  int                      m_nResultType = 2;                      ///< a `ResultType`
  int                      m_nComponent = 9;                       ///< 0-based component of the result
  int                      m_nHost5 = 1;
  int                      m_nHost6 = 0;
  int                      m_nVariant = 0;                         ///< third argument of the catalogue's naming and look-up
  int                      m_nHost8 = 1;
  int                      m_nDeformScaleMode = 0;                 ///< 0 and 1 choose one of the two factors
  float                    m_fDeformScaleFactor1 = 0.0F;           ///< of mode 1, without a unit
  float                    m_fDeformScaleFactor0 = 0.0F;           ///< of mode 0, without a unit
  int                      m_nUnitIndex = 0;                       ///< unit index within the unit type of the component
  int                      m_nHost12[3] = {0, 0, 0};               ///< the three behind the unit index
  int                      m_nFailureCriterion = 0;                ///< of a factor of safety
  int                      m_nHost14 = 0;
  double                   m_dHost15 = 1.0;
  double                   m_dHost16[3] = {0.0, 0.0, 0.0};
  int                      m_nCriterionOptions[2] = {0, 0};        ///< of the failure criterion
  double                   m_dHost18[2] = {1.0, 1.0};
  int                      m_nHost19 = -1;
  CString                  m_strHost20[2];
  int                      m_nHost21 = 0;
  ViewMatrix               m_ViewMatrix;
  int                      m_nBodyId = 0;                          ///< above 0: the plot shows that body alone
  int                      m_nEnvelopeFlag = 0;                    ///< non-zero: an envelope plot, where the study has one
  int                      m_nHost25[6] = {0, 0, 0, 0, 0, 0};
  __int64                  m_n64Host26 = 0;
  int                      m_nHost27[4] = {0, 0, 0, 0};
  int                      m_nHost28[9] = {1, 1, 0, 0, 0, -1, -1, 0, 0};
  double                   m_dHost29 = -1.0;
  int                      m_nHost30[3] = {0, 0, 0};               ///< assignment resets the last two
  ValueArray<int>          m_arrHost31;                            ///< assignment leaves it as it is when the source has none
  ValueArray<CString>      m_arrHost32;                            ///< the same
  int                      m_nHost33 = 1;
  double                   m_dHost34 = 3.0;
  __int64                  m_n64Host35[2] = {0, 0};
  CmqEquationPlotParam     m_EquationPlot;                         ///< what an equation plot shows
  int                      m_nHost37[4] = {0, 0, 0, 0};
  CString                  m_strHost38 = MQ_TEXT(" ");             ///< one blank, not empty
  CString                  m_strHost39;
  NeverCopied<CArray<int>> m_arrHost40[2];                         ///< the host's own
  int                      m_nHost41[2] = {-1, -1};                ///< assignment keeps the first
  // clang-format on
};

}  // namespace mqp

/// One result plot of a study: which result is shown, how the deformed shape is scaled, which body
/// is looked at. Not persisted.
///
/// Copies are independent of their source. Members named `Host` are carried for the host; nothing
/// here depends on them.
class MQPOSTCOMMON_API CmqPostDataParam : public mqp::PlotMembers {
 public:
  CmqPostDataParam();
  /// Copies everything but the two lists, which start empty.
  CmqPostDataParam(const CmqPostDataParam& other);
  /// Takes everything over but what belongs to the plot as the host shows it:
  ///   - the second and third integer of `m_nHost30` become 0;
  ///   - the first integer of `m_nHost41` and the two lists stay;
  ///   - each of the two arrays stays when the source has no elements in its own.
  /// Assigning a plot to itself does nothing. When memory runs out it throws `std::bad_alloc`, and
  /// the plot stays as it was.
  CmqPostDataParam& operator=(const CmqPostDataParam& other);
  virtual ~CmqPostDataParam();

  /// The factor of the mode; 1.0 for any mode but 0 and 1.
  [[nodiscard]] float GetDeformScaleFactor() const noexcept;
  /// 1 when the envelope flag is set and the study has results over time (`Thermal`, `Stepped`,
  /// `SteppedReduced`, `Dynamic`), else 0.
  [[nodiscard]] int IsEnvelopPlot() const noexcept;
  /// 1 for the heat energy of a `Thermal` study, else 0.
  [[nodiscard]] int IsThermalHeatEnergy() const noexcept;
};
