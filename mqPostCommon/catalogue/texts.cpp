#include <cstddef>

#include <mqPostCommon/catalogue/texts.h>

CString mqp::MakeKey(const CString& text) {
  constexpr std::size_t kKeyLength = 6;
  mqTextView key = text.View().substr(0, kKeyLength);
  for (const mqChar end : {MQ_TEXT(':'), MQ_TEXT(' ')}) {
    if (const std::size_t position = key.find(end); position != 0) {
      key = key.substr(0, position);
    }
  }
  return CString(key);
}
