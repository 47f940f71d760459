#include <cstddef>

#include <mqPostCommon/catalogue/texts.h>

mqTextView mqp::KeyOf(mqTextView text) noexcept {
  constexpr std::size_t kKeyLength = 6;
  mqTextView key = text.substr(0, kKeyLength);
  for (const mqChar end : {MQ_TEXT(':'), MQ_TEXT(' ')}) {
    if (const std::size_t position = key.find(end); position != 0) {
      key = key.substr(0, position);
    }
  }
  return key;
}
