// A program that defines the functions of the host itself takes the place of the library that
// brings them: every text of the catalogue comes from here, and records are written with this copy.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <mqPostCommon/catalogue/components.h>
#include <mqPostCommon/catalogue/lookup.h>
#include <mqPostCommon/catalogue/names.h>
#include <mqPostCommon/lists/list.h>
#include <mqPostCommon/params/graph.h>
#include <mqPostCommon/params/stream/strings.h>
#include <mqPostCommon/platform/comm_funcs.h>
#include <mqPostCommon/platform/integers.h>
#include <mqPostCommon/platform/stream.h>
#include <mqPostCommon/platform/text.h>
#include <mqPostCommon/platform/wide_string.h>

namespace {

/// The texts of this program, and the ids that it was asked for in their order.
struct OwnTable {
  std::map<UINT, CString> texts;
  std::vector<UINT> asked;
};

OwnTable& Table() {
  static OwnTable table;
  return table;
}

}  // namespace

/// Unlike the stand-in, leaves the text alone when it has none for the id.
int mqpLoadString(CString& text, UINT id) {
  Table().asked.push_back(id);
  const auto found = Table().texts.find(id);
  if (found == Table().texts.end()) {
    return 0;
  }
  text = found->second;
  return 1;
}

/// Copies no more than three units, whatever the room.
int STRING2LPUSHORT(const CString& text, unsigned short* units, int capacity) {
  const int count = std::min({text.GetLength(), capacity, 3});
  std::copy_n(text.GetString(), count, units);
  return count;
}

namespace mqp::test {
namespace {

using Ids = std::vector<UINT>;

/// Up to behind the end of the longest list, that of a dynamic stress.
constexpr int kFirstComponent = -1;
constexpr int kLastComponent = 101;

class OwnStringTableTest : public testing::Test {
 protected:
  OwnStringTableTest() { Table() = {}; }

  static void Set(UINT id, const mqChar* text) { Table().texts[id] = CString(text); }
  static Ids TakeAsked() { return std::exchange(Table().asked, {}); }
  static void CheckThatNamesWereAsked() {
    for (const UINT id : TakeAsked()) {
      EXPECT_TRUE(id >= 50004 && id <= 56061) << id;  // the lowest and the highest of all names
    }
  }
};

TEST_F(OwnStringTableTest, NamesComeFromIt) {
  Set(52941, MQ_TEXT("Verschiebung"));
  Set(54578, MQ_TEXT("UX: Verschiebung in X"));
  Set(53981, MQ_TEXT("UX"));
  Set(54782, MQ_TEXT("X"));
  Set(55144, MQ_TEXT("Diagramm"));
  EXPECT_EQ(vekPostCommonGetResultName(1), MQ_TEXT("Verschiebung"));
  EXPECT_EQ(vekPostCommonGetComponentName(0, 1, 0, 0, 0, 0), MQ_TEXT("UX: Verschiebung in X"));
  EXPECT_EQ(vekPostCommonGetComponentNameBar(0, 1, 0, 0, 0, 0), MQ_TEXT("UX"));
  EXPECT_EQ(vekPostCommonGetComponentNameShort(0, 1, 0, 0), MQ_TEXT("UX"));
  EXPECT_EQ(vekPostCommonGetComponentNameBrief(0, 1, 0, 0), MQ_TEXT("X"));
  EXPECT_EQ(vekPostCommonGetGraphNameForReport(0, 63, 0, 0), MQ_TEXT("Diagramm"));
}

TEST_F(OwnStringTableTest, LookUpsReadIt) {
  Set(54578, MQ_TEXT("UX: Verschiebung in X"));
  Set(54579, MQ_TEXT("UY: Verschiebung in Y"));
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(0, 1, 0, MQ_TEXT("UY: egal"), 0), 1);
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(0, 1, 0, MQ_TEXT("DX"), 0), -1);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT("UY")), 1);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT("DX")), 9999);
}

// Where both forms of a name lead to the same component, no answer tells which was tried first.
TEST_F(OwnStringTableTest, BothFormsOfAModeShapeAreAskedForInTheirOrder) {
  vekPostCommonGetComponentIndexByName(1, 1, 0, MQ_TEXT("none"), 0);
  EXPECT_EQ(TakeAsked(), (Ids{54578, 54865, 54579, 54866, 54580, 54867, 50341, 54868}));
  vekPostCommonGetComponentIndexByName(2, 1, 0, MQ_TEXT("none"), 0);
  EXPECT_EQ(TakeAsked(), (Ids{54578, 54865, 54579, 54866, 54580, 54867, 50341, 54868, 54584, 55269,
                              54585, 55270, 54586, 55271}));
}

