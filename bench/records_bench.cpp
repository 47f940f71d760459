// Stream records, written and read. The limit is the same bytes in one call of the stream.

#include <cstddef>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <storage/memory_stream.h>
#include <mqPostCommon/mqPostCommon.h>

#include "family.h"
#include "peers/field_by_field.h"
#include "peers/record_peers.h"
#include "peers/record_samples.h"

namespace mqp::bench {
namespace {

using Bytes = std::vector<std::byte>;

int Write(const CmqPostGraphParam& graph, IStream& stream) {
  return graph.WriteToStream(&stream);
}
int Write(const CmqEquationPlotParam& plot, IStream& stream) {
  return plot.WriteToStream(&stream, kNewestRecordVersion);
}
int Read(CmqPostGraphParam& graph, IStream& stream) {
  return graph.ReadFromStream(&stream, kNewestRecordVersion);
}
/// A plot appends what it reads.
int Read(CmqEquationPlotParam& plot, IStream& stream) {
  plot.m_listVariables.DeleteAll();
  return plot.ReadFromStream(&stream, kNewestRecordVersion);
}

template <class Object>
Bytes Written(const Object& object) {
  host::MemoryStream stream;
  Write(object, stream);
  return stream.Bytes();
}
template <class Plain>
Bytes WrittenFieldByField(Plain record) {
  host::MemoryStream stream;
  FieldWriter writer(stream);
  record.serialize(writer);
  return stream.Bytes();
}

/// Everything that the variants of one kind of record work on.
template <class Object, class Plain>
struct Variants {
  explicit Variants(const Plain& record)
      : plain(record), bytes(WrittenFieldByField(record)), stream(bytes), peers(MakePeers(record)) {
    Read(object, stream);
    RequireSame(Written(object) == bytes, "a record that is written field by field");
    for (NamedPeer<Plain>& named : peers) {
      named.peer->Write();
      named.peer->Read();
      RequireSame(named.peer->Result() == plain, "a record of " + named.name);
    }
    stream.Rewind();
    Plain read;
    FieldReader reader(stream);
    read.serialize(reader);
    RequireSame(read == plain, "a record that is read field by field");
  }

  Plain plain;
  Bytes bytes;
  host::MemoryStream stream;
  Object object;
  std::vector<NamedPeer<Plain>> peers;
};

template <class Object, class Plain>
void Register(const std::string& record, const Plain& sample) {
  const auto all = std::make_shared<Variants<Object, Plain>>(sample);
  const std::string write = record + ", written to memory";
  const std::string read = record + ", read from memory";
  Add(write, kOurs, [all](std::size_t) {
    all->stream.Rewind();
    Write(all->object, all->stream);
  });
  Add(write, kLimit, [all](std::size_t) {
    all->stream.Rewind();
    all->stream.Write(all->bytes.data(), static_cast<ULONG>(all->bytes.size()), nullptr);
  });
  Add(write, "field by field", [all](std::size_t) {
    all->stream.Rewind();
    FieldWriter writer(all->stream);
    all->plain.serialize(writer);
  });
  Add(read, kOurs, [all](std::size_t) {
    all->stream.Rewind();
    Read(all->object, all->stream);
  });
  Add(read, kLimit, [all](std::size_t) {
    all->stream.Rewind();
    all->stream.Read(all->bytes.data(), static_cast<ULONG>(all->bytes.size()), nullptr);
  });
  Add(read, "field by field", [all](std::size_t) {
    all->stream.Rewind();
    FieldReader reader(all->stream);
    EmptyLists(all->plain);
    all->plain.serialize(reader);
  });
  for (NamedPeer<Plain>& named : all->peers) {
    RecordPeer<Plain>* const peer = named.peer.get();
    Add(write, named.name, [peer](std::size_t) { peer->Write(); });
    Add(read, named.name, [peer](std::size_t) { peer->Read(); });
  }
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  using namespace mqp::bench;
  Register<CmqPostGraphParam>("graph record", SampleGraph());
  Register<CmqEquationPlotParam>("equation record of 40 variables", SampleEquation());
  return RunFamily(argc, argv);
}
