// Stream records, written and read.

#include <cstddef>
#include <vector>

#include <storage/memory_stream.h>
#include <mqPostCommon/mqPostCommon.h>

#include "family.h"

namespace mqp::bench {
namespace {

std::vector<std::byte> GraphBytes() {
  CmqPostGraphParam graph;
  graph.m_strHost18[0] = MQ_TEXT("Graph 1");
  host::MemoryStream stream;
  graph.WriteToStream(&stream);
  return stream.Bytes();
}

/// The limit is the same bytes in one call of the stream.
void RegisterGraph() {
  static const std::vector<std::byte> record = GraphBytes();
  static host::MemoryStream stream(record);
  static CmqPostGraphParam graph;
  static std::vector<std::byte> bytes(record.size());
  Add("graph record, written to memory", kOurs, [](std::size_t) {
    stream.Rewind();
    graph.WriteToStream(&stream);
  });
  Add("graph record, written to memory", kLimit, [](std::size_t) {
    stream.Rewind();
    stream.Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  });
  Add("graph record, read from memory", kOurs, [](std::size_t) {
    stream.Rewind();
    graph.ReadFromStream(&stream, kNewestRecordVersion);
  });
  Add("graph record, read from memory", kLimit, [](std::size_t) {
    stream.Rewind();
    stream.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr);
  });
}

}  // namespace
}  // namespace mqp::bench

int main(int argc, char** argv) {
  mqp::bench::RegisterGraph();
  return mqp::bench::RunFamily(argc, argv);
}
