#include <cstddef>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <gtest/gtest.h>
#include <storage/compound_document.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/platform/comm_funcs.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

using nlohmann::json;

// Documents of these versions lie beside a description of what is in them.
constexpr int kDocuments[] = {800018, 800062, 820022, 870002, 890005, 890110};

struct StoredGraph {
  int version;
  std::string where;
  json description;
  ByteString bytes;
};

/// Every graph of every document.
const std::vector<StoredGraph>& StoredGraphs() {
  static const std::vector<StoredGraph> graphs = [] {
    std::vector<StoredGraph> found;
    for (const int version : kDocuments) {
      const std::filesystem::path folder(MQ_DOCUMENTS_FOLDER);
      const std::string name = "study_" + std::to_string(version);
      std::ifstream file(folder / (name + ".json"));
      const json document = json::parse(file);
      EXPECT_EQ(document.at("version").get<int>(), version);
      const host::CompoundDocument compound(folder / (name + ".cfb"));
      for (const json& record : document.at("records")) {
        if (record.at("kind") == "graph") {
          const std::string stream = record.at("stream").get<std::string>();
          found.push_back(
              {version, name + ".cfb > " + stream, record, compound.ReadStream(stream)});
        }
      }
    }
    return found;
  }();
  return graphs;
}

void Set(int& member, const json& value) {
  member = value.get<int>();
}
void Set(double& member, const json& value) {
  member = value.get<double>();
}
void Set(CString& member, const json& value) {
  CharToCString(value.get<std::string>().c_str(), member);
}
template <class Member, std::size_t Count>
void Set(Member (&members)[Count], const json& values) {
  ASSERT_EQ(values.size(), Count);
  for (std::size_t index = 0; index < Count; ++index) {
    Set(members[index], values[index]);
  }
}

/// Sets the members that a description names; each key is said to be known.
void SetMembers(CmqPostGraphParam& graph, const json& values) {
  std::set<std::string> known;
  const auto set = [&](const char* key, auto& member) {
    known.insert(key);
    if (values.contains(key)) {
      SCOPED_TRACE(key);
      Set(member, values.at(key));
    }
  };
  set("analysis type", graph.m_nAnalysisType);
  set("result type", graph.m_nResultType);
  set("integer after the result type", graph.m_nHost3);
  set("result option", graph.m_nResultOption);
  int five[5] = {graph.m_nHost5[0], graph.m_nHost5[1], graph.m_nHost6, graph.m_nHost7[0],
                 graph.m_nHost7[1]};
  set("five integers after the result option", five);
  graph.m_nHost5[0] = five[0];
  graph.m_nHost5[1] = five[1];
  graph.m_nHost6 = five[2];
  graph.m_nHost7[0] = five[3];
  graph.m_nHost7[1] = five[4];
  set("X axis quantity type", graph.m_XAxis.m_nQuantityType);
  set("X axis component", graph.m_XAxis.m_nComponent);
  set("X axis unit", graph.m_XAxis.m_nUnit);
  set("X axis sensor", graph.m_XAxis.m_nSensor);
  set("Y axis quantity type", graph.m_YAxis.m_nQuantityType);
  set("Y axis component", graph.m_YAxis.m_nComponent);
  set("Y axis unit", graph.m_YAxis.m_nUnit);
  set("Y axis transient sensor", graph.m_YAxis.m_nSensor);
  set("three strings", graph.m_strHost18);
  set("six integers", graph.m_nHost16);
  set("eighteen integers", graph.m_nHost17);
  set("integer before the fourth string", graph.m_nHost19);
  set("fourth string", graph.m_strHost20);
  double matrix[16];
  for (std::size_t index = 0; index < 16; ++index) {
    matrix[index] = graph.m_ViewMatrix[index / 4][index % 4];
  }
  set("view matrix", matrix);
  for (std::size_t index = 0; index < 16; ++index) {
    graph.m_ViewMatrix[index / 4][index % 4] = matrix[index];
  }
  set("three integers after the view matrix", graph.m_nHost22);
  set("integer before the two doubles", graph.m_nHost25);
  set("two doubles", graph.m_dHost26);
  set("integer after the two doubles", graph.m_nHost27);
  set("Y unit flag", graph.m_nYUnitFlag);
  set("integer after the Y unit flag", graph.m_nHost30);
  set("frequency response flag", graph.m_nFrequencyResponseFlag);
  set("frequency response mode", graph.m_nFrequencyResponseMode);
  set("four integers after the frequency response mode", graph.m_nHost34);
  set("double after the four integers", graph.m_dHost35);
  set("last integer", graph.m_nHost39);
  for (const auto& [key, value] : values.items()) {
    EXPECT_TRUE(known.contains(key)) << key;
  }
}

