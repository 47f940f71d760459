#include "records.h"

#include <algorithm>
#include <cstdio>

#include "tally.h"

namespace reference {

namespace {

constexpr int kLongest = 1024;

}  // namespace

void Writer::Little(std::uint64_t bits, int count) {
  for (int place = 0; place < count; ++place) {
    m_bytes.push_back(static_cast<std::byte>(bits >> (8 * place) & 0xFF));
  }
}

void Writer::Int(int number) {
  Little(static_cast<std::uint32_t>(number), 4);
}

void Writer::Double(std::uint64_t bits) {
  Little(bits, 8);
}

void Writer::String(const Text& text) {
  const int count = std::min(static_cast<int>(text.size()), kLongest);
  Hit(static_cast<int>(text.size()) > kLongest ? "string: written short"
      : count == 0                             ? "string: written empty"
                                               : "string: written whole");
  Int(count);
  for (int place = 0; place < count; ++place) {
    Little(static_cast<std::uint16_t>(text[static_cast<std::size_t>(place)]), 2);
  }
}

void Reader::Little(std::uint64_t& bits, int count) {
  for (int place = 0; place < count; ++place) {
    if (m_position == m_bytes.size()) {
      Hit(place == 0 ? "number: not there" : "number: half there");
      return;
    }
    bits &= ~(std::uint64_t{0xFF} << (8 * place));
    bits |= static_cast<std::uint64_t>(m_bytes[m_position]) << (8 * place);
    ++m_position;
  }
}

void Reader::Int(int& number) {
  std::uint64_t bits = static_cast<std::uint32_t>(number);
  Little(bits, 4);
  number = static_cast<int>(static_cast<std::uint32_t>(bits));
}

void Reader::Double(std::uint64_t& bits) {
  Little(bits, 8);
}

int Reader::String(Text& text) {
  int count = 0;
  Int(count);
  if (count < 1) {
    Hit(count < 0 ? "string: negative count" : "string: no count");
    return 0;
  }
  if (count > kLongest) {
    Hit("string: count too large");
    count = kLongest;
  }
  Text units;
  for (int place = 0; place < count; ++place) {
    if (m_position == m_bytes.size()) {
      Hit("string: cut off");
      break;
    }
    std::uint64_t unit = 0;
    Little(unit, 2);
    units += static_cast<mqChar>(unit);
  }
  const std::size_t zero = units.find(mqChar{});
  Hit(zero == Text::npos ? "string: read whole" : "string: ended by a zero");
  text = units.substr(0, zero);
  return 1;
}

std::string HexOf(const Bytes& bytes) {
  std::string text;
  for (const std::byte byte : bytes) {
    char digits[4];
    std::snprintf(digits, sizeof digits, "%02X ", static_cast<unsigned>(byte));
    text += digits;
  }
  return text;
}

}  // namespace reference
