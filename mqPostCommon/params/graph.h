/// \file
/// The definition of a result graph.
#pragma once

#include <map>
#include <vector>

#include <mqPostCommon/export.h>
#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/params/view_matrix.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/preference.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/wide_string.h>

/// What one axis of a graph shows.
struct CmqGraphAxis {
  int m_nQuantityType = 0;  ///< a `ResultType`; 14 and 16 are no results, 0 is nothing
  int m_nComponent = 0;     ///< 0-based component of the result
  int m_nUnit = 0;          ///< unit index within the unit type of the component
  int m_nSensor = -1;       ///< -1: none
};

/// One result graph (an X-Y chart) of a study: which result, what each axis shows, and the
/// options of the special kinds of graph. It builds its default name, its Y title and the name of
/// its folder from the catalogue, and it is saved in the study's document.
///
/// A value type: copies are independent of their source. Members named `Host` are carried and,
/// where the record has them, persisted for the host; nothing here depends on them.
///
/// When memory runs out a function throws `std::bad_alloc` and nothing else. A graph that was
/// assigned to or read into then has some of its new values; otherwise it is as it was.
class MQPOSTCOMMON_API CmqPostGraphParam {
 public:
  /// A stress graph of a `Stepped` study, as `ConstructInit` makes it of 5, 2, 0, 0 and -1.
  CmqPostGraphParam();
  /// Calls `ConstructInit` with the same arguments.
  CmqPostGraphParam(int analysisType, int resultType, int resultOption, int meshKind,
                    int dynamicOption);
  CmqPostGraphParam(const CmqPostGraphParam&);
  CmqPostGraphParam& operator=(const CmqPostGraphParam&);
  virtual ~CmqPostGraphParam();

  /// Sets every member to its default but for `m_strHost36` and `m_mapHost38`, which stay.
  /// \param analysisType  an `AnalysisType`
  /// \param resultType    a `ResultType`; `GraphStress` is stored as `Stress`
  /// \param resultOption  passed on as the option of the component naming functions
  /// \param meshKind      a `MeshKind`; chooses the default component of the Y axis, is not kept
  /// \param dynamicOption the same
  void ConstructInit(int analysisType, int resultType, int resultOption, int meshKind,
                     int dynamicOption);

  /// The name that a new graph gets: the names of what the axes show, joined by "-".
  /// \param nameOption passed on as the mesh kind of the colour-bar names
  /// \return empty for a frequency response graph without a known mode, and for axes that show
  ///         nothing that has a name
  [[nodiscard]] CString GetDefaultPlotName(int nameOption) const;

  /// The title of the Y axis with its unit in brackets, which stay empty without a unit.
  /// \param nameOption passed on as the mesh kind of the colour-bar name. 4 takes the beam stress
  ///                   names for a stress in a `Dynamic` study, and so does 3 while `flag` is set
  /// \param flag       non-zero or 0, see `nameOption`
  [[nodiscard]] CString GetYTitle(int nameOption, int flag) const;

  /// The name of the folder that the graph belongs in, chosen by the stored result type; English,
  /// never translated.
  [[nodiscard]] CString GetFolderName() const;

  /// The kind of graph: 52 fatigue damage matrix, 61 transient sensor graph, 63 frequency
  /// response graph, 13 otherwise; the first that holds.
  [[nodiscard]] int GetResultGraphType() const noexcept;
  /// 1 for a `FatigueGraph` of a `Fatigue` study, else 0.
  [[nodiscard]] int IsFatigueDamageMatrix() const noexcept;
  /// 1 when the Y axis has a transient sensor, else 0.
  [[nodiscard]] int IsTransientGraphMatrix() const noexcept;

  /// Takes the Y unit from the user's preferences where the Y component is a stress, a length, a
  /// spectral density of either, or a temperature; the result whose units are the unit systems
  /// takes the stress unit too. Otherwise it stays.
  /// \param preferences read only; null changes nothing
  void SetDefaultOptionByPreferences(const preference* preferences) noexcept;

  /// Writes the newest layout of the record. What the stream answers is not looked at.
  /// \return 1; 0 for a null stream, with nothing written
  int WriteToStream(IStream* stream) const;

  /// Reads a record of a document and brings older ones up to date: a Y unit flag of 0 that the
  /// shown component does not allow becomes 1, and stress components from 11 on move up by one in
  /// documents before 890002. Fields that the version lacks, and those that a stream which ends
  /// early does not deliver, keep their values; of a text that the end cuts the beginning is taken.
  /// \param stream  positioned at the record, owned by the caller
  /// \param version the version of the document, at least 800018
  /// \return 1; 0 for a null stream or an older version, with nothing read or changed
  int ReadFromStream(IStream* stream, int version);

  /// The layout of the record, in order.
  [[nodiscard]] static std::vector<mqp::RecordField> GetRecordFields();

  // clang-format off
  int             m_nAnalysisType = 0;            ///< an `AnalysisType`
  int             m_nResultType = 0;              ///< a `ResultType`
  int             m_nHost3 = 1;
  int             m_nResultOption = 0;            ///< passed on to the component naming functions
  int             m_nHost5[2] = {0, 0};
  int             m_nHost6 = 1;
  int             m_nHost7[2] = {0, 0};
  CmqGraphAxis    m_XAxis = {14, 0, 0, -1};
  CmqGraphAxis    m_YAxis;                        ///< its sensor is the transient sensor
  int             m_nHost16[6] = {-1, -1, -1, -1, -1, -1};
  int             m_nHost17[18] = {};
  CString         m_strHost18[3];
  int             m_nHost19 = -1;
  CString         m_strHost20;
  mqp::ViewMatrix m_ViewMatrix;
  int             m_nHost22[3] = {1, 0, 0};
  int             m_nDynamicOption = 0;           ///< 1: the Y unit flag names motions, 2: spectral densities; not persisted
  int             m_nHost24 = 0;                  ///< not persisted
  int             m_nHost25 = 1;
  double          m_dHost26[2] = {0.0, 0.0};
  int             m_nHost27 = 1;
  int             m_nYUnitFlag = 1;               ///< 0 under dynamic option 1: dimensionless motions
  int             m_nHost29[2] = {1, 1};          ///< not persisted
  int             m_nHost30 = 0;
  int             m_nHost31 = 0;                  ///< not persisted
  int             m_nFrequencyResponseFlag = 0;   ///< 1: a frequency response graph
  int             m_nFrequencyResponseMode = -1;  ///< 0 to 2 have a name
  int             m_nHost34[4] = {0, 0, 0, 0};
  double          m_dHost35 = 0.0;
  CString         m_strHost36;                    ///< not persisted
  int             m_nHost37[2] = {0, 0};          ///< not persisted
  __int64         m_n64Host37 = 0;                ///< not persisted
  std::map<int, CString> m_mapHost38;             ///< not persisted
  int             m_nHost39 = 0;
  // clang-format on

 private:
  struct MemberDefaults {};
  /// Leaves every member at the default that stands beside it.
  explicit CmqPostGraphParam(MemberDefaults);
};