/// The graph that a description tells of.
CmqPostGraphParam DescribedGraph(const StoredGraph& stored) {
  CmqPostGraphParam graph;
  EXPECT_EQ(stored.description.at("values").size(), 30U);
  SetMembers(graph, stored.description.at("values"));
  return graph;
}

/// The graph as it lies in the document, before a correction.
CmqPostGraphParam UncorrectedGraph(const StoredGraph& stored) {
  CmqPostGraphParam graph = DescribedGraph(stored);
  if (stored.description.contains("stored otherwise")) {
    SetMembers(graph, stored.description.at("stored otherwise"));
  }
  return graph;
}

TEST(GraphDocuments, EachDocumentHoldsTwoGraphs) {
  EXPECT_EQ(StoredGraphs().size(), 12U);
  int corrected = 0;
  for (const StoredGraph& stored : StoredGraphs()) {
    SCOPED_TRACE(stored.where);
    EXPECT_EQ(stored.bytes.size(), stored.description.at("length").get<std::size_t>());
    corrected += stored.description.contains("stored otherwise") ? 1 : 0;
  }
  EXPECT_EQ(corrected, 8);
}

TEST(GraphDocuments, TheStoredBytesAreTheHandLaidRecord) {
  for (const StoredGraph& stored : StoredGraphs()) {
    EXPECT_EQ(ByteDifference(stored.bytes, BuildRecord(UncorrectedGraph(stored), stored.version)),
              "")
        << stored.where;
  }
}

TEST(GraphDocuments, EveryMemberIsReadAsDescribed) {
  for (const StoredGraph& stored : StoredGraphs()) {
    SCOPED_TRACE(stored.where);
    host::MemoryStream stream(stored.bytes);
    CmqPostGraphParam graph;
    EXPECT_EQ(graph.ReadFromStream(&stream, stored.version), 1);
    EXPECT_EQ(Differences(graph, DescribedGraph(stored)), "");
    EXPECT_EQ(stream.Position(), stored.bytes.size());
  }
}

TEST(GraphDocuments, TheStreamsOfTheDocumentsAreReadInPlace) {
  for (const StoredGraph& stored : StoredGraphs()) {
    SCOPED_TRACE(stored.where);
    const std::string name = "study_" + std::to_string(stored.version) + ".cfb";
    const host::CompoundDocument document(std::filesystem::path(MQ_DOCUMENTS_FOLDER) / name);
    const host::DocumentStream stream =
        document.OpenStream(stored.description.at("stream").get<std::string>());
    CmqPostGraphParam graph;
    EXPECT_EQ(graph.ReadFromStream(stream.get(), stored.version), 1);
    EXPECT_EQ(Differences(graph, DescribedGraph(stored)), "");
  }
}

TEST(GraphDocuments, EveryGraphIsWrittenInTheNewestLayoutAndReadBack) {
  for (const StoredGraph& stored : StoredGraphs()) {
    SCOPED_TRACE(stored.where);
    host::MemoryStream source(stored.bytes);
    CmqPostGraphParam graph;
    EXPECT_EQ(graph.ReadFromStream(&source, stored.version), 1);

    host::MemoryStream target;
    EXPECT_EQ(graph.WriteToStream(&target), 1);
    EXPECT_EQ(ByteDifference(target.Bytes(), BuildRecord(DescribedGraph(stored), 890110)), "");

    target.Rewind();
    CmqPostGraphParam again;
    EXPECT_EQ(again.ReadFromStream(&target, 890110), 1);
    EXPECT_EQ(Differences(again, DescribedGraph(stored)), "");
    EXPECT_EQ(target.Position(), target.Bytes().size());
  }
}

TEST(GraphDocuments, ANewestRecordIsWrittenAsItWasStoredButForTheCorrectedFlag) {
  constexpr std::size_t kFlagFromTheEnd = 44;  // the flag and the 40 bytes behind it
  int newest = 0;
  for (const StoredGraph& stored : StoredGraphs()) {
    if (stored.version != 890110) {
      continue;
    }
    SCOPED_TRACE(stored.where);
    ++newest;
    host::MemoryStream source(stored.bytes);
    CmqPostGraphParam graph;
    EXPECT_EQ(graph.ReadFromStream(&source, stored.version), 1);
    host::MemoryStream target;
    EXPECT_EQ(graph.WriteToStream(&target), 1);

    ByteString expected = stored.bytes;
    if (stored.description.contains("stored otherwise")) {
      const std::size_t flag = expected.size() - kFlagFromTheEnd;
      EXPECT_EQ(expected[flag], std::byte{0});
      expected[flag] = std::byte{1};
    }
    EXPECT_EQ(ByteDifference(target.Bytes(), expected), "");
  }
  EXPECT_EQ(newest, 2);
}

}  // namespace
}  // namespace mqp::test