TEST_F(OwnStringTableTest, ATextIsLoadedAnewForEveryCall) {
  Set(54578, MQ_TEXT("DX: along X"));
  EXPECT_EQ(vekPostCommonGetComponentName(0, 1, 0, 0, 0, 0), MQ_TEXT("DX: along X"));
  Set(54578, MQ_TEXT("UX: in X"));
  EXPECT_EQ(vekPostCommonGetComponentName(0, 1, 0, 0, 0, 0), MQ_TEXT("UX: in X"));
  EXPECT_EQ(TakeAsked(), (Ids{54578, 54578}));
}

TEST_F(OwnStringTableTest, NothingIsAskedForWhereThereIsNoName) {
  EXPECT_EQ(vekPostCommonGetComponentName(0, 1, 0, 15, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentNameBar(10, 6, 0, 0, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentNameBrief(10, 6, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetGraphNameForReport(0, 2, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(4, 1, 0, MQ_TEXT("DX"), 0), -1);
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(0, 1, 0, MQ_TEXT(""), 0), -1);
  EXPECT_EQ(TakeAsked(), Ids());
}

TEST_F(OwnStringTableTest, ATextThatItLacksIsEmpty) {
  EXPECT_EQ(vekPostCommonGetResultName(1), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentName(0, 1, 0, 0, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentNameBrief(0, 1, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetGraphNameForReport(5, 1, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(TakeAsked(), (Ids{52941, 54578, 54782, 54715}));
}

TEST_F(OwnStringTableTest, ABarNameThatItLacksFallsBackToTheFullName) {
  Set(54578, MQ_TEXT("UX: in X"));
  EXPECT_EQ(vekPostCommonGetComponentNameBar(0, 1, 0, 0, 0, 0), MQ_TEXT("UX"));
  EXPECT_EQ(TakeAsked(), (Ids{53981, 54578}));
}

TEST_F(OwnStringTableTest, NothingIsAskedForInPlaceOfABarNameOfResultTypes53And54) {
  EXPECT_EQ(vekPostCommonGetComponentNameBar(0, 53, 0, 0, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentNameBar(0, 54, 0, 5, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(vekPostCommonGetComponentNameBar(0, 54, 0, 6, 0, 0), MQ_TEXT(""));
  EXPECT_EQ(TakeAsked(), (Ids{50507, 51761}));
}

// A wrong id that no table has would pass for a missing name.

TEST_F(OwnStringTableTest, NothingButNamesIsAskedForWhateverTheCodes) {
  for (const int flag : {0, 1}) {
    vekPostCommonSetActualFreqDispFlag(flag);
    for (int study = -1; study <= 12; ++study) {
      for (int result = -1; result <= 74; ++result) {
        SCOPED_TRACE(testing::Message()
                     << "display flag " << flag << ", study " << study << ", result " << result);
        vekPostCommonGetResultName(result);
        for (const int option : {0, 1}) {
          vekPostCommonGetGraphNameForReport(study, result, option, option);
          vekPostCommonGetComponentIndexByName(study, result, option, MQ_TEXT("none"), 0);
        }
        for (int component = kFirstComponent; component <= kLastComponent; ++component) {
          for (const int meshKind : {0, 4}) {
            for (const int option : {0, 1}) {
              vekPostCommonGetComponentName(study, result, 0, component, meshKind, option);
              vekPostCommonGetComponentNameBar(study, result, 0, component, meshKind, option);
            }
          }
          vekPostCommonGetComponentNameBrief(study, result, 0, component);
        }
        CheckThatNamesWereAsked();
      }
    }
  }
  vekPostCommonSetActualFreqDispFlag(0);
  vekPostCommonGetResultTypeByComponentName(MQ_TEXT("none"));
  CheckThatNamesWereAsked();
}

TEST_F(OwnStringTableTest, NothingButNamesIsAskedForWhateverTheListSet) {
  for (const int study : {0, 1, 5, 8}) {
    for (int result = 0; result <= 21; ++result) {
      for (int kind = -1; kind <= 5; ++kind) {
        SCOPED_TRACE(testing::Message()
                     << "study " << study << ", result " << result << ", kind " << kind);
        CVekPostListParam list;
        list.m_nAnalysisType = study;
        list.m_nResultType = result;
        list.m_nListSetFlag = 1;
        list.m_nListSetKind = kind;
        for (int component = kFirstComponent; component <= kLastComponent; ++component) {
          static_cast<void>(list.GetComponentName(component));
          list.m_nComponent = component;
          static_cast<void>(list.GetComponentIndexByListSet());
        }
        CheckThatNamesWereAsked();
      }
    }
  }
}

TEST_F(OwnStringTableTest, NothingButNamesIsAskedForWhateverTheComponentOfAGraph) {
  CmqPostGraphParam graph(8, 2, 0, 0, 0);
  graph.m_YAxis.m_nQuantityType = 2;
  for (int component = kFirstComponent; component <= kLastComponent; ++component) {
    SCOPED_TRACE(component);
    graph.m_YAxis.m_nComponent = component;
    for (const int meshKind : {0, 4}) {
      static_cast<void>(graph.GetDefaultPlotName(meshKind));
      static_cast<void>(graph.GetYTitle(meshKind, 0));
    }
    CheckThatNamesWereAsked();
  }
}

TEST_F(OwnStringTableTest, NoTextIsAskedForAsTheTitleBehindTheSevenBeamStresses) {
  CmqPostGraphParam graph(8, 2, 0, 0, 0);
  graph.m_YAxis.m_nQuantityType = 2;
  graph.m_YAxis.m_nComponent = 6;
  static_cast<void>(graph.GetYTitle(4, 0));
  EXPECT_EQ(TakeAsked(), Ids{54014});
  for (const int component : {-1, 7, 100}) {
    graph.m_YAxis.m_nComponent = component;
    static_cast<void>(graph.GetYTitle(4, 0));
    EXPECT_EQ(TakeAsked(), Ids()) << component;
  }
}

/// Keeps what is written.
class Sink : public IStream {
 public:
  HRESULT Read(void* /*buffer*/, ULONG /*size*/, ULONG* /*transferred*/) override { return E_FAIL; }
  HRESULT Write(const void* buffer, ULONG size, ULONG* /*transferred*/) override {
    written.append(static_cast<const char*>(buffer), size);
    return S_OK;
  }
  std::string written;
};

/// Leaves bytes where the next functions have their variables.
[[gnu::noinline]] void FillTheStack() {
  volatile char bytes[32768];
  for (volatile char& byte : bytes) {
    byte = 0x55;
  }
}

TEST(OwnCopy, WhatItLeavesOutOfATextIsStoredAsZeros) {
  for (const int length : {1, 3, 4, 31, 32, 33, 100, 1024}) {
    CString text(MQ_TEXT('x'), length);
    Sink sink;
    FillTheStack();
    EXPECT_EQ(CStringWriteToStream(&sink, &text), 1);
    ASSERT_EQ(sink.written.size(), 4U + 2U * static_cast<unsigned>(length));
    std::string units;
    for (int unit = 0; unit < length; ++unit) {
      units += unit < 3 ? 'x' : '\0';
      units += '\0';
    }
    EXPECT_EQ(sink.written.substr(4), units) << length;
  }
}

TEST_F(OwnStringTableTest, NoCandidateIsFoundInAnEmptyTable) {
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(0, 1, 0, MQ_TEXT("DX: along X"), 0), -1);
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(0, 1, 0, MQ_TEXT("DX: along X"), 1), -1);
  EXPECT_EQ(vekPostCommonGetResultTypeByComponentName(MQ_TEXT("DX: along X")), 9999);
}

TEST_F(OwnStringTableTest, CandidatesAreAskedForInTheirOrderUntilOneMatches) {
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(8, 19, 0, MQ_TEXT("none"), 0), -1);
  EXPECT_EQ(TakeAsked(), (Ids{54405, 54406, 54407, 54408, 54409, 54410, 54411, 54419}));
  Set(54407, MQ_TEXT("VZ: along Z"));
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(8, 19, 0, MQ_TEXT("VZ"), 0), 2);
  EXPECT_EQ(TakeAsked(), (Ids{54405, 54406, 54407}));
  EXPECT_EQ(vekPostCommonGetComponentIndexByName(1, 1, 0, MQ_TEXT("none"), 0), -1);
  EXPECT_EQ(TakeAsked(), (Ids{54578, 54865, 54579, 54866, 54580, 54867, 50341, 54868}));
}

}  // namespace
}  // namespace mqp::test
