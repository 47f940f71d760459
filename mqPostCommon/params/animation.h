/// \file
/// The animation of a result plot.
#pragma once

#include <mqPostCommon/export.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/wide_string.h>

/// How a plot is animated. A value type; not persisted. A copy or an assignment that runs out of
/// memory throws `std::bad_alloc`; the target then has some of its new values.
class MQPOSTCOMMON_API CmqpAnimateParam {
 public:
  static constexpr int kLeastFrames = 2;
  static constexpr int kMostFrames = 20;

  CmqpAnimateParam();
  CmqpAnimateParam(const CmqpAnimateParam&);
  CmqpAnimateParam& operator=(const CmqpAnimateParam&);
  virtual ~CmqpAnimateParam();

  /// \param frames 2 to 20
  /// \return 1; 0 for any other number, which changes nothing
  int SetNFrames(int frames) noexcept;

  // clang-format off
  int     m_nHost1 = 0;
  int     m_nFrames = 5;  ///< number of frames
  int     m_nHost3 = 5;
  int     m_nHost4 = 0;
  int     m_nHost5 = 0;
  CString m_strHost6;
  __int64 m_n64Host7 = 0;
  // clang-format on
};
