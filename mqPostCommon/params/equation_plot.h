/// \file
/// Equation plots: a quantity computed from an equation whose operands are components of results.
///
/// In an equation, names stand in double-quote characters (U+0022). The editor hands over what the
/// user typed, with the names of components; stored are placeholders, `"Variable0"`,
/// `"Variable1"`, ..., which mean the same in every language.
///
/// When memory runs out a function throws `std::bad_alloc` and nothing else. An object that was
/// assigned to, read into or prepared then has some of its new values; otherwise it is as it was.
#pragma once

#include <vector>

#include <mqPostCommon/export.h>
#include <mqPostCommon/params/stream/record_field.h>
#include <mqPostCommon/platform/lists.h>
#include <mqPostCommon/platform/owned.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

/// One operand of an equation.
class MQPOSTCOMMON_API CmqEquationVariable : public CObject {
 public:
  CmqEquationVariable();
  CmqEquationVariable(const CmqEquationVariable&);
  CmqEquationVariable& operator=(const CmqEquationVariable&);
  ~CmqEquationVariable() override;

  /// The full name of the component, by `vekPostCommonGetComponentName`.
  /// \param analysisType an `AnalysisType`
  /// \param ignored      has no effect
  /// \param meshKind     a `MeshKind`
  /// \param passOn       handed on as the argument that the naming ignores
  /// \return empty for a component without a name
  [[nodiscard]] CString GetComponentName(int analysisType, int ignored, int meshKind,
                                         int passOn) const;

  /// Writes the newest layout of the record. What the stream answers is not looked at.
  /// \param version has no effect
  /// \return 1; 0 for a null stream
  int WriteToStream(IStream* stream, int version) const;
  /// Reads a record. Fields that a stream which ends early does not deliver keep their values, and
  /// so does an empty name.
  /// \param stream  positioned at the record, owned by the caller
  /// \param version the version of the document, at least 890109
  /// \return 1; 0 for a null stream or an older version, with nothing read or changed
  int ReadFromStream(IStream* stream, int version);
  /// The layout of the record, in order.
  [[nodiscard]] static std::vector<mqp::RecordField> GetRecordFields();

  // clang-format off
  // With the length of the default, which would be counted for each variable that is read.
  CString m_strName{MQ_TEXT("Variable"), 8};  ///< the placeholder; those of a plot have double-quote characters
  int     m_nResultType = 2;                  ///< a `ResultType`; -1 for an unknown operand
  int     m_nComponent = 9;                   ///< 0-based component of the result; -1 for an unknown one
  double  m_dCoefficient = 1.0;               ///< factor of the operand, without a unit
  // clang-format on
};

/// What the editor of equations hands over: the equation as it was typed, the names in it, and the
/// names that were offered. A name is written everywhere as it stands in the equation, with its
/// double-quote characters. A value type: copies are independent of their source.
class MQPOSTCOMMON_API CmqResultCompsEqnVarsList {
 public:
  CmqResultCompsEqnVarsList();
  CmqResultCompsEqnVarsList(const CmqResultCompsEqnVarsList&);
  CmqResultCompsEqnVarsList& operator=(const CmqResultCompsEqnVarsList&);
  virtual ~CmqResultCompsEqnVarsList();

  /// Looks a name up in the lists of offered names: stress, beam stress, strain, displacement,
  /// thermal, in this order, by code unit and with case. The catalogue is then asked for the whole
  /// name of a beam stress, by the short key for the others.
  /// \param name       as it stands in the equation
  /// \param resultType receives the result type of the first list that has the name, or -1
  /// \return the component that `vekPostCommonGetComponentIndexByName` finds for the name without
  ///         its double-quote characters, -1 when it finds none; -1 when no list has the name
  [[nodiscard]] int GetComponentNumberAndResultTypeForVariable(CString name, int& resultType) const;

