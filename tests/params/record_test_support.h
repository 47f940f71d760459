/// \file
/// What the tests of the stream records share: bytes laid out by hand, streams that fail, the
/// members of a graph one by one, and equation plots as plain values.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <initializer_list>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include <storage/memory_stream.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

/// Found by the test framework through the argument; code units outside ASCII are escaped.
inline void PrintTo(const CString& text, std::ostream* out) {
  *out << '"';
  for (const mqChar unit : text.View()) {
    if (unit >= 0x20 && unit < 0x7F) {
      *out << static_cast<char>(unit);
    } else {
      std::array<char, 8> escaped{};
      std::snprintf(escaped.data(), escaped.size(), "\\u%04X", static_cast<unsigned>(unit));
      *out << escaped.data();
    }
  }
  *out << "\" (" << text.GetLength() << " units)";
}

namespace mqp::test {

using ByteString = std::vector<std::byte>;

/// Bytes as hexadecimal pairs, sixteen a line.
inline std::string Hex(const ByteString& bytes) {
  std::string text;
  for (std::size_t position = 0; position < bytes.size(); ++position) {
    std::array<char, 4> pair{};
    std::snprintf(pair.data(), pair.size(), "%02X ", std::to_integer<unsigned>(bytes[position]));
    text += pair.data();
    if (position % 16 == 15) {
      text += '\n';
    }
  }
  return text;
}

/// The first difference of two byte strings in words; empty when they are equal.
inline std::string ByteDifference(const ByteString& got, const ByteString& expected) {
  std::size_t position = 0;
  while (position < got.size() && position < expected.size() &&
         got[position] == expected[position]) {
    ++position;
  }
  if (position == got.size() && position == expected.size()) {
    return {};
  }
  const auto at = [position](const ByteString& bytes) {
    return position < bytes.size() ? Hex({bytes[position]}) : std::string("the end ");
  };
  return "byte " + std::to_string(position) + ": got " + at(got) + "of " +
         std::to_string(got.size()) + " bytes, expected " + at(expected) + "of " +
         std::to_string(expected.size());
}

/// Lays out a record field by field, lowest byte first on every machine.
class RecordBytes {
 public:
  RecordBytes& Integer(int value) { return Append(static_cast<std::uint32_t>(value), 4); }
  RecordBytes& Double(double value) { return Append(std::bit_cast<std::uint64_t>(value), 8); }
  RecordBytes& Units(mqTextView units) {
    for (const mqChar unit : units) {
      Append(unit, 2);
    }
    return *this;
  }
  /// A string record; the text is at most 1024 units long.
  RecordBytes& Text(mqTextView text) { return Integer(static_cast<int>(text.size())).Units(text); }
  RecordBytes& Raw(std::initializer_list<int> bytes) {
    for (const int byte : bytes) {
      m_bytes.push_back(static_cast<std::byte>(byte));
    }
    return *this;
  }

  [[nodiscard]] const ByteString& Get() const noexcept { return m_bytes; }

 private:
  RecordBytes& Append(std::uint64_t value, int width) {
    for (int byte = 0; byte < width; ++byte) {
      m_bytes.push_back(static_cast<std::byte>(value >> (8 * byte) & 0xFF));
    }
    return *this;
  }

  ByteString m_bytes;
};

/// The first `count` bytes.
inline ByteString FirstBytes(const ByteString& bytes, std::size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(count)};
}

inline void Answer(ULONG* transferred, ULONG count) {
  if (transferred != nullptr) {
    *transferred = count;
  }
}

/// Counts the calls, and those that asked for the number of bytes.
class CountingStream : public host::MemoryStream {
 public:
  using MemoryStream::MemoryStream;
  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    ++reads;
    counted += transferred != nullptr ? 1 : 0;
    return MemoryStream::Read(buffer, size, transferred);
  }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    ++writes;
    counted += transferred != nullptr ? 1 : 0;
    return MemoryStream::Write(buffer, size, transferred);
  }
  int reads = 0;
  int writes = 0;
  int counted = 0;
};

/// Answers every call alike and transfers nothing.
class RefusingStream : public host::MemoryStream {
 public:
  explicit RefusingStream(HRESULT result) : m_result(result) {}
  HRESULT Read(void*, ULONG, ULONG* transferred) override {
    Answer(transferred, 0);
    return m_result;
  }
  HRESULT Write(const void*, ULONG, ULONG* transferred) override {
    Answer(transferred, 0);
    return m_result;
  }

