#include "rules.h"

#include <cstdlib>

namespace reference {

Numbers Parse(std::string_view text) {
  Numbers numbers;
  std::string rest(text);
  const char* place = rest.c_str();
  while (*place != '\0') {
    char* end = nullptr;
    const int first = static_cast<int>(std::strtol(place, &end, 10));
    int last = first;
    if (*end == '-') {
      last = static_cast<int>(std::strtol(end + 1, &end, 10));
    }
    for (int number = first; number <= last; ++number) {
      numbers.push_back(number);
    }
    place = end;
    while (*place == ' ') {
      ++place;
    }
  }
  return numbers;
}

bool Holds(const Numbers& numbers, int number) {
  return std::ranges::find(numbers, number) != numbers.end();
}

}  // namespace reference
