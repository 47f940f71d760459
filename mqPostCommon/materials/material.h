/// \file
/// Material strengths for factor-of-safety results. When memory runs out a function throws
/// `std::bad_alloc` and nothing else: a list is as it was; a record that was assigned to, and what
/// a question fills, has some of its new values.
#pragma once

#include <vector>

#include <mqPostCommon/export.h>
#include <mqPostCommon/materials/temperature_curve.h>
#include <mqPostCommon/params/plot.h>
#include <mqPostCommon/platform/arrays.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/wide_string.h>

/// The strengths of one body. Each of the six properties is a constant, a curve over temperature,
/// or both; it is undefined while its `Has` flag is 0. A plain value that the host fills in;
/// nothing is checked. Strengths are stresses in the unit of `m_nDefinedUnits`.
class MQPOSTCOMMON_API CmqpMaterialData {
 public:
  CmqpMaterialData();
  CmqpMaterialData(const CmqpMaterialData&);
  CmqpMaterialData(CmqpMaterialData&&) noexcept;
  CmqpMaterialData& operator=(const CmqpMaterialData&);
  CmqpMaterialData& operator=(CmqpMaterialData&&) noexcept;
  virtual ~CmqpMaterialData();

  /// Sets every member to its default but for the six curves, which keep their points.
  void ConstructorInit();

  [[nodiscard]] int GetCount() const noexcept { return m_nCount; }
  [[nodiscard]] int GetMaterialSource() const noexcept { return m_nMaterialSource; }
  [[nodiscard]] int GetDefinedUnits() const noexcept { return m_nDefinedUnits; }
  [[nodiscard]] int GetTreatAsMaterial() const noexcept { return m_nTreatAsMaterial; }
  [[nodiscard]] int GetDefaultFailureCriteria() const noexcept { return m_nDefaultFailureCriteria; }
  [[nodiscard]] CString GetMaterialName() const { return m_strMaterialName; }

  /// The constant of a property.
  /// \param value receives it, -1.0 by default also for an undefined property
  /// \return the `Has` flag as it is; any value but 0 means that the property is defined
  int GetPropertyValue_SIGYLD(double& value) const noexcept;
  int GetPropertyValue_SIGXT(double& value) const noexcept;
  int GetPropertyValue_SIGXC(double& value) const noexcept;
  int GetPropertyValue_SIGYT(double& value) const noexcept;
  int GetPropertyValue_SIGYC(double& value) const noexcept;
  int GetPropertyValue_SIGXY(double& value) const noexcept;

  /// 1 when the property is defined, varies with temperature and has a curve with points, else 0.
  [[nodiscard]] int IsSIGYLDTempDepend() const noexcept;
  [[nodiscard]] int IsSIGXTTempDepend() const noexcept;
  [[nodiscard]] int IsSIGXCTempDepend() const noexcept;
  [[nodiscard]] int IsSIGYTTempDepend() const noexcept;
  [[nodiscard]] int IsSIGYCTempDepend() const noexcept;
  [[nodiscard]] int IsSIGXYTempDepend() const noexcept;

  /// The curve of a property that varies with temperature as above, otherwise null. It belongs to
  /// the record and lives as long.
  [[nodiscard]] CmqTemperatureCurve* GetSIGYLDTempCurve() noexcept;
  [[nodiscard]] CmqTemperatureCurve* GetSIGXTTempCurve() noexcept;
  [[nodiscard]] CmqTemperatureCurve* GetSIGXCTempCurve() noexcept;
  [[nodiscard]] CmqTemperatureCurve* GetSIGYTTempCurve() noexcept;
  [[nodiscard]] CmqTemperatureCurve* GetSIGYCTempCurve() noexcept;
  [[nodiscard]] CmqTemperatureCurve* GetSIGXYTempCurve() noexcept;

  /// `GetMatInStressUnit` of this record.
  [[nodiscard]] int GetMatUnitInStressUnit() const noexcept;
  /// 1 when the tensile, the compressive and the shear strength are defined, else 0.
  [[nodiscard]] int IsSafeForCompositeFOS() const noexcept;
  /// 1 when count, units and strengths are exactly those of the other record, else 0. Whether the
  /// shear strength is defined does not matter, its value does. Flags are compared by value: 1 is
  /// not 2; a strength that is not a number differs from itself. Names, ids, curves and codes of
  /// the host are not compared.
  [[nodiscard]] int IsSameValueForDesignCheck(const CmqpMaterialData& other) const noexcept;

