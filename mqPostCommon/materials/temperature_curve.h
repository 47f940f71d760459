/// \file
/// A material property over temperature.
#pragma once

#include <cstddef>
#include <vector>

#include <mqPostCommon/export.h>

/// A piecewise-linear curve of a property over temperature. Below its first point and above its
/// last one it is flat. Temperatures are in whatever unit the host fills in and are expected to
/// ascend strictly; nothing is converted or checked. A copy or an assignment that runs out of
/// memory throws `std::bad_alloc`; the target then has some of its new values.
class MQPOSTCOMMON_API CmqTemperatureCurve {
 public:
  CmqTemperatureCurve();
  /// Copies the points that count and no entries behind them.
  CmqTemperatureCurve(const CmqTemperatureCurve&);
  CmqTemperatureCurve(CmqTemperatureCurve&&) noexcept;
  /// Copies both arrays whole, entries behind the last point included.
  CmqTemperatureCurve& operator=(const CmqTemperatureCurve&);
  CmqTemperatureCurve& operator=(CmqTemperatureCurve&&) noexcept;
  virtual ~CmqTemperatureCurve();

  /// The value at a temperature: that of the first point with exactly this temperature; otherwise
  /// on the line between the first point above and the point before it,
  /// `Yhi + (Ylo - Yhi) * (x - Xhi) / (Xlo - Xhi)`, and `Yhi` where the two share a value.
  /// Temperatures out of order are taken as they stand.
  /// \param x a temperature; what is not a number has the value of the first point
  /// \return 0.0 for a curve without points
  [[nodiscard]] double GetYValueAt(double x) const noexcept;

  /// The points that count; more than both arrays hold count as those. The temperature of a single
  /// point is not looked at and may be missing.
  int m_nPoints = 0;
  std::vector<double> m_vecX;  ///< temperatures
  std::vector<double> m_vecY;  ///< the property at the temperature of the same index

 private:
  [[nodiscard]] std::size_t CountPoints() const noexcept;
};
