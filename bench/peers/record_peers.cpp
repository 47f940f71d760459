#include "record_peers.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <istream>
#include <streambuf>
#include <string_view>
#include <utility>

#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/mpl/int.hpp>
#include <boost/serialization/array.hpp>
#include <boost/serialization/collection_size_type.hpp>
#include <boost/serialization/level.hpp>
#include <boost/serialization/split_free.hpp>
#include <boost/serialization/tracking.hpp>
#include <boost/serialization/vector.hpp>
#include <cereal/archives/binary.hpp>
#include <cereal/types/array.hpp>
#include <cereal/types/string.hpp>
#include <cereal/types/vector.hpp>

#include "records.pb.h"
#include "records_generated.h"

// Boost has no texts of 16-bit units, and writes objects with a class id, a version and an identity
// unless it is told that they have none.
BOOST_SERIALIZATION_SPLIT_FREE(std::u16string)
BOOST_CLASS_IMPLEMENTATION(std::u16string, boost::serialization::object_serializable)
BOOST_CLASS_IMPLEMENTATION(mqp::bench::PlainGraph, boost::serialization::object_serializable)
BOOST_CLASS_IMPLEMENTATION(mqp::bench::PlainVariable, boost::serialization::object_serializable)
BOOST_CLASS_IMPLEMENTATION(mqp::bench::PlainEquation, boost::serialization::object_serializable)
BOOST_CLASS_IMPLEMENTATION(std::vector<mqp::bench::PlainVariable>,
                           boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(std::u16string, boost::serialization::track_never)
BOOST_CLASS_TRACKING(mqp::bench::PlainGraph, boost::serialization::track_never)
BOOST_CLASS_TRACKING(mqp::bench::PlainVariable, boost::serialization::track_never)
BOOST_CLASS_TRACKING(mqp::bench::PlainEquation, boost::serialization::track_never)

namespace boost::serialization {

template <class Value, std::size_t Count>
struct implementation_level_impl<const std::array<Value, Count>> : mpl::int_<object_serializable> {
};
template <class Value, std::size_t Count>
struct tracking_level<std::array<Value, Count>> : mpl::int_<track_never> {};

template <class Archive>
void save(Archive& archive, const std::u16string& text, unsigned /*version*/) {
  archive << collection_size_type(text.size());
  archive.save_binary(text.data(), 2 * text.size());
}
template <class Archive>
void load(Archive& archive, std::u16string& text, unsigned /*version*/) {
  collection_size_type size;
  archive >> size;
  text.resize(size);
  archive.load_binary(text.data(), 2 * text.size());
}
template <class Archive>
void serialize(Archive& archive, mqp::bench::PlainGraph& record, unsigned /*version*/) {
  record.serialize(archive);
}
template <class Archive>
void serialize(Archive& archive, mqp::bench::PlainVariable& record, unsigned /*version*/) {
  record.serialize(archive);
}
template <class Archive>
void serialize(Archive& archive, mqp::bench::PlainEquation& record, unsigned /*version*/) {
  record.serialize(archive);
}

}  // namespace boost::serialization

namespace mqp::bench {
namespace {

constexpr std::size_t kBufferSize = 16384;

/// A buffer of fixed size under the archives that want a stream.
class Buffer : public std::streambuf {
 public:
  void Rewind() {
    setp(m_bytes.data(), m_bytes.data() + m_bytes.size());
    setg(m_bytes.data(), m_bytes.data(), m_bytes.data() + m_bytes.size());
  }

 private:
  std::array<char, kBufferSize> m_bytes;
};

// -------------------------------------------------------------------------------------------------
// Protocol Buffers

std::string_view BytesOf(const std::u16string& text) {
  return {reinterpret_cast<const char*>(text.data()), 2 * text.size()};
}
std::u16string TextOf(const std::string& bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  std::memcpy(text.data(), bytes.data(), bytes.size());
  return text;
}
template <class Values, class Repeated>
void Fill(const Values& values, Repeated* repeated) {
  repeated->Add(values.begin(), values.end());
}
template <class Repeated, class Values>
void Take(const Repeated& repeated, Values& values) {
  std::ranges::copy(repeated, values.begin());
}

void Fill(const PlainGraph& record, proto::Graph& message) {
  Fill(record.heading, message.mutable_heading());
  for (const std::u16string& title : record.titles) {
    message.add_titles(std::string(BytesOf(title)));
  }
  Fill(record.options, message.mutable_options());
  message.set_before_text(record.beforeText);
  message.set_text(std::string(BytesOf(record.text)));
  Fill(record.matrix, message.mutable_matrix());
  Fill(record.behindMatrix, message.mutable_behind_matrix());
  message.set_before_pair(record.beforePair);
  Fill(record.pair, message.mutable_pair());
  Fill(record.behindPair, message.mutable_behind_pair());
  message.set_behind_unit_flag(record.behindUnitFlag);
  Fill(record.response, message.mutable_response());
  message.set_factor(record.factor);
  message.set_last(record.last);
}
void Take(const proto::Graph& message, PlainGraph& record) {
  Take(message.heading(), record.heading);
  std::ranges::transform(message.titles(), record.titles.begin(), TextOf);
  Take(message.options(), record.options);
  record.beforeText = message.before_text();
  record.text = TextOf(message.text());
  Take(message.matrix(), record.matrix);
  Take(message.behind_matrix(), record.behindMatrix);
  record.beforePair = message.before_pair();
  Take(message.pair(), record.pair);
  Take(message.behind_pair(), record.behindPair);
  record.behindUnitFlag = message.behind_unit_flag();
  Take(message.response(), record.response);
  record.factor = message.factor();
  record.last = message.last();
}
void Fill(const PlainEquation& record, proto::Equation& message) {
  message.set_equation(std::string(BytesOf(record.equation)));
  message.set_flag(record.flag);
  for (const std::u16string& text : record.texts) {
    message.add_texts(std::string(BytesOf(text)));
  }
  for (const PlainVariable& variable : record.variables) {
    proto::Variable& added = *message.add_variables();
    added.set_name(std::string(BytesOf(variable.name)));
    added.set_result_type(variable.resultType);
    added.set_component(variable.component);
    added.set_coefficient(variable.coefficient);
  }
}
void Take(const proto::Equation& message, PlainEquation& record) {
  record.equation = TextOf(message.equation());
  record.flag = message.flag();
  std::ranges::transform(message.texts(), record.texts.begin(), TextOf);
  for (const proto::Variable& variable : message.variables()) {
    record.variables.push_back({TextOf(variable.name()), variable.result_type(),
                                variable.component(), variable.coefficient()});
  }
}

/// Messages are what a program would hold in place of our objects: they are filled beforehand.
template <class Record, class Message>
class ProtobufPeer final : public RecordPeer<Record> {
 public:
  explicit ProtobufPeer(const Record& record) { Fill(record, m_written); }
  void Write() override {
    m_size = m_written.ByteSizeLong();
    m_written.SerializeWithCachedSizesToArray(m_bytes.data());
  }
  void Read() override { m_read.ParseFromArray(m_bytes.data(), static_cast<int>(m_size)); }
  Record Result() const override {
    Record record;
    Take(m_read, record);
    return record;
  }

 private:
  Message m_written;
  Message m_read;
  std::array<std::uint8_t, kBufferSize> m_bytes{};
  std::size_t m_size = 0;
};

// -------------------------------------------------------------------------------------------------
// FlatBuffers

using Builder = flatbuffers::FlatBufferBuilder;

auto Make(Builder& builder, const std::u16string& text) {
  return builder.CreateVector(reinterpret_cast<const std::uint16_t*>(text.data()), text.size());
}
void Take(const flatbuffers::Vector<std::uint16_t>* units, std::u16string& text) {
  text.assign(reinterpret_cast<const char16_t*>(units->data()), units->size());
}
template <class Values, class Array>
void Take(const Array* array, Values& values) {
  std::memcpy(values.data(), array->Data(), sizeof(values));
}

void Build(Builder& builder, const PlainGraph& record) {
  const auto title0 = Make(builder, record.titles[0]);
  const auto title1 = Make(builder, record.titles[1]);
  const auto title2 = Make(builder, record.titles[2]);
  const auto text = Make(builder, record.text);
  const flat::Heading heading{flatbuffers::span<const int, 17>(record.heading)};
  const flat::Options options{flatbuffers::span<const int, 24>(record.options)};
  const flat::Matrix matrix{flatbuffers::span<const double, 16>(record.matrix)};
  const flat::BehindMatrix behindMatrix{flatbuffers::span<const int, 3>(record.behindMatrix)};
  const flat::Pair pair{record.beforePair, flatbuffers::span<const double, 2>(record.pair),
                        flatbuffers::span<const int, 2>(record.behindPair)};
  const flat::Response response{flatbuffers::span<const int, 6>(record.response), record.factor};
  builder.Finish(flat::CreateGraph(builder, &heading, title0, title1, title2, &options,
                                   record.beforeText, text, &matrix, &behindMatrix, &pair,
                                   record.behindUnitFlag, &response, record.last));
}
void Take(const flat::Graph& table, PlainGraph& record) {
  Take(table.heading()->values(), record.heading);
  Take(table.titles_0(), record.titles[0]);
  Take(table.titles_1(), record.titles[1]);
  Take(table.titles_2(), record.titles[2]);
  Take(table.options()->values(), record.options);
  record.beforeText = table.before_text();
  Take(table.text(), record.text);
  Take(table.matrix()->rows(), record.matrix);
  Take(table.behind_matrix()->values(), record.behindMatrix);
  record.beforePair = table.pair()->before();
  Take(table.pair()->values(), record.pair);
  Take(table.pair()->behind(), record.behindPair);
  record.behindUnitFlag = table.behind_unit_flag();
  Take(table.response()->values(), record.response);
  record.factor = table.response()->factor();
  record.last = table.last();
}
void Build(Builder& builder, const PlainEquation& record) {
  const auto equation = Make(builder, record.equation);
  const auto text0 = Make(builder, record.texts[0]);
  const auto text1 = Make(builder, record.texts[1]);
  std::array<flatbuffers::Offset<flat::Variable>, 64> variables;
  std::ranges::transform(record.variables, variables.begin(), [&](const PlainVariable& variable) {
    return flat::CreateVariable(builder, Make(builder, variable.name), variable.resultType,
                                variable.component, variable.coefficient);
  });
  builder.Finish(
      flat::CreateEquation(builder, equation, record.flag, text0, text1,
                           builder.CreateVector(variables.data(), record.variables.size())));
}
void Take(const flat::Equation& table, PlainEquation& record) {
  Take(table.equation(), record.equation);
  record.flag = table.flag();
  Take(table.texts_0(), record.texts[0]);
  Take(table.texts_1(), record.texts[1]);
  record.variables.clear();
  record.variables.resize(table.variables()->size());
  std::size_t place = 0;
  for (const flat::Variable* variable : *table.variables()) {
    PlainVariable& taken = record.variables[place++];
    Take(variable->name(), taken.name);
    taken.resultType = variable->result_type();
    taken.component = variable->component();
    taken.coefficient = variable->coefficient();
  }
}

/// What is read is checked first, as everything from a file has to be, and ends in an object that
/// can be changed.
template <class Record, class Table>
class FlatBuffersPeer final : public RecordPeer<Record> {
 public:
  explicit FlatBuffersPeer(const Record& record) : m_written(record) {}
  void Write() override {
    m_builder.Clear();
    Build(m_builder, m_written);
  }
  void Read() override {
    flatbuffers::Verifier verifier(m_builder.GetBufferPointer(), m_builder.GetSize());
    if (verifier.VerifyBuffer<Table>()) {
      Take(*flatbuffers::GetRoot<Table>(m_builder.GetBufferPointer()), m_read);
    }
  }
  Record Result() const override { return m_read; }

 private:
  Record m_written;
  Record m_read;
  Builder m_builder{kBufferSize};
};

// -------------------------------------------------------------------------------------------------
// cereal and Boost.Serialization

/// One archive for all records, with nothing of its own before one of them.
template <class Record, class Output, class Input>
class ArchivePeer final : public RecordPeer<Record> {
 public:
  template <class... Options>
  explicit ArchivePeer(Record record, Options... options)
      : m_written(std::move(record)),
        m_output(m_stream, options...),
        m_input(m_stream, options...) {}
  void Write() override {
    m_buffer.Rewind();
    m_output << m_written;
  }
  void Read() override {
    m_buffer.Rewind();
    EmptyLists(m_read);
    m_input >> m_read;
  }
  Record Result() const override { return m_read; }

 private:
  Record m_written;
  Record m_read;
  Buffer m_buffer;
  std::iostream m_stream{&m_buffer};
  Output m_output;
  Input m_input;
};

template <class Record, class Message, class Table>
std::vector<NamedPeer<Record>> MakeAll(const Record& record) {
  using Cereal = ArchivePeer<Record, cereal::BinaryOutputArchive, cereal::BinaryInputArchive>;
  using Boost =
      ArchivePeer<Record, boost::archive::binary_oarchive, boost::archive::binary_iarchive>;
  std::vector<NamedPeer<Record>> peers;
  peers.push_back({"protobuf", std::make_unique<ProtobufPeer<Record, Message>>(record)});
  peers.push_back({"FlatBuffers", std::make_unique<FlatBuffersPeer<Record, Table>>(record)});
  peers.push_back({"cereal", std::make_unique<Cereal>(record)});
  peers.push_back({"Boost", std::make_unique<Boost>(record, boost::archive::no_header)});
  return peers;
}

}  // namespace

std::vector<NamedPeer<PlainGraph>> MakePeers(const PlainGraph& record) {
  return MakeAll<PlainGraph, proto::Graph, flat::Graph>(record);
}
std::vector<NamedPeer<PlainEquation>> MakePeers(const PlainEquation& record) {
  return MakeAll<PlainEquation, proto::Equation, flat::Equation>(record);
}

}  // namespace mqp::bench