  // clang-format off
  int     m_nCount = 0;                    ///< 0: the record has no usable data
  int     m_nMaterialSource = 0;           ///< a code of the host's
  int     m_nDefinedUnits = 0;             ///< of the strengths: 0 N/m^2, 1 psi, 2 kgf/cm^2, 3 N/mm^2, 4 and 5 reserved
  int     m_bHasSIGYLD = 0;
  double  m_dSIGYLD = -1.0;                ///< yield strength
  int     m_bSIGYLDTempDepend = 0;
  CmqTemperatureCurve m_SIGYLDTempCurve;
  int     m_bHasSIGXT = 0;
  double  m_dSIGXT = -1.0;                 ///< tensile strength
  int     m_bSIGXTTempDepend = 0;
  CmqTemperatureCurve m_SIGXTTempCurve;
  int     m_bHasSIGXC = 0;
  double  m_dSIGXC = -1.0;                 ///< compressive strength
  int     m_bSIGXCTempDepend = 0;
  CmqTemperatureCurve m_SIGXCTempCurve;
  int     m_bHasSIGYT = 0;
  double  m_dSIGYT = -1.0;                 ///< tensile strength SIGYT
  int     m_bSIGYTTempDepend = 0;
  CmqTemperatureCurve m_SIGYTTempCurve;
  int     m_bHasSIGYC = 0;
  double  m_dSIGYC = -1.0;                 ///< compressive strength SIGYC
  int     m_bSIGYCTempDepend = 0;
  CmqTemperatureCurve m_SIGYCTempCurve;
  int     m_bHasSIGXY = 0;
  double  m_dSIGXY = -1.0;                 ///< shear strength
  int     m_bSIGXYTempDepend = 0;
  CmqTemperatureCurve m_SIGXYTempCurve;
  CString m_strMaterialName;               ///< key of `CmqpMaterialDataList::GetUniqueMaterialList`
  CString m_strExtraText;                  ///< carried for the host
  int     m_nBodyID = -1;                  ///< first key of `CmqpMaterialDataList::GetByBodyID`
  int     m_nTreatAsMaterial = 0;          ///< a code of the host's
  int     m_nDefaultFailureCriteria = 0;   ///< a code of the host's
  int     m_nSecondaryID = 0;              ///< second key of `CmqpMaterialDataList::GetByBodyID`
  int     m_nReserved = 0;                 ///< carried for the host
  // clang-format on
};

/// The unit of a record's strengths as an index into the result units
/// "N/m^2|psi|kgf/cm^2|N/mm^2 (MPa)|ksi".
/// \param material read only; null gives 0
/// \return 1 or 2 when the record is defined in that unit and its count is not 0; 0 otherwise, and
///         for N/mm^2 as well
MQPOSTCOMMON_API int GetMatInStressUnit(const CmqpMaterialData* material) noexcept;

/// The records of a study. Records are held by value and handed out as copies.
class MQPOSTCOMMON_API CmqpMaterialDataList {
 public:
  CmqpMaterialDataList();
  CmqpMaterialDataList(const CmqpMaterialDataList&);
  CmqpMaterialDataList& operator=(const CmqpMaterialDataList&);
  ~CmqpMaterialDataList();

  /// Appends a copy and returns its index.
  __int64 Add(const CmqpMaterialData& material);
  [[nodiscard]] __int64 GetSize() const noexcept;
  void RemoveAll() noexcept;

  /// A copy of a record; a default one for an index outside the list.
  [[nodiscard]] CmqpMaterialData GetAt(int index) const;

  /// Finds the first record of a body.
  /// \param out         receives the record; not null
  /// \param index       receives its index unless null
  /// \param secondaryId above 0: the record must have this secondary id as well
  /// \return 1; 0 for none, with `out` and `index` as they were
  int GetByBodyID(long bodyId, CmqpMaterialData* out, int* index, int secondaryId) const;

  /// The indices of the first record of each name, whatever its letter case, in ascending order.
  /// An empty list yields index 0 as well: look at `GetSize` first. In linear time.
  /// \param indices emptied first
  /// \return how many there are, at least 1
  unsigned long long GetUniqueMaterialList(std::vector<int>& indices) const;

  /// 1 when the first record is the same as each other one by
  /// `CmqpMaterialData::IsSameValueForDesignCheck`; 0 otherwise, and for an empty list.
  [[nodiscard]] int IsSameValueForDesignCheck() const noexcept;

  /// Whether a factor-of-safety plot uses a strength that varies with temperature. A plot of one
  /// body looks at the first record of that body alone. Which strengths count:
  ///   - failure criterion 4: yield, compressive and tensile strength
  ///   - 2: compressive and tensile strength
  ///   - any other: yield strength, but none when the first criterion option is 2
  ///   - none at all when both criterion options are 2
  /// \param plot read only; null gives 0
  /// \return 1 or 0; 0 for plots of other results
  [[nodiscard]] int IsTemperatureDependentFOSCriterion(const CmqPostDataParam* plot) const noexcept;

  CArray<CmqpMaterialData, CmqpMaterialData> m_arrMaterials;
};
