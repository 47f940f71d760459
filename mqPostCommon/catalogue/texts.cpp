#include <mqPostCommon/catalogue/texts.h>

CString mqp::MakeKey(const CString& text) {
  constexpr int kKeyLength = 6;
  CString key = text.Left(kKeyLength);
  for (const mqChar end : {MQ_TEXT(':'), MQ_TEXT(' ')}) {
    const int position = key.Find(end);
    if (position > 0) {
      key = key.Left(position);
    }
  }
  return key;
}
