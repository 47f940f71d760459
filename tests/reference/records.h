#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "random.h"
#include "values.h"

/// Stream records as plain byte pushing: fields one after the other, nothing else.
namespace reference {

using Bytes = std::vector<std::byte>;

class Writer {
 public:
  void Int(int number);
  void Double(std::uint64_t bits);
  void String(const Text& text);
  [[nodiscard]] const Bytes& Written() const { return m_bytes; }

 private:
  void Little(std::uint64_t bits, int count);

  Bytes m_bytes;
};

/// No answer of a stream is looked at, so a field keeps each byte that the stream does not deliver.
class Reader {
 public:
  explicit Reader(const Bytes& bytes) : m_bytes(bytes) {}

  void Int(int& number);
  void Double(std::uint64_t& bits);
  int String(Text& text);
  [[nodiscard]] std::size_t Position() const { return m_position; }

 private:
  void Little(std::uint64_t& bits, int count);

  const Bytes& m_bytes;
  std::size_t m_position = 0;
};

/// The record that a document of a version holds, by the members of a snapshot.
Bytes WriteGraph(const Fields& graph, int version);
int ReadGraph(Fields& graph, Reader& reader, int version);

inline constexpr int kNewest = 890110;

struct Variable {
  Text name = MQ_TEXT("Variable");
  int resultType = 2;
  int component = 9;
  std::uint64_t coefficient = 0x3FF0000000000000;  ///< the bits of 1.0
};

void WriteVariable(Writer& writer, const Variable& variable);
int ReadVariable(Variable& variable, Reader& reader, int version);

struct EquationPlot {
  Text equation;
  int coefficientsFlag = 0;
  Text strings[2];
  std::vector<Variable> variables;
  Text display;
};

/// A reader takes no more variables of one record: a damaged count must not empty the memory.
inline constexpr int kMostVariables = 65536;

void WriteEquationPlot(Writer& writer, const EquationPlot& plot);
int ReadEquationPlot(EquationPlot& plot, Reader& reader, int version);

/// The members of an equation plot as a snapshot has them.
void PutFields(Fields& fields, const EquationPlot& plot);
EquationPlot EquationPlotOf(const Fields& fields);

std::string HexOf(const Bytes& bytes);

}  // namespace reference