  // clang-format off
  mqp::StringValues       m_listStressNames;        ///< offered names of result type 2
  mqp::StringValues       m_listBeamStressNames;    ///< of result type 59
  mqp::StringValues       m_listStrainNames;        ///< of result type 3
  mqp::StringValues       m_listDisplacementNames;  ///< of result type 1
  mqp::StringValues       m_listThermalNames;       ///< of result type 5
  int                     m_nAnalysisType = 0;      ///< an `AnalysisType`
  int                     m_nHost7[4] = {0, 0, 0, 0};
  int                     m_nLookupOption = 0;      ///< the `variant` of the look-up of a name
  CString                 m_strEquation;            ///< as it was typed
  int                     m_nCoefficientsFlag = 0;  ///< non-zero: the coefficients are used
  mqp::StringValues       m_listVariableNames;      ///< the names in the equation, in order
  mqp::ValueArray<double> m_arrCoefficients;        ///< one for each variable name, without a unit
  // clang-format on
};

/// A stored equation plot: the equation with placeholders, and what each of them stands for. A
/// value type: copies are independent of their source; assigning it to itself does nothing, moving
/// it to itself may empty it.
class MQPOSTCOMMON_API CmqEquationPlotParam {
 public:
  CmqEquationPlotParam();
  CmqEquationPlotParam(const CmqEquationPlotParam&);
  CmqEquationPlotParam(CmqEquationPlotParam&&) noexcept;
  CmqEquationPlotParam& operator=(const CmqEquationPlotParam&);
  CmqEquationPlotParam& operator=(CmqEquationPlotParam&&) noexcept;
  virtual ~CmqEquationPlotParam();

  /// Takes an equation over from the editor: every occurrence of each variable name becomes its
  /// placeholder, one name after the other in list order, also inside what an earlier one was
  /// replaced by. In place of the variables that the plot held there is one for each name, of
  /// result type and component -1 when nothing is known of it; it takes its coefficient while the
  /// flag is set, 1.0 when there is none. The display equation is the one that was typed. Names
  /// must have their double-quote characters: the text would grow with each that occurs in its own
  /// placeholder.
  /// \param list read only; null changes nothing
  void PrepareEquationParams(const CmqResultCompsEqnVarsList* list);

  /// Makes the display equation: every placeholder becomes the name of its component in
  /// double-quote characters, in the language of the string table. The arguments are those of
  /// `CmqEquationVariable::GetComponentName`. Nothing more is replaced in a text that has grown
  /// beyond sixteen times the equation, and beyond 16,384 code units, as only those of damaged
  /// records do.
  void PrepareEquationToDisplay(int analysisType, int ignored, int meshKind, int passOn);

  /// Writes the newest layout of the record with its variables, of which `ReadFromStream` takes
  /// 65,536. What the stream answers is not looked at.
  /// \param version has no effect
  /// \return 1; 0 for a null stream
  int WriteToStream(IStream* stream, int version) const;
  /// Reads a record. The variables that it has are appended to those that the plot holds already,
  /// none for a count below 1; those that the stream does not deliver have their defaults.
  /// Fields that a stream which ends early does not deliver keep their values, and so does a text
  /// that is stored empty. The end of a variable is asked for together with the begin of the next
  /// one: a stream that delivers nothing of what it does not have whole may lose both.
  /// \param stream  positioned at the record, owned by the caller
  /// \param version the version of the document, at least 890109
  /// \return 1, also when the record claims more than 65,536 variables, of which the first 65,536
  ///         are read; 0 for a null stream or an older version, with nothing read or changed
  int ReadFromStream(IStream* stream, int version);
  /// The layout of the record, in order. Its last field, an integer, counts the variables whose
  /// records follow.
  [[nodiscard]] static std::vector<mqp::RecordField> GetRecordFields();

  // clang-format off
  CString                             m_strEquation;            ///< with placeholders
  int                                 m_nCoefficientsFlag = 0;  ///< non-zero: the operands have coefficients
  CString                             m_strHost3[2];
  mqp::OwnedList<CmqEquationVariable> m_listVariables;          ///< in the order of their placeholders
  CString                             m_strDisplayEquation;     ///< not persisted
  // clang-format on
};