 private:
  HRESULT m_result;
};

/// Transfers at most `limit` bytes a call and calls that a success.
class GrudgingStream : public host::MemoryStream {
 public:
  GrudgingStream(ByteString bytes, ULONG limit) : MemoryStream(std::move(bytes)), m_limit(limit) {}
  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    MemoryStream::Read(buffer, size < m_limit ? size : m_limit, transferred);
    return S_OK;
  }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    MemoryStream::Write(buffer, size < m_limit ? size : m_limit, transferred);
    return S_OK;
  }

 private:
  ULONG m_limit;
};

/// Works until a number of calls have succeeded, and fails from then on.
class WearyStream : public host::MemoryStream {
 public:
  WearyStream(ByteString bytes, int successes)
      : MemoryStream(std::move(bytes)), m_successes(successes) {}
  HRESULT Read(void* buffer, ULONG size, ULONG* transferred) override {
    return m_successes-- > 0 ? MemoryStream::Read(buffer, size, transferred) : Fail(transferred);
  }
  HRESULT Write(const void* buffer, ULONG size, ULONG* transferred) override {
    return m_successes-- > 0 ? MemoryStream::Write(buffer, size, transferred) : Fail(transferred);
  }
  /// Whether a call failed.
  [[nodiscard]] bool IsWornOut() const noexcept { return m_successes < 0; }

 private:
  static HRESULT Fail(ULONG* transferred) {
    Answer(transferred, 0);
    return E_FAIL;
  }

  int m_successes;
};

/// Calls `visit(name, index, member)` for every member of a graph in the order of declaration,
/// for each element of an array on its own; the index of a single member is -1.
template <class Graph, class Visit>
void VisitMembers(Graph& graph, Visit visit) {
  const auto each = [&visit](const char* name, auto& array) {
    int index = 0;
    for (auto& element : array) {
      visit(name, index++, element);
    }
  };
  const auto axis = [&visit](const char* name, auto& ends) {
    visit(name, 0, ends.m_nQuantityType);
    visit(name, 1, ends.m_nComponent);
    visit(name, 2, ends.m_nUnit);
    visit(name, 3, ends.m_nSensor);
  };
  visit("m_nAnalysisType", -1, graph.m_nAnalysisType);
  visit("m_nResultType", -1, graph.m_nResultType);
  visit("m_nHost3", -1, graph.m_nHost3);
  visit("m_nResultOption", -1, graph.m_nResultOption);
  each("m_nHost5", graph.m_nHost5);
  visit("m_nHost6", -1, graph.m_nHost6);
  each("m_nHost7", graph.m_nHost7);
  axis("m_XAxis", graph.m_XAxis);
  axis("m_YAxis", graph.m_YAxis);
  each("m_nHost16", graph.m_nHost16);
  each("m_nHost17", graph.m_nHost17);
  each("m_strHost18", graph.m_strHost18);
  visit("m_nHost19", -1, graph.m_nHost19);
  visit("m_strHost20", -1, graph.m_strHost20);
  for (auto& row : graph.m_ViewMatrix.m_dRows) {
    each("m_ViewMatrix (row)", row);
  }
  each("m_nHost22", graph.m_nHost22);
  visit("m_nDynamicOption", -1, graph.m_nDynamicOption);
  visit("m_nHost24", -1, graph.m_nHost24);
  visit("m_nHost25", -1, graph.m_nHost25);
  each("m_dHost26", graph.m_dHost26);
  visit("m_nHost27", -1, graph.m_nHost27);
  visit("m_nYUnitFlag", -1, graph.m_nYUnitFlag);
  each("m_nHost29", graph.m_nHost29);
  visit("m_nHost30", -1, graph.m_nHost30);
  visit("m_nHost31", -1, graph.m_nHost31);
  visit("m_nFrequencyResponseFlag", -1, graph.m_nFrequencyResponseFlag);
  visit("m_nFrequencyResponseMode", -1, graph.m_nFrequencyResponseMode);
  each("m_nHost34", graph.m_nHost34);
  visit("m_dHost35", -1, graph.m_dHost35);
  visit("m_strHost36", -1, graph.m_strHost36);
  each("m_nHost37", graph.m_nHost37);
  visit("m_n64Host37", -1, graph.m_n64Host37);
  visit("m_mapHost38", -1, graph.m_mapHost38);
  visit("m_nHost39", -1, graph.m_nHost39);
}

