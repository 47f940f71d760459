// Four threads ask every function of the catalogue and one index of components at once and work on
// objects of their own; each gets what one thread alone gets. A thread sanitizer sees the rest.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstddef>
#include <functional>
#include <latch>
#include <random>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include <storage/memory_stream.h>
#include <mqPostCommon/mqPostCommon.h>

#include "params/record_test_support.h"

namespace mqp::test {
namespace {

constexpr int kThreads = 4;

/// Runs `work` with the numbers 0 to 3 on threads that start together.
void OnFourThreads(const std::function<void(int)>& work) {
  std::latch start(kThreads);
  std::vector<std::thread> threads;
  for (int number = 0; number < kThreads; ++number) {
    threads.emplace_back([&, number] {
      start.arrive_and_wait();
      work(number);
    });
  }
  for (std::thread& thread : threads) {
    thread.join();
  }
}

// ---- the catalogue ------------------------------------------------------------------------

using Codes = std::array<int, 9>;
/// Whatever a function answers, texts by their code units.
using Answer = std::vector<int>;

Answer UnitsOf(const CString& text) {
  const mqTextView view = text.View();
  return {view.begin(), view.end()};
}

CString NameIn(const Codes& c) {
  return vekPostCommonGetComponentName(c[0], c[1], 0, c[2], c[3], c[4]);
}

struct Question {
  std::string_view name;
  Answer (*ask)(const Codes&);
};

// clang-format off
constexpr auto kQuestions = std::to_array<Question>({
    {"component total",      [](const Codes& c) { return Answer{vekPostCommonGetComponentTotal(c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], c[8])}; }},
    {"data type",            [](const Codes& c) { std::array<int, 3> m{-7, -7, -7};
                                                  const int type = vekPostCommonGetComponentDataType(c[0], c[1], c[2], m.data(), c[3]);
                                                  return Answer{type, m[0], m[1], m[2]}; }},
    {"default component",    [](const Codes& c) { return Answer{vekPostCommonGetComponentDefault(c[0], c[1], c[2], c[3], c[4])}; }},
    {"envelope bounds",      [](const Codes& c) { return Answer{vekPostCommonGetEnvelopBoundTotal(c[0], c[1], c[2], c[3])}; }},
    {"reference",            [](const Codes& c) { return Answer{vekPostCommonIsReferenceAvailable(c[0], c[1], c[2], c[3])}; }},
    {"available studies",    [](const Codes& c) { CArray<int, int> list;
                                                  vekPostCommonGetAvailableAnalysisType(c[1], c[2], list);
                                                  Answer answer;
                                                  for (int i = 0; i < static_cast<int>(list.GetSize()); ++i) { answer.push_back(list[i]); }
                                                  return answer; }},
    {"first study",          [](const Codes& c) { return Answer{vekPostCommonGetFirstAvailableAnalysisType(c[1], c[2])}; }},
    {"vector direction",     [](const Codes& c) { std::array<float, 4> d{9, 9, 9, 9};
                                                  vekPostCommonGetComponentVectorDir(c[0], c[1], c[2], c[3], d.data());
                                                  return Answer(d.begin(), d.end()); }},
    {"unit type",            [](const Codes& c) { return Answer{vekPostCommonGetUnitType(c[0], c[1], c[2], c[3], c[4])}; }},
    {"unit total",           [](const Codes& c) { return Answer{vekPostCommonGetUnitTotal(c[0])}; }},
    {"unit name",            [](const Codes& c) { return UnitsOf(vekPostCommonGetUnitName(c[1], c[0])); }},
    {"default unit",         [](const Codes& c) { return Answer{vekPostCommonGetComponentUnitsBasedOnSystemUnit(c[3], c[0], c[1], c[2], c[4], c[5])}; }},
    {"result name",          [](const Codes& c) { return UnitsOf(vekPostCommonGetResultName(c[1])); }},
    {"full name",            [](const Codes& c) { return UnitsOf(NameIn(c)); }},
    {"bar name",             [](const Codes& c) { return UnitsOf(vekPostCommonGetComponentNameBar(c[0], c[1], c[5], c[2], c[3], c[4])); }},
    {"short name",           [](const Codes& c) { return UnitsOf(vekPostCommonGetComponentNameShort(c[0], c[1], c[5], c[2])); }},
    {"brief name",           [](const Codes& c) { return UnitsOf(vekPostCommonGetComponentNameBrief(c[0], c[1], c[5], c[2])); }},
    {"title in a report",    [](const Codes& c) { return UnitsOf(vekPostCommonGetGraphNameForReport(c[0], c[1], c[2], c[3])); }},
    {"component by name",    [](const Codes& c) { return Answer{vekPostCommonGetComponentIndexByName(c[0], c[1], c[3], NameIn(c), c[4])}; }},
    {"result by name",       [](const Codes& c) { return Answer{vekPostCommonGetResultTypeByComponentName(NameIn(c))}; }},
    {"material property",    [](const Codes& c) { return Answer{FindMaterialProperty(g_strMatPropKeywords[c[1]])}; }},
    {"material model",       [](const Codes& c) { return Answer{GetMaterialModel(c[0]).m_nKeywords}; }},
});
// clang-format on

/// Mostly codes that mean something, now and then any integer.
std::vector<Codes> RandomCodes(std::size_t count) {
  std::mt19937 generator(20240229);
  const auto draw = [&generator](int last) {
    const auto number = generator();
    return number % 16 == 0 ? static_cast<int>(generator())
                            : static_cast<int>(number / 16 % static_cast<unsigned>(last + 1));
  };
  std::vector<Codes> codes(count);
  for (Codes& c : codes) {
    // clang-format off
    c = {draw(12), draw(75), draw(16), draw(4), draw(2), draw(2), draw(4), draw(2), draw(8)};
    // clang-format on
  }
  return codes;
}

/// Of every question with every set of codes.
std::vector<Answer> AnswersTo(const std::vector<Codes>& codes) {
  std::vector<Answer> answers;
  for (const Codes& c : codes) {
    for (const Question& question : kQuestions) {
      answers.push_back(question.ask(c));
    }
  }
  return answers;
}

/// Each thread asks everything, starting at another place; returns the first wrong answer in words.
std::string FirstWrongAnswer(int thread, const std::vector<Codes>& codes,
                             const std::vector<std::vector<Answer>>& allowed) {
  const std::size_t first = static_cast<std::size_t>(thread) * codes.size() / kThreads;
  for (std::size_t step = 0; step < codes.size(); ++step) {
    const std::size_t place = (first + step) % codes.size();
    for (std::size_t question = 0; question < kQuestions.size(); ++question) {
      const Answer answer = kQuestions[question].ask(codes[place]);
      const std::size_t row = place * kQuestions.size() + question;
      if (std::ranges::none_of(allowed,
                               [&](const auto& answers) { return answer == answers[row]; })) {
        return std::string(kQuestions[question].name) + " of codes " + std::to_string(place);
      }
    }
  }
  return {};
}

constexpr std::size_t kCodeSets = 10000;

TEST(FourThreads, GetTheAnswersOfOneFromEveryFunctionOfTheCatalogue) {
  const std::vector<Codes> codes = RandomCodes(kCodeSets);
  const std::vector<std::vector<Answer>> allowed{AnswersTo(codes)};
  std::array<std::string, kThreads> wrong;
  OnFourThreads([&](int thread) {
    wrong[static_cast<std::size_t>(thread)] = FirstWrongAnswer(thread, codes, allowed);
  });
  EXPECT_EQ(wrong, (std::array<std::string, kThreads>{}));
  RecordProperty("cases", static_cast<int>(kThreads * kCodeSets * kQuestions.size()));
}

TEST(FourThreads, GetOneOfTheTwoAnswersWhileTheFlagChangesUnderThem) {
  const std::vector<Codes> codes = RandomCodes(kCodeSets);
  std::vector<std::vector<Answer>> allowed;
  for (const int flag : {0, 1}) {
    vekPostCommonSetActualFreqDispFlag(flag);
    allowed.push_back(AnswersTo(codes));
  }
  ASSERT_NE(allowed[0], allowed[1]) << "some answers depend on the flag";
  std::array<std::string, kThreads> wrong;
  std::atomic<int> asking{kThreads - 1};
  std::atomic<int> oddFlags{0};
  OnFourThreads([&](int thread) {
    if (thread == 0) {
      for (int value = 0; asking > 0; value = 1 - value) {
        vekPostCommonSetActualFreqDispFlag(value);
        const int flag = vekPostCommonGetActualFreqDispFlag();
        oddFlags += flag != value ? 1 : 0;
      }
      return;
    }
    wrong[static_cast<std::size_t>(thread)] = FirstWrongAnswer(thread, codes, allowed);
    --asking;
  });
  vekPostCommonSetActualFreqDispFlag(0);
  EXPECT_EQ(wrong, (std::array<std::string, kThreads>{}));
  EXPECT_EQ(oddFlags, 0) << "one thread alone sets the flag";
  RecordProperty("cases", static_cast<int>((kThreads - 1) * kCodeSets * kQuestions.size()));
}

// ---- objects ------------------------------------------------------------------------------

/// The record of a graph that has been written, read and made anew, and its names.
ByteString WorkOnAGraph(int seed) {
  host::MemoryStream stream;
  FilledGraph(seed).WriteToStream(&stream);
  stream.Rewind();
  CmqPostGraphParam graph(5, 1, 0, 1, seed);
  graph.ReadFromStream(&stream, 890110);
  graph.m_strHost20 = graph.GetDefaultPlotName(seed) + graph.GetYTitle(seed, 0);
  graph.m_strHost20 += CmqPostGraphParam(0, 2, 0, 0, seed).GetDefaultPlotName(0);
  const CmqPostGraphParam copy = graph;
  host::MemoryStream again;
  copy.WriteToStream(&again);
  return again.Bytes();
}

ByteString WorkOnAnEquation(int seed) {
  CmqResultCompsEqnVarsList typed;
  typed.m_listStressNames.AddTail(MQ_TEXT("\"VON: von Mises stress\""));
  typed.m_listVariableNames.AddTail(MQ_TEXT("\"VON: von Mises stress\""));
  typed.m_strEquation.Format(MQ_TEXT("%d * \"VON: von Mises stress\""), seed);
  CmqEquationPlotParam plot;
  plot.PrepareEquationParams(&typed);
  plot.PrepareEquationToDisplay(0, 0, 0, 0);
  plot.m_strHost3[0] = plot.m_strDisplayEquation;
  host::MemoryStream stream;
  plot.WriteToStream(&stream, 890110);
  stream.Rewind();
  CmqEquationPlotParam other;
  SetState(other, FilledEquation(seed, 1));
  other.ReadFromStream(&stream, 890110);
  host::MemoryStream again;
  other.WriteToStream(&again, 890110);
  return again.Bytes();
}

ByteString WorkOnAList(int seed) {
  CVekPostListParam list;
  list.m_nResultType = seed % 5;
  list.m_nListSetFlag = seed % 2;
  RecordBytes bytes;
  for (int column = 0; column < list.GetListColCount(); ++column) {
    bytes.Text(list.GetListColTitle(column).View()).Text(list.GetComponentName(column).View());
  }
  return bytes.Integer(list.GetUnitType()).Get();
}

ByteString WorkOnMaterials(int seed) {
  CmqpMaterialDataList list;
  for (int number = 0; number < 20; ++number) {
    CmqpMaterialData material;
    material.m_strMaterialName.Format(MQ_TEXT("Material %d"), number % (seed + 1));
    material.m_SIGYLDTempCurve.m_vecX = {0.0, 1.0 + seed};
    material.m_SIGYLDTempCurve.m_vecY = {1.0, 2.0};
    material.m_SIGYLDTempCurve.m_nPoints = 2;
    list.Add(material);
  }
  std::vector<int> unique;
  list.GetUniqueMaterialList(unique);
  RecordBytes bytes;
  for (const int index : unique) {
    bytes.Integer(index).Double(list.GetAt(index).m_SIGYLDTempCurve.GetYValueAt(0.5));
  }
  return bytes.Get();
}

/// Ranges that overlap, and names and bodies that occur several times.
CDspAsmCompList MakeAssembly(int names) {
  CDspAsmCompList list;
  for (int number = 0; number < 20; ++number) {
    CDspAsmComp component(number, 10 * number + 1, 10 * number + 15, COGLColor{}, 0);
    component.m_strCompName.Format(MQ_TEXT("Part %d"), number % names);
    component.m_nBodyID = number % (2 * names);
    list.Add(component);
  }
  return list;
}

ByteString WorkOnAnAssembly(int seed) {
  CDspAsmCompList list = MakeAssembly(seed + 1);
  list.HideAllExceptOneComponent(MQ_TEXT("Part 1"));
  list.SortByElemID(seed % 2);
  RecordBytes bytes;
  for (int index = 0; index < list.GetSize(); ++index) {
    const CDspAsmComp component = list.GetAt(index);
    bytes.Integer(component.m_nCompID).Integer(component.m_bHidden);
  }
  return bytes.Get();
}

void AddAnswers(RecordBytes& bytes, const CDspAsmCompIndex& index, int seed) {
  bytes.Integer(index.GetSize());
  for (int number = seed - 2; number < 230; number += 7) {
    int visible = -7;
    bytes.Integer(index.GetVisPartIndex_1based(number, &visible)).Integer(visible);
    bytes.Integer(index.GetActiveElemIndex(number / 10, seed));
    bytes.Integer(index.GetIndexByBodyID(number / 10));
    CString name;
    name.Format(number % 2 == 0 ? MQ_TEXT("Part %d") : MQ_TEXT("PART %d"), number % 5);
    bytes.Integer(index.IsComponentExistByName(name));
    std::vector<int> found;
    index.GetBodyListByPartName(&found, name);
    std::ranges::for_each(found, [&bytes](int component) { bytes.Integer(component); });
  }
}

/// The threads ask one and the same index, and each makes a copy that takes the place of an index
/// of its own.
ByteString WorkOnASharedIndex(int seed) {
  static const CDspAsmCompIndex shared(MakeAssembly(4));
  RecordBytes bytes;
  AddAnswers(bytes, shared, seed);
  CDspAsmCompIndex own(MakeAssembly(seed));
  AddAnswers(bytes, own, seed);
  own = CDspAsmCompIndex(shared);
  AddAnswers(bytes, own, seed);
  return bytes.Get();
}

ByteString WorkOnAPlot(int seed) {
  CmqPostDataParam plot;
  plot.m_strPlotName.Format(MQ_TEXT("Plot %d"), seed);
  plot.m_nAnalysisType = seed;
  plot.m_nResultType = 5;
  plot.m_nComponent = seed;
  plot.m_nEnvelopeFlag = 1;
  plot.m_nDeformScaleMode = seed % 3;
  plot.m_fDeformScaleFactor0 = 2.5F * static_cast<float>(seed);
  plot.m_fDeformScaleFactor1 = 0.5F * static_cast<float>(seed);
  for (int number = 0; number < seed; ++number) {
    plot.m_arrHost31.Add(10 * seed + number);
    plot.m_arrHost32.Add(plot.m_strPlotName);
  }
  SetState(plot.m_EquationPlot, FilledEquation(seed, seed % 3));
  const CmqPostDataParam copy(plot);
  CmqPostDataParam target;
  target = copy;
  RecordBytes bytes;
  bytes.Text(target.m_strPlotName.View()).Double(target.GetDeformScaleFactor());
  bytes.Integer(target.IsEnvelopPlot()).Integer(target.IsThermalHeatEnergy());
  bytes.Text(target.m_EquationPlot.m_strEquation.View());
  for (int index = 0; index < target.m_arrHost31.GetSize(); ++index) {
    bytes.Integer(target.m_arrHost31[index]).Text(target.m_arrHost32[index].View());
  }
  return bytes.Get();
}

ByteString WorkOnAnAnimation(int seed) {
  CmqpAnimateParam animation;
  animation.m_strHost6.Format(MQ_TEXT("Animation %d"), seed);
  RecordBytes bytes;
  for (const int frames : {seed, 10 * seed}) {
    bytes.Integer(animation.SetNFrames(frames)).Integer(animation.m_nFrames);
  }
  const CmqpAnimateParam copy(animation);
  CmqpAnimateParam target;
  target = copy;
  return bytes.Integer(target.m_nFrames).Text(target.m_strHost6.View()).Get();
}

ByteString WorkOnFacets(int seed) {
  std::vector<CSTLVertex> vertices(static_cast<std::size_t>(seed));
  for (CSTLVertex& vertex : vertices) {
    vertex.SetX(static_cast<float>(seed));
    vertex.SetZ(0.25F * static_cast<float>(&vertex - vertices.data()));
  }
  const CSTLFacet facet(vertices.back(), vertices);
  CSTLFacet target({}, {});
  target = CSTLFacet(facet);
  RecordBytes bytes;
  bytes.Integer(target.m_nVertices).Double(target.m_Normal.GetZ());
  for (const CSTLVertex& vertex : target.m_vecVertices) {
    bytes.Double(vertex.GetX()).Double(vertex.GetY()).Double(vertex.GetZ());
  }
  return bytes.Get();
}

ByteString WorkOnElementValues(int seed) {
  CMqStressTensorValuesOfAllNodesOfElement tensors;
  tensors.m_nNodes = seed;
  for (int slot = 0; slot < 10; ++slot) {
    tensors.m_nNodeIDs[slot] = 100 * seed + slot;
    std::ranges::fill(tensors.m_fStressTensor[slot], static_cast<float>(slot - seed));
  }
  tensors.ApplyUnits(0.5F);
  const CMqStressTensorValuesOfAllNodesOfElement copy(tensors);
  CMqNodalResultValuesOfElement values;
  values = copy.GetSpecificResult(static_cast<float>(seed));
  RecordBytes bytes;
  bytes.Integer(values.m_nNodes);
  for (int slot = 0; slot < 10; ++slot) {
    bytes.Integer(values.m_nNodeIDs[slot]).Double(values.m_fValues[slot]);
  }
  return bytes.Get();
}

struct Work {
  std::string_view name;
  ByteString (*run)(int seed);
};
// clang-format off
constexpr auto kWorks = std::to_array<Work>({
    {"graph",     WorkOnAGraph},
    {"equation",  WorkOnAnEquation},
    {"list",      WorkOnAList},
    {"materials", WorkOnMaterials},
    {"assembly",  WorkOnAnAssembly},
    {"index",     WorkOnASharedIndex},
    {"plot",      WorkOnAPlot},
    {"animation", WorkOnAnAnimation},
    {"facets",    WorkOnFacets},
    {"values",    WorkOnElementValues},
});
// clang-format on

TEST(FourThreads, EachWorkOnObjectsOfTheirOwnAndASharedIndexAsOneDoes) {
  constexpr int kRounds = 300;
  constexpr int kSeeds = 7;
  std::vector<ByteString> expected;
  for (int seed = 1; seed <= kSeeds; ++seed) {
    for (const Work& work : kWorks) {
      expected.push_back(work.run(seed));
      ASSERT_FALSE(expected.back().empty()) << work.name;
    }
  }
  std::array<std::string, kThreads> wrong;
  OnFourThreads([&](int thread) {
    for (int round = 0; round < kRounds; ++round) {
      const int seed = (round + thread) % kSeeds + 1;
      for (std::size_t step = 0; step < kWorks.size(); ++step) {
        // Two begin with the same work, the others with the next one.
        const std::size_t place = (step + static_cast<std::size_t>(thread / 2)) % kWorks.size();
        const std::size_t row = static_cast<std::size_t>(seed - 1) * kWorks.size() + place;
        if (kWorks[place].run(seed) != expected[row]) {
          wrong[static_cast<std::size_t>(thread)] = kWorks[place].name;
        }
      }
    }
  });
  EXPECT_EQ(wrong, (std::array<std::string, kThreads>{}));
  RecordProperty("cases", static_cast<int>(kThreads * kRounds * kWorks.size()));
}

}  // namespace
}  // namespace mqp::test
