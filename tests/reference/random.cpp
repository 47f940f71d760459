#include "random.h"

namespace reference {

Text RandomText(Random& random, int longest) {
  static constexpr mqTextView kUnits = MQ_TEXT("aAbBxX:: \"\\\t0123\u00E9\u00C9\u0416\u0436");
  Text text;
  for (int length = random.Between(0, longest); length > 0; --length) {
    text += random.Once(40)
                ? static_cast<mqChar>(0xD800 + random.Below(0x800))
                : kUnits[static_cast<std::size_t>(random.Below(static_cast<int>(kUnits.size())))];
  }
  return text;
}

}  // namespace reference
