#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

#include <mqPostCommon/platform/comm_funcs.h>

#include "utf8.h"

void CharToCString(const char* narrow, CString& wide) {
  std::basic_string<mqChar> units;
  mqp::host::AppendUtf8(narrow == nullptr ? std::string_view() : narrow, units);
  wide = CString(mqTextView(units));
}

int STRING2LPUSHORT(const CString& text, unsigned short* units, int capacity) {
  if (units == nullptr || capacity <= 0) {
    return 0;
  }
  const int count = std::min(text.GetLength(), capacity);
  std::memcpy(units, text.GetString(), sizeof(mqChar) * static_cast<std::size_t>(count));
  return count;
}
