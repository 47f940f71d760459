/// \file
/// The pairs of integers that go with result lists.
#pragma once

#include <mqPostCommon/export.h>

/// A pair of integers of a list.
class MQPOSTCOMMON_API CVekPostListPair {
 public:
  CVekPostListPair();
  CVekPostListPair(const CVekPostListPair&);
  CVekPostListPair& operator=(const CVekPostListPair&);
  virtual ~CVekPostListPair();

  int m_nFirst = 0;
  int m_nSecond = 0;
};

/// A pair of integers to sort by.
class MQPOSTCOMMON_API CVekIntPair {
 public:
  CVekIntPair();
  CVekIntPair(const CVekIntPair&);
  CVekIntPair& operator=(const CVekIntPair&);
  virtual ~CVekIntPair();

  int m_nFirst = 0;
  int m_nSecond = 0;
};
