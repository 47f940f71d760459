/// \file
/// The flip state of a shell entity.
#pragma once

#include <mqPostCommon/export.h>

/// The id of a shell entity and whether its normal is reversed, in a layout of the host's. A plain
/// value; who deletes a record says `CDspAsmComp`.
class MQPOSTCOMMON_API CShellEntityID_FlipData {
 public:
  int m_nHost1 = 0;
  int m_nHost2 = 0;
  int m_nHost3 = 0;
};
