/// \file
/// The stream records written and read with one call of the stream for each number, each count and
/// each text, as a program does that follows the format to the letter.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include <mqPostCommon/platform/stream.h>

#include "plain_records.h"

namespace mqp::bench {

class FieldWriter {
 public:
  explicit FieldWriter(IStream& stream) : m_stream(stream) {}

  FieldWriter& operator&(const int& value) { return Write(&value, sizeof value); }
  FieldWriter& operator&(const double& value) { return Write(&value, sizeof value); }
  FieldWriter& operator&(const std::u16string& text) {
    *this& static_cast<int>(text.size());
    return text.empty() ? *this : Write(text.data(), 2 * text.size());
  }
  template <class Value, std::size_t Count>
  FieldWriter& operator&(const std::array<Value, Count>& values) {
    for (const Value& value : values) {
      *this& value;
    }
    return *this;
  }
  FieldWriter& operator&(std::vector<PlainVariable>& variables) {
    *this& static_cast<int>(variables.size());
    for (PlainVariable& variable : variables) {
      variable.serialize(*this);
    }
    return *this;
  }

 private:
  FieldWriter& Write(const void* bytes, std::size_t size) {
    m_stream.Write(bytes, static_cast<ULONG>(size), nullptr);
    return *this;
  }

  IStream& m_stream;
};

class FieldReader {
 public:
  explicit FieldReader(IStream& stream) : m_stream(stream) {}

  FieldReader& operator&(int& value) { return Read(&value, sizeof value); }
  FieldReader& operator&(double& value) { return Read(&value, sizeof value); }
  FieldReader& operator&(std::u16string& text) {
    text.resize(static_cast<std::size_t>(ReadCount()));
    return text.empty() ? *this : Read(text.data(), 2 * text.size());
  }
  template <class Value, std::size_t Count>
  FieldReader& operator&(std::array<Value, Count>& values) {
    for (Value& value : values) {
      *this& value;
    }
    return *this;
  }
  FieldReader& operator&(std::vector<PlainVariable>& variables) {
    variables.resize(static_cast<std::size_t>(ReadCount()));
    for (PlainVariable& variable : variables) {
      variable.serialize(*this);
    }
    return *this;
  }

 private:
  int ReadCount() {
    int count = 0;
    *this& count;
    return count;
  }
  FieldReader& Read(void* bytes, std::size_t size) {
    m_stream.Read(bytes, static_cast<ULONG>(size), nullptr);
    return *this;
  }

  IStream& m_stream;
};

}  // namespace mqp::bench
