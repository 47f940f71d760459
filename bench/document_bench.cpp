// Graph records in a stream of a compound document, where a call costs more than its bytes. Runs on
// both platforms, without a library of measurement, and prints JSON for bench/run. The limit is the
// same bytes in one call of the stream.

#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include <storage/compound_document.h>
#include <storage/memory_stream.h>
#include <mqPostCommon/mqPostCommon.h>

#include "peers/field_by_field.h"
#include "peers/record_samples.h"

namespace mqp::bench {
namespace {

constexpr int kRecords = 500;  // in one stream
constexpr int kRepetitions = 11;
constexpr const char* kStream = "Graphs";

/// Handles one record in a stream.
using Call = std::function<void(IStream&)>;

struct Variant {
  std::string name;
  Call write;
  Call read;
};

/// Nanoseconds for each record.
double Time(IStream& stream, const Call& call) {
  const auto start = std::chrono::steady_clock::now();
  for (int record = 0; record < kRecords; ++record) {
    call(stream);
  }
  const std::chrono::duration<double, std::nano> passed = std::chrono::steady_clock::now() - start;
  return passed.count() / kRecords;
}

void Fill(const std::filesystem::path& file, const Call& write) {
  host::CompoundDocumentWriter document(file);
  {
    const host::DocumentStream stream = document.CreateStream(kStream);
    for (int record = 0; record < kRecords; ++record) {
      write(*stream);
    }
  }
  document.Commit();
}

double TimeWriting(const std::filesystem::path& file, const Call& write) {
  host::CompoundDocumentWriter document(file);
  const host::DocumentStream stream = document.CreateStream(kStream);
  return Time(*stream, write);
}

double TimeReading(const std::filesystem::path& file, const Call& read) {
  const host::CompoundDocument document(file);
  const host::DocumentStream stream = document.OpenStream(kStream);
  return Time(*stream, read);
}

void Print(const std::string& operation, const std::string& variant, int family, double time,
           bool isLast) {
  const std::string name = operation + " " MQ_STORAGE_NAME "/" + variant;
  std::printf(
      "  {\"run_name\": \"%s\", \"family_index\": %d, \"run_type\": \"iteration\", \"cpu_time\": "
      "%g}%s\n",
      name.c_str(), family, time, isLast ? "" : ",");
}

int Run() {
  static PlainGraph plain = SampleGraph();
  host::MemoryStream stream;
  FieldWriter writer(stream);
  plain.serialize(writer);
  static std::vector<std::byte> bytes = stream.Bytes();
  static CmqPostGraphParam graph;
  stream.Rewind();
  graph.ReadFromStream(&stream, kNewestRecordVersion);

  const std::vector<Variant> variants = {
      {"ours", [](IStream& to) { graph.WriteToStream(&to); },
       [](IStream& from) { graph.ReadFromStream(&from, kNewestRecordVersion); }},
      {"limit",
       [](IStream& to) { to.Write(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr); },
       [](IStream& from) { from.Read(bytes.data(), static_cast<ULONG>(bytes.size()), nullptr); }},
      {"field by field",
       [](IStream& to) {
         FieldWriter fields(to);
         plain.serialize(fields);
       },
       [](IStream& from) {
         FieldReader fields(from);
         plain.serialize(fields);
       }},
  };

  const std::filesystem::path file = std::filesystem::temp_directory_path() / "mqDocumentBench.cfb";
  std::vector<std::byte> expected;
  for (const Variant& variant : variants) {
    Fill(file, variant.write);
    const std::vector<std::byte> written = host::CompoundDocument(file).ReadStream(kStream);
    if (!expected.empty() && written != expected) {
      std::fprintf(stderr, "different bytes: %s\n", variant.name.c_str());
      return 1;
    }
    expected = written;
  }
  std::printf("{\"benchmarks\": [\n");
  for (int repetition = 0; repetition < kRepetitions; ++repetition) {
    for (const Variant& variant : variants) {
      const bool isLast = repetition + 1 == kRepetitions && &variant == &variants.back();
      Print("graph record, written to a stream of", variant.name, 0,
            TimeWriting(file, variant.write), false);
      Print("graph record, read from a stream of", variant.name, 1, TimeReading(file, variant.read),
            isLast);
    }
  }
  std::printf("]}\n");
  std::filesystem::remove(file);
  return 0;
}

}  // namespace
}  // namespace mqp::bench

int main() {
  return mqp::bench::Run();
}
