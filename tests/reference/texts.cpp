#include "texts.h"

#include <array>
#include <map>
#include <string>

#include <mqCommFuncs/string_table.h>

namespace reference {

namespace {

struct IdRange {
  int first;
  int last;
};

// clang-format off
constexpr auto kIds = std::to_array<IdRange>({
    { 50004, 50006 }, { 50018, 50019 }, { 50177, 50179 }, { 50264, 50264 }, { 50330, 50330 },
    { 50341, 50345 }, { 50507, 50507 }, { 50578, 50578 }, { 50610, 50610 }, { 50733, 50733 },
    { 50757, 50760 }, { 50797, 50797 }, { 51060, 51060 }, { 51724, 51724 }, { 51761, 51767 },
    { 52020, 52020 }, { 52190, 52190 }, { 52941, 52941 }, { 52961, 52962 }, { 52980, 52980 },
    { 53034, 53044 }, { 53101, 53101 }, { 53153, 53160 }, { 53326, 53326 }, { 53401, 53405 },
    { 53471, 53483 }, { 53557, 53557 }, { 53574, 53576 }, { 53945, 53947 }, { 53953, 53963 },
    { 53971, 54034 }, { 54060, 54060 }, { 54223, 54224 }, { 54262, 54263 }, { 54327, 54332 },
    { 54405, 54419 }, { 54441, 54441 }, { 54464, 54477 }, { 54494, 54499 }, { 54525, 54525 },
    { 54555, 54558 }, { 54578, 54629 }, { 54668, 54668 }, { 54684, 54684 }, { 54714, 54718 },
    { 54745, 54825 }, { 54865, 54876 }, { 55084, 55085 }, { 55123, 55125 }, { 55144, 55144 },
    { 55268, 55278 }, { 55362, 55362 }, { 55541, 55541 }, { 55670, 55670 }, { 56060, 56061 },
});
// clang-format on

std::map<int, Text>& Table() {
  static std::map<int, Text> table;
  return table;
}

void Use(int id, const Text& text) {
  Table()[id] = text;
  mqp::host::ReplaceText(static_cast<UINT>(id), StringOf(text));
}

template <class MakeText>
void UseAll(MakeText makeText) {
  Table().clear();
  for (const IdRange range : kIds) {
    for (int id = range.first; id <= range.last; ++id) {
      Use(id, makeText(id));
    }
  }
}

Text Decimal(int number) {
  Text digits;
  for (const char digit : std::to_string(number)) {
    digits += static_cast<mqChar>(digit);
  }
  return digits;
}

Text CollidingText(Random& random) {
  static const std::vector<Text> kHeads = {
      MQ_TEXT("S"),      MQ_TEXT("SX"),     MQ_TEXT("SXYZUVW"), MQ_TEXT("SXYZUVQ"), MQ_TEXT("A B"),
      MQ_TEXT(":x"),     MQ_TEXT(" x"),     MQ_TEXT(":"),       MQ_TEXT("x"),       MQ_TEXT("T"),
      MQ_TEXT("\u00E9"), MQ_TEXT("sx"),     MQ_TEXT("SX Y"),    MQ_TEXT("abcdef"),  MQ_TEXT("M"),
      MQ_TEXT("abcde"),  MQ_TEXT("abcdeg"), MQ_TEXT("\u0416"),  MQ_TEXT("12"),      MQ_TEXT("XX")};
  static const std::vector<Text> kTails = {MQ_TEXT(""),  MQ_TEXT(": a tail"), MQ_TEXT(" (unit)"),
                                           MQ_TEXT(":"), MQ_TEXT("Q:a:b"),    MQ_TEXT(" : x ")};
  return random.Once(25) ? Text() : random.From(kHeads) + random.From(kTails);
}

}  // namespace

void UseTextsById() {
  UseAll([](int id) {
    return id % 7 == 0 ? Decimal(id) + MQ_TEXT(" whole") : Decimal(id) + MQ_TEXT(": text");
  });
}

void UseCollidingTexts(Random& random) {
  UseAll([&random](int) { return CollidingText(random); });
}

Text Load(int id) {
  const auto found = Table().find(id);
  return found == Table().end() ? Text() : found->second;
}

}  // namespace reference