/// How a member is compared and shown; doubles by their bits, so that -0.0 is not 0.0.
inline std::string Show(int value) {
  return std::to_string(value);
}
inline std::string Show(__int64 value) {
  return std::to_string(value);
}
inline std::string Show(double value) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.17g (%016llX)", value,
                static_cast<unsigned long long>(std::bit_cast<std::uint64_t>(value)));
  return text.data();
}
inline std::string Show(const CString& value) {
  std::string text;
  for (const mqChar unit : value.View().substr(0, 40)) {
    if (unit >= 0x20 && unit < 0x7F) {
      text += static_cast<char>(unit);
    } else {
      text += "\\" + std::to_string(static_cast<unsigned>(unit));
    }
  }
  return '"' + text + "\" (" + std::to_string(value.GetLength()) + " units)";
}
inline std::string Show(const std::map<int, CString>& value) {
  std::string text;
  for (const auto& [key, entry] : value) {
    text += std::to_string(key) + ": " + Show(entry) + "; ";
  }
  return '{' + text + '}';
}

inline bool IsSame(double left, double right) {
  return std::bit_cast<std::uint64_t>(left) == std::bit_cast<std::uint64_t>(right);
}
template <class Value>
bool IsSame(const Value& left, const Value& right) {
  return left == right;
}

/// Every member in which two graphs differ, a line each; empty when they are equal.
inline std::string Differences(const CmqPostGraphParam& got, const CmqPostGraphParam& expected) {
  using Member = std::variant<const int*, const double*, const __int64*, const CString*,
                              const std::map<int, CString>*>;
  std::vector<Member> expectedMembers;
  expectedMembers.reserve(128);
  VisitMembers(expected, [&](const char*, int, const auto& member) {
    expectedMembers.emplace_back(&member);
  });
  std::string text;
  std::size_t position = 0;
  VisitMembers(got, [&](const char* name, int index, const auto& member) {
    const auto& other = *std::get<decltype(&member)>(expectedMembers[position++]);
    if (!IsSame(member, other)) {
      text += std::string(name) + (index < 0 ? "" : '[' + std::to_string(index) + ']') + ": got " +
              Show(member) + ", expected " + Show(other) + '\n';
    }
  });
  return text;
}

