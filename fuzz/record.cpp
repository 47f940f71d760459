// The records of graphs and equation plots. What is read is what a plain reader makes of the same
// bytes, in a document of any version and from a stream that ends anywhere. What is saved is the
// newest layout; it is read back as it was, and saved again it has the same bytes.
#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <memory>
#include <string>
#include <variant>

#include <storage/memory_stream.h>
#include <mqPostCommon/params/equation_plot.h>
#include <mqPostCommon/params/graph.h>

#include "input.h"
#include "params/record_test_support.h"
#include "plain_text.h"

namespace mqp::fuzz {
namespace {

using host::MemoryStream;

constexpr int kVersions[] = {800018, 800026, 800062, 820022, 840028, 870002,
                             890002, 890005, 890109, 890110, INT_MAX};
constexpr std::size_t kFirstVersionOfEquations = 8;  // in the row above
constexpr int kMostVariables = 65536;

/// Reads as the format is written down: one call a field, whatever the stream answers.
struct FieldReader {
  IStream& stream;
  void operator()(int* value) const { stream.Read(value, 4, nullptr); }
  void operator()(double* value) const { stream.Read(value, 8, nullptr); }
  void operator()(CString* value) const {
    Units text(value->View());
    ReadTextPlainly(stream, text);
    *value = CString(mqTextView(text));
  }
};

bool ShowsWhatHasAUnit(const CmqPostGraphParam& graph) {
  const int result = graph.m_nResultType;
  const int shown = graph.m_YAxis.m_nComponent;
  const bool isMotion = result == 1 || result == 19 || result == 20;
  const bool isReaction =
      result == 1 && ((shown >= 4 && shown <= 7) || (shown >= 11 && shown <= 14));
  return isMotion && graph.m_YAxis.m_nQuantityType == result &&
         (isReaction || (graph.m_nAnalysisType == 8 && shown == 3));
}

int ReadPlainly(CmqPostGraphParam& graph, IStream& stream, int version) {
  if (version < kVersions[0]) {
    return 0;
  }
  for (const auto& slot : test::RecordSlots(graph)) {
    if (version >= slot.since) {
      std::visit(FieldReader{stream}, slot.value);
    }
  }
  if (version >= 820022 && graph.m_nYUnitFlag == 0 && ShowsWhatHasAUnit(graph)) {
    graph.m_nYUnitFlag = 1;
  }
  for (CmqGraphAxis* axis : {&graph.m_XAxis, &graph.m_YAxis}) {
    if (version < 890002 && axis->m_nQuantityType == 2 && axis->m_nComponent >= 11) {
      axis->m_nComponent = axis->m_nComponent == INT_MAX ? INT_MIN : axis->m_nComponent + 1;
    }
  }
  return 1;
}

int ReadPlainly(CmqEquationPlotParam& plot, IStream& stream, int version) {
  if (version < kVersions[kFirstVersionOfEquations]) {
    return 0;
  }
  const FieldReader read{stream};
  int count = 0;
  read(&plot.m_strEquation);
  read(&plot.m_nCoefficientsFlag);
  read(&plot.m_strHost3[0]);
  read(&plot.m_strHost3[1]);
  read(&count);
  for (int place = 0; place < std::min(count, kMostVariables); ++place) {
    auto& variable = plot.m_listVariables.Append(std::make_unique<CmqEquationVariable>());
    read(&variable.m_strName);
    read(&variable.m_nResultType);
    read(&variable.m_nComponent);
    read(&variable.m_dCoefficient);
  }
  return 1;
}

std::string Differences(const CmqPostGraphParam& got, const CmqPostGraphParam& expected) {
  return test::Differences(got, expected);
}
std::string Differences(const CmqEquationPlotParam& got, const CmqEquationPlotParam& expected) {
  return test::Differences(got, test::StateOf(expected));
}

ByteString LayOut(const CmqPostGraphParam& graph) {
  return test::BuildRecord(graph, kNewestRecordVersion);
}
ByteString LayOut(const CmqEquationPlotParam& plot) {
  return test::BuildRecord(test::StateOf(plot));
}

ByteString Save(const CmqPostGraphParam& graph, int /*version*/) {
  MemoryStream stream;
  Require(graph.WriteToStream(&stream) == 1, "a graph is written");
  return stream.Bytes();
}
ByteString Save(const CmqEquationPlotParam& plot, int version) {
  MemoryStream stream;
  Require(plot.WriteToStream(&stream, version) == 1, "an equation plot is written");
  return stream.Bytes();
}

/// What comes back of an object: the persisted members, of variables as many as are read, and the
/// default name of those that have none, as an empty text is not read.
CmqPostGraphParam Persisted(const CmqPostGraphParam& graph) {
  CmqPostGraphParam persisted;
  const auto sources = test::RecordSlots(graph);
  auto source = sources.begin();
  for (const auto& slot : test::RecordSlots(persisted)) {
    std::visit(
        [&](auto* to) {
          *to = *std::get<const std::remove_pointer_t<decltype(to)>*>(source->value);
        },
        slot.value);
    ++source;
  }
  return persisted;
}
CmqEquationPlotParam Persisted(const CmqEquationPlotParam& plot) {
  test::EquationState state = test::StateOf(plot);
  state.displayEquation.Empty();
  state.variables.resize(std::min<std::size_t>(state.variables.size(), kMostVariables));
  for (test::VariableState& variable : state.variables) {
    variable.name = variable.name.IsEmpty() ? CString(MQ_TEXT("Variable")) : variable.name;
  }
  CmqEquationPlotParam persisted;
  test::SetState(persisted, state);
  return persisted;
}

/// Reads bytes over an object and expects what the plain reader makes of a copy of it.
template <class Object>
void Read(Object& object, const ByteString& bytes, int version) {
  Object expected(object);
  MemoryStream stream(bytes);
  MemoryStream plainStream(bytes);
  const int answer = object.ReadFromStream(&stream, version);
  Require(answer == ReadPlainly(expected, plainStream, version), "the answer of a reader");
  Require(stream.Position() == plainStream.Position(), "a reader takes its fields alone");
  RequireNone(Differences(object, expected));
}

template <class Object>
void Play(Object object, const ByteString& bytes, int version, std::uint16_t cut) {
  Read(object, bytes, version);
  const ByteString saved = Save(object, version);
  RequireNone(test::ByteDifference(saved, LayOut(object)));

  Object again;
  Read(again, saved, kNewestRecordVersion);
  const Object persisted = Persisted(object);
  RequireNone(Differences(again, persisted));
  RequireNone(test::ByteDifference(Save(again, version), LayOut(persisted)));

  Object rest(object);
  Read(rest, test::FirstBytes(saved, cut % (saved.size() + 1)), version);
}

/// Where the count of variables stands in the record of an equation plot.
std::size_t FindCount(const ByteString& bytes) {
  MemoryStream stream(bytes);
  const FieldReader read{stream};
  CString text;
  int flag = 0;
  read(&text);
  read(&flag);
  read(&text);
  read(&text);
  return stream.Position();
}

/// Damaged bytes mostly claim more variables than there are. These take their time, so that nothing
/// else is done with such a record.
void ReadManyVariables(const ByteString& bytes, int version) {
  MemoryStream stream(bytes);
  CmqEquationPlotParam plot;
  plot.ReadFromStream(&stream, version);
  const std::size_t place = FindCount(bytes);
  int count = 0;
  MemoryStream rest(ByteString(bytes.begin() + static_cast<std::ptrdiff_t>(place), bytes.end()));
  FieldReader{rest}(&count);
  const int expected = version < kVersions[kFirstVersionOfEquations] ? 0 : count;
  Require(plot.m_listVariables.GetCount() == std::clamp(expected, 0, kMostVariables),
          "the variables of a record are read up to the limit");
}

void PlayEquation(Input& input, bool isFilled, int version, std::uint16_t cut) {
  const bool hasMany = input.ConsumeIntegral<std::uint16_t>() == 0xFFFF;
  ByteString bytes = input.Rest();
  if (hasMany) {
    ReadManyVariables(bytes, version);
    return;
  }
  const std::size_t count = FindCount(bytes);  // of which the lowest byte stays
  for (std::size_t place = count + 1; place < std::min(count + 4, bytes.size()); ++place) {
    bytes[place] = std::byte{0};
  }
  CmqEquationPlotParam plot;
  test::SetState(plot, isFilled ? test::FilledEquation(1) : test::EquationState());
  Play(plot, bytes, version, cut);
}

int AnyVersion(Input& input) {
  const int place = input.Below(static_cast<int>(std::size(kVersions)) + 1);
  return place == static_cast<int>(std::size(kVersions)) ? input.AnyInt()
                                                         : kVersions[place] - input.Below(2);
}

}  // namespace
}  // namespace mqp::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace mqp;
  fuzz::Input input(data, size);
  const bool isGraph = input.ConsumeBool();
  const bool isFilled = input.ConsumeBool();
  const int version = fuzz::AnyVersion(input);
  const auto cut = input.ConsumeIntegral<std::uint16_t>();
  if (isGraph) {
    fuzz::Play(isFilled ? test::FilledGraph(1) : CmqPostGraphParam(), input.Rest(), version, cut);
    return 0;
  }
  fuzz::PlayEquation(input, isFilled, version, cut);
  return 0;
}