/// Gives every member a value of its own, different from each default, from every other member
/// and from those of another seed from 1 to 7. No code means anything to the graph.
inline void FillWithDistinctValues(CmqPostGraphParam& graph, int seed) {
  struct Filler {
    int next;
    void Set(int& member) { member = next++; }
    void Set(double& member) { member = -1.0 / 3.0 - next++ / 7.0; }
    void Set(__int64& member) { member = 0x1234'5678'9ABC'0000 + next++; }
    void Set(CString& member) { member.Format(MQ_TEXT("text \u03A9 %d"), next++); }
    void Set(std::map<int, CString>& member) {
      member.clear();
      Set(member[next++]);
      Set(member[-next++]);
    }
  };
  Filler filler{seed * 0x1111'1111};
  VisitMembers(graph, [&filler](const char*, int, auto& member) { filler.Set(member); });
}

inline CmqPostGraphParam FilledGraph(int seed) {
  CmqPostGraphParam graph;
  FillWithDistinctValues(graph, seed);
  return graph;
}

/// A field of the graph record, each of a row's values on its own, with the first document
/// version that has it.
template <class Integer, class Real, class Text>
struct BasicRecordSlot {
  int since;
  std::variant<Integer*, Real*, Text*> value;
};
template <class Graph>
using RecordSlot = std::conditional_t<std::is_const_v<Graph>,
                                      BasicRecordSlot<const int, const double, const CString>,
                                      BasicRecordSlot<int, double, CString>>;

/// The graph record in the order of the stream.
template <class Graph>
std::vector<RecordSlot<Graph>> RecordSlots(Graph& graph) {
  std::vector<RecordSlot<Graph>> slots;
  const auto one = [&slots](int since, auto& member) { slots.push_back({since, &member}); };
  const auto all = [&one](int since, auto& members) {
    for (auto& member : members) {
      one(since, member);
    }
  };
  // clang-format off
  one(800018, graph.m_nAnalysisType);
  one(800018, graph.m_nResultType);
  one(800018, graph.m_nHost3);
  one(800018, graph.m_nResultOption);
  all(800018, graph.m_nHost5);
  one(800018, graph.m_nHost6);
  all(800018, graph.m_nHost7);
  one(800018, graph.m_XAxis.m_nQuantityType);
  one(800018, graph.m_XAxis.m_nComponent);
  one(800018, graph.m_XAxis.m_nUnit);
  one(870002, graph.m_XAxis.m_nSensor);
  one(800018, graph.m_YAxis.m_nQuantityType);
  one(800018, graph.m_YAxis.m_nComponent);
  one(800018, graph.m_YAxis.m_nUnit);
  one(870002, graph.m_YAxis.m_nSensor);
  all(800018, graph.m_strHost18);
  all(800018, graph.m_nHost16);          // the integers stand behind the strings
  all(800018, graph.m_nHost17);
  one(800026, graph.m_nHost19);
  one(800026, graph.m_strHost20);
  for (auto& row : graph.m_ViewMatrix.m_dRows) {
    all(800026, row);
  }
  all(800062, graph.m_nHost22);
  one(820022, graph.m_nHost25);
  all(820022, graph.m_dHost26);
  one(820022, graph.m_nHost27);
  one(820022, graph.m_nYUnitFlag);
  one(840028, graph.m_nHost30);
  one(890005, graph.m_nFrequencyResponseFlag);
  one(890005, graph.m_nFrequencyResponseMode);
  all(890005, graph.m_nHost34);
  one(890005, graph.m_dHost35);
  one(890110, graph.m_nHost39);
  // clang-format on
  return slots;
}

/// The record that a document of a version holds for a graph, laid out by hand.
inline ByteString BuildRecord(const CmqPostGraphParam& graph, int version) {
  struct Appender {
    RecordBytes bytes;
    void operator()(const int* value) { bytes.Integer(*value); }
    void operator()(const double* value) { bytes.Double(*value); }
    void operator()(const CString* value) { bytes.Text(value->View()); }
  };
  Appender appender;
  for (const auto& slot : RecordSlots(graph)) {
    if (version >= slot.since) {
      std::visit(appender, slot.value);
    }
  }
  return appender.bytes.Get();
}

/// What reading puts right: a Y unit flag of zero where the shown component rules it out.
inline void CorrectYUnitFlag(CmqPostGraphParam& graph) {
  const int component = graph.m_YAxis.m_nComponent;
  const int type = graph.m_nResultType;
  if (graph.m_nYUnitFlag != 0 || graph.m_YAxis.m_nQuantityType != type) {
    return;
  }
  const bool isReaction =
      type == 1 && ((component >= 4 && component <= 7) || (component >= 11 && component <= 14));
  const bool isDynamicResultant =
      graph.m_nAnalysisType == 8 && component == 3 && (type == 1 || type == 19 || type == 20);
  if (isReaction || isDynamicResultant) {
    graph.m_nYUnitFlag = 1;
  }
}

/// What reading puts right in documents before the version that inserted a stress component.
inline void CorrectStressComponent(CmqGraphAxis& axis) {
  if (axis.m_nQuantityType == 2 && axis.m_nComponent >= 11) {
    axis.m_nComponent = static_cast<int>(static_cast<unsigned>(axis.m_nComponent) + 1U);
  }
}

// --- equation plots ---

/// The members of a variable as plain values; a new one has those of a new variable.
struct VariableState {
  CString name = MQ_TEXT("Variable");
  int resultType = 2;
  int component = 9;
  double coefficient = 1.0;
};

/// The members of an equation plot as plain values; a new one has those of a new plot.
struct EquationState {
  CString equation{};
  int coefficientsFlag = 0;
  std::array<CString, 2> host3{};
  std::vector<VariableState> variables{};
  CString displayEquation{};
};

inline VariableState StateOf(const CmqEquationVariable& variable) {
  return {variable.m_strName, variable.m_nResultType, variable.m_nComponent,
          variable.m_dCoefficient};
}
inline EquationState StateOf(const CmqEquationPlotParam& plot) {
  EquationState state{plot.m_strEquation,
                      plot.m_nCoefficientsFlag,
                      {plot.m_strHost3[0], plot.m_strHost3[1]},
                      {},
                      plot.m_strDisplayEquation};
  for (POSITION position = plot.m_listVariables.GetHeadPosition(); position != nullptr;) {
    state.variables.push_back(StateOf(*plot.m_listVariables.GetNext(position)));
  }
  return state;
}

inline void SetState(CmqEquationVariable& variable, const VariableState& state) {
  variable.m_strName = state.name;
  variable.m_nResultType = state.resultType;
  variable.m_nComponent = state.component;
  variable.m_dCoefficient = state.coefficient;
}
inline void SetState(CmqEquationPlotParam& plot, const EquationState& state) {
  plot.m_strEquation = state.equation;
  plot.m_nCoefficientsFlag = state.coefficientsFlag;
  plot.m_strHost3[0] = state.host3[0];
  plot.m_strHost3[1] = state.host3[1];
  plot.m_listVariables.DeleteAll();
  for (const VariableState& variable : state.variables) {
    SetState(plot.m_listVariables.Append(std::make_unique<CmqEquationVariable>()), variable);
  }
  plot.m_strDisplayEquation = state.displayEquation;
}

/// A line when a member differs; empty when it does not.
template <class Value>
std::string MemberDifference(const char* name, const Value& got, const Value& expected) {
  return IsSame(got, expected)
             ? std::string()
             : std::string(name) + ": got " + Show(got) + ", expected " + Show(expected) + '\n';
}

/// Every member in which two variables differ, a line each; empty when they are equal.
inline std::string Differences(const VariableState& got, const VariableState& expected) {
  return MemberDifference("name", got.name, expected.name) +
         MemberDifference("result type", got.resultType, expected.resultType) +
         MemberDifference("component", got.component, expected.component) +
         MemberDifference("coefficient", got.coefficient, expected.coefficient);
}
inline std::string Differences(const CmqEquationVariable& got, const VariableState& expected) {
  return Differences(StateOf(got), expected);
}
/// Every member in which two equation plots differ, a line each; empty when they are equal.
inline std::string Differences(const EquationState& got, const EquationState& expected) {
  std::string text =
      MemberDifference("equation", got.equation, expected.equation) +
      MemberDifference("coefficients flag", got.coefficientsFlag, expected.coefficientsFlag) +
      MemberDifference("first string", got.host3[0], expected.host3[0]) +
      MemberDifference("second string", got.host3[1], expected.host3[1]) +
      MemberDifference("display equation", got.displayEquation, expected.displayEquation) +
      MemberDifference("count of variables", static_cast<int>(got.variables.size()),
                       static_cast<int>(expected.variables.size()));
  const std::size_t common = std::min(got.variables.size(), expected.variables.size());
  for (std::size_t place = 0; place < common; ++place) {
    const std::string difference = Differences(got.variables[place], expected.variables[place]);
    if (!difference.empty()) {
      text += "variable " + std::to_string(place) + ":\n" + difference;
    }
  }
  return text;
}
inline std::string Differences(const CmqEquationPlotParam& got, const EquationState& expected) {
  return Differences(StateOf(got), expected);
}

inline VariableState FilledVariable(int seed) {
  CString name;
  name.Format(MQ_TEXT("name \u03A9 %d"), seed);
  return {name, seed * 0x0101'0101, -seed * 0x0101'0203, -1.0 / 3.0 - seed / 7.0};
}
/// Gives every member a value of its own, different from each default and from those of another
/// seed from 1 to 7.
inline EquationState FilledEquation(int seed, int variables = 3) {
  const auto text = [seed](int member) {
    CString filled;
    filled.Format(MQ_TEXT("text \u4E2D %d"), 100 * seed + member);
    return filled;
  };
  EquationState state{text(1), seed * 0x1111'1111, {text(2), text(3)}, {}, text(4)};
  for (int place = 0; place < variables; ++place) {
    state.variables.push_back(FilledVariable(10 * seed + place));
  }
  return state;
}

/// The record of a variable, laid out by hand.
inline ByteString BuildRecord(const VariableState& variable) {
  return RecordBytes()
      .Text(variable.name.View())
      .Integer(variable.resultType)
      .Integer(variable.component)
      .Double(variable.coefficient)
      .Get();
}
/// The record of an equation plot, laid out by hand.
inline ByteString BuildRecord(const EquationState& plot) {
  ByteString bytes = RecordBytes()
                         .Text(plot.equation.View())
                         .Integer(plot.coefficientsFlag)
                         .Text(plot.host3[0].View())
                         .Text(plot.host3[1].View())
                         .Integer(static_cast<int>(plot.variables.size()))
                         .Get();
  for (const VariableState& variable : plot.variables) {
    const ByteString record = BuildRecord(variable);
    bytes.insert(bytes.end(), record.begin(), record.end());
  }
  return bytes;
}

}  // namespace mqp::test
